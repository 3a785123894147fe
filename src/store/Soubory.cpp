#include "store/Soubory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <vector>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "rules/Misc.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/MapaPoli.h"
#include "store/RadkySouboru.h"

namespace rysovna {
namespace {

/// No file of the game comes near it; what is larger was put there by mistake.
constexpr std::size_t NEJVETSI_DATA = std::size_t{4} * 1024 * 1024;

/// A file of game data by lines.
std::vector<std::string> CtiData(Disk& disk, const std::filesystem::path& cesta) {
    return CtiRadky(disk, cesta, NEJVETSI_DATA);
}

std::uint8_t BajtZnamky(std::string_view text, const std::string& misto) {
    const double cislo = Cislo(text);
    // Far beyond a byte, so that the rounding itself cannot fault without a place in the file.
    constexpr double JISTE_MIMO = 1000;
    const int cele = std::abs(cislo) < JISTE_MIMO ? Zaokrouhli(cislo) : -1;
    if (cele < 0 || cele > 255) throw BehovaChyba("Číslo mimo rozsah 0 až 255", misto);
    return static_cast<std::uint8_t>(cele);
}

constexpr int DELKA_CISLA = 3;      // digits of a wrong step's number
constexpr int ZACATEK_VETY = 4;     // a separator stands between
constexpr int NEJKRATSI_RADEK = 5;  // number, separator, and the last character, which is dropped

/// Calls co(number, decoded line, place) for each line; a number that is none is 0.
template <class Akce>
void ProjdiVety(Disk& disk, const std::filesystem::path& cesta, Akce&& co) {
    int i = 0;
    for (const std::string& ulozeny : CtiData(disk, cesta)) {
        const std::string radek = DekodujRadek(ulozeny);
        const double cislo = Cislo(std::string_view(radek).substr(0, DELKA_CISLA));
        co(cislo, radek, Misto(cesta, ++i));
    }
}

/// The sentence of a decoded line.
std::string Veta(std::string_view radek, const std::string& misto) {
    if (radek.size() < NEJKRATSI_RADEK) throw BehovaChyba("Příliš krátký řádek", misto);
    return Z1250(radek.substr(ZACATEK_VETY, radek.size() - NEJKRATSI_RADEK), misto);
}

}  // namespace

void NactiZnamky(Misc& misc, Disk& disk, std::string_view soubor) {
    const std::filesystem::path cesta = disk.Skutecna(soubor);
    misc.ZnamkyTab.Smaz();
    int i = 0;
    for (const std::string& radek : CtiData(disk, cesta)) {
        const std::string misto = Misto(cesta, ++i);
        if (i > decltype(Misc::ZnamkyTab)::POSLEDNI) {
            throw BehovaChyba("Tabulka známek má více než 5 řádků", misto);
        }
        const std::string text = Z1250(radek, misto);
        const auto pole = Rozdel<3>(text, '|');
        std::ranges::transform(pole, misc.ZnamkyTab[i].begin(),
                               [&](std::string_view p) { return BajtZnamky(p, misto); });
    }
}

void NactiPriklady(Zaznamy& z, Disk& disk, std::string_view soubor, const MapaRadku& mapa) {
    constexpr int RADKU = decltype(Zaznamy::Priklady)::POSLEDNI;
    for (int i = 1; i <= RADKU; ++i) {
        for (const Slot& slot : mapa.Pole) slot.V(z.Priklady[i]).clear();
        if (!mapa.NulujeKroky) continue;
        for (const int k : {1, 2, 3}) z.Priklady[i].Kroky[k].Hotovo = 0;
    }
    z.PocetPrikladu = 0;

    bool prazdny = true;
    const std::filesystem::path cesta = disk.Skutecna(soubor);
    for (const std::string& ulozeny : CtiData(disk, cesta)) {
        const std::string misto = Misto(cesta, z.PocetPrikladu + 1);
        if (z.PocetPrikladu == RADKU) {
            throw BehovaChyba("Soubor úlohy má více než 100 řádků", misto);
        }
        Priklad& priklad = z.Priklady[++z.PocetPrikladu];
        const std::string text = Z1250(DekodujRadek(ulozeny), misto);
        prazdny = prazdny && text.find_first_not_of(" #") == std::string::npos;
        std::string_view zbytek = text;
        for (const Slot& slot : mapa.Pole) {
            const std::size_t konec = zbytek.find('#');
            slot.V(priklad) = zbytek.substr(0, konec);
            if (konec == std::string_view::npos) break;
            zbytek.remove_prefix(konec + 1);
        }
    }
    if (prazdny) throw BehovaChyba("V souboru úlohy není žádný příklad", cesta.string());
}

std::vector<std::string> CtiVety(Disk& disk, std::string_view soubor, int cislo) {
    std::vector<std::string> vety;
    ProjdiVety(disk, disk.Skutecna(soubor),
               [&](double toto, std::string_view veta, const std::string& misto) {
                   if (toto != cislo) return;
                   if (vety.size() == decltype(Zaznamy::ChybneKroky)::POSLEDNI)
                       throw BehovaChyba("Krok má v souboru více než 100 vět", misto);
                   vety.push_back(Veta(veta, misto));
               });
    return vety;
}

int PocetVet(Disk& disk, std::string_view soubor) {
    int pocet = 0;
    ProjdiVety(disk, disk.Skutecna(soubor),
               [&](double cislo, std::string_view veta, const std::string& misto) {
                   if (cislo == 0) return;
                   static_cast<void>(Veta(veta, misto));
                   ++pocet;
               });
    return pocet;
}

}  // namespace rysovna
