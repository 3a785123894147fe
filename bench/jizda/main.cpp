// Watches the virtual display's frame buffer file while the panel slides: how many pictures of it
// reach the window, how long it takes from the press to the last of them, and what the game takes
// of the processor meanwhile.
//   jizda_v_okne FRAMEBUFFER WIDTH HEIGHT PID
// It presses nothing: it says "ted" when it watches, and the slide is to begin then.

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "CasProcesoru.h"
#include "ObrazDispleje.h"

namespace {

using Hodiny = std::chrono::steady_clock;

constexpr double NEJDELE = 10000;  // ms
constexpr double KLID = 600;       // ms without a change: it is over
// A row that the handle of the panel reaches, design pixels.
constexpr double RADEK = 270, OD = 325, PO = 640;

}  // namespace

int main(int pocet, char** slova) {
    if (pocet != 5) return 2;
    const int sirka = std::atoi(slova[2]);
    const int vyska = std::atoi(slova[3]);
    const auto displej = rysovna::testy::OtevriObraz(slova[1]);
    if (!displej) return 1;
    const double s = std::min(sirka / 640.0, vyska / 480.0);
    const auto misto = [s](double navrh, int celkem, double navrhu) {
        return static_cast<std::size_t>((celkem - navrhu * s) / 2 + navrh * s);
    };
    const std::uint8_t* radek = displej->Pixely + misto(RADEK, vyska, 480) * displej->Radek;
    const auto od = static_cast<std::ptrdiff_t>(misto(OD, sirka, 640) * 4);
    const auto po = static_cast<std::ptrdiff_t>(misto(PO, sirka, 640) * 4);
    const auto obraz = [&] { return std::vector<std::uint8_t>(radek + od, radek + po); };

    std::vector<std::uint8_t> minuly = obraz();
    const double cpu = rysovna::testy::CasProcesoru(slova[4]);
    std::puts("ted");
    std::fflush(stdout);
    const auto zacatek = Hodiny::now();
    const auto ms = [zacatek] {
        return std::chrono::duration<double, std::milli>(Hodiny::now() - zacatek).count();
    };
    int zmen = 0;
    double prvni = 0, posledni = 0;
    while (ms() < NEJDELE && (zmen == 0 || ms() - posledni < KLID)) {
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        if (obraz() == minuly) continue;
        posledni = ms();
        // The server may be in the middle of the row.
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
        minuly = obraz();
        if (zmen++ == 0) prvni = posledni;
    }
    std::printf("%d obrazů, od prvního k poslednímu %.0f ms, procesor %.0f ms\n", zmen,
                posledni - prvni, rysovna::testy::CasProcesoru(slova[4]) - cpu);
    return 0;
}
