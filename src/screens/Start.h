#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "screens/Sezeni.h"

namespace rysovna {

/// Makes the first screen, the menu, and begins the start-up, which is a work of the menu's.
void Zacni(Sezeni& s);

/// The first step of the start-up: paths from Rysovna.ini, a look whether all files of game data
/// and of results are there (missing results are made, empty, where they have a folder of their
/// own), the grade table, the seed of the generator. What is to be told when something is missing:
/// the process must end then, which file is meant is on the error output, and nothing else was
/// touched; empty if all is there. The font folder is set as soon as the asset root is known, so
/// that the message can be printed.
[[nodiscard]] std::string NactiKonfiguraci(Sezeni& s);

/// In place of the game an attempt from a file is watched; the process is to end with it. Nothing
/// is written anywhere. Gives what is to be told where it cannot be watched; the process must end
/// then.
[[nodiscard]] std::string ZacniPrehravani(Sezeni& s, const std::filesystem::path& soubor);
/// The same of a task constructed without a fault, as a teacher would show it: one of the examples
/// that the program brings, by the seed.
[[nodiscard]] std::string ZacniPredvedeni(Sezeni& s, int uloha, std::uint32_t seminko);

/// Remembers the screen mode and switches to 640 by 480 by 16 bits. A screen that cannot be
/// switched gets a warning, and the program goes on in a window.
Cinnost<Odpoved> PrepniObrazovku(Sezeni& s);
/// Switches back to the mode that PrepniObrazovku remembered; warns if that fails.
Cinnost<Odpoved> ObnovObrazovku(Sezeni& s);

}  // namespace rysovna
