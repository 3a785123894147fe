#pragma once

#include <string>
#include <string_view>

#include "shell/Ulohy.h"

namespace rysovna {

// The files of the data root that the game reads. Paths are the system's own, with backslashes.
// Each file is opened, read whole and closed in one routine; every failure is a run-time fault that
// names the file, and the line where there is one. So is a file of more than 4 MB.

/// Reads the grade table into ZnamkyTab: one to five lines "lower|upper|grade". What is no number
/// is 0; a fraction rounds, ties to even. A sixth line, a value outside 0 to 255 and a byte that
/// the code page does not define are faults.
void NactiZnamky(std::string_view soubor);

/// The grade, as text, for points won of all points. Of rows that overlap the last wins; a
/// percentage that no row covers gives the empty text. Both are bytes; celkem 0 is a fault.
[[nodiscard]] std::string UrciZnamku(int kladne, int celkem);

/// Reads a task file into Priklady from row 1 on, by the field map of its board, and sets
/// PocetPrikladu. Fields past the board's last are dropped, those that a line does not reach are
/// empty. Slots that the board does not read keep what they held. A 101st line is a fault, and so
/// is a file without a line that says anything.
void NactiPriklady(std::string_view soubor, Deska deska);

/// Charges a wrong step: the points to SoucetZapornychBodu and a row of ChybneKroky, the sentence
/// of Errors.dat with text (the points in words) behind it. A number that the file does not hold
/// charges nothing; one that it holds twice charges twice, more than a hundred times is a fault.
/// The file is read anew each time.
void PridejChybu(int cislo, std::string_view text, int body);

/// How many sentences of wrong steps the file holds, each read as PridejChybu reads it.
[[nodiscard]] int PocetVet(std::string_view soubor);

}  // namespace rysovna
