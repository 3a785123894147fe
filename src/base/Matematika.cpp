#include "base/Matematika.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "base/Chyba.h"

namespace rysovna {

namespace {

// What is exact below is exact only where a double is rounded to 53 bits after each operation.
static_assert(FLT_EVAL_METHOD == 0 && std::numeric_limits<double>::is_iec559);

constexpr double NENI_CISLO = std::numeric_limits<double>::quiet_NaN();
/// What is this many times less than 1 is lost beside it, squared or not.
constexpr double ZTRACI_SE = 0x1p-60;

/// A number of some 104 bits: the double nearest to it and what that one lacks.
struct Dvojcislo {
    double Hlavni = 0, Zbytek = 0;
    constexpr Dvojcislo(double hlavni = 0, double zbytek = 0)  // implicit: a double is one
        : Hlavni(hlavni), Zbytek(zbytek) {}
};

/// a + b without loss, where |a| is not less than |b|, or is 0.
constexpr Dvojcislo Srovnej(double a, double b) {
    const double s = a + b;
    return {s, b - (s - a)};
}

/// a + b without loss.
constexpr Dvojcislo Soucet(double a, double b) {
    const double s = a + b;
    const double zB = s - a;
    return {s, (a - (s - zB)) + (b - zB)};
}

/// The upper half of the bits: products of halves are exact.
constexpr double Pul(double a) {
    const double t = a * (0x1p27 + 1);
    return t - (t - a);
}

/// a * b without loss.
constexpr Dvojcislo Soucin(double a, double b) {
    const double s = a * b;
    const double a1 = Pul(a), a2 = a - a1;
    const double b1 = Pul(b), b2 = b - b1;
    return {s, ((a1 * b1 - s) + a1 * b2 + a2 * b1) + a2 * b2};
}

constexpr Dvojcislo operator-(Dvojcislo a) {
    return {-a.Hlavni, -a.Zbytek};
}
constexpr Dvojcislo operator+(Dvojcislo a, Dvojcislo b) {
    const Dvojcislo s = Soucet(a.Hlavni, b.Hlavni);
    return Srovnej(s.Hlavni, s.Zbytek + (a.Zbytek + b.Zbytek));
}
constexpr Dvojcislo operator*(Dvojcislo a, Dvojcislo b) {
    const Dvojcislo s = Soucin(a.Hlavni, b.Hlavni);
    return Srovnej(s.Hlavni, s.Zbytek + (a.Hlavni * b.Zbytek + a.Zbytek * b.Hlavni));
}
constexpr Dvojcislo operator/(Dvojcislo a, Dvojcislo b) {
    const double podil = a.Hlavni / b.Hlavni;
    const Dvojcislo s = Soucin(podil, b.Hlavni);
    const double zbyva = (a.Hlavni - s.Hlavni) - s.Zbytek + (a.Zbytek - podil * b.Zbytek);
    return Srovnej(podil, zbyva / b.Hlavni);
}

/// The square root of what is not negative.
Dvojcislo Odmocnina(Dvojcislo a) {
    const double s = std::sqrt(a.Hlavni);
    if (s == 0) return {};
    return Srovnej(s, (a + -Soucin(s, s)).Hlavni / (2 * s));
}

constexpr Dvojcislo PUL_PI{0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};

// --- sine: a table by parts of a quarter of a turn, and the power series of what is beside them

constexpr int CTVRT = 128;
/// One part, pi/256, as a sum: whole multiples of the first two numbers, of 32 bits, are exact.
constexpr double DILEK[] = {0x1.921fb544p-7, 0x1.0b4611a6p-41, 0x1.3198a2e037073p-76};
constexpr double NEJVETSI_UHEL = 0x1p14;  // radians: up to here the multiples have 21 bits

/// 1 - t/(n (n+1)) + t^2/(n (n+1) (n+2) (n+3)) - ...: the cosine of an angle whose square is t for
/// n of 1; for n of 2 its sine, divided by it.
constexpr Dvojcislo Rada(int n, Dvojcislo t) {
    Dvojcislo clen = 1;
    Dvojcislo soucet = 1;
    for (int k = n; k < 27; k += 2) {
        clen = clen * t / -(k * (k + 1.0));
        soucet = soucet + clen;
    }
    return soucet;
}

constexpr auto SINY = [] {
    std::array<Dvojcislo, 4 * CTVRT> siny;
    for (std::size_t k = 0; k <= CTVRT / 2; ++k) {
        const Dvojcislo uhel = PUL_PI * (static_cast<double>(k) / CTVRT);
        siny[k] = uhel * Rada(2, uhel * uhel);
        siny[CTVRT - k] = Rada(1, uhel * uhel);
    }
    for (std::size_t k = 1; k < CTVRT; ++k) siny[CTVRT + k] = siny[CTVRT - k];
    for (std::size_t k = 0; k < 2 * CTVRT; ++k) siny[2 * CTVRT + k] = -siny[k];
    return siny;
}();

/// An angle as whole parts and what is left, at most half a part.
struct Rozklad {
    unsigned Dilku = 0;
    Dvojcislo Zbyva;
};

Rozklad Rozloz(double uhel) {
    if (!std::isfinite(uhel)) return {0, NENI_CISLO};
    if (std::fabs(uhel) > NEJVETSI_UHEL) Selhani("Přetečení čísla");
    const double k = std::floor(uhel * (CTVRT / PUL_PI.Hlavni) + 0.5);
    Dvojcislo r = Soucet(uhel - k * DILEK[0], -k * DILEK[1]);
    r.Zbytek -= k * DILEK[2];
    return {static_cast<unsigned>(static_cast<int>(k)), r};
}

/// The sine of an angle of so many parts and the rest.
Dvojcislo Sinus(unsigned dilku, Dvojcislo r) {
    // Of the sum of two angles: s, its greater part, then what the series add to it.
    const Dvojcislo s = SINY[dilku % SINY.size()];
    const Dvojcislo c = SINY[(dilku + CTVRT) % SINY.size()];
    const double t = r.Hlavni * r.Hlavni;
    const double sinus = -t * r.Hlavni * (1.0 / 6 - t * (1.0 / 120 - t * (1.0 / 5040)));
    const double kosinus = -t * (1.0 / 2 - t * (1.0 / 24 - t * (1.0 / 720))) - r.Hlavni * r.Zbytek;
    const Dvojcislo cr = Soucin(c.Hlavni, r.Hlavni);
    const Dvojcislo soucet = Srovnej(s.Hlavni, cr.Hlavni);
    return Srovnej(soucet.Hlavni,
                   (s.Hlavni * kosinus + c.Hlavni * sinus) +
                       (c.Hlavni * r.Zbytek + c.Zbytek * r.Hlavni + s.Zbytek + cr.Zbytek) +
                       soucet.Zbytek);
}

// --- arc tangent: a table by parts of 1, and the power series of what is beside them

constexpr int DILKU = 128;

constexpr auto ARKUSTANGENTY = [] {
    std::array<Dvojcislo, DILKU + 1> uhly;
    for (int k = 1; k <= DILKU; ++k) {
        // What the angle grows by has this tangent.
        const Dvojcislo t = Dvojcislo(DILKU) / (DILKU * DILKU + k * (k - 1));
        Dvojcislo mocnina = t;
        Dvojcislo soucet = t;
        for (int n = 3; n < 17; n += 2) {
            mocnina = -mocnina * t * t;
            soucet = soucet + mocnina / n;
        }
        const auto i = static_cast<std::size_t>(k);
        uhly[i] = uhly[i - 1] + soucet;
    }
    return uhly;
}();

/// The direction of a point.
double SmerBodu(Dvojcislo y, Dvojcislo x) {
    const double znamenko = y.Hlavni;
    const bool vlevo = x.Hlavni < 0;
    if (y.Hlavni < 0) y = -y;
    if (vlevo) x = -x;
    const bool strme = y.Hlavni > x.Hlavni;
    if (strme) std::swap(x, y);
    // Turned back by the angle of the table, the point is nearly ahead, in the direction t.
    const auto k = static_cast<int>(y.Hlavni / x.Hlavni * DILKU + 0.5);
    const double c = static_cast<double>(k) / DILKU;
    const Dvojcislo cx = Soucin(c, x.Hlavni), cy = Soucin(c, y.Hlavni);
    Dvojcislo pres = Srovnej(x.Hlavni, cy.Hlavni);
    pres.Zbytek += cy.Zbytek + (x.Zbytek + c * y.Zbytek);
    const Dvojcislo t = Srovnej(y.Hlavni - cx.Hlavni, (y.Zbytek - c * x.Zbytek) - cx.Zbytek) / pres;
    const double t2 = t.Hlavni * t.Hlavni;
    const double rada =
        -t.Hlavni * t2 * (1.0 / 3 - t2 * (1.0 / 5 - t2 * (1.0 / 7 - t2 * (1.0 / 9))));
    const Dvojcislo a = ARKUSTANGENTY[static_cast<std::size_t>(k)];
    Dvojcislo uhel = Srovnej(a.Hlavni, t.Hlavni);
    uhel = Srovnej(uhel.Hlavni, rada + (a.Zbytek + t.Zbytek) + uhel.Zbytek);
    if (strme) uhel = PUL_PI + -uhel;
    if (vlevo) uhel = PUL_PI + PUL_PI + -uhel;
    return std::copysign(uhel.Hlavni, znamenko);
}

/// The power of two that brings numbers of this size to where their squares are numbers too.
double Meritko(double vetsi) {
    if (vetsi > 0x1p400) return 0x1p-600;
    return vetsi < 0x1p-400 ? 0x1p600 : 1;
}

}  // namespace

double Sin(double uhel) {
    const auto [dilku, zbyva] = Rozloz(uhel);
    return uhel == 0 ? uhel : Sinus(dilku, zbyva).Hlavni;
}

double Cos(double uhel) {
    const auto [dilku, zbyva] = Rozloz(uhel);
    return Sinus(dilku + CTVRT, zbyva).Hlavni;
}

double Tan(double uhel) {
    const auto [dilku, zbyva] = Rozloz(uhel);
    return uhel == 0 ? uhel : (Sinus(dilku, zbyva) / Sinus(dilku + CTVRT, zbyva)).Hlavni;
}

double Asin(double x) {
    if (!(std::fabs(x) <= 1)) return NENI_CISLO;
    if (std::fabs(x) < ZTRACI_SE) return x;
    return SmerBodu(x, Odmocnina(Soucet(1, -x) * Soucet(1, x)));
}

double Atan(double x) {
    return Atan2(x, 1);
}

double Atan2(double y, double x) {
    if (std::isnan(y) || std::isnan(x)) return NENI_CISLO;
    if (std::isinf(y) || std::isinf(x)) {
        y = std::copysign(std::isinf(y) ? 1.0 : 0.0, y);
        x = std::copysign(std::isinf(x) ? 1.0 : 0.0, x);
    }
    if (y == 0) return std::signbit(x) ? std::copysign(std::numbers::pi, y) : y;
    if (std::fabs(y) < ZTRACI_SE * x) return y / x;
    const double m = Meritko(std::max(std::fabs(y), std::fabs(x)));
    return SmerBodu(y * m, x * m);
}

double Hypot(double x, double y) {
    if (std::isinf(x) || std::isinf(y)) return std::numeric_limits<double>::infinity();
    if (std::isnan(x) || std::isnan(y)) return NENI_CISLO;
    const double vetsi = std::max(std::fabs(x), std::fabs(y));
    const double mensi = std::min(std::fabs(x), std::fabs(y));
    if (mensi <= ZTRACI_SE * vetsi) return vetsi;
    const double m = Meritko(vetsi);
    return Odmocnina(Soucin(vetsi * m, vetsi * m) + Soucin(mensi * m, mensi * m)).Hlavni / m;
}

}  // namespace rysovna
