#include "platform/headless/HeadlessHost.h"

#include <algorithm>
#include <cairo.h>

#include "base/Chyba.h"
#include "platform/Bitmapa.h"
#include "platform/Cesta.h"
#include "platform/Malir.h"
#include "platform/Misto.h"

namespace rysovna {

namespace {

/// How long a modal form may stand with nothing planned before the script is taken for faulty.
constexpr std::uint32_t NEJDELE_MODALNE = 600'000;

}  // namespace

HeadlessHost::HeadlessHost() : Smycka(static_cast<Host&>(*this)) {
    Okna().PoVstupu([this](std::size_t pred) { Dobehni(pred); });
}

HeadlessHost::~HeadlessHost() = default;

void HeadlessHost::Naplanuj(std::uint32_t cas, std::function<void()> co) {
    scenar_.emplace(cas, std::move(co));
}

bool HeadlessHost::Prijmi() {
    bool neco = false;
    while (!scenar_.empty() && scenar_.begin()->first <= cas_) {
        // Taken out first: what it does may turn the loop itself.
        const auto udalost = std::move(scenar_.begin()->second);
        scenar_.erase(scenar_.begin());
        udalost();
        neco = true;
    }
    return neco;
}

/// The clock goes to what the script has next.
void HeadlessHost::Vyckej(std::uint32_t nejvyseMs) {
    std::uint32_t za = nejvyseMs;
    if (!scenar_.empty()) za = std::min(za, std::max(scenar_.begin()->first, cas_) - cas_);
    if (PriSpanku) PriSpanku(za);
    cas_ += za;
    modalne_ = Okna().JeModalni() && scenar_.empty() ? modalne_ + za : 0;
    if (modalne_ > NEJDELE_MODALNE) Selhani("Zprávu nikdo nezavřel");
}

void HeadlessHost::Cekej(std::uint32_t ms) {
    const std::size_t dno = Hloubka();
    const std::uint32_t konec = cas_ + ms;
    const auto zbyva = [&] { return static_cast<std::int32_t>(konec - cas_); };
    while (zbyva() > 0) Obrat(static_cast<std::uint32_t>(zbyva()), dno);
    Dobehni(dno);
}

void HeadlessHost::Prekresli() {
    ++Prekresleni;
    if (PriPrekresleni) PriPrekresleni();
}

Cinnost<Odpoved> HeadlessHost::MsgBox(std::string text, std::string titul, Styl styl) {
    Odpoved odpoved = styl == Styl::OtazkaAnoNe ? Odpoved::Ne : Odpoved::Ok;
    const std::size_t ktera = Zpravy.size();
    Zpravy.push_back({text, titul, styl, odpoved});
    if (SkutecneZpravy) {
        odpoved = co_await UkazZpravu(text, titul, styl);
    } else if (!odpovedi_.empty()) {
        odpoved = odpovedi_.front();
        odpovedi_.pop_front();
    }
    Zpravy[ktera].Odpovezeno = odpoved;
    co_return odpoved;
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
    Okna().MysDolu(x, y, LEVE, 0);
    Okna().MysNahoru(x, y, LEVE, 0);
}

void HeadlessHost::Snimek(const std::string& soubor, double meritko) {
    Bitmapa b(Zvetsi(NAVRH_SIRKA, meritko), Zvetsi(NAVRH_VYSKA, meritko), 0);
    Malir().Namaluj({b.Body.data(), b.Sirka, b.Vyska, b.Sirka}, Okna(), cas_);
    cairo_surface_t* png = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(b.Body.data()), CAIRO_FORMAT_RGB24, b.Sirka, b.Vyska,
        b.Sirka * static_cast<int>(sizeof(Pixel)));
    const cairo_status_t stav = cairo_surface_write_to_png(png, soubor.c_str());
    cairo_surface_destroy(png);
    if (stav != CAIRO_STATUS_SUCCESS) throw BehovaChyba("Nelze zapsat snímek", soubor);
}

}  // namespace rysovna
