#pragma once

#include <SDL.h>
#include <cstdint>
#include <optional>

namespace rysovna {

class Obrazovky;
class Okno;

/// The library's events as input of the screens.
class VstupSdl {
public:
    /// Both outlive it.
    VstupSdl(Obrazovky& okna, Okno& okno);

    /// Handles what is pending. True if there was something.
    bool Zpracuj();
    /// Waits at most so long for something to come.
    void Cekej(std::uint32_t nejvyseMs);
    /// Up to when all that came has been seen, tick count.
    [[nodiscard]] std::uint32_t Videno() const { return videno_; }

private:
    void Zpracuj(const SDL_Event& e);
    void Klavesa(const SDL_KeyboardEvent& k);
    void Stisk(const SDL_MouseButtonEvent& b);
    void Pohyb(const SDL_MouseMotionEvent& m);
    void Okenni(const SDL_WindowEvent& w);
    void Dotyk(const SDL_TouchFingerEvent& d);

    Obrazovky& okna_;
    Okno& okno_;
    std::optional<SDL_FingerID> prst_;  ///< the one that plays
    bool melZamereni_ = false;
    std::uint32_t videno_ = 0;
};

}  // namespace rysovna
