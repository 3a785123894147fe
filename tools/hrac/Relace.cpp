#include "hrac/Relace.h"

#include <utility>

#include "base/Cisla.h"
#include "base/Text.h"
#include "platform/Obrazovky.h"
#include "rules/Ulohy.h"
#include "screens/Start.h"

namespace rysovna::hrac {

Relace::Relace(std::uint32_t seminko, Cim cim, VyrobceDesek vyrobce)
    : Beh(seminko, std::move(vyrobce)), cim_(cim), los_(seminko) {}

void Relace::StartDoTitulu() {
    Zacni(Pamet());
    Host().Dobehni();
}

void Relace::PreskocTitul() {
    if (cim_ == Cim::Klavesami) {
        Klavesa("Space");
    } else {
        StiskniMisto(320, 240);
    }
    Cekej(1200);
}

void Relace::Start() {
    StartDoTitulu();
    PreskocTitul();
    if (JmenoVpredu() != "SelectForm") {
        throw NejdeUdelat("po titulu je vpředu " + JmenoVpredu());
    }
}

void Relace::SpustUlohu(int cisloUlohy, std::string_view jmeno, int priklady) {
    const Uloha* uloha = NajdiUlohu(cisloUlohy);
    if (uloha == nullptr) throw NejdeUdelat("není taková úloha: " + std::to_string(cisloUlohy));
    Stiskni("LI", static_cast<int>(uloha->Rodina) + 1);
    Stiskni("RI", static_cast<int>(uloha - UlohyRodiny(uloha->Rodina).data()) + 1);
    Napis(jmeno);
    Stiskni("ICislo", priklady);
    Cekej(600);
    Stiskni("picPokracuj");
    Cekej(200);
}

void Relace::Zapis(const std::string& udalost) {
    if (zaznam_ == nullptr) return;
    const std::uint32_t ted = Host().TickCount();
    if (ted > zapsano_) *zaznam_ << "cekej " << ted - zapsano_ << '\n';
    zapsano_ = ted;
    *zaznam_ << udalost << '\n';
}

void Relace::Pohyb(double x, double y, int tlacitka) {
    const std::string co =
        "mys " + std::to_string(Zaokrouhli(x)) + " " + std::to_string(Zaokrouhli(y));
    Zapis(co);
    Host().Okna().MysPohyb(x, y, tlacitka, 0);
    Po(co);
}

void Relace::Stisk(double x, double y, bool dolu) {
    const std::string co = dolu ? "dolu" : "nahoru";
    Zapis(co);
    if (dolu) {
        Host().Okna().MysDolu(x, y, LEVE, 0);
    } else {
        Host().Okna().MysNahoru(x, y, LEVE, 0);
    }
    Po(co);
}

void Relace::StiskniMisto(double x, double y) {
    if (cim_ == Cim::Prstem) return Klepni({Zaokrouhli(x), Zaokrouhli(y)});
    Pohyb(x, y, 0);
    Stisk(x, y, true);
    Stisk(x, y, false);
}

void Relace::Stiskni(std::string_view jmeno, int index, int dx, int dy) {
    if (cim_ == Cim::Klavesami) return StiskniKlavesami(jmeno, index, dx, dy);
    if (cim_ == Cim::Prstem) Rozmysli();
    const Ovladac& prvek = Prvek(jmeno, index);
    const Bod roh = Roh(prvek);
    const int x = dx < 0 ? prvek.Width / 2 : dx;
    const int y = dy < 0 ? prvek.Height / 2 : dy;
    StiskniMisto(roh.X + x, roh.Y + y);
}

void Relace::Zmackni(std::string_view jmeno, int index, Bod misto) {
    const Bod roh = Roh(Prvek(jmeno, index));
    Pohyb(roh.X + misto.X, roh.Y + misto.Y, 0);
    Stisk(roh.X + misto.X, roh.Y + misto.Y, true);
}

void Relace::Tahni(std::string_view jmeno, Bod odkud, Bod kam, int index) {
    constexpr int KROKU = 4;
    if (cim_ == Cim::Klavesami) return TahniKlavesami(jmeno, odkud, kam);
    if (cim_ == Cim::Prstem && jmeno == "Pic") return TahniPrstem(odkud, kam);
    const Bod roh = Roh(Prvek(jmeno, index));
    Zmackni(jmeno, index, odkud);
    for (int i = 1; i <= KROKU; ++i) {
        const int dx = (kam.X - odkud.X) * i / KROKU;
        const int dy = (kam.Y - odkud.Y) * i / KROKU;
        Pohyb(roh.X + odkud.X + dx, roh.Y + odkud.Y + dy, LEVE);
    }
    Stisk(roh.X + kam.X, roh.Y + kam.Y, false);
}

void Relace::Najed(std::string_view jmeno, int index) {
    const Ovladac& prvek = Prvek(jmeno, index);
    const Bod roh = Roh(prvek);
    const Bod stred{prvek.Width / 2, prvek.Height / 2};
    NajedNaMisto(roh.X + stred.X, roh.Y + stred.Y);
}

void Relace::NajedNaMisto(double x, double y) {
    Pohyb(x, y, 0);
}

void Relace::Napis(std::string_view text) {
    for (const char32_t znak : DoZnaku(text)) {
        const std::string pismeno = ZeZnaku({&znak, 1});
        Zapis("text " + pismeno);
        Host().Okna().Text(pismeno);
        Po("text " + pismeno);
    }
}

void Relace::Prepis(std::string_view jmeno, std::string_view text) {
    if (cim_ == Cim::Klavesami) {
        NaZastavku(jmeno);
    } else {
        Stiskni(jmeno);
        Klavesa("a", CTRL);
    }
    Klavesa("Delete");
    Napis(text);
}

void Relace::Klavesa(std::string_view klavesa, int shift) {
    const std::string co = "klavesa " + std::string(klavesa) + " " + std::to_string(shift);
    Zapis(co);
    Host().Okna().Klavesa(klavesa, shift);
    Po(co);
}

void Relace::Cekej(std::uint32_t ms) {
    Host().Cekej(ms);
    Po("cekej " + std::to_string(ms));
}

}  // namespace rysovna::hrac
