#pragma once

#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "prehled/Rejstrik.h"
#include "prehled/Sber.h"

namespace rysovna::prehled {

/// A file that is no attempt.
struct VadnySoubor {
    std::string Soubor{};                ///< its name
    std::filesystem::path Cesta{};       ///< of its first copy
    std::string Proc{};                  ///< one sentence
    std::optional<std::string> Jmeno{};  ///< that stands in it all the same
};

/// What the index knows of the files that were found.
struct StavRejstriku {
    std::unordered_map<std::string, Rejstrik::Zaznam> Serie{};  ///< by names of files
    std::vector<VadnySoubor> Vadne{};
    std::size_t Novych = 0;  ///< that had to be read

    /// How many series bear each name as it was typed; iVadne: and files that are no attempts.
    [[nodiscard]] std::map<std::string, int> PoctyJmen(bool iVadne) const;
};

/// Brings the index up to what was found: reads what it does not know, on all processors, and takes
/// out what is not there any more. What lies elsewhere stays. hlaseni is told how far it is.
[[nodiscard]] StavRejstriku Obnov(Rejstrik& rejstrik, const Sber& sber, std::ostream& hlaseni);

}  // namespace rysovna::prehled
