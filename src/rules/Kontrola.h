#pragma once

#include <string>
#include <string_view>

#include "rules/Misc.h"

namespace rysovna {

// The points texts that stand behind the sentence of a wrong step.
constexpr std::string_view JEDEN_BOD = "  -1 bod";
constexpr std::string_view DVA_BODY = "  -2 body";
constexpr std::string_view TRI_BODY = "  -3 body";

/// An example is worth this many points.
constexpr int BODU_ZA_PRIKLAD = 10;

/// The wrong step for marks of the sketch that are not those that are given.
constexpr int CHYBA_ZNACKY = 16;

/// How the remainder of an unfinished construction's charge is worded.
enum class TvarBodu {
    VzdyBod,    ///< always "bod"
    PodleCisla  ///< "bod", "body", "bodů"
};

/// Charges the count of wrong elements: 1, 2 or 3 points for as many; nothing for none.
void UctujChybnePrvky(Misc& misc, int pocet);
/// Charges wrong marks one point; nothing when they are right, and nothing on an example that is
/// clean until now.
void UctujZnacky(Misc& misc, bool spravne);
/// Charges an unfinished construction 10 points; the text tells what was still to be lost.
void UctujNedokoncenou(Misc& misc, TvarBodu tvar);

/// How an example ended.
enum class Verdikt { Bezchybne, SChybami };

/// Settles the example by its penalty sum: plus and minus points of the session, 10 together.
Verdikt Vyuctuj(Misc& misc, bool hotova);

/// The grade, as text, for points won of all points. Of rows that overlap the last wins; a
/// percentage that no row covers gives the empty text. Both are bytes; celkem 0 is a fault.
[[nodiscard]] std::string UrciZnamku(const Misc& misc, int kladne, int celkem);

}  // namespace rysovna
