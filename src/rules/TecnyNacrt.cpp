#include "rules/TecnyNacrt.h"

#include <algorithm>
#include <cmath>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Tabulky.h"
#include "rules/Nacrt.h"
#include "rules/TecnyKroky.h"

namespace rysovna {

namespace {

using Prvek = PrvekNacrtuTecny;
using enum PrvekNacrtuTecny::Tvar;

constexpr double PRSTENEC = 4;  // px, of a circle to both sides
constexpr double UZKE = 2;      // px, the band of three level elements
constexpr double POL_BOXU = 5;  // px, of a point
constexpr float KRIZ = 4;       // px, arm of a point's cross

constexpr Prvek NACRT_01[] = {
    {0, "k", Kruh, 91, 100, 50, 180, 84, 132},
    {4, "a", Cara, 170, 12, 240, 160, 244, 146},
    {5, "t1", Cara, 105, 12, 175, 160, 178, 146},
    {6, "t2", Cara, 0, 24.7F, 64, 160, 46, 158},
};
constexpr Prvek NACRT_02[] = {
    {0, "k", Kruh, 121, 100, 50, 180, 114, 132},
    {4, "a", Cara, 170, 12, 240, 160, 244, 146},
    {5, "t1", Cara, 0, 102, 213, 1.2F, 8, 78},
    {6, "t2", Cara, 75, 177, 280, 80, 262, 90},
};
constexpr Prvek NACRT_03[] = {
    {0, "k", Kruh, 80, 90, 50, 180, 74, 122},
    {4, "SA", Cara, 80, 90, 220, 90, 142, 92, UZKE},
    {5, "t1", Cara, 40, 21, 270, 110, 276, 104},
    {6, "t2", Cara, 40, 159, 270, 70, 276, 62},
};
constexpr Prvek NACRT_04[] = {
    {7, "A", Misto, 150, 50, 0, 0, 146, 30},
    {0, "k", Kruh, 150, 100, 50, 180, 146, 92},
    {4, "a", Cara, 0, 150, 280, 150, 268, 152, UZKE},
};
constexpr Prvek NACRT_05[] = {
    {ZNACKA_OSY, "AB", Cara, 136, 12, 195, 62, 172, 22},
    {0, "k", Kruh, 120, 90, 80, 180, 60, 120},
    {4, "a", Cara, 0, 90, 280, 90, 268, 92, UZKE},
};
constexpr Prvek NACRT_06[] = {
    {ZNACKA_OSY, "AB", Cara, 150, 150, 205, 95, 158, 106},
    {0, "k", Kruh, 150, 95, 55, 180, 110, 64},
    {4, "a", Cara, 0, 150, 280, 150, 268, 152},
};
constexpr Prvek NACRT_07[] = {
    {7, "A", Misto, 140, 30, 0, 0, 136, 10},
    {4, "a", Cara, 0, 30, 280, 30, 268, 32},
    {5, "b", Cara, 0, 150, 280, 150, 268, 152},
    {0, "k", Kruh, 140, 90, 60, 180, 136, 82},
};
constexpr Prvek NACRT_08[] = {
    {7, "A", Misto, 100, 150, 0, 0, 96, 158},
    {4, "a", Cara, 0, 150, 280, 150, 268, 152},
    {5, "b", Cara, 0, 140, 260, 10, 267, 12},
    {0, "k", Kruh, 100, 90, 60, 180, 96, 112},
};
constexpr Prvek NACRT_09[] = {
    {7, "A", Misto, 164, 90, 0, 0, 146, 82},    {0, "k1", Kruh, 130, 90, 34, 90, 124, 104},
    {1, "k2", Kruh, 130, 90, 78, 90, 192, 138}, {5, "l1", Kruh, 186, 90, 22, 90, 182, 82},
    {6, "l2", Kruh, 108, 90, 56, 90, 66, 82},
};

struct RadekNacrtu {
    std::string_view Kod;
    std::span<const Prvek> Prvky;
};
constexpr RadekNacrtu NACRTY[] = {
    {"01", NACRT_01}, {"02", NACRT_02}, {"03", NACRT_03}, {"04", NACRT_04}, {"05", NACRT_05},
    {"06", NACRT_06}, {"07", NACRT_07}, {"08", NACRT_08}, {"09", NACRT_09},
};

/// Letters that are no elements: the names of the ends of a segment and of centres.
struct Pismeno {
    std::string_view Kod, Text;
    float X, Y;
};
constexpr Pismeno PISMENA[] = {
    {"03", "S", 66, 82},  {"03", "A", 216, 66},  {"05", "A", 125, 15}, {"05", "B", 202, 48},
    {"06", "A", 212, 88}, {"06", "B", 146, 154}, {"09", "S", 118, 82},
};

constexpr float VELIKOST_PISMEN = 8;  // points

/// A small filled disc, as circles one in another.
void KresliKotouc(Plane& p, float x, float y) {
    p.DrawWidth = SIRKA_CARY_NACRTU;
    for (float r = 1; r <= 3; r += 1) p.Circle(x, y, r);
}

void KresliPrvek(Plane& p, const Prvek& e, bool oznaceny) {
    p.ForeColor = oznaceny ? CERVENA : CERNA;
    p.DrawWidth = oznaceny ? SIRKA_OZNACENE : SIRKA_CARY_NACRTU;
    switch (e.Druh) {
        case Cara:
            p.Line(e.X1, e.Y1, e.X2, e.Y2);
            if (oznaceny) KresliKotouc(p, e.X2, e.Y2);
            break;
        case Kruh:
            p.Circle(e.X1, e.Y1, e.X2);
            if (oznaceny) {
                const double uhel = static_cast<double>(e.Y2) * PI / STUPNU_PULOTACKY;
                KresliKotouc(p, e.X1 + e.X2 * static_cast<float>(Cos(uhel)),
                             e.Y1 - e.X2 * static_cast<float>(Sin(uhel)));
            }
            break;
        case Misto:
            p.Line(e.X1 - KRIZ, e.Y1, e.X1 + KRIZ, e.Y1);
            p.Line(e.X1, e.Y1 - KRIZ, e.X1, e.Y1 + KRIZ);
            if (oznaceny) KresliKotouc(p, e.X1, e.Y1);
            break;
    }
}

}  // namespace

bool PrvekNacrtuTecny::Obsahuje(double x, double y) const {
    const double x1 = X1;
    const double y1 = Y1;
    const double x2 = X2;
    const double y2 = Y2;
    switch (Druh) {
        case Cara: {
            const double vyska = y1 + (x - x1) * (y2 - y1) / (x2 - x1);
            return x >= x1 && x <= x2 && std::fabs(y - vyska) <= Pasmo;
        }
        case Kruh:
            return std::fabs(x - x1) <= x2 && std::fabs(Hypot(x - x1, y - y1) - x2) <= PRSTENEC;
        case Misto:
            return std::fabs(x - x1) <= POL_BOXU && std::fabs(y - y1) <= POL_BOXU;
    }
    return false;
}

std::span<const PrvekNacrtuTecny> NacrtTecny(std::string_view kod) {
    for (const RadekNacrtu& r : NACRTY) {
        if (r.Kod == kod) return r.Prvky;
    }
    return {};
}

int PrvekNacrtuPod(std::string_view kod, double x, double y) {
    const auto prvky = NacrtTecny(kod);
    const auto p = std::ranges::find_if(prvky, [&](const Prvek& e) { return e.Obsahuje(x, y); });
    return p == prvky.end() ? -1 : static_cast<int>(p - prvky.begin());
}

std::vector<Bod> MistaNacrtuTecny(std::string_view kod) {
    const auto prvky = NacrtTecny(kod);
    const auto kde = [&](std::size_t i, double podel) {
        const Prvek& e = prvky[i];
        double x = e.X1;
        double y = e.Y1;
        if (e.Druh == Cara) {
            x += podel * (e.X2 - e.X1);
            y += podel * (e.Y2 - e.Y1);
        } else if (e.Druh == Kruh) {
            x += e.X2 * Cos(podel * DVE_PI);
            y += e.X2 * Sin(podel * DVE_PI);
        }
        return Bod{Zaokrouhli(x), Zaokrouhli(y)};
    };
    return MistaPrvku(prvky.size(), kde, [&](Bod b) { return PrvekNacrtuPod(kod, b.X, b.Y); });
}

void KresliNacrtTecny(Plane& plocha, std::string_view kod, std::uint32_t znacky) {
    plocha.Cls();
    plocha.Font = {Pismo::Rez::MsSansSerif, VELIKOST_PISMEN};
    const auto jeOznaceny = [znacky](const Prvek& e) { return (znacky & Znacka(e.Znacka)) != 0; };
    // Marked elements go last, so that where elements meet red stays on top; all names behind all
    // lines, so that none is crossed.
    for (const bool oznacene : {false, true}) {
        for (const Prvek& e : NacrtTecny(kod)) {
            if (jeOznaceny(e) == oznacene) KresliPrvek(plocha, e, oznacene);
        }
    }
    for (const Prvek& e : NacrtTecny(kod)) {
        plocha.ForeColor = jeOznaceny(e) ? CERVENA : CERNA;
        TiskniNaBilem(plocha, e.PX, e.PY, e.Jmeno);
    }
    plocha.ForeColor = CERNA;
    for (const Pismeno& t : PISMENA) {
        if (t.Kod == kod) TiskniNaBilem(plocha, t.X, t.Y, t.Text);
    }
}

}  // namespace rysovna
