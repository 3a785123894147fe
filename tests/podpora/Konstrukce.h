#pragma once

#include <random>
#include <string>

#include "base/Plane.h"
#include "engine/Kresleni.h"
#include "engine/Tabulky.h"

namespace rysovna::testy {

constexpr int SIRKA_PLOCHY = 384;
constexpr int VYSKA_PLOCHY = 335;

/// The tables as at the start of the program.
inline void SmazKonstrukci() {
    Utvary.Smaz();
    Trojice_tab.Smaz();
    PocetUtvaru = PocetTrojic = 0;
}

/// Opens the next row with the names of its points.
inline int NovyUtvar(std::string_view jmeno1, std::string_view jmeno2) {
    const int i = ++PocetUtvaru;
    SmazRadekUtvaru(i);
    SmazRadekTrojic(PocetTrojic + 1);
    Utvary[i].Jmeno1 = jmeno1;
    Utvary[i].Jmeno2 = jmeno2;
    return i;
}

/// A finished triangle by two circles: six objects.
inline void NakresliTrojuhelnik(Plane& plane) {
    KresliUsecku(plane, USECKA, NovyUtvar("A", "B"), 120, 250, 240, 250, 15, "A", "B", ANO, ANO,
                 ANO);
    KresliKruznici(plane, KRUZNICE, NovyUtvar("A", ""), 120, 250, 224, ANO);
    KresliKruznici(plane, KRUZNICE, NovyUtvar("B", ""), 240, 250, 144, ANO);
    KresliBod(plane, BOD, "C", NovyUtvar("C", ""), 187, 170, "C", "", ANO);
    KresliUsecku(plane, USECKA, NovyUtvar("A", "C"), 120, 250, 187, 170, 13, "", "", NE, ANO, ANO);
    KresliUsecku(plane, USECKA, NovyUtvar("B", "C"), 240, 250, 187, 170, 12, "", "", NE, ANO, ANO);
}

/// So many objects of all seven kinds at random, the same for the same seed.
inline void NakresliNahodne(Plane& plane, int kolik, unsigned seminko) {
    std::mt19937 stroj(seminko);
    const auto x = [&] { return static_cast<int>(stroj() % SIRKA_PLOCHY); };
    const auto y = [&] { return static_cast<int>(stroj() % VYSKA_PLOCHY); };
    for (int k = 0; k < kolik; ++k) {
        const std::string a(1, static_cast<char>('A' + stroj() % 6));
        const std::string b(1, static_cast<char>('A' + stroj() % 6));
        const int i = NovyUtvar(a, b);
        const int x1 = x(), y1 = y(), x2 = x(), y2 = y();
        switch (k % 7) {
            case 0:
                KresliBod(plane, BOD, a, i, x1, y1, a, a + b, ANO);
                break;
            case 1:
                KresliUsecku(plane, USECKA, i, x1, y1, x2, y2, 1, a, b, ANO, ANO, ANO);
                break;
            case 2:
                KresliPoloprimku(plane, POLOPRIMKA, i, x1, y1, x2, y2, b, ANO);
                break;
            case 3:
                KresliPrimku(plane, PRIMKA, i, x1, y1, x2, y2, 1, ANO);
                break;
            case 4:
                KresliKruznici(plane, KRUZNICE, i, x1, y1, x2, ANO);
                break;
            case 5:
                KresliKolmici(plane, KOLMICE, i, x1, y1, x2, y2, ANO);
                break;
            default:
                KresliPrimku(plane, ROVNOBEZKA, i, x1, y1, x2, y2, 0, ANO);
                break;
        }
    }
}

}  // namespace rysovna::testy
