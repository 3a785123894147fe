#include "rules/Zadani.h"

namespace rysovna {

void VylosujTri(Nahoda& nahoda, const std::array<Vzorec, 3>& vzorce, HodnotyPrikladu& hodnoty) {
    for (std::size_t i = 0; i < vzorce.size(); ++i) {
        hodnoty[i] = nahoda.D(vzorce[i].Rozpeti, vzorce[i].Zaklad);
    }
}

bool Trojuhelnikova(double a, double b, double c) {
    return a + b > c && b + c > a && a + c > b;
}

int VylosujPriklad(Misc& misc) {
    return misc.Generator.D(misc.PocetPrikladu, 1);
}

}  // namespace rysovna
