#include "export/EmfExport.h"
#include "export/PrintJob.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "support/RenderTest.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

using test::Calls;

class DeviceOutput : public test::RenderTest {
protected:
    // A closed right triangle with its lower left corner at (x, y).
    PathObject* AddTriangle(double x, double y, double side) {
        return test::Add(document, test::Polyline({{x, y}, {x + side, y}, {x + side, y + side}}, true));
    }

    Document document;
};

TEST_F(DeviceOutput, EmfSetUpRenderAndStockObjects) {
    AddTriangle(0, 0, 10)->SetSelected(false);
    document.CurrentLayer().SetHidden(true);  // Render draws hidden layers too
    RenderEmf(device, document);
    // The first point lands on (20, 20 * y_max + 20), the one-point margin.
    EXPECT_EQ(device.Calls(),
              (Calls{"SetMapMode 8", "SetWindowExt 15 15", "SetViewportExt 1 1",
                     "SetTextAlign 24", "SetBkMode 1", "CreateSolidBrush 0xAAAAAA -> brush1",
                     "SelectObject brush1", "DeleteObject WHITE_BRUSH",
                     "CreatePen 0 5 0x000000 -> pen2", "SelectObject pen2",
                     "DeleteObject BLACK_PEN", "BeginPath", "MoveTo 20 220", "LineTo 220 220",
                     "LineTo 220 20", "CloseFigure", "EndPath", "StrokeAndFillPath",
                     "SelectObject BLACK_PEN", "DeleteObject pen2", "SelectObject WHITE_BRUSH",
                     "DeleteObject brush1", "SelectObject ANSI_FIXED_FONT",
                     "DeleteObject SYSTEM_FONT"}));
    EXPECT_EQ(device.LiveObjects(), 0u);
    EXPECT_EQ(GetPathOutputMode(), PathOutputMode::ExplicitPath);
}

TEST_F(DeviceOutput, EmfMatrixFromTheBounds) {
    const Matrix2D m = EmfViewMatrix({-5, 30, 40, 2});
    EXPECT_EQ(m, (Matrix2D{20, 0, 0, -20, 120, 620}));
    const DevicePoint p{static_cast<int>(m.TransformPoint({-5, 30}).x),
                        static_cast<int>(m.TransformPoint({-5, 30}).y)};
    EXPECT_EQ(p, (DevicePoint{20, 20}));
}

TEST_F(DeviceOutput, PrintJobSetUpAndDrawEdit) {
    document.SetFileName("Plan.rhomba");
    AddTriangle(0, 0, 1)->SetSelected(false);
    device.deviceCaps = {{gdi::kHorzRes, 4800}, {gdi::kVertRes, 6600},
                         {gdi::kLogPixelsX, 600}, {gdi::kLogPixelsY, 600}};
    device.printingOffset = {100, 100};
    device.physicalPageSize = {5100, 7000};
    ASSERT_TRUE(RunPrintJob(document, device));
    const Calls& calls = device.Calls();
    EXPECT_EQ(calls.front(), "StartDoc 'Plan.rhomba' 11");
    const Calls setUp(calls.begin() + 7, calls.begin() + 12);
    // Printable height 6600 / 600 * 72 = 792 points; times dpiY.
    EXPECT_EQ(setUp, (Calls{"StartPage", "SetMapMode 8", "SetWindowExt 43200 43200",
                            "SetViewportExt 600 600", "SetWindowOrg 0 -475200"}));
    // DrawEdit: screen fill through PolyDraw whatever the output mode, one point is 600 units.
    EXPECT_EQ(device.CallsNamed("PolyDraw").front(), "PolyDraw 0,0:6 600,0:2 600,-599:3");
    EXPECT_EQ(Calls(calls.end() - 2, calls.end()), (Calls{"EndPage", "EndDoc"}));

    const PrintMetrics m = ReadPrintMetrics(device);
    EXPECT_DOUBLE_EQ(m.marginRight, (5100 - 100 - 4800) / 600.0 * 72);
    EXPECT_DOUBLE_EQ(m.marginBottom, (7000 - 100 - 6600) / 600.0 * 72);
}

TEST_F(DeviceOutput, PrintJobStopsWhenTheSpoolerRefuses) {
    device.startDocResult = -1;
    EXPECT_FALSE(RunPrintJob(document, device));
    EXPECT_EQ(device.Calls(), (Calls{"StartDoc 'Neue Graphic.rhomba' 19"}));

    // A resolution of zero or less is taken as one.
    device.deviceCaps = {{gdi::kHorzRes, 0}, {gdi::kLogPixelsX, 0}, {gdi::kLogPixelsY, -3}};
    const PrintMetrics m = ReadPrintMetrics(device);
    EXPECT_EQ(m.dpiX, 1);
    EXPECT_EQ(m.dpiY, 1);
    EXPECT_DOUBLE_EQ(m.printableWidth, 72);
}

TEST_F(DeviceOutput, AfterAnEmfExportRenderUsesExplicitSegments) {
    AddTriangle(0, 0, 1)->SetFill(false);
    RenderEmf(device, document);
    device.ClearCalls();
    document.Render(device, Matrix2D{});
    EXPECT_EQ(device.CountNamed("PolyDraw"), 0u);
    EXPECT_EQ(device.CountNamed("StrokePath"), 1u);
    EXPECT_EQ(device.CountNamed("LineTo"), 2u);
}

} // namespace
} // namespace rhomba
