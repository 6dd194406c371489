#pragma once

#include "geometry/Matrix3D.h"
#include "geometry/Point2.h"
#include "geometry/Rect2.h"

namespace rhomba {

class Document;

// Enlargement of the isometric view when "Mit Verkuerzung" is off.
// Note: this exact value, slightly below the square root of 1.5, is what existing drawings were
// made with; it is not to be "corrected".
inline constexpr double kIsoViewScale = 1.2247389813954697;

// Tilt of the view about the x axis: the angle whose tangent is 1 / sqrt 2, in degrees.
inline constexpr double kIsoViewTiltDegrees = 35.264389683156;

// What WrapCylinder hands down the tree: the box of the whole selection and the turn.
struct CylinderWrapParams {
    Rect2 bounds;
    double phase = 0; // radians
    bool foreshorten = false;
};

// The source planes of the plane rotation.
enum IsoPlane : int { kPlaneXY = 0, kPlaneZY = 1, kPlaneZX = 2, kPlaneXZ = 3 };

// The rotation axes: 0 X, 1 Y, 2 Z.
enum IsoAxis : int { kAxisX = 0, kAxisY = 1, kAxisZ = 2 };

// What RotateIsoPlane hands down the tree: the box of the whole selection and the turns.
struct PlaneRotationParams {
    Rect2 bounds;
    int plane = kPlaneXY;
    int firstAxis = kAxisX;
    double firstAngle = 0; // degrees
    int secondAxis = kAxisY;
    double secondAngle = 0; // degrees
    bool foreshorten = false;
};

// The isometric view of space: scale (unless foreshortened), then the turn about y by -45
// degrees, then the tilt about x.
Matrix3D IsoViewMatrix(bool foreshorten);

// The view with the plane's two turns: the first axis turns first, then the second; an angle
// below 0.01 degrees in magnitude is no turn at all.
Matrix3D PlaneRotationMatrix(const PlaneRotationParams& params);

// Back from space to the plane: adds 0.5 and cuts toward zero, giving whole document units.
// Note: a cut, not a rounding: -2.7 becomes -2, -0.6 becomes 0.
double CutToWhole(double value);

// Wraps the selection once round an upright cylinder turned by phase (radians). Several selected
// objects are grouped for the wrap and the group is dissolved again afterwards.
void WrapSelectionOnCylinder(Document& document, double phase, bool foreshorten);

// Turns the selection as a plane of space; the same grouping as the cylinder wrap. The bounds
// of settings are not used; they are filled in here.
void RotateSelectionInPlane(Document& document, const PlaneRotationParams& settings);

} // namespace rhomba
