#include "ui/dialogs/DialogModel.h"

namespace rhomba {

DialogMemory& RunMemory() {
    static DialogMemory memory;
    return memory;
}

void DialogModel::OnCommand(int, int) {}

void CheckRadio(DialogFields& fields, const int* group, int count, int chosen) {
    for (int i = 0; i < count; ++i) fields.SetChecked(group[i], i == chosen);
}

int CheckedRadio(const DialogFields& fields, const int* group, int count, int fallback) {
    for (int i = 0; i < count; ++i) {
        if (fields.IsChecked(group[i])) return i;
    }
    return fallback;
}

} // namespace rhomba
