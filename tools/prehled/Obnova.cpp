#include "prehled/Obnova.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <ostream>
#include <span>
#include <thread>
#include <utility>

#include "base/Disk.h"
#include "prehled/BaleniObrazcu.h"
#include "prehled/Cteni.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

/// So many files are read before what came of them is stored.
constexpr std::size_t DAVKA = 256;
/// After so many the reader is told.
constexpr std::size_t HLASI_SE_PO = 2048;

/// An attempt that was read, and its figures packed.
struct Prectene {
    PrectenaSerie Serie{};
    std::string Obrazce{};
    std::size_t Slozka = 0;
    std::optional<std::string> Jmeno{};  ///< of one that could not be read
};

Prectene Precti(const Sber& sber, std::span<const Nalezeny> kopie) {
    Prectene p;
    for (const Nalezeny& n : kopie) {
        p.Slozka = n.Slozka;
        p.Serie = PrectiSerii(sber.Cesta(n));
        if (!p.Serie.Co) continue;
        p.Serie.Co->Soubor = n.Soubor;
        p.Obrazce = ZabalObrazce(*p.Serie.Co);
        return p;
    }
    // Its first copy is the one that is told.
    p.Slozka = kopie.front().Slozka;
    p.Jmeno = JmenoVSouboru(sber.Cesta(kopie.front()));
    return p;
}

/// Calls with 0 to pocet - 1, on all processors at once. A fault of one is thrown when all are
/// done.
template <class F>
void Soubezne(std::size_t pocet, F co) {
    std::atomic<std::size_t> dalsi{0};
    std::exception_ptr chyba;
    std::atomic_flag jeChyba;
    const auto prace = [&] {
        try {
            for (std::size_t i; (i = dalsi++) < pocet;) co(i);
        } catch (...) {
            if (!jeChyba.test_and_set()) chyba = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> dalsiVlakna;
        for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i)
            dalsiVlakna.emplace_back(prace);
        prace();
    }
    if (chyba) std::rethrow_exception(chyba);
}

}  // namespace

std::map<std::string, int> StavRejstriku::PoctyJmen(bool iVadne) const {
    std::map<std::string, int> pocty;
    for (const auto& [soubor, z] : Serie) ++pocty[z.Jmeno];
    for (const VadnySoubor& v : Vadne) {
        if (iVadne && v.Jmeno) ++pocty[*v.Jmeno];
    }
    return pocty;
}

StavRejstriku Obnov(Rejstrik& rejstrik, const Sber& sber, std::ostream& hlaseni) {
    StavRejstriku stav;
    auto zname = rejstrik.Serie();
    std::vector<std::span<const Nalezeny>> nove;
    std::vector<std::string> nalezene;
    for (std::size_t i = 0; i < sber.Soubory.size();) {
        const auto kopie = sber.Kopie(i);
        i += kopie.size();
        const auto znama = zname.find(kopie.front().Soubor);
        if (znama == zname.end()) {
            nove.push_back(kopie);
        } else {
            stav.Serie.insert(zname.extract(znama));
        }
    }
    for (const auto& [soubor, z] : zname) {
        if (sber.Prohlednuta(CestaZTextu(z.Slozka))) rejstrik.Odeber(z.Id);
    }

    if (!nove.empty()) hlaseni << "Nových pokusů k přečtení: " << nove.size() << std::endl;
    for (std::size_t od = 0; od < nove.size(); od += DAVKA) {
        std::vector<Prectene> davka(std::min(DAVKA, nove.size() - od));
        Soubezne(davka.size(), [&](std::size_t i) { davka[i] = Precti(sber, nove[od + i]); });
        for (std::size_t i = 0; i < davka.size(); ++i) {
            const Nalezeny& soubor = nove[od + i].front();
            Prectene& p = davka[i];
            if (p.Serie.Co) {
                const std::string slozka = sber.Slozky[p.Slozka].string();
                rejstrik.Pridej(*p.Serie.Co, slozka, p.Serie.Rozchod, p.Obrazce);
                ++stav.Novych;
            } else {
                stav.Vadne.push_back({.Soubor = soubor.Soubor,
                                      .Cesta = sber.Cesta(soubor),
                                      .Proc = std::move(p.Serie.Vada),
                                      .Jmeno = std::move(p.Jmeno)});
            }
        }
        if (od > 0 && od % HLASI_SE_PO == 0)
            hlaseni << "  přečteno " << od << " z " << nove.size() << std::endl;
    }
    rejstrik.Potvrd();
    // Those that were just added have their rows now.
    if (stav.Novych > 0) {
        zname = rejstrik.Serie();
        for (const auto& kopie : nove) {
            if (const auto z = zname.find(kopie.front().Soubor); z != zname.end())
                stav.Serie.insert(zname.extract(z));
        }
    }
    return stav;
}

}  // namespace rysovna::prehled
