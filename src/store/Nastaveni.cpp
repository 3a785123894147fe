#include "store/Nastaveni.h"

#include <cctype>

#include "base/Cisla.h"
#include "base/Disk.h"
#include "store/Ini.h"

namespace rysovna {

namespace {

constexpr std::string_view SEKCE = "RYSOVNA1";
constexpr std::string_view NENI_KLIC = "Chyba";
constexpr std::string_view KLIC_VYSLEDKU = "VYSLEDKY";
constexpr std::string_view UCET = "ucet";
constexpr std::string_view KLIC_RAD = "Rady", KLIC_POKUSU = "Pokusy", KLIC_SEMINKA = "Seminko";

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

/// The content of a file; nothing where it cannot be read.
std::string CtiNeboNic(Disk& disk, const std::filesystem::path& soubor) {
    try {
        return disk.Otevri(soubor, Disk::Jak::Cteni)->Cti();
    } catch (const ChybaDisku&) {
        return {};
    }
}

}  // namespace

std::string SeZpetnymLomitkem(std::string cesta) {
    if (cesta.ends_with('/')) cesta.pop_back();
    if (!cesta.ends_with('\\')) cesta += '\\';
    return cesta;
}

std::string SlozkaSLomitkem(const std::filesystem::path& slozka) {
    return slozka.empty() ? std::string() : SeZpetnymLomitkem(slozka.string());
}

Nastaveni CtiNastaveni(Disk& disk, const std::string& slozka,
                       const std::filesystem::path& slozkaUctu) {
    const std::string adresar = SeZpetnymLomitkem(slozka);
    const std::string obsah = CtiNeboNic(disk, disk.Skutecna(adresar + JMENO_INI));
    Nastaveni nastaveni;
    nastaveni.CD = CestaZIni(obsah, "CD", adresar);
    nastaveni.HD = CestaZIni(obsah, "HD", adresar);
    const std::string kam = HodnotaIni(obsah, SEKCE, KLIC_VYSLEDKU, NENI_KLIC);
    nastaveni.Oddelene = kam != NENI_KLIC;
    nastaveni.Vysledky = nastaveni.HD;
    if (kam == UCET) {
        nastaveni.Vysledky = SlozkaSLomitkem(slozkaUctu);
    } else if (nastaveni.Oddelene) {
        nastaveni.Vysledky = CestaZIni(obsah, KLIC_VYSLEDKU, adresar);
    }
    nastaveni.Rady = !RikaNe(obsah, SEKCE, KLIC_RAD);
    nastaveni.Pokusy = !RikaNe(obsah, SEKCE, KLIC_POKUSU);
    nastaveni.Seminko = CeleCislo<std::uint32_t>(HodnotaIni(obsah, SEKCE, KLIC_SEMINKA, ""));
    return nastaveni;
}

}  // namespace rysovna
