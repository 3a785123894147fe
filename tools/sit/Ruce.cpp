#include "sit/Ruce.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "engine/Miry.h"
#include "rules/DialogKroku.h"
#include "rules/TecnyDialog.h"

namespace rysovna::sit {

using hrac::NejdeUdelat;
using hrac::RukaNaDesce;

namespace {

constexpr int KAZDY = 4;  // one step of so many is followed by a back, one back by arrows

constexpr std::array<Bod, 4> SMERY{
    {{KROK_POSUNU, 0}, {-KROK_POSUNU, 0}, {0, KROK_POSUNU}, {0, -KROK_POSUNU}}};

constexpr std::string_view TEXTY[] = {"", "12,5", "-3", "x", "0", "999999", ".5", "180"};

}  // namespace

// ---- Back ------------------------------------------------------------------------------------

int Vracejici::Faze() const {
    const Dialog& d = Hrany();
    if (const auto* kroky = dynamic_cast<const DialogKroku*>(&d)) return kroky->Stav().Faze;
    return dynamic_cast<const TecnyDialog&>(d).Stav().Faze;
}

bool Vracejici::MuzeZpet() const {
    return Hrany().UkazPanel().Nastroje[NASTROJ_ZPET - 1].Zivy();
}

void Vracejici::NovyPriklad(int poradi) {
    ukony_.clear();
    zacatky_.clear();
    posunuto_ = {};
    prilezitost_ = 0;
    poradi_ = poradi % KAZDY;
}

void Vracejici::Posun(int dx, int dy) {
    posunuto_ = {posunuto_.X + dx, posunuto_.Y + dy};
    RukaNaDesce::Posun(dx, dy);
}

void Vracejici::Vykonej(const Ukon& u) {
    switch (u.Co) {
        case Ukon::Druh::Nastroj:
            return RukaNaDesce::StiskNastroje(u.Cislo);
        case Ukon::Druh::Radek:
            return RukaNaDesce::StiskRadku(u.Cislo, u.Text);
        case Ukon::Druh::Text:
            return RukaNaDesce::Pis(u.Cislo, u.Text);
        case Ukon::Druh::Tah:
            return RukaNaDesce::TahPoPlose(u.Od, u.Kam);
    }
}

void Vracejici::Proved(Ukon u) {
    Pred(u);
    zacatky_.try_emplace(Faze(), ukony_.size());
    ukony_.push_back(u);
    if (u.Co == Ukon::Druh::Nastroj) nastroj_ = u.Cislo;
    Vykonej(u);
    souhrn_.NejvyssiFaze = std::max(souhrn_.NejvyssiFaze, Faze());
    if (MuzeZpet() && prilezitost_++ % KAZDY == poradi_) VratSe();
}

void Vracejici::StiskNastroje(int i) {
    if (i != NASTROJ_ZPET) return Proved({Ukon::Druh::Nastroj, i, {}, {}, {}});
    RukaNaDesce::StiskNastroje(i);
    Zapomen();
}

void Vracejici::StiskRadku(int i, std::string_view text) {
    Proved({Ukon::Druh::Radek, i, std::string(text), {}, {}});
}

void Vracejici::Pis(int ktery, const std::string& text) {
    Proved({Ukon::Druh::Text, ktery, text, {}, {}});
}

void Vracejici::TahPoPlose(Bod odkud, Bod kam) {
    Proved({Ukon::Druh::Tah, 0, {}, odkud, kam});
}

/// What was taken back will be done in another way.
void Vracejici::Zapomen() {
    const auto ted = zacatky_.find(Faze());
    if (ted == zacatky_.end()) return;
    ukony_.resize(ted->second);
    zacatky_.erase(ted, zacatky_.end());
}

/// Presses arrows, within what they can; gives how far the figure went.
Bod Vracejici::Sipky() {
    Bod kam{};
    for (int i = los_.Mezi(1, 4); i > 0; --i) {
        const int ktera = los_.Cislo(4);
        const Bod smer = SMERY[static_cast<std::size_t>(ktera)];
        const Bod celkem{posunuto_.X + kam.X + smer.X, posunuto_.Y + kam.Y + smer.Y};
        if (std::max(std::abs(celkem.X), std::abs(celkem.Y)) > MEZ_POSUNU) continue;
        ++souhrn_.Sipek[static_cast<std::size_t>(ktera)];
        RukaNaDesce::Posun(smer.X, smer.Y);
        kam = {kam.X + smer.X, kam.Y + smer.Y};
    }
    return kam;
}

void Vracejici::VratSe() {
    // What is drawn first stands where it stood at the beginning, however far it was shifted.
    const auto naZacatek = [this] { return posunuto_ != Bod{} && Faze() == 2; };
    if (naZacatek()) return;
    // An open list may lie over an arrow.
    const bool sipky = !Hrany().UkazPanel().Vyber.Otevreny && los_.Cislo(KAZDY) == 0;
    const Bod posunuto = sipky ? Sipky() : Bod{};
    do {
        ++souhrn_.ZpetZFaze[Faze()];
        ++souhrn_.ZpetPo[nastroj_];
        RukaNaDesce::StiskNastroje(NASTROJ_ZPET);
    } while (MuzeZpet() && !naZacatek() && los_.Cislo(KAZDY) == 0);
    RukaNaDesce::Posun(-posunuto.X, -posunuto.Y);
    const auto od = zacatky_.find(Faze());
    if (od == zacatky_.end()) return;
    for (std::size_t i = od->second; i < ukony_.size(); ++i) Vykonej(ukony_[i]);
}

// ---- Carelessness ----------------------------------------------------------------------------

std::vector<hrac::Zadano> Nedbala::Zadani() const {
    auto zadani = RukaNaDesce::Zadani();
    // Between two examples, which a press in the middle of a wait can begin.
    if (zadani.size() < 3) throw NejdeUdelat("není zadáno");
    return zadani;
}

Bod Nedbala::Nekde() {
    const int x = los_.Cislo(SIRKA_PLOCHY);
    return {x, los_.Cislo(VYSKA_PLOCHY)};
}

std::vector<int> Nedbala::ZiveNastroje() const {
    std::vector<int> zive;
    const MistaNastroju nastroje = Hrany().UkazPanel().Nastroje;
    for (int i = 1; i <= static_cast<int>(nastroje.size()); ++i) {
        if (i != NASTROJ_ZPET && nastroje[static_cast<std::size_t>(i - 1)].Zivy())
            zive.push_back(i);
    }
    return zive;
}

std::vector<int> Nedbala::ZiveRadky() const {
    std::vector<int> zive;
    const Seznam seznam = Hrany().UkazPanel().Vyber;
    for (std::size_t i = 0; seznam.Otevreny && i < seznam.Radky.size(); ++i) {
        if (seznam.Radky[i].Videt && seznam.Radky[i].Ziva) zive.push_back(static_cast<int>(i) + 1);
    }
    return zive;
}

std::string Nedbala::TextRadku(int i) const {
    return Hrany().UkazPanel().Vyber.Radky[static_cast<std::size_t>(i - 1)].Text;
}

/// Plans a press for the middle of what is done next.
void Nedbala::Uprostred() {
    static constexpr std::pair<const char*, int> CILE[] = {
        {"PicTop", 1},   {"PicTop", 2},   {"PicTop", 3},      {"PicTop", 4},     {"cmd", 1},
        {"cmd", 2},      {"cmd", 5},      {"cmd", 5},         {"ComboLabel", 1}, {"ComboLabel", 3},
        {"picSipka", 1}, {"picSipka", 4}, {"picPokracuj", 0}, {"Image1", 0},     {"INadpis", 0}};
    const auto cil = Jeden(CILE);
    Hra().Host().NaplanujZa(static_cast<std::uint32_t>(los_.Mezi(1, 150)), [this, cil] {
        try {
            Hra().Stiskni(cil.first, cil.second);
        } catch (const NejdeUdelat&) {
            // It is hidden, or another screen is in front.
        }
    });
}

bool Nedbala::StiskNacrtu(Bod misto) {
    if (Jednou(8)) return true;
    if (Jednou(8)) (void)RukaNaDesce::StiskNacrtu({los_.Cislo(280), los_.Cislo(170)});
    return RukaNaDesce::StiskNacrtu(misto);
}

void Nedbala::Pred(Ukon& u) {
    if (--trpelivost_ <= 0) throw NejdeUdelat("nechce se");
    if (Jednou(30)) Uprostred();
    switch (u.Co) {
        case Ukon::Druh::Nastroj:
            if (!Jednou(14)) return;
            if (const auto zive = ZiveNastroje(); !zive.empty())
                RukaNaDesce::StiskNastroje(Jeden(zive));
            return;
        case Ukon::Druh::Radek:
            if (!Jednou(8)) return;
            if (const auto zive = ZiveRadky(); !zive.empty()) {
                u.Cislo = Jeden(zive);
                u.Text = TextRadku(u.Cislo);
            }
            return;
        case Ukon::Druh::Text:
            if (Jednou(6)) u.Text = los_.Ano() ? std::to_string(los_.Mezi(1, 30)) : "";
            if (Jednou(20)) u.Text = Jeden(TEXTY);
            return;
        case Ukon::Druh::Tah:
            if (Jednou(14)) u.Od = los_.Vedle(u.Od, 30);
            if (Jednou(8)) u.Kam = los_.Vedle(u.Kam, Jednou(2) ? 4 : 60);
            if (Jednou(20)) u.Kam = u.Od;
            return;
    }
}

void Nedbala::Neco() {
    const auto radky = ZiveRadky();
    const auto nastroje = ZiveNastroje();
    const int co = los_.Cislo(10);
    if (!radky.empty() && co < 8) {
        const int i = Jeden(radky);
        RukaNaDesce::StiskRadku(i, TextRadku(i));
    } else if (!nastroje.empty() && co < 7) {
        RukaNaDesce::StiskNastroje(Jeden(nastroje));
    } else if (co < 2) {
        Hra().Napis(std::to_string(los_.Cislo(40)));
    } else if (co < 7) {
        RukaNaDesce::TahPoPlose(Nekde(), Nekde());
    } else if (co == 7 && MuzeZpet()) {
        RukaNaDesce::StiskNastroje(NASTROJ_ZPET);
    } else if (co == 8) {
        Hra().Stiskni("picSipka", los_.Mezi(1, 4));
    } else {
        (void)RukaNaDesce::StiskNacrtu({los_.Cislo(280), los_.Cislo(170)});
    }
}

}  // namespace rysovna::sit
