// The panel of the dialogue as the controls show it, and the sliding panel with the sketch.

#include <algorithm>
#include <utility>

#include "base/Text.h"
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

// Fonts of the assignment, points; px before a name and before a value, behind an angle's name too.
constexpr float PISMO_ZADANI = 10;
constexpr int MEZERA = 2, MEZERA_UHLU = 4;
/// Of three quantities with two angles the last ones stand further from their names: px by whether
/// each is an angle.
constexpr struct {
    std::array<bool, 3> Uhly;
    std::array<int, 3> Mezery;
} MEZERY_DVOU_UHLU[] = {{{false, true, true}, {2, 5, 5}},
                        {{true, false, true}, {4, 2, 5}},
                        {{true, true, false}, {4, 4, 5}}};

/// The letter of Symbol that shows an angle.
constexpr std::pair<std::string_view, std::string_view> UHLY[] = {
    {"alfa", "a"}, {"beta", "b"}, {"gama", "g"}, {"delta", "d"},
    {"delt", "d"}, {"epsi", "e"}, {"omeg", "w"},
};

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

// The unit beside the box for a value, px: to the right of the name of the object in hand; top.
constexpr int JEDNOTKA_VPRAVO = 142, JEDNOTKA_NAHORE = 374;

// The sign of a perpendicular stands in a gap of the text: so many px to the right of it where
// "přímka b, b" is before the gap, more behind longer names.
constexpr std::string_view MEZERA_KOLMO = "      ", SYMBOL_KOLMO = "^";
constexpr int KOLMO_VPRAVO = 66, ZNAKU_PRED_KOLMO = 11, SIRKA_ZNAKU = 7;

// The pick list, px: a line; the edge, that of both sides; the width by how much the lines say.
constexpr int VYSKA_RADKU = 20, OKRAJ = 4, RADKU_NAVRHU = 3;
constexpr struct {
    Seznam::Obsah CoRika;
    int Sirka;
} SIRKY[] = {{Seznam::Obsah::Jmena, 105},
             {Seznam::Obsah::Slova, 140},
             {Seznam::Obsah::Popisy, 200},
             {Seznam::Obsah::DlouhePopisy, 250}};

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
    Label pred = vyzva;
    pred.Caption = vyzva.Caption.substr(0, vyzva.Caption.find(MEZERA_KOLMO));
    pred.PodleTextu();
    return SirkaTextu(pred.Font, pred.Caption) - pred.Width;
}

std::string PismenoUhlu(std::string_view nazev) {
    const auto* u = std::ranges::find(UHLY, nazev, [](const auto& r) { return r.first; });
    return std::string(u == std::end(UHLY) ? nazev : u->second);
}

/// px between the name and the value of a given quantity.
int MezeraHodnoty(const std::vector<ZadanaVelicina>& zadani, std::size_t ktera) {
    const auto jeUhel = [&](std::size_t i) { return zadani[i].Co == ZadanaVelicina::Druh::Uhel; };
    if (zadani.size() == 3) {
        for (const auto& [uhly, mezery] : MEZERY_DVOU_UHLU) {
            if (uhly == std::array{jeUhel(0), jeUhel(1), jeUhel(2)}) return mezery[ktera];
        }
    }
    return jeUhel(ktera) ? MEZERA_UHLU : MEZERA;
}

int SirkaSeznamu(Seznam::Obsah coRika) {
    for (const auto& s : SIRKY) {
        if (s.CoRika == coRika) return s.Sirka;
    }
    return 0;
}

}  // namespace

void DeskaForm::Ukaz() {
    const Panel p = dialog_->UkazPanel();
    UkazNastroje(p.Nastroje);
    Label1.Caption = p.Uvod;
    lblText1.Caption = p.Vyzva;
    lblText2.Caption = p.Nadpis;
    UkazVelicinu(p);
    Pic.Enabled = p.PlochaZiva;
    const Gesto::Tvar gesto = p.Kresleni.Druh;
    Pic.Zastavka = gesto != Gesto::Tvar::Zadny ? ZASTAVKA_PLOCHY : 0;
    Pic.Klavesou = gesto == Gesto::Tvar::Bod ? StiskKlavesou::Klik : StiskKlavesou::Tah;
    UkazZadani(p.Zadani);
    UkazSeznam(p.Vyber);
    UkazDalsi(p);
    if (!(p == videne_.Krok)) {
        videne_.MrtvyNastroj = 0;
        videne_.Pod = Videne::CoPod::Nic;
    }
    videne_.Krok = p;
    ObnovRadu();
}

void DeskaForm::UkazNastroje(const MistaNastroju& mista) {
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        const MistoNastroje& n = mista[i];
        cmd[i].Visible = n.Co != Nastroj::Zadny;
        cmd[i].Enabled = n.Zivy();
        if (!cmd[i].Visible) continue;
        const DvojiceObrazku& tvar = tvary_.at(n.Co);
        cmd[i].Picture = n.Jak == MistoNastroje::Stav::Sedy ? tvar.Normalni : tvar.Rozsviceny;
    }
}

/// The object in hand with the box for its value; of several values the first box and its unit.
void DeskaForm::UkazVelicinu(const Panel& p) {
    const Velicina& v = p.Veliciny.empty() ? p.Rysovane : p.Veliciny[0];
    std::string nazev = p.Rysovane.Nazev;
    const std::string kolmo = " " + std::string(KOLMO) + " ";
    const std::size_t znak = nazev.find(kolmo);
    const bool jeKolmo = znak != std::string::npos;
    if (jeKolmo) nazev.replace(znak, kolmo.size(), MEZERA_KOLMO);
    lblText3.Caption = nazev;
    lblText3.Visible = !nazev.empty();
    lblText4.Visible = jeKolmo || !v.Jednotka.empty();
    lblText4.Caption = jeKolmo ? SYMBOL_KOLMO : v.Jednotka;
    lblText4.Font.Nazev = jeKolmo ? Pismo::Rez::Symbol : Pismo::Rez::MsSansSerif;
    if (jeKolmo) {
        const int navic = PocetZnaku(nazev.substr(0, znak)) - ZNAKU_PRED_KOLMO;
        lblText4.Left =
            lblText3.Left + KOLMO_VPRAVO + navic * SIRKA_ZNAKU - ZkraceniSazbou(lblText3);
        lblText4.Top = lblText3.Top;
    } else {
        lblText4.Left = lblText3.Left + JEDNOTKA_VPRAVO;
        lblText4.Top = JEDNOTKA_NAHORE;
    }

    const Vstup& vstup = v.Hodnota;
    const bool ukazatVstup = vstup.Videt && !txtVstup.Visible;
    if (!vstup.Videt && txtVstup.Visible) ZrusZamereni();
    txtVstup.Visible = vstup.Videt;
    txtVstup.Enabled = vstup.Ziva;
    if (txtVstup.Text != vstup.Text) {
        txtVstup.Text = vstup.Text;
        txtVstup.SelStart = txtVstup.SelAnchor = 0;
    }
    if (ukazatVstup) SetFocus(txtVstup);
}

/// Two quantities a row, each with a label for its name and one for its value.
void DeskaForm::UkazZadani(const std::vector<ZadanaVelicina>& zadani) {
    std::size_t popisku = 0;
    int vlevo = 0;
    const auto pridej = [&](const std::string& text, Pismo pismo, std::size_t i, int mezera) {
        if (popisku >= lblZadani.size()) return;
        Label& l = lblZadani[popisku++];
        l.Caption = text;
        pismo.Velikost = PISMO_ZADANI;
        l.Font = pismo;
        l.Sazba = true;
        l.PodleTextu();
        l.Top = RADKY_ZADANI[std::min(i / 2, RADKY_ZADANI.size() - 1)];
        l.Left = vlevo + mezera;
        vlevo = l.Left + l.Width;
    };
    for (std::size_t i = 0; i < zadani.size(); ++i) {
        const auto& [druh, nazev, hodnota] = zadani[i];
        const bool zacinaRadek = i % 2 == 0;
        if (zacinaRadek) vlevo = ZADANI_VLEVO;
        const int mezera = zacinaRadek ? 0 : MEZERA;
        switch (druh) {
            case ZadanaVelicina::Druh::Slovy:
                pridej(hodnota, {}, i, mezera);
                continue;
            case ZadanaVelicina::Druh::Uhel:
                pridej(PismenoUhlu(nazev), {.Nazev = Pismo::Rez::Symbol}, i, mezera);
                break;
            case ZadanaVelicina::Druh::Delka:
                pridej(nazev, {.Kurziva = true}, i, mezera);
                break;
        }
        pridej(hodnota, {}, i, MezeraHodnoty(zadani, i));
    }
    for (std::size_t i = 0; i < lblZadani.size(); ++i) lblZadani[i].Visible = i < popisku;
}

void DeskaForm::RozlozSeznam() {
    const int sirka = SirkaSeznamu(Seznam::Obsah::Jmena);
    Pridej(Combo, "Combo", {372, 444, sirka, RADKU_NAVRHU * VYSKA_RADKU + OKRAJ});
    Combo.Ramecek = true;
    Combo.Visible = false;
    PridejPole(ComboLabel, "ComboLabel", {3, 2, sirka - OKRAJ, VYSKA_RADKU}, &Combo);
    for (std::size_t i = 0; i < ComboLabel.size(); ++i) {
        ComboLabel[i].Top = 2 + static_cast<int>(i) * VYSKA_RADKU;
        ComboLabel[i].WordWrap = false;
        ComboLabel[i].Sazba = true;
    }
}

void DeskaForm::UkazSeznam(const Seznam& seznam) {
    Combo.Visible = seznam.Otevreny;
    Combo.Width = SirkaSeznamu(seznam.CoRika);
    Combo.Height = static_cast<int>(seznam.Radky.size()) * VYSKA_RADKU + OKRAJ;
    for (std::size_t i = 0; i < ComboLabel.size(); ++i) {
        Label& l = ComboLabel[i];
        l.Visible = i < seznam.Radky.size() && seznam.Radky[i].Videt;
        l.Width = Combo.Width - OKRAJ;
        if (!l.Visible) continue;
        l.Caption = seznam.Radky[i].Text;
        l.Enabled = seznam.Radky[i].Ziva;
        l.Tag = seznam.Radky[i].Jmena;
    }
}

void DeskaForm::KresliNacrt() {
    const auto pismo = [](Plane& p, NapisNacrtu napis, std::string_view text) {
        p.Font = std::ranges::find(PISMA_NACRTU, napis, &PismoNapisu::Napis)->Font;
        return napis == NapisNacrtu::Uhel ? PismenoUhlu(text) : std::string(text);
    };
    KresliPrvkyNacrtu(SamplePic.Plocha(), dialog_->NacrtPrikladu(), dialog_->ZnackyNacrtu(), pismo);
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
