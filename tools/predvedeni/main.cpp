// Makes attempts of series without a fault: those of all tasks that the game shows to a class, by a
// hand that does nothing in vain, or that of one task.

#include <exception>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "base/Cisla.h"
#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "rules/Ulohy.h"
#include "store/UkladaniPokusu.h"

namespace {

using namespace rysovna;
using namespace rysovna::hrac;

/// Which examples are shown hangs on it: another one makes other files.
constexpr std::uint32_t SEMINKO = 7;

/// The number of a task; nothing if it is none.
std::optional<int> CisloUlohy(const std::string& text) {
    const auto cislo = CeleCislo<int>(text);
    return cislo && NajdiUlohu(*cislo) != nullptr ? cislo : std::nullopt;
}

/// Copies the attempt that the game has kept to a new file.
void ZkopirujPokus(const Relace& hra, const std::filesystem::path& kam) {
    const std::filesystem::path slozka = hra.DataDir() / UkladaniPokusu::SLOZKA;
    for (const auto& soubor : std::filesystem::directory_iterator(slozka))
        std::filesystem::copy_file(soubor.path(), kam);
}

void UlozPokus(int uloha, const std::filesystem::path& kam) {
    constexpr int PRIKLADU = 2;
    Relace hra(SEMINKO);
    hra.Start();
    OdehrajSerii(hra, uloha, "Žofie Řeřichová", PRIKLADU, SEMINKO);
    ZkopirujPokus(hra, kam);
}

void UlozPredvedeni(const std::filesystem::path& slozka) {
    constexpr int PRIKLADU = 5;
    std::filesystem::create_directories(slozka);
    for (const Uloha& uloha : ULOHY) {
        Relace hra(SEMINKO);
        hra.Start();
        OdehrajSerii(hra, RukaNaDesce(hra), uloha.Cislo, "Předvedení", PRIKLADU, SEMINKO);
        const std::filesystem::path kam =
            slozka / (DveCislice(uloha.Cislo) + std::string(UkladaniPokusu::PRIPONA));
        std::filesystem::remove(kam);
        ZkopirujPokus(hra, kam);
    }
}

}  // namespace

int main(int pocet, char** slova) {
    const std::vector<std::string> argumenty(slova + 1, slova + pocet);
    const std::optional<int> uloha = argumenty.size() == 3 && argumenty[0] == "--pokus"
                                         ? CisloUlohy(argumenty[1])
                                         : std::nullopt;
    if (!uloha && argumenty.size() != 1) {
        std::cerr << "Použití: predved SLOŽKA\n"
                     "         predved --pokus ČÍSLO_ÚLOHY NOVÝ_SOUBOR\n";
        return 2;
    }
    try {
        if (uloha) {
            UlozPokus(*uloha, argumenty[2]);
        } else {
            UlozPredvedeni(argumenty[0]);
        }
        return 0;
    } catch (const std::exception& chyba) {
        std::cerr << "Předvedení selhalo: " << chyba.what() << "\n";
        return 1;
    }
}
