#include "store/JmenaSouboru.h"

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

}  // namespace rysovna
