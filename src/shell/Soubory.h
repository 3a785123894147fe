#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/Ulohy.h"

namespace rysovna {

// The files of the data root. Paths are the system's own, with backslashes. Each file is opened,
// read or written whole, and closed in one routine; every failure is a run-time fault that names
// the file, and the line where there is one.

/// Reads the grade table into ZnamkyTab: one to five lines "lower|upper|grade". What is no number
/// is 0; a fraction rounds, ties to even. A sixth line, a value outside 0 to 255 and a byte that
/// the code page does not define are faults.
void NactiZnamky(std::string_view soubor);

/// The grade, as text, for points won of all points. Of rows that overlap the last wins; a
/// percentage that no row covers gives the empty text. Both are bytes; celkem 0 is a fault.
[[nodiscard]] std::string UrciZnamku(int kladne, int celkem);

/// Reads a task file into Priklady from row 1 on, by the field map of its board, and sets
/// PocetPrikladu. Fields past the board's last are dropped, those that a line does not reach are
/// empty. Slots that the board does not read keep what they held. A 101st line is a fault.
void NactiPriklady(std::string_view soubor, Deska deska);

/// Charges a wrong step: the points to SoucetZapornychBodu and a row of ChybneKroky, the sentence
/// of Errors.dat with text (the points in words) behind it. A number that the file does not hold
/// charges nothing; one that it holds twice charges twice. The file is read anew each time.
void PridejChybu(int cislo, std::string_view text, int body);

/// A row of a task's score table, all as text.
struct ZaznamTabulky {
    std::string Jmeno, Spravne, Spatne, Znamka;  ///< name, points won, points lost, grade
    friend bool operator==(const ZaznamTabulky&, const ZaznamTabulky&) = default;
};

/// Reads, rewrites a score file: a line a record, "name|won|lost|grade". Nothing is escaped: a
/// name that holds a "|" shifts its fields when it is read back. Rewriting leaves the old file or
/// the new one, never half.
[[nodiscard]] std::vector<ZaznamTabulky> CtiTabulku(std::string_view soubor);
void PisTabulku(std::string_view soubor, const std::vector<ZaznamTabulky>& zaznamy);

/// Whether a result stands before another: a lower grade, then more points won, then fewer lost,
/// each as the whole part of its number.
[[nodiscard]] bool JeLepsi(const ZaznamTabulky& a, const ZaznamTabulky& b);

/// Adds a result and puts the list in order. Equal results keep the order in which they came, the
/// new one behind the old ones.
void VlozZaznam(std::vector<ZaznamTabulky>& zaznamy, ZaznamTabulky novy);

/// Appends the four lines of a finished series to Vysledky.dat, with the moment of writing and
/// PocetPrikladuSerie, in one write.
void ZapisVysledek(const std::string& jmeno, const std::string& hra, const std::string& typ,
                   const std::string& kladne, const std::string& zaporne,
                   const std::string& znamka);

}  // namespace rysovna
