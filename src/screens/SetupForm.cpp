#include "screens/SetupForm.h"

#include <algorithm>
#include <utility>

#include "base/Cisla.h"
#include "base/Text.h"
#include "platform/Host.h"
#include "platform/Klavesnice.h"
#include "platform/Obrazovky.h"
#include "platform/Paleta.h"
#include "screens/HelpForm.h"
#include "screens/Meritko.h"
#include "screens/Prechody.h"
#include "screens/SelectForm.h"

namespace rysovna {
namespace {

// Places of the digits: an arc around the dial, all 35 by 29 px.
constexpr std::array<Bod, 5> MISTA_CISLIC{
    {{128, 253}, {198, 293}, {198, 370}, {128, 409}, {60, 370}}};

constexpr float PISMO_RADY = 9;  // points

/// What is still missing, by name (first index) and count of examples.
constexpr const char* CO_DAL[2][2] = {
    {"Napiš jméno a zvol počet příkladů.", "Ještě napiš své jméno."},
    {"Ještě zvol počet příkladů.", "Hotovo, stiskni Pokračuj."}};

}  // namespace

SetupForm::SetupForm(Sezeni& s) : FormHry(s) {
    Pridej(Image1, "Image1", {5, 6, 539, 75});
    Pridej(ISipka, "ISipka", {101, 293, 95, 100});
    PridejPole(ICislo, "ICislo", {128, 253, 35, 29});
    for (std::size_t k = 0; k < ICislo.size(); ++k) {
        ICislo[k].Left = MISTA_CISLIC[k].X;
        ICislo[k].Top = MISTA_CISLIC[k].Y;
    }
    Pridej(TJmeno, "TJmeno", {406, 413, 195, 20});
    // A name cannot begin with blanks, so a name of blanks alone is none; "|" stands between the
    // fields of a record.
    TJmeno.BezUvodnichMezer = true;
    TJmeno.MaxLength = NEJDELSI_JMENO;
    TJmeno.Zakazane = U"|";
    Pridej(picPokracuj, "picPokracuj", {526, 457, 94, 23});
    picPokracuj.Visible = false;
    Pridej(picKonec, "picKonec", {546, 5, 91, 75});
    Pridej(lblCoDal, "lblCoDal", {294, 459, 226, 18});
    lblCoDal.WordWrap = false;
    lblCoDal.ForeColor = paleta::INKOUST2;
    lblCoDal.ProMys = false;
    Image1.Zastavka = 1;
    picKonec.Zastavka = 2;
    for (Image& cislo : ICislo) cislo.Zastavka = 3;
    TJmeno.Zastavka = 4;
    picPokracuj.Zastavka = 5;
}

void SetupForm::Load() {
    Maximised = true;
    Caption = "Rysovna 1";
    PrizpusobForm(s_, *this);
    const double meritko = Meritko(s_);
    TJmeno.Height = Zaokrouhli(20 * meritko);
    TJmeno.Width = Zaokrouhli(195 * meritko);
    TJmeno.Font.Velikost = static_cast<float>(12 * meritko);

    Picture = NactiObrazek(s_, "Bitmap\\Setup\\bckg_" + DveCislice(s_.CisloUlohy) + ".bmp");
    konec_ = NactiDvojici(s_, "Bitmap\\Setup\\back");
    picKonec.Picture = konec_.Normalni;
    for (std::size_t k = 0; k < ICislo.size(); ++k) {
        const std::string cislice = TextBezMezery(static_cast<int>(k) + 1);
        sipky_[k] = NactiObrazek(s_, "Bitmap\\Setup\\butt_" + cislice + ".bmp");
        cislice_[k] = NactiDvojici(s_, "Bitmap\\Setup\\" + cislice);
    }
    OdzvolVse(ICislo, cislice_);
    ISipka.Picture = sipky_[0];
    s_.PokracujObrazek = NactiObrazek(s_, "Bitmap\\games\\pokracbg.bmp");
    picPokracuj.Visible = false;
    lblCoDal.Font.Velikost = static_cast<float>(PISMO_RADY * meritko);
    UkazCoDal();
}

void SetupForm::UkazCoDal() {
    const bool pocet = std::ranges::any_of(ICislo, Zvoleny);
    lblCoDal.Caption = CO_DAL[TJmeno.Text.empty() ? 0 : 1][pocet ? 1 : 0];
}

void SetupForm::Activate() {
    SetFocus(TJmeno);
}

/// Name and digit there: the continue button rolls in, once; one of them gone: it hides.
Cinnost<> SetupForm::Kontrola() {
    UkazCoDal();
    const bool uplne = !TJmeno.Text.empty() && std::ranges::any_of(ICislo, Zvoleny);
    if (!uplne) {
        picPokracuj.Picture = s_.PokracujObrazek;
        picPokracuj.Visible = false;
        pokracujNahore_ = false;
        return {};
    }
    if (pokracujNahore_) return {};
    pokracujNahore_ = true;
    picPokracuj.Visible = true;
    const unsigned moje = ++rolovani_;
    return Menu(s_).Roluj({shared_from_this(), &picPokracuj},
                          [this, moje] { return pokracujNahore_ && rolovani_ == moje; });
}

void SetupForm::Change(TextBox& /*t*/) {
    s_.Okna().Spust(*this, Kontrola());
}

Cinnost<> SetupForm::MouseDown(Ovladac* o, const Mys&) {
    if (Je(ICislo, o)) return ZvolPocet(static_cast<std::size_t>(o->Index) - 1);
    if (o == &picPokracuj) return SpustDesku();
    if (o == &picKonec) ZpetDoMenu();
    return {};
}

Cinnost<> SetupForm::ZvolPocet(std::size_t k) {
    ZvukStisku(s_);
    OdzvolVse(ICislo, cislice_);
    ICislo[k].Tag = "1";
    ICislo[k].Picture = cislice_[k].Rozsviceny;
    ISipka.Picture = sipky_[k];
    s_.PocetPrikladuSerie = static_cast<std::uint8_t>(k + 1);
    co_await Cekani(100);
    co_await Kontrola();
}

/// A number that is no task starts nothing. The board is the active screen from the moment it
/// shows: a press on it during the wait may already lead on to another screen.
Cinnost<> SetupForm::SpustDesku() {
    ZvukStisku(s_);
    s_.JmenoHrace = BezKrajnichMezer(TJmeno.Text);
    const std::shared_ptr<Form> deska = s_.VyrobDesku(s_.CisloUlohy);
    if (!deska) co_return;
    Obrazovky& okna = s_.Okna();
    okna.Zaved(deska);
    okna.Show(*deska);
    s_.AktivniForm = deska;
    co_await Cekani(100);
    if (!deska->Zavreny()) okna.Hide(*this);
}

void SetupForm::ZpetDoMenu() {
    ZvukStisku(s_);
    VratSeK(s_, Menu(s_).weak_from_this(), *this);
}

void SetupForm::MouseMove(Ovladac* o, const Mys&) {
    if (Je(ICislo, o)) {
        const auto k = static_cast<std::size_t>(o->Index) - 1;
        hover_.Vstup(static_cast<std::uint8_t>(k + 1));
        ZhasniNezvolene(ICislo, cislice_);
        ICislo[k].Picture = cislice_[k].Rozsviceny;
        picKonec.Picture = konec_.Normalni;
    } else if (o == &picKonec) {
        if (!hover_.Vstup(Hover::KONEC)) return;
        picKonec.Picture = konec_.Rozsviceny;
        ZhasniNezvolene(ICislo, cislice_);
    } else if (o == &Image1) {
        hover_.Vstup(Hover::ZAHLAVI);
    } else if (o == nullptr && hover_.Opust()) {
        picKonec.Picture = konec_.Normalni;
        ZhasniNezvolene(ICislo, cislice_);
    }
}

Cinnost<> SetupForm::Click(Ovladac* o) {
    if (o != &Image1) return {};
    ZvukStisku(s_);
    UkazNapovedu(s_, "Bitmap\\Help\\setup.bmp", *this);
    return {};
}

/// From a digit, which it chooses, or from the name on to what is still missing; where nothing is
/// any more, to the board, by way of the button after a digit that is new.
Odezva SetupForm::Enter() {
    Obrazovky& okna = s_.Okna();
    const Ovladac* kde = okna.Psane();
    if (const auto prsten = okna.PrstenVpredu()) kde = prsten->Co;
    if (kde != nullptr && Je(ICislo, kde)) {
        const auto k = static_cast<std::size_t>(kde->Index) - 1;
        return Zvoleny(ICislo[k]) ? DalEnterem(false) : ZvolEnterem(k);
    }
    if (kde != nullptr && kde != &TJmeno) return std::nullopt;
    return DalEnterem(false);
}

Cinnost<> SetupForm::ZvolEnterem(std::size_t k) {
    Cinnost<> stisk = s_.Okna().StiskniZastavku(*this, ICislo[k]).value_or(Cinnost<>());
    co_await stisk;
    // The waits in it may have led on from here.
    if (s_.Okna().Vpredu().get() != this || MistoPrstenu(*this) != &ICislo[k]) co_return;
    co_await DalEnterem(true);
}

/// novy: the digit was chosen just now.
Cinnost<> SetupForm::DalEnterem(bool novy) {
    Obrazovky& okna = s_.Okna();
    if (TJmeno.Text.empty()) {
        okna.DejPrsten(*this, TJmeno);
    } else if (std::ranges::none_of(ICislo, Zvoleny)) {
        okna.DejPrsten(*this, ICislo.front());
    } else if (novy) {
        okna.DejPrsten(*this, picPokracuj);
    } else if (picPokracuj.Visible) {
        return SpustDesku();
    }
    return {};
}

Odezva SetupForm::Klavesa(std::string_view klavesa, int /*shift*/) {
    Obrazovky& okna = s_.Okna();
    const std::size_t cislice =
        klavesa.size() == 1 ? std::string_view("12345").find(klavesa) : std::string_view::npos;
    if (cislice != std::string_view::npos) {
        return okna.StiskniZastavku(*this, ICislo[cislice]).value_or(Cinnost<>());
    }
    if (klavesa == "Return") return Enter();
    // With a name there, one key by mistake must not throw it away.
    if (klavesa != "Escape" || !TJmeno.Text.empty()) return std::nullopt;
    ZpetDoMenu();
    return Cinnost<>();
}

}  // namespace rysovna
