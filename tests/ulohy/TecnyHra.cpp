#include "TecnyHra.h"

#include "rules/Misc.h"

namespace rysovna::testy {
namespace {

/// The task of each exercise, "01" first.
constexpr int ULOHY_CVICENI[] = {18, 19, 20, 12, 13, 16, 14, 15, 17};

}  // namespace

TecnyHra::TecnyHra(std::string_view kod, std::uint32_t seminko, int krok)
    : Stul(ULOHY_CVICENI[kod == "00" ? 0 : kod[1] - '1']) {
    if (kod == "00") Pamet().Priklady[1].Druh = kod;  // no task has it
    Znovu(seminko);
    zak.SpravneDo(krok);
}

void TecnyHra::Znovu(std::uint32_t seminko) {
    zak.Zasej(seminko);
    Zacni(seminko);
    zak.Oznac();
}

TecnyHra& TecnyHra::Narysuj(rysovna::Nastroj cim, std::string_view radek, Bod od, Bod kam) {
    zak.Nastroj(cim).Vyber(radek).Tahni(od, kam);
    return *this;
}

TecnyHra& TecnyHra::Narysuj(rysovna::Nastroj cim, std::string_view radek, std::string_view od,
                            std::string_view kam) {
    return Narysuj(cim, radek, Misto(od), Misto(kam));
}

Otisk::Otisk(const TecnyHra& hra) : Stav(hra.dialog.Stav()) {
    const Misc& misc = hra.dialog.Pamet();
    for (int i = 1; i <= misc.PocetUtvaru; ++i) {
        Utvary.push_back(misc.Utvary[i]);
        // Any redraw takes a line's direction anew, from the point at the margin.
        if (misc.Utvary[i].Druh != USECKA) Utvary.back().Smer = 0;
    }
    for (int i = 1; i <= misc.PocetTrojic; ++i) Zachyty.push_back(misc.Trojice_tab[i]);
    for (int i = 1; i <= 10; ++i) Prvky.push_back(misc.ZadanePrvky[i]);
    for (int i = 1; i <= 8; ++i) Hotovo.push_back(hra.Zaznam().Kroky[i].Hotovo);
    Stav.Zpatky = false;
}

}  // namespace rysovna::testy
