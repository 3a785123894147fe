#include "prehled/Zaci.h"

#include <algorithm>
#include <numeric>
#include <set>
#include <tuple>
#include <utility>

#include "base/Text.h"
#include "prehled/Jmena.h"

namespace rysovna::prehled {

namespace {

constexpr std::string_view BEZ_JMENA = "(beze jména)";

/// A spelling, and how often it is used.
struct Zapis {
    std::string Jmeno;
    int Kolikrat = 0;
    /// Of those used as often the one with more diacritics and capitals.
    [[nodiscard]] bool LepsiNez(const Zapis& jiny) const {
        return std::tuple(Kolikrat, Jmeno.size(), jiny.Jmeno) >
               std::tuple(jiny.Kolikrat, jiny.Jmeno.size(), Jmeno);
    }
};

/// With one blank between words.
std::string Uhlazene(std::string_view jmeno) {
    std::string hladke;
    for (const char z : BezKrajnichMezer(jmeno)) {
        if (z != ' ' || !hladke.ends_with(' ')) hladke += z;
    }
    return hladke.empty() ? std::string(BEZ_JMENA) : hladke;
}

}  // namespace

RozdeleniZaku::RozdeleniZaku(const TabulkaZaku& tabulka, const std::map<std::string, int>& jmena)
    : zaci_(tabulka.Zaci()) {
    // Those that the table does not name, by what their spellings have in common.
    std::map<std::string, std::map<std::string, int>> ostatni;
    for (const auto& [jmeno, kolik] : jmena) {
        if (const Zak* zak = tabulka.Najdi(jmeno)) {
            ci_[jmeno] = static_cast<std::size_t>(zak - tabulka.Zaci().data());
        } else {
            ostatni[KlicJmena(jmeno)][Uhlazene(jmeno)] += kolik;
        }
    }
    std::map<std::string, std::size_t> podleKlice;
    for (const auto& [klic, zapisy] : ostatni) {
        Zapis nejlepsi;
        for (const auto& [jmeno, kolik] : zapisy) {
            const Zapis z{jmeno, kolik};
            if (z.LepsiNez(nejlepsi)) nejlepsi = z;
        }
        podleKlice[klic] = zaci_.size();
        zaci_.push_back({.Jmeno = nejlepsi.Jmeno});
    }
    for (const auto& [jmeno, kolik] : jmena) {
        if (!ci_.contains(jmeno)) ci_[jmeno] = podleKlice.at(KlicJmena(jmeno));
    }

    std::vector<std::size_t> poradi(zaci_.size());
    std::iota(poradi.begin(), poradi.end(), std::size_t{0});
    std::ranges::sort(poradi, {}, [this](std::size_t i) {
        return std::tuple(KlicJmena(zaci_[i].Trida), KlicJmena(zaci_[i].Jmeno), i);
    });
    std::vector<Zak> serazeni;
    std::vector<std::size_t> kam(zaci_.size());
    for (const std::size_t i : poradi) {
        kam[i] = serazeni.size();
        serazeni.push_back(std::move(zaci_[i]));
    }
    zaci_ = std::move(serazeni);
    for (auto& [jmeno, zak] : ci_) zak = kam[zak];
}

std::vector<std::size_t> RozdeleniZaku::Jmenuji(std::string_view jmeno) const {
    const std::string klic = KlicJmena(jmeno);
    std::set<std::size_t> kdo;
    for (std::size_t i = 0; i < zaci_.size(); ++i) {
        if (KlicJmena(zaci_[i].Jmeno) == klic) kdo.insert(i);
    }
    for (const auto& [napsane, zak] : ci_) {
        if (KlicJmena(napsane) == klic) kdo.insert(zak);
    }
    return {kdo.begin(), kdo.end()};
}

}  // namespace rysovna::prehled
