#pragma once

namespace rhomba {

// Millimetres to document points. Note: the program's own factor, slightly off 72 / 25.4; typed
// lengths must land where existing drawings expect them, so it is kept.
inline constexpr double kPointsPerMillimetre = 2.834653369727658;

// Canvas pixels per document point at zoom 1: five pixels per millimetre.
inline constexpr double kScreenPixelsPerPoint = 1.763884097222222;

// Divisor from degrees to radians in every two-dimensional rotation and dialog angle field.
inline constexpr double kDegreesPerRadian = 57.29577951308232;

// Note: the three-dimensional rotations use pi truncated to ten decimals on purpose.
inline constexpr double kTruncatedPi = 3.1415926535;

inline constexpr double kPi = 3.141592653589793;
inline constexpr double kHalfPi = 1.5707963267948966;
inline constexpr double kQuarterPi = 0.7853981633974483;
inline constexpr double kTwoPi = 6.283185307179586;

// The isometric faces: cos 30 degrees as horizontal scale of the side faces and vertical scale of
// the top faces, the shear slope added after the scale, and the rotation of the top faces.
inline constexpr double kCos30 = 0.8660254037844386;
inline constexpr double kIsoShear = 0.5;
inline constexpr double kIsoAngleDegrees = 30;

// Slope of the canvas guide lines: one over this truncated square root of 3.
inline constexpr double kGuideSqrt3 = 1.7320508;

} // namespace rhomba
