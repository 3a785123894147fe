#include "platform/Surface.h"

#include <algorithm>
#include <limits>
#include <map>

#include "base/Obdelniky.h"
#include "base/Pixely.h"
#include "base/Rastr.h"
#include "platform/Pisma.h"
#include "platform/SurfaceVnitrek.h"
#include "platform/Vrstvy.h"

namespace rysovna {

namespace {

/// Copies of copies deeper than this are kept as plain pixels.
constexpr int NEJVETSI_HLOUBKA = 6;

Prenos DoPrenosu(Rop rop) {
    return rop == Rop::SrcAnd     ? Prenos::Soucin
           : rop == Rop::SrcPaint ? Prenos::Soucet
                                  : Prenos::Kopie;
}

Obdelnik Cely(const Bitmapa& b) {
    return {0, 0, b.Sirka, b.Vyska};
}

Bitmapa Vyrizni(const Plane& zdroj, const Obdelnik& o) {
    Bitmapa b(o.Width, o.Height, DoPixelu(BILA));
    for (int y = 0; y < b.Vyska; ++y) {
        for (int x = 0; x < b.Sirka; ++x)
            b.Pohled().Radka(y)[x] = DoPixelu(zdroj.Point(o.Left + x, o.Top + y));
    }
    return b;
}

/// What is drawn on one bit is black or, in any other colour, white.
Pixel Barvivo(const Surface::Vnitrek& v, Barva barva) {
    const Pixel p = DoPixelu(barva);
    return v.Jednobitova && p != DoPixelu(CERNA) ? DoPixelu(BILA) : p;
}

/// A rectangle that lies within the bitmap.
void Vybarvi(const Vyhled& cil, const Obdelnik& o, Pixel barva) {
    VyplnRadky(cil.Radka(o.Top) + o.Left, cil.Krok, o.Width, o.Height, barva);
}

}  // namespace

Surface::Surface(int sirka, int vyska) : vnitrek_(std::make_unique<Vnitrek>()) {
    vnitrek_->Logicka = Bitmapa(sirka, vyska, DoPixelu(BILA));
    vnitrek_->Vyprazdni(DoPixelu(BILA));
}

Surface::~Surface() = default;

int Surface::Width() const {
    return vnitrek_->Logicka.Sirka;
}
int Surface::Height() const {
    return vnitrek_->Logicka.Vyska;
}
std::uint64_t Surface::Verze() const {
    return vnitrek_->Verze;
}

void Surface::Line(float x1, float y1, float x2, float y2) {
    if (!AutoRedraw) return;
    const Pixel barva = Barvivo(*vnitrek_, ForeColor);
    const Vyhled cil = vnitrek_->Logicka.Pohled();
    RastrUsecka(static_cast<double>(x1), static_cast<double>(y1), static_cast<double>(x2),
                static_cast<double>(y2), DrawWidth, cil.Meze(),
                [&](const Obdelnik& o) { Vybarvi(cil, o, barva); });
    vnitrek_->Pridej(PolozkaUsecky{x1, y1, x2, y2, std::max(DrawWidth, 1), barva});
}

void Surface::Circle(float x, float y, float r) {
    if (!AutoRedraw) return;
    const Pixel barva = Barvivo(*vnitrek_, ForeColor);
    const Vyhled cil = vnitrek_->Logicka.Pohled();
    RastrKruznice(static_cast<double>(x), static_cast<double>(y), static_cast<double>(r), DrawWidth,
                  cil.Meze(), [&](const Obdelnik& o) { Vybarvi(cil, o, barva); });
    vnitrek_->Pridej(PolozkaKruznice{x, y, r, std::max(DrawWidth, 1), barva});
}

void Surface::Kotouc(float x, float y, float r) {
    if (!AutoRedraw) return;
    const Pixel barva = Barvivo(*vnitrek_, ForeColor);
    const Vyhled cil = vnitrek_->Logicka.Pohled();
    constexpr int DALEKO = std::numeric_limits<int>::max() / 4;
    std::map<int, std::pair<int, int>> radky;
    RastrKruznice(static_cast<double>(x), static_cast<double>(y), static_cast<double>(r), 1,
                  {-DALEKO, -DALEKO, 2 * DALEKO, 2 * DALEKO}, [&](const Obdelnik& o) {
                      const int vpravo = o.Left + o.Width - 1;
                      for (int py = o.Top; py < o.Top + o.Height; ++py) {
                          auto [radka, nova] = radky.try_emplace(py, o.Left, vpravo);
                          radka->second.first = std::min(radka->second.first, o.Left);
                          radka->second.second = std::max(radka->second.second, vpravo);
                      }
                  });
    for (const auto& [py, meze] : radky)
        cil.Vypln({meze.first, py, meze.second - meze.first + 1, 1}, barva);
    vnitrek_->Pridej(PolozkaKruznice{x, y, r, 0, barva});
}

void Surface::Print(std::string_view text) {
    if (!AutoRedraw) return;
    const Pixel barva = Barvivo(*vnitrek_, ForeColor);
    const Vyhled cil = vnitrek_->Logicka.Pohled();
    KresliText(cil, cil.Meze(), static_cast<double>(CurrentX), static_cast<double>(CurrentY), 1,
               Font, text, barva, Hladkost::Logicka);
    vnitrek_->Pridej(PolozkaTextu{CurrentX, CurrentY, Font, std::string(text), barva, Svatozar});
}

int Surface::TextWidth(std::string_view text) const {
    return SirkaTextu(Font, text);
}
int Surface::TextHeight() const {
    return VyskaRadku(Font);
}

void Surface::Cls() {
    if (!AutoRedraw) return;
    CurrentX = 0;
    CurrentY = 0;
    Vnitrek& v = *vnitrek_;
    const Vyhled cil = v.Logicka.Pohled();
    cil.Vypln(cil.Meze(), Barvivo(v, BackColor));
    v.Vyprazdni(Barvivo(v, BackColor));
    if (v.Podklad.Prazdny()) return;
    const Obdelnik& vyrez = v.Podklad.Vyrez();
    Prenes(cil, {0, 0, vyrez.Width, vyrez.Height}, cil.Meze(), v.Podklad.Data()->Logicka(),
           vyrez.Left, vyrez.Top, Prenos::Kopie);
}

void Surface::NastavPodklad(const Obrazek& podklad) {
    vnitrek_->Podklad = podklad;
    Cls();
}

Barva Surface::Point(int x, int y) const {
    const Bitmapa& b = vnitrek_->Logicka;
    if (x < 0 || y < 0 || x >= b.Sirka || y >= b.Vyska) return BEZ_BARVY;
    return ZPixelu(b.Radka(y)[x]);
}

std::uint64_t Surface::Radek(int x, int y, int pocet) const {
    const Bitmapa& b = vnitrek_->Logicka;
    return ObsazenoVRadku(b.Body.data(), b.Sirka, b.Vyska, x, y, pocet, DoPixelu(BILA));
}

bool Surface::BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) {
    if (!AutoRedraw) return true;
    Vnitrek& v = *vnitrek_;
    // What neither side has is cut off.
    const Obdelnik odkud = Prunik({zx, zy, w, h}, {0, 0, zdroj.Width(), zdroj.Height()});
    const Obdelnik kam = Prunik(
        {x + odkud.Left - zx, y + odkud.Top - zy, odkud.Width, odkud.Height}, Cely(v.Logicka));
    if (JePrazdny(odkud) || JePrazdny(kam)) return true;
    const int kx = zx + kam.Left - x;
    const int ky = zy + kam.Top - y;

    const auto* plocha = dynamic_cast<const Surface*>(&zdroj);
    const bool zBarev = plocha == nullptr || !plocha->vnitrek_->Jednobitova;
    Prenos jak = DoPrenosu(rop);
    if (v.Jednobitova && zBarev) {
        if (rop != Rop::SrcCopy) {
            const auto bity = CreateMonoBitmap(kam.Width, kam.Height);
            return bity->BitBlt(0, 0, kam.Width, kam.Height, zdroj, kx, ky, Rop::SrcCopy) &&
                   BitBlt(kam.Left, kam.Top, kam.Width, kam.Height, *bity, 0, 0, rop);
        }
        jak = Prenos::NaJednobitovou;
    }
    const Pixel klic = DoPixelu(zdroj.BkColor);
    const Vyhled cil = v.Logicka.Pohled();

    if (plocha == nullptr || plocha == this ||
        plocha->vnitrek_->Obsah.Kde->Hloubka >= NEJVETSI_HLOUBKA) {
        auto pixely = std::make_shared<Bitmapa>(Vyrizni(zdroj, {kx, ky, kam.Width, kam.Height}));
        Prenes(cil, kam, cil.Meze(), *pixely, 0, 0, jak, klic);
        v.Pridej(PolozkaPixelu{kam, std::move(pixely), jak, klic});
        return true;
    }
    const Vnitrek& z = *plocha->vnitrek_;
    const bool cela = jak == Prenos::Kopie && kx == 0 && ky == 0 && kam == Cely(v.Logicka) &&
                      kam == Cely(z.Logicka);
    // A redraw copies the plane twice: the second time it is there already.
    if (cela && v.Obsah.Kde == z.Obsah.Kde && v.Obsah.Pocet == z.Obsah.Pocet) return true;
    Prenes(cil, kam, cil.Meze(), z.Logicka, kx, ky, jak, klic);
    v.MaKlic = v.MaKlic || z.MaKlic;
    if (cela) {
        v.Obsah = z.Obsah;
        v.NovaVerze();
    } else {
        v.Pridej(PolozkaKopie{kam, z.Obsah, kx, ky, jak, klic});
    }
    return true;
}

void Surface::InvertRect(int x, int y, int w, int h) {
    if (!AutoRedraw) return;
    vnitrek_->Logicka.Pohled().Obrat({x, y, w, h});
    vnitrek_->Pridej(PolozkaObraceni{Prunik({x, y, w, h}, Cely(vnitrek_->Logicka))});
}

std::unique_ptr<Plane> Surface::CreateCompatibleBitmap(int w, int h) const {
    if (w < 1 || h < 1) return nullptr;
    auto plocha = std::make_unique<Surface>(w, h);
    plocha->vnitrek_->Jednobitova = vnitrek_->Jednobitova;
    return plocha;
}

std::unique_ptr<Plane> Surface::CreateMonoBitmap(int w, int h) const {
    if (w < 1 || h < 1) return nullptr;
    auto plocha = std::make_unique<Surface>(w, h);
    plocha->vnitrek_->Jednobitova = true;
    plocha->BackColor = CERNA;
    plocha->Cls();
    return plocha;
}

void Surface::Vypln(int x, int y, int w, int h, Barva barva) {
    if (!AutoRedraw) return;
    const Pixel p = Barvivo(*vnitrek_, barva);
    vnitrek_->Logicka.Pohled().Vypln({x, y, w, h}, p);
    vnitrek_->Pridej(PolozkaVyplne{{x, y, w, h}, p});
}

void Surface::PaintPicture(const Obrazek& obrazek, int x, int y) {
    if (!AutoRedraw || obrazek.Prazdny()) return;
    const Vyhled cil = vnitrek_->Logicka.Pohled();
    const Obdelnik& vyrez = obrazek.Vyrez();
    Prenes(cil, {x, y, vyrez.Width, vyrez.Height}, cil.Meze(), obrazek.Data()->Logicka(),
           vyrez.Left, vyrez.Top, Prenos::Kopie);
    vnitrek_->MaKlic = vnitrek_->MaKlic || obrazek.Data()->MaKlic();
    vnitrek_->Pridej(PolozkaObrazku{obrazek, x, y});
}

void Surface::PolozVrstvy(const Surface& dolni, const Surface& horni, int vpravo) {
    if (!AutoRedraw) return;
    Vnitrek& v = *vnitrek_;
    const Vnitrek& d = *dolni.vnitrek_;
    const Vnitrek& h = *horni.vnitrek_;
    const Obdelnik cely = Cely(v.Logicka);
    SlozVrstvy(v.Logicka.Pohled(), cely, cely, d.Logicka, h.Logicka, vpravo);
    v.MaKlic = d.MaKlic;
    if (std::max(d.Obsah.Kde->Hloubka, h.Obsah.Kde->Hloubka) >= NEJVETSI_HLOUBKA) {
        v.Pridej(PolozkaPixelu{cely, std::make_shared<Bitmapa>(v.Logicka), Prenos::Kopie, KLIC});
    } else {
        v.Pridej(PolozkaVrstev{d.Obsah, h.Obsah, vpravo});
    }
}

}  // namespace rysovna
