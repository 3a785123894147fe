#include "prehled/BaleniObrazcu.h"

#include <algorithm>
#include <optional>

#include "base/Cisla.h"
#include "platform/bmp/Sbaleni.h"

namespace rysovna::prehled {

namespace {

/// Calls with each figure of a series, in one order.
template <class S, class F>
void ProObrazce(S& serie, F coSNim) {
    for (auto& p : serie.Priklady) coSNim(p.Obrazec);
    for (auto& c : serie.Chyby) coSNim(c.Obrazec);
}

constexpr char ODDELOVAC = '\0';

}  // namespace

std::size_t DelkaObrazcu(const Serie& serie) {
    std::size_t delka = 0;
    ProObrazce(serie, [&delka](const std::string& o) { delka += o.size() + sizeof ODDELOVAC; });
    return delka;
}

std::string ZabalObrazce(const Serie& serie) {
    std::string vse;
    ProObrazce(serie, [&vse](const std::string& o) { vse += o + ODDELOVAC; });
    // How long it is when unpacked, in front.
    return std::to_string(vse.size()) + " " + Sbal(vse, Sbaleni::Rychle);
}

bool RozbalObrazce(std::string_view zabalene, Serie& serie) {
    const std::size_t mezera = std::min(zabalene.find(' '), zabalene.size());
    const auto delka = CeleCislo<std::size_t>(zabalene.substr(0, mezera));
    zabalene.remove_prefix(std::min(mezera + 1, zabalene.size()));
    if (!delka || *delka > NEJVIC_OBRAZCU) return false;
    const std::optional<std::string> vse = Rozbal(zabalene, *delka);
    if (!vse) return false;
    std::string_view zbyva = *vse;
    ProObrazce(serie, [&zbyva](std::string& o) {
        const std::size_t konec = std::min(zbyva.find(ODDELOVAC), zbyva.size());
        o = zbyva.substr(0, konec);
        zbyva.remove_prefix(std::min(konec + 1, zbyva.size()));
    });
    return true;
}

}  // namespace rysovna::prehled
