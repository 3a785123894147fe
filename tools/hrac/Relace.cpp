#include "hrac/Relace.h"

#include <fstream>
#include <iterator>
#include <random>

#include "base/Cisla.h"
#include "base/Disk.h"
#include "base/Text.h"
#include "platform/Obrazovky.h"
#include "rules/Ulohy.h"
#include "screens/Start.h"
#include "store/JmenaSouboru.h"

namespace rysovna::hrac {
namespace {

namespace fs = std::filesystem;

const fs::path STAGING = CestaZTextu(RYSOVNA_STAGING);

/// A folder that no other run, of this process or another, has.
fs::path NovaSlozka() {
    std::random_device nahoda;
    for (int i = 0; i < 100; ++i) {
        fs::path nova = fs::temp_directory_path() / ("rysovna_" + std::to_string(nahoda()));
        if (fs::create_directory(nova)) return nova;
    }
    throw NejdeUdelat("nelze založit " + fs::temp_directory_path().string());
}

[[noreturn]] void Nejde(const std::string& co, std::string_view jmeno, int index) {
    throw NejdeUdelat(co + ": " + std::string(jmeno) + "(" + std::to_string(index) + ")");
}

}  // namespace

Relace::Relace(std::uint32_t seminko, Cim cim, VyrobceDesek vyrobce)
    : sezeni_(host_, std::move(vyrobce)),
      cim_(cim),
      los_(seminko),
      koren_(NovaSlozka()),
      data_(koren_ / "data") {
    fs::copy(STAGING / "data", data_, fs::copy_options::recursive);
    // The staged copy may have been played with: a run begins with no results.
    for (const std::string& jmeno : JmenaVysledku()) fs::resize_file(data_ / jmeno, 0);
    host_.SlozkaSystemu = koren_.string();
    host_.SeminkoHry = seminko;
    std::ofstream ini(koren_ / JMENO_INI, std::ios::binary);
    ini << "[RYSOVNA1]\r\nCD=" << (STAGING / "assets").string() << "\r\nHD=" << data_.string()
        << "\r\n";
    ini.close();
}

Relace::~Relace() {
    host_.Okna().UnloadVse();
    std::error_code nevadi;
    fs::remove_all(koren_, nevadi);
}

void Relace::StartDoTitulu() {
    Zacni(sezeni_);
    host_.Dobehni();
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

Form* Relace::Vpredu() {
    return host_.Okna().Vpredu().get();
}

std::string Relace::JmenoVpredu() {
    const Form* form = Vpredu();
    return form == nullptr ? std::string() : std::string(form->Jmeno());
}

Form* Relace::Najdi(std::string_view form) {
    return host_.Okna().Najdi(form).get();
}

Ovladac& Relace::Prvek(std::string_view jmeno, int index) {
    Form* form = Vpredu();
    Ovladac* prvek = form == nullptr ? nullptr : form->Najdi(jmeno, index);
    if (prvek == nullptr) Nejde("na obrazovce " + JmenoVpredu() + " není", jmeno, index);
    return *prvek;
}

Bod Relace::Roh(const Ovladac& prvek) {
    const Form* form = Vpredu();
    Bod roh = form->Maximised ? Bod{} : Bod{form->Left, form->Top};
    for (const Ovladac* o = &prvek; o != nullptr; o = o->Rodic) {
        if (!o->Visible) Nejde("není vidět", prvek.Name, prvek.Index);
        roh.X += o->Left;
        roh.Y += o->Top;
    }
    return roh;
}

void Relace::Zapis(const std::string& udalost) {
    if (zaznam_ == nullptr) return;
    const std::uint32_t ted = host_.TickCount();
    if (ted > zapsano_) *zaznam_ << "cekej " << ted - zapsano_ << '\n';
    zapsano_ = ted;
    *zaznam_ << udalost << '\n';
}

void Relace::Pohyb(double x, double y, int tlacitka) {
    const std::string co =
        "mys " + std::to_string(Zaokrouhli(x)) + " " + std::to_string(Zaokrouhli(y));
    Zapis(co);
    host_.Okna().MysPohyb(x, y, tlacitka, 0);
    Po(co);
}

void Relace::Stisk(double x, double y, bool dolu) {
    const std::string co = dolu ? "dolu" : "nahoru";
    Zapis(co);
    if (dolu) {
        host_.Okna().MysDolu(x, y, LEVE, 0);
    } else {
        host_.Okna().MysNahoru(x, y, LEVE, 0);
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
        host_.Okna().Text(pismeno);
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
    host_.Okna().Klavesa(klavesa, shift);
    Po(co);
}

void Relace::Cekej(std::uint32_t ms) {
    host_.Cekej(ms);
    Po("cekej " + std::to_string(ms));
}

std::string Relace::CtiSoubor(const std::string& soubor) const {
    std::ifstream vstup(data_ / soubor, std::ios::binary);
    if (!vstup) throw NejdeUdelat("nelze číst " + soubor);
    return {std::istreambuf_iterator<char>(vstup), {}};
}

void Relace::PisSoubor(const std::string& soubor, std::string_view obsah) const {
    std::ofstream(data_ / soubor, std::ios::binary | std::ios::trunc) << obsah;
}

std::vector<std::string> Relace::NoveZvuky() {
    std::vector<std::string> nove;
    for (; slysenych_ < host_.Zvuky.size(); ++slysenych_) {
        const std::string& cesta = host_.Zvuky[slysenych_].Cesta;
        nove.push_back(cesta.substr(cesta.find_last_of('\\') + 1));
    }
    return nove;
}

}  // namespace rysovna::hrac
