#include "prehled/Sestaveni.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "base/Chyba.h"
#include "prehled/Jmena.h"

namespace rysovna::prehled {

namespace {

DatumACas ZacatekDne(Den d) {
    return {.Rok = static_cast<int>(d.year()),
            .Mesic = static_cast<int>(static_cast<unsigned>(d.month())),
            .Den = static_cast<int>(static_cast<unsigned>(d.day()))};
}

/// The days that were asked for, as times that can be compared.
struct Rozmezi {
    std::int64_t Od = 0, Do = std::numeric_limits<std::int64_t>::max();

    explicit Rozmezi(const Volby& volby) {
        if (volby.Od) Od = CisloCasu(ZacatekDne(*volby.Od));
        if (!volby.Do) return;
        DatumACas konec = ZacatekDne(*volby.Do);
        konec.Hodina = 23;
        konec.Minuta = 59;
        Do = CisloCasu(konec);
    }
    [[nodiscard]] bool Obsahuje(const DatumACas& kdy) const {
        const std::int64_t cislo = CisloCasu(kdy);
        return cislo >= Od && cislo <= Do;
    }
};

void PridejNevadne(Prehled& prehled, const StavRejstriku& stav, const Sber& sber) {
    for (const auto& slozka : sber.Neprohlednute)
        prehled.Nevadne.push_back("Složku nelze prohlédnout: " + slozka.string() + ".");
    for (const VadnySoubor& v : stav.Vadne)
        prehled.Nevadne.push_back(v.Cesta.string() + ": " + v.Proc);
}

}  // namespace

std::map<std::string, int> PoctyJmen(const StavRejstriku& stav, bool iVadne) {
    std::map<std::string, int> pocty;
    for (const auto& [soubor, z] : stav.Serie) ++pocty[z.Jmeno];
    for (const VadnySoubor& v : stav.Vadne) {
        if (iVadne && v.Jmeno) ++pocty[*v.Jmeno];
    }
    return pocty;
}

std::string NajdiTridu(const TabulkaZaku& tabulka, const std::string& trida) {
    if (trida.empty()) return {};
    const std::vector<std::string> tridy = tabulka.Tridy();
    const auto t = std::ranges::find(tridy, KlicJmena(trida), KlicJmena);
    if (t != tridy.end()) return *t;
    std::string vyber;
    for (const std::string& jina : tridy) vyber += (vyber.empty() ? "" : ", ") + jina;
    throw BehovaChyba("V tabulce žáků není třída " + trida,
                      vyber.empty() ? "nemá třídy" : "má " + vyber);
}

Prehled Sestav(Rejstrik& rejstrik, const StavRejstriku& stav, const Sber& sber,
               const RozdeleniZaku& zaci, const Znamkovani& znamkovani, const Volby& volby,
               TabulkyCsv& tabulky) {
    Prehled prehled{.Trida = volby.Trida};
    if (volby.Od) prehled.Od = TextDne(*volby.Od);
    if (volby.Do) prehled.Do = TextDne(*volby.Do);
    PridejNevadne(prehled, stav, sber);

    // The page's pupils are those of the class.
    std::vector<std::optional<int>> naStrance(zaci.Zaci().size());
    for (std::size_t i = 0; i < naStrance.size(); ++i) {
        const Zak& zak = zaci.Zaci()[i];
        if (!volby.Trida.empty() && KlicJmena(zak.Trida) != KlicJmena(volby.Trida)) continue;
        naStrance[i] = static_cast<int>(prehled.Zaci.size());
        prehled.Zaci.push_back(zak);
    }

    std::unordered_set<std::int64_t> nalezene;
    for (const auto& [soubor, z] : stav.Serie) nalezene.insert(z.Id);
    const Rozmezi rozmezi(volby);
    rejstrik.ProKazdou([&](Rejstrik::Prectena& p) {
        if (!nalezene.contains(p.Id)) return;
        const std::size_t ci = zaci.Ci(p.Co.JmenoNapsane);
        p.Co.Znamka = znamkovani.Znamka(p.Co);
        tabulky.Pridej(p.Co, zaci.Zaci()[ci]);
        if (!naStrance[ci] || !rozmezi.Obsahuje(p.Co.Zacatek)) return;
        p.Co.Zak = *naStrance[ci];
        rejstrik.NactiObrazce(p.Id, p.Co);
        if (!p.Rozchod.empty())
            prehled.Nevadne.push_back(p.Co.Soubor +
                                      ": pokus se nepřehraje celý, některé obrázky "
                                      "chybí (" +
                                      p.Rozchod + ").");
        prehled.Serie.push_back(std::move(p.Co));
    });
    return prehled;
}

}  // namespace rysovna::prehled
