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
    const Bod A{120, 250}, B{240, 250}, C{187, 170};
    KresliUsecku(t, plane, NovyUtvar(t, "A", "B"), {USECKA, A, B, "A", "B", 15, "", ANO}, ANO);
    KresliKruznici(t, plane, NovyUtvar(t, "A", ""), {KRUZNICE, A, {224, 250}}, ANO);
    KresliKruznici(t, plane, NovyUtvar(t, "B", ""), {KRUZNICE, B, {144, 250}}, ANO);
    KresliBod(t, plane, NovyUtvar(t, "C", ""), {BOD, C, {}, "C"}, ANO);
    KresliUsecku(t, plane, NovyUtvar(t, "A", "C"), {USECKA, A, C, "", "", 13}, ANO);
    KresliUsecku(t, plane, NovyUtvar(t, "B", "C"), {USECKA, B, C, "", "", 12}, ANO);
}

/// So many objects of all seven kinds at random, the same for the same seed.
inline void NakresliNahodne(Tabulky& t, Plane& plane, int kolik, unsigned seminko) {
    constexpr struct {
        const char* Druh;
        void (*Kresli)(Tabulky&, Plane&, int, const Nakres&, int);
    } DRUHY[] = {
        {BOD, KresliBod},          {USECKA, KresliUsecku},     {POLOPRIMKA, KresliPoloprimku},
        {PRIMKA, KresliPrimku},    {KRUZNICE, KresliKruznici}, {KOLMICE, KresliKolmici},
        {ROVNOBEZKA, KresliPrimku}};
    std::mt19937 stroj(seminko);
    const auto cislo = [&](int pod) {
        return static_cast<int>(stroj() % static_cast<unsigned>(pod));
    };
    for (int k = 0; k < kolik; ++k) {
        const std::string a(1, static_cast<char>('A' + cislo(6)));
        const std::string b(1, static_cast<char>('A' + cislo(6)));
        const int x1 = cislo(SIRKA_PLOCHY), y1 = cislo(VYSKA_PLOCHY);
        const int x2 = cislo(SIRKA_PLOCHY), y2 = cislo(VYSKA_PLOCHY);
        const auto& [druh, kresli] = DRUHY[k % 7];
        const std::string primka = a + b;
        const bool bod = druh == BOD, usecka = druh == USECKA;
        kresli(t, plane, NovyUtvar(t, a, b),
               {.Druh = druh,
                .P1 = {x1, y1},
                .P2 = {x2, druh == KRUZNICE ? y1 : y2},
                .Popis1 = bod || usecka ? a : "",
                .Popis2 = b,
                .Delka = usecka || druh == PRIMKA ? 1.0F : 0.0F,
                .NaPrimce = bod ? primka : "",
                .Znacky = usecka ? ANO : NE},
               ANO);
    }
}

}  // namespace rysovna::testy
