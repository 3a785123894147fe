// The palette, held against the eyes that will see it.
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "platform/Paleta.h"

using namespace rysovna;
using namespace rysovna::paleta;

namespace {

using Matice = std::array<std::array<double, 3>, 3>;

/// What an eye sees of linear sRGB: all of it; or, by the model of Viénot, Brettel and Mollon
/// (1999), what is left of it without the cones for long waves and without those for middle ones.
constexpr struct {
    const char* Kdo;
    Matice Videni;
} OCI[] = {
    {"all colours", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
    {"protanope", {{{.11238, .88762, 0}, {.11238, .88762, 0}, {.00401, -.00401, 1}}}},
    {"deuteranope", {{{.29275, .70725, 0}, {.29275, .70725, 0}, {-.02234, .02234, 1}}}},
};

/// Relative luminance, 0 to 1, as WCAG 2 has it.
double Jas(Barva barva, const Matice& videni) {
    std::array<double, 3> linearni{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double k = ((barva >> (8 * i)) & 0xFF) / 255.0;
        linearni[i] = k <= 0.04045 ? k / 12.92 : std::pow((k + 0.055) / 1.055, 2.4);
    }
    constexpr std::array<double, 3> VAHY = {0.2126, 0.7152, 0.0722};
    double jas = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        double kanal = 0;
        for (std::size_t j = 0; j < 3; ++j) kanal += videni[i][j] * linearni[j];
        jas += VAHY[i] * std::clamp(kanal, 0.0, 1.0);
    }
    return jas;
}

double Kontrast(Barva a, Barva b, const Matice& videni) {
    const auto [tmavsi, svetlejsi] = std::minmax({Jas(a, videni), Jas(b, videni)});
    return (svetlejsi + 0.05) / (tmavsi + 0.05);
}

constexpr double TEXT = 4.5, ZNACKA = 3;

/// Colours that meet on a screen: one, all that stand on it or that it stands on, and how far apart
/// they must be for what they mean there. What is far enough for a text is so for a line.
const struct {
    const char* Co;
    Barva Jedna;
    std::vector<Barva> Ostatni;
    double Nejmene;
} SKUPINY[] = {
    {"sheet: headings, text, hand of the dial", PAPIR, {ACCENT, INKOUST, INKOUST2}, TEXT},
    {"card: headings, less weighty text", KARTA, {ACCENT, INKOUST2}, TEXT},
    {"dark: bar, foot of help, frame, signs", INKOUST, {SVETLA_NA_TMAVE, KARTA, STIN}, TEXT},
    {"task of the menu", MENU_0, {MENU_TEXT_0}, TEXT},
    {"task of the menu, lit", MENU_1, {MENU_TEXT_1}, TEXT},
    {"top button", HORNI_0, {HORNI_TEXT_0}, TEXT},
    {"top button, lit", HORNI_1, {HORNI_TEXT_1}, TEXT},
    {"top button, dead", HORNI_2, {HORNI_TEXT_2}, TEXT},
    {"tool, dead", KROK_0, {KROK_TEXT_0}, TEXT},
    {"tool", KROK_1, {KROK_TEXT_1}, TEXT},
    {"digit", CIFRA_0, {CIFRA_TEXT_0}, TEXT},
    {"digit, lit", CIFRA_1, {CIFRA_TEXT_1}, TEXT},
    {"arrow of the plane", SIPKA_0, {SIPKA_TEXT_0}, TEXT},
    {"arrow of the plane, lit", SIPKA_1, {SIPKA_TEXT_1}, TEXT},
    {"read-out, wrong steps, own row", CERNA, {ODECET, CHYBY, VLASTNI}, TEXT},
    {"white: to go on, ring of keys, taken line", rysovna::BILA, {ACCENT, ZASEDLA}, TEXT},
    {"white: marked text, sign of a fault", rysovna::BILA, {VYBER, ZPRAVA_STOP}, TEXT},
    {"message, its button", ZPRAVA_INKOUST, {ZPRAVA_PAPIR, ZPRAVA_TLACITKO}, TEXT},

    {"lines of tables, frames of cards", LINKA, {KARTA, PAPIR}, ZNACKA},
    {"edge of a dead tool", KROK_OKRAJ_0, {KROK_0}, ZNACKA},
    {"edge of a tool on the card", KROK_OKRAJ_1, {KARTA}, ZNACKA},
    {"edge of a lit task", MENU_OKRAJ_1, {PAPIR}, ZNACKA},
    {"frame of a box for text, ring, pad", rysovna::BILA, {OBRYS, INKOUST}, ZNACKA},
    {"edge of a message's button", ZPRAVA_LINKA, {ZPRAVA_PAPIR}, ZNACKA},
    {"pictures: lit task", MENU_1, {DANE, INKOUST2, VYSLEDEK}, ZNACKA},
    {"pictures: helping lines", TMAVA_POD, {rysovna::BILA, KARTA}, ZNACKA},
    {"pictures: result", VYSLEDEK, {rysovna::BILA, KARTA, DANE}, ZNACKA},
};

}  // namespace

TEST(Kontrast, VsechnyOciRozeznajiBarvyPalety) {
    for (const auto& [kdo, videni] : OCI) {
        for (const auto& [co, jedna, ostatni, nejmene] : SKUPINY) {
            for (const Barva jina : ostatni) {
                EXPECT_GE(Kontrast(jedna, jina, videni), nejmene)
                    << co << ", " << std::hex << jina << ", " << kdo;
            }
        }
    }
}
