#include "podpora/Bezstarostny.h"

#include <algorithm>
#include <regex>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "engine/Tabulky.h"
#include "hrac/RukaNaDesce.h"
#include "platform/Klavesnice.h"
#include "platform/Obrazovky.h"
#include "podpora/NaObrazovce.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "screens/TabulkaForm.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {

using namespace hrac;

namespace {

constexpr int USEK = 500;  // events between two looks at the files
constexpr std::size_t DELKA_STOPY = 40;
constexpr int NEJVIC_NAPLANOVANYCH = 5;
constexpr std::uint32_t NEJDELSI_UDALOST = 120'000;  // ms of the virtual clock
constexpr int KDY_SESTROJI = 1000;                   // one event of so many
constexpr int DOST_CHYB = 80;  // wrong steps of one example, of the hundred there is room for

/// How gladly a live control is pressed; those not named have VAHA_OSTATNICH.
struct VahaPrvku {
    std::string_view Jmeno;
    int Vaha;
};
constexpr int VAHA_OSTATNICH = 4;
constexpr int VAHA_UTEKU = 10'000;
constexpr int VAHA_KONTROLY = 60;  // once the figure is closed
constexpr VahaPrvku VAHY[] = {
    {"ComboLabel", 60},  {"picPokracuj", 60}, {"Pic", 40},   {"cmd", 14},     {"SamplePic", 8},
    {"ImgHodnoceni", 8}, {"Combo", 2},        {"PicTop", 1}, {"picKonec", 6}, {"INadpis", 1},
    {"Image1", 1},       {"MalaSipka", 1},    {"RI", 20},    {"ICislo", 12}};

constexpr std::string_view TEXTY[] = {"Žofie", "12,5", "-3", "  ",  "řeřicha", "999999999999",
                                      "1e5",   ".5",   "x",  "0",   "Ω",       "18",
                                      "180",   "25",   "#",  "\"'", "60",      "a|b"};
constexpr std::string_view KLAVESY[] = {"Return", "Escape", "BackSpace", "Delete", "Left", "Right",
                                        "Home",   "End",    "Tab",       "Space",  "Up",   "Down",
                                        "a",      "c",      "v",         "x"};
/// Of one who plays by them: what moves the ring and the cross, and presses.
constexpr std::string_view HRACI[] = {"Tab", "Tab",  "Space", "Space",  "Return", "Left", "Right",
                                      "Up",  "Down", "a",     "b",      "c",      "s",    "1",
                                      "2",   "3",    "6",     "Escape", "F1"};

bool JeZivy(const Ovladac& o) {
    using enum Ovladac::Typ;
    constexpr Ovladac::Typ TISKNOU_SE[] = {PictureBox, Image, Label, TextBox};
    return Zije(o) && std::ranges::find(TISKNOU_SE, o.Druh) != std::end(TISKNOU_SE);
}

/// Whether the board in front has a closed figure that is not checked yet: the plane is off.
bool JeUzavreno(Form* vpredu) {
    const auto* pic = vpredu == nullptr ? nullptr : vpredu->Najdi("Pic");
    const auto* nacrt = vpredu == nullptr ? nullptr : vpredu->Najdi("SamplePic");
    return pic != nullptr && nacrt != nullptr && !pic->Enabled && nacrt->Enabled;
}

int Vaha(const Misc& misc, const Ovladac& o, bool uzavreno) {
    if (!JeZivy(o)) return 0;
    if (uzavreno && o.Name == "PicTop" && o.Index == 1) return VAHA_KONTROLY;
    const auto* v = std::ranges::find(VAHY, o.Name, &VahaPrvku::Jmeno);
    if (v == std::end(VAHY)) return o.Druh == Ovladac::Typ::Label ? 1 : VAHA_OSTATNICH;
    const bool zpet = o.Index == 4 && o.Name == "PicTop";
    if (zpet) return misc.PocetChybnychKroku > DOST_CHYB ? VAHA_UTEKU : 1;
    return v->Vaha;
}

[[noreturn]] void Vadne(const std::string& co) {
    throw std::runtime_error(co);
}

/// Lines without their ends; throws where a line does not end with CR LF.
std::vector<std::string> Radky(const std::string& obsah, const std::string& soubor) {
    std::vector<std::string> radky;
    for (std::size_t od = 0, konec = 0; od < obsah.size(); od = konec + 2) {
        konec = obsah.find("\r\n", od);
        if (konec == std::string::npos) Vadne(soubor + ": nedopsaný řádek");
        radky.push_back(obsah.substr(od, konec - od));
    }
    return radky;
}

/// "name|won|lost|grade", points by tens, a grade of 1 to 5.
bool JeZaznam(const std::string& radek) {
    static const std::regex TVAR(R"([^|]+\|(\d\d?)\|(\d\d?)\|[1-5])");
    std::smatch pole;
    if (!std::regex_match(radek, pole, TVAR)) return false;
    const int celkem = std::stoi(pole[1]) + std::stoi(pole[2]);
    return celkem >= 10 && celkem <= 50 && celkem % 10 == 0;
}

}  // namespace

void Bezstarostny::Zapamatuj(const std::string& co, Bod kde) {
    stopa_.push_back(relace_->JmenoVpredu() + ": " + co + " " + std::to_string(kde.X) + "," +
                     std::to_string(kde.Y));
    if (stopa_.size() > DELKA_STOPY) stopa_.pop_front();
}

void Bezstarostny::ZacniRelaci() {
    relace_.reset();
    relace_ = std::make_unique<Relace>(static_cast<std::uint32_t>(nahoda_()), cim_);
    planovano_ = konce_ = 0;
    zaznamy_.clear();
    HeadlessHost& host = relace_->Host();
    host.Cas = {2026, 1 + Cislo(12), 1 + Cislo(28), Cislo(24), Cislo(60)};
    host.SkutecneZpravy = Jednou(3);
    if (host.SkutecneZpravy) HlidejZpravy();
    ++souhrn_.Relaci;
    relace_->StartDoTitulu();
}

/// A message box that nothing else answers is closed after a while.
void Bezstarostny::HlidejZpravy() {
    relace_->Host().NaplanujZa(3000, [this] {
        HlidejZpravy();
        if (relace_->Host().Okna().JeModalni()) relace_->Klavesa("Escape");
    });
}

void Bezstarostny::Hraj(int udalosti) {
    try {
        for (int i = 1; i <= udalosti; ++i) {
            Krok();
            if (i % USEK != 0 && i != udalosti) continue;
            ZkontrolujStav();
            ZkontrolujSoubory();
            relace_->Host().Zvuky.clear();
            relace_->Host().Zpravy.clear();
        }
    } catch (const std::exception& chyba) {
        std::string zprava = chyba.what();
        zprava += "\nevent " + std::to_string(souhrn_.Udalosti) + ", the last ones:";
        for (const std::string& s : stopa_) zprava += "\n  " + s;
        Vadne(zprava);
    }
}

void Bezstarostny::Krok() {
    ++souhrn_.Udalosti;
    HeadlessHost& host = relace_->Host();
    if (Jednou(300)) host.PridejOdpoved(Odpoved::Ano);
    if (Jednou(6) && planovano_ < NEJVIC_NAPLANOVANYCH) {
        ++planovano_;
        host.NaplanujZa(static_cast<std::uint32_t>(1 + Cislo(400)), [this] {
            --planovano_;
            Udalost();
        });
    }
    if (Jednou(KDY_SESTROJI)) Sestroj();
    const std::uint32_t zacatek = host.TickCount();
    Udalost();
    if (host.Okna().JeKonec()) {
        ZkontrolujSoubory();
        ZacniRelaci();
    } else if (host.TickCount() - zacatek > NEJDELSI_UDALOST) {
        Vadne("nekonečné čekání");
    }
}

/// By chance alone hardly any construction gets to its end: now and then it begins a new example
/// and finishes it, as far as what else goes on lets it.
void Bezstarostny::Sestroj() {
    const auto* deska = dynamic_cast<const DeskaForm*>(relace_->Vpredu());
    if (deska == nullptr) return;
    Zapamatuj("constructs", {});
    try {
        relace_->Stiskni("PicTop", 2);
        relace_->Cekej(1600);
        RukaNaDesce ruka(*relace_);
        if (relace_->Vpredu() == deska) hrac::Sestroj(ruka, static_cast<std::uint32_t>(nahoda_()));
    } catch (const NejdeUdelat&) {
        // Another event came in between.
    }
}

void Bezstarostny::Udalost() {
    Obrazovky& okna = relace_->Host().Okna();
    const int los = okna.Vpredu() == nullptr ? 0 : Cislo(100);
    if (los < 8) {
        Cekej();
    } else if (los < 84) {
        if (cim_ == Cim::Klavesami && !Jednou(10)) {
            Klavesami();
        } else {
            Mys();
        }
    } else if (los < 94) {
        Pis();
    } else if (los < 99) {
        const std::string_view klavesa = Neco(KLAVESY);
        Zapamatuj("key " + std::string(klavesa), {});
        relace_->Klavesa(klavesa, Cislo(3));
    } else if (Jednou(4)) {
        okna.ZadostOZavreni();
    } else {
        okna.Navrat();
    }
    Sleduj();
}

void Bezstarostny::Cekej() {
    relace_->Cekej(static_cast<std::uint32_t>(Jednou(4) ? Cislo(2000) : Cislo(150)));
}

void Bezstarostny::Pis() {
    const std::string text = Jednou(5) ? std::string(Neco(TEXTY)) : std::to_string(Cislo(90));
    Zapamatuj("types " + text, {});
    relace_->Napis(text);
}

Bod Bezstarostny::Uvnitr(const Ovladac& o) {
    const Bod roh = relace_->Roh(o);
    return {roh.X + Cislo(std::max(o.Width, 1)), roh.Y + Cislo(std::max(o.Height, 1))};
}

/// A live control that it has a mind to press; null if there is none.
const Ovladac* Bezstarostny::Vyhlednuty() {
    const auto form = relace_->Host().Okna().Vpredu();
    std::vector<int> vahy;
    const bool uzavreno = JeUzavreno(form.get());
    for (const Ovladac* o : form->Ovladace()) {
        // Of the families on the menu the one that is to be played.
        const bool cizi = rodina_ != 0 && o->Name == "LI" && o->Index != rodina_;
        vahy.push_back(cizi ? 0 : Vaha(relace_->Pamet(), *o, uzavreno));
    }
    if (std::ranges::count(vahy, 0) == std::ssize(vahy)) return nullptr;
    std::discrete_distribution<std::size_t> ktery(vahy.begin(), vahy.end());
    const Ovladac* o = form->Ovladace()[ktery(nahoda_)];
    // A slide of the panel takes as long as a hundred other events.
    const bool posouva = o->Name == "Image1" || o->Name == "MalaSipka";
    return posouva && !Jednou(8) ? nullptr : o;
}

void Bezstarostny::Klavesami() {
    const Ovladac* o = Jednou(2) ? Vyhlednuty() : nullptr;
    if (o == nullptr || relace_->Host().Okna().DrziKlavesa()) {
        const std::string_view klavesa = Neco(HRACI);
        Zapamatuj("presses " + std::string(klavesa), {});
        relace_->Klavesa(klavesa, Cislo(2));
        if (klavesa == "Space" && !Jednou(20)) relace_->Host().Okna().KlavesaNahoru(klavesa);
        return;
    }
    Zapamatuj("goes to " + o->Name, {o->Index, 0});
    const bool ziva = JeZivaZastavka(*o);
    try {
        if (o->Name == "Pic") {
            const auto misto = [this] { return Bod{Cislo(SIRKA_PLOCHY), Cislo(VYSKA_PLOCHY)}; };
            relace_->Tahni("Pic", misto(), misto());
        } else if (o->Name == "SamplePic") {
            relace_->NaZastavku(o->Name);
            for (int i = Cislo(4); i > 0; --i) relace_->Klavesa("Right");
            relace_->Klavesa("Space");
        } else {
            relace_->Stiskni(o->Name, o->Index);
        }
    } catch (const NejdeUdelat&) {
        // It is no stop, or another event came in between.
        if (ziva) ++souhrn_.Nedojde;
    }
}

/// The pointer goes somewhere, mostly to a live control, and mostly presses there.
void Bezstarostny::Mys() {
    if (const auto pole = NaPodlozce()) {
        Zapamatuj("pad", *pole);
        return Klepni(*pole, *pole);
    }
    Bod kde{Cislo(720) - 40, Cislo(560) - 40};
    if (const Ovladac* o = Jednou(6) ? nullptr : Vyhlednuty()) {
        if (o->Name == "Pic" && !Jednou(6)) return Tah(*o);
        kde = Uvnitr(*o);
    }
    Zapamatuj("mouse", kde);
    if (Jednou(4)) return relace_->NajedNaMisto(kde.X, kde.Y);
    constexpr int TLACITKA[] = {LEVE, LEVE, LEVE, LEVE,  LEVE,   LEVE,
                                LEVE, LEVE, LEVE, PRAVE, STREDNI};
    Stisk(kde, Neco(TLACITKA));
    if (Jednou(20)) Stisk(kde, LEVE);  // a double click
}

void Bezstarostny::Stisk(Bod kde, int tlacitko) {
    Obrazovky& okna = relace_->Host().Okna();
    if (cim_ == Cim::Prstem && !Jednou(10)) return Klepni(kde, kde);
    if (!Jednou(4)) relace_->NajedNaMisto(kde.X, kde.Y);
    if (!Jednou(60)) okna.MysDolu(kde.X, kde.Y, tlacitko, Cislo(2));
    if (Jednou(30)) Cekej();
    // A release may get lost outside the window.
    if (!Jednou(60)) okna.MysNahoru(kde.X, kde.Y, tlacitko, 0);
}

/// A finger comes down, slides, is lifted; or its lifting gets lost, as a second finger's would.
void Bezstarostny::Klepni(Bod odkud, Bod kam) {
    Obrazovky& okna = relace_->Host().Okna();
    const auto ted = [this] { return relace_->Host().TickCount(); };
    okna.PrstDolu(odkud.X, odkud.Y, ted());
    if (odkud != kam || Jednou(6))
        okna.PrstPohyb((odkud.X + kam.X) / 2, (odkud.Y + kam.Y) / 2, ted());
    if (Jednou(30)) Cekej();
    if (odkud != kam) okna.PrstPohyb(kam.X, kam.Y, ted());
    if (!Jednou(60)) okna.PrstNahoru(kam.X + Cislo(5) - 2, kam.Y + Cislo(5) - 2, ted());
}

/// Where on the pad of a drag that is held it has a mind to tap; none if there is no pad.
std::optional<Bod> Bezstarostny::NaPodlozce() {
    for (const Obrazovky::Ohlas& o : relace_->Host().Okna().OhlasyVpredu()) {
        if (o.Co == Obrazovky::Ohlas::Druh::Podlozka && !Jednou(4))
            return Bod{o.Kde.Left + Cislo(o.Kde.Width), o.Kde.Top + Cislo(o.Kde.Height)};
    }
    return std::nullopt;
}

/// A drag on the plane, mostly from a point of the construction.
void Bezstarostny::Tah(const Ovladac& pic) {
    Obrazovky& okna = relace_->Host().Okna();
    const Bod roh = relace_->Roh(pic);
    const auto misto = [&](int doBodu) {
        if (relace_->Pamet().PocetTrojic == 0 || Cislo(10) >= doBodu) return Uvnitr(pic);
        const Trojice& t = relace_->Pamet().Trojice_tab[1 + Cislo(relace_->Pamet().PocetTrojic)];
        const Bod b = Jednou(2) ? Bod{t.X1, t.Y1} : Bod{t.X2, t.Y2};
        return Bod{roh.X + b.X + Cislo(17) - 8, roh.Y + b.Y + Cislo(17) - 8};
    };
    const Bod od = misto(7);
    Bod kam = misto(2);
    if (Jednou(12)) kam = {Cislo(1000) - 180, Cislo(800) - 160};  // out of the plane
    // Upright, level, or nowhere at all.
    if (Jednou(15)) kam.X = od.X + Cislo(3) - 1;
    if (Jednou(15)) kam.Y = od.Y + Cislo(3) - 1;
    if (Jednou(25)) kam = od;
    Zapamatuj("drag from", od);
    Zapamatuj("drag to", kam);
    if (cim_ == Cim::Prstem && !Jednou(10)) return Klepni(od, kam);
    relace_->NajedNaMisto(od.X, od.Y);
    okna.MysDolu(od.X, od.Y, LEVE, 0);
    if (!Jednou(3)) okna.MysPohyb((od.X + kam.X) / 2.0, (od.Y + kam.Y) / 2.0, LEVE, 0);
    if (Jednou(30)) Cekej();
    if (Jednou(40)) Stisk(kam, PRAVE);
    if (!Jednou(40)) okna.MysNahoru(kam.X, kam.Y, LEVE, 0);
}

/// Counts what it passes through.
void Bezstarostny::Sleduj() {
    const Obrazovky& okna = relace_->Host().Okna();
    const auto t = std::dynamic_pointer_cast<TabulkaForm>(okna.Najdi("TabulkaForm"));
    const auto kam = t ? t->Vlastnik.lock() : nullptr;
    if (kam && kam->Jmeno() == "SetupForm" && tabulka_.lock() != t) {
        tabulka_ = t;
        ++konce_;
        ++souhrn_.Serii;
    }
    const auto vpredu = okna.Vpredu();
    const auto* pic = vpredu ? vpredu->Najdi("Pic") : nullptr;
    if (pic != nullptr && deska_.lock() != vpredu) {
        deska_ = vpredu;
        ++souhrn_.Desky[relace_->Pamet().CisloUlohy];
    }
    const bool uzavreno = JeUzavreno(vpredu.get());
    if (uzavreno && !uzavreno_) ++souhrn_.Uzavreni;
    uzavreno_ = uzavreno;
    if (okna.JeKonec()) return;  // nothing is brought up to date any more
    if (const auto* deska = dynamic_cast<const DeskaForm*>(vpredu.get())) {
        if (const std::string vada = hlidac_.Zkontroluj(*deska); !vada.empty()) Vadne(vada);
    }
}

void Bezstarostny::ZkontrolujStav() {
    if (relace_->Vpredu() == nullptr) Vadne("no screen in front");
    if ((relace_->Pamet().KladneBody + relace_->Pamet().ZaporneBody) % 10 != 0)
        Vadne("points of the series are not by tens");
    int soucet = 0;
    for (int i = 1; i <= relace_->Pamet().PocetChybnychKroku; ++i)
        soucet += relace_->Pamet().ChybneKroky[i].Body;
    if (soucet != relace_->Pamet().SoucetZapornychBodu)
        Vadne("the penalty is not the sum of the wrong steps");
    if (relace_->Pamet().PocetUtvaru < 0 || relace_->Pamet().PocetTrojic < 0)
        Vadne("counters of the construction below zero");
}

void Bezstarostny::ZkontrolujSoubory() {
    int zaznamu = 0;
    for (const Uloha& u : ULOHY) {
        const std::string soubor = DveCislice(u.Cislo) + ".res";
        std::vector<std::string> radky = Radky(relace_->CtiSoubor(soubor), soubor);
        for (const std::string& r : radky) {
            if (!JeZaznam(r)) Vadne(soubor + ": vadný záznam " + r);
        }
        std::ranges::sort(radky);
        if (!std::ranges::includes(radky, zaznamy_[soubor])) Vadne(soubor + ": ztracený záznam");
        zaznamu += static_cast<int>(radky.size());
        zaznamy_[soubor] = std::move(radky);
    }
    if (zaznamu < konce_) Vadne("konec série bez záznamu");
    // Four lines of the log for each record: name, game, number of examples, a rule.
    const auto log = Radky(relace_->CtiSoubor("Vysledky.dat"), "Vysledky.dat");
    if (static_cast<int>(log.size()) != 4 * zaznamu) Vadne("log a záznamy nesouhlasí");
    for (std::size_t i = 0; i < log.size(); ++i) {
        if (log[i].empty() || log[i][0] != "JHP="[i % 4]) Vadne("vadný řádek logu: " + log[i]);
    }
}

}  // namespace rysovna::testy
