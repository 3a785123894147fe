#pragma once

#include <cstdint>
#include <memory>

#include "platform/Obrazek.h"

namespace rysovna {

class Form;
class Ukladani;

// What all screens share besides the session's own variables.

/// The screen in front. Keeps no screen alive: one that was unloaded is gone from here too.
inline std::weak_ptr<Form> AktivniForm;

inline Obrazek PokracujObrazek;  ///< the continue button at rest

/// What stores the results of this session; ask Vysledky().
inline std::shared_ptr<Ukladani> UkladaniVysledku;
/// The same, made when it is first wanted.
[[nodiscard]] Ukladani& Vysledky();

/// Waits ms milliseconds. Events are let through: a click during the wait is handled during it, so
/// the caller's form may be unloaded when this returns. Ends early when the process is to end.
void Cekej(std::uint32_t ms);

/// Pixels to a design pixel, by the twips per pixel: 1 at the 15 that every host gives.
[[nodiscard]] double Meritko();

/// Scales the objects of a screen to the twips per pixel and gives font size 10 to every object
/// that has a font, whatever was designed. Called once, by the load handler.
void PrizpusobForm(Form& form);

}  // namespace rysovna
