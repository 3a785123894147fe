#include <benchmark/benchmark.h>
#include <string>

#include "Mereni.h"
#include "base/Pixely.h"
#include "base/Rastr.h"
#include "engine/Kresleni.h"
#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "engine/Prekresleni.h"
#include "engine/Tabulky.h"
#include "engine/VolneMisto.h"
#include "hrac/Relace.h"
#include "platform/Bitmapa.h"
#include "platform/Pisma.h"
#include "podpora/Konstrukce.h"
#include "podpora/ProsteHledani.h"
#include "podpora/ZaznamPlane.h"

using namespace rysovna;
using namespace rysovna::testy;

namespace {

constexpr int SIRKA = 12;
constexpr int DOSAH = 10;
constexpr Bod MISTO{190, 160};

/// Planes for the label search, each with the point where it begins.
struct Pripad {
    PametovaPlocha plocha{SIRKA_PLOCHY, VYSKA_PLOCHY};
    Bod bod = MISTO;
};

Pripad Prazdna() {
    return {};
}

/// A finished triangle; the label of B, at the crossing of a side and two circles.
Pripad Hotova() {
    Pripad p;
    Tabulky t;
    NakresliTrojuhelnik(t, p.plocha);
    p.bod = {240 - 3, 250 + 10};
    return p;
}

/// Every box fails, and only at its last pixel.
Pripad Nejhorsi() {
    Pripad p;
    for (int i = -DOSAH; i <= DOSAH; ++i) {
        for (int j = -DOSAH; j <= DOSAH; ++j) {
            p.plocha.PSet(MISTO.X + i + SIRKA, MISTO.Y + j + VYSKA_POPISU, CERNA);
        }
    }
    return p;
}

/// The first box fails at its first pixel and the second is free: the plain scan reads next to
/// nothing.
Pripad DruhaVolna() {
    Pripad p;
    p.plocha.PSet(MISTO.X - DOSAH - 1, MISTO.Y - DOSAH - 1, CERNA);
    return p;
}

/// Nothing is white: every box fails at its first pixel.
Pripad Cerna() {
    Pripad p;
    for (int y = 0; y < VYSKA_PLOCHY; ++y) {
        for (int x = 0; x < SIRKA_PLOCHY; ++x) p.plocha.PSet(x, y, CERNA);
    }
    return p;
}

/// Time of the label search with the counter proste_ku_VolneMisto: how many times longer the plain
/// scan takes on the same plane.
void HledaniMista(benchmark::State& state, Pripad (*vyrob)()) {
    Pripad p = vyrob();
    Plane& plane = p.plocha;
    const auto rychle = [&] {
        Bod bod = p.bod;
        VolneMisto(plane, bod, SIRKA, DOSAH);
        benchmark::DoNotOptimize(bod);
    };
    const auto proste = [&] {
        Bod bod = p.bod;
        ProsteHledani(plane, bod, SIRKA, DOSAH);
        benchmark::DoNotOptimize(bod);
    };
    const double pomer = PomerCasu(proste, rychle);
    for (auto _ : state) rychle();
    state.counters["proste_ku_VolneMisto"] = pomer;
}
BENCHMARK_CAPTURE(HledaniMista, prazdna, &Prazdna);
BENCHMARK_CAPTURE(HledaniMista, hotova, &Hotova);
BENCHMARK_CAPTURE(HledaniMista, nejhorsi, &Nejhorsi);
BENCHMARK_CAPTURE(HledaniMista, druha_volna, &DruhaVolna);
BENCHMARK_CAPTURE(HledaniMista, cerna, &Cerna);

/// Sets the pixels of a line or circle in a bitmap.
auto Vybarvi(const Vyhled& cil) {
    return [cil](const Obdelnik& o) {
        VyplnRadky(cil.Radka(o.Top) + o.Left, cil.Krok, o.Width, o.Height, DoPixelu(CERNA));
    };
}

/// A bitmap that is drawn on as a board's plane is, with no list beside it.
struct HolaPlocha {
    HolaPlocha(int sirka, int vyska, Pismo pismo)
        : Bity(sirka, vyska, DoPixelu(BILA)), Font(pismo) {}
    void Cls() {
        const Vyhled cil = Bity.Pohled();
        cil.Vypln(cil.Meze(), DoPixelu(BILA));
    }
    void Line(float x1, float y1, float x2, float y2) {
        const Vyhled cil = Bity.Pohled();
        RastrUsecka(x1, y1, x2, y2, DrawWidth, cil.Meze(), Vybarvi(cil));
    }
    void Circle(float x, float y, float r) {
        const Vyhled cil = Bity.Pohled();
        RastrKruznice(x, y, r, DrawWidth, cil.Meze(), Vybarvi(cil));
    }
    void Print(std::string_view text) {
        const Vyhled cil = Bity.Pohled();
        KresliText(cil, cil.Meze(), CurrentX, CurrentY, 1, Font, text, DoPixelu(CERNA),
                   Hladkost::Logicka);
    }
    void Prevezmi(const HolaPlocha& zdroj) {
        const Vyhled cil = Bity.Pohled();
        Prenes(cil, cil.Meze(), cil.Meze(), zdroj.Bity, 0, 0, Prenos::Kopie);
    }

    Bitmapa Bity;
    Pismo Font;
    int DrawWidth = 1;
    float CurrentX = 0, CurrentY = 0;
};

/// The same for texts that are blocks.
struct HolaPamet : PametovaPlocha {
    using PametovaPlocha::PametovaPlocha;
    void Prevezmi(const HolaPamet& zdroj) {
        // The same picture again would be spared.
        PSet(0, 0, CERNA);
        BitBlt(0, 0, zdroj.Width(), zdroj.Height(), zdroj, 0, 0, Rop::SrcCopy);
    }
};

/// Redraw of 100 objects of all kinds, with the counter ku_samotnym_caram: how many times longer
/// it takes than the same clearing, lines, circles, texts and three copies on bare planes, which
/// keep no list, with no label search.
template <class Hola>
void Prekresleni(benchmark::State& state, Plane& hiden, Plane& pic, Hola zdroj, Hola cil) {
    Tabulky t;
    NakresliNahodne(t, pic, 100, 1);
    ZaznamPlane zaznam(pic.Width(), pic.Height());
    PrekresliVse(t, zaznam, pic);

    const auto vse = [&] { PrekresliVse(t, hiden, pic); };
    const auto samotne = [&] {
        zdroj.Cls();
        for (const auto& c : zaznam.carky) {
            zdroj.DrawWidth = c.pero;
            zdroj.Line(c.x1, c.y1, c.x2, c.y2);
        }
        for (const auto& k : zaznam.kruhy) zdroj.Circle(k.x, k.y, k.r);
        for (const auto& n : zaznam.napisy) {
            zdroj.CurrentX = n.x;
            zdroj.CurrentY = n.y;
            zdroj.Print(n.text);
        }
        for (int i = 0; i < 3; ++i) cil.Prevezmi(zdroj);
    };
    const double pomer = PomerCasu(vse, samotne);
    for (auto _ : state) vse();
    state.counters["ku_samotnym_caram"] = pomer;
    state.counters["utvaru"] = t.PocetUtvaru;
}

/// On the planes in memory that the rules' tests play on: a label is a few filled blocks there.
void PrekresleniVPameti(benchmark::State& state) {
    PametovaPlocha hiden(SIRKA_PLOCHY, VYSKA_PLOCHY), pic(SIRKA_PLOCHY, VYSKA_PLOCHY);
    const HolaPamet hola(SIRKA_PLOCHY, VYSKA_PLOCHY);
    Prekresleni(state, hiden, pic, hola, hola);
}
BENCHMARK(PrekresleniVPameti)->Unit(benchmark::kMicrosecond);

/// On the planes of a board that is being played.
void PrekresleniDesky(benchmark::State& state) {
    hrac::Relace hra;
    hra.Start();
    hra.SpustUlohu(1);
    Plane& hiden = hra.Prvek<PictureBox>("HidenPic").Plocha();
    const HolaPlocha hola(SIRKA_PLOCHY, VYSKA_PLOCHY, hiden.Font);
    Prekresleni(state, hiden, hra.Prvek<PictureBox>("Pic").Plocha(), hola, hola);
}
BENCHMARK(PrekresleniDesky)->Unit(benchmark::kMicrosecond);

}  // namespace
