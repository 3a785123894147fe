#include "engine/Kresleni.h"

#include <array>
#include <cstdlib>
#include <string>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "base/Matematika.h"
#include "engine/Miry.h"
#include "engine/Okraj.h"
#include "engine/Resitele.h"
#include "engine/Tabulky.h"
#include "engine/VolneMisto.h"

namespace rysovna {

namespace {

/// How wide a label is and how far it may be moved, px.
struct Popisek {
    int sirka, dosah;
};
constexpr Popisek POPIS_BODU{15, 8};
constexpr Popisek POPIS_USECKY{12, 10};
constexpr Popisek POPIS_PRIMKY{8, 5};  ///< of a ray, line, parallel and perpendicular
constexpr Popisek POPIS_KRUZNICE{12, 8};

/// How the cross of a mark is turned. Of its two arms one runs along the object and one across.
enum class Kriz { Vodorovny, Svisly, Tangens, Kotangens };

/// Reach of a cross's arm to each side along its longer axis, px. An exactly axis-parallel object
/// has longer ones than a slanted one: the pupil can see the difference.
constexpr double RAMENO_ROVNE = 5;
constexpr double RAMENO_SIKME = 4;

enum class Meze { Rovno, PodHorni, DoHorni };

/// One row: which directions belong to it, how their marks lean, where their labels go.
struct Sektor {
    Meze meze;         ///< the direction equals od; or is above od and below (at most) horni
    double od, horni;  ///< radians, compared as singles
    Kriz kriz;
    int vpred;  ///< 1 when the arm along the object points forward, -1 when backward
    Bod popis;  ///< offset of the label from the point, px
};

/// In order: the first row that holds decides.
constexpr std::array<Sektor, 13> SEKTORY{{
    {Meze::Rovno, 0, 0, Kriz::Vodorovny, 1, {-3, 10}},
    {Meze::Rovno, DVE_PI, DVE_PI, Kriz::Vodorovny, 1, {-3, 10}},
    {Meze::DoHorni, 0, PI / 4, Kriz::Tangens, 1, {0, 10}},
    {Meze::PodHorni, PI / 4, PI / 2, Kriz::Kotangens, 1, {10, 0}},
    {Meze::Rovno, PI / 2, PI / 2, Kriz::Svisly, 1, {10, -3}},
    {Meze::DoHorni, PI / 2, TRI_PI / 4, Kriz::Kotangens, 1, {-13, 0}},
    {Meze::PodHorni, TRI_PI / 4, PI, Kriz::Tangens, -1, {-12, 5}},
    {Meze::Rovno, PI, PI, Kriz::Vodorovny, -1, {-3, 10}},
    {Meze::DoHorni, PI, PET_PI / 4, Kriz::Tangens, -1, {0, 10}},
    {Meze::PodHorni, PET_PI / 4, TRI_PI / 2, Kriz::Kotangens, -1, {10, 0}},
    {Meze::Rovno, TRI_PI / 2, TRI_PI / 2, Kriz::Svisly, -1, {10, -3}},
    {Meze::DoHorni, TRI_PI / 2, SEDM_PI / 4, Kriz::Kotangens, -1, {-15, 0}},
    {Meze::PodHorni, SEDM_PI / 4, DVE_PI, Kriz::Tangens, 1, {-5, 5}},
}};

bool Patri(const Sektor& sektor, float smer) {
    if (sektor.meze == Meze::Rovno) return RovneUhly(smer, sektor.od);
    const auto horni = static_cast<float>(sektor.horni);
    return smer > static_cast<float>(sektor.od) &&
           (sektor.meze == Meze::DoHorni ? smer <= horni : smer < horni);
}

const Sektor& NajdiSektor(float smer) {
    for (const Sektor& sektor : SEKTORY) {
        if (Patri(sektor, smer)) return sektor;
    }
    Selhani("Směr mimo plný úhel");
}

/// From the middle of a cross to the end of an arm, px. The other end is opposite.
struct Rameno {
    double X, Y;
};

struct Ramena {
    Rameno pricne, podelne;  ///< podelne points forward along the object
};

Ramena RamenaKrize(const Sektor& sektor, float smer) {
    const bool sikmy = sektor.kriz == Kriz::Tangens || sektor.kriz == Kriz::Kotangens;
    const double t = sikmy ? Tan(static_cast<double>(smer)) : 0;
    Ramena ramena{};
    switch (sektor.kriz) {
        case Kriz::Vodorovny:
            ramena = {{0, RAMENO_ROVNE}, {RAMENO_ROVNE, 0}};
            break;
        case Kriz::Svisly:
            ramena = {{RAMENO_ROVNE, 0}, {0, -RAMENO_ROVNE}};
            break;
        case Kriz::Tangens:
            ramena = {{RAMENO_SIKME * t, RAMENO_SIKME}, {RAMENO_SIKME, -RAMENO_SIKME * t}};
            break;
        case Kriz::Kotangens:
            ramena = {{RAMENO_SIKME, RAMENO_SIKME / t}, {RAMENO_SIKME / t, -RAMENO_SIKME}};
            break;
    }
    ramena.podelne.X *= sektor.vpred;
    ramena.podelne.Y *= sektor.vpred;
    return ramena;
}

/// A line between two places near a point, given from it in px.
void Carka(Plane& plane, Bod bod, Rameno od, Rameno k) {
    plane.Line(static_cast<float>(bod.X + od.X), static_cast<float>(bod.Y + od.Y),
               static_cast<float>(bod.X + k.X), static_cast<float>(bod.Y + k.Y));
}

Rameno Opacne(Rameno r) {
    return {-r.X, -r.Y};
}

/// A whole arm, to both sides of the point.
void CeleRameno(Plane& plane, Bod bod, Rameno rameno) {
    Carka(plane, bod, Opacne(rameno), rameno);
}

void Vypis(Plane& plane, Bod bod, Bod posun, Popisek popisek, std::string_view text) {
    Bod misto{bod.X + posun.X, bod.Y + posun.Y};
    VolneMisto(plane, misto, popisek.sirka, popisek.dosah);
    plane.CurrentX = static_cast<float>(misto.X);
    plane.CurrentY = static_cast<float>(misto.Y);
    plane.Print(text);
}

/// The snap row to write: a new one, or the last.
Trojice& RadekTrojice(Tabulky& t, int NovaTrojice) {
    const int i = NovaTrojice == ANO ? t.PocetTrojic + 1 : t.PocetTrojic;
    Trojice& radek = t.Trojice_tab[i];
    t.PocetTrojic = i;
    return radek;
}

/// Snap points of a straight object from its stored points and names.
Trojice& ZapisKonce(Tabulky& t, const Utvar& utvar, int NovaTrojice) {
    Trojice& trojice = RadekTrojice(t, NovaTrojice);
    trojice.X1 = utvar.X1;
    trojice.Y1 = utvar.Y1;
    trojice.Jmeno1 = utvar.Jmeno1;
    trojice.X2 = utvar.X2;
    trojice.Y2 = utvar.Y2;
    trojice.Jmeno2 = utvar.Jmeno2;
    return trojice;
}

void ZapisStred(Tabulky& t, const Utvar& utvar, int NovaTrojice) {
    Trojice& trojice = RadekTrojice(t, NovaTrojice);
    trojice.X1 = utvar.X1;
    trojice.Y1 = utvar.Y1;
    trojice.Jmeno1 = utvar.Jmeno1;
}

/// The name of the line through two points, and the name of the midpoint between them.
struct JmenoStredu {
    std::string_view prvni, druhy, stred;
};
constexpr JmenoStredu JMENA_STREDU[] = {{"A", "B", "Sc"}, {"A", "C", "Sb"}, {"B", "C", "Sa"}};

/// What ray, line, parallel and perpendicular have in common: direction from the points as given,
/// then the second point at the margin when the object is new, then the record.
Utvar& UlozPrimy(Tabulky& t, const Plane& plane, int index, const Nakres& nakres, int NovaTrojice) {
    const Bod od = nakres.P1;
    Bod k = nakres.P2;
    Utvar& utvar = t.Utvary[index];
    utvar.Smer = Smer(od, k, utvar.Smer);
    if (NovaTrojice == ANO) k = NaOkraj(plane, od, k);
    utvar.X1 = od.X;
    utvar.Y1 = od.Y;
    utvar.X2 = k.X;
    utvar.Y2 = k.Y;
    utvar.Druh = nakres.Druh;
    return utvar;
}

/// Where the object's line has the given x, px.
float VyskaV(const Utvar& u, int x) {
    const double smernice = (static_cast<double>(u.Y2) - u.Y1) / (static_cast<double>(u.X2) - u.X1);
    return static_cast<float>(smernice * (static_cast<double>(x) - u.X1) + u.Y1);
}

/// The line across the whole plane, its label and its snap row.
void CaraPresPlochu(Tabulky& t, Plane& plane, const Utvar& utvar, int NovaTrojice) {
    const auto x1 = static_cast<float>(utvar.X1);
    const auto W = static_cast<float>(plane.Width());
    const auto H = static_cast<float>(plane.Height());
    if (utvar.X1 != utvar.X2) {
        plane.Line(0, VyskaV(utvar, 0), W, VyskaV(utvar, plane.Width()));
    } else {
        plane.Line(x1, 0, x1, H);
    }
    Vypis(plane, {utvar.X2, utvar.Y2}, NajdiSektor(utvar.Smer).popis, POPIS_PRIMKY, utvar.Jmeno1);
    ZapisKonce(t, utvar, NovaTrojice);
}

/// The direction of the line that carries the given two-letter name, by the last snap row whose
/// first two names are its letters; 0 when there is none.
float SmerPodleJmena(const Tabulky& tabulky, std::string_view naPrimce) {
    const std::string_view pismeno1 = naPrimce.substr(0, 1);
    const std::string_view pismeno2 =
        naPrimce.size() > 1 ? naPrimce.substr(1, 1) : std::string_view{};
    for (int i = tabulky.PocetTrojic; i >= 1; --i) {
        const Trojice& t = tabulky.Trojice_tab[i];
        const Bod A{t.X1, t.Y1};
        const Bod B{t.X2, t.Y2};
        if (pismeno1 == t.Jmeno1 && pismeno2 == t.Jmeno2) return Smer(A, B, 0);
        if (pismeno2 == t.Jmeno1 && pismeno1 == t.Jmeno2) return Smer(B, A, 0);
    }
    return 0;
}

// The label of a circle is tried every 15 degrees from the first angle to the last: from the
// top of the circle to its right side, then over the top to the left; 13 px up from the circle.
struct UsekUhlu {
    int prvni, posledni;
};
constexpr UsekUhlu UHLY_POPISU_KRUZNICE[] = {{11, 6}, {11, 18}};
constexpr int KROK_UHLU = 15;
constexpr int VYSKA_NAD_KRUZNICI = 13;

Bod MistoPopisuKruznice(const Plane& plane, Bod stred, double r) {
    Bod bod;
    for (const UsekUhlu& usek : UHLY_POPISU_KRUZNICE) {
        const int krok = usek.prvni > usek.posledni ? -1 : 1;
        for (int i = usek.prvni; i != usek.posledni + krok; i += krok) {
            const double uhel = i * KROK_UHLU / (STUPNU_PULOTACKY / PI);
            bod = {Zaokrouhli(r * Sin(uhel) + stred.X),
                   Zaokrouhli(r * Cos(uhel) + stred.Y) - VYSKA_NAD_KRUZNICI};
            if (bod.X > 0 && bod.X < plane.Width() && bod.Y > 0 && bod.Y < plane.Height()) {
                return bod;
            }
        }
    }
    return bod;
}

}  // namespace

void KresliBod(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice) {
    Utvar& utvar = t.Utvary[index];
    utvar.X1 = k.P1.X;
    utvar.Y1 = k.P1.Y;
    utvar.Popis1 = k.Popis1;
    utvar.Druh = k.Druh;
    utvar.NaPrimce = k.NaPrimce;

    const float smer = SmerPodleJmena(t, utvar.NaPrimce);
    const Sektor& sektor = NajdiSektor(smer);
    const Ramena ramena = RamenaKrize(sektor, smer);
    plane.DrawWidth = 1;
    CeleRameno(plane, k.P1, ramena.pricne);
    CeleRameno(plane, k.P1, ramena.podelne);
    Vypis(plane, k.P1, sektor.popis, POPIS_BODU, utvar.Popis1);
    ZapisStred(t, utvar, NovaTrojice);
}

void KresliUsecku(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice) {
    Utvar& utvar = t.Utvary[index];
    utvar.X1 = k.P1.X;
    utvar.Y1 = k.P1.Y;
    utvar.X2 = k.P2.X;
    utvar.Y2 = k.P2.Y;
    utvar.Popis1 = k.Popis1;
    utvar.Popis2 = k.Popis2;
    utvar.Znacky = static_cast<std::int16_t>(k.Znacky);
    utvar.Delka = k.Delka;
    utvar.Druh = k.Druh;
    for (const JmenoStredu& j : JMENA_STREDU) {
        if (utvar.Jmeno1 == j.prvni && utvar.Jmeno2 == j.druhy) utvar.Jmeno3 = j.stred;
    }
    utvar.X3 = Zaokrouhli((static_cast<double>(k.P2.X) - k.P1.X) / 2 + k.P1.X);
    utvar.Y3 = Zaokrouhli((static_cast<double>(k.P2.Y) - k.P1.Y) / 2 + k.P1.Y);
    utvar.Smer = Smer(k.P1, k.P2, utvar.Smer);

    const Sektor& sektor = NajdiSektor(utvar.Smer);
    if (k.Cara == ANO) {
        plane.Line(static_cast<float>(k.P1.X), static_cast<float>(k.P1.Y),
                   static_cast<float>(k.P2.X), static_cast<float>(k.P2.Y));
        if (k.Znacky == ANO) {
            const Ramena ramena = RamenaKrize(sektor, utvar.Smer);
            Carka(plane, k.P1, Opacne(ramena.podelne), {0, 0});
            Carka(plane, k.P2, {0, 0}, ramena.podelne);
            CeleRameno(plane, k.P1, ramena.pricne);
            CeleRameno(plane, k.P2, ramena.pricne);
        }
    }
    Vypis(plane, k.P1, sektor.popis, POPIS_USECKY, utvar.Popis1);
    Vypis(plane, k.P2, sektor.popis, POPIS_USECKY, utvar.Popis2);

    Trojice& trojice = ZapisKonce(t, utvar, NovaTrojice);
    trojice.X3 = utvar.X3;
    trojice.Y3 = utvar.Y3;
    trojice.Jmeno3 = utvar.Jmeno3;
}

void KresliPoloprimku(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice) {
    Utvar& utvar = UlozPrimy(t, plane, index, k, NovaTrojice);
    utvar.Popis2 = k.Popis2;

    const auto x1 = static_cast<float>(utvar.X1);
    const auto y1 = static_cast<float>(utvar.Y1);
    if (utvar.X2 == utvar.X1) {
        plane.Line(x1, y1, x1, utvar.Y2 < utvar.Y1 ? 0 : static_cast<float>(plane.Height()));
    } else {
        const int kraj = utvar.X2 > utvar.X1 ? plane.Width() : 0;
        plane.Line(x1, y1, static_cast<float>(kraj), VyskaV(utvar, kraj));
    }
    const Sektor& sektor = NajdiSektor(utvar.Smer);
    const Bod druhy{utvar.X2, utvar.Y2};
    CeleRameno(plane, druhy, RamenaKrize(sektor, utvar.Smer).pricne);
    Vypis(plane, druhy, sektor.popis, POPIS_PRIMKY, utvar.Popis2);
    ZapisKonce(t, utvar, NovaTrojice);
}

void KresliPrimku(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice) {
    Utvar& utvar = UlozPrimy(t, plane, index, k, NovaTrojice);
    utvar.Delka = k.Delka;
    CaraPresPlochu(t, plane, utvar, NovaTrojice);
}

void KresliPosunutou(Tabulky& t, Plane& plane, int index, const PosunutaPrimka& primka) {
    ++t.PocetTrojic;
    t.Trojice_tab[t.PocetTrojic].PrvniNechyta = primka.Hledany;
    KresliPrimku(t, plane, index, {.Druh = ROVNOBEZKA, .P1 = primka.P1, .P2 = primka.P2}, NE);
}

void KresliKolmici(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice) {
    CaraPresPlochu(t, plane, UlozPrimy(t, plane, index, k, NovaTrojice), NovaTrojice);
}

void KresliKruznici(Tabulky& t, Plane& plane, int index, const Nakres& k, int NovaTrojice) {
    Utvar& utvar = t.Utvary[index];
    utvar.X1 = k.P1.X;
    utvar.Y1 = k.P1.Y;
    utvar.X2 = k.P2.X;
    utvar.Polomer = std::abs(static_cast<float>(static_cast<double>(k.P1.X) - k.P2.X));
    utvar.Druh = k.Druh;

    plane.Circle(static_cast<float>(k.P1.X), static_cast<float>(k.P1.Y), utvar.Polomer);
    Vypis(plane, MistoPopisuKruznice(plane, k.P1, utvar.Polomer), {0, 0}, POPIS_KRUZNICE,
          utvar.Jmeno1);
    ZapisStred(t, utvar, NovaTrojice);
}

void PopisBod(Plane& plane, Bod bod, std::string_view pismeno) {
    Vypis(plane, bod, NajdiSektor(0).popis, POPIS_USECKY, pismeno);
}

}  // namespace rysovna
