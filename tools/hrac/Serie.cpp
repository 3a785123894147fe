#include "hrac/Serie.h"

#include <string>

#include "engine/Tabulky.h"
#include "hrac/Ctyruhelnik.h"
#include "hrac/Tecny.h"
#include "hrac/Trojuhelnik.h"
#include "rules/DialogCtyruhelnikuVrchol.h"
#include "rules/DialogTrojuhelniku.h"
#include "rules/Misc.h"

namespace rysovna::hrac {

void Sestroj(Ruka& ruka, std::uint32_t seminko) {
    const Dialog& d = ruka.Hrany();
    if (dynamic_cast<const DialogTrojuhelniku*>(&d) != nullptr) {
        DokonalyTrojuhelnik(ruka, seminko).Sestroj();
    } else if (dynamic_cast<const DialogCtyruhelnikuVrchol*>(&d) != nullptr) {
        DokonalyCtyruhelnik(ruka, seminko).Sestroj();
    } else if (dynamic_cast<const DialogCtyruhelniku*>(&d) != nullptr) {
        DokonalyRovnobeznik(ruka, seminko).Sestroj();
    } else {
        DokonaleTecny(ruka, seminko).Sestroj();
    }
}

void OdehrajSerii(Relace& hra, int uloha, std::string_view jmeno, int prikladu,
                  std::uint32_t seminko) {
    constexpr std::uint32_t PO_POKRACOVANI = 200, NEZ_JE_ZADANI = 1600;  // ms
    hra.SpustUlohu(uloha, jmeno, prikladu);
    RukaNaDesce ruka(hra, seminko);
    for (int i = 1; i <= prikladu; ++i) {
        Sestroj(ruka, seminko + static_cast<std::uint32_t>(i));
        ruka.Zkontroluj();
        if (SoucetZapornychBodu != 0) {
            throw NejdeUdelat("úloha " + std::to_string(uloha) + ", příklad " + std::to_string(i) +
                              ": " + ChybneKroky[1].Text);
        }
        hra.Stiskni("picPokracuj");
        hra.Cekej(i == prikladu ? PO_POKRACOVANI : NEZ_JE_ZADANI);
    }
}

}  // namespace rysovna::hrac
