#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/Bod.h"
#include "base/DatumACas.h"
#include "rules/ZadanyPriklad.h"
#include "rules/Zaznamy.h"

namespace rysovna {

// An attempt: a series as it was played, call by call of the dialogue, and what each came to. The
// dialogue asks no screen and no clock, so that the same calls make the same construction again.

/// A call that changes the dialogue, with what it was told.
struct Volani {
    enum class Druh {
        Nastroj,       ///< Cislo: its place
        Radek,         ///< Cislo: of the line
        ZavritSeznam,  ///< no argument
        Napsani,       ///< Cislo: which value; Text
        Stisk,         ///< X, Y
        Pusteni,       ///< X, Y
        Nacrt,         ///< X, Y
        Posunuti,      ///< O: by how much, px
        Kontrola       ///< no argument; the last one
    };
    static constexpr std::size_t DRUHU = static_cast<std::size_t>(Druh::Kontrola) + 1;
    Druh Co = Druh::Kontrola;
    std::uint32_t Kdy = 0;  ///< ms from the beginning of the series
    int Cislo = 0;
    float X = 0, Y = 0;  ///< pixels of the plane or of the sketch
    Bod O{};
    std::string Text{};
    friend bool operator==(const Volani&, const Volani&) = default;
};

/// A call, and what followed.
struct Udalost {
    Volani Co{};
    std::vector<ChybnyKrok> Chyby{};  ///< that were charged
    std::uint32_t Otisk = 0;          ///< of the tables after it
    friend bool operator==(const Udalost&, const Udalost&) = default;
};

/// An example as it was played.
struct HranyPriklad {
    std::uint32_t Kdy = 0;  ///< it was set, ms from the beginning of the series
    ZadanyPriklad Zadani{};
    std::uint32_t Otisk = 0;  ///< of the tables when it was set
    /// The sentences of the wrong steps that were asked for; mostly one of each number.
    std::map<int, std::vector<std::string>> Vety{};
    std::vector<Udalost> Udalosti{};
    struct Vysledek {
        int Bodu = 0;  ///< points won
        bool Hotova = false;
        friend bool operator==(const Vysledek&, const Vysledek&) = default;
    };
    std::optional<Vysledek> Konec{};  ///< of one that was checked
    friend bool operator==(const HranyPriklad&, const HranyPriklad&) = default;
};

/// A series: who played what and when.
struct Pokus {
    std::string Program{};  ///< version of the program
    std::string Jmeno{};    ///< as typed
    int CisloUlohy = 0;
    DatumACas Zacatek{};
    int PrikladuSerie = 0;                 ///< that were to be played
    std::vector<HranyPriklad> Priklady{};  ///< also those that were given up for another
    bool Dokonceny = false;                ///< the series came to its end
    friend bool operator==(const Pokus&, const Pokus&) = default;
};

}  // namespace rysovna
