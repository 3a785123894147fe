#pragma once

#include <string>
#include <string_view>

#include "base/DatumACas.h"
#include "screens/Sezeni.h"

namespace rysovna {

// What all screens do.

/// Pixels to a design pixel, by the twips per pixel: 1 at the 15 that every host gives.
[[nodiscard]] double Meritko(const Sezeni& s);

/// Scales the objects of a screen to the twips per pixel and gives font size 10 to every object
/// that has a font, whatever was designed. Called once, by the load handler.
void PrizpusobForm(const Sezeni& s, Form& form);

/// "14. 9. 2026 8.20"; predCasem parts the two.
[[nodiscard]] std::string DatumACasCesky(const DatumACas& d, std::string_view predCasem = " ");

/// What the list of wrong steps begins with, on the screen and on paper.
constexpr std::string_view CHYBNE_KROKY = "Během konstrukce byly provedeny tyto chybné kroky:";

/// Adds a paragraph to a message, where there is anything to add.
void PridejOdstavec(std::string& zprava, const std::string& odstavec);

}  // namespace rysovna
