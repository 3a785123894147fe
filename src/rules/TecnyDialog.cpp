// The life of an example, the tools with their lists, and back.

#include "rules/TecnyDialog.h"

#include <algorithm>

#include "engine/Sluzby.h"
#include "rules/Chyby.h"
#include "rules/Kontrola.h"
#include "rules/Misc.h"
#include "rules/SlovaKroku.h"
#include "rules/TecnyNacrt.h"
#include "rules/TecnyZadani.h"

namespace rysovna {

namespace {

bool JePrima(const Utvar& u) {
    return u.Druh == USECKA || u.Druh == PRIMKA || u.Druh == KOLMICE || u.Druh == ROVNOBEZKA;
}

/// The base's name behind the words that the list of perpendiculars or that of parallels has for
/// its kind; empty when there is no such object.
std::string SlovyPrimku(const Tabulky& t, std::string_view jmeno, std::string_view uPrimky,
                        std::string_view uUsecky) {
    const int i = NajdiCaru(t, jmeno);
    if (i == 0) return {};
    return std::string(t.Utvary[i].Druh == USECKA ? uUsecky : uPrimky) + std::string(jmeno);
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
    for (int* x : {&posledni.X1, &posledni.X2, &posledni.X3}) *x += dx;
    for (int* y : {&posledni.Y1, &posledni.Y2, &posledni.Y3}) *y += dy;
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

// ---- Tools -----------------------------------------------------------------------------------

void TecnyDialog::StiskNastroje(int i) {
    const MistaNastroju nastroje = UkazPanel().Nastroje;
    if (i < 1 || i > NASTROJ_ZPET || !nastroje[static_cast<std::size_t>(i - 1)].Zivy()) return;
    misc_.KonstrukceZahajena = ANO;
    if (i == NASTROJ_ZPET) return Zpet();
    const KrokTecny* krok = KrokFaze();
    if (krok == nullptr) return;
    Odzbroj();
    stav_.VRuce = krok->Nastroje[static_cast<std::size_t>(i - 1)];
    stav_.Spravny = stav_.VRuce == krok->Spravny;
    if (std::ranges::find(krok->Chybne, stav_.VRuce) != krok->Chybne.end()) Chybne();
    switch (stav_.VRuce) {
        case Nastroj::Prusecik:
            return PripravOznaceni(*krok);
        case Nastroj::Stred:
            return PripravStred(*krok);
        case Nastroj::Osa: {
            stav_.ZvolenyUtvar = OSA;
            const std::string jmeno = std::string(krok->Body[0]) + std::string(krok->Body[1]);
            return OtevriSeznam({{"úsečky " + jmeno, true, true, jmeno}});
        }
        case Nastroj::Poloprimka: {
            const std::string od(Hrane()->PocatekPoloprimky);
            stav_.ZvolenyUtvar = POLOPRIMKA;
            stav_.Jmeno = od;
            stav_.Rysovane = "polopřímka " + od + "Y";
            stav_.CekaNaKresleni = true;
            return;
        }
        case Nastroj::Primka:
            stav_.ZvolenyUtvar = PRIMKA;
            return NabidniSpojnice(*krok);
        case Nastroj::Kruznice:
            stav_.ZvolenyUtvar = KRUZNICE;
            return NabidniKruznice(*krok);
        case Nastroj::Kolmice:
            stav_.ZvolenyUtvar = KOLMICE;
            return NabidniPrimky(*krok);
        case Nastroj::Rovnobezka:
            stav_.ZvolenyUtvar = ROVNOBEZKA;
            return NabidniPrimky(*krok);
        default:
            return;
    }
}

/// A wrong tool: charged at once; the object can be drawn all the same and costs no more.
void TecnyDialog::Chybne() {
    PridejChybu(misc_, CHYBA_NASTROJ);
    stav_.KrokChybny = true;
}

/// Lays the step in hand down, so that the tools are live again.
void TecnyDialog::Odzbroj() {
    static_cast<KrokVRuce&>(stav_) = {};
}

void TecnyDialog::ZavriSeznam() {
    if (stav_.Vyber.Otevreny) Odzbroj();
}

/// A list without a row cannot be picked from: the object is then drawn as dragged.
void TecnyDialog::OtevriSeznam(std::vector<RadekSeznamu> radky) {
    if (radky.empty()) {
        stav_.CekaNaKresleni = true;
        return;
    }
    stav_.Vyber = {true, Seznam::Obsah::Popisy, std::move(radky)};
}

/// Perpendicular and parallel: the bases that there are.
void TecnyDialog::NabidniPrimky(const KrokTecny& krok) {
    const bool kolmice = stav_.VRuce == Nastroj::Kolmice;
    std::vector<RadekSeznamu> radky;
    const auto pridej = [&](std::string_view jmeno) {
        std::string text = SlovyPrimku(misc_, jmeno, kolmice ? "k přímce " : "s přímkou ",
                                       kolmice ? "k úsečce " : "s úsečkou ");
        if (!text.empty()) radky.push_back({std::move(text), true, true, std::string(jmeno)});
    };
    if (stav_.Spravny) {
        for (const Volba& v : krok.Volby) pridej(v.Prvek);
    } else {
        for (const std::string_view z : krok.Zakladny) pridej(z);
    }
    stav_.Jmeno = stav_.Spravny ? std::string(VolneJmeno(krok)) : "p" + std::to_string(stav_.Faze);
    OtevriSeznam(std::move(radky));
}

void TecnyDialog::NabidniKruznice(const KrokTecny& krok) {
    if (!stav_.Spravny) {
        const std::string_view jmeno = Hrane()->ChybnaKruznice;
        stav_.Jmeno = jmeno.empty() ? "k" + std::to_string(stav_.Faze) : std::string(jmeno);
        stav_.Rysovane = "kružnice " + stav_.Jmeno;
        stav_.CekaNaKresleni = true;
        return;
    }
    stav_.Jmeno = VolneJmeno(krok);
    std::vector<RadekSeznamu> radky;
    for (const Volba& v : krok.Volby) {
        if (v.Prvek.empty() || NajdiBod(misc_, v.Prvek) == BEZ_BODU) continue;
        radky.push_back({"kružnice " + stav_.Jmeno + ", střed v bodě " + std::string(v.Prvek), true,
                         true, std::string(v.Prvek)});
    }
    OtevriSeznam(std::move(radky));
}

/// Lines through two named points.
void TecnyDialog::NabidniSpojnice(const KrokTecny& krok) {
    std::vector<RadekSeznamu> radky;
    for (const Volba& v : krok.Volby) {
        if (v.Prvek.empty()) continue;
        radky.push_back({"přímka " + std::string(v.Prvek), true, true, std::string(v.Prvek)});
    }
    stav_.Jmeno = VolneJmeno(krok);
    OtevriSeznam(std::move(radky));
}

void TecnyDialog::PripravStred(const KrokTecny& krok) {
    stav_.ZvolenyUtvar = STRED;
    stav_.Jmeno =
        stav_.Spravny ? std::string(VolneJmeno(krok)) : std::string(krok.JmenoChybnehoStredu);
    stav_.Rysovane = "střed úsečky " + std::string(krok.Body[0]) + std::string(krok.Body[1]);
    const Bod a = NajdiBod(misc_, krok.Body[0]);
    const Bod b = NajdiBod(misc_, krok.Body[1]);
    if (!(a == BEZ_BODU) && !(b == BEZ_BODU)) stav_.StredUsecky = StredUseckyBodu(a, b);
    stav_.CekaNaKresleni = true;
}

void TecnyDialog::PripravOznaceni(const KrokTecny& krok) {
    stav_.ZvolenyUtvar = PRUSECIK;
    stav_.OcekavanyBod = krok.Jmena[0];
    stav_.CekaNaKresleni = true;
}

/// The first of the names that the step can give whose solution entry is not done.
std::string_view TecnyDialog::VolneJmeno(const KrokTecny& krok) const {
    const auto hotovo = [this](std::string_view jmeno) {
        for (int i = 1; i <= decltype(Priklad::Kroky)::POSLEDNI; ++i) {
            const Krok& k = misc_.Priklady[cisloPrikladu_].Kroky[i];
            if (k.Jmeno == jmeno && k.Hotovo != NE) return true;
        }
        return false;
    };
    return !krok.Jmena[1].empty() && hotovo(krok.Jmena[0]) ? krok.Jmena[1] : krok.Jmena[0];
}

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
