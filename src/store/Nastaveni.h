#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "base/Disk.h"

namespace rysovna {

/// With one final backslash, whichever separator or none it had.
[[nodiscard]] std::string SeZpetnymLomitkem(std::string cesta);
/// A real folder in the spelling of the program's paths.
[[nodiscard]] std::string SlozkaSLomitkem(const std::filesystem::path& slozka);

/// What the configuration says. Folders have a backslash at their end, or are empty where their key
/// is missing.
struct Nastaveni {
    std::string CD;         ///< asset root
    std::string HD;         ///< data root
    std::string Vysledky;   ///< folder of results; without a key of its own the data root
    bool Oddelene = false;  ///< results have a key of their own: missing files of theirs are made
    bool Rady = true;       ///< boards say what to do next; "ne" turns it off
    bool Pokusy = true;     ///< attempts are kept; "ne" turns it off
    /// The generator of examples begins with it at each start: a class has the same ones.
    std::optional<std::uint32_t> Seminko{};
};

/// Reads Rysovna.ini in a folder. "ucet" as the folder of results is the account's own, slozkaUctu;
/// a file that cannot be read has no keys.
[[nodiscard]] Nastaveni CtiNastaveni(Disk& disk, const std::string& slozka,
                                     const std::filesystem::path& slozkaUctu);

}  // namespace rysovna
