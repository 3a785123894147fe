#include "screens/SelectForm.h"

#include <algorithm>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Ulohy.h"
#include "screens/HelpForm.h"
#include "screens/Meritko.h"
#include "screens/SetupForm.h"
#include "screens/Start.h"

namespace rysovna {
namespace {

constexpr std::uint8_t HOVER_LI = 1;  // the first of five
constexpr std::uint8_t HOVER_RI = 6;  // the first of six
constexpr int BUNEK_PASU = 23;
constexpr std::uint32_t BUNKA_MS = 20;
constexpr float PISMO_PRACE = 8.0F;  // points

}  // namespace

SelectForm::SelectForm(Sezeni& s) : FormHry(s) {
    Pridej(Image1, "Image1", {5, 6, 539, 75});
    PridejPole(LI, "LI", {8, 140, 300, 53});
    for (Image& li : LI) li.Top = 140 + 61 * (li.Index - 1);
    PridejPole(RI, "RI", {333, 140, 300, 102});
    for (Image& ri : RI) ri.Visible = false;
    Pridej(picKonec, "picKonec", {546, 5, 91, 75});
    // Below the visible area: the boards work in them, nobody sees them.
    Pridej(Pozadi, "Pozadi", {8, 492, 315, 204});
    Pridej(Kopie, "Kopie", {8, 492, 315, 204});
    Pridej(Vysledek, "Vysledek", {325, 492, 315, 204});
    Pridej(Kopie2, "Kopie2", {325, 492, 315, 204});
    Pridej(PicClip, "PicClip", {});
    PicClip.Cols = BUNEK_PASU;
    Image1.Zastavka = 1;
    picKonec.Zastavka = 2;
    for (Image& li : LI) li.Zastavka = 3;
    for (Image& ri : RI) ri.Zastavka = 4;
}

void SelectForm::Priprav() {
    Maximised = true;
    Caption = "Rysovna 1";
    PrizpusobForm(s_, *this);
    for (PictureBox* prace : {&Pozadi, &Kopie, &Vysledek}) {
        prace->Font.Velikost = static_cast<float>(Meritko(s_)) * PISMO_PRACE;
    }
    NactiObrazky();
    s_.Okna().Hide(*this);
}

void SelectForm::NactiObrazky() {
    Picture = NactiObrazek(s_, "Bitmap\\Select\\bckg.bmp");
    PicClip.Picture = NactiObrazek(s_, "Bitmap\\Games\\pokracuj.bmp");
    konec_ = NactiDvojici(s_, "Bitmap\\Select\\end");
    picKonec.Picture = konec_.Normalni;
    for (std::size_t k = 0; k < leve_.size(); ++k) {
        leve_[k] = NactiDvojici(s_, "Bitmap\\Select\\l_" + DveCislice(static_cast<int>(k) + 1));
    }
    OdzvolVse(LI, leve_);
    for (Image& ri : RI) ri.Tag = "0";
}

Cinnost<> SelectForm::Roluj(std::shared_ptr<PictureBox> kam, std::function<bool()> dal) {
    for (int i = 0; i < PicClip.Cols; ++i) {
        kam->Picture = PicClip.GraphicCell(i);
        co_await Cekani(BUNKA_MS);
        if (!dal()) co_return;
    }
}

void SelectForm::Unload() {
    MouseMove(nullptr, {.Button = LEVE, .Shift = 0, .X = 1, .Y = 1});
}

Cinnost<> SelectForm::MouseDown(Ovladac* o, const Mys&) {
    if (Je(LI, o)) {
        ZvolRodinu(static_cast<std::size_t>(o->Index) - 1);
    } else if (Je(RI, o)) {
        ZvolUlohu(static_cast<std::size_t>(o->Index) - 1);
    } else if (o == &picKonec) {
        ZvukStisku(s_);
        return ZeptejSeNaKonec();
    }
    return {};
}

/// Asks, and on Yes restores the screen mode and ends the program. Closing the window asks too,
/// whatever screen is in front. While another message box stands, nothing is asked.
Cinnost<> SelectForm::ZeptejSeNaKonec() {
    if (s_.Okna().JeModalni()) co_return;
    const Odpoved odpoved = co_await s_.Stroj.MsgBox("Opravdu chcete ukončit tento program?",
                                                     "Ukončení aplikace", Styl::OtazkaAnoNe);
    if (odpoved != Odpoved::Ano) co_return;
    co_await ObnovObrazovku(s_);
    s_.Okna().Konec();
}

/// A press on the family that is chosen already leaves the pictures of the tasks alone.
void SelectForm::ZvolRodinu(std::size_t i) {
    ZvukStisku(s_);
    for (Image& ri : RI) ri.Tag = "0";
    if (!Zvoleny(LI[i])) {
        const std::span<const Uloha> ulohy = UlohyRodiny(i);
        for (std::size_t j = 0; j < ulohy.size(); ++j) {
            prave_[j] = NactiDvojici(s_, "Bitmap\\Select\\r_" + DveCislice(ulohy[j].Cislo));
        }
        for (std::size_t j = 0; j < RI.size(); ++j) {
            RI[j].Visible = j < ulohy.size();
            if (!RI[j].Visible) continue;
            RI[j].Picture = prave_[j].Normalni;
            RI[j].Height = RI[j].Picture.Height();
            // Neighbours share a row of pixels.
            if (j > 0) RI[j].Top = RI[j - 1].Top + RI[j - 1].Height - 1;
        }
    }
    OdzvolVse(LI, leve_);
    LI[i].Tag = "1";
    LI[i].Picture = leve_[i].Rozsviceny;
}

void SelectForm::ZvolUlohu(std::size_t j) {
    ZvukStisku(s_);
    for (std::size_t i = 0; i < LI.size(); ++i) {
        const std::span<const Uloha> ulohy = UlohyRodiny(i);
        if (j >= ulohy.size() || !Zvoleny(LI[i])) continue;
        s_.CisloUlohy = Bajt(ulohy[j].Cislo);
        s_.NazevHry = RODINY[i];
        s_.TypUlohy = ulohy[j].TypUlohy;
        break;
    }
    OdzvolVse(RI, prave_);
    RI[j].Picture = prave_[j].Rozsviceny;

    Obrazovky& okna = s_.Okna();
    const auto setup = okna.Nacti<SetupForm>(s_);
    okna.Show(*setup);
    s_.AktivniForm = setup;
    okna.Hide(*this);
}

/// Not the same over each control: pictures on the right stay lit until the pointer enters another
/// of them, and the banner changes nothing else.
void SelectForm::MouseMove(Ovladac* o, const Mys&) {
    if (Je(LI, o)) {
        const auto i = static_cast<std::size_t>(o->Index) - 1;
        hover_.Vstup(static_cast<std::uint8_t>(HOVER_LI + i));
        ZhasniNezvolene(LI, leve_);
        LI[i].Picture = leve_[i].Rozsviceny;
        picKonec.Picture = konec_.Normalni;
    } else if (Je(RI, o)) {
        const auto j = static_cast<std::size_t>(o->Index) - 1;
        hover_.Vstup(static_cast<std::uint8_t>(HOVER_RI + j));
        picKonec.Picture = konec_.Normalni;
        ZhasniNezvolene(LI, leve_);
        ZhasniNezvolene(RI, prave_);
        if (!Zvoleny(RI[j])) RI[j].Picture = prave_[j].Rozsviceny;
    } else if (o == &picKonec) {
        if (!hover_.Vstup(Hover::KONEC)) return;
        picKonec.Picture = konec_.Rozsviceny;
        ZhasniNezvolene(LI, leve_);
    } else if (o == &Image1) {
        hover_.Vstup(Hover::ZAHLAVI);
    } else if (hover_.Opust()) {
        picKonec.Picture = konec_.Normalni;
        ZhasniNezvolene(LI, leve_);
    }
}

Cinnost<> SelectForm::Click(Ovladac* o) {
    if (o != &Image1) return {};
    ZvukStisku(s_);
    UkazNapovedu(s_, "Bitmap\\Help\\credits.bmp", *this);
    return {};
}

Odezva SelectForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    if (klavesa != "Escape") return std::nullopt;
    return MouseDown(&picKonec, {});
}

Ovladac* SelectForm::PrvniZastavka() {
    const auto zvolena = std::ranges::find_if(LI, Zvoleny);
    return zvolena != LI.end() ? &*zvolena : &LI.front();
}

Cinnost<> SelectForm::QueryUnload() {
    return ZeptejSeNaKonec();
}

SelectForm& Menu(const Sezeni& s) {
    const std::shared_ptr<Form> menu = s.Okna().Najdi("SelectForm");
    if (!menu) Selhani("Nabídka úloh není načtena");
    return static_cast<SelectForm&>(*menu);
}

}  // namespace rysovna
