#include "engine/PametovaPlocha.h"

#include <algorithm>

#include "base/Cisla.h"
#include "base/Obdelniky.h"
#include "base/Pixely.h"
#include "base/Rastr.h"
#include "base/Text.h"

namespace rysovna {

namespace {

Barva Smichej(Barva cil, Barva zdroj, Rop rop) {
    switch (rop) {
        case Rop::SrcCopy:
            return zdroj;
        case Rop::SrcAnd:
            return cil & zdroj;
        case Rop::SrcPaint:
            return cil | zdroj;
    }
    return cil;
}

}  // namespace

PametovaPlocha::PametovaPlocha(int w, int h, bool jednobitova)
    : w_(std::max(w, 0)),
      h_(std::max(h, 0)),
      jednobitova_(jednobitova),
      body_(static_cast<std::size_t>(w_) * static_cast<std::size_t>(h_),
            jednobitova ? CERNA : BILA) {}

void PametovaPlocha::PSet(int x, int y, Barva barva) {
    if (!ZacniKreslit()) return;
    if (!Meze().Obsahuje(x, y)) return;
    body_[Misto(x, y)] = Barvivo(barva);
}

void PametovaPlocha::Vypln(const Obdelnik& kam, Barva barva) {
    if (kam.Width > 0 && kam.Height > 0)
        VyplnRadky(&body_[Misto(kam.Left, kam.Top)], w_, kam.Width, kam.Height, barva);
}

void PametovaPlocha::Line(float x1, float y1, float x2, float y2) {
    if (!ZacniKreslit()) return;
    const Barva barva = Barvivo(ForeColor);
    RastrUsecka(x1, y1, x2, y2, DrawWidth, Meze(), [&](const Obdelnik& o) { Vypln(o, barva); });
}

void PametovaPlocha::Circle(float x, float y, float r) {
    if (!ZacniKreslit()) return;
    const Barva barva = Barvivo(ForeColor);
    RastrKruznice(x, y, r, DrawWidth, Meze(), [&](const Obdelnik& o) { Vypln(o, barva); });
}

void PametovaPlocha::Print(std::string_view text) {
    if (!ZacniKreslit()) return;
    Obdelnik znak{Zaokrouhli(CurrentX), Zaokrouhli(CurrentY), SIRKA_ZNAKU, VYSKA_ZNAKU};
    for (const char32_t kod : DoZnaku(text)) {
        if (kod != U' ') Vypln(Prunik(znak, Meze()), Barvivo(ForeColor));
        znak.Left += SIRKA_ZNAKU;
    }
}

int PametovaPlocha::TextWidth(std::string_view text) const {
    return SIRKA_ZNAKU * PocetZnaku(text);
}

void PametovaPlocha::Cls() {
    if (!ZacniKreslit()) return;
    Vypln(Meze(), Barvivo(BackColor));
    CurrentX = CurrentY = 0;
}

Barva PametovaPlocha::Point(int x, int y) const {
    if (x < 0 || y < 0 || x >= w_ || y >= h_) return BEZ_BARVY;
    return body_[Misto(x, y)];
}

std::uint64_t PametovaPlocha::Radek(int x, int y, int pocet) const {
    return ObsazenoVRadku(body_.data(), w_, h_, x, y, pocet, BILA);
}

bool PametovaPlocha::BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy,
                            Rop rop) {
    if (!AutoRedraw) return true;
    if (&zdroj == this) {
        // The two areas may overlap.
        const PametovaPlocha kopie = *this;
        return BitBlt(x, y, w, h, kopie, zx, zy, rop);
    }
    const auto* pametova = dynamic_cast<const PametovaPlocha*>(&zdroj);
    const bool naJedenBit = jednobitova_ && !(pametova != nullptr && pametova->jednobitova_);
    const Obdelnik vZdroji{x - zx, y - zy, zdroj.Width(), zdroj.Height()};
    const Obdelnik kam = Prunik(Prunik({x, y, w, h}, Meze()), vZdroji);
    const bool celeRadky = rop == Rop::SrcCopy && pametova != nullptr && !naJedenBit;
    const bool cela = celeRadky && kam == Meze() && vZdroji == Meze();
    if (cela) {
        // A redraw copies the plane more than once: then it is there already.
        if (!pametova->obraz_) pametova->obraz_ = std::make_shared<const Obraz>();
        if (obraz_ == pametova->obraz_) return true;
    }
    obraz_ = cela ? pametova->obraz_ : nullptr;
    for (int py = kam.Top; py < kam.Top + kam.Height; ++py) {
        if (celeRadky) {
            if (kam.Width == 0) break;
            std::copy_n(&pametova->body_[pametova->Misto(kam.Left - x + zx, py - y + zy)],
                        kam.Width, &body_[Misto(kam.Left, py)]);
            continue;
        }
        for (int px = kam.Left; px < kam.Left + kam.Width; ++px) {
            const int sx = px - x + zx;
            const int sy = py - y + zy;
            Barva barva = pametova != nullptr ? pametova->body_[pametova->Misto(sx, sy)]
                                              : zdroj.Point(sx, sy);
            if (naJedenBit) barva = barva == zdroj.BkColor ? BILA : CERNA;
            Barva& cil = body_[Misto(px, py)];
            cil = Smichej(cil, barva, rop);
        }
    }
    return true;
}

void PametovaPlocha::InvertRect(int x, int y, int w, int h) {
    if (!ZacniKreslit()) return;
    const Obdelnik cast = Prunik({x, y, w, h}, Meze());
    for (int py = cast.Top; py < cast.Top + cast.Height; ++py) {
        for (int px = cast.Left; px < cast.Left + cast.Width; ++px) {
            Barva& bod = body_[Misto(px, py)];
            bod = ~bod & BILA;
        }
    }
}

std::unique_ptr<Plane> PametovaPlocha::CreateCompatibleBitmap(int w, int h) const {
    if (w <= 0 || h <= 0) return nullptr;
    return std::make_unique<PametovaPlocha>(w, h, jednobitova_);
}

std::unique_ptr<Plane> PametovaPlocha::CreateMonoBitmap(int w, int h) const {
    if (w <= 0 || h <= 0) return nullptr;
    return std::make_unique<PametovaPlocha>(w, h, true);
}

bool PametovaPlocha::StejnyObraz(const PametovaPlocha& jina) const {
    return w_ == jina.w_ && h_ == jina.h_ && body_ == jina.body_;
}

}  // namespace rysovna
