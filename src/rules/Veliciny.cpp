#include "rules/Veliciny.h"

#include <algorithm>
#include <iterator>

#include "base/Cisla.h"
#include "base/Plane.h"
#include "base/Text.h"

namespace rysovna {

namespace {

/// An angle, and the letter of the typeface "Symbol" that shows how it is written.
struct Uhel {
    std::string_view Nazev;
    char32_t Symbol;
};
constexpr Uhel UHLY[] = {
    {"alfa", U'a'}, {"beta", U'b'}, {"gama", U'g'}, {"delta", U'd'}, {"epsi", U'e'}, {"omeg", U'w'},
};

/// Data spell one of the names in two ways.
std::string_view Cele(std::string_view nazev) {
    return nazev == "delt" ? "delta" : nazev;
}

/// Null if it is none.
const Uhel* NajdiUhel(std::string_view nazev) {
    const auto* u = std::ranges::find(UHLY, Cele(nazev), &Uhel::Nazev);
    return u == std::end(UHLY) ? nullptr : u;
}

}  // namespace

bool StejnaVelicina(std::string_view a, std::string_view b) {
    return Cele(a) == Cele(b);
}

bool JeUhel(std::string_view nazev) {
    return NajdiUhel(nazev) != nullptr;
}

std::string PismenoUhlu(std::string_view nazev) {
    const Uhel* u = NajdiUhel(nazev);
    if (u == nullptr) return std::string(nazev);
    const char32_t pismeno = ZnakSymbolu(u->Symbol);
    return ZeZnaku({&pismeno, 1});
}

std::string SymbolUhlu(std::string_view nazev) {
    const Uhel* u = NajdiUhel(nazev);
    return u == nullptr ? std::string(nazev) : ZeZnaku({&u->Symbol, 1});
}

std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni) {
    return "= " + TextCisla(hodnota) + " " + std::string(jednotka) + (posledni ? "" : ", ");
}

}  // namespace rysovna
