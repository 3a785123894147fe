#include "rules/Kontrola.h"

#include <string>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "rules/Chyby.h"

namespace rysovna {

namespace {

constexpr int CHYBA_NEDOKONCENA = 300;
constexpr int CHYBA_PRVKY = 301;

constexpr std::string_view TEXTY_PRVKU[] = {JEDEN_BOD, DVA_BODY, TRI_BODY};

std::string_view SlovoBodu(int n, TvarBodu tvar) {
    if (tvar == TvarBodu::VzdyBod || n == 1) return " bod";
    return n >= 2 && n <= 4 ? " body" : " bodů";
}

}  // namespace

void UctujChybnePrvky(Misc& misc, int pocet) {
    if (pocet >= 1 && pocet <= 3) PridejChybu(misc, CHYBA_PRVKY, TEXTY_PRVKU[pocet - 1], pocet);
}

void UctujZnacky(Misc& misc, bool spravne) {
    if (!spravne && misc.SoucetZapornychBodu != 0) PridejChybu(misc, CHYBA_ZNACKY, JEDEN_BOD, 1);
}

void UctujNedokoncenou(Misc& misc, TvarBodu tvar) {
    const int zbyva = BODU_ZA_PRIKLAD - misc.SoucetZapornychBodu;
    std::string text;
    if (zbyva > 0) text = "    -" + TextCisla(zbyva) + std::string(SlovoBodu(zbyva, tvar));
    PridejChybu(misc, CHYBA_NEDOKONCENA, text, BODU_ZA_PRIKLAD);
}

Verdikt Vyuctuj(Misc& misc, bool hotova) {
    const int soucet = misc.SoucetZapornychBodu;
    const int minus = !hotova || soucet > BODU_ZA_PRIKLAD ? BODU_ZA_PRIKLAD : soucet;
    misc.ZaporneBody = Bajt(misc.ZaporneBody + minus);
    misc.KladneBody = Bajt(misc.KladneBody + BODU_ZA_PRIKLAD - minus);
    return hotova && soucet == 0 ? Verdikt::Bezchybne : Verdikt::SChybami;
}

std::string UrciZnamku(const Misc& misc, int kladne, int celkem) {
    const double citatel = Bajt(kladne);
    const double jmenovatel = Bajt(celkem);
    if (jmenovatel == 0) Selhani("Dělení nulou");
    const double procenta = citatel / jmenovatel * 100;
    std::string znamka;
    for (int i = 1; i <= decltype(Misc::ZnamkyTab)::POSLEDNI; ++i) {
        const auto& [dolni, horni, stupen] = misc.ZnamkyTab[i];
        if (!(procenta > horni) && !(procenta < dolni)) znamka = TextBezMezery(stupen);
    }
    return znamka;
}

}  // namespace rysovna
