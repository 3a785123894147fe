#include "OvereniKresby.h"

#include <cstdint>
#include <cstdlib>

#include "base/Chyba.h"
#include "platform/Bitmapa.h"

namespace rysovna::obrazky {

namespace {

/// A pixel that differs by more levels is another one, and this share of them may be: glyphs and
/// edges lie a little otherwise.
constexpr int ROZDIL_BODU = 80;
constexpr double NEJVIC_JINYCH = 0.002;

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

}  // namespace rysovna::obrazky
