#pragma once

#include "ui/dialogs/DialogModel.h"

namespace rhomba {

// "Rotieren" (dialog 160): turns the selection about its box centre.
class RotateDialogModel : public DialogModel {
public:
    static constexpr int kAngle = 1046;
    static constexpr int kClockwise = 1047;
    static constexpr int kCounterClockwise = 1048;
    static constexpr int kDirections[2] = {kClockwise, kCounterClockwise};

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// "Dehnen" (dialog 161): scales the selection about its box centre by two percentages.
class StretchDialogModel : public DialogModel {
public:
    static constexpr int kX = 1049;
    static constexpr int kY = 1050;
    static constexpr int kBothAxes = 1051;

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
    static constexpr int kXDegrees = 1053;
    static constexpr int kYDegrees = 1052;
    static constexpr int kXPercent = 1054;
    static constexpr int kYPercent = 1055;

    using DialogModel::DialogModel;
    void Open() override;
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;
};

// "Verschieben" (dialog 164): moves the selection by millimetres.
class MoveDialogModel : public DialogModel {
public:
    static constexpr int kX = 1066;
    static constexpr int kY = 1067;

    using DialogModel::DialogModel;
    void Open() override;
    bool Ok(Document& document) override;
};

// The slope of a shear angle in percent, and back.
double ShearPercent(double degrees);
double ShearDegrees(double percent);

} // namespace rhomba
