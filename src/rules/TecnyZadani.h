#pragma once

#include <string_view>
#include <vector>

#include "base/Nahoda.h"
#include "base/Plane.h"
#include "engine/Tabulky.h"
#include "rules/ZadanyPriklad.h"

namespace rysovna {

/// The given objects in the order in which they are drawn; and how many figures were thrown away
/// before this one, itself counted: fewer than 200 on average.
struct Figura {
    std::vector<DanyUtvar> Utvary;
    int Pokusu = 0;
};

// What a figure has to keep so that it can be solved and read, px and degrees.
constexpr int OKRAJ_FIGURY = 20;     ///< marked points and points to draw through, from the edges
constexpr int ROZESTUP_FIGURY = 16;  ///< given and marked points from each other
constexpr int UHEL_OD_OSY = 5;       ///< lines whose slope is divided by, from both axes

/// Draws the given objects of an exercise on a plane of this size; nothing for an unknown code.
[[nodiscard]] Figura VylosujFiguru(std::string_view kod, int sirka, int vyska, Nahoda& nahoda);

/// Adds the given objects to the construction and draws them.
void NakresliFiguru(Tabulky& t, Plane& plocha, const Figura& figura);

}  // namespace rysovna
