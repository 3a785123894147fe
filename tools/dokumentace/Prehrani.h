#pragma once

#include <string>

namespace rysovna::dokumentace {

/// Plays an example with a wrong step, watches it up to there as a teacher does, and writes what is
/// seen as a PNG.
void VyfotPrehrani(const std::string& soubor);

}  // namespace rysovna::dokumentace
