// Plays examples without a display, through the same events as a person's, and leaves a picture of
// each stage, and prints the lines that the log got; or leaves the attempt of a series without a
// fault.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Cisla.h"
#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "rules/Ulohy.h"
#include "store/JmenaSouboru.h"
#include "store/KodovaStranka.h"
#include "zak/Sestroj.h"

namespace {

using namespace rysovna;
using namespace rysovna::hrac;

constexpr double MERITKO = 2;  // of the pictures
constexpr std::uint32_t SEMINKO = 7;
constexpr const char* JMENO = "Žofie Řeřichová";

/// Takes pictures, numbered in the order of the stages.
class Fotograf {
public:
    Fotograf(Relace& hra, std::filesystem::path kam) : hra_(hra), kam_(std::move(kam)) {}
    void Vyfot(const std::string& co) {
        hra_.Poznamenej("fotka " + co);
        const auto soubor = kam_ / (DveCislice(++poradi_) + "_" + co + ".png");
        hra_.Host().Snimek(soubor.string(), MERITKO);
        std::cout << "  " << soubor.string() << "\n";
    }

private:
    Relace& hra_;
    std::filesystem::path kam_;
    int poradi_ = 0;
};

/// From the menu to the score table and back, with pictures on the way.
void OdehrajUlohu(Relace& hra, Fotograf& foto, int uloha) {
    const std::string cislo = DveCislice(uloha);
    hra.SpustUlohu(uloha, JMENO, 1);
    foto.Vyfot(cislo + "_zadani");
    RukaNaDesce ruka(hra);
    Sestroj(ruka, SEMINKO);
    foto.Vyfot(cislo + "_konstrukce");
    ruka.Zkontroluj();
    foto.Vyfot(cislo + "_kontrola");
    hra.Stiskni("picPokracuj");
    hra.Cekej(200);
    foto.Vyfot(cislo + "_tabulka");
    // The buttons lie one over the other: what came sooner would be a double click.
    hra.Stiskni("picKonec");
    hra.Cekej(600);
    hra.Stiskni("picKonec");
    hra.Cekej(1200);
}

void Odehraj(const std::filesystem::path& kam, const std::vector<int>& ulohy, Relace::Cim cim) {
    Relace hra(SEMINKO, cim);
    std::ofstream zaznam(kam / "udalosti.txt");
    hra.Zaznamenavej(zaznam);
    hra.Poznamenej("seminko " + std::to_string(SEMINKO));
    Fotograf foto(hra, kam);
    hra.StartDoTitulu();
    foto.Vyfot("titul");
    hra.PreskocTitul();
    foto.Vyfot("nabidka");
    for (const int uloha : ulohy) OdehrajUlohu(hra, foto, uloha);
    std::cout << Z1250(hra.CtiSoubor(JMENO_DENIKU), JMENO_DENIKU);
}

/// Two examples of a task without a fault; what the game keeps of them goes to a new file.
void OdehrajPokus(int uloha, const std::filesystem::path& kam) {
    constexpr int PRIKLADU = 2;
    Relace hra(SEMINKO);
    hra.Start();
    OdehrajSerii(hra, uloha, JMENO, PRIKLADU, SEMINKO);
    ZkopirujPokus(hra, kam);
}

/// The number of a task; nothing if it is none.
std::optional<int> CisloUlohy(const std::string& text) {
    const auto cislo = CeleCislo<int>(text);
    return cislo && NajdiUlohu(*cislo) != nullptr ? cislo : std::nullopt;
}

}  // namespace

int main(int pocet, char** slova) {
    std::vector<std::string> argumenty(slova + 1, slova + pocet);
    using Cim = Relace::Cim;
    Cim cim = Cim::Mysi;
    for (const auto& [volba, jak] :
         {std::pair{"--klavesami", Cim::Klavesami}, std::pair{"--prstem", Cim::Prstem}}) {
        if (argumenty.empty() || argumenty[0] != volba) continue;
        cim = jak;
        argumenty.erase(argumenty.begin());
    }
    const bool pokus = !argumenty.empty() && argumenty[0] == "--pokus";
    if (argumenty.empty() || (pokus && (argumenty.size() != 3 || !CisloUlohy(argumenty[1])))) {
        std::cerr << "Použití: ukazka [--klavesami | --prstem] SLOŽKA_NA_OBRÁZKY [ČÍSLO_ÚLOHY...]\n"
                     "         ukazka --pokus ČÍSLO_ÚLOHY NOVÝ_SOUBOR\n"
                     "Bez čísel se hraje první úloha.\n";
        return 2;
    }
    try {
        if (pokus) {
            OdehrajPokus(*CisloUlohy(argumenty[1]), argumenty[2]);
            return 0;
        }
        std::vector<int> ulohy;
        for (std::size_t i = 1; i < argumenty.size(); ++i) {
            ulohy.push_back(static_cast<int>(Cislo(argumenty[i])));
        }
        if (ulohy.empty()) ulohy.push_back(1);
        std::filesystem::create_directories(argumenty[0]);
        Odehraj(argumenty[0], ulohy, cim);
        return 0;
    } catch (const std::exception& chyba) {
        std::cerr << "Ukázka selhala: " << chyba.what() << "\n";
        return 1;
    }
}
