#include "rules/Konstrukce.h"

namespace rysovna {

void VyprazdniKonstrukci(Misc& misc, const Platna& platna) {
    for (Plane* p : {&platna.Pic, &platna.HidenPic}) {
        p->DrawWidth = 1;
        p->Cls();
    }
    for (int i = 0; i <= decltype(Misc::Utvary)::POSLEDNI; ++i) {
        misc.SmazRadekUtvaru(i);
        misc.SmazRadekTrojic(i);
    }
    misc.ChybneKroky.Smaz();
    for (int i = 1; i <= decltype(Misc::Priklady)::POSLEDNI; ++i) {
        for (int k = 1; k <= decltype(Priklad::Kroky)::POSLEDNI; ++k)
            misc.Priklady[i].Kroky[k].Hotovo = NE;
    }
    misc.PocetUtvaru = 0;
    misc.PocetTrojic = 0;
    misc.SoucetZapornychBodu = 0;
    misc.PocetChybnychKroku = 0;
    misc.VybranyUtvar = 0;
    misc.KonstrukceZahajena = NE;
    misc.PosunX = 0;
    misc.PosunY = 0;
}

void ZapomenZadanePrvky(Misc& misc) {
    constexpr int RADKU = 10;
    for (int i = 1; i <= RADKU; ++i) {
        misc.ZadanePrvky[i].Faze = 0;
        misc.ZadanePrvky[i].Utvar.clear();
        misc.ZadanePrvky[i].Prvek.clear();
    }
}

}  // namespace rysovna
