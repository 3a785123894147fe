#include "rules/Veliciny.h"

#include <algorithm>
#include <iterator>

#include "base/Cisla.h"

namespace rysovna {

namespace {

struct Uhel {
    std::string_view Nazev, Pismeno, Symbol;
};
constexpr Uhel UHLY[] = {
    {"alfa", "α", "a"}, {"beta", "β", "b"}, {"gama", "γ", "g"}, {"delta", "δ", "d"},
    {"delt", "δ", "d"}, {"epsi", "ε", "e"}, {"omeg", "ω", "w"},
};

/// Null if it is none.
const Uhel* NajdiUhel(std::string_view nazev) {
    const auto* u = std::ranges::find(UHLY, nazev, &Uhel::Nazev);
    return u == std::end(UHLY) ? nullptr : u;
}

}  // namespace

bool StejnaVelicina(std::string_view a, std::string_view b) {
    const auto cele = [](std::string_view n) { return n == "delt" ? "delta" : n; };
    return cele(a) == cele(b);
}

bool JeUhel(std::string_view nazev) {
    return NajdiUhel(nazev) != nullptr;
}

std::string PismenoUhlu(std::string_view nazev) {
    const Uhel* u = NajdiUhel(nazev);
    return std::string(u == nullptr ? nazev : u->Pismeno);
}

std::string SymbolUhlu(std::string_view nazev) {
    const Uhel* u = NajdiUhel(nazev);
    return std::string(u == nullptr ? nazev : u->Symbol);
}

std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni) {
    return "= " + TextCisla(hodnota) + " " + std::string(jednotka) + (posledni ? "" : ", ");
}

}  // namespace rysovna
