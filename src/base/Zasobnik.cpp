#include "base/Zasobnik.h"

#include <algorithm>
#include <utility>

namespace rysovna {

Vlakno::Vlakno(Zasobnik& kde, Cinnost<> prace)
    : kde_(kde), prace_(std::make_unique<Cinnost<>>(std::move(prace))) {}

bool Vlakno::Zacni(Cekani& cekani) {
    cekani.od_ = kde_.ted_();
    // Once the process is to end, the wait is where the handler is ended.
    if (!cekani.vzdy_ && !kde_.konec_() && kde_.Uplynulo(cekani)) return false;
    ceka_ = &cekani;
    return true;
}

/// Runs to the next wait or to the end. Nothing resumes anything but this loop, so that a work
/// within works takes no room on the stack of the process.
void Vlakno::Jdi() {
    while (!ramce_.empty() && ceka_ == nullptr) {
        const std::coroutine_handle<> co = ramce_.back().Co;
        co.resume();
        if (co.done()) ramce_.pop_back();
    }
}

/// From the innermost owner outwards, as far as they are gone. Their frames go when what awaits
/// them goes on, or with the whole work.
void Vlakno::UkonciOsirele(bool konec) {
    std::size_t nechat = ramce_.size();
    for (std::size_t i = ramce_.size(); i-- > 0;) {
        if (ramce_[i].Komu == nullptr) continue;
        if (!konec && !ramce_[i].Komu->Skoncil()) break;
        nechat = i;
    }
    ramce_.resize(nechat);
}

Zasobnik::Zasobnik(std::function<std::uint32_t()> ted, std::function<bool()> konec)
    : ted_(std::move(ted)), konec_(std::move(konec)) {}

Zasobnik::~Zasobnik() {
    Zrus();
}

bool Zasobnik::Uplynulo(const Cekani& cekani) const {
    if (konec_()) return true;
    if (cekani.dokud_ && cekani.dokud_()) return true;
    // The difference, not the times, is compared: the tick count may wrap meanwhile.
    return cekani.ms_ && ted_() - cekani.od_ >= *cekani.ms_;
}

void Zasobnik::Spust(Cinnost<> prace) {
    if (prace.JePrazdna()) return;
    auto nove = std::unique_ptr<Vlakno>(new Vlakno(*this, std::move(prace)));
    Vlakno& v = *nove;
    vlakna_.push_back(std::move(nove));
    const Cinnost<>& p = *v.prace_;
    p.ramec_.promise().Kdo = &v;
    v.Vnor(p.ramec_, p.komu_.get());
    Vykonej(v);
}

void Zasobnik::Vykonej(Vlakno& v) {
    v.Jdi();
    if (!v.ramce_.empty()) return;
    const auto kde = std::ranges::find(vlakna_, &v, &std::unique_ptr<Vlakno>::get);
    const std::unique_ptr<Vlakno> hotove = std::move(*kde);
    vlakna_.erase(kde);
    const std::exception_ptr chyba = hotove->prace_->ramec_.promise().Chyba;
    *hotove->prace_ = {};
    if (chyba) std::rethrow_exception(chyba);
}

Zasobnik::Krok Zasobnik::Pokracuj(std::size_t dno) {
    if (vlakna_.size() <= dno) return Krok::Nic;
    Vlakno& v = *vlakna_.back();
    if (v.ceka_ == nullptr || !Uplynulo(*v.ceka_)) return Krok::Nic;
    v.ceka_ = nullptr;
    v.UkonciOsirele(konec_());
    const std::size_t pred = vlakna_.size();
    Vykonej(v);
    return vlakna_.size() < pred ? Krok::Dobehl : Krok::Ceka;
}

std::optional<std::uint32_t> Zasobnik::Zbyva(std::size_t dno) const {
    if (vlakna_.size() <= dno || vlakna_.back()->ceka_ == nullptr) return std::nullopt;
    const Cekani& cekani = *vlakna_.back()->ceka_;
    if (Uplynulo(cekani)) return 0;
    if (!cekani.ms_) return std::nullopt;
    return *cekani.ms_ - (ted_() - cekani.od_);
}

bool Zasobnik::Ceka(const Majitel& komu, int nac) const {
    return std::ranges::any_of(vlakna_, [&](const auto& v) {
        if (v->ceka_ == nullptr || (nac != 0 && v->ceka_->nac_ != nac)) return false;
        return std::ranges::any_of(v->ramce_, [&](const auto& r) { return r.Komu == &komu; });
    });
}

void Zasobnik::Zrus() {
    for (std::size_t i = vlakna_.size(); i-- > 0;) {
        if (i >= vlakna_.size() || vlakna_[i]->ceka_ == nullptr) continue;
        const std::unique_ptr<Vlakno> zrusene = std::move(vlakna_[i]);
        vlakna_.erase(vlakna_.begin() + static_cast<std::ptrdiff_t>(i));
        zrusene->ceka_ = nullptr;
        *zrusene->prace_ = {};
    }
}

}  // namespace rysovna
