#include "ui/CanvasMenus.h"

#include "model/Document.h"
#include "model/Hotspot.h"
#include "model/TextObject.h"
#include "render/CanvasView.h"
#include "support/BoxGlyphs.h"
#include "support/FakeCanvasHost.h"
#include "support/Paths.h"
#include "ui/ToolIds.h"
#include "ui/tools/ToolController.h"

namespace rhomba::test {
namespace {

// The entries' ids, separators as 0; only the enabled ones when asked.
std::vector<int> Ids(const ContextMenu& menu, bool enabledOnly = false) {
    std::vector<int> ids;
    for (const MenuEntry& e : menu.entries) {
        if (!enabledOnly || e.enabled) ids.push_back(e.id);
    }
    return ids;
}

std::unique_ptr<TextObject> NewText() {
    auto text = std::make_unique<TextObject>();
    text->SetText("Ab");
    return text;
}

TEST(CanvasMenus, EntriesSeparatorsAndTexts) {
    Document document;
    const ContextMenu objects = BuildCanvasMenu(document, kToolPath);
    EXPECT_EQ(Ids(objects), (std::vector<int>{1, 2, 3, 4, 0, 5, 6, 0, 7, 8, 0, 9}));
    EXPECT_EQ(objects.entries[1].text, "Gruppe aufl\xF6sen");
    EXPECT_EQ(objects.entries[6].text, "L\xF6schen");
    EXPECT_EQ(objects.entries[8].text, "Text zu Pfad konvertieren");
    const ContextMenu nodes = BuildCanvasMenu(document, kToolRectangle);
    EXPECT_EQ(Ids(nodes), (std::vector<int>{1, 2, 3, 0, 4, 5, 0, 6, 7, 8, 0, 9}));
    EXPECT_EQ(nodes.entries[0].text, "Hinzuf\xFCgen");
    EXPECT_EQ(nodes.entries[11].text, "Eigenschaften");
}

TEST(CanvasMenus, ObjectMenuGraysBySelection) {
    struct Case {
        const char* name;
        std::vector<int> kinds; // 1 path, 2 two-figure path, 3 text, 4 group
        std::vector<int> enabled;
    };
    const Case cases[] = {
        {"nothing", {}, {}},
        {"one path", {1}, {6, 8, 9}},
        {"a path of two figures", {2}, {4, 6, 8, 9}},
        {"one text", {3}, {6, 7, 8, 9}},
        {"one group", {4}, {2, 6, 8, 9}},
        {"two paths", {1, 1}, {1, 3, 6, 8}},
        {"a path and a text", {1, 3}, {1, 6, 8}},
    };
    for (const Case& c : cases) {
        Document document;
        std::vector<GraphicObject*> chosen;
        for (int kind : c.kinds) {
            if (kind == 1) chosen.push_back(Add(document, Square(0, 0, 10)));
            if (kind == 2) {
                auto path = Square(0, 0, 10);
                path->AppendFrom(*Square(20, 0, 10));
                chosen.push_back(Add(document, std::move(path)));
            }
            if (kind == 3) chosen.push_back(Add(document, NewText()));
            if (kind == 4) chosen.push_back(Add(document, std::make_unique<Group>()));
        }
        document.ChangeSelection(chosen, SelectionChange::Replace);
        EXPECT_EQ(Ids(BuildObjectMenu(document), true), c.enabled) << c.name;
    }
}

class RightClick : public BoxGlyphTest {
protected:
    RightClick() {
        document.view.zoom = 1;
        document.view.view = {1, 0, 0, -1, 0, 600};
        Invert(document.view.view, document.view.inverse);
    }
    // Right click at client (x, y) with tool, choosing entry.
    void Choose(int tool, int entry, int x = 40, int y = 560) {
        tools.SetTool(tool);
        host.menuChoice = entry;
        const int redraws = host.redraws;
        tools.RightButtonUp(x, y, 0);
        EXPECT_EQ(host.menuAt.x, x);
        EXPECT_EQ(host.redraws, redraws + 1);
    }

    Document document;
    CanvasView view{document};
    FakeCanvasHost host;
    ToolController tools{document, view, host};
};

TEST_F(RightClick, ChosenEntriesActOnTheDrawing) {
    PathObject* a = Add(document, Square(0, 0, 10));
    GraphicObject* text = Add(document, NewText());
    PathObject* b = Add(document, Square(20, 0, 10));
    document.ClearSelection();
    document.AddToSelection(text);

    Choose(kToolSelect, 0);        // dismissed
    Choose(kToolNode, kNodeAdd); // on a text: nothing
    EXPECT_EQ(document.CurrentLayer().ChildAt(1), text);

    Choose(kToolSelect, kObjectTextToPath); // the path takes the text's place
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 3u);
    EXPECT_EQ(document.CurrentLayer().ChildAt(1)->GetKind(), ObjectKind::Path);
    EXPECT_EQ(host.status, "Auswahl mit 1 Objekten");

    Choose(kToolSelect, kObjectProperties, 33, 44);
    EXPECT_EQ(host.panelAt, (DevicePoint{33, 44}));

    document.ChangeSelection({a, b}, SelectionChange::Replace);
    Choose(kToolSelect, kObjectHotspot);
    const auto& hotspot = static_cast<const Hotspot&>(*document.Selection().front());
    EXPECT_EQ(hotspot.GetRect(), (Rect2{0, 10, 30, 0}));

    // "Hinzufuegen" puts a node where the click meets the path: client (5, 600) is world (5, 0).
    document.ChangeSelection({a}, SelectionChange::Replace);
    Choose(kToolNode, kNodeAdd, 5, 600);
    EXPECT_EQ(a->NodeCount(), 5u);
    EXPECT_EQ(a->PointAt(1), (Point2{5, 0}));

    Choose(kToolNode, kNodeToCurve); // grayed: nothing happens
    EXPECT_EQ(a->NodeCount(), 5u);
    // "Verbinden mit Linie" on the two ends of an open figure closes it with a line.
    PathObject* open = Add(document, NodePath({{{0, 20}, node::kMoveTo | node::kSelected}, {{10, 20}, node::kLineTo},
                                                {{10, 30}, node::kLineTo | node::kSelected}}));
    Choose(kToolNode, kNodeJoinLine);
    EXPECT_EQ(open->NodeCount(), 4u);
    Document empty;
    EXPECT_FALSE(AddHotspotAtSelection(empty));
    EXPECT_TRUE(AddHotspotAtSelection(document));
}

} // namespace
} // namespace rhomba::test
