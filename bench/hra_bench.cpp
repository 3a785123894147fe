// Whole examples by the perfect pupil on the headless host, and the score table's insertion.

#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

#include "hrac/RukaNaDesce.h"
#include "rules/Ulohy.h"
#include "screens/Desky.h"
#include "store/TabulkaVysledku.h"
#include "zak/Trojuhelnik.h"

namespace rysovna {
namespace {

/// Examples by SSS per second, from the press that starts one to its verdict and the next one's
/// assignment. With the panel's slides the pupil pushes it away in each example.
void PrikladySss(benchmark::State& stav) {
    const bool zasouvat = stav.range(0) != 0;
    hrac::Relace hra;
    hra.Start();
    hra.SpustUlohu(1, "Měření", 5);
    hrac::RukaNaDesce ruka(hra);
    std::uint32_t seminko = 0;
    for (auto _ : stav) {
        ++seminko;
        hrac::DokonalyTrojuhelnik(ruka, seminko, zasouvat).Sestroj();
        ruka.Zkontroluj();
        hra.Stiskni("picPokracuj");
        if (hra.JmenoVpredu() == "TabulkaForm") {
            hra.Stiskni("picKonec");
            hra.Stiskni("picPokracuj");
        }
        hra.Cekej(200);
    }
    stav.counters["prikladu_za_s"] =
        benchmark::Counter(static_cast<double>(stav.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(PrikladySss)->Arg(0)->Arg(1)->ArgName("panel_se_zasouva")->Unit(benchmark::kMillisecond);

/// Taking one more record into a table of this many, without the file.
void VlozeniZaznamu(benchmark::State& stav) {
    const auto n = static_cast<int>(stav.range(0));
    std::vector<ZaznamTabulky> tabulka;
    for (int i = 0; i < n; ++i) {
        tabulka.push_back({"Hráč " + std::to_string(i), std::to_string(50 - i * 50 / n),
                           std::to_string(i * 50 / n), std::to_string(1 + i * 5 / n)});
    }
    for (auto _ : stav) {
        stav.PauseTiming();
        std::vector<ZaznamTabulky> kopie = tabulka;
        kopie.reserve(kopie.size() + 1);
        stav.ResumeTiming();
        VlozZaznam(kopie, {"Nový", "25", "25", "3"});
        benchmark::DoNotOptimize(kopie.data());
    }
    stav.SetComplexityN(n);
    using Doba = std::chrono::duration<double, std::nano>;
    // What must not grow: the cost of one insertion for each n * log2(n).
    const auto zacatek = std::chrono::steady_clock::now();
    std::vector<ZaznamTabulky> jedna = tabulka;
    VlozZaznam(jedna, {"Nový", "25", "25", "3"});
    const double ns = Doba(std::chrono::steady_clock::now() - zacatek).count();
    stav.counters["ns_na_nlogn"] = ns / (n * std::log2(static_cast<double>(n)));
}
BENCHMARK(VlozeniZaznamu)->Arg(10)->Arg(1000)->Arg(100000)->Complexity(benchmark::oNLogN);

}  // namespace
}  // namespace rysovna
