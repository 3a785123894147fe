#include "platform/web/WebHost.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <emscripten.h>
#include <fstream>
#include <iterator>
#include <random>
#include <utility>

#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "platform/Cesta.h"
#include "platform/ObrazekData.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "platform/web/Stranka.h"

namespace rysovna {
namespace {

/// Turns of one call: enough for all that is ready, few enough that the page answers.
constexpr int NEJVIC_OBRATU = 100;

enum class Druh { Dolu, Pohyb, Nahoru };

}  // namespace

WebHost::WebHost(std::optional<std::uint32_t> seminko)
    : Smycka(static_cast<Host&>(*this)), seminko_(seminko) {
    // Bitmaps would be three quarters of what a page has to fetch.
    PouzijJenTvary();
}

WebHost::~WebHost() = default;

bool WebHost::VydejDokument(const std::string& jmeno, const std::string& obsah) {
    stranka_stahni(jmeno.c_str(), obsah.data(), obsah.size());
    return true;
}

void WebHost::Rozmer(int sirka, int vyska) {
    sirka_ = std::max(sirka, 1);
    vyska_ = std::max(vyska, 1);
    umisteni_ = Umisteni::Vejdi(sirka_, vyska_);
    const auto bodu = static_cast<std::size_t>(sirka_) * static_cast<std::size_t>(vyska_);
    body_.assign(bodu, 0);
    stranka_.assign(bodu, 0);
    pise_.reset();
    malir_.Znovu();
}

Bod WebHost::NaNavrh(double x, double y) const {
    return {static_cast<int>(std::floor(umisteni_.NavrhX(x))),
            static_cast<int>(std::floor(umisteni_.NavrhY(y)))};
}

bool WebHost::Uvnitr(Bod b) const {
    return Obdelnik{0, 0, NAVRH_SIRKA, NAVRH_VYSKA}.Obsahuje(b.X, b.Y);
}

void WebHost::Mys(int druh, double x, double y, int tlacitko, int shift, std::uint32_t cas) {
    const Bod b = NaNavrh(x, y);
    vstupy_.emplace_back([this, b, druh, tlacitko, shift, cas] {
        switch (static_cast<Druh>(druh)) {
            case Druh::Dolu:
                // Black beside the picture is nobody's.
                if (!Uvnitr(b)) return Okna().Navrat();
                return Okna().MysDolu(b.X, b.Y, tlacitko, shift, {cas, cas});
            case Druh::Pohyb:
                return Okna().MysPohyb(b.X, b.Y, tlacitko, shift);
            case Druh::Nahoru:
                return Okna().MysNahoru(b.X, b.Y, tlacitko, shift);
        }
    });
}

void WebHost::Prst(int druh, double x, double y, std::uint32_t cas) {
    const Bod b = NaNavrh(x, y);
    vstupy_.emplace_back([this, b, druh, cas] {
        switch (static_cast<Druh>(druh)) {
            case Druh::Dolu:
                if (!Uvnitr(b)) return Okna().Navrat();
                return Okna().PrstDolu(b.X, b.Y, cas);
            case Druh::Pohyb:
                return Okna().PrstPohyb(b.X, b.Y, cas);
            case Druh::Nahoru:
                return Okna().PrstNahoru(b.X, b.Y, cas);
        }
    });
}

void WebHost::Klavesa(std::string jmeno, int shift, bool opakovana) {
    vstupy_.emplace_back([this, jmeno = std::move(jmeno), shift, opakovana] {
        Okna().Klavesa(jmeno, shift, opakovana);
    });
}

void WebHost::KlavesaNahoru(std::string jmeno) {
    vstupy_.emplace_back([this, jmeno = std::move(jmeno)] { Okna().KlavesaNahoru(jmeno); });
}

void WebHost::Pis(std::string utf8) {
    vstupy_.emplace_back([this, utf8 = std::move(utf8)] { Okna().Text(utf8); });
}

void WebHost::Vloz(std::string text) {
    vstupy_.emplace_back([this, text = std::move(text)] {
        schranka_ = text;
        Okna().Klavesa("v", CTRL);
    });
}

void WebHost::Navrat() {
    vstupy_.emplace_back([this] { Okna().Navrat(); });
}

std::uint32_t WebHost::Tah() {
    for (int i = 0; i < NEJVIC_OBRATU; ++i) {
        pristeMs_ = 0;
        Obrat(BEZ_LHUTY);
        if (pristeMs_ > 0 || Okna().JeKonec()) break;
    }
    return pristeMs_;
}

double WebHost::PrekresliVse() {
    malir_.Znovu();
    const double od = emscripten_get_now();
    Prekresli();
    return emscripten_get_now() - od;
}

std::uint32_t WebHost::TickCount() {
    return static_cast<std::uint32_t>(static_cast<std::uint64_t>(emscripten_get_now()));
}

bool WebHost::Prijmi() {
    if (vstupy_.empty()) return false;
    while (!vstupy_.empty()) {
        const auto vstup = std::move(vstupy_.front());
        vstupy_.pop_front();
        vstup();
    }
    return true;
}

void WebHost::Vyckej(std::uint32_t nejvyseMs) {
    pristeMs_ = std::min(nejvyseMs, Okna().DoBliknuti(TickCount()).value_or(nejvyseMs));
}

void WebHost::Ukaz() {
    SrovnejPsani();
    if (const Kurzor chce = Okna().KurzorMysi(); chce != kurzor_) {
        kurzor_ = chce;
        stranka_kurzor(static_cast<int>(chce));
    }
    Prekresli();
    Rekni();
}

/// The page wants red first and a full cover.
void WebHost::Prekresli() {
    if (body_.empty() || Okna().Viditelne().empty()) return;
    const std::vector<Obdelnik> zmeny =
        malir_.Namaluj({body_.data(), sirka_, vyska_, sirka_}, Okna(), TickCount());
    for (const Obdelnik& o : zmeny) {
        for (int y = o.Top; y < o.Top + o.Height; ++y) {
            const auto zacatek = static_cast<std::size_t>(y) * static_cast<std::size_t>(sirka_) +
                                 static_cast<std::size_t>(o.Left);
            const std::uint32_t* odkud = body_.data() + zacatek;
            std::uint32_t* kam = stranka_.data() + zacatek;
            for (int x = 0; x < o.Width; ++x) {
                const std::uint32_t b = odkud[x];
                kam[x] = 0xFF000000U | (b & 0xFF00U) | ((b & 0xFFU) << 16) | ((b >> 16) & 0xFFU);
            }
        }
        stranka_ukaz(stranka_.data(), sirka_, vyska_, o.Left, o.Top, o.Width, o.Height);
    }
}

Cinnost<Odpoved> WebHost::MsgBox(std::string text, std::string titul, Styl styl) {
    if (!MamePisma()) {
        stranka_zprava(titul.c_str(), text.c_str());
        co_return styl == Styl::OtazkaAnoNe ? Odpoved::Ne : Odpoved::Ok;
    }
    co_return co_await UkazZpravu(text, titul, styl);
}

void WebHost::SndPlaySound(std::string_view cesta) {
    const std::filesystem::path soubor = NativniCesta(cesta);
    std::ifstream vstup(soubor, std::ios::binary);
    const std::string data(std::istreambuf_iterator<char>(vstup), {});
    if (!data.empty()) stranka_zvuk(soubor.c_str(), data.data(), data.size());
}

RezimObrazovky WebHost::GetDeviceCaps() {
    return {stranka_sirka_obrazovky(), stranka_vyska_obrazovky(), 32};
}

std::string WebHost::OverObrazovku() {
    return std::to_string(sirka_) + " × " + std::to_string(vyska_) + " na stránce";
}

std::string WebHost::OverZvuk() {
    if (stranka_neni_zvuk() != 0) throw BehovaChyba("Prohlížeč zvuk nepřehraje", "WebAudio");
    return "přehraje jej prohlížeč";
}

std::uint32_t WebHost::Seminko() {
    return seminko_ ? (*seminko_)++ : std::random_device{}();
}

DatumACas WebHost::Nyni() {
    const std::time_t ted = std::time(nullptr);
    std::tm mistni{};
    localtime_r(&ted, &mistni);
    return {mistni.tm_year + 1900, mistni.tm_mon + 1, mistni.tm_mday, mistni.tm_hour,
            mistni.tm_min};
}

void WebHost::SrovnejPsani() {
    const Obdelnik kde = Okna().KdeSePise();
    if (pise_ == kde) return;
    pise_ = kde;
    // The page's field stays; where nothing is typed it lies far outside.
    const bool ano = !JePrazdny(kde);
    const Bod roh = ano ? Bod{kde.Left, kde.Top} : BEZ_BODU;
    stranka_psani(ano ? 1 : 0, static_cast<int>(umisteni_.X + roh.X * umisteni_.S),
                  static_cast<int>(umisteni_.Y + roh.Y * umisteni_.S),
                  static_cast<int>(kde.Height * umisteni_.S));
}

void WebHost::Rekni() {
    const auto vpredu = Okna().Vpredu();
    std::string text = vpredu == nullptr ? std::string() : vpredu->CoSeRika();
    if (text == receno_) return;
    receno_ = std::move(text);
    stranka_rekni(receno_.c_str());
}

}  // namespace rysovna
