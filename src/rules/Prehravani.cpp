#include "rules/Prehravani.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <utility>

#include "engine/PametovaPlocha.h"

namespace rysovna {

namespace {

// Times, ms.
constexpr std::uint32_t NEJDELSI_MEZERA = 3000;  // of the pupil's; thinking is cut to it
constexpr std::uint32_t ZANEDBATELNE = 1000;     // so little left out is not worth a word
constexpr std::uint32_t NOVY_PRIKLAD = 2500;     // to read who plays what
constexpr std::uint32_t CTENI_CHYBY = 4000;      // of the sentence of a wrong step

/// How long a call takes at least where a pupil made it, and where a teacher shows it.
constexpr struct {
    Volani::Druh Co;
    std::uint32_t NejmeneZak, Vyklad;
} DOBY[] = {
    {Volani::Druh::Nastroj, 250, 2200},   {Volani::Druh::Radek, 250, 2500},
    {Volani::Druh::ZavritSeznam, 0, 300}, {Volani::Druh::Napsani, 60, 700},
    {Volani::Druh::Stisk, 250, 2500},     {Volani::Druh::Pusteni, 300, 2500},
    {Volani::Druh::Nacrt, 250, 2000},     {Volani::Druh::Posunuti, 250, 1500},
    {Volani::Druh::Kontrola, 250, 3000},
};
static_assert(std::size(DOBY) == Volani::DRUHU, "a kind of call without its times");

/// The same of a call; of what nothing comes of a teacher shows nothing.
std::uint32_t Doba(Tempo tempo, const KrokPrehravani& k, Volani::Druh co, std::uint32_t mezera) {
    const auto* d = std::ranges::find_if(DOBY, [co](const auto& r) { return r.Co == co; });
    if (tempo == Tempo::Vyklad) return k.Naprazdno ? 0 : d->Vyklad;
    return std::clamp(mezera, d->NejmeneZak, NEJDELSI_MEZERA);
}

}  // namespace

Prehravani::Prehravani(Pokus pokus, Platna platna, Tempo tempo, VyrobceDialogu vyrobce)
    : pokus_(std::move(pokus)), platna_(platna), tempo_(tempo), vyrobce_(std::move(vyrobce)) {
    Rozvrhni();
    Prejdi(0);
}

const Udalost* Prehravani::UdalostKroku(const KrokPrehravani& k) const {
    return k.Udalost == 0 ? nullptr : &PrikladKroku(k).Udalosti[k.Udalost - 1];
}

/// Where an example is set: as if by a check, which is of neither sketch nor plane.
Volani::Druh Prehravani::DruhKroku(std::size_t krok) const {
    const Udalost* u = UdalostKroku(kroky_[krok]);
    return u == nullptr ? Volani::Druh::Kontrola : u->Co.Co;
}

void Prehravani::Rozvrhni() {
    PametovaPlocha pic(platna_.Pic.Width(), platna_.Pic.Height());
    PametovaPlocha hiden(platna_.HidenPic.Width(), platna_.HidenPic.Height());
    Prehravka naSlepo(pokus_, {pic, hiden}, vyrobce_);
    Panel panel;
    std::uint32_t otisk = 0;
    std::uint32_t kdyZaka = 0;
    std::size_t chybPredtim = 0;
    // What came out of another program may leave a dialogue that cannot even be looked at.
    try {
        while (naSlepo.Dalsi()) {
            const HranyPriklad& p = pokus_.Priklady[naSlepo.Priklad() - 1];
            KrokPrehravani k{.Priklad = naSlepo.Priklad(), .Udalost = naSlepo.Udalost()};
            const Udalost* u = UdalostKroku(k);
            Panel novy = naSlepo.Hrany().UkazPanel();
            const std::uint32_t novyOtisk = u == nullptr ? p.Otisk : u->Otisk;
            const std::uint32_t kdy = u == nullptr ? p.Kdy : u->Co.Kdy;
            // Times of a file need not grow.
            const std::uint32_t mezera = kdy > kdyZaka ? kdy - kdyZaka : 0;
            if (u == nullptr) {
                k.Doba = kroky_.empty() ? 0 : std::min(mezera, NEJDELSI_MEZERA);
            } else {
                const bool gesto =
                    u->Co.Co == Volani::Druh::Stisk && novy.Kresleni.Druh != Gesto::Tvar::Zadny;
                k.Chyba = !u->Chyby.empty();
                k.Naprazdno = !k.Chyba && !gesto && u->Co.Co != Volani::Druh::Kontrola &&
                              novy == panel && novyOtisk == otisk;
                k.Doba = Doba(tempo_, k, u->Co.Co, mezera);
                const std::uint32_t cteni = static_cast<std::uint32_t>(chybPredtim) * CTENI_CHYBY;
                k.Doba = std::max(k.Doba, cteni);
                if (k.Udalost == 1) k.Doba = std::max(k.Doba, NOVY_PRIKLAD);
                chybPredtim = u->Chyby.size();
            }
            if (tempo_ == Tempo::Zaka && mezera > k.Doba + ZANEDBATELNE)
                k.Vynechano = mezera - k.Doba;
            k.Kdy = Delka() + k.Doba;
            kroky_.push_back(k);
            panel = std::move(novy);
            otisk = novyOtisk;
            kdyZaka = kdy;
        }
        rozchod_ = naSlepo.KdeSeRozesla();
    } catch (const std::exception& chyba) {
        rozchod_ = {naSlepo.Priklad(), naSlepo.Udalost(), chyba.what()};
    }
}

/// Plays on to the step, from the very beginning where it lies behind.
void Prehravani::Prejdi(std::size_t krok) {
    if (kroky_.empty() || !prehravka_ || krok < krok_) {
        prehravka_ = std::make_unique<Prehravka>(pokus_, platna_, vyrobce_);
        krok_ = 0;
        predtim_ = {};
        if (kroky_.empty() || !prehravka_->Dalsi()) return;
        danych_ = Hrany().Pamet().PocetUtvaru;
    }
    while (krok_ < krok) {
        predtim_ = Hrany().UkazPanel();
        if (!prehravka_->Dalsi()) {
            rozchod_ = prehravka_->KdeSeRozesla();
            kroky_.resize(krok_ + 1);
            break;
        }
        ++krok_;
        if (Ted().Udalost == 0) danych_ = Hrany().Pamet().PocetUtvaru;
    }
}

void Prehravani::NaKrok(std::size_t krok) {
    if (kroky_.empty()) return;
    Prejdi(std::min(krok, kroky_.size() - 1));
    cas_ = Ted().Kdy;
}

void Prehravani::NaCas(std::uint32_t ms) {
    if (kroky_.empty()) return;
    ms = std::min(ms, Delka());
    const auto za = std::ranges::upper_bound(kroky_, ms, {}, &KrokPrehravani::Kdy);
    Prejdi(static_cast<std::size_t>(za - kroky_.begin()) - 1);
    cas_ = std::min(ms, Delka());
}

void Prehravani::Vpred() {
    if (kroky_.empty()) return;
    std::size_t k = krok_ + 1;
    while (tempo_ == Tempo::Vyklad && k + 1 < kroky_.size() && kroky_[k].Naprazdno) ++k;
    NaKrok(k);
}

void Prehravani::Zpet() {
    std::size_t k = krok_ - (krok_ > 0 ? 1 : 0);
    // Within a step's time its own beginning is the nearer way back.
    if (!kroky_.empty() && cas_ > Ted().Kdy) k = krok_;
    while (tempo_ == Tempo::Vyklad && k > 0 && kroky_[k].Naprazdno) --k;
    NaKrok(k);
}

bool Prehravani::NacrtVysunuty() const {
    for (std::size_t k = krok_ + 1; k < kroky_.size() && kroky_[k].Udalost != 0; ++k) {
        if (DruhKroku(k) == Volani::Druh::Nacrt) return true;
        if (DruhKroku(k) == Volani::Druh::Pusteni) return false;
    }
    return Ted().Udalost == 0;
}

bool Prehravani::Drzi() const {
    return !NaKonci() && DruhKroku(krok_) == Volani::Druh::Stisk &&
           DruhKroku(krok_ + 1) == Volani::Druh::Pusteni;
}

}  // namespace rysovna
