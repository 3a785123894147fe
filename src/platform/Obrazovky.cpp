#include "platform/Obrazovky.h"

#include <algorithm>

#include "platform/Host.h"
#include "platform/ObrazovkyVnitrek.h"

namespace rysovna {

bool Obrazovky::Vnitrek::Modalne(const Form& f) const {
    return std::any_of(Modalni.begin(), Modalni.end(),
                       [&](const Formular& m) { return m.get() == &f; });
}

Formular Obrazovky::Vnitrek::Drzici() const {
    Formular f = DrziForm.lock();
    return f != nullptr && Dostava(*f) ? f : nullptr;
}

Formular Obrazovky::Vnitrek::VpreduPodModalnimi() const {
    for (auto i = Viditelne.rbegin(); i != Viditelne.rend(); ++i) {
        if (!Modalne(**i)) return *i;
    }
    return nullptr;
}

void Obrazovky::Vnitrek::Aktivuj(const Formular& f) {
    if (Konci || f == nullptr || Aktivni.lock() == f) return;
    Aktivni = f;
    f->Activate();
}

Obrazovky::Obrazovky(Host& host)
    : host_(host),
      vnitrek_(std::make_unique<Vnitrek>([&host] { return host.TickCount(); },
                                         [this] { return konec_; })) {}

Obrazovky::~Obrazovky() {
    vnitrek_->Prace.Zrus();
}

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
    if (vnitrek_->Zvednuty_ && vnitrek_->Zvednuty_->Formular_.lock() == drz)
        vnitrek_->Zvednuty_.reset();
    Vnitrek::Vyrad(vnitrek_->Modalni, form);
    Vnitrek::Vyrad(vnitrek_->Nactene, form);
}

void Obrazovky::Spust(Cinnost<> prace) {
    vnitrek_->Prace.Spust(std::move(prace));
}

void Obrazovky::Spust(Form& form, Cinnost<> prace) {
    Spust(std::move(prace).Komu(form.shared_from_this()));
}

bool Obrazovky::Ceka(const Form& form, int nac) const {
    return vnitrek_->Prace.Ceka(form, nac);
}

Zasobnik& Obrazovky::Prace() {
    return vnitrek_->Prace;
}

void Obrazovky::UnloadVse() {
    vnitrek_->Prace.Zrus();
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

void Obrazovky::Casovace(std::uint32_t ted) {
    if (JeZavreno()) return;
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
            Spust(Tik(f, {f, &t}));
        }
    }
}

namespace {

/// As long as it lives, the timer's handler runs or waits.
class Uvnitr {
public:
    Uvnitr(std::vector<const Timer*>& kde, const Timer* co) : kde_(kde), co_(co) {
        kde_.push_back(co_);
    }
    ~Uvnitr() { std::erase(kde_, co_); }
    Uvnitr(const Uvnitr&) = delete;
    Uvnitr& operator=(const Uvnitr&) = delete;

private:
    std::vector<const Timer*>& kde_;
    const Timer* co_;
};

}  // namespace

/// A timer whose handler waits does not fire again.
Cinnost<> Obrazovky::Tik(DrzenyForm form, std::shared_ptr<Timer> t) {
    const Uvnitr uvnitr(vnitrek_->BeziciCasovace, t.get());
    co_await form->TimerTick(*t).Komu(form);
}

bool Obrazovky::PristiCasovac(std::uint32_t ted, std::uint32_t& zaMs) const {
    if (JeZavreno()) return false;
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
