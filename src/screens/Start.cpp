#include "screens/Start.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>

#include "base/Cisla.h"
#include "platform/Cesta.h"
#include "platform/Pisma.h"
#include "screens/IntroForm.h"
#include "screens/PozadiForm.h"
#include "screens/PrehravaniForm.h"
#include "screens/SelectForm.h"
#include "screens/SlovaObrazovek.h"
#include "store/JmenaSouboru.h"
#include "store/Nastaveni.h"
#include "store/Soubory.h"
#include "store/TextPokusu.h"

namespace rysovna {
namespace {

constexpr const char* CHYBI_INI = "Nelze nalézt soubor RYSOVNA.INI. Nainstalujte aplikaci znovu.";
constexpr const char* CHYBI_DATA =
    "Nelze nalézt soubory se zdroji dat. Nainstalujte aplikaci znovu.";
constexpr const char* NELZE_PREPNOUT =
    "Grafická karta nepodporuje okamžité přepnutí rozlišení obrazovky. "
    "Aplikace proto nepoběží přes celou obrazovku.";
constexpr const char* NELZE_OBNOVIT =
    "Nastala chyba při obnovení původního nastavení obrazovky. Změňte nastavení manuálně.";

constexpr int STAV_NESPUSTENO = 1;  // exit status: the start-up was refused

constexpr const char* SLOZKA_PREDVEDENI = "Predvedeni";  // among the assets

void VypisChybejici(const std::string& co) {
    std::fprintf(stderr, "Rysovna: %s\n", co.c_str());
}

bool JeTu(Sezeni& s, const std::string& cesta) {
    if (s.Disk().JeSoubor(NativniCesta(cesta))) return true;
    VypisChybejici("chybí soubor " + NativniCesta(cesta).string());
    return false;
}

/// Another program that starts now may be quicker: the look that follows will tell.
void ZalozPrazdny(Disk& disk, const std::filesystem::path& soubor) {
    try {
        static_cast<void>(disk.NovySoubor(soubor));
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::UzJe) throw;
    }
}

/// Makes the files of results that are not there; the account's own folder too.
bool ZalozVysledky(Sezeni& s) {
    Disk& disk = s.Disk();
    try {
        if (s.CestaVysledku.empty()) throw ChybaDisku(Pricina::Neni, "domovská složka účtu");
        if (s.CestaVysledku == SlozkaSLomitkem(s.Stroj.SlozkaDat()))
            disk.ZalozSlozku(s.Stroj.SlozkaDat());
        for (const std::string& jmeno : JmenaVysledku()) {
            const std::filesystem::path soubor = NativniCesta(s.CestaVysledku + jmeno);
            if (!disk.JeSoubor(soubor)) ZalozPrazdny(disk, soubor);
        }
    } catch (const ChybaDisku& chyba) {
        VypisChybejici(std::string("nelze založit ") + chyba.what());
        return false;
    }
    return true;
}

/// Where things are, by Rysovna.ini; oddelene: results have a folder of their own.
std::string NactiMista(Sezeni& s, bool& oddelene) {
    Host& stroj = s.Stroj;
    std::string adresar = stroj.WindowsDirectory();
    std::erase(adresar, '\0');
    s.AdresarSystemu = SeZpetnymLomitkem(std::move(adresar));
    s.DiskSystemu = s.AdresarSystemu.substr(0, 3);

    const Nastaveni nastaveni = CtiNastaveni(stroj.Disk(), s.AdresarSystemu, stroj.SlozkaDat());
    s.CestaCD = nastaveni.CD;
    s.CestaHD = nastaveni.HD;
    s.CestaVysledku = nastaveni.Vysledky;
    oddelene = nastaveni.Oddelene;
    s.RadyUkazovat = nastaveni.Rady;
    s.PokusyUkladat = nastaveni.Pokusy;
    if (nastaveni.Seminko) stroj.VychoziSeminko(*nastaveni.Seminko);
    s.ZapomenVysledky();
    if (!s.CestaCD.empty()) NastavSlozkuPisem(s.CestaCD + "Fonts");
    if (s.CestaCD.empty() || s.CestaHD.empty()) {
        VypisChybejici("v souboru " + NativniCesta(s.AdresarSystemu + JMENO_INI).string() +
                       " není klíč " + (s.CestaCD.empty() ? "CD" : "HD"));
        return CHYBI_INI;
    }
    return {};
}

/// Reads the configuration and the attempt, and begins to show it. soubor: gives its path by then.
std::string ZacniUkazovat(Sezeni& s, const std::function<std::filesystem::path()>& soubor,
                          Tempo tempo, const std::function<void(Pokus&)>& uprav = {}) {
    bool oddelene = false;
    if (std::string chybi = NactiMista(s, oddelene); !chybi.empty()) return chybi;
    const std::filesystem::path odkud = soubor();
    const std::string kde = "Soubor " + odkud.string() + ": ";
    std::string text;
    try {
        text = s.Disk().Otevri(odkud, Disk::Jak::Cteni)->Cti(0, NEJVETSI_POKUS);
    } catch (const ChybaDisku& chyba) {
        return kde + "nejde přečíst (" + std::string(TextPriciny(chyba.Proc())) + ").";
    }
    PrectenyPokus precteny = CtiPokus(text);
    if (!precteny.Co) return kde + precteny.Vada;
    if (uprav) uprav(*precteny.Co);
    s.Okna().Nacti<SelectForm>(s);
    const std::string proc =
        Prehraj(s, std::move(*precteny.Co), tempo, [&okna = s.Okna()] { okna.Konec(); });
    return proc.empty() ? proc : kde + proc;
}

}  // namespace

// ---- The start-up, a work of the menu's ------------------------------------------------------

Cinnost<> SelectForm::Start() {
    const std::string chybi = NactiKonfiguraci(s_);
    if (!chybi.empty()) {
        co_await s_.Stroj.MsgBox(chybi, "Chyba", Styl::Stop);
        s_.Okna().Konec(STAV_NESPUSTENO);
        co_return;
    }
    std::string zprava;
    {
        const Obrazovky::Zavreni zavreni(s_.Okna());
        zprava = co_await s_.Vysledky().ZkusCekajici();
        if (s_.PokusyUkladat)
            PridejOdstavec(zprava, co_await s_.Pokusy().ZkusCekajici(s_.Stroj.Nyni()));
        // What came while the lock was waited for is not for the message.
        co_await Cekani::SVstupem(0);
    }
    if (!zprava.empty()) co_await s_.Stroj.MsgBox(zprava, "Upozornění", Styl::Ok);
    co_await Cekani(100);
    co_await PrepniObrazovku(s_);
    UkazPozadi(s_);
    const auto titul = s_.Okna().Nacti<IntroForm>(s_);
    s_.Okna().Show(*titul);
    co_await Cekani(100);
    titul->Timer1.Enabled = true;

    Priprav();
}

void Zacni(Sezeni& s) {
    const auto menu = s.Okna().Nacti<SelectForm>(s);
    s.Okna().Spust(*menu, menu->Start());
}

std::string NactiKonfiguraci(Sezeni& s) {
    bool oddelene = false;
    if (std::string chybi = NactiMista(s, oddelene); !chybi.empty()) return chybi;
    const bool zalozeno = !oddelene || ZalozVysledky(s);
    const auto jeVDatech = [&s](const std::string& jmeno) { return JeTu(s, s.CestaHD + jmeno); };
    const auto jeVeVysledcich = [&s](const std::string& jmeno) {
        return JeTu(s, s.CestaVysledku + jmeno);
    };
    if (!zalozeno || !std::ranges::all_of(JmenaDat(), jeVDatech) ||
        !std::ranges::all_of(JmenaVysledku(), jeVeVysledcich))
        return CHYBI_DATA;
    NactiZnamky(s, s.Disk(), s.CestaHD + JMENO_ZNAMEK);
    s.Vety = [&s](int cislo) { return CtiVety(s.Disk(), s.CestaHD + JMENO_VET, cislo); };
    s.Generator.Zasej(s.Stroj.Seminko());
    return {};
}

std::string ZacniPrehravani(Sezeni& s, const std::filesystem::path& soubor) {
    return ZacniUkazovat(
        s, [&] { return soubor; }, Tempo::Zaka);
}

std::string ZacniPredvedeni(Sezeni& s, int uloha, std::uint32_t seminko) {
    const auto soubor = [&] {
        return NativniCesta(s.CestaCD + SLOZKA_PREDVEDENI + "\\" + DveCislice(uloha) +
                            std::string(PRIPONA_POKUSU));
    };
    return ZacniUkazovat(s, soubor, Tempo::Vyklad, [seminko](Pokus& p) {
        auto& priklady = p.Priklady;
        if (!priklady.empty()) priklady = {priklady[seminko % priklady.size()]};
        p.PrikladuSerie = 1;
    });
}

Cinnost<Odpoved> PrepniObrazovku(Sezeni& s) {
    Host& stroj = s.Stroj;
    const RezimObrazovky puvodni = stroj.GetDeviceCaps();
    s.PuvodniSirka = puvodni.Sirka;
    s.PuvodniVyska = puvodni.Vyska;
    s.PuvodniBarvy = puvodni.Barvy;
    if (stroj.ChangeDisplaySettings(REZIM_HRY) == 0) return {};
    return stroj.MsgBox(NELZE_PREPNOUT, "Upozornění", Styl::Ok);
}

Cinnost<Odpoved> ObnovObrazovku(Sezeni& s) {
    Host& stroj = s.Stroj;
    if (stroj.ChangeDisplaySettings({s.PuvodniSirka, s.PuvodniVyska, s.PuvodniBarvy}) == 0)
        return {};
    return stroj.MsgBox(NELZE_OBNOVIT, "Systémová chyba", Styl::Ok);
}

}  // namespace rysovna
