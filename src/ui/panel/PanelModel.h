#pragma once

#include "model/Types.h"
#include "ui/dialogs/DialogFields.h"
#include "ui/resource.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace rhomba {

class Document;

// The properties panel's pages, in the order they stack inside the frame.
enum PanelPage : int { kPageStyle, kPagePoints, kPageFont, kPageText, kPageHotspot, kPanelPageCount };

// The dialog template of each page, by PanelPage.
inline constexpr int kPanelPageTemplates[kPanelPageCount] = {
    IDD_PANEL_STYLE, IDD_PANEL_POINTS, IDD_PANEL_FONT, IDD_PANEL_TEXT, IDD_PANEL_HOTSPOT};

// An edit field's notification that it lost the keyboard focus (the platform's value).
inline constexpr int kEditKillFocus = 0x0200;

// The coordinates page's status texts.
inline constexpr std::string_view kPointsUnchanged = "-";
inline constexpr std::string_view kPointsChanged = "ge\xE4ndert";
inline constexpr std::string_view kPointsApplied = "OK";
inline constexpr std::string_view kPointsFailed = "Fehler";

// The one-line commands the panel's edits produce, from the fields' texts as typed. An empty
// result means there is nothing to send.
std::string PenWidthCommand(std::string_view typed);
// The eight dash fields, read as unsigned integers and clamped to 255.
std::string DashCommand(const std::array<std::string, 8>& typed);
std::string ColourCommand(bool fill, ColorRef colour);
std::string SwitchCommand(bool fill, bool on);
std::string NameCommand(std::string_view typed);
// Empty for an empty field or one that does not start with a finite number.
std::string TextSizeCommand(std::string_view typed);
std::string TextStyleCommand(bool bold, bool italic);
std::string TextFontCommand(std::string_view font);
std::string TextCommand(std::string_view text);

// What a selection shows: the caption word ("Pfad", "Text", "Bitmap", "Hotspot", "Gruppe",
// "mehrere"; empty when nothing is selected), the pages, and whether they take input.
// Note: with nothing selected the line and fill page stays in view, empty and disabled, so the
// panel still says what it is for.
struct PanelLayout {
    std::string title;
    std::array<bool, kPanelPageCount> shown{};
    bool editable = false;
};

PanelLayout LayoutFor(const Document& document);

// The font chooser's values: face, style and size in points.
struct FontChoice {
    std::string name;
    bool bold = false;
    bool italic = false;
    double size = 12;
};

// The panel's portable half: fills the pages' fields from the selection and turns every edit into
// its command, applied to the selection (descending into groups) and followed by redraw. It never
// holds on to objects: every edit looks the selection up afresh.
class PanelModel {
public:
    enum ColourButton { kStrokeButton, kFillButton };
    using Pages = std::array<DialogFields*, kPanelPageCount>;

    PanelModel(Document& document, const Pages& pages, std::function<void()> redraw);

    // The coordinate list shows at most this many nodes; a longer path's list is shown cut short
    // and cannot be edited (a text field of hundreds of thousands of lines helps nobody and takes
    // seconds to fill).
    static constexpr std::size_t kListedNodes = 1000;

    // Fills every page from the current selection and forgets unapplied edits, all but the
    // coordinate list: FillPointList fills that, which the platform does once the canvas is
    // painted.
    PanelLayout Refresh();
    void FillPointList();
    // A control's notification on one page: a change, a focus loss or a click.
    void OnCommand(int page, int id, int code);

    // The colour a button shows and the colour chooser starts from.
    ColorRef Colour(ColourButton button) const { return colours_[button]; }
    // The chooser's sixteen custom colours, shared by both buttons.
    std::array<ColorRef, 16>& CustomColours() { return customColours_; }
    // The colour chooser's answer; no value when it was cancelled.
    void ColourChosen(ColourButton button, std::optional<ColorRef> colour);

    // What the font chooser starts from: the font page's fields.
    FontChoice ShownFont() const;
    // The font chooser's answer: face and style are applied, the size only when it was changed.
    void FontChosen(const FontChoice& choice);

private:
    DialogFields& Page(int page) const { return *pages_[page]; }
    void Apply(const std::string& line);
    void FillStyle(bool editable);
    void FillFont();
    void OnStyle(int id, int code);
    void OnFont(int id, int code);
    void ApplyDash(int field);
    void ApplyPoints();

    Document& document_;
    Pages pages_;
    std::function<void()> redraw_;
    std::array<ColorRef, 2> colours_{};
    std::array<ColorRef, 16> customColours_{};
    // Fields typed into since the last refresh or apply.
    std::array<bool, 8> dashChanged_{};
    bool penWidthChanged_ = false;
    bool pointsChanged_ = false;
    bool sizeChanged_ = false;
    bool fontChanged_ = false;
    // Held while the model writes fields itself, so that the change notices are not typing.
    int writing_ = 0;
};

} // namespace rhomba
