#pragma once

#include "rules/KatalogChyb.h"
#include "rules/Misc.h"

namespace rysovna {

/// Marks of the sketch that are not those that are given.
constexpr ChybaKroku CHYBA_ZNACKY = 16;
/// An unfinished construction, whatever was lost before.
constexpr ChybaKroku CHYBA_NEDOKONCENY_TROJUHELNIK = 300;
constexpr ChybaKroku CHYBA_NEDOKONCENA = CHYBA_NEDOKONCENY_TROJUHELNIK.Jinde();

/// Charges the count of wrong elements, up to three; nothing for none.
void UctujChybnePrvky(Misc& misc, int pocet);
/// Charges wrong marks; nothing when they are right, and nothing on an example that is
/// clean until now.
void UctujZnacky(Misc& misc, bool spravne);

/// Points won in the example: what is left of it, none if the construction is not closed.
[[nodiscard]] int BoduPrikladu(const Misc& misc, bool hotova);

/// How an example ended.
enum class Verdikt { Bezchybne, SChybami };

/// Settles the example by its penalty sum: plus and minus points of the session, 10 together.
Verdikt Vyuctuj(Misc& misc, bool hotova);

}  // namespace rysovna
