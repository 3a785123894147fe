// The check of an example, the verdict, and the series: next example, table, end.

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Kontrola.h"
#include "rules/Misc.h"
#include "screens/ChybovyForm.h"
#include "screens/DeskaForm.h"
#include "screens/Konec.h"
#include "screens/Rolovani.h"
#include "screens/Spolecne.h"
#include "screens/TabulkaForm.h"
#include "store/Soubory.h"
#include "store/Ukladani.h"

namespace rysovna {

namespace {

// Waits, ms.
constexpr std::uint32_t PO_VERDIKTU = 10;
constexpr std::uint32_t PO_UKLIDU = 100;
constexpr std::uint32_t PRED_ZADANIM = 50;
constexpr std::uint32_t PRED_TABULKOU = 20;
constexpr std::uint32_t PO_NAVRATU = 100;

}  // namespace

void DeskaForm::Zkontroluj() {
    if (cekaNaZadani_) return;  // there is nothing to judge yet
    PicTop[0].Picture = kontrolovano_;
    for (std::size_t i = 0; i < 3; ++i) PicTop[i].Enabled = false;
    SamplePic.Enabled = false;
    for (PictureBox& s : picSipka) s.Enabled = false;
    dialog_->Zkontroluj();
    SkryjTah();
    Ukaz();

    const int kladne = KladneBody;
    const bool bezchybne = Vyuctuj(dialog_->Hotova()) == Verdikt::Bezchybne;
    ImgHodnoceni.Picture = bezchybne ? hodnoceniDobre_ : hodnoceniSpatne_;
    ImgHodnoceni.Visible = true;
    ImgHodnoceni.Enabled = !bezchybne;
    videne_.Vysledek = {.Bodu = KladneBody - kladne,
                        .BoduSerie = KladneBody,
                        .Poradi = PocetPrikladuSerie - zbyvaPrikladu_ + 1,
                        .Prikladu = PocetPrikladuSerie,
                        .Bezchybny = bezchybne};
    ObnovRadu();
    Cekej(PO_VERDIKTU);
    if (Skoncil(*this)) return;
    picPokracuj.Enabled = true;
    const int priklad = zbyvaPrikladu_;
    Roluj(*this, picPokracuj, [this, priklad] { return zbyvaPrikladu_ == priklad; });
}

void DeskaForm::Pokracuj() {
    --zbyvaPrikladu_;
    if (zbyvaPrikladu_ > 0) {
        picPokracuj.Enabled = false;
        picPokracuj.Picture = PokracujObrazek;
        for (PictureBox& s : picSipka) s.Enabled = true;
        NovyPriklad();
    } else if (zbyvaPrikladu_ == 0) {
        UkonciSerii();
    }
}

void DeskaForm::NovyPriklad() {
    if (zaneprazdnen_ || cekaNaZadani_) return;
    zaneprazdnen_ = cekaNaZadani_ = true;
    for (std::size_t i = 0; i < PicTop.size(); ++i) PicTop[i].Enabled = true;
    ZhasniHorni();
    SamplePic.Enabled = true;
    SkryjTah();
    ImgHodnoceni.Visible = false;
    dialog_->NovyPriklad();
    KresliNacrt();
    Ukaz();
    zaneprazdnen_ = false;
    Cekej(PO_UKLIDU);
    if (Skoncil(*this)) return;
    if (Image1.Tag == "0") StiskMaleSipky();
    Cekej(PRED_ZADANIM);
    if (Skoncil(*this)) return;
    NoveZadani();
}

void DeskaForm::NoveZadani() {
    Generator.Zasej(Stroj().Seminko());
    dialog_->NoveZadani();
    danych_ = PocetUtvaru;
    cekaNaZadani_ = false;
    KresliNacrt();
    Ukaz();
}

void DeskaForm::UkonciSerii() {
    Host& stroj = Stroj();
    Obrazovky& okna = stroj.Okna();
    const Vysledek vysledek{.CisloUlohy = CisloUlohy,
                            .Jmeno = JmenoHrace,
                            .Hra = NazevHry,
                            .Typ = TypUlohy,
                            .Prikladu = TextBezMezery(PocetPrikladuSerie),
                            .Kladne = TextBezMezery(KladneBody),
                            .Zaporne = TextBezMezery(ZaporneBody),
                            .Znamka = UrciZnamku(KladneBody, Bajt(KladneBody + ZaporneBody)),
                            .Konec = stroj.Nyni()};
    Ukladani::Ulozeni zprava;
    // The lock of the results may have to be waited for: nothing is let through meanwhile.
    okna.CekejZavrene([&] { zprava = Vysledky().Uloz(vysledek); });
    if (const auto stara = okna.Najdi("TabulkaForm")) okna.Unload(*stara);
    const auto tabulka = okna.Nacti<TabulkaForm>();
    tabulka->Vlastnik = okna.Najdi("SetupForm");
    tabulka->UkazVysledek(zprava.Misto, vysledek);
    okna.Show(*tabulka);
    okna.Hide(*this);
    okna.Unload(*this);
    AktivniForm = tabulka;
    if (zprava.Text.empty()) return;
    // Keys that came while the lock was waited for are not for the message.
    okna.DorucOdlozene();
    stroj.MsgBox(zprava.Text, "Upozornění", Styl::Ok);
}

void DeskaForm::UkazTabulku() {
    Obrazovky& okna = Stroj().Okna();
    if (const auto stara = okna.Najdi("TabulkaForm")) okna.Unload(*stara);
    const auto tabulka = okna.Nacti<TabulkaForm>();
    Cekej(PRED_TABULKOU);
    // Help that came up meanwhile stays in front.
    if (Skoncil(*this) || tabulka->Zavreny() || !Viditelny()) return;
    tabulka->Vlastnik = shared_from_this();
    okna.Show(*tabulka);
    AktivniForm = tabulka;
}

void DeskaForm::Zpet() {
    Obrazovky& okna = Stroj().Okna();
    if (const auto tabulka = okna.Najdi("TabulkaForm")) okna.Unload(*tabulka);
    if (const auto setup = okna.Najdi("SetupForm")) {
        okna.Show(*setup);
        AktivniForm = setup;
    }
    okna.Unload(*this);
    Cekej(PO_NAVRATU);
}

void DeskaForm::UkazChyby() {
    ZvukStisku();
    SkryjChyby();
    const auto seznam = Stroj().Okna().Nacti<ChybovyForm>();
    Stroj().Okna().Show(*seznam);
    IHintS.Visible = true;
}

void DeskaForm::SkryjChyby() {
    IHintS.Visible = false;
    if (const auto seznam = Stroj().Okna().Najdi("ChybovyForm")) Stroj().Okna().Unload(*seznam);
}

}  // namespace rysovna
