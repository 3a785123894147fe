// The overview of a class: reads attempts and writes one page and two tables.

#include <iostream>
#include <string>
#include <vector>

#include "platform/Stroj.h"

namespace {

constexpr const char* POUZITI = "Použití: prehled SLOŽKA... -o SOUBOR.html\n";
constexpr int V_PORADKU = 0, SPATNE_ZADANI = 2;

}  // namespace

int main(int pocet, char** slova) {
    const std::vector<std::string> argumenty = rysovna::Argumenty(pocet, slova);
    if (argumenty.size() == 1 && argumenty[0] == "--help") {
        std::cout << POUZITI;
        return V_PORADKU;
    }
    std::cerr << POUZITI;
    return SPATNE_ZADANI;
}
