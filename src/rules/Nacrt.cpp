#include "rules/Nacrt.h"

#include <algorithm>

#include "base/Matematika.h"
#include "engine/Tabulky.h"

namespace rysovna {

namespace {

constexpr float VELIKOST_PISMEN = 10;  // points
constexpr int SIRKA_OBLOUKU = 1;       // px

/// An arc about the first point, between the directions to the second and to the third, drawn as
/// short lines; the shorter way round.
void KresliOblouk(Plane& p, const PrvekNacrtu& e) {
    const double od = static_cast<float>(Atan2(e.Y1 - e.Y2, e.X2 - e.X1));
    double sirka = static_cast<float>(Atan2(e.Y1 - e.Y3, e.X3 - e.X1)) - od;
    if (sirka > PI) sirka -= DVE_PI;
    if (sirka < -PI) sirka += DVE_PI;
    constexpr int DILKU = 16;
    const auto bod = [&](int i, float& x, float& y) {
        const double uhel = od + sirka * i / DILKU;
        x = static_cast<float>(e.X1 + e.Polomer * Cos(uhel));
        y = static_cast<float>(e.Y1 - e.Polomer * Sin(uhel));
    };
    float x1 = 0;
    float y1 = 0;
    bod(0, x1, y1);
    for (int i = 1; i <= DILKU; ++i) {
        float x2 = 0;
        float y2 = 0;
        bod(i, x2, y2);
        p.Line(x1, y1, x2, y2);
        x1 = x2;
        y1 = y2;
    }
}

void KresliPrvek(Plane& p, const PrvekNacrtu& e, bool oznaceny) {
    p.ForeColor = oznaceny ? CERVENA : CERNA;
    if (e.Druh == PrvekNacrtu::Tvar::Usecka) {
        p.DrawWidth = oznaceny ? SIRKA_OZNACENE : SIRKA_CARY_NACRTU;
        p.Line(e.X1, e.Y1, e.X2, e.Y2);
    } else {
        p.DrawWidth = oznaceny ? SIRKA_OZNACENE : SIRKA_OBLOUKU;
        KresliOblouk(p, e);
    }
}

Pismo PismoPrvku(bool symbol, bool kurziva) {
    const auto rez = symbol ? Pismo::Rez::Symbol : Pismo::Rez::MsSansSerif;
    return {rez, VELIKOST_PISMEN, !symbol && kurziva, !symbol && !kurziva};
}

}  // namespace

int PrvekPod(std::span<const PrvekNacrtu> prvky, double x, double y) {
    for (std::size_t i = 0; i < prvky.size(); ++i) {
        if (prvky[i].Pas.Obsahuje(x, y)) return static_cast<int>(i);
    }
    return -1;
}

std::vector<Bod> MistaPrvku(std::size_t pocet, const std::function<Bod(std::size_t, double)>& kde,
                            const std::function<int(Bod)>& prvek) {
    constexpr int DILKU = 20;
    std::vector<Bod> mista;
    for (std::size_t i = 0; i < pocet; ++i) {
        Bod misto = kde(i, 0.5);
        // To both sides from the middle, further and further.
        for (int k = 1; k < DILKU && prvek(misto) != static_cast<int>(i); ++k) {
            const int posun = k % 2 == 0 ? k / 2 : -(k + 1) / 2;
            misto = kde(i, 0.5 + posun / static_cast<double>(DILKU));
        }
        mista.push_back(misto);
    }
    return mista;
}

void TiskniNaBilem(Plane& p, float x, float y, std::string_view text) {
    // One thick stroke under the letters, as high as they are: of the row it leaves out what is
    // above and below them, so that lines beside the text stay whole.
    const auto sirka = static_cast<float>(p.TextWidth(text));
    const auto vyska = static_cast<float>(p.TextHeight());
    const Barva barva = p.ForeColor;
    const float pero = vyska * 0.7F;
    const float stred = y + vyska * 0.55F;
    const float kraj = std::min(pero, sirka) / 2;
    p.ForeColor = BILA;
    p.DrawWidth = static_cast<int>(pero);
    p.Line(x + kraj, stred, x + sirka - kraj, stred);
    p.ForeColor = barva;
    p.DrawWidth = 1;
    p.CurrentX = x;
    p.CurrentY = y;
    p.Print(text);
}

void KresliPrvkyNacrtu(Plane& plocha, const Nacrt& nacrt, std::uint32_t znacky) {
    const auto oznaceny = [znacky](std::size_t i) { return (znacky >> i & 1U) != 0; };
    plocha.Cls();
    // Marked elements go last, so that at a shared vertex red stays on top; all letters behind all
    // lines, so that none is crossed.
    for (const bool oznacene : {false, true}) {
        for (std::size_t i = 0; i < nacrt.Prvky.size(); ++i) {
            if (oznaceny(i) == oznacene) KresliPrvek(plocha, nacrt.Prvky[i], oznacene);
        }
    }
    for (std::size_t i = 0; i < nacrt.Prvky.size(); ++i) {
        const PrvekNacrtu& e = nacrt.Prvky[i];
        plocha.ForeColor = oznaceny(i) ? CERVENA : CERNA;
        plocha.Font = PismoPrvku(e.Symbol, true);
        TiskniNaBilem(plocha, e.PX, e.PY, e.Pismeno);
    }
    plocha.ForeColor = CERNA;
    for (const PismenoNacrtu& t : nacrt.Pismena) {
        plocha.Font = PismoPrvku(t.Symbol, false);
        TiskniNaBilem(plocha, t.X, t.Y, t.Text);
    }
}

}  // namespace rysovna
