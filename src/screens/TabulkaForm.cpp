#include "screens/TabulkaForm.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/Cisla.h"
#include "base/Text.h"
#include "platform/Host.h"
#include "platform/Paleta.h"
#include "platform/Pisma.h"
#include "screens/HelpForm.h"
#include "screens/Meritko.h"
#include "screens/Prechody.h"
#include "screens/Zdroje.h"
#include "store/JmenaSouboru.h"
#include "store/Ukladani.h"

namespace rysovna {
namespace {

constexpr int ROZTEC_RADKU = 30;      // px
constexpr float PISMO_RADKU = 10.0F;  // points: a name of 35 letters fits its column

constexpr float PISMO_STUPNICE = 8.0F, PISMO_VYSLEDKU = 9.0F;

/// "Známky: 1 od 90 %, 2 od 75 %": the rows of the grade table, the best grade first.
std::string TextStupnice(const Misc& misc) {
    std::vector<RadekZnamek> radky;
    for (int i = 1; i <= decltype(Misc::ZnamkyTab)::POSLEDNI; ++i) {
        if (misc.ZnamkyTab[i] != RadekZnamek{}) radky.push_back(misc.ZnamkyTab[i]);
    }
    std::ranges::stable_sort(radky, {}, [](const RadekZnamek& r) { return r[2]; });
    std::string text;
    for (const auto& [dolni, horni, znamka] : radky) {
        text += (text.empty() ? "Známky: " : ", ") + TextBezMezery(znamka) + " od " +
                TextBezMezery(dolni) + " %";
    }
    return text;
}

/// The text, or as much of it as the width takes, px, with "…" behind.
std::string Vejde(const std::string& text, const Pismo& pismo, int sirka) {
    if (SirkaTextu(pismo, text) <= sirka) return text;
    std::u32string znaky = DoZnaku(text);
    std::string kratsi;
    do {
        znaky.pop_back();
        kratsi = ZeZnaku(znaky) + "…";
    } while (!znaky.empty() && SirkaTextu(pismo, kratsi) > sirka);
    return kratsi;
}

std::string SouborTabulky(const Misc& misc) {
    return misc.CestaVysledku + JmenoTabulky(misc.CisloUlohy);
}

}  // namespace

TabulkaForm::TabulkaForm(Sezeni& s) : FormHry(s) {
    Pridej(LVlastni, "LVlastni", {24, 160, 592, 28});
    Pridej(INadpis, "INadpis", {0, 0, 238, 80});
    PridejPole(LPoradi, "LPoradi", {32, 165, 50, 20});
    PridejPole(LJmeno, "LJmeno", {91, 165, 260, 20});
    PridejPole(LSpravne, "LSpravne", {376, 165, 70, 20});
    PridejPole(LSpatne, "LSpatne", {464, 165, 70, 20});
    PridejPole(LZnamka, "LZnamka", {544, 165, 70, 20});
    Pridej(picKonec, "picKonec", {546, 5, 91, 75});
    Pridej(LVysledek, "LVysledek", {32, 452, 576, 16});
    Pridej(LStupnice, "LStupnice", {32, 105, 336, 13});
    LVlastni.BackColor = paleta::VLASTNI;
    LVlastni.Visible = LVysledek.Visible = false;
    INadpis.Zastavka = 1;
    picKonec.Zastavka = 2;
}

void TabulkaForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
    PrizpusobForm(s_, *this);

    Picture = NactiObrazek(s_, "Bitmap\\Tab\\bckg.bmp");
    konec_ = NactiDvojici(s_, "Bitmap\\Games\\back");
    picKonec.Picture = konec_.Normalni;
    INadpis.Picture = NactiObrazek(s_, "Bitmap\\Tab\\bckg_" + DveCislice(s_.CisloUlohy) + ".bmp");

    const double meritko = Meritko(s_);
    for (auto* sloupec : {&LPoradi, &LJmeno, &LSpravne, &LSpatne, &LZnamka}) {
        const int prvni = sloupec->front().Top;
        for (Label& pole : *sloupec) {
            pole.Top = prvni + Zaokrouhli(meritko * ROZTEC_RADKU * (pole.Index - 1));
            pole.Font.Velikost = static_cast<float>(meritko) * PISMO_RADKU;
            // A name of any length stays on its row.
            pole.WordWrap = false;
        }
    }
    for (Label& poradi : LPoradi) poradi.Caption = TextBezMezery(poradi.Index) + ".";

    LStupnice.Font.Velikost = static_cast<float>(meritko) * PISMO_STUPNICE;
    LVysledek.Font.Velikost = static_cast<float>(meritko) * PISMO_VYSLEDKU;
    LVysledek.Font.Tucne = true;
    LStupnice.Caption = TextStupnice(s_);

    NactiTabulku();
    VyplnRadky();
}

void TabulkaForm::UkazVysledek(int misto, const Vysledek& vysledek) {
    if (misto == 0 && !nezapsane_.empty()) {
        misto = nezapsane_.back();
    } else {
        // What waits was taken in among the rows of the file.
        for (const int n : nezapsane_) misto += n <= misto ? 1 : 0;
        const ZaznamTabulky radek{vysledek.Jmeno, vysledek.Kladne, vysledek.Zaporne,
                                  vysledek.Znamka};
        const auto odMista = zaznamy_.begin() + std::clamp(misto - 1, 0, PocetZaznamu());
        const auto stejny = std::find(odMista, zaznamy_.end(), radek);
        if (misto > 0 && stejny != zaznamy_.end()) misto += static_cast<int>(stejny - odMista);
    }
    if (misto < 1 || misto > PocetZaznamu()) return;
    const auto k = static_cast<std::size_t>(misto - 1);
    LVlastni.Visible = misto <= RADKU;
    LVysledek.Visible = !LVlastni.Visible;
    if (LVlastni.Visible) {
        constexpr int NAD_RADKEM = 5;  // px
        LVlastni.Top = LJmeno[k].Top - NAD_RADKEM;
        // Bold too: not everybody sees the light ground.
        for (auto* sloupec : {&LPoradi, &LJmeno, &LSpravne, &LSpatne, &LZnamka})
            (*sloupec)[k].Font.Tucne = true;
        LJmeno[k].Caption = Vejde(zaznamy_[k].Jmeno, LJmeno[k].Font, LJmeno[k].Width);
        return;
    }
    const ZaznamTabulky& z = zaznamy_[k];
    LVysledek.Caption = "Tvoje místo: " + TextBezMezery(misto) + ". Body: " + z.Spravne +
                        (z.Znamka.empty() ? "" : ", známka: " + z.Znamka);
}

void TabulkaForm::VyplnRadky() {
    for (std::size_t k = 0; k < zaznamy_.size() && k < LPoradi.size(); ++k) {
        LJmeno[k].Caption = Vejde(zaznamy_[k].Jmeno, LJmeno[k].Font, LJmeno[k].Width);
        LSpravne[k].Caption = zaznamy_[k].Spravne;
        LSpatne[k].Caption = zaznamy_[k].Spatne;
        LZnamka[k].Caption = zaznamy_[k].Znamka;
    }
}

void TabulkaForm::NactiTabulku() {
    Disk& disk = s_.Disk();
    try {
        zaznamy_ = rysovna::NactiTabulku(disk, disk.Skutecna(SouborTabulky(s_)));
    } catch (const std::exception&) {
        // A table too large for the memory must not end the game either. What a result has to say
        // of it, it says when it is stored.
        zaznamy_.assign(1, {"Tabulku výsledků nelze přečíst", "", "", ""});
    }
    nezapsane_.clear();
    for (ZaznamTabulky& z : s_.Vysledky().Nezapsane(s_.CisloUlohy)) {
        nezapsane_.push_back(VlozZaznam(zaznamy_, std::move(z)));
    }
}

Cinnost<> TabulkaForm::MouseDown(Ovladac* o, const Mys&) {
    if (o == &picKonec) Zpet();
    return {};
}

void TabulkaForm::Zpet() {
    ZvukStisku(s_);
    VratSeK(s_, Vlastnik, *this);
}

void TabulkaForm::MouseMove(Ovladac* o, const Mys&) {
    if (o == &picKonec) {
        if (hover_.Vstup(Hover::KONEC)) picKonec.Picture = konec_.Rozsviceny;
    } else if (o == nullptr && hover_.Opust()) {
        picKonec.Picture = konec_.Normalni;
    }
}

Cinnost<> TabulkaForm::Click(Ovladac* o) {
    if (o != &INadpis) return {};
    ZvukStisku(s_);
    UkazNapovedu(s_, "Bitmap\\Help\\tab.bmp", *this);
    return {};
}

Odezva TabulkaForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    if (klavesa != "Escape") return std::nullopt;
    Zpet();
    return Cinnost<>();
}

}  // namespace rysovna
