#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "hrac/RukaNaDesce.h"

namespace rysovna::hrac {

/// From the menu: a series of a task without a fault, up to its score table. Throws if an example
/// lost a point. ruka: at the board.
void OdehrajSerii(Relace& hra, RukaNaDesce ruka, int uloha, std::string_view jmeno, int prikladu,
                  std::uint32_t seminko);
/// The same by a hand that double-clicks now and then.
void OdehrajSerii(Relace& hra, int uloha, std::string_view jmeno, int prikladu,
                  std::uint32_t seminko);

/// Copies the attempt that the game kept of the only series of this run to a new file. Throws what
/// copying throws, also where the file is there already.
void ZkopirujPokus(const Relace& hra, const std::filesystem::path& kam);

}  // namespace rysovna::hrac
