#pragma once

#include <span>

#include "base/Nahoda.h"
#include "base/Plane.h"
#include "rules/VetaTrojuhelniku.h"
#include "rules/Zadani.h"

namespace rysovna {

/// Draws the five values of a kind by their table, again until they make a figure that can be
/// drawn: the two objects meet, also with the play that a read-out leaves, it can be read, the
/// vertices fit the plane after some travel of the arrows, and with a parallel a trapezoid comes
/// out. How many draws it took; 0 for an unknown kind, whose values stay.
[[nodiscard]] int VylosujCtyruhelnik(Nahoda& nahoda, const Plane& plocha, const Priklad& p,
                                     std::span<const VetaTrojuhelniku> vety,
                                     HodnotyPrikladu& hodnoty);

}  // namespace rysovna
