#include "Kontrola.h"

#include <cstdint>
#include <iostream>
#include <set>
#include <sstream>

#include "Kresleni.h"
#include "Predlohy.h"

namespace rysovna::obrazky {

namespace {

/// A whole number of a file's head: bytes in the file's order, lowest or highest first.
std::uint32_t Cislo(const std::string& data, std::size_t od, int bytu, bool odNejvyssiho) {
    std::uint32_t vysledek = 0;
    for (int i = 0; i < bytu; ++i) {
        const auto misto = od + static_cast<std::size_t>(odNejvyssiho ? i : bytu - 1 - i);
        vysledek = vysledek << 8 | static_cast<unsigned char>(data.at(misto));
    }
    return vysledek;
}

/// What is wrong with a picture and its twin, or an empty text.
std::string VadaObrazku(const std::filesystem::path& soubor, std::uint32_t w, std::uint32_t h) {
    auto dvojce = soubor;
    dvojce.replace_extension(".png");
    if (!std::filesystem::exists(dvojce)) return "chybí velké dvojče";
    const std::string bmp = NactiSoubor(soubor);
    if (bmp.size() < 54 || bmp.compare(0, 2, "BM") != 0 || Cislo(bmp, 28, 2, false) != 24)
        return "není 24bitový obrázek";
    if (Cislo(bmp, 18, 4, false) != w || Cislo(bmp, 22, 4, false) != h) return "má jiný rozměr";
    const std::string png = NactiSoubor(dvojce);
    if (png.size() < 24 || png.compare(1, 3, "PNG") != 0) return "dvojče není PNG";
    if (Cislo(png, 16, 4, true) != w * ZVETSENI || Cislo(png, 20, 4, true) != h * ZVETSENI)
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
        std::uint32_t w = 0;
        std::uint32_t h = 0;
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
