#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/Nahoda.h"
#include "base/Tabulka.h"
#include "engine/Tabulky.h"
#include "rules/Zaznamy.h"

namespace rysovna {

/// A row of the grade table: lower and upper percentage, both inclusive, and the grade.
using RadekZnamek = std::array<std::uint8_t, 3>;

/// The sentences of a wrong step's number: mostly one; none if there is no such number.
using ZdrojVet = std::function<std::vector<std::string>(int cislo)>;

/// What all screens and rules of one session share: its variables, the records of the example and
/// the construction. A value: whoever starts a session makes one and hands it down, so that several
/// sessions can run beside each other. Paths end in a backslash.
struct Misc : Tabulky, Zaznamy {
    std::string AdresarSystemu;  ///< folder of Rysovna.ini
    std::string DiskSystemu;     ///< its first three characters
    std::string CestaCD;         ///< asset root: pictures, sounds, fonts
    std::string CestaHD;         ///< data root: task files, sentences, grades
    std::string CestaVysledku;   ///< folder of results: score tables, log

    Tabulka<RadekZnamek, 5> ZnamkyTab;

    /// The screen mode before the switch: pixels, pixels, bits to the pixel.
    int PuvodniSirka = 0, PuvodniVyska = 0, PuvodniBarvy = 0;

    std::uint8_t CisloUlohy = 0;          ///< 1 to 20; names the task's files
    std::string NazevHry;                 ///< family of tasks, as the log prints it
    std::string TypUlohy;                 ///< kind of task, as the log prints it
    std::string JmenoHrace;               ///< as typed
    std::uint8_t PocetPrikladuSerie = 0;  ///< examples of the series, 1 to 5

    std::uint8_t KladneBody = 0, ZaporneBody = 0;  ///< of the series so far
    int SoucetZapornychBodu = 0;                   ///< penalty of the current example
    int PocetChybnychKroku = 0;                    ///< rows of ChybneKroky in use

    int PosunX = 0, PosunY = 0;  ///< how far the plane is scrolled, px
    int VybranyUtvar = 0;        ///< row of Utvary that a step refers to; 0 is none
    int KonstrukceZahajena = 0;  ///< -1 from the first press on a tool

    bool RadyUkazovat = true;  ///< boards say what to do next; off by the configuration

    /// The generator of examples. Sown with the host's seed at the start-up and before each
    /// example.
    Nahoda Generator;

    /// What the rules ask for the sentences of wrong steps. Without it a charge is a fault.
    ZdrojVet Vety;

    /// Blanks rows 1 to 50 of Priklady, Utvary, Trojice_tab and ChybneKroky (rows 51 to 100 stay)
    /// and rows 1 to 20 of ZadanePrvky. Moves no counter.
    void SmazTabulky();
};

}  // namespace rysovna
