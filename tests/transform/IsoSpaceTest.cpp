#include "transform/IsoSpace.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace rhomba {
namespace {

PathObject* AddPolyline(Document& document, std::vector<Point2> points) {
    return test::Add(document, test::Polyline(points));
}

// The view worked out by hand from its three steps on the point: scale, turn about y by -45
// degrees, tilt about x; the angles in radians through the ten-decimal pi.
Point2 HandView(double x, double y, double z, bool foreshorten) {
    const double s = foreshorten ? 1 : kIsoViewScale;
    x *= s, y *= s, z *= s;
    const double ry = -45.0 / 180 * 3.1415926535;
    const double x1 = std::cos(ry) * x + std::sin(ry) * z;
    const double z1 = -std::sin(ry) * x + std::cos(ry) * z;
    const double rx = 35.264389683156 / 180 * 3.1415926535;
    return {x1, std::cos(rx) * y - std::sin(rx) * z1};
}

TEST(IsoSpace, CutAddsAHalfAndCutsTowardZero) {
    EXPECT_EQ(CutToWhole(10.49), 10);
    EXPECT_EQ(CutToWhole(10.5), 11);
    EXPECT_EQ(CutToWhole(-0.6), 0);
    EXPECT_FALSE(std::signbit(CutToWhole(-0.6)));
    // Rounding would give -3 here.
    EXPECT_EQ(CutToWhole(-2.7), -2);
}

TEST(IsoSpace, LineRoundTheCylinderCollapsesToOnePoint) {
    Document document;
    PathObject* line = AddPolyline(document, {{0, 0}, {100, 0}});
    WrapSelectionOnCylinder(document, 0, true);
    // Both ends land at theta = -pi and pi, the cylinder's back point (-R, 0, 0).
    const Point2 back = HandView(-50 / kPi, 0, 0, true);
    EXPECT_EQ(line->PointAt(0), line->PointAt(1));
    EXPECT_EQ(line->PointAt(0).x, std::trunc(back.x + 50 + 0.5));
    EXPECT_EQ(line->PointAt(0).y, std::trunc(back.y + 0.5));
    EXPECT_EQ(line->PointAt(0), (Point2{39, 6}));
}

TEST(IsoSpace, CylinderMapsEveryPointWithPhaseAndLeavesTypes) {
    Document document;
    PathObject* path = AddPolyline(document, {{0, 0}, {40, 30}, {200, 10}});
    path->SetType(2, node::kLineTo | node::kCloseFigure);
    const double phase = 30 / kDegreesPerRadian;
    WrapSelectionOnCylinder(document, phase, false);
    // Box 0..200 by 0..30: centre (100, 15), R = 100 / pi.
    const double r = 100 / kPi;
    const double theta = (40.0 - 100) / 200 * kPi * 2 + phase;
    const Point2 p = HandView(r * std::cos(theta), 15, -r * std::sin(theta), false);
    EXPECT_EQ(path->PointAt(1), (Point2{std::trunc(p.x + 100 + 0.5), std::trunc(p.y + 15 + 0.5)}));
    EXPECT_EQ(path->TypeAt(2), node::kLineTo | node::kCloseFigure);
    for (const Point2& q : path->Points()) {
        EXPECT_EQ(q.x, std::trunc(q.x));
        EXPECT_EQ(q.y, std::trunc(q.y));
    }
}

TEST(IsoSpace, CylinderWithoutWidthLeavesThePathAlone) {
    Document document;
    PathObject* upright = AddPolyline(document, {{5, 0}, {5, 50}});
    WrapSelectionOnCylinder(document, 0, false);
    EXPECT_EQ(upright->PointAt(0), (Point2{5, 0}));
    EXPECT_EQ(upright->PointAt(1), (Point2{5, 50}));
}

TEST(IsoSpace, TemporaryGroupIsDissolvedAgain) {
    Document document;
    PathObject* a = AddPolyline(document, {{0, 0}, {10, 0}});
    PathObject* b = AddPolyline(document, {{0, 20}, {30, 20}});
    document.AddToSelection(a);
    WrapSelectionOnCylinder(document, 0, true);
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 2u);
    EXPECT_EQ(document.Selection().size(), 2u);

    PlaneRotationParams settings;
    settings.firstAngle = 20;
    document.AddToSelection(b);
    RotateSelectionInPlane(document, settings);
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(document.CurrentLayer().ChildAt(i)->GetKind(), ObjectKind::Path);
    }
}

TEST(IsoSpace, PlaneXYWithoutTurnsIsTheViewOnly) {
    for (bool foreshorten : {true, false}) {
        Document document;
        PathObject* path = AddPolyline(document, {{0, 0}, {40, 20}});
        PlaneRotationParams settings;
        settings.foreshorten = foreshorten;
        RotateSelectionInPlane(document, settings);
        const Point2 p = HandView(20, 10, 0, foreshorten);
        EXPECT_EQ(path->PointAt(1), (Point2{std::trunc(p.x + 20 + 0.5), std::trunc(p.y + 10 + 0.5)}))
            << foreshorten;
    }
}

TEST(IsoSpace, OtherPlanesAreSetBackByTheBox) {
    // Box 0..40 by 0..20: W = 40, H = 20, centre (20, 10); the point (40, 20) has u = 20, v = 10.
    const struct {
        int plane;
        double x, y, z;
    } cases[] = {{kPlaneZY, 0, 10, 40 - 20}, {kPlaneZX, 20 - 10, 0, 40 - 20}, {kPlaneXZ, 20, 0, 20 - 10}};
    for (const auto& c : cases) {
        Document document;
        PathObject* path = AddPolyline(document, {{0, 0}, {40, 20}});
        PlaneRotationParams settings;
        settings.plane = c.plane;
        settings.foreshorten = true;
        RotateSelectionInPlane(document, settings);
        const Point2 p = HandView(c.x, c.y, c.z, true);
        EXPECT_EQ(path->PointAt(1), (Point2{std::trunc(p.x + 20 + 0.5), std::trunc(p.y + 10 + 0.5)}))
            << c.plane;
    }
}

TEST(IsoSpace, TurnsBelowAHundredthOfADegreeAreNone) {
    PlaneRotationParams none;
    none.foreshorten = true;
    PlaneRotationParams tiny = none;
    tiny.firstAxis = kAxisZ;
    tiny.firstAngle = -0.005;
    tiny.secondAxis = kAxisX;
    tiny.secondAngle = 0.0099;
    EXPECT_EQ(PlaneRotationMatrix(tiny), PlaneRotationMatrix(none));
    PlaneRotationParams turned = tiny;
    turned.firstAngle = -0.01;
    EXPECT_FALSE(PlaneRotationMatrix(turned) == PlaneRotationMatrix(none));
}

TEST(IsoSpace, FirstAxisTurnsFirst) {
    PlaneRotationParams params;
    params.foreshorten = true;
    params.firstAxis = kAxisX;
    params.firstAngle = 90;
    params.secondAxis = kAxisZ;
    params.secondAngle = 90;
    double x = 0, y = 1, z = 0;
    PlaneRotationMatrix(params).TransformPoint3(x, y, z);
    // (0, 1, 0) about x by 90 gives (0, 0, 1), which the z turn leaves where it is.
    double ex = 0, ey = 0, ez = 1;
    IsoViewMatrix(true).TransformPoint3(ex, ey, ez);
    EXPECT_NEAR(x, ex, 1e-9);
    EXPECT_NEAR(y, ey, 1e-9);

    // The turns take their radians through the ten-decimal pi: cos 90 degrees is 4.6e-11 here.
    PlaneRotationParams quarter;
    quarter.foreshorten = true;
    quarter.firstAxis = kAxisZ;
    quarter.firstAngle = 90;
    double qx = 1, qy = 0, qz = 0;
    PlaneRotationMatrix(quarter).TransformPoint3(qx, qy, qz);
    const double r = 90.0 / 180 * 3.1415926535;
    const Point2 expected = HandView(std::cos(r), std::sin(r), 0, true);
    EXPECT_NEAR(qx, expected.x, 1e-14);
    EXPECT_NEAR(qy, expected.y, 1e-14);
}

} // namespace
} // namespace rhomba
