#pragma once

#include "screens/Sezeni.h"

namespace rysovna {

/// Pixels to a design pixel, by the twips per pixel: 1 at the 15 that every host gives.
[[nodiscard]] double Meritko(const Sezeni& s);

/// Scales the objects of a screen to the twips per pixel and gives font size 10 to every object
/// that has a font, whatever was designed. Called once, by the load handler.
void PrizpusobForm(const Sezeni& s, Form& form);

}  // namespace rysovna
