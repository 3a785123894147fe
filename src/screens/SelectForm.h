#pragma once

#include <array>
#include <functional>
#include <memory>

#include "screens/FormHry.h"
#include "screens/Hover.h"

namespace rysovna {

/// The menu, and the first screen that the program makes. Families of
/// tasks on the left, the tasks of the chosen family on the right. Lives to the end; only hidden
/// and shown, so that the last choice stays lit.
class SelectForm final : public FormHry {
public:
    explicit SelectForm(Sezeni& s);
    [[nodiscard]] std::string_view Jmeno() const override { return "SelectForm"; }

    std::array<Image, 5> LI;  ///< families
    std::array<Image, 6> RI;  ///< tasks of the chosen family
    PictureBox picKonec;
    Image Image1;  ///< the banner: credits

    /// Work pictures of the boards, 315 by 204 px, never shown.
    PictureBox Pozadi, Kopie, Vysledek, Kopie2;
    /// The roll-in of the continue button: one row of 23 cells.
    PictureClip PicClip;

    /// Rolls the continue button in, 20 ms a cell, in a picture box of another screen. The caller
    /// sets what says that the button is up before. Stops touching the box when dal (asked after
    /// each cell) says no: a handler that ran during the waits may have taken the button back.
    Cinnost<> Roluj(std::shared_ptr<PictureBox> kam, std::function<bool()> dal);

    /// The start-up: the configuration, what waits to be stored, the switch of the screen, the
    /// title. Start.cpp
    Cinnost<> Start();
    void Unload() override;
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    Cinnost<> Click(Ovladac* o) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    [[nodiscard]] Ovladac* PrvniZastavka() override;
    [[nodiscard]] Ovladac* Napoveda() override { return &Image1; }
    Cinnost<> QueryUnload() override;

private:
    Cinnost<> ZeptejSeNaKonec();
    void Priprav();
    void NactiObrazky();
    void ZvolRodinu(std::size_t i);
    void ZvolUlohu(std::size_t j);

    Hover hover_{s_};  ///< 1 to 5 LI, 6 to 11 RI, 12 Image1, 20 picKonec
    DvojiceObrazku konec_;
    std::array<DvojiceObrazku, 5> leve_;
    std::array<DvojiceObrazku, 6> prave_;
};

/// The menu of the session. Asking before it is loaded is a fault.
[[nodiscard]] SelectForm& Menu(const Sezeni& s);

}  // namespace rysovna
