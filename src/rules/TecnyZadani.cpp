#include "rules/TecnyZadani.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Kresleni.h"
#include "engine/Miry.h"
#include "engine/Resitele.h"
#include "engine/Tabulky.h"
#include "rules/Tahy.h"

namespace rysovna {

namespace {

/// A point or a way, not rounded.
struct V {
    double X = 0, Y = 0;
    V(double x, double y) : X(x), Y(y) {}
    V(Bod b) : X(b.X), Y(b.Y) {}  // implicit: a pixel is a place
};
V operator+(V a, V b) {
    return {a.X + b.X, a.Y + b.Y};
}
V operator-(V a, V b) {
    return {a.X - b.X, a.Y - b.Y};
}
V operator*(V a, double k) {
    return {a.X * k, a.Y * k};
}
double Skalarni(V a, V b) {
    return a.X * b.X + a.Y * b.Y;
}
double Vektorovy(V a, V b) {
    return a.X * b.Y - a.Y * b.X;
}
double Delka(V a) {
    return Hypot(a.X, a.Y);
}
V Kolmo(V a) {
    return {-a.Y, a.X};
}
V Jednotkovy(V a) {
    return a * (1 / Delka(a));
}
V Stred(V a, V b) {
    return (a + b) * 0.5;
}
Bod Pixel(V a) {
    return {Zaokrouhli(a.X), Zaokrouhli(a.Y)};
}
double OdPrimky(V p, V a, V b) {
    return std::fabs(Vektorovy(b - a, p - a)) / Delka(b - a);
}
V Pata(V p, V a, V b) {
    const V s = b - a;
    return a + s * (Skalarni(p - a, s) / Skalarni(s, s));
}
/// Where the line from a along s meets the line from b along t.
V Prunik(V a, V s, V b, V t) {
    return a + s * (Vektorovy(b - a, t) / Vektorovy(s, t));
}

// The angle of two ways, degrees, 0 to 90.
double Uhel(V s, V t) {
    return Asin(std::min(1.0, std::fabs(Vektorovy(s, t)) / (Delka(s) * Delka(t)))) *
           STUPNU_PULOTACKY / PI;
}
bool MimoOsy(V s, double uhel = UHEL_OD_OSY) {
    return Uhel(s, {1, 0}) >= uhel && Uhel(s, {0, 1}) >= uhel;
}

// Further measures of a figure that can be read, px and degrees.
constexpr int NEJKRATSI_ZAKLADNA = 40;  ///< between a line's two points
constexpr int ODSTUP_BODU_OD_PRIMKY = 34;
constexpr int NEJVETSI_POLOMER = 150;
constexpr double NEJMENSI_UHEL = 15;  ///< between lines whose crossing is marked
constexpr int PAS_PRIMKY = 30, PAS_BODU = 60;
constexpr int OKRAJ_ROVNOBEZEK = 21;  ///< from the edges at the left and at the top

/// One try: random numbers and the tests, on a plane of a given size.
struct Losovani {
    int W, H;
    Nahoda& nahoda;

    double Rnd() { return static_cast<double>(nahoda.Rnd()); }
    int Cele(int rozpeti, int zaklad) { return nahoda.D(rozpeti, zaklad); }
    /// A place at least so far from each edge.
    Bod VPasu(int okraj) {
        const int x = Zaokrouhli((W - 2 * okraj) * Rnd() + okraj);
        return {x, Zaokrouhli((H - 2 * okraj) * Rnd() + okraj)};
    }
    [[nodiscard]] bool Uvnitr(V p, int vlevo = OKRAJ_FIGURY) const {
        return p.X >= vlevo && p.Y >= vlevo && p.X <= W - OKRAJ_FIGURY && p.Y <= H - OKRAJ_FIGURY;
    }
    /// All inside, and no two too close; chytaci: further places that a press would catch.
    [[nodiscard]] bool Citelne(std::initializer_list<V> body, std::initializer_list<V> chytaci = {},
                               int vlevo = OKRAJ_FIGURY) {
        std::vector<V> vse(body);
        if (!std::ranges::all_of(vse, [&](V p) { return Uvnitr(p, vlevo); })) return false;
        vse.insert(vse.end(), chytaci);
        // A pixel more than asked: the points are rounded after this.
        for (std::size_t i = 0; i < vse.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                if (Delka(vse[i] - vse[j]) < ROZESTUP_FIGURY + 2) return false;
            }
        }
        return true;
    }
};

DanyUtvar DanyBod(const char* jmeno, Bod p, const char* naPrimce = "") {
    return {BOD, jmeno, "", p, {}, naPrimce};
}
DanyUtvar DanaPrimka(const char* jmeno, Bod p1, Bod p2) {
    return {PRIMKA, jmeno, "", p1, p2, {}};
}
DanyUtvar DanaUsecka(const char* od, const char* k, Bod p1, Bod p2) {
    return {USECKA, od, k, p1, p2, {}};
}
DanyUtvar DanaKruznice(const char* jmeno, Bod s, int r) {
    return {KRUZNICE, jmeno, "", s, {s.X + r, s.Y}, {}};
}

using Utvary_ = std::vector<DanyUtvar>;

/// "01", "02": k around S and a line.
bool KruzniceAPrimka(Losovani& p, Utvary_& u) {
    const int r = p.Cele(30, 30);
    const int sx = Zaokrouhli((p.W - 4 * r) * p.Rnd() + 2 * r);
    const Bod S{sx, Zaokrouhli((p.H - 4 * r) * p.Rnd() + 2 * r)};
    const Bod a1 = p.VPasu(0);
    const Bod a2 = p.VPasu(0);
    const auto daleko = [&](Bod b) {
        return std::abs(b.X - S.X) > 2 * r && std::abs(b.Y - S.Y) > 2 * r;
    };
    const V smer = V(a2) - a1;
    if (a1.X == a2.X || a1.Y == a2.Y || !daleko(a1) || !daleko(a2) || !MimoOsy(smer)) return false;
    // Neither the line through the centre nor a tangent may fall into one with a.
    const double odS = OdPrimky(S, a1, a2);
    if (odS < ROZESTUP_FIGURY || std::fabs(odS - r) < ROZESTUP_FIGURY) return false;
    const V podel = Jednotkovy(smer) * r;
    for (const V w : {podel, Kolmo(podel)}) {
        if (!p.Citelne({S, V(S) + w, V(S) - w}, {a1})) return false;
    }
    u = {DanyBod("S", S), DanaKruznice("k", S, r), DanaPrimka("a", a1, a2)};
    return true;
}

/// "03": S, the segment SA, k.
bool KruzniceABod(Losovani& p, Utvary_& u) {
    const int r = p.Cele(30, 30);
    const Bod S = p.VPasu(OKRAJ_FIGURY + r);
    const Bod A = p.VPasu(OKRAJ_FIGURY);
    const V smer = V(A) - S;
    const double d = Delka(smer);
    if (d < r + NEJKRATSI_ZAKLADNA || !MimoOsy(smer)) return false;
    // The feet of the tangents: r*r/d along the segment and to both sides of it.
    const V pata = V(S) + smer * (r * r / (d * d));
    const V stranou = Kolmo(smer) * (r * std::sqrt(d * d - r * r) / (d * d));
    const V T1 = pata + stranou;
    const V T2 = pata - stranou;
    if (!MimoOsy(T1 - A) || !MimoOsy(T2 - A)) return false;
    if (!p.Citelne({S, A, Stred(S, A), T1, T2})) return false;
    u = {DanyBod("S", S), DanaUsecka("S", "A", S, A), DanaKruznice("k", S, r)};
    return true;
}

/// "04": A off a.
bool BodAPrimka(Losovani& p, Utvary_& u) {
    const Bod a1 = p.VPasu(PAS_PRIMKY);
    const Bod a2 = p.VPasu(PAS_PRIMKY);
    const Bod A = p.VPasu(PAS_BODU);
    const V smer = V(a2) - a1;
    if (Delka(smer) < NEJKRATSI_ZAKLADNA || !MimoOsy(smer)) return false;
    if (OdPrimky(A, a1, a2) < ODSTUP_BODU_OD_PRIMKY + 2) return false;
    const V B = Pata(A, a1, a2);
    if (!p.Citelne({A, B, Stred(A, B)}, {a1})) return false;
    u = {DanyBod("A", A), DanaPrimka("a", a1, a2)};
    return true;
}

/// "05": AB and a, on which the axis of AB has its crossing D.
bool UseckaAPrimka(Losovani& p, Utvary_& u) {
    const Bod a1 = p.VPasu(PAS_PRIMKY);
    const Bod a2 = p.VPasu(PAS_PRIMKY);
    const Bod A = p.VPasu(PAS_BODU);
    const Bod B = p.VPasu(PAS_BODU);
    const V smer = V(a2) - a1;
    const V ab = V(B) - A;
    if (Delka(smer) < NEJKRATSI_ZAKLADNA || Delka(ab) < NEJKRATSI_ZAKLADNA) return false;
    if (!MimoOsy(smer) || !MimoOsy(ab) || Uhel(smer, Kolmo(ab)) < NEJMENSI_UHEL) return false;
    const V C = Stred(A, B);
    const V D = Prunik(C, Kolmo(ab), a1, smer);
    if (Delka(D - A) > NEJVETSI_POLOMER || !p.Citelne({A, B, C, D}, {a1})) return false;
    u = {DanaUsecka("A", "B", A, B), DanaPrimka("a", a1, a2)};
    return true;
}

/// "06": AB and a through B. B is the first point of a, so that a press there catches no other.
bool UseckaATecna(Losovani& p, Utvary_& u) {
    const Bod A = p.VPasu(PAS_BODU);
    const Bod B = p.VPasu(PAS_BODU);
    const Bod a2 = p.VPasu(PAS_PRIMKY);
    const V smer = V(a2) - B;
    const V ab = V(B) - A;
    if (Delka(smer) < NEJKRATSI_ZAKLADNA || Delka(ab) < NEJKRATSI_ZAKLADNA) return false;
    if (!MimoOsy(smer) || !MimoOsy(ab) || Uhel(smer, ab) < NEJMENSI_UHEL) return false;
    const V C = Stred(A, B);
    const V D = Prunik(C, Kolmo(ab), B, Kolmo(smer));
    if (Delka(D - A) > NEJVETSI_POLOMER || !p.Citelne({A, B, C, D})) return false;
    u = {DanaUsecka("A", "B", A, B), DanaPrimka("a", B, a2)};
    return true;
}

/// Whether a direction is one of the bands around the diagonals: no line within 15 degrees of an
/// axis.
bool VPasmuSmeru(V smer) {
    return MimoOsy(smer, 15);
}

/// "07": parallels a and b, 100 to 200 px apart, and A on a.
bool DveRovnobezky(Losovani& p, Utvary_& u) {
    constexpr int POKUSU_O_ROVNOBEZKU = 50;
    constexpr int NEJBLIZ = 100, NEJDAL = 200;
    const Bod a1 = p.VPasu(PAS_PRIMKY);
    const Bod a2 = p.VPasu(PAS_PRIMKY);
    const V smer = V(a2) - a1;
    if (Delka(smer) < NEJKRATSI_ZAKLADNA || !VPasmuSmeru(smer)) return false;
    for (int i = 0; i < POKUSU_O_ROVNOBEZKU; ++i) {
        const double vzdalenost = NEJBLIZ + (NEJDAL - NEJBLIZ) * p.Rnd();
        const double strana = p.Rnd() < 0.5 ? 1 : -1;
        const V posun = Pixel(Kolmo(Jednotkovy(smer)) * (strana * vzdalenost));
        const Bod b1 = Pixel(V(a1) + posun);
        const Bod b2 = Pixel(V(a2) + posun);
        const Bod A = Pixel(V(a1) + smer * p.Rnd());
        const V B = Pata(A, b1, b2);
        if (Delka(posun) < NEJBLIZ || Delka(posun) > NEJDAL) continue;
        if (!p.Uvnitr(b1, OKRAJ_ROVNOBEZEK) || !p.Uvnitr(b2, OKRAJ_ROVNOBEZEK)) continue;
        if (!p.Citelne({A, B, Stred(A, B)}, {a1, b1}, OKRAJ_ROVNOBEZEK)) continue;
        u = {DanaPrimka("a", a1, a2), DanaPrimka("b", b1, b2), DanyBod("A", A, "a")};
        return true;
    }
    return false;
}

/// "08": a with A on it, and b that meets the perpendicular through A.
bool DvePrimky(Losovani& p, Utvary_& u) {
    const Bod a1 = p.VPasu(PAS_PRIMKY);
    const Bod a2 = p.VPasu(PAS_PRIMKY);
    const Bod b1 = p.VPasu(PAS_PRIMKY);
    const Bod b2 = p.VPasu(PAS_PRIMKY);
    const V a = V(a2) - a1;
    const V b = V(b2) - b1;
    if (Delka(a) < NEJKRATSI_ZAKLADNA || Delka(b) < NEJKRATSI_ZAKLADNA) return false;
    if (!VPasmuSmeru(a) || !MimoOsy(b)) return false;
    if (Uhel(a, b) < NEJMENSI_UHEL || Uhel(b, Kolmo(a)) < NEJMENSI_UHEL) return false;
    const Bod A = Pixel(V(a1) + a * p.Rnd());
    const V B = Prunik(A, Kolmo(a), b1, b);
    const double r = Delka(B - A);
    if (r < ODSTUP_BODU_OD_PRIMKY || r > NEJVETSI_POLOMER) return false;
    if (!p.Citelne({A, B}, {a1, b1}, OKRAJ_ROVNOBEZEK)) return false;
    u = {DanaPrimka("a", a1, a2), DanaPrimka("b", b1, b2), DanyBod("A", A, "a")};
    return true;
}

/// "09": concentric k1 (the inner one) and k2, their centre, A on k1.
bool SoustredneKruznice(Losovani& p, Utvary_& u) {
    const int r1 = p.Cele(30, 30);
    const int R = r1 + p.Cele(50, 0);
    if (R - r1 < ROZESTUP_FIGURY) return false;
    const int sx = Zaokrouhli((p.W - 2 * R) * p.Rnd() + R);
    const Bod S{sx, Zaokrouhli((p.H - 2 * R) * p.Rnd() + R)};
    const double uhel = p.Rnd() * PI;
    const V smer{Cos(uhel), -Sin(uhel)};
    const Bod A = Pixel(V(S) + smer * r1);
    const V podle = Jednotkovy(V(A) - S);
    const V B1 = V(S) + podle * R;
    const V B2 = V(S) - podle * R;
    constexpr int OKRAJ = OKRAJ_ROVNOBEZEK + 1;  // the crossings are taken down to whole pixels
    for (const V b : {V(S), V(A), B1, B2}) {
        if (b.X < OKRAJ || b.Y < OKRAJ || b.X > p.W - OKRAJ || b.Y > p.H - OKRAJ) return false;
    }
    // 2 px more: A stands on a whole pixel, and B1 will be taken down to one.
    if (!MimoOsy(podle) || Delka(B1 - A) < ROZESTUP_FIGURY + 2) return false;
    u = {DanaKruznice("k1", S, r1), DanaKruznice("k2", S, R), DanyBod("S", S), DanyBod("A", A)};
    return true;
}

struct Vyrobce {
    std::string_view Kod;
    bool (*Zkus)(Losovani&, Utvary_&);
};
constexpr Vyrobce VYROBCI[] = {
    {"01", KruzniceAPrimka}, {"02", KruzniceAPrimka}, {"03", KruzniceABod},
    {"04", BodAPrimka},      {"05", UseckaAPrimka},   {"06", UseckaATecna},
    {"07", DveRovnobezky},   {"08", DvePrimky},       {"09", SoustredneKruznice},
};

/// Whether a point of this name is drawn, and labelled, already.
bool JePopsan(const Tabulky& t, const std::string& jmeno) {
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        if (t.Utvary[i].Druh == BOD && t.Utvary[i].Jmeno1 == jmeno) return true;
    }
    return false;
}

/// Draws one given object as the row that it is in.
void Nakresli(Tabulky& t, Plane& plocha, const DanyUtvar& d) {
    const int n = t.NovyUtvar(d.Jmeno1, d.Jmeno2);
    if (d.Druh == BOD) {
        KresliBod(t, plocha, n,
                  {.Druh = BOD, .P1 = d.P1, .Popis1 = d.Jmeno1, .NaPrimce = d.NaPrimce}, ANO);
    } else if (d.Druh == USECKA) {
        const auto cm = static_cast<float>(DelkaVCm(Vzdalenost(d.P1, d.P2)));
        KresliUsecku(t, plocha, n,
                     {.Druh = USECKA,
                      .P1 = d.P1,
                      .P2 = d.P2,
                      .Popis1 = JePopsan(t, d.Jmeno1) ? "" : d.Jmeno1,
                      .Popis2 = d.Jmeno2,
                      .Delka = cm,
                      .Znacky = ANO},
                     ANO);
    } else if (d.Druh == KRUZNICE) {
        KresliKruznici(t, plocha, n, {.Druh = KRUZNICE, .P1 = d.P1, .P2 = {d.P2.X, d.P1.Y}}, ANO);
    } else {
        KresliPrimku(t, plocha, n, {.Druh = PRIMKA, .P1 = d.P1, .P2 = d.P2}, ANO);
    }
}

}  // namespace

Figura VylosujFiguru(std::string_view kod, int sirka, int vyska, Nahoda& nahoda) {
    Figura f;
    const auto* v = std::ranges::find(VYROBCI, kod, &Vyrobce::Kod);
    if (v == std::end(VYROBCI)) return f;
    Losovani losovani{sirka, vyska, nahoda};
    do {
        ++f.Pokusu;
    } while (!v->Zkus(losovani, f.Utvary));
    return f;
}

void NakresliFiguru(Tabulky& t, Plane& plocha, const Figura& figura) {
    plocha.DrawWidth = 1;
    for (const DanyUtvar& d : figura.Utvary) Nakresli(t, plocha, d);
}

}  // namespace rysovna
