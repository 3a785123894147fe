// What is painted over the screens and lies in no bitmap: the ring of the keys, and what answers
// the pointer.

#include <algorithm>
#include <cairo.h>
#include <numbers>
#include <string_view>
#include <utility>

#include "base/Obdelniky.h"
#include "platform/Dotyk.h"
#include "platform/MalirObjektu.h"
#include "platform/Paleta.h"
#include "platform/Pisma.h"
#include "platform/TahNad.h"

namespace rysovna {

namespace {

constexpr int ODSTUP_PRSTENU = 2;                  // px, of its middle from what it goes round
constexpr int SIRKA_PRSTENU = 2, LEM_PRSTENU = 4;  // px, of its line and of the light one below
constexpr int ROH_PRSTENU = 3;                     // px
constexpr int RAMENO_KRIZE = 9, MEZERA_KRIZE = 2;  // px from the middle
constexpr Barva BARVA_PRSTENU = paleta::ACCENT;
using std::numbers::pi;

constexpr Barva BARVA_OHLASU = paleta::INKOUST;
constexpr int POLOMER_ZACHYTNEHO = 6;  // px
constexpr int LEM_ZACHYTNEHO = 3;      // px, of the light ring below
constexpr Barva BARVA_RAMU = paleta::ACCENT;
constexpr int PLNOST_STISKU = 2;  // px, of the frame of what is pressed
constexpr int ROH_PODLOZKY = 6;   // px
constexpr int VYSKA_SIPKY = 8;    // px, of an arrow from its base to its tip
constexpr std::string_view HOTOVO = "hotovo";
constexpr int POLOMER_STISKU = 11;  // px, of the ring around the tip of a mouse that is pressed
/// The outline of the mouse that is shown, px from its tip.
constexpr std::pair<double, double> OBRYS_MYSI[] = {{0, 0},     {0, 19},   {4.5, 15}, {7.5, 22},
                                                    {11, 20.5}, {8, 13.7}, {14, 13.7}};
constexpr int DOSAH_MYSI = 26;  // px from its tip, with its edge

/// What the ring goes round, kept on the design area.
Obdelnik RamPrstenu(const Obdelnik& o) {
    const int kraj = LEM_PRSTENU / 2;
    const int x1 = std::max(o.Left - ODSTUP_PRSTENU, kraj);
    const int y1 = std::max(o.Top - ODSTUP_PRSTENU, kraj);
    const int x2 = std::min(o.Left + o.Width + ODSTUP_PRSTENU, NAVRH_SIRKA - kraj);
    const int y2 = std::min(o.Top + o.Height + ODSTUP_PRSTENU, NAVRH_VYSKA - kraj);
    return {x1, y1, x2 - x1, y2 - y1};
}

/// The path of a rectangle with round corners, target px.
void Zaobleny(cairo_t* c, double x1, double y1, double x2, double y2, double r) {
    cairo_new_sub_path(c);
    cairo_arc(c, x2 - r, y1 + r, r, -pi / 2, 0);
    cairo_arc(c, x2 - r, y2 - r, r, 0, pi / 2);
    cairo_arc(c, x1 + r, y2 - r, r, pi / 2, pi);
    cairo_arc(c, x1 + r, y1 + r, r, pi, 3 * pi / 2);
    cairo_close_path(c);
}

/// A frame inside a rectangle of the design.
void Ramecek(const Kresba& k, const Obdelnik& kde, int sirka) {
    const Tah tah(k, BARVA_RAMU, sirka);
    const double kraj = sirka / 2.0;
    Zaobleny(tah.Kde(), k.X0 + (kde.Left + kraj) * k.S, k.Y0 + (kde.Top + kraj) * k.S,
             k.X0 + (kde.Left + kde.Width - kraj) * k.S, k.Y0 + (kde.Top + kde.Height - kraj) * k.S,
             ROH_PRSTENU * k.S);
}

void Zachytne(const Kresba& k, Bod bod) {
    for (const auto& [barva, sirka] :
         {std::pair{BILA, LEM_ZACHYTNEHO}, std::pair{BARVA_OHLASU, 1}}) {
        const Tah tah(k, barva, sirka);
        cairo_arc(tah.Kde(), k.X0 + (bod.X + 0.5) * k.S, k.Y0 + (bod.Y + 0.5) * k.S,
                  POLOMER_ZACHYTNEHO * k.S, 0, 2 * pi);
    }
}

void NamalujKriz(const Kresba& k, Bod hrot) {
    const double sx = k.X0 + (hrot.X + 0.5) * k.S;
    const double sy = k.Y0 + (hrot.Y + 0.5) * k.S;
    for (const auto& [barva, sirka] : {std::pair{BILA, 3}, std::pair{BARVA_PRSTENU, 1}}) {
        const Tah tah(k, barva, sirka);
        for (const Bod smer : {Bod{1, 0}, Bod{-1, 0}, Bod{0, 1}, Bod{0, -1}}) {
            cairo_move_to(tah.Kde(), sx + smer.X * MEZERA_KRIZE * k.S,
                          sy + smer.Y * MEZERA_KRIZE * k.S);
            cairo_line_to(tah.Kde(), sx + smer.X * RAMENO_KRIZE * k.S,
                          sy + smer.Y * RAMENO_KRIZE * k.S);
        }
    }
}

void NamalujMys(const Kresba& k, Bod hrot, bool stisknuta) {
    const double sx = k.X0 + (hrot.X + 0.5) * k.S;
    const double sy = k.Y0 + (hrot.Y + 0.5) * k.S;
    if (stisknuta) {
        for (const auto& [barva, sirka] : {std::pair{BILA, 5}, std::pair{BARVA_PRSTENU, 3}}) {
            const Tah tah(k, barva, sirka);
            cairo_arc(tah.Kde(), sx, sy, POLOMER_STISKU * k.S, 0, 2 * pi);
        }
    }
    for (const auto& [barva, sirka] : {std::pair{BILA, 4}, std::pair{BARVA_OHLASU, 1}}) {
        const Tah tah(k, barva, sirka);
        for (const auto& [x, y] : OBRYS_MYSI) cairo_line_to(tah.Kde(), sx + x * k.S, sy + y * k.S);
        cairo_close_path(tah.Kde());
        tah.Vyplnit(stisknuta ? BARVA_PRSTENU : BARVA_OHLASU);
    }
}

void NamalujPodlozku(const Kresba& k, Bod roh) {
    constexpr int POLE = Podlozka::POLE;
    const auto x = [&](double n) { return k.X0 + (roh.X + n) * k.S; };
    const auto y = [&](double n) { return k.Y0 + (roh.Y + n) * k.S; };
    for (const Bod pole : {Bod{0, 0}, Bod{1, 0}, Bod{-1, 0}, Bod{0, 1}, Bod{0, -1}}) {
        const double px = (pole.X + 1) * POLE;
        const double py = (pole.Y + 1) * POLE;
        const Tah tah(k, BARVA_OHLASU, 1);
        Zaobleny(tah.Kde(), x(px + 1), y(py + 1), x(px + POLE - 1), y(py + POLE - 1),
                 ROH_PODLOZKY * k.S);
        tah.Vyplnit(BILA);
        if (pole == Bod{}) continue;
        // A triangle whose tip points that way.
        const Tah sipka(k, BARVA_OHLASU, 1);
        cairo_t* s = sipka.Kde();
        const double sx = px + POLE / 2.0, sy = py + POLE / 2.0;
        cairo_move_to(s, x(sx + pole.X * VYSKA_SIPKY), y(sy + pole.Y * VYSKA_SIPKY));
        for (const int strana : {1, -1}) {
            cairo_line_to(s, x(sx - pole.X * VYSKA_SIPKY / 2.0 + strana * pole.Y * VYSKA_SIPKY),
                          y(sy - pole.Y * VYSKA_SIPKY / 2.0 + strana * pole.X * VYSKA_SIPKY));
        }
        cairo_close_path(s);
        sipka.Vyplnit(BARVA_OHLASU);
    }
    Pismo pismo;
    pismo.Velikost = 8;
    pismo.Tucne = true;
    const double volno = Podlozka::STRANA - PresnaSirka(pismo, HOTOVO);
    KresliText(k.Cil, k.Orez, x(volno / 2), y((Podlozka::STRANA - VyskaRadku(pismo)) / 2.0), k.S,
               pismo, HOTOVO, DoPixelu(BARVA_OHLASU), Hladkost::Seda);
}

}  // namespace

Obdelnik DosahOhlasu(const Obrazovky::Ohlas& o) {
    using Druh = Obrazovky::Ohlas::Druh;
    if (o.Co == Druh::Mys || o.Co == Druh::MysDolu) {
        return {o.Kde.Left - DOSAH_MYSI, o.Kde.Top - DOSAH_MYSI, 2 * DOSAH_MYSI, 2 * DOSAH_MYSI};
    }
    if (o.Co != Druh::Zachytne && o.Co != Druh::Konec) return o.Kde;
    constexpr int OKRAJ = std::max(POLOMER_ZACHYTNEHO, RAMENO_KRIZE) + LEM_PRSTENU;
    return {o.Kde.Left - OKRAJ, o.Kde.Top - OKRAJ, o.Kde.Width + 2 * OKRAJ,
            o.Kde.Height + 2 * OKRAJ};
}

void NamalujOhlas(const Kresba& k, const Obrazovky::Ohlas& o) {
    switch (o.Co) {
        case Obrazovky::Ohlas::Druh::Najeto:
            return Ramecek(k, o.Kde, 1);
        case Obrazovky::Ohlas::Druh::Stisknuto:
            return Ramecek(k, o.Kde, PLNOST_STISKU);
        case Obrazovky::Ohlas::Druh::Zachytne:
            return Zachytne(k, {o.Kde.Left, o.Kde.Top});
        case Obrazovky::Ohlas::Druh::Konec:
            return NamalujKriz(k, {o.Kde.Left, o.Kde.Top});
        case Obrazovky::Ohlas::Druh::Mys:
        case Obrazovky::Ohlas::Druh::MysDolu:
            return NamalujMys(k, {o.Kde.Left, o.Kde.Top}, o.Co == Obrazovky::Ohlas::Druh::MysDolu);
        case Obrazovky::Ohlas::Druh::Podlozka:
            return NamalujPodlozku(k, {o.Kde.Left, o.Kde.Top});
    }
}

Obdelnik DosahPrstenu(const Obrazovky::Prsten& p) {
    const auto okoli = [](const Obdelnik& o, int okraj) {
        return Obdelnik{o.Left - okraj, o.Top - okraj, o.Width + 2 * okraj, o.Height + 2 * okraj};
    };
    const Obdelnik ram = okoli(RamPrstenu(p.Ram), LEM_PRSTENU);
    if (!p.Kriz) return ram;
    return Obal(ram, okoli({p.Hrot.X, p.Hrot.Y, 1, 1}, RAMENO_KRIZE + LEM_PRSTENU));
}

void NamalujPrsten(const Kresba& k, const Obrazovky::Prsten& p) {
    const Obdelnik ram = RamPrstenu(p.Ram);
    const double x = k.X0 + ram.Left * k.S;
    const double y = k.Y0 + ram.Top * k.S;
    const double w = ram.Width * k.S;
    const double h = ram.Height * k.S;
    // Light below, so that it is seen on any ground.
    for (const auto& [barva, sirka] :
         {std::pair{BILA, LEM_PRSTENU}, std::pair{BARVA_PRSTENU, SIRKA_PRSTENU}}) {
        const Tah tah(k, barva, sirka);
        Zaobleny(tah.Kde(), x, y, x + w, y + h, ROH_PRSTENU * k.S);
    }
    if (p.Kriz) NamalujKriz(k, p.Hrot);
}

}  // namespace rysovna
