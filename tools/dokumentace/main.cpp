// Draws pictures of the documentation without a display: the board with the names of its controls,
// or an attempt as it is watched.

#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "dokumentace/Ovladace.h"
#include "dokumentace/Prehrani.h"

int main(int pocet, char** slova) {
    const std::vector<std::string> argumenty(slova + 1, slova + pocet);
    const std::string co = argumenty.size() == 2 ? argumenty[0] : "";
    try {
        if (co == "ovladace") {
            rysovna::dokumentace::NakresliOvladace(argumenty[1]);
            return 0;
        }
        if (co == "prehrani") {
            rysovna::dokumentace::VyfotPrehrani(argumenty[1]);
            return 0;
        }
        std::cerr << "Použití: dokumentace ovladace OBRÁZEK.png\n"
                     "         dokumentace prehrani OBRÁZEK.png\n";
        return 2;
    } catch (const std::exception& chyba) {
        std::cerr << "Obrázek se nepodařil: " << chyba.what() << "\n";
        return 1;
    }
}
