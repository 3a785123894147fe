// The figures of an attempt: it is played again on planes that write what is drawn.

#include "prehled/Obrazce.h"

#include <utility>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "prehled/Prehled.h"
#include "prehled/SvgPlocha.h"
#include "rules/Prehravka.h"

namespace rysovna::prehled {

namespace {

/// A ring where the pupil pressed or let go when the charge fell.
constexpr int POLOMER_KROUZKU = 8;
std::string Krouzek(const Volani& v) {
    if (v.Co != Volani::Druh::Stisk && v.Co != Volani::Druh::Pusteni) return {};
    const auto cislo = [](float x) { return std::to_string(Zaokrouhli(static_cast<double>(x))); };
    return "<circle class='m' cx='" + cislo(v.X) + "' cy='" + cislo(v.Y) + "' r='" +
           std::to_string(POLOMER_KROUZKU) + "'/>";
}

}  // namespace

Obrazce NakresliPokus(const Pokus& pokus) {
    SvgPlocha pic(SIRKA_PLOCHY, VYSKA_PLOCHY), hidenPic(SIRKA_PLOCHY, VYSKA_PLOCHY);
    Obrazce obrazce{.Priklady = std::vector<std::string>(pokus.Priklady.size()),
                    .Chyby = std::vector<std::vector<std::string>>(pokus.Priklady.size())};
    Prehravka prehravka(pokus, {pic, hidenPic});
    while (prehravka.Dalsi()) {
        const std::size_t i = prehravka.Priklad() - 1;
        const HranyPriklad& priklad = pokus.Priklady[i];
        const std::size_t udalost = prehravka.Udalost();
        if (udalost == priklad.Udalosti.size()) obrazce.Priklady[i] = pic.Obsah();
        if (udalost == 0) continue;
        const Udalost& u = priklad.Udalosti[udalost - 1];
        if (u.Chyby.empty()) continue;
        const std::string obrazec = pic.Obsah() + Krouzek(u.Co);
        obrazce.Chyby[i].insert(obrazce.Chyby[i].end(), u.Chyby.size(), obrazec);
    }
    if (const auto& rozchod = prehravka.KdeSeRozesla()) obrazce.Rozchod = TextRozchodu(*rozchod);
    return obrazce;
}

}  // namespace rysovna::prehled
