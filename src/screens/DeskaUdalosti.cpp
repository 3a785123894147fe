// The events of a board: what the pupil presses goes to the dialogue, what it answers is shown.

#include <algorithm>
#include <utility>

#include "base/Cisla.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "screens/DeskaForm.h"
#include "screens/HelpForm.h"

namespace rysovna {

namespace {

// How far to the right of the pointer and below it the read-out stands, px; the name of a point.
constexpr int ODECET_X = 12, ODECET_Y = 2, JMENO_X = 15;
// How far above a finger, which hides what is below it, px.
constexpr int NAD_PRSTEM = 48;

constexpr std::uint32_t CEKANI_PO_VOLBE = 50;  // ms

constexpr std::uint8_t HOVER_SIPKY = 4;  ///< hover number before the first arrow

}  // namespace

void DeskaForm::SkryjSeznam() {
    if (Ceka(PO_VOLBE)) return;  // it is hidden already, and the pick holds
    if (!Combo.Visible && !dialog_->UkazPanel().Vyber.Otevreny) return;
    dialog_->ZavriSeznam();
    Ukaz();
}

bool DeskaForm::JeUprostred() const {
    return Ceka(PO_VOLBE) || Ceka(PO_PUSTENI) || s_.Okna().JeZavreno();
}

Cinnost<> DeskaForm::MouseDown(Ovladac* o, const Mys& m) {
    if (o == nullptr) {
        SkryjSeznam();
        videne_.MrtvyNastroj = MrtvyNastrojPod(m);
        ObnovRadu();
        return {};
    }
    if (std::exchange(videne_.MrtvyNastroj, 0) != 0) ObnovRadu();
    // Between two examples there is nothing to work on yet.
    if (cekaNaZadani_ && (Je(cmd, o) || Je(ComboLabel, o) || o == &Pic || o == &SamplePic))
        return {};
    if (Je(cmd, o)) StiskNastroje(cmd[static_cast<std::size_t>(o->Index - 1)], m);
    if (Je(ComboLabel, o)) return VyberRadku(o->Index);
    if (o == &Pic) {
        SkryjSeznam();
        zachytne_.reset();
        if (m.Button != LEVE || Ceka(PO_PUSTENI)) return {};
        dialog_->StiskPlochy(m.X, m.Y);
        Ukaz();
    } else if (o == &SamplePic) {
        SkryjSeznam();
        if (dialog_->StiskNacrtu(m.X, m.Y)) {
            KresliNacrt();
            Ukaz();
        }
    } else if (o == &Image1) {
        ZvukStisku(s_);
        SkryjSeznam();
        return ZasunPanel();
    } else if (o == &MalaSipka) {
        return VratPanel();
    } else if (o == &ImgHodnoceni) {
        UkazChyby();
    } else if (o == &picPokracuj) {
        ZvukStisku(s_);
        SkryjSeznam();
        return Pokracuj();
    }
    return {};
}

void DeskaForm::MouseMove(Ovladac* o, const Mys& m) {
    if (cimRady_ != s_.Okna().HrajeSe()) ObnovRadu();
    if (videne_.MrtvyNastroj != 0 && (o != nullptr || MrtvyNastrojPod(m) != videne_.MrtvyNastroj)) {
        videne_.MrtvyNastroj = 0;
        ObnovRadu();
    }
    if ((m.Button & LEVE) == 0) UkazatelNad(o);
    // What only passing over the plane showed.
    if (o != &Pic && (m.Button & LEVE) == 0) SkryjTah();
    if (o == nullptr) {
        if (hover_.Opust()) {
            ZhasniSipky();
            ZhasniHorni();
        }
        return;
    }
    if (o == &Pic) {
        ZhasniSipky();
        if ((m.Button & LEVE) == 0) {
            UkazTah(dialog_->Prejezd(m.X, m.Y), m);
            if (!cekaNaZadani_ && !Ceka(PO_PUSTENI)) zachytne_ = dialog_->ChytilBy(m.X, m.Y);
            return;
        }
        if (!Ceka(PO_PUSTENI) && dialog_->CekaNaKresleni()) UkazTah(dialog_->Tah(m.X, m.Y), m);
        return;
    }
    const bool sipka = Je(picSipka, o);
    if (!sipka && !Je(PicTop, o)) return;
    const auto cislo = static_cast<std::uint8_t>(o->Index + (sipka ? HOVER_SIPKY : 0));
    if (!hover_.Vstup(cislo)) return;
    ZhasniSipky();
    ZhasniHorni();
    const auto i = static_cast<std::size_t>(o->Index - 1);
    if (sipka) {
        picSipka[i].Picture = sipky_[i].Rozsviceny;
    } else {
        PicTop[i].Picture = horni_[i].Rozsviceny;
    }
}

Cinnost<> DeskaForm::MouseUp(Ovladac* o, const Mys& m) {
    if (o == &ImgHodnoceni) SkryjChyby();
    if (o != &Pic) return {};
    kriz_ = VRozsahu(kriz_);  // the next press is on the plane again
    return m.Button == LEVE ? PustPlochu(m) : Cinnost<>();
}

Cinnost<> DeskaForm::Click(Ovladac* o) {
    if (o == &INadpis) {
        ZvukStisku(s_);
        UkazNapovedu(s_, "Bitmap\\Help\\" + DveCislice(s_.CisloUlohy) + ".bmp", *this);
    } else if (o != nullptr && Je(picSipka, o)) {
        StiskSipky(o->Index);
    } else if (o != nullptr && Je(PicTop, o)) {
        ZvukStisku(s_);
        SkryjSeznam();
        switch (o->Index) {
            case 1:
                return Zkontroluj();
            case 2:
                return NovyPriklad();
            case 3:
                return UkazTabulku();
            default:
                return Zpet();
        }
    }
    return {};
}

void DeskaForm::Change(TextBox& t) {
    if (&t == &txtVstup) Napis(1, t);
}

void DeskaForm::Napis(int ktery, const TextBox& box) {
    dialog_->Napis(ktery, box.Text);
    videne_.MrtvyNastroj = 0;
    videne_.Krok = dialog_->UkazPanel();
    ObnovRadu();
}

Cinnost<> DeskaForm::StiskMaleSipky() {
    ZvukStisku(s_);
    SkryjSeznam();
    return VysunPanel();
}

Cinnost<> DeskaForm::VratPanel() {
    co_await StiskMaleSipky();
    Prsten(Image1);
}

void DeskaForm::StiskNastroje(const PictureBox& tlacitko, const Mys& m) {
    ZvukStisku(s_);
    dialog_->StiskNastroje(tlacitko.Index);
    Combo.Left = tlacitko.Left + Zaokrouhli(m.X);
    Combo.Top = tlacitko.Top + Zaokrouhli(m.Y);
    DoPopredi(Combo);
    Ukaz();
    nastroj_ = tlacitko.Index;
    UkazSeznamKlavesam();
}

Cinnost<> DeskaForm::VyberRadku(int i) {
    ZvukStisku(s_);
    const Seznam seznam = dialog_->UkazPanel().Vyber;
    Combo.Visible = false;
    if (Ceka(PO_VOLBE)) co_return;
    co_await Cekani(CEKANI_PO_VOLBE, PO_VOLBE);
    // Another list may have come up, or this one gone, while the wait let events through.
    if (dialog_->UkazPanel().Vyber == seznam) dialog_->VyberRadku(i);
    Ukaz();
}

void DeskaForm::UkazTah(const Gumicka& g, const Mys& m) {
    Line1.Visible = g.Druh == Gumicka::Tvar::Cara;
    Circle1.Visible = g.Druh == Gumicka::Tvar::Kruh;
    if (Line1.Visible) {
        Line1.X1 = g.X1;
        Line1.Y1 = g.Y1;
        Line1.X2 = g.X2;
        Line1.Y2 = g.Y2;
    }
    if (Circle1.Visible) {
        Circle1.Left = g.X1;
        Circle1.Top = g.Y1;
        Circle1.Width = g.X2 - g.X1;
        Circle1.Height = g.Y2 - g.Y1;
    }
    videne_.Tahne = (m.Button & LEVE) != 0 && g.Druh != Gumicka::Tvar::Nic;
    videne_.Podlozka = m.Zvednut;
    videne_.Odecet = g.Text;
    zachytne_.reset();
    ObnovRadu();
    UkazOdecet(g, m);
}

/// Beside the pointer; a finger hides what is there, so above it then, within the plane.
void DeskaForm::UkazOdecet(const Gumicka& g, const Mys& m) {
    Text.Visible = !g.Text.empty();
    if (!Text.Visible) return;
    Text.Caption = g.Text;
    Text.PodleTextu();
    Text.Left = Zaokrouhli(m.X) + (g.JmenoBodu ? JMENO_X : ODECET_X);
    Text.Top = Zaokrouhli(m.Y) + ODECET_Y;
    if (!m.Prst && !m.Zvednut) return;
    Text.Left = std::clamp(Text.Left, 0, Pic.Width - Text.Width);
    const int nad = Zaokrouhli(m.Y) - NAD_PRSTEM;
    Text.Top = nad >= 0 ? std::min(nad, Pic.Height - Text.Height) : Zaokrouhli(m.Y) + NAD_PRSTEM;
}

void DeskaForm::SchovejTah() {
    Line1.Visible = Circle1.Visible = Text.Visible = false;
    zachytne_.reset();
    videne_.Tahne = videne_.Podlozka = false;
    videne_.Odecet.clear();
}

void DeskaForm::SkryjTah() {
    SchovejTah();
    ObnovRadu();
}

Cinnost<> DeskaForm::PustPlochu(Mys m) {
    SchovejTah();
    if (Ceka(PO_PUSTENI)) co_return;
    if (!dialog_->CekaNaKresleni()) {
        ObnovRadu();
        co_return;
    }
    co_await Cekani(dialog_->CekaniPoTahu(), PO_PUSTENI);
    dialog_->PusteniPlochy(m.X, m.Y);
    Ukaz();
}

void DeskaForm::StiskSipky(int i) {
    if (Ceka(PO_PUSTENI)) return;  // what was drawn belongs to the plane as it is
    const Bod smer = SIPKY[static_cast<std::size_t>(i - 1)].Posun;
    int& posun = smer.X != 0 ? s_.PosunX : s_.PosunY;
    const int krok = smer.X + smer.Y;
    if (krok > 0 ? posun > MEZ_POSUNU : posun < -MEZ_POSUNU) return;
    dialog_->Posun(smer.X, smer.Y);
    posun += krok;
}

int DeskaForm::CastProPrst(const Ovladac& o, float x, float y) const {
    if (&o == &SamplePic) {
        const int prvek = dialog_->PrvekNacrtu(x, y);
        return prvek < 0 ? -1 : prvek + 1;
    }
    if (&o != &Pic) return Form::CastProPrst(o, x, y);
    // Of what a drag may begin in only the centre of a circle: a line is as often meant to begin
    // beside a point as in it.
    std::optional<Bod> bod;
    if (Pic.Klavesou == StiskKlavesou::Klik) {
        bod = dialog_->TrefilBy(x, y);
    } else if (videne_.Krok.Kresleni.Druh == Gesto::Tvar::Kruznice) {
        bod = dialog_->ChytilBy(x, y);
    }
    if (!bod) return -1;
    // A number for each point, also for those off the plane.
    constexpr int ZACATEK = 1 << 14;
    return (bod->Y + ZACATEK) * 2 * ZACATEK + bod->X + ZACATEK;
}

Kurzor DeskaForm::KurzorNad(const Ovladac* o, float x, float y) const {
    const bool kresliSe = o == &Pic || o == &SamplePic;
    if (kresliSe && cekaNaZadani_) return Kurzor::Sipka;
    if (o == &SamplePic && dialog_->PrvekNacrtu(x, y) < 0) return Kurzor::Sipka;
    const Kurzor kurzor = Form::KurzorNad(o, x, y);
    return o == &Pic && kurzor == Kurzor::Ruka ? Kurzor::Kriz : kurzor;
}

std::optional<Bod> DeskaForm::Zachytne() const {
    if (!zachytne_ || Pic.Zastavka == 0) return std::nullopt;
    return Bod{Pic.Left + zachytne_->X, Pic.Top + zachytne_->Y};
}

void DeskaForm::ZhasniHorni() {
    for (std::size_t i = 0; i < PicTop.size(); ++i) {
        if (PicTop[i].Enabled) PicTop[i].Picture = horni_[i].Normalni;
    }
}

void DeskaForm::ZhasniSipky() {
    for (std::size_t i = 0; i < picSipka.size(); ++i) picSipka[i].Picture = sipky_[i].Normalni;
}

}  // namespace rysovna
