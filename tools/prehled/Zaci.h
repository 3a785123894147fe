#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "prehled/Prehled.h"
#include "prehled/TabulkaZaku.h"

namespace rysovna::prehled {

/// Whose the names are that stand in attempts: one name in several spellings is one pupil, and the
/// teacher's table has the last word. A pupil that the table does not name is shown in the spelling
/// that is used most.
class RozdeleniZaku {
public:
    /// jmena: how many series bear each name as it was typed. The table's pupils are among the
    /// pupils even if no series is theirs.
    RozdeleniZaku(const TabulkaZaku& tabulka, const std::map<std::string, int>& jmena);

    /// By class, then by name.
    [[nodiscard]] const std::vector<Zak>& Zaci() const { return zaci_; }
    /// Whose a name is that was among those at the beginning: index into Zaci.
    [[nodiscard]] std::size_t Ci(const std::string& jmeno) const { return ci_.at(jmeno); }
    /// All pupils that are meant by a name, as typed or as shown.
    [[nodiscard]] std::vector<std::size_t> Jmenuji(std::string_view jmeno) const;

private:
    std::vector<Zak> zaci_;
    std::unordered_map<std::string, std::size_t> ci_;
};

}  // namespace rysovna::prehled
