// Values of the quadrilaterals whose fourth vertex is found by two objects.

#include "rules/LosovaniCtyruhelniku.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Miry.h"
#include "engine/Resitele.h"
#include "rules/FiguraCtyruhelniku.h"
#include "rules/Misc.h"
#include "rules/Uzavreni.h"

namespace rysovna {

namespace {

/// A draw whose base may move with an angle of the starting triangle, degrees: 1 is the one
/// between its first side and its third, 2 the one between its second side and its third.
struct VzorecUhlu {
    int Rozpeti, Zaklad;
    int Uhel = 0;
};

/// Four kinds that differ only in the triangle and the names.
struct SkupinaDruhu {
    std::array<std::string_view, 4> Druhy;
    bool Sus;  ///< the third value is the angle between the first two, else a side
    VzorecUhlu Ctvrta, Pata;
    bool DruhyTrojuhelnik;  ///< third side, fourth and fifth value make a triangle
    int SoucetPod;          ///< the fourth and the fifth sum to less; 0: any
};
constexpr Vzorec STRANA{15, 5}, UHEL{136, 22};
constexpr int NEJVIC_DVA_UHLY = 250;  // degrees
constexpr SkupinaDruhu SKUPINY[] = {
    {{"01", "05", "09", "13"}, true, {15, 5}, {15, 5}, true, 0},
    {{"02", "06", "10", "14"}, true, {15, 10}, {25, 10, 1}, false, 0},
    {{"03", "07", "11", "15"}, true, {15, 10}, {20, 10, 1}, false, 0},
    {{"04", "08", "12", "16"}, true, {30, 10, 1}, {30, 10, 2}, false, NEJVIC_DVA_UHLY},
    {{"17", "21", "25", "29"}, false, {15, 5}, {15, 5}, true, 0},
    {{"18", "22", "26", "30"}, false, {15, 10}, {25, 10, 1}, false, 0},
    {{"19", "23", "27", "31"}, false, {15, 10}, {20, 10, 1}, false, 0},
    {{"20", "24", "28", "32"}, false, {35, 10, 1}, {35, 10, 2}, false, NEJVIC_DVA_UHLY},
};
constexpr int NEJVETSI_UHEL = 360;

// A read-out of an angle, whole degrees of 0 to 180, leaves this much play to either side; an angle
// beyond the largest one cannot be drawn by it.
constexpr double VULE_UHLU = 0.5;
constexpr int NEJVETSI_ODECET = 179;

constexpr double TAH_PAPRSKU = 1000;  // px, to the second point of a drawn ray

// A trapezoid is told from a parallelogram and from a crossed figure by at least this much, px.
constexpr double NEJMENSI_ROZDIL = 8;

/// The angle opposite to the side proti, between the other two, degrees; BEZ if there is none.
double Uhel(double a, double b, double proti) {
    const double uhel = Arccos((a * a + b * b - proti * proti) / (2 * a * b));
    return uhel == BEZ ? BEZ : uhel * STUPNU_PULOTACKY / PI;
}

double D(Nahoda& nahoda, const VzorecUhlu& v, double t) {
    return static_cast<double>(nahoda.Rnd()) * v.Rozpeti + t + v.Zaklad;
}

/// One draw; false if the values do not go together.
bool Vylosuj(Nahoda& nahoda, const SkupinaDruhu& s, bool rovnobeznost, HodnotyPrikladu& h) {
    VylosujTri(nahoda, {STRANA, STRANA, s.Sus ? UHEL : STRANA}, h);
    const double a = h[0];
    const double b = h[1];
    const double c =
        s.Sus ? std::sqrt(a * a + b * b - 2 * a * b * Cos(h[2] * PI / STUPNU_PULOTACKY)) : h[2];
    if (!s.Sus && !Trojuhelnikova(a, b, c)) return false;
    const double t[] = {0, Uhel(a, c, b), Uhel(b, c, a)};
    for (const auto& [i, v] : {std::pair{3, s.Ctvrta}, std::pair{4, s.Pata}}) {
        const double uhel = t[v.Uhel];
        if (uhel == BEZ) return false;
        const int hodnota = static_cast<int>(D(nahoda, v, uhel));
        if (v.Uhel != 0 && (hodnota < 0 || hodnota > NEJVETSI_UHEL)) return false;
        h[static_cast<std::size_t>(i)] = hodnota;
    }
    if (s.SoucetPod != 0 && h[3] + h[4] >= s.SoucetPod) return false;
    return !s.DruhyTrojuhelnik || rovnobeznost || Trojuhelnikova(c, h[3], h[4]);
}

/// The starting triangle as it is drawn.
struct Trojuhelnik {
    std::string_view Vrcholy;
    std::array<Bod, 3> Body;
    [[nodiscard]] const Bod* Vrchol(char pismeno) const {
        const std::size_t i = Vrcholy.find(pismeno);
        return i == std::string_view::npos ? nullptr : &Body[i];
    }
};

/// The object that the perfect pupil would draw, a ray turned by so many degrees more. No kind: it
/// cannot be drawn.
Utvar Idealni(const Trojuhelnik& t, const Krok& krok, int hodnota, double navic) {
    Utvar u;
    const std::string_view prvek = krok.UtvarB;
    if (krok.Utvar == KRUZNICE && prvek.size() == 2) {
        const Bod* stred = t.Vrchol(prvek[1]);
        if (stred == nullptr) return u;
        u.Druh = KRUZNICE;
        u.X1 = stred->X;
        u.Y1 = stred->Y;
        u.Polomer = static_cast<float>(hodnota * PIXELU_NA_CM);
    } else if (krok.Utvar == POLOPRIMKA && prvek.size() == 4) {
        const Bod* v = t.Vrchol(prvek[0]);
        const Bod* rameno = t.Vrchol(prvek[3]);
        if (v == nullptr || rameno == nullptr || hodnota > NEJVETSI_ODECET) return u;
        // Turned from its side towards the third vertex.
        const Bod* treti = nullptr;
        for (const Bod& b : t.Body) {
            if (&b != v && &b != rameno) treti = &b;
        }
        const double dx = rameno->X - v->X;
        const double dy = rameno->Y - v->Y;
        const bool vlevo = dx * (treti->Y - v->Y) - dy * (treti->X - v->X) < 0;
        const double uhel = (hodnota + navic) * PI / STUPNU_PULOTACKY * (vlevo ? 1 : -1);
        const double smer = Atan2(-dy, dx) + uhel;
        u.Druh = POLOPRIMKA;
        u.X1 = v->X;
        u.Y1 = v->Y;
        u.X2 = Zaokrouhli(v->X + TAH_PAPRSKU * Cos(smer));
        u.Y2 = Zaokrouhli(v->Y - TAH_PAPRSKU * Sin(smer));
    } else if (krok.Utvar == ROVNOBEZKA) {
        // Parallel to the side of the triangle with this height, through its third vertex.
        for (std::size_t i = 0; i < 2; ++i) {
            if (VyskaNaStranu(t.Vrcholy.substr(i, 2)) != prvek) continue;
            const Bod pres = t.Body[i == 0 ? 2 : 0];
            u.Druh = ROVNOBEZKA;
            u.X1 = pres.X;
            u.Y1 = pres.Y;
            u.X2 = pres.X + t.Body[i + 1].X - t.Body[i].X;
            u.Y2 = pres.Y + t.Body[i + 1].Y - t.Body[i].Y;
        }
    }
    return u;
}

/// Whether the fourth vertex makes a trapezoid of it: on the parallel through the first or third
/// vertex it lies to the proper side, and the parallel sides are not equal.
bool JeLichobeznik(const Trojuhelnik& t, const Krok& krok, Bod d) {
    const auto& [p0, p1, p2] = t.Body;
    const bool prvni = VyskaNaStranu(t.Vrcholy.substr(0, 2)) == krok.UtvarB;
    const Bod od = p1;
    const Bod k = prvni ? p0 : p2;
    const Bod pocatek = prvni ? p2 : p0;
    const double dx = k.X - od.X;
    const double dy = k.Y - od.Y;
    const double delka = Hypot(dx, dy);
    const double protejsi = ((d.X - pocatek.X) * dx + (d.Y - pocatek.Y) * dy) / delka;
    return protejsi >= NEJMENSI_ROZDIL && std::fabs(protejsi - delka) >= NEJMENSI_ROZDIL;
}

/// Whether the figure of the exact values can be read, both solutions with it.
bool FiguraCitelna(const Trojuhelnik& t, const Pruseciky& v) {
    std::vector<Bod> body(t.Body.begin(), t.Body.end());
    std::vector<std::array<Bod, 4>> ctyruhelniky;
    for (const Bod d : {v.P1, v.P2}) {
        if (d == BEZ_BODU || (d == v.P1 && !ctyruhelniky.empty())) continue;
        body.push_back(d);
        ctyruhelniky.push_back({t.Body[0], t.Body[1], t.Body[2], d});
    }
    return JeCitelna(body, ctyruhelniky);
}

bool JdeSestrojit(const Plane& plocha, const Priklad& p, const VetaTrojuhelniku& veta,
                  const HodnotyPrikladu& h) {
    const auto body = SpocitejTrojuhelnik(plocha, veta.Veta, HodnotyVety(veta, p, h));
    if (!body) return false;
    const Trojuhelnik t{veta.Vrcholy, *body};
    for (const double navic : {0.0, -VULE_UHLU, VULE_UHLU}) {
        const Utvar prvni = Idealni(t, p.Kroky[1], h[3], navic);
        const Utvar druhy = Idealni(t, p.Kroky[2], h[4], navic);
        const Pruseciky v = PrusecikyUtvaru(plocha, prvni, druhy);
        if (v.P1 == BEZ_BODU) return false;
        if (navic == 0 && !FiguraCitelna(t, v)) return false;
        const std::array<Bod, 4> vrcholy = {t.Body[0], t.Body[1], t.Body[2], v.P1};
        if (!VejdouSe(plocha, vrcholy)) return false;
        for (const int n : {1, 2}) {
            if (p.Kroky[n].Utvar != ROVNOBEZKA) continue;
            for (const Bod d : {v.P1, v.P2}) {
                if (!(d == BEZ_BODU) && !JeLichobeznik(t, p.Kroky[n], d)) return false;
            }
        }
    }
    return true;
}

}  // namespace

int VylosujCtyruhelnik(Nahoda& nahoda, const Plane& plocha, const Priklad& p,
                       std::span<const VetaTrojuhelniku> vety, HodnotyPrikladu& hodnoty) {
    const auto veta = std::ranges::find_if(vety, [&p](const VetaTrojuhelniku& v) {
        return v.Veta == p.Text1 && v.Trojuhelnik == p.Text2;
    });
    const bool rovnobeznost = p.Kroky[1].Utvar == ROVNOBEZKA || p.Kroky[2].Utvar == ROVNOBEZKA;
    for (const SkupinaDruhu& s : SKUPINY) {
        if (std::ranges::find(s.Druhy, p.Druh) == s.Druhy.end() || veta == vety.end()) continue;
        for (int i = 1; i <= NEJVIC_LOSOVANI; ++i) {
            if (Vylosuj(nahoda, s, rovnobeznost, hodnoty) &&
                JdeSestrojit(plocha, p, *veta, hodnoty)) {
                return i;
            }
        }
        return NEJVIC_LOSOVANI;
    }
    return 0;
}

}  // namespace rysovna
