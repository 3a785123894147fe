#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "rules/Prehravani.h"
#include "screens/FormHry.h"

namespace rysovna {

class DeskaForm;

/// An attempt watched: the board as the pupil had it, and in the strip below it what is being done,
/// the controls and a bar of the whole. It lies over the board and gets all input: a press anywhere
/// on the board goes on or stops. Keys: left and right a step (with Shift to the next wrong one),
/// up and down the speed, Space goes on or stops, Home, End; Escape ends. It writes nothing
/// unasked.
class PrehravaniForm final : public FormHry {
public:
    PrehravaniForm(Sezeni& s, Pokus pokus, Tempo tempo);
    ~PrehravaniForm() override;
    [[nodiscard]] std::string_view Jmeno() const override { return "PrehravaniForm"; }

    PictureBox PicPruh;            ///< the strip; all but the card stands in it
    PictureBox PicKraj, PicHrana;  ///< its coloured edge, its line to the board
    Label lblKrok;                 ///< what is done
    Label lblDal;  ///< who, when and how many points; of a demonstration what to mind
    std::array<PictureBox, 5> picOvladac;  ///< back, go on or stop, forward, speed, end
    std::array<Label, 5> lblOvladac;       ///< what stands on them
    PictureBox PicPas;                     ///< the bar: a press goes to that time
    PictureBox PicKarta, PicKrajKarty;  ///< a card over the top buttons, where it hides no figure
    TextBox txtKarta;                   ///< what is charged, to be read from the last row
    Timer Timer1;

    void Load() override;
    void Unload() override;
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    Cinnost<> Click(Ovladac* o) override;
    Cinnost<> TimerTick(Timer& t) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    [[nodiscard]] std::optional<PromitanaMys> CiziMys() const override { return mys_; }
    [[nodiscard]] std::string CoSeRika() const override;
    Cinnost<> QueryUnload() override;

    /// The attempt, as it is watched.
    [[nodiscard]] const Prehravani& Co() const { return *prehravani_; }
    /// The board that it is watched on.
    [[nodiscard]] const DeskaForm& Deska() const { return *deska_; }
    [[nodiscard]] bool Jede() const { return Timer1.Enabled; }
    /// Goes on, or stops.
    void Jed(bool ano);
    /// Ends it: its screens go, then PoKonci is called.
    void Skonci();
    std::function<void()> PoKonci;

private:
    void Rozloz();
    void NaKrok(std::size_t krok);
    void NaChybu(bool vpred);
    void Ukaz();
    void UkazDesku();
    void UkazText();
    void VypisDalsi();
    void UkazPas();
    void UkazKartu();
    void UkazMys();
    void ZmenRychlost(int oKolik);
    [[nodiscard]] bool Ohlasen() const;
    [[nodiscard]] std::string TextKroku() const;
    [[nodiscard]] int PoradiPrikladu() const;
    void NaPapir();
    [[nodiscard]] std::string TextPrikladu() const;
    [[nodiscard]] std::string TextKarty() const;
    [[nodiscard]] std::string TextRady() const;
    [[nodiscard]] std::uint32_t CasNaPasu(float x) const;
    [[nodiscard]] int MistoNaPasu(std::uint32_t cas) const;

    Pokus pokus_;  ///< until it is loaded
    Tempo tempo_;
    std::uint8_t predtimUloha_ = 0;
    std::shared_ptr<DeskaForm> deska_;
    std::unique_ptr<Prehravani> prehravani_;
    std::optional<PromitanaMys> mys_;
    std::optional<Bod> mysKroku_;     ///< where the step made last was made
    std::size_t ukazany_ = SIZE_MAX;  ///< step that the board shows
    std::string popis_;               ///< of the step made last
    std::uint32_t naposledy_ = 0;     ///< tick count of the last tick
    double zbytek_ = 0;               ///< ms that were no whole one
    std::size_t rychlost_ = 0;
    int pas_ = -1;  ///< px: how the bar was painted last
};

/// Begins to watch an attempt, in a session in which the menu is loaded and no board is; poKonci is
/// called when the watching is over and its screens are gone. Gives why it cannot be watched;
/// empty: it can.
[[nodiscard]] std::string Prehraj(Sezeni& s, Pokus pokus, Tempo tempo,
                                  std::function<void()> poKonci);

}  // namespace rysovna
