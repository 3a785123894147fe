#pragma once

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "board/DialogCtyruhelnikuVrchol.h"
#include "podpora/Stul.h"
#include "podpora/Zak.h"

// The pupil of the quadrilaterals whose fourth vertex is found by two objects.

namespace rysovna::testy {

/// Where a quantity is pressed on the sketch, and the letters of its ends or of its vertex.
struct VelicinaCtyruhelniku {
    Bod Nacrt;
    std::string Pismena;
};
inline const std::map<std::string, VelicinaCtyruhelniku> VELICINY_CTYRUHELNIKU = {
    {"a", {{145, 150}, "AB"}},  {"b", {{230, 87}, "BC"}},    {"c", {{145, 33}, "CD"}},
    {"d", {{60, 79}, "DA"}},    {"e", {{120, 100}, "AC"}},   {"f", {{210, 121}, "BD"}},
    {"alfa", {{74, 140}, "A"}}, {"beta", {{212, 138}, "B"}}, {"gama", {{203, 72}, "C"}},
    {"delta", {{87, 59}, "D"}}, {"delt", {{87, 59}, "D"}}};

template <class S>
void OznacCtyruhelnik(S& s, const std::string& velicina) {
    const Bod b = VELICINY_CTYRUHELNIKU.at(velicina).Nacrt;
    ASSERT_TRUE(s.dialog.StiskNacrtu(static_cast<float>(b.X), static_cast<float>(b.Y))) << velicina;
}

/// Chooses the triangle and the theorem of the example, types the values in and has it drawn.
template <class S>
void NapisTrojuhelnik(S& s, const std::map<std::string, int>& hodnoty) {
    const Priklad& p = s.Hrany();
    s.Nastroj(1).Vyber(p.Text2);
    s.Nastroj(2).Vyber(p.Text1 == "sss" ? "podle věty SSS" : "podle věty SUS");
    const auto radky = s.dialog.UkazPanel().Vstupy;
    for (int i = 0; i < 3; ++i) {
        // "délka strany a = ", "vel. úhlu beta = ": the pupil reads the name.
        const std::string& popis = radky[static_cast<std::size_t>(i)].Nazev;
        const std::size_t konec = popis.find(" = ");
        const std::size_t od = popis.rfind(' ', konec - 1) + 1;
        std::string nazev = popis.substr(od, konec - od);
        // A half of a diagonal is asked for by the letters of its ends.
        const bool pulka = nazev.size() == 2 && nazev.find('S') != std::string::npos;
        if (pulka) nazev = nazev.find_first_of("AC") != std::string::npos ? "e" : "f";
        s.Napis(hodnoty.at(nazev) / (pulka ? 2 : 1), i + 1);
    }
    s.Nastroj(6);
}

/// A starting triangle of the pupil's own choice and values (-i: the i-th given one), its cost.
struct VolbaTrojuhelniku {
    const char* Popis;
    const char* Radek;
    const char* Trojuhelnik;
    const char* Veta;
    std::array<int, 3> Hodnoty;
    std::string Chyby;
};
template <class D>
void OverVolby(int uloha, const std::vector<VolbaTrojuhelniku>& volby) {
    for (const VolbaTrojuhelniku& v : volby) {
        Stul<D> s(uloha);
        s.Radek(v.Radek).Zacni(3);
        OznacCtyruhelnik(s, "f");
        s.Nastroj(1).Vyber(v.Trojuhelnik).Nastroj(2).Vyber(std::string("podle věty ") + v.Veta);
        for (std::size_t i = 0; i < 3; ++i) {
            const int h = v.Hodnoty[i];
            s.Napis(h < 0 ? s.dialog.Hodnoty()[static_cast<std::size_t>(-h - 1)] : h,
                    static_cast<int>(i) + 1);
        }
        s.Nastroj(6);
        EXPECT_EQ(s.Chyby(), v.Chyby) << v.Popis;
    }
}

/// A vertex of the starting triangle as it stands on the plane.
inline Bod VrcholNaPlose(std::string_view pismeno) {
    for (int i = 1; i <= 3; ++i) {
        if (Utvary[i].Jmeno1 == pismeno) return {Utvary[i].X1, Utvary[i].Y1};
    }
    throw std::runtime_error("není vrchol " + std::string(pismeno));
}

/// Whether the figure with these vertices has the quantity, to half a centimetre, which is the play
/// that the read-outs leave.
inline void ZmerCtyruhelnik(const std::map<std::string, Bod>& v, const std::string& velicina,
                            int hodnota) {
    const auto vrchol = [&v](char c) { return v.at(std::string(1, c)); };
    if (velicina.find("||") != std::string::npos) {
        const Bod p = vrchol(velicina[0]);
        const Bod q = vrchol(velicina[1]);
        const Bod r = vrchol(velicina[4]);
        const Bod s = vrchol(velicina[5]);
        EXPECT_LE(std::fabs(OdPrimky(r, p, q) - OdPrimky(s, p, q)), 3) << velicina;
        // Sides of a figure that does not cross itself run against each other.
        EXPECT_LT((q.X - p.X) * (s.X - r.X) + (q.Y - p.Y) * (s.Y - r.Y), 0) << velicina;
        return;
    }
    const std::string pismena = VELICINY_CTYRUHELNIKU.at(velicina).Pismena;
    double chyba = 0;
    if (pismena.size() == 2) {
        chyba = std::fabs(Delka(vrchol(pismena[0]), vrchol(pismena[1])) - hodnota * PIXELU_NA_CM);
    } else {
        const std::string dokola = "DABCDA";
        const std::size_t i = dokola.find(pismena, 1);
        // By the shorter arm: the other one is the side that the angle was drawn from.
        const Bod v0 = vrchol(pismena[0]);
        const Bod p = vrchol(dokola[i - 1]);
        const Bod q = vrchol(dokola[i + 1]);
        chyba = std::min(OdPaprsku(v0, p, q, hodnota), OdPaprsku(v0, q, p, hodnota));
    }
    EXPECT_LE(chyba, PIXELU_NA_CM / 2) << velicina << " = " << hodnota;
}

/// Plays an example without a fault; in which order goes by a seed.
template <class S>
class DokonalyCtyruhelnik {
public:
    DokonalyCtyruhelnik(S& stul, std::uint32_t seminko, bool holeStrany)
        : s_(stul), nahoda_(seminko), hole_(holeStrany) {}

    void Oznac() {
        for (const auto& [velicina, hodnota] : Zadane()) {
            if (velicina.find("||") == std::string::npos) OznacCtyruhelnik(s_, velicina);
        }
    }
    void Trojuhelnik() {
        std::map<std::string, int> hodnoty;
        for (const auto& [velicina, hodnota] : Zadane()) hodnoty.emplace(velicina, hodnota);
        NapisTrojuhelnik(s_, hodnoty);
    }
    void Sestroj() {
        Oznac();
        Trojuhelnik();
        std::vector<int> poradi = {1, 2};
        std::ranges::shuffle(poradi, nahoda_);
        for (const int n : poradi) Narysuj(n);
        // A vertex off the plane: the pupil takes both objects back and scrolls until it fits, as
        // the arrows let him.
        Bod posunuto{};
        for (int i = 0; i < POSUNU * POSUNU && !VejdeSe(); ++i) {
            const Bod kam{(i % POSUNU - POSUNU / 2) * KROK_SIPKY,
                          (i / POSUNU - POSUNU / 2) * KROK_SIPKY};
            s_.Zpet().Zpet();
            s_.dialog.Posun(kam.X - posunuto.X, kam.Y - posunuto.Y);
            posunuto = kam;
            for (const int n : poradi) Narysuj(n);
        }
    }
    void Narysuj(int n) {
        const Krok& krok = s_.Hrany().Kroky[n];
        const int hodnota = s_.dialog.Hodnoty()[static_cast<std::size_t>(n) + 2];
        const bool prvni = s_.dialog.Stav().Faze == 2;
        const int posun = static_cast<int>(nahoda_() % 13) - 6;  // the press snaps
        if (krok.Utvar == KRUZNICE) {
            const std::string stred = krok.UtvarB.substr(1);
            const Bod b = VrcholNaPlose(stred);
            s_.Nastroj(4)
                .Vyber(std::string("kružnice ") + (prvni ? "k" : "l") + ", střed v bodě " + stred)
                .Napis(hodnota)
                .Tahni(b, {b.X + hodnota * PIXELU_NA_CM, b.Y + posun});
        } else if (krok.Utvar == POLOPRIMKA) {
            const std::string vrchol = krok.UtvarB.substr(0, 1);
            const std::string rameno = krok.UtvarB.substr(3);
            const Bod v = VrcholNaPlose(vrchol);
            const Bod r = VrcholNaPlose(rameno);
            const Bod t = Treti(vrchol, rameno);
            const bool vlevo = (r.X - v.X) * (t.Y - v.Y) - (r.Y - v.Y) * (t.X - v.X) < 0;
            s_.Nastroj(1)
                .Vyber(vrchol + (prvni ? "X" : "Y") + ", svírající úhel s úsečkou " + vrchol +
                       rameno)
                .Napis(hodnota)
                .Tahni({v.X - posun, v.Y + posun}, PodUhlem(v, r, vlevo ? hodnota : -hodnota));
        } else {
            const std::string strana = s_.Hrany().Kroky[n].Jmeno.substr(0, 2);
            const Bod p = VrcholNaPlose(strana.substr(0, 1));
            const Bod q = VrcholNaPlose(strana.substr(1));
            const Bod t = Treti(strana.substr(0, 1), strana.substr(1));
            const Bod od{(p.X + q.X) / 2, (p.Y + q.Y) / 2};
            s_.Nastroj(3)
                .Vyber((hole_ ? "" : "s úsečkou ") + strana)
                .Tahni(od, Blizko(t, p, q, od));
        }
    }
    /// The closed figure, both solutions, against what is given.
    void Zmer() const {
        for (int i = 6; i <= PocetUtvaru; i += 2) {
            std::map<std::string, Bod> v;
            for (const char c : s_.Hrany().Text2) v[std::string(1, c)] = VrcholNaPlose({&c, 1});
            v[Utvary[i].Jmeno2.substr(0, 1)] = {Utvary[i].X2, Utvary[i].Y2};
            EXPECT_EQ(Utvary[i].Jmeno2, CtvrtePismeno(s_.Hrany().Text2) + (i == 8 ? "'" : ""));
            EXPECT_EQ(Utvary[i + 1].Jmeno1, Utvary[i].Jmeno2);
            for (const auto& [velicina, hodnota] : Zadane()) ZmerCtyruhelnik(v, velicina, hodnota);
        }
    }

private:
    static constexpr int POSUNU = 15, KROK_SIPKY = 20, OKRAJ = 20;

    /// Whether the closed figure lies on the plane.
    [[nodiscard]] bool VejdeSe() const {
        if (!s_.dialog.Hotova()) return false;
        const auto naPlose = [](int x, int y) {
            return x >= OKRAJ && y >= OKRAJ && x < SIRKA_PLOCHY - OKRAJ && y < VYSKA_PLOCHY - OKRAJ;
        };
        for (const int i : {1, 2, 3, 6}) {
            if (!naPlose(Utvary[i].X2, Utvary[i].Y2)) return false;
        }
        return true;
    }
    [[nodiscard]] std::vector<std::pair<std::string, int>> Zadane() const {
        const Priklad& p = s_.Hrany();
        const auto& h = s_.dialog.Hodnoty();
        return {{p.Nazev1, h[0]},
                {p.Nazev2, h[1]},
                {p.Nazev3, h[2]},
                {p.Kroky[1].Jmeno, h[3]},
                {p.Kroky[2].Jmeno, h[4]}};
    }
    [[nodiscard]] Bod Treti(const std::string& a, const std::string& b) const {
        for (const char c : s_.Hrany().Text2) {
            if (c != a[0] && c != b[0]) return VrcholNaPlose({&c, 1});
        }
        return {};
    }
    /// A place from which the pushed parallel misses the vertex by a few pixels.
    [[nodiscard]] Bod Blizko(Bod t, Bod p, Bod q, Bod od) {
        const double d = Delka(p, q);
        const double o = static_cast<int>(nahoda_() % 11) - 5;
        return {t.X + od.X - p.X + Zaokrouhli(o * (q.Y - p.Y) / d),
                t.Y + od.Y - p.Y - Zaokrouhli(o * (q.X - p.X) / d)};
    }

    S& s_;
    std::mt19937 nahoda_;
    bool hole_;
};

/// Every line of a file, many seeds: ten of ten and the figure asked for.
template <class D>
void OdehrajSoubor(int uloha, bool holeStrany) {
    Stul<D> s(uloha);
    Pokryti pokryti;
    int druhaReseni = 0;
    for (std::uint32_t seminko = 1; !pokryti.Cele(); ++seminko) {
        s.Zacni(seminko);
        DokonalyCtyruhelnik<Stul<D>> zak(s, seminko, holeStrany);
        zak.Sestroj();
        ASSERT_EQ(s.Zkontroluj(), "") << "seed " << seminko << ", kind " << s.Hrany().Druh;
        ASSERT_TRUE(s.dialog.Hotova()) << "seed " << seminko << ", kind " << s.Hrany().Druh;
        zak.Zmer();
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seminko << ", " << s.Hrany().Druh;
        if (PocetUtvaru == 9) ++druhaReseni;
        pokryti.Odehran(s.dialog.CisloPrikladu());
    }
    EXPECT_GT(druhaReseni, 0);
}

}  // namespace rysovna::testy
