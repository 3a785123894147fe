// Plays a whole example without a display, through the same events as a person's, and leaves a
// picture of each stage. Prints the lines that the log got.

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "base/Cisla.h"
#include "podpora/Zak.h"
#include "shell/Kodovani.h"
#include "shell/Ulohy.h"
#include "tasks/Desky.h"

namespace {

using namespace rysovna;
using namespace rysovna::testy;

constexpr double MERITKO = 2;  // of the pictures
constexpr int ULOHA = 1;
constexpr std::uint32_t SEMINKO = 7;

/// Takes pictures, numbered in the order of the stages.
class Fotograf {
public:
    Fotograf(Relace& hra, std::filesystem::path kam) : hra_(hra), kam_(std::move(kam)) {}
    void Vyfot(const std::string& co) {
        const auto soubor = kam_ / (DveCislice(++poradi_) + "_" + co + ".png");
        hra_.Host().Snimek(soubor.string(), MERITKO);
        std::cout << "  " << soubor.string() << "\n";
    }

private:
    Relace& hra_;
    std::filesystem::path kam_;
    int poradi_ = 0;
};

void Odehraj(const std::filesystem::path& kam) {
    NastavVyrobceDesek(VyrobDesku);
    Relace hra;
    Fotograf foto(hra, kam);
    hra.Host().SeminkoHry = SEMINKO;
    hra.StartDoTitulu();
    foto.Vyfot("titul");
    hra.StiskniMisto(320, 240);
    hra.Cekej(1200);
    foto.Vyfot("nabidka");
    hra.SpustUlohu(ULOHA, "Žofie Řeřichová", 1);
    foto.Vyfot("zadani");
    DokonalyZak zak(hra, SEMINKO, true);
    zak.OdehrajPriklad();
    foto.Vyfot("kontrola");
    hra.Stiskni("picPokracuj");
    hra.Cekej(200);
    foto.Vyfot("tabulka");
    std::cout << Z1250(hra.CtiSoubor("Vysledky.dat"), "Vysledky.dat");
}

}  // namespace

int main(int pocet, char** slova) {
    if (pocet != 2) {
        std::cerr << "Použití: ukazka SLOZKA_NA_OBRAZKY\n";
        return 2;
    }
    try {
        std::filesystem::create_directories(slova[1]);
        Odehraj(slova[1]);
        return 0;
    } catch (const std::exception& chyba) {
        std::cerr << "Ukázka selhala: " << chyba.what() << "\n";
        return 1;
    }
}
