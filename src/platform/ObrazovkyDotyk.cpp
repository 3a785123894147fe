// Fingers: what they hit, and the drag that goes on when they are lifted.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "platform/Klavesnice.h"
#include "platform/Misto.h"
#include "platform/ObrazovkyVnitrek.h"

namespace rysovna {

namespace {

Bod NaPixel(double x, double y) {
    return {static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y))};
}

bool Blizko(Bod a, Bod b) {
    return std::abs(a.X - b.X) <= DOSAH_PRSTU && std::abs(a.Y - b.Y) <= DOSAH_PRSTU;
}

}  // namespace

Formular Obrazovky::Vnitrek::Zvednuty() const {
    if (!Zvednuty_) return nullptr;
    Formular f = Zvednuty_->Formular_.lock();
    const bool jde = f != nullptr && f == Cilovy() && Dosazitelny(Zvednuty_->Objekt);
    return jde ? f : nullptr;
}

/// The mouse comes here too while a drag is held: it plays the finger then.
Cinnost<> Obrazovky::DorucPrst(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    const Bod kde = NaPixel(s.X, s.Y);
    switch (s.Co) {
        case Vstup::Druh::PrstDolu:
            v.PrstZahozen = false;
            return PrstSeDotkl(kde, s);
        case Vstup::Druh::Dolu:
            return s.Tlacitko == LEVE ? PrstSeDotkl(kde, s) : Cinnost<>();
        case Vstup::Druh::PrstNahoru:
            if (!s.Odlozeny && std::exchange(v.PrstZahozen, false)) return {};
            return PrstSeZvedl(kde, s);
        case Vstup::Druh::Nahoru:
            return s.Tlacitko == LEVE ? PrstSeZvedl(kde, s) : Cinnost<>();
        default:
            DorucPohybPrstu(s);
            return {};
    }
}

/// What a tap there counts as: the place itself, or one of something small beside it. Nothing
/// outside is looked for from within something that takes presses itself, as an armed plane.
Bod Obrazovky::KamKlepl(const Form& form, Bod kde) const {
    const Ovladac* pod = NajdiObjekt(form, kde.X, kde.Y);
    const bool uvnitr = pod != nullptr && JeZivaZastavka(*pod);
    const auto coTamJe = [&](Bod b) -> CilPrstu {
        const Ovladac* o = NajdiObjekt(form, b.X, b.Y);
        if (o == nullptr || !JeZivaZastavka(*o) || (uvnitr && o != pod)) return {};
        const Obdelnik misto = MistoNaNavrhu(form, *o);
        const int cast = form.CastProPrst(*o, static_cast<float>(b.X - misto.Left),
                                          static_cast<float>(b.Y - misto.Top));
        if (cast < 0 || (b != kde && cast == 0 && !o->DalPrstem)) return {};
        return {o, cast};
    };
    return NajdiCil(kde, coTamJe).value_or(kde);
}

Cinnost<> Obrazovky::PrstSeDotkl(Bod kde, const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    v.ZnaMys = false;
    v.PrstOd = kde;
    if (v.Zvednuty() != nullptr) return PrstNaZvednutem(kde, s);
    // The lifting of this finger, or the mouse's release, got lost outside.
    if (v.Drzi && v.DrziKlavesa.empty()) v.PustDrzeni();
    v.Prst = PracePrstu::Mrtva;
    const Formular form = v.Cilovy();
    if (form == nullptr || v.KresliKlavesy()) return {};
    // A message box may stand over the screen of a drag; any other screen has ended it.
    if (!JeModalni()) v.Zvednuty_.reset();
    const Bod kam = KamKlepl(*form, kde);
    v.PosunPrstu = {kam.X - kde.X, kam.Y - kde.Y};
    const Ovladac* o = NajdiObjekt(*form, kam.X, kam.Y);
    const bool kresli = o != nullptr && JeZivaZastavka(*o) && o->Klavesou == StiskKlavesou::Tah;
    v.Prst = kresli ? PracePrstu::Tahne : PracePrstu::Klepa;
    v.Stopa.Zacni(kde, s.Cas.Nejpozdeji);
    return DorucStisk({.Co = Vstup::Druh::Dolu,
                       .X = static_cast<double>(kam.X),
                       .Y = static_cast<double>(kam.Y),
                       .Tlacitko = LEVE,
                       .Cas = s.Cas,
                       .Text = {},
                       .Prst = true});
}

void Obrazovky::DorucPohybPrstu(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    if (!s.Odlozeny && v.PrstZahozen) return;
    const Bod kde = NaPixel(s.X, s.Y);
    if (v.Prst != PracePrstu::Tahne && v.Prst != PracePrstu::Znovu) return;
    v.Stopa.Pridej(kde, s.Cas.Nejpozdeji);
    if (v.Prst == PracePrstu::Znovu) return PresunKonec(kde);
    DorucPohyb({.Co = Vstup::Druh::Pohyb,
                .X = static_cast<double>(kde.X),
                .Y = static_cast<double>(kde.Y),
                .Tlacitko = LEVE,
                .Cas = s.Cas,
                .Text = {},
                .Odlozeny = true,
                .Prst = true});
}

Cinnost<> Obrazovky::PrstSeZvedl(Bod kde, const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    const PracePrstu prace = std::exchange(v.Prst, PracePrstu::Zadna);
    if (prace == PracePrstu::Zadna || prace == PracePrstu::Mrtva) return {};
    if (prace == PracePrstu::Znovu) {
        if (v.Zvednuty() != nullptr) NechTah(v.Stopa.Konec(s.Cas.Nejpozdeji));
        return {};
    }
    const Formular form = v.Drzi ? v.Drzici() : nullptr;
    if (prace == PracePrstu::Tahne && form != nullptr && Dosazitelny(v.DrziObjekt)) {
        v.PustDrzeni();
        v.Zvednuty_ = {form, v.DrziObjekt, v.PrstOd, {}, {}};
        NechTah(v.Stopa.Konec(s.Cas.Nejpozdeji));
        return {};
    }
    // Slid away, it takes nothing; the shake of a tap counts as none.
    const Bod pustil = Blizko(kde, v.PrstOd) ? v.PrstOd : kde;
    return DorucPusteni({.Co = Vstup::Druh::Nahoru,
                         .X = static_cast<double>(pustil.X + v.PosunPrstu.X),
                         .Y = static_cast<double>(pustil.Y + v.PosunPrstu.Y),
                         .Tlacitko = LEVE,
                         .Cas = s.Cas,
                         .Text = {},
                         .Odlozeny = s.Odlozeny,
                         .Prst = true});
}

// ---- The drag that is held -------------------------------------------------------------------

/// The finger is lifted: the pad comes up.
void Obrazovky::NechTah(Bod konec) {
    Vnitrek& v = *vnitrek_;
    const Formular form = v.Zvednuty();
    if (form == nullptr) return;
    ZvednutyTah& tah = *v.Zvednuty_;
    tah.Pad = Podlozka::VRohu(MistoNaNavrhu(*form, *tah.Objekt), tah.Zacatek, konec);
    PresunKonec(konec);
}

void Obrazovky::PresunKonec(Bod kam) {
    Vnitrek& v = *vnitrek_;
    const Formular form = v.Zvednuty();
    if (form == nullptr) return;
    ZvednutyTah& tah = *v.Zvednuty_;
    tah.Konec = {std::clamp(kam.X, 0, NAVRH_SIRKA - 1), std::clamp(kam.Y, 0, NAVRH_VYSKA - 1)};
    Mys m = Udalost(*form, tah.Objekt, tah.Konec.X, tah.Konec.Y, LEVE, 0);
    m.Prst = v.Prst == PracePrstu::Znovu;
    m.Zvednut = !m.Prst;
    form->MouseMove(tah.Objekt, m);
}

Cinnost<> Obrazovky::PrstNaZvednutem(Bod kde, const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    const ZvednutyTah& tah = *v.Zvednuty_;
    v.Prst = PracePrstu::Mrtva;
    if (tah.Pad.Obsahuje(kde)) {
        const std::optional<Bod> smer = tah.Pad.Pole(kde);
        if (!smer) return {};
        if (*smer == Bod{}) return DokonciTah();
        PresunKonec({tah.Konec.X + smer->X, tah.Konec.Y + smer->Y});
    } else if (NajdiObjekt(*v.Zvednuty(), kde.X, kde.Y) == tah.Objekt) {
        v.Prst = PracePrstu::Znovu;
        v.Stopa.Zacni(kde, s.Cas.Nejpozdeji);
        PresunKonec(kde);
    }
    return {};
}

Cinnost<> Obrazovky::DokonciTah() {
    Vnitrek& v = *vnitrek_;
    const Formular form = v.Zvednuty();
    const ZvednutyTah tah = *v.Zvednuty_;
    v.Zvednuty_.reset();
    return Pust(form, tah.Objekt, Udalost(*form, tah.Objekt, tah.Konec.X, tah.Konec.Y, LEVE, 0));
}

}  // namespace rysovna
