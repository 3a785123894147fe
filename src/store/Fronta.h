#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Disk.h"
#include "store/Vysledek.h"

namespace rysovna {

/// A result on its way into log and table, and how far it came.
struct CekajiciVysledek {
    std::string Koren{};  ///< the folder of results that it belongs to, as Disk::Jednoznacna says
    Vysledek Co{};
    std::optional<std::uint64_t> DelkaDeniku{};  ///< of the log before its lines, once begun
    bool VDeniku = false;
    /// How many rows of the table were the same before its own, once begun.
    std::optional<int> StejnychRadku{};
    bool VTabulce = false;
    bool Ohlaseno = false;            ///< that it waits was told
    std::filesystem::path Soubor_{};  ///< its file in the queue; empty where it is in memory alone
    int Misto = 0;                    ///< place of its row when the table was stored; 0: not now
    bool Nejisty = false;  ///< nobody knows whether that file is whole: it is in memory as well
};

/// The text of a queue's file, and back; nothing for one that is not whole. A later state line
/// beats an earlier one, a line that is not whole counts for nothing.
[[nodiscard]] std::string TextCekajiciho(const CekajiciVysledek& v);
[[nodiscard]] std::optional<CekajiciVysledek> CtiCekajiciho(std::string_view text);

/// The queue of results that are not written yet, of one account: a file an entry, in the account's
/// state folder. Putting an entry in needs no lock, so a program that waits for somebody else keeps
/// nobody from it; what is in is read, noted and taken out under a lock of the account's programs,
/// which whoever does so has. Every call throws ChybaDisku.
///
/// In the same folder lie attempts that are being played or wait (UkladaniPokusu): files with
/// another end, each with a lock of its own, which are no entries here.
class Fronta {
public:
    /// The folder of the queue below the account's state folder.
    [[nodiscard]] static std::filesystem::path Slozka(const std::filesystem::path& slozkaStavu);

    /// The file of its lock.
    [[nodiscard]] static std::filesystem::path Zamek(const std::filesystem::path& slozkaStavu);

    /// Makes the queue where there is none.
    Fronta(Disk& disk, const std::filesystem::path& slozkaStavu);

    /// Puts an entry in and notes its file; it is on the disk when this returns. Needs no lock. Of
    /// one that failed nothing is left, or it is noted as Nejisty.
    void Zarad(CekajiciVysledek& v);
    /// The file of its lock, open. Once locked, the lock is kept for life.
    [[nodiscard]] const std::shared_ptr<Soubor>& OtevriZamek();

    /// The entries of one folder of results, oldest first. What a program that was killed left of
    /// an entry is taken away. One that cannot be read is passed over.
    [[nodiscard]] std::vector<CekajiciVysledek> Cekajici(const std::string& koren);
    /// Notes how far an entry came. naDisk: it must outlive a failure of power.
    void Poznamenej(const CekajiciVysledek& v, bool naDisk);
    /// Notes that it was told, and nothing else: this needs no lock.
    void PoznamenejOhlaseni(const CekajiciVysledek& v);
    void Vyrad(const CekajiciVysledek& v);

private:
    Disk& disk_;
    std::filesystem::path slozka_;
    std::shared_ptr<Soubor> zamek_;
};

/// How many entries wait in the queue of an account, without its lock; 0 where there is none.
[[nodiscard]] int PocetCekajicich(Disk& disk, const std::filesystem::path& slozkaStavu);

}  // namespace rysovna
