#include "Kontrola.h"

#include <cstdint>
#include <iostream>
#include <set>
#include <sstream>

#include "Kresleni.h"
#include "Predlohy.h"
#include "base/Chyba.h"

namespace rysovna::obrazky {

namespace {

/// A whole number of a file's head, highest byte first.
int Cislo(const std::string& data, std::size_t od, std::size_t bytu) {
    std::uint32_t vysledek = 0;
    for (std::size_t i = 0; i < bytu; ++i)
        vysledek = vysledek << 8 | static_cast<unsigned char>(data.at(od + i));
    return static_cast<int>(vysledek);
}

/// What is wrong with a picture and its twin, or an empty text.
std::string VadaObrazku(const std::filesystem::path& soubor, int w, int h) {
    auto dvojce = soubor;
    dvojce.replace_extension(".png");
    if (!std::filesystem::exists(dvojce)) return "chybí velké dvojče";
    try {
        const ObrazBmp obraz = NactiObrazBmp(soubor);
        if (obraz.Sirka != w || obraz.Vyska != h) return "má jiný rozměr";
    } catch (const BehovaChyba& chyba) {
        return chyba.what();
    }
    const std::string png = NactiSoubor(dvojce);
    if (png.size() < 24 || png.compare(1, 3, "PNG") != 0) return "dvojče není PNG";
    if (Cislo(png, 16, 4) != w * ZVETSENI || Cislo(png, 20, 4) != h * ZVETSENI)
        return "dvojče má jiný rozměr";
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
