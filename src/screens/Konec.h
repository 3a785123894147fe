#pragma once

#include "screens/Sezeni.h"

namespace rysovna {

/// Asks the question of the menu's exit button and, on Yes, restores the screen mode and ends the
/// program. The menu also asks it when the window is closed from outside, whatever screen is in
/// front. True if the program ends. While another message box stands, nothing is asked.
bool ZeptejSeNaKonec(Sezeni& s);

/// Whether a handler must stop after a wait: its form was unloaded meanwhile, or the program ends.
[[nodiscard]] bool Skoncil(const Sezeni& s, const Form& form);

}  // namespace rysovna
