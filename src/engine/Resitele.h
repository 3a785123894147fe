#pragma once

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

// Where the next vertex lies once two objects are on the plane. Pure: nothing here reads the
// tables or draws. Points are pixels of the plane; BEZ_BODU stands for no such point and is
// written to every output that has no solution. The order of two outputs is part of the design:
// boards take the first for the vertex and keep the second as the alternative.
// The formulas carry small biases (0.001, 0.2, half a pixel of rounding offset) on which both the
// picture and the expected answers rest. They are not to be replaced by cleaner ones.

/// A vertex closer than this to the plane's edge, px, gives way to the other solution.
constexpr int OKRAJ_PRUSECIKU = 20;
/// A meeting point of two lines farther from the origin than this, px, counts as none.
constexpr double DALEKO = 800;

/// The arc cosine, radians. BEZ where x is beyond -1 to 1; 0 for x = 1 and, on purpose, for
/// x = -1 too.
double Arccos(double x);

/// Whether both are above zero or both below. A zero has no sign.
bool StejneZnamenko(double a, double b);

/// The direction from one point to another, radians, counter-clockwise as the eye sees it, 0 up
/// to 2*pi. Of two equal points it is dosud, the direction known until now.
float Smer(Bod od, Bod k, float dosud);

/// Whether two angles, radians, are the same: both print the same to five decimals. Tells an
/// axis-parallel direction from a merely close one.
bool RovneUhly(double a, double b);

/// The point r pixels from P under the angle uhel, radians. out2 is always BEZ_BODU.
void PolarniBod(Bod P, float r, float uhel, Bod& out1, Bod& out2);

/// Meeting points of two circles. out1 is the one to the right of the way from C1 to C2 (as the
/// eye sees it) if it lies more than 20 px inside the plane on every side, else the other one,
/// whether or not that is better. Touching circles give the same point twice. Both BEZ_BODU when
/// the circles do not meet or share a centre.
void PrunikKruznic(const Plane& plane, Bod C1, float r1, Bod C2, float r2, Bod& out1, Bod& out2);

/// Where the line P1 P2 meets the line P3 P4; out2 is always BEZ_BODU. The result lies up to half
/// a pixel off, and 0.2 more. BEZ_BODU for parallel lines, for a point more than 800 px from the
/// origin on either axis, and for one whose X equals that of both P1 and P3.
void PrunikPrimek(Bod P1, Bod P2, Bod P3, Bod P4, Bod& out1, Bod& out2);

/// Meeting points of the line P1 P2 with a circle, each taken down to whole pixels from the
/// centre. out1 is the one farther on in X from P1 towards P2 (the right one of an upright line's
/// two as computed). A tangent gives two equal points; both BEZ_BODU when the line misses.
/// A and B do not change the result.
void PrunikPrimkyKruznice(Bod C, float r, Bod P1, Bod P2, Bod A, Bod B, Bod& out1, Bod& out2);

/// As PrunikPrimkyKruznice, but out1 is the right one of the two if it lies inside the plane,
/// else the left one; and a tangent has no solution.
void PrunikPrimkyKruzniceVPlose(const Plane& plane, Bod C, float r, Bod P1, Bod P2, Bod A, Bod B,
                                Bod& out1, Bod& out2);

/// Keeps of two solutions what lies in the direction from P to Q: the signs of both coordinates'
/// differences from P must be those of Q. What is kept comes first. A point level with P on one
/// axis counts only if Q is level too.
void FiltrPaprsku(Bod P, Bod Q, Bod& S1, Bod& S2);

}  // namespace rysovna
