#pragma once

#include "transform/IsoSpace.h"
#include "ui/dialogs/DialogModel.h"
#include "ui/resource.h"

namespace rhomba {

// "Um Zylinder wickeln" (dialog 165): wraps the selection round a cylinder turned by an angle.
class CylinderDialogModel : public DialogModel {
public:
    static constexpr int kAngle = IDC_CYLINDER_ANGLE;
    static constexpr int kForeshorten = IDC_FORESHORTEN;

    using DialogModel::DialogModel;
    void Open() override;
    // Any notification of the angle field puts a value beyond +-360 back to the limit.
    void OnCommand(int id, int code) override;
    bool Ok(Document& document) override;
};

// "Ebene im Iso-Raum drehen" (dialog 169): turns the selection as a plane of space.
class PlaneDialogModel : public DialogModel {
public:
    static constexpr int kPlanes[4] = {IDC_PLANE_XY, IDC_PLANE_ZY, IDC_PLANE_ZX, IDC_PLANE_XZ};
    static constexpr int kFirstAxes[3] = {IDC_PLANE_FIRST_X, IDC_PLANE_FIRST_Y,
                                          IDC_PLANE_FIRST_Z};
    static constexpr int kFirstAngle = IDC_PLANE_FIRST_ANGLE;
    static constexpr int kSecondAxes[3] = {IDC_PLANE_SECOND_X, IDC_PLANE_SECOND_Y,
                                           IDC_PLANE_SECOND_Z};
    static constexpr int kSecondAngle = IDC_PLANE_SECOND_ANGLE;
    static constexpr int kForeshorten = IDC_FORESHORTEN;
    static constexpr int kPreview = IDC_PLANE_PREVIEW;

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
