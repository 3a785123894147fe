#include "podpora/Zak.h"

#include "base/Cisla.h"
#include "rules/Misc.h"
#include "rules/Zaznamy.h"

namespace rysovna::testy {

std::vector<Chyba> Chyby(const Misc& misc) {
    std::vector<Chyba> chyby;
    for (int i = 1; i <= misc.PocetChybnychKroku; ++i) {
        const ChybnyKrok& k = misc.ChybneKroky[i];
        const std::size_t body = k.Text.rfind("  -");
        chyby.push_back({static_cast<int>(Cislo(k.Cislo)),
                         body == std::string::npos ? "" : k.Text.substr(body), k.Body});
    }
    return chyby;
}

}  // namespace rysovna::testy
