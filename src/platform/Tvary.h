#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "platform/Bitmapa.h"

namespace rysovna {

// A picture by its shapes: what the build recorded of its drawing, so that it can be drawn at any
// scale. A file has a head of VELIKOST_HLAVY_TVARU bytes (ZNACKA_TVARU; at 4 the version, at 5 bit
// 0: it has see-through parts; at 6 and 8 width and height, two bytes each; at 10 the print of the
// 1:1 bitmap that was made with it and at 14 the length of the list, four bytes each; lowest byte
// first) and then the list, deflated.
//
// The list is a row of commands, the lowest picture first, ended by PrikazTvaru::Konec. Numbers are
// written seven bits a byte, the lowest first, the highest bit saying that more follow; where a
// number may be negative, its sign is the lowest bit. Lengths and places are 64ths of a design
// pixel. A colour is three bytes, red first.

/// What the file beside the bitmap, of the same stem, ends with.
constexpr std::string_view PRIPONA_TVARU = ".tvary";
constexpr std::string_view ZNACKA_TVARU = "RTVR";
constexpr std::uint8_t VERZE_TVARU = 1;
constexpr std::size_t VELIKOST_HLAVY_TVARU = 18;
constexpr int DILKU_TVARU = 64;

/// The commands, and what follows each.
enum class PrikazTvaru : std::uint8_t {
    Konec,
    Obdelnik,  ///< colour, place x, y, width, height: filled
    Vypln,     ///< colour, 1 if by the even-odd rule, path
    Tah,       ///< colour, pen's width, cap, join, limit of mitres, count of dashes, dashes, path
    Text,  ///< colour, font, size, place of the first glyph x, y, count, numbers of glyphs, then
           ///< for each but the first how much farther it is than the one before it is wide
    Orez,  ///< place x, y, width, height: what comes is cut off there
    BezOrezu,
};
/// The steps of a path; each point counts from the one before, a path begins at 0, 0.
enum class KrokTvaru : std::uint8_t { Konec, Bod, Usecka, Krivka, Zavri, Vodorovne, Svisle };

/// The list of a picture, read and checked.
struct Tvary {
    int Sirka = 0, Vyska = 0;  ///< design pixels
    bool MaKlic = false;       ///< has see-through parts
    std::uint32_t Otisk = 0;   ///< of the bitmap that belongs to it
    std::string Prikazy;
};

/// Reads such a file; null where there is none. A damaged one is a run-time fault that names it.
[[nodiscard]] std::unique_ptr<Tvary> NactiTvary(const std::filesystem::path& soubor);
/// The same from its bytes. kde: named in the fault.
[[nodiscard]] Tvary CtiTvary(std::string_view data, const std::string& kde);

/// Draws the whole picture into the rectangle kam, and touches nothing outside orez. The target's
/// pixels are 0xFFRRGGBB then; only for a picture with see-through parts they are those of a
/// display bitmap (see Pixel), whatever they were before.
void KresliTvary(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Tvary& tvary);

}  // namespace rysovna
