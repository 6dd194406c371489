#pragma once

#include "transform/IsoSpace.h"
#include "ui/dialogs/DialogModel.h"

namespace rhomba {

// "Um Zylinder wickeln" (dialog 165): wraps the selection round a cylinder turned by an angle.
class CylinderDialogModel : public DialogModel {
public:
    static constexpr int kAngle = 1068;
    static constexpr int kForeshorten = 1069;

    using DialogModel::DialogModel;
    void Open() override;
    // Any notification of the angle field puts a value beyond +-360 back to the limit.
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;
};

// "Ebene im Iso-Raum drehen" (dialog 169): turns the selection as a plane of space.
class PlaneDialogModel : public DialogModel {
public:
    static constexpr int kPlanes[4] = {1094, 1095, 1096, 1097}; // XY, ZY, ZX, XZ
    static constexpr int kFirstAxes[3] = {1065, 1089, 1090};    // X, Y, Z
    static constexpr int kFirstAngle = 1088;
    static constexpr int kSecondAxes[3] = {1066, 1092, 1093};
    static constexpr int kSecondAngle = 1091;
    static constexpr int kForeshorten = 1069;
    static constexpr int kPreview = 1087;

    using DialogModel::DialogModel;
    void Open() override;
    // A first axis disables the same second axis; every change redraws the preview.
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;

    // The state the controls show, as the preview maps the selection with it.
    PlaneRotationParams ReadControls() const;

private:
    void UpdateSecondAxes();
};

// A typed plane angle: the remainder by 360 with its sign kept (-370 gives -10, 725 gives 5).
double ReducePlaneAngle(double degrees);

} // namespace rhomba
