#include "platform/sdl/Zvuk.h"

#include <SDL.h>
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "base/Chyba.h"
#include "platform/Stroj.h"

namespace rysovna {

namespace {

/// How long the end of the program waits for the thread.
constexpr std::chrono::milliseconds NEJDELE_CEKA{300};
/// How long a device may take to open before it is said not to answer.
constexpr std::chrono::milliseconds NEJDELE_OTVIRA{2000};
/// How long the device stays open after the end of the last sound. An open one wakes the program
/// for every piece of silence.
constexpr std::chrono::milliseconds ZUSTAVA_OTEVRENE{2000};

#ifdef __linux__
bool MaPromennou(const char* jmeno) {
    const char* hodnota = std::getenv(jmeno);
    return hodnota != nullptr && *hodnota != '\0';
}

bool JeNaDisku(const std::filesystem::path& cesta) {
    std::error_code chyba;
    return std::filesystem::exists(cesta, chyba);
}
#endif

/// Whether there is anything to ask for a device. Where there is nothing, the sound libraries
/// would only complain about it on the error output.
bool MuzeZnit() {
#ifdef __linux__
    if (MaPromennou("SDL_AUDIODRIVER") || MaPromennou("PULSE_SERVER")) return true;
    if (JeNaDisku("/dev/snd")) return true;
    if (!MaPromennou("XDG_RUNTIME_DIR")) return false;
    const std::filesystem::path beh = std::getenv("XDG_RUNTIME_DIR");
    return JeNaDisku(beh / "pulse/native") || JeNaDisku(beh / "pipewire-0");
#else
    return true;
#endif
}

}  // namespace

struct Zvuk::Prace {
    using Vzorky = std::vector<std::uint8_t>;
    using Hodiny = std::chrono::steady_clock;

    std::mutex Zamek;
    std::condition_variable Budik;
    // Guarded by Zamek.
    std::optional<std::filesystem::path> Zadany;
    bool Zacala = false;  ///< the thread was started
    bool Konec = false;   ///< the thread is to end
    bool Hotovo = false;  ///< the thread has ended its work
    /// Whether there is a device; nothing while it is being opened for the first time.
    std::optional<bool> Otevreno;

    // The thread's own.
    std::uint32_t Zarizeni = 0;  ///< 0 while none is open
    Hodiny::time_point Zavrit;   ///< when an open one is to be closed
    std::uint16_t Format = 0;
    std::uint8_t Kanaly = 0;
    int Frekvence = 0;
    std::map<std::filesystem::path, Vzorky> Nactene;

    void Pracuj();
    std::optional<std::filesystem::path> CekejNaZadany();
    bool OtevriZarizeni();
    void ZavriZarizeni();
    void Prehraj(const std::filesystem::path& soubor);
    const Vzorky& DejVzorky(const std::filesystem::path& soubor);
};

Zvuk::Zvuk() : prace_(std::make_shared<Prace>()) {}

Zvuk::~Zvuk() {
    Skonci();
}

void Zvuk::Zahraj(std::filesystem::path soubor) {
    const std::lock_guard drzi(prace_->Zamek);
    if (prace_->Konec) return;
    prace_->Zadany = std::move(soubor);
    Zacni();
}

void Zvuk::Zacni() {
    if (!std::exchange(prace_->Zacala, true))
        std::thread([prace = prace_] { prace->Pracuj(); }).detach();
    prace_->Budik.notify_all();
}

std::string Zvuk::Over() {
    std::unique_lock drzi(prace_->Zamek);
    Zacni();
    if (!prace_->Budik.wait_for(drzi, NEJDELE_OTVIRA,
                                [this] { return prace_->Otevreno.has_value(); }))
        throw BehovaChyba("Neodpovídá", "hra může být bez zvuku");
    if (!*prace_->Otevreno) throw BehovaChyba("Není", "hra bude bez zvuku");
    const char* ovladac = SDL_GetCurrentAudioDriver();
    return ovladac == nullptr ? "otevřeno" : ovladac;
}

bool Zvuk::Skonci() {
    std::unique_lock drzi(prace_->Zamek);
    if (prace_->Konec) return skoncil_;
    prace_->Konec = true;
    prace_->Budik.notify_all();
    skoncil_ = prace_->Budik.wait_for(drzi, NEJDELE_CEKA,
                                      [this] { return !prace_->Zacala || prace_->Hotovo; });
    return skoncil_;
}

void Zvuk::Prace::Pracuj() {
    // Where there is none at first, none is looked for again.
    const bool mame = MuzeZnit() && OtevriZarizeni();
    {
        const std::lock_guard drzi(Zamek);
        Otevreno = mame;
    }
    Budik.notify_all();
    while (const std::optional<std::filesystem::path> soubor = CekejNaZadany()) {
        if (mame) Prehraj(*soubor);
    }
    ZavriZarizeni();
    {
        const std::lock_guard drzi(Zamek);
        Hotovo = true;
    }
    Budik.notify_all();
}

/// The sound that is wanted next; nothing when the thread is to end. A device that is silent for
/// long is closed meanwhile.
std::optional<std::filesystem::path> Zvuk::Prace::CekejNaZadany() {
    const auto budit = [this] { return Konec || Zadany.has_value(); };
    std::unique_lock drzi(Zamek);
    if (Zarizeni != 0 && !Budik.wait_until(drzi, Zavrit, budit)) {
        drzi.unlock();
        ZavriZarizeni();
        drzi.lock();
    }
    Budik.wait(drzi, budit);
    return Konec ? std::nullopt : std::exchange(Zadany, std::nullopt);
}

void Zvuk::Prace::Prehraj(const std::filesystem::path& soubor) {
    if (Zarizeni == 0 && !OtevriZarizeni()) return;
    const Vzorky& vzorky = DejVzorky(soubor);
    SDL_ClearQueuedAudio(Zarizeni);
    if (!vzorky.empty())
        SDL_QueueAudio(Zarizeni, vzorky.data(), static_cast<Uint32>(vzorky.size()));
    const std::int64_t bajtuZaSekundu =
        std::int64_t{Frekvence} * Kanaly * (SDL_AUDIO_BITSIZE(Format) / 8);
    const std::chrono::milliseconds zni(static_cast<std::int64_t>(vzorky.size()) * 1000 /
                                        std::max(bajtuZaSekundu, std::int64_t{1}));
    Zavrit = Hodiny::now() + zni + ZUSTAVA_OTEVRENE;
}

bool Zvuk::Prace::OtevriZarizeni() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    SDL_AudioSpec chteny{};
    chteny.freq = 44100;
    chteny.format = AUDIO_S16SYS;
    chteny.channels = 2;
    chteny.samples = 1024;
    SDL_AudioSpec dany{};
    Zarizeni = SDL_OpenAudioDevice(nullptr, 0, &chteny, &dany, SDL_AUDIO_ALLOW_ANY_CHANGE);
    if (Zarizeni == 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    // The next one may want another format.
    Nactene.clear();
    Format = dany.format;
    Kanaly = dany.channels;
    Frekvence = dany.freq;
    SDL_PauseAudioDevice(Zarizeni, 0);
    Zavrit = Hodiny::now() + ZUSTAVA_OTEVRENE;
    return true;
}

/// The library's own thread that looks for new devices goes with it.
void Zvuk::Prace::ZavriZarizeni() {
    if (Zarizeni == 0) return;
    SDL_CloseAudioDevice(std::exchange(Zarizeni, 0U));
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

/// The whole sound in the format of the device; empty if it cannot be read or converted.
const Zvuk::Prace::Vzorky& Zvuk::Prace::DejVzorky(const std::filesystem::path& soubor) {
    const auto [misto, nove] = Nactene.try_emplace(soubor);
    Vzorky& vzorky = misto->second;
    if (!nove) return vzorky;
    SDL_AudioSpec popis{};
    Uint8* data = nullptr;
    Uint32 delka = 0;
    const std::string obsah = CelySoubor(soubor).value_or(std::string());
    SDL_RWops* cteni = SDL_RWFromConstMem(obsah.data(), static_cast<int>(obsah.size()));
    if (SDL_LoadWAV_RW(cteni, 1, &popis, &data, &delka) == nullptr) return vzorky;
    SDL_AudioCVT prevod{};
    const int potreba = SDL_BuildAudioCVT(&prevod, popis.format, popis.channels, popis.freq, Format,
                                          Kanaly, Frekvence);
    if (potreba >= 0) {
        // The conversion works in place and needs room for its widest stage.
        vzorky.resize(std::size_t{delka} *
                      static_cast<std::size_t>(potreba > 0 ? prevod.len_mult : 1));
        std::copy_n(data, delka, vzorky.data());
        prevod.buf = vzorky.data();
        prevod.len = static_cast<int>(delka);
        prevod.len_cvt = prevod.len;
        if (potreba > 0 && SDL_ConvertAudio(&prevod) != 0) prevod.len_cvt = 0;
        vzorky.resize(static_cast<std::size_t>(prevod.len_cvt));
    }
    SDL_FreeWAV(data);
    return vzorky;
}

}  // namespace rysovna
