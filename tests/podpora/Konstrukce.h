#pragma once

#include <random>
#include <string>
#include <string_view>
#include <utility>

#include "base/Plane.h"
#include "engine/Kresleni.h"
#include "engine/Miry.h"
#include "engine/Tabulky.h"

namespace rysovna::testy {

/// Draws an object by the routine of its kind.
inline void Kresli(Tabulky& t, Plane& plane, int i, const Nakres& k, int nova = ANO) {
    constexpr std::pair<std::string_view, decltype(&KresliBod)> ROUTINY[] = {
        {BOD, KresliBod},          {USECKA, KresliUsecku},   {POLOPRIMKA, KresliPoloprimku},
        {PRIMKA, KresliPrimku},    {KOLMICE, KresliKolmici}, {ROVNOBEZKA, KresliPrimku},
        {KRUZNICE, KresliKruznici}};
    for (const auto& [druh, routina] : ROUTINY) {
        if (druh == k.Druh) routina(t, plane, i, k, nova);
    }
}

/// A finished triangle by two circles: six objects.
inline void NakresliTrojuhelnik(Tabulky& t, Plane& plane) {
    const Bod A{120, 250}, B{240, 250}, C{187, 170};
    const auto kresli = [&](const char* jmeno1, const char* jmeno2, const Nakres& k) {
        Kresli(t, plane, t.NovyUtvar(jmeno1, jmeno2), k);
    };
    kresli("A", "B", {USECKA, A, B, "A", "B", 15, "", ANO});
    kresli("A", "", {KRUZNICE, A, {224, 250}});
    kresli("B", "", {KRUZNICE, B, {144, 250}});
    kresli("C", "", {BOD, C, {}, "C"});
    kresli("A", "C", {USECKA, A, C, "", "", 13});
    kresli("B", "C", {USECKA, B, C, "", "", 12});
}

/// So many objects of all seven kinds at random, the same for the same seed.
inline void NakresliNahodne(Tabulky& t, Plane& plane, int kolik, unsigned seminko) {
    std::mt19937 stroj(seminko);
    const auto x = [&] { return static_cast<int>(stroj() % SIRKA_PLOCHY); };
    const auto y = [&] { return static_cast<int>(stroj() % VYSKA_PLOCHY); };
    for (int k = 0; k < kolik; ++k) {
        const std::string a(1, static_cast<char>('A' + stroj() % 6));
        const std::string b(1, static_cast<char>('A' + stroj() % 6));
        const std::string primka = a + b;
        const int x1 = x(), y1 = y(), x2 = x(), y2 = y();
        const Bod P1{x1, y1}, P2{x2, y2};
        const Nakres DRUHY[] = {{BOD, P1, {}, a, "", 0, primka},
                                {USECKA, P1, P2, a, b, 1, "", ANO},
                                {POLOPRIMKA, P1, P2, "", b},
                                {PRIMKA, P1, P2, "", "", 1},
                                {KRUZNICE, P1, {x2, y1}},
                                {KOLMICE, P1, P2},
                                {ROVNOBEZKA, P1, P2}};
        Kresli(t, plane, t.NovyUtvar(a, b), DRUHY[k % 7]);
    }
}

}  // namespace rysovna::testy
