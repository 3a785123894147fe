#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "prehled/Prehled.h"

namespace rysovna::prehled {

/// A field of a table as spreadsheets read it: in quotes where it wants them, and never a formula.
[[nodiscard]] std::string PoleCsv(std::string_view text);

/// The two tables for a spreadsheet: a row a series, a row a charge. UTF-8 with its mark,
/// semicolons, decimal commas.
class TabulkyCsv {
public:
    /// Writes the headings.
    TabulkyCsv(std::ostream& serie, std::ostream& chyby);
    void Pridej(const Serie& serie, const Zak& zak);

private:
    std::ostream& serie_;
    std::ostream& chyby_;
};

}  // namespace rysovna::prehled
