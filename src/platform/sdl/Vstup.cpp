#include "platform/sdl/Vstup.h"

#include <limits>
#include <string>

#include "platform/Klavesnice.h"
#include "platform/Obrazovky.h"
#include "platform/sdl/Okno.h"

namespace rysovna {

namespace {

constexpr int ALT = 4;  // held, besides SHIFT and CTRL

/// Keys that have a name for the screens, whatever is held with them.
constexpr struct {
    SDL_Keycode Kod;
    const char* Jmeno;
} KLAVESY[] = {
    {SDLK_LEFT, "Left"},       {SDLK_RIGHT, "Right"},
    {SDLK_UP, "Up"},           {SDLK_DOWN, "Down"},
    {SDLK_HOME, "Home"},       {SDLK_END, "End"},
    {SDLK_TAB, "Tab"},         {SDLK_BACKSPACE, "BackSpace"},
    {SDLK_DELETE, "Delete"},   {SDLK_RETURN, "Return"},
    {SDLK_KP_ENTER, "Return"}, {SDLK_ESCAPE, "Escape"},
    {SDLK_SPACE, "Space"},     {SDLK_F1, "F1"},
};

/// Digits by their place on the keyboard: the row above the letters types other signs in Czech.
/// The first of each row of nine.
constexpr SDL_Scancode CISLICE[] = {SDL_SCANCODE_1, SDL_SCANCODE_KP_1};
constexpr int CISLIC = 9;

/// Name of a key of one character, empty of any other.
std::string ZnakKlavesy(const SDL_Keysym& k) {
    for (const SDL_Scancode prvni : CISLICE) {
        if (k.scancode >= prvni && k.scancode < prvni + CISLIC)
            return {static_cast<char>('1' + (k.scancode - prvni))};
    }
    if (k.sym >= SDLK_a && k.sym <= SDLK_z) return {static_cast<char>(k.sym)};
    return {};
}

/// Key and modifiers of a command that is no letter, as the letter with ctrl that means the same.
constexpr struct {
    SDL_Keycode Kod;
    int Drzeno;
    const char* Jmeno;
} POVELY[] = {
    {SDLK_INSERT, CTRL, "c"},
    {SDLK_INSERT, SHIFT, "v"},
    {SDLK_DELETE, SHIFT, "x"},
};

/// Buttons by SDL's number and as the screens count them.
constexpr struct {
    int Sdl, Nase;
} TLACITKA[] = {{SDL_BUTTON_LEFT, LEVE}, {SDL_BUTTON_RIGHT, PRAVE}, {SDL_BUTTON_MIDDLE, STREDNI}};

int Tlacitko(int sdl) {
    for (const auto& t : TLACITKA) {
        if (t.Sdl == sdl) return t.Nase;
    }
    return 0;
}

int Drzena(Uint32 stav) {
    int drzena = 0;
    for (const auto& t : TLACITKA) {
        if ((stav & static_cast<Uint32>(SDL_BUTTON(t.Sdl))) != 0) drzena |= t.Nase;
    }
    return drzena;
}

int Modifikatory(int mod) {
    return ((mod & KMOD_SHIFT) != 0 ? SHIFT : 0) | ((mod & KMOD_CTRL) != 0 ? CTRL : 0) |
           ((mod & KMOD_ALT) != 0 ? ALT : 0);
}

}  // namespace

VstupSdl::VstupSdl(Obrazovky& okna, Okno& okno) : okna_(okna), okno_(okno) {}

void VstupSdl::Cekej(std::uint32_t nejvyseMs) {
    const std::uint32_t zacatek = SDL_GetTicks();
    // Less than nothing is for ever.
    constexpr std::uint32_t NEJDELE = std::numeric_limits<int>::max();
    SDL_WaitEventTimeout(nullptr, nejvyseMs > NEJDELE ? -1 : static_cast<int>(nejvyseMs));
    const std::uint32_t ted = SDL_GetTicks();
    // What ends the wait at once may have been there before it.
    if (ted != zacatek) videno_ = ted;
}

bool VstupSdl::Zpracuj() {
    SDL_Event e;
    bool neco = false;
    while (SDL_PollEvent(&e) != 0) {
        neco = true;
        if (e.type == SDL_MOUSEMOTION) {
            // Of a row of moves the last one is enough.
            SDL_Event dalsi;
            if (SDL_PeepEvents(&dalsi, 1, SDL_PEEKEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0 &&
                dalsi.type == SDL_MOUSEMOTION && dalsi.motion.state == e.motion.state)
                continue;
        }
        Zpracuj(e);
    }
    videno_ = SDL_GetTicks();
    return neco;
}

void VstupSdl::Zpracuj(const SDL_Event& e) {
    switch (e.type) {
        case SDL_QUIT:
            okna_.ZadostOZavreni();
            break;
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            Klavesa(e.key);
            break;
        case SDL_TEXTINPUT:
            okna_.Text(e.text.text);
            break;
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            Stisk(e.button);
            break;
        case SDL_MOUSEMOTION:
            Pohyb(e.motion);
            break;
        case SDL_FINGERDOWN:
        case SDL_FINGERMOTION:
        case SDL_FINGERUP:
            Dotyk(e.tfinger);
            break;
        case SDL_WINDOWEVENT:
            Okenni(e.window);
            break;
        default:
            break;
    }
}

void VstupSdl::Klavesa(const SDL_KeyboardEvent& k) {
    const SDL_Keycode kod = k.keysym.sym;
    const int drzeno = Modifikatory(k.keysym.mod);
    const bool enter = kod == SDLK_RETURN || kod == SDLK_KP_ENTER;
    if (kod == SDLK_F11 || (enter && drzeno == ALT)) {
        if (k.type == SDL_KEYDOWN && k.repeat == 0) okno_.PrepniCelouObrazovku();
        return;
    }
    if (k.type == SDL_KEYUP) {
        if (enter) okna_.KlavesaNahoru("Return");
        if (kod == SDLK_SPACE) okna_.KlavesaNahoru("Space");
        return;
    }
    const bool opakovana = k.repeat != 0;
    for (const auto& p : POVELY) {
        if (p.Kod != kod || p.Drzeno != drzeno) continue;
        okna_.Klavesa(p.Jmeno, CTRL, opakovana);
        return;
    }
    // With Alt they belong to the desktop.
    if ((drzeno & ALT) != 0) return;
    for (const auto& p : KLAVESY) {
        if (p.Kod != kod) continue;
        okna_.Klavesa(p.Jmeno, drzeno & (SHIFT | CTRL), opakovana);
        return;
    }
    const std::string znak = ZnakKlavesy(k.keysym);
    if (!znak.empty() && (drzeno <= SHIFT || (drzeno == CTRL && PlatiSCtrl(znak))))
        okna_.Klavesa(znak, drzeno, opakovana);
}

void VstupSdl::Stisk(const SDL_MouseButtonEvent& b) {
    const int tlacitko = Tlacitko(b.button);
    if (tlacitko == 0) return;
    double x = 0;
    double y = 0;
    const bool uvnitr = okno_.NaNavrh(b.x, b.y, x, y);
    const int shift = Modifikatory(SDL_GetModState()) & (SHIFT | CTRL);
    if (b.type == SDL_MOUSEBUTTONUP) {
        okna_.MysNahoru(x, y, tlacitko, shift);
    } else if (uvnitr) {
        // The library dates an event by when it took it in. What came while the program was busy
        // may be as old as the last look.
        const bool driv = static_cast<std::int32_t>(b.timestamp - videno_) > 0;
        okna_.MysDolu(x, y, tlacitko, shift, {driv ? videno_ : b.timestamp, b.timestamp});
    } else {
        okna_.Navrat();
    }
}

void VstupSdl::Pohyb(const SDL_MouseMotionEvent& m) {
    double x = 0;
    double y = 0;
    okno_.NaNavrh(m.x, m.y, x, y);
    okna_.MysPohyb(x, y, Drzena(m.state), Modifikatory(SDL_GetModState()) & (SHIFT | CTRL));
}

void VstupSdl::Dotyk(const SDL_TouchFingerEvent& d) {
    const SDL_TouchDeviceType druh = SDL_GetTouchDeviceType(d.touchId);
    if (druh == SDL_TOUCH_DEVICE_INDIRECT_ABSOLUTE || druh == SDL_TOUCH_DEVICE_INDIRECT_RELATIVE)
        return;  // a pad beside the screen, which moves the mouse
    // The only one that is down is the one that plays: the lifting of an earlier one may get lost.
    if (d.type == SDL_FINGERDOWN && (!prst_ || SDL_GetNumTouchFingers(d.touchId) == 1))
        prst_ = d.fingerId;
    if (prst_ != d.fingerId) return;
    double x = 0;
    double y = 0;
    const bool uvnitr =
        okno_.NaNavrhDotyk(static_cast<double>(d.x), static_cast<double>(d.y), x, y);
    if (d.type == SDL_FINGERDOWN) {
        // Black beside the picture is nobody's.
        if (uvnitr) return okna_.PrstDolu(x, y, d.timestamp);
        prst_.reset();
        okna_.Navrat();
    } else if (d.type == SDL_FINGERMOTION) {
        okna_.PrstPohyb(x, y, d.timestamp);
    } else {
        prst_.reset();
        okna_.PrstNahoru(x, y, d.timestamp);
    }
}

void VstupSdl::Okenni(const SDL_WindowEvent& w) {
    switch (w.event) {
        case SDL_WINDOWEVENT_EXPOSED:
            okno_.Odkryto();
            break;
        case SDL_WINDOWEVENT_SIZE_CHANGED:
            okno_.Rozmer();
            break;
        case SDL_WINDOWEVENT_FOCUS_GAINED:
            if (melZamereni_) okna_.Navrat();
            melZamereni_ = true;
            break;
        default:
            break;
    }
}

}  // namespace rysovna
