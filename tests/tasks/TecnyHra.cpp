#include "TecnyHra.h"

#include <cmath>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "rules/Misc.h"

namespace rysovna::testy {
namespace {

/// The task of each exercise, "01" first.
constexpr int ULOHY_CVICENI[] = {18, 19, 20, 12, 13, 16, 14, 15, 17};

int UlohaCviceni(std::string_view kod) {
    const int i = static_cast<int>(rysovna::Cislo(std::string(kod)));
    return ULOHY_CVICENI[i == 0 ? 0 : i - 1];
}

}  // namespace

TecnyHra::TecnyHra(std::string_view kod, std::uint32_t seminko) : Stul(UlohaCviceni(kod)) {
    if (kod == "00") Pamet().Priklady[1].Druh = kod;  // no task has it
    Znovu(seminko);
}

void TecnyHra::Znovu(std::uint32_t seminko) {
    zak.Zasej(seminko);
    Zacni(seminko);
    zak.Oznac();
}

std::vector<int> TecnyHra::Chyby() const {
    std::vector<int> v;
    for (int i = 1; i <= Pamet().PocetChybnychKroku; ++i) {
        v.push_back(static_cast<int>(rysovna::Cislo(Pamet().ChybneKroky[i].Cislo)));
    }
    return v;
}

Otisk::Otisk(const TecnyHra& hra) : Stav(hra.dialog.Stav()), P(hra.P()) {
    const Misc& misc = hra.dialog.Pamet();
    for (int i = 1; i <= misc.PocetUtvaru; ++i) {
        Utvary_.push_back(misc.Utvary[i]);
        // Any redraw takes a line's direction anew, from the point at the margin.
        if (misc.Utvary[i].Druh != USECKA) Utvary_.back().Smer = 0;
    }
    for (int i = 1; i <= misc.PocetTrojic; ++i) Trojice_.push_back(misc.Trojice_tab[i]);
    for (int i = 1; i <= 10; ++i) Prvky.push_back(misc.ZadanePrvky[i]);
    for (int i = 1; i <= 8; ++i) Hotovo.push_back(hra.Zaznam().Kroky[i].Hotovo);
}

std::string Otisk::Rozdil(const Otisk& jiny) const {
    StavTecny stav = Stav;
    stav.Zpatky = jiny.Stav.Zpatky;
    std::string rozdil;
    if (!(Utvary_ == jiny.Utvary_)) rozdil += "objects ";
    if (!(Trojice_ == jiny.Trojice_)) rozdil += "snap records ";
    if (!(Prvky == jiny.Prvky)) rozdil += "what was entered ";
    if (Hotovo != jiny.Hotovo) rozdil += "what is done ";
    if (!(stav == jiny.Stav)) rozdil += "the dialogue's record ";
    return rozdil;
}

void TecnyHra::KrokVedle() {
    const KrokZaka k = zak.Krok();
    zak.Nastroj(k.Cim);
    if (!k.Radek.empty() && P().Vyber.Otevreny) Vyber(k.Radek);
    if (k.Cim == Nastroj::Kruznice) {
        const Bod s = NajdiBod(Pamet(), k.Od);
        const Bod a = NajdiBod(Pamet(), "A");
        const int r = Zaokrouhli(std::hypot(s.X - a.X, s.Y - a.Y));
        Tahni(s, {s.X + r + 8, s.Y});
    } else if (k.Cim == Nastroj::Prusecik || k.Cim == Nastroj::Stred) {
        Klikni({3, 3});
    } else if (k.Cim == Nastroj::Primka) {
        Tahni(NajdiBod(Pamet(), k.Od), {3, 3});
    } else {
        // Somewhere on the base where the line passes far from all points it could be meant for.
        const Utvar& z = Pamet().Utvary[Pamet().VybranyUtvar];
        const auto stranou = [&](Bod start, Bod bod) {
            const double dx = k.Cim == Nastroj::Kolmice ? -(z.Y2 - z.Y1) : z.X2 - z.X1;
            const double dy = k.Cim == Nastroj::Kolmice ? z.X2 - z.X1 : z.Y2 - z.Y1;
            return std::fabs(start.Y + (bod.X - start.X) * dy / dx - bod.Y);
        };
        for (;;) {
            const int x = zak.Cislo(384);
            const Bod start{x, Zaokrouhli(z.Y1 + static_cast<double>(x - z.X1) * (z.Y2 - z.Y1) /
                                                     (z.X2 - z.X1))};
            bool dobre = start.Y > 0 && start.Y < 335;
            for (int i = 1; i <= Pamet().PocetUtvaru; ++i) {
                const Utvar& u = Pamet().Utvary[i];
                for (const Bod b : {Bod{u.X1, u.Y1}, Bod{u.X2, u.Y2}}) {
                    if (std::abs(b.X - start.X) < 9 && std::abs(b.Y - start.Y) < 9) dobre = false;
                }
                if (u.Druh == BOD && stranou(start, {u.X1, u.Y1}) < 20) dobre = false;
                if (u.Druh == USECKA && stranou(start, {u.X2, u.Y2}) < 20) dobre = false;
            }
            if (!dobre) continue;
            Tahni(start, start);
            return;
        }
    }
}

}  // namespace rysovna::testy
