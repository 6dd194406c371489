#include "ui/dialogs/IsoSpaceDialogs.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "model/PathObject.h"
#include "support/DialogHarness.h"
#include "support/Paths.h"

#include <gtest/gtest.h>

#include <cmath>

namespace rhomba {
namespace {

using test::Dialog;

PathObject* AddLine(Document& document, Point2 a, Point2 b) { return test::Add(document, test::Polyline({a, b})); }

TEST(CylinderDialog, OpensWithTheFoldedAngleAndThePlaneFlag) {
    DialogMemory memory;
    memory.cylinder.phase = 120 / kDegreesPerRadian;
    memory.plane.foreshorten = true;
    Dialog<CylinderDialogModel> d(memory);
    EXPECT_EQ(d.fields.GetText(CylinderDialogModel::kAngle), "-60");
    EXPECT_NEAR(memory.cylinder.phase, -60 / kDegreesPerRadian, 1e-15);
    EXPECT_TRUE(d.fields.IsChecked(CylinderDialogModel::kForeshorten));
}

TEST(CylinderDialog, AngleFieldIsHeldWithinAFullTurn) {
    DialogMemory memory;
    Dialog<CylinderDialogModel> d(memory);
    d.Type(CylinderDialogModel::kAngle, "400");
    EXPECT_EQ(d.fields.GetText(CylinderDialogModel::kAngle), "360");
    d.Type(CylinderDialogModel::kAngle, "-360,5");
    EXPECT_EQ(d.fields.GetText(CylinderDialogModel::kAngle), "-360");
    d.Type(CylinderDialogModel::kAngle, "-12,5");
    EXPECT_EQ(d.fields.GetText(CylinderDialogModel::kAngle), "-12,5");
}

TEST(CylinderDialog, OkRemembersUnfoldedAndLeavesTheSharedFlag) {
    DialogMemory memory;
    Document document;
    PathObject* a = AddLine(document, {0, 0}, {100, 0});
    AddLine(document, {0, 50}, {100, 50});
    document.AddToSelection(a);
    Dialog<CylinderDialogModel> d(memory);
    d.Type(CylinderDialogModel::kAngle, "120");
    d.fields.SetChecked(CylinderDialogModel::kForeshorten, true);
    EXPECT_TRUE(d.model.Ok(document));
    EXPECT_EQ(memory.cylinder.phase, 120 / kDegreesPerRadian);
    EXPECT_FALSE(memory.plane.foreshorten);
    EXPECT_EQ(document.CurrentLayer().ChildCount(), 2u);
    // Wrapped: whole numbers, and the line no longer straight along y = 0.
    EXPECT_EQ(a->PointAt(0).x, std::trunc(a->PointAt(0).x));
    EXPECT_NE(a->PointAt(0), (Point2{0, 0}));
}

TEST(PlaneDialog, OpensWithTheRememberedStateAndSecondAxisGuard) {
    DialogMemory memory;
    Dialog<PlaneDialogModel> d(memory);
    EXPECT_TRUE(d.fields.IsChecked(PlaneDialogModel::kPlanes[0]));
    EXPECT_TRUE(d.fields.IsChecked(PlaneDialogModel::kFirstAxes[0]));
    EXPECT_TRUE(d.fields.IsChecked(PlaneDialogModel::kSecondAxes[1]));
    EXPECT_FALSE(d.fields.IsEnabled(PlaneDialogModel::kSecondAxes[0]));
    EXPECT_TRUE(d.fields.IsEnabled(PlaneDialogModel::kSecondAxes[2]));
    EXPECT_EQ(d.fields.GetText(PlaneDialogModel::kFirstAngle), "0");
    EXPECT_GE(d.fields.invalidations[PlaneDialogModel::kPreview], 1);

    d.Click(PlaneDialogModel::kFirstAxes, 3, kAxisZ);
    EXPECT_TRUE(d.fields.IsEnabled(PlaneDialogModel::kSecondAxes[0]));
    EXPECT_FALSE(d.fields.IsEnabled(PlaneDialogModel::kSecondAxes[2]));
    // Choosing the second axis as first moves the second one to a free axis.
    d.Click(PlaneDialogModel::kFirstAxes, 3, kAxisY);
    EXPECT_FALSE(d.fields.IsEnabled(PlaneDialogModel::kSecondAxes[1]));
    EXPECT_FALSE(d.fields.IsChecked(PlaneDialogModel::kSecondAxes[1]));
    EXPECT_TRUE(d.fields.IsChecked(PlaneDialogModel::kSecondAxes[0]));
}

TEST(PlaneDialog, EveryChangeRedrawsThePreview) {
    DialogMemory memory;
    Dialog<PlaneDialogModel> d(memory);
    const int before = d.fields.invalidations[PlaneDialogModel::kPreview];
    d.Type(PlaneDialogModel::kFirstAngle, "15");
    d.Click(PlaneDialogModel::kPlanes, 4, kPlaneZX);
    d.model.OnCommand(PlaneDialogModel::kForeshorten, kButtonClicked);
    EXPECT_EQ(d.fields.invalidations[PlaneDialogModel::kPreview], before + 3);
}

TEST(PlaneDialog, AnglesAreReducedKeepingTheirSign) {
    EXPECT_EQ(ReducePlaneAngle(370), 10);
    EXPECT_EQ(ReducePlaneAngle(-370), -10);
    EXPECT_EQ(ReducePlaneAngle(725), 5);

    DialogMemory memory;
    Document document;
    PathObject* path = AddLine(document, {0, 0}, {40, 20});
    Dialog<PlaneDialogModel> d(memory);
    d.Click(PlaneDialogModel::kPlanes, 4, kPlaneXZ);
    d.Click(PlaneDialogModel::kFirstAxes, 3, kAxisZ);
    d.Type(PlaneDialogModel::kFirstAngle, "370");
    d.Type(PlaneDialogModel::kSecondAngle, "-0,005");
    d.fields.SetChecked(PlaneDialogModel::kForeshorten, true);
    d.model.Ok(document);
    EXPECT_EQ(memory.plane.plane, kPlaneXZ);
    EXPECT_EQ(memory.plane.firstAxis, kAxisZ);
    EXPECT_EQ(memory.plane.firstDegrees, 10);
    EXPECT_EQ(memory.plane.secondAxis, kAxisY);
    EXPECT_EQ(memory.plane.secondDegrees, -0.005);
    EXPECT_TRUE(memory.plane.foreshorten);

    // The same as turning by 10 directly, the tiny second angle being no turn.
    Document direct;
    PathObject* expected = AddLine(direct, {0, 0}, {40, 20});
    PlaneRotationParams settings;
    settings.plane = kPlaneXZ;
    settings.firstAxis = kAxisZ;
    settings.firstAngle = 10;
    settings.foreshorten = true;
    RotateSelectionInPlane(direct, settings);
    EXPECT_EQ(path->PointAt(1), expected->PointAt(1));
    EXPECT_EQ(path->PointAt(0), expected->PointAt(0));

    // The next opening shows what was remembered, and the cylinder takes the flag as preset.
    Dialog<PlaneDialogModel> again(memory);
    EXPECT_EQ(again.fields.GetText(PlaneDialogModel::kFirstAngle), "10");
    EXPECT_EQ(again.fields.GetText(PlaneDialogModel::kSecondAngle), "-0,005");
    EXPECT_TRUE(again.fields.IsChecked(PlaneDialogModel::kPlanes[kPlaneXZ]));
    Dialog<CylinderDialogModel> cylinder(memory);
    EXPECT_TRUE(cylinder.fields.IsChecked(CylinderDialogModel::kForeshorten));
}

} // namespace
} // namespace rhomba
