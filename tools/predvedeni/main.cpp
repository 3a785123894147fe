// Makes the attempts of series without a fault that the game shows to a class, by a hand that does
// nothing in vain.

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "base/Cisla.h"
#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "rules/Ulohy.h"
#include "store/JmenaSouboru.h"

namespace {

using namespace rysovna;
using namespace rysovna::hrac;

/// Which examples are shown hangs on it: another one makes other files.
constexpr std::uint32_t SEMINKO = 7;

void UlozPredvedeni(const std::filesystem::path& slozka) {
    constexpr int PRIKLADU = 5;
    std::filesystem::create_directories(slozka);
    for (const Uloha& uloha : ULOHY) {
        Relace hra(SEMINKO);
        hra.Start();
        OdehrajSerii(hra, RukaNaDesce(hra), uloha.Cislo, "Předvedení", PRIKLADU, SEMINKO);
        const std::filesystem::path kam =
            slozka / (DveCislice(uloha.Cislo) + std::string(PRIPONA_POKUSU));
        std::filesystem::remove(kam);
        ZkopirujPokus(hra, kam);
    }
}

}  // namespace

int main(int pocet, char** slova) {
    if (pocet != 2) {
        std::cerr << "Použití: predved SLOŽKA\n";
        return 2;
    }
    try {
        UlozPredvedeni(slova[1]);
        return 0;
    } catch (const std::exception& chyba) {
        std::cerr << "Předvedení selhalo: " << chyba.what() << "\n";
        return 1;
    }
}
