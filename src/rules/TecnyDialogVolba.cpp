// The pick of a line of the list, and what the panel shows.

#include <algorithm>

#include "engine/Kresleni.h"
#include "rules/Chyby.h"
#include "rules/Kontrola.h"
#include "rules/Misc.h"
#include "rules/SlovaKroku.h"
#include "rules/TecnyDialog.h"
#include "rules/Veliciny.h"

namespace rysovna {

namespace {

constexpr std::string_view VYZVA_STRED = "Zvol kliknutím na kreslící ploše střed úsečky.";
constexpr std::string_view VYZVA_HOTOVO = "Proveď kontrolu hotové konstrukce.";

}  // namespace

void TecnyDialog::VyberRadku(int i) {
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr || !stav_.Vyber.Otevreny || i < 1 ||
        i > static_cast<int>(stav_.Vyber.Radky.size())) {
        return;
    }
    const RadekSeznamu radek = stav_.Vyber.Radky[static_cast<std::size_t>(i - 1)];
    if (!radek.Videt || !radek.Ziva) return;
    stav_.Vyber.Otevreny = false;
    stav_.OcekavanyBod = radek.Jmena;
    if (stav_.VRuce == Nastroj::Osa) return ZvolOsu();
    stav_.CekaNaKresleni = true;
    if (stav_.Spravny && !krok->SpravnaVolba.empty() && radek.Jmena != krok->SpravnaVolba) {
        PridejChybu(misc_, krok->ChybaVolby);
        stav_.KrokChybny = true;
    }
    if (stav_.VRuce == Nastroj::Kruznice) return ZvolKruznici(*krok, radek.Jmena);
    if (stav_.VRuce == Nastroj::Primka) {
        stav_.Rysovane = radek.Text;
        // A line that is no result gets no result's name.
        if (radek.Jmena == krok->VedlejsiVolba || JeVzata(i)) {
            stav_.Jmeno = "p" + std::to_string(stav_.Faze);
            stav_.Spravny = false;
        }
        return;
    }
    ZvolPrimku(radek.Jmena);
}

/// Whether another line was drawn by this row of the list already: it cannot be both results.
bool TecnyDialog::JeVzata(int radek) const {
    return !KrokFaze()->Jmena[1].empty() && (stav_.Pouzite >> (radek - 1) & 1U) != 0;
}

/// Perpendicular or parallel to a base.
void TecnyDialog::ZvolPrimku(const std::string& zaklad) {
    stav_.Zakladna = NajdiCaru(misc_, zaklad);
    misc_.VybranyUtvar = stav_.Zakladna;
    stav_.Rysovane = stav_.VRuce == Nastroj::Rovnobezka
                         ? "přímka " + stav_.Jmeno + ", " + stav_.Jmeno + "||" + zaklad
                         : NazevKolmice(stav_.Jmeno, zaklad);
}

void TecnyDialog::ZvolKruznici(const KrokTecny& krok, const std::string& stred) {
    stav_.StredKruznice = stred;
    for (const Volba& v : krok.Volby) {
        if (v.Prvek != stred) continue;
        stav_.Rysovane =
            "kružnice " + stav_.Jmeno + "(" + stred + ", r = " + std::string(v.Polomer) + ")";
    }
}

/// The axis of a segment: the perpendicular and the midpoint at once, the line first. It does this
/// step and the next one.
void TecnyDialog::ZvolOsu() {
    const KrokTecny stred = *KrokFaze();
    const KrokTecny kolmice = *KrokFaze(stav_.Faze + 1);
    const int usecka = NajdiCaru(misc_, stav_.OcekavanyBod);
    const Bod a = NajdiBod(misc_, stred.Body[0]);
    const Bod b = NajdiBod(misc_, stred.Body[1]);
    const Bod C = StredUseckyBodu(a, b);
    const std::string jmenoC(stred.Jmena[0]);
    const std::string jmenoB(kolmice.Jmena[0]);
    Pamatuj();
    const Dvojice body = Kolme(misc_.Utvary[usecka], C, C);
    KresliKolmici(misc_, platna_.Pic, NovyRadek(jmenoB, ""),
                  {.Druh = KOLMICE, .P1 = body.P1, .P2 = body.P2}, ANO);
    misc_.Utvary[misc_.PocetUtvaru].Jak = {stav_.ZvolenyUtvar, stav_.OcekavanyBod, ""};
    NakresliBod(C, jmenoC, stred.NaPrimce);
    misc_.Utvary[misc_.PocetUtvaru].Jak = {
        STRED, std::string(stred.Body[0]) + " " + std::string(stred.Body[1]), ""};
    Zapis(stav_.Faze, BOD, jmenoC);
    Zapis(stav_.Faze + 1, KOLMICE, jmenoB);
    SplnPolozku(jmenoC);
    SpocitejPruseciky(kolmice);
    Odzbroj();
    stav_.Faze += 2;
    stav_.Zpatky = false;
}

// ---- What is shown ---------------------------------------------------------------------------

MistaNastroju TecnyDialog::Nastroje(const Cviceni& c) const {
    using enum MistoNastroje::Stav;
    MistaNastroju mista;
    const int posledni = static_cast<int>(c.Kroky.size());
    const bool zaKoncem = stav_.Faze > posledni;
    const KrokTecny& krok = *KrokFaze(zaKoncem ? posledni : stav_.Faze);
    const bool vRuce = stav_.CekaNaKresleni || stav_.Vyber.Otevreny;
    const bool muzeZacit = stav_.Faze > 1 || misc_.KonstrukceZahajena != NE || stav_.Znacky != 0;
    const bool volno = zadano_ && !zaKoncem && !vRuce && muzeZacit;
    const bool sede =
        vRuce && stav_.VRuce == krok.Spravny && krok.SedeNastroje[0] != Nastroj::Zadny;
    const auto& nastroje = sede ? krok.SedeNastroje : krok.Nastroje;
    for (std::size_t i = 0; i < nastroje.size(); ++i) {
        if (nastroje[i] == Nastroj::Zadny) continue;
        mista[i] = {nastroje[i], !volno ? Sedy : stav_.Skontrolovano ? Zamceny : Zivy};
    }
    // Back stays live while a point is to be marked: a crossing that could not be computed cannot
    // be marked at all.
    const bool mrtve = stav_.Zpatky && !zaKoncem && krok.MrtveZpet &&
                       std::ranges::none_of(minulost_, &Minulost::Cizi);
    const bool zpet = stav_.Faze > 1 && !stav_.Skontrolovano && !mrtve && (!vRuce || Znaci());
    mista[NASTROJ_ZPET - 1] = {Nastroj::Zpet, zpet ? Zivy : Sedy};
    return mista;
}

/// A line through two points names both in its row; a ray and a circle name theirs in the prompt.
Gesto TecnyDialog::GestoKroku() const {
    using Tvar = Gesto::Tvar;
    struct TahDruhu {
        Nastroj Nastroj_;
        Tvar Jak;
    };
    static constexpr TahDruhu RADKY[] = {
        {Nastroj::Primka, Tvar::Primka},     {Nastroj::Poloprimka, Tvar::Poloprimka},
        {Nastroj::Kolmice, Tvar::Kolmice},   {Nastroj::Rovnobezka, Tvar::Rovnobezka},
        {Nastroj::Kruznice, Tvar::Kruznice}, {Nastroj::Stred, Tvar::Bod},
        {Nastroj::Prusecik, Tvar::Bod}};
    if (!stav_.CekaNaKresleni || stav_.Skontrolovano) return {};
    const auto* r = std::ranges::find(RADKY, stav_.VRuce, &TahDruhu::Nastroj_);
    if (r == std::end(RADKY)) return {};
    // With nothing to pick by, the tool in hand is not named anywhere.
    if (r->Jak != Tvar::Bod && stav_.Rysovane.empty()) return {Tvar::Utvar, {}, {}, false};
    Gesto g{r->Jak, {}, {}, r->Jak == Tvar::Bod};
    if (g.Druh == Tvar::Primka && !stav_.OcekavanyBod.empty()) {
        g.Od = stav_.OcekavanyBod.substr(0, 1);
        g.Kam = stav_.OcekavanyBod.substr(1);
    } else if (g.Druh == Tvar::Poloprimka) {
        g.Od = stav_.Jmeno;
    } else if (g.Druh == Tvar::Kruznice) {
        g.Od = stav_.StredKruznice;
    }
    return g;
}

Panel TecnyDialog::UkazPanel() const {
    Panel p;
    const Cviceni* c = Hrane();
    p.PlochaZiva = false;
    if (c == nullptr) return p;
    p.Uvod = c->Zadani;
    p.Zadani = {{ZadanaVelicina::Druh::Slovy, "", std::string(c->Dano)}};
    p.Nastroje = Nastroje(*c);
    const KrokTecny* krok = KrokFaze();
    if (stav_.HotovaKonstrukce) {
        p.Vyzva = VYZVA_HOTOVO;
    } else if (stav_.VRuce == Nastroj::Stred) {
        p.Vyzva = VYZVA_STRED;
    } else {
        // Past the last step without a finish, the last prompt stays.
        const KrokTecny& k = krok != nullptr ? *krok : c->Kroky.back();
        p.Vyzva = stav_.Zpatky && !k.VyzvaZpet.empty() ? k.VyzvaZpet : k.Vyzva;
    }
    p.Rysovane.Nazev = stav_.Rysovane;
    p.Vyber = stav_.Vyber;
    p.PlochaZiva = !stav_.HotovaKonstrukce && !stav_.Skontrolovano;
    p.Kresleni = GestoKroku();
    p.Nezavrena = krok == nullptr && !stav_.HotovaKonstrukce;
    return p;
}

}  // namespace rysovna
