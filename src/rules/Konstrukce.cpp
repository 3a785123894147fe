#include "rules/Konstrukce.h"

#include "engine/Tabulky.h"
#include "rules/Misc.h"

namespace rysovna {

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
            Priklady[i].Kroky[k].Hotovo = NE;
    }
    PocetUtvaru = 0;
    PocetTrojic = 0;
    SoucetZapornychBodu = 0;
    PocetChybnychKroku = 0;
    VybranyUtvar = 0;
    KonstrukceZahajena = NE;
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

}  // namespace rysovna
