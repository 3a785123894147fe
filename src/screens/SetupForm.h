#pragma once

#include <array>

#include "screens/FormHry.h"
#include "screens/Hover.h"

namespace rysovna {

/// Between the menu and the board: the player's name and the number of examples. Made anew at each
/// choice of a task; only hidden while its board is up.
class SetupForm final : public FormHry {
public:
    static constexpr int NEJDELSI_JMENO = 60;  ///< characters

    explicit SetupForm(Sezeni& s);
    [[nodiscard]] std::string_view Jmeno() const override { return "SetupForm"; }

    TextBox TJmeno;
    std::array<Image, 5> ICislo;  ///< digits 1 to 5
    Image ISipka;                 ///< the dial: an arrow to the chosen digit
    PictureBox picPokracuj;       ///< hidden until name and digit are there
    PictureBox picKonec;
    Image Image1;    ///< the banner: help
    Label lblCoDal;  ///< what is still missing before the board can open

    void Load() override;
    void Activate() override;
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    Cinnost<> Click(Ovladac* o) override;
    void Change(TextBox& t) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    [[nodiscard]] Ovladac* PrvniZastavka() override { return &TJmeno; }
    [[nodiscard]] Ovladac* Napoveda() override { return &Image1; }

private:
    Cinnost<> Kontrola();
    void UkazCoDal();
    Cinnost<> ZvolPocet(std::size_t k);
    Odezva Enter();
    Cinnost<> ZvolEnterem(std::size_t k);
    Cinnost<> DalEnterem(bool novy);
    Cinnost<> SpustDesku();
    void ZpetDoMenu();

    Hover hover_{s_};  ///< 1 to 5 ICislo, 12 Image1, 20 picKonec
    bool pokracujNahore_ = false;
    unsigned rolovani_ = 0;  ///< number of the latest roll-in: an older one gives way to it
    DvojiceObrazku konec_;
    std::array<DvojiceObrazku, 5> cislice_;
    std::array<Obrazek, 5> sipky_;
};

}  // namespace rysovna
