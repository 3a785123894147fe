#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Disk.h"
#include "rules/Misc.h"
#include "store/MapaPoli.h"

namespace rysovna {

// The files of the data root that the game reads. Paths are the system's own, with backslashes.
// Each file is opened, read whole and closed in one routine; every failure is a run-time fault that
// names the file, and the line where there is one. So is a file of more than 4 MB.

/// Reads the grade table into ZnamkyTab: one to five lines "lower|upper|grade". What is no number
/// is 0; a fraction rounds, ties to even. A sixth line, a value outside 0 to 255 and a byte that
/// the code page does not define are faults.
void NactiZnamky(Misc& misc, Disk& disk, std::string_view soubor);

/// Reads a task file into Priklady from row 1 on, by the field map of its board, and sets
/// PocetPrikladu. Fields past the board's last are dropped, those that a line does not reach are
/// empty. Slots that the board does not read keep what they held. A 101st line is a fault, and so
/// is a file without a line that says anything.
void NactiPriklady(Zaznamy& z, Disk& disk, std::string_view soubor, const MapaRadku& mapa);

/// The sentences of a wrong step, in the order of the file, which is read anew each time; none if
/// it does not hold the number. More than a hundred of one number are a fault.
[[nodiscard]] std::vector<std::string> CtiVety(Disk& disk, std::string_view soubor, int cislo);

/// How many sentences of wrong steps the file holds, each read as CtiVety reads it.
[[nodiscard]] int PocetVet(Disk& disk, std::string_view soubor);

}  // namespace rysovna
