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

SnimekKonstrukce::SnimekKonstrukce(const Tabulky& t) {
    for (int i = 1; i <= t.PocetUtvaru; ++i) utvary_.push_back(t.Utvary[i]);
    for (int i = 1; i <= t.PocetTrojic; ++i) trojice_.push_back(t.Trojice_tab[i]);
}

void SnimekKonstrukce::Vrat(Tabulky& t) const {
    t.PocetUtvaru = t.PocetTrojic = 0;
    for (const Utvar& u : utvary_) t.Utvary[++t.PocetUtvaru] = u;
    for (const Trojice& r : trojice_) t.Trojice_tab[++t.PocetTrojic] = r;
}

void SnimekKonstrukce::Posun(int dx, int dy) {
    for (Utvar& u : utvary_) rysovna::Posun(u, dx, dy);
    for (Trojice& t : trojice_) rysovna::Posun(t, dx, dy);
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
