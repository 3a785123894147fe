// The overview of a class: reads attempts and writes one page and two tables.

#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "base/Chyba.h"
#include "base/Disk.h"
#include "platform/Stroj.h"
#include "prehled/Cesky.h"
#include "prehled/Obnova.h"
#include "prehled/Sestaveni.h"
#include "prehled/Smazani.h"
#include "prehled/Stranka.h"
#include "prehled/TabulkaZaku.h"
#include "prehled/Volby.h"
#include "prehled/Zapis.h"

namespace {

namespace fs = std::filesystem;
using namespace rysovna;
using namespace rysovna::prehled;

constexpr int V_PORADKU = 0, NEJDE = 1, SPATNE_ZADANI = 2;

/// Where the index is kept unless something else was asked for: with the account, since results
/// may lie where other teachers and pupils read.
fs::path MistoRejstriku(const Volby& volby) {
    if (!volby.Rejstrik.empty()) return volby.Rejstrik;
    const fs::path slozka = SlozkaStavuUctu();
    if (slozka.empty())
        throw BehovaChyba("Účet nemá domovskou složku: určete --rejstrik SOUBOR", "rejstřík");
    try {
        DiskStroje().ZalozSlozku(slozka);
    } catch (const ChybaDisku&) {
        throw BehovaChyba("Složku rejstříku nelze založit: určete --rejstrik SOUBOR",
                          slozka.string());
    }
    return slozka / "prehled.rejstrik";
}

/// A table beside the page: "trida.html" has "trida-serie.csv".
fs::path Vedle(const fs::path& stranka, std::string_view konec) {
    return stranka.parent_path() / CestaZTextu(stranka.stem().string() + std::string(konec));
}

void Oznam(const Prehled& prehled, std::size_t seriiCelkem, const Volby& volby) {
    // What a page of many says in full.
    constexpr std::size_t NEJVIC_VET = 10;
    for (std::size_t i = 0; i < prehled.Nevadne.size() && i < NEJVIC_VET; ++i)
        std::cerr << prehled.Nevadne[i] << '\n';
    if (prehled.Nevadne.size() > NEJVIC_VET)
        std::cerr << "… a dalších " << prehled.Nevadne.size() - NEJVIC_VET << ".\n";
    if (seriiCelkem == 0)
        std::cerr << "V zadaných složkách není žádný pokus (soubor .pokus; z prohlížeče: Uložit "
                     "pokusy a archiv rozbalit).\n";
    std::cout << "Na stránce: " << Pocet(prehled.Serie.size(), SERII) << " z " << seriiCelkem
              << ", " << volby.Vystup.string()
              << "\nTabulky všech sérií: " << Vedle(volby.Vystup, "-serie.csv").string() << ", "
              << Vedle(volby.Vystup, "-chyby.csv").string() << '\n';
}

int Vyrob(const Volby& volby, const Sber& sber, const TabulkaZaku& tabulka, Rejstrik& rejstrik) {
    // What cannot be written is known before the long work.
    NovySoubor stranka(volby.Vystup), serie(Vedle(volby.Vystup, "-serie.csv")),
        chyby(Vedle(volby.Vystup, "-chyby.csv"));
    const StavRejstriku stav = Obnov(rejstrik, sber, std::cerr);
    const RozdeleniZaku zaci(tabulka, stav.PoctyJmen(false));
    TabulkyCsv tabulky(serie.Proud(), chyby.Proud());
    const Prehled prehled =
        Sestav(rejstrik, stav, sber, zaci, Znamkovani(SlozkaProgramu()), volby, tabulky);
    ZapisStranku(stranka.Proud(), prehled);
    for (NovySoubor* s : {&stranka, &serie, &chyby}) s->Dokonci();
    Oznam(prehled, stav.Serie.size(), volby);
    return V_PORADKU;
}

int Smaz(const Volby& volby, const Sber& sber, const TabulkaZaku& tabulka, Rejstrik& rejstrik) {
    const StavRejstriku stav = Obnov(rejstrik, sber, std::cerr);
    const RozdeleniZaku zaci(tabulka, stav.PoctyJmen(true));
    return SmazZaka(volby, sber, stav, zaci, rejstrik, std::cin, std::cout) ? V_PORADKU : NEJDE;
}

int Spust(Volby volby) {
    if (volby.Napoveda) {
        std::cout << NAPOVEDA;
        return V_PORADKU;
    }
    const TabulkaZaku tabulka = volby.Zaci.empty() ? TabulkaZaku() : NactiTabulkuZaku(volby.Zaci);
    volby.Trida = tabulka.NajdiTridu(volby.Trida);
    const Sber sber = NajdiPokusy(volby.Slozky);
    const fs::path misto = MistoRejstriku(volby);
    std::string oznam;
    const auto zkus = [&] {
        const auto rejstrik = OtevriRejstrik(misto, oznam);
        if (!oznam.empty()) std::cerr << oznam << std::endl;
        return volby.Smazat ? Smaz(volby, sber, tabulka, *rejstrik)
                            : Vyrob(volby, sber, tabulka, *rejstrik);
    };
    try {
        return zkus();
    } catch (const VadnyRejstrik&) {
        OdlozRejstrik(misto, oznam);
    }
    return zkus();
}

}  // namespace

int main(int pocet, char** slova) {
    try {
        return Spust(CtiVolby(Argumenty(pocet, slova)));
    } catch (const SpatneVolby& chyba) {
        std::cerr << chyba.what() << "\n"
                  << "Nápověda: prehled --help\n";
        return SPATNE_ZADANI;
    } catch (const ChybaSql& chyba) {
        std::cerr << "S rejstříkem se nedaří pracovat: " << chyba.what() << '\n';
    } catch (const std::bad_alloc&) {
        std::cerr << "Nestačí paměť\n";
    } catch (const std::exception& chyba) {
        std::cerr << chyba.what() << '\n';
    }
    return NEJDE;
}
