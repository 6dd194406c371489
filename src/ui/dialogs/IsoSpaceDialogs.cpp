#include "ui/dialogs/IsoSpaceDialogs.h"

#include "geometry/Angles.h"
#include "geometry/Isometric.h"
#include "model/Document.h"

#include <cmath>

namespace rhomba {

void CylinderDialogModel::Open() {
    Writing guard(*this);
    CylinderMemory& m = memory_.cylinder;
    m.phase = FoldHalfTurn(m.phase);
    fields_.SetText(kAngle, ShowNumber(m.phase * kDegreesPerRadian));
    fields_.SetChecked(kForeshorten, memory_.plane.foreshorten);
}

void CylinderDialogModel::OnCommand(int id, int) {
    if (id != kAngle || IsWriting()) return;
    Writing guard(*this);
    const double degrees = ReadNumber(fields_.GetText(kAngle));
    if (degrees < -360) {
        fields_.SetText(kAngle, "-360");
    } else if (degrees > 360) {
        fields_.SetText(kAngle, "360");
    }
}

bool CylinderDialogModel::Ok(Document& document) {
    // The field is kept within +-360 while typed; the clamp here holds it for any other way in.
    const double degrees = Clamp(ReadNumber(fields_.GetText(kAngle)), -360, 360);
    // Note: remembered unfolded; it is folded when the dialog next opens, so 120 degrees
    // reappear as -60. The foreshorten choice is not stored: the plane dialog owns that flag.
    memory_.cylinder.phase = degrees / kDegreesPerRadian;
    WrapSelectionOnCylinder(document, memory_.cylinder.phase, fields_.IsChecked(kForeshorten));
    return true;
}

double ReducePlaneAngle(double degrees) { return std::fmod(degrees, 360.0); }

void PlaneDialogModel::Open() {
    const PlaneMemory& m = memory_.plane;
    CheckRadio(fields_, kPlanes, 4, m.plane);
    CheckRadio(fields_, kFirstAxes, 3, m.firstAxis);
    CheckRadio(fields_, kSecondAxes, 3, m.secondAxis);
    fields_.SetText(kFirstAngle, ShowNumber(m.firstDegrees));
    fields_.SetText(kSecondAngle, ShowNumber(m.secondDegrees));
    fields_.SetChecked(kForeshorten, m.foreshorten);
    UpdateSecondAxes();
    fields_.Invalidate(kPreview);
}

void PlaneDialogModel::OnCommand(int id, int) {
    for (int axis : kFirstAxes) {
        if (id == axis) UpdateSecondAxes();
    }
    if (id != kPreview) fields_.Invalidate(kPreview);
}

void PlaneDialogModel::UpdateSecondAxes() {
    const int first = CheckedRadio(fields_, kFirstAxes, 3, -1);
    for (int i = 0; i < 3; ++i) fields_.Enable(kSecondAxes[i], i != first);
    // A second axis equal to the new first one moves to the next free axis, so that the two
    // always differ.
    const int second = CheckedRadio(fields_, kSecondAxes, 3, -1);
    if (first >= 0 && (second == first || second < 0)) {
        CheckRadio(fields_, kSecondAxes, 3, first == kAxisX ? kAxisY : kAxisX);
    }
}

PlaneRotationParams PlaneDialogModel::ReadControls() const {
    PlaneRotationParams params;
    params.plane = CheckedRadio(fields_, kPlanes, 4, kPlaneXY);
    params.firstAxis = CheckedRadio(fields_, kFirstAxes, 3, kAxisX);
    params.firstAngle = ReducePlaneAngle(ReadNumber(fields_.GetText(kFirstAngle)));
    params.secondAxis = CheckedRadio(fields_, kSecondAxes, 3, kAxisY);
    params.secondAngle = ReducePlaneAngle(ReadNumber(fields_.GetText(kSecondAngle)));
    params.foreshorten = fields_.IsChecked(kForeshorten);
    return params;
}

bool PlaneDialogModel::Ok(Document& document) {
    const PlaneRotationParams params = ReadControls();
    PlaneMemory& m = memory_.plane;
    m.plane = params.plane;
    m.firstAxis = params.firstAxis;
    m.firstDegrees = params.firstAngle;
    m.secondAxis = params.secondAxis;
    m.secondDegrees = params.secondAngle;
    m.foreshorten = params.foreshorten;
    RotateSelectionInPlane(document, params);
    return true;
}

} // namespace rhomba
