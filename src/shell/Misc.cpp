#include "shell/Misc.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "platform/Form.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Surface.h"
#include "shell/Ini.h"
#include "shell/Soubory.h"

namespace rysovna {
namespace {

constexpr std::string_view SEKCE = "RYSOVNA1";
constexpr std::string_view NENI_KLIC = "Chyba";
constexpr int ULOH = 20;

constexpr const char* CHYBI_INI = "Nelze nalézt soubor RYSOVNA.INI. Nainstalujte aplikaci znovu.";
constexpr const char* CHYBI_DATA =
    "Nelze nalézt soubory se zdroji dat. Nainstalujte aplikaci znovu.";
constexpr const char* NELZE_PREPNOUT =
    "Grafická karta nepodporuje okamžité přepnutí rozlišení obrazovky. "
    "Aplikace proto nepoběží přes celou obrazovku.";
constexpr const char* NELZE_OBNOVIT =
    "Nastala chyba při obnovení původního nastavení obrazovky. Změňte nastavení manuálně.";

constexpr RezimObrazovky REZIM_HRY{.Sirka = 640, .Vyska = 480, .Barvy = 16};
constexpr double NAVRHOVYCH_TWIPU = 15;  // twips a pixel at which the screens were laid out
constexpr float VELIKOST_PISMA = 10;     // points

constexpr int SMAZANYCH_RADKU = 50;

/// With one final backslash, whichever separator or none it had.
std::string SeZpetnymLomitkem(std::string cesta) {
    if (cesta.ends_with('/')) cesta.pop_back();
    if (!cesta.ends_with('\\')) cesta += '\\';
    return cesta;
}

bool JeAbsolutni(std::string_view cesta) {
    const bool odKorene = cesta.starts_with('\\') || cesta.starts_with('/');
    const bool sDiskem = cesta.size() >= 2 && cesta[1] == ':' &&
                         std::isalpha(static_cast<unsigned char>(cesta[0])) != 0;
    return odKorene || sDiskem;
}

std::string ObsahIni() {
    std::ifstream proud(NativniCesta(AdresarSystemu + "Rysovna.ini"), std::ios::binary);
    return {std::istreambuf_iterator<char>(proud), std::istreambuf_iterator<char>()};
}

/// A relative path counts from the folder of the configuration, so that a copy on a stick runs
/// wherever it is plugged in. Empty if the key is missing.
std::string CestaZIni(std::string_view obsah, std::string_view klic) {
    const std::string cesta = SeZpetnymLomitkem(HodnotaIni(obsah, SEKCE, klic, NENI_KLIC));
    if (cesta == std::string(NENI_KLIC) + "\\") return {};
    return JeAbsolutni(cesta) ? cesta : AdresarSystemu + cesta;
}

bool JeVDatech(const std::string& jmeno) {
    std::error_code chyba;
    return std::filesystem::is_regular_file(NativniCesta(CestaHD + jmeno), chyba);
}

bool DataUplna() {
    for (int i = 1; i <= ULOH; ++i) {
        if (!JeVDatech(DveCislice(i) + ".dat") || !JeVDatech(DveCislice(i) + ".res")) return false;
    }
    return JeVDatech("Vysledky.dat") && JeVDatech("Znamky.dat") && JeVDatech("Errors.dat");
}

/// Whether the object has a place that is scaled: a line and a timer have none.
bool MaRozmery(const Ovladac& o) {
    return o.Druh != Ovladac::Typ::Line && o.Druh != Ovladac::Typ::Timer;
}

}  // namespace

bool NactiKonfiguraci() {
    Host& stroj = Stroj();
    std::string adresar = stroj.WindowsDirectory();
    std::erase(adresar, '\0');
    AdresarSystemu = SeZpetnymLomitkem(std::move(adresar));
    DiskSystemu = AdresarSystemu.substr(0, 3);

    const std::string ini = ObsahIni();
    CestaCD = CestaZIni(ini, "CD");
    if (!CestaCD.empty()) NastavSlozkuPisem(CestaCD + "Fonts");
    CestaHD = CestaZIni(ini, "HD");
    if (CestaCD.empty() || CestaHD.empty()) {
        stroj.MsgBox(CHYBI_INI, "Chyba", Styl::Stop);
        return false;
    }
    if (!DataUplna()) {
        stroj.MsgBox(CHYBI_DATA, "Chyba", Styl::Stop);
        return false;
    }
    NactiZnamky(CestaHD + "Znamky.dat");
    Generator.Zasej(stroj.Seminko());
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

void Cekej(std::uint32_t ms) {
    Host& stroj = Stroj();
    const std::uint32_t termin = stroj.TickCount() + ms;
    // The difference, not the times, is compared: the tick count may wrap meanwhile.
    const auto zbyva = [&] { return static_cast<std::int32_t>(termin - stroj.TickCount()); };
    while (zbyva() > 0 && !stroj.Okna().JeKonec()) {
        stroj.DoEvents(static_cast<std::uint32_t>(zbyva()));
    }
}

double Meritko() {
    return Stroj().TwipsPerPixel() / NAVRHOVYCH_TWIPU;
}

void PrizpusobForm(Form& form) {
    const double meritko = Meritko();
    for (Ovladac* o : form.Ovladace()) {
        if (MaRozmery(*o)) {
            for (int* rozmer : {&o->Left, &o->Top, &o->Width, &o->Height}) {
                *rozmer = Zaokrouhli(*rozmer * meritko);
            }
        }
        if (o->MaPismo()) o->Font.Velikost = static_cast<float>(meritko) * VELIKOST_PISMA;
    }
}

void SmazTabulky() {
    for (int i = 1; i <= SMAZANYCH_RADKU; ++i) {
        Priklady[i] = {};
        ChybneKroky[i] = {};
        SmazRadekUtvaru(i);
        SmazRadekTrojic(i);
    }
    for (int i = 1; i <= decltype(ZadanePrvky)::POSLEDNI; ++i) ZadanePrvky[i] = {};
}

void VychoziRelace() {
    for (std::string* text :
         {&AdresarSystemu, &DiskSystemu, &CestaCD, &CestaHD, &NazevHry, &TypUlohy, &JmenoHrace}) {
        text->clear();
    }
    for (int* cislo : {&PuvodniSirka, &PuvodniVyska, &PuvodniBarvy, &SoucetZapornychBodu,
                       &PocetChybnychKroku, &PosunX, &PosunY, &VybranyUtvar, &KonstrukceZahajena,
                       &PocetPrikladu, &PocetUtvaru, &PocetTrojic}) {
        *cislo = 0;
    }
    for (std::uint8_t* bajt : {&CisloUlohy, &PocetPrikladuSerie, &KladneBody, &ZaporneBody}) {
        *bajt = 0;
    }
    ZnamkyTab.Smaz();
    Priklady.Smaz();
    ZadanePrvky.Smaz();
    ChybneKroky.Smaz();
    Utvary.Smaz();
    Trojice_tab.Smaz();
    AktivniForm.reset();
    PokracujObrazek = {};
    Generator = {};
}

}  // namespace rysovna
