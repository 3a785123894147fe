#include "rules/Tahy.h"

#include <cmath>
#include <cstdlib>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "engine/Resitele.h"

namespace rysovna {

Bod NaPixely(float x, float y) {
    return {Zaokrouhli(x), Zaokrouhli(y)};
}

Bod BodNaZakladne(const Utvar& zakladna, float x, float y) {
    if (zakladna.X1 == zakladna.X2) return {zakladna.X1, Zaokrouhli(y)};
    const double smernice = static_cast<double>(zakladna.Y2 - zakladna.Y1) /
                            static_cast<double>(zakladna.X2 - zakladna.X1);
    const int X = Zaokrouhli(x);
    return {X, Zaokrouhli(smernice * (X - zakladna.X1) + zakladna.Y1)};
}

Dvojice Rovnobezne(const Utvar& zakladna, Bod start, Bod ukazatel) {
    const int dx = ukazatel.X - start.X;
    const int dy = ukazatel.Y - start.Y;
    return {{zakladna.X1 + dx, zakladna.Y1 + dy}, {zakladna.X2 + dx, zakladna.Y2 + dy}};
}

Dvojice Kolme(const Utvar& zakladna, Bod start, Bod ukazatel) {
    int dx = -(zakladna.Y2 - zakladna.Y1);
    int dy = zakladna.X2 - zakladna.X1;
    if (dx == 0 && dy == 0) dy = 1;
    const double kam = static_cast<double>(ukazatel.X - start.X) * dx +
                       static_cast<double>(ukazatel.Y - start.Y) * dy;
    if (kam < 0) {
        dx = -dx;
        dy = -dy;
    }
    return {start, {start.X + dx, start.Y + dy}};
}

Bod PataUkazatele(Dvojice primka, Bod ukazatel) {
    const double dx = primka.P2.X - primka.P1.X;
    const double dy = primka.P2.Y - primka.P1.Y;
    const double delka2 = dx * dx + dy * dy;
    if (delka2 == 0) return primka.P1;
    const double t = ((ukazatel.X - primka.P1.X) * dx + (ukazatel.Y - primka.P1.Y) * dy) / delka2;
    return {Zaokrouhli(primka.P1.X + t * dx), Zaokrouhli(primka.P1.Y + t * dy)};
}

double Vzdalenost(Bod a, Bod b) {
    const double dx = a.X - b.X;
    const double dy = a.Y - b.Y;
    return std::sqrt(dx * dx + dy * dy);
}

double DelkaVCm(double px) {
    return std::trunc(px / (10 * PIXELU_NA_CM) * 100) / 10;
}

std::string OdectiDelku(double px) {
    return FormatCele(DelkaVCm(px)) + " cm";
}

std::string OdectiVzdalenost(const Utvar& zakladna, Bod start, Bod ukazatel) {
    // The line through the base's points as a*x + b*y + c = 0.
    const double a = zakladna.Y2 - zakladna.Y1;
    const double b = zakladna.X1 - zakladna.X2;
    const double c = -(a * zakladna.X1 + b * zakladna.Y1);
    const double norma = std::sqrt(a * a + b * b);
    const double px = norma == 0 ? Vzdalenost({zakladna.X1, zakladna.Y1}, ukazatel)
                                 : std::fabs(a * ukazatel.X + b * ukazatel.Y + c) / norma;
    const bool dolu = ukazatel.Y > start.Y;
    return (dolu ? "-" : "") + FormatCele(px / PIXELU_NA_CM) + " cm";
}

std::string OdectiUhel(Bod rameno1, Bod rameno2, Bod start, Bod ukazatel) {
    double uhel = 0;
    if (!(start == ukazatel)) {
        uhel = std::fabs(static_cast<double>(Smer(start, ukazatel, 0)) -
                         static_cast<double>(Smer(rameno1, rameno2, 0)));
        if (uhel > PI) uhel = DVE_PI - uhel;
    }
    return FormatCele(uhel * STUPNU_PULOTACKY / PI) + "°";
}

Gumicka TahKruznice(Bod stred, Bod ukazatel) {
    const int r = std::abs(ukazatel.X - stred.X);
    return {Gumicka::Tvar::Kruh, stred.X - r, stred.Y - r,
            stred.X + r,         stred.Y + r, OdectiDelku(r)};
}

double CisloZOdectu(std::string_view text) {
    constexpr std::string_view STUPEN = "°";
    std::string cislo;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, STUPEN.size()) == STUPEN) {
            i += STUPEN.size() - 1;
        } else if (text[i] != ' ' && text[i] != 'c' && text[i] != 'm') {
            cislo += text[i];
        }
    }
    return Cislo(cislo);
}

Bod StredUseckyBodu(Bod a, Bod b) {
    return {Zaokrouhli((static_cast<double>(a.X) + b.X) / 2),
            Zaokrouhli((static_cast<double>(a.Y) + b.Y) / 2)};
}

}  // namespace rysovna
