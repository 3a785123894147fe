#pragma once

#include <string>
#include <vector>

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

}  // namespace rysovna
