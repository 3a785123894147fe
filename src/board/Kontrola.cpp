#include "board/Kontrola.h"

#include <string>

#include "base/Cisla.h"
#include "engine/Sluzby.h"
#include "engine/Tabulky.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

namespace rysovna {

namespace {

constexpr int CHYBA_ZNACKY = 16;
constexpr int CHYBA_NEDOKONCENA = 300;
constexpr int CHYBA_PRVKY = 301;

constexpr std::string_view TEXTY_PRVKU[] = {JEDEN_BOD, DVA_BODY, TRI_BODY};

// Where a vertex's letter is looked for.
constexpr int ODSAZENI_X = -3;
constexpr int ODSAZENI_Y = 10;
constexpr int SIRKA_PISMENE = 12;
constexpr int DOSAH_PISMENE = 10;

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

void VyprazdniKonstrukci(const Platna& platna) {
    for (Plane* p : {&platna.Pic, &platna.HidenPic}) {
        p->DrawWidth = 1;
        p->Cls();
    }
    for (int i = 0; i <= decltype(Utvary)::POSLEDNI; ++i) {
        SmazRadekUtvaru(i);
        SmazRadekTrojic(i);
    }
    ChybneKroky.Smaz();
    for (int i = 1; i <= decltype(Priklady)::POSLEDNI; ++i) {
        for (int k = 1; k <= decltype(Priklad::Kroky)::POSLEDNI; ++k)
            Priklady[i].Kroky[k].Hotovo = 0;
    }
    PocetUtvaru = 0;
    PocetTrojic = 0;
    SoucetZapornychBodu = 0;
    PocetChybnychKroku = 0;
    VybranyUtvar = 0;
    KonstrukceZahajena = 0;
    PosunX = 0;
    PosunY = 0;
}

void ZapomenZadanePrvky() {
    constexpr int RADKU = 10;
    for (int i = 1; i <= RADKU; ++i) {
        ZadanePrvky[i].Faze = 0;
        ZadanePrvky[i].Utvar.clear();
        ZadanePrvky[i].Prvek.clear();
    }
}

void PopisVrchol(Plane& plocha, Bod vrchol, std::string_view pismeno) {
    Bod misto{vrchol.X + ODSAZENI_X, vrchol.Y + ODSAZENI_Y};
    VolneMisto(plocha, misto, SIRKA_PISMENE, DOSAH_PISMENE);
    plocha.CurrentX = static_cast<float>(misto.X);
    plocha.CurrentY = static_cast<float>(misto.Y);
    plocha.Print(pismeno);
}

}  // namespace rysovna
