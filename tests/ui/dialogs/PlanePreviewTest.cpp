#include "ui/dialogs/PlanePreview.h"

#include "format/NativeWriter.h"
#include "model/Document.h"
#include "render/DevicePath.h"
#include "render/RecordingDevice.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace rhomba {
namespace {

constexpr int kWidth = 220;
constexpr int kHeight = 160;

// A square and a curve, both selected, moved right by shift.
void AddDrawing(Document& document, double shift = 0) {
    GraphicObject* square = test::Add(document, test::Square(10 + shift, 20, 100));
    test::Add(document, test::NodePath({{{shift, 0}, 6}, {{shift + 30, 90}, 4},
                                        {{shift + 90, 120}, 4}, {{shift + 60, 140}, 4}}));
    document.AddToSelection(square);
}

// The preview draws what OK would make of the selection, fitted into the field, over three
// axes from the selection's centre labelled X, Y, Z; the selection itself stays.
TEST(PlanePreview, ShowsWhatOkWouldMakeOverTheThreeAxes) {
    const PlaneRotationParams cases[] = {
        {{}, kPlaneXY, kAxisX, 0, kAxisY, 0, true},
        {{}, kPlaneZY, kAxisY, 30, kAxisZ, -45, false},
        {{}, kPlaneZX, kAxisZ, 90, kAxisX, 0.005, true},
        {{}, kPlaneXZ, kAxisX, -120, kAxisY, 200, false},
    };
    for (const PlaneRotationParams& settings : cases) {
        Document shown, turned;
        AddDrawing(shown);
        AddDrawing(turned);
        const std::string before = SaveNativeText(shown);
        PlanePreview preview(shown);
        RecordingDevice device;
        preview.Paint(device, kWidth, kHeight, settings);
        RotateSelectionInPlane(turned, settings);

        std::string expected;
        for (std::size_t i = 0; i < 2; ++i) {
            DevicePath path;
            ConvertPath(static_cast<const PathObject&>(*turned.CurrentLayer().ChildAt(i)),
                        preview.View(), TypeRule::Screen, path);
            expected += "PolyDraw";
            for (std::size_t k = 0; k < path.points.size(); ++k) {
                const DevicePoint p = path.points[k];
                EXPECT_TRUE(p.x >= 0 && p.x <= kWidth && p.y >= 0 && p.y <= kHeight);
                expected += ' ' + std::to_string(p.x) + ',' + std::to_string(p.y) + ':' +
                            std::to_string(path.types[k]);
            }
        }
        const auto drawn = device.CallsNamed("PolyDraw");
        ASSERT_EQ(drawn.size(), 2u);
        EXPECT_EQ(drawn[0] + drawn[1], expected) << settings.plane;

        const DevicePoint centre = ToDevice(preview.View(), shown.SelectionBounds().Centre());
        const std::string origin =
            "MoveTo " + std::to_string(centre.x) + ' ' + std::to_string(centre.y);
        EXPECT_EQ(device.CallsNamed("MoveTo"), std::vector<std::string>(3, origin));
        const auto labels = device.CallsNamed("TextOutW");
        ASSERT_EQ(labels.size(), 3u);
        EXPECT_NE(labels[0].find("'X'"), std::string::npos);
        EXPECT_NE(labels[2].find("'Z'"), std::string::npos);
        EXPECT_EQ(device.LiveObjects(), 0u);
        EXPECT_EQ(SaveNativeText(shown), before);
    }
}

// The axes reach from the selection's centre as far as its larger side, wherever it lies.
TEST(PlanePreview, AxesReachAsFarAsTheSelectionsLargerSide) {
    Document document;
    AddDrawing(document, 1000);
    PlanePreview preview(document);
    RecordingDevice device;
    preview.Paint(device, kWidth, kHeight, {{}, kPlaneZY, kAxisY, 30, kAxisZ, -45, false});
    EXPECT_EQ(device.CallsNamed("LineTo"),
              (std::vector<std::string>{"LineTo 156 90", "LineTo 114 17", "LineTo 71 90"}));
    EXPECT_EQ(device.CallsNamed("TextOutW"),
              (std::vector<std::string>{"TextOutW 163 98 'X'", "TextOutW 114 13 'Y'", "TextOutW 64 98 'Z'"}));
    // Paths inside selected groups are shown too.
    auto group = std::make_unique<Group>();
    group->InsertAt(test::Square(0, 0, 10), &document, 0, 0);
    group->InsertAt(test::Square(20, 0, 10), &document, 0, 0);
    test::Add(document, std::move(group));
    EXPECT_EQ(PlanePreview(document).NodeCount(), 8u);
}

// Selections without size or with points beyond measure still show the axes inside the field.
TEST(PlanePreview, SelectionsWithoutMeasureKeepTheAxesInTheField) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const std::vector<Point2>& points : std::vector<std::vector<Point2>>{
             {{5, 5}}, {{0, 0}, {1e300, -1e300}}, {{0, 0}, {nan, 3}}}) {
        Document document;
        test::Add(document, test::Polyline(points));
        PlanePreview preview(document);
        RecordingDevice device;
        preview.Paint(device, kWidth, kHeight, PlaneRotationParams{});
        ASSERT_EQ(device.CountNamed("TextOutW"), 3u);
        for (const std::string& call : device.CallsNamed("TextOutW")) {
            int x = 0, y = 0;
            std::sscanf(call.c_str(), "TextOutW %d %d", &x, &y);
            EXPECT_TRUE(x >= 0 && x <= kWidth && y >= 0 && y <= kHeight) << call;
        }
    }
}

} // namespace
} // namespace rhomba
