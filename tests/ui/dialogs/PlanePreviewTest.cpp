#include "ui/dialogs/PlanePreview.h"

#include "model/Document.h"
#include "model/TextObject.h"
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

// A square and a slanted line, both selected.
void AddDrawing(Document& document) {
    GraphicObject* square = test::Add(document, test::Square(10, 20, 100));
    test::Add(document, test::Polyline({{0, 0}, {60, 140}}));
    document.AddToSelection(square);
}

// The points of every PolyDraw call, in order, as "x,y" words.
std::vector<std::string> DrawnPoints(const RecordingDevice& device) {
    std::vector<std::string> points;
    for (const std::string& call : device.CallsNamed("PolyDraw")) {
        std::size_t at = call.find(' ');
        while (at != std::string::npos) {
            const std::size_t next = call.find(' ', at + 1);
            const std::string word =
                call.substr(at + 1, next == std::string::npos ? next : next - at - 1);
            points.push_back(word.substr(0, word.find(':')));
            at = next;
        }
    }
    return points;
}

TEST(PlanePreview, ShowsTheSelectionAsOkTurnsItFittedIntoTheField) {
    struct Case {
        int plane, firstAxis;
        double firstAngle;
        int secondAxis;
        double secondAngle;
        bool foreshorten;
    };
    const Case cases[] = {
        {kPlaneXY, kAxisX, 0, kAxisY, 0, true},
        {kPlaneZY, kAxisY, 30, kAxisZ, -45, false},
        {kPlaneZX, kAxisZ, 90, kAxisX, 0.005, true},
        {kPlaneXZ, kAxisX, -120, kAxisY, 200, false},
    };
    for (const Case& c : cases) {
        PlaneRotationParams settings;
        settings.plane = c.plane;
        settings.firstAxis = c.firstAxis;
        settings.firstAngle = c.firstAngle;
        settings.secondAxis = c.secondAxis;
        settings.secondAngle = c.secondAngle;
        settings.foreshorten = c.foreshorten;

        Document shown;
        AddDrawing(shown);
        PlanePreview preview(shown);
        RecordingDevice device;
        preview.Paint(device, kWidth, kHeight, settings);

        Document turned;
        AddDrawing(turned);
        RotateSelectionInPlane(turned, settings);
        std::vector<std::string> expected;
        for (std::size_t i = 0; i < turned.CurrentLayer().ChildCount(); ++i) {
            const auto& path = static_cast<const PathObject&>(*turned.CurrentLayer().ChildAt(i));
            for (Point2 p : path.Points()) {
                const DevicePoint d = ToDevice(preview.View(), p);
                expected.push_back(std::to_string(d.x) + ',' + std::to_string(d.y));
                EXPECT_TRUE(d.x >= 0 && d.x <= kWidth && d.y >= 0 && d.y <= kHeight) << c.plane;
            }
        }
        EXPECT_EQ(DrawnPoints(device), expected) << "plane " << c.plane;
        // The original selection is left as it was.
        EXPECT_EQ(static_cast<PathObject&>(*shown.Selection()[1]).PointAt(0), (Point2{10, 20}));
    }
}

TEST(PlanePreview, DrawsThreeThinLabelledAxesFromTheSelectionCentre) {
    Document document;
    AddDrawing(document);
    PlanePreview preview(document);
    RecordingDevice device;
    preview.Paint(device, kWidth, kHeight, PlaneRotationParams{});

    const DevicePoint centre = ToDevice(preview.View(), document.SelectionBounds().Centre());
    const std::string moveTo =
        "MoveTo " + std::to_string(centre.x) + ' ' + std::to_string(centre.y);
    EXPECT_EQ(device.CallsNamed("MoveTo"), std::vector<std::string>(3, moveTo));
    EXPECT_EQ(device.CountNamed("LineTo"), 3u);
    ASSERT_EQ(device.CountNamed("TextOutW"), 3u);
    const auto labels = device.CallsNamed("TextOutW");
    EXPECT_NE(labels[0].find("'X'"), std::string::npos);
    EXPECT_NE(labels[1].find("'Y'"), std::string::npos);
    EXPECT_NE(labels[2].find("'Z'"), std::string::npos);
    EXPECT_EQ(device.CallsNamed("CreatePen")[0], "CreatePen 0 1 0x909090 -> pen1");
    EXPECT_EQ(device.LiveObjects(), 0u);
}

// Selections without size, without paths, or with points beyond measure still give a picture
// of the axes inside the field.
TEST(PlanePreview, SelectionsWithoutMeasureDrawOnlyWhatTheyCan) {
    const double huge = 1e300;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const std::vector<std::vector<Point2>> cases = {
        {{5, 5}},
        {{5, 5}, {5, 5}},
        {{0, 0}, {huge, -huge}},
        {{0, 0}, {nan, 3}},
    };
    for (const auto& points : cases) {
        Document document;
        test::Add(document, test::Polyline(points));
        PlanePreview preview(document);
        RecordingDevice device;
        preview.Paint(device, kWidth, kHeight, PlaneRotationParams{});
        for (const std::string& call : device.CallsNamed("TextOutW")) {
            int x = 0, y = 0;
            ASSERT_EQ(std::sscanf(call.c_str(), "TextOutW %d %d", &x, &y), 2);
            EXPECT_TRUE(x >= 0 && x <= kWidth && y >= 0 && y <= kHeight) << call;
        }
        EXPECT_EQ(device.CountNamed("TextOutW"), 3u);
    }

    Document texts;
    test::Add(texts, std::make_unique<TextObject>());
    PlanePreview preview(texts);
    EXPECT_EQ(preview.NodeCount(), 0u);
    RecordingDevice device;
    preview.Paint(device, kWidth, kHeight, PlaneRotationParams{});
    EXPECT_EQ(device.CountNamed("PolyDraw"), 0u);
    EXPECT_EQ(device.CountNamed("LineTo"), 3u);
}

} // namespace
} // namespace rhomba
