#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/Nahoda.h"
#include "base/Tabulka.h"
#include "platform/Obrazek.h"
#include "shell/Zaznamy.h"

namespace rysovna {

class Form;
class Ukladani;

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

/// The screen in front. Keeps no screen alive: one that was unloaded is gone from here too.
inline std::weak_ptr<Form> AktivniForm;

inline std::uint8_t CisloUlohy = 0;          ///< 1 to 20; names the task's files
inline std::string NazevHry;                 ///< family of tasks, as the log prints it
inline std::string TypUlohy;                 ///< kind of task, as the log prints it
inline std::string JmenoHrace;               ///< as typed
inline std::uint8_t PocetPrikladuSerie = 0;  ///< examples of the series, 1 to 5

inline std::uint8_t KladneBody = 0, ZaporneBody = 0;  ///< of the series so far
inline int SoucetZapornychBodu = 0;                   ///< penalty of the current example
inline int PocetChybnychKroku = 0;                    ///< rows of ChybneKroky in use

inline Obrazek PokracujObrazek;     ///< the continue button at rest
inline int PosunX = 0, PosunY = 0;  ///< how far the plane is scrolled, px
inline int VybranyUtvar = 0;        ///< row of Utvary that a step refers to; 0 is none
inline int KonstrukceZahajena = 0;  ///< -1 from the first press on a tool

/// What stores the results of this session; ask Vysledky().
inline std::shared_ptr<Ukladani> UkladaniVysledku;
/// The same, made when it is first wanted.
[[nodiscard]] Ukladani& Vysledky();

inline bool RadyUkazovat = true;  ///< boards say what to do next; off by the configuration

/// The generator of examples. Sown with the host's seed at the start-up and before each
/// example.
inline Nahoda Generator;

/// Where the configuration says that things are, each with a backslash at its end or empty where
/// its key is missing, and what else it says.
struct Cesty {
    std::string CD;         ///< asset root
    std::string HD;         ///< data root
    std::string Vysledky;   ///< folder of results; without a key of its own the data root
    bool Oddelene = false;  ///< results have a key of their own: missing files of theirs are made
    bool Rady = true;       ///< boards say what to do next; "ne" turns it off
};

/// Reads Rysovna.ini in a folder. "ucet" as the folder of results is the account's own, slozkaUctu;
/// a file that cannot be read has no keys.
[[nodiscard]] Cesty CtiCesty(const std::string& slozka, const std::filesystem::path& slozkaUctu);

/// Files of game data and of results, in the order in which they are looked for.
[[nodiscard]] std::vector<std::string> JmenaDat();
[[nodiscard]] std::vector<std::string> JmenaVysledku();

/// The first step of the start-up: paths from Rysovna.ini, a look whether all files of game data
/// and of results are there (missing results are made, empty, where they have a folder of their
/// own), the grade table, the seed of the generator, results that wait. False when something is
/// missing: it was told in a message box, which file is meant on the error output, and the process
/// must end; nothing else was touched. The font folder is set as soon as the asset root is known,
/// so that the message can be printed.
[[nodiscard]] bool NactiKonfiguraci();

/// Remembers the screen mode, switches to 640 by 480 by 16 bits and shows the black background. A
/// screen that cannot be switched gets a warning, and the program goes on in a window.
void PrepniObrazovku();
/// Switches back to the mode that PrepniObrazovku remembered; warns if that fails.
void ObnovObrazovku();
/// Loads and shows PozadiForm. Stands with that screen.
void UkazPozadi();

/// Waits ms milliseconds. Events are let through: a click during the wait is handled during it, so
/// the caller's form may be unloaded when this returns. Ends early when the process is to end.
void Cekej(std::uint32_t ms);

/// Pixels to a design pixel, by the twips per pixel: 1 at the 15 that every host gives.
[[nodiscard]] double Meritko();

/// Scales the objects of a screen to the twips per pixel and gives font size 10 to every object
/// that has a font, whatever was designed. Called once, by the load handler.
void PrizpusobForm(Form& form);

/// Blanks rows 1 to 50 of Priklady, Utvary, Trojice_tab and ChybneKroky (rows 51 to 100 stay) and
/// rows 1 to 20 of ZadanePrvky. Moves no counter.
void SmazTabulky();

/// Everything that is kept between screens (session variables, records, construction) as it is
/// when a process starts, so that one process can play one session after another. Screens and the
/// maker of boards stay.
void VychoziRelace();

}  // namespace rysovna
