#include "engine/Resitele.h"

#include <cmath>
#include <cstdint>
#include <numbers>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Miry.h"

namespace rysovna {

namespace {

/// What is added to the meeting point of two lines before it is rounded, px.
constexpr double PRIRAZKA_PRUSECIKU = 0.2;
/// What keeps an upright line's slope from a division by zero.
constexpr double PRIRAZKA_SMERNICE = 0.001;

double Ctverec(double x) {
    return x * x;
}

double Rozdil(int a, int b) {
    return static_cast<double>(std::int64_t{a} - b);
}

bool Existuje(Bod bod) {
    return bod.X != BEZ && bod.Y != BEZ;
}

int Znamenko(double x) {
    return (x > 0) - (x < 0);
}

/// The two meeting points of a line and a circle whose centre is at C, the right one first.
struct DvaKoreny {
    bool protina = false;  ///< the line meets the circle in two points
    bool dotyka = false;   ///< in exactly one
    Bod pravy, levy;
};

/// All in singles but for q and D. The roots are taken down to whole pixels while they are still
/// relative to the centre.
DvaKoreny KorenyPrimkyAKruznice(Bod C, float r, Bod P1, Bod P2) {
    const auto x1 = static_cast<float>(Rozdil(P1.X, C.X));
    const auto y1 = static_cast<float>(Rozdil(P1.Y, C.Y));
    const auto x2 = static_cast<float>(Rozdil(P2.X, C.X));
    const auto y2 = static_cast<float>(Rozdil(P2.Y, C.Y));
    const float dx = x2 - x1;
    const float dy = y2 - y1;
    const auto m = static_cast<float>(dy / (dx + PRIRAZKA_SMERNICE));
    const float c = y1 - m * x1;
    const double q = Ctverec(m) + 1;
    const double D = Ctverec(r) * q - Ctverec(c);
    DvaKoreny koreny;
    if (q == 0 || D < 0) return koreny;
    koreny.protina = D > 0;
    koreny.dotyka = D == 0;
    const float cm = c * m;
    const auto xPlus = static_cast<float>(-cm / q + std::sqrt(D) / q);
    const auto yPlus = static_cast<float>(c / q + (m / q) * std::sqrt(D));
    const auto xMinus = static_cast<float>(-cm / q - std::sqrt(D) / q);
    const auto yMinus = static_cast<float>(c / q - (m / q) * std::sqrt(D));
    koreny.pravy = {Podlaha(xPlus) + C.X, Podlaha(yPlus) + C.Y};
    koreny.levy = {Podlaha(xMinus) + C.X, Podlaha(yMinus) + C.Y};
    return koreny;
}

}  // namespace

double Arccos(double x) {
    const double t = 1 - x * x;
    if (t < 0) return BEZ;
    if (std::sqrt(t) == 0) return 0;
    return Atan(-x / std::sqrt(t)) + std::numbers::pi / 2;
}

bool StejneZnamenko(double a, double b) {
    return (a > 0 && b > 0) || (a < 0 && b < 0);
}

float Smer(Bod od, Bod k, float dosud) {
    const double dx = Rozdil(k.X, od.X);
    const double dy = Rozdil(k.Y, od.Y);
    const double d = std::sqrt(dx * dx + dy * dy);
    if (dy < 0) return static_cast<float>(Arccos(dx / d));
    if (dy > 0) return static_cast<float>(DVE_PI - Arccos(dx / d));
    if (dx < 0) return static_cast<float>(PI);
    if (dx > 0) return 0;
    return dosud;
}

bool RovneUhly(double a, double b) {
    // Texts of five decimals cannot agree over more than one unit of the fifth; saying so first
    // spares nearly all of the printing.
    constexpr double JISTE_RUZNE = 2e-5;
    if (std::abs(a - b) > JISTE_RUZNE) return false;
    if (a == b) return true;
    return FormatPetMist(a) == FormatPetMist(b);
}

void PolarniBod(Bod P, float r, float uhel, Bod& out1, Bod& out2) {
    out1 = out2 = BEZ_BODU;
    out1.Y = Zaokrouhli(P.Y - r * Sin(static_cast<double>(uhel)));
    out1.X = Zaokrouhli(P.X + r * Cos(static_cast<double>(uhel)));
}

void PrunikKruznic(const Plane& plane, Bod C1, float r1, Bod C2, float r2, Bod& out1, Bod& out2) {
    out1 = out2 = BEZ_BODU;
    const double d = std::sqrt(Ctverec(Rozdil(C1.X, C2.X)) + Ctverec(Rozdil(C1.Y, C2.Y)));
    if (d == 0) return;
    const double a = ((Ctverec(r1) - Ctverec(r2)) + Ctverec(d)) / (2 * d);
    const double h2 = Ctverec(r1) - Ctverec(a);
    if (h2 < 0) return;
    const double h = std::sqrt(h2);
    const double dx = Rozdil(C2.X, C1.X);
    const double dy = Rozdil(C2.Y, C1.Y);
    const Bod U{Zaokrouhli(C1.X + a * dx / d - h * dy / d),
                Zaokrouhli(C1.Y + a * dy / d + h * dx / d)};
    const Bod V{Zaokrouhli(C1.X + a * dx / d + h * dy / d),
                Zaokrouhli(C1.Y + a * dy / d - h * dx / d)};
    const bool dobreUvnitr = U.X > OKRAJ_PRUSECIKU && U.Y > OKRAJ_PRUSECIKU &&
                             U.X < plane.Width() - OKRAJ_PRUSECIKU &&
                             U.Y < plane.Height() - OKRAJ_PRUSECIKU;
    out1 = dobreUvnitr ? U : V;
    out2 = dobreUvnitr ? V : U;
}

void PrunikPrimek(Bod P1, Bod P2, Bod P3, Bod P4, Bod& out1, Bod& out2) {
    out1 = out2 = BEZ_BODU;
    const double Ax = Rozdil(P2.X, P1.X), Ay = Rozdil(P2.Y, P1.Y);
    const double Bx = Rozdil(P3.X, P4.X), By = Rozdil(P3.Y, P4.Y);
    const double Cx = Rozdil(P1.X, P3.X), Cy = Rozdil(P1.Y, P3.Y);
    const double d = By * Cx - Bx * Cy;
    const double f = Ay * Bx - Ax * By;
    if (f == 0) return;
    const auto posunuty = [f](double n) {
        return (n + (StejneZnamenko(f, n) ? f / 2 : -f / 2)) / f;
    };
    const double x = P1.X + posunuty(Ax * d);
    const auto y = static_cast<float>(P1.Y + posunuty(Ay * d));
    if (x < -DALEKO || x > DALEKO || y < -DALEKO || y > DALEKO) return;
    const Bod bod{Zaokrouhli(x + PRIRAZKA_PRUSECIKU), Zaokrouhli(y + PRIRAZKA_PRUSECIKU)};
    if (bod.X == P1.X && bod.X == P3.X) return;
    out1 = bod;
}

void PrunikPrimkyKruznice(Bod C, float r, Bod P1, Bod P2, Bod /*A*/, Bod /*B*/, Bod& out1,
                          Bod& out2) {
    out1 = out2 = BEZ_BODU;
    const DvaKoreny koreny = KorenyPrimkyAKruznice(C, r, P1, P2);
    if (!koreny.protina && !koreny.dotyka) return;
    const bool doleva = P2.X < P1.X;
    out1 = doleva ? koreny.levy : koreny.pravy;
    out2 = doleva ? koreny.pravy : koreny.levy;
}

void PrunikPrimkyKruzniceVPlose(const Plane& plane, Bod C, float r, Bod P1, Bod P2, Bod /*A*/,
                                Bod /*B*/, Bod& out1, Bod& out2) {
    const DvaKoreny koreny = KorenyPrimkyAKruznice(C, r, P1, P2);
    if (!koreny.protina) {
        out1 = out2 = BEZ_BODU;
        return;
    }
    const Bod U = koreny.pravy;
    const bool vPlose = U.X > 0 && U.Y > 0 && U.X < plane.Width() && U.Y < plane.Height();
    out1 = vPlose ? U : koreny.levy;
    out2 = vPlose ? koreny.levy : U;
}

void FiltrPaprsku(Bod P, Bod Q, Bod& S1, Bod& S2) {
    const auto naPaprsku = [P, Q](Bod S) {
        return Znamenko(Rozdil(S.X, P.X)) == Znamenko(Rozdil(Q.X, P.X)) &&
               Znamenko(Rozdil(S.Y, P.Y)) == Znamenko(Rozdil(Q.Y, P.Y));
    };
    if (S1.X == BEZ) return;
    if (S1.Y != BEZ) {
        if (!naPaprsku(S1)) {
            S1 = S2;
            S2 = BEZ_BODU;
        } else if (Existuje(S2) && !naPaprsku(S2)) {
            S2 = BEZ_BODU;
        }
    }
    if (Existuje(S1) && !naPaprsku(S1)) S1 = BEZ_BODU;
}

}  // namespace rysovna
