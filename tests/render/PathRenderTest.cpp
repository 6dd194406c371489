#include "render/DevicePath.h"
#include "support/RenderTest.h"

namespace rhomba::test {
namespace {

const Matrix2D kTwenty{20, 0, 0, -20, 0, 0};

class PathRender : public RenderTest {
protected:
    void SetUp() override {
        RenderTest::SetUp();
        ResetDeviceCache();
    }
};

TEST_F(PathRender, FilledAndStrokedInEachMode) {
    auto path = Square(0, 0, 1);
    path->SetFillColor(0x00FF00);
    path->SetStrokeColor(0x0000FF);
    path->SetPenWidth(0.5);
    path->Render(device, kTwenty);
    // -20 + 0.5 truncates toward zero to -19.
    EXPECT_EQ(device.Calls(),
              (Calls{"CreateSolidBrush 0x00FF00 -> brush1", "SelectObject brush1",
                     "DeleteObject WHITE_BRUSH", "CreatePen 0 10 0x0000FF -> pen2",
                     "SelectObject pen2", "DeleteObject BLACK_PEN", "BeginPath",
                     "PolyDraw 0,0:6 20,0:2 20,-19:2 0,-19:3", "EndPath", "StrokeAndFillPath"}));

    for (PathOutputMode mode : {PathOutputMode::ExplicitPath, PathOutputMode::ExplicitSegments}) {
        SetPathOutputMode(mode);
        device.ClearCalls();
        path->Render(device, kTwenty);
        // The cache already holds brush and pen; both modes bracket a filled path.
        EXPECT_EQ(device.Calls(), (Calls{"BeginPath", "MoveTo 0 0", "LineTo 20 0",
                                         "LineTo 20 -19", "LineTo 0 -19", "CloseFigure",
                                         "EndPath", "StrokeAndFillPath"}));
    }
}

TEST_F(PathRender, FilledOnlyLeavesThePenAlone) {
    auto path = Square(0, 0, 1);
    path->SetStroke(false);
    path->Render(device, kTwenty);
    EXPECT_EQ(device.CountNamed("CreatePen"), 0u);
    EXPECT_EQ(Names(device.Calls()), (Calls{"CreateSolidBrush", "SelectObject", "DeleteObject",
                                            "BeginPath", "PolyDraw", "EndPath", "FillPath"}));
    SetPathOutputMode(PathOutputMode::ExplicitSegments);
    device.ClearCalls();
    path->Render(device, kTwenty);
    EXPECT_EQ(Names(device.Calls()), (Calls{"BeginPath", "MoveTo", "LineTo", "LineTo", "LineTo",
                                            "CloseFigure", "EndPath", "FillPath"}));
}

TEST_F(PathRender, StrokedOnlyInEachMode) {
    auto path = Square(0, 0, 1);
    path->SetFill(false);
    path->Render(device, kTwenty);
    EXPECT_EQ(Names(device.Calls()),
              (Calls{"CreatePen", "SelectObject", "DeleteObject", "PolyDraw"}));

    SetPathOutputMode(PathOutputMode::ExplicitPath);
    device.ClearCalls();
    path->Render(device, kTwenty);
    EXPECT_EQ(Names(device.Calls()), (Calls{"BeginPath", "MoveTo", "LineTo", "LineTo", "LineTo",
                                            "CloseFigure", "EndPath", "StrokePath"}));

    SetPathOutputMode(PathOutputMode::ExplicitSegments);
    device.ClearCalls();
    path->Render(device, kTwenty);
    EXPECT_EQ(Names(device.Calls()),
              (Calls{"MoveTo", "LineTo", "LineTo", "LineTo", "CloseFigure"}));
}

TEST_F(PathRender, NeitherFilledNorStrokedSelectsTheNullPenOnce) {
    auto stroked = Square(0, 0, 1);
    stroked->SetFill(false);
    stroked->Render(device, kTwenty);
    auto bare = Square(0, 0, 1);
    bare->SetFill(false);
    bare->SetStroke(false);
    device.ClearCalls();
    bare->Render(device, kTwenty);
    EXPECT_EQ(device.Calls(), (Calls{"SelectObject NULL_PEN", "DeleteObject pen1",
                                     "PolyDraw 0,0:6 20,0:2 20,-19:2 0,-19:3"}));
    device.ClearCalls();
    bare->Render(device, kTwenty);
    EXPECT_EQ(Names(device.Calls()), (Calls{"PolyDraw"}));
    // The stroked path afterwards needs its pen again.
    device.ClearCalls();
    stroked->Render(device, kTwenty);
    EXPECT_EQ(device.CountNamed("CreatePen"), 1u);
}

TEST_F(PathRender, EqualObjectsShareOnePenAndBrush) {
    for (int i = 0; i < 50; ++i) {
        auto path = Square(i, 0, 1);
        path->SetDashDot({3, 1, 0, 0, 0, 0, 0, 0});
        path->Render(device, kTwenty);
    }
    EXPECT_EQ(device.CountNamed("ExtCreatePen"), 1u);
    EXPECT_EQ(device.CountNamed("CreateSolidBrush"), 1u);
    EXPECT_EQ(device.CountNamed("StrokeAndFillPath"), 50u);
    EXPECT_EQ(device.LiveObjects(), 2u);

    // A different dash pattern with the same count is a different pen.
    auto other = Square(0, 0, 1);
    other->SetDashDot({3, 2, 0, 0, 0, 0, 0, 0});
    other->Render(device, kTwenty);
    EXPECT_EQ(device.CountNamed("ExtCreatePen"), 2u);
    EXPECT_EQ(device.LiveObjects(), 2u);
}

TEST_F(PathRender, DashedPenUsesTwentyUnitsPerPatternStep) {
    auto path = Square(0, 0, 1);
    path->SetFill(false);
    path->SetPenWidth(1);
    path->SetDashDot({3, 1, 0, 0, 0, 0, 0, 0});
    path->Render(device, kTwenty);
    EXPECT_EQ(device.CallsNamed("ExtCreatePen"),
              (Calls{"ExtCreatePen 0x10007 20 0x000000 [60,20] -> pen1"}));
}

TEST_F(PathRender, BlackHairlineMatchesTheUnresetCache) {
    RestoreProcessStartDeviceState();
    auto path = Square(0, 0, 1);
    path->SetFill(false);
    path->SetPenWidth(0);
    path->Render(device, kTwenty);
    EXPECT_EQ(Names(device.Calls()), (Calls{"PolyDraw"}));
    EXPECT_EQ(device.SelectedPen(), "BLACK_PEN");
}

TEST_F(PathRender, DeviceTypeBytes) {
    PathObject path;
    path.SetFill(false);
    path.AddNode({0, 0}, node::kMoveTo | node::kCloseFigure | node::kSelected);
    path.AddNode({1, 0}, node::kLineTo | node::kSelected);
    path.AddNode({1, 1}, node::kBezierTo | node::kCloseFigure | node::kShowHandles);
    path.AddNode({2, 1}, node::kBezierTo | node::kShowHandles);
    path.AddNode({2, 2}, node::kBezierTo | node::kCloseFigure | node::kSelected);
    path.Render(device, Matrix2D{});
    EXPECT_EQ(device.CallsNamed("PolyDraw"), (Calls{"PolyDraw 0,0:6 1,0:2 1,1:4 2,1:4 2,2:5"}));
}

TEST(DeviceRound, HalfUpThenTowardZero) {
    const std::pair<double, int> rows[] = {{2.5, 3},
                                           {2.49, 2},
                                           {-0.7, 0},
                                           {-3.7, -3},
                                           {-3.2, -2},
                                           {1e300, 2147483647},
                                           {-1e300, -2147483647 - 1}};
    for (const auto& [value, rounded] : rows)
        EXPECT_EQ(DeviceRound(value), rounded) << value;
}

} // namespace
} // namespace rhomba::test
