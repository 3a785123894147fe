#pragma once

#include "base/Bod.h"
#include "engine/Miry.h"
#include "zak/Los.h"

namespace rysovna::hrac {

// Where a pupil of any board presses and lets go. Plane px.

/// A press so many px off a point on either axis still catches it.
constexpr int CHYTNE = DOSAH_CHYTANI - 1;

/// Whether a place is on the plane, far enough from its edges that a press near it misses the
/// arrows.
[[nodiscard]] bool NaPlose(Bod b);

/// Where a circle of radius r is let go: to either side, at any height, on the plane if one is.
[[nodiscard]] Bod NaKruznici(Los& los, Bod stred, int r);

/// A place at the given whole-number angle, degrees, from the direction rameno1 to rameno2, turned
/// to the left, whose read-out is exactly that angle; about so far from rameno1, px.
[[nodiscard]] Bod PodUhlem(Bod rameno1, Bod rameno2, int stupnu, int daleko = 60);

}  // namespace rysovna::hrac
