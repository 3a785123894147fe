// The player that has a finger alone: it errs, shakes when it is lifted, and draws by the pad.

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "engine/Tabulky.h"
#include "hrac/Relace.h"
#include "platform/Dotyk.h"
#include "screens/DeskaForm.h"

namespace rysovna::hrac {
namespace {

constexpr int CHYBA = 6;   // px on each axis, of a tap
constexpr int CHVENI = 2;  // px, of the lifting

/// Where a drag ends that is to end there: a finger cannot leave the screen. The other side is as
/// far from the middle of a circle; a ray is let go sooner, on the pixel that lies best in its way.
Bod VDosahu(Bod odkud, Bod kam, Gesto::Tvar tvar) {
    const Obdelnik obrazovka{0, 0, NAVRH_SIRKA, NAVRH_VYSKA};
    if (obrazovka.Obsahuje(kam.X, kam.Y)) return kam;
    if (tvar == Gesto::Tvar::Kruznice) return {2 * odkud.X - kam.X, odkud.Y};
    constexpr int DILKU = 100;
    Bod nejlepsi = kam;
    int nejmin = std::numeric_limits<int>::max();
    const Bod d{kam.X - odkud.X, kam.Y - odkud.Y};
    for (int i = DILKU / 3; i < DILKU; ++i) {
        const Bod b{odkud.X + d.X * i / DILKU, odkud.Y + d.Y * i / DILKU};
        const int vedle = std::abs(d.X * (b.Y - odkud.Y) - d.Y * (b.X - odkud.X));
        if (!obrazovka.Obsahuje(b.X, b.Y) || vedle >= nejmin) continue;
        nejmin = vedle;
        nejlepsi = b;
    }
    return nejlepsi;
}

const Obrazovky::Ohlas* NajdiOhlas(const std::vector<Obrazovky::Ohlas>& ohlasy,
                                   Obrazovky::Ohlas::Druh co) {
    const auto o = std::ranges::find(ohlasy, co, &Obrazovky::Ohlas::Co);
    return o == ohlasy.end() ? nullptr : &*o;
}

}  // namespace

void Relace::Prst(std::string_view co, Bod kde) {
    const std::string udalost =
        "prst " + std::string(co) + " " + std::to_string(kde.X) + " " + std::to_string(kde.Y);
    Zapis(udalost);
    Obrazovky& okna = Host().Okna();
    const std::uint32_t ted = Host().TickCount();
    const auto x = static_cast<double>(kde.X);
    const auto y = static_cast<double>(kde.Y);
    if (co == "dolu") {
        okna.PrstDolu(x, y, ted);
    } else if (co == "nahoru") {
        okna.PrstNahoru(x, y, ted);
    } else {
        okna.PrstPohyb(x, y, ted);
    }
    Po(udalost);
}

/// Before a tap: one that follows at once is the second of a double one.
void Relace::Rozmysli() {
    Cekej(600);
}

void Relace::Klepni(Bod kam) {
    const Bod kde = los_.Vedle(kam, CHYBA);
    Prst("dolu", kde);
    Prst("pohyb", los_.Vedle(kde, CHVENI));
    Prst("nahoru", los_.Vedle(kde, CHVENI));
}

/// A drag on the plane. Who points by finger points at the point itself; on the empty plane there
/// is nothing to miss.
void Relace::TahniPrstem(Bod odkud, Bod kam) {
    constexpr int KROKU = 4;
    const Ovladac& pic = Prvek("Pic");
    const bool klik = pic.Klavesou == StiskKlavesou::Klik;  // a click is asked for
    const Bod roh = Roh(pic);
    const Dialog& dialog = dynamic_cast<const DeskaForm&>(*Vpredu()).Dialogem();
    const auto bod =
        dialog.ChytilBy(static_cast<float>(odkud.X), static_cast<float>(odkud.Y)).value_or(odkud);
    const Bod mirim{roh.X + bod.X, roh.Y + bod.Y};
    Bod zacatek = Pamet().PocetUtvaru == 0 ? mirim : los_.Vedle(mirim, CHYBA);
    zacatek.X = std::clamp(zacatek.X, roh.X, roh.X + pic.Width - 1);
    zacatek.Y = std::clamp(zacatek.Y, roh.Y, roh.Y + pic.Height - 1);
    Rozmysli();
    Prst("dolu", zacatek);
    if (klik || pic.Zastavka == 0) {
        Prst("pohyb", los_.Vedle(zacatek, CHVENI));
        return Prst("nahoru", los_.Vedle(zacatek, CHVENI));
    }
    const Bod cil =
        VDosahu(mirim, {roh.X + kam.X, roh.Y + kam.Y}, dialog.UkazPanel().Kresleni.Druh);
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
        const auto ohlasy = Host().Okna().OhlasyVpredu();
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
