#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/DatumACas.h"

namespace rysovna {

/// The result of a finished series: what its row of the score table and its lines of the log say.
struct Vysledek {
    int CisloUlohy = 0;      ///< 1 to 20, names the score table
    std::string Jmeno{};     ///< the pupil's name
    std::string Hra{};       ///< family of tasks
    std::string Typ{};       ///< kind of task
    std::string Prikladu{};  ///< how many examples
    std::string Kladne{};    ///< points won
    std::string Zaporne{};   ///< points lost
    std::string Znamka{};    ///< grade; may be empty
    DatumACas Konec{};       ///< when the series ended
    friend bool operator==(const Vysledek&, const Vysledek&) = default;
};

/// The four lines of the log, as they stand in the file: in its code page, each with its end.
[[nodiscard]] std::string RadkyDeniku(const Vysledek& vysledek);

/// The entries of a log, each with the line at its end; what is behind the last such line is one
/// too.
[[nodiscard]] std::vector<std::string> ZapisyDeniku(std::string_view denik);

/// "9.12.2024" and "08:05".
[[nodiscard]] std::string TextData(const DatumACas& kdy);
[[nodiscard]] std::string TextCasu(const DatumACas& kdy);

}  // namespace rysovna
