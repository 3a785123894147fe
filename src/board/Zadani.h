#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "board/Panel.h"
#include "shell/Zaznamy.h"

namespace rysovna {

/// One draw of a value: a whole number from Zaklad to Zaklad + Rozpeti - 1.
struct Vzorec {
    int Rozpeti, Zaklad;
};

/// The three values of an example, in the order of the rows of their table.
using Hodnoty3 = std::array<int, 3>;

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
[[nodiscard]] int VylosujPriklad();

}  // namespace rysovna
