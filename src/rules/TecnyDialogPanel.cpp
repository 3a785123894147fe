// What the panel shows.

#include <algorithm>

#include "rules/Misc.h"
#include "rules/TecnyDialog.h"

namespace rysovna {

namespace {

constexpr std::string_view VYZVA_STRED = "Zvol kliknutím na kreslící ploše střed úsečky.";
constexpr std::string_view VYZVA_HOTOVO = "Proveď kontrolu hotové konstrukce.";

}  // namespace

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
