#include <filesystem>
#include <iostream>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "CeleSoubory.h"
#include "Kontrola.h"
#include "Prevod.h"
#include "base/Chyba.h"
#include "platform/Stroj.h"
#include "platform/bmp/Bmp.h"

// The data tool: codes, decodes and checks the files of the data root; packs bitmaps.

namespace {

using Slova = std::vector<std::string>;
using namespace rysovna;

constexpr std::string_view POUZITI =
    R"(Použití:
  kodovani zakoduj ZDROJ CÍL      čitelný soubor (.txt, UTF-8) uloží tak, jak ho čte Rysovna
  kodovani dekoduj ZDROJ CÍL      uložený soubor (.dat) převede na čitelný
  kodovani zkontroluj SOUBOR...   ohlásí chyby: soubor, řádek, pole a důvod
  kodovani rozbal ZDROJ CÍL       obrázek (.bmp) uloží tak, aby ho otevřel každý malovací program
  kodovani zabal ZDROJ CÍL        obrázek s 24 bity na bod uloží co nejmenší
  kodovani --help                 tato nápověda

Co je v souboru, se pozná podle jména: 01 až 20 jsou příklady úloh, Errors věty k chybným krokům,
Znamky stupnice známek; 01.res až 20.res jsou tabulky výsledků (ty jdou jen zkontrolovat a
přečíst). V čitelném souboru jsou řádky začínající středníkem poznámky.

Rysovna čte obrázky zabalené i prosté. Obrázek, který se od dodaného liší, se ve větším okně zvětší,
jak je; dodaný se kreslí přesně.

Návratová hodnota: 0 v pořádku, 1 nalezené chyby nebo soubor nejde přečíst či zapsat, 2 špatné
zadání příkazu.
)";

constexpr int V_PORADKU = 0, CHYBY = 1, SPATNE_ZADANI = 2;

int Zkontroluj(const Slova& soubory) {
    int vysledek = V_PORADKU;
    for (const std::string& soubor : soubory) {
        try {
            for (const kodovani::Nalez& n : kodovani::Zkontroluj(CestaZTextu(soubor))) {
                vysledek = CHYBY;
                std::cout << n.Misto << ": " << n.Pole << (n.Pole.empty() ? "" : ": ") << n.Duvod
                          << '\n';
            }
        } catch (const BehovaChyba& chyba) {
            // The other files are still worth looking at.
            vysledek = CHYBY;
            std::cout << chyba.what() << '\n';
        }
    }
    return vysledek;
}

/// Converts a file to another one. To itself would leave nothing of the readable text.
void Preved(const std::filesystem::path& zdroj, const std::filesystem::path& cil,
            std::string (*jak)(const std::filesystem::path&)) {
    std::error_code neexistuje;
    if (std::filesystem::equivalent(zdroj, cil, neexistuje)) {
        throw BehovaChyba("Zdroj a cíl jsou týž soubor", cil.string());
    }
    PrepisSoubor(cil, jak(zdroj));
}

std::string ZabalObrazek(const std::filesystem::path& zdroj) {
    return ZabalenyBmp(NactiObrazBmp(zdroj));
}
std::string RozbalObrazek(const std::filesystem::path& zdroj) {
    return ProstyBmp(NactiObrazBmp(zdroj));
}

/// The conversions by the command that asks for them.
constexpr struct {
    std::string_view Prikaz;
    std::string (*Jak)(const std::filesystem::path&);
} PREVODY[] = {{"zakoduj", kodovani::Zakoduj},
               {"dekoduj", kodovani::Dekoduj},
               {"zabal", ZabalObrazek},
               {"rozbal", RozbalObrazek}};

int Spust(const Slova& a) {
    if (a.size() == 1 && (a[0] == "--help" || a[0] == "-h")) {
        std::cout << POUZITI;
        return V_PORADKU;
    }
    if (a.size() == 3) {
        for (const auto& [prikaz, jak] : PREVODY) {
            if (a[0] != prikaz) continue;
            Preved(CestaZTextu(a[1]), CestaZTextu(a[2]), jak);
            return V_PORADKU;
        }
    }
    if (a.size() >= 2 && a[0] == "zkontroluj") {
        return Zkontroluj(Slova(a.begin() + 1, a.end()));
    }
    std::cerr << POUZITI;
    return SPATNE_ZADANI;
}

}  // namespace

int main(int pocet, char** slova) {
    try {
        return Spust(Argumenty(pocet, slova));
    } catch (const BehovaChyba& chyba) {
        std::cerr << chyba.what() << '\n';
    } catch (const std::bad_alloc&) {
        std::cerr << "Na tak velký soubor nestačí paměť\n";
    }
    return CHYBY;
}
