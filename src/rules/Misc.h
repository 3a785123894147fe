#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Nahoda.h"
#include "base/Tabulka.h"
#include "rules/Zaznamy.h"

namespace rysovna {

// What all screens share, for the whole life of the process. Paths end in a backslash.

inline std::string AdresarSystemu;  ///< folder of Rysovna.ini
inline std::string DiskSystemu;     ///< its first three characters
inline std::string CestaCD;         ///< asset root: pictures, sounds, fonts
inline std::string CestaHD;         ///< data root: task files, sentences, grades
inline std::string CestaVysledku;   ///< folder of results: score tables, log

/// A row of the grade table: lower and upper percentage, both inclusive, and the grade.
using RadekZnamek = std::array<std::uint8_t, 3>;
inline Tabulka<RadekZnamek, 5> ZnamkyTab;

/// The screen mode before the switch: pixels, pixels, bits to the pixel.
inline int PuvodniSirka = 0, PuvodniVyska = 0, PuvodniBarvy = 0;

inline std::uint8_t CisloUlohy = 0;          ///< 1 to 20; names the task's files
inline std::string NazevHry;                 ///< family of tasks, as the log prints it
inline std::string TypUlohy;                 ///< kind of task, as the log prints it
inline std::string JmenoHrace;               ///< as typed
inline std::uint8_t PocetPrikladuSerie = 0;  ///< examples of the series, 1 to 5

inline std::uint8_t KladneBody = 0, ZaporneBody = 0;  ///< of the series so far
inline int SoucetZapornychBodu = 0;                   ///< penalty of the current example
inline int PocetChybnychKroku = 0;                    ///< rows of ChybneKroky in use

inline int PosunX = 0, PosunY = 0;  ///< how far the plane is scrolled, px
inline int VybranyUtvar = 0;        ///< row of Utvary that a step refers to; 0 is none
inline int KonstrukceZahajena = 0;  ///< -1 from the first press on a tool

inline bool RadyUkazovat = true;  ///< boards say what to do next; off by the configuration

/// The generator of examples. Sown with the host's seed at the start-up and before each
/// example.
inline Nahoda Generator;

/// Blanks rows 1 to 50 of Priklady, Utvary, Trojice_tab and ChybneKroky (rows 51 to 100 stay) and
/// rows 1 to 20 of ZadanePrvky. Moves no counter.
void SmazTabulky();

/// All of it, records and construction too, as it is when a process starts.
void VychoziPromenne();

}  // namespace rysovna
