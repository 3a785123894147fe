// The life of an example, the end of a step, and back.

#include "rules/TecnyDialog.h"

#include <algorithm>

#include "engine/Kresleni.h"
#include "engine/Prekresleni.h"
#include "engine/Resitele.h"
#include "rules/Chyby.h"
#include "rules/Kontrola.h"
#include "rules/Misc.h"
#include "rules/TecnyNacrt.h"
#include "rules/TecnyZadani.h"
#include "rules/Uzavreni.h"

namespace rysovna {

namespace {

constexpr int SIRKA_VYSLEDKU = 2;

bool JePrima(const Utvar& u) {
    return u.Druh == USECKA || u.Druh == PRIMKA || u.Druh == KOLMICE || u.Druh == ROVNOBEZKA;
}

}  // namespace

Bod NajdiBod(const Tabulky& t, std::string_view jmeno) {
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        const Utvar& u = t.Utvary[i];
        if ((u.Druh == BOD || u.Druh == USECKA) && u.Jmeno1 == jmeno) return {u.X1, u.Y1};
        if (u.Druh == USECKA && u.Jmeno2 == jmeno) return {u.X2, u.Y2};
    }
    return BEZ_BODU;
}

int NajdiCaru(const Tabulky& t, std::string_view jmeno) {
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        const Utvar& u = t.Utvary[i];
        if ((JePrima(u) || u.Druh == KRUZNICE) && u.Jmeno1 + u.Jmeno2 == jmeno) return i;
    }
    return 0;
}

const Cviceni* TecnyDialog::Hrane() const {
    return NajdiCviceni(misc_.Priklady[cisloPrikladu_].Druh);
}

const KrokTecny* TecnyDialog::KrokFaze(int faze) const {
    const Cviceni* c = Hrane();
    if (c == nullptr || faze < 1 || faze > static_cast<int>(c->Kroky.size())) return nullptr;
    return &c->Kroky[static_cast<std::size_t>(faze - 1)];
}

bool TecnyDialog::Znaci() const {
    const KrokTecny* krok = KrokFaze();
    return krok != nullptr && krok->Spravny == Nastroj::Prusecik;
}

void TecnyDialog::NovyPriklad() {
    VyprazdniKonstrukci(misc_, platna_);
    stav_ = {};
    minulost_.clear();
    zadano_ = false;
}

void TecnyDialog::ZacniZadani(int cisloPrikladu) {
    cisloPrikladu_ = cisloPrikladu;
    ZapomenZadanePrvky(misc_);
    zadano_ = true;
}

void TecnyDialog::NoveZadani() {
    NovyPriklad();
    ZacniZadani(VylosujPriklad(misc_));
    const std::string& kod = misc_.Priklady[cisloPrikladu_].Druh;
    dane_ = VylosujFiguru(kod, platna_.Pic.Width(), platna_.Pic.Height(), misc_.Generator);
    NakresliFiguru(misc_, platna_.Pic, dane_);
}

ZadanyPriklad TecnyDialog::Zadany() const {
    return {misc_.Priklady[cisloPrikladu_], {}, dane_.Utvary};
}

void TecnyDialog::Zadej(const ZadanyPriklad& zadany) {
    NovyPriklad();
    NastavJediny(zadany.Zaznam);
    ZacniZadani(1);
    dane_ = {.Utvary = zadany.Figura};
    NakresliFiguru(misc_, platna_.Pic, dane_);
}

bool TecnyDialog::StiskNacrtu(float x, float y) {
    const Cviceni* c = Hrane();
    if (c == nullptr || !zadano_ || stav_.Skontrolovano) return false;
    const int prvek = PrvekNacrtu(x, y);
    if (prvek < 0) return false;
    stav_.Znacky ^= 1U << prvek;
    return true;
}

Nacrt TecnyDialog::NacrtPrikladu() const {
    const Cviceni* c = Hrane();
    return c == nullptr ? Nacrt{} : NacrtTecny(c->Kod);
}

void TecnyDialog::Zkontroluj() {
    const Cviceni* c = Hrane();
    stav_.Skontrolovano = true;
    stav_.Tazeni = false;
    ZavriSeznam();
    if (!stav_.HotovaKonstrukce) PridejChybu(misc_, CHYBA_NEDOKONCENA);
    if (c == nullptr) return;
    const auto prvky = NacrtPrikladu().Prvky;
    bool oznaceno = true;
    for (std::size_t i = 0; i < prvky.size(); ++i) {
        const bool dany = std::ranges::find(c->Dane, prvky[i].Jmeno) != c->Dane.end();
        if (dany && (stav_.Znacky >> i & 1U) == 0) oznaceno = false;
    }
    if (!oznaceno && misc_.SoucetZapornychBodu < BODU_ZA_PRIKLAD) {
        PridejChybu(misc_, CHYBA_ZNACKY);
    }
}

/// Redraws all, shifted by so many pixels. A redraw writes over the last snap row; it gets back
/// what it held.
void TecnyDialog::Prekresli(int dx, int dy) {
    Trojice posledni = misc_.Trojice_tab[misc_.PocetTrojic];
    PosunVse(misc_, platna_.HidenPic, platna_.Pic, dx, dy);
    rysovna::Posun(posledni, dx, dy);
    if (misc_.PocetTrojic > 0) misc_.Trojice_tab[misc_.PocetTrojic] = posledni;
}

void TecnyDialog::Posun(int dx, int dy) {
    Prekresli(dx, dy);
    const auto posun = [dx, dy](Bod& b) {
        if (b == BEZ_BODU) return;
        b.X += dx;
        b.Y += dy;
    };
    const auto posunPary = [&](DvaPruseciky& p) { std::ranges::for_each(p.Misto, posun); };
    posunPary(stav_.Pary);
    for (Minulost& m : minulost_) {
        m.Konstrukce.Posun(dx, dy);
        posunPary(m.Pary);
    }
    posun(stav_.StredUsecky);
    posun(stav_.Start);
    if (stav_.HotovaKonstrukce) ZvyrazniReseni();
}

// ---- The end of a step -----------------------------------------------------------------------

void TecnyDialog::NakresliBod(Bod misto, const std::string& jmeno, std::string_view naPrimce) {
    const int n = misc_.NovyUtvar(jmeno, "");
    KresliBod(misc_, platna_.Pic, n,
              {.Druh = BOD, .P1 = misto, .Popis1 = jmeno, .NaPrimce = naPrimce}, ANO);
}

void TecnyDialog::Pamatuj() {
    minulost_.push_back({SnimekKonstrukce(misc_), stav_.Faze, stav_.Pary, stav_.Pouzite,
                         misc_.Priklady[cisloPrikladu_].Kroky, misc_.ZadanePrvky});
}

void TecnyDialog::Zapis(int faze, std::string_view druh, std::string_view prvek) {
    ZadanyPrvek& z = misc_.ZadanePrvky[faze];
    z.Faze = static_cast<std::int16_t>(faze);
    z.Utvar = druh;
    z.Prvek = prvek;
}

int TecnyDialog::PolozkaReseni(std::string_view jmeno) const {
    for (int i = 1; i <= decltype(Priklad::Kroky)::POSLEDNI; ++i) {
        if (misc_.Priklady[cisloPrikladu_].Kroky[i].Jmeno == jmeno) return i;
    }
    return 0;
}

void TecnyDialog::SplnPolozku(std::string_view jmeno) {
    const int i = PolozkaReseni(jmeno);
    if (i == 0) return;
    misc_.Priklady[cisloPrikladu_].Kroky[i].Hotovo = ANO;
}

/// Works out what the next step marks, and charges when there is nothing.
void TecnyDialog::SpocitejPruseciky(const KrokTecny& krok) {
    if (krok.Pocita == Prunik::Nic) return;
    DvaPruseciky p;
    auto& [b1, b2] = p.Misto;
    const int i = NajdiCaru(misc_, krok.Ceho[0]);
    const int j = NajdiCaru(misc_, krok.Ceho[1]);
    if (i != 0 && j != 0) {
        const Utvar& u = misc_.Utvary[i];
        const Utvar& v = misc_.Utvary[j];
        const Bod u1{u.X1, u.Y1}, v1{v.X1, v.Y1};
        Bod u2{u.X2, u.Y2};
        if (u2 == u1) u2.Y += 1;  // clicked, not dragged: it stands upright
        switch (krok.Pocita) {
            case Prunik::PrimkaKruznice:
                PrunikPrimkyKruzniceVPlose(platna_.Pic, v1, v.Polomer, u1, u2, u1, u2, b1, b2);
                break;
            case Prunik::Kruznice:
                PrunikKruznic(platna_.Pic, u1, u.Polomer, v1, v.Polomer, b1, b2);
                break;
            case Prunik::Primky:
                b1 = PrusecikPrimek(u, v);
                break;
            case Prunik::Nic:
                break;
        }
    }
    stav_.Pary = p;
    if (b1 == BEZ_BODU) Uctuj(krok.ChybaPruniku);
}

/// The step is done, with the step's own kind of object (vlastni) or another. The finish comes
/// with the last step's own object, when all results are there.
void TecnyDialog::UkonciKrok(bool vlastni) {
    minulost_.back().Cizi = !vlastni;
    Odzbroj();
    ++stav_.Faze;
    stav_.Zpatky = false;
    if (!vlastni || KrokFaze() != nullptr) return;
    for (const std::string_view v : Hrane()->Vysledky) {
        if (!v.empty() && NajdiCaru(misc_, v) == 0) return;
    }
    stav_.HotovaKonstrukce = true;
    ZvyrazniReseni();
}

/// Draws the results thick, without their labels.
void TecnyDialog::ZvyrazniReseni() {
    Plane& pic = platna_.Pic;
    pic.DrawWidth = SIRKA_VYSLEDKU;
    const Trojice posledni = misc_.Trojice_tab[misc_.PocetTrojic];
    const auto& vysledky = Hrane()->Vysledky;
    for (int i = 1; i <= misc_.PocetUtvaru; ++i) {
        const Utvar u = misc_.Utvary[i];
        if (u.Jmeno1.empty() || std::ranges::find(vysledky, u.Jmeno1) == vysledky.end()) continue;
        misc_.Utvary[i].Jmeno1.clear();
        if (u.Druh == KRUZNICE) {
            KresliKruznici(misc_, pic, i, {.Druh = u.Druh, .P1 = {u.X1, u.Y1}, .P2 = {u.X2, u.Y1}},
                           NE);
        } else {
            KresliPrimku(misc_, pic, i,
                         {.Druh = u.Druh, .P1 = {u.X1, u.Y1}, .P2 = {u.X2, u.Y2}, .Delka = u.Delka},
                         NE);
        }
        misc_.Utvary[i] = u;
    }
    misc_.Trojice_tab[misc_.PocetTrojic] = posledni;
    pic.DrawWidth = 1;
}

// ---- Back ------------------------------------------------------------------------------------

void TecnyDialog::Zpet() {
    if (minulost_.empty()) return;
    Odzbroj();
    const Minulost m = std::move(minulost_.back());
    minulost_.pop_back();
    m.Konstrukce.Vrat(misc_);
    misc_.ZadanePrvky = m.ZadanePrvky;
    misc_.Priklady[cisloPrikladu_].Kroky = m.Kroky;
    stav_.Faze = m.Faze;
    stav_.Pary = m.Pary;
    stav_.Pouzite = m.Pouzite;
    stav_.Zpatky = true;
    stav_.HotovaKonstrukce = false;
    platna_.Pic.DrawWidth = 1;
    Prekresli(0, 0);
}

}  // namespace rysovna
