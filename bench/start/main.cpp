// Starts a program again and again and measures how long it takes until a picture stands on the
// screen: watches the virtual display's own frame buffer file.
//   cekani_na_obraz FRAMEBUFFER WIDTH HEIGHT RUNS PROGRAM

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Hodiny = std::chrono::steady_clock;

constexpr double NARIZENE_CEKANI = 100;  // ms before the title, by the start-up's own rule
constexpr double NEJDELE = 5000;         // ms

/// Whether the title is on the screen: its middle row has pixels of more than one colour. A black
/// or a plain screen is not it yet.
bool JeObraz(const std::uint8_t* pixely, int sirka, int vyska, std::size_t radek) {
    const auto* r = reinterpret_cast<const std::uint32_t*>(
        pixely + static_cast<std::size_t>(vyska / 2) * radek);
    int zmen = 0;
    for (int x = 1; x < sirka; ++x) zmen += r[x] != r[x - 1] ? 1 : 0;
    return zmen > 8;
}

}  // namespace

int main(int pocet, char** slova) {
    if (pocet != 6) return 2;
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

    std::vector<double> doby;
    for (int beh = 0; beh < behu; ++beh) {
        while (JeObraz(pixely, sirka, vyska, radek)) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        const auto zacatek = Hodiny::now();
        const pid_t dite = fork();
        if (dite == 0) {
            execl(slova[5], slova[5], nullptr);
            _exit(127);
        }
        double ms = 0;
        while (!JeObraz(pixely, sirka, vyska, radek) && ms < NEJDELE) {
            std::this_thread::sleep_for(std::chrono::microseconds(200));
            ms = std::chrono::duration<double, std::milli>(Hodiny::now() - zacatek).count();
        }
        doby.push_back(ms);
        kill(dite, SIGKILL);
        waitpid(dite, nullptr, 0);
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    std::ranges::sort(doby);
    std::printf(
        "od spuštění k titulu: medián %.0f ms (%.0f až %.0f), bez nařízených čekání %.0f ms\n",
        doby[doby.size() / 2], doby.front(), doby.back(), doby[doby.size() / 2] - NARIZENE_CEKANI);
    return 0;
}
