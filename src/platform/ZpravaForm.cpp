#include "platform/ZpravaForm.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <span>
#include <utility>

#include "platform/Obrazovky.h"
#include "platform/Paleta.h"
#include "platform/Pisma.h"
#include "platform/Zalom.h"

namespace rysovna {

namespace {

constexpr int OKRAJ = 16;
constexpr int VYSKA_TITULKU = 24;
constexpr int IKONA = 36;
constexpr int NEJVETSI_SIRKA_TEXTU = 380;
constexpr int NEJMENSI_SIRKA = 260;
constexpr int SIRKA_TLACITKA = 94, VYSKA_TLACITKA = 26, MEZERA_TLACITEK = 10;

/// The buttons of each kind of box, left to right; the last answers Escape.
struct TlacitkoZpravy {
    std::string_view Jmeno, Napis;
    Odpoved Odpovi;
};
constexpr TlacitkoZpravy OK[] = {{"cmdOK", "OK", Odpoved::Ok}};
constexpr TlacitkoZpravy ANO_NE[] = {{"cmdAno", "Ano", Odpoved::Ano}, {"cmdNe", "Ne", Odpoved::Ne}};

std::span<const TlacitkoZpravy> TlacitkaStylu(Styl styl) {
    if (styl == Styl::OtazkaAnoNe) return ANO_NE;
    return OK;
}

Pismo PismoZpravy(float velikost, bool tucne) {
    Pismo p;
    p.Velikost = velikost;
    p.Tucne = tucne;
    return p;
}

}  // namespace

ZpravaForm::ZpravaForm(Host& host, const std::string& text, const std::string& titul, Styl styl)
    : host_(host) {
    const auto popisy = TlacitkaStylu(styl);
    vysledek_ = popisy.back().Odpovi;
    Caption = titul;
    BackColor = paleta::ZPRAVA_INKOUST;

    const Pismo pismo = PismoZpravy(10, false);
    const std::vector<std::string> radky = RozdelNaRadky(pismo, text, NEJVETSI_SIRKA_TEXTU);
    int sirkaTextu = 0;
    for (const std::string& r : radky) sirkaTextu = std::max(sirkaTextu, SirkaTextu(pismo, r));
    const int vyskaRadku = VyskaRadku(pismo) + 2;
    const int vyskaTextu = vyskaRadku * static_cast<int>(radky.size());
    const int pocet = static_cast<int>(popisy.size());
    const int sirkaTlacitek = pocet * SIRKA_TLACITKA + (pocet - 1) * MEZERA_TLACITEK;
    Width = std::clamp(3 * OKRAJ + IKONA + sirkaTextu,
                       std::max(NEJMENSI_SIRKA, sirkaTlacitek + 2 * OKRAJ), NAVRH_SIRKA);
    const int vyskaObsahu = std::max(IKONA, vyskaTextu);
    Height = std::min(VYSKA_TITULKU + 3 * OKRAJ + vyskaObsahu + VYSKA_TLACITKA, NAVRH_VYSKA);
    Left = (NAVRH_SIRKA - Width) / 2;
    Top = (NAVRH_VYSKA - Height) / 2;

    Pridej(ram_, "ram", {1, 1, Width - 2, Height - 2});
    ram_.BackColor = paleta::ZPRAVA_PAPIR;
    ram_.Enabled = false;

    Pridej(pruh_, "pruh", {1, 1, Width - 2, VYSKA_TITULKU});
    pruh_.BackColor = paleta::VYBER;
    Pridej(titulek_, "titulek", {OKRAJ / 2, 5, Width - OKRAJ, VYSKA_TITULKU - 6});
    titulek_.Caption = titul;
    titulek_.ForeColor = BILA;
    titulek_.Font = PismoZpravy(10, true);
    titulek_.WordWrap = false;

    Pridej(ikona_, "ikona",
           {OKRAJ, VYSKA_TITULKU + OKRAJ + (vyskaObsahu - IKONA) / 2, IKONA, IKONA});
    ikona_.BackColor = paleta::ZPRAVA_PAPIR;
    NakresliIkonu(styl);

    int y = VYSKA_TITULKU + OKRAJ + (vyskaObsahu - vyskaTextu) / 2;
    for (const std::string& r : radky) {
        auto& radek = *radky_.emplace_back(std::make_unique<Label>());
        Pridej(radek, "text", {2 * OKRAJ + IKONA, y, sirkaTextu + 2, vyskaRadku});
        radek.Index = static_cast<int>(radky_.size());
        radek.Caption = r;
        radek.ForeColor = paleta::ZPRAVA_INKOUST;
        radek.Font = pismo;
        radek.WordWrap = false;
        y += vyskaRadku;
    }

    int x = (Width - sirkaTlacitek) / 2;
    for (const TlacitkoZpravy& popis : popisy) {
        auto& t = *Tlacitka.emplace_back(std::make_unique<PictureBox>());
        Pridej(t, popis.Jmeno,
               {x, Height - OKRAJ - VYSKA_TLACITKA, SIRKA_TLACITKA, VYSKA_TLACITKA});
        t.Tag = popis.Napis;
        t.Font = PismoZpravy(10, false);
        t.Zastavka = static_cast<int>(Tlacitka.size());
        odpovedi_.push_back(popis.Odpovi);
        x += SIRKA_TLACITKA + MEZERA_TLACITEK;
    }
    NakresliTlacitka();
}

void ZpravaForm::NakresliIkonu(Styl styl) {
    struct Vzhled {
        Barva Kruh;
        std::string_view Znak;
    };
    const Vzhled vzhled = styl == Styl::Stop          ? Vzhled{paleta::ZPRAVA_STOP, ""}
                          : styl == Styl::OtazkaAnoNe ? Vzhled{paleta::VYBER, "?"}
                                                      : Vzhled{paleta::VYBER, "i"};
    Surface& p = ikona_.Plocha();
    constexpr float STRED = static_cast<float>(IKONA) / 2;
    p.ForeColor = vzhled.Kruh;
    p.Kotouc(STRED, STRED, STRED - 1);
    p.ForeColor = BILA;
    if (vzhled.Znak.empty()) {
        constexpr float RAMENO = 7;
        p.DrawWidth = 4;
        p.Line(STRED - RAMENO, STRED - RAMENO, STRED + RAMENO, STRED + RAMENO);
        p.Line(STRED - RAMENO, STRED + RAMENO, STRED + RAMENO, STRED - RAMENO);
        return;
    }
    p.Font = PismoZpravy(18, true);
    p.CurrentX = static_cast<float>(IKONA - SirkaTextu(p.Font, vzhled.Znak)) / 2 + 1;
    p.CurrentY = static_cast<float>(IKONA - VyskaRadku(p.Font)) / 2;
    p.Print(vzhled.Znak);
}

void ZpravaForm::NakresliTlacitka() {
    for (std::size_t i = 0; i < Tlacitka.size(); ++i) {
        PictureBox& t = *Tlacitka[i];
        const bool svit = i == vybrane_;
        Surface& p = t.Plocha();
        p.BackColor = svit ? paleta::VYBER : paleta::ZPRAVA_LINKA;
        p.Cls();
        p.Vypln(1, 1, t.Width - 2, t.Height - 2, svit ? paleta::VYBER : paleta::ZPRAVA_TLACITKO);
        p.Font = t.Font;
        p.Font.Tucne = svit;
        p.ForeColor = svit ? BILA : paleta::ZPRAVA_INKOUST;
        p.CurrentX = std::floor(static_cast<float>(t.Width - SirkaTextu(p.Font, t.Tag)) / 2);
        p.CurrentY = std::floor(static_cast<float>(t.Height - VyskaRadku(p.Font)) / 2);
        p.Print(t.Tag);
    }
}

void ZpravaForm::Odpovez(Odpoved odpoved) {
    vysledek_ = odpoved;
    host_.Okna().Unload(*this);
}

Cinnost<> ZpravaForm::MouseDown(Ovladac* o, const Mys& m) {
    MouseMove(o, m);
    return {};
}

void ZpravaForm::MouseMove(Ovladac* o, const Mys& /*m*/) {
    for (std::size_t i = 0; i < Tlacitka.size(); ++i) {
        if (Tlacitka[i].get() != o || vybrane_ == i) continue;
        vybrane_ = i;
        Prsten(*Tlacitka[i]);
        NakresliTlacitka();
    }
}

Cinnost<> ZpravaForm::Click(Ovladac* o) {
    for (std::size_t i = 0; i < Tlacitka.size(); ++i) {
        if (Tlacitka[i].get() != o) continue;
        Odpovez(odpovedi_[i]);
        break;
    }
    return {};
}

Odezva ZpravaForm::Klavesa(std::string_view klavesa, int shift) {
    const std::size_t pocet = Tlacitka.size();
    const bool tabZpet = klavesa == "Tab" && (shift & SHIFT) != 0;
    if (klavesa == "Escape") {
        Odpovez(odpovedi_.back());
        return Cinnost<>();
    }
    if (klavesa == "Return" || klavesa == "Space") {
        Odpovez(odpovedi_[vybrane_]);
        return Cinnost<>();
    }
    if (klavesa == "Left" || klavesa == "Up" || tabZpet) {
        vybrane_ = (vybrane_ + pocet - 1) % pocet;
    } else if (klavesa == "Right" || klavesa == "Down" || klavesa == "Tab") {
        vybrane_ = (vybrane_ + 1) % pocet;
    } else {
        return std::nullopt;
    }
    NakresliTlacitka();
    host_.Okna().DejPrsten(*this, *Tlacitka[vybrane_]);
    return Cinnost<>();
}

Cinnost<> ZpravaForm::QueryUnload() {
    Odpovez(odpovedi_.back());
    return {};
}

namespace {

std::function<bool()> JeZavreny(std::shared_ptr<Form> form) {
    return [form = std::move(form)] { return form->Zavreny(); };
}

}  // namespace

Cinnost<Odpoved> Host::UkazZpravu(std::string text, std::string titul, Styl styl) {
    const auto form = Okna().Nacti<ZpravaForm>(*this, text, titul, styl);
    Okna().NastavModalni(form);
    Cekani odpoved(JeZavreny(form));
    co_await odpoved;
    Okna().Unload(*form);
    co_return form->Vysledek();
}

std::string ZpravaForm::CoSeRika() const {
    std::string text = titulek_.Caption;
    for (const auto& radek : radky_) text += " " + radek->Caption;
    return text;
}

}  // namespace rysovna
