#include "zak/Rysovani.h"

#include <cmath>

#include "base/Cisla.h"
#include "engine/Miry.h"

namespace rysovna::hrac {

bool NaPlose(Bod b) {
    return b.X >= 25 && b.Y >= 28 && b.X <= 365 && b.Y <= 310;
}

Bod NaKruznici(Los& los, Bod stred, int r) {
    const int y = los.Mezi(30, 305);
    const Bod strany[] = {{stred.X - r, y}, {stred.X + r, y}};
    const std::size_t i = los.Ano() ? 1 : 0;
    return NaPlose(strany[i]) || !NaPlose(strany[1 - i]) ? strany[i] : strany[1 - i];
}

Bod PodUhlem(Bod rameno1, Bod rameno2, int stupnu, int daleko) {
    const double smer = std::atan2(rameno1.Y - rameno2.Y, rameno2.X - rameno1.X);
    // The pixel nearest to the exact angle, of several distances: the read-out rounds to degrees.
    Bod nejlepsi{};
    double odchylka = 1e9;
    for (int r = daleko; r <= daleko + 30; ++r) {
        const double uhel = smer + stupnu * PI / STUPNU_PULOTACKY;
        const Bod b{rameno1.X + Zaokrouhli(r * std::cos(uhel)),
                    rameno1.Y - Zaokrouhli(r * std::sin(uhel))};
        const double skutecny = std::atan2(rameno1.Y - b.Y, b.X - rameno1.X) - smer;
        const double d =
            std::fabs(std::remainder(skutecny - stupnu * PI / STUPNU_PULOTACKY, DVE_PI));
        if (d < odchylka) {
            odchylka = d;
            nejlepsi = b;
        }
    }
    return nejlepsi;
}

}  // namespace rysovna::hrac
