#include "rules/Nacrt.h"

#include <algorithm>
#include <cmath>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Miry.h"

namespace rysovna {

namespace {

constexpr int SIRKA_CARY = 2, SIRKA_OBLOUKU = 1, SIRKA_OZNACENE = 3;  // px
constexpr float KRIZ = 4;                                             // px, arm of a point's cross

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

/// A small filled disc, as circles one in another.
void KresliKotouc(Plane& p, float x, float y) {
    p.DrawWidth = SIRKA_CARY;
    for (float r = 1; r <= 3; r += 1) p.Circle(x, y, r);
}

void KresliPrvek(Plane& p, const PrvekNacrtu& e, bool oznaceny) {
    using enum PrvekNacrtu::Tvar;
    p.ForeColor = oznaceny ? CERVENA : CERNA;
    p.DrawWidth = oznaceny ? SIRKA_OZNACENE : e.Druh == Oblouk ? SIRKA_OBLOUKU : SIRKA_CARY;
    const bool kotouc = oznaceny && e.SKotoucem;
    switch (e.Druh) {
        case Usecka:
            p.Line(e.X1, e.Y1, e.X2, e.Y2);
            if (kotouc) KresliKotouc(p, e.X2, e.Y2);
            break;
        case Oblouk:
            KresliOblouk(p, e);
            break;
        case Kruznice:
            p.Circle(e.X1, e.Y1, e.Polomer);
            if (kotouc) {
                const double uhel = static_cast<double>(e.UhelKotouce) * PI / STUPNU_PULOTACKY;
                KresliKotouc(p, e.X1 + e.Polomer * static_cast<float>(Cos(uhel)),
                             e.Y1 - e.Polomer * static_cast<float>(Sin(uhel)));
            }
            break;
        case PrvekNacrtu::Tvar::Bod:
            p.Line(e.X1 - KRIZ, e.Y1, e.X1 + KRIZ, e.Y1);
            p.Line(e.X1, e.Y1 - KRIZ, e.X1, e.Y1 + KRIZ);
            if (kotouc) KresliKotouc(p, e.X1, e.Y1);
            break;
    }
}

/// Prints text in the plane's font, its top left corner at x, y, on a white ground: over lines it
/// stays legible.
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

}  // namespace

bool ZonaNacrtu::Obsahuje(double x, double y) const {
    switch (Druh) {
        case Tvar::Pas: {
            const double odchylka = y - (K * x + Q);
            return x >= X1 && x <= X2 && odchylka >= -Dosah && odchylka <= Dosah;
        }
        case Tvar::Usecka: {
            const double vyska = Y1 + (x - X1) * (Y2 - Y1) / (X2 - X1);
            return x >= X1 && x <= X2 && std::fabs(y - vyska) <= Dosah;
        }
        case Tvar::Kruznice:
            return std::fabs(x - X1) <= Polomer &&
                   std::fabs(Hypot(x - X1, y - Y1) - Polomer) <= Dosah;
        case Tvar::Ctverec:
            return std::fabs(x - X1) <= Dosah && std::fabs(y - Y1) <= Dosah;
    }
    return false;
}

Bod ZonaNacrtu::Misto(double podel) const {
    double x = X1;
    double y = Y1;
    switch (Druh) {
        case Tvar::Pas:
            x += podel * (X2 - X1);
            y = K * x + Q;
            break;
        case Tvar::Usecka:
            x += podel * (X2 - X1);
            y += podel * (Y2 - Y1);
            break;
        case Tvar::Kruznice:
            x += Polomer * Cos(podel * DVE_PI);
            y += Polomer * Sin(podel * DVE_PI);
            break;
        case Tvar::Ctverec:
            break;
    }
    return {Zaokrouhli(x), Zaokrouhli(y)};
}

int PrvekPod(const Nacrt& nacrt, double x, double y) {
    const auto e = std::ranges::find_if(
        nacrt.Prvky, [&](const PrvekNacrtu& p) { return p.Zona.Obsahuje(x, y); });
    return e == nacrt.Prvky.end() ? -1 : static_cast<int>(e - nacrt.Prvky.begin());
}

std::vector<Bod> MistaPrvku(const Nacrt& nacrt) {
    constexpr int DILKU = 20;
    std::vector<Bod> mista;
    for (std::size_t i = 0; i < nacrt.Prvky.size(); ++i) {
        const ZonaNacrtu& zona = nacrt.Prvky[i].Zona;
        Bod misto = zona.Misto(0.5);
        // To both sides from the middle, further and further.
        for (int k = 1; k < DILKU && PrvekPod(nacrt, misto.X, misto.Y) != static_cast<int>(i);
             ++k) {
            const int posun = k % 2 == 0 ? k / 2 : -(k + 1) / 2;
            misto = zona.Misto(0.5 + posun / static_cast<double>(DILKU));
        }
        mista.push_back(misto);
    }
    return mista;
}

void KresliPrvkyNacrtu(Plane& plocha, const Nacrt& nacrt, std::uint32_t znacky,
                       const PismoNacrtu& pismo) {
    const auto oznaceny = [znacky](std::size_t i) { return (znacky >> i & 1U) != 0; };
    const auto tiskni = [&](NapisNacrtu napis, std::string_view text, float x, float y) {
        const std::string pismeny = pismo(plocha, napis, text);
        TiskniNaBilem(plocha, x, y, pismeny);
    };
    plocha.Cls();
    // Marked elements go last, so that where elements meet red stays on top; all names behind all
    // lines, so that none is crossed.
    for (const bool oznacene : {false, true}) {
        for (std::size_t i = 0; i < nacrt.Prvky.size(); ++i) {
            if (oznaceny(i) == oznacene) KresliPrvek(plocha, nacrt.Prvky[i], oznacene);
        }
    }
    for (std::size_t i = 0; i < nacrt.Prvky.size(); ++i) {
        const PrvekNacrtu& e = nacrt.Prvky[i];
        plocha.ForeColor = oznaceny(i) ? CERVENA : CERNA;
        tiskni(e.Napis, e.Jmeno, e.PX, e.PY);
    }
    plocha.ForeColor = CERNA;
    for (const PismenoNacrtu& t : nacrt.Pismena) tiskni(t.Napis, t.Text, t.X, t.Y);
}

}  // namespace rysovna
