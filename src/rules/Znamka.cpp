#include "rules/Znamka.h"

#include "base/Chyba.h"
#include "base/Cisla.h"

namespace rysovna {

std::string UrciZnamku(const Misc& misc, int kladne, int celkem) {
    const double citatel = Bajt(kladne);
    const double jmenovatel = Bajt(celkem);
    if (jmenovatel == 0) Selhani("Dělení nulou");
    const double procenta = citatel / jmenovatel * 100;
    std::string znamka;
    for (int i = 1; i <= decltype(Misc::ZnamkyTab)::POSLEDNI; ++i) {
        const auto& [dolni, horni, stupen] = misc.ZnamkyTab[i];
        if (!(procenta > horni) && !(procenta < dolni)) znamka = TextBezMezery(stupen);
    }
    return znamka;
}

}  // namespace rysovna
