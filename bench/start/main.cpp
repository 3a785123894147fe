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
#include <cstring>
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Hodiny = std::chrono::steady_clock;

constexpr double NEJDELE = 5000;  // ms

/// Whether the title is on the screen: its middle row has pixels of more than one colour. A black
/// or a plain screen is not it yet.
bool JeObraz(const std::uint8_t* pixely, int sirka, int vyska, std::size_t radek) {
    const auto* r = reinterpret_cast<const std::uint32_t*>(
        pixely + static_cast<std::size_t>(vyska / 2) * radek);
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
    const int soubor = open(slova[1], O_RDONLY | O_CLOEXEC);
    struct stat popis {};
    if (soubor < 0 || fstat(soubor, &popis) != 0) return 1;
    const auto delka = static_cast<std::size_t>(popis.st_size);
    const auto* mapa =
        static_cast<const std::uint8_t*>(mmap(nullptr, delka, PROT_READ, MAP_SHARED, soubor, 0));
    if (mapa == MAP_FAILED) return 1;
    // The dump's header (XWD, big-endian words): its own length, bytes a row, number of colours.
    const auto slovo = [mapa](int i) {
        const std::uint8_t* p = mapa + i * 4;
        return static_cast<std::size_t>(p[0]) << 24 | static_cast<std::size_t>(p[1]) << 16 |
               static_cast<std::size_t>(p[2]) << 8 | p[3];
    };
    const std::size_t radek = slovo(12);
    const std::uint8_t* pixely = mapa + slovo(0) + slovo(19) * 12;

    std::vector<Program> programy;
    for (int i = 5; i < pocet; i += 2)
        programy.push_back({std::atof(slova[i]), slova[i + 1], {}, {}});
    // The first round warms the caches and is not counted.
    for (int kolo = 0; kolo <= behu; ++kolo) {
        for (Program& p : programy) {
            while (JeObraz(pixely, sirka, vyska, radek))
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            const auto zacatek = Hodiny::now();
            const pid_t dite = fork();
            if (dite == 0) {
                execl(p.Soubor, p.Soubor, nullptr);
                _exit(127);
            }
            double ms = 0;
            while (!JeObraz(pixely, sirka, vyska, radek) && ms < NEJDELE) {
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
