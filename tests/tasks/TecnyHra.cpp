#include "TecnyHra.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"
#include "shell/Ulohy.h"
#include "tasks/TecnyNacrt.h"

namespace rysovna::testy {
namespace {

/// What the perfect pupil does at a step. Where: the point from which a line starts, the centre of
/// a circle, both ends of a line between points or of a midpoint's segment.
struct Krok_ {
    int Tvar;
    std::string_view Radek = "", Od = "", K = "";
};
const std::map<std::string_view, std::vector<Krok_>> POSTUPY{
    {"01", {{4, "k přímce a", "S"}, {9}, {9}, {5, "s přímkou a", "A1"}, {5, "s přímkou a", "A2"}}},
    {"02", {{5, "s přímkou a", "S"}, {9}, {9}, {4, "k přímce b", "A1"}, {4, "k přímce b", "A2"}}},
    {"03",
     {{7, "", "S", "A"},
      {6, "kružnice l, střed v bodě B", "B"},
      {9},
      {9},
      {2, "přímka AT1", "A", "T1"},
      {2, "přímka AT2", "A", "T2"}}},
    {"04",
     {{4, "k přímce a", "A"}, {9}, {7, "", "A", "B"}, {6, "kružnice k, střed v bodě C", "C"}}},
    {"05",
     {{7, "", "A", "B"}, {4, "k úsečce AB", "C"}, {9}, {6, "kružnice k, střed v bodě D", "D"}}},
    {"06",
     {{7, "", "A", "B"},
      {4, "k úsečce AB", "C"},
      {4, "k přímce a", "B"},
      {9},
      {6, "kružnice k, střed v bodě D", "D"}}},
    {"07",
     {{4, "k přímce a", "A"}, {9}, {7, "", "A", "B"}, {6, "kružnice k, střed v bodě C", "C"}}},
    {"08", {{4, "k přímce a", "A"}, {9}, {6, "kružnice k, střed v bodě B", "B"}}},
    {"09",
     {{2, "přímka AS", "A", "S"},
      {9},
      {9},
      {7, "", "A", "B1"},
      {7, "", "A", "B2"},
      {6, "kružnice l1, střed v bodě S1", "S1"},
      {6, "kružnice l2, střed v bodě S2", "S2"}}},
};

struct V {
    double X, Y;
};
V Misto(std::string_view bod) {
    const Bod b = NajdiBod(bod);
    if (b == BEZ_BODU) throw std::runtime_error("není bod " + std::string(bod));
    return {static_cast<double>(b.X), static_cast<double>(b.Y)};
}
const Utvar& Cara(std::string_view jmeno) {
    const int i = NajdiCaru(jmeno);
    if (i == 0) throw std::runtime_error("není čára " + std::string(jmeno));
    return Utvary[i];
}
/// The direction of a line, one pixel long.
V Smer(const Utvar& u) {
    const double d = std::hypot(u.X2 - u.X1, u.Y2 - u.Y1);
    return {(u.X2 - u.X1) / d, (u.Y2 - u.Y1) / d};
}
Bod Pixel(double x, double y) {
    return {Zaokrouhli(x), Zaokrouhli(y)};
}
/// Where the line from p along s meets the drawn line.
Bod Prusecik(V p, V s, const Utvar& u) {
    const V t = Smer(u);
    const double k = ((u.X1 - p.X) * t.Y - (u.Y1 - p.Y) * t.X) / (s.X * t.Y - s.Y * t.X);
    return Pixel(p.X + k * s.X, p.Y + k * s.Y);
}
V Napric(V s) {
    return {-s.Y, s.X};
}

}  // namespace

TecnyHra::TecnyHra(std::string_view kod, std::uint32_t seminko) : kod_(kod) {
    if (!NactiKonfiguraci()) throw std::runtime_error("nejde načíst konfigurace");
    for (const Uloha& u : ULOHY) {
        if (u.deska != Deska::TecnyForm) continue;
        NactiPriklady(CestaHD + DveCislice(u.Cislo) + ".dat", u.deska);
        if (Priklady[1].Druh == kod) break;
        if (u.Cislo == 20) Priklady[1].Druh = kod;
    }
    Znovu(seminko);
}

void TecnyHra::Znovu(std::uint32_t seminko) {
    nahoda_.seed(seminko);
    Generator.Zasej(seminko);
    d.NovyPriklad();
    d.NoveZadani();
    const Cviceni* c = d.Hrane();
    if (c == nullptr) return;
    for (const PrvekNacrtuTecny& e : NacrtTecny(kod_)) {
        if ((c->PovinneZnacky & Znacka(e.Znacka)) == 0) continue;
        // The middle of a straight element, the left end of a circle, a point itself.
        const bool cara = e.Druh == PrvekNacrtuTecny::Tvar::Cara;
        const bool kruh = e.Druh == PrvekNacrtuTecny::Tvar::Kruh;
        for (float k = 0.31F; (d.Stav().Znacky & Znacka(e.Znacka)) == 0; k += 0.05F) {
            if (k > 6) throw std::runtime_error("nejde označit " + std::string(e.Jmeno));
            const float x = cara ? e.X1 + (e.X2 - e.X1) * (k - std::floor(k))
                                 : e.X1 - (kruh ? e.X2 * std::cos(k) : 0);
            const float y = cara ? e.Y1 + (e.Y2 - e.Y1) * (k - std::floor(k))
                                 : e.Y1 - (kruh ? e.X2 * std::sin(k) : 0);
            const std::uint32_t pred = d.Stav().Znacky;
            d.StiskNacrtu(x, y);
            if (d.Stav().Znacky != (pred | Znacka(e.Znacka)) && d.Stav().Znacky != pred) {
                d.StiskNacrtu(x, y);  // another element lies over it there
            }
        }
    }
}

TecnyHra& TecnyHra::Nastroj(int tvar) {
    const Panel p = P();
    for (int i = 0; i < 4; ++i) {
        const Tlacitko& t = p.cmd[static_cast<std::size_t>(i)];
        if (t.Tvar != tvar || !t.Zive) continue;
        d.StiskNastroje(i + 1);
        return *this;
    }
    throw std::runtime_error("nejde stisknout nástroj " + std::to_string(tvar) + " v kroku " +
                             std::to_string(Faze()) + " úlohy " + kod_);
}

TecnyHra& TecnyHra::Vyber(std::string_view radek) {
    const Seznam s = P().Combo;
    for (std::size_t i = 0; s.Otevreny && i < s.Radky.size(); ++i) {
        if (s.Radky[i].Text != radek) continue;
        d.VyberRadku(static_cast<int>(i) + 1);
        return *this;
    }
    throw std::runtime_error("v seznamu není: " + std::string(radek));
}

TecnyHra& TecnyHra::Klikni(Bod kde) {
    return Tahni(kde, kde);
}

TecnyHra& TecnyHra::Tahni(Bod odkud, Bod kam) {
    const auto f = [](int a) { return static_cast<float>(a); };
    d.StiskPlochy(f(odkud.X), f(odkud.Y));
    if (d.CekaNaKresleni()) d.PusteniPlochy(f(kam.X), f(kam.Y));
    return *this;
}

TecnyHra& TecnyHra::Zpet() {
    d.StiskNastroje(5);
    return *this;
}

std::vector<int> TecnyHra::Chyby() {
    std::vector<int> v;
    for (int i = 1; i <= PocetChybnychKroku; ++i) {
        v.push_back(static_cast<int>(rysovna::Cislo(ChybneKroky[i].Cislo)));
    }
    return v;
}

std::vector<Bod> TecnyHra::Kandidati() const {
    if (kod_ == "01" || kod_ == "02") {
        const Utvar& k = Cara("k");
        const V a = Smer(Cara("a"));
        const V s = kod_ == "01" ? Napric(a) : a;
        const double r = static_cast<double>(k.Polomer);
        return {Pixel(k.X1 + r * s.X, k.Y1 + r * s.Y), Pixel(k.X1 - r * s.X, k.Y1 - r * s.Y)};
    }
    if (kod_ == "03") {
        const V S = Misto("S");
        const V A = Misto("A");
        const double r = static_cast<double>(Cara("k").Polomer);
        const double sa = std::hypot(A.X - S.X, A.Y - S.Y);
        const double kam = std::atan2(A.Y - S.Y, A.X - S.X);
        const double u = std::acos(r / sa);
        return {Pixel(S.X + r * std::cos(kam + u), S.Y + r * std::sin(kam + u)),
                Pixel(S.X + r * std::cos(kam - u), S.Y + r * std::sin(kam - u))};
    }
    if (kod_ == "09") {
        const V S = Misto("S");
        const V A = Misto("A");
        const double sa = std::hypot(A.X - S.X, A.Y - S.Y);
        const double k = static_cast<double>(Cara("k2").Polomer) / sa;
        return {Pixel(S.X + k * (A.X - S.X), S.Y + k * (A.Y - S.Y)),
                Pixel(S.X - k * (A.X - S.X), S.Y - k * (A.Y - S.Y))};
    }
    if (kod_ == "04") return {Prusecik(Misto("A"), Napric(Smer(Cara("a"))), Cara("a"))};
    if (kod_ == "07" || kod_ == "08") {
        return {Prusecik(Misto("A"), Napric(Smer(Cara("a"))), Cara("b"))};
    }
    const V A = Misto("A");
    const V B = Misto("B");
    const V C{(A.X + B.X) / 2, (A.Y + B.Y) / 2};
    const V osa = Napric(Smer(Cara("AB")));
    if (kod_ == "05") return {Prusecik(C, osa, Cara("a"))};
    const V c = Napric(Smer(Cara("a")));
    Utvar kolmice;
    kolmice.X1 = Zaokrouhli(B.X * 1000);
    kolmice.Y1 = Zaokrouhli(B.Y * 1000);
    kolmice.X2 = Zaokrouhli((B.X + 100 * c.X) * 1000);
    kolmice.Y2 = Zaokrouhli((B.Y + 100 * c.Y) * 1000);
    const Bod D = Prusecik({C.X * 1000, C.Y * 1000}, osa, kolmice);
    return {Pixel(D.X / 1000.0, D.Y / 1000.0)};
}

void TecnyHra::SpravnyKrok() {
    const auto& postup = POSTUPY.at(kod_);
    const auto i = static_cast<std::size_t>(Faze() - 1);
    if (Osou && i == 0 && (kod_ == "05" || kod_ == "06")) {
        Nastroj(8).Vyber("úsečky AB");
        return;
    }
    Krok_ k = postup[i];
    // The other of two lines through points that were marked in turn.
    const bool dvojice = i + 2 >= postup.size() && (kod_ < "04");
    if (Obracene && dvojice) k = postup[2 * postup.size() - 3 - i];
    Nastroj(k.Tvar);
    if (!k.Radek.empty()) Vyber(k.Radek);
    const auto chvej = [this](Bod b, int o) {
        return Bod{b.X + Cislo(2 * o + 1) - o, b.Y + Cislo(2 * o + 1) - o};
    };
    const auto bod = [](std::string_view jmeno) { return NajdiBod(jmeno); };
    switch (k.Tvar) {
        case 9: {
            auto kam = Kandidati();
            if (kam.size() == 2) {
                const bool druhy = i > 0 && postup[i - 1].Tvar == 9;
                if (druhy != Obracene) std::swap(kam[0], kam[1]);
            }
            Klikni(chvej(kam[0], 5));
            break;
        }
        case 7: {
            const Bod a = bod(k.Od);
            const Bod b = bod(k.K);
            Klikni(chvej(Pixel((a.X + b.X) / 2.0, (a.Y + b.Y) / 2.0), 4));
            break;
        }
        case 6: {
            const Bod s = bod(k.Od);
            const Bod a = bod("A");
            const double r = std::hypot(s.X - a.X, s.Y - a.Y);
            const int smer = Cislo(2) == 0 ? 1 : -1;
            Tahni(Nahodne(), {s.X + smer * Zaokrouhli(r) + Cislo(5) - 2, Cislo(335)});
            break;
        }
        case 2:
            Tahni(chvej(bod(k.Od), 6), chvej(bod(k.K), 6));
            break;
        default:
            Tahni(chvej(bod(k.Od), 6), Nahodne());
    }
}

void TecnyHra::SpravneDo(int faze) {
    while (Faze() < faze) SpravnyKrok();
}

void TecnyHra::SpravneVse() {
    SpravneDo(static_cast<int>(POSTUPY.at(kod_).size()) + 1);
}

void TecnyHra::KrokVedle() {
    const Krok_& k = POSTUPY.at(kod_)[static_cast<std::size_t>(Faze() - 1)];
    Nastroj(k.Tvar);
    if (!k.Radek.empty() && P().Combo.Otevreny) Vyber(k.Radek);
    if (k.Tvar == 6) {
        const Bod s = NajdiBod(k.Od);
        const Bod a = NajdiBod("A");
        const int r = Zaokrouhli(std::hypot(s.X - a.X, s.Y - a.Y));
        Tahni(s, {s.X + r + 8, s.Y});
    } else if (k.Tvar == 9 || k.Tvar == 7) {
        Klikni({3, 3});
    } else if (k.Tvar == 2) {
        Tahni(NajdiBod(k.Od), {3, 3});
    } else {
        // Somewhere on the base where the line passes far from all points it could be meant for.
        const Utvar& z = Utvary[VybranyUtvar];
        const auto stranou = [&](Bod start, Bod bod) {
            const double dx = k.Tvar == 4 ? -(z.Y2 - z.Y1) : z.X2 - z.X1;
            const double dy = k.Tvar == 4 ? z.X2 - z.X1 : z.Y2 - z.Y1;
            return std::fabs(start.Y + (bod.X - start.X) * dy / dx - bod.Y);
        };
        for (;;) {
            const int x = Cislo(384);
            const Bod start{x, Zaokrouhli(z.Y1 + static_cast<double>(x - z.X1) * (z.Y2 - z.Y1) /
                                                     (z.X2 - z.X1))};
            bool dobre = start.Y > 0 && start.Y < 335;
            for (int i = 1; i <= PocetUtvaru; ++i) {
                const Utvar& u = Utvary[i];
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
