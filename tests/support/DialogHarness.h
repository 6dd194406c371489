#pragma once

#include "ui/dialogs/DialogModel.h"

#include <string>
#include <string_view>

namespace rhomba::test {

// A dialog on a field table that, like the platform, reports every text write back to the model.
template <typename Model>
struct Dialog {
    DialogMemory& memory;
    FieldTable fields;
    Model model{memory, fields};
    int notifications = 0;

    explicit Dialog(DialogMemory& m) : memory(m) {
        fields.onNotify = [this](int id, int code) {
            ++notifications;
            model.OnCommand(id, code);
        };
        model.Open();
    }
    void Type(int id, std::string_view text) { fields.SetText(id, text); }
    std::string Text(int id) const { return fields.GetText(id); }
    void Click(const int* group, int count, int chosen) {
        CheckRadio(fields, group, count, chosen);
        model.OnCommand(group[chosen], kButtonClicked);
    }
};

} // namespace rhomba::test
