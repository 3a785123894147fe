#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Disk.h"

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

/// The table of a file as it stands, for showing it, without the lock: what was there before a
/// writer that is at work or broke off, or what it wrote, never anything between. Texts are UTF-8;
/// a byte that the code page does not define shows as U+FFFD. Throws ChybaDisku.
[[nodiscard]] std::vector<ZaznamTabulky> NactiTabulku(Disk& disk,
                                                      const std::filesystem::path& soubor);

// Where no file can be made beside the table, the new one is written down behind the old one in the
// same file, and only when that is on the disk is the old one written over and the file cut. A
// reader takes the table out of whatever a writer left.

/// What is to stand behind a table of this length while it becomes the new one.
[[nodiscard]] std::string Zurnal(std::size_t delkaStare, std::string_view nova);
/// The table of a file's bytes: the new one if a whole journal ends them, else all before whatever
/// there is of a journal.
[[nodiscard]] std::string_view PlatnaTabulka(std::string_view bajty);

/// A score table opened for a change. Whoever has it holds the lock of the results.
class OtevrenaTabulka {
public:
    /// Opens and reads the table; one that is not there is empty and will be made. What was left
    /// half done in it counts as PlatnaTabulka says. Throws ChybaDisku, as all of this.
    OtevrenaTabulka(Disk& disk, const std::filesystem::path& soubor);

    /// How many rows are the same as this one. Bytes of the file, like all rows here.
    [[nodiscard]] int Kolikrat(const ZaznamTabulky& zaznam) const;
    /// Takes a row in at its place and stores the table: by a new file in the place of the old one,
    /// or, where none may be made, in the old one. A table that this account may not write into is
    /// a fault in either case. Whatever happens meanwhile, the file is the old table or the new.
    /// The place of the row in the table, from 1.
    int VlozNovyZaznam(const ZaznamTabulky& zaznam);
    /// Whether a change that failed may have taken effect all the same; false: the file certainly
    /// holds the table of before.
    [[nodiscard]] bool MohlaSeZmenit() const { return mohlaSeZmenit_; }
    /// Waits until the table as it stands is on the disk, and puts it in order if a writer broke
    /// off in it.
    void Potvrd();

private:
    void UlozTabulku(std::string_view nova);
    /// False if no file may be made there, or not with the same rights.
    bool Vymen(std::string_view nova);
    void PrepisNaMiste(std::string_view nova);
    void Uzdrav();
    void UklidVedle();

    Disk& disk_;
    std::filesystem::path cesta_;
    std::unique_ptr<Soubor> soubor_;  ///< null: there is none yet, or it was replaced
    std::string bajty_;               ///< of the file
    std::string platna_;              ///< the table in them
    bool mohlaSeZmenit_ = false;
};

}  // namespace rysovna
