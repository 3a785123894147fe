// Values of the parallelogram.

#include "rules/LosovaniRovnobezniku.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string_view>

#include "rules/FiguraCtyruhelniku.h"
#include "rules/Misc.h"
#include "rules/Tahy.h"

namespace rysovna {

namespace {

/// How the three values are drawn, kinds from Od to Po (two digits, so text compares as numbers).
/// The first two are lengths.
struct Losovani {
    std::string_view Od, Po;
    std::array<Vzorec, 2> Treti;  ///< the third value of an even kind, of an odd one
    bool Uhel;                    ///< two diagonals, the first the longer, and their angle
    bool Uhlopricky;              ///< diagonals are even: their halves fit the third value
};
constexpr Vzorec DELKA{12, 10}, OSTRY{67, 22}, TUPY{70, 91};
constexpr Losovani LOSOVANI[] = {{"01", "24", {DELKA, DELKA}, false, false},
                                 {"25", "56", {DELKA, DELKA}, false, true},
                                 {"57", "60", {OSTRY, TUPY}, true, true}};

bool JeUhlopricka(std::string_view nazev) {
    return nazev == "e" || nazev == "f";
}
bool Sude(int x) {
    return x % 2 == 0;
}

bool Vyhovuje(const Losovani& l, const std::string_view (&nazvy)[3], const HodnotyPrikladu& h) {
    if (l.Uhel) return h[0] > h[1] && Sude(h[0]) && Sude(h[1]);
    double delky[3];
    for (std::size_t i = 0; i < 3; ++i) {
        const bool pulka = l.Uhlopricky && JeUhlopricka(nazvy[i]);
        if (pulka && !Sude(h[i])) return false;
        delky[i] = pulka ? h[i] / 2.0 : h[i];
    }
    return Trojuhelnikova(delky[0], delky[1], delky[2]);
}

/// The whole parallelogram of these values, as the board would draw it, and its centre: four
/// vertices in order, then S. None if they make no triangle.
std::optional<std::array<Bod, 5>> SpocitejRovnobeznik(const Plane& plocha,
                                                      const VetaTrojuhelniku& veta,
                                                      const std::array<double, 3>& hodnoty) {
    const auto body = SpocitejTrojuhelnik(plocha, veta.Veta, hodnoty);
    if (!body) return {};
    std::map<char, Bod> misto;
    for (std::size_t i = 0; i < body->size(); ++i) misto[veta.Vrcholy[i]] = (*body)[i];
    for (const char c : {'A', 'B'}) {
        if (!misto.contains('S') && misto.contains(c) && misto.contains(Protejsi(c))) {
            misto['S'] = StredUseckyBodu(misto[c], misto[Protejsi(c)]);
        }
    }
    std::array<Bod, 5> vse{};
    for (std::size_t i = 0; i < 4; ++i) {
        const char c = "ABCD"[i];
        vse[i] = misto.contains(c) ? misto[c] : ObrazVeStredu(misto[Protejsi(c)], misto['S']);
    }
    vse[4] = misto['S'];
    return vse;
}

/// Whether the figure of the values can be read. Where the data name no triangle, any can.
bool FiguraCitelna(const Plane& plocha, const Priklad& p, std::span<const VetaTrojuhelniku> vety,
                   const HodnotyPrikladu& h) {
    const auto veta = std::ranges::find_if(vety, [&p](const VetaTrojuhelniku& v) {
        return v.Veta == p.Text1 && v.Trojuhelnik == p.Text2;
    });
    if (veta == vety.end()) return true;
    const auto body = SpocitejRovnobeznik(plocha, *veta, HodnotyVety(*veta, p, h));
    if (!body) return false;
    const auto& b = *body;
    const std::array<Bod, 4> vrcholy = {b[0], b[1], b[2], b[3]};
    return JeCitelna(b, {&vrcholy, 1});
}

}  // namespace

int VylosujRovnobeznik(Nahoda& nahoda, const Plane& plocha, const Priklad& p,
                       std::span<const VetaTrojuhelniku> vety, HodnotyPrikladu& hodnoty) {
    const std::string_view nazvy[] = {p.Nazev1, p.Nazev2, p.Nazev3};
    for (const Losovani& l : LOSOVANI) {
        if (p.Druh < l.Od || p.Druh > l.Po) continue;
        const std::size_t lichy = p.Druh.back() % 2 == 0 ? 0 : 1;
        for (int i = 1; i <= NEJVIC_LOSOVANI; ++i) {
            VylosujTri(nahoda, {DELKA, DELKA, l.Treti[lichy]}, hodnoty);
            if (Vyhovuje(l, nazvy, hodnoty) && FiguraCitelna(plocha, p, vety, hodnoty)) return i;
        }
        return NEJVIC_LOSOVANI;
    }
    return 0;
}

}  // namespace rysovna
