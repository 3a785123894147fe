#include "engine/Tabulky.h"

#include <cmath>

#include "base/Cisla.h"

namespace rysovna {

void Tabulky::SmazRadekUtvaru(Radek i) {
    Utvar& radek = Utvary[i];
    radek = Utvar{};
    radek.Popis4 = TextCisla(0);
}

void Tabulky::SmazRadekTrojic(Radek i) {
    Trojice_tab[i] = Trojice{};
}

bool RovneUhly(double a, double b) {
    // Texts of five decimals cannot agree over more than one unit of the fifth; saying so first
    // spares nearly all of the printing.
    constexpr double JISTE_RUZNE = 2e-5;
    if (std::abs(a - b) > JISTE_RUZNE) return false;
    return FormatPetMist(a) == FormatPetMist(b);
}

}  // namespace rysovna
