#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Obrazovky.h"
#include "rules/Dialog.h"
#include "rules/Pokus.h"
#include "rules/Rada.h"
#include "screens/FormHry.h"
#include "screens/Hover.h"
#include "screens/RadaCesky.h"
#include "store/MapaPoli.h"

namespace rysovna {

class NahravanyDialog;
struct HlavickaPapiru;

/// A board: all that the screens know of it. The program's own stand in Desky.cpp.
struct RadekDesky {
    std::string_view Jmeno;             ///< of its screen
    MapaRadku Mapa;                     ///< of its tasks' files
    std::span<const Nastroj> Nastroje;  ///< that its step buttons can stand for
    std::unique_ptr<Dialog> (*VyrobDialog)(Misc& misc, Platna platna);
    std::shared_ptr<Form> (*VyrobForm)(Sezeni& s, const RadekDesky& deska);
};

/// The row of a board in the frame F.
template <class F>
constexpr RadekDesky DeskaS(std::string_view jmeno, MapaRadku mapa,
                            std::span<const Nastroj> nastroje,
                            decltype(RadekDesky::VyrobDialog) vyrobDialog) {
    return {jmeno, mapa, nastroje, vyrobDialog,
            [](Sezeni& s, const RadekDesky& deska) -> std::shared_ptr<Form> {
                return std::make_shared<F>(s, deska);
            }};
}

/// The frame that all boards share: window, top buttons, arrows, the sliding panel with the
/// sketch, the plane, the step dialogue's controls, the check and the series. It passes events to
/// the dialogue of the board and shows the panel that the dialogue computes; the rules are there.
///
/// Played by keys, arrows go from element to element of the sketch; on the plane a cross stands for
/// the pointer: arrows move it by 1 px (with Shift by 10), a letter takes it to the next point of
/// that name. Digits choose a line of the open list or a step button, Return in a box goes on.
class DeskaForm : public FormHry {
public:
    static constexpr int ZASTAVKA_PLOCHY = 9;  ///< of the plane, where it is one

    DeskaForm(Sezeni& s, const RadekDesky& deska);

    [[nodiscard]] std::string_view Jmeno() const override { return deska_.Jmeno; }

    PictureBox Pic;       ///< the drawing plane
    PictureBox HidenPic;  ///< its off-screen twin
    LineShape Line1;      ///< rubber bands and read-out, on the plane
    CircleShape Circle1;
    Label Text;

    PictureBox VPImage;    ///< the sliding panel
    PictureBox SamplePic;  ///< on it: the sketch of what is given
    Image Image1;  ///< on it: the handle; its tag tells the panel's state, "1" out, "0" shut
    PictureBox MalaSipka;  ///< stands in for the panel when it is shut

    std::array<PictureBox, 4> PicTop;    ///< check, new example, score table, back
    std::array<PictureBox, 4> picSipka;  ///< as SIPKY
    PictureBox picPokracuj;
    Image INadpis, IHintS, ImgHodnoceni;

    std::array<PictureBox, 6> cmd;  ///< step buttons
    PictureBox Combo;               ///< the pick list
    std::array<Label, 8> ComboLabel;
    TextBox txtVstup;
    std::array<Label, 10> lblZadani;  ///< indices from 0
    Label lblText1, lblText2, lblText3, lblText4;
    Label Label1;

    PictureBox PicRada;      ///< the guide line, over the decorative ruler
    PictureBox PicRadaKraj;  ///< its coloured edge
    std::array<Label, 2> lblRada;

    void Load() override;
    void Unload() override;
    void Activate() override;
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    void MouseMove(Ovladac* o, const Mys& m) override;
    Cinnost<> MouseUp(Ovladac* o, const Mys& m) override;
    Cinnost<> Click(Ovladac* o) override;
    void Change(TextBox& t) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
    bool KlavesaNa(Ovladac& o, std::string_view klavesa, int shift) override;
    void PriselPrsten(Ovladac& o) override;
    [[nodiscard]] Ovladac* PrvniZastavka() override;
    [[nodiscard]] Ovladac* Napoveda() override { return &INadpis; }
    [[nodiscard]] UkazatelKlaves Ukazatel(const Ovladac& o) const override;
    [[nodiscard]] int CastProPrst(const Ovladac& o, float x, float y) const override;
    [[nodiscard]] Kurzor KurzorNad(const Ovladac* o, float x, float y) const override;
    [[nodiscard]] std::optional<Bod> Zachytne() const override;
    /// The prompt and the guide line.
    [[nodiscard]] std::string CoSeRika() const override;

    /// The dialogue that this board shows: its own, made by Load, or the driven one.
    [[nodiscard]] const Dialog& Dialogem() const;
    /// Puts the example that the board shows on paper; gives what is to be said of it, in two rows
    /// of so many px of a font.
    [[nodiscard]] RadkyRady NaPapir(const HlavickaPapiru& hlavicka, const Pismo& pismo, int sirka);
    /// What the guide line says, and what it was computed from.
    [[nodiscard]] const Rada& RadaTed() const { return rada_; }
    [[nodiscard]] const Videne& VidenoTed() const { return videne_; }
    /// Whom it speaks to.
    [[nodiscard]] CimSeHraje CimRady() const { return cimRady_; }
    /// Something is being handled while a wait runs: the guide keeps its words until it is done.
    [[nodiscard]] bool JeUprostred() const;

    // A board that is only looked at: somebody else drives the dialogue that it shows.

    /// To be told before it is loaded: no series begins on it, and nothing of it is kept.
    void BudePromitat() { promita_ = true; }
    [[nodiscard]] Platna PlatnaDesky() { return {Pic.Plocha(), HidenPic.Plocha()}; }
    /// How the driven dialogue stands, as far as it does not say so itself.
    struct Promitane {
        int Danych = 0;                   ///< objects that the example began with
        bool NacrtVysunuty = true;        ///< the panel with the sketch
        int Nastroj = 0;                  ///< place of the tool pressed last; 0: none
        int Radku = 0;                    ///< lines of its list
        std::optional<bool> Bezchybny{};  ///< of an example that was checked
    };
    /// Shows a dialogue that draws on this board's planes, and outlives the next such call.
    void Promitni(const Dialog& dialog, const Promitane& jak);
    /// Where on the design area a call of the shown dialogue is made; none where it has no place.
    [[nodiscard]] std::optional<Bod> MistoVolani(const Volani& volani) const;
    /// The rubber band with the pointer here, on the design area, and the button held; none: it
    /// goes.
    void PromitniTah(const std::optional<Bod>& ukazatel);

protected:
    static constexpr Obdelnik BOX_HODNOTY{98, 371, 56, 20};  ///< of a single value, px

    /// The box for value ktery, from 1.
    [[nodiscard]] virtual const TextBox& Pole(int /*ktery*/) const { return txtVstup; }
    /// Shows what a board's panel has beyond the common controls.
    virtual void UkazDalsi(const Panel& /*panel*/) {}
    void Ukaz();
    /// What now stands in box ktery, from 1.
    void Napis(int ktery, const TextBox& box);

private:
    /// The arrows beside the plane, by the side that they stand on: their pictures, their places,
    /// and how far each scrolls the plane, px. Each pulls the figure to the other side.
    struct Sipka {
        std::string_view Soubor;
        Obdelnik Misto;
        Bod Posun;
    };
    static constexpr std::array<Sipka, 4> SIPKY = {
        {{"a_left", {231, 428, 15, 9}, {KROK_POSUNU, 0}},
         {"a_right", {592, 428, 15, 9}, {-KROK_POSUNU, 0}},
         {"a_up", {605, 104, 9, 15}, {0, KROK_POSUNU}},
         {"a_down", {605, 415, 9, 15}, {0, -KROK_POSUNU}}}};
    static constexpr float PISMO_DVOU_RAD = 8;  ///< of two rows in the guide line's strip, points
    /// Waits that other handlers ask after.
    static constexpr int PO_VOLBE = 1;    ///< a line was picked
    static constexpr int PO_PUSTENI = 2;  ///< a release on the plane is being handled
    [[nodiscard]] bool Ceka(int nac) const { return s_.Okna().Ceka(*this, nac); }
    // DeskaForm.cpp: making and loading
    void RozlozOvladace();
    void NactiObrazky();
    void ZacniSerii();
    // DeskaUdalosti.cpp: events
    void StiskNastroje(const PictureBox& tlacitko, const Mys& m);
    Cinnost<> VyberRadku(int i);
    void SkryjSeznam();
    void UkazTah(const Gumicka& g, const Mys& m);
    void SchovejTah();
    void SkryjTah();
    Cinnost<> PustPlochu(Mys m);
    void StiskSipky(int i);
    Cinnost<> StiskMaleSipky();
    Cinnost<> VratPanel();
    void ZhasniHorni();
    void ZhasniSipky();
    void UkazOdecet(const Gumicka& g, const Mys& m);
    // DeskaKlavesy.cpp: keys
    void OcislujZastavky();
    bool EnterVPoli();
    void UkazSeznamKlavesam();
    [[nodiscard]] Bod VRozsahu(Bod kriz) const;
    // DeskaPanel.cpp: what the dialogue says, on its controls
    void RozlozSeznam();
    [[nodiscard]] static int VyskaSeznamu(int radku);
    void UkazNastroje(const MistaNastroju& mista);
    void UkazVelicinu(const Panel& panel);
    void UkazZadani(const std::vector<ZadanaVelicina>& zadani);
    void UkazSeznam(const Seznam& seznam);
    // DeskaNacrt.cpp: the sliding panel with the sketch, and its slide
    void KresliNacrt();
    void SlozPanel();
    void PolozPanel(int odsunuti);
    void PolozKlidnyPanel();
    Cinnost<> PosunPanel(bool ven);
    Cinnost<> ZasunPanel();
    Cinnost<> VysunPanel();
    // DeskaRada.cpp: the guide line
    void RozlozRadu();
    void ObnovRadu();
    void UkazRadky(const RadkyRady& radky);
    [[nodiscard]] PrvekVNacrtu PrvekPodPrstenem() const;
    [[nodiscard]] int MrtvyNastrojPod(const Mys& m) const;
    void UkazatelNad(const Ovladac* o);
    // DeskaPokus.cpp: the attempt
    void ZacniPokus();
    void UlozPriklady(bool iRozehrany = false);
    [[nodiscard]] Cinnost<std::string> DokonciPokus(bool dokonceny);
    void OpustPokus();
    // DeskaPapir.cpp: the example on paper
    void NaPapir();
    // DeskaSerie.cpp: check, verdict, series
    Cinnost<> Zkontroluj();
    Cinnost<> NovyPriklad();
    void NoveZadani();
    Cinnost<> Pokracuj();
    Cinnost<> UkonciSerii();
    Cinnost<> Oznam(std::shared_ptr<Form> drzeny, std::string zprava);
    Cinnost<> UkazTabulku();
    Cinnost<> Zpet();
    void UkazChyby();
    void SkryjChyby();

    const RadekDesky deska_;
    std::unique_ptr<Dialog> dialog_;
    NahravanyDialog* nahravany_ = nullptr;  ///< the same, where it is written down
    const Dialog* promitany_ = nullptr;     ///< in its place on a board that is only looked at
    bool promita_ = false;
    std::size_t ulozenychPrikladu_ = 0;  ///< of the attempt
    bool pokusTrva_ = false;
    Hover hover_{s_};  ///< 1 to 4 PicTop, 5 to 8 picSipka
    std::array<DvojiceObrazku, 4> horni_, sipky_;
    std::map<Nastroj, DvojiceObrazku> tvary_;
    Obrazek panel_, hodnoceniDobre_, hodnoceniSpatne_, kontrolovano_;
    int zbyvaPrikladu_ = 0;
    bool cekaNaZadani_ = false;  ///< the plane is empty, the new example not chosen yet
    int danych_ = 0;             ///< objects that the example began with
    Videne videne_;
    Rada rada_;
    CimSeHraje cimRady_ = CimSeHraje::Mysi;
    std::optional<Bod> zachytne_;  ///< px of the plane: the point that a press would catch
    Bod kriz_{192, 167};           ///< px of the plane: where the pointer of the keys is
    int zona_ = 0;                 ///< element of the sketch that the keys are at, from 0
    int nastroj_ = 1;              ///< step button that opened the list
};

}  // namespace rysovna
