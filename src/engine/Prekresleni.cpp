#include "engine/Prekresleni.h"

#include "engine/Kresleni.h"
#include "engine/Tabulky.h"

namespace rysovna {

namespace {

/// Draws an object of the tables again.
using Prekresleni = void (*)(Tabulky& t, Plane& plane, int index, const Nakres& k, int novaTrojice);

struct RadekPrekresleni {
    std::string_view druh;
    Prekresleni kresli;
};

constexpr RadekPrekresleni PREKRESLENI[] = {
    {BOD, KresliBod},        {USECKA, KresliUsecku},     {POLOPRIMKA, KresliPoloprimku},
    {PRIMKA, KresliPrimku},  {ROVNOBEZKA, KresliPrimku}, {KRUZNICE, KresliKruznici},
    {KOLMICE, KresliKolmici}};

/// What a stored object is drawn by again. A parallel has no length.
Nakres Ulozena(const Utvar& u) {
    return {.Druh = u.Druh,
            .P1 = {u.X1, u.Y1},
            .P2 = {u.X2, u.Y2},
            .Popis1 = u.Popis1,
            .Popis2 = u.Popis2,
            .Delka = u.Druh == ROVNOBEZKA ? 0 : u.Delka,
            .NaPrimce = u.NaPrimce,
            .Znacky = u.Znacky};
}

}  // namespace

void PrekresliVse(Tabulky& t, Plane& HidenPic, Plane& Pic) {
    HidenPic.Cls();
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        // The routines write the row from which their arguments come: each value over itself.
        const Utvar& utvar = t.Utvary[i];
        for (const RadekPrekresleni& radek : PREKRESLENI) {
            if (radek.druh != utvar.Druh) continue;
            radek.kresli(t, HidenPic, i, Ulozena(utvar), NE);
            break;
        }
    }
    const auto zkopiruj = [&] {
        Pic.BitBlt(0, 0, HidenPic.Width(), HidenPic.Height(), HidenPic, 0, 0, Rop::SrcCopy);
    };
    zkopiruj();
    Pic.AutoRedraw = false;
    zkopiruj();
    Pic.AutoRedraw = true;
    zkopiruj();
}

void PosunVse(Tabulky& t, Plane& HidenPic, Plane& Pic, int dx, int dy) {
    for (int i = 1; i <= t.PocetUtvaru; ++i) Posun(t.Utvary[i], dx, dy);
    for (int i = 1; i <= t.PocetTrojic; ++i) Posun(t.Trojice_tab[i], dx, dy);
    PrekresliVse(t, HidenPic, Pic);
}

}  // namespace rysovna
