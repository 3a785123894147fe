#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/bmp/Bmp.h"

namespace rysovna::obrazky {

/// Writes a font configuration that knows the given folder and nothing else, and makes this process
/// use it. Call before the first rendering.
void NastavPisma(const std::filesystem::path& fonty, const std::filesystem::path& pracovni);

/// Renders what stands inside the root element of a drawing of the given size, px, enlarged.
/// A drawing that cannot be parsed is a fault; kde names it.
ObrazBmp Vykresli(const std::string& svg, int sirka, int vyska, int zvetseni,
                  const std::string& kde);

/// How far a recording is turned, radians, its lower left corner being in the left column then:
/// Cairo's script cannot tell a fill of upright and level edges that is no set of boxes, a letter L
/// as an example. Turned, there is none.
constexpr double NATOCENI_NAHRAVKY = 0.3;
/// What is drawn, instead of pixels: the commands as a script of Cairo's, places turned and
/// enlarged.
std::string Nahraj(const std::string& svg, int sirka, int vyska, int zvetseni,
                   const std::string& kde);

}  // namespace rysovna::obrazky
