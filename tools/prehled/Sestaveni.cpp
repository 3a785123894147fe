#include "prehled/Sestaveni.h"

#include <chrono>
#include <optional>
#include <unordered_set>
#include <utility>
#include <vector>

#include "prehled/Jmena.h"

namespace rysovna::prehled {

namespace {

/// Whether a time is within the days that were asked for.
bool VeDnech(const Volby& volby, const DatumACas& kdy) {
    const Den den(std::chrono::year(kdy.Rok), std::chrono::month(static_cast<unsigned>(kdy.Mesic)),
                  std::chrono::day(static_cast<unsigned>(kdy.Den)));
    return (!volby.Od || *volby.Od <= den) && (!volby.Do || den <= *volby.Do);
}

void PridejNevadne(Prehled& prehled, const StavRejstriku& stav, const Sber& sber) {
    for (const auto& slozka : sber.Neprohlednute)
        prehled.Nevadne.push_back("Složku nelze prohlédnout: " + slozka.string() + ".");
    for (const VadnySoubor& v : stav.Vadne)
        prehled.Nevadne.push_back(v.Cesta.string() + ": " + v.Proc);
}

}  // namespace

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
    rejstrik.ProKazdou([&](Rejstrik::Prectena& p) {
        if (!nalezene.contains(p.Id)) return;
        const std::size_t ci = zaci.Ci(p.Co.JmenoNapsane);
        p.Co.Znamka = znamkovani.Znamka(p.Co);
        tabulky.Pridej(p.Co, zaci.Zaci()[ci]);
        if (!naStrance[ci] || !VeDnech(volby, p.Co.Zacatek)) return;
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
