#pragma once

#include <random>
#include <string>

#include "base/Plane.h"
#include "engine/Kresleni.h"
#include "engine/Tabulky.h"

namespace rysovna::testy {

constexpr int SIRKA_PLOCHY = 384;
constexpr int VYSKA_PLOCHY = 335;

/// Opens the next row with the names of its points.
inline int NovyUtvar(Tabulky& t, std::string_view jmeno1, std::string_view jmeno2) {
    const int i = ++t.PocetUtvaru;
    t.SmazRadekUtvaru(i);
    t.SmazRadekTrojic(t.PocetTrojic + 1);
    t.Utvary[i].Jmeno1 = jmeno1;
    t.Utvary[i].Jmeno2 = jmeno2;
    return i;
}

/// A finished triangle by two circles: six objects.
inline void NakresliTrojuhelnik(Tabulky& t, Plane& plane) {
    KresliUsecku(t, plane, NovyUtvar(t, "A", "B"),
                 {.Druh = USECKA,
                  .P1 = {120, 250},
                  .P2 = {240, 250},
                  .Popis1 = "A",
                  .Popis2 = "B",
                  .Delka = 15,
                  .Znacky = ANO},
                 ANO);
    KresliKruznici(t, plane, NovyUtvar(t, "A", ""),
                   {.Druh = KRUZNICE, .P1 = {120, 250}, .P2 = {224, 250}}, ANO);
    KresliKruznici(t, plane, NovyUtvar(t, "B", ""),
                   {.Druh = KRUZNICE, .P1 = {240, 250}, .P2 = {144, 250}}, ANO);
    KresliBod(t, plane, NovyUtvar(t, "C", ""), {.Druh = BOD, .P1 = {187, 170}, .Popis1 = "C"}, ANO);
    KresliUsecku(t, plane, NovyUtvar(t, "A", "C"),
                 {.Druh = USECKA, .P1 = {120, 250}, .P2 = {187, 170}, .Delka = 13}, ANO);
    KresliUsecku(t, plane, NovyUtvar(t, "B", "C"),
                 {.Druh = USECKA, .P1 = {240, 250}, .P2 = {187, 170}, .Delka = 12}, ANO);
}

/// So many objects of all seven kinds at random, the same for the same seed.
inline void NakresliNahodne(Tabulky& t, Plane& plane, int kolik, unsigned seminko) {
    std::mt19937 stroj(seminko);
    const auto x = [&] { return static_cast<int>(stroj() % SIRKA_PLOCHY); };
    const auto y = [&] { return static_cast<int>(stroj() % VYSKA_PLOCHY); };
    for (int k = 0; k < kolik; ++k) {
        const std::string a(1, static_cast<char>('A' + stroj() % 6));
        const std::string b(1, static_cast<char>('A' + stroj() % 6));
        const int i = NovyUtvar(t, a, b);
        const int x1 = x(), y1 = y(), x2 = x(), y2 = y();
        switch (k % 7) {
            case 0:
                KresliBod(t, plane, i,
                          {.Druh = BOD, .P1 = {x1, y1}, .Popis1 = a, .NaPrimce = a + b}, ANO);
                break;
            case 1:
                KresliUsecku(t, plane, i,
                             {.Druh = USECKA,
                              .P1 = {x1, y1},
                              .P2 = {x2, y2},
                              .Popis1 = a,
                              .Popis2 = b,
                              .Delka = 1,
                              .Znacky = ANO},
                             ANO);
                break;
            case 2:
                KresliPoloprimku(t, plane, i,
                                 {.Druh = POLOPRIMKA, .P1 = {x1, y1}, .P2 = {x2, y2}, .Popis2 = b},
                                 ANO);
                break;
            case 3:
                KresliPrimku(t, plane, i,
                             {.Druh = PRIMKA, .P1 = {x1, y1}, .P2 = {x2, y2}, .Delka = 1}, ANO);
                break;
            case 4:
                KresliKruznici(t, plane, i, {.Druh = KRUZNICE, .P1 = {x1, y1}, .P2 = {x2, y1}},
                               ANO);
                break;
            case 5:
                KresliKolmici(t, plane, i, {.Druh = KOLMICE, .P1 = {x1, y1}, .P2 = {x2, y2}}, ANO);
                break;
            default:
                KresliPrimku(t, plane, i, {.Druh = ROVNOBEZKA, .P1 = {x1, y1}, .P2 = {x2, y2}},
                             ANO);
                break;
        }
    }
}

}  // namespace rysovna::testy
