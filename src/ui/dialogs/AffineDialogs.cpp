#include "ui/dialogs/AffineDialogs.h"

#include "geometry/Isometric.h"
#include "model/Document.h"
#include "shapes/CircleShape.h"
#include "transform/AffineMatrices.h"

#include <cmath>

namespace rhomba {

namespace {

// A typed percentage of the stretch: within +-1000, and never so small that the selection
// collapses; the sign is kept.
double AcceptedPercent(double percent) {
    percent = Clamp(percent, -1000, 1000);
    if (std::fabs(percent) < 0.001) return percent < 0 ? -1 : 1;
    return percent;
}

} // namespace

double ShearPercent(double degrees) { return std::tan(degrees / kDegreesPerRadian) * 100; }

double ShearDegrees(double percent) { return std::atan(percent / 100) * kDegreesPerRadian; }

void RotateDialogModel::Open() {
    const RotateMemory& m = memory_.rotate;
    fields_.SetText(kAngle, ShowRounded(FoldFullTurnDegrees(m.degrees)));
    fields_.SetChecked(kCounterClockwise, m.counterClockwise);
    fields_.SetChecked(kClockwise, !m.counterClockwise);
}

bool RotateDialogModel::Ok(Document& document) {
    RotateMemory& m = memory_.rotate;
    m.degrees = FoldFullTurnDegrees(ReadNumber(fields_.GetText(kAngle)));
    if (m.degrees == 0) return true;
    m.counterClockwise = fields_.IsChecked(kCounterClockwise);
    if (document.Selection().empty()) return true;
    const Point2 centre = document.SelectionBounds().Centre();
    TransformSelection(document, RotateAbout(centre, m.degrees, m.counterClockwise));
    return true;
}

void StretchDialogModel::Open() {
    const StretchMemory& m = memory_.stretch;
    // Note: the lower bound on opening is one, not minus one thousand; a mirrored stretch is
    // accepted by OK but shown as 1 the next time.
    Writing guard(*this);
    fields_.SetText(kX, ShowNumber(Clamp(m.xPercent, 1, 1000)));
    fields_.SetText(kY, ShowNumber(Clamp(m.yPercent, 1, 1000)));
    fields_.SetChecked(kBothAxes, m.bothAxes);
}

void StretchDialogModel::OnCommand(int id, int code) {
    if (code != kEditChange || (id != kX && id != kY)) return;
    if (IsWriting() || !fields_.IsChecked(kBothAxes)) return;
    const double value = Clamp(ReadNumber(fields_.GetText(id)), -1000, 1000);
    // A field being emptied or started with "0," is not copied, so the partner keeps its value.
    if (std::fabs(value) <= 0.001) return;
    Writing guard(*this);
    fields_.SetText(id == kX ? kY : kX, ShowNumber(value));
}

bool StretchDialogModel::Ok(Document& document) {
    StretchMemory& m = memory_.stretch;
    m.xPercent = AcceptedPercent(ReadNumber(fields_.GetText(kX)));
    m.yPercent = AcceptedPercent(ReadNumber(fields_.GetText(kY)));
    m.bothAxes = fields_.IsChecked(kBothAxes);
    if (document.Selection().empty()) return true;
    const Point2 centre = document.SelectionBounds().Centre();
    TransformSelection(document, StretchAbout(centre, m.xPercent, m.yPercent));
    return true;
}

void ShearDialogModel::Open() {
    const ShearMemory& m = memory_.shear;
    const double x = Clamp(m.xDegrees, -80, 80);
    const double y = Clamp(m.yDegrees, -80, 80);
    Writing guard(*this);
    fields_.SetText(kXDegrees, ShowNumber(x));
    fields_.SetText(kYDegrees, ShowNumber(y));
    fields_.SetText(kXPercent, ShowNumber(ShearPercent(x)));
    fields_.SetText(kYPercent, ShowNumber(ShearPercent(y)));
}

void ShearDialogModel::OnCommand(int id, int code) {
    if (code != kEditChange || IsWriting()) return;
    int partner = 0;
    double value = 0;
    switch (id) {
    case kXDegrees:
        partner = kXPercent;
        value = ShearPercent(ReadNumber(fields_.GetText(id)));
        break;
    case kYDegrees:
        partner = kYPercent;
        value = ShearPercent(ReadNumber(fields_.GetText(id)));
        break;
    case kXPercent:
        partner = kXDegrees;
        value = ShearDegrees(ReadNumber(fields_.GetText(id)));
        break;
    case kYPercent:
        partner = kYDegrees;
        value = ShearDegrees(ReadNumber(fields_.GetText(id)));
        break;
    default: return;
    }
    Writing guard(*this);
    fields_.SetText(partner, ShowNumber(value));
}

bool ShearDialogModel::Ok(Document& document) {
    ShearMemory& m = memory_.shear;
    m.xDegrees = Clamp(ReadNumber(fields_.GetText(kXDegrees)), -80, 80);
    m.yDegrees = Clamp(ReadNumber(fields_.GetText(kYDegrees)), -80, 80);
    if (m.xDegrees == 0 && m.yDegrees == 0) return true;
    if (document.Selection().empty()) return true;
    const Point2 centre = document.SelectionBounds().Centre();
    TransformSelection(document, ShearAbout(centre, m.xDegrees, m.yDegrees));
    return true;
}

void MoveDialogModel::Open() {
    const MoveMemory& m = memory_.move;
    fields_.SetText(kX, ShowRounded(Clamp(m.xMillimetres, -1000, 1000)) + " mm");
    fields_.SetText(kY, ShowRounded(Clamp(m.yMillimetres, -1000, 1000)) + " mm");
}

bool MoveDialogModel::Ok(Document& document) {
    MoveMemory& m = memory_.move;
    // Plain numbers: a typed unit is not looked at, and the distance is remembered unclamped.
    m.xMillimetres = ReadNumber(fields_.GetText(kX));
    m.yMillimetres = ReadNumber(fields_.GetText(kY));
    TransformSelection(document, MoveByMillimetres(m.xMillimetres, m.yMillimetres));
    return true;
}

} // namespace rhomba
