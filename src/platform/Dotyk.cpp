#include "platform/Dotyk.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace rysovna {

namespace {

/// The shake of a lifting: not farther, not longer.
constexpr int CHVENI_PX = 3;
constexpr std::uint32_t CHVENI_MS = 80;

int Vedle(Bod a, Bod b) {
    return std::max(std::abs(a.X - b.X), std::abs(a.Y - b.Y));
}

int Ctverec(Bod a, Bod b) {
    const int dx = a.X - b.X;
    const int dy = a.Y - b.Y;
    return dx * dx + dy * dy;
}

}  // namespace

std::optional<Bod> NajdiCil(Bod odkud, const std::function<CilPrstu(Bod)>& coTamJe) {
    for (int r = 0; r <= DOSAH_PRSTU; ++r) {
        std::optional<Bod> nalezeno;
        CilPrstu cil;
        for (int dy = -r; dy <= r; ++dy) {
            for (int dx = -r; dx <= r; dx += std::abs(dy) == r || r == 0 ? 1 : 2 * r) {
                const Bod b{odkud.X + dx, odkud.Y + dy};
                const CilPrstu c = coTamJe(b);
                if (c.Co == nullptr) continue;
                if (nalezeno && !(c == cil)) return std::nullopt;
                cil = c;
                if (!nalezeno || Ctverec(b, odkud) < Ctverec(*nalezeno, odkud)) nalezeno = b;
            }
        }
        if (nalezeno) return nalezeno;
    }
    return std::nullopt;
}

void StopaPrstu::Zacni(Bod kde, std::uint32_t cas) {
    mista_.clear();
    Pridej(kde, cas);
}

void StopaPrstu::Pridej(Bod kde, std::uint32_t cas) {
    // Of what is older than a shake the last place is enough: there it was when that time began.
    while (mista_.size() > 1 && cas - mista_[1].Cas > CHVENI_MS) mista_.pop_front();
    mista_.push_back({kde, cas});
}

Bod StopaPrstu::Konec(std::uint32_t cas) const {
    if (mista_.empty()) return {};
    Bod konec = mista_.back().Kde;
    const Bod posledni = konec;
    for (auto m = mista_.rbegin(); m != mista_.rend(); ++m) {
        if (Vedle(m->Kde, posledni) > CHVENI_PX) break;
        konec = m->Kde;
        if (cas - m->Cas > CHVENI_MS) break;
    }
    return konec;
}

Podlozka Podlozka::VRohu(const Obdelnik& plocha, Bod zacatek, Bod konec) {
    const int vpravo = plocha.Left + plocha.Width - STRANA - OKRAJ;
    const int dole = plocha.Top + plocha.Height - STRANA - OKRAJ;
    Podlozka nejlepsi;
    int nejdal = -1;
    for (const Bod roh :
         {Bod{plocha.Left + OKRAJ, plocha.Top + OKRAJ}, Bod{vpravo, plocha.Top + OKRAJ},
          Bod{plocha.Left + OKRAJ, dole}, Bod{vpravo, dole}}) {
        const Bod stred{roh.X + STRANA / 2, roh.Y + STRANA / 2};
        const int daleko = std::min(Ctverec(stred, zacatek), Ctverec(stred, konec));
        if (daleko <= nejdal) continue;
        nejdal = daleko;
        nejlepsi.Roh = roh;
    }
    return nejlepsi;
}

std::optional<Bod> Podlozka::Pole(Bod b) const {
    if (!Obsahuje(b)) return std::nullopt;
    const Bod pole{(b.X - Roh.X) / POLE - 1, (b.Y - Roh.Y) / POLE - 1};
    if (pole.X != 0 && pole.Y != 0) return std::nullopt;
    return pole;
}

}  // namespace rysovna
