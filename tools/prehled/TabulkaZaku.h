#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "prehled/Prehled.h"

namespace rysovna::prehled {

/// The teacher's own small table: names as pupils type them, and whose they are.
class TabulkaZaku {
public:
    TabulkaZaku() = default;
    /// Rows "name;pupil;class", as a spreadsheet or an editor saves them. An empty pupil is the
    /// name itself; the class may be missing; lines that are empty or begin with "#" and a heading
    /// say nothing. A row that cannot be, and a name that is given to two pupils, is a fault that
    /// names file and line. soubor: for these faults.
    TabulkaZaku(std::string_view obsah, const std::filesystem::path& soubor);

    /// Whose a name is; null where the table does not say. A pupil's own name is that pupil's
    /// where no other bears it.
    [[nodiscard]] const Zak* Najdi(std::string_view jmeno) const;
    [[nodiscard]] const std::vector<Zak>& Zaci() const { return zaci_; }
    /// By alphabet.
    [[nodiscard]] std::vector<std::string> Tridy() const;
    /// A class as it is spelt here; one that is not here is a fault that says which are. None for
    /// none.
    [[nodiscard]] std::string NajdiTridu(const std::string& trida) const;

private:
    std::vector<Zak> zaci_;
    std::map<std::string, std::size_t> jmena_;                 ///< by key; rows of zaci_
    std::map<std::string, std::vector<std::size_t>> vlastni_;  ///< pupils' own names by key
};

/// Reads it from a file; one that cannot be read is a fault. UTF-8, or Windows-1250 as
/// spreadsheets save it.
[[nodiscard]] TabulkaZaku NactiTabulkuZaku(const std::filesystem::path& soubor);

}  // namespace rysovna::prehled
