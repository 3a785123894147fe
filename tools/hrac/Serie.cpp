#include "hrac/Serie.h"

#include <string>

#include "rules/Misc.h"
#include "store/JmenaSouboru.h"
#include "zak/Sestroj.h"

namespace rysovna::hrac {

void OdehrajSerii(Relace& hra, RukaNaDesce ruka, int uloha, std::string_view jmeno, int prikladu,
                  std::uint32_t seminko) {
    constexpr std::uint32_t PO_POKRACOVANI = 200, NEZ_JE_ZADANI = 1600;  // ms
    hra.SpustUlohu(uloha, jmeno, prikladu);
    for (int i = 1; i <= prikladu; ++i) {
        Sestroj(ruka, seminko + static_cast<std::uint32_t>(i));
        ruka.Zkontroluj();
        if (hra.Pamet().SoucetZapornychBodu != 0) {
            throw NejdeUdelat("úloha " + std::to_string(uloha) + ", příklad " + std::to_string(i) +
                              ": " + hra.Pamet().ChybneKroky[1].Text);
        }
        hra.Stiskni("picPokracuj");
        hra.Cekej(i == prikladu ? PO_POKRACOVANI : NEZ_JE_ZADANI);
    }
}

void OdehrajSerii(Relace& hra, int uloha, std::string_view jmeno, int prikladu,
                  std::uint32_t seminko) {
    OdehrajSerii(hra, RukaNaDesce(hra, seminko), uloha, jmeno, prikladu, seminko);
}

void ZkopirujPokus(const Relace& hra, const std::filesystem::path& kam) {
    const std::filesystem::path slozka = hra.DataDir() / SLOZKA_POKUSU;
    for (const auto& soubor : std::filesystem::directory_iterator(slozka))
        std::filesystem::copy_file(soubor.path(), kam);
}

}  // namespace rysovna::hrac
