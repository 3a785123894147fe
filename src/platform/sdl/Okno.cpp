#include "platform/sdl/Okno.h"

#include <SDL.h>
#include <algorithm>
#include <cmath>
#include <string>

#include "base/Chyba.h"
#include "platform/Obrazovky.h"
#include "platform/sdl/OknoX11.h"

namespace rysovna {

namespace {

constexpr const char* NAZEV = "Rysovna 1";

Obdelnik CelyMonitor(int monitor) {
    SDL_Rect r{0, 0, NAVRH_SIRKA, NAVRH_VYSKA};
    SDL_GetDisplayBounds(monitor, &r);
    return {r.x, r.y, r.w, r.h};
}

/// What a window manager's frame is taken to be until it has made one.
constexpr RamOkna OBVYKLY_RAM{4, 36, 4, 4};

/// What the desktop leaves of the monitor beside its panels.
Obdelnik VolnaPlocha(int monitor) {
    SDL_Rect r{0, 0, NAVRH_SIRKA, NAVRH_VYSKA};
    if (SDL_GetDisplayUsableBounds(monitor, &r) != 0) SDL_GetDisplayBounds(monitor, &r);
    return {r.x, r.y, r.w, r.h};
}

RamOkna RamKolem(SDL_Window* okno) {
    if (!MaSpravceOken(okno)) return {};
    RamOkna ram;
    if (SDL_GetWindowBordersSize(okno, &ram.Nahore, &ram.Vlevo, &ram.Dole, &ram.Vpravo) != 0 ||
        ram.Nahore == 0)
        return OBVYKLY_RAM;
    return ram;
}

}  // namespace

Obdelnik MistoOkna(const Obdelnik& plocha, const RamOkna& ram) {
    const int sirka = plocha.Width - ram.Vlevo - ram.Vpravo;
    const int vyska = plocha.Height - ram.Nahore - ram.Dole;
    // The sides are 4 to 3: by so many units of both.
    static_assert(NAVRH_SIRKA * 3 == NAVRH_VYSKA * 4);
    const int dilku = std::max(std::min(sirka / 4, vyska / 3), NAVRH_SIRKA / 4);
    const int w = dilku * 4;
    const int h = dilku * 3;
    return {plocha.Left + ram.Vlevo + std::max((sirka - w) / 2, 0),
            plocha.Top + ram.Nahore + std::max((vyska - h) / 2, 0), w, h};
}

Okno::~Okno() {
    Zavri();
}

int Okno::MonitorSMysi() {
    int x = 0;
    int y = 0;
    SDL_GetGlobalMouseState(&x, &y);
    const SDL_Point mys{x, y};
    for (int i = 0; i < SDL_GetNumVideoDisplays(); ++i) {
        SDL_Rect meze;
        if (SDL_GetDisplayBounds(i, &meze) == 0 && SDL_PointInRect(&mys, &meze)) return i;
    }
    return 0;
}

void Okno::Zavri() {
    if (okno_ != nullptr) {
        SDL_HideWindow(okno_);
        // What is still said about the window is taken while it is there.
        SDL_PumpEvents();
        SDL_DestroyWindow(okno_);
    }
    okno_ = nullptr;
    ukazane_ = false;
    malir_->Znovu();
}

bool Okno::Otevri(bool celaObrazovka) {
    const int monitor = MonitorSMysi();
    if (okno_ != nullptr) {
        if (celaObrazovka != cela_) PrepniCelouObrazovku();
        return true;
    }
    const Obdelnik kde =
        celaObrazovka ? CelyMonitor(monitor) : MistoOkna(VolnaPlocha(monitor), OBVYKLY_RAM);
    const Uint32 vzhled = SDL_WINDOW_HIDDEN | SDL_WINDOW_RESIZABLE | SDL_WINDOW_ALLOW_HIGHDPI |
                          (celaObrazovka ? Uint32{SDL_WINDOW_BORDERLESS} : 0U);
    okno_ = SDL_CreateWindow(NAZEV, kde.Left, kde.Top, kde.Width, kde.Height, vzhled);
    if (okno_ == nullptr) return false;
    SDL_SetWindowMinimumSize(okno_, NAVRH_SIRKA, NAVRH_VYSKA);
    cela_ = celaObrazovka;
    if (cela_ && MaSpravceOken(okno_))
        SDL_SetWindowFullscreen(okno_, SDL_WINDOW_FULLSCREEN_DESKTOP);
    if (!cela_) Umisti(MistoOkna(VolnaPlocha(monitor), RamKolem(okno_)));
    malir_->Znovu();
    return true;
}

void Okno::Umisti(const Obdelnik& kde) {
    SDL_SetWindowSize(okno_, kde.Width, kde.Height);
    SDL_SetWindowPosition(okno_, kde.Left, kde.Top);
}

void Okno::PrepniCelouObrazovku() {
    if (okno_ == nullptr) return;
    const int monitor = std::max(SDL_GetWindowDisplayIndex(okno_), 0);
    cela_ = !cela_;
    if (MaSpravceOken(okno_)) {
        if (cela_) {
            SDL_SetWindowFullscreen(okno_, SDL_WINDOW_FULLSCREEN_DESKTOP);
        } else {
            SDL_SetWindowFullscreen(okno_, 0);
            SDL_SetWindowBordered(okno_, SDL_TRUE);
            Umisti(MistoOkna(VolnaPlocha(monitor), RamKolem(okno_)));
        }
    } else {
        SDL_SetWindowBordered(okno_, cela_ ? SDL_FALSE : SDL_TRUE);
        Umisti(cela_ ? CelyMonitor(monitor) : MistoOkna(VolnaPlocha(monitor), RamKolem(okno_)));
    }
    malir_->Znovu();
}

void Okno::Odkryto() {
    znovuUkazat_ = true;
}

void Okno::Rozmer() {
    malir_->Znovu();
}

bool Okno::MaPlochu() {
    return okno_ != nullptr && SDL_GetWindowSurface(okno_) != nullptr;
}

void Okno::Prekresli(const Obrazovky& okna, std::uint32_t ted) {
    // Nothing to show yet: an empty window would only flash.
    if (okno_ == nullptr || (!ukazane_ && okna.Viditelne().empty())) return;
    SDL_Surface* plocha = SDL_GetWindowSurface(okno_);
    if (plocha == nullptr) Selhani(std::string("Do okna hry se nedá kreslit. ") + SDL_GetError());
    const bool primo = plocha->format->BytesPerPixel == 4 && plocha->format->Rmask == 0xFF0000u &&
                       plocha->format->Gmask == 0xFF00u && plocha->format->Bmask == 0xFFu &&
                       !SDL_MUSTLOCK(plocha);
    Platno platno{static_cast<std::uint32_t*>(plocha->pixels), plocha->w, plocha->h,
                  plocha->pitch / 4};
    if (!primo) {
        const auto potreba =
            static_cast<std::size_t>(plocha->w) * static_cast<std::size_t>(plocha->h);
        if (vlastni_.size() != potreba) {
            vlastni_.assign(potreba, 0);
            malir_->Znovu();
        }
        platno = {vlastni_.data(), plocha->w, plocha->h, plocha->w};
    }
    sirkaPlochy_ = plocha->w;
    vyskaPlochy_ = plocha->h;
    umisteni_ = Umisteni::Vejdi(plocha->w, plocha->h);
    const std::vector<Obdelnik> spinave = malir_->Namaluj(platno, okna, ted);
    std::vector<SDL_Rect> ukazat;
    ukazat.reserve(spinave.size());
    for (const Obdelnik& o : spinave) ukazat.push_back({o.Left, o.Top, o.Width, o.Height});
    if (!primo && !ukazat.empty()) {
        SDL_Surface* nase = SDL_CreateRGBSurfaceWithFormatFrom(
            vlastni_.data(), plocha->w, plocha->h, 32, plocha->w * 4, SDL_PIXELFORMAT_RGB888);
        for (SDL_Rect r : ukazat) SDL_BlitSurface(nase, &r, plocha, &r);
        SDL_FreeSurface(nase);
    }
    if (!ukazane_) {
        SDL_ShowWindow(okno_);
        ukazane_ = true;
        znovuUkazat_ = true;
    }
    if (znovuUkazat_) {
        znovuUkazat_ = false;
        SDL_UpdateWindowSurface(okno_);
    } else if (!ukazat.empty()) {
        SDL_UpdateWindowSurfaceRects(okno_, ukazat.data(), static_cast<int>(ukazat.size()));
    }
}

bool Okno::NaNavrh(int x, int y, double& nx, double& ny) const {
    int w = 0;
    int h = 0;
    if (okno_ != nullptr) SDL_GetWindowSize(okno_, &w, &h);
    if (w < 1 || h < 1) return false;
    nx = std::floor(umisteni_.NavrhX((x + 0.5) * sirkaPlochy_ / w));
    ny = std::floor(umisteni_.NavrhY((y + 0.5) * vyskaPlochy_ / h));
    return nx >= 0 && ny >= 0 && nx < NAVRH_SIRKA && ny < NAVRH_VYSKA;
}

bool Okno::NaNavrhDotyk(double x, double y, double& nx, double& ny) const {
    nx = std::floor(umisteni_.NavrhX(x * sirkaPlochy_));
    ny = std::floor(umisteni_.NavrhY(y * vyskaPlochy_));
    return okno_ != nullptr && nx >= 0 && ny >= 0 && nx < NAVRH_SIRKA && ny < NAVRH_VYSKA;
}

Obdelnik Okno::NaOkno(const Obdelnik& o) const {
    int w = 0;
    int h = 0;
    if (okno_ != nullptr) SDL_GetWindowSize(okno_, &w, &h);
    if (w < 1 || h < 1 || sirkaPlochy_ < 1 || vyskaPlochy_ < 1) return o;
    // The window's own units may be coarser than the pixels of its surface.
    const double x = static_cast<double>(w) / sirkaPlochy_,
                 y = static_cast<double>(h) / vyskaPlochy_;
    const auto cele = [](double kolik) { return static_cast<int>(std::lround(kolik)); };
    Obdelnik r = o;
    r.Left = cele((umisteni_.X + o.Left * umisteni_.S) * x);
    r.Top = cele((umisteni_.Y + o.Top * umisteni_.S) * y);
    r.Width = cele(o.Width * umisteni_.S * x);
    r.Height = cele(o.Height * umisteni_.S * y);
    return r;
}

}  // namespace rysovna
