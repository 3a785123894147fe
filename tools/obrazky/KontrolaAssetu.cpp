#include "KontrolaAssetu.h"

#include <iostream>
#include <set>
#include <sstream>
#include <string>

#include "Predlohy.h"
#include "base/Chyba.h"
#include "platform/ObrazekData.h"
#include "platform/Tvary.h"
#include "platform/bmp/Bmp.h"

namespace rysovna::obrazky {

namespace {

/// What is wrong with a picture and its shapes, or an empty text.
std::string VadaObrazku(const std::filesystem::path& soubor, int w, int h) {
    try {
        const ObrazBmp obraz = NactiObrazBmp(soubor);
        if (obraz.Sirka != w || obraz.Vyska != h) return "má jiný rozměr";
        const auto tvary = NactiTvary(SouborTvaru(soubor));
        if (!tvary) return "chybí tvary";
        if (tvary->Otisk != OtiskBodu(obraz)) return "tvary nejsou k tomuto obrázku";
        if (tvary->Sirka != w || tvary->Vyska != h) return "tvary mají jiný rozměr";
    } catch (const BehovaChyba& chyba) {
        return chyba.what();
    }
    return {};
}

}  // namespace

int Zkontroluj(const std::filesystem::path& seznam, const std::filesystem::path& assety) {
    int vad = 0;
    const auto ohlas = [&](const std::string& jmeno, const std::string& co) {
        std::cerr << jmeno << ": " << co << "\n";
        ++vad;
    };
    std::set<std::string> zname;
    std::stringstream proud(NactiSoubor(seznam));
    std::string text;
    while (std::getline(proud, text)) {
        std::stringstream radek(text);
        std::string jmeno;
        if (!(radek >> jmeno) || jmeno[0] == '#') continue;
        zname.insert(jmeno);
        const auto soubor = assety / jmeno;
        int w = 0;
        int h = 0;
        if (!std::filesystem::exists(soubor)) {
            ohlas(jmeno, "chybí");
        } else if (radek >> w >> h) {
            const std::string vada = VadaObrazku(soubor, w, h);
            if (!vada.empty()) ohlas(jmeno, vada);
        } else if (std::filesystem::file_size(soubor) == 0) {
            ohlas(jmeno, "je prázdný");
        }
    }
    for (const auto& polozka : std::filesystem::recursive_directory_iterator(assety)) {
        if (polozka.path().extension() != ".bmp") continue;
        const auto jmeno = polozka.path().lexically_relative(assety).generic_string();
        if (zname.count(jmeno) == 0) ohlas(jmeno, "není v seznamu");
    }
    return vad;
}

}  // namespace rysovna::obrazky
