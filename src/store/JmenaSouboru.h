#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/DatumACas.h"

namespace rysovna {

/// Of the game's data: the tables of grades and the sentences of wrong steps.
constexpr const char* JMENO_ZNAMEK = "Znamky.dat";
constexpr const char* JMENO_VET = "Errors.dat";
/// The log of results; its lock guards log and tables.
constexpr const char* JMENO_DENIKU = "Vysledky.dat";

/// The examples of a task and the table of its results.
[[nodiscard]] std::string JmenoUlohy(int cislo);
[[nodiscard]] std::string JmenoTabulky(int cislo);

/// Files of game data and of results, in the order in which they are looked for.
[[nodiscard]] std::vector<std::string> JmenaDat();
[[nodiscard]] std::vector<std::string> JmenaVysledku();

/// Attempts: their folder in the folder of results, and how their files end.
constexpr std::string_view SLOZKA_POKUSU = "Pokusy", PRIPONA_POKUSU = ".pokus";

/// "20261122": the names of attempts begin with it and stand in the order of their days.
[[nodiscard]] std::string DenPokusu(const DatumACas& d);
/// What the name of an attempt begins with: day, time and task.
[[nodiscard]] std::string ZacatekJmenaPokusu(const DatumACas& d, int cisloUlohy);
/// Whether a name begins as those of attempts do.
[[nodiscard]] bool ZacinaJakoPokus(std::string_view jmeno);

}  // namespace rysovna
