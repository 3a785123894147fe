#include "Kontrola.h"

#include <cstdint>
#include <iostream>
#include <set>
#include <sstream>

#include "Kresleni.h"
#include "Predlohy.h"
#include "base/Chyba.h"
#include "platform/ObrazekData.h"
#include "platform/Tvary.h"

namespace rysovna::obrazky {

namespace {

/// A pixel that differs by more levels is another one, and this share of them may be: glyphs and
/// edges lie a little otherwise.
constexpr int ROZDIL_BODU = 80;
constexpr double NEJVIC_JINYCH = 0.002;

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

void OverKlic(const ObrazBmp& rastr, const std::string& kde) {
    // No colour of the drawings has red and blue both this far above green, but mixtures have.
    constexpr int ODSTUP = 60;
    for (const std::uint32_t b : rastr.Body) {
        const int r = static_cast<int>(b >> 16 & 255);
        const int g = static_cast<int>(b >> 8 & 255);
        const int m = static_cast<int>(b & 255);
        if (b != KLIC && r > g + ODSTUP && m > g + ODSTUP)
            throw BehovaChyba("Okraj průhledné části není ostrý", kde);
    }
}

void OverTvary(const Tvary& tvary, const ObrazBmp& velky, const std::string& kde) {
    Bitmapa b(velky.Sirka, velky.Vyska, 0);
    KresliTvary(b.Pohled(), b.Pohled().Meze(), b.Pohled().Meze(), tvary);
    std::size_t jinych = 0;
    for (std::size_t i = 0; i < b.Body.size(); ++i) {
        const Pixel nas = b.Body[i];
        // At the edge of what is see-through the drawing is hard and the shapes are smooth.
        if (nas >> 24 != 255) continue;
        for (const unsigned posun : {0U, 8U, 16U}) {
            const int rozdil = static_cast<int>(nas >> posun & 255U) -
                               static_cast<int>(velky.Body[i] >> posun & 255U);
            if (std::abs(rozdil) > ROZDIL_BODU) {
                ++jinych;
                break;
            }
        }
    }
    const double podil = static_cast<double>(jinych) / static_cast<double>(b.Body.size());
    if (podil > NEJVIC_JINYCH)
        throw BehovaChyba("Tvary kreslí jiný obrázek: " + std::to_string(100 * podil) + " % bodů",
                          kde);
}

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
