#pragma once

#include <cmath>

#include "base/Bod.h"
#include "base/Matematika.h"
#include "engine/Miry.h"

namespace rysovna::testy {

// How far points lie from each other, px, and under what angles.

inline double Delka(Bod a, Bod b) {
    return std::hypot(static_cast<double>(a.X - b.X), static_cast<double>(a.Y - b.Y));
}
/// The angle at a vertex between the ways to two points, degrees, 0 to 180.
inline double UhelPri(Bod vrchol, Bod p, Bod q) {
    const double u = std::atan2(p.Y - vrchol.Y, p.X - vrchol.X);
    const double v = std::atan2(q.Y - vrchol.Y, q.X - vrchol.X);
    return std::fabs(std::remainder(u - v, DVE_PI)) * STUPNU_PULOTACKY / PI;
}
/// The distance of a point from the line through two others, px.
inline double OdPrimky(Bod p, Bod a, Bod b) {
    const double dx = b.X - a.X;
    const double dy = b.Y - a.Y;
    return std::fabs(dx * (p.Y - a.Y) - dy * (p.X - a.X)) / std::hypot(dx, dy);
}
/// How far a point lies from where an angle of so many degrees would put it, px.
inline double OdPaprsku(Bod vrchol, Bod rameno, Bod p, int stupnu) {
    const double o = (UhelPri(vrchol, rameno, p) - stupnu) * PI / STUPNU_PULOTACKY;
    return std::fabs(std::sin(o)) * Delka(vrchol, p);
}

}  // namespace rysovna::testy
