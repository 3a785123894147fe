#pragma once

#include <span>

#include "base/Nahoda.h"
#include "base/Plane.h"
#include "rules/VetaTrojuhelniku.h"
#include "rules/Zadani.h"

namespace rysovna {

/// Draws the three values of a kind, again until they make a figure that can be read. How many
/// draws it took; 0 for an unknown kind, whose values stay.
[[nodiscard]] int VylosujRovnobeznik(Nahoda& nahoda, const Plane& plocha, const Priklad& p,
                                     std::span<const VetaTrojuhelniku> vety,
                                     HodnotyPrikladu& hodnoty);

}  // namespace rysovna
