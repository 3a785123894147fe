// What comes from the machine: presses, moves, keys, and to whom each goes.

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/Matematika.h"
#include "platform/Host.h"
#include "platform/Klavesnice.h"
#include "platform/Misto.h"
#include "platform/ObrazovkyVnitrek.h"
#include "platform/PsaniTextu.h"

namespace rysovna {

namespace {

/// A press within this time and distance of the one before, on each axis, goes with it.
constexpr std::int32_t DVOJKLIK_MS = 500;
constexpr double DVOJKLIK_PX = 4;
/// A finger does not come down where it was: the list that its first tap opened is not meant yet.
constexpr double DVOJKLIK_PRSTEM_PX = 16;
/// A move so far takes the ring away, design px.
constexpr double POHNULA_SE = 4;
/// Milliseconds in which the caret of a text box is shown, and then not.
constexpr std::uint32_t BLIKANI = 530;

bool BereMys(const Ovladac& o) {
    return o.ProMys && (o.Druh == Ovladac::Typ::PictureBox || o.Druh == Ovladac::Typ::Image ||
                        o.Druh == Ovladac::Typ::Label || o.Druh == Ovladac::Typ::TextBox);
}

/// The uppermost object at a place of its parent, or the parent's own nothing (null).
Ovladac* Nejvyssi(const Form& form, Ovladac* rodic, double x, double y) {
    const std::vector<Ovladac*>& vse = form.Ovladace();
    for (auto i = vse.rbegin(); i != vse.rend(); ++i) {
        Ovladac& o = **i;
        if (o.Rodic != rodic || !o.Visible || !BereMys(o)) continue;
        if (!Obdelnik{o.Left, o.Top, o.Width, o.Height}.Obsahuje(x, y)) continue;
        if (o.Druh == Ovladac::Typ::PictureBox) {
            if (Ovladac* dite = Nejvyssi(form, &o, x - o.Left, y - o.Top)) return dite;
        }
        return &o;
    }
    return nullptr;
}

}  // namespace

Mys Udalost(const Form& f, const Ovladac* o, double x, double y, int tlacitko, int shift) {
    const Obdelnik misto = MistoFormu(f);
    const Bod roh = Roh(o);
    return {tlacitko, shift, static_cast<float>(x - misto.Left - roh.X),
            static_cast<float>(y - misto.Top - roh.Y)};
}

Ovladac* NajdiObjekt(const Form& f, double x, double y) {
    const Obdelnik misto = MistoFormu(f);
    Ovladac* o = Nejvyssi(f, nullptr, x - misto.Left, y - misto.Top);
    while (o != nullptr && !Dosazitelny(o)) o = o->Rodic;
    return o;
}

bool RadaStisku::Navazuje(const Obrazovky::Vstup& s) const {
    const double dosah = s.Prst ? DVOJKLIK_PRSTEM_PX : DVOJKLIK_PX;
    // Where the times are not known to the millisecond, they are taken to be as near as can be.
    return plati_ && static_cast<std::int32_t>(s.Cas.Nejdrive - cas_.Nejpozdeji) <= DVOJKLIK_MS &&
           std::abs(s.X - x_) <= dosah && std::abs(s.Y - y_) <= dosah;
}

void RadaStisku::Ztraceny(const Obrazovky::Vstup& s) {
    plati_ = Navazuje(s);
    x_ = s.X;
    y_ = s.Y;
    cas_ = s.Cas;
    druhy_ = true;  // no half of a double click
}

PoradiStisku RadaStisku::Zarad(const Formular& form, const Ovladac* o, const Obrazovky::Vstup& s) {
    const bool navazuje = Navazuje(s);
    const bool dvojice = navazuje && !druhy_ && s.Tlacitko == LEVE && tlacitko_ == LEVE;
    plati_ = true;
    x_ = s.X;
    y_ = s.Y;
    cas_ = s.Cas;
    tlacitko_ = s.Tlacitko;
    druhy_ = dvojice;
    if (!navazuje) {
        form_ = form;
        objekt_ = o;
        return PoradiStisku::Prvni;
    }
    if (form_.lock() != form || objekt_ != o || (o != nullptr && !o->BereDvojklik))
        return PoradiStisku::Zahodit;
    return dvojice ? PoradiStisku::Druhy : PoradiStisku::Prvni;
}

// ---- Taking in -------------------------------------------------------------------------------

void Obrazovky::MysDolu(double x, double y, int tlacitko, int shift, CasStisku cas) {
    Prijmi({.Co = Vstup::Druh::Dolu,
            .X = x,
            .Y = y,
            .Tlacitko = tlacitko,
            .Shift = shift,
            .Cas = cas,
            .Text = {}});
}

void Obrazovky::MysDolu(double x, double y, int tlacitko, int shift) {
    const std::uint32_t ted = host_.TickCount();
    MysDolu(x, y, tlacitko, shift, {ted, ted});
}

void Obrazovky::MysPohyb(double x, double y, int drzena, int shift) {
    Prijmi({.Co = Vstup::Druh::Pohyb,
            .X = x,
            .Y = y,
            .Tlacitko = drzena,
            .Shift = shift,
            .Cas = {},
            .Text = {}});
}

void Obrazovky::MysNahoru(double x, double y, int tlacitko, int shift) {
    Prijmi({.Co = Vstup::Druh::Nahoru,
            .X = x,
            .Y = y,
            .Tlacitko = tlacitko,
            .Shift = shift,
            .Cas = {},
            .Text = {}});
}

void Obrazovky::PrstDolu(double x, double y, std::uint32_t cas) {
    Prijmi(
        {.Co = Vstup::Druh::PrstDolu, .X = x, .Y = y, .Cas = {cas, cas}, .Text = {}, .Prst = true});
}

void Obrazovky::PrstPohyb(double x, double y, std::uint32_t cas) {
    Prijmi({.Co = Vstup::Druh::PrstPohyb,
            .X = x,
            .Y = y,
            .Cas = {cas, cas},
            .Text = {},
            .Prst = true});
}

void Obrazovky::PrstNahoru(double x, double y, std::uint32_t cas) {
    Prijmi({.Co = Vstup::Druh::PrstNahoru,
            .X = x,
            .Y = y,
            .Cas = {cas, cas},
            .Text = {},
            .Prst = true});
}

void Obrazovky::Text(std::string_view utf8) {
    Prijmi({.Co = Vstup::Druh::Text, .Cas = {}, .Text = std::string(utf8)});
}

void Obrazovky::Klavesa(std::string_view jmeno, int shift, bool opakovana) {
    // One press leads through one screen only. What edits a text is repeated, and arrows are.
    if (opakovana && !SmerSipky(jmeno) && !Upravuje(jmeno, shift)) return;
    Prijmi({.Co = Vstup::Druh::Klavesa, .Shift = shift, .Cas = {}, .Text = std::string(jmeno)});
}

void Obrazovky::KlavesaNahoru(std::string_view jmeno) {
    Prijmi({.Co = Vstup::Druh::KlavesaNahoru, .Cas = {}, .Text = std::string(jmeno)});
}

void Obrazovky::ZadostOZavreni() {
    Prijmi({.Co = Vstup::Druh::Zavreni, .Cas = {}, .Text = {}});
}

void Obrazovky::Navrat() {
    Prijmi({.Co = Vstup::Druh::Navrat, .Cas = {}, .Text = {}});
}

bool Obrazovky::Upravuje(std::string_view jmeno, int shift) const {
    return Psane() != nullptr && PsaniTextu::Bere(jmeno, shift);
}

void Obrazovky::Prijmi(const Vstup& vstup) {
    Vnitrek& v = *vnitrek_;
    if (JeZavreno()) {
        Odloz(vstup);
        return;
    }
    const std::size_t pred = v.Prace.Hloubka();
    Spust(v.Odlozene.empty() ? Doruc(vstup) : DorucPoOdlozenych(vstup));
    if (poVstupu_) poVstupu_(pred);
}

Cinnost<> Obrazovky::DorucPoOdlozenych(Vstup vstup) {
    co_await DorucOdlozene();
    co_await Doruc(vstup);
}

void Obrazovky::Odloz(const Vstup& vstup) {
    Vnitrek& v = *vnitrek_;
    if (vstup.Co == Vstup::Druh::Dolu) {
        const Formular form = v.Cilovy();
        if (form == nullptr || !form->StiskVzdy) {
            v.Zahozena |= vstup.Tlacitko;
            v.Rada.Ztraceny(vstup);
            return;
        }
    } else if (vstup.Co == Vstup::Druh::Nahoru) {
        if ((v.Zahozena & vstup.Tlacitko) != 0) {
            v.Zahozena &= ~vstup.Tlacitko;
            return;
        }
    } else if (vstup.Co == Vstup::Druh::PrstDolu) {
        const Formular form = v.Cilovy();
        if (form == nullptr || !form->StiskVzdy) {
            v.PrstZahozen = true;
            v.Rada.Ztraceny(vstup);
            return;
        }
    } else if (vstup.Co == Vstup::Druh::PrstPohyb) {
        if (v.PrstZahozen) return;
    } else if (vstup.Co == Vstup::Druh::PrstNahoru) {
        if (std::exchange(v.PrstZahozen, false)) return;
    } else if (vstup.Co == Vstup::Druh::Klavesa) {
        // A press too, unless it edits a text.
        const Formular form = v.Cilovy();
        const bool vzdy = form != nullptr && form->StiskVzdy;
        if (!vzdy && !Upravuje(vstup.Text, vstup.Shift)) return;
    } else if (vstup.Co == Vstup::Druh::Navrat) {
        return;  // a press too, only beside the picture
    } else if (vstup.Co == Vstup::Druh::Pohyb) {
        if (v.Zahozena != 0) return;
        // Of a row of moves the last one is enough.
        if (!v.Odlozene.empty() && v.Odlozene.back().Co == Vstup::Druh::Pohyb)
            v.Odlozene.pop_back();
    }
    v.Odlozene.push_back(vstup);
    v.Odlozene.back().Odlozeny = true;
}

Cinnost<> Obrazovky::DorucOdlozene() {
    Vnitrek& v = *vnitrek_;
    while (!v.Odlozene.empty() && !JeZavreno()) {
        // Taken out first: its handler may wait, and the wait delivers the rest.
        const Vstup vstup = std::move(v.Odlozene.front());
        v.Odlozene.pop_front();
        co_await Doruc(vstup);
    }
}

void Obrazovky::SpustOdlozene() {
    while (!vnitrek_->Odlozene.empty() && !JeZavreno()) Spust(DorucOdlozene());
}

bool Obrazovky::JeZavreno() const {
    return vnitrek_->Zavreno > 0 && !JeModalni();
}

Obrazovky::Zavreni::Zavreni(Obrazovky& kde) : kde_(kde) {
    ++kde_.vnitrek_->Zavreno;
}

Obrazovky::Zavreni::~Zavreni() {
    --kde_.vnitrek_->Zavreno;
}

// ---- Delivering ------------------------------------------------------------------------------

Cinnost<> Obrazovky::Doruc(const Vstup& vstup) {
    switch (vstup.Co) {
        case Vstup::Druh::Dolu:
            return DorucStisk(vstup);
        case Vstup::Druh::Pohyb:
            DorucPohyb(vstup);
            break;
        case Vstup::Druh::Nahoru:
            return DorucPusteni(vstup);
        case Vstup::Druh::PrstDolu:
        case Vstup::Druh::PrstPohyb:
        case Vstup::Druh::PrstNahoru:
            return DorucPrst(vstup);
        case Vstup::Druh::Text:
            DorucText(vstup);
            break;
        case Vstup::Druh::Klavesa:
            return DorucKlavesu(vstup);
        case Vstup::Druh::KlavesaNahoru:
            return DorucPusteniKlavesy(vstup);
        case Vstup::Druh::Zavreni:
            return DorucZavreni();
        case Vstup::Druh::Navrat:
            DorucNavrat();
            break;
    }
    return {};
}

Cinnost<> Obrazovky::DorucStisk(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    if (!s.Prst && v.Zvednuty() != nullptr) return DorucPrst(s);
    v.Zahozena &= ~s.Tlacitko;
    v.ZnaMys = !s.Prst;
    v.Prstem = s.Prst;
    v.MysX = s.X;
    v.MysY = s.Y;
    v.PrstenVidet = false;
    if (!v.DrziKlavesa.empty()) {
        if (v.KresliKlavesy()) {
            v.Zahozena |= s.Tlacitko;
            return {};
        }
        v.PustDrzeni();
    }
    const Formular form = v.Cilovy();
    if (form == nullptr) return {};
    // The same button again: its release got lost outside.
    if (v.Drzi && (v.DrziTlacitka & s.Tlacitko) != 0) v.Drzi = false;
    if (v.Drzi) {
        v.DrziTlacitka |= s.Tlacitko;
        if (v.Drzici() != form || !Dosazitelny(v.DrziObjekt)) return {};
        const Mys m =
            Udalost(*form, v.DrziObjekt, s.X + v.Posun.X, s.Y + v.Posun.Y, s.Tlacitko, s.Shift);
        return form->MouseDown(v.DrziObjekt, m).Komu(form);
    }
    if (!MistoFormu(*form).Obsahuje(s.X, s.Y)) {
        DorucNavrat();
        return {};
    }
    Ovladac* o = NajdiObjekt(*form, s.X, s.Y);
    const PoradiStisku poradi = v.Rada.Zarad(form, o, s);
    if (poradi == PoradiStisku::Zahodit) {
        v.Zahozena |= s.Tlacitko;
        return {};
    }
    const bool dvojklik = poradi == PoradiStisku::Druhy;
    v.Drzi = true;
    v.DrziForm = form;
    v.DrziObjekt = o;
    v.DrziTlacitka = s.Tlacitko;
    v.Posun = {};
    if (o != nullptr && o->Zastavka != 0) form->prsten_ = o;
    Mys m = Udalost(*form, o, s.X, s.Y, s.Tlacitko, s.Shift);
    m.Prst = s.Prst;
    if (o != nullptr && o->Druh == Ovladac::Typ::TextBox && s.Tlacitko == LEVE) {
        auto& t = static_cast<TextBox&>(*o);
        if (!t.MultiLine) {
            form->SetFocus(t);
            PsaniTextu psani(host_, t);
            psani.Stisk(static_cast<double>(m.X), (s.Shift & SHIFT) != 0);
            if (dvojklik) psani.VyberSlovo();
            v.Psano = host_.TickCount();
        }
    }
    return form->MouseDown(o, m).Komu(form);
}

void Obrazovky::DorucPohyb(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    if (!s.Prst && v.Zvednuty() != nullptr) return DorucPohybPrstu(s);
    if (!v.ZnaMys) {
        v.MysPriPrstenuX = s.X;
        v.MysPriPrstenuY = s.Y;
    }
    v.ZnaMys = !s.Prst;
    v.Prstem = s.Prst;
    v.MysX = s.X;
    v.MysY = s.Y;
    if (!v.DrziKlavesa.empty()) return;
    // A hand that rests on the mouse while the other one is at the keys takes nothing over.
    if (Hypot(s.X - v.MysPriPrstenuX, s.Y - v.MysPriPrstenuY) >= POHNULA_SE) v.PrstenVidet = false;
    // The release of one that is held no more got lost outside.
    if (!s.Odlozeny) v.Zahozena &= s.Tlacitko;
    const int drzena = s.Tlacitko & ~v.Zahozena;
    if (v.Drzi) {
        const Formular form = v.Drzici();
        if (form == nullptr || !Dosazitelny(v.DrziObjekt)) return;
        Mys m = Udalost(*form, v.DrziObjekt, s.X + v.Posun.X, s.Y + v.Posun.Y, drzena, s.Shift);
        m.Prst = s.Prst;
        if (v.DrziObjekt != nullptr && v.DrziObjekt == form->Zamereni() &&
            (v.DrziTlacitka & LEVE) != 0) {
            PsaniTextu(host_, *form->Zamereni()).Stisk(static_cast<double>(m.X), true);
            v.Psano = host_.TickCount();
        }
        form->MouseMove(v.DrziObjekt, m);
        return;
    }
    if (v.Zahozena != 0) return;  // a drag of nobody
    const Formular form = v.Cilovy();
    if (form == nullptr || !MistoFormu(*form).Obsahuje(s.X, s.Y)) return;
    Ovladac* o = NajdiObjekt(*form, s.X, s.Y);
    form->MouseMove(o, Udalost(*form, o, s.X, s.Y, drzena, s.Shift));
}

Cinnost<> Obrazovky::DorucPusteni(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    if (!s.Prst && v.Zvednuty() != nullptr) return DorucPrst(s);
    if (!s.Odlozeny && (v.Zahozena & s.Tlacitko) != 0) {
        v.Zahozena &= ~s.Tlacitko;
        return {};
    }
    if (!v.Drzi || !v.DrziKlavesa.empty() || (v.DrziTlacitka & s.Tlacitko) == 0) return {};
    v.DrziTlacitka &= ~s.Tlacitko;
    v.Drzi = v.DrziTlacitka != 0;
    const Formular form = v.Drzici();
    Ovladac* o = v.DrziObjekt;
    if (form == nullptr || !Dosazitelny(o)) return {};
    Mys m = Udalost(*form, o, s.X + v.Posun.X, s.Y + v.Posun.Y, s.Tlacitko, s.Shift);
    m.Prst = s.Prst;
    return Pust(form, o, m);
}

Cinnost<> Obrazovky::Pust(const DrzenyForm& form, Ovladac* o, const Mys& m) {
    Cinnost<> pusteni = form->MouseUp(o, m).Komu(form);
    return pusteni.JePrazdna() ? Klik(form, o, m) : PakKlik(std::move(pusteni), form, {form, o}, m);
}

Cinnost<> Obrazovky::PakKlik(Cinnost<> pusteni, DrzenyForm form, DrzenyOvladac o, Mys m) {
    co_await pusteni;
    co_await Klik(form, o.get(), m);
}

Cinnost<> Obrazovky::Klik(const DrzenyForm& form, Ovladac* o, const Mys& m) {
    if (m.Button != LEVE || vnitrek_->Cilovy() != form || !Dosazitelny(o)) return {};
    const Obdelnik misto = o != nullptr ? Obdelnik{0, 0, o->Width, o->Height}
                                        : Obdelnik{0, 0, form->Width, form->Height};
    if (!misto.Obsahuje(static_cast<double>(m.X), static_cast<double>(m.Y))) return {};
    return form->Click(o).Komu(form);
}

TextBox* Obrazovky::Psane() const {
    const Formular form = vnitrek_->Cilovy();
    if (form == nullptr || form->Zamereni() == nullptr) return nullptr;
    TextBox* t = form->Zamereni();
    if (!Dosazitelny(t) || t->MultiLine) return nullptr;
    return !vnitrek_->PrstenVidet || MistoPrstenu(*form) == t ? t : nullptr;
}

CimSeHraje Obrazovky::HrajeSe() const {
    if (vnitrek_->PrstenVidet) return CimSeHraje::Klavesami;
    return vnitrek_->Prstem ? CimSeHraje::Prstem : CimSeHraje::Mysi;
}

Obdelnik Obrazovky::KdeSePise() const {
    constexpr int SIRKA_PSANI = 100, VYSKA_PSANI = 20;
    const TextBox* t = Psane();
    if (t == nullptr) return {};
    const Obdelnik misto = MistoNaNavrhu(*vnitrek_->Cilovy(), *t);
    return {misto.Left, misto.Top, SIRKA_PSANI, VYSKA_PSANI};
}

bool Obrazovky::KurzorJeVidet(std::uint32_t ted) const {
    return (ted - vnitrek_->Psano) / BLIKANI % 2 == 0;
}

std::optional<std::uint32_t> Obrazovky::DoBliknuti(std::uint32_t ted) const {
    if (Psane() == nullptr) return std::nullopt;
    return BLIKANI - (ted - vnitrek_->Psano) % BLIKANI;
}

void Obrazovky::DorucText(const Vstup& s) {
    const Formular form = vnitrek_->Cilovy();
    TextBox* t = Psane();
    if (t == nullptr || vnitrek_->Zvednuty() != nullptr) return;
    vnitrek_->Psano = host_.TickCount();
    if (PsaniTextu(host_, *t).Napis(s.Text)) form->Change(*t);
}

Cinnost<> Obrazovky::DorucZavreni() {
    const std::vector<Formular> vse =
        JeModalni() ? std::vector{vnitrek_->Modalni.back()} : vnitrek_->Nactene;
    const bool modalne = JeModalni();
    for (const Formular& f : vse) {
        if (!f->Zavreny() && JeModalni() == modalne) co_await f->QueryUnload().Komu(f);
    }
}

void Obrazovky::DorucNavrat() {
    Vnitrek& v = *vnitrek_;
    if (JeModalni() || v.Viditelne.empty()) return;
    const Formular vzadu = v.Viditelne.front();
    if (vzadu == v.Cilovy()) return;
    v.Aktivni = vzadu;
    vzadu->Activate();
    // It showed nobody else, so the one in front is the active one again.
    if (v.Aktivni.lock() == vzadu) v.Aktivni = v.VpreduPodModalnimi();
}

}  // namespace rysovna
