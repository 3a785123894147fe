#include "screens/DeskaCtyruhelniku.h"

#include "platform/Misto.h"

namespace rysovna {

namespace {

// The rows of values, px: below the tools of the first phase, which are one row there.
constexpr int RADEK_NAHORE = 320, RADEK_VYSKA = 23;
constexpr int NAZEV_VLEVO = 16, NAZEV_SIRKA = 126;
constexpr int BOX_VLEVO = 144, BOX_SIRKA = 44, BOX_VYSKA = 20;
constexpr int JEDNOTKA_VLEVO = 191, JEDNOTKA_SIRKA = 32;

// The assignment has a third row here.
constexpr int VYZVA_NAHORE = 182, VYZVA_VYSKA = 70;

}  // namespace

DeskaCtyruhelniku::DeskaCtyruhelniku(Sezeni& s, const RadekDesky& deska) : DeskaForm(s, deska) {
    Label* const nazvy[] = {&lblText5, &lblText6, &lblText7};
    const char* const jmena[] = {"lblText5", "lblText6", "lblText7"};
    for (int i = 0; i < 3; ++i) {
        Pridej(*nazvy[i], jmena[i],
               {NAZEV_VLEVO, RADEK_NAHORE + 2 + i * RADEK_VYSKA, NAZEV_SIRKA, 18});
        nazvy[i]->WordWrap = false;
        nazvy[i]->Sazba = true;
    }
    const auto box = [](int i) {
        return Obdelnik{BOX_VLEVO, RADEK_NAHORE + i * RADEK_VYSKA, BOX_SIRKA, BOX_VYSKA};
    };
    const auto jednotka = [](int i) {
        return Obdelnik{JEDNOTKA_VLEVO, RADEK_NAHORE + 2 + i * RADEK_VYSKA, JEDNOTKA_SIRKA, 18};
    };
    Pridej(txtVstup2, "txtVstup2", box(1));
    Pridej(txtVstup3, "txtVstup3", box(2));
    txtVstup2.Zastavka = txtVstup.Zastavka + 1;
    txtVstup3.Zastavka = txtVstup.Zastavka + 2;
    Pridej(lblText8, "lblText8", jednotka(1));
    Pridej(lblText9, "lblText9", jednotka(2));
}

void DeskaCtyruhelniku::Load() {
    lblText1.Top = VYZVA_NAHORE;
    lblText1.Height = VYZVA_VYSKA;
    DeskaForm::Load();
}

void DeskaCtyruhelniku::Change(TextBox& t) {
    if (&t == &txtVstup2) {
        Napis(2, t);
    } else if (&t == &txtVstup3) {
        Napis(3, t);
    } else {
        DeskaForm::Change(t);
    }
}

void DeskaCtyruhelniku::UkazDalsi(const Panel& panel) {
    const bool radky = panel.Veliciny.size() == 3;
    for (Label* l : {&lblText5, &lblText6, &lblText7, &lblText8, &lblText9}) l->Visible = radky;
    txtVstup2.Visible = txtVstup3.Visible = radky;
    Obdelnik prvni = BOX_HODNOTY;  // of the later phases
    if (radky) {
        prvni = {BOX_VLEVO, RADEK_NAHORE, BOX_SIRKA, BOX_VYSKA};
        lblText5.Caption = panel.Veliciny[0].Nazev;
        lblText6.Caption = panel.Veliciny[1].Nazev;
        lblText7.Caption = panel.Veliciny[2].Nazev;
        lblText4.Left = JEDNOTKA_VLEVO;
        lblText4.Top = RADEK_NAHORE + 2;
        lblText8.Caption = panel.Veliciny[1].Jednotka;
        lblText9.Caption = panel.Veliciny[2].Jednotka;
        TextBox* const boxy[] = {&txtVstup2, &txtVstup3};
        for (std::size_t i = 0; i < 2; ++i) {
            const Vstup& v = panel.Veliciny[i + 1].Hodnota;
            boxy[i]->Enabled = v.Ziva;
            if (boxy[i]->Text == v.Text) continue;
            boxy[i]->Text = v.Text;
            boxy[i]->SelStart = boxy[i]->SelAnchor = 0;
        }
    }
    Poloz(txtVstup, prvni);
}

}  // namespace rysovna
