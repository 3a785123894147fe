#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "base/Disk.h"

namespace rysovna::prehled {

/// A file of an attempt: its name, and in which of the folders it lies.
struct Nalezeny {
    std::string Soubor{};    ///< as the game has named it
    std::size_t Slozka = 0;  ///< index into Sber::Slozky
    std::string NaDisku{};   ///< name of a copy that got another one; mostly empty
};

/// The files of attempts in folders and all below them.
struct Sber {
    std::vector<std::filesystem::path> Koreny{};  ///< that were looked through; absolute
    std::vector<std::filesystem::path> Slozky{};  ///< that hold any; absolute
    /// By names. Those of one name are copies of one attempt: no two series get the same one. That
    /// a copy was named otherwise because there was one already ("… (1).pokus") makes it no other.
    std::vector<Nalezeny> Soubory{};
    std::vector<std::filesystem::path> Neprohlednute{};  ///< could not be looked into

    [[nodiscard]] std::filesystem::path Cesta(const Nalezeny& n) const {
        return Slozky[n.Slozka] / CestaZTextu(n.NaDisku.empty() ? n.Soubor : n.NaDisku);
    }
    /// The files of one name, beginning with that at this place.
    [[nodiscard]] std::span<const Nalezeny> Kopie(std::size_t odkud) const;
    /// Whether what lies in a folder would have been found.
    [[nodiscard]] bool Prohlednuta(const std::filesystem::path& slozka) const;
};

/// Looks through folders: of results, of attempts, or any tree of such. Whichever is given twice,
/// or lies in another one, counts once. A folder that is not there is a fault.
[[nodiscard]] Sber NajdiPokusy(std::span<const std::filesystem::path> slozky);

}  // namespace rysovna::prehled
