#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/Misc.h"
#include "rules/Panel.h"

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

/// A given quantity as the data name it.
struct Zadana {
    std::string_view Nazev, Jednotka;
};

/// Whether two names mean the same quantity: data spell delta also "delt".
[[nodiscard]] bool StejnaVelicina(std::string_view a, std::string_view b);

/// Whether three lengths make a triangle, strictly.
[[nodiscard]] bool Trojuhelnikova(double a, double b, double c);

/// Whether a quantity of this name is an angle.
[[nodiscard]] bool JeUhel(std::string_view nazev);

/// What stands behind the name of a given quantity: "= ", the number with a blank in place of its
/// sign, the unit, and ", " unless it is the last.
[[nodiscard]] std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni);

/// How the object in hand is called that stands upright on another: "přímka b, b ⊥ AB".
[[nodiscard]] std::string NazevKolmice(std::string_view jmeno, std::string_view zaklad);

/// Chooses an example of the file: the whole part of PocetPrikladu times r plus 1. There is no
/// memory: the same may come twice.
[[nodiscard]] int VylosujPriklad(Misc& misc);

}  // namespace rysovna
