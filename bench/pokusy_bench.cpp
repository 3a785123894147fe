// What keeping attempts costs a pupil: start, drag and whole example with attempts kept beside the
// same ones with Pokusy=ne, in turns in one run.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

#include "hrac/RukaNaDesce.h"
#include "zak/Sestroj.h"

namespace rysovna {
namespace {

constexpr int UKLADAJI = 0, BEZ = 1;
constexpr int KOL = 200;

/// Processor time of one thing, seconds: what others take of the machine counts for neither.
template <class Co>
double Trvani(Co&& co) {
    const std::clock_t zacatek = std::clock();
    co();
    return static_cast<double>(std::clock() - zacatek) / CLOCKS_PER_SEC;
}

/// Times its drags.
class MerenaRuka final : public hrac::RukaNaDesce {
public:
    using RukaNaDesce::RukaNaDesce;
    std::vector<double> Tahy;

protected:
    void TahPoPlose(Bod odkud, Bod kam) override {
        Tahy.push_back(Trvani([&] { Hra().Tahni("Pic", odkud, kam); }));
        Hra().Cekej(200);
    }
};

/// Times of both, paired: the same thing done in the one session and then in the other.
struct Dvojice {
    std::vector<double> Casy[2];

    void Rekni(benchmark::State& stav, const std::string& co, double jednotka) {
        std::vector<double> pomery;
        for (std::size_t i = 0; i < std::min(Casy[0].size(), Casy[1].size()); ++i)
            pomery.push_back(Casy[UKLADAJI][i] / Casy[BEZ][i]);
        stav.counters[co] = Median(Casy[UKLADAJI]) * jednotka;
        stav.counters[co + "_ku_bez"] = Median(pomery);
    }

private:
    static double Median(std::vector<double> v) {
        std::ranges::nth_element(v, v.begin() + static_cast<std::ptrdiff_t>(v.size() / 2));
        return v[v.size() / 2];
    }
};

/// A triangle by SSS or a circle step by step, the assignment of both sessions being the same.
void SPokusyABez(benchmark::State& stav) {
    Dvojice start, tah, priklad;
    const auto nova = [](int ktera) {
        auto hra = std::make_unique<hrac::Relace>(7);
        if (ktera == BEZ)
            hra->PisSoubor("../Rysovna.ini", hra->CtiSoubor("../Rysovna.ini") + "Pokusy=ne\r\n");
        return hra;
    };
    for (auto _ : stav) {
        std::unique_ptr<hrac::Relace> hry[2];
        for (int i = 0; i < KOL; ++i) {
            for (int n = 0; n < 2; ++n) {
                const int ktera = (i + n) % 2;  // neither is always the first one
                hry[ktera] = nova(ktera);
                start.Casy[ktera].push_back(Trvani([&] { hry[ktera]->Start(); }));
            }
        }
        for (auto& hra : hry) hra->SpustUlohu(static_cast<int>(stav.range(0)), "Měření", 5);
        for (int i = 0; i < KOL; ++i) {
            for (int n = 0; n < 2; ++n) {
                const int ktera = (i + n) % 2;
                hrac::Relace& hra = *hry[ktera];
                MerenaRuka ruka(hra);
                priklad.Casy[ktera].push_back(Trvani([&] {
                    hrac::Sestroj(ruka, static_cast<std::uint32_t>(i));
                    ruka.Zkontroluj();
                    hra.Stiskni("picPokracuj");
                    if (hra.JmenoVpredu() == "TabulkaForm") {
                        hra.Stiskni("picKonec");
                        hra.Stiskni("picPokracuj");
                    }
                    hra.Cekej(200);
                }));
                auto& tahy = tah.Casy[ktera];
                tahy.insert(tahy.end(), ruka.Tahy.begin(), ruka.Tahy.end());
            }
        }
    }
    start.Rekni(stav, "start_ms", 1e3);
    tah.Rekni(stav, "tah_us", 1e6);
    priklad.Rekni(stav, "priklad_ms", 1e3);
}
BENCHMARK(SPokusyABez)->Arg(1)->Arg(12)->ArgName("uloha")->Iterations(1)->Unit(benchmark::kSecond);

}  // namespace
}  // namespace rysovna
