#include "base/Matematika.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <random>

#include "base/Chyba.h"

namespace rysovna {
namespace {

constexpr double UHLY = 1000;  // reach of angles, radians

using Dvou = double (*)(double x, double y);

/// The function, the one of the C library, the reach of its arguments, and what its results come
/// to: a hash that is the same on every home. One that was changed on purpose wants a new number,
/// and a look at every picture and every charge.
struct Funkce {
    const char* Jmeno;
    Dvou Nase, Domaci;
    double Dosah;
    std::uint64_t Otisk;
};
const Funkce FUNKCE[] = {
    {"Sin", [](double x, double) { return Sin(x); }, [](double x, double) { return std::sin(x); },
     UHLY, 0x10904E6E086136B3},
    {"Cos", [](double x, double) { return Cos(x); }, [](double x, double) { return std::cos(x); },
     UHLY, 0x234AD005C32443D5},
    {"Tan", [](double x, double) { return Tan(x); }, [](double x, double) { return std::tan(x); },
     UHLY, 0x1C427D657D2CA077},
    {"Asin", [](double x, double) { return Asin(x); },
     [](double x, double) { return std::asin(x); }, 1, 0x9628BB337623A81F},
    {"Atan", [](double x, double) { return Atan(x); },
     [](double x, double) { return std::atan(x); }, 50, 0x5D322BD6CCAD5C11},
    {"Atan2", Atan2, [](double y, double x) { return std::atan2(y, x); }, 800, 0xB78C8990E77538D3},
    {"Hypot", Hypot, [](double x, double y) { return std::hypot(x, y); }, 800, 0x6BB3E63D985BF298},
};

/// The same, or neighbours, as two good libraries may differ.
bool Blizko(double a, double b) {
    constexpr double INF = std::numeric_limits<double>::infinity();
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    return std::signbit(a) == std::signbit(b) &&
           (a == b || a == std::nextafter(b, INF) || a == std::nextafter(b, -INF));
}

TEST(Matematika, VysledkyJsouVsudeStejneAVedleDomacich) {
    // There are homes whose own functions know a turn to too few places for a comparison.
    const volatile double pulobrat = std::numbers::pi;
    const bool domaciZnaUhel = std::sin(pulobrat) == 0x1.1a62633145c07p-53;
    for (const Funkce& f : FUNKCE) {
        std::mt19937_64 cisla{1};
        const auto argument = [&](int i) {
            const double x = (static_cast<double>(cisla() >> 11) * 0x1p-52 - 1) * f.Dosah;
            if (i % 4 == 1) return std::ldexp(x, -(i % 64));
            // Next to whole quarters of a turn little is left of the angle.
            if (i % 4 == 2 && f.Dosah == UHLY) return std::trunc(x) * (std::numbers::pi / 2);
            return i % 4 == 0 ? std::trunc(x) : x;
        };
        std::uint64_t otisk = 0xCBF29CE484222325;
        for (int i = 0; i < 100'000; ++i) {
            const double x = argument(i), y = argument(i / 4);
            const double nase = f.Nase(x, y);
            otisk = (otisk ^ std::bit_cast<std::uint64_t>(nase)) * 0x100000001B3;
            if (f.Dosah == UHLY && !domaciZnaUhel) continue;
            ASSERT_TRUE(Blizko(nase, f.Domaci(x, y)))
                << std::hexfloat << f.Jmeno << ' ' << x << ' ' << y << ": " << nase;
        }
        EXPECT_EQ(otisk, f.Otisk) << f.Jmeno << std::hex << " 0x" << otisk;
    }
}

TEST(Matematika, NaKrajichPlatiCoVJazyce) {
    constexpr double INF = std::numeric_limits<double>::infinity();
    constexpr double KRAJE[] = {0,      1e-300, 5e-324,  1,   0x1p-60,     0x1p-30,
                                0x1p14, 1e300,  1.7e308, INF, std::nan("")};
    for (const Funkce& f : FUNKCE) {
        for (const double x : KRAJE) {
            if (f.Dosah == UHLY && x > 0x1p14 && x < INF) {
                EXPECT_THROW(f.Nase(x, 0), BehovaChyba) << f.Jmeno;
                continue;
            }
            for (const double y : KRAJE) {
                for (const auto& [a, b] : {std::pair{x, y}, {-x, y}, {x, -y}, {-x, -y}}) {
                    EXPECT_TRUE(Blizko(f.Nase(a, b), f.Domaci(a, b)))
                        << std::hexfloat << f.Jmeno << ' ' << a << ' ' << b << ": " << f.Nase(a, b)
                        << " x " << f.Domaci(a, b);
                }
            }
        }
    }
}

}  // namespace
}  // namespace rysovna
