#include "platform/Vrstvy.h"

#include <algorithm>
#include <array>

#include "base/Obdelniky.h"

namespace rysovna {

namespace {

/// So many pixels are looked at together: mostly they are all of one kind.
constexpr int DAVKA = 16;

enum class Jsou { Kryci, Klic, Ruzne };

Jsou Rozeznej(const Pixel* body) {
    Pixel spolecne = 0xFFFFFFFFu;
    std::uint32_t klicu = 0;
    for (int i = 0; i < DAVKA; ++i) {
        spolecne &= body[i];
        klicu += body[i] == KLIC ? 1U : 0U;
    }
    if (klicu == DAVKA) return Jsou::Klic;
    return klicu == 0 && spolecne >> 24 == 0xFF ? Jsou::Kryci : Jsou::Ruzne;
}

void SlozRadek(Pixel* cil, const Pixel* dolni, const Pixel* horni, int pocet) {
    int i = 0;
    for (; i + DAVKA <= pocet; i += DAVKA) {
        const Jsou jsou = Rozeznej(horni + i);
        if (jsou != Jsou::Ruzne) {
            std::copy_n((jsou == Jsou::Klic ? dolni : horni) + i, DAVKA, cil + i);
            continue;
        }
        for (int j = i; j < i + DAVKA; ++j) cil[j] = BezKlice(dolni[j], horni[j]);
    }
    for (; i < pocet; ++i) cil[i] = BezKlice(dolni[i], horni[i]);
}

}  // namespace

void SlozVrstvy(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez, const Bitmapa& dolni,
                const Bitmapa& horni, int vpravo) {
    const Obdelnik spolecny{kam.Left, kam.Top,
                            std::min({kam.Width, dolni.Sirka, horni.Sirka + vpravo}),
                            std::min({kam.Height, dolni.Vyska, horni.Vyska})};
    const Obdelnik o = Prunik(Prunik(spolecny, orez), cil.Meze());
    const int zlom = std::clamp(kam.Left + vpravo, o.Left, o.Left + o.Width);
    for (int y = o.Top; y < o.Top + o.Height; ++y) {
        Pixel* c = cil.Radka(y);
        const Pixel* d = dolni.Radka(y - kam.Top) - kam.Left;
        const Pixel* h = horni.Radka(y - kam.Top) - kam.Left - vpravo;
        std::copy(d + o.Left, d + zlom, c + o.Left);
        SlozRadek(c + zlom, d + zlom, h + zlom, o.Left + o.Width - zlom);
    }
}

}  // namespace rysovna
