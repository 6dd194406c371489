#include "transform/IsoProjection.h"

#include "model/Document.h"
#include "model/PathObject.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <vector>

namespace rhomba {
namespace {

using test::ExpectPoints;

PathObject* AddPolygon(Document& document, std::vector<Point2> points) {
    return test::Add(document, test::Polyline(points));
}

TEST(IsoProjection, FaceMatricesKeepTheirComposition) {
    // Scale, then shear, then rotate: the shear slope is half the already shortened width, and
    // the top faces are not corrected to the true rhombus.
    const Matrix2D left = BuildFaceMatrix(kFaceLeft, 0, 0);
    EXPECT_NEAR(left.a, 0.8660254038, 1e-10);
    EXPECT_NEAR(left.b, -0.4330127019, 1e-10);
    EXPECT_EQ(left.c, 0);
    EXPECT_EQ(left.d, 1);
    const Matrix2D right = BuildFaceMatrix(kFaceRight, 0, 0);
    EXPECT_NEAR(right.b, 0.4330127019, 1e-10);
    const Matrix2D top1 = BuildFaceMatrix(kFaceTop1, 0, 0);
    EXPECT_NEAR(top1.a, 0.8660254038, 1e-10);
    EXPECT_NEAR(top1.b, 0.5, 1e-10);
    EXPECT_NEAR(top1.c, -0.8080127019, 1e-10);
    EXPECT_NEAR(top1.d, 0.5334936491, 1e-10);
    const Matrix2D top2 = BuildFaceMatrix(kFaceTop2, 0, 0);
    EXPECT_NEAR(top2.b, -0.5, 1e-10);
    EXPECT_NEAR(top2.c, 0.8080127019, 1e-10);
    EXPECT_NEAR(top2.d, 0.5334936491, 1e-10);
    EXPECT_EQ(BuildFaceMatrix(0, 5, 5), Matrix2D::Identity());
    EXPECT_EQ(BuildFaceMatrix(5, 5, 5), Matrix2D::Identity());
}

TEST(IsoProjection, SquareOnTheLeftFace) {
    Document document;
    PathObject* square = AddPolygon(document, {{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    ProjectSelection(document, kFaceLeft);
    ExpectPoints(*square,
                 {{0.6698729811, 2.1650635095},
                  {9.3301270189, -2.1650635095},
                  {9.3301270189, 7.8349364905},
                  {0.6698729811, 12.1650635095}},
                 1e-9);
}

TEST(IsoProjection, LeftAndBackGivesAnyShapeBack) {
    Document document;
    const std::vector<Point2> shape{{3, 1}, {17, 4}, {9, 22}, {-5, 8}};
    PathObject* path = AddPolygon(document, shape);
    ProjectSelection(document, kFaceLeft);
    ProjectSelection(document, kBackFromLeft);
    ExpectPoints(*path, shape, 1e-9);
}

TEST(IsoProjection, TopFaceBackIsAboutTheNewCentre) {
    Document document;
    PathObject* square = AddPolygon(document, {{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    ProjectSelection(document, kFaceTop1);
    ProjectSelection(document, kBackFromTop1);
    ExpectPoints(*square, {{0, 0}, {10, 0}, {10, 10}, {0, 10}}, 1e-9);

    // The projected triangle's box is centred elsewhere, so "zurueck" moves it.
    document.DeleteSelection();
    PathObject* triangle = AddPolygon(document, {{0, 0}, {10, 0}, {10, 10}});
    ProjectSelection(document, kFaceTop1);
    Rect2 box;
    triangle->GetBounds(box, false);
    EXPECT_NEAR(box.Centre().x, 9.040064, 1e-6);
    EXPECT_NEAR(box.Centre().y, 5.0, 1e-6);
    ProjectSelection(document, kBackFromTop1);
    ExpectPoints(*triangle,
                 {{1.551282, 2.332532}, {11.551282, 2.332532}, {11.551282, 12.332532}}, 1e-6);
}

TEST(IsoProjection, TopOneThenTopTwoIsNotTheIdentity) {
    Document document;
    PathObject* square = AddPolygon(document, {{0, 0}, {10, 0}, {10, 10}, {0, 10}});
    ProjectSelection(document, kFaceTop1);
    ProjectSelection(document, kFaceTop2);
    EXPECT_GT(std::abs(square->PointAt(1).x - 10) + std::abs(square->PointAt(1).y), 1e-3);
}

TEST(IsoProjection, SeveralObjectsBecomeOneGroupThatStays) {
    Document document;
    PathObject* a = AddPolygon(document, {{0, 0}, {10, 0}});
    PathObject* b = AddPolygon(document, {{0, 10}, {10, 10}});
    document.AddToSelection(a);
    document.AddToSelection(b);
    ProjectSelection(document, kFaceRight);
    ASSERT_EQ(document.CurrentLayer().ChildCount(), 1u);
    EXPECT_EQ(document.CurrentLayer().ChildAt(0)->GetKind(), ObjectKind::Group);
    ASSERT_EQ(document.Selection().size(), 1u);
    // The group's centre (5, 5) is the fixed point: (0, 0) rises by half the shortened width.
    EXPECT_NEAR(a->PointAt(0).x, 5 - 5 * 0.8660254037844386, 1e-12);
    EXPECT_NEAR(a->PointAt(0).y, 5 - 5 - 0.5 * 5 * 0.8660254037844386, 1e-12);
}

TEST(IsoProjection, NothingSelectedOrUnknownModeChangesNothing) {
    Document document;
    PathObject* path = AddPolygon(document, {{0, 0}, {10, 5}});
    document.ClearSelection();
    ProjectSelection(document, kFaceLeft);
    ExpectPoints(*path, {{0, 0}, {10, 5}}, 0);
    document.AddToSelection(path);
    ProjectSelection(document, 9);
    ProjectSelection(document, 0);
    ExpectPoints(*path, {{0, 0}, {10, 5}}, 0);
}

} // namespace
} // namespace rhomba
