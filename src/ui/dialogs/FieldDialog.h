#pragma once

#include "ui/dialogs/DialogModel.h"

#include <string_view>

namespace rhomba {

// A dialog model on in-memory fields that, like the platform, report every text write back to
// the model; rhomba-cli types and clicks into it as a user would.
template <typename Model>
struct FieldDialog {
    FieldTable fields;
    Model model;

    explicit FieldDialog(DialogMemory& memory = RunMemory()) : model(memory, fields) {
        fields.onNotify = [this](int id, int code) { model.OnCommand(id, code); };
        model.Open();
    }
    FieldDialog(const FieldDialog&) = delete;
    FieldDialog& operator=(const FieldDialog&) = delete;

    void Type(int id, std::string_view text) { fields.SetText(id, text); }
    void Check(int id, bool on) {
        fields.SetChecked(id, on);
        model.OnCommand(id, kButtonClicked);
    }
    void Click(const int* group, int count, int chosen) {
        CheckRadio(fields, group, count, chosen);
        model.OnCommand(group[chosen], kButtonClicked);
    }
};

} // namespace rhomba
