#include "rules/Zadani.h"

#include <utility>

#include "base/Cisla.h"

namespace rysovna {

namespace {

constexpr std::pair<std::string_view, std::string_view> UHLY[] = {
    {"alfa", "a"}, {"beta", "b"}, {"gama", "g"}, {"delta", "d"},
    {"delt", "d"}, {"epsi", "e"}, {"omeg", "w"},
};

constexpr float VELIKOST_ZADANI = 10;  // points

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

std::string_view PismenoUhlu(std::string_view nazev) {
    for (const auto& [jmeno, pismeno] : UHLY) {
        if (jmeno == nazev) return pismeno;
    }
    return {};
}

std::string TextHodnoty(int hodnota, std::string_view jednotka, bool posledni) {
    return "= " + TextCisla(hodnota) + " " + std::string(jednotka) + (posledni ? "" : ", ");
}

PolozkaZadani NazevStrany(std::string_view nazev, int mezera, bool novyRadek) {
    PolozkaZadani p{.Text = std::string(nazev), .Mezera = mezera, .NovyRadek = novyRadek};
    p.Font = {Pismo::Rez::MsSansSerif, VELIKOST_ZADANI, true, false};
    return p;
}

PolozkaZadani NazevUhlu(std::string_view pismeno, int mezera, bool novyRadek) {
    PolozkaZadani p{.Text = std::string(pismeno), .Mezera = mezera, .NovyRadek = novyRadek};
    p.Font = {Pismo::Rez::Symbol, VELIKOST_ZADANI, false, false};
    return p;
}

PolozkaZadani HodnotaZadani(std::string text, int mezera) {
    PolozkaZadani p{.Text = std::move(text), .Mezera = mezera};
    p.Font = {Pismo::Rez::MsSansSerif, VELIKOST_ZADANI, false, false};
    return p;
}

int VylosujPriklad(Misc& misc) {
    return misc.Generator.D(misc.PocetPrikladu, 1);
}

}  // namespace rysovna
