#pragma once

#include <string>
#include <string_view>

namespace rysovna {

/// What stands before the names of a base in the list of perpendiculars and in that of parallels.
struct UvodZakladny {
    std::string_view Kolmice, Rovnobezka;
};
inline constexpr UvodZakladny UVOD_USECKY{"k úsečce ", "s úsečkou "};
inline constexpr UvodZakladny UVOD_POLOPRIMKY{"k polopřímce ", "s polopřímkou "};
inline constexpr UvodZakladny UVOD_PRIMKY{"k přímce ", "s přímkou "};

/// How the object in hand is called that stands upright on another, "přímka b, b ⊥ AB", or runs
/// beside it, "přímka p, p||AB".
[[nodiscard]] std::string NazevKolmice(std::string_view jmeno, std::string_view zaklad);
[[nodiscard]] std::string NazevRovnobezky(std::string_view jmeno, std::string_view zaklad);

}  // namespace rysovna
