#pragma once

#include <functional>

#include "screens/Sezeni.h"

namespace rysovna {

/// Rolls the continue button in: the 23 cells of the menu's strip, 20 ms each, in a picture box of
/// a form. The caller sets the flag that says the button is up before it calls. Stops touching the
/// box when the form is unloaded, when the program ends, or when dal (asked after each cell) says
/// no: a handler that ran during the waits may have taken the button back.
void Roluj(Sezeni& s, const Form& form, PictureBox& kam, const std::function<bool()>& dal = {});

}  // namespace rysovna
