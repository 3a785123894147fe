// Drags in the real window on a virtual display and reads off its frame buffer how long each move
// of the hand takes to the first pixel, and what it takes of the game's processor.
//   tah_v_okne FRAMEBUFFER WIDTH HEIGHT PID X0 Y0 X1 Y1
// The button goes down at the first place and up at the second, design pixels; in between the end
// of the drag jumps about the second one, level. Watched is the row half way: what is dragged
// crosses it elsewhere each time, and the pointer is far from it.

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "CasProcesoru.h"
#include "ObrazDispleje.h"

namespace {

using Hodiny = std::chrono::steady_clock;

constexpr int POHYBU = 100;
constexpr double NEJDELE = 300;             // ms; a move that is not seen by then is lost
constexpr double DALEKO = 30, BLIZKO = 8;   // design px about the end; between two moves
constexpr double OD_POHYBU = 20, DO = 40;   // ms between two moves
constexpr double VLEVO = 80, VPRAVO = 630;  // of the watched row, design px
constexpr std::uint32_t SEMINKO = 7;

void Spi(double ms) {
    std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(ms));
}

/// The value below which the given part of them lies.
double Kvantil(std::vector<double>& v, double dil) {
    const auto i = static_cast<std::ptrdiff_t>(dil * static_cast<double>(v.size() - 1));
    std::nth_element(v.begin(), v.begin() + i, v.end());
    return v[static_cast<std::size_t>(i)];
}

/// The hand on the display: its events are those of a mouse.
class Ruka {
public:
    Ruka(int sirka, int vyska)
        : s_(std::min(sirka / 640.0, vyska / 480.0)),
          x_((sirka - 640 * s_) / 2),
          y_((vyska - 480 * s_) / 2) {}
    [[nodiscard]] bool Je() const { return displej_ != nullptr; }
    [[nodiscard]] int X(double navrh) const { return static_cast<int>(x_ + (navrh + 0.5) * s_); }
    [[nodiscard]] int Y(double navrh) const { return static_cast<int>(y_ + (navrh + 0.5) * s_); }
    void Na(double x, double y) {
        XTestFakeMotionEvent(displej_.get(), -1, X(x), Y(y), CurrentTime);
        XFlush(displej_.get());
    }
    void Tlacitko(bool dolu) {
        XTestFakeButtonEvent(displej_.get(), 1, dolu ? True : False, CurrentTime);
        XSync(displej_.get(), False);
    }

private:
    struct Zavri {
        void operator()(Display* d) const { XCloseDisplay(d); }
    };
    std::unique_ptr<Display, Zavri> displej_{XOpenDisplay(nullptr)};
    double s_, x_, y_;
};

}  // namespace

int main(int pocet, char** slova) {
    if (pocet != 9) return 2;
    const std::string pid = slova[4];
    const double x0 = std::atof(slova[5]), y0 = std::atof(slova[6]);
    const double x1 = std::atof(slova[7]), y1 = std::atof(slova[8]);
    Ruka ruka(std::atoi(slova[2]), std::atoi(slova[3]));
    const auto displej = rysovna::testy::OtevriObraz(slova[1]);
    if (!displej || !ruka.Je()) return 1;
    const std::uint8_t* radek =
        displej->Pixely + static_cast<std::size_t>(ruka.Y((y0 + y1) / 2)) * displej->Radek;
    const std::uint8_t* od = radek + static_cast<std::ptrdiff_t>(ruka.X(VLEVO)) * 4;
    const std::uint8_t* po = radek + static_cast<std::ptrdiff_t>(ruka.X(VPRAVO)) * 4;

    ruka.Na(x0, y0);
    Spi(150);
    ruka.Tlacitko(true);
    Spi(200);
    ruka.Na((x0 + x1) / 2, (y0 + y1) / 2);
    Spi(100);
    ruka.Na(x1, y1);
    Spi(150);
    std::mt19937 los(SEMINKO);
    std::uniform_real_distribution<double> kam(-DALEKO, DALEKO), pauza(OD_POHYBU, DO);
    std::vector<double> trvani, procesor;
    double minule = x1;
    for (int i = 0; i < POHYBU; ++i) {
        double cil = minule;
        while (std::abs(cil - minule) < BLIZKO) cil = x1 + kam(los);
        minule = cil;
        const std::vector<std::uint8_t> pred(od, po);
        const double cpu = rysovna::testy::CasProcesoru(pid);
        const auto zacatek = Hodiny::now();
        ruka.Na(cil, y1);
        for (double ms = 0; ms < NEJDELE;) {
            ms = std::chrono::duration<double, std::milli>(Hodiny::now() - zacatek).count();
            if (std::memcmp(od, pred.data(), pred.size()) != 0) {
                trvani.push_back(ms);
                break;
            }
            // The processor is the game's and the server's.
            std::this_thread::sleep_for(std::chrono::microseconds(60));
        }
        Spi(pauza(los));
        procesor.push_back(rysovna::testy::CasProcesoru(pid) - cpu);
    }
    ruka.Na(x1, y1);
    Spi(100);
    ruka.Tlacitko(false);
    Spi(250);
    if (trvani.empty()) {
        std::puts("žádný pohyb není vidět");
        return 1;
    }
    std::printf("%.2f ms, devět z deseti do %.2f ms, procesor %.2f ms; neviděno %zu z %d\n",
                Kvantil(trvani, 0.5), Kvantil(trvani, 0.9), Kvantil(procesor, 0.5),
                procesor.size() - trvani.size(), POHYBU);
    return 0;
}
