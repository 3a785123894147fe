#include "screens/Start.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>

#include "platform/Cesta.h"
#include "platform/Host.h"
#include "platform/Surface.h"
#include "rules/Chyby.h"
#include "rules/Misc.h"
#include "screens/Spolecne.h"
#include "store/Cesty.h"
#include "store/Soubory.h"
#include "store/Ukladani.h"

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

constexpr RezimObrazovky REZIM_HRY{.Sirka = 640, .Vyska = 480, .Barvy = 16};

void VypisChybejici(const std::string& co) {
    std::cerr << "Rysovna: " << co << '\n';
}

bool JeTu(const std::string& cesta) {
    if (Stroj().Disk().JeSoubor(NativniCesta(cesta))) return true;
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
bool ZalozVysledky() {
    Disk& disk = Stroj().Disk();
    try {
        if (CestaVysledku.empty()) throw ChybaDisku(Pricina::Neni, "domovská složka účtu");
        if (CestaVysledku == SlozkaSLomitkem(Stroj().SlozkaDat()))
            disk.ZalozSlozku(Stroj().SlozkaDat());
        for (const std::string& jmeno : JmenaVysledku()) {
            const std::filesystem::path soubor = NativniCesta(CestaVysledku + jmeno);
            if (!disk.JeSoubor(soubor)) ZalozPrazdny(disk, soubor);
        }
    } catch (const ChybaDisku& chyba) {
        VypisChybejici(std::string("nelze založit ") + chyba.what());
        return false;
    }
    return true;
}

}  // namespace

bool NactiKonfiguraci() {
    Host& stroj = Stroj();
    std::string adresar = stroj.WindowsDirectory();
    std::erase(adresar, '\0');
    AdresarSystemu = SeZpetnymLomitkem(std::move(adresar));
    DiskSystemu = AdresarSystemu.substr(0, 3);

    const Cesty cesty = CtiCesty(stroj.Disk(), AdresarSystemu, stroj.SlozkaDat());
    CestaCD = cesty.CD;
    CestaHD = cesty.HD;
    CestaVysledku = cesty.Vysledky;
    RadyUkazovat = cesty.Rady;
    UkladaniVysledku.reset();
    if (!CestaCD.empty()) NastavSlozkuPisem(CestaCD + "Fonts");
    if (CestaCD.empty() || CestaHD.empty()) {
        VypisChybejici("v souboru " +
                       NativniCesta(AdresarSystemu + std::string(JMENO_INI)).string() +
                       " není klíč " + (CestaCD.empty() ? "CD" : "HD"));
        stroj.MsgBox(CHYBI_INI, "Chyba", Styl::Stop);
        return false;
    }
    const bool zalozeno = !cesty.Oddelene || ZalozVysledky();
    const auto jeVDatech = [](const std::string& jmeno) { return JeTu(CestaHD + jmeno); };
    const auto jeVeVysledcich = [](const std::string& s) { return JeTu(CestaVysledku + s); };
    if (!zalozeno || !std::ranges::all_of(JmenaDat(), jeVDatech) ||
        !std::ranges::all_of(JmenaVysledku(), jeVeVysledcich)) {
        stroj.MsgBox(CHYBI_DATA, "Chyba", Styl::Stop);
        return false;
    }
    NactiZnamky(stroj.Disk(), CestaHD + "Znamky.dat");
    NastavVety([](int cislo) { return CtiVety(Stroj().Disk(), CestaHD + "Errors.dat", cislo); });
    Generator.Zasej(stroj.Seminko());
    const std::string zprava = Vysledky().ZkusCekajici();
    if (!zprava.empty()) stroj.MsgBox(zprava, "Upozornění", Styl::Ok);
    return true;
}

void PrepniObrazovku() {
    Host& stroj = Stroj();
    const RezimObrazovky puvodni = stroj.GetDeviceCaps();
    PuvodniSirka = puvodni.Sirka;
    PuvodniVyska = puvodni.Vyska;
    PuvodniBarvy = puvodni.Barvy;
    if (stroj.ChangeDisplaySettings(REZIM_HRY) != 0) {
        stroj.MsgBox(NELZE_PREPNOUT, "Upozornění", Styl::Ok);
    }
    UkazPozadi();
}

void ObnovObrazovku() {
    Host& stroj = Stroj();
    if (stroj.ChangeDisplaySettings({PuvodniSirka, PuvodniVyska, PuvodniBarvy}) != 0) {
        stroj.MsgBox(NELZE_OBNOVIT, "Systémová chyba", Styl::Ok);
    }
}

void VychoziRelace() {
    VychoziPromenne();
    UkladaniVysledku.reset();
    AktivniForm.reset();
    PokracujObrazek = {};
}

}  // namespace rysovna
