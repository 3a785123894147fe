#pragma once

#include <array>

#include "engine/Tabulky.h"
#include "rules/DialogTrojuhelniku.h"
#include "rules/Nacrt.h"

namespace rysovna {

// The rows that all triangle boards have; a board joins its own to them.

/// The circles about the vertices. The quantity by the first side: AB, AC, BC.
constexpr std::array<RadekKruznice, 3> KRUZNICE_VRCHOLU = {
    {{"A", "střed v bodě A", {{{"AkB", "b"}, {"AkC", "c"}, {}}}, 32},
     {"B", "střed v bodě B", {{{"BkA", "a"}, {}, {"BkC", "c"}}}, 33},
     {"C", "střed v bodě C", {{{}, {"CkA", "a"}, {"CkB", "b"}}}, 34}}};

/// The prices of sides and angles.
constexpr std::array<CenaVeliciny, 9> CENY_STRAN = {{{USECKA, "a", 7, 13},
                                                     {USECKA, "b", 8, 14},
                                                     {USECKA, "c", 9, 15},
                                                     {POLOPRIMKA, "alfa", 10, 30},
                                                     {POLOPRIMKA, "beta", 11, 30},
                                                     {POLOPRIMKA, "gama", 12, 30},
                                                     {KRUZNICE, "a", 7, 27},
                                                     {KRUZNICE, "b", 8, 28},
                                                     {KRUZNICE, "c", 9, 29}}};

/// The sketch: the triangle A(40, 140), B(260, 140), C(150, 30). The angles' zones are the middles
/// of their printed letters.
constexpr std::array<PrvekNacrtu, 6> NACRT_STRAN = {{
    CaraNacrtu("c", {40, 260, 0, 140, 2}, {40, 140}, {260, 140}, {150, 145}),
    CaraNacrtu("a", {150, 260, 1, -120, 5}, {150, 30}, {260, 140}, {210, 65}),
    CaraNacrtu("b", {40, 150, -1, 180, 5}, {40, 140}, {150, 30}, {80, 65}),
    UhelNacrtu("alfa", {72, 76, 0, 123.5, 2.5}, {40, 140}, {260, 140}, {150, 30}, 52, {70, 116}),
    UhelNacrtu("beta", {218, 221, 0, 122, 4}, {260, 140}, {150, 30}, {40, 140}, 58, {215, 116}),
    UhelNacrtu("gama", {147, 152, 0, 52, 3}, {150, 30}, {40, 140}, {260, 140}, 40, {146, 44}),
}};
constexpr PismenoNacrtu PISMENA_NACRTU[] = {{"A", 24, 138}, {"B", 266, 138}, {"C", 145, 10}};

}  // namespace rysovna
