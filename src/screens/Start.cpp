#include "screens/Start.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/Cesta.h"
#include "platform/Surface.h"
#include "screens/SelectForm.h"
#include "store/Cesty.h"
#include "store/Soubory.h"

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

}  // namespace

void Zacni(Sezeni& s) {
    const auto menu = s.Okna().Nacti<SelectForm>(s);
    s.Okna().Spust(*menu, menu->Start());
}

std::string NactiKonfiguraci(Sezeni& s) {
    Host& stroj = s.Stroj;
    std::string adresar = stroj.WindowsDirectory();
    std::erase(adresar, '\0');
    s.AdresarSystemu = SeZpetnymLomitkem(std::move(adresar));
    s.DiskSystemu = s.AdresarSystemu.substr(0, 3);

    const Cesty cesty = CtiCesty(stroj.Disk(), s.AdresarSystemu, stroj.SlozkaDat());
    s.CestaCD = cesty.CD;
    s.CestaHD = cesty.HD;
    s.CestaVysledku = cesty.Vysledky;
    s.RadyUkazovat = cesty.Rady;
    s.PokusyUkladat = cesty.Pokusy;
    if (cesty.Seminko) stroj.VychoziSeminko(*cesty.Seminko);
    s.ZapomenVysledky();
    if (!s.CestaCD.empty()) NastavSlozkuPisem(s.CestaCD + "Fonts");
    if (s.CestaCD.empty() || s.CestaHD.empty()) {
        VypisChybejici("v souboru " +
                       NativniCesta(s.AdresarSystemu + std::string(JMENO_INI)).string() +
                       " není klíč " + (s.CestaCD.empty() ? "CD" : "HD"));
        return CHYBI_INI;
    }
    const bool zalozeno = !cesty.Oddelene || ZalozVysledky(s);
    const auto jeVDatech = [&s](const std::string& jmeno) { return JeTu(s, s.CestaHD + jmeno); };
    const auto jeVeVysledcich = [&s](const std::string& jmeno) {
        return JeTu(s, s.CestaVysledku + jmeno);
    };
    if (!zalozeno || !std::ranges::all_of(JmenaDat(), jeVDatech) ||
        !std::ranges::all_of(JmenaVysledku(), jeVeVysledcich))
        return CHYBI_DATA;
    NactiZnamky(s, stroj.Disk(), s.CestaHD + "Znamky.dat");
    s.Vety = [&s](int cislo) { return CtiVety(s.Disk(), s.CestaHD + "Errors.dat", cislo); };
    s.Generator.Zasej(stroj.Seminko());
    return {};
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
