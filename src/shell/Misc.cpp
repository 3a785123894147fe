#include "shell/Misc.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
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
#include "shell/Ukladani.h"

namespace rysovna {
namespace {

constexpr std::string_view SEKCE = "RYSOVNA1";
constexpr std::string_view NENI_KLIC = "Chyba";
constexpr std::string_view KLIC_VYSLEDKU = "VYSLEDKY";
constexpr std::string_view UCET = "ucet";
constexpr std::string_view KLIC_RAD = "Rady";
constexpr std::string_view BEZ_RAD = "ne";
constexpr const char* JMENO_INI = "Rysovna.ini";
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

/// A real folder in the spelling of the program's paths.
std::string SlozkaSLomitkem(const std::filesystem::path& slozka) {
    return slozka.empty() ? std::string() : SeZpetnymLomitkem(slozka.string());
}

bool JeAbsolutni(std::string_view cesta) {
    const bool odKorene = cesta.starts_with('\\') || cesta.starts_with('/');
    const bool sDiskem = cesta.size() >= 2 && cesta[1] == ':' &&
                         std::isalpha(static_cast<unsigned char>(cesta[0])) != 0;
    return odKorene || sDiskem;
}

/// A value of the configuration as a folder. A relative path counts from the folder of the
/// configuration, so that a copy on a stick runs wherever it is plugged in. Empty if the key is
/// missing.
std::string CestaZIni(std::string_view obsah, std::string_view klic, const std::string& adresar) {
    const std::string cesta = SeZpetnymLomitkem(HodnotaIni(obsah, SEKCE, klic, NENI_KLIC));
    if (cesta == std::string(NENI_KLIC) + "\\") return {};
    return JeAbsolutni(cesta) ? cesta : adresar + cesta;
}

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

/// Whether the object has a place that is scaled: a line and a timer have none.
bool MaRozmery(const Ovladac& o) {
    return o.Druh != Ovladac::Typ::Line && o.Druh != Ovladac::Typ::Timer;
}

}  // namespace

Cesty CtiCesty(const std::string& slozka, const std::filesystem::path& slozkaUctu) {
    const std::string adresar = SeZpetnymLomitkem(slozka);
    std::ifstream proud(NativniCesta(adresar + JMENO_INI), std::ios::binary);
    const std::string obsah{std::istreambuf_iterator<char>(proud),
                            std::istreambuf_iterator<char>()};
    Cesty cesty;
    cesty.CD = CestaZIni(obsah, "CD", adresar);
    cesty.HD = CestaZIni(obsah, "HD", adresar);
    const std::string kam = HodnotaIni(obsah, SEKCE, KLIC_VYSLEDKU, NENI_KLIC);
    cesty.Oddelene = kam != NENI_KLIC;
    cesty.Vysledky = cesty.HD;
    if (kam == UCET) {
        cesty.Vysledky = SlozkaSLomitkem(slozkaUctu);
    } else if (cesty.Oddelene) {
        cesty.Vysledky = CestaZIni(obsah, KLIC_VYSLEDKU, adresar);
    }
    cesty.Rady = HodnotaIni(obsah, SEKCE, KLIC_RAD, "") != BEZ_RAD;
    return cesty;
}

std::vector<std::string> JmenaDat() {
    std::vector<std::string> jmena;
    for (int i = 1; i <= ULOH; ++i) jmena.push_back(DveCislice(i) + ".dat");
    jmena.insert(jmena.end(), {"Znamky.dat", "Errors.dat"});
    return jmena;
}

std::vector<std::string> JmenaVysledku() {
    std::vector<std::string> jmena;
    for (int i = 1; i <= ULOH; ++i) jmena.push_back(DveCislice(i) + ".res");
    jmena.emplace_back(JMENO_DENIKU);
    return jmena;
}

Ukladani& Vysledky() {
    if (!UkladaniVysledku) {
        const Hodiny hodiny{.Ted = [] { return Stroj().TickCount(); },
                            .Spi = [](std::uint32_t ms) { Stroj().Spi(ms); }};
        UkladaniVysledku = std::make_shared<Ukladani>(
            Stroj().Disk(), hodiny, NativniCesta(CestaVysledku), Stroj().SlozkaStavu());
    }
    return *UkladaniVysledku;
}

bool NactiKonfiguraci() {
    Host& stroj = Stroj();
    std::string adresar = stroj.WindowsDirectory();
    std::erase(adresar, '\0');
    AdresarSystemu = SeZpetnymLomitkem(std::move(adresar));
    DiskSystemu = AdresarSystemu.substr(0, 3);

    const Cesty cesty = CtiCesty(AdresarSystemu, stroj.SlozkaDat());
    CestaCD = cesty.CD;
    CestaHD = cesty.HD;
    CestaVysledku = cesty.Vysledky;
    RadyUkazovat = cesty.Rady;
    UkladaniVysledku.reset();
    if (!CestaCD.empty()) NastavSlozkuPisem(CestaCD + "Fonts");
    if (CestaCD.empty() || CestaHD.empty()) {
        VypisChybejici("v souboru " + NativniCesta(AdresarSystemu + JMENO_INI).string() +
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
    NactiZnamky(CestaHD + "Znamky.dat");
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
    for (std::string* text : {&AdresarSystemu, &DiskSystemu, &CestaCD, &CestaHD, &CestaVysledku,
                              &NazevHry, &TypUlohy, &JmenoHrace}) {
        text->clear();
    }
    UkladaniVysledku.reset();
    for (int* cislo : {&PuvodniSirka, &PuvodniVyska, &PuvodniBarvy, &SoucetZapornychBodu,
                       &PocetChybnychKroku, &PosunX, &PosunY, &VybranyUtvar, &KonstrukceZahajena,
                       &PocetPrikladu, &PocetUtvaru, &PocetTrojic}) {
        *cislo = 0;
    }
    for (std::uint8_t* bajt : {&CisloUlohy, &PocetPrikladuSerie, &KladneBody, &ZaporneBody}) {
        *bajt = 0;
    }
    RadyUkazovat = true;
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
