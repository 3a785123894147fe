#include "platform/sdl/OknoX11.h"

#include <SDL.h>
#include <SDL_syswm.h>

namespace rysovna {

#ifdef SDL_VIDEO_DRIVER_X11

namespace {

constexpr const char* KNIHOVNA = "libX11.so.6";
constexpr unsigned char ZADOST_SENDEVENT = 25;  // the protocol's number of the request

/// The display of a window; null if it is not one of X.
Display* DisplejOkna(SDL_Window* okno) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(okno, &info) != SDL_TRUE) return nullptr;
    return info.subsystem == SDL_SYSWM_X11 ? info.info.x11.display : nullptr;
}

/// The library, for as long as it is asked.
class KnihovnaX11 {
public:
    KnihovnaX11() : knihovna_(SDL_LoadObject(KNIHOVNA)) {}
    ~KnihovnaX11() {
        if (knihovna_ != nullptr) SDL_UnloadObject(knihovna_);
    }
    KnihovnaX11(const KnihovnaX11&) = delete;
    KnihovnaX11& operator=(const KnihovnaX11&) = delete;

    /// A routine of this name; null if there is none.
    template <class F>
    [[nodiscard]] F* Najdi(const char* jmeno) const {
        return knihovna_ == nullptr ? nullptr
                                    : reinterpret_cast<F*>(SDL_LoadFunction(knihovna_, jmeno));
    }

private:
    void* knihovna_;
};

XErrorHandler g_predchozi = nullptr;

int ChybaX(Display* displej, XErrorEvent* chyba) {
    if (chyba->error_code == BadWindow && chyba->request_code == ZADOST_SENDEVENT) return 0;
    return g_predchozi == nullptr ? 0 : g_predchozi(displej, chyba);
}

}  // namespace

bool MaSpravceOken(SDL_Window* okno) {
    Display* const d = DisplejOkna(okno);
    if (d == nullptr) return true;
    const KnihovnaX11 x;
    auto* const atom = x.Najdi<decltype(XInternAtom)>("XInternAtom");
    auto* const vlastnost = x.Najdi<decltype(XGetWindowProperty)>("XGetWindowProperty");
    auto* const uvolni = x.Najdi<decltype(XFree)>("XFree");
    auto* const koren = x.Najdi<decltype(XDefaultRootWindow)>("XDefaultRootWindow");
    if (atom == nullptr || vlastnost == nullptr || uvolni == nullptr || koren == nullptr)
        return true;
    Atom druh = 0;
    int format = 0;
    unsigned long pocet = 0;
    unsigned long zbytek = 0;
    unsigned char* data = nullptr;
    vlastnost(d, koren(d), atom(d, "_NET_SUPPORTING_WM_CHECK", False), 0, 1, False, AnyPropertyType,
              &druh, &format, &pocet, &zbytek, &data);
    if (data != nullptr) uvolni(data);
    return pocet > 0;
}

void SnesPozdniZpravy() {
    // Kept loaded for good: the handler is to be there when the display is closed.
    void* const knihovna = SDL_LoadObject(KNIHOVNA);
    if (knihovna == nullptr) return;
    auto* const nastav = reinterpret_cast<decltype(XSetErrorHandler)*>(
        SDL_LoadFunction(knihovna, "XSetErrorHandler"));
    if (nastav == nullptr) return;
    const XErrorHandler predchozi = nastav(ChybaX);
    // Called twice, our handler must not become its own predecessor.
    if (predchozi != ChybaX) g_predchozi = predchozi;
}

#else

bool MaSpravceOken(SDL_Window* /*okno*/) {
    return true;
}

void SnesPozdniZpravy() {}

#endif

}  // namespace rysovna
