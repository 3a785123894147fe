#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// A given quantity as the data name it.
struct Zadana {
    std::string_view Nazev, Jednotka;
};

/// Whether two names mean the same quantity: data spell delta also "delt".
[[nodiscard]] bool StejnaVelicina(std::string_view a, std::string_view b);

/// Whether a quantity of this name is an angle.
[[nodiscard]] bool JeUhel(std::string_view nazev);

/// An angle as it is written, "α", and by the letter of the typeface "Symbol" that shows it, "a".
/// Another name is written as it is.
[[nodiscard]] std::string PismenoUhlu(std::string_view nazev);
[[nodiscard]] std::string SymbolUhlu(std::string_view nazev);

/// What stands behind the name of a given quantity: "= ", the number with a blank in place of its
/// sign, the unit, and ", " unless it is the last.
[[nodiscard]] std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni);

}  // namespace rysovna
