#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Bitmapa.h"

namespace rysovna {

/// Where the font files stand (with backslashes). Before it is set, and where the files are
/// missing, no text can be printed: a run-time fault that names the file.
void NastavSlozkuPisem(std::string_view slozka);
/// Whether the fonts can be opened.
[[nodiscard]] bool MamePisma();

/// How glyphs are made.
enum class Hladkost {
    Logicka,  ///< black or nothing, hinted to the pixel grid: the logical bitmap
    Seda      ///< antialiased: twins, labels, text boxes
};

/// Prints a row of UTF-8 text. x, y: top left corner of the row, pixels of the target; s: how many
/// of them a design pixel takes. Glyphs advance by their unrounded widths times s, so that a text
/// takes the same place at every size.
void KresliText(const Vyhled& cil, const Obdelnik& orez, double x, double y, double s,
                const Pismo& pismo, std::string_view text, Pixel barva, Hladkost hladkost);

/// How far the ground of a label reaches around it, design pixels.
constexpr double SVATOZAR = 1.4;
/// Fills what lies within so many pixels of the glyphs that KresliText would print: the ground on
/// which a label can be read over lines. Hard edges, so that doing it again changes nothing.
void KresliSvatozar(const Vyhled& cil, double x, double y, double s, const Pismo& pismo,
                    std::string_view text, Pixel barva, int polomer);

/// How many font files there are; a number below it names one: the sum of 1 for italic and 2 for
/// bold, and behind these the one that fills in for them.
constexpr unsigned POCET_REZU = 5;
[[nodiscard]] std::string_view SouborRezu(unsigned rez);
/// A glyph by its number in the font file, and where it begins.
struct GlyfNaMiste {
    std::uint32_t Cislo = 0;
    double X = 0;
};
/// Prints glyphs that were set beforehand, antialiased, in no way hinted. velikost: the type size,
/// and y: the base line, pixels of the target like the places of the glyphs. What the target's
/// pixels cover of themselves (the highest byte) grows by what the glyphs cover.
void KresliGlyfy(const Vyhled& cil, const Obdelnik& orez, int rez, double velikost,
                 std::span<const GlyfNaMiste> glyfy, double y, Pixel barva);
/// Unrounded advance of such a glyph, parts of the type size.
[[nodiscard]] double PosuvGlyfu(int rez, std::uint32_t cislo);

/// A character of a row of text: in which font file it is, where it begins, how large it is and how
/// far below the row's base line; design pixels.
struct ZnakRadku {
    char32_t Znak = 0;
    unsigned Rez = 0;
    double X = 0, Velikost = 0, Pokles = 0;
};
/// A row of text, character by character, as KresliText prints it.
[[nodiscard]] std::vector<ZnakRadku> Rozsad(const Pismo& pismo, std::string_view text);
/// From the top of a row to its base line, design pixels.
[[nodiscard]] double Ucari(const Pismo& pismo);
/// What a font file holds; one that cannot be read is a run-time fault.
[[nodiscard]] const std::string& ObsahRezu(unsigned rez);

/// Unrounded width, design pixels.
[[nodiscard]] double PresnaSirka(const Pismo& pismo, std::string_view text);
/// Where each character begins and, last, where the text ends, design pixels: one value more than
/// there are characters.
[[nodiscard]] std::vector<double> Zacatky(const Pismo& pismo, std::string_view text);
/// Width of the text in whole design pixels, as it is laid out on the logical bitmap.
[[nodiscard]] int SirkaTextu(const Pismo& pismo, std::string_view text);
/// Height of one row of text, design pixels.
[[nodiscard]] int VyskaRadku(const Pismo& pismo);

}  // namespace rysovna
