#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Cinnost.h"
#include "base/Disk.h"
#include "store/Fronta.h"
#include "store/TabulkaVysledku.h"
#include "store/UkladaniNaDisk.h"
#include "store/Vysledek.h"

namespace rysovna {

/// Stores results so that none is lost and none is written twice, whatever fails and whenever the
/// program is killed. Each result goes through the queue of the account: an entry there first, then
/// under the lock of the folder of results the lines of the log, then the row of the table, and
/// only then is the entry taken out. What did not go stays and is tried again with the next result
/// and at the next start, only in its own folder, from where it stopped. Where the queue cannot be
/// had, log and table are written all the same, and what then fails is kept in memory.
///
/// For a lock of another program, and for a disk that answers later, it waits: one call at a time,
/// while nothing happens to the screens.
class Ukladani : public UkladaniNaDisk {
public:
    /// What became of a result.
    struct Ulozeni {
        std::string Text;  ///< to be told to the pupil; empty if all is well or was told before
        int Misto = 0;     ///< of its row in the stored table, from 1; 0: it is not there yet
    };

    /// How long locks are waited for in one call, all of them together, ms.
    static constexpr std::uint32_t NEJDELE_NA_ZAMEK = 3000;

    /// ted: tick count, ms. koren: the folder of results. slozkaStavu: the account's state folder;
    /// may be empty.
    Ukladani(Disk& disk, std::function<std::uint32_t()> ted, const std::filesystem::path& koren,
             std::filesystem::path slozkaStavu);

    /// Stores a result, and whatever waits. Never throws.
    [[nodiscard]] Cinnost<Ulozeni> Uloz(Vysledek vysledek);
    /// Stores whatever waits, at the start of the program.
    [[nodiscard]] Cinnost<std::string> ZkusCekajici();

    /// Rows of this task's table that are not in its file yet, as texts for showing; the latest
    /// last.
    [[nodiscard]] std::vector<ZaznamTabulky> Nezapsane(int cisloUlohy) const;
    /// Results that did not go at the last try, in the queue or in memory.
    [[nodiscard]] const std::vector<CekajiciVysledek>& Cekaji() const { return cekaji_; }

private:
    /// What is to become of all that waits.
    struct Rozvrh {
        std::optional<rysovna::Fronta> Fronta{};  ///< with its lock; none: it cannot be had now
        std::vector<CekajiciVysledek> Zapsat{};   ///< oldest first
        std::vector<CekajiciVysledek> Nechat{};   ///< stays in the queue for now
        std::string Proc{};                       ///< why the latter
    };

    [[nodiscard]] Cinnost<Ulozeni> Zapis();
    [[nodiscard]] Cinnost<Rozvrh> Rozvrhni();
    /// Asks once at least. ChybaDisku (Zamceno, that names the file) if another program keeps the
    /// lock for too long.
    Cinnost<> PockejNaZamek(std::shared_ptr<Soubor> soubor, std::filesystem::path cesta);
    void Zarad(Rozvrh& rozvrh, std::vector<std::filesystem::path>& nove);
    void Prevezmi(Rozvrh& rozvrh);
    void Stahni(Rozvrh& rozvrh, const std::vector<std::filesystem::path>& nove);
    void Neuspel(CekajiciVysledek v, const std::string& proc, Fronta* fronta, Ulozeni& zprava);
    void VyradZapsany(const CekajiciVysledek& v, Fronta* fronta);
    void ZapisVysledek(CekajiciVysledek& v, Soubor& denik, Fronta* fronta);
    void DoTabulky(CekajiciVysledek& v, Fronta* fronta);
    void Poznamenej(CekajiciVysledek& v, Fronta* fronta);
    [[nodiscard]] std::filesystem::path Cesta(std::string_view jmeno) const;

    std::filesystem::path koren_, slozkaStavu_;
    std::vector<CekajiciVysledek> cekaji_;
    std::uint32_t od_ = 0;   ///< since when locks are waited for, all of them together
    std::string bezFronty_;  ///< why what is in memory alone is not in the queue
};

}  // namespace rysovna
