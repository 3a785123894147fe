#include "rules/Zadani.h"

#include <algorithm>

#include "base/Cisla.h"

namespace rysovna {

namespace {

constexpr std::string_view UHLY[] = {"alfa", "beta", "gama", "delta", "delt", "epsi", "omeg"};

}  // namespace

bool Trojuhelnikova(double a, double b, double c) {
    return a + b > c && b + c > a && a + c > b;
}

void VylosujTri(Nahoda& nahoda, const std::array<Vzorec, 3>& vzorce, HodnotyPrikladu& hodnoty) {
    for (std::size_t i = 0; i < vzorce.size(); ++i) {
        hodnoty[i] = nahoda.D(vzorce[i].Rozpeti, vzorce[i].Zaklad);
    }
}

bool StejnaVelicina(std::string_view a, std::string_view b) {
    const auto cele = [](std::string_view n) { return n == "delt" ? "delta" : n; };
    return cele(a) == cele(b);
}

bool JeUhel(std::string_view nazev) {
    return std::ranges::find(UHLY, nazev) != std::end(UHLY);
}

std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni) {
    return "= " + TextCisla(hodnota) + " " + std::string(jednotka) + (posledni ? "" : ", ");
}

std::string NazevKolmice(std::string_view jmeno, std::string_view zaklad) {
    const std::string j(jmeno);
    return "přímka " + j + ", " + j + " " + std::string(KOLMO) + " " + std::string(zaklad);
}

int VylosujPriklad(Misc& misc) {
    return misc.Generator.D(misc.PocetPrikladu, 1);
}

}  // namespace rysovna
