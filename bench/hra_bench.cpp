// Whole examples by the perfect pupil on the headless host, and the insertion into a score table.

#include <benchmark/benchmark.h>
#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "Mereni.h"
#include "hrac/RukaNaDesce.h"
#include "platform/PosixDisk.h"
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

/// Taking one more record into the file of a table of this many. ku_dnu: how many times longer it
/// takes than reading, writing, syncing and replacing a file of the same bytes. Medians of many,
/// each into the same table.
void VlozeniZaznamu(benchmark::State& stav) {
    const auto n = static_cast<int>(stav.range(0));
    std::vector<ZaznamTabulky> tabulka;
    for (int i = 0; i < n; ++i) {
        tabulka.push_back({"Hráč " + std::to_string(i), std::to_string(50 - i * 50 / n),
                           std::to_string(i * 50 / n), std::to_string(1 + i * 5 / n)});
    }
    const std::string bajty = SlozTabulku(tabulka);
    const hrac::Relace hra;
    const std::filesystem::path cesta = hra.DataDir() / "01.res";
    const std::filesystem::path vedle = hra.DataDir() / "01.dno";
    PosixDisk disk;
    const auto priprav = [&] { hra.PisSoubor("01.res", bajty); };
    const auto vloz = [&] {
        OtevrenaTabulka(disk, cesta).VlozNovyZaznam({"Nový", "25", "25", "3"});
    };
    const auto dno = [&] {
        const std::string stare = disk.Otevri(cesta, Disk::Jak::Zapis)->Cti();
        const auto soubor = disk.NovySoubor(vedle);
        soubor->Pis(0, stare);
        soubor->NaDisk();
        disk.Nahrad(vedle, cesta);
        disk.SlozkaNaDisk(hra.DataDir());
    };
    const testy::MedianyCasu m = testy::PoJednom(priprav, vloz, dno);
    for (auto _ : stav) {
        stav.PauseTiming();
        priprav();
        stav.ResumeTiming();
        vloz();
    }
    stav.counters["median_us"] = m.A * 1e6;
    stav.counters["ku_dnu"] = m.Pomer;
    // What must not grow: what one insertion costs above the floor, for each n * log2(n).
    stav.counters["ns_na_nlogn"] = (m.A - m.B) * 1e9 / (n * std::log2(static_cast<double>(n)));
}
BENCHMARK(VlozeniZaznamu)->Arg(10)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace rysovna
