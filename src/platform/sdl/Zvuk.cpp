#include "platform/sdl/Zvuk.h"

#include <SDL.h>
#include <algorithm>

namespace rysovna {

Zvuk::~Zvuk() {
    if (!vlakno_.joinable()) return;
    {
        const std::lock_guard drzi(zamek_);
        konec_ = true;
    }
    budik_.notify_one();
    vlakno_.join();
}

void Zvuk::Zahraj(std::filesystem::path soubor) {
    {
        const std::lock_guard drzi(zamek_);
        zadany_ = std::move(soubor);
    }
    if (!vlakno_.joinable()) vlakno_ = std::thread([this] { Pracuj(); });
    budik_.notify_one();
}

void Zvuk::Pracuj() {
    const bool mame = OtevriZarizeni();
    while (true) {
        std::filesystem::path soubor;
        {
            std::unique_lock drzi(zamek_);
            budik_.wait(drzi, [this] { return konec_ || zadany_.has_value(); });
            if (konec_) break;
            soubor = std::move(*zadany_);
            zadany_.reset();
        }
        if (!mame) continue;
        const Vzorky& vzorky = DejVzorky(soubor);
        SDL_ClearQueuedAudio(zarizeni_);
        if (!vzorky.empty())
            SDL_QueueAudio(zarizeni_, vzorky.data(), static_cast<Uint32>(vzorky.size()));
    }
    if (zarizeni_ != 0) SDL_CloseAudioDevice(zarizeni_);
    if (mame) SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

bool Zvuk::OtevriZarizeni() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
    SDL_AudioSpec chteny{};
    chteny.freq = 44100;
    chteny.format = AUDIO_S16SYS;
    chteny.channels = 2;
    chteny.samples = 1024;
    SDL_AudioSpec dany{};
    zarizeni_ = SDL_OpenAudioDevice(nullptr, 0, &chteny, &dany, SDL_AUDIO_ALLOW_ANY_CHANGE);
    if (zarizeni_ == 0) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        return false;
    }
    format_ = dany.format;
    kanaly_ = dany.channels;
    frekvence_ = dany.freq;
    SDL_PauseAudioDevice(zarizeni_, 0);
    return true;
}

/// The whole sound in the format of the device; empty if it cannot be read or converted.
const Zvuk::Vzorky& Zvuk::DejVzorky(const std::filesystem::path& soubor) {
    const auto [misto, nove] = nactene_.try_emplace(soubor);
    Vzorky& vzorky = misto->second;
    if (!nove) return vzorky;
    SDL_AudioSpec spec{};
    Uint8* data = nullptr;
    Uint32 delka = 0;
    if (SDL_LoadWAV(soubor.c_str(), &spec, &data, &delka) == nullptr) return vzorky;
    SDL_AudioCVT prevod{};
    const int potreba = SDL_BuildAudioCVT(&prevod, spec.format, spec.channels, spec.freq, format_,
                                          kanaly_, frekvence_);
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
