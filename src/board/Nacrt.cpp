#include "board/Nacrt.h"

#include <cmath>

#include "engine/Tabulky.h"

namespace rysovna {

namespace {

constexpr float VELIKOST_PISMEN = 10;  // points
constexpr int SIRKA_CARY = 2;          // px

void Tiskni(Plane& p, float x, float y, std::string_view text, Pismo pismo) {
    p.Font = pismo;
    p.CurrentX = x;
    p.CurrentY = y;
    p.Print(text);
}

/// An arc about the first point, between the directions to the second and to the third, drawn as
/// short lines; the shorter way round.
void KresliOblouk(Plane& p, const PrvekNacrtu& e) {
    const double od = std::atan2(e.Y1 - e.Y2, e.X2 - e.X1);
    double sirka = std::atan2(e.Y1 - e.Y3, e.X3 - e.X1) - od;
    if (sirka > PI) sirka -= DVE_PI;
    if (sirka < -PI) sirka += DVE_PI;
    constexpr int DILKU = 16;
    const auto bod = [&](int i, float& x, float& y) {
        const double uhel = od + sirka * i / DILKU;
        x = static_cast<float>(e.X1 + e.Polomer * std::cos(uhel));
        y = static_cast<float>(e.Y1 - e.Polomer * std::sin(uhel));
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
    p.DrawWidth = SIRKA_CARY;
    if (e.Druh == PrvekNacrtu::Tvar::Usecka) {
        p.Line(e.X1, e.Y1, e.X2, e.Y2);
    } else {
        p.DrawWidth = oznaceny ? SIRKA_CARY : 1;
        KresliOblouk(p, e);
    }
    const auto rez = e.Symbol ? Pismo::Rez::Symbol : Pismo::Rez::MsSansSerif;
    Tiskni(p, e.PX, e.PY, e.Pismeno, {rez, VELIKOST_PISMEN, !e.Symbol, false});
}

}  // namespace

int PrvekPod(std::span<const PrvekNacrtu> prvky, double x, double y) {
    for (std::size_t i = 0; i < prvky.size(); ++i) {
        if (prvky[i].Pas.Obsahuje(x, y)) return static_cast<int>(i);
    }
    return -1;
}

void KresliPrvkyNacrtu(Plane& plocha, std::span<const PrvekNacrtu> prvky,
                       std::span<const PismenoNacrtu> pismena, std::uint32_t znacky) {
    plocha.Cls();
    // Marked elements go last, so that at a shared vertex red stays on top.
    for (const bool oznacene : {false, true}) {
        for (std::size_t i = 0; i < prvky.size(); ++i) {
            if (((znacky >> i & 1U) != 0) == oznacene) KresliPrvek(plocha, prvky[i], oznacene);
        }
    }
    plocha.ForeColor = CERNA;
    for (const PismenoNacrtu& t : pismena) {
        const auto rez = t.Symbol ? Pismo::Rez::Symbol : Pismo::Rez::MsSansSerif;
        Tiskni(plocha, t.X, t.Y, t.Text, {rez, VELIKOST_PISMEN, false, !t.Symbol});
    }
}

}  // namespace rysovna
