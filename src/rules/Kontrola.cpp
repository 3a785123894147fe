#include "rules/Kontrola.h"

#include <string>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "rules/Chyby.h"
#include "rules/Misc.h"

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

void UctujChybnePrvky(int pocet) {
    if (pocet >= 1 && pocet <= 3) PridejChybu(CHYBA_PRVKY, TEXTY_PRVKU[pocet - 1], pocet);
}

void UctujZnacky(bool spravne) {
    if (!spravne && SoucetZapornychBodu != 0) PridejChybu(CHYBA_ZNACKY, JEDEN_BOD, 1);
}

void UctujNedokoncenou(TvarBodu tvar) {
    const int zbyva = BODU_ZA_PRIKLAD - SoucetZapornychBodu;
    std::string text;
    if (zbyva > 0) text = "    -" + TextCisla(zbyva) + std::string(SlovoBodu(zbyva, tvar));
    PridejChybu(CHYBA_NEDOKONCENA, text, BODU_ZA_PRIKLAD);
}

Verdikt Vyuctuj(bool hotova) {
    const int soucet = SoucetZapornychBodu;
    const int minus = !hotova || soucet > BODU_ZA_PRIKLAD ? BODU_ZA_PRIKLAD : soucet;
    ZaporneBody = Bajt(ZaporneBody + minus);
    KladneBody = Bajt(KladneBody + BODU_ZA_PRIKLAD - minus);
    return hotova && soucet == 0 ? Verdikt::Bezchybne : Verdikt::SChybami;
}

std::string UrciZnamku(int kladne, int celkem) {
    const double citatel = Bajt(kladne);
    const double jmenovatel = Bajt(celkem);
    if (jmenovatel == 0) Selhani("Dělení nulou");
    const double procenta = citatel / jmenovatel * 100;
    std::string znamka;
    for (int i = 1; i <= decltype(ZnamkyTab)::POSLEDNI; ++i) {
        const auto& [dolni, horni, stupen] = ZnamkyTab[i];
        if (!(procenta > horni) && !(procenta < dolni)) znamka = TextBezMezery(stupen);
    }
    return znamka;
}

}  // namespace rysovna
