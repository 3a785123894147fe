#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/DatumACas.h"

namespace rysovna::prehled {

/// A charge in an attempt.
struct ChybaSerie {
    int Cislo = 0;          ///< of its sentence
    int Bodu = 0;           ///< that it cost
    std::string Veta{};     ///< without the points behind it
    int Priklad = 0;        ///< from 1, among all examples of the attempt
    std::uint32_t Kdy = 0;  ///< ms from the series' beginning
    std::string Obrazec{};  ///< figure when it was charged: contents of an <svg>; may be empty
    friend bool operator==(const ChybaSerie&, const ChybaSerie&) = default;
};

/// An example of a series, also one that was given up.
struct PrikladSerie {
    std::string Zadani{};                       ///< "a = 12 cm, b = 13 cm, c = 10 cm"
    int Bodu = 0;                               ///< won
    int Nejvic = 0;                             ///< that could be won
    bool Zkontrolovan = false, Hotova = false;  ///< checked; its figure is closed
    std::uint32_t Trvani = 0;                   ///< ms
    std::string Obrazec{};                      ///< figure at its end; may be empty
    friend bool operator==(const PrikladSerie&, const PrikladSerie&) = default;
};

/// One series, which is one attempt.
struct Serie {
    std::string Soubor{};        ///< name of the file, without its folder
    int Zak = 0;                 ///< index into Prehled::Zaci
    std::string JmenoNapsane{};  ///< as typed
    int Uloha = 0;
    DatumACas Zacatek{};
    bool Dokoncena = false;
    int Bodu = 0, Nejvic = 0;  ///< of the examples that were checked
    int Znamka = 0;            ///< 1 to 5; 0: none, as of a series that was not finished
    std::uint32_t Trvani = 0;  ///< ms, up to the last step
    std::vector<PrikladSerie> Priklady{};
    std::vector<ChybaSerie> Chyby{};  ///< in the order in which they fell
    friend bool operator==(const Serie&, const Serie&) = default;
};

struct Zak {
    std::string Jmeno{};
    std::string Trida{};  ///< may be empty
    friend bool operator==(const Zak&, const Zak&) = default;
};

/// All that a page shows.
struct Prehled {
    std::vector<Zak> Zaci{};
    std::vector<prehled::Serie> Serie{};
    std::vector<std::string> Nevadne{};  ///< files that could not be read: one sentence each
    std::string Od{}, Do{}, Trida{};     ///< what was asked for; may be empty
};

}  // namespace rysovna::prehled
