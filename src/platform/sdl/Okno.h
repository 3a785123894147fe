#pragma once

#include <memory>
#include <vector>

#include "platform/Malir.h"

struct SDL_Window;

namespace rysovna {

/// What a frame takes around a window, px.
struct RamOkna {
    int Vlevo = 0, Nahore = 0, Vpravo = 0, Dole = 0;
};

/// Where an ordinary window opens: as large as the desktop's area allows with the frame around, in
/// its middle; its sides as those of the design, which it is never smaller than.
[[nodiscard]] Obdelnik MistoOkna(const Obdelnik& plocha, const RamOkna& ram);

/// The window itself: opening, sizes, full screen, and putting the painter's pixels on it.
class Okno {
public:
    Okno() = default;
    ~Okno();
    Okno(const Okno&) = delete;
    Okno& operator=(const Okno&) = delete;

    /// The number of the monitor that the pointer is on, where the window opens.
    [[nodiscard]] static int MonitorSMysi();

    /// Opens the window if it is not open yet, over the whole monitor with the pointer or as an
    /// ordinary window as large as fits. False if none can be opened.
    bool Otevri(bool celaObrazovka);
    /// Puts it away for good.
    void Zavri();
    [[nodiscard]] bool Otevrene() const { return okno_ != nullptr; }
    void PrepniCelouObrazovku();

    /// Whether it is open and its pixels can be had.
    [[nodiscard]] bool MaPlochu();
    /// Paints what changed and shows it. Pixels that cannot be had are a run-time fault: the game
    /// would run and never be seen.
    void Prekresli(const Obrazovky& okna, std::uint32_t ted);
    /// Shows all again: the system lost what was shown.
    void Odkryto();
    /// The size changed.
    void Rozmer();

    /// The design pixel, whole numbers, at a place of the window; false beside the design area.
    bool NaNavrh(int x, int y, double& nx, double& ny) const;
    /// The same for a place in fractions of the window's size, as fingers are told.
    bool NaNavrhDotyk(double x, double y, double& nx, double& ny) const;
    /// A design rectangle in units of the window, for the place of an input method.
    [[nodiscard]] Obdelnik NaOkno(const Obdelnik& o) const;

private:
    void Umisti(const Obdelnik& kde);

    SDL_Window* okno_ = nullptr;
    bool cela_ = false;
    bool ukazane_ = false;
    bool znovuUkazat_ = false;
    int sirkaPlochy_ = 0, vyskaPlochy_ = 0;  ///< pixels last painted
    Umisteni umisteni_;
    /// Pixels of our own, where the window's have another format.
    std::vector<std::uint32_t> vlastni_;
    std::unique_ptr<Malir> malir_ = std::make_unique<Malir>();
};

}  // namespace rysovna
