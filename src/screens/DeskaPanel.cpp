// The panel of the dialogue as the controls show it, and the sliding panel with the sketch.

#include "engine/Sluzby.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/DeskaForm.h"
#include "screens/SelectForm.h"
#include "screens/Spolecne.h"

namespace rysovna {

namespace {

constexpr int ZADANI_VLEVO = 20;                              // px, first label of a row
constexpr std::array<int, 3> RADKY_ZADANI = {128, 144, 160};  // px, tops of the rows

constexpr int JEDNOTKA_NAHORE = 374;  // px, the unit beside the box for a value

// The slide: 34 frames of 40 ms, 9 px each.
constexpr int SNIMKU = 34;
constexpr int KROK_SNIMKU = 9;
constexpr std::uint32_t DOBA_SNIMKU = 40;  // ms

constexpr std::string_view NADPIS_STRANY = "Označ strany (resp. úhly), které jsou zadány:";
constexpr std::string_view NADPIS_VSE =
    "Označ strany (resp. úhly, výšky, těžnice), které jsou zadány:";
constexpr int ULOHA_STRANY = 1;  // the one task with the short heading
constexpr float NADPIS_X = 21, NADPIS_Y = 6;

/// By how many px the prompt is painted shorter before its gap than it was measured for: the sign
/// of a perpendicular moves with the gap.
int ZkraceniSazbou(const Label& vyzva) {
    constexpr std::string_view MEZERA = "  ";
    Label pred = vyzva;
    pred.Caption = vyzva.Caption.substr(0, vyzva.Caption.find(MEZERA));
    pred.PodleTextu();
    return SirkaTextu(pred.Font, pred.Caption) - pred.Width;
}

}  // namespace

void DeskaForm::Ukaz() {
    const Panel p = dialog_->UkazPanel();
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        const Tlacitko& t = p.cmd[i];
        cmd[i].Visible = t.Tvar != 0;
        cmd[i].Enabled = t.Zive;
        if (t.Tvar == 0) continue;
        const DvojiceObrazku& tvar = tvary_.at(t.Tvar);
        cmd[i].Picture = t.Barevne ? tvar.Rozsviceny : tvar.Normalni;
    }
    Label1.Caption = p.Label1;
    lblText1.Caption = p.lblText1;
    lblText2.Caption = p.lblText2;
    lblText3.Caption = p.lblText3;
    lblText3.Visible = !p.lblText3.empty();
    lblText4.Visible = p.lblText4.Videt;
    lblText4.Caption = p.lblText4.Text;
    lblText4.Font.Nazev = p.lblText4.Symbol ? Pismo::Rez::Symbol : Pismo::Rez::MsSansSerif;
    lblText4.Left = lblText3.Left + p.lblText4.Odsazeni -
                    (p.lblText4.NaRadkuVyzvy ? ZkraceniSazbou(lblText3) : 0);
    lblText4.Top = p.lblText4.NaRadkuVyzvy ? lblText3.Top : JEDNOTKA_NAHORE;

    const bool ukazatVstup = p.txtVstup.Videt && !txtVstup.Visible;
    if (!p.txtVstup.Videt && txtVstup.Visible) ZrusZamereni();
    txtVstup.Visible = p.txtVstup.Videt;
    txtVstup.Enabled = p.txtVstup.Ziva;
    if (txtVstup.Text != p.txtVstup.Text) {
        txtVstup.Text = p.txtVstup.Text;
        txtVstup.SelStart = txtVstup.SelAnchor = 0;
    }
    if (ukazatVstup) SetFocus(txtVstup);

    Pic.Enabled = p.PicZiva;
    const Gesto::Tvar gesto = p.Kresleni.Druh;
    Pic.Zastavka = gesto != Gesto::Tvar::Zadny ? ZASTAVKA_PLOCHY : 0;
    Pic.Klavesou = gesto == Gesto::Tvar::Bod ? StiskKlavesou::Klik : StiskKlavesou::Tah;
    UkazZadani(p.lblZadani);
    UkazSeznam(p.Combo);
    UkazDalsi(p);
    if (!(p == videne_.Krok)) {
        videne_.MrtvyNastroj = 0;
        videne_.Pod = Videne::CoPod::Nic;
    }
    videne_.Krok = p;
    ObnovRadu();
}

void DeskaForm::UkazZadani(const std::vector<PolozkaZadani>& zadani) {
    std::size_t radek = 0;  // rows begun
    for (std::size_t i = 0; i < lblZadani.size(); ++i) {
        Label& l = lblZadani[i];
        l.Visible = i < zadani.size();
        if (!l.Visible) continue;
        const PolozkaZadani& z = zadani[i];
        l.Caption = z.Text;
        l.Font = z.Font;
        l.Sazba = z.Sazba;
        l.PodleTextu();
        if (z.NovyRadek && radek < RADKY_ZADANI.size()) ++radek;
        l.Top = RADKY_ZADANI[radek == 0 ? 0 : radek - 1];
        l.Left =
            z.NovyRadek ? ZADANI_VLEVO : lblZadani[i - 1].Left + lblZadani[i - 1].Width + z.Mezera;
    }
}

void DeskaForm::UkazSeznam(const Seznam& seznam) {
    Combo.Visible = seznam.Otevreny;
    Combo.Width = seznam.Sirka;
    Combo.Height = seznam.Vyska;
    for (std::size_t i = 0; i < ComboLabel.size(); ++i) {
        Label& l = ComboLabel[i];
        l.Visible = i < seznam.Radky.size() && seznam.Radky[i].Videt;
        l.Width = seznam.SirkaRadku;
        if (!l.Visible) continue;
        l.Caption = seznam.Radky[i].Text;
        l.Enabled = seznam.Radky[i].Ziva;
        l.Tag = seznam.Radky[i].Tag;
    }
}

void DeskaForm::KresliNacrt() {
    Surface& p = SamplePic.Plocha();
    dialog_->KresliNacrt(p);
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
    celek.Print(s_.CisloUlohy == ULOHA_STRANY ? NADPIS_STRANY : NADPIS_VSE);
    celek.BitBlt(SamplePic.Left, SamplePic.Top, SamplePic.Width, SamplePic.Height,
                 SamplePic.Plocha(), 0, 0, Rop::SrcCopy);
}

/// Lays the panel, pushed out to the right by so many pixels, on what lies beneath it.
void DeskaForm::PolozPanel(int odsunuti) {
    SelectForm& menu = Menu(s_);
    const int w = VPImage.Width;
    const int h = VPImage.Height;
    Surface& kopie = menu.Kopie.Plocha();
    kopie.Vypln(0, 0, w, h, PURPUROVA);
    kopie.BitBlt(odsunuti, 0, w - odsunuti, h, menu.Kopie2.Plocha(), 0, 0, Rop::SrcCopy);
    ProhledneKopirovani(kopie, w, h, PURPUROVA, menu.Pozadi.Plocha(), menu.Vysledek.Plocha());
    VPImage.Plocha().BitBlt(0, 0, w, h, menu.Vysledek.Plocha(), 0, 0, Rop::SrcCopy);
}

/// The resting panel: the picture with its see-through parts, so that the plane and what is dragged
/// over it show beside it as they are, whatever the scale.
void DeskaForm::PolozKlidnyPanel() {
    SlozPanel();
    VPImage.Plocha().BitBlt(0, 0, VPImage.Width, VPImage.Height, Menu(s_).Kopie2.Plocha(), 0, 0,
                            Rop::SrcCopy);
}

/// Slides the panel out or in by frames, with no event let through until the last one: what is
/// pressed meanwhile was meant for the panel.
Cinnost<> DeskaForm::PosunPanel(bool ven) {
    const Obrazovky::Zavreni zavreni(s_.Okna());
    const std::uint32_t zacatek = s_.Stroj.TickCount();
    for (int k = 0; k < SNIMKU; ++k) {
        PolozPanel(KROK_SNIMKU * (ven ? SNIMKU - 1 - k : k));
        s_.Stroj.Prekresli();
        const std::uint32_t konec = zacatek + static_cast<std::uint32_t>(k + 1) * DOBA_SNIMKU;
        const std::uint32_t ted = s_.Stroj.TickCount();
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
