#include "ui/panel/PanelModel.h"

#include "geometry/NumberText.h"
#include "model/Colour.h"
#include "model/Document.h"
#include "model/PointList.h"
#include "model/TextObject.h"
#include "ui/PropertyCommands.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <vector>

namespace rhomba {

namespace {

constexpr int kDashFields = IDC_PANEL_DASH_LAST - IDC_PANEL_DASH_FIRST + 1;
static_assert(kDashFields == 8);

// Calls visit on every selected leaf, looking into selected groups depth first, in drawing order,
// until visit returns true. A work list, so that deep nesting cannot exhaust the stack.
template <typename Visit>
void VisitSelectedLeaves(const Document& document, Visit visit) {
    const auto& selection = document.Selection();
    std::vector<const GraphicObject*> work(selection.rbegin(), selection.rend());
    while (!work.empty()) {
        const GraphicObject* object = work.back();
        work.pop_back();
        if (object == nullptr) continue;
        if (IsContainer(*object)) {
            const auto& group = static_cast<const Group&>(*object);
            for (std::size_t i = group.ChildCount(); i-- > 0;) work.push_back(group.ChildAt(i));
        } else if (visit(*object)) {
            return;
        }
    }
}

const GraphicObject* FirstSelectedLeaf(const Document& document, bool textsOnly) {
    const GraphicObject* found = nullptr;
    VisitSelectedLeaves(document, [&](const GraphicObject& object) {
        const ObjectKind kind = object.GetKind();
        if (kind == ObjectKind::Text || (!textsOnly && kind == ObjectKind::Path)) found = &object;
        return found != nullptr;
    });
    return found;
}

// The one selected object, when exactly one of the given kind is selected.
GraphicObject* SingleSelected(const Document& document, ObjectKind kind) {
    const auto& selection = document.Selection();
    if (selection.size() != 1 || selection.front()->GetKind() != kind) return nullptr;
    return selection.front();
}

std::string_view KindTitle(ObjectKind kind) {
    switch (kind) {
    case ObjectKind::Path: return "Pfad";
    case ObjectKind::Text: return "Text";
    case ObjectKind::Bitmap: return "Bitmap";
    case ObjectKind::Hotspot: return "Hotspot";
    default: return IsContainerKind(kind) ? "Gruppe" : "";
    }
}

// A field's text made into one command line: line ends would start a second command.
std::string OneLine(std::string_view text, char replacement) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, replacement);
    return line;
}

// Leading decimal digits as an unsigned value, saturated at 255; anything else reads as 0.
unsigned DashValue(std::string_view text) {
    text = Trim(text);
    unsigned value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') break;
        value = std::min(255u, value * 10 + static_cast<unsigned>(c - '0'));
    }
    return value;
}

// "%.1f" with a decimal comma, as the size field shows it.
std::string ShowSize(double size) {
    if (!std::isfinite(size)) return {};
    char text[400];
    const auto result = std::to_chars(text, text + sizeof text, size, std::chars_format::fixed, 1);
    std::string shown(text, result.ec == std::errc() ? result.ptr : text);
    std::replace(shown.begin(), shown.end(), '.', ',');
    return shown;
}

// Writes only what differs: every write to a shown control costs the platform a repaint.
void Put(DialogFields& page, int id, std::string_view text) {
    if (page.GetText(id) != text) page.SetText(id, text);
}

void PutCheck(DialogFields& page, int id, bool on) {
    if (page.IsChecked(id) != on) page.SetChecked(id, on);
}

void PutEnabled(DialogFields& page, int id, bool on) {
    if (page.IsEnabled(id) != on) page.Enable(id, on);
}

} // namespace

std::string PenWidthCommand(std::string_view typed) {
    return "SetPenWidth " + FormatG(ReadNumber(typed));
}

std::string DashCommand(const std::array<std::string, 8>& typed) {
    std::string line = "SetDashDot";
    for (const std::string& field : typed) line += ' ' + std::to_string(DashValue(field));
    return line;
}

std::string ColourCommand(bool fill, ColorRef colour) {
    char line[32];
    std::snprintf(line, sizeof line, "%s %06X", fill ? "SetFillColor" : "SetStrokeColor",
                  static_cast<unsigned>(SwapRedBlue(colour)));
    return line;
}

std::string SwitchCommand(bool fill, bool on) {
    return std::string(fill ? "SetFill " : "SetStroke ") + (on ? '1' : '0');
}

std::string NameCommand(std::string_view typed) {
    std::string name = OneLine(typed, '_');
    std::replace_if(name.begin(), name.end(), [](char c) { return c == ' ' || c == '\t'; }, '_');
    return "SetName " + name;
}

std::string TextSizeCommand(std::string_view typed) {
    std::string size = OneLine(typed, ' ');
    std::replace(size.begin(), size.end(), ',', '.');
    std::size_t end = 0;
    const double value = ReadLeadingNumber(size, end);
    if (end == 0 || !std::isfinite(value)) return {};
    return "SetTextSize " + size;
}

std::string TextStyleCommand(bool bold, bool italic) {
    const unsigned style = (bold ? TextObject::kBold : 0) | (italic ? TextObject::kItalic : 0);
    return "SetTextStyle " + std::to_string(style);
}

std::string TextFontCommand(std::string_view font) {
    const std::string line = OneLine(Trim(font), ' ');
    return line.empty() ? std::string() : "SetTextFont " + line;
}

std::string TextCommand(std::string_view text) { return "SetText " + OneLine(text, ' '); }

PanelLayout LayoutFor(const Document& document) {
    PanelLayout layout;
    const auto& selection = document.Selection();
    if (selection.empty()) {
        layout.shown[kPageStyle] = true;
        return layout;
    }
    layout.editable = true;
    const ObjectKind single =
        selection.size() == 1 ? selection.front()->GetKind() : ObjectKind::Graphic;
    layout.title = selection.size() == 1 ? KindTitle(single) : "mehrere";

    bool paths = false, texts = false;
    VisitSelectedLeaves(document, [&](const GraphicObject& object) {
        paths = paths || object.GetKind() == ObjectKind::Path;
        texts = texts || object.GetKind() == ObjectKind::Text;
        return paths && texts;
    });
    layout.shown[kPageStyle] = paths || texts;
    layout.shown[kPagePoints] = single == ObjectKind::Path;
    layout.shown[kPageFont] = texts;
    layout.shown[kPageText] = single == ObjectKind::Text;
    layout.shown[kPageHotspot] = single == ObjectKind::Hotspot;
    return layout;
}

PanelModel::PanelModel(Document& document, const Pages& pages, std::function<void()> redraw)
    : document_(document), pages_(pages), redraw_(std::move(redraw)) {
    colours_ = {0x000000, PathObject::kDefaultFillColor};
    customColours_.fill(0xFFFFFF);
}

PanelLayout PanelModel::Refresh() {
    const PanelLayout layout = LayoutFor(document_);
    ++writing_;
    FillStyle(layout.editable);

    // A path's list stays until FillPointList replaces it, which costs nothing when it is the same.
    if (!layout.shown[kPagePoints]) Put(Page(kPagePoints), IDC_PANEL_POINTS, {});
    Put(Page(kPagePoints), IDC_PANEL_POINTS_STATE, kPointsUnchanged);

    FillFont();
    const auto* text = static_cast<const TextObject*>(SingleSelected(document_, ObjectKind::Text));
    Put(Page(kPageText), IDC_PANEL_TEXT, text != nullptr ? text->GetText() : std::string_view());
    const GraphicObject* hotspot = SingleSelected(document_, ObjectKind::Hotspot);
    Put(Page(kPageHotspot), IDC_PANEL_HOTSPOT_NAME,
        hotspot != nullptr ? hotspot->GetName() : std::string());
    --writing_;

    dashChanged_.fill(false);
    penWidthChanged_ = pointsChanged_ = sizeChanged_ = fontChanged_ = false;
    return layout;
}

void PanelModel::FillPointList() {
    const auto* path = static_cast<const PathObject*>(SingleSelected(document_, ObjectKind::Path));
    if (path == nullptr) return;
    DialogFields& page = Page(kPagePoints);
    const bool whole = path->NodeCount() <= kListedNodes;
    std::string list = FormatPointList(*path, kListedNodes);
    if (!whole) list += "...\r\n";
    ++writing_;
    Put(page, IDC_PANEL_POINTS, list);
    PutEnabled(page, IDC_PANEL_POINTS, whole);
    --writing_;
    pointsChanged_ = false;
}

void PanelModel::FillStyle(bool editable) {
    DialogFields& page = Page(kPageStyle);
    const GraphicObject* first = FirstSelectedLeaf(document_, false);
    DashDot dash{};
    if (first != nullptr) {
        first->GetDashDot(dash);
        colours_ = {first->GetStrokeColor(), first->GetFillColor()};
    }
    Put(page, IDC_PANEL_PEN_WIDTH,
        first != nullptr ? ShowNumber(first->GetPenWidth()) : std::string());
    PutCheck(page, IDC_PANEL_STROKE, first != nullptr && first->HasStroke());
    PutCheck(page, IDC_PANEL_FILL, first != nullptr && first->HasFill());
    for (int i = 0; i < kDashFields; ++i) {
        Put(page, IDC_PANEL_DASH_FIRST + i,
            first != nullptr ? std::to_string(dash[i]) : std::string());
    }
    for (int id = IDC_PANEL_PEN_WIDTH; id <= IDC_PANEL_DASH_LAST; ++id)
        PutEnabled(page, id, editable);
    page.Invalidate(IDC_PANEL_STROKE_COLOUR);
    page.Invalidate(IDC_PANEL_FILL_COLOUR);
}

void PanelModel::FillFont() {
    DialogFields& page = Page(kPageFont);
    const auto* text = static_cast<const TextObject*>(FirstSelectedLeaf(document_, true));
    Put(page, IDC_PANEL_TEXT_SIZE, text != nullptr ? ShowSize(text->GetSize()) : std::string());
    Put(page, IDC_PANEL_FONT_NAME, text != nullptr ? text->GetFont() : std::string());
    PutCheck(page, IDC_PANEL_BOLD, text != nullptr && text->IsBold());
    PutCheck(page, IDC_PANEL_ITALIC, text != nullptr && text->IsItalic());
}

void PanelModel::OnCommand(int page, int id, int code) {
    if (writing_ != 0) return;
    const bool changed = code == kEditChange, left = code == kEditKillFocus;
    switch (page) {
    case kPageStyle:
        OnStyle(id, code);
        break;
    case kPagePoints:
        if (id != IDC_PANEL_POINTS) break;
        if (changed) {
            pointsChanged_ = true;
            ++writing_;
            Page(kPagePoints).SetText(IDC_PANEL_POINTS_STATE, kPointsChanged);
            --writing_;
        } else if (left && pointsChanged_) {
            ApplyPoints();
        }
        break;
    case kPageFont:
        OnFont(id, code);
        break;
    case kPageText:
        if (id == IDC_PANEL_TEXT && changed) Apply(TextCommand(Page(kPageText).GetText(id)));
        break;
    case kPageHotspot:
        if (id == IDC_PANEL_HOTSPOT_NAME && changed)
            Apply(NameCommand(Page(kPageHotspot).GetText(id)));
        break;
    default:
        break;
    }
}

void PanelModel::OnStyle(int id, int code) {
    DialogFields& page = Page(kPageStyle);
    if (id == IDC_PANEL_STROKE || id == IDC_PANEL_FILL) {
        if (code == kButtonClicked) Apply(SwitchCommand(id == IDC_PANEL_FILL, page.IsChecked(id)));
    } else if (id == IDC_PANEL_PEN_WIDTH) {
        if (code == kEditChange) {
            penWidthChanged_ = true;
        } else if (code == kEditKillFocus && penWidthChanged_) {
            penWidthChanged_ = false;
            Apply(PenWidthCommand(page.GetText(id)));
        }
    } else if (id >= IDC_PANEL_DASH_FIRST && id <= IDC_PANEL_DASH_LAST) {
        const int field = id - IDC_PANEL_DASH_FIRST;
        if (code == kEditChange) {
            dashChanged_[field] = true;
        } else if (code == kEditKillFocus && dashChanged_[field]) {
            ApplyDash(field);
        }
    }
}

void PanelModel::OnFont(int id, int code) {
    DialogFields& page = Page(kPageFont);
    if (id == IDC_PANEL_BOLD || id == IDC_PANEL_ITALIC) {
        if (code == kButtonClicked) {
            Apply(
                TextStyleCommand(page.IsChecked(IDC_PANEL_BOLD), page.IsChecked(IDC_PANEL_ITALIC)));
        }
    } else if (id == IDC_PANEL_TEXT_SIZE || id == IDC_PANEL_FONT_NAME) {
        bool& changed = id == IDC_PANEL_TEXT_SIZE ? sizeChanged_ : fontChanged_;
        if (code == kEditChange) {
            changed = true;
        } else if (code == kEditKillFocus && changed) {
            changed = false;
            const std::string typed = page.GetText(id);
            Apply(id == IDC_PANEL_TEXT_SIZE ? TextSizeCommand(typed) : TextFontCommand(typed));
        }
    }
}

// Every dash field is read, not only the one left, so the pattern always goes out whole; the
// fields then show the clamped values that were applied.
void PanelModel::ApplyDash(int field) {
    DialogFields& page = Page(kPageStyle);
    std::array<std::string, 8> typed;
    for (int i = 0; i < kDashFields; ++i) typed[i] = page.GetText(IDC_PANEL_DASH_FIRST + i);
    dashChanged_[field] = false;
    Apply(DashCommand(typed));
    ++writing_;
    for (int i = 0; i < kDashFields; ++i) {
        const std::string shown = std::to_string(DashValue(typed[i]));
        if (shown != typed[i]) page.SetText(IDC_PANEL_DASH_FIRST + i, shown);
    }
    --writing_;
}

void PanelModel::ApplyPoints() {
    pointsChanged_ = false;
    auto* path = static_cast<PathObject*>(SingleSelected(document_, ObjectKind::Path));
    const bool applied =
        path != nullptr && ApplyPointList(*path, Page(kPagePoints).GetText(IDC_PANEL_POINTS));
    ++writing_;
    Page(kPagePoints).SetText(IDC_PANEL_POINTS_STATE, applied ? kPointsApplied : kPointsFailed);
    --writing_;
    if (applied) redraw_();
}

void PanelModel::ColourChosen(ColourButton button, std::optional<ColorRef> colour) {
    if (!colour) {
        redraw_();
        return;
    }
    colours_[button] = *colour & kColourMask;
    Page(kPageStyle)
        .Invalidate(button == kFillButton ? IDC_PANEL_FILL_COLOUR : IDC_PANEL_STROKE_COLOUR);
    Apply(ColourCommand(button == kFillButton, colours_[button]));
}

FontChoice PanelModel::ShownFont() const {
    const DialogFields& page = Page(kPageFont);
    FontChoice shown;
    shown.name = page.GetText(IDC_PANEL_FONT_NAME);
    shown.bold = page.IsChecked(IDC_PANEL_BOLD);
    shown.italic = page.IsChecked(IDC_PANEL_ITALIC);
    shown.size = ReadNumber(page.GetText(IDC_PANEL_TEXT_SIZE));
    return shown;
}

void PanelModel::FontChosen(const FontChoice& choice) {
    const double shownSize = ReadNumber(Page(kPageFont).GetText(IDC_PANEL_TEXT_SIZE));
    Apply(TextFontCommand(choice.name));
    Apply(TextStyleCommand(choice.bold, choice.italic));
    // The chooser offers whole and half points: only a size the user picked differs by that much.
    if (std::fabs(choice.size - shownSize) >= 0.05) Apply(TextSizeCommand(FormatG(choice.size)));
    ++writing_;
    FillFont();
    --writing_;
    sizeChanged_ = fontChanged_ = false;
}

void PanelModel::Apply(const std::string& line) {
    if (line.empty() || document_.Selection().empty()) return;
    ApplyCommand(document_, line, true, nullptr);
    redraw_();
}

} // namespace rhomba
