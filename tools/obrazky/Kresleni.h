#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/bmp/Bmp.h"

namespace rysovna::obrazky {

/// How many times larger the twin is.
constexpr int ZVETSENI = 3;

/// Colour of see-through parts, 0xFFRRGGBB.
constexpr std::uint32_t KLICOVA_BARVA = 0xFFFF00FF;

/// Writes a font configuration that knows the given folder and nothing else, and makes this process
/// use it. Call before the first rendering.
void NastavPisma(const std::filesystem::path& fonty, const std::filesystem::path& pracovni);

/// Renders what stands inside the root element of a drawing of the given size, px, enlarged.
/// A drawing that cannot be parsed is a fault; kde names it.
ObrazBmp Vykresli(const std::string& svg, int sirka, int vyska, int zvetseni,
                  const std::string& kde);

/// A fault when a pixel is a mixture with the key colour, which would show as a fringe.
void OverKlic(const ObrazBmp& rastr, const std::string& kde);

/// The whole file anew; one that cannot be written is a fault.
void Uloz(const std::string& data, const std::filesystem::path& soubor);

/// PNG file, 8 bits a channel, packed so that it is read fast.
void UlozPng(const ObrazBmp& rastr, const std::filesystem::path& soubor);

}  // namespace rysovna::obrazky
