// What keys do: the round of the stops, presses by keys, the ring.

#include "platform/Klavesnice.h"

#include <algorithm>
#include <cstdlib>

#include "platform/Host.h"
#include "platform/Misto.h"
#include "platform/ObrazovkyVnitrek.h"
#include "platform/PsaniTextu.h"

namespace rysovna {

namespace {

constexpr struct {
    std::string_view Klavesa;
    Bod Smer;
} SIPKY[] = {{"Left", {-1, 0}}, {"Right", {1, 0}}, {"Up", {0, -1}}, {"Down", {0, 1}}};

bool Tiskne(std::string_view klavesa) {
    return klavesa == "Space" || klavesa == "Return";
}

/// The keys that show the ring.
bool JdePrstenu(std::string_view klavesa) {
    return klavesa == "Tab" || Tiskne(klavesa) || SmerSipky(klavesa).has_value();
}

/// How far the interval b lies behind a; 0 where they overlap.
int Mezera(int a, int sirkaA, int b, int sirkaB) {
    return std::max({b - (a + sirkaA), a - (b + sirkaB), 0});
}

/// The nearest stop to one side; what lies straight ahead goes before what lies aside.
Ovladac* VeSmeru(const std::vector<Ovladac*>& zastavky, const Ovladac& odkud, Bod smer) {
    constexpr int STRANOU = 4;  // one pixel aside is worth so many ahead
    const Obdelnik a = MistoNaFormu(odkud);
    Ovladac* nejblizsi = nullptr;
    int nejmin = 0;
    for (Ovladac* o : zastavky) {
        if (o == &odkud || o->Rodic != odkud.Rodic) continue;
        const Obdelnik b = MistoNaFormu(*o);
        const int dx = 2 * (b.Left - a.Left) + b.Width - a.Width;
        const int dy = 2 * (b.Top - a.Top) + b.Height - a.Height;
        if (dx * smer.X + dy * smer.Y <= 0) continue;
        const int x = Mezera(a.Left, a.Width, b.Left, b.Width);
        const int y = Mezera(a.Top, a.Height, b.Top, b.Height);
        // What only overlaps with the one before lies aside of it, not ahead.
        if ((smer.X != 0 ? x : y) == 0 && (smer.X != 0 ? y : x) > 0) continue;
        const int daleko = smer.X != 0 ? x + STRANOU * y : y + STRANOU * x;
        if (nejblizsi != nullptr && daleko >= nejmin) continue;
        nejblizsi = o;
        nejmin = daleko;
    }
    return nejblizsi;
}

Mys UdalostKlaves(const Form& form, const Ovladac& o, int tlacitko) {
    const Bod hrot = form.Ukazatel(o).Hrot;
    return {tlacitko, 0, static_cast<float>(hrot.X), static_cast<float>(hrot.Y)};
}

}  // namespace

bool JeZivaZastavka(const Ovladac& o) {
    if (o.Zastavka == 0 || !Dosazitelny(&o)) return false;
    return o.Druh != Ovladac::Typ::TextBox || !static_cast<const TextBox&>(o).MultiLine;
}

std::vector<Ovladac*> Zastavky(const Form& form) {
    std::vector<Ovladac*> zive;
    for (Ovladac* o : form.Ovladace()) {
        if (JeZivaZastavka(*o)) zive.push_back(o);
    }
    std::ranges::stable_sort(zive, {}, [](const Ovladac* o) {
        return std::pair{o->Zastavka, o->Index};
    });
    return zive;
}

Ovladac* MistoPrstenu(Form& form) {
    if (form.prsten_ != nullptr && JeZivaZastavka(*form.prsten_)) return form.prsten_;
    Ovladac* prvni = form.PrvniZastavka();
    if (prvni != nullptr && JeZivaZastavka(*prvni)) return prvni;
    const std::vector<Ovladac*> zive = Zastavky(form);
    return zive.empty() ? nullptr : zive.front();
}

std::optional<Bod> SmerSipky(std::string_view klavesa) {
    for (const auto& s : SIPKY) {
        if (s.Klavesa == klavesa) return s.Smer;
    }
    return std::nullopt;
}

bool PlatiSCtrl(std::string_view klavesa) {
    constexpr std::string_view NA_PAPIR = "p";
    return klavesa == NA_PAPIR || SmerSipky(klavesa) || PsaniTextu::Bere(klavesa, CTRL);
}

// ---- The ring --------------------------------------------------------------------------------

std::optional<Obrazovky::Prsten> Obrazovky::PrstenVpredu() const {
    const Formular form = vnitrek_->Cilovy();
    // In a closed wait no key would do anything.
    if (form == nullptr || !vnitrek_->PrstenVidet || JeZavreno()) return std::nullopt;
    const Ovladac* o = MistoPrstenu(*form);
    if (o == nullptr) return std::nullopt;
    const UkazatelKlaves u = form->Ukazatel(*o);
    const Obdelnik misto = MistoFormu(*form);
    const Bod roh = Roh(o);
    const Bod posun{misto.Left + roh.X, misto.Top + roh.Y};
    return Prsten{o,
                  {u.Ram.Left + posun.X, u.Ram.Top + posun.Y, u.Ram.Width, u.Ram.Height},
                  {u.Hrot.X + posun.X, u.Hrot.Y + posun.Y},
                  u.Kriz};
}

void Obrazovky::UkazPrsten() {
    Vnitrek& v = *vnitrek_;
    v.PrstenVidet = true;
    v.MysPriPrstenuX = v.MysX;
    v.MysPriPrstenuY = v.MysY;
}

void Obrazovky::DejPrsten(Form& form, Ovladac& o) {
    UkazPrsten();
    form.Prsten(o);
    if (o.Druh == Ovladac::Typ::TextBox) {
        auto& t = static_cast<TextBox&>(o);
        form.SetFocus(t);
        bool vzal = false;
        PsaniTextu(host_, t).Klavesa("a", CTRL, vzal);  // all of it is marked
        vnitrek_->Psano = host_.TickCount();
    }
    form.PriselPrsten(o);
}

// ---- Presses ---------------------------------------------------------------------------------

bool Obrazovky::DrziKlavesa() const {
    return !vnitrek_->DrziKlavesa.empty();
}

Cinnost<> Obrazovky::Klepni(DrzenyForm form, DrzenyOvladac o) {
    const Vnitrek& v = *vnitrek_;
    if (v.Drzi) co_return;
    const Mys m = UdalostKlaves(*form, *o, LEVE);
    co_await form->MouseDown(o.get(), m).Komu(form);
    if (!v.Dostava(*form) || !Dosazitelny(o.get())) co_return;
    co_await form->MouseUp(o.get(), m).Komu(form);
    if (v.Cilovy() == form && Dosazitelny(o.get())) co_await form->Click(o.get()).Komu(form);
}

Odezva Obrazovky::StiskniZastavku(Form& form, Ovladac& o) {
    if (!JeZivaZastavka(o)) return std::nullopt;
    DejPrsten(form, o);
    const DrzenyForm drzeny = form.shared_from_this();
    return Klepni(drzeny, {drzeny, &o});
}

Cinnost<> Obrazovky::ZmackniKlavesou(DrzenyForm form, DrzenyOvladac o, std::string jmeno) {
    Vnitrek& v = *vnitrek_;
    if (v.Drzi) co_return;
    v.Drzi = true;
    v.DrziForm = form;
    v.DrziObjekt = o.get();
    v.DrziTlacitka = LEVE;
    v.DrziKlavesa = jmeno;
    v.DrziJak = o->Klavesou;
    co_await form->MouseDown(o.get(), UdalostKlaves(*form, *o, LEVE)).Komu(form);
    // What a drag shows it shows at once: there is no hand that would move.
    const bool tah = DrziKlavesa() && v.DrziJak == StiskKlavesou::Tah;
    if (tah && v.Drzici() == form && Dosazitelny(o.get())) PosunutUkazatel(*form, *o);
}

Cinnost<> Obrazovky::PustKlavesou() {
    Vnitrek& v = *vnitrek_;
    v.PustDrzeni();
    const Formular form = v.Drzici();
    Ovladac* o = v.DrziObjekt;
    if (form == nullptr || !Dosazitelny(o)) return {};
    return Pust(form, o, UdalostKlaves(*form, *o, LEVE));
}

void Obrazovky::PosunutUkazatel(Form& form, Ovladac& o) {
    form.MouseMove(&o, UdalostKlaves(form, o, DrziKlavesa() ? LEVE : 0));
}

Cinnost<> Obrazovky::DorucPusteniKlavesy(const Vstup& s) {
    const Vnitrek& v = *vnitrek_;
    if (v.DrziJak != StiskKlavesou::Drzeni || v.DrziKlavesa != s.Text) return {};
    return PustKlavesou();
}

/// A key while the press of another one lasts. None if it is not dealt with by that.
Odezva Obrazovky::ZaDrzeni(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    if (v.DrziKlavesa.empty()) return std::nullopt;
    const Formular form = v.Drzici();
    const bool tah = v.DrziJak == StiskKlavesou::Tah;
    if (form == nullptr || !Dosazitelny(v.DrziObjekt) || (tah && v.Cilovy() != form)) {
        v.PustDrzeni();
        return std::nullopt;
    }
    // The same key again: its release got lost outside.
    if (!tah) return s.Text == v.DrziKlavesa ? PustKlavesou() : Cinnost<>();
    UkazPrsten();
    if (s.Text == "Space") return PustKlavesou();
    if (SmerSipky(s.Text) || JeZnak(s.Text)) form->KlavesaNa(*v.DrziObjekt, s.Text, s.Shift);
    return Cinnost<>();
}

/// Arrows carry the mouse that is held on a plane on by a pixel: a hand cannot be so fine.
bool Obrazovky::PosunDrzenouMys(const Vstup& s) {
    Vnitrek& v = *vnitrek_;
    const std::optional<Bod> smer = SmerSipky(s.Text);
    if (!smer || v.Prst != PracePrstu::Zadna || !v.Drzi || v.DrziObjekt == nullptr ||
        v.Drzici() == nullptr)
        return false;
    if (!v.DrziObjekt->JemneSipkami) return false;
    v.Posun.X += smer->X;
    v.Posun.Y += smer->Y;
    DorucPohyb({.Co = Vstup::Druh::Pohyb,
                .X = v.MysX,
                .Y = v.MysY,
                .Tlacitko = v.DrziTlacitka,
                .Shift = s.Shift,
                .Cas = {},
                .Text = {},
                .Odlozeny = true});
    return true;
}

Cinnost<> Obrazovky::DorucKlavesu(const Vstup& s) {
    const std::string& jmeno = s.Text;
    if (vnitrek_->Zvednuty() != nullptr) return {};
    if (Odezva zaDrzeni = ZaDrzeni(s)) return std::move(*zaDrzeni);
    if (PosunDrzenouMys(s)) return {};
    const Formular form = vnitrek_->Cilovy();
    if (form == nullptr) return {};
    const bool povel = (s.Shift & CTRL) != 0 && JeZnak(jmeno);
    if (TextBox* t = Psane()) {
        bool vzal = false;
        const bool zmena = PsaniTextu(host_, *t).Klavesa(jmeno, s.Shift, vzal);
        if (vzal) vnitrek_->Psano = host_.TickCount();
        if (zmena) form->Change(*t);
        if (vzal || (JeZnak(jmeno) && !povel) || jmeno == "Space") return {};
    }
    if (povel) {
        Odezva odezva = form->Klavesa("Ctrl+" + jmeno, s.Shift);
        return odezva ? std::move(*odezva).Komu(form) : Cinnost<>();
    }
    if (Odezva odezva = form->Klavesa(jmeno, s.Shift)) return std::move(*odezva).Komu(form);
    return KlavesaPrstenu(form, jmeno, s.Shift);
}

Cinnost<> Obrazovky::KlavesaPrstenu(const DrzenyForm& form, std::string_view jmeno, int shift) {
    const Vnitrek& v = *vnitrek_;
    if (jmeno == "F1") {
        Ovladac* napoveda = form->Napoveda();
        if (napoveda == nullptr || !Dosazitelny(napoveda)) return {};
        return Klepni(form, {form, napoveda});
    }
    const std::vector<Ovladac*> zive = Zastavky(*form);
    if (zive.empty() || (!v.PrstenVidet && !JdePrstenu(jmeno))) return {};
    TextBox* pise = Psane();
    Ovladac* o = pise != nullptr ? pise : MistoPrstenu(*form);
    const bool videl = v.PrstenVidet || pise != nullptr;
    UkazPrsten();
    form->Prsten(*o);
    if (!videl) form->PriselPrsten(*o);
    if (!videl || form->KlavesaNa(*o, jmeno, shift)) return {};
    if (jmeno == "Tab") {
        const auto kde = std::ranges::find(zive, o) - zive.begin();
        const auto pocet = std::ssize(zive);
        const auto kam = (kde + ((shift & SHIFT) != 0 ? pocet - 1 : 1)) % pocet;
        DejPrsten(*form, *zive[static_cast<std::size_t>(kam)]);
    } else if (const auto smer = SmerSipky(jmeno)) {
        if (Ovladac* dalsi = VeSmeru(zive, *o, *smer)) DejPrsten(*form, *dalsi);
    } else if (Tiskne(jmeno) && o->Druh != Ovladac::Typ::TextBox) {
        if (o->Klavesou == StiskKlavesou::Klik) return Klepni(form, {form, o});
        return ZmackniKlavesou(form, {form, o}, std::string(jmeno));
    }
    return {};
}

}  // namespace rysovna
