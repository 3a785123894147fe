// The sliding panel with the sketch of what is given, and its slide.

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Ulohy.h"
#include "rules/Veliciny.h"
#include "screens/DeskaForm.h"
#include "screens/SelectForm.h"

namespace rysovna {

namespace {

/// How the names on the sketch are set.
struct PismoNapisu {
    NapisNacrtu Napis;
    Pismo Font;
};
constexpr float PISMO_VELICIN = 10, PISMO_JMEN = 8;  // points
constexpr PismoNapisu PISMA_NACRTU[] = {
    {NapisNacrtu::Velicina, {Pismo::Rez::MsSansSerif, PISMO_VELICIN, true, false}},
    {NapisNacrtu::Uhel, {Pismo::Rez::Symbol, PISMO_VELICIN, false, false}},
    {NapisNacrtu::Vrchol, {Pismo::Rez::MsSansSerif, PISMO_VELICIN, false, true}},
    {NapisNacrtu::Jmeno, {Pismo::Rez::MsSansSerif, PISMO_JMEN, false, false}}};

// The slide: 34 frames of 40 ms, 9 px each.
constexpr int SNIMKU = 34;
constexpr int KROK_SNIMKU = 9;
constexpr std::uint32_t DOBA_SNIMKU = 40;  // ms

constexpr float NADPIS_X = 21, NADPIS_Y = 6;

}  // namespace

void DeskaForm::KresliNacrt() {
    const auto pismo = [](Plane& p, NapisNacrtu napis, std::string_view text) {
        p.Font = std::ranges::find(PISMA_NACRTU, napis, &PismoNapisu::Napis)->Font;
        return napis == NapisNacrtu::Uhel ? SymbolUhlu(text) : std::string(text);
    };
    KresliPrvkyNacrtu(SamplePic.Plocha(), Dialogem().NacrtPrikladu(), Dialogem().ZnackyNacrtu(),
                      pismo);
}

/// Puts the panel together in a work picture of the menu: its picture, the heading, the sketch.
/// What lies beneath it goes into another.
void DeskaForm::SlozPanel() {
    SelectForm& menu = Menu(s_);
    Surface& pozadi = menu.Pozadi.Plocha();
    pozadi.PaintPicture(Picture, -VPImage.Left, -VPImage.Top);
    pozadi.BitBlt(0, 0, Pic.Left + Pic.Width - VPImage.Left, VPImage.Height, Pic.Plocha(),
                  VPImage.Left - Pic.Left, VPImage.Top - Pic.Top, Rop::SrcCopy);

    KresliNacrt();
    Surface& celek = menu.Kopie2.Plocha();
    celek.Vypln(0, 0, VPImage.Width, VPImage.Height, PURPUROVA);
    celek.PaintPicture(panel_, 0, 0);
    celek.Font = VPImage.Font;
    celek.CurrentX = NADPIS_X;
    celek.CurrentY = NADPIS_Y;
    celek.Print(NajdiUlohu(s_.CisloUlohy)->NadpisNacrtu);
    celek.BitBlt(SamplePic.Left, SamplePic.Top, SamplePic.Width, SamplePic.Height,
                 SamplePic.Plocha(), 0, 0, Rop::SrcCopy);
}

/// Lays the panel, pushed out to the right by so many pixels, on what lies beneath it.
void DeskaForm::PolozPanel(int odsunuti) {
    SelectForm& menu = Menu(s_);
    VPImage.Plocha().PolozVrstvy(menu.Pozadi.Plocha(), menu.Kopie2.Plocha(), odsunuti);
}

/// The resting panel: the picture with its see-through parts, so that the plane and what is dragged
/// over it show beside it as they are, whatever the scale.
void DeskaForm::PolozKlidnyPanel() {
    SlozPanel();
    VPImage.Plocha().BitBlt(0, 0, VPImage.Width, VPImage.Height, Menu(s_).Kopie2.Plocha(), 0, 0,
                            Rop::SrcCopy);
}

/// Slides the panel out or in by frames, with no event let through until the last one: what is
/// pressed meanwhile was meant for the panel. The clock says which frame it is: one whose time is
/// over before its turn is not drawn.
Cinnost<> DeskaForm::PosunPanel(bool ven) {
    const Obrazovky::Zavreni zavreni(s_.Okna());
    const std::uint32_t zacatek = s_.Stroj.TickCount();
    for (int k = 0; k < SNIMKU; ++k) {
        const std::uint32_t konec = static_cast<std::uint32_t>(k + 1) * DOBA_SNIMKU;
        if (s_.Stroj.TickCount() - zacatek < konec) {
            PolozPanel(KROK_SNIMKU * (ven ? SNIMKU - 1 - k : k));
            s_.Stroj.Prekresli();
        }
        const std::uint32_t ted = s_.Stroj.TickCount() - zacatek;
        co_await Cekani::SVstupem(ted < konec ? konec - ted : 0);
    }
    co_await Cekani::SVstupem(0);
}

Cinnost<> DeskaForm::ZasunPanel() {
    if (Image1.Tag == "0") co_return;
    SlozPanel();
    SamplePic.Visible = Image1.Visible = false;
    co_await PosunPanel(false);
    Image1.Tag = "0";
    MalaSipka.Visible = true;
    Prsten(MalaSipka);  // pressed once more by keys, the panel is back
    VPImage.Visible = false;
    ObnovRadu();
    co_await Cekani(20);
}

Cinnost<> DeskaForm::VysunPanel() {
    if (Image1.Tag == "1") co_return;
    SlozPanel();
    SamplePic.Visible = Image1.Visible = false;
    VPImage.Visible = true;
    co_await PosunPanel(true);
    PolozKlidnyPanel();
    Image1.Tag = "1";
    MalaSipka.Visible = false;
    SamplePic.Visible = Image1.Visible = true;
    ObnovRadu();
}

}  // namespace rysovna
