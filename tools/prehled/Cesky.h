#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace rysovna::prehled {

/// A number and the form of the word that it wants, of those for one, two to four, and more:
/// "1 pokus", "3 pokusy", "12 pokusů".
[[nodiscard]] inline std::string Pocet(std::size_t n,
                                       const std::array<std::string_view, 3>& tvary) {
    const std::size_t tvar = n == 1 ? 0 : n >= 2 && n <= 4 ? 1 : 2;
    return std::to_string(n) + " " + std::string(tvary[tvar]);
}

constexpr std::array<std::string_view, 3> POKUSU{"pokus", "pokusy", "pokusů"},
    SOUBORU{"soubor", "soubory", "souborů"}, SERII{"série", "série", "sérií"};

}  // namespace rysovna::prehled
