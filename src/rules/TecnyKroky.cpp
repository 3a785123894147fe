#include "rules/TecnyKroky.h"

namespace rysovna {

namespace {

using enum Nastroj;

// Prompts.
constexpr std::string_view ZACNI = "Zvol ze zadaných křivek tu, kterou začneš.";
constexpr std::string_view DALSI_ZADANOU = "Zvol ze zadaných křivek tu, kterou budeš pokračovat.";
constexpr std::string_view PO_BODU = "Zvol další křivku, kterou narýsuješ.";
constexpr std::string_view PO_CARE = "Zvol další křivku, kterou budeš pokračovat.";
constexpr std::string_view PO_CARE_S_PREKLEPEM = "Zvol další krřivku, kterou budeš pokračovat.";
constexpr std::string_view PRUSECIK_CAR = "Označ na kreslící ploše průsečík.";
constexpr std::string_view PRUSECIKY = "Označ na kreslící ploše průsečíky.";
constexpr std::string_view PRUSECIKY_K2 = "Označ na kreslící ploše průsečíky přímky a kružnice k2.";
constexpr std::string_view PRUSECIK_PRIMEK = "Označ na kreslící ploše průsečík přímek.";
constexpr std::string_view PRUSECIK_KOLMICE = "Označ na kreslící ploše průsečík přímky a kolmice.";
constexpr std::string_view VSECHNY_PRIMKY =
    "Narýsuj všechny přímky, rovnoběžné se zadanou přímkou.";
constexpr std::string_view VSECHNY_TECNY = "Narýsuj všechny tečny, procházející bodem A.";

constexpr std::string_view STRED_USECKY = "Střed úsečky";

// Tools that come together again and again.
constexpr std::array<Nastroj, 4> RYSUJ{Poloprimka, Kolmice, Rovnobezka, Kruznice};
constexpr std::array<Nastroj, 4> SE_STREDEM{Poloprimka, Stred, Rovnobezka, Kruznice};
constexpr std::array<Nastroj, 4> S_OSOU{Osa, Stred, Rovnobezka, Kruznice};
constexpr std::array<Nastroj, 4> S_PRIMKOU{Poloprimka, Kolmice, Rovnobezka, Primka};
constexpr std::array<Nastroj, 4> OZNAC{Prusecik, Zadny, Zadny, Zadny};

constexpr KrokTecny Oznac(std::string_view jmeno, std::string_view vyzva, ChybaKroku chyba,
                          std::string_view naPrimce) {
    return {.Nastroje = OZNAC,
            .Spravny = Prusecik,
            .Jmena = {jmeno},
            .Vyzva = vyzva,
            .ChybaRysovani = chyba,
            .NaPrimce = naPrimce};
}

// "01": the tangents parallel to a.
constexpr KrokTecny TECNA_01{.Nastroje = RYSUJ,
                             .Spravny = Rovnobezka,
                             .Chybne = {Kruznice},
                             .Jmena = {"t1", "t2"},
                             .Vyzva = VSECHNY_PRIMKY,
                             .Volby = {{{"a"}, {"b"}}},
                             .SpravnaVolba = "a",
                             .ChybaVolby = 134,
                             .Body = {"A1", "A2"},
                             .Jak = Soud::PodleZacatku,
                             .ChybaRysovani = 215,
                             .Zakladny = {"a", "b"}};
constexpr KrokTecny KROKY_01[] = {
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"b"},
     .Vyzva = ZACNI,
     .Volby = {{{"a"}}},
     .Body = {"S"},
     .Jak = Soud::Pul,
     .ChybaRysovani = 202,
     .Pocita = Prunik::PrimkaKruznice,
     .Ceho = {"b", "k"},
     .ChybaPruniku = 203,
     .Zakladny = {"a"}},
    Oznac("A1", PRUSECIK_CAR, 217, "b"),
    Oznac("A2", PRUSECIK_CAR, 217, "b"),
    TECNA_01,
    TECNA_01,
};

// "02": the tangents perpendicular to a.
constexpr KrokTecny TECNA_02{.Nastroje = RYSUJ,
                             .Spravny = Kolmice,
                             .Chybne = {Kruznice},
                             .Jmena = {"t1", "t2"},
                             .Vyzva = VSECHNY_PRIMKY,
                             .Volby = {{{"b"}, {"t1"}}},
                             .SpravnaVolba = "b",
                             .ChybaVolby = 135,
                             .Body = {"A1", "A2"},
                             .Jak = Soud::Patnact,
                             .ChybaRysovani = 211,
                             .Zakladny = {"a", "b"}};
constexpr KrokTecny KROKY_02[] = {
    {.Nastroje = RYSUJ,
     .Spravny = Rovnobezka,
     .Chybne = {Kruznice},
     .Jmena = {"b"},
     .Vyzva = ZACNI,
     .Volby = {{{"a"}}},
     .Body = {"S"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 215,
     .Pocita = Prunik::PrimkaKruznice,
     .Ceho = {"b", "k"},
     .ChybaPruniku = 204,
     .Zakladny = {"a"}},
    Oznac("A1", PRUSECIK_CAR, 217, "b"),
    Oznac("A2", PRUSECIK_CAR, 217, "b"),
    TECNA_02,
    TECNA_02,
};

// "03": the tangents through A. The row "AS" draws a line that is no tangent; by itself it costs
// nothing.
constexpr KrokTecny TECNA_03{.Nastroje = S_PRIMKOU,
                             .Spravny = Primka,
                             .Jmena = {"t1", "t2"},
                             .Vyzva = VSECHNY_TECNY,
                             .Volby = {{{"AS"}, {"AT1"}, {"AT2"}}},
                             .VedlejsiVolba = "AS",
                             .Jak = Soud::Konce,
                             .ChybaRysovani = 208,
                             .Zakladny = {"SA", "t1"}};
constexpr KrokTecny KROKY_03[] = {
    {.Nastroje = SE_STREDEM,
     .Spravny = Stred,
     .Chybne = {Kruznice},
     .Jmena = {"B"},
     .Vyzva = ZACNI,
     .Body = {"S", "A"},
     .ChybaRysovani = 205,
     .NaPrimce = "SA",
     .Odecet = STRED_USECKY,
     .Zakladny = {"SA"}},
    {.Nastroje = RYSUJ,
     .Spravny = Kruznice,
     .Jmena = {"l"},
     .Vyzva = PO_BODU,
     .Volby = {{{"S", {"S", "B"}}, {"A", {"S", "B"}}, {"B", {"S", "B"}}}},
     .SpravnaVolba = "B",
     .ChybaVolby = 124,
     .ChybaRysovani = 206,
     .Pocita = Prunik::Kruznice,
     .Ceho = {"l", "k"},
     .ChybaPruniku = 207,
     .Zakladny = {"SA"}},
    Oznac("T1", PRUSECIKY, 217, ""),
    Oznac("T2", PRUSECIKY, 217, ""),
    TECNA_03,
    TECNA_03,
};

// "04": the smallest circle through A that touches a.
constexpr KrokTecny KROKY_04[] = {
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"b"},
     .Vyzva = ZACNI,
     .Volby = {{{"a"}}},
     .Body = {"A"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 211,
     .Pocita = Prunik::Primky,
     .Ceho = {"b", "a"},
     .ChybaPruniku = 209,
     .Zakladny = {"a"}},
    Oznac("B", PRUSECIK_CAR, 214, "b"),
    {.Nastroje = SE_STREDEM,
     .Spravny = Stred,
     .Chybne = {Kruznice},
     .Jmena = {"C"},
     .Vyzva = PO_BODU,
     .Body = {"A", "B"},
     .ChybaRysovani = 205,
     .NaPrimce = "b",
     .Odecet = STRED_USECKY,
     .Zakladny = {"a", "b"}},
    {.Nastroje = RYSUJ,
     .Spravny = Kruznice,
     .Jmena = {"k"},
     .Vyzva = PO_BODU,
     .Volby = {{{"A", {"A", "C"}}, {"B", {"B", "C"}}, {"C", {"A", "C"}}}},
     .SpravnaVolba = "C",
     .ChybaVolby = 124,
     .ChybaRysovani = 216,
     .Zakladny = {"a", "b"}},
};

// "05" and "06" begin with the axis of AB: midpoint and perpendicular, or both at once by "osa".
constexpr KrokTecny STRED_AB{.Nastroje = S_OSOU,
                             .Spravny = Stred,
                             .Chybne = {Kruznice},
                             .Jmena = {"C"},
                             .Vyzva = ZACNI,
                             .Body = {"A", "B"},
                             .ChybaRysovani = 205,
                             .NaPrimce = "AB",
                             .Odecet = STRED_USECKY,
                             .Zakladny = {"AB", "a"}};

// "05": the circle through A and B with its centre on a.
constexpr KrokTecny KROKY_05[] = {
    STRED_AB,
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"b"},
     .Vyzva = PO_BODU,
     .Volby = {{{"AB"}, {"a"}}},
     .SpravnaVolba = "AB",
     .ChybaVolby = 135,
     .Body = {"C"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 211,
     .Pocita = Prunik::Primky,
     .Ceho = {"b", "a"},
     .Zakladny = {"AB", "a"}},
    Oznac("D", PRUSECIK_CAR, 214, "a"),
    {.Nastroje = RYSUJ,
     .Spravny = Kruznice,
     .Jmena = {"k"},
     .Vyzva = PO_BODU,
     .Volby = {{{"C", {"C", "A"}}, {"D", {"D", "A"}}}},
     .SpravnaVolba = "D",
     .ChybaVolby = 124,
     .ChybaRysovani = 210,
     .Zakladny = {"AB", "a", "b"}},
};

// "06": the circle through A that touches a at B.
constexpr KrokTecny KROKY_06[] = {
    STRED_AB,
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"b"},
     .Vyzva = PO_BODU,
     .Volby = {{{"AB"}, {"a"}}},
     .SpravnaVolba = "AB",
     .ChybaVolby = 135,
     .Body = {"C"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 211,
     .Zakladny = {"AB", "a"}},
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"c"},
     .Vyzva = DALSI_ZADANOU,
     .Volby = {{{"a"}, {"AB"}}},
     .SpravnaVolba = "a",
     .ChybaVolby = 135,
     .Body = {"B"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 211,
     .Pocita = Prunik::Primky,
     .Ceho = {"b", "c"},
     .Zakladny = {"AB", "a", "b"}},
    Oznac("D", PRUSECIK_PRIMEK, katalog::MIMO_PRUSECIK, "b"),
    // A midpoint here is a second point of the name D.
    {.Nastroje = SE_STREDEM,
     .Spravny = Kruznice,
     .Chybne = {Stred},
     .Jmena = {"k"},
     .Vyzva = PO_BODU,
     .Volby = {{{"A", {"A", "B"}}, {"B", {"B", "A"}}, {"D", {"D", "A"}}}},
     .SpravnaVolba = "D",
     .ChybaVolby = 124,
     .Body = {"A", "B"},
     .ChybaRysovani = 210,
     .Odecet = STRED_USECKY,
     .Zakladny = {"AB", "a", "b"},
     .JmenoChybnehoStredu = "D"},
};

// "07": the circle through A with the parallel tangents a and b. B is said to lie on a, though it
// lies on b.
constexpr KrokTecny KROKY_07[] = {
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"c"},
     .Vyzva = ZACNI,
     .Volby = {{{"a"}}},
     .Body = {"A"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 211,
     .Pocita = Prunik::Primky,
     .Ceho = {"c", "b"},
     .ChybaPruniku = 209,
     .Zakladny = {"a", "b"}},
    Oznac("B", PRUSECIK_KOLMICE, 214, "a"),
    // After the press the circle's place shows a grey perpendicular.
    {.Nastroje = SE_STREDEM,
     .Spravny = Stred,
     .Chybne = {Kruznice},
     .Jmena = {"C"},
     .Vyzva = PO_BODU,
     .Body = {"A", "B"},
     .ChybaRysovani = 205,
     .NaPrimce = "c",
     .Odecet = STRED_USECKY,
     .Zakladny = {"a", "b", "c"},
     .SedeNastroje = {Poloprimka, Stred, Rovnobezka, Kolmice}},
    {.Nastroje = RYSUJ,
     .Spravny = Kruznice,
     .Jmena = {"k"},
     .Vyzva = PO_BODU,
     .VyzvaZpet = PO_CARE,
     .Volby = {{{"A", {"A", "C"}}, {"B", {"B", "C"}}, {"C", {"A", "C"}}}},
     .SpravnaVolba = "C",
     .ChybaVolby = 124,
     .ChybaRysovani = 216,
     .Zakladny = {"a", "b", "c"},
     .MrtveZpet = true},
};

// "08": the circle through A that touches a, its centre on b. B is said to lie on a here as well.
constexpr KrokTecny KROKY_08[] = {
    {.Nastroje = RYSUJ,
     .Spravny = Kolmice,
     .Chybne = {Kruznice},
     .Jmena = {"c"},
     .Vyzva = ZACNI,
     .Volby = {{{"a"}, {"b"}}},
     .SpravnaVolba = "a",
     .ChybaVolby = 135,
     .Body = {"A"},
     .Jak = Soud::PodleZacatku,
     .ChybaRysovani = 211,
     .Pocita = Prunik::Primky,
     .Ceho = {"c", "b"},
     .ChybaPruniku = 209,
     .Zakladny = {"a", "b"}},
    Oznac("B", PRUSECIK_KOLMICE, katalog::MIMO_PRUSECIK, "a"),
    {.Nastroje = SE_STREDEM,
     .Spravny = Kruznice,
     .Chybne = {Stred},
     .Jmena = {"k"},
     .Vyzva = PO_BODU,
     .Volby = {{{"A", {"A", "B"}}, {"B", {"A", "B"}}}},
     .SpravnaVolba = "B",
     .ChybaVolby = 124,
     .Body = {"A", "B"},
     .ChybaRysovani = 212,
     .Odecet = STRED_USECKY,
     .Zakladny = {"a", "b", "c"},
     .JmenoChybnehoStredu = "C"},
};

// "09": the circles through A that touch both concentric circles. At step 1 there is no base line:
// perpendicular and parallel are drawn as dragged.
constexpr KrokTecny KROKY_09[] = {
    {.Nastroje = {Primka, Kolmice, Rovnobezka, Kruznice},
     .Spravny = Primka,
     .Chybne = {Kolmice, Kruznice},
     .Jmena = {"AS"},
     .Vyzva = ZACNI,
     .Volby = {{{"AS"}}},
     .Jak = Soud::Konce,
     .ChybaRysovani = 208,
     .Pocita = Prunik::PrimkaKruznice,
     .Ceho = {"AS", "k2"},
     .ChybaPruniku = 203},
    Oznac("B1", PRUSECIKY_K2, 217, "AS"),
    Oznac("B2", PRUSECIKY_K2, 217, "AS"),
    {.Nastroje = SE_STREDEM,
     .Spravny = Stred,
     .Chybne = {Kruznice},
     .Jmena = {"S1"},
     .Vyzva = PO_BODU,
     .Body = {"A", "B1"},
     .ChybaRysovani = 205,
     .NaPrimce = "AS",
     .Odecet = "Střed úsečky AB1",
     .Zakladny = {"AS"}},
    {.Nastroje = SE_STREDEM,
     .Spravny = Stred,
     .Chybne = {Kruznice},
     .Jmena = {"S2"},
     .Vyzva = PO_BODU,
     .Body = {"A", "B2"},
     .ChybaRysovani = 205,
     .NaPrimce = "AS",
     .Odecet = "Střed úsečky AB2",
     .Zakladny = {"AS"},
     .MrtveZpet = true},
    {.Nastroje = RYSUJ,
     .Spravny = Kruznice,
     .Jmena = {"l1"},
     .Vyzva = PO_BODU,
     .Volby = {{{"S1", {"A", "S1"}}, {"B1", {"A", "B1"}}}},
     .SpravnaVolba = "S1",
     .ChybaVolby = 124,
     .ChybaRysovani = 212,
     .Zakladny = {"AS"},
     .MrtveZpet = true},
    {.Nastroje = RYSUJ,
     .Spravny = Kruznice,
     .Jmena = {"l2"},
     .Vyzva = PO_CARE_S_PREKLEPEM,
     .VyzvaZpet = PO_CARE,
     .Volby = {{{"S2", {"A", "S2"}}, {"B2", {"A", "B2"}}}},
     .SpravnaVolba = "S2",
     .ChybaVolby = 124,
     .ChybaRysovani = 212,
     .Zakladny = {"AS"},
     .MrtveZpet = true},
};

constexpr Cviceni CVICENI[] = {
    {.Kod = "01",
     .Zadani = "Sestroj tečny ke kružnici k, rovnoběžné s přímkou a:",
     .Dano = "kružnice k, přímka a",
     .Dane = {"k", "a"},
     .PocatekPoloprimky = "S",
     .Vysledky = {"t1", "t2"},
     .Kroky = KROKY_01},
    {.Kod = "02",
     .Zadani = "Sestroj tečny ke kružnici k, kolmé k přímce a:",
     .Dano = "kružnice k, přímka a",
     .Dane = {"k", "a"},
     .PocatekPoloprimky = "S",
     .Vysledky = {"t1", "t2"},
     .Kroky = KROKY_02},
    {.Kod = "03",
     .Zadani = "Sestroj tečny ke kružnici k, procházející bodem A:",
     .Dano = "kružnice k, úsečka SA",
     .Dane = {"k", "SA"},
     .PocatekPoloprimky = "A",
     .Vysledky = {"t1", "t2"},
     .Kroky = KROKY_03},
    {.Kod = "04",
     .Zadani = "Sestroj kružnici k s nejmenším průměrem, procházející bodem A a dotýkající se "
               "přímky a:",
     .Dano = "bod A, přímka a",
     .Dane = {"A", "a"},
     .PocatekPoloprimky = "A",
     .Vysledky = {"k"},
     .Kroky = KROKY_04},
    {.Kod = "05",
     .Zadani = "Sestroj kružnici k, procházející body A a B, její střed je na přímce a:",
     .Dano = "úsečka AB, přímka a",
     .Dane = {"AB", "a"},
     .PocatekPoloprimky = "A",
     .Vysledky = {"k"},
     .Kroky = KROKY_05},
    {.Kod = "06",
     .Zadani = "Sestroj kružnici k, procházející bodem A, dotýkající se přímky a v bodě B:",
     .Dano = "úsečka AB, přímka a",
     .Dane = {"AB", "a"},
     .PocatekPoloprimky = "A",
     .Vysledky = {"k"},
     .Kroky = KROKY_06},
    {.Kod = "07",
     .Zadani = "Sestroj kružnici k, procházející bodem A, rovnoběžné přímky a,b jsou její tečny:",
     .Dano = "bod A, přímka a, přímka b",
     .Dane = {"A", "a", "b"},
     .PocatekPoloprimky = "A",
     .Vysledky = {"k"},
     .Kroky = KROKY_07},
    {.Kod = "08",
     .Zadani = "Sestroj kružnici k se středem na přímce b, procházející bodem A, přímka a je "
               "tečna:",
     .Dano = "bod A, přímka a, přímka b",
     .Dane = {"A", "a", "b"},
     .PocatekPoloprimky = "A",
     .Vysledky = {"k"},
     .Kroky = KROKY_08},
    {.Kod = "09",
     .Zadani = "Sestroj kružnici, procházející bodem A, dotýkající se obou soustředných kružnic "
               "k1, k2:",
     .Dano = "bod A, kružnice k1, kružnice k2",
     .Dane = {"A", "k1", "k2"},
     .PocatekPoloprimky = "A",
     .ChybnaKruznice = "m",
     .Vysledky = {"l1", "l2"},
     .Znacene = {"B1", "B2"},
     .Kroky = KROKY_09},
};

}  // namespace

std::string NazevPolomeru(const Volba& v) {
    return "|" + std::string(v.Polomer[0]) + std::string(v.Polomer[1]) + "|";
}

std::span<const Cviceni> VsechnaCviceni() {
    return CVICENI;
}

const Cviceni* NajdiCviceni(std::string_view kod) {
    for (const Cviceni& c : CVICENI) {
        if (c.Kod == kod) return &c;
    }
    return nullptr;
}

}  // namespace rysovna
