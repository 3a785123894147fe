// The figures of the quadrilaterals: their letters, heights and places, and before anything is
// drawn whether values make one, and whether it fits the plane and can be read.

#include "rules/FiguraCtyruhelniku.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Miry.h"
#include "engine/Resitele.h"
#include "rules/Dialog.h"
#include "rules/Tahy.h"
#include "rules/Uzavreni.h"
#include "rules/Veliciny.h"

namespace rysovna {

namespace {

// Where the starting triangle is drawn.
constexpr Bod PRVNI_VRCHOL{150, 210};
constexpr double NEJDELSI = 1e5;             // px that a typed length may make at all
constexpr double DALEKO_PO_PAPRSKU = 10000;  // px, so that rounding does not bend the ray

// A figure that can be read: its points this far apart, px, its sides at such an angle, degrees.
constexpr double ROZESTUP_BODU = 30, NEJMENSI_UHEL = 12;
// The arrows may bring its points so near to the plane's edge, px.
constexpr int OKRAJ_BODU = 20;

/// The height upon a side.
struct VyskaStrany {
    std::string_view Strana, Vyska;
};
constexpr VyskaStrany VYSKY[] = {{"AB", "vc"}, {"BC", "va"}, {"CD", "vb"}, {"DA", "vd"}};

bool Blizko(Bod b) {
    return std::abs(b.X) <= DALEKO && std::abs(b.Y) <= DALEKO;
}

/// The angle at v between the ways to p and to q, degrees, 0 to 180.
double UhelStran(Bod v, Bod p, Bod q) {
    const double u = Atan2(p.Y - v.Y, p.X - v.X) - Atan2(q.Y - v.Y, q.X - v.X);
    return std::fabs(std::remainder(u, DVE_PI)) * STUPNU_PULOTACKY / PI;
}

}  // namespace

std::optional<std::array<Bod, 3>> SpocitejTrojuhelnik(const Plane& plocha, std::string_view veta,
                                                      const std::array<double, 3>& hodnoty) {
    const double a = hodnoty[0] * PIXELU_NA_CM;
    const double b = hodnoty[1] * PIXELU_NA_CM;
    const double c = hodnoty[2] * PIXELU_NA_CM;
    for (const double px : {a, b, c}) {
        if (!(std::fabs(px) < NEJDELSI)) return {};
    }
    const Bod p1 = PRVNI_VRCHOL;
    const Bod p2{Zaokrouhli(p1.X + a), p1.Y};
    Bod p3 = BEZ_BODU;
    Bod druhy = BEZ_BODU;
    if (veta == SSS) {
        PrunikKruznic(plocha, p1, static_cast<float>(c), p2, static_cast<float>(b), p3, druhy);
    } else {
        // Below the first side, as the circles would have it, if the vertex has room there.
        const double uhel = hodnoty[2] * PI / STUPNU_PULOTACKY;
        const double dolu = p2.Y + b * Sin(uhel);
        const double x = p2.X - b * Cos(uhel);
        const bool dole = x > OKRAJ_PRUSECIKU && x < plocha.Width() - OKRAJ_PRUSECIKU &&
                          dolu > OKRAJ_PRUSECIKU && dolu < plocha.Height() - OKRAJ_PRUSECIKU;
        Utvar paprsek;
        paprsek.Druh = POLOPRIMKA;
        paprsek.X1 = p2.X;
        paprsek.Y1 = p2.Y;
        paprsek.X2 = Zaokrouhli(p2.X - DALEKO_PO_PAPRSKU * Cos(uhel));
        paprsek.Y2 = Zaokrouhli(p2.Y + (dole ? 1 : -1) * DALEKO_PO_PAPRSKU * Sin(uhel));
        Utvar kruznice;
        kruznice.Druh = KRUZNICE;
        kruznice.X1 = p2.X;
        kruznice.Y1 = p2.Y;
        kruznice.Polomer = static_cast<float>(std::fabs(b));
        p3 = b == 0 || a == 0 ? BEZ_BODU : PrusecikyUtvaru(plocha, paprsek, kruznice).P1;
    }
    if (p3 == BEZ_BODU || !Blizko(p2) || !Blizko(p3)) return {};
    return std::array<Bod, 3>{p1, p2, p3};
}

bool VejdouSe(const Plane& plocha, std::span<const Bod> body) {
    const auto vSmeru = [body](int Bod::*os, int rozmer) {
        for (int d = -NEJDAL_POSUNU; d <= NEJDAL_POSUNU; d += KROK_POSUNU) {
            if (std::ranges::all_of(body, [=](const Bod& b) {
                    return b.*os + d >= OKRAJ_BODU && b.*os + d < rozmer - OKRAJ_BODU;
                })) {
                return true;
            }
        }
        return false;
    };
    return vSmeru(&Bod::X, plocha.Width()) && vSmeru(&Bod::Y, plocha.Height());
}

std::array<double, 3> HodnotyVety(const VetaTrojuhelniku& veta, const Priklad& p,
                                  const HodnotyPrikladu& hodnoty) {
    const std::string_view nazvy[] = {p.Nazev1, p.Nazev2, p.Nazev3};
    std::array<double, 3> vety{};
    for (std::size_t i = 0; i < vety.size(); ++i) {
        const VstupVety& v = veta.Vstupy[i];
        for (std::size_t j = 0; j < std::size(nazvy); ++j) {
            if (StejnaVelicina(nazvy[j], v.Velicina)) vety[i] = hodnoty[j] / (v.Pulka ? 2.0 : 1.0);
        }
    }
    return vety;
}

char Protejsi(char vrchol) {
    constexpr std::string_view VRCHOLY = "ABCD";
    const std::size_t i = VRCHOLY.find(vrchol);
    return i == std::string_view::npos ? vrchol : VRCHOLY[(i + 2) % 4];
}

Bod ObrazVeStredu(Bod vzor, Bod stred) {
    return {2 * stred.X - vzor.X, 2 * stred.Y - vzor.Y};
}

bool JeCitelna(std::span<const Bod> body, std::span<const std::array<Bod, 4>> ctyruhelniky) {
    for (std::size_t i = 0; i < body.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (Vzdalenost(body[i], body[j]) < ROZESTUP_BODU) return false;
        }
    }
    return std::ranges::all_of(ctyruhelniky, [](const std::array<Bod, 4>& v) {
        for (std::size_t i = 0; i < v.size(); ++i) {
            if (UhelStran(v[i], v[(i + 1) % 4], v[(i + 3) % 4]) < NEJMENSI_UHEL) return false;
        }
        return true;
    });
}

std::string CtvrtePismeno(std::string_view trojuhelnik) {
    if (trojuhelnik.size() != 3) return "";
    for (const char pismeno : {'A', 'B', 'C', 'D'}) {
        if (trojuhelnik.find(pismeno) == std::string_view::npos) return {pismeno};
    }
    return "";
}

std::string_view VyskaNaStranu(std::string_view strana) {
    for (const VyskaStrany& v : VYSKY) {
        if (v.Strana == strana) return v.Vyska;
    }
    return {};
}

}  // namespace rysovna
