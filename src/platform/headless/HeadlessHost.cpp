#include "platform/headless/HeadlessHost.h"

#include <algorithm>

#include "base/Chyba.h"
#include "platform/Cesta.h"
#include "platform/Malir.h"
#include "platform/ZpravaForm.h"

namespace rysovna {

namespace {

/// How long a modal form may stand with nothing planned before the script is taken for faulty.
constexpr std::uint32_t NEJDELE_MODALNE = 600'000;

}  // namespace

HeadlessHost::HeadlessHost() = default;

HeadlessHost::~HeadlessHost() = default;

void HeadlessHost::Naplanuj(std::uint32_t cas, std::function<void()> co) {
    scenar_.emplace(cas, std::move(co));
}

void HeadlessHost::DorucPrvni() {
    // Taken out first: what it does may pump events itself.
    const auto udalost = std::move(scenar_.begin()->second);
    scenar_.erase(scenar_.begin());
    udalost();
}

void HeadlessHost::Dorucit() {
    Okna().DorucOdlozene();
    while (!scenar_.empty() && scenar_.begin()->first <= cas_) DorucPrvni();
}

void HeadlessHost::Spi(std::uint32_t ms) {
    if (PriSpanku) PriSpanku(ms);
    if (!Okna().JeZavreno()) {
        cas_ += ms;
        return;
    }
    const std::uint32_t konec = cas_ + ms;
    while (!scenar_.empty() && scenar_.begin()->first <= konec) {
        cas_ = std::max(cas_, scenar_.begin()->first);
        DorucPrvni();
    }
    cas_ = std::max(cas_, konec);  // what the script did may have taken longer itself
}

void HeadlessHost::DoEvents(std::uint32_t nejvyseMs) {
    Dorucit();
    Okna().Casovace(cas_);
    std::uint32_t za = std::max(nejvyseMs, 1U);
    std::uint32_t casovac = 0;
    const bool maCasovac = Okna().PristiCasovac(cas_, casovac);
    if (maCasovac) za = std::min(za, casovac);
    if (!scenar_.empty()) za = std::min(za, std::max(scenar_.begin()->first, cas_) - cas_);
    cas_ += za;
    if (Okna().JeModalni() && scenar_.empty() && !maCasovac) {
        modalne_ += za;
        if (modalne_ > NEJDELE_MODALNE) Selhani("Zprávu nikdo nezavřel");
    } else {
        modalne_ = 0;
    }
    Dorucit();
    Okna().Casovace(cas_);
}

void HeadlessHost::Prekresli() {
    ++Prekresleni;
    if (PriPrekresleni) PriPrekresleni();
}

Odpoved HeadlessHost::MsgBox(const std::string& text, const std::string& titul, Styl styl) {
    Odpoved odpoved = styl == Styl::OtazkaAnoNe ? Odpoved::Ne : Odpoved::Ok;
    const std::size_t ktera = Zpravy.size();
    Zpravy.push_back({text, titul, styl, odpoved});
    if (SkutecneZpravy) {
        odpoved = UkazZpravu(*this, text, titul, styl);
    } else if (!odpovedi_.empty()) {
        odpoved = odpovedi_.front();
        odpovedi_.pop_front();
    }
    Zpravy[ktera].Odpovezeno = odpoved;
    return odpoved;
}

void HeadlessHost::SndPlaySound(std::string_view cesta) {
    Zvuky.push_back({cas_, std::string(cesta)});
}

int HeadlessHost::ChangeDisplaySettings(const RezimObrazovky& rezim) {
    Rezimy.push_back(rezim);
    if (VysledekRezimu == 0) Rezim = rezim;
    return VysledekRezimu;
}

std::filesystem::path HeadlessHost::SlozkaUctu(const char* jmeno) const {
    return SlozkaSystemu.empty() ? std::filesystem::path() : NativniCesta(SlozkaSystemu) / jmeno;
}

std::string HeadlessHost::Overeni(const std::string& neni) {
    if (!neni.empty()) throw BehovaChyba(neni, "headless");
    return "bez obrazovky a zvuku";
}

void HeadlessHost::Stiskni(double x, double y) {
    Okna().MysDolu(x, y, 1, 0);
    Okna().MysNahoru(x, y, 1, 0);
}

void HeadlessHost::Snimek(const std::string& soubor, double meritko) {
    UlozSnimek(Okna(), cas_, soubor, meritko);
}

}  // namespace rysovna
