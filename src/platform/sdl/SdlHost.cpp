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
#include <iterator>
#include <memory>
#include <optional>
#if !defined(_WIN32) && !defined(__APPLE__)
#include <langinfo.h>
#endif
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "platform/Cesta.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "platform/sdl/Okno.h"
#include "platform/sdl/OknoX11.h"
#include "platform/sdl/Vstup.h"
#include "platform/sdl/Zvuk.h"

namespace rysovna {

namespace {

/// The system's pointers, by Kurzor.
constexpr SDL_SystemCursor KURZORY[] = {SDL_SYSTEM_CURSOR_ARROW, SDL_SYSTEM_CURSOR_HAND,
                                        SDL_SYSTEM_CURSOR_CROSSHAIR, SDL_SYSTEM_CURSOR_IBEAM};
static_assert(std::size(KURZORY) == KURZORU);

struct UvolniKurzor {
    void operator()(SDL_Cursor* k) const { SDL_FreeCursor(k); }
};

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
    VstupSdl Vstup_{Host_.Okna(), Okno_};
    std::uint32_t PosledniVstup = 0;  ///< tick count
    bool PametVracena = false;        ///< since the last input
    bool Prepnuto = false;  ///< the program has switched the mode: what follows restores it

    /// Handles what is pending. True if there was something.
    bool Zpracuj();
    /// Before a wait: when nothing has come for a while, the system gets free memory back, once.
    /// Gives how long to wait, so as to come again for it.
    std::uint32_t VratPamet(std::uint32_t cekat);
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
    vnitrek_->Vstup_.Cekej(vnitrek_->VratPamet(cekat));
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

bool SdlHost::Vnitrek::Zpracuj() {
    const bool neco = Vstup_.Zpracuj();
    if (neco) {
        PosledniVstup = Vstup_.Videno();
        PametVracena = false;
    }
    return neco;
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

/// The pointer looks like what it is over. What the system has no picture of leaves it as it is.
void SdlHost::Vnitrek::SrovnejKurzor() {
    const Kurzor chce = Host_.Okna().KurzorMysi();
    if (chce == Ukazany) return;
    Ukazany = chce;
    const auto i = static_cast<std::size_t>(chce);
    if (Kurzory[i] == nullptr) Kurzory[i].reset(SDL_CreateSystemCursor(KURZORY[i]));
    if (Kurzory[i] != nullptr) SDL_SetCursor(Kurzory[i].get());
}

}  // namespace rysovna
