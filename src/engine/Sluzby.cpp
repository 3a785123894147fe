#include "engine/Sluzby.h"

#include <cstdint>
#include <limits>

#include "base/Chyba.h"
#include "engine/Kresleni.h"
#include "engine/Tabulky.h"

namespace rysovna {

namespace {

/// Draws an object again from its stored values.
using Prekresleni = void (*)(Plane& plane, int index, const Utvar& u);

struct RadekPrekresleni {
    std::string_view druh;
    Prekresleni kresli;
};

constexpr RadekPrekresleni PREKRESLENI[] = {
    {BOD,
     [](Plane& p, int i, const Utvar& u) {
         KresliBod(p, u.Druh, u.Jmeno1, i, u.X1, u.Y1, u.Popis1, u.NaPrimce, NE);
     }},
    {USECKA,
     [](Plane& p, int i, const Utvar& u) {
         KresliUsecku(p, u.Druh, i, u.X1, u.Y1, u.X2, u.Y2, u.Delka, u.Popis1, u.Popis2, u.Znacky,
                      ANO, NE);
     }},
    {POLOPRIMKA,
     [](Plane& p, int i, const Utvar& u) {
         KresliPoloprimku(p, u.Druh, i, u.X1, u.Y1, u.X2, u.Y2, u.Popis2, NE);
     }},
    {PRIMKA,
     [](Plane& p, int i, const Utvar& u) {
         KresliPrimku(p, u.Druh, i, u.X1, u.Y1, u.X2, u.Y2, u.Delka, NE);
     }},
    {ROVNOBEZKA, [](Plane& p, int i,
                    const Utvar& u) { KresliPrimku(p, u.Druh, i, u.X1, u.Y1, u.X2, u.Y2, 0, NE); }},
    {KRUZNICE,
     [](Plane& p, int i, const Utvar& u) { KresliKruznici(p, u.Druh, i, u.X1, u.Y1, u.X2, NE); }},
    {KOLMICE, [](Plane& p, int i,
                 const Utvar& u) { KresliKolmici(p, u.Druh, i, u.X1, u.Y1, u.X2, u.Y2, NE); }},
};

/// Adds to a coordinate; one that runs over is a fault.
void Pricti(int& souradnice, int o) {
    const std::int64_t soucet = std::int64_t{souradnice} + o;
    if (soucet < std::numeric_limits<int>::min() || soucet > std::numeric_limits<int>::max()) {
        Selhani("Přetečení čísla");
    }
    souradnice = static_cast<int>(soucet);
}

}  // namespace

void PrekresliVse(Plane& HidenPic, Plane& Pic) {
    HidenPic.Cls();
    for (int i = 1; i <= PocetUtvaru; ++i) {
        // A copy: the routines write the row from which their arguments come.
        const Utvar utvar = Utvary[i];
        for (const RadekPrekresleni& radek : PREKRESLENI) {
            if (radek.druh == utvar.Druh) radek.kresli(HidenPic, i, utvar);
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

void PosunVse(Plane& HidenPic, Plane& Pic, int dx, int dy) {
    for (int i = 1; i <= PocetUtvaru; ++i) {
        Utvar& u = Utvary[i];
        for (int* x : {&u.X1, &u.X2, &u.X3, &u.X4}) Pricti(*x, dx);
        for (int* y : {&u.Y1, &u.Y2, &u.Y3, &u.Y4}) Pricti(*y, dy);
    }
    for (int i = 1; i <= PocetTrojic; ++i) {
        Trojice& t = Trojice_tab[i];
        for (int* x : {&t.X1, &t.X2, &t.X3}) Pricti(*x, dx);
        for (int* y : {&t.Y1, &t.Y2, &t.Y3}) Pricti(*y, dy);
    }
    PrekresliVse(HidenPic, Pic);
}

bool VytvorMasku(Plane& zdroj, int w, int h, Plane& maska, Barva klic) {
    const auto docasna = zdroj.CreateMonoBitmap(w, h);
    if (!docasna) return false;
    // The copy into one bit is what turns the key colour to white and all else to black.
    const Barva puvodni = zdroj.BkColor;
    zdroj.BkColor = klic;
    const bool prevedeno = docasna->BitBlt(0, 0, w, h, zdroj, 0, 0, Rop::SrcCopy);
    zdroj.BkColor = puvodni;
    return prevedeno && maska.BitBlt(0, 0, w, h, *docasna, 0, 0, Rop::SrcCopy);
}

bool ProhledneKopirovani(Plane& zdroj, int w, int h, Barva klic, const Plane& pozadi, Plane& cil) {
    const auto maska = zdroj.CreateMonoBitmap(w, h);
    if (!maska || !VytvorMasku(zdroj, w, h, *maska, klic)) return false;
    const auto podklad = zdroj.CreateCompatibleBitmap(w, h);
    const auto obraz = zdroj.CreateCompatibleBitmap(w, h);
    if (!podklad || !obraz) return false;
    const auto kopiruj = [w, h](Plane& kam, const Plane& odkud, Rop rop) {
        return kam.BitBlt(0, 0, w, h, odkud, 0, 0, rop);
    };
    // The background goes black where the picture will show, the picture black where it is
    // transparent; then one is painted over the other.
    bool zdar = kopiruj(*obraz, zdroj, Rop::SrcCopy) && kopiruj(*podklad, pozadi, Rop::SrcCopy) &&
                kopiruj(*podklad, *maska, Rop::SrcAnd);
    maska->InvertRect(0, 0, w, h);
    zdar = zdar && kopiruj(*obraz, *maska, Rop::SrcAnd) && kopiruj(*podklad, *obraz, Rop::SrcPaint);
    return zdar && kopiruj(cil, *podklad, Rop::SrcCopy);
}

}  // namespace rysovna
