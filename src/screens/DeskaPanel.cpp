// The panel of the dialogue as the controls show it.

#include <algorithm>

#include "base/Text.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Pisma.h"
#include "rules/Veliciny.h"
#include "screens/DeskaForm.h"

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

/// By how many px the prompt is painted shorter before its gap than it was measured for: the sign
/// of a perpendicular moves with the gap.
int ZkraceniSazbou(const Label& vyzva) {
    Label pred = vyzva;
    pred.Caption = vyzva.Caption.substr(0, vyzva.Caption.find(MEZERA_KOLMO));
    pred.PodleTextu();
    return SirkaTextu(pred.Font, pred.Caption) - pred.Width;
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
    const Panel p = Dialogem().UkazPanel();
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
                pridej(SymbolUhlu(nazev), {.Nazev = Pismo::Rez::Symbol}, i, mezera);
                break;
            case ZadanaVelicina::Druh::Delka:
                pridej(nazev, {.Kurziva = true}, i, mezera);
                break;
        }
        pridej(hodnota, {}, i, MezeraHodnoty(zadani, i));
    }
    for (std::size_t i = 0; i < lblZadani.size(); ++i) lblZadani[i].Visible = i < popisku;
}

int DeskaForm::VyskaSeznamu(int radku) {
    return radku * VYSKA_RADKU + OKRAJ;
}

void DeskaForm::RozlozSeznam() {
    const int sirka = SirkaSeznamu(Seznam::Obsah::Jmena);
    Pridej(Combo, "Combo", {372, 444, sirka, VyskaSeznamu(RADKU_NAVRHU)});
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
    Combo.Height = VyskaSeznamu(static_cast<int>(seznam.Radky.size()));
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

}  // namespace rysovna
