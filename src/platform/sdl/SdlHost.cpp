#include "platform/sdl/SdlHost.h"

#include <SDL.h>
#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>
#if !defined(_WIN32) && !defined(__APPLE__)
#include <langinfo.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "base/Chyba.h"
#include "platform/Cesta.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "platform/sdl/Okno.h"
#include "platform/sdl/OknoX11.h"
#include "platform/sdl/Zvuk.h"

namespace rysovna {

namespace {

constexpr int SHIFT = 1, CTRL = 2, ALT = 4;

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

/// The system's pointers, by Kurzor.
constexpr SDL_SystemCursor KURZORY[] = {SDL_SYSTEM_CURSOR_ARROW, SDL_SYSTEM_CURSOR_HAND,
                                        SDL_SYSTEM_CURSOR_CROSSHAIR, SDL_SYSTEM_CURSOR_IBEAM};

struct UvolniKurzor {
    void operator()(SDL_Cursor* k) const { SDL_FreeCursor(k); }
};

/// Key and modifiers of a command, as the letter with ctrl that means the same.
constexpr struct {
    SDL_Keycode Kod;
    int Drzeno;
    const char* Jmeno;
} POVELY[] = {
    {SDLK_a, CTRL, "a"},       {SDLK_c, CTRL, "c"},       {SDLK_v, CTRL, "v"},
    {SDLK_x, CTRL, "x"},       {SDLK_p, CTRL, "p"},       {SDLK_INSERT, CTRL, "c"},
    {SDLK_INSERT, SHIFT, "v"}, {SDLK_DELETE, SHIFT, "x"},
};

/// Buttons by SDL's number and as the screens count them.
constexpr struct {
    int Sdl, Nase;
} TLACITKA[] = {{SDL_BUTTON_LEFT, 1}, {SDL_BUTTON_RIGHT, 2}, {SDL_BUTTON_MIDDLE, 4}};

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

std::string Promenna(const char* jmeno) {
    const char* hodnota = std::getenv(jmeno);
    return hodnota == nullptr ? std::string() : std::string(hodnota);
}

#if !defined(_WIN32) && !defined(__APPLE__)
/// Whether texts of this locale are UTF-8. Leaves the program's own locale as it was.
bool JeUtf8(const char* jmeno) {
    const char* nynejsi = std::setlocale(LC_CTYPE, nullptr);
    const std::string puvodni = nynejsi == nullptr ? "C" : nynejsi;
    const bool je = std::setlocale(LC_CTYPE, jmeno) != nullptr &&
                    std::string_view(nl_langinfo(CODESET)) == "UTF-8";
    std::setlocale(LC_CTYPE, puvodni.c_str());
    return je;
}

/// Dead keys are put together by the input method of the locale that the environment names, and
/// only one of UTF-8 gives Czech letters. Numbers are printed in the program's own locale, "C".
void NastavJazykKlaves() {
    if (JeUtf8("")) return;
    for (const char* nahradni : {"C.UTF-8", "cs_CZ.UTF-8", "en_US.UTF-8"}) {
        if (!JeUtf8(nahradni)) continue;
        setenv("LC_ALL", nahradni, 1);
        return;
    }
}
#endif

void NastavSdl() {
#if !defined(_WIN32) && !defined(__APPLE__)
    NastavJazykKlaves();
#endif
    SDL_SetHint(SDL_HINT_VIDEO_MINIMIZE_ON_FOCUS_LOSS, "0");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    // A finger is a finger: it makes no mouse events besides, nor the mouse a finger's.
    SDL_SetHint(SDL_HINT_TOUCH_MOUSE_EVENTS, "0");
    SDL_SetHint(SDL_HINT_MOUSE_TOUCH_EVENTS, "0");
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_APP_NAME, "Rysovna 1");
#ifdef SDL_HINT_IME_SHOW_UI
    SDL_SetHint(SDL_HINT_IME_SHOW_UI, "1");
#endif
#ifdef SDL_HINT_WINDOWS_DPI_AWARENESS
    SDL_SetHint(SDL_HINT_WINDOWS_DPI_AWARENESS, "permonitorv2");
#endif
}

std::string ObrazovyOvladac() {
    const char* jmeno = SDL_GetCurrentVideoDriver();
    return jmeno == nullptr ? "" : jmeno;
}

/// How the window's pixels get to the screen: settled before the first window asks for them. The
/// library's own software surface opens in half the time of one that goes through the graphics
/// card and needs less memory; under Wayland there is none.
void ZvolPlochuOkna() {
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, ObrazovyOvladac() == "wayland" ? "1" : "0");
}

/// What screens that went have left free, between what is still in use.
void VratVolnouPamet() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

/// The system's own message box, for when ours cannot be drawn; on the error output besides, which
/// is where it stays if there is no such box.
Odpoved SystemovaZprava(const std::string& text, const std::string& titul, Styl styl) {
    constexpr SDL_MessageBoxButtonData ANO{SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT,
                                           static_cast<int>(Odpoved::Ano), "Ano"};
    constexpr SDL_MessageBoxButtonData NE{SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT,
                                          static_cast<int>(Odpoved::Ne), "Ne"};
    constexpr SDL_MessageBoxButtonData OK{
        SDL_MESSAGEBOX_BUTTON_RETURNKEY_DEFAULT | SDL_MESSAGEBOX_BUTTON_ESCAPEKEY_DEFAULT,
        static_cast<int>(Odpoved::Ok), "OK"};
    const bool otazka = styl == Styl::OtazkaAnoNe;
    const SDL_MessageBoxButtonData anoNe[] = {ANO, NE};
    SDL_MessageBoxData data{};
    data.flags = styl == Styl::Stop ? SDL_MESSAGEBOX_ERROR : SDL_MESSAGEBOX_INFORMATION;
    data.title = titul.c_str();
    data.message = text.c_str();
    data.numbuttons = otazka ? 2 : 1;
    data.buttons = otazka ? anoNe : &OK;
    int stisknute = 0;
    std::cerr << titul << ": " << text << '\n';
    SDL_ShowMessageBox(&data, &stisknute);
    if (!otazka) return Odpoved::Ok;
    return stisknute == static_cast<int>(Odpoved::Ano) ? Odpoved::Ano : Odpoved::Ne;
}

}  // namespace

struct SdlHost::Vnitrek {
    explicit Vnitrek(SdlHost& host) : Host_(host) {}

    SdlHost& Host_;
    Okno Okno_;
    Zvuk Zvuk_;
    /// As Obrazovky::KdeSePise; nothing before the first look.
    std::optional<Obdelnik> Pise;
    std::array<std::unique_ptr<SDL_Cursor, UvolniKurzor>, std::size(KURZORY)> Kurzory;
    Kurzor Ukazany = Kurzor::Sipka;
    std::optional<SDL_FingerID> Prst;  ///< the one that plays
    bool MelZamereni = false;
    std::uint32_t PosledniVstup = 0;  ///< tick count
    bool PametVracena = false;        ///< since the last input
    /// Up to when all that came has been seen, tick count.
    std::uint32_t Videno = 0;
    bool Prepnuto = false;  ///< the program has switched the mode: what follows restores it

    /// Handles what is pending. True if there was something.
    bool Zpracuj();
    void Zpracuj(const SDL_Event& e);
    /// Waits at most so long for something to come.
    void Cekej(std::uint32_t nejvyseMs);
    /// Before a wait: when nothing has come for a while, the system gets free memory back, once.
    /// Gives how long to wait, so as to come again for it.
    std::uint32_t VratPamet(std::uint32_t cekat);
    void Klavesa(const SDL_KeyboardEvent& k);
    void Stisk(const SDL_MouseButtonEvent& b);
    void Pohyb(const SDL_MouseMotionEvent& m);
    void Okenni(const SDL_WindowEvent& w);
    void Dotyk(const SDL_TouchFingerEvent& d);
    void SrovnejPsani();
    void SrovnejKurzor();
};

SdlHost::SdlHost(std::optional<std::uint32_t> seminko)
    : Smycka(static_cast<Host&>(*this)), seminko_(seminko) {
    if (!MaDisplej()) Selhani("Není k dispozici obrazovka");
    vnitrek_ = std::make_unique<Vnitrek>(*this);
}

SdlHost::~SdlHost() {
    const bool zvukSkoncil = vnitrek_ == nullptr || vnitrek_->Zvuk_.Skonci();
    vnitrek_.reset();
    if (zvukSkoncil) {
        SDL_Quit();
    } else {
        // The device is still being opened: nobody waits for it, and nobody takes it away.
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    }
}

bool SdlHost::MaDisplej() {
#if !defined(_WIN32) && !defined(__APPLE__)
    // Asked first: without a display the library falls back to one that nobody sees.
    if (Promenna("DISPLAY").empty() && Promenna("WAYLAND_DISPLAY").empty()) return false;
#endif
    NastavSdl();
    if (SDL_WasInit(SDL_INIT_VIDEO) == 0) {
        if (!Promenna("DISPLAY").empty()) SnesPozdniZpravy();
        if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) return false;
    }
    ZvolPlochuOkna();
    const std::string ovladac = ObrazovyOvladac();
    return !ovladac.empty() && ovladac != "offscreen" && ovladac != "dummy";
}

std::uint32_t SdlHost::TickCount() {
    return SDL_GetTicks();
}

bool SdlHost::Prijmi() {
    return vnitrek_->Zpracuj();
}

void SdlHost::Ukaz() {
    vnitrek_->SrovnejPsani();
    vnitrek_->SrovnejKurzor();
    Prekresli();
}

void SdlHost::Vyckej(std::uint32_t nejvyseMs) {
    const std::uint32_t cekat =
        std::min(nejvyseMs, Okna().DoBliknuti(TickCount()).value_or(nejvyseMs));
    vnitrek_->Cekej(vnitrek_->VratPamet(cekat));
}

void SdlHost::Prekresli() {
    vnitrek_->Okno_.Prekresli(Okna(), TickCount());
}

Cinnost<Odpoved> SdlHost::MsgBox(std::string text, std::string titul, Styl styl) {
    Okno& okno = vnitrek_->Okno_;
    if (!MamePisma() || (!okno.Otevrene() && !okno.Otevri(false)) || !okno.MaPlochu())
        co_return SystemovaZprava(text, titul, styl);
    co_return co_await UkazZpravu(text, titul, styl);
}

void SdlHost::SndPlaySound(std::string_view cesta) {
    vnitrek_->Zvuk_.Zahraj(NativniCesta(cesta));
}

RezimObrazovky SdlHost::GetDeviceCaps() {
    SDL_DisplayMode rezim{};
    if (SDL_GetDesktopDisplayMode(Okno::MonitorSMysi(), &rezim) != 0) return {};
    return {rezim.w, rezim.h, static_cast<int>(SDL_BYTESPERPIXEL(rezim.format)) * 8};
}

int SdlHost::ChangeDisplaySettings(const RezimObrazovky& rezim) {
    // A screen may have had the program's own mode before: the mode alone does not tell a switch
    // from its restoring.
    if (rezim == REZIM_HRY && !vnitrek_->Prepnuto) {
        vnitrek_->Prepnuto = true;
        if (vnitrek_->Okno_.Otevri(true)) return 0;
        // Without any window the game would run and never be seen.
        if (!vnitrek_->Okno_.Otevri(false))
            Selhani(std::string("Okno hry se nedá otevřít. ") + SDL_GetError());
        return -1;
    }
    vnitrek_->Okno_.Zavri();
    return 0;
}

std::string SdlHost::OverObrazovku() {
    Okno zkusebni;
    if (!zkusebni.Otevri(false) || !zkusebni.MaPlochu())
        throw BehovaChyba("Okno nejde otevřít", SDL_GetError());
    const RezimObrazovky rezim = GetDeviceCaps();
    return std::to_string(rezim.Sirka) + " × " + std::to_string(rezim.Vyska) + ", " +
           SDL_GetCurrentVideoDriver();
}

std::string SdlHost::OverZvuk() {
    return vnitrek_->Zvuk_.Over();
}

void SdlHost::UkazDokument(const std::filesystem::path& soubor) {
    if (OtevriSoubor(soubor)) return;
    constexpr std::string_view BEZE_ZMENY = "-._~/";
    std::string adresa = "file://";
    for (const char c : soubor.string()) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0 ||
            BEZE_ZMENY.find(c) != std::string_view::npos) {
            adresa += c;
        } else {
            char kod[sizeof "%FF"];
            std::snprintf(kod, sizeof kod, "%%%02X", static_cast<unsigned>(c) & 0xFFU);
            adresa += kod;
        }
    }
    SDL_OpenURL(adresa.c_str());
}

std::string SdlHost::SlozkaNastaveni() {
    char* zaklad = SDL_GetBasePath();
    const std::string vlastni = zaklad == nullptr ? std::string() : std::string(zaklad);
    SDL_free(zaklad);
    return rysovna::SlozkaNastaveni(CestaZTextu(vlastni)).string();
}

std::uint32_t SdlHost::Seminko() {
    if (seminko_) return (*seminko_)++;
    const auto ted = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::microseconds>(ted).count());
}

DatumACas SdlHost::Nyni() {
    const std::time_t ted = std::time(nullptr);
    const std::tm* t = std::localtime(&ted);
    if (t == nullptr) return {};
    return {t->tm_year + 1900, t->tm_mon + 1, t->tm_mday, t->tm_hour, t->tm_min};
}

std::string SdlHost::SchrankaText() {
    char* text = SDL_GetClipboardText();
    const std::string kopie = text == nullptr ? std::string() : std::string(text);
    SDL_free(text);
    return kopie;
}

void SdlHost::DoSchranky(const std::string& text) {
    SDL_SetClipboardText(text.c_str());
}

void SdlHost::Vnitrek::SrovnejPsani() {
    const Obdelnik kde = Host_.Okna().KdeSePise();
    if (Pise == kde) return;
    Pise = kde;
    if (JePrazdny(kde)) return SDL_StopTextInput();
    const Obdelnik o = Okno_.NaOkno(kde);
    const SDL_Rect misto{o.Left, o.Top, o.Width, o.Height};
    SDL_SetTextInputRect(&misto);
    SDL_StartTextInput();
}

void SdlHost::Vnitrek::Cekej(std::uint32_t nejvyseMs) {
    const std::uint32_t zacatek = SDL_GetTicks();
    // Less than nothing is for ever.
    constexpr std::uint32_t NEJDELE = std::numeric_limits<int>::max();
    SDL_WaitEventTimeout(nullptr, nejvyseMs > NEJDELE ? -1 : static_cast<int>(nejvyseMs));
    const std::uint32_t ted = SDL_GetTicks();
    // What ends the wait at once may have been there before it.
    if (ted != zacatek) Videno = ted;
}

std::uint32_t SdlHost::Vnitrek::VratPamet(std::uint32_t cekat) {
    constexpr std::uint32_t PO_KLIDU = 1000;
    // What moves meanwhile has short waits and is not to stumble.
    constexpr std::uint32_t DLOUHE_CEKANI = 300;
    if (PametVracena || cekat < DLOUHE_CEKANI) return cekat;
    const std::uint32_t klid = SDL_GetTicks() - PosledniVstup;
    if (klid < PO_KLIDU) return std::min(cekat, PO_KLIDU - klid);
    PametVracena = true;
    VratVolnouPamet();
    return cekat;
}

bool SdlHost::Vnitrek::Zpracuj() {
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
    Videno = SDL_GetTicks();
    if (neco) {
        PosledniVstup = Videno;
        PametVracena = false;
    }
    return neco;
}

void SdlHost::Vnitrek::Zpracuj(const SDL_Event& e) {
    switch (e.type) {
        case SDL_QUIT:
            Host_.Okna().ZadostOZavreni();
            break;
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            Klavesa(e.key);
            break;
        case SDL_TEXTINPUT:
            Host_.Okna().Text(e.text.text);
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

void SdlHost::Vnitrek::Klavesa(const SDL_KeyboardEvent& k) {
    const SDL_Keycode kod = k.keysym.sym;
    const int drzeno = Modifikatory(k.keysym.mod);
    const bool enter = kod == SDLK_RETURN || kod == SDLK_KP_ENTER;
    if (kod == SDLK_F11 || (enter && drzeno == ALT)) {
        if (k.type == SDL_KEYDOWN && k.repeat == 0) Okno_.PrepniCelouObrazovku();
        return;
    }
    if (k.type == SDL_KEYUP) {
        if (enter) Host_.Okna().KlavesaNahoru("Return");
        if (kod == SDLK_SPACE) Host_.Okna().KlavesaNahoru("Space");
        return;
    }
    // One press leads through one screen only. What edits a text is repeated, and arrows are.
    const bool sipka = kod == SDLK_LEFT || kod == SDLK_RIGHT || kod == SDLK_UP || kod == SDLK_DOWN;
    const bool tisk = kod == SDLK_p && drzeno == CTRL;
    const bool psani = Host_.Okna().Psane() != nullptr && kod != SDLK_TAB && kod != SDLK_F1 &&
                       kod != SDLK_ESCAPE && !enter && !tisk;
    if (k.repeat != 0 && !sipka && !psani) return;
    for (const auto& p : POVELY) {
        if (p.Kod != kod || p.Drzeno != drzeno) continue;
        Host_.Okna().Klavesa(p.Jmeno, CTRL);
        return;
    }
    // With Alt they belong to the desktop.
    if ((drzeno & ALT) != 0) return;
    for (const auto& p : KLAVESY) {
        if (p.Kod != kod) continue;
        Host_.Okna().Klavesa(p.Jmeno, drzeno & (SHIFT | CTRL));
        return;
    }
    const std::string znak = ZnakKlavesy(k.keysym);
    if (!znak.empty() && drzeno <= SHIFT) Host_.Okna().Klavesa(znak, drzeno);
}

void SdlHost::Vnitrek::Stisk(const SDL_MouseButtonEvent& b) {
    const int tlacitko = Tlacitko(b.button);
    if (tlacitko == 0) return;
    double x = 0;
    double y = 0;
    const bool uvnitr = Okno_.NaNavrh(b.x, b.y, x, y);
    const int shift = Modifikatory(SDL_GetModState()) & (SHIFT | CTRL);
    if (b.type == SDL_MOUSEBUTTONUP) {
        Host_.Okna().MysNahoru(x, y, tlacitko, shift);
    } else if (uvnitr) {
        // The library dates an event by when it took it in. What came while the program was busy
        // may be as old as the last look.
        const bool driv = static_cast<std::int32_t>(b.timestamp - Videno) > 0;
        Host_.Okna().MysDolu(x, y, tlacitko, shift, {driv ? Videno : b.timestamp, b.timestamp});
    } else {
        Host_.Okna().Navrat();
    }
}

void SdlHost::Vnitrek::Pohyb(const SDL_MouseMotionEvent& m) {
    double x = 0;
    double y = 0;
    Okno_.NaNavrh(m.x, m.y, x, y);
    Host_.Okna().MysPohyb(x, y, Drzena(m.state), Modifikatory(SDL_GetModState()) & (SHIFT | CTRL));
}

void SdlHost::Vnitrek::Dotyk(const SDL_TouchFingerEvent& d) {
    const SDL_TouchDeviceType druh = SDL_GetTouchDeviceType(d.touchId);
    if (druh == SDL_TOUCH_DEVICE_INDIRECT_ABSOLUTE || druh == SDL_TOUCH_DEVICE_INDIRECT_RELATIVE)
        return;  // a pad beside the screen, which moves the mouse
    // The only one that is down is the one that plays: the lifting of an earlier one may get lost.
    if (d.type == SDL_FINGERDOWN && (!Prst || SDL_GetNumTouchFingers(d.touchId) == 1))
        Prst = d.fingerId;
    if (Prst != d.fingerId) return;
    double x = 0;
    double y = 0;
    const bool uvnitr =
        Okno_.NaNavrhDotyk(static_cast<double>(d.x), static_cast<double>(d.y), x, y);
    if (d.type == SDL_FINGERDOWN) {
        // Black beside the picture is nobody's.
        if (uvnitr) return Host_.Okna().PrstDolu(x, y, d.timestamp);
        Prst.reset();
        Host_.Okna().Navrat();
    } else if (d.type == SDL_FINGERMOTION) {
        Host_.Okna().PrstPohyb(x, y, d.timestamp);
    } else {
        Prst.reset();
        Host_.Okna().PrstNahoru(x, y, d.timestamp);
    }
}

/// The pointer looks like what it is over. What the system has no picture of leaves it as it is.
void SdlHost::Vnitrek::SrovnejKurzor() {
    const Kurzor chce = Host_.Okna().KurzorMysi();
    if (chce == Ukazany) return;
    Ukazany = chce;
    const auto i = static_cast<std::size_t>(chce);
    if (Kurzory[i] == nullptr) Kurzory[i].reset(SDL_CreateSystemCursor(KURZORY[i]));
    if (Kurzory[i] != nullptr) SDL_SetCursor(Kurzory[i].get());
}

void SdlHost::Vnitrek::Okenni(const SDL_WindowEvent& w) {
    switch (w.event) {
        case SDL_WINDOWEVENT_EXPOSED:
            Okno_.Odkryto();
            break;
        case SDL_WINDOWEVENT_SIZE_CHANGED:
            Okno_.Rozmer();
            break;
        case SDL_WINDOWEVENT_FOCUS_GAINED:
            if (MelZamereni) Host_.Okna().Navrat();
            MelZamereni = true;
            break;
        default:
            break;
    }
}

}  // namespace rysovna
