#pragma once

#include <string>

namespace rysovna::dokumentace {

/// Plays the first example of task 1 up to its first drag and writes a PNG of the board as it is
/// then, each control named beside it; what is not shown then is framed by dashes where it stands.
void NakresliOvladace(const std::string& soubor);

}  // namespace rysovna::dokumentace
