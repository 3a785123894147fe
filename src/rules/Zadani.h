#pragma once

#include <array>

#include "rules/Misc.h"

namespace rysovna {

/// One draw of a value: a whole number from Zaklad to Zaklad + Rozpeti - 1.
struct Vzorec {
    int Rozpeti, Zaklad;
};

/// The values of an example in the order of its names: three, on some quadrilaterals five.
using HodnotyPrikladu = std::array<int, 5>;

/// After so many draws the last one holds, whatever it is: data whose quantities do not go together
/// must not hold a board up for ever.
constexpr int NEJVIC_LOSOVANI = 20000;

/// Draws the first three values.
void VylosujTri(Nahoda& nahoda, const std::array<Vzorec, 3>& vzorce, HodnotyPrikladu& hodnoty);

/// Whether three lengths make a triangle, strictly.
[[nodiscard]] bool Trojuhelnikova(double a, double b, double c);

/// Chooses an example of the file: the whole part of PocetPrikladu times r plus 1. There is no
/// memory: the same may come twice.
[[nodiscard]] int VylosujPriklad(Misc& misc);

}  // namespace rysovna
