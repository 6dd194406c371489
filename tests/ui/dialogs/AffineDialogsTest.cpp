#include "ui/dialogs/AffineDialogs.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "support/DialogHarness.h"
#include "support/Paths.h"
#include "support/Reporters.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

using test::Add;
using test::Dialog;
using test::ExpectNear;
using test::RecordingReporter;

PathObject* AddSquare(Document& document, double left, double bottom, double size) {
    return Add(document, test::Square(left, bottom, size, false));
}

TEST(AffineDialogs, EmptySelectionIsReportedBeforeOpening) {
    Document document;
    RecordingReporter reporter;
    EXPECT_FALSE(RequireSelection(document, reporter));
    ASSERT_EQ(reporter.messages.size(), 1u);
    EXPECT_EQ(reporter.messages[0], "Kein Object markiert!");
    AddSquare(document, 0, 0, 1);
    EXPECT_TRUE(RequireSelection(document, reporter));
    EXPECT_EQ(reporter.messages.size(), 1u);
}

TEST(AffineDialogs, RotateOpensFoldedAndRounded) {
    DialogMemory memory;
    {
        Dialog<RotateDialogModel> d(memory);
        EXPECT_EQ(d.fields.GetText(RotateDialogModel::kAngle), "30");
        EXPECT_TRUE(d.fields.IsChecked(RotateDialogModel::kClockwise));
        EXPECT_FALSE(d.fields.IsChecked(RotateDialogModel::kCounterClockwise));
    }
    memory.rotate = {-12.345, true};
    Dialog<RotateDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(RotateDialogModel::kAngle), "347,66");
    EXPECT_TRUE(d.fields.IsChecked(RotateDialogModel::kCounterClockwise));
}

TEST(AffineDialogs, RotateClockwiseByMinusNinetyTurnsCounterClockwise) {
    DialogMemory memory;
    Document document;
    PathObject* square = AddSquare(document, 0, 0, 10);
    Dialog<RotateDialogModel> d(memory);
    d.Type(RotateDialogModel::kAngle, "-90");
    EXPECT_TRUE(d.model.Ok(document));
    EXPECT_EQ(memory.rotate.degrees, 270);
    EXPECT_FALSE(memory.rotate.counterClockwise);
    // Clockwise by 270 about (5, 5): the corner (10, 0) goes to (10, 10).
    ExpectNear(square->PointAt(1), {10, 10});
    ExpectNear(square->PointAt(0), {10, 0});
}

TEST(AffineDialogs, RotateByAFullTurnChangesNothingAndKeepsTheDirection) {
    DialogMemory memory;
    Document document;
    PathObject* square = AddSquare(document, 0, 0, 10);
    Dialog<RotateDialogModel> d(memory);
    d.Type(RotateDialogModel::kAngle, "360");
    d.fields.SetChecked(RotateDialogModel::kClockwise, false);
    d.fields.SetChecked(RotateDialogModel::kCounterClockwise, true);
    EXPECT_TRUE(d.model.Ok(document));
    EXPECT_EQ(memory.rotate.degrees, 0);
    EXPECT_FALSE(memory.rotate.counterClockwise);
    EXPECT_EQ(square->PointAt(1), (Point2{10, 0}));
}

TEST(AffineDialogs, StretchCopiesWhileBothAxesAreEqual) {
    DialogMemory memory;
    memory.stretch = {-100, 5000, true};
    Dialog<StretchDialogModel> d(memory);
    // Clamped into [1, 1000] on opening; the opening writes are not copied.
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kX), "1");
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kY), "1000");
    EXPECT_TRUE(d.fields.IsChecked(StretchDialogModel::kBothAxes));

    d.notifications = 0;
    d.Type(StretchDialogModel::kX, "12,5");
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kY), "12,5");
    // The copy's own notification arrives and is not echoed back.
    EXPECT_EQ(d.notifications, 2);
    d.Type(StretchDialogModel::kY, "-2000");
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kX), "-1000");
    // 0.001 and less is not copied.
    d.Type(StretchDialogModel::kX, "0,001");
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kY), "-2000");
    d.Type(StretchDialogModel::kX, "0,0011");
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kY), "0,0011");

    d.fields.SetChecked(StretchDialogModel::kBothAxes, false);
    d.Type(StretchDialogModel::kX, "50");
    EXPECT_EQ(d.fields.GetText(StretchDialogModel::kY), "0,0011");
}

TEST(AffineDialogs, StretchOkTurnsZeroIntoOnePercentAndMirrors) {
    DialogMemory memory;
    Document document;
    PathObject* square = AddSquare(document, 0, 0, 10);
    Dialog<StretchDialogModel> d(memory);
    d.fields.SetChecked(StretchDialogModel::kBothAxes, false);
    d.Type(StretchDialogModel::kX, "0");
    d.Type(StretchDialogModel::kY, "50");
    d.model.Ok(document);
    EXPECT_EQ(memory.stretch.xPercent, 1);
    EXPECT_FALSE(memory.stretch.bothAxes);
    ExpectNear(square->PointAt(0), {4.95, 2.5});
    ExpectNear(square->PointAt(2), {5.05, 7.5});

    Dialog<StretchDialogModel> mirror(memory);
    mirror.Type(StretchDialogModel::kX, "-100");
    mirror.Type(StretchDialogModel::kY, "100");
    mirror.model.Ok(document);
    ExpectNear(square->PointAt(0), {5.05, 2.5});
    EXPECT_EQ(memory.stretch.xPercent, -100);
    EXPECT_EQ(memory.stretch.yPercent, 100);
    Dialog<StretchDialogModel> next(memory);
    EXPECT_EQ(next.fields.GetText(StretchDialogModel::kX), "1");
    // Tiny negatives keep their sign.
    next.Type(StretchDialogModel::kX, "-0,0001");
    next.model.Ok(document);
    EXPECT_EQ(memory.stretch.xPercent, -1);
}

TEST(AffineDialogs, ShearFieldsArePartners) {
    DialogMemory memory;
    memory.shear = {89, -30};
    Dialog<ShearDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kXDegrees), "80");
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kYDegrees), "-30");
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kXPercent), "567,128");
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kYPercent), "-57,735");

    d.Type(ShearDialogModel::kXDegrees, "45");
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kXPercent), "100");
    // The write into the partner does not come back to rewrite the typed text.
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kXDegrees), "45");
    d.Type(ShearDialogModel::kYPercent, "100");
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kYDegrees), "45");
    EXPECT_EQ(d.fields.GetText(ShearDialogModel::kYPercent), "100");
}

TEST(AffineDialogs, ShearMovesTopRightAndBottomLeft) {
    DialogMemory memory;
    Document document;
    PathObject* square = AddSquare(document, -5, -5, 10);
    Dialog<ShearDialogModel> d(memory);
    d.Type(ShearDialogModel::kXDegrees, "45");
    d.model.Ok(document);
    ExpectNear(square->PointAt(0), {-10, -5});
    ExpectNear(square->PointAt(2), {10, 5});

    // The Y angle is the factor of x in y': (5, -5) rises by tan(30 degrees) times 5.
    PathObject* other = AddSquare(document, -5, -5, 10);
    Dialog<ShearDialogModel> y(memory);
    y.Type(ShearDialogModel::kXDegrees, "0");
    y.Type(ShearDialogModel::kYDegrees, "30");
    y.model.Ok(document);
    ExpectNear(other->PointAt(1), {5, -5 + 5 * std::tan(30 / kDegreesPerRadian)});
}

TEST(AffineDialogs, ShearClampsOnOkAndSkipsZero) {
    DialogMemory memory;
    Document document;
    PathObject* square = AddSquare(document, 0, 0, 10);
    Dialog<ShearDialogModel> d(memory);
    d.Type(ShearDialogModel::kXDegrees, "89");
    d.Type(ShearDialogModel::kYDegrees, "abc");
    d.model.Ok(document);
    EXPECT_EQ(memory.shear.xDegrees, 80);
    EXPECT_EQ(memory.shear.yDegrees, 0);
    ExpectNear(square->PointAt(2), {10 + 5 * std::tan(80 / kDegreesPerRadian), 10});

    Dialog<ShearDialogModel> zero(memory);
    zero.Type(ShearDialogModel::kXDegrees, "0");
    const Point2 before = square->PointAt(2);
    zero.model.Ok(document);
    EXPECT_EQ(square->PointAt(2), before);
}

TEST(AffineDialogs, MoveReadsPlainMillimetres) {
    DialogMemory memory;
    memory.move = {1234.567, -0.125};
    {
        Dialog<MoveDialogModel> d(memory);
        EXPECT_EQ(d.fields.GetText(MoveDialogModel::kX), "1000 mm");
        EXPECT_EQ(d.fields.GetText(MoveDialogModel::kY), "-0,13 mm");
    }
    Document document;
    PathObject* square = AddSquare(document, 0, 0, 10);
    Dialog<MoveDialogModel> d(memory);
    d.Type(MoveDialogModel::kX, "10");
    d.Type(MoveDialogModel::kY, "0");
    d.model.Ok(document);
    EXPECT_EQ(square->PointAt(1), (Point2{10 + 28.34653369727658, 0}));

    // A unit is not read: "1 cm" moves by one millimetre; remembered unclamped.
    Dialog<MoveDialogModel> units(memory);
    units.Type(MoveDialogModel::kX, "1 cm");
    units.Type(MoveDialogModel::kY, "2000");
    units.model.Ok(document);
    EXPECT_EQ(memory.move.xMillimetres, 1);
    EXPECT_EQ(memory.move.yMillimetres, 2000);
}

TEST(AffineDialogs, MatricesActOnTheWholeSelectionAboutItsCentre) {
    DialogMemory memory;
    Document document;
    PathObject* a = AddSquare(document, 0, 0, 10);
    PathObject* b = AddSquare(document, 30, 0, 10);
    document.AddToSelection(a);
    Dialog<RotateDialogModel> d(memory);
    d.Type(RotateDialogModel::kAngle, "180");
    d.model.Ok(document);
    // About (20, 5), the centre of both, and the two stay two objects.
    ExpectNear(a->PointAt(0), {40, 10});
    ExpectNear(b->PointAt(0), {10, 10});
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 2u);
}

} // namespace
} // namespace rhomba
