#pragma once

#include <string>
#include <vector>

#include "rules/Pokus.h"

namespace rysovna::prehled {

/// Figures of an attempt that was played again, each the contents of an <svg>.
struct Obrazce {
    std::vector<std::string> Priklady{};            ///< of each example at its end
    std::vector<std::vector<std::string>> Chyby{};  ///< by example, in the order of its charges
    std::string Rozchod{};                          ///< where it came apart, in Czech; mostly empty
};

/// Plays an attempt again and draws it. Figures past the place where it came apart are empty or
/// missing. May be called by several threads at once.
[[nodiscard]] Obrazce NakresliPokus(const Pokus& pokus);

}  // namespace rysovna::prehled
