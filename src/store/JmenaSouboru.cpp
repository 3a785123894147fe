#include "store/JmenaSouboru.h"

#include <algorithm>

#include "base/Cisla.h"
#include "rules/Ulohy.h"

namespace rysovna {

std::string JmenoUlohy(int cislo) {
    return DveCislice(cislo) + ".dat";
}

std::string JmenoTabulky(int cislo) {
    return DveCislice(cislo) + ".res";
}

std::vector<std::string> JmenaDat() {
    std::vector<std::string> jmena;
    for (const Uloha& u : ULOHY) jmena.push_back(JmenoUlohy(u.Cislo));
    jmena.insert(jmena.end(), {JMENO_ZNAMEK, JMENO_VET});
    return jmena;
}

std::vector<std::string> JmenaVysledku() {
    std::vector<std::string> jmena;
    for (const Uloha& u : ULOHY) jmena.push_back(JmenoTabulky(u.Cislo));
    jmena.emplace_back(JMENO_DENIKU);
    return jmena;
}

std::string DenPokusu(const DatumACas& d) {
    return std::to_string(d.Rok) + DveCislice(d.Mesic) + DveCislice(d.Den);
}

std::string ZacatekJmenaPokusu(const DatumACas& d, int cisloUlohy) {
    return DenPokusu(d) + "-" + DveCislice(d.Hodina) + DveCislice(d.Minuta) + "-" +
           DveCislice(cisloUlohy) + "-";
}

bool ZacinaJakoPokus(std::string_view jmeno) {
    // What ZacatekJmenaPokusu makes, 0 for any digit.
    constexpr std::string_view TVAR = "00000000-0000-00-";
    const auto sedi = [](char tvar, char z) {
        return tvar == '0' ? z >= '0' && z <= '9' : z == tvar;
    };
    return std::ranges::equal(TVAR, jmeno.substr(0, TVAR.size()), sedi);
}

}  // namespace rysovna
