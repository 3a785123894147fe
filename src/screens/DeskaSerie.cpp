// The check of an example, the verdict, and the series: next example, table, end.

#include "base/Cisla.h"
#include "engine/Tabulky.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "rules/Kontrola.h"
#include "rules/Znamka.h"
#include "screens/ChybovyForm.h"
#include "screens/DeskaForm.h"
#include "screens/SelectForm.h"
#include "screens/SlovaObrazovek.h"
#include "screens/TabulkaForm.h"
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

Cinnost<> DeskaForm::Zkontroluj() {
    if (cekaNaZadani_) co_return;  // there is nothing to judge yet
    PicTop[0].Picture = kontrolovano_;
    for (std::size_t i = 0; i < 3; ++i) PicTop[i].Enabled = false;
    SamplePic.Enabled = false;
    for (PictureBox& s : picSipka) s.Enabled = false;
    dialog_->Zkontroluj();
    UlozPriklady();
    SkryjTah();
    Ukaz();

    const int kladne = s_.KladneBody;
    const bool bezchybne = Vyuctuj(s_, dialog_->Hotova()) == Verdikt::Bezchybne;
    ImgHodnoceni.Picture = bezchybne ? hodnoceniDobre_ : hodnoceniSpatne_;
    ImgHodnoceni.Visible = true;
    ImgHodnoceni.Enabled = !bezchybne;
    videne_.Vysledek = {.Bodu = s_.KladneBody - kladne,
                        .BoduSerie = s_.KladneBody,
                        .Poradi = s_.PocetPrikladuSerie - zbyvaPrikladu_ + 1,
                        .Prikladu = s_.PocetPrikladuSerie,
                        .Bezchybny = bezchybne};
    ObnovRadu();
    co_await Cekani(PO_VERDIKTU);
    picPokracuj.Enabled = true;
    const int priklad = zbyvaPrikladu_;
    co_await Menu(s_).Roluj({shared_from_this(), &picPokracuj},
                            [this, priklad] { return zbyvaPrikladu_ == priklad; });
}

Cinnost<> DeskaForm::Pokracuj() {
    --zbyvaPrikladu_;
    if (zbyvaPrikladu_ > 0) {
        picPokracuj.Enabled = false;
        picPokracuj.Picture = s_.PokracujObrazek;
        for (PictureBox& s : picSipka) s.Enabled = true;
        return NovyPriklad();
    }
    return zbyvaPrikladu_ == 0 ? UkonciSerii() : Cinnost<>();
}

Cinnost<> DeskaForm::NovyPriklad() {
    if (cekaNaZadani_) co_return;
    cekaNaZadani_ = true;
    for (std::size_t i = 0; i < PicTop.size(); ++i) PicTop[i].Enabled = true;
    ZhasniHorni();
    SamplePic.Enabled = true;
    SkryjTah();
    ImgHodnoceni.Visible = false;
    dialog_->NovyPriklad();
    UlozPriklady();
    KresliNacrt();
    Ukaz();
    co_await Cekani(PO_UKLIDU);
    if (Image1.Tag == "0") co_await StiskMaleSipky();
    co_await Cekani(PRED_ZADANIM);
    NoveZadani();
}

void DeskaForm::NoveZadani() {
    s_.Generator.Zasej(s_.Stroj.Seminko());
    dialog_->NoveZadani();
    danych_ = s_.PocetUtvaru;
    cekaNaZadani_ = false;
    KresliNacrt();
    Ukaz();
}

Cinnost<> DeskaForm::UkonciSerii() {
    Host& stroj = s_.Stroj;
    Obrazovky& okna = stroj.Okna();
    const Vysledek vysledek{
        .CisloUlohy = s_.CisloUlohy,
        .Jmeno = s_.JmenoHrace,
        .Hra = s_.NazevHry,
        .Typ = s_.TypUlohy,
        .Prikladu = TextBezMezery(s_.PocetPrikladuSerie),
        .Kladne = TextBezMezery(s_.KladneBody),
        .Zaporne = TextBezMezery(s_.ZaporneBody),
        .Znamka = UrciZnamku(s_, s_.KladneBody, Bajt(s_.KladneBody + s_.ZaporneBody)),
        .Konec = stroj.Nyni()};
    Ukladani::Ulozeni zprava;
    // The lock of the results may have to be waited for: nothing is let through meanwhile.
    {
        const Obrazovky::Zavreni zavreni(okna);
        zprava = co_await s_.Vysledky().Uloz(vysledek);
        PridejOdstavec(zprava.Text, co_await DokonciPokus(true));
        co_await Cekani::SVstupem(0);
    }
    if (const auto stara = okna.Najdi("TabulkaForm")) okna.Unload(*stara);
    const auto tabulka = okna.Nacti<TabulkaForm>(s_);
    tabulka->Vlastnik = okna.Najdi("SetupForm");
    tabulka->UkazVysledek(zprava.Misto, vysledek);
    okna.Show(*tabulka);
    okna.Hide(*this);
    okna.Unload(*this);
    s_.AktivniForm = tabulka;
    // Told by nobody: the board is unloaded.
    if (!zprava.Text.empty()) okna.Spust(Oznam(shared_from_this(), zprava.Text));
}

/// Keys that came while the results were waited for are not for the message.
Cinnost<> DeskaForm::Oznam(std::shared_ptr<Form> /*drzeny*/, std::string zprava) {
    co_await s_.Okna().DorucOdlozene();
    co_await s_.Stroj.MsgBox(zprava, "Upozornění", Styl::Ok);
}

Cinnost<> DeskaForm::UkazTabulku() {
    Obrazovky& okna = s_.Okna();
    if (const auto stara = okna.Najdi("TabulkaForm")) okna.Unload(*stara);
    const auto tabulka = okna.Nacti<TabulkaForm>(s_);
    co_await Cekani(PRED_TABULKOU);
    // Help that came up meanwhile stays in front.
    if (tabulka->Zavreny() || !Viditelny()) co_return;
    tabulka->Vlastnik = shared_from_this();
    okna.Show(*tabulka);
    s_.AktivniForm = tabulka;
}

Cinnost<> DeskaForm::Zpet() {
    Obrazovky& okna = s_.Okna();
    if (const auto tabulka = okna.Najdi("TabulkaForm")) okna.Unload(*tabulka);
    if (const auto setup = okna.Najdi("SetupForm")) {
        okna.Show(*setup);
        s_.AktivniForm = setup;
    }
    std::string zprava;
    {
        const Obrazovky::Zavreni zavreni(okna);
        zprava = co_await DokonciPokus(false);
    }
    okna.Unload(*this);
    if (!zprava.empty()) okna.Spust(Oznam(shared_from_this(), zprava));
    co_await Cekani(PO_NAVRATU);
}

void DeskaForm::UkazChyby() {
    ZvukStisku(s_);
    SkryjChyby();
    const auto seznam = s_.Okna().Nacti<ChybovyForm>(s_);
    s_.Okna().Show(*seznam);
    IHintS.Visible = true;
}

void DeskaForm::SkryjChyby() {
    IHintS.Visible = false;
    if (const auto seznam = s_.Okna().Najdi("ChybovyForm")) s_.Okna().Unload(*seznam);
}

}  // namespace rysovna
