#include "store/Vysledek.h"

#include "base/Cisla.h"
#include "base/Text.h"
#include "store/KodovaStranka.h"
#include "store/RadkySouboru.h"

namespace rysovna {
namespace {

// Widths of the log's values, characters. What is longer stays whole.
constexpr int SIRKA_JMENA = 35;
constexpr int SIRKA_DATA = 10;
constexpr int SIRKA_HRY = 20;
constexpr int SIRKA_TYPU = 30;
constexpr int SIRKA_CISLA = 6;

/// The line that ends an entry is made of it.
constexpr char CARA = '=';
constexpr std::size_t DELKA_CARY = 75;

}  // namespace

std::string TextData(const DatumACas& kdy) {
    return TextBezMezery(kdy.Den) + "." + TextBezMezery(kdy.Mesic) + "." + TextBezMezery(kdy.Rok);
}

std::string TextCasu(const DatumACas& kdy) {
    return DveCislice(kdy.Hodina) + ":" + DveCislice(kdy.Minuta);
}

std::string RadkyDeniku(const Vysledek& v) {
    const std::string radky[]{
        "Jméno: " + Dopln(v.Jmeno, SIRKA_JMENA) +
            "   Datum: " + Dopln(TextData(v.Konec), SIRKA_DATA) + "   Čas: " + TextCasu(v.Konec),
        "Hra: " + Dopln(v.Hra, SIRKA_HRY) + " Typ úlohy: " + Dopln(v.Typ, SIRKA_TYPU),
        "Počet příkladů:  " + Dopln(v.Prikladu, SIRKA_CISLA) +
            "   Klad. body: " + Dopln(v.Kladne, SIRKA_CISLA) +
            " Záp. body: " + Dopln(v.Zaporne, SIRKA_CISLA) + "   Známka:  " + v.Znamka,
        std::string(DELKA_CARY, CARA),
    };
    std::string zapis;
    for (const std::string& radek : radky) {
        zapis += radek;
        zapis += KONEC_RADKU;
    }
    return Do1250(zapis);
}

std::vector<std::string> ZapisyDeniku(std::string_view denik) {
    const std::string konecCary = CARA + std::string(KONEC_RADKU);
    std::vector<std::string> zapisy;
    while (!denik.empty()) {
        const std::size_t cara = denik.find(konecCary);
        const std::size_t konec =
            cara == std::string_view::npos ? denik.size() : cara + konecCary.size();
        zapisy.emplace_back(denik.substr(0, konec));
        denik.remove_prefix(konec);
    }
    return zapisy;
}

}  // namespace rysovna
