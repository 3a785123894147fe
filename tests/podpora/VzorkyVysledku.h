#pragma once

#include <string>

#include "store/KodovaStranka.h"
#include "store/Ukladani.h"
#include "store/UkladaniPokusu.h"

namespace rysovna::testy {

/// A pupil's result, and its row of the table.
inline Vysledek VysledekZaka(const std::string& jmeno, int uloha = 1) {
    return {.CisloUlohy = uloha,
            .Jmeno = jmeno,
            .Hra = "Trojúhelník 1",
            .Typ = "podle věty SSS",
            .Prikladu = "5",
            .Kladne = "50",
            .Zaporne = "0",
            .Znamka = "1",
            .Konec = {2024, 9, 3, 8, 5}};
}
inline std::string RadekTabulky(const std::string& jmeno) {
    return Do1250(jmeno) + "|50|0|1\r\n";
}

/// A pupil's series of two examples, the second one left half done.
inline Pokus SerieZaka() {
    HranyPriklad p;
    p.Zadani.Zaznam.Druh = "1";
    p.Udalosti.push_back({.Co = {.Co = Volani::Druh::Nastroj, .Kdy = 5, .Cislo = 1}});
    HranyPriklad druhy = p;
    p.Konec = {.Bodu = 10, .Hotova = true};
    return {.Program = "1.0",
            .Jmeno = "Eva",
            .CisloUlohy = 1,
            .Zacatek = {2026, 11, 22, 17, 5},
            .PrikladuSerie = 2,
            .Priklady = {p, druhy}};
}

}  // namespace rysovna::testy
