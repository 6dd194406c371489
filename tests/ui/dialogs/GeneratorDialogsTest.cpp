#include "ui/dialogs/GeneratorDialogs.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "support/DialogHarness.h"

#include <gtest/gtest.h>

namespace rhomba {
namespace {

using test::Dialog;

const PathObject* OnlyPath(Document& document) {
    Layer& layer = document.CurrentLayer();
    if (layer.ChildCount() != 1) return nullptr;
    return static_cast<const PathObject*>(layer.ChildAt(0));
}

TEST(PolygonDialog, OpensWithStartValuesAndOkEnabled) {
    DialogMemory memory;
    Dialog<PolygonDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(PolygonDialogModel::kCorners), "5");
    EXPECT_EQ(d.fields.GetText(PolygonDialogModel::kRadius), "10 mm");
    EXPECT_TRUE(d.fields.IsChecked(PolygonDialogModel::kOutline));
    EXPECT_FALSE(d.fields.IsChecked(PolygonDialogModel::kPiePieces));
    EXPECT_TRUE(d.fields.IsChecked(PolygonDialogModel::kStarts[0]));
    EXPECT_TRUE(d.fields.IsEnabled(kIdOk));
}

TEST(PolygonDialog, OkOnlyForUsableRadiusAndCorners) {
    DialogMemory memory;
    Document document;
    Dialog<PolygonDialogModel> d(memory);
    for (const char* text : {"0,5", "1200", "abc", "101 cm"}) {
        d.Type(PolygonDialogModel::kRadius, text);
        EXPECT_FALSE(d.fields.IsEnabled(kIdOk)) << text;
    }
    for (const char* text : {"1", "1000", "0,1 m", "10 cm"}) {
        d.Type(PolygonDialogModel::kRadius, text);
        EXPECT_TRUE(d.fields.IsEnabled(kIdOk)) << text;
    }
    d.Type(PolygonDialogModel::kCorners, "2");
    EXPECT_FALSE(d.fields.IsEnabled(kIdOk));
    EXPECT_FALSE(d.model.Ok(document));
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 0u);
    d.Type(PolygonDialogModel::kCorners, "3");
    EXPECT_TRUE(d.fields.IsEnabled(kIdOk));
    d.Type(PolygonDialogModel::kCorners, "1000000");
    EXPECT_FALSE(d.model.Refusal().empty());
}

TEST(PolygonDialog, OkAddsTheTriangleWithPiePiecesOnAnEmptyDrawing) {
    DialogMemory memory;
    Document document;
    Dialog<PolygonDialogModel> d(memory);
    d.Type(PolygonDialogModel::kCorners, "3");
    d.fields.SetChecked(PolygonDialogModel::kPiePieces, true);
    CheckRadio(d.fields, PolygonDialogModel::kStarts, 4, kCornerRight);
    EXPECT_TRUE(d.model.Ok(document));
    const PathObject* path = OnlyPath(document);
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(path->NodeCount(), 12u);
    EXPECT_NEAR(path->PointAt(1).x, 28.34653369727658, 1e-9);
    EXPECT_NEAR(path->PointAt(1).y, 0, 1e-9);
    EXPECT_EQ(memory.polygon.corners, 3);
    EXPECT_EQ(memory.polygon.firstCorner, kCornerRight);

    // With no figure asked for nothing is added.
    Dialog<PolygonDialogModel> none(memory);
    none.fields.SetChecked(PolygonDialogModel::kPiePieces, false);
    none.fields.SetChecked(PolygonDialogModel::kOutline, false);
    EXPECT_TRUE(none.model.Ok(document));
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 1u);
}

TEST(CircleDialog, OkFoldsTheAnglesAndAddsTheArc) {
    DialogMemory memory;
    Document document;
    Dialog<CircleDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(CircleDialogModel::kRadius), "10 mm");
    EXPECT_EQ(d.fields.GetText(CircleDialogModel::kStart), "0");
    d.Type(CircleDialogModel::kRadius, "1 cm");
    d.Type(CircleDialogModel::kStart, "-30");
    d.Type(CircleDialogModel::kEnd, "450");
    d.fields.SetChecked(CircleDialogModel::kCentre, true);
    d.model.Ok(document);
    EXPECT_EQ(memory.circle.startDegrees, 330);
    EXPECT_EQ(memory.circle.endDegrees, 90);
    EXPECT_EQ(memory.circle.radiusMillimetres, 10);
    const PathObject* path = OnlyPath(document);
    ASSERT_NE(path, nullptr);
    // 120 degrees: one whole quarter, a remainder, then the cross.
    EXPECT_EQ(path->NodeCount(), 1u + 3 + 3 + 4);
    Dialog<CircleDialogModel> again(memory);
    EXPECT_EQ(again.fields.GetText(CircleDialogModel::kStart), "330");
}

TEST(SineDialog, OkSwapsTheAnglesAndReadsTheAmplitudeAsALength) {
    DialogMemory memory;
    Document document;
    Dialog<SineDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(SineDialogModel::kAmplitude), "20 mm");
    EXPECT_EQ(d.fields.GetText(SineDialogModel::kEnd), "360");
    EXPECT_TRUE(d.fields.IsChecked(SineDialogModel::kAxes));
    d.Type(SineDialogModel::kAmplitude, "2,5 cm");
    d.Type(SineDialogModel::kStart, "400");
    d.Type(SineDialogModel::kEnd, "10");
    d.model.Ok(document);
    EXPECT_EQ(memory.sine.startDegrees, 10);
    EXPECT_EQ(memory.sine.endDegrees, 400);
    EXPECT_EQ(memory.sine.amplitudeMillimetres, 25);
    const PathObject* path = OnlyPath(document);
    ASSERT_NE(path, nullptr);
    EXPECT_FALSE(path->HasFill());
    EXPECT_EQ(path->PointAt(3), (Point2{0, -25 * kPointsPerMillimetre}));
}

TEST(SineDialog, NothingToDrawAddsNothing) {
    DialogMemory memory;
    Document document;
    Dialog<SineDialogModel> d(memory);
    d.Type(SineDialogModel::kEnd, "0");
    d.fields.SetChecked(SineDialogModel::kAxes, false);
    d.model.Ok(document);
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 0u);
}

TEST(SpiralDialog, EachKindShowsItsOwnGrowth) {
    DialogMemory memory;
    Dialog<SpiralDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(SpiralDialogModel::kMaxRadius), "50 mm");
    EXPECT_EQ(d.fields.GetText(SpiralDialogModel::kGrowth), "5 mm");
    EXPECT_TRUE(d.fields.IsChecked(SpiralDialogModel::kArchimedean));
    d.Type(SpiralDialogModel::kGrowth, "2,5 mm");
    d.fields.SetChecked(SpiralDialogModel::kArchimedean, false);
    d.fields.SetChecked(SpiralDialogModel::kLogarithmic, true);
    d.model.OnCommand(SpiralDialogModel::kLogarithmic, kButtonClicked);
    EXPECT_EQ(d.fields.GetText(SpiralDialogModel::kGrowth), "1,5");
    d.fields.SetChecked(SpiralDialogModel::kArchimedean, true);
    d.fields.SetChecked(SpiralDialogModel::kLogarithmic, false);
    d.model.OnCommand(SpiralDialogModel::kArchimedean, kButtonClicked);
    EXPECT_EQ(d.fields.GetText(SpiralDialogModel::kGrowth), "2,5 mm");
}

TEST(SpiralDialog, RefusesSpiralsThatDoNotGrowOrTurnTooOften) {
    DialogMemory memory;
    Document document;
    Dialog<SpiralDialogModel> d(memory);
    d.Type(SpiralDialogModel::kGrowth, "0");
    EXPECT_FALSE(d.fields.IsEnabled(kIdOk));
    d.Type(SpiralDialogModel::kGrowth, "0,01 mm");
    EXPECT_FALSE(d.fields.IsEnabled(kIdOk));
    EXPECT_FALSE(d.model.Ok(document));
    d.Type(SpiralDialogModel::kGrowth, "1 cm");
    EXPECT_TRUE(d.fields.IsEnabled(kIdOk));
    d.Type(SpiralDialogModel::kMaxRadius, "2 m");
    EXPECT_FALSE(d.fields.IsEnabled(kIdOk));
    d.Type(SpiralDialogModel::kMaxRadius, "3 cm");
    EXPECT_TRUE(d.model.Ok(document));
    const PathObject* path = OnlyPath(document);
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(path->NodeCount(), 1u + 12 * 3);
    EXPECT_EQ(memory.spiral.incrementMillimetres, 10);
    EXPECT_EQ(memory.spiral.maxRadiusMillimetres, 30);
}

} // namespace
} // namespace rhomba
