#include "rules/DialogKroku.h"

#include <algorithm>
#include <utility>

#include "base/Cisla.h"
#include "engine/Prekresleni.h"
#include "rules/Chyby.h"
#include "rules/Misc.h"
#include "rules/NazvyPrimek.h"

namespace rysovna {

namespace {

constexpr std::array<Nastroj, 6> NASTROJE_UTVARU = {Nastroj::Poloprimka, Nastroj::Kolmice,
                                                    Nastroj::Rovnobezka, Nastroj::Kruznice,
                                                    Nastroj::Zpet,       Nastroj::Zadny};

/// The kinds of object that a perpendicular or a parallel can go by.
struct DruhZakladny {
    std::string_view Druh;
    UvodZakladny Uvod;
};
constexpr DruhZakladny ZAKLADNY[] = {{USECKA, UVOD_USECKY},
                                     {POLOPRIMKA, UVOD_POLOPRIMKY},
                                     {ROVNOBEZKA, UVOD_PRIMKY},
                                     {KOLMICE, UVOD_PRIMKY}};

/// The last object of these names, one behind the other; 0 if none is.
int UtvarSeJmeny(const Tabulky& t, std::string_view jmena) {
    int nalezeny = 0;
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        if (t.Utvary[i].Jmeno1 + t.Utvary[i].Jmeno2 == jmena) nalezeny = i;
    }
    return nalezeny;
}

}  // namespace

// ---- The example -----------------------------------------------------------------------------

void DialogKroku::NovyPriklad() {
    VyprazdniKonstrukci(misc_, platna_);
    VymazStav();
    snimky_.clear();
    ZapamatujKrok();
}

void DialogKroku::ZacniZadani(int cisloPrikladu) {
    Upravit().Znacky = 0;
    cisloPrikladu_ = cisloPrikladu;
    ZapomenZadanePrvky(misc_);
}

void DialogKroku::Zadej(const ZadanyPriklad& zadany) {
    NastavJediny(zadany.Zaznam);
    ZacniZadani(1);
    hodnoty_ = zadany.Hodnoty;
    SestavZadani(zadani_);
}

void DialogKroku::NoveZadani() {
    ZacniZadani(VylosujPriklad(misc_));
    if (VylosujHodnoty(Hrany(), hodnoty_)) SestavZadani(zadani_);
}

std::vector<Zadana> DialogKroku::Zadane() const {
    const Priklad& p = Hrany();
    return {{p.Nazev1, p.Jednotka1}, {p.Nazev2, p.Jednotka2}, {p.Nazev3, p.Jednotka3}};
}

std::optional<int> DialogKroku::Hodnota(std::string_view velicina) const {
    const std::vector<Zadana> zadane = Zadane();
    for (std::size_t i = 0; i < zadane.size(); ++i) {
        if (StejnaVelicina(zadane[i].Nazev, velicina)) return hodnoty_[i];
    }
    return {};
}

void DialogKroku::SestavZadani(std::vector<ZadanaVelicina>& zadani) const {
    using enum ZadanaVelicina::Druh;
    const std::vector<Zadana> zadane = Zadane();
    zadani.clear();
    for (std::size_t i = 0; i < zadane.size(); ++i) {
        const auto& [nazev, jednotka] = zadane[i];
        const bool posledni = i + 1 == zadane.size();
        // What has no unit has no value: it says all by its name.
        zadani.push_back({JeUhel(nazev) ? Uhel : Delka, std::string(nazev),
                          jednotka.empty() ? std::string(posledni ? "" : ", ")
                                           : TextHodnoty(hodnoty_[i], jednotka, posledni)});
    }
}

bool DialogKroku::StiskNacrtu(float x, float y) {
    const int prvek = PrvekNacrtu(x, y);
    if (prvek < 0 || Stav().Skontrolovano) return false;
    Upravit().Znacky ^= 1U << prvek;
    return true;
}

// ---- Tools and lists -------------------------------------------------------------------------

void DialogKroku::StiskNastroje(int i) {
    const MistaNastroju nastroje = UkazPanel().Nastroje;
    if (i < 1 || i > static_cast<int>(nastroje.size())) return;
    const MistoNastroje& n = nastroje[static_cast<std::size_t>(i - 1)];
    if (!n.Zivy()) return;
    misc_.KonstrukceZahajena = ANO;
    ZavriSeznam();
    if (n.Co == Nastroj::Zpet) return Zpet();
    if (Stav().Faze >= PosledniFaze()) return;  // a full construction takes no further object
    if (ZacinaKrok(n.Co)) Upravit().KrokChybny = false;
    Nabidni(n.Co);
}

void DialogKroku::VyberRadku(int i) {
    const Seznam& seznam = Stav().Vyber;
    if (!seznam.Otevreny || i < 1 || i > static_cast<int>(seznam.Radky.size())) return;
    const auto radek = static_cast<std::size_t>(i - 1);
    if (!seznam.Radky[radek].Videt || !seznam.Radky[radek].Ziva) return;
    ZavriSeznam();
    Upravit().Tazeni = false;
    ZvolRadek(radek);
}

void DialogKroku::Napis(int /*ktery*/, const std::string& text) {
    Upravit().Rysovane.Hodnota.Text = text;
}

void DialogKroku::OtevriSeznam(Seznam::Obsah coRika, std::vector<RadekSeznamu> radky) {
    Upravit().Vyber = {true, coRika, std::move(radky)};
}

std::optional<RadekSeznamu> DialogKroku::RadekPrimky(const Utvar& u, bool kolmice) {
    const std::string jmena = u.Jmeno1 + u.Jmeno2;
    const auto* z = std::ranges::find(ZAKLADNY, std::string_view(u.Druh), &DruhZakladny::Druh);
    if (z == std::end(ZAKLADNY)) return std::nullopt;
    return RadekSeznamu{std::string(kolmice ? z->Uvod.Kolmice : z->Uvod.Rovnobezka) + jmena, true,
                        true, jmena};
}

// ---- Choosing a line -------------------------------------------------------------------------

std::string DialogKroku::Jmeno() const {
    const auto j = std::ranges::find(pravidlaKroku_.Jmena, std::string_view(Stav().ZvolenyUtvar),
                                     &JmenaUtvaru::Druh);
    if (j == pravidlaKroku_.Jmena.end()) return "";
    return std::string(Stav().Faze == 2 ? j->Prvni : j->Druhy);
}

void DialogKroku::Vyzvi(std::string nazev, std::string jednotka) {
    Upravit().Rysovane = {std::move(nazev), {"", true, true}, std::move(jednotka)};
}

void DialogKroku::ZacniUtvar(std::string_view jmeno1, std::string_view jmeno2) {
    misc_.PripravUtvar(jmeno1, jmeno2);
    Upravit().CekaNaKresleni = true;
    Upravit().BodVyzvy.clear();
}

void DialogKroku::ZacniPaprsek(const std::string& rameno, const std::string& vrchol) {
    const std::string bod = Jmeno();
    ZacniUtvar(vrchol, bod);
    Upravit().BodVyzvy = vrchol;
    Vyzvi("polopřímka " + vrchol + bod + ", |<" + rameno + vrchol + bod + "| = ", "°");
}

void DialogKroku::ZacniKruznici(std::string_view stred) {
    const std::string jmeno = Jmeno();
    ZacniUtvar(jmeno, "");
    Upravit().BodVyzvy = stred;
    Vyzvi("kružnice " + jmeno + "(" + std::string(stred) + ", r = ", ") cm");
}

void DialogKroku::ZacniPrimku(const std::string& jmena, const std::string& nazev) {
    const std::string jmeno = Jmeno();
    misc_.VybranyUtvar = UtvarSeJmeny(misc_, jmena);
    ZacniUtvar(jmeno, "");
    if (Stav().ZvolenyUtvar == ROVNOBEZKA) {
        return Vyzvi(NazevRovnobezky(jmeno, nazev) + ", |" + jmeno + "," + nazev + "| = ", " cm");
    }
    Upravit().Rysovane = {NazevKolmice(jmeno, nazev), {}, ""};
}

void DialogKroku::ChybnaVolba(ChybaKroku chyba, std::string_view slovy) {
    PridejChybu(misc_, chyba, slovy);
    Upravit().KrokChybny = true;
}

bool DialogKroku::DruhSedi(const Krok& krok, std::string_view druh) const {
    return krok.Utvar == druh;
}

bool DialogKroku::ObsadKrok(std::string_view druh) {
    for (const int n : pravidlaKroku_.Ocekavane) {
        Krok& krok = HranyProUpravu().Kroky[n];
        if (krok.Hotovo != NE || !DruhSedi(krok, druh)) continue;
        krok.Hotovo = ANO;
        return true;
    }
    return false;
}

void DialogKroku::Zapis(std::string_view druh, std::string_view prvek) {
    ZadanyPrvek& z = misc_.ZadanePrvky[Stav().Faze];
    z.Faze = static_cast<std::int16_t>(Stav().Faze);
    z.Utvar = druh;
    z.Prvek = prvek;
}

void DialogKroku::DalsiFaze() {
    StavKroku& s = Upravit();
    s.CekaNaKresleni = false;
    s.Tazeni = false;
    s.ZvolenyUtvar.clear();
    s.Rysovane = {};
    ++s.Faze;
    ZapamatujKrok();
    if (s.Faze == PosledniFaze()) Uzavri();
}

// ---- Back ------------------------------------------------------------------------------------

void DialogKroku::ZapamatujKrok() {
    snimky_.emplace_back(misc_);
    ZapamatujStav();
}

/// The beginning of the step before; in the first phase that of this one. Points stay, and the rows
/// of what was entered; every expected step is free again, whichever was undone.
void DialogKroku::Zpet() {
    platna_.Pic.DrawWidth = 1;
    const int faze = std::max(Stav().Faze - 1, 1);
    VratStav(faze);
    snimky_.erase(snimky_.begin() + faze, snimky_.end());
    snimky_.back().Vrat(misc_);
    for (const int n : pravidlaKroku_.Ocekavane) HranyProUpravu().Kroky[n].Hotovo = NE;
    Prekresli();
}

void DialogKroku::Prekresli() {
    PrekresliVse(misc_, platna_.HidenPic, platna_.Pic);
}

void DialogKroku::Posun(int dx, int dy) {
    PosunVse(misc_, platna_.HidenPic, platna_.Pic, dx, dy);
    for (SnimekKonstrukce& s : snimky_) s.Posun(dx, dy);
}

// ---- The check -------------------------------------------------------------------------------

void DialogKroku::Zkontroluj() {
    StavKroku& s = Upravit();
    s.Skontrolovano = true;
    s.Tazeni = false;
    ZavriSeznam();
    UctujChybnePrvky(misc_, ChybnychPrvku());
    std::uint32_t ocekavane = 0;
    const auto prvky = NacrtPrikladu().Prvky;
    for (std::size_t i = 0; i < prvky.size(); ++i) {
        if (JeZadana(prvky[i].Jmeno)) ocekavane |= 1U << i;
    }
    UctujZnacky(misc_, s.Znacky == ocekavane);
    if (!s.HotovaKonstrukce) PridejChybu(misc_, pravidlaKroku_.Nedokoncena);
}

// ---- The panel -------------------------------------------------------------------------------

bool DialogKroku::MuzeZacit() const {
    return misc_.KonstrukceZahajena != NE || Stav().Znacky != 0;
}

void DialogKroku::UkazNastroje(Panel& panel, const std::array<Nastroj, 6>& nastroje,
                               const std::array<bool, 6>& naRade) const {
    using enum MistoNastroje::Stav;
    for (std::size_t i = 0; i < nastroje.size(); ++i) {
        const bool zivy = naRade[i] && nastroje[i] != Nastroj::Zadny && !Stav().CekaNaKresleni;
        panel.Nastroje[i] = {nastroje[i], zivy ? Zivy : Sedy};
    }
}

void DialogKroku::UkazVolbuUtvaru(Panel& panel, std::string_view vyzva) const {
    panel.Vyzva = vyzva;
    panel.Nadpis = Stav().Faze == 2 ? "1. útvar:" : "2. útvar:";
    UkazNastroje(panel, NASTROJE_UTVARU, {true, true, true, true, true, true});
}

Gesto DialogKroku::GestoKroku() const {
    using Tvar = Gesto::Tvar;
    struct TahDruhu {
        std::string_view Druh;
        Tvar Jak;
    };
    static constexpr TahDruhu RADKY[] = {{USECKA, Tvar::Usecka},
                                         {POLOPRIMKA, Tvar::Poloprimka},
                                         {KRUZNICE, Tvar::Kruznice},
                                         {KOLMICE, Tvar::Kolmice},
                                         {ROVNOBEZKA, Tvar::Rovnobezka}};
    const StavKroku& s = Stav();
    if (!CekaNaKresleni()) return {};
    const auto* r = std::ranges::find(RADKY, std::string_view(s.ZvolenyUtvar), &TahDruhu::Druh);
    if (r == std::end(RADKY)) return {Tvar::Bod, {}, {}, false};  // the board computes it, wherever
    if (r->Jak != Tvar::Usecka) return {r->Jak, s.BodVyzvy, {}, false};
    const Utvar& nova = misc_.Utvary[misc_.PocetUtvaru + 1];
    return {r->Jak, nova.Jmeno1, nova.Jmeno2, false};
}

Panel DialogKroku::UkazPanel() const {
    const StavKroku& s = Stav();
    Panel p;
    p.Uvod = pravidlaKroku_.Uvod;
    p.Zadani = zadani_;
    p.Rysovane = s.Rysovane;
    p.Vyber = s.Vyber;
    p.PlochaZiva = !s.HotovaKonstrukce && !s.Skontrolovano;
    p.Kresleni = GestoKroku();
    p.Nezavrena = s.Faze >= PosledniFaze() && !s.HotovaKonstrukce;
    UkazFazi(p);
    p.Rysovane.Hodnota.Ziva = !s.Skontrolovano;
    if (!s.Skontrolovano) return p;
    using enum MistoNastroje::Stav;
    for (MistoNastroje& n : p.Nastroje) {
        if (n.Zivy()) n.Jak = n.Co == Nastroj::Zpet ? Sedy : Zamceny;
    }
    return p;
}

}  // namespace rysovna
