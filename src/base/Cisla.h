#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/Chyba.h"

namespace rysovna {

/// Rounds to the nearest whole number, ties to the even neighbour (0.5 to 0, 1.5 to 2): the rule
/// by which a floating-point value becomes a pixel. A result that does not fit 32 bits, or a
/// value that is not a number, is a run-time fault.
int Zaokrouhli(double x, MistoKodu kde = MistoKodu::Tady());

/// The next lower whole number. Faults as Zaokrouhli.
int Podlaha(double x, MistoKodu kde = MistoKodu::Tady());

/// An unsigned byte, ties to even. A value below 0 or above 255 is a run-time fault.
std::uint8_t Bajt(double x, MistoKodu kde = MistoKodu::Tady());

/// The lenient conversion of text to a number: leading blanks are skipped, then a sign, digits and
/// a decimal point count as long as they last; what is no number is 0. "12,5" is 12, "" is 0.
double Cislo(std::string_view text);

/// The strict one: a whole number that fills the text, digits of the base zaklad and before those
/// of a signed T a minus; nothing if it is none or does not fit.
template <class T>
[[nodiscard]] std::optional<T> CeleCislo(std::string_view text, int zaklad = 10) {
    T cislo{};
    const char* const konec = text.data() + text.size();
    const auto [kam, chyba] = std::from_chars(text.data(), konec, cislo, zaklad);
    if (chyba != std::errc() || kam != konec) return std::nullopt;
    return cislo;
}

/// A whole number as the system writes numbers: a blank in place of the sign of one that is not
/// negative. 0 is " 0", -3 is "-3".
std::string TextCisla(int cislo);

/// A whole number without any blank: 0 is "0".
std::string TextBezMezery(int cislo);

/// The format "#0": a whole number, halves away from zero (2.5 is "3", -2.5 is "-3").
std::string FormatCele(double x);

/// As Czech writes numbers: at most two decimals behind a comma, none that are zero (7.5 is "7,5").
std::string FormatCesky(double x);

/// The format "#.00000": five decimals, no digit before the point where the value is below 1
/// (0 is ".00000"). Angles are the same when they print the same under it.
std::string FormatPetMist(double x);

/// Two digits with a leading zero, as in the names of a task's files: 1 is "01".
std::string DveCislice(int cislo);
/// Sixteen digits of base sixteen: "00000000000000ff".
std::string Sestnactkove(std::uint64_t cislo);

}  // namespace rysovna
