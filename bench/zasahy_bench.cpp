// How often what a pupil wants to draw can be drawn: the share of whole degrees and centimetres
// whose read-out comes up, by what draws and by the window. No times.

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "platform/Malir.h"
#include "rules/Tahy.h"
#include "zak/Los.h"

namespace rysovna {
namespace {

constexpr int POKUSU = 40;  // of each value
constexpr Bod ROZMERY[] = {{640, 480}, {1366, 768}, {1920, 1080}};

/// A hand: by so many pixels of the screen it errs on each axis, and then it moves by single ones
/// of the design until the read-out is right, or leaves it.
struct Ruka {
    int Chyba;
    bool Dolad;
};
// Mouse, mouse and arrows, finger and pad.
constexpr Ruka RUCE[] = {{2, false}, {2, true}, {18, true}};

/// The design pixel that is under a place of the window.
int NaNavrh(double navrh, double s, int vedle) {
    return static_cast<int>(std::floor((std::floor(navrh * s) + vedle + 0.5) / s));
}

/// Whether a hand that aims there gets the read-out. sedi(place): it is right at that pixel.
template <class F>
bool Trefi(const Ruka& ruka, double s, hrac::Los& los, double x, double y, const F& sedi) {
    constexpr int NEJDAL = 8;  // px: farther away it is another value
    const Bod kam{NaNavrh(x, s, los.Mezi(-ruka.Chyba, ruka.Chyba)),
                  NaNavrh(y, s, los.Mezi(-ruka.Chyba, ruka.Chyba))};
    if (sedi(kam) || !ruka.Dolad) return sedi(kam);
    const Bod cil{Zaokrouhli(x), Zaokrouhli(y)};
    for (int dy = -NEJDAL; dy <= NEJDAL; ++dy) {
        for (int dx = -NEJDAL; dx <= NEJDAL; ++dx) {
            if (sedi({cil.X + dx, cil.Y + dy})) return true;
        }
    }
    return false;
}

/// Rays of a length (px of the design) at all whole angles; segments of all whole lengths.
void Zasahy(benchmark::State& stav) {
    const Ruka& ruka = RUCE[stav.range(0)];
    const Bod okno = ROZMERY[stav.range(1)];
    const double s = Umisteni::Vejdi(okno.X, okno.Y).S;
    const int delka = static_cast<int>(stav.range(2));
    std::int64_t stupnu = 0;
    std::int64_t centimetru = 0;
    std::int64_t uhlu = 0;
    std::int64_t delek = 0;
    for (auto _ : stav) {
        hrac::Los los(1);
        constexpr Bod VRCHOL{192, 167};
        for (int i = 0; i < POKUSU; ++i) {
            const double smer = los.Mezi(0, 3599) * std::numbers::pi / 1800;
            const auto misto = [&](double uhel, double r) {
                return std::pair{VRCHOL.X + r * std::cos(uhel), VRCHOL.Y + r * std::sin(uhel)};
            };
            const auto [rx, ry] = misto(smer, 200);
            const Bod rameno{Zaokrouhli(rx), Zaokrouhli(ry)};
            for (int uhel = 5; uhel <= 175; ++uhel) {
                const auto [x, y] = misto(smer + uhel * std::numbers::pi / 180, delka);
                ++uhlu;
                stupnu += Trefi(ruka, s, los, x, y, [&](Bod b) {
                    return CisloZOdectu(OdectiUhel(VRCHOL, rameno, VRCHOL, b)) == uhel;
                });
            }
            for (int cm = 3; cm <= 20; ++cm) {
                const auto [x, y] = misto(smer, cm * PIXELU_NA_CM);
                ++delek;
                centimetru += Trefi(ruka, s, los, x, y, [&](Bod b) {
                    return CisloZOdectu(OdectiDelku(Vzdalenost(VRCHOL, b))) == cm;
                });
            }
        }
    }
    stav.counters["stupne_%"] = 100.0 * static_cast<double>(stupnu) / static_cast<double>(uhlu);
    stav.counters["cm_%"] = 100.0 * static_cast<double>(centimetru) / static_cast<double>(delek);
}
BENCHMARK(Zasahy)
    ->ArgsProduct({{0, 1, 2}, {0, 1, 2}, {60, 120}})
    ->ArgNames({"mys_sipky_prst", "okno", "delka_px"})
    ->Iterations(1);

}  // namespace
}  // namespace rysovna
