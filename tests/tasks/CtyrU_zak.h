#pragma once

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "board/DialogCtyruhelnikuVrchol.h"
#include "hrac/Ctyruhelnik.h"
#include "podpora/Stul.h"

// What the tests of the quadrilaterals share: the figure measured, the choices of a triangle.

namespace rysovna::testy {

template <class S>
void OznacCtyruhelnik(S& s, const std::string& velicina) {
    s.Oznac(MistoNaNacrtuCtyruhelniku(velicina));
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

/// Sides and diagonals by the letters of their ends, angles by that of their vertex.
inline const std::map<std::string, std::string> PISMENA_VELICIN = {
    {"a", "AB"},   {"b", "BC"},   {"c", "CD"},   {"d", "DA"},    {"e", "AC"},  {"f", "BD"},
    {"alfa", "A"}, {"beta", "B"}, {"gama", "C"}, {"delta", "D"}, {"delt", "D"}};

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
    const std::string pismena = PISMENA_VELICIN.at(velicina);
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

/// The closed figure, both solutions, against what is given.
template <class S>
void ZmerObe(const S& s) {
    const std::string& trojuhelnik = s.Zaznam().Text2;
    for (int i = 6; i <= PocetUtvaru; i += 2) {
        std::map<std::string, Bod> v;
        for (const char c : trojuhelnik) v[std::string(1, c)] = VrcholNaPlose({&c, 1});
        v[Utvary[i].Jmeno2.substr(0, 1)] = {Utvary[i].X2, Utvary[i].Y2};
        EXPECT_EQ(Utvary[i].Jmeno2, CtvrtePismeno(trojuhelnik) + (i == 8 ? "'" : ""));
        EXPECT_EQ(Utvary[i + 1].Jmeno1, Utvary[i].Jmeno2);
        for (const auto& [velicina, hodnota] : s.Zadani()) ZmerCtyruhelnik(v, velicina, hodnota);
    }
}

/// Every line of a file, many seeds: ten of ten and the figure asked for.
template <class D>
void OdehrajSoubor(int uloha) {
    Stul<D> s(uloha);
    Pokryti pokryti;
    int druhaReseni = 0;
    for (std::uint32_t seminko = 1; !pokryti.Cele(); ++seminko) {
        s.Zacni(seminko);
        DokonalyCtyruhelnik(s, seminko).Sestroj();
        ASSERT_EQ(s.PoKontrole(), "") << "seed " << seminko << ", kind " << s.Zaznam().Druh;
        ASSERT_TRUE(s.dialog.Hotova()) << "seed " << seminko << ", kind " << s.Zaznam().Druh;
        ZmerObe(s);
        ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seminko << ", " << s.Zaznam().Druh;
        if (PocetUtvaru == 9) ++druhaReseni;
        pokryti.Odehran(s.dialog.CisloPrikladu());
    }
    EXPECT_GT(druhaReseni, 0);
}

}  // namespace rysovna::testy
