// Starts programs in turns, again and again, and measures how long each takes until a picture
// stands on the screen: watches the virtual display's own frame buffer file. The first is the
// floor.
//   cekani_na_obraz FRAMEBUFFER WIDTH HEIGHT RUNS ORDERED_MS PROGRAM [ORDERED_MS PROGRAM ...]
// ORDERED_MS is taken off: the waits that the program's own start orders.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "ObrazDispleje.h"

namespace {

using rysovna::testy::ObrazDispleje;
using rysovna::testy::OtevriObraz;

using Hodiny = std::chrono::steady_clock;

constexpr double NEJDELE = 5000;  // ms

/// Whether the title is on the screen: its middle row has pixels of more than one colour. A black
/// or a plain screen is not it yet.
bool JeObraz(const ObrazDispleje& obraz, int sirka, int vyska) {
    const auto* r = reinterpret_cast<const std::uint32_t*>(
        obraz.Pixely + static_cast<std::size_t>(vyska / 2) * obraz.Radek);
    int zmen = 0;
    for (int x = 1; x < sirka; ++x) zmen += r[x] != r[x - 1] ? 1 : 0;
    return zmen > 8;
}

struct Program {
    double Narizeno;  ///< ms
    const char* Soubor;
    std::vector<double> Doby;  ///< ms
    std::vector<double> Cpu;   ///< of all its threads until then, ms
};

double Ms(const timeval& t) {
    return static_cast<double>(t.tv_sec) * 1000 + static_cast<double>(t.tv_usec) / 1000;
}

double Median(std::vector<double>& doby) {
    std::ranges::sort(doby);
    return doby[doby.size() / 2];
}

}  // namespace

int main(int pocet, char** slova) {
    if (pocet < 7 || pocet % 2 == 0) return 2;
    const int sirka = std::atoi(slova[2]);
    const int vyska = std::atoi(slova[3]);
    const int behu = std::atoi(slova[4]);
    const auto obraz = OtevriObraz(slova[1]);
    if (!obraz) return 1;

    std::vector<Program> programy;
    for (int i = 5; i < pocet; i += 2)
        programy.push_back({std::atof(slova[i]), slova[i + 1], {}, {}});
    // The first round warms the caches and is not counted.
    for (int kolo = 0; kolo <= behu; ++kolo) {
        for (Program& p : programy) {
            while (JeObraz(*obraz, sirka, vyska))
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            const auto zacatek = Hodiny::now();
            const pid_t dite = fork();
            if (dite == 0) {
                execl(p.Soubor, p.Soubor, nullptr);
                _exit(127);
            }
            double ms = 0;
            while (!JeObraz(*obraz, sirka, vyska) && ms < NEJDELE) {
                std::this_thread::sleep_for(std::chrono::microseconds(200));
                ms = std::chrono::duration<double, std::milli>(Hodiny::now() - zacatek).count();
            }
            kill(dite, SIGKILL);
            rusage spotreba{};
            wait4(dite, nullptr, 0, &spotreba);
            if (kolo > 0) {
                p.Doby.push_back(ms - p.Narizeno);
                p.Cpu.push_back(Ms(spotreba.ru_utime) + Ms(spotreba.ru_stime));
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
    }
    const double dno = Median(programy.front().Doby);
    const double cpuDna = Median(programy.front().Cpu);
    for (Program& p : programy) {
        const double m = Median(p.Doby);
        const double cpu = Median(p.Cpu);
        std::printf(
            "%6.0f ms (%.0f až %.0f), %.2f dna, o %.0f více; CPU %.0f ms, %.2f dna, o %.0f více  "
            "%s\n",
            m, p.Doby.front(), p.Doby.back(), m / dno, m - dno, cpu, cpu / cpuDna, cpu - cpuDna,
            p.Soubor);
    }
    return 0;
}
