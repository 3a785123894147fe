#pragma once

#include <algorithm>
#include <iterator>
#include <string_view>

#include "rules/Panel.h"

namespace rysovna {

/// A tool as its step button shows it.
struct TlacitkoNastroje {
    Nastroj Co;
    int Tvar;                  ///< number NN of its pictures whatNN
    std::string_view Jmeno;    ///< words on them
    bool BezNastroje = false;  ///< does something, and puts no tool in hand
};

/// All tools, in the order of their pictures.
inline constexpr TlacitkoNastroje TLACITKA_NASTROJU[] = {
    {Nastroj::Usecka, 1, "úsečka"},
    {Nastroj::Primka, 2, "přímka"},
    {Nastroj::Poloprimka, 3, "polopřímka"},
    {Nastroj::Kolmice, 4, "kolmice"},
    {Nastroj::Rovnobezka, 5, "rovnoběžka"},
    {Nastroj::Kruznice, 6, "kružnice"},
    {Nastroj::Stred, 7, "střed"},
    {Nastroj::Osa, 8, "osa"},
    {Nastroj::Prusecik, 9, "průsečík"},
    {Nastroj::Trojuhelnik, 10, "trojúhelník"},
    {Nastroj::StredSoumernosti, 11, "střed souměrnosti"},
    {Nastroj::Zpet, 12, "zpět o krok", true},
    {Nastroj::Veta, 13, "podle věty", true},
    {Nastroj::Sestroj, 14, "sestroj", true},
    {Nastroj::Obraz, 15, "obraz bodu"},
};

/// The button of a tool; null where there is none.
constexpr const TlacitkoNastroje* NajdiTlacitko(Nastroj co) {
    const auto* t = std::ranges::find(TLACITKA_NASTROJU, co, &TlacitkoNastroje::Co);
    return t == std::end(TLACITKA_NASTROJU) ? nullptr : t;
}

}  // namespace rysovna
