// The figures that the boards of quadrilaterals draw by chance: readable, and found in few draws.

#include "podpora/Stul.h"
#include "rules/CtyrUDialog.h"
#include "rules/DialogCtyruhelnikuVrchol.h"
#include "rules/LichoDialog.h"
#include "rules/RovnoDialog.h"
#include "zak/Ctyruhelnik.h"

namespace rysovna::testy {
namespace {

constexpr double ROZESTUP = 30, UHEL = 12;  // px, degrees
constexpr double VULE = 2.5;                // px, of the rounding of what the pupil draws
constexpr int PRUMER_LOSU = 60, NEJVIC_LOSU = 2000;

/// All letters of the finished figure with their places.
std::map<std::string, Bod> Body(const Tabulky& t) {
    std::map<std::string, Bod> v;
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        const Utvar& u = t.Utvary[i];
        if (u.Druh == BOD || u.Druh == USECKA) v[u.Jmeno1] = {u.X1, u.Y1};
        if (u.Druh == USECKA) v[u.Jmeno2] = {u.X2, u.Y2};
    }
    return v;
}

/// The figure that the perfect pupil draws is, but for its pixels, that of the exact values.
void OverFiguru(const Tabulky& t) {
    const auto body = Body(t);
    for (const auto& [jmeno, p] : body) {
        for (const auto& [jine, q] : body) {
            if (jmeno >= jine) continue;
            EXPECT_GE(Delka(p, q), ROZESTUP - VULE) << jmeno << " " << jine;
        }
    }
    // The figure, and the one with the second solution in the place of its vertex.
    for (const std::string carka : {"", "'"}) {
        std::array<Bod, 4> v{};
        for (std::size_t i = 0; i < 4; ++i) {
            const std::string pismeno(1, "ABCD"[i]);
            v[i] = body.at(body.contains(pismeno + carka) ? pismeno + carka : pismeno);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            const Bod pred = v[(i + 3) % 4], po = v[(i + 1) % 4];
            const double kratsi = std::min(Delka(v[i], pred), Delka(v[i], po));
            EXPECT_GE(UhelPri(v[i], pred, po), UHEL - VULE / kratsi * STUPNU_PULOTACKY / PI)
                << "ABCD"[i] << carka;
        }
    }
}

int Losuj(Stul<RovnoDialog>& s, const Plane& plocha, const Priklad& p, HodnotyPrikladu& h) {
    return VylosujRovnobeznik(s.Pamet().Generator, plocha, p, h);
}
template <class D>
int Losuj(Stul<D>& s, const Plane& plocha, const Priklad& p, HodnotyPrikladu& h) {
    return VylosujCtyruhelnik(s.Pamet().Generator, plocha, p, VETY_CELYCH, h);
}

/// Draws of every row of the data: how many a readable figure takes.
template <class D, class Zak>
void OverRadky(int uloha) {
    Stul<D> s(uloha);
    constexpr int LOSU = 60;
    for (int radek = 1; radek <= s.Pamet().PocetPrikladu; ++radek) {
        SCOPED_TRACE(radek);
        s.Pamet().Generator.Zasej(static_cast<std::uint32_t>(radek));
        HodnotyPrikladu h{};
        int celkem = 0;
        for (int i = 0; i < LOSU; ++i) {
            const int losu = Losuj(s, s.Obraz(), s.Pamet().Priklady[radek], h);
            ASSERT_GE(losu, 1);
            EXPECT_LT(losu, NEJVIC_LOSU);
            celkem += losu;
        }
        EXPECT_LE(celkem, PRUMER_LOSU * LOSU) << s.Pamet().Priklady[radek].Druh;
    }
    for (std::uint32_t seminko = 1; seminko <= 60 && !testing::Test::HasFailure(); ++seminko) {
        SCOPED_TRACE(seminko);
        Zak(s.Zacni(seminko), seminko).Sestroj();
        OverFiguru(s.Pamet());
    }
}

TEST(CitelneFigury, CtyruhelnikLichobeznikRovnobeznik) {
    OverRadky<CtyrUDialog, DokonalyCtyruhelnik>(9);
    OverRadky<LichoDialog, DokonalyCtyruhelnik>(11);
    OverRadky<RovnoDialog, DokonalyRovnobeznik>(10);
}

}  // namespace
}  // namespace rysovna::testy
