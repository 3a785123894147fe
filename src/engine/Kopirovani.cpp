#include "engine/Kopirovani.h"

namespace rysovna {

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
