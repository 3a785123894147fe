// The player that has no mouse.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "engine/Tabulky.h"
#include "hrac/Relace.h"
#include "platform/Klavesnice.h"
#include "screens/DeskaForm.h"

namespace rysovna::hrac {
namespace {

/// Controls that a digit presses.
constexpr std::string_view CISLICEMI[] = {"cmd", "ComboLabel", "ICislo"};

int Daleko(Bod a, Bod b) {
    return std::abs(a.X - b.X) + std::abs(a.Y - b.Y);
}

}  // namespace

Obrazovky::Prsten Relace::Ring() {
    const auto prsten = Host().Okna().PrstenVpredu();
    if (!prsten) throw NejdeUdelat("na obrazovce " + JmenoVpredu() + " není prstenec");
    return *prsten;
}

void Relace::NaZastavku(std::string_view jmeno, int index) {
    const Ovladac& prvek = Prvek(jmeno, index);
    const std::size_t nejvyse = Zastavky(*Vpredu()).size() + 1;
    const auto ma = [&] {
        const auto prsten = Host().Okna().PrstenVpredu();
        return prsten && prsten->Co == &prvek;
    };
    // Now this way round, now that one.
    const int drzeno = ++stisku_ % 2 == 0 ? 0 : SHIFT;
    for (std::size_t i = 0; i < nejvyse && !ma(); ++i) Klavesa("Tab", drzeno);
    if (!ma()) {
        throw NejdeUdelat("klávesami se nedá dojít na " + std::string(jmeno) + "(" +
                          std::to_string(index) + ")");
    }
}

void Relace::StiskniKlavesami(std::string_view jmeno, int index, int dx, int dy) {
    const bool psani = Host().Okna().Psane() != nullptr;
    const bool cislici = std::ranges::find(CISLICEMI, jmeno) != std::end(CISLICEMI);
    if (cislici && !psani && ++stisku_ % 3 == 0) return Klavesa(std::to_string(index));
    NaZastavku(jmeno, index);
    if (jmeno == "SamplePic") {
        const auto& d = dynamic_cast<const DeskaForm&>(*Vpredu()).Dialogem();
        const Bod roh = Roh(Prvek(jmeno));
        const auto prvek = [&d](int x, int y) {
            return d.PrvekNacrtu(static_cast<float>(x), static_cast<float>(y));
        };
        const int chci = prvek(dx, dy);
        const auto ted = [&] {
            const Bod hrot = Ring().Hrot;
            return prvek(hrot.X - roh.X, hrot.Y - roh.Y);
        };
        for (std::size_t i = d.NacrtPrikladu().Prvky.size(); i > 0 && ted() != chci; --i)
            Klavesa("Right");
        if (ted() != chci) throw NejdeUdelat("šipkami se nedá dojít na prvek náčrtu");
    }
    Klavesa(++stisku_ % 2 == 0 && jmeno != "Pic" ? "Return" : "Space");
}

void Relace::SipkyNa(Bod kam) {
    constexpr int SKOK = 10;  // px of an arrow with Shift
    for (int i = 0; i < NAVRH_SIRKA + NAVRH_VYSKA; ++i) {
        const Bod hrot = Ring().Hrot;
        const Bod d{kam.X - hrot.X, kam.Y - hrot.Y};
        if (d == Bod{}) return;
        const bool vodorovne = d.X != 0;
        const int kolik = vodorovne ? d.X : d.Y;
        const std::string_view sipka =
            vodorovne ? (kolik > 0 ? "Right" : "Left") : (kolik > 0 ? "Down" : "Up");
        Klavesa(sipka, std::abs(kolik) >= SKOK ? SHIFT : 0);
        if (Ring().Hrot == hrot) break;
    }
    if (Ring().Hrot != kam) throw NejdeUdelat("kříž tam nedojde");
}

/// To a place of the plane: by the letter of a point that is nearer to it, the rest by arrows.
void Relace::KrizNa(Bod kam) {
    const Bod roh = Roh(Prvek("Pic"));
    const auto ted = [&] {
        const Bod hrot = Ring().Hrot;
        return Bod{hrot.X - roh.X, hrot.Y - roh.Y};
    };
    for (int i = 1; i <= Pamet().PocetTrojic; ++i) {
        const Trojice& t = Pamet().Trojice_tab[i];
        for (const auto& [jmeno, misto] :
             {std::pair{t.Jmeno1, Bod{t.X1, t.Y1}}, std::pair{t.Jmeno2, Bod{t.X2, t.Y2}}}) {
            if (jmeno.empty() || jmeno[0] < 'A' || jmeno[0] > 'Z') continue;
            if (Daleko(misto, kam) >= Daleko(ted(), kam)) continue;
            const std::string pismeno{static_cast<char>(jmeno[0] - 'A' + 'a')};
            // Points of one letter come in turn.
            for (int k = 0; k < Pamet().PocetTrojic && ted() != misto; ++k) Klavesa(pismeno);
        }
    }
    SipkyNa({roh.X + kam.X, roh.Y + kam.Y});
}

void Relace::TahniKlavesami(std::string_view jmeno, Bod odkud, Bod kam) {
    if (Host().Okna().Psane() != nullptr) Klavesa("Return");  // leads to the plane
    NaZastavku(jmeno);
    KrizNa(odkud);
    Klavesa("Space");
    if (!Host().Okna().DrziKlavesa()) return;  // a click was asked for
    KrizNa(kam);
    Klavesa("Space");
}

}  // namespace rysovna::hrac
