#include "prehled/TabulkaZaku.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <utility>

#include "base/Chyba.h"
#include "base/Text.h"
#include "platform/Stroj.h"
#include "prehled/Jmena.h"
#include "store/KodovaStranka.h"
#include "store/RadkySouboru.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view NADPIS = "jmeno";
constexpr std::size_t POLI = 3;

/// Fields of a line: with semicolons between, in quotes where they hold some. Nothing where a quote
/// is not closed.
std::optional<std::vector<std::string>> Pole(std::string_view radek) {
    std::vector<std::string> pole(1);
    bool uvozovky = false;
    for (std::size_t i = 0; i < radek.size(); ++i) {
        const char z = radek[i];
        if (z == '"' && uvozovky && i + 1 < radek.size() && radek[i + 1] == '"') {
            pole.back() += radek[++i];
        } else if (z == '"' && (uvozovky || pole.back().empty())) {
            uvozovky = !uvozovky;
        } else if (z == ';' && !uvozovky) {
            pole.emplace_back();
        } else {
            pole.back() += z;
        }
    }
    if (uvozovky) return std::nullopt;
    for (std::string& p : pole) p = BezKrajnichMezer(p);
    while (pole.size() > 1 && pole.back().empty()) pole.pop_back();
    return pole;
}

}  // namespace

TabulkaZaku::TabulkaZaku(std::string_view obsah, const fs::path& soubor) {
    if (obsah.starts_with(ZNACKA_UTF8)) obsah.remove_prefix(ZNACKA_UTF8.size());
    std::map<std::pair<std::string, std::string>, std::size_t> znami;
    std::map<std::string, std::string> tridy;  // one spelling of each, the first
    bool nadpis = true;                        // may stand on the next row
    int cislo = 0;
    for (const std::string& radek : NaRadky(obsah)) {
        ++cislo;
        const auto vada = [&](const std::string& proc) {
            throw BehovaChyba("Tabulka žáků: " + proc, Misto(soubor, cislo));
        };
        auto pole = Pole(radek);
        if (!pole) vada("uvozovky nejsou uzavřené");
        if (pole->front().starts_with('#') || (pole->size() == 1 && pole->front().empty()))
            continue;
        const std::string klic = KlicJmena(pole->front());
        if (std::exchange(nadpis, false) && klic == NADPIS) continue;
        if (pole->size() > POLI) vada("na řádku je víc než jméno;žák;třída");
        if (pole->size() == 1) vada("za jménem chybí středník a žák nebo třída");
        if (klic.empty()) vada("chybí jméno");
        pole->resize(POLI);
        const auto trida = tridy.try_emplace(KlicJmena((*pole)[2]), (*pole)[2]).first;
        Zak zak{.Jmeno = (*pole)[1].empty() ? (*pole)[0] : (*pole)[1], .Trida = trida->second};
        const auto [kdo, novy] =
            znami.try_emplace({KlicJmena(zak.Jmeno), KlicJmena(zak.Trida)}, zaci_.size());
        if (novy) {
            vlastni_[kdo->first.first].push_back(kdo->second);
            zaci_.push_back(std::move(zak));
        }
        const auto [jmeno, poprve] = jmena_.try_emplace(klic, kdo->second);
        if (!poprve && jmeno->second != kdo->second) {
            const Zak& prvni = zaci_[jmeno->second];
            vada("jméno „" + (*pole)[0] + "“ už patří jinému žákovi: " + prvni.Jmeno +
                 (prvni.Trida.empty() ? "" : ", " + prvni.Trida));
        }
    }
}

const Zak* TabulkaZaku::Najdi(std::string_view jmeno) const {
    const std::string klic = KlicJmena(jmeno);
    if (const auto j = jmena_.find(klic); j != jmena_.end()) return &zaci_[j->second];
    const auto v = vlastni_.find(klic);
    return v != vlastni_.end() && v->second.size() == 1 ? &zaci_[v->second.front()] : nullptr;
}

std::vector<std::string> TabulkaZaku::Tridy() const {
    std::set<std::string> tridy;
    for (const Zak& z : zaci_) {
        if (!z.Trida.empty()) tridy.insert(z.Trida);
    }
    return {tridy.begin(), tridy.end()};
}

std::string TabulkaZaku::NajdiTridu(const std::string& trida) const {
    if (trida.empty()) return {};
    const std::vector<std::string> tridy = Tridy();
    const auto t = std::ranges::find(tridy, KlicJmena(trida), KlicJmena);
    if (t != tridy.end()) return *t;
    std::string vyber;
    for (const std::string& jina : tridy) vyber += (vyber.empty() ? "" : ", ") + jina;
    throw BehovaChyba("V tabulce žáků není třída " + trida,
                      vyber.empty() ? "nemá třídy" : "má " + vyber);
}

TabulkaZaku NactiTabulkuZaku(const fs::path& soubor) {
    const auto obsah = CelySoubor(soubor);
    if (!obsah) throw BehovaChyba("Tabulku žáků nelze přečíst", soubor.string());
    // What is no UTF-8 does not come back from characters as it was.
    const bool utf8 = ZeZnaku(DoZnaku(*obsah)) == *obsah;
    return {utf8 ? *obsah : Z1250Vzdy(*obsah), soubor};
}

}  // namespace rysovna::prehled
