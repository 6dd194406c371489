#pragma once

#include "ui/dialogs/DialogModel.h"
#include "ui/resource.h"

namespace rhomba {

// "Rotieren" (dialog 160): turns the selection about its box centre.
class RotateDialogModel : public DialogModel {
public:
    static constexpr int kAngle = IDC_ROTATE_ANGLE;
    static constexpr int kClockwise = IDC_ROTATE_CW;
    static constexpr int kCounterClockwise = IDC_ROTATE_CCW;
    static constexpr int kDirections[2] = {kClockwise, kCounterClockwise};

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// "Dehnen" (dialog 161): scales the selection about its box centre by two percentages.
class StretchDialogModel : public DialogModel {
public:
    static constexpr int kX = IDC_STRETCH_X;
    static constexpr int kY = IDC_STRETCH_Y;
    static constexpr int kBothAxes = IDC_STRETCH_BOTH;

    using DialogModel::DialogModel;
    void Open() override;
    // While "beide Achsen gleich" is checked, a typed percentage is copied into the other field.
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;
};

// "Scheren" (dialog 162): shears the selection about its box centre; each angle field has a
// percent field showing the same slope.
class ShearDialogModel : public DialogModel {
public:
    static constexpr int kXDegrees = IDC_SHEAR_X_DEGREES;
    static constexpr int kYDegrees = IDC_SHEAR_Y_DEGREES;
    static constexpr int kXPercent = IDC_SHEAR_X_PERCENT;
    static constexpr int kYPercent = IDC_SHEAR_Y_PERCENT;

    using DialogModel::DialogModel;
    void Open() override;
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;
};

// "Verschieben" (dialog 164): moves the selection by millimetres.
class MoveDialogModel : public DialogModel {
public:
    static constexpr int kX = IDC_MOVE_X;
    static constexpr int kY = IDC_MOVE_Y;

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// The slope of a shear angle in percent, and back.
double ShearPercent(double degrees);
double ShearDegrees(double percent);

} // namespace rhomba
