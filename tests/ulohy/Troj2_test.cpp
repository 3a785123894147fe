// The triangle by a height or a median, at the dialogue: every charge, the lists.

#include "podpora/Stul.h"
#include "rules/Troj2Dialog.h"
#include "zak/Trojuhelnik.h"

namespace rysovna::testy {
namespace {

using StulTroj2 = Stul<Troj2Dialog>;

void Oznac(StulTroj2& s, const std::string& velicina) {
    s.Oznac(MistoNaNacrtu(velicina).Stred());
}

// The first side lies level from here to the right.
constexpr Bod A{100, 250};

/// A first side: its line, its wrong steps at the choice, typed, drawn.
const struct Strana {
    std::string Nazev, Radek;
    int Volba, Napsana, Nakreslena;
} STRANY[] = {{"a", "BC", 1, 7, 13}, {"b", "AC", 2, 8, 14}, {"c", "AB", 3, 9, 15}};

/// What can follow a first side (its place in STRANY), and its wrong steps: typed, read out, at the
/// choice where it is not given (one number for both phases, unless the second stands here too).
const struct Prvek {
    std::size_t Prvni;
    int Nastroj;
    std::string Velicina, Radek;
    int Napsana, Nakreslena, Volba, VolbaFaze3 = Volba;
} PRVKY[] = {{2, 1, "alfa", "A", 10, 30, 38, 39},       {2, 1, "beta", "B", 11, 30, 40, 41},
             {1, 1, "alfa", "A", 10, 30, 38, 39},       {1, 1, "gama", "C", 12, 30, 42, 43},
             {0, 1, "beta", "B", 11, 30, 40, 41},       {0, 1, "gama", "C", 12, 30, 42, 43},
             {2, 4, "b", "v bodě A", 8, 28, 32},        {2, 4, "a", "v bodě B", 7, 27, 33},
             {1, 4, "c", "v bodě A", 9, 29, 32},        {1, 4, "a", "v bodě C", 7, 27, 34},
             {0, 4, "c", "v bodě B", 9, 29, 33},        {0, 4, "b", "v bodě C", 8, 28, 34},
             {0, 4, "ta", "ve středu BC", 55, 52, 35},  {1, 4, "tb", "ve středu AC", 56, 53, 36},
             {2, 4, "tc", "ve středu AB", 57, 54, 37},  {0, 3, "va", "s úsečkou BC", 130, 58, 24},
             {1, 3, "vb", "s úsečkou AC", 131, 59, 25}, {2, 3, "vc", "s úsečkou AB", 132, 60, 26}};

std::string Radek(const std::string& n1, const std::string& n2, const std::string& n3,
                  const std::string& druhy) {
    return "01##" + n1 + "#" + n2 + "#" + n3 + "#cm#cm#cm#usecka##" + druhy;
}
std::string Za(int cislo, int bodu = 1) {
    return std::to_string(cislo) + "/" + std::to_string(bodu);
}

TEST(Troj2Chyby, PrvniStranaJePodleVyskyNeboTezniceUlohy) {
    for (const int uloha : {4, 5, 6, 7, 8}) {
        const bool druhe = uloha % 2 == 0;  // whose letter it is: the second name's or the third's
        StulTroj2 s(uloha);
        for (std::size_t i = 0; i < 9; ++i) {
            const Strana& prava = STRANY[i / 3];
            const Strana& jina = STRANY[(i / 3 + 1) % 3];
            const Strana& zvolena = STRANY[i % 3];
            s.Radek(Radek(zvolena.Nazev, "v" + (druhe ? prava : jina).Nazev,
                          "t" + (druhe ? jina : prava).Nazev, "kruznice##rovnobezka#"));
            s.Zacni();
            Oznac(s, "a");
            s.Proved({{1, zvolena.Radek.c_str()}});
            EXPECT_EQ(s.Chyby(), &zvolena == &prava
                                     ? Za(zvolena.Napsana) + " " + Za(zvolena.Nakreslena)
                                     : Za(zvolena.Volba, 3))
                << uloha << " " << prava.Radek;
        }
    }
}

// Each element with a wrong value typed and another drawn in a wrong place, taken back and once
// more: given; not given; of a kind that no step expects. In phase 3 a perpendicular stands before
// it, and it is the second of the expected kinds that fits.
TEST(Troj2Chyby, KazdyPrvekSKazdouPrvniStranou) {
    enum { DANY, NEDANY, NECEKANY };
    StulTroj2 s(4);
    for (std::size_t i = 0; i < std::size(PRVKY) * 6; ++i) {
        const Prvek& p = PRVKY[i / 6];
        const int faze = i % 2 == 0 ? 2 : 3;
        const int jak = static_cast<int>(i / 2 % 3);
        if (jak == NECEKANY && p.Nastroj == 3) continue;
        const auto& [strana, ab, volba, napsana, nakreslena] = STRANY[p.Prvni];
        const std::string druh = p.Nastroj == 4 ? "kruznice" : "poloprimka";
        const bool vyska = p.Nastroj == 3;
        s.Radek(Radek(strana, (vyska && jak == NEDANY ? "t" : "v") + strana,
                      vyska || jak == NEDANY ? strana : p.Velicina,
                      jak == NECEKANY ? "rovnobezka##rovnobezka#"
                      : faze == 2     ? "rovnobezka##" + druh + "#"
                                      : "rovnobezka##rovnobezka#" + druh));
        s.Zacni();
        Oznac(s, "a");
        s.Proved({{1, ab.c_str(), -1, A, {1, 0}}});
        const std::string kolmice = "k úsečce " + ab;
        if (faze == 3) s.Proved({{2, kolmice.c_str()}});
        const std::string radek = p.Nastroj == 1   ? p.Radek + (faze == 2 ? "X" : "Y")
                                  : p.Nastroj == 3 ? p.Radek
                                  : faze == 2      ? "kružnice k, střed " + p.Radek
                                                   : "kružnice l, střed " + p.Radek;
        std::string cena = jak == NECEKANY ? Za(p.Nastroj == 1 ? 18 : 21, 3)
                           : jak == NEDANY ? Za(faze == 2 ? p.Volba : p.VolbaFaze3, 3)
                                           : Za(p.Napsana) + " " + Za(p.Nakreslena);
        if (jak == DANY && !vyska) cena += p.Nastroj == 1 ? " 31/1" : faze == 2 ? " 22/1" : " 45/1";
        s.Proved({{p.Nastroj, radek.c_str()}, {5}, {p.Nastroj, radek.c_str()}});
        cena += " " + cena;
        if (p.Nastroj == 1) {
            // From the other end of the side: where the typed value is right, that costs as well.
            const bool prvniKonec = ab.starts_with(p.Radek);
            const Bod jinde{A.X + (prvniKonec ? 8 * s.dialog.Hodnoty()[0] : 0), A.Y};
            s.Proved(
                {{5}, {1, radek.c_str(), -3, jinde, {1, 0}}, {5}, {1, radek.c_str(), 1, jinde}});
            cena += jak == DANY ? " 23/1 30/1 31/1 " + Za(p.Napsana) + " 30/1 31/1" : " " + cena;
        }
        EXPECT_EQ(s.Chyby(), (faze == 3 ? "19/3 " : "") + cena)
            << p.Velicina << " after " << ab << ", phase " << faze << ", " << jak;
    }
}

const char* const V_U = "05##c#vc#alfa#cm#cm#°#usecka##rovnobezka##poloprimka#";
const char* const S_T = "12##b#c#tc#cm#cm#cm#usecka##kruznice##kruznice#";
const char* const T_U = "18##c#tc#alfa#cm#cm#°##usecka#rovnobezka#kruznice#rovnobezka#poloprimka";

TEST(Troj2Chyby, CoTabulkaNevidi) {
    const auto cena = [](int uloha, const char* radek, const std::vector<Pohyb>& pohyby) {
        StulTroj2 s(uloha);
        s.Radek(radek).Zacni(5);
        Oznac(s, "a");
        return s.Proved(pohyby).Chyby();
    };
    // Values after a wrong side taken back; a height downward reads a minus; a second circle.
    EXPECT_EQ(cena(4, V_U, {{1, "AC", 99}, {5}, {1, "AB", 99}}), "2/3 9/1 15/1");
    const Pohyb ab{1, "AB", -1, A, {1, 0}};
    EXPECT_EQ(cena(4, V_U, {ab, {3, "s úsečkou AB", -2, {150, 250}, {0, 1}}}), "60/1");
    const Pohyb k{4, "kružnice k, střed ve středu AB", -2, {30, 30}, {1, 0}};
    EXPECT_EQ(cena(6, T_U, {ab, k, {4, "kružnice l, střed v bodě B"}}), "22/1 21/3");
    // A perpendicular costs at every press; the check counts it, and a parallel to a ray.
    const Pohyb kolmice{2, "k úsečce AB"};
    EXPECT_EQ(cena(4, V_U, {ab, kolmice, {5}, kolmice, {0}}), "19/3 19/3 301/2 16/1 300/10");
    EXPECT_EQ(cena(4, V_U, {ab, {1, "AX", 3}, {3, "s polopřímkou AX"}, {0}}),
              "10/1 30/1 31/1 301/1 16/1 300/10");
}

TEST(Troj2Zadani, DruhyOcekavanyUtvarStaciANeznamyDruhNechaZadani) {
    StulTroj2 s(6);
    s.Radek(T_U);
    for (std::uint32_t seminko = 1; seminko <= 20; ++seminko) {
        DokonalyTrojuhelnik(s.Zacni(seminko), seminko).Sestroj();
        EXPECT_EQ(s.PoKontrole(), "") << seminko;
    }
    const auto zadani = s.dialog.UkazPanel().Zadani;
    const auto hodnoty = s.dialog.Hodnoty();
    s.Radek("28##a#ta#beta#cm#cm#°#usecka##kruznice##poloprimka#").Zacni(3);
    EXPECT_EQ(s.dialog.UkazPanel().Zadani, zadani);
    EXPECT_EQ(s.dialog.Hodnoty(), hodnoty);
}

TEST(Troj2Panel, StredUseckyUkazeSvouPopiskuASeznamNabidneJenSvujStred) {
    StulTroj2 s(5);
    s.Radek(S_T).Zacni();
    EXPECT_FALSE(s.dialog.UkazPanel().Nastroje[0].Zivy()) << "no mark yet";
    Oznac(s, "tc");
    s.Proved({{1, "AB", -2, A, {1, 0}}});
    const Bod m{s.Pamet().Utvary[1].X3, s.Pamet().Utvary[1].Y3};
    const auto popiska = [&](int dx, int dy) {
        return s.dialog.Prejezd(static_cast<float>(m.X + dx), static_cast<float>(m.Y + dy));
    };
    EXPECT_EQ(popiska(5, -5).Text, "Střed úsečky");
    EXPECT_TRUE(popiska(5, -5).JmenoBodu);
    EXPECT_EQ(popiska(6, 0).Text, "");
    s.Nastroj(4);
    std::string zive;
    for (const RadekSeznamu& r : s.dialog.UkazPanel().Vyber.Radky) zive += r.Ziva ? '1' : '0';
    EXPECT_EQ(zive, "110100");
    s.Vyber("kružnice k, střed ve středu AB");
    EXPECT_EQ(s.dialog.UkazPanel().Rysovane.Nazev, "kružnice k(Sc, r = ");
}

}  // namespace
}  // namespace rysovna::testy
