#include "platform/Obrazovky.h"

#include <algorithm>
#include <cmath>

#include "platform/Host.h"
#include "platform/PsaniTextu.h"

namespace rysovna {

namespace {

constexpr int LEVE = 1;
/// Two presses of one object within this time and distance are a double click.
constexpr std::uint32_t DVOJKLIK_MS = 500;
constexpr double DVOJKLIK_PX = 4;

using Formular = std::shared_ptr<Form>;

Obdelnik MistoFormu(const Form& f) {
    return {f.Maximised ? 0 : f.Left, f.Maximised ? 0 : f.Top, f.Width, f.Height};
}

/// Top left corner of the object on its form.
Bod Roh(const Ovladac* o) {
    Bod roh;
    for (; o != nullptr; o = o->Rodic) {
        roh.X += o->Left;
        roh.Y += o->Top;
    }
    return roh;
}

/// Seen and enabled, with all that it stands in.
bool Dosazitelny(const Ovladac* o) {
    for (; o != nullptr; o = o->Rodic) {
        if (!o->Visible || !o->Enabled) return false;
    }
    return true;
}

bool BereMys(const Ovladac& o) {
    return o.ProMys && (o.Druh == Ovladac::Typ::PictureBox || o.Druh == Ovladac::Typ::Image ||
                        o.Druh == Ovladac::Typ::Label || o.Druh == Ovladac::Typ::TextBox);
}

/// The box to type into that comes behind (before) this one on the form; this one if there is no
/// other.
TextBox* DalsiPole(const Form& form, TextBox* t, bool zpet) {
    std::vector<TextBox*> pole;
    for (Ovladac* o : form.Ovladace()) {
        auto* p = dynamic_cast<TextBox*>(o);
        if (p != nullptr && !p->MultiLine && Dosazitelny(p)) pole.push_back(p);
    }
    if (zpet) std::ranges::reverse(pole);
    const auto ted = std::ranges::find(pole, t);
    if (ted == pole.end()) return t;
    return ted + 1 == pole.end() ? pole.front() : *(ted + 1);
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

struct Obrazovky::Vnitrek {
    std::vector<Formular> Nactene;
    std::vector<Formular> Viditelne;  ///< modal ones at the end
    std::vector<Formular> Modalni;
    std::weak_ptr<Form> Aktivni;
    bool Konci = false;

    // The press that owns the pointer until all buttons are up. Its object may be gone meanwhile:
    // then what comes until the release goes to nobody.
    bool Drzi = false;
    std::weak_ptr<Form> DrziForm;
    Ovladac* DrziObjekt = nullptr;
    int DrziTlacitka = 0;

    // The press before, for the double click.
    std::weak_ptr<Form> MinulyForm;
    Ovladac* MinulyObjekt = nullptr;
    std::uint32_t MinulyCas = 0;
    double MinuleX = 0, MinuleY = 0;
    bool MinulyPlati = false;

    std::vector<const Timer*> BeziciCasovace;  ///< whose handlers are running
    std::uint32_t Psano = 0;

    [[nodiscard]] Formular Cilovy() const { return Viditelne.empty() ? nullptr : Viditelne.back(); }
    [[nodiscard]] bool Modalne(const Form& f) const {
        return std::any_of(Modalni.begin(), Modalni.end(),
                           [&](const Formular& m) { return m.get() == &f; });
    }
    /// The form of the press, if it still gets events: it stays visible, and no modal form has come
    /// up over it. A small form that its press brought up takes nothing from it.
    [[nodiscard]] Formular Drzici() const {
        Formular f = DrziForm.lock();
        const bool dostava =
            f != nullptr && f->Viditelny() && (Modalni.empty() || f == Modalni.back());
        return dostava ? f : nullptr;
    }
    static bool Vyrad(std::vector<Formular>& odkud, const Form& f) {
        return std::erase_if(odkud, [&](const Formular& x) { return x.get() == &f; }) > 0;
    }
    static Mys Udalost(const Form& f, const Ovladac* o, double x, double y, int tlacitko,
                       int shift) {
        const Obdelnik misto = MistoFormu(f);
        const Bod roh = Roh(o);
        return {tlacitko, shift, static_cast<float>(x - misto.Left - roh.X),
                static_cast<float>(y - misto.Top - roh.Y)};
    }
    static Ovladac* Najdi(const Form& f, double x, double y) {
        const Obdelnik misto = MistoFormu(f);
        Ovladac* o = Nejvyssi(f, nullptr, x - misto.Left, y - misto.Top);
        while (o != nullptr && !Dosazitelny(o)) o = o->Rodic;
        return o;
    }
    /// What a press is to the one before: the second of a double click, or of one whose first press
    /// brought another form up or took its own away.
    enum class Stisk { Prvni, Druhy, DruhyJinde };
    /// Tells it, and remembers the press. A third press begins anew.
    Stisk Zarad(const Formular& f, Ovladac* o, double x, double y, int tlacitko) {
        const std::uint32_t ted = Stroj().TickCount();
        const bool vzapeti = MinulyPlati && tlacitko == LEVE && ted - MinulyCas <= DVOJKLIK_MS &&
                             std::abs(x - MinuleX) <= DVOJKLIK_PX &&
                             std::abs(y - MinuleY) <= DVOJKLIK_PX;
        const bool jinde = MinulyForm.lock() != f;
        const bool druhy = vzapeti && (jinde || MinulyObjekt == o);
        MinulyPlati = tlacitko == LEVE && !druhy;
        MinulyForm = f;
        MinulyObjekt = o;
        MinulyCas = ted;
        MinuleX = x;
        MinuleY = y;
        if (!druhy) return Stisk::Prvni;
        return jinde ? Stisk::DruhyJinde : Stisk::Druhy;
    }
    /// The form that is in front now gets Activate if it was not the active one.
    void Aktivuj(const Formular& f) {
        if (Konci || f == nullptr || Aktivni.lock() == f) return;
        Aktivni = f;
        f->Activate();
    }
    [[nodiscard]] Formular VpreduPodModalnimi() const {
        for (auto i = Viditelne.rbegin(); i != Viditelne.rend(); ++i) {
            if (!Modalne(**i)) return *i;
        }
        return nullptr;
    }
};

Obrazovky::Obrazovky() : vnitrek_(std::make_unique<Vnitrek>()) {}

Obrazovky::~Obrazovky() = default;

void Obrazovky::Zaved(const Formular& form) {
    vnitrek_->Nactene.push_back(form);
    form->Load();
}

void Obrazovky::Show(Form& form) {
    if (form.zavreny_) return;
    const Formular drz = form.shared_from_this();
    Vnitrek& v = *vnitrek_;
    std::vector<Formular> drive = v.Viditelne;
    form.viditelny_ = true;
    Vnitrek::Vyrad(v.Viditelne, form);
    const auto konec = v.Modalne(form)
                           ? v.Viditelne.end()
                           : std::find_if(v.Viditelne.begin(), v.Viditelne.end(),
                                          [&](const Formular& f) { return v.Modalne(*f); });
    v.Viditelne.insert(konec, drz);
    if (drive != v.Viditelne) ++verze_;
    if (!v.Modalne(form)) v.Aktivuj(drz);
}

void Obrazovky::Hide(Form& form) {
    const Formular drz = form.shared_from_this();
    Vnitrek& v = *vnitrek_;
    form.viditelny_ = false;
    if (!Vnitrek::Vyrad(v.Viditelne, form)) return;
    ++verze_;
    if (v.Aktivni.lock() != drz) return;
    v.Aktivni.reset();
    v.Aktivuj(v.VpreduPodModalnimi());
}

void Obrazovky::Unload(Form& form) {
    if (form.zavreny_) return;
    const Formular drz = form.shared_from_this();
    form.zavreny_ = true;
    ++verze_;
    Hide(form);
    form.Unload();
    Vnitrek::Vyrad(vnitrek_->Modalni, form);
    Vnitrek::Vyrad(vnitrek_->Nactene, form);
}

void Obrazovky::UnloadVse() {
    vnitrek_->Konci = true;
    while (!vnitrek_->Nactene.empty()) {
        const Formular posledni = vnitrek_->Nactene.back();
        Unload(*posledni);
        Vnitrek::Vyrad(vnitrek_->Nactene, *posledni);
    }
    vnitrek_->Konci = false;
    konec_ = false;
}

Formular Obrazovky::Najdi(std::string_view jmeno) const {
    for (const Formular& f : vnitrek_->Nactene) {
        if (f->Jmeno() == jmeno) return f;
    }
    return nullptr;
}

Formular Obrazovky::Vpredu() const {
    return vnitrek_->Cilovy();
}

const std::vector<Formular>& Obrazovky::Viditelne() const {
    return vnitrek_->Viditelne;
}

void Obrazovky::NastavModalni(const Formular& form) {
    vnitrek_->Modalni.push_back(form);
    Show(*form);
}

bool Obrazovky::JeModalni() const {
    return !vnitrek_->Modalni.empty();
}

void Obrazovky::MysDolu(double x, double y, int tlacitko, int shift) {
    Vnitrek& v = *vnitrek_;
    const Formular form = v.Cilovy();
    if (form == nullptr) return;
    // The same button again: its release got lost outside.
    if (v.Drzi && (v.DrziTlacitka & tlacitko) != 0) v.Drzi = false;
    if (v.Drzi) {
        v.DrziTlacitka |= tlacitko;
        if (v.Drzici() == form && Dosazitelny(v.DrziObjekt))
            form->MouseDown(v.DrziObjekt,
                            Vnitrek::Udalost(*form, v.DrziObjekt, x, y, tlacitko, shift));
        return;
    }
    if (!MistoFormu(*form).Obsahuje(x, y)) {
        Navrat();
        return;
    }
    Ovladac* o = Vnitrek::Najdi(*form, x, y);
    const Vnitrek::Stisk stisk = v.Zarad(form, o, x, y, tlacitko);
    // Who double-clicks the table's way back does not mean the board's, which lies below it.
    if (stisk == Vnitrek::Stisk::DruhyJinde) return;
    const bool dvojklik = stisk == Vnitrek::Stisk::Druhy;
    v.Drzi = true;
    v.DrziForm = form;
    v.DrziObjekt = o;
    v.DrziTlacitka = tlacitko;
    const Mys m = Vnitrek::Udalost(*form, o, x, y, tlacitko, shift);
    if (o != nullptr && o->Druh == Ovladac::Typ::TextBox && tlacitko == LEVE) {
        auto& t = static_cast<TextBox&>(*o);
        if (!t.MultiLine) {
            form->SetFocus(t);
            PsaniTextu psani(t);
            psani.Stisk(static_cast<double>(m.X), (shift & 1) != 0);
            if (dvojklik) psani.VyberSlovo();
            v.Psano = Stroj().TickCount();
        }
    }
    form->MouseDown(o, m);
    if (dvojklik && form->Viditelny() && Dosazitelny(o)) form->DblClick(o);
}

void Obrazovky::MysPohyb(double x, double y, int drzena, int shift) {
    Vnitrek& v = *vnitrek_;
    if (v.Drzi) {
        const Formular form = v.Drzici();
        if (form == nullptr || !Dosazitelny(v.DrziObjekt)) return;
        const Mys m = Vnitrek::Udalost(*form, v.DrziObjekt, x, y, drzena, shift);
        if (v.DrziObjekt != nullptr && v.DrziObjekt == form->Zamereni() &&
            (v.DrziTlacitka & LEVE) != 0) {
            PsaniTextu(*form->Zamereni()).Stisk(static_cast<double>(m.X), true);
            v.Psano = Stroj().TickCount();
        }
        form->MouseMove(v.DrziObjekt, m);
        return;
    }
    const Formular form = v.Cilovy();
    if (form == nullptr || !MistoFormu(*form).Obsahuje(x, y)) return;
    Ovladac* o = Vnitrek::Najdi(*form, x, y);
    form->MouseMove(o, Vnitrek::Udalost(*form, o, x, y, drzena, shift));
}

void Obrazovky::MysNahoru(double x, double y, int tlacitko, int shift) {
    Vnitrek& v = *vnitrek_;
    if (!v.Drzi || (v.DrziTlacitka & tlacitko) == 0) return;
    v.DrziTlacitka &= ~tlacitko;
    v.Drzi = v.DrziTlacitka != 0;
    const Formular form = v.Drzici();
    Ovladac* o = v.DrziObjekt;
    if (form == nullptr || !Dosazitelny(o)) return;
    const Mys m = Vnitrek::Udalost(*form, o, x, y, tlacitko, shift);
    form->MouseUp(o, m);
    if (tlacitko != LEVE || v.Cilovy() != form || !Dosazitelny(o)) return;
    const Obdelnik misto = o != nullptr ? Obdelnik{0, 0, o->Width, o->Height}
                                        : Obdelnik{0, 0, form->Width, form->Height};
    if (misto.Obsahuje(static_cast<double>(m.X), static_cast<double>(m.Y))) form->Click(o);
}

TextBox* Obrazovky::Psane() const {
    const Formular form = vnitrek_->Cilovy();
    if (form == nullptr || form->Zamereni() == nullptr) return nullptr;
    TextBox* t = form->Zamereni();
    return Dosazitelny(t) && !t->MultiLine ? t : nullptr;
}

std::uint32_t Obrazovky::PosledniPsani() const {
    return vnitrek_->Psano;
}

void Obrazovky::Text(std::string_view utf8) {
    const Formular form = vnitrek_->Cilovy();
    TextBox* t = Psane();
    if (t == nullptr) return;
    vnitrek_->Psano = Stroj().TickCount();
    if (PsaniTextu(*t).Napis(utf8)) form->Change(*t);
}

void Obrazovky::Klavesa(std::string_view jmeno, int shift) {
    const Formular form = vnitrek_->Cilovy();
    if (form == nullptr) return;
    if (TextBox* t = Psane()) {
        bool vzal = false;
        TextBox* dalsi = jmeno == "Tab" ? DalsiPole(*form, t, (shift & 1) != 0) : t;
        if (dalsi != t) {
            form->SetFocus(*dalsi);
            PsaniTextu(*dalsi).Klavesa("a", 2, vzal);  // all of it is marked
            vnitrek_->Psano = Stroj().TickCount();
            return;
        }
        const bool zmena = PsaniTextu(*t).Klavesa(jmeno, shift, vzal);
        if (vzal) vnitrek_->Psano = Stroj().TickCount();
        if (zmena) form->Change(*t);
        if (vzal) return;
    }
    form->Klavesa(jmeno);
}

void Obrazovky::ZadostOZavreni() {
    const std::vector<Formular> vse = vnitrek_->Nactene;
    if (JeModalni()) {
        vnitrek_->Modalni.back()->QueryUnload();
        return;
    }
    for (const Formular& f : vse) {
        if (!f->Zavreny() && !JeModalni()) f->QueryUnload();
    }
}

void Obrazovky::Navrat() {
    Vnitrek& v = *vnitrek_;
    if (JeModalni() || v.Viditelne.empty()) return;
    const Formular vzadu = v.Viditelne.front();
    if (vzadu == v.Cilovy()) return;
    v.Aktivni = vzadu;
    vzadu->Activate();
    // It showed nobody else, so the one in front is the active one again.
    if (v.Aktivni.lock() == vzadu) v.Aktivni = v.VpreduPodModalnimi();
}

void Obrazovky::Casovace(std::uint32_t ted) {
    Vnitrek& v = *vnitrek_;
    const std::vector<Formular> vse = v.Nactene;
    for (const Formular& f : vse) {
        if (JeModalni() && !v.Modalne(*f)) continue;
        for (std::size_t i = 0; i < f->ovladace_.size() && !f->Zavreny(); ++i) {
            if (f->ovladace_[i]->Druh != Ovladac::Typ::Timer) continue;
            auto& t = static_cast<Timer&>(*f->ovladace_[i]);
            if (!t.Enabled || t.Interval == 0) {
                t.Bezi = false;
                continue;
            }
            if (!t.Bezi) {
                t.Bezi = true;
                t.Pristi = ted + t.Interval;
            }
            const bool uvnitr = std::find(v.BeziciCasovace.begin(), v.BeziciCasovace.end(), &t) !=
                                v.BeziciCasovace.end();
            if (uvnitr || static_cast<std::int32_t>(ted - t.Pristi) < 0) continue;
            t.Pristi = ted + t.Interval;
            struct Uvnitr {
                std::vector<const Timer*>& Kde;
                ~Uvnitr() { Kde.pop_back(); }
            };
            v.BeziciCasovace.push_back(&t);
            const Uvnitr zapis{v.BeziciCasovace};
            f->TimerTick(t);
        }
    }
}

bool Obrazovky::PristiCasovac(std::uint32_t ted, std::uint32_t& zaMs) const {
    const Vnitrek& v = *vnitrek_;
    bool nejaky = false;
    for (const Formular& f : v.Nactene) {
        if (JeModalni() && !v.Modalne(*f)) continue;
        for (const Ovladac* o : f->ovladace_) {
            if (o->Druh != Ovladac::Typ::Timer) continue;
            const auto& t = static_cast<const Timer&>(*o);
            if (!t.Enabled || t.Interval == 0) continue;
            if (std::find(v.BeziciCasovace.begin(), v.BeziciCasovace.end(), &t) !=
                v.BeziciCasovace.end())
                continue;
            const std::uint32_t pristi = t.Bezi ? t.Pristi : ted + t.Interval;
            const std::int32_t za = std::max(static_cast<std::int32_t>(pristi - ted), 0);
            if (!nejaky || static_cast<std::uint32_t>(za) < zaMs)
                zaMs = static_cast<std::uint32_t>(za);
            nejaky = true;
        }
    }
    return nejaky;
}

}  // namespace rysovna
