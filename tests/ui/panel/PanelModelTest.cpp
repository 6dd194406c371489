#include "ui/panel/PanelModel.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/TextObject.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

namespace rhomba::test {
namespace {

TEST(PanelCommands, EachEditBecomesItsOneLine) {
    const std::pair<std::string, std::string> cases[] = {
        {PenWidthCommand("0,5"), "SetPenWidth 0.5"},
        {PenWidthCommand("kaputt"), "SetPenWidth 0"},
        {PenWidthCommand("1e999"), "SetPenWidth 0"},
        {DashCommand({"3", "1", "300", " 2", "-4", "x", "99999999999", ""}), "SetDashDot 3 1 255 2 0 0 255 0"},
        {ColourCommand(false, 0x0000FF), "SetStrokeColor FF0000"},
        {ColourCommand(true, 0x123456), "SetFillColor 563412"},
        {SwitchCommand(false, false), "SetStroke 0"},
        {SwitchCommand(true, true), "SetFill 1"},
        {NameCommand("a b\tc"), "SetName a_b_c"},
        {NameCommand("x\r\nSetPenWidth 9"), "SetName x__SetPenWidth_9"}, // stays one command
        {TextSizeCommand("12,5"), "SetTextSize 12.5"},
        {TextSizeCommand(""), ""},
        {TextSizeCommand("gross"), ""},
        {TextSizeCommand("1e999"), ""},
        {TextStyleCommand(true, false), "SetTextStyle 1"},
        {TextStyleCommand(true, true), "SetTextStyle 3"},
        {TextFontCommand(" Times New Roman "), "SetTextFont Times New Roman"},
        {TextFontCommand("  "), ""},
        {TextCommand(" zwei\r\nZeilen"), "SetText  zwei  Zeilen"},
    };
    for (const auto& [produced, expected] : cases) EXPECT_EQ(produced, expected);
}

std::string Shown(const PanelLayout& layout) {
    std::string pages;
    for (int page = 0; page < kPanelPageCount; ++page) pages += layout.shown[page] ? "SPFTH"[page] : '.';
    return layout.title + "|" + pages + (layout.editable ? "" : "|off");
}

TEST(PanelLayout, PagesAndTitleFollowTheSelection) {
    Document doc;
    auto* path = Add(doc, Square(0, 0, 10));
    auto* text = Add(doc, std::make_unique<TextObject>());
    auto* hotspot = Add(doc, std::make_unique<Hotspot>());
    auto group = std::make_unique<Group>();
    group->InsertAt(std::make_unique<TextObject>(), &doc, 0, 0);
    auto* textGroup = Add(doc, std::move(group));
    auto* emptyGroup = Add(doc, std::make_unique<Group>());

    auto select = [&](std::initializer_list<GraphicObject*> objects) {
        doc.ClearSelection();
        for (GraphicObject* object : objects) doc.AddToSelection(object);
        return Shown(LayoutFor(doc));
    };
    EXPECT_EQ(select({}), "|S....|off");
    EXPECT_EQ(select({path}), "Pfad|SP...");
    EXPECT_EQ(select({text}), "Text|S.FT.");
    EXPECT_EQ(select({hotspot}), "Hotspot|....H");
    EXPECT_EQ(select({textGroup}), "Gruppe|S.F..");
    EXPECT_EQ(select({emptyGroup}), "Gruppe|.....");
    EXPECT_EQ(select({hotspot, path}), "mehrere|S....");
    EXPECT_EQ(select({path, textGroup}), "mehrere|S.F..");
}

// The panel on in-memory pages that report every write back, as the platform's controls do.
struct Panel {
    Document& doc;
    std::array<FieldTable, kPanelPageCount> fields;
    int redraws = 0;
    PanelModel model{doc, {&fields[0], &fields[1], &fields[2], &fields[3], &fields[4]}, [this] { ++redraws; }};

    explicit Panel(Document& d) : doc(d) {
        for (int page = 0; page < kPanelPageCount; ++page) {
            fields[page].onNotify = [this, page](int id, int code) { model.OnCommand(page, id, code); };
        }
        Refresh();
    }
    void Refresh() {
        model.Refresh();
        model.FillPointList();
    }
    std::string Text(int page, int id) const { return fields[page].GetText(id); }
    void Type(int page, int id, std::string_view text) { fields[page].SetText(id, text); }
    void Leave(int page, int id) { model.OnCommand(page, id, kEditKillFocus); }
    void Click(int page, int id, bool on) {
        fields[page].SetChecked(id, on);
        model.OnCommand(page, id, kButtonClicked);
    }
};

// A selected group holding a path, and a loose selected path with a thicker blue stroke: the
// group's first path speaks for the selection. Fields send when left after a change, the colour
// chooser's answer at once.
TEST(PanelModel, StyleFieldsAndColoursReachObjectsInsideSelectedGroups) {
    Document doc;
    auto group = std::make_unique<Group>();
    auto* inner = static_cast<PathObject*>(group->InsertAt(Square(0, 0, 10), &doc, 0, 0));
    GraphicObject* grouped = doc.AddObject(std::move(group));
    auto* loose = Add(doc, Square(20, 0, 10));
    loose->SetPenWidth(3);
    loose->SetStrokeColor(0xFF0000);
    doc.ChangeSelection({grouped, loose}, SelectionChange::Replace);
    Panel panel(doc);
    EXPECT_EQ(panel.Text(kPageStyle, IDC_PANEL_PEN_WIDTH), "0,25");
    EXPECT_EQ(panel.model.Colour(PanelModel::kStrokeButton), 0u);

    panel.Leave(kPageStyle, IDC_PANEL_PEN_WIDTH); // passing through sends nothing
    EXPECT_EQ(loose->GetPenWidth(), 3);
    panel.Type(kPageStyle, IDC_PANEL_DASH_FIRST + 2, "300");
    panel.Leave(kPageStyle, IDC_PANEL_DASH_FIRST + 1);
    EXPECT_EQ(loose->GetDashCount(), 0); // another field left: nothing sent
    panel.Leave(kPageStyle, IDC_PANEL_DASH_FIRST + 2);
    DashDot dash{};
    inner->GetDashDot(dash);
    EXPECT_EQ(dash, (DashDot{0, 0, 255, 0, 0, 0, 0, 0}));
    EXPECT_EQ(panel.Text(kPageStyle, IDC_PANEL_DASH_FIRST + 2), "255");
    EXPECT_EQ(panel.redraws, 1);

    panel.model.ColourChosen(PanelModel::kStrokeButton, std::nullopt);
    EXPECT_EQ(panel.redraws, 2); // cancelled: a redraw, nothing else
    EXPECT_EQ(loose->GetStrokeColor(), 0xFF0000u);
    panel.model.ColourChosen(PanelModel::kFillButton, 0x00FF80);
    EXPECT_EQ(panel.model.Colour(PanelModel::kFillButton), 0x00FF80u);
    EXPECT_EQ(panel.fields[kPageStyle].invalidations[IDC_PANEL_FILL_COLOUR], 2); // refresh, choice
    EXPECT_EQ(inner->GetFillColor(), 0x00FF80u);
    EXPECT_EQ(loose->GetFillColor(), 0x00FF80u);
}

TEST(PanelModel, LongPathIsListedCutShortAndCannotBeTypedBack) {
    Document doc;
    auto* path = Add(doc, Polyline({{0, 0}, {2.5 * kPointsPerMillimetre, 0}}));
    for (std::size_t i = 2; i < PanelModel::kListedNodes; ++i) path->AddNode({0, 0}, node::kLineTo);
    Panel panel(doc);
    EXPECT_EQ(panel.Text(kPagePoints, IDC_PANEL_POINTS).substr(0, 17), "M 0 0\r\nL 2,5 0\r\nL");
    EXPECT_TRUE(panel.fields[kPagePoints].IsEnabled(IDC_PANEL_POINTS));
    path->AddNode({0, 0}, node::kLineTo);
    panel.Refresh();
    const std::string cut = panel.Text(kPagePoints, IDC_PANEL_POINTS);
    EXPECT_EQ(cut.substr(cut.size() - 12), "L 0 0\r\n...\r\n");
    EXPECT_FALSE(panel.fields[kPagePoints].IsEnabled(IDC_PANEL_POINTS));
}

// The coordinate list says "ge\xE4ndert" while typed, "OK" once applied on leaving, "Fehler" for
// a list that is no path; a hotspot's name is applied as typed.
TEST(PanelModel, CoordinateListAndHotspotName) {
    Document doc;
    auto* path = Add(doc, Square(0, 0, 10));
    Panel panel(doc);
    EXPECT_EQ(panel.Text(kPagePoints, IDC_PANEL_POINTS_STATE), "-");
    for (const auto& [list, state] : {std::pair{"M 0 0\r\nL 5 0\r\nL 5,5 5 Z", "OK"}, {"M 0 0\r\nB 1 1", "Fehler"}}) {
        panel.Type(kPagePoints, IDC_PANEL_POINTS, list);
        EXPECT_EQ(panel.Text(kPagePoints, IDC_PANEL_POINTS_STATE), "ge\xE4ndert");
        panel.Leave(kPagePoints, IDC_PANEL_POINTS);
        EXPECT_EQ(panel.Text(kPagePoints, IDC_PANEL_POINTS_STATE), state);
        EXPECT_EQ(path->NodeCount(), 3u);
    }
    EXPECT_EQ(panel.redraws, 1);
    auto* hotspot = Add(doc, std::make_unique<Hotspot>());
    panel.Refresh();
    panel.Type(kPageHotspot, IDC_PANEL_HOTSPOT_NAME, "a b\tc");
    EXPECT_EQ(hotspot->GetName(), "a_b_c");
}

TEST(PanelModel, FontPageAndTextPage) {
    Document doc;
    auto* text = Add(doc, std::make_unique<TextObject>());
    text->SetText("Haus");
    text->SetBold(true);
    Panel panel(doc);
    EXPECT_EQ(panel.Text(kPageFont, IDC_PANEL_TEXT_SIZE), "12,0");
    EXPECT_EQ(panel.Text(kPageFont, IDC_PANEL_FONT_NAME), "Arial");
    EXPECT_TRUE(panel.fields[kPageFont].IsChecked(IDC_PANEL_BOLD));
    EXPECT_EQ(panel.Text(kPageText, IDC_PANEL_TEXT), "Haus");

    panel.Type(kPageFont, IDC_PANEL_TEXT_SIZE, "8,5");
    panel.Leave(kPageFont, IDC_PANEL_TEXT_SIZE);
    EXPECT_EQ(text->GetSize(), 8.5);
    panel.Click(kPageFont, IDC_PANEL_ITALIC, true);
    EXPECT_TRUE(text->IsBold() && text->IsItalic());
    panel.Type(kPageText, IDC_PANEL_TEXT, "Dach");
    EXPECT_EQ(text->GetText(), "Dach"); // at once

    // The chooser's face and style are applied; its size only when the user changed it.
    panel.model.FontChosen({"Courier New", false, false, 8.5});
    EXPECT_EQ(text->GetFont(), "Courier New");
    EXPECT_FALSE(text->IsBold() || text->IsItalic());
    EXPECT_EQ(text->GetSize(), 8.5);
    panel.model.FontChosen({"Courier New", false, true, 20});
    EXPECT_EQ(text->GetSize(), 20);
    EXPECT_EQ(panel.Text(kPageFont, IDC_PANEL_TEXT_SIZE), "20,0");
}

TEST(PanelModel, EmptySelectionShowsNothingAndChangesNothing) {
    Document doc;
    auto* path = Add(doc, Square(0, 0, 10));
    doc.ClearSelection();
    Panel panel(doc);
    EXPECT_EQ(panel.Text(kPageStyle, IDC_PANEL_PEN_WIDTH), "");
    EXPECT_FALSE(panel.fields[kPageStyle].IsEnabled(IDC_PANEL_PEN_WIDTH));
    panel.Type(kPageStyle, IDC_PANEL_PEN_WIDTH, "7");
    panel.Leave(kPageStyle, IDC_PANEL_PEN_WIDTH);
    panel.model.ColourChosen(PanelModel::kStrokeButton, 0x0000FF);
    EXPECT_EQ(path->GetPenWidth(), 0.25);
    EXPECT_EQ(path->GetStrokeColor(), 0u);
}

} // namespace
} // namespace rhomba::test
