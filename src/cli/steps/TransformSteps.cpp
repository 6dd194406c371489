// The apply steps of the isometric projections and the transformation dialogs. The typed values
// go through the dialog models exactly as if typed into the fields before OK.
#include "cli/steps/StepWords.h"
#include "model/Document.h"
#include "ui/dialogs/AffineDialogs.h"
#include "ui/dialogs/FieldDialog.h"
#include "ui/dialogs/IsoSpaceDialogs.h"
#include "ui/resource.h"

namespace rhomba::cli {

namespace {

bool RunIso(StepContext& context, StepWords words) {
    static constexpr CommandWord kModes[] = {
        {"links", IDM_ISO_LEFT},
        {"rechts", IDM_ISO_RIGHT},
        {"oben1", IDM_ISO_TOP1},
        {"oben2", IDM_ISO_TOP2},
        {"zurueck-links", IDM_ISO_BACK_LEFT},
        {"zurueck-rechts", IDM_ISO_BACK_RIGHT},
        {"zurueck-oben1", IDM_ISO_BACK_TOP1},
        {"zurueck-oben2", IDM_ISO_BACK_TOP2},
    };
    return RunNamedCommand(context, words, kModes,
                           "iso needs links, rechts, oben1, oben2 or zurueck-... of them");
}

bool RunRotate(StepContext& context, StepWords words) {
    const int direction = words.size() == 2 ? IndexOf(words[1], {"cw", "ccw"}) : -1;
    if (direction < 0) return Tell(context, "rotate needs ANGLE cw|ccw");
    if (!RequireSelection(context.document, context.reporter)) return true;
    FieldDialog<RotateDialogModel> d;
    d.Type(RotateDialogModel::kAngle, words[0]);
    d.Click(RotateDialogModel::kDirections, 2, direction);
    d.model.Ok(context.document);
    return true;
}

bool RunStretch(StepContext& context, StepWords words) {
    if (words.size() != 2) return Tell(context, "stretch needs X Y in percent");
    if (!RequireSelection(context.document, context.reporter)) return true;
    FieldDialog<StretchDialogModel> d;
    // "beide Achsen gleich" would copy the second value over the first; it stays checked only
    // when the two are typed alike.
    d.Check(StretchDialogModel::kBothAxes, words[0] == words[1]);
    d.Type(StretchDialogModel::kX, words[0]);
    d.Type(StretchDialogModel::kY, words[1]);
    d.model.Ok(context.document);
    return true;
}

bool RunShear(StepContext& context, StepWords words) {
    if (words.size() != 2) return Tell(context, "shear needs XDEG YDEG");
    if (!RequireSelection(context.document, context.reporter)) return true;
    FieldDialog<ShearDialogModel> d;
    d.Type(ShearDialogModel::kXDegrees, words[0]);
    d.Type(ShearDialogModel::kYDegrees, words[1]);
    d.model.Ok(context.document);
    return true;
}

bool RunMove(StepContext& context, StepWords words) {
    if (words.size() != 2) return Tell(context, "move needs XMM YMM");
    if (!RequireSelection(context.document, context.reporter)) return true;
    FieldDialog<MoveDialogModel> d;
    d.Type(MoveDialogModel::kX, words[0]);
    d.Type(MoveDialogModel::kY, words[1]);
    d.model.Ok(context.document);
    return true;
}

bool RunCylinder(StepContext& context, StepWords words) {
    bool foreshorten = false;
    if (words.size() != 2 || !ReadFlag(words[1], foreshorten)) {
        return Tell(context, "cylinder needs ANGLE 0|1");
    }
    if (!RequireSelection(context.document, context.reporter)) return true;
    FieldDialog<CylinderDialogModel> d;
    d.Type(CylinderDialogModel::kAngle, words[0]);
    d.Check(CylinderDialogModel::kForeshorten, foreshorten);
    d.model.Ok(context.document);
    return true;
}

bool RunPlane(StepContext& context, StepWords words) {
    bool foreshorten = false;
    int plane = -1, first = -1, second = -1;
    if (words.size() == 6) {
        plane = IndexOf(words[0], {"XY", "ZY", "ZX", "XZ"});
        first = IndexOf(words[1], {"X", "Y", "Z"});
        second = IndexOf(words[3], {"X", "Y", "Z"});
    }
    if (plane < 0 || first < 0 || second < 0 || !ReadFlag(words[5], foreshorten)) {
        return Tell(context, "plane needs XY|ZY|ZX|XZ X|Y|Z ANGLE1 X|Y|Z ANGLE2 0|1");
    }
    if (first == second) return Tell(context, "plane: the two axes must differ");
    if (!RequireSelection(context.document, context.reporter)) return true;
    FieldDialog<PlaneDialogModel> d;
    d.Click(PlaneDialogModel::kPlanes, 4, plane);
    d.Click(PlaneDialogModel::kFirstAxes, 3, first);
    d.Click(PlaneDialogModel::kSecondAxes, 3, second);
    d.Type(PlaneDialogModel::kFirstAngle, words[2]);
    d.Type(PlaneDialogModel::kSecondAngle, words[4]);
    d.Check(PlaneDialogModel::kForeshorten, foreshorten);
    d.model.Ok(context.document);
    return true;
}

} // namespace

const std::vector<Step>& TransformSteps() {
    static const std::vector<Step> steps = {
        {"iso",
         "iso links|rechts|oben1|oben2|zurueck-links|zurueck-rechts|zurueck-oben1|zurueck-oben2",
         RunIso, Takes<1>},
        {"rotate", "rotate ANGLE cw|ccw", RunRotate, Takes<2>},
        {"stretch", "stretch XPERCENT YPERCENT", RunStretch, Takes<2>},
        {"shear", "shear XDEG YDEG", RunShear, Takes<2>},
        {"move", "move XMM YMM", RunMove, Takes<2>},
        {"cylinder", "cylinder ANGLE FORESHORTEN(0|1)", RunCylinder, Takes<2>},
        {"plane", "plane XY|ZY|ZX|XZ AXIS1 ANGLE1 AXIS2 ANGLE2 FORESHORTEN(0|1), AXIS X|Y|Z",
         RunPlane, Takes<6>},
    };
    return steps;
}

} // namespace rhomba::cli
