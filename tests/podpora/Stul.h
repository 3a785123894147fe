#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Miry.h"
#include "podpora/Konstrukce.h"
#include "podpora/Prostredi.h"
#include "podpora/RukaUlohy.h"
#include "rules/KatalogChyb.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/RadkySouboru.h"
#include "zak/Ruka.h"

namespace rysovna::testy {

using namespace hrac;

/// Examples of each line of a data file that the perfect pupil plays: 20 in CI, under sanitizers,
/// which look for other faults, a few; more by the environment.
inline int Seminek() {
#if defined(__SANITIZE_ADDRESS__)
    constexpr int VYCHOZI = 4;
#else
    constexpr int VYCHOZI = 20;
#endif
    return Prostredi("RYSOVNA_SEMINEK", VYCHOZI);
}

/// A step of a table of cases: tool, line of the list, typed value, drag. A value -i is the i-th
/// given one; the drag is then as long, Kam being its direction. Tool 5 takes back, tool 0 is the
/// check.
struct Pohyb {
    int Nastroj;
    const char* Radek = "";
    int Hodnota = 1;
    Bod Od{30, 30}, Kam{46, 30};
};

/// A step dialogue D of a task, played without a screen as fast as the machine goes: the tables of
/// the session, two planes in memory, a data root of its own. Calls chain. What a pupil could not
/// do (a grey button, a line that is not offered) throws.
template <class D>
class Stul : public RukaUlohy {
public:
    explicit Stul(int uloha) : RukaUlohy(uloha) {
        Pamet().Vety = [this, vety = Pamet().Vety](int cislo) {
            OverMisto(cislo);
            return vety(cislo);
        };
    }

    /// The task's file now holds this line alone.
    Stul& Radek(std::string_view radek) {
        relace_.PisSoubor(Soubor(), ZakodujRadek(Do1250(radek)) + "\r\n");
        NactiRadky();
        return *this;
    }
    /// Plays each line of the task's file, Seminek() new examples of each, until one fails: calls
    /// hraj with the seed.
    template <class F>
    void KazdyRadek(F&& hraj) {
        const std::vector<std::string> radky =
            CtiRadky(relace_.Host().Disk(), relace_.DataDir() / Soubor());
        for (std::size_t i = 0; i < radky.size(); ++i) {
            Radek(Z1250(DekodujRadek(radky[i]), {}));
            for (int n = 1; n <= Seminek() && !testing::Test::HasFailure(); ++n) {
                const auto seminko =
                    static_cast<std::uint32_t>(i) * 1000 + static_cast<std::uint32_t>(n);
                SCOPED_TRACE("row " + std::to_string(i + 1) + ", seed " + std::to_string(seminko));
                Zacni(seminko);
                hraj(seminko);
            }
        }
    }
    /// A new example.
    Stul& Zacni(std::uint32_t seminko = 1) {
        Pamet().Generator.Zasej(seminko);
        dialog.NovyPriklad();
        dialog.NoveZadani();
        return *this;
    }
    Stul& Proved(const std::vector<Pohyb>& pohyby) {
        for (const Pohyb& p : pohyby) {
            if (p.Nastroj == 0) {
                dialog.Zkontroluj();
                continue;
            }
            Nastroj(p.Nastroj);
            if (p.Nastroj == 5) continue;
            const bool dana = p.Hodnota < 0;
            const int h =
                dana ? dialog.Hodnoty()[static_cast<std::size_t>(-p.Hodnota - 1)] : p.Hodnota;
            const Bod delka{p.Od.X + p.Kam.X * 8 * h, p.Od.Y + p.Kam.Y * 8 * h};
            Vyber(p.Radek).Napis(h).Tahni(p.Od, dana ? delka : p.Kam);
        }
        return *this;
    }
    /// The check; the wrong steps of the whole example.
    std::string PoKontrole() {
        dialog.Zkontroluj();
        return Chyby();
    }
    /// The wrong steps so far: "7/1 300/10" is number 7 for one point, then 300 for ten.
    [[nodiscard]] std::string Chyby() const {
        std::string text;
        for (int i = 1; i <= Pamet().PocetChybnychKroku; ++i) {
            text += (i > 1 ? " " : "") + Pamet().ChybneKroky[i].Cislo + "/" +
                    std::to_string(Pamet().ChybneKroky[i].Body);
        }
        return text;
    }
    /// The plane as the pupil sees it.
    [[nodiscard]] const PametovaPlocha& Obraz() const { return Pic(); }
    /// The record of the example.
    [[nodiscard]] const Priklad& Zaznam() const { return Pamet().Priklady[dialog.CisloPrikladu()]; }

protected:
    [[nodiscard]] Dialog& Hra() override { return dialog; }
    [[nodiscard]] const Dialog& Hra() const override { return dialog; }

private:
    /// A wrong step falls on a board and in a phase of which the catalogue says that it can.
    void OverMisto(int cislo) const {
        const auto& s = dialog.Stav();
        const Bity deska = NaDesce(DeskaUlohy(Pamet().CisloUlohy));
        const Bity kdy = s.Skontrolovano ? PRI_KONTROLE : VeFazi(s.Faze);
        EXPECT_TRUE(std::ranges::any_of(
            katalog::RADKY,
            [&](const DruhChyby& d) { return d.Cislo == cislo && d.MuzePadnout(deska, kdy); }))
            << "wrong step " << cislo << ", task " << int{Pamet().CisloUlohy} << ", phase "
            << s.Faze;
    }

public:
    D dialog{relace_.Pamet(), Platna_()};
};

}  // namespace rysovna::testy
