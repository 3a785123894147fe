#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "base/Disk.h"

namespace rysovna {

// A file whose bytes are replaced all at once. Where no file can be made beside it, the new bytes
// are written down behind the old ones in the same file, and only when that is on the disk are the
// old ones written over and the file cut. A reader takes the valid bytes out of whatever a writer
// left.

/// What is to stand behind so many old bytes while the new ones take their place.
[[nodiscard]] std::string Zurnal(std::size_t delkaStarych, std::string_view nove);
/// The valid bytes of a file's: the new ones if a whole journal ends them, else all before whatever
/// there is of a journal.
[[nodiscard]] std::string_view PlatneBajty(std::string_view bajty);
/// The valid bytes of a file as it stands, for reading alone: what was there before a writer that
/// is at work or broke off, or what it wrote, never anything between. Throws ChybaDisku.
[[nodiscard]] std::string NactiPlatne(Disk& disk, const std::filesystem::path& soubor);

/// Such a file opened for one change. Whoever has it keeps all other writers away meanwhile.
class VymenaSouboru {
public:
    /// Opens and reads the file; one that is not there is empty and will be made. What was left
    /// half done in it counts as PlatneBajty says. Throws ChybaDisku, as all of this.
    VymenaSouboru(Disk& disk, const std::filesystem::path& soubor);

    /// What it held when it was opened; to be asked before the change.
    [[nodiscard]] std::string_view Platne() const { return platne_; }
    /// These bytes now: by a new file in the place of the old one, or, where none may be made, in
    /// the old one. A file that this account may not write into is a fault in either case. Whatever
    /// happens meanwhile, the file holds the old bytes or the new.
    void Uloz(std::string_view nove);
    /// Whether a change that failed may have taken effect all the same; false: the file certainly
    /// holds the bytes of before.
    [[nodiscard]] bool MohlSeZmenit() const { return mohlSeZmenit_; }
    /// Waits until the file as it stands is on the disk, and puts it in order if a writer broke off
    /// in it.
    void Potvrd();

private:
    /// False if no file may be made there, or not with the same rights.
    bool Vymen(std::string_view nove);
    void PrepisNaMiste(std::string_view nove);
    void Uzdrav();
    void UklidVedle();

    Disk& disk_;
    std::filesystem::path cesta_;
    std::unique_ptr<Soubor> soubor_;  ///< null: there is none yet, or it was replaced
    std::string bajty_;               ///< of the file
    std::string platne_;              ///< the valid ones of them
    bool mohlSeZmenit_ = false;
};

}  // namespace rysovna
