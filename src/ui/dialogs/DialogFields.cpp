#include "ui/dialogs/DialogFields.h"

#include "geometry/Length.h"
#include "geometry/NumberText.h"
#include "model/Document.h"
#include "model/Reporter.h"

#include <algorithm>
#include <cmath>

namespace rhomba {

std::string FieldTable::GetText(int id) const {
    auto it = texts_.find(id);
    return it == texts_.end() ? std::string() : it->second;
}

void FieldTable::SetText(int id, std::string_view text) {
    texts_[id] = std::string(text);
    if (onNotify) onNotify(id, kEditChange);
}

bool FieldTable::IsChecked(int id) const {
    auto it = checked_.find(id);
    return it != checked_.end() && it->second;
}

void FieldTable::SetChecked(int id, bool on) { checked_[id] = on; }

bool FieldTable::IsEnabled(int id) const {
    auto it = enabled_.find(id);
    return it == enabled_.end() || it->second;
}

void FieldTable::Enable(int id, bool on) { enabled_[id] = on; }

void FieldTable::Invalidate(int id) { ++invalidations[id]; }

std::string ShowNumber(double value) {
    std::string text = FormatG(value);
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

std::string ShowMillimetres(double value) { return ShowNumber(value) + " mm"; }

std::string ShowRounded(double value) {
    const double rounded = value >= 0 ? std::floor(value * 100 + 0.5) / 100
                                      : std::ceil(value * 100 - 0.5) / 100;
    return ShowNumber(rounded);
}

double ReadNumber(std::string_view text) {
    std::string copy(text);
    std::replace(copy.begin(), copy.end(), ',', '.');
    std::size_t end = 0;
    const double value = ReadLeadingNumber(copy, end);
    return std::isfinite(value) ? value : 0;
}

double ReadMillimetres(std::string_view text) {
    const double value = ParseLength(text);
    return std::isfinite(value) ? value : 0;
}

double Clamp(double value, double low, double high) {
    if (value < low) return low;
    if (value > high) return high;
    return value;
}

bool RequireSelection(const Document& document, Reporter& reporter) {
    if (!document.Selection().empty()) return true;
    reporter.Inform(kNoSelectionMessage);
    return false;
}

} // namespace rhomba
