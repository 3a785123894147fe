#include "zak/Tecny.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "rules/TecnyNacrt.h"
#include "zak/Rysovani.h"

namespace rysovna::hrac {
namespace {

using enum Nastroj;

constexpr int POKUSU = 60;     // to find a free line that is right
constexpr double NEJDAL = 10;  // px along Y by which it may miss its point; the board allows 14

const std::map<std::string_view, std::vector<KrokZaka>> POSTUPY{
    {"01",
     {{Kolmice, "k přímce a", "S", "", true},
      {Prusecik},
      {Prusecik},
      {Rovnobezka, "s přímkou a", "A1"},
      {Rovnobezka, "s přímkou a", "A2"}}},
    {"02",
     {{Rovnobezka, "s přímkou a", "S"},
      {Prusecik},
      {Prusecik},
      {Kolmice, "k přímce b", "A1"},
      {Kolmice, "k přímce b", "A2"}}},
    {"03",
     {{Stred, "", "S", "A"},
      {Kruznice, "kružnice l, střed v bodě B", "B"},
      {Prusecik},
      {Prusecik},
      {Primka, "přímka AT1", "A", "T1"},
      {Primka, "přímka AT2", "A", "T2"}}},
    {"04",
     {{Kolmice, "k přímce a", "A"},
      {Prusecik},
      {Stred, "", "A", "B"},
      {Kruznice, "kružnice k, střed v bodě C", "C"}}},
    {"05",
     {{Stred, "", "A", "B"},
      {Kolmice, "k úsečce AB", "C"},
      {Prusecik},
      {Kruznice, "kružnice k, střed v bodě D", "D"}}},
    {"06",
     {{Stred, "", "A", "B"},
      {Kolmice, "k úsečce AB", "C"},
      {Kolmice, "k přímce a", "B"},
      {Prusecik},
      {Kruznice, "kružnice k, střed v bodě D", "D"}}},
    {"07",
     {{Kolmice, "k přímce a", "A"},
      {Prusecik},
      {Stred, "", "A", "B"},
      {Kruznice, "kružnice k, střed v bodě C", "C"}}},
    {"08",
     {{Kolmice, "k přímce a", "A"}, {Prusecik}, {Kruznice, "kružnice k, střed v bodě B", "B"}}},
    {"09",
     {{Primka, "přímka AS", "A", "S"},
      {Prusecik},
      {Prusecik},
      {Stred, "", "A", "B1"},
      {Stred, "", "A", "B2"},
      {Kruznice, "kružnice l1, střed v bodě S1", "S1"},
      {Kruznice, "kružnice l2, střed v bodě S2", "S2"}}},
};

struct V {
    double X, Y;
};
V Misto(const Tabulky& t, std::string_view bod) {
    const Bod b = NajdiBod(t, bod);
    if (b == BEZ_BODU) throw NejdeUdelat("není bod " + std::string(bod));
    return {static_cast<double>(b.X), static_cast<double>(b.Y)};
}
const Utvar& Cara(const Tabulky& t, std::string_view jmeno) {
    const int i = NajdiCaru(t, jmeno);
    if (i == 0) throw NejdeUdelat("není čára " + std::string(jmeno));
    return t.Utvary[i];
}
/// The direction of a line, one pixel long.
V Smer(const Utvar& u) {
    const double d = std::hypot(u.X2 - u.X1, u.Y2 - u.Y1);
    return {(u.X2 - u.X1) / d, (u.Y2 - u.Y1) / d};
}
V Napric(V s) {
    return {-s.Y, s.X};
}
Bod Pixel(V v) {
    return {Zaokrouhli(v.X), Zaokrouhli(v.Y)};
}
V Dal(V od, V smer, double px) {
    return {od.X + px * smer.X, od.Y + px * smer.Y};
}
V PrusecikCar(V p, V s, V q, V t) {
    return Dal(p, s, ((q.X - p.X) * t.Y - (q.Y - p.Y) * t.X) / (s.X * t.Y - s.Y * t.X));
}
/// Where the line from p along s meets the drawn line.
Bod PrusecikCar(V p, V s, const Utvar& u) {
    const V q{static_cast<double>(u.X1), static_cast<double>(u.Y1)};
    return Pixel(PrusecikCar(p, s, q, Smer(u)));
}

/// A place of an element of the sketch, by a parameter: along a straight one, round the left half
/// of a circle; a point itself.
Bod NaNacrtu(const PrvekNacrtu& e, float k) {
    using Tvar = PrvekNacrtu::Tvar;
    const float cast = k - std::floor(k);
    V v{static_cast<double>(e.X1), static_cast<double>(e.Y1)};
    if (e.Druh == Tvar::Usecka) v = Dal(v, {e.X2 - e.X1, e.Y2 - e.Y1}, cast);
    if (e.Druh == Tvar::Kruznice) v = Dal(v, {-std::cos(k), -std::sin(k)}, e.Polomer);
    return Pixel(v);
}

}  // namespace

std::string DokonaleTecny::Kod() const {
    return ruka_.Pamet().Priklady[Dialogem().CisloPrikladu()].Druh;
}

const KrokZaka& DokonaleTecny::Krok() const {
    const auto& postup = POSTUPY.at(Kod());
    const auto i = static_cast<std::size_t>(Dialogem().Stav().Faze - 1);
    if (i >= postup.size()) throw NejdeUdelat("za posledním krokem úlohy " + Kod());
    return postup[i];
}

void DokonaleTecny::Oznac() {
    const Cviceni* c = Dialogem().Hrane();
    if (c == nullptr) return;
    const auto znacky = [this] { return Dialogem().Stav().Znacky; };
    const auto prvky = NacrtTecny(Kod()).Prvky;
    for (std::size_t i = 0; i < prvky.size(); ++i) {
        const PrvekNacrtu& e = prvky[i];
        const std::uint32_t znacka = 1U << i;
        if (std::ranges::find(c->Dane, e.Jmeno) == c->Dane.end()) continue;
        for (float k = static_cast<float>(los_.Cislo(100)) / 100; (znacky() & znacka) == 0;
             k += 0.05F) {
            if (k > 8) throw NejdeUdelat("nejde označit " + std::string(e.Jmeno));
            const std::uint32_t pred = znacky();
            const Bod b = NaNacrtu(e, k);
            ruka_.Oznac(b);
            // Another element lies over it there.
            if (znacky() != (pred | znacka) && znacky() != pred) ruka_.Oznac(b);
        }
    }
}

Ruka& DokonaleTecny::Nastroj(rysovna::Nastroj cim) {
    const MistaNastroju nastroje = ruka_.Hrany().UkazPanel().Nastroje;
    for (int i = 1; i < NASTROJ_ZPET; ++i) {
        const MistoNastroje& n = nastroje[static_cast<std::size_t>(i - 1)];
        if (n.Co == cim && n.Zivy()) return ruka_.Nastroj(i);
    }
    throw NejdeUdelat("nejde stisknout nástroj " + std::to_string(static_cast<int>(cim)) +
                      " v kroku " + std::to_string(Dialogem().Stav().Faze) + " úlohy " + Kod());
}

std::vector<Bod> DokonaleTecny::Kandidati() const {
    const Tabulky& t = ruka_.Pamet();
    const std::string kod = Kod();
    if (kod == "01" || kod == "02") {
        const Utvar& k = Cara(t, "k");
        const V a = Smer(Cara(t, "a"));
        const V s = kod == "01" ? Napric(a) : a;
        const V stred{static_cast<double>(k.X1), static_cast<double>(k.Y1)};
        const double r = static_cast<double>(k.Polomer);
        return {Pixel(Dal(stred, s, r)), Pixel(Dal(stred, s, -r))};
    }
    const V A = Misto(t, "A");
    if (kod == "03" || kod == "09") {
        const V S = Misto(t, "S");
        const double sa = std::hypot(A.X - S.X, A.Y - S.Y);
        const double kam = std::atan2(A.Y - S.Y, A.X - S.X);
        const auto pod = [&](double r, double uhel) {
            return Pixel(Dal(S, {std::cos(kam + uhel), std::sin(kam + uhel)}, r));
        };
        if (kod == "09") {
            const double r = static_cast<double>(Cara(t, "k2").Polomer);
            return {pod(r, 0), pod(-r, 0)};
        }
        const double r = static_cast<double>(Cara(t, "k").Polomer);
        return {pod(r, std::acos(r / sa)), pod(r, -std::acos(r / sa))};
    }
    const Utvar& a = Cara(t, "a");
    if (kod == "04") return {PrusecikCar(A, Napric(Smer(a)), a)};
    if (kod == "07" || kod == "08") return {PrusecikCar(A, Napric(Smer(a)), Cara(t, "b"))};
    const V B = Misto(t, "B");
    const V C{(A.X + B.X) / 2, (A.Y + B.Y) / 2};
    const V osa = Napric(Smer(Cara(t, "AB")));
    if (kod == "05") return {PrusecikCar(C, osa, a)};
    return {Pixel(PrusecikCar(C, osa, B, Napric(Smer(a))))};
}

void DokonaleTecny::SpravnyKrok() {
    const std::string kod = Kod();
    const auto& postup = POSTUPY.at(kod);
    const auto i = static_cast<std::size_t>(Dialogem().Stav().Faze - 1);
    if (Osou && i == 0 && (kod == "05" || kod == "06")) {
        Nastroj(Osa).Vyber("úsečky AB");
        return;
    }
    // The other of two lines through points that were marked in turn.
    const bool dvojice = i + 2 >= postup.size() && kod < "04";
    const bool druhy = i > 0 && postup[i - 1].Cim == Prusecik;
    Proved(Obracene && dvojice ? postup[2 * postup.size() - 3 - i] : Krok(), druhy);
}

/// druhy: of two crossings this is the second.
void DokonaleTecny::Proved(const KrokZaka& k, bool druhy) {
    Nastroj(k.Cim);
    if (!k.Radek.empty()) ruka_.Vyber(k.Radek);
    if (k.Cim == Prusecik) {
        const auto kam = Kandidati();
        ruka_.Klikni(los_.Vedle(kam.size() == 2 && druhy != Obracene ? kam[1] : kam[0], 3));
        return;
    }
    const Bod od = NajdiBod(ruka_.Pamet(), k.Od);
    if (k.Cim == Stred) {
        const Bod b = NajdiBod(ruka_.Pamet(), k.K);
        ruka_.Klikni(los_.Vedle(Pixel({(od.X + b.X) / 2.0, (od.Y + b.Y) / 2.0}), 4));
    } else if (k.Cim == Kruznice) {
        const Bod a = NajdiBod(ruka_.Pamet(), "A");
        const int r = Zaokrouhli(std::hypot(od.X - a.X, od.Y - a.Y));
        const Bod stisk = Nahodne();
        ruka_.Tahni(stisk, NaKruznici(los_, od, r + los_.Mezi(-2, 2)));
    } else if (k.Cim == Primka) {
        const Bod stisk = los_.Vedle(od, CHYTNE);
        ruka_.Tahni(stisk, los_.Vedle(NajdiBod(ruka_.Pamet(), k.K), CHYTNE));
    } else {
        NarysujPrimku(k);
    }
}

/// A perpendicular or parallel: half of them free, where a free one is right.
void DokonaleTecny::NarysujPrimku(const KrokZaka& k) {
    Bod odkud = los_.Vedle(NajdiBod(ruka_.Pamet(), k.Od), CHYTNE);
    Bod kam = Nahodne();
    // Beside a point a pixel may decide.
    if (!k.JenZBodu && los_.Ano() && ruka_.Presna()) (void)NajdiVolnyTah(k, odkud, kam);
    ruka_.Tahni(odkud, kam);
}

/// A drag that catches no point and yet makes a line past its point by a few pixels. A
/// perpendicular stands where the base has the press's X, a parallel goes to the pointer.
bool DokonaleTecny::NajdiVolnyTah(const KrokZaka& k, Bod& odkud, Bod& kam) {
    const V bod = Misto(ruka_.Pamet(), k.Od);
    const std::string_view radek = k.Radek;
    const int cislo = NajdiCaru(ruka_.Pamet(), radek.substr(radek.rfind(' ') + 1));
    const Utvar& zakladna = ruka_.Pamet().Utvary[cislo];
    const bool kolmo = k.Cim == Kolmice;
    const auto chyti = [this, cislo, kolmo](Bod b) {
        const auto blizko = [b](int x, int y) {
            return std::abs(b.X - x) <= CHYTNE && std::abs(b.Y - y) <= CHYTNE;
        };
        for (int i = 1; i <= ruka_.Pamet().PocetTrojic; ++i) {
            const Trojice& t = ruka_.Pamet().Trojice_tab[i];
            if (i == cislo && !kolmo) continue;  // no parallel from the points of its own base
            if (blizko(t.X1, t.Y1) || (!t.Jmeno2.empty() && blizko(t.X2, t.Y2))) return true;
        }
        return false;
    };
    const V z{static_cast<double>(zakladna.X1), static_cast<double>(zakladna.Y1)};
    const V smer = Smer(zakladna);
    const V cara = kolmo ? Napric(smer) : smer;
    if (std::fabs(smer.X) < 0.1 || std::fabs(cara.X) < 0.1) return false;  // nearly upright
    const double pata = (bod.X - z.X) * smer.X + (bod.Y - z.Y) * smer.Y;
    for (int i = 0; i < POKUSU; ++i) {
        const int mimo = los_.Mezi(-6, 6);
        const Bod stisk{kolmo ? Pixel(Dal(z, smer, pata + mimo)).X : los_.Mezi(30, 355),
                        los_.Mezi(30, 305)};
        const Bod pustit =
            kolmo ? Nahodne()
                  : Pixel(Dal(Dal(bod, smer, los_.Mezi(-150, 150)), Napric(smer), mimo));
        if (std::abs(mimo) > NEJDAL * std::fabs(cara.X)) continue;
        if (!NaPlose(stisk) || !NaPlose(pustit) || chyti(stisk)) continue;
        odkud = stisk;
        kam = pustit;
        return true;
    }
    return false;
}

void DokonaleTecny::SpravneDo(int faze) {
    const auto ted = [this] { return Dialogem().Stav().Faze; };
    while (ted() < faze) {
        const int pred = ted();
        SpravnyKrok();
        if (ted() == pred) throw NejdeUdelat("krok " + std::to_string(pred) + " se nepodařil");
    }
}

void DokonaleTecny::SpravneVse() {
    SpravneDo(static_cast<int>(POSTUPY.at(Kod()).size()) + 1);
}

void DokonaleTecny::Sestroj() {
    Osou = los_.Ano();
    Obracene = los_.Ano();
    Oznac();
    ruka_.ZasunPanel();
    SpravneVse();
}

}  // namespace rysovna::hrac
