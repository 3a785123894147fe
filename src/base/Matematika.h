#pragma once

namespace rysovna {

// The functions of mathematics whose last place depends on the library of the home: here they are
// computed from the four operations and the square root alone, which are the same everywhere. Each
// gives the double nearest to the exact value (for one argument in 100,000 its neighbour). Angles
// are in radians. What is not a number, infinities and signed zeros behave as in <cmath>.

/// Beyond 2^14 either way the angle is a run-time fault: it is no angle any more.
double Sin(double uhel);
/// Faults as Sin.
double Cos(double uhel);
/// Faults as Sin.
double Tan(double uhel);

/// From -pi/2 to pi/2; not a number outside of -1 to 1.
double Asin(double x);
/// From -pi/2 to pi/2.
double Atan(double x);
/// The direction from the origin to a point, from -pi to pi.
double Atan2(double y, double x);
/// The distance of a point from the origin; whole sides of a right triangle give its whole side.
double Hypot(double x, double y);

}  // namespace rysovna
