#include "engine/Tabulky.h"

#include <cstdint>
#include <limits>

#include "base/Chyba.h"
#include "base/Cisla.h"

namespace rysovna {

namespace {

/// Adds to a coordinate; one that runs over is a fault.
void Pricti(int& souradnice, int o) {
    const std::int64_t soucet = std::int64_t{souradnice} + o;
    if (soucet < std::numeric_limits<int>::min() || soucet > std::numeric_limits<int>::max()) {
        Selhani("Přetečení čísla");
    }
    souradnice = static_cast<int>(soucet);
}

}  // namespace

void Tabulky::PripravUtvar(std::string_view jmeno1, std::string_view jmeno2) {
    const int n = PocetUtvaru + 1;
    SmazRadekUtvaru(n);
    SmazRadekTrojic(PocetTrojic + 1);
    Utvary[n].Jmeno1 = jmeno1;
    Utvary[n].Jmeno2 = jmeno2;
}

int Tabulky::NovyUtvar(std::string_view jmeno1, std::string_view jmeno2) {
    PripravUtvar(jmeno1, jmeno2);
    return ++PocetUtvaru;
}

void Tabulky::SmazRadekUtvaru(Radek i) {
    Utvar& radek = Utvary[i];
    radek = Utvar{};
    radek.Popis4 = TextCisla(0);
}

void Tabulky::SmazRadekTrojic(Radek i) {
    Trojice_tab[i] = Trojice{};
}

void Posun(Utvar& u, int dx, int dy) {
    for (int* x : {&u.X1, &u.X2, &u.X3, &u.X4}) Pricti(*x, dx);
    for (int* y : {&u.Y1, &u.Y2, &u.Y3, &u.Y4}) Pricti(*y, dy);
}

void Posun(Trojice& t, int dx, int dy) {
    for (int* x : {&t.X1, &t.X2, &t.X3}) Pricti(*x, dx);
    for (int* y : {&t.Y1, &t.Y2, &t.Y3}) Pricti(*y, dy);
}

}  // namespace rysovna
