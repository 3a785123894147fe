// What answers the pointer: the frames and marks over the screen in front, and
// what the pointer itself looks like.

#include "platform/Klavesnice.h"
#include "platform/Misto.h"
#include "platform/ObrazovkyVnitrek.h"

namespace rysovna {

namespace {

/// How far inside a picture that has an edge of its own the frame stands, px.
constexpr int KRAJ_RAMU = 3;
constexpr int PRED_TEXTEM = 2;  // px, of a frame around a line of text

}  // namespace

std::vector<Obrazovky::Ohlas> Obrazovky::OhlasyVpredu() const {
    const Vnitrek& v = *vnitrek_;
    std::vector<Ohlas> ohlasy;
    const Formular form = v.Cilovy();
    if (form == nullptr) return ohlasy;
    if (const std::optional<PromitanaMys> mys = form->CiziMys()) {
        ohlasy.push_back({mys->Stisknuta ? Ohlas::Druh::MysDolu : Ohlas::Druh::Mys,
                          {mys->Hrot.X, mys->Hrot.Y, 1, 1}});
    }
    if (v.Zvednuty() != nullptr) {
        const auto& [roh] = v.Zvednuty_->Pad;
        const Bod konec = v.Zvednuty_->Konec;
        ohlasy.push_back({Ohlas::Druh::Konec, {konec.X, konec.Y, 1, 1}});
        ohlasy.push_back(
            {Ohlas::Druh::Podlozka, {roh.X, roh.Y, Podlozka::STRANA, Podlozka::STRANA}});
        return ohlasy;
    }
    if (const std::optional<Bod> bod = form->Zachytne())
        ohlasy.push_back({Ohlas::Druh::Zachytne, {bod->X, bod->Y, 1, 1}});
    const bool drzi = v.Drzi && v.DrziKlavesa.empty();
    if (JeZavreno() || (!drzi && (!v.ZnaMys || v.PrstenVidet))) return ohlasy;
    const Ovladac* o = NajdiObjekt(*form, v.MysX, v.MysY);
    if (o == nullptr || !o->Ramovat || !JeZivaZastavka(*o) || (drzi && v.DrziObjekt != o))
        return ohlasy;
    Obdelnik kde = MistoNaNavrhu(*form, *o);
    if (o->Druh == Ovladac::Typ::Label) {
        kde = {kde.Left - PRED_TEXTEM, kde.Top, kde.Width + PRED_TEXTEM, kde.Height};
    } else {
        kde = {kde.Left + KRAJ_RAMU, kde.Top + KRAJ_RAMU, kde.Width - 2 * KRAJ_RAMU,
               kde.Height - 2 * KRAJ_RAMU};
    }
    ohlasy.push_back({drzi ? Ohlas::Druh::Stisknuto : Ohlas::Druh::Najeto, kde});
    return ohlasy;
}

Kurzor Obrazovky::KurzorMysi() const {
    const Vnitrek& v = *vnitrek_;
    const Formular form = v.Cilovy();
    if (form == nullptr || !v.ZnaMys || JeZavreno() || v.Zvednuty() != nullptr)
        return Kurzor::Sipka;
    const bool drzi = v.Drzi && v.DrziKlavesa.empty() && v.Drzici() == form;
    const Ovladac* o = drzi ? v.DrziObjekt : NajdiObjekt(*form, v.MysX, v.MysY);
    const Mys m = Udalost(*form, o, v.MysX, v.MysY, 0, 0);
    return form->KurzorNad(o, m.X, m.Y);
}

}  // namespace rysovna
