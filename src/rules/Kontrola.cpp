#include "rules/Kontrola.h"

#include "base/Cisla.h"
#include "rules/Chyby.h"

namespace rysovna {

void UctujChybnePrvky(Misc& misc, int pocet) {
    const auto i = static_cast<std::size_t>(pocet - 1);
    if (i < katalog::CHYBNE_PRVKY.size()) PridejChybu(misc, katalog::CHYBNE_PRVKY[i]);
}

void UctujZnacky(Misc& misc, bool spravne) {
    if (!spravne && misc.SoucetZapornychBodu != 0) PridejChybu(misc, CHYBA_ZNACKY);
}

int BoduPrikladu(const Misc& misc, bool hotova) {
    const int soucet = misc.SoucetZapornychBodu;
    return !hotova || soucet > BODU_ZA_PRIKLAD ? 0 : BODU_ZA_PRIKLAD - soucet;
}

Verdikt Vyuctuj(Misc& misc, bool hotova) {
    const int bodu = BoduPrikladu(misc, hotova);
    misc.ZaporneBody = Bajt(misc.ZaporneBody + BODU_ZA_PRIKLAD - bodu);
    misc.KladneBody = Bajt(misc.KladneBody + bodu);
    return hotova && misc.SoucetZapornychBodu == 0 ? Verdikt::Bezchybne : Verdikt::SChybami;
}

}  // namespace rysovna
