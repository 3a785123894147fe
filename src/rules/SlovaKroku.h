#pragma once

#include <string>
#include <string_view>

namespace rysovna {

// Words of steps beside the kinds of object (engine/Tabulky.h): in the record of the step in hand,
// in how an object came about, in the entries of the data.
inline constexpr const char* TROJUHELNIK = "trojuhelnik";
inline constexpr const char* OSA = "osa";
inline constexpr const char* STRED = "stred";
inline constexpr const char* PRUSECIK = "prusecik";
inline constexpr const char* STRED_SOUMERNOSTI = "stredsoumernosti";
inline constexpr const char* OBRAZ_BODU = "obrazbodu";

/// How the object in hand is called that stands upright on another, "přímka b, b ⊥ AB", or runs
/// beside it, "přímka p, p||AB".
[[nodiscard]] std::string NazevKolmice(std::string_view jmeno, std::string_view zaklad);
[[nodiscard]] std::string NazevRovnobezky(std::string_view jmeno, std::string_view zaklad);

}  // namespace rysovna
