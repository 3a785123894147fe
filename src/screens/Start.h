#pragma once

#include "screens/Sezeni.h"

namespace rysovna {

/// The first step of the start-up: paths from Rysovna.ini, a look whether all files of game data
/// and of results are there (missing results are made, empty, where they have a folder of their
/// own), the grade table, the seed of the generator, results that wait. False when something is
/// missing: it was told in a message box, which file is meant on the error output, and the process
/// must end; nothing else was touched. The font folder is set as soon as the asset root is known,
/// so that the message can be printed.
[[nodiscard]] bool NactiKonfiguraci(Sezeni& s);

/// Remembers the screen mode, switches to 640 by 480 by 16 bits and shows the black background. A
/// screen that cannot be switched gets a warning, and the program goes on in a window.
void PrepniObrazovku(Sezeni& s);
/// Switches back to the mode that PrepniObrazovku remembered; warns if that fails.
void ObnovObrazovku(Sezeni& s);

}  // namespace rysovna
