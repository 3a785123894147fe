#include "screens/DeskaForm.h"

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "platform/Host.h"
#include "platform/Misto.h"
#include "platform/Paleta.h"
#include "screens/Meritko.h"
#include "screens/SelectForm.h"
#include "screens/TlacitkoNastroje.h"
#include "store/JmenaSouboru.h"
#include "store/Soubory.h"

namespace rysovna {

namespace {

constexpr const char* HRY = "Bitmap\\Games\\";

constexpr std::array<std::string_view, 4> HORNI = {"check", "new", "tab", "back"};

constexpr std::array<Obdelnik, 6> TLACITKA = {{{16, 280, 94, 32},
                                               {111, 280, 94, 32},
                                               {16, 312, 94, 32},
                                               {111, 312, 94, 32},
                                               {16, 404, 94, 32},
                                               {111, 404, 94, 32}}};

constexpr float PISMO_PANELU = 8;  // points, at 15 twips a pixel

}  // namespace

DeskaForm::DeskaForm(Sezeni& s, const RadekDesky& deska) : FormHry(s), deska_(deska) {
    RozlozOvladace();
}

void DeskaForm::RozlozOvladace() {
    Pridej(INadpis, "INadpis", {0, 0, 238, 80});
    PridejPole(PicTop, "PicTop", {273, 5, 91, 75});
    Pridej(Label1, "Label1", {16, 108, 195, 16});
    PridejPole(lblZadani, "lblZadani", {0, 0, 60, 16}, nullptr, 0);
    for (Label& l : lblZadani) l.WordWrap = false;
    Pridej(lblText1, "lblText1", {16, 168, 195, 80});
    Pridej(lblText2, "lblText2", {16, 256, 195, 18});
    PridejPole(cmd, "cmd", TLACITKA[0]);
    for (std::size_t i = 0; i < cmd.size(); ++i) Poloz(cmd[i], TLACITKA[i]);
    Pridej(lblText3, "lblText3", {16, 350, 205, 18});
    lblText3.WordWrap = false;
    Pridej(lblText4, "lblText4", {158, 374, 50, 18});
    lblText4.WordWrap = false;
    for (Label* l : {&Label1, &lblText1, &lblText2, &lblText3, &lblText4}) l->Sazba = true;
    Pridej(txtVstup, "txtVstup", BOX_HODNOTY);
    Pridej(ImgHodnoceni, "ImgHodnoceni", {173, 404, 32, 32});
    Pridej(IHintS, "IHintS", {201, 413, 15, 13});

    Pridej(Pic, "Pic", {226, 98, SIRKA_PLOCHY, VYSKA_PLOCHY});
    Pic.BereDvojklik = SamplePic.BereDvojklik = false;
    Pridej(Line1, "Line1", {}, &Pic);
    Pridej(Circle1, "Circle1", {}, &Pic);
    Pridej(Text, "Text", {0, 0, 60, 17}, &Pic);
    Text.WordWrap = false;
    Text.BackColor = paleta::ODECET;  // so that it can be read over lines
    Text.Visible = false;
    Text.ProMys = false;  // a quick move to the lower right would run into it
    Pridej(HidenPic, "HidenPic", {180, 20, 45, 41});
    HidenPic.Visible = false;
    PridejPole(picSipka, "picSipka", SIPKY[0].Misto);
    for (std::size_t i = 0; i < picSipka.size(); ++i) Poloz(picSipka[i], SIPKY[i].Misto);
    Pridej(picPokracuj, "picPokracuj", {526, 457, 94, 23});
    Pridej(MalaSipka, "MalaSipka", {622, 340, 18, 28});
    MalaSipka.Visible = false;

    Pridej(VPImage, "VPImage", {325, 164, 315, 204});
    Pridej(SamplePic, "SamplePic", {21, 24, 289, 177}, &VPImage);
    Pridej(Image1, "Image1", {0, 80, 18, 44}, &VPImage);
    Image1.Tag = "1";

    RozlozRadu();
    RozlozSeznam();
    OcislujZastavky();
    for (PictureBox& t : cmd) t.Ramovat = true;
    for (Label& l : ComboLabel) l.Ramovat = true;
    for (PictureBox& s : picSipka) s.DalPrstem = true;
    Image1.DalPrstem = MalaSipka.DalPrstem = true;
}

void DeskaForm::NactiObrazky() {
    const std::string hry = HRY;
    Picture = NactiObrazek(s_, hry + "bckg.bmp");
    INadpis.Picture = NactiObrazek(s_, "Bitmap\\Tab\\bckg_" + DveCislice(s_.CisloUlohy) + ".bmp");
    IHintS.Picture = NactiObrazek(s_, hry + "new_hin2.bmp");
    IHintS.Visible = false;
    MalaSipka.Picture = NactiObrazek(s_, hry + "board1_s.bmp");
    panel_ = NactiObrazek(s_, hry + "board1.bmp");
    // The blank panel belongs to the set and is read with it; no state of a board shows it.
    static_cast<void>(NactiObrazek(s_, hry + "board0.bmp"));
    for (std::size_t i = 0; i < PicTop.size(); ++i) {
        horni_[i] = NactiDvojici(s_, hry + std::string(HORNI[i]));
        PicTop[i].Picture = horni_[i].Normalni;
        const std::string sipka = hry + std::string(SIPKY[i].Soubor);
        sipky_[i] = {NactiObrazek(s_, sipka + "0.bmp"), NactiObrazek(s_, sipka + ".bmp")};
        picSipka[i].Picture = sipky_[i].Normalni;
    }
    s_.PokracujObrazek = NactiObrazek(s_, hry + "pokracbg.bmp");
    picPokracuj.Picture = s_.PokracujObrazek;
    picPokracuj.Enabled = false;
    for (const Nastroj n : deska_.Nastroje) {
        const TlacitkoNastroje* t = NajdiTlacitko(n);
        tvary_[n] = NactiDvojici(s_, hry + "what" + DveCislice(t == nullptr ? 0 : t->Tvar));
    }
    kontrolovano_ = NactiObrazek(s_, hry + "mkont.bmp");
    hodnoceniDobre_ = NactiObrazek(s_, hry + "Check_ok.bmp");
    hodnoceniSpatne_ = NactiObrazek(s_, hry + "Check_ko.bmp");
    ImgHodnoceni.Visible = false;
}

void DeskaForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
    for (std::size_t i = 1; i < PicTop.size(); ++i) {
        PicTop[i].Left = static_cast<int>(i) * PicTop[0].Width + PicTop[0].Left;
        PicTop[i].Visible = true;
    }
    PrizpusobForm(s_, *this);
    VPImage.Font.Velikost = PISMO_PANELU;
    PicRada.Visible = s_.RadyUkazovat && !promita_;
    lblText2.Font.Tucne = true;
    NactiObrazky();
    HidenPic.Width = Pic.Width;
    HidenPic.Height = Pic.Height;
    Pic.Plocha().Font = Pic.Font;
    HidenPic.Plocha().Font = HidenPic.Font;
    Pic.Plocha().Svatozar = HidenPic.Plocha().Svatozar = true;

    if (!promita_) ZacniSerii();
}

/// The examples of the task, and the first one set.
void DeskaForm::ZacniSerii() {
    s_.SmazTabulky();
    s_.KladneBody = s_.ZaporneBody = 0;
    zbyvaPrikladu_ = s_.PocetPrikladuSerie;
    dialog_ = deska_.VyrobDialog(s_, {Pic.Plocha(), HidenPic.Plocha()});
    ZacniPokus();
    NactiPriklady(s_, s_.Disk(), s_.CestaHD + JmenoUlohy(s_.CisloUlohy), deska_.Mapa);
    dialog_->NovyPriklad();
    NoveZadani();
    PolozKlidnyPanel();
}

void DeskaForm::Unload() {
    OpustPokus();
    SkryjChyby();
}

/// The list of wrong steps goes even if the release that should hide it got lost.
void DeskaForm::Activate() {
    SkryjChyby();
    ZhasniSipky();
    if (Image1.Tag == "1") PolozKlidnyPanel();
}

}  // namespace rysovna
