// The guide line in the strip below the board: what the pupil sees is gathered, what to do next is
// said.

#include "engine/Tabulky.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Paleta.h"
#include "screens/DeskaForm.h"
#include "screens/RadaCesky.h"

namespace rysovna {

namespace {

constexpr Obdelnik PRUH{6, 449, 515, 27};  // px, over the decorative ruler
constexpr int KRAJ = 4;                    // px, of its coloured edge
constexpr int ODSAZENI = 9;                // px, of the text from the strip's edge
constexpr int NAHORE = 1, RADEK = 12;      // px, of two rows
constexpr int JEDINY_NAHORE = 5;           // px, of a row that stands alone
constexpr float PISMO_JEDINE = 10;         // points

}  // namespace

void DeskaForm::RozlozRadu() {
    Pridej(PicRada, "PicRada", PRUH);
    PicRada.BackColor = paleta::KARTA;
    PicRada.Ramecek = true;
    PicRada.ProMys = false;  // a press there goes to the board, as on the ruler
    Pridej(PicRadaKraj, "PicRadaKraj", {0, 0, KRAJ, PRUH.Height}, &PicRada);
    PicRadaKraj.BackColor = paleta::ACCENT;
    PicRadaKraj.ProMys = false;
    PridejPole(lblRada, "lblRada", {ODSAZENI, 0, PRUH.Width - ODSAZENI - KRAJ, RADEK}, &PicRada);
    for (Label& l : lblRada) {
        l.WordWrap = false;
        l.ForeColor = paleta::INKOUST;
        l.Sazba = true;
        l.ProMys = false;
    }
}

/// The visible tool at this place of the board that cannot be pressed; 0 if there is none.
int DeskaForm::MrtvyNastrojPod(const Mys& m) const {
    for (const PictureBox& t : cmd) {
        const bool uvnitr = Obdelnik{t.Left, t.Top, t.Width, t.Height}.Obsahuje(
            static_cast<double>(m.X), static_cast<double>(m.Y));
        if (uvnitr && t.Visible && !t.Enabled) return t.Index;
    }
    return 0;
}

/// The pointer, or the ring of the keys, is over an object; null: over none.
void DeskaForm::UkazatelNad(const Ovladac* o) {
    using Pod = Videne::CoPod;
    Pod pod = Pod::Nic;
    const auto pri = [&](const Ovladac& hrozi, Pod cim) {
        if (&hrozi == o && o->Enabled) pod = cim;
    };
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        const Nastroj co = videne_.Krok.Nastroje[i].Co;
        if (co == Nastroj::Zpet) pri(cmd[i], Pod::Zpet);
        if (co == Nastroj::Sestroj) pri(cmd[i], Pod::Sestroj);
    }
    pri(PicTop[0], Pod::Kontrola);
    pri(PicTop[3], Pod::Odchod);
    if (pod == videne_.Pod) return;
    videne_.Pod = pod;
    ObnovRadu();
}

/// The element of the sketch that the shown ring is at.
PrvekVNacrtu DeskaForm::PrvekPodPrstenem() const {
    const auto prsten = s_.Okna().PrstenVpredu();
    if (!prsten || prsten->Co != &SamplePic) return {};
    const Bod b = Ukazatel(SamplePic).Hrot;
    return Dialogem().VidetPrvek(
        Dialogem().PrvekNacrtu(static_cast<float>(b.X), static_cast<float>(b.Y)));
}

void DeskaForm::ObnovRadu() {
    if (JeUprostred()) return;
    using Doba = Videne::Doba;
    videne_.Kdy = cekaNaZadani_          ? Doba::Ceka
                  : ImgHodnoceni.Visible ? Doba::PoKontrole
                                         : Doba::Hraje;
    videne_.NacrtVysunuty = Image1.Tag == "1";
    videne_.Narysovano = Dialogem().Pamet().PocetUtvaru > danych_;
    videne_.PodPrstenem = PrvekPodPrstenem();
    const Rada r = UrciRadu(videne_);
    const CimSeHraje cim = s_.Okna().HrajeSe();
    if (r == rada_ && cim == cimRady_) return;
    rada_ = r;
    cimRady_ = cim;
    PicRada.Visible = s_.RadyUkazovat;
    UkazRadky(RadaCesky(r, cim));
}

/// Says something in the strip, until the guide has something new to say.
void DeskaForm::UkazRadky(const RadkyRady& radky) {
    const bool jediny = radky[1].empty();
    for (std::size_t i = 0; i < lblRada.size(); ++i) {
        Label& l = lblRada[i];
        l.Caption = radky[i];
        l.Sazba = true;
        l.Visible = !radky[i].empty();
        l.Font.Velikost = jediny ? PISMO_JEDINE : PISMO_DVOU_RAD;
        l.Height = jediny ? PRUH.Height - JEDINY_NAHORE : PRUH.Height / 2;
        l.Top = jediny ? JEDINY_NAHORE : NAHORE + static_cast<int>(i) * RADEK;
    }
}

std::string DeskaForm::CoSeRika() const {
    std::string text;
    for (const Label* l : {&lblText1, &lblText2, &lblRada[0], &lblRada[1]}) {
        if (!l->Visible || l->Caption.empty()) continue;
        if (!text.empty()) text += ' ';
        text += l->Caption;
    }
    return text;
}

}  // namespace rysovna
