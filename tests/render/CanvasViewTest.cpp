#include "model/Document.h"
#include "render/CanvasView.h"
#include "support/RenderTest.h"

#include <algorithm>
#include <cmath>

namespace rhomba::test {
namespace {

class Canvas : public RenderTest {
protected:
    Canvas() : view(document) { view.SetClientSize(800, 600); }

    Document document;
    CanvasView view;
};

TEST_F(Canvas, ZoomAboutAPointKeepsThatWorldPoint) {
    double zoomShown = 0;
    view.onZoomChanged = [&](double z) { zoomShown = z; };
    for (double factor : {0.1, 0.75, 1.5, 7.0, 60.0}) {
        double wx = 123, wy = 77;
        view.ClientToWorld(wx, wy);
        view.SetZoom(factor, 123, 77);
        double cx = wx, cy = wy;
        view.WorldToClient(cx, cy);
        EXPECT_LT(std::fabs(cx - 123), 1.0) << factor;
        EXPECT_LT(std::fabs(cy - 77), 1.0) << factor;
        EXPECT_EQ(document.view.view.e, std::trunc(document.view.view.e));
        EXPECT_EQ(document.view.view.f, std::trunc(document.view.view.f));
        EXPECT_DOUBLE_EQ(document.view.view.a, factor * 1.763884097222222);
        EXPECT_DOUBLE_EQ(document.view.view.d, -document.view.view.a);
        EXPECT_EQ(zoomShown, factor);
    }
}

TEST_F(Canvas, ZoomWithoutAnchorUsesTheCentre) {
    view.SetClientSize(801, 601);
    double wx = 400, wy = 300;
    view.ClientToWorld(wx, wy);
    view.SetZoom(4, 0, 0);
    view.WorldToClient(wx, wy);
    EXPECT_LT(std::fabs(wx - 400), 1.0);
    EXPECT_LT(std::fabs(wy - 300), 1.0);
    EXPECT_EQ(document.view.zoom, 4);
}

TEST_F(Canvas, ScrollMovesTheViewAndItsInverseGuidesRiseAtLeastOne) {
    EXPECT_EQ(IsometricGuideRise(1732), 1000);
    EXPECT_EQ(IsometricGuideRise(0), 1);
    view.ScrollBy(10, -5);
    double x = 0, y = 0;
    view.WorldToClient(x, y);
    EXPECT_DOUBLE_EQ(x, 110);
    EXPECT_DOUBLE_EQ(y, 795);
    view.ClientToWorld(x, y);
    EXPECT_NEAR(x, 0, 1e-9);
    EXPECT_NEAR(y, 0, 1e-9);
}

TEST_F(Canvas, IsometricLinesStayFixedToTheClientArea) {
    view.switches = {true, false, false};
    view.SetClientSize(1732, 250);
    view.Paint(device, kToolSelect);
    const Calls first = device.CallsNamed("LineTo");
    EXPECT_EQ(device.CallsNamed("CreatePen"), (Calls{"CreatePen 2 1 0x00FFFF -> pen1"}));
    // Falling from y = 0, 100, 200; from -100, -200; rising from 100 to 400.
    EXPECT_EQ(device.CallsNamed("MoveTo"),
              (Calls{"MoveTo 0 0", "MoveTo 0 100", "MoveTo 0 200", "MoveTo 0 -100",
                     "MoveTo 0 -200", "MoveTo 0 100", "MoveTo 0 200", "MoveTo 0 300",
                     "MoveTo 0 400"}));
    EXPECT_EQ(device.CallsNamed("LineTo").front(), "LineTo 1732 1000");
    EXPECT_EQ(device.CallsNamed("LineTo").back(), "LineTo 1732 -600");
    view.ScrollBy(37, 11);
    device.ClearCalls();
    view.Paint(device, kToolSelect);
    EXPECT_EQ(device.CallsNamed("LineTo"), first);
}

TEST_F(Canvas, PaintOrderWithNodeToolAndDraft) {
    view.switches = {false, false, true};
    view.SetClientSize(800, 1000);
    auto* path = document.AddObject(Square(0, 0, 10));
    document.SetFlags(document.GetFlags() | Document::kFlagDraft);
    view.Paint(device, kToolNode);
    const Calls polys = device.CallsNamed("PolyDraw");
    // The page frame first, the path in outline view (no fill), then its node marks.
    ASSERT_EQ(polys.size(), 2u);
    EXPECT_EQ(polys[0], "PolyDraw 100,800:6 626,800:2 626,57:2 100,57:2 100,800:3");
    EXPECT_EQ(device.CountNamed("FillPath"), 0u);
    EXPECT_EQ(device.CountNamed("Rectangle"), 1u + 3u);  // hollow start mark, three line nodes
    EXPECT_TRUE(path->IsSelected());
}

// The client is 800 by 600 pixels; a point is 0.88 pixels at zoom 0.5, x = 0 lies at pixel 100.
TEST_F(Canvas, PathsWhollyOutsideTheClientAreaAreSkipped) {
    view.switches = {false, false, false};
    struct Case { double x, penWidth; bool drawn; };
    for (const Case c : {Case{780, 0, true}, Case{800, 0, false}, Case{800, 5, true},
                         Case{-130, 0, false}, Case{-125, 0, true}}) {
        document.Reset();
        document.AddObject(Square(c.x, 300, 10))->SetPenWidth(c.penWidth);
        device.ClearCalls();
        view.Paint(device, kToolSelect);
        EXPECT_EQ(device.CountNamed("PolyDraw") > 0, c.drawn) << c.x << " " << c.penWidth;
    }
}

TEST_F(Canvas, SelectToolDrawsADottedBoxWithEightHandles) {
    view.switches = {false, false, false};
    document.AddObject(Square(0, 0, 10));
    view.Paint(device, kToolSelect);
    std::array<int, 4> box;
    ASSERT_TRUE(view.SelectionBox(box));
    EXPECT_EQ(box, (std::array<int, 4>{100, 791, 109, 800}));
    EXPECT_EQ(device.CallsNamed("CreatePen").back().substr(0, 23), "CreatePen 2 1 0x000000 ");
    const Calls rects = device.CallsNamed("Rectangle");
    ASSERT_EQ(rects.size(), 9u);
    EXPECT_EQ(rects[0], "Rectangle 100 791 110 801");
    EXPECT_EQ(rects[1], "Rectangle 97 788 104 795");
    EXPECT_EQ(device.LiveObjects(), 0u);

    device.ClearCalls();
    document.ClearSelection();
    view.Paint(device, kToolSelect);
    EXPECT_EQ(device.CountNamed("Rectangle"), 0u);
}

TEST_F(Canvas, CoordinateCrossTicksFollowTheZoom) {
    view.switches = {false, true, false};
    view.SetZoom(1, 0, 0);
    double x = 0, y = 0;
    view.WorldToClient(x, y);
    view.ScrollBy(400 - x, 300 - y);
    view.Paint(device, kToolSelect);
    // Five pixels per millimetre at 100 %: a tick every millimetre, longer ones every 5 and 10.
    const Calls moves = device.CallsNamed("MoveTo");
    auto has = [&](const std::string& call) {
        return std::find(moves.begin(), moves.end(), call) != moves.end();
    };
    EXPECT_TRUE(has("MoveTo 405 298"));
    EXPECT_TRUE(has("MoveTo 425 296"));
    EXPECT_TRUE(has("MoveTo 450 294"));
    EXPECT_TRUE(has("MoveTo 398 310"));
    // At 10 % the ticks would be half a pixel apart: every 10 mm instead, still 5 pixels apart.
    view.SetZoom(0.1, 400, 300);
    device.ClearCalls();
    view.Paint(device, kToolSelect);
    EXPECT_NEAR(static_cast<double>(device.CountNamed("MoveTo")), moves.size(), 4);
    EXPECT_EQ(device.LiveObjects(), 0u);
}

} // namespace
} // namespace rhomba::test
