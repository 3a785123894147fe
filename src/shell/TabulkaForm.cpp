#include "shell/TabulkaForm.h"

#include <utility>

#include "base/Cisla.h"
#include "platform/Host.h"
#include "shell/HelpForm.h"
#include "shell/Misc.h"
#include "shell/Prechody.h"
#include "shell/Ukladani.h"
#include "shell/Zdroje.h"

namespace rysovna {
namespace {

constexpr int ROZTEC_RADKU = 30;      // px
constexpr float PISMO_RADKU = 10.0F;  // points: a name of 35 letters fits its column

std::string SouborTabulky() {
    return CestaVysledku + DveCislice(CisloUlohy) + ".res";
}

}  // namespace

TabulkaForm::TabulkaForm() {
    Pridej(INadpis, "INadpis", {0, 0, 238, 80});
    PridejPole(LPoradi, "LPoradi", {32, 165, 50, 20});
    PridejPole(LJmeno, "LJmeno", {91, 165, 260, 20});
    PridejPole(LSpravne, "LSpravne", {376, 165, 70, 20});
    PridejPole(LSpatne, "LSpatne", {464, 165, 70, 20});
    PridejPole(LZnamka, "LZnamka", {544, 165, 70, 20});
    Pridej(picKonec, "picKonec", {546, 5, 91, 75});
}

void TabulkaForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
    PrizpusobForm(*this);

    Picture = NactiObrazek("Bitmap\\Tab\\bckg.bmp");
    konec_ = NactiDvojici("Bitmap\\Games\\back");
    picKonec.Picture = konec_.Normalni;
    INadpis.Picture = NactiObrazek("Bitmap\\Tab\\bckg_" + DveCislice(CisloUlohy) + ".bmp");

    const double meritko = Meritko();
    for (auto* sloupec : {&LPoradi, &LJmeno, &LSpravne, &LSpatne, &LZnamka}) {
        const int prvni = sloupec->front().Top;
        for (Label& pole : *sloupec) {
            pole.Top = prvni + Zaokrouhli(meritko * ROZTEC_RADKU * (pole.Index - 1));
            pole.Font.Velikost = static_cast<float>(meritko) * PISMO_RADKU;
            // A name of any length stays on its row and is cut at the column's edge.
            pole.WordWrap = false;
        }
    }
    for (Label& poradi : LPoradi) poradi.Caption = TextBezMezery(poradi.Index) + ".";

    NactiTabulku();
    VyplnRadky();
}

void TabulkaForm::VyplnRadky() {
    for (std::size_t k = 0; k < zaznamy_.size() && k < LPoradi.size(); ++k) {
        LJmeno[k].Caption = zaznamy_[k].Jmeno;
        LSpravne[k].Caption = zaznamy_[k].Spravne;
        LSpatne[k].Caption = zaznamy_[k].Spatne;
        LZnamka[k].Caption = zaznamy_[k].Znamka;
    }
}

void TabulkaForm::NactiTabulku() {
    Disk& disk = Stroj().Disk();
    try {
        zaznamy_ = rysovna::NactiTabulku(disk, disk.Skutecna(SouborTabulky()));
    } catch (const ChybaDisku&) {
        // What a result has to say of it, it says when it is stored.
        zaznamy_.assign(1, {"Tabulku výsledků nelze přečíst", "", "", ""});
    }
    for (ZaznamTabulky& z : Vysledky().Nezapsane(CisloUlohy)) VlozZaznam(zaznamy_, std::move(z));
}

void TabulkaForm::MouseDown(Ovladac* o, const Mys&) {
    if (o == &picKonec) Zpet();
}

void TabulkaForm::Zpet() {
    ZvukStisku();
    VratSeK(Vlastnik, *this);
}

void TabulkaForm::MouseMove(Ovladac* o, const Mys&) {
    if (o == &picKonec) {
        if (hover_.Vstup(Hover::KONEC)) picKonec.Picture = konec_.Rozsviceny;
    } else if (o == nullptr && hover_.Opust()) {
        picKonec.Picture = konec_.Normalni;
    }
}

void TabulkaForm::Click(Ovladac* o) {
    if (o != &INadpis) return;
    ZvukStisku();
    UkazNapovedu("Bitmap\\Help\\tab.bmp", *this);
}

bool TabulkaForm::Klavesa(std::string_view klavesa) {
    if (klavesa != "Escape") return false;
    Zpet();
    return true;
}

}  // namespace rysovna
