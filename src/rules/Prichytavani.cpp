#include "rules/Prichytavani.h"

#include <array>
#include <cmath>

#include "base/Cisla.h"
#include "engine/Miry.h"

namespace rysovna {

namespace {

struct Cil {
    Bod Misto;
    const std::string* Jmeno;
};

/// The targets of a record in the order in which they are tried. The first point is one unless the
/// record says otherwise: every object has it.
std::array<Cil, 3> Cile(const Trojice& t) {
    return {Cil{{t.X1, t.Y1}, &t.Jmeno1}, Cil{{t.X2, t.Y2}, &t.Jmeno2},
            Cil{{t.X3, t.Y3}, &t.Jmeno3}};
}

bool JeCilem(const Trojice& t, const Cil& cil, std::size_t poradi, bool tretiBody) {
    if (poradi == 0) return !t.PrvniNechyta;
    if (poradi == 2 && !tretiBody) return false;
    return !cil.Jmeno->empty();
}

/// Goes through the snap records but one; vezmi(point) says whether a hit replaces what is kept.
template <class F>
Zachyt Projdi(const Tabulky& t, float x, float y, bool tretiBody, int kromeRadku, F vezmi) {
    Zachyt zachyt{false, {Zaokrouhli(x), Zaokrouhli(y)}};
    for (int i = 1; i <= t.PocetTrojic; ++i) {
        if (i == kromeRadku) continue;
        const auto cile = Cile(t.Trojice_tab[i]);
        for (std::size_t j = 0; j < cile.size(); ++j) {
            if (!JeCilem(t.Trojice_tab[i], cile[j], j, tretiBody) || !Zasah(x, y, cile[j].Misto))
                continue;
            if (!zachyt.Je || vezmi(zachyt.Misto, cile[j].Misto)) zachyt = {true, cile[j].Misto};
            break;
        }
    }
    return zachyt;
}

}  // namespace

bool Zasah(float x, float y, Bod bod) {
    const auto X = static_cast<float>(bod.X);
    const auto Y = static_cast<float>(bod.Y);
    constexpr auto D = static_cast<float>(DOSAH_CHYTANI);
    return x > X - D && x < X + D && y > Y - D && y < Y + D;
}

Zachyt ZachytPosledni(const Tabulky& t, float x, float y, bool tretiBody, int kromeRadku) {
    return Projdi(t, x, y, tretiBody, kromeRadku, [](Bod, Bod) { return true; });
}

Zachyt ZachytNejblizsi(const Tabulky& t, float x, float y, bool tretiBody) {
    return Projdi(t, x, y, tretiBody, 0, [x, y](Bod stary, Bod novy) {
        const auto dal = [](float p, int a) { return std::fabs(p - static_cast<float>(a)); };
        return dal(x, novy.X) < dal(x, stary.X) && dal(y, novy.Y) < dal(y, stary.Y);
    });
}

bool BodMaJmeno(const Tabulky& t, Bod bod, std::string_view jmeno) {
    for (int i = 1; i <= t.PocetTrojic; ++i) {
        for (const Cil& cil : Cile(t.Trojice_tab[i])) {
            if (cil.Misto == bod && *cil.Jmeno == jmeno) return true;
        }
    }
    return false;
}

bool ZacinaVBode(const Tabulky& t, Bod start, std::string_view jmeno) {
    for (int i = 1; i <= t.PocetUtvaru; ++i) {
        const Utvar& u = t.Utvary[i];
        if (u.Jmeno1 == jmeno && Bod{u.X1, u.Y1} == start) return true;
        if (u.Jmeno2 == jmeno && Bod{u.X2, u.Y2} == start) return true;
    }
    return false;
}

}  // namespace rysovna
