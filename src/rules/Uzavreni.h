#pragma once

#include "base/Bod.h"
#include "base/Plane.h"
#include "engine/Tabulky.h"

namespace rysovna {

/// Up to two meeting points, BEZ_BODU where there is none; the first goes first.
struct Pruseciky {
    Bod P1 = BEZ_BODU, P2 = BEZ_BODU;
};

/// Where two straight objects meet, taken for whole lines; BEZ_BODU if they do not. The solver does
/// not tell a point that stands straight above both their first points: it is then asked for from
/// their other ends.
[[nodiscard]] Bod PrusecikPrimek(const Utvar& a, const Utvar& b);

/// Where two drawn objects meet. A ray meets a circle only ahead of its start; two straight
/// objects are taken for whole lines. A line whose two points coincide, and any other kind, meets
/// nothing; nor do two straight objects from one point, which is no vertex.
/// Where the filter of a ray leaves neither of two real meeting points (a nearly upright or level
/// ray loses its own by a rounded pixel), the one ahead of the ray's start is taken, so that a
/// right drawing closes.
[[nodiscard]] Pruseciky PrusecikyUtvaru(const Plane& plocha, const Utvar& prvni,
                                        const Utvar& druhy);

/// Whether a point lies ahead of a ray's start; of any other object always.
[[nodiscard]] bool JePred(const Utvar& utvar, Bod s);

/// Of two meeting points the one for the third vertex: the one to the left of the first side as
/// the eye goes from its first letter to its second (from C to A on a side named A, C). With one
/// point alone, that one. Differences of direction are taken in whole turns of 360 degrees: below
/// 180 the first stays, from 180 on the second takes its place.
[[nodiscard]] Bod VyberVrchol(const Utvar& strana, const Pruseciky& body);

}  // namespace rysovna
