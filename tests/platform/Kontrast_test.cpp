// The palette, held against the eyes that will see it.
#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>

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

/// Colours that meet on a screen, and how far apart they must be for what they mean there.
constexpr struct {
    const char* Co;
    Barva Popredi, Pozadi;
    double Nejmene;
} DVOJICE[] = {
    {"headings of help on the sheet", ACCENT, PAPIR, TEXT},
    {"headings of help on a card", ACCENT, KARTA, TEXT},
    {"text on the sheet", INKOUST, PAPIR, TEXT},
    {"text on the foot of help", INKOUST, STIN, TEXT},
    {"less weighty text on the sheet", INKOUST2, PAPIR, TEXT},
    {"less weighty text on a card", INKOUST2, KARTA, TEXT},
    {"headings in the dark bar", SVETLA_NA_TMAVE, INKOUST, TEXT},
    {"titles in the dark bar", KARTA, INKOUST, TEXT},
    {"task of the menu", MENU_TEXT_0, MENU_0, TEXT},
    {"task of the menu, lit", MENU_TEXT_1, MENU_1, TEXT},
    {"top button", HORNI_TEXT_0, HORNI_0, TEXT},
    {"top button, lit", HORNI_TEXT_1, HORNI_1, TEXT},
    {"top button, dead", HORNI_TEXT_2, HORNI_2, TEXT},
    {"tool, dead", KROK_TEXT_0, KROK_0, TEXT},
    {"tool", KROK_TEXT_1, KROK_1, TEXT},
    {"digit", CIFRA_TEXT_0, CIFRA_0, TEXT},
    {"digit, lit", CIFRA_TEXT_1, CIFRA_1, TEXT},
    {"arrow of the plane", SIPKA_TEXT_0, SIPKA_0, TEXT},
    {"arrow of the plane, lit", SIPKA_TEXT_1, SIPKA_1, TEXT},
    {"button to go on", rysovna::BILA, ACCENT, TEXT},
    {"list line that cannot be picked", ZASEDLA, rysovna::BILA, TEXT},
    {"read-out", CERNA, ODECET, TEXT},
    {"wrong steps", CERNA, CHYBY, TEXT},
    {"the pupil's own row", CERNA, VLASTNI, TEXT},
    {"marked text", rysovna::BILA, VYBER, TEXT},
    {"message", ZPRAVA_INKOUST, ZPRAVA_PAPIR, TEXT},
    {"button of a message", ZPRAVA_INKOUST, ZPRAVA_TLACITKO, TEXT},
    {"title of a message, button lit", rysovna::BILA, VYBER, TEXT},
    {"sign of a fault", rysovna::BILA, ZPRAVA_STOP, TEXT},

    {"lines of tables, frames of cards", LINKA, KARTA, ZNACKA},
    {"frames of cards on the sheet", LINKA, PAPIR, ZNACKA},
    {"frame of the plane", INKOUST, STIN, ZNACKA},
    {"edge of a dead tool", KROK_OKRAJ_0, KROK_0, ZNACKA},
    {"edge of a tool on the card", KROK_OKRAJ_1, KARTA, ZNACKA},
    {"edge of a lit task", MENU_OKRAJ_1, PAPIR, ZNACKA},
    {"frame of a box for text", OBRYS, rysovna::BILA, ZNACKA},
    {"frame of the box that is typed into", VYBER, rysovna::BILA, ZNACKA},
    {"edge of a message's button", ZPRAVA_LINKA, ZPRAVA_PAPIR, ZNACKA},
    {"ring of the keys", ACCENT, rysovna::BILA, ZNACKA},
    {"ring around a point, frame of a tool, pad", INKOUST, rysovna::BILA, ZNACKA},
    {"hand of the dial", ACCENT, PAPIR, ZNACKA},
    {"signs of the check", INKOUST, KARTA, ZNACKA},
    {"pictures: given on a lit task", DANE, MENU_1, ZNACKA},
    {"pictures: helping lines in help", TMAVA_POD, rysovna::BILA, ZNACKA},
    {"pictures: helping lines in headings", TMAVA_POD, KARTA, ZNACKA},
    {"pictures: helping lines on a lit task", INKOUST2, MENU_1, ZNACKA},
    {"pictures: result in help", VYSLEDEK, rysovna::BILA, ZNACKA},
    {"pictures: result in headings", VYSLEDEK, KARTA, ZNACKA},
    {"pictures: result on a lit task", VYSLEDEK, MENU_1, ZNACKA},
    {"pictures: given against result", DANE, VYSLEDEK, ZNACKA},
};

}  // namespace

TEST(Kontrast, VsechnyOciRozeznajiBarvyPalety) {
    for (const auto& [kdo, videni] : OCI) {
        for (const auto& [co, popredi, pozadi, nejmene] : DVOJICE)
            EXPECT_GE(Kontrast(popredi, pozadi, videni), nejmene) << co << ", " << kdo;
    }
}
