// A board that is only looked at: it shows a dialogue that somebody else drives, and tells where on
// it things are done.

#include <algorithm>

#include "base/Cisla.h"
#include "platform/Misto.h"
#include "screens/DeskaForm.h"

namespace rysovna {

namespace {

Bod Uprostred(const Ovladac& o) {
    const Bod roh = Roh(&o);
    return {roh.X + o.Width / 2, roh.Y + o.Height / 2};
}

/// A place of an object, px of it.
Bod NaObjektu(const Ovladac& o, float x, float y) {
    const Bod roh = Roh(&o);
    return {roh.X + Zaokrouhli(static_cast<double>(x)), roh.Y + Zaokrouhli(static_cast<double>(y))};
}

/// Whether an arrow that scrolls the plane so is the one for this way; the level ones go first.
bool JdeTudy(Bod kam, Bod sipka) {
    if (kam.X != 0) return kam.X > 0 ? sipka.X > 0 : sipka.X < 0;
    return kam.Y > 0 ? sipka.Y > 0 : sipka.Y < 0;
}

constexpr int OD_STISKU = 10;     // px from the press on a tool to its list
constexpr int DNO_SEZNAMU = 438;  // px of the design
constexpr int ZNACKA_RADKU = 20;  // px from a line's beginning, where it is pressed

}  // namespace

void DeskaForm::Promitni(const Dialog& dialog, const Promitane& jak) {
    promitany_ = &dialog;
    danych_ = jak.Danych;
    SchovejTah();
    ImgHodnoceni.Visible = jak.Bezchybny.has_value();
    if (jak.Bezchybny) ImgHodnoceni.Picture = *jak.Bezchybny ? hodnoceniDobre_ : hodnoceniSpatne_;
    PicTop[0].Picture = jak.Bezchybny ? kontrolovano_ : horni_[0].Normalni;
    // The list comes up at the tool, beside the press, and ends above what lies below the board.
    if (jak.Nastroj >= 1 && jak.Nastroj <= static_cast<int>(cmd.size())) {
        const Bod stisk = Uprostred(cmd[static_cast<std::size_t>(jak.Nastroj - 1)]);
        Combo.Left = stisk.X + OD_STISKU;
        Combo.Top = std::min(stisk.Y + OD_STISKU, DNO_SEZNAMU - VyskaSeznamu(jak.Radku));
        DoPopredi(Combo);
    }
    Image1.Tag = jak.NacrtVysunuty ? "1" : "0";
    for (Ovladac* o : {static_cast<Ovladac*>(&VPImage), static_cast<Ovladac*>(&SamplePic),
                       static_cast<Ovladac*>(&Image1)})
        o->Visible = jak.NacrtVysunuty;
    MalaSipka.Visible = !jak.NacrtVysunuty;
    if (jak.NacrtVysunuty) PolozKlidnyPanel();
    Ukaz();
}

std::optional<Bod> DeskaForm::MistoVolani(const Volani& v) const {
    const auto prvek = [&v](const auto& pole) -> std::optional<Bod> {
        if (v.Cislo < 1 || v.Cislo > static_cast<int>(pole.size())) return std::nullopt;
        return Uprostred(pole[static_cast<std::size_t>(v.Cislo - 1)]);
    };
    switch (v.Co) {
        case Volani::Druh::Nastroj:
            return prvek(cmd);
        case Volani::Druh::Radek:
            if (std::optional<Bod> radek = prvek(ComboLabel)) {
                return Bod{Roh(&ComboLabel[0]).X + ZNACKA_RADKU, radek->Y};
            }
            return std::nullopt;
        case Volani::Druh::Napsani:
            return Uprostred(Pole(v.Cislo));
        case Volani::Druh::Stisk:
        case Volani::Druh::Pusteni:
            return NaObjektu(Pic, v.X, v.Y);
        case Volani::Druh::Nacrt:
            return NaObjektu(SamplePic, v.X, v.Y);
        case Volani::Druh::Posunuti:
            for (std::size_t i = 0; i < SIPKY.size(); ++i) {
                if (JdeTudy(v.O, SIPKY[i].Posun)) return Uprostred(picSipka[i]);
            }
            return Uprostred(picSipka.back());
        case Volani::Druh::Kontrola:
            return Uprostred(PicTop[0]);
        case Volani::Druh::ZavritSeznam:
            break;
    }
    return std::nullopt;
}

void DeskaForm::PromitniTah(const std::optional<Bod>& ukazatel) {
    if (!ukazatel || !Dialogem().CekaNaKresleni()) return SchovejTah();
    const Bod roh = Roh(&Pic);
    const Mys m{LEVE, 0, static_cast<float>(ukazatel->X - roh.X),
                static_cast<float>(ukazatel->Y - roh.Y)};
    UkazTah(Dialogem().Tah(m.X, m.Y), m);
}

}  // namespace rysovna
