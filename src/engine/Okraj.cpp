#include "engine/Okraj.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Cisla.h"
#include "base/Matematika.h"

namespace rysovna {

namespace {

// The margin box, px from the plane's edges: where the second point of a ray or line is put, so
// that there is room for its label.
constexpr int OKRAJ_X = 15;
constexpr int OKRAJ_NAHORE = 10;
constexpr int OKRAJ_DOLE = 20;

// A parallel's second point is no closer to the first than this, px: half a pixel of rounding is
// then less than a third of a degree.
constexpr double BLIZKO_OKRAJE = 100;
// With so much of the line in the box one of its ends is at least half of it away, px.
constexpr double KRATCE_V_OKRAJI = 120;

struct Box {
    int Vlevo, Vpravo, Nahore, Dole;  ///< px, ends included
};
Box OkrajPlochy(const Plane& plane) {
    return {OKRAJ_X, plane.Width() - OKRAJ_X, OKRAJ_NAHORE, plane.Height() - OKRAJ_DOLE};
}

/// How much Y grows on the way from a to x, or with the axes exchanged X.
double Prirustek(double a1, double b1, double a2, double b2, double a) {
    return (b2 - b1) * (a - a1) / (a2 - a1);
}

/// The margin point of an object, whether or not it lies ahead of the start.
Bod BodOkraje(const Plane& plane, Bod od, Bod k) {
    const Box box = OkrajPlochy(plane);
    Bod bod = k;
    if (k.X != od.X) {
        bod.X = k.X > od.X ? box.Vpravo : box.Vlevo;
        bod.Y = od.Y + Zaokrouhli(Prirustek(od.X, od.Y, k.X, k.Y, bod.X));
    } else if (k.Y != od.Y) {
        bod.Y = k.Y < od.Y ? box.Nahore : box.Dole;
    }
    const auto doVysky = [&bod, od](int y) {
        if (bod.Y != od.Y) {
            bod.X = Zaokrouhli(Prirustek(od.Y, od.X, bod.Y, bod.X, y) + od.X);
        }
        bod.Y = y;
    };
    if (bod.Y < box.Nahore) doVysky(box.Nahore);
    if (bod.Y > box.Dole) doVysky(box.Dole);
    return bod;
}

bool JeVpredu(Bod od, Bod k, Bod bod) {
    return (static_cast<double>(bod.X) - od.X) * (static_cast<double>(k.X) - od.X) +
               (static_cast<double>(bod.Y) - od.Y) * (static_cast<double>(k.Y) - od.Y) >
           0;
}

/// A line by a point and its direction.
struct Primka {
    Bod Od, Smer;
    [[nodiscard]] double Delka() const { return Hypot(Smer.X, Smer.Y); }
    [[nodiscard]] Bod Dal(int kolikrat = 1) const {
        return {Od.X + kolikrat * Smer.X, Od.Y + kolikrat * Smer.Y};
    }
    /// The pixel at t ways from the point.
    [[nodiscard]] Bod V(double t) const {
        return {Zaokrouhli(Od.X + t * Smer.X), Zaokrouhli(Od.Y + t * Smer.Y)};
    }
};

/// Between which multiples of its way a line is in the margin box; none if it misses the box.
std::optional<std::pair<double, double>> VBoxu(const Box& box, const Primka& p) {
    double od = -HUGE_VAL;
    double po = HUGE_VAL;
    const auto orez = [&](int bod, int smer, int dolni, int horni) {
        if (smer == 0) {
            if (bod < dolni || bod > horni) po = -HUGE_VAL;
            return;
        }
        const double t1 = (static_cast<double>(dolni) - bod) / smer;
        const double t2 = (static_cast<double>(horni) - bod) / smer;
        od = std::max(od, std::min(t1, t2));
        po = std::min(po, std::max(t1, t2));
    };
    orez(p.Od.X, p.Smer.X, box.Vlevo, box.Vpravo);
    orez(p.Od.Y, p.Smer.Y, box.Nahore, box.Dole);
    if (od > po) return {};
    return std::pair{od, po};
}

/// The margin point to one side (1: along the way, -1: against it), and how far it is; one that is
/// not ahead is at no distance at all.
struct Konec {
    Bod Misto;
    double Daleko = 0;  ///< px
};
Konec KonecPrimky(const Plane& plane, const Primka& p, int strana) {
    const Bod k = p.Dal(strana);
    const Bod bod = BodOkraje(plane, p.Od, k);
    if (!JeVpredu(p.Od, k, bod)) return {bod};
    return {bod, Hypot(bod.X - p.Od.X, bod.Y - p.Od.Y)};
}

bool JeVBoxu(const Box& box, Bod b) {
    return b.X >= box.Vlevo && b.X <= box.Vpravo && b.Y >= box.Nahore && b.Y <= box.Dole;
}

/// The foot of the pointer on the line, no further out than the line's part in the box.
Bod PataVBoxu(const Primka& p, Bod ukazatel,
              const std::optional<std::pair<double, double>>& uvnitr) {
    double t = ((static_cast<double>(ukazatel.X) - p.Od.X) * p.Smer.X +
                (static_cast<double>(ukazatel.Y) - p.Od.Y) * p.Smer.Y) /
               (p.Delka() * p.Delka());
    if (uvnitr) t = std::clamp(t, uvnitr->first, uvnitr->second);
    return p.V(t);
}

}  // namespace

Bod NaOkraj(const Plane& plane, Bod od, Bod k) {
    const Bod bod = BodOkraje(plane, od, k);
    return JeVpredu(od, k, bod) ? bod : k;
}

PosunutaPrimka UlozRovnobezku(const Plane& plane, Dvojice primka, std::optional<Bod> pevny,
                              Bod ukazatel) {
    const Box box = OkrajPlochy(plane);
    Primka p{pevny.value_or(primka.P1), {primka.P2.X - primka.P1.X, primka.P2.Y - primka.P1.Y}};
    if (p.Smer == Bod{}) return {p.Od, p.Od};
    const auto uvnitr = VBoxu(box, p);
    const bool kratka = !uvnitr || (uvnitr->second - uvnitr->first) * p.Delka() < KRATCE_V_OKRAJI;
    const bool hledany =
        !pevny && (!JeVBoxu(box, p.Od) || KonecPrimky(plane, p, 1).Daleko < BLIZKO_OKRAJE);
    if (hledany) p.Od = PataVBoxu(p, ukazatel, uvnitr);
    if (kratka) return {p.Od, p.Dal(), hledany};
    const Konec vpredu = KonecPrimky(plane, p, 1);
    const Konec vzadu = KonecPrimky(plane, p, -1);
    const bool dopredu = vpredu.Daleko >= BLIZKO_OKRAJE || vpredu.Daleko >= vzadu.Daleko;
    return {p.Od, dopredu ? vpredu.Misto : vzadu.Misto, hledany};
}

}  // namespace rysovna
