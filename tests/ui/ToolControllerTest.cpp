#include "ui/tools/ToolController.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/TextObject.h"
#include "render/CanvasView.h"
#include "support/FakeCanvasHost.h"
#include "support/Paths.h"
#include "ui/InputKeys.h"
#include "ui/ToolIds.h"

#include <cmath>

namespace rhomba::test {
namespace {

constexpr NodeType M = node::kMoveTo, L = node::kLineTo, B = node::kBezierTo, S = node::kSelected;
constexpr unsigned kShift = kKeyShift, kCtrl = kKeyControl;

// One world point per pixel, y up, the world origin at the client's lower left corner: world
// (x, y) is client (x, 600 - y).
class Tools : public ::testing::Test {
protected:
    Tools() {
        document.view.zoom = 1;
        document.view.view = {1, 0, 0, -1, 0, 600};
        Invert(document.view.view, document.view.inverse);
        view.SetClientSize(800, 600);
    }

    // Press at the first point, move through the others, release at the last.
    void Drag(std::initializer_list<DevicePoint> points, unsigned keys = 0) {
        const DevicePoint first = *points.begin(), last = *(points.end() - 1);
        tools.MouseDown(first.x, first.y, keys | kKeyLeftButton);
        for (const DevicePoint& p : points) tools.MouseMove(p.x, p.y, keys | kKeyLeftButton);
        tools.MouseUp(last.x, last.y, keys);
    }
    void Click(int x, int y, unsigned keys = 0) { Drag({{x, y}}, keys); }
    // The drag is over: capture released, no feedback left on the canvas.
    void ExpectSettled() {
        EXPECT_FALSE(host.captured);
        EXPECT_FALSE(tools.IsDragging());
        EXPECT_TRUE(host.Visible().empty()) << host.Visible().front();
    }
    std::vector<GraphicObject*> Objects() {
        std::vector<GraphicObject*> all;
        for (std::size_t i = 0; i < document.CurrentLayer().ChildCount(); ++i) {
            all.push_back(document.CurrentLayer().ChildAt(i));
        }
        return all;
    }
    const PathObject& Chosen() { return static_cast<const PathObject&>(*document.Selection().front()); }
    Document document;
    CanvasView view{document};
    FakeCanvasHost host;
    ToolController tools{document, view, host};
};

// Three squares of side 20 at x = 10, 100, 200 (world y 10 to 30).
class SelectTool : public Tools {
protected:
    SelectTool() {
        for (double x : {10, 100, 200}) Add(document, Square(x, 10, 20));
        squares = Objects();
    }
    std::vector<GraphicObject*> Chosen(const std::vector<int>& which) {
        std::vector<GraphicObject*> out;
        for (int i : which) out.push_back(squares[i]);
        return out;
    }
    std::vector<GraphicObject*> squares;
};

TEST_F(SelectTool, ClicksAndRubberBandsReplaceToggleOrAdd) {
    struct Case {
        const char* name;
        std::vector<int> before;
        DevicePoint from, to;
        unsigned keys;
        std::vector<int> after;
    };
    // (x + 5, 570) lies on the top edge of the square at x, clear of its handles; (400, 300) is
    // empty. A band from (5, 595) to (150, 560) holds the first two squares wholly, one to
    // (215, 560) holds the third in part.
    const DevicePoint a{15, 570}, c{205, 570}, empty{400, 300}, band{5, 595}, two{150, 560};
    const Case cases[] = {
        {"click replaces", {1}, a, a, 0, {0}},
        {"Shift-click adds", {1}, a, a, kShift, {1, 0}},
        {"Shift-click inside the box removes", {0, 1}, a, a, kShift, {1}},
        {"Ctrl-click leaves a selection alone", {1}, a, a, kCtrl, {1}},
        {"Ctrl-click selects into an empty selection", {}, c, c, kCtrl, {2}},
        {"click on an empty spot clears", {0}, empty, empty, 0, {}},
        {"Shift keeps on an empty spot", {0}, empty, empty, kShift, {0}},
        {"Ctrl keeps on an empty spot", {0}, empty, empty, kCtrl, {0}},
        {"band replaces", {2}, band, two, 0, {0, 1}},
        {"band with Shift toggles", {0}, band, two, kShift, {1}},
        {"band with Ctrl adds", {2}, band, two, kCtrl, {2, 0, 1}},
        {"partly inside is out", {}, band, {215, 560}, 0, {0, 1}},
        {"a band without height selects nothing", {2}, band, {150, 595}, 0, {}},
    };
    for (const Case& k : cases) {
        document.ChangeSelection(Chosen(k.before), SelectionChange::Replace);
        Drag({k.from, k.to}, k.keys);
        EXPECT_EQ(document.Selection(), Chosen(k.after)) << k.name;
        ExpectSettled();
    }
}

// One square from (100, 100) to (200, 200): its box is client x 100 to 200, y 400 to 500.
TEST_F(Tools, HandleDragsScaleMirrorAndMove) {
    struct Case {
        const char* name;
        bool line; // a vertical line instead of the square: a box without width
        DevicePoint from, to;
        CanvasCursor cursor;
        Rect2 after;
    };
    using enum CanvasCursor;
    const Case cases[] = {
        {"corner, 3 pixels off: smaller factor", false, {203, 503}, {300, 550}, SizeNwSe, {100, 200, 250, 50}},
        {"equal factors: the horizontal one", false, {100, 500}, {300, 500}, SizeNeSw, {200, 300, 300, 200}},
        {"edge: its own axis", false, {150, 400}, {180, 350}, SizeNs, {100, 250, 200, 100}},
        {"across the fixed side", false, {200, 450}, {50, 450}, SizeWe, {50, 200, 100, 100}},
        {"inside: moved", false, {150, 450}, {170, 430}, SizeAll, {120, 220, 220, 120}},
        {"on the edge: moved", false, {130, 400}, {140, 410}, SizeAll, {110, 190, 210, 90}},
        {"other corner", false, {200, 400}, {250, 300}, SizeNeSw, {100, 250, 250, 100}},
        {"click: nothing", false, {100, 400}, {100, 400}, SizeNwSe, {100, 200, 200, 100}},
        {"no width: the other factor", true, {100, 500}, {150, 550}, SizeNwSe, {100, 200, 100, 50}},
    };
    for (const Case& c : cases) {
        document.Reset();
        Add(document, c.line ? Polyline({{100, 100}, {100, 200}}) : Square(100, 100, 100));
        tools.MouseMove(c.from.x, c.from.y, 0);
        EXPECT_EQ(host.cursor, c.cursor) << c.name;
        if (c.from.x != c.to.x) Drag({c.from, {(c.from.x + c.to.x) / 2, c.from.y}, c.to});
        else Click(c.from.x, c.from.y);
        EXPECT_EQ(document.SelectionBounds(), c.after) << c.name;
        ExpectSettled();
    }
    tools.MouseMove(300, 300, 0);
    EXPECT_EQ(host.cursor, Arrow);
    // A box reaching beyond the 32-bit client range is drawn to the range's end.
    Add(document, Polyline({{-2e9, 100}, {200, 200}}));
    tools.MouseDown(200, 450, kKeyLeftButton);
    tools.MouseMove(250, 450, kKeyLeftButton);
    EXPECT_EQ(host.Visible().front().substr(0, 21), "Rectangle -1000000000");
}

TEST_F(Tools, ScrollToolMovesTheViewByThePointer) {
    tools.SetTool(kToolScroll);
    EXPECT_EQ(host.toolCursor, CanvasCursor::Scroll);
    Drag({{10, 10}, {30, 5}, {40, 0}});
    EXPECT_EQ(document.view.view.e, 30);
    EXPECT_EQ(document.view.view.f, 590);
    EXPECT_GE(host.redraws, 2);
    ExpectSettled();
}

TEST_F(Tools, ZoomToolWalksTheStepsAndKeepsTheClickedPoint) {
    struct Case {
        double zoom;
        unsigned keys;
        double after;
    };
    const Case cases[] = {{1, 0, 1.5},     {1, kCtrl, 0.75},  {0.995, 0, 1.5}, {60, 0, 60},
                          {0.1, kCtrl, 0.1}, {0.1, 0, 0.25}, {0.33, 0, 0.33}, {0.33, kCtrl, 0.33}};
    tools.SetTool(kToolZoom);
    for (const Case& c : cases) {
        view.SetZoom(c.zoom, 0, 0);
        double x = 250, y = 100;
        view.ClientToWorld(x, y);
        Click(250, 100, c.keys);
        EXPECT_EQ(document.view.zoom, c.after) << c.zoom;
        view.WorldToClient(x, y);
        EXPECT_LT(std::hypot(x - 250, y - 100), 1) << c.zoom;
    }
}

TEST_F(Tools, PathToolDrawsClickByClickWithTheDefaultStyle) {
    document.defaults.penWidth = 1.5;
    tools.SetTool(kToolPath);
    Click(100, 500);
    EXPECT_TRUE(host.captured);
    tools.MouseMove(200, 500, 0);
    EXPECT_EQ(host.points, (Point2{200, 100}));
    EXPECT_EQ(host.millimetres, (Point2{200, 100}));
    EXPECT_EQ(host.status, "L\xE4nge: 35.28 mm   Winkel: 0");
    Click(200, 500);
    tools.MouseMove(200, 400, 0);
    EXPECT_EQ(host.status, "L\xE4nge: 35.28 mm   Winkel: 90");
    Click(200, 400);
    EXPECT_TRUE(host.captured);
    tools.KeyDown(kVirtualKeyEscape);
    ExpectSettled();
    ASSERT_EQ(document.Selection().size(), 1u);
    const auto& path = static_cast<const PathObject&>(*document.Selection().front());
    ExpectPoints(path, {{100, 100}, {200, 100}, {200, 200}}, 0);
    EXPECT_EQ(path.Types(), (std::vector<NodeType>{M, L, L}));
    EXPECT_EQ(path.GetPenWidth(), 1.5);
}

TEST_F(Tools, PathToolSnapsToFifteenDegreesWithCtrl) {
    // Offsets from the start whose directions lie just inside and outside the 7.5 and 352.5
    // degree limits.
    const std::pair<DevicePoint, double> cases[] = {
        {{1000, 131}, 0}, {{1000, 132}, 15}, {{1000, -131}, 360}, {{1000, -132}, 345}};
    tools.SetTool(kToolPath);
    for (const auto& [offset, degrees] : cases) {
        document.Reset();
        Click(100, 300);
        Click(100 + offset.x, 300 - offset.y, kCtrl);
        tools.KeyDown(kVirtualKeyEscape);
        const auto& path = static_cast<const PathObject&>(*document.Selection().front());
        const double length = std::hypot(offset.x, offset.y), r = degrees / kDegreesPerRadian;
        ExpectNear(path.PointAt(1), {100 + length * std::cos(r), 300 + length * std::sin(r)}, 1e-9);
        ExpectSettled();
    }
}

// A click within 5 pixels of a selected path's end continues it, else a fresh path starts; a
// click within 5 pixels of the figure's first node closes it and ends drawing, so does a double
// click. Continuing from the first node itself closes nothing.
TEST_F(Tools, PathToolContinuesClosesAndEnds) {
    auto* old = Add(document, Polyline({{100, 100}, {200, 100}}));
    tools.SetTool(kToolPath);
    for (DevicePoint p : {DevicePoint{203, 497}, {300, 500}, {300, 400}, {102, 498}}) Click(p.x, p.y);
    ExpectSettled();
    ExpectPoints(*old, {{100, 100}, {200, 100}, {300, 100}, {300, 200}}, 0);
    EXPECT_EQ(old->Types().back(), L | node::kCloseFigure);

    Add(document, Polyline({{0, 0}, {50, 0}, {50, 50}}));
    for (DevicePoint p : {DevicePoint{2, 598}, {1, 599}}) Click(p.x, p.y);
    tools.KeyDown(kVirtualKeyEscape);
    EXPECT_EQ(Chosen().Types(), (std::vector<NodeType>{M, L, L, M, L}));

    Click(410, 500); // far from the selected path
    EXPECT_TRUE(document.Selection().empty());
    Click(500, 500);
    tools.DoubleClick(500, 500, 0);
    ExpectSettled();
    ASSERT_EQ(Objects().size(), 3u);
    ExpectPoints(Chosen(), {{410, 100}, {500, 100}}, 0);
}

// A line, a curve and a line: nodes 0 (100, 100), controls 1 and 2, end 3 (200, 130), 4 (200, 200).
class NodeTool : public Tools {
protected:
    NodeTool() {
        path = Add(document, NodePath({{{100, 100}, M}, {{130, 100}, B}, {{170, 130}, B},
                                       {{200, 130}, B}, {{200, 200}, L}}));
        tools.SetTool(kToolNode);
    }
    std::vector<bool> SelectedNodes() {
        std::vector<bool> out;
        for (NodeType t : path->Types()) out.push_back((t & S) != 0);
        return out;
    }
    PathObject* path;
};

TEST_F(NodeTool, DraggingANodeTakesItsControlsAlong) {
    tools.MouseMove(202, 468, 0);
    EXPECT_EQ(host.cursor, CanvasCursor::NodeHit);
    tools.MouseDown(202, 468, 0);
    tools.MouseMove(212, 458, 0);
    EXPECT_FALSE(host.Visible().empty()); // the changed segments
    tools.MouseUp(212, 458, 0);
    ExpectSettled();
    ExpectPoints(*path, {{100, 100}, {130, 100}, {180, 140}, {210, 140}, {200, 200}}, 0);
    EXPECT_EQ(SelectedNodes(), (std::vector<bool>{false, false, false, true, false}));

    // The selected end shows its controls; the first can now be dragged alone.
    Drag({{130, 500}, {130, 480}});
    ExpectPoints(*path, {{100, 100}, {130, 120}, {180, 140}, {210, 140}, {200, 200}}, 0);
    tools.MouseMove(300, 300, 0);
    EXPECT_EQ(host.cursor, CanvasCursor::Node);
}

TEST_F(NodeTool, RubberBandSelectsNodesButNoControls) {
    Drag({{90, 510}, {140, 490}}); // node 0 and control 1
    EXPECT_EQ(SelectedNodes(), (std::vector<bool>{true, false, false, false, false}));
    Drag({{200, 435}, {210, 390}}, kShift); // from the path itself: adds node 4
    EXPECT_EQ(SelectedNodes(), (std::vector<bool>{true, false, false, false, true}));
    Click(400, 100); // beside every node
    EXPECT_EQ(SelectedNodes(), (std::vector<bool>(5, false)));
    ExpectSettled();
}

TEST_F(Tools, TextToolPlacesText) {
    tools.SetTool(kToolText);
    Click(100, 500);
    ASSERT_EQ(document.Selection().size(), 1u);
    const auto& text = static_cast<const TextObject&>(*document.Selection().front());
    EXPECT_EQ(text.GetText(), "Text");
    EXPECT_EQ(text.GetFont(), "Arial");
    EXPECT_EQ(text.GetSize(), 12.0);
    EXPECT_EQ(text.GetPosition(), (Point2{100, 100}));
    EXPECT_GE(host.panelRefreshes, 1);
}

TEST_F(Tools, RectangleAndEllipseToolsDrawInTheirBoxes) {
    struct Case {
        int tool;
        DevicePoint to;
        unsigned keys;
        std::vector<Point2> points;
        const char* status;
    };
    const double k = 50 * 0.55228474983079, h = 25 * 0.55228474983079;
    const char* wide = "dx: 100   dy: 50";
    const Case cases[] = {
        {kToolRectangle, {200, 450}, 0, {{100, 100}, {100, 150}, {200, 150}, {200, 100}}, wide},
        {kToolRectangle, {200, 450}, kCtrl, {{100, 100}, {100, 150}, {150, 150}, {150, 100}},
         "dx: 50   dy: 50"},
        {kToolRectangle, {0, 550}, 0, {{0, 50}, {0, 100}, {100, 100}, {100, 50}}, wide},
        {kToolEllipse, {200, 450}, 0,
         {{100, 125}, {100, 125 + h}, {150 - k, 150}, {150, 150}, {150 + k, 150}, {200, 125 + h},
          {200, 125}, {200, 125 - h}, {150 + k, 100}, {150, 100}, {150 - k, 100}, {100, 125 - h},
          {100, 125}},
         wide},
        {kToolEllipse, {100, 500}, 0, {}, "dx: 0   dy: 0"}, // a click draws nothing
    };
    for (const Case& c : cases) {
        document.Reset();
        host.status.clear();
        tools.SetTool(c.tool);
        Drag({{100, 500}, c.to}, c.keys);
        ExpectSettled();
        EXPECT_EQ(host.status, c.status);
        if (c.points.empty()) {
            EXPECT_TRUE(Objects().empty());
            continue;
        }
        const auto& path = static_cast<const PathObject&>(*document.Selection().front());
        ExpectPoints(path, c.points, 1e-9);
        EXPECT_NE(path.Types().back() & node::kCloseFigure, 0);
        EXPECT_EQ(path.GetFillColor(), 0xAAAAAAu);
    }
}

TEST_F(Tools, ARepaintDuringADragLeavesNoStripes) {
    tools.SetTool(kToolRectangle);
    tools.MouseDown(100, 500, 0);
    tools.MouseMove(150, 450, 0);
    host.Repaint([&](Device& device) { tools.PaintFeedback(device); });
    EXPECT_EQ(host.Visible().size(), 1u);
    tools.MouseMove(180, 420, 0);
    tools.MouseUp(180, 420, 0);
    ExpectSettled();
}

TEST_F(Tools, SpaceScrollsWhileHeldAndDeleteDeletes) {
    tools.SetTool(kToolPath);
    for (int repeat = 0; repeat < 2; ++repeat) tools.KeyDown(kVirtualKeySpace);
    EXPECT_EQ(tools.Tool(), kToolScroll);
    tools.KeyUp(kVirtualKeySpace);
    EXPECT_EQ(tools.Tool(), kToolPath);
    tools.SetTool(kToolScroll);
    tools.KeyDown(kVirtualKeySpace);
    tools.KeyUp(kVirtualKeySpace);
    EXPECT_EQ(tools.Tool(), kToolScroll);
    tools.SetTool(8);
    EXPECT_EQ(tools.Tool(), kToolScroll);

    auto* path = Add(document, NodePath({{{0, 0}, M}, {{10, 0}, L | S}, {{20, 0}, L}}));
    tools.SetTool(kToolNode);
    tools.KeyDown(kVirtualKeyDelete);
    EXPECT_EQ(path->NodeCount(), 2u);
    tools.KeyDown(kVirtualKeyDelete); // no node selected: nothing
    EXPECT_EQ(Objects().size(), 1u);
    path->SetType(1, L | S);
    tools.SetTool(kToolSelect); // leaving node editing lets go of the nodes
    EXPECT_EQ(path->TypeAt(1), L);
    tools.KeyDown(kVirtualKeyDelete);
    EXPECT_TRUE(Objects().empty());
}

} // namespace
} // namespace rhomba::test
