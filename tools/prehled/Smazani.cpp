#include "prehled/Smazani.h"

#include <algorithm>
#include <istream>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "base/Disk.h"
#include "base/Text.h"
#include "platform/Stroj.h"
#include "prehled/Cesky.h"
#include "prehled/Jmena.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

/// What would go.
struct Odsouzene {
    std::map<std::string, std::vector<Nalezeny>> Pokusy{};  ///< copies of each, by name of the file
    std::map<std::string, int> Jmena{};                     ///< as typed, and how often
};

std::string Popis(const Zak& zak) {
    return zak.Jmeno + (zak.Trida.empty() ? "" : " (" + zak.Trida + ")");
}

/// The one pupil that is meant; none, or several, are told.
std::optional<std::size_t> Najdi(const Volby& volby, const RozdeleniZaku& zaci, std::ostream& kam) {
    std::vector<std::size_t> kdo = zaci.Jmenuji(*volby.Smazat);
    if (!volby.Trida.empty())
        std::erase_if(kdo, [&](std::size_t i) { return zaci.Zaci()[i].Trida != volby.Trida; });
    if (kdo.size() == 1) return kdo.front();
    if (kdo.empty()) {
        kam << "Žák jménem " << *volby.Smazat << " nemá v těchto složkách žádný pokus.\n";
        return std::nullopt;
    }
    kam << "Jménu " << *volby.Smazat << " odpovídá víc žáků:";
    for (const std::size_t i : kdo) kam << " " << Popis(zaci.Zaci()[i]) << ";";
    kam << " určete třídu (--trida).\n";
    return std::nullopt;
}

Odsouzene Vyber(std::size_t zak, const Sber& sber, const StavRejstriku& stav,
                const RozdeleniZaku& zaci) {
    // Files that are no whole attempts may bear a name all the same.
    std::map<std::string, std::string> jmena;
    for (const auto& [soubor, z] : stav.Serie) jmena[soubor] = z.Jmeno;
    for (const VadnySoubor& v : stav.Vadne) {
        if (v.Jmeno) jmena[v.Soubor] = *v.Jmeno;
    }
    Odsouzene o;
    for (std::size_t i = 0; i < sber.Soubory.size();) {
        const auto kopie = sber.Kopie(i);
        i += kopie.size();
        const auto jmeno = jmena.find(kopie.front().Soubor);
        if (jmeno == jmena.end() || zaci.Ci(jmeno->second) != zak) continue;
        o.Pokusy[jmeno->first] = {kopie.begin(), kopie.end()};
        ++o.Jmena[jmeno->second];
    }
    return o;
}

/// What may be the pupil's as well as anybody's.
void RekniNepoznane(const Sber& sber, const StavRejstriku& stav, std::ostream& kam) {
    std::vector<fs::path> nepoznane = sber.Neprohlednute;
    for (const VadnySoubor& v : stav.Vadne) {
        if (!v.Jmeno) nepoznane.push_back(v.Cesta);
    }
    if (nepoznane.empty()) return;
    kam << "Čí jsou, nejde přečíst; tyto soubory a složky tedy zůstanou:\n";
    for (const fs::path& co : nepoznane) kam << "  " << co.string() << "\n";
}

bool Souhlasi(const Odsouzene& o, const Zak& zak, const Sber& sber, std::istream& odpoved,
              std::ostream& kam) {
    std::map<fs::path, std::size_t> slozky;
    std::size_t souboru = 0;
    for (const auto& [soubor, kopie] : o.Pokusy) {
        for (const Nalezeny& n : kopie) ++slozky[sber.Slozky[n.Slozka]];
        souboru += kopie.size();
    }
    kam << "Žák: " << Popis(zak) << "\nNapsáno:";
    const char* oddelovac = " ";
    for (const auto& [jmeno, kolik] : o.Jmena) {
        kam << oddelovac << "„" << jmeno << "“ " << kolik << "krát";
        oddelovac = ", ";
    }
    kam << "\nNatrvalo se odstraní " << Pocet(o.Pokusy.size(), POKUSU) << " ("
        << Pocet(souboru, SOUBORU) << "):\n";
    for (const auto& [slozka, kolik] : slozky)
        kam << "  " << slozka.string() << ": " << Pocet(kolik, SOUBORU) << "\n";
    kam << "Tabulky výsledků a deník hry zůstávají; stránky a tabulky přehledu vyrobte potom "
           "znovu.\nOdstranit? [ano/ne] "
        << std::flush;
    std::string radek;
    std::getline(odpoved, radek);
    if (KlicJmena(radek) == "ano") return true;
    kam << "Nic se neodstranilo.\n";
    return false;
}

/// The index forgets those names in other folders too, where files are not touched; which folders
/// these are is told.
void ZapomenJinde(const Odsouzene& o, const StavRejstriku& stav, Rejstrik& rejstrik,
                  std::ostream& kam) {
    std::set<std::string> klice;
    for (const auto& [jmeno, kolik] : o.Jmena) klice.insert(KlicJmena(jmeno));
    std::map<std::string, std::size_t> slozky;
    for (const auto& [soubor, z] : rejstrik.Serie()) {
        if (stav.Serie.contains(soubor) || !klice.contains(KlicJmena(z.Jmeno))) continue;
        rejstrik.Odeber(z.Id);
        ++slozky[z.Slozka];
    }
    if (slozky.empty()) return;
    kam << "Pokusy téhož jména byly i ve složkách, které teď nebyly zadány. Rejstřík je zapomněl, "
           "soubory tam zůstaly:\n";
    for (const auto& [slozka, kolik] : slozky)
        kam << "  " << slozka << ": " << Pocet(kolik, SOUBORU) << "\n";
}

}  // namespace

bool SmazZaka(const Volby& volby, const Sber& sber, const StavRejstriku& stav,
              const RozdeleniZaku& zaci, Rejstrik& rejstrik, std::istream& odpoved,
              std::ostream& kam) {
    const auto zak = Najdi(volby, zaci, kam);
    if (!zak) return false;
    const Odsouzene o = Vyber(*zak, sber, stav, zaci);
    if (o.Pokusy.empty()) {
        kam << "Žák " << Popis(zaci.Zaci()[*zak]) << " nemá v těchto složkách žádný pokus.\n";
        return false;
    }
    RekniNepoznane(sber, stav, kam);
    if (!Souhlasi(o, zaci.Zaci()[*zak], sber, odpoved, kam)) return false;

    DiskStroje disk;
    std::size_t odstraneno = 0;
    for (const auto& [soubor, kopie] : o.Pokusy) {
        bool vse = true;
        for (const Nalezeny& n : kopie) {
            try {
                disk.Odstran(sber.Cesta(n));
            } catch (const ChybaDisku& chyba) {
                vse = false;
                kam << "Nelze odstranit " << sber.Cesta(n).string() << " ("
                    << TextPriciny(chyba.Proc()) << ").\n";
            }
        }
        if (!vse) continue;
        ++odstraneno;
        if (const auto s = stav.Serie.find(soubor); s != stav.Serie.end())
            rejstrik.Odeber(s->second.Id);
    }
    kam << "Odstraněno: " << Pocet(odstraneno, POKUSU) << ".\n";
    ZapomenJinde(o, stav, rejstrik, kam);
    rejstrik.Potvrd();
    return odstraneno == o.Pokusy.size();
}

}  // namespace rysovna::prehled
