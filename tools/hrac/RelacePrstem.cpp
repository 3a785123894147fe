// The player that has a finger alone: it errs, shakes when it is lifted, and draws by the pad.

#include <algorithm>
#include <cstdlib>

#include "engine/Tabulky.h"
#include "hrac/Relace.h"
#include "platform/Dotyk.h"

namespace rysovna::hrac {
namespace {

constexpr int CHYBA = 6;   // px on each axis, of a tap
constexpr int CHVENI = 2;  // px, of the lifting

const Obrazovky::Ohlas* NajdiOhlas(const std::vector<Obrazovky::Ohlas>& ohlasy,
                                   Obrazovky::Ohlas::Druh co) {
    const auto o = std::ranges::find(ohlasy, co, &Obrazovky::Ohlas::Co);
    return o == ohlasy.end() ? nullptr : &*o;
}

}  // namespace

void Relace::Prst(std::string_view co, Bod kde) {
    Zapis("prst " + std::string(co) + " " + std::to_string(kde.X) + " " + std::to_string(kde.Y));
    Obrazovky& okna = host_.Okna();
    const std::uint32_t ted = host_.TickCount();
    const auto x = static_cast<double>(kde.X);
    const auto y = static_cast<double>(kde.Y);
    if (co == "dolu") {
        okna.PrstDolu(x, y, ted);
    } else if (co == "nahoru") {
        okna.PrstNahoru(x, y, ted);
    } else {
        okna.PrstPohyb(x, y, ted);
    }
}

void Relace::Klepni(Bod kam) {
    const Bod kde = los_.Vedle(kam, CHYBA);
    Prst("dolu", kde);
    Prst("pohyb", los_.Vedle(kde, CHVENI));
    Prst("nahoru", los_.Vedle(kde, CHVENI));
}

/// A drag on the plane. The first one begins where it happens to: the figure that the player has in
/// mind goes with it.
void Relace::TahniPrstem(Bod odkud, Bod kam) {
    constexpr int KROKU = 4;
    const Ovladac& pic = Prvek("Pic");
    const bool klik = pic.Klavesou == StiskKlavesou::Klik;  // a click is asked for
    const Bod roh = Roh(pic);
    const auto naNavrhu = [&](Bod b) {
        return Bod{roh.X + b.X + posunFigury_.X, roh.Y + b.Y + posunFigury_.Y};
    };
    if (PocetUtvaru == 0) posunFigury_ = los_.Vedle({}, CHYBA);
    const Bod zacatek = PocetUtvaru == 0 ? naNavrhu(odkud) : los_.Vedle(naNavrhu(odkud), CHYBA);
    Prst("dolu", zacatek);
    if (klik || pic.Zastavka == 0) {
        Prst("pohyb", los_.Vedle(zacatek, CHVENI));
        return Prst("nahoru", los_.Vedle(zacatek, CHVENI));
    }
    const Bod cil = naNavrhu(kam);
    for (int i = 1; i <= KROKU; ++i) {
        const Bod cestou{zacatek.X + (cil.X - zacatek.X) * i / KROKU,
                         zacatek.Y + (cil.Y - zacatek.Y) * i / KROKU};
        Prst("pohyb", los_.Vedle(cestou, CHYBA));
    }
    const Bod konec = los_.Vedle(cil, CHYBA);
    Prst("pohyb", konec);
    Cekej(100);
    Prst("pohyb", los_.Vedle(konec, CHVENI));
    Prst("nahoru", los_.Vedle(konec, CHVENI));
    DotahniPodlozkou(cil);
}

void Relace::DotahniPodlozkou(Bod kam) {
    using Druh = Obrazovky::Ohlas::Druh;
    constexpr int NEJVYSE = 200;
    for (int i = 0; i < NEJVYSE; ++i) {
        const auto ohlasy = host_.Okna().OhlasyVpredu();
        const auto* pad = NajdiOhlas(ohlasy, Druh::Podlozka);
        const auto* konec = NajdiOhlas(ohlasy, Druh::Konec);
        if (pad == nullptr || konec == nullptr) throw NejdeUdelat("podložka není vidět");
        const Bod d{kam.X - konec->Kde.Left, kam.Y - konec->Kde.Top};
        const Bod stred{pad->Kde.Left + Podlozka::STRANA / 2, pad->Kde.Top + Podlozka::STRANA / 2};
        if (d == Bod{}) return Klepni(stred);
        const bool vodorovne = d.Y == 0 || (d.X != 0 && los_.Ano());
        const auto krok = [](int n) { return n > 0 ? 1 : -1; };
        const Bod smer = vodorovne ? Bod{krok(d.X), 0} : Bod{0, krok(d.Y)};
        Klepni({stred.X + smer.X * Podlozka::POLE, stred.Y + smer.Y * Podlozka::POLE});
    }
    throw NejdeUdelat("konec tahu se nedá dotáhnout na místo");
}

}  // namespace rysovna::hrac
