#include "podpora/Rysovac.h"

#include <algorithm>
#include <cctype>
#include <sstream>

#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "zak/Rysovani.h"

namespace rysovna::testy {
namespace {

constexpr int NA_CM = 8;  // px

/// A kind of example: its data line, and a construction without a fault.
struct Druh {
    std::string_view Radek, Vse;
};
constexpr Druh DRUHY[] = {{"1##a#b#c#cm#cm#cm#usecka#kruznice#kruznice", "AB kA kB"},
                          {"2##alfa#b#c#°#cm#cm#usecka#poloprimka#kruznice", "AB pA kA"},
                          {"3##a#beta#c#cm#°#cm#usecka#poloprimka#kruznice", "AB pB kB"},
                          {"4##a#b#gama#cm#cm#°#usecka#poloprimka#kruznice", "AC pC kC"},
                          {"5##a#beta#gama#cm#°#°#usecka#poloprimka#poloprimka", "BC pB pC"},
                          {"6##alfa#b#gama#°#cm#°#usecka#poloprimka#poloprimka", "AC pA pC"},
                          {"7##alfa#beta#c#°#°#cm#usecka#poloprimka#poloprimka", "AB pA pB"}};

constexpr std::string_view UHLY[] = {"alfa", "beta", "gama"};  // at A, B, C

/// The side opposite a vertex.
std::string Proti(char vrchol) {
    return {static_cast<char>(vrchol - 'A' + 'a')};
}

}  // namespace

Rysovac::Rysovac(int uloha, int druh, int priklady) : druh_(druh) {
    const std::string radek(DRUHY[druh - 1].Radek);
    Hra.PisSoubor("0" + std::to_string(uloha) + ".dat", ZakodujRadek(Do1250(radek)) + "\r\n");
    Hra.Start();
    Hra.SpustUlohu(uloha, "Žák", priklady);
}

int Rysovac::Hodnota(std::string_view velicina) {
    if (Kdo.JeZadano(velicina)) return Kdo.Hodnota(velicina);
    return velicina.size() == 1 ? 15 : 50;
}

std::string Rysovac::Psane(int hodnota) const {
    if (Ma('_')) return {};
    return std::to_string(hodnota + (Ma('+') ? 1 : 0)) + (Ma(',') ? ",5" : "");
}

Bod Rysovac::Start(char vrchol) const {
    constexpr int VEDLE = 12;  // px, too far to snap
    const Bod b = Konec(Ma('@') ? Jiny(vrchol) : vrchol);
    return Ma('^') ? Bod{b.X + VEDLE, b.Y + VEDLE} : b;
}

Rysovac& Rysovac::Zacni(std::string_view navic) {
    for (const Zadano& z : Kdo.Zadani()) Kdo.Oznac(z.Velicina);
    if (!navic.empty()) Kdo.Oznac(navic);
    Kdo.Stiskni("Image1");
    Hra.Cekej(30);
    return *this;
}

Rysovac& Rysovac::Rysuj(std::string_view kroky) {
    std::istringstream slova{std::string(kroky)};
    for (std::string slovo; slova >> slovo;) Krok(slovo);
    return *this;
}

void Rysovac::Krok(std::string slovo) {
    const auto konec = std::ranges::find_if_not(
        slovo, [](char z) { return std::isalpha(static_cast<unsigned char>(z)) != 0; });
    znaky_ = {konec, slovo.end()};
    slovo.erase(konec, slovo.end());
    if (slovo == "vse") {
        Rysuj(DRUHY[druh_ - 1].Vse);
    } else if (slovo == "zpet") {
        Kdo.Stiskni("cmd", 5);
    } else if (slovo == "kolmice" || slovo == "rovnobezka") {
        const bool kolmo = slovo == "kolmice";
        Kdo.Nastroj(kolmo ? 2 : 3).Vyber((kolmo ? "k úsečce " : "s úsečkou ") + jmena_);
        if (!kolmo) Kdo.Napis(7);
        Kdo.Tahni({Prvni.X + 40, Prvni.Y + 2}, {Prvni.X + 60, Prvni.Y - (Ma('^') ? 900 : 70)});
    } else if (slovo[0] == 'k') {
        Kruznice(slovo.substr(1));
    } else if (slovo[0] == 'p') {
        Paprsek(slovo.substr(1));
    } else {
        Strana(slovo);
    }
}

void Rysovac::Strana(const std::string& jmena) {
    jmena_ = jmena;
    const int cm = Hodnota(Proti(static_cast<char>('A' + 'B' + 'C' - jmena[0] - jmena[1])));
    Druhy = {Prvni.X + NA_CM * (cm + (Ma('~') ? 1 : 0)), Prvni.Y};
    Kdo.Nastroj(1).Vyber(jmena).Napis(Psane(cm)).Tahni(Prvni, Druhy);
}

void Rysovac::Paprsek(const std::string& vrchol) {
    const char v = vrchol[0];
    const int stupnu = Hodnota(UHLY[v - 'A']);
    const int uhel = stupnu + (Ma('~') ? 1 : 0);
    const Bod start = Start(v);
    const Bod rameno{start.X + Konec(Jiny(v)).X - Konec(v).X, start.Y};
    // The figure goes round to the left from A over B to C.
    const bool vlevo = (v == jmena_[0]) == (jmena_ != "AC");
    Kdo.Nastroj(1)
        .Vyber(vrchol + (Hra.Pamet().PocetUtvaru == 1 ? "X" : "Y"))
        .Napis(Psane(stupnu))
        .Tahni(start, PodUhlem(start, rameno, vlevo ? uhel : -uhel));
}

void Rysovac::Kruznice(const std::string& stred) {
    // The radius is the side opposite the other end.
    const int cm = Hodnota(Proti(Jiny(stred[0])));
    const Bod start = Start(stred[0]);
    Kdo.Nastroj(4)
        .Vyber(std::string("kružnice ") + (Hra.Pamet().PocetUtvaru == 1 ? "k" : "l") +
               ", střed v bodě " + stred)
        .Napis(Psane(cm))
        .Tahni(start, {start.X + NA_CM * (cm + (Ma('~') ? 1 : 0)), start.Y + 9});
}

DeskaForm& Rysovac::Deska() {
    return dynamic_cast<DeskaForm&>(*Hra.Najdi("Troj1Form"));
}

bool Rysovac::JePrazdno() {
    const Misc& m = Pamet();
    return m.PocetUtvaru + m.PocetTrojic + m.SoucetZapornychBodu + m.PocetChybnychKroku == 0;
}

Rysovac& Rysovac::Zkontroluj() {
    Kdo.Stiskni("PicTop", 1);
    Hra.Cekej(500);
    return *this;
}

}  // namespace rysovna::testy
