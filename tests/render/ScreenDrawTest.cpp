#include "model/Document.h"
#include "model/Hotspot.h"
#include "render/DrawContext.h"
#include "render/DrawFlags.h"
#include "render/NodeMarks.h"
#include "support/RenderTest.h"

namespace rhomba::test {
namespace {

class ScreenDraw : public RenderTest {};

TEST_F(ScreenDraw, FillThenOwnPenAtTheZoomedWidth) {
    auto path = Square(0, 0, 10);
    path->SetPenWidth(1);  // 1 x 1.7639 x 2 = 3.53 pixels
    path->DrawEdit(device, {Matrix2D{}, 2}, 0);
    EXPECT_EQ(device.Calls(),
              (Calls{"CreateSolidBrush 0xAAAAAA -> brush1", "SelectObject brush1",
                     "SelectObject NULL_PEN", "BeginPath",
                     "PolyDraw 0,0:6 10,0:2 10,10:2 0,10:3", "EndPath", "FillPath",
                     "SelectObject BLACK_PEN", "SelectObject WHITE_BRUSH", "DeleteObject brush1",
                     "CreatePen 0 4 0x000000 -> pen2", "SelectObject NULL_BRUSH",
                     "SelectObject pen2", "PolyDraw 0,0:6 10,0:2 10,10:2 0,10:3",
                     "SelectObject BLACK_PEN", "SelectObject WHITE_BRUSH", "DeleteObject pen2"}));
    EXPECT_EQ(device.LiveObjects(), 0u);
}

TEST_F(ScreenDraw, SelectedPathGetsAThinBlueOverdraw) {
    auto path = Square(0, 0, 10);
    path->SetFill(false);
    path->SetSelected(true);
    path->DrawEdit(device, {}, 0);
    EXPECT_EQ(device.CallsNamed("CreatePen"),
              (Calls{"CreatePen 0 0 0x000000 -> pen1", "CreatePen 0 1 0xFF0000 -> pen2"}));
    EXPECT_EQ(device.CountNamed("PolyDraw"), 2u);
    EXPECT_EQ(device.LiveObjects(), 0u);
    EXPECT_EQ(device.SelectedPen(), "BLACK_PEN");
}

TEST_F(ScreenDraw, DashedScreenPenFollowsTheZoom) {
    auto path = Square(0, 0, 10);
    path->SetFill(false);
    path->SetPenWidth(1);
    path->SetDashDot({1, 1, 0, 0, 0, 0, 0, 0});
    path->DrawEdit(device, {Matrix2D{}, 1}, 0);
    EXPECT_EQ(device.CallsNamed("ExtCreatePen"),
              (Calls{"ExtCreatePen 0x10007 2 0x000000 [2,2] -> pen1"}));
}

TEST_F(ScreenDraw, OutlineViewDrawsThinLinesWithoutFill) {
    auto plain = Square(0, 0, 10);
    plain->SetStroke(false);
    plain->DrawEdit(device, {}, kDrawOutline);
    EXPECT_EQ(device.CountNamed("FillPath"), 0u);
    EXPECT_EQ(device.CallsNamed("CreatePen"), (Calls{"CreatePen 0 1 0x000000 -> pen1"}));

    device.ClearCalls();
    plain->SetSelected(true);
    plain->DrawEdit(device, {}, kDrawOutline);
    // Blue and only once: the overdraw belongs to the normal view.
    EXPECT_EQ(device.CallsNamed("CreatePen"), (Calls{"CreatePen 0 1 0xFF0000 -> pen2"}));
    EXPECT_EQ(device.CountNamed("PolyDraw"), 1u);
}

TEST_F(ScreenDraw, HighlightFillsBlackInOutlineViewAndMarksTheSelection) {
    auto path = Square(0, 0, 10);
    path->SetFill(false);
    path->SetStroke(false);
    path->DrawEdit(device, {}, kDrawOutline | kDrawHighlight);
    EXPECT_EQ(Names(device.Calls()).front(), "SelectObject");
    EXPECT_EQ(device.Calls().front(), "SelectObject BLACK_BRUSH");
    EXPECT_EQ(device.CountNamed("FillPath"), 1u);

    device.ClearCalls();
    path->SetSelected(true);
    path->DrawEdit(device, {}, kDrawHighlight);
    EXPECT_EQ(device.CountNamed("FillPath"), 0u);
    EXPECT_EQ(device.CallsNamed("CreatePen").front(), "CreatePen 0 1 0xFF0000 -> pen2");

    device.ClearCalls();
    path->SetSelected(false);
    path->DrawEdit(device, {}, kDrawHighlight);
    EXPECT_TRUE(device.Calls().empty());
}

// One point shows only its node and renders nothing; two points fill only on the device.
TEST_F(ScreenDraw, TooFewPointsForAFigure) {
    PathObject path;
    path.AddNode({3, 4}, node::kMoveTo);
    path.Render(device, Matrix2D{});
    EXPECT_TRUE(device.Calls().empty());
    path.DrawEdit(device, {}, 0);
    EXPECT_EQ(device.CountNamed("PolyDraw"), 1u);
    device.ClearCalls();
    path.DrawEdit(device, {}, kDrawNodesOnly);
    EXPECT_EQ(device.CallsNamed("Rectangle"), (Calls{"Rectangle -1 0 7 8", "Rectangle -1 0 7 8"}));

    path.SetStroke(false);
    path.AddNode({10, 10}, node::kLineTo);
    device.ClearCalls();
    path.DrawEdit(device, {}, 0);
    EXPECT_TRUE(device.Calls().empty());
    path.Render(device, Matrix2D{});
    EXPECT_EQ(device.CountNamed("FillPath"), 1u);
}

TEST_F(ScreenDraw, HotspotRectangleCornerByCorner) {
    Hotspot spot;
    spot.SetRect(0, 10, 20, 0);
    spot.DrawEdit(device, {Matrix2D{1, 0, 0, -1, 0.4, 100.6}}, 0);
    EXPECT_EQ(device.Calls(),
              (Calls{"CreatePen 0 1 0x8080FF -> pen1", "SelectObject pen1", "MoveTo 0 91",
                     "LineTo 20 91", "LineTo 20 101", "LineTo 0 101", "LineTo 0 91",
                     "SelectObject BLACK_PEN", "DeleteObject pen1"}));
    spot.SetSelected(true);
    device.ClearCalls();
    spot.Render(device, Matrix2D{});
    EXPECT_TRUE(device.Calls().empty());
}

TEST_F(ScreenDraw, HiddenLayerSkippedOnScreenButRendered) {
    Document document;
    document.AddObject(Square(0, 0, 1));
    document.CurrentLayer().SetHidden(true);
    document.DrawEdit(device, {}, 0);
    EXPECT_TRUE(device.Calls().empty());
    document.Render(device, Matrix2D{});
    EXPECT_EQ(device.CountNamed("StrokeAndFillPath"), 1u);
}

// Node handles ---------------------------------------------------------------------------

// A closed figure: move, line, curve back to the start.
std::unique_ptr<PathObject> ClosedCurveFigure() {
    auto owned = std::make_unique<PathObject>();
    PathObject& path = *owned;
    path.AddNode({0, 0}, node::kMoveTo);
    path.AddNode({100, 0}, node::kLineTo);
    path.AddNode({100, 50}, node::kBezierTo);
    path.AddNode({50, 100}, node::kBezierTo);
    path.AddNode({0, 0}, node::kBezierTo | node::kCloseFigure);
    return owned;
}

TEST_F(ScreenDraw, SelectedStartOfAClosedFigureShowsOnItsLastPoint) {
    auto owned = ClosedCurveFigure();
    PathObject& path = *owned;
    path.SetType(0, node::kMoveTo | node::kSelected);
    path.DrawEdit(device, {}, kDrawNodesOnly);
    // One selected node: the curve that ends on the last point shows its two controls.
    EXPECT_EQ(device.CallsNamed("Ellipse"),
              (Calls{"Ellipse 96 46 104 54", "Ellipse 46 96 54 104"}));
    // Closed: the start gets no hollow extra mark but its own filled one; the last point is
    // filled too; the line point is hollow.
    EXPECT_EQ(device.CallsNamed("Rectangle"), (Calls{"Rectangle 96 -4 104 4"}));
    EXPECT_EQ(device.CountNamed("LineTo"), 2u + 9u + 9u);
    EXPECT_EQ(device.SelectedPen(), "BLACK_PEN");
    EXPECT_EQ(device.LiveObjects(), 0u);
    // The path itself keeps its bytes.
    EXPECT_EQ(path.TypeAt(4), node::kBezierTo | node::kCloseFigure);
}

TEST_F(ScreenDraw, HandlesOnlyForASingleSelectedNode) {
    PathObject path;
    path.AddNode({0, 0}, node::kMoveTo | node::kSelected);
    path.AddNode({10, 0}, node::kBezierTo);
    path.AddNode({20, 0}, node::kBezierTo);
    path.AddNode({30, 0}, node::kBezierTo);
    path.DrawEdit(device, {}, kDrawNodesOnly);
    // The open start is followed by a curve: its controls are shown with their lines.
    EXPECT_EQ(device.CountNamed("Ellipse"), 2u);
    EXPECT_EQ(device.CallsNamed("Rectangle").size(), 2u);  // hollow start, hollow end

    device.ClearCalls();
    path.SetType(3, node::kBezierTo | node::kSelected);
    path.DrawEdit(device, {}, kDrawNodesOnly);
    EXPECT_EQ(device.CountNamed("Ellipse"), 0u);
}

TEST_F(ScreenDraw, DragOutlineInvertsAndDrawsTwiceTheSame) {
    auto owned = ClosedCurveFigure();
    PathObject& path = *owned;
    DrawDragOutline(device, path, Matrix2D{});
    const Calls first = device.Calls();
    EXPECT_EQ(first.front(), "SetROP2 6");
    EXPECT_EQ(Names(device.CallsNamed("PolyDraw")).size(), 1u);
    device.ClearCalls();
    DrawDragOutline(device, path, Matrix2D{});
    EXPECT_EQ(Names(device.Calls()), Names(first));
}

} // namespace
} // namespace rhomba::test
