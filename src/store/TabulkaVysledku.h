#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Disk.h"
#include "store/VymenaSouboru.h"

namespace rysovna {

// A task's score table: a file of lines "name|won|lost|grade". Nothing is escaped: a name that
// holds a "|" shifts its fields when it is read back.

/// A row of it, all as text: UTF-8 where it is shown, the bytes of the file where it is stored.
struct ZaznamTabulky {
    std::string Jmeno, Spravne, Spatne, Znamka;  ///< name, points won, points lost, grade
    friend bool operator==(const ZaznamTabulky&, const ZaznamTabulky&) = default;
};

/// Whether a result stands before another: a lower grade, then more points won, then fewer lost,
/// each as the whole part of its number.
[[nodiscard]] bool JeLepsi(const ZaznamTabulky& a, const ZaznamTabulky& b);

/// Adds a result and puts the list in order. Equal results keep the order in which they came, the
/// new one behind the old ones. The place of the new one, from 1.
int VlozZaznam(std::vector<ZaznamTabulky>& zaznamy, ZaznamTabulky novy);

/// The rows of a table's bytes, and back. Bytes of any value go through unchanged.
[[nodiscard]] std::vector<ZaznamTabulky> RozdelTabulku(std::string_view obsah);
[[nodiscard]] std::string SlozTabulku(const std::vector<ZaznamTabulky>& zaznamy);

/// The table of a file as it stands, for showing it, without the lock (NactiPlatne). Texts are
/// UTF-8; a byte that the code page does not define shows as U+FFFD. Throws ChybaDisku.
[[nodiscard]] std::vector<ZaznamTabulky> NactiTabulku(Disk& disk,
                                                      const std::filesystem::path& soubor);

/// A score table opened for a change. Whoever has it holds the lock of the results.
class OtevrenaTabulka {
public:
    /// Opens and reads the table, as VymenaSouboru does. Throws ChybaDisku, as all of this.
    OtevrenaTabulka(Disk& disk, const std::filesystem::path& soubor);

    /// How many rows are the same as this one. Bytes of the file, like all rows here.
    [[nodiscard]] int Kolikrat(const ZaznamTabulky& zaznam) const;
    /// Takes a row in at its place and stores the table, by VymenaSouboru::Uloz. The place of the
    /// row in the table, from 1.
    int VlozNovyZaznam(const ZaznamTabulky& zaznam);
    /// Whether a row that could not be stored may stand in the table all the same.
    [[nodiscard]] bool MohlaSeZmenit() const { return soubor_.MohlSeZmenit(); }
    /// Waits until the table as it stands is on the disk.
    void Potvrd() { soubor_.Potvrd(); }

private:
    VymenaSouboru soubor_;
};

}  // namespace rysovna
