#pragma once

#include "shapes/CircleShape.h"
#include "shapes/PolygonShape.h"
#include "shapes/SineCurve.h"
#include "ui/dialogs/DialogFields.h"

namespace rhomba {

class Document;

// The values the transformation and generator dialogs remember for the run of the program, with
// their start values. Nothing of this is saved.
struct RotateMemory {
    double degrees = 30;
    bool counterClockwise = false;
};

struct StretchMemory {
    double xPercent = 100;
    double yPercent = 100;
    bool bothAxes = true;
};

struct ShearMemory {
    double xDegrees = 0;
    double yDegrees = 0;
};

struct MoveMemory {
    double xMillimetres = 0;
    double yMillimetres = 0;
};

struct CylinderMemory {
    double phase = 0; // radians
};

// Note: foreshorten belongs to the plane dialog; the cylinder dialog only takes it as its preset.
struct PlaneMemory {
    int plane = 0;
    int firstAxis = 0;
    double firstDegrees = 0;
    int secondAxis = 1;
    double secondDegrees = 0;
    bool foreshorten = false;
};

struct SpiralMemory {
    double maxRadiusMillimetres = 50;
    double incrementMillimetres = 5; // "Zuwachs/U" of the Archimedean spiral
    double factor = 1.5;             // "Zuwachs/U" of the logarithmic spiral
    bool logarithmic = false;
};

struct DialogMemory {
    RotateMemory rotate;
    StretchMemory stretch;
    ShearMemory shear;
    MoveMemory move;
    CylinderMemory cylinder;
    PlaneMemory plane;
    PolygonSettings polygon;
    CircleSettings circle;
    SineSettings sine;
    SpiralMemory spiral;
};

// The one set of remembered values of this run.
DialogMemory& RunMemory();

// The portable half of a dialog: the dialog procedure calls Open when the dialog starts, passes
// every control notification to OnCommand, and calls Ok for the OK button, closing the dialog when
// it returns true. The window's close box ends a dialog without calling anything.
class DialogModel {
public:
    DialogModel(DialogMemory& memory, DialogFields& fields) : memory_(memory), fields_(fields) {}
    virtual ~DialogModel() = default;
    DialogModel(const DialogModel&) = delete;
    DialogModel& operator=(const DialogModel&) = delete;

    virtual void Open() = 0;
    virtual void OnCommand(int id, int code);
    virtual bool Ok(Document& document) = 0;

protected:
    // Held while the model writes a coupled field itself, so that the change notice of that write
    // is not taken for typing.
    class Writing {
    public:
        explicit Writing(DialogModel& model) : model_(model) { ++model_.writing_; }
        ~Writing() { --model_.writing_; }
        Writing(const Writing&) = delete;
        Writing& operator=(const Writing&) = delete;

    private:
        DialogModel& model_;
    };
    bool IsWriting() const { return writing_ != 0; }

    DialogMemory& memory_;
    DialogFields& fields_;

private:
    int writing_ = 0;
};

// Checks the one button of a radio group and clears the others, as clicking it does.
void CheckRadio(DialogFields& fields, const int* group, int count, int chosen);
// The position of the first checked button of a group, or fallback when none is.
int CheckedRadio(const DialogFields& fields, const int* group, int count, int fallback);

} // namespace rhomba
