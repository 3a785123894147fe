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

/// Space before a label of the assignment, and before the value of an angle, px.
constexpr int MEZERA = 2, MEZERA_UHLU = 4;

/// Whether three lengths make a triangle, strictly.
[[nodiscard]] bool Trojuhelnikova(double a, double b, double c);

/// The Symbol letter of an angle's name ("alfa" is "a", "beta" "b", "gama" "g", "delta" and "delt"
/// "d", "epsi" "e", "omeg" "w"); empty for a name that is no angle.
[[nodiscard]] std::string_view PismenoUhlu(std::string_view nazev);

/// The caption of a value's label: "= ", the number with a blank in place of its sign, the unit,
/// and ", " unless it is the last.
[[nodiscard]] std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni);

/// A label with a side's name, italic, and one with an angle's, in Symbol.
[[nodiscard]] PolozkaZadani NazevStrany(std::string_view nazev, int mezera, bool novyRadek);
[[nodiscard]] PolozkaZadani NazevUhlu(std::string_view pismeno, int mezera, bool novyRadek);
[[nodiscard]] PolozkaZadani HodnotaZadani(std::string text, int mezera);

/// Chooses an example of the file: the whole part of PocetPrikladu times r plus 1. There is no
/// memory: the same may come twice.
[[nodiscard]] int VylosujPriklad(Misc& misc);

}  // namespace rysovna
