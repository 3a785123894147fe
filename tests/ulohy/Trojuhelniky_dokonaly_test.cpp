// The perfect pupil of the triangles, at the dialogue: every line of every file, ten points of ten
// and the triangle that was asked for.

#include <map>

#include "engine/Miry.h"
#include "podpora/MeryBodu.h"
#include "podpora/Stul.h"
#include "rules/Troj1Dialog.h"
#include "rules/Troj2Dialog.h"
#include "zak/Trojuhelnik.h"

namespace rysovna::testy {
namespace {

/// The closed figure against the given values. The pupil draws a radius up to 2 px off; the rest is
/// the rounding of vertices and of the way that a height goes.
template <class D>
void Zmer(const Stul<D>& s) {
    const Utvar& prvni = s.Pamet().Utvary[1];
    const Bod treti = s.dialog.Stav().Vrchol;
    std::map<std::string_view, Bod> v = {{prvni.Jmeno1, {prvni.X1, prvni.Y1}},
                                         {prvni.Jmeno2, {prvni.X2, prvni.Y2}},
                                         {s.dialog.Stav().PismenoVrcholu, treti}};
    for (const auto& [velicina, hodnota] : s.Zadani()) {
        double chyba = 0, vule = 3;
        if (const auto vrchol = VrcholUhlu(velicina); !vrchol.empty()) {
            const Bod rameno = v[vrchol == prvni.Jmeno1 ? prvni.Jmeno2 : prvni.Jmeno1];
            chyba = OdPaprsku(v[vrchol], rameno, treti, hodnota);
            vule += Delka(v[vrchol], treti) / 100;  // half a degree, as far as it reaches
        } else {
            const KonceStrany& k = Konce(velicina.substr(velicina.size() - 1));
            const Bod p = v[k.Od], q = v[k.Do], r = v[k.Treti];
            const double px = velicina.size() == 1 ? Delka(p, q)
                              : velicina[0] == 'v' ? OdPrimky(r, p, q)
                                                   : Delka(r, {(p.X + q.X) / 2, (p.Y + q.Y) / 2});
            chyba = std::fabs(px - hodnota * PIXELU_NA_CM);
        }
        EXPECT_LE(chyba, vule) << velicina << " = " << hodnota;
    }
}

/// Every fourth example after having gone all the way back.
template <class D>
void Odehraj(int uloha) {
    Stul<D> s(uloha);
    /// What is shown, less what the closed list held.
    const auto panel = [&s] {
        Panel p = s.dialog.UkazPanel();
        p.Vyber = {};
        return p;
    };
    s.KazdyRadek([&](std::uint32_t seminko) {
        Panel zacatek = panel();
        zacatek.Nastroje[0].Jak = MistoNastroje::Stav::Zivy;  // a tool was pressed already
        DokonalyTrojuhelnik(s, seminko).Sestroj();
        for (int zbyde = seminko % 4 == 0 ? 2 : -1; zbyde >= 0; --zbyde) {
            EXPECT_EQ(s.dialog.Hotova(), zbyde == 2);
            s.Zpet();
            EXPECT_EQ(s.Pamet().PocetUtvaru, zbyde);
            EXPECT_EQ(s.Pamet().PocetTrojic, zbyde);
            const char* const VYZVY[] = {"", "1. útvar:", "2. útvar:"};
            const Panel ted = panel();
            EXPECT_EQ(ted.Nadpis, VYZVY[zbyde]);
            EXPECT_TRUE(ted.PlochaZiva);
            for (std::size_t i = 0; i < 5; ++i) EXPECT_TRUE(zbyde == 0 || ted.Nastroje[i].Zivy());
            if (zbyde > 0) continue;
            for (const Zadano& z : s.Zadani())  // off: to be marked anew
                s.Oznac(MistoNaNacrtu(z.Velicina).Stred());
            EXPECT_TRUE(panel() == zacatek);
            DokonalyTrojuhelnik(s, seminko + 7).Sestroj();
        }
        EXPECT_EQ(s.PoKontrole(), "");
        Zmer(s);
    });
}

class DokonaleTrojuhelniky : public testing::TestWithParam<int> {};

TEST_P(DokonaleTrojuhelniky, KazdyRadekDaDesetBoduAZadanyTrojuhelnik) {
    GetParam() <= 3 ? Odehraj<Troj1Dialog>(GetParam()) : Odehraj<Troj2Dialog>(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Ulohy, DokonaleTrojuhelniky, testing::Range(1, 9));

}  // namespace
}  // namespace rysovna::testy
