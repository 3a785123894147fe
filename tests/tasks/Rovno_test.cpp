// The parallelogram, at the dialogue.

#include "tasks/CtyrU_zak.h"
#include "tasks/RovnoForm.h"

namespace rysovna::testy {
namespace {

using StulRovno = Stul<RovnoDialog>;

void Zmer(const StulRovno& s) {
    std::map<std::string, Bod> v;
    for (int i = 1; i <= PocetUtvaru; ++i) {
        const Utvar& u = Utvary[i];
        v[u.Jmeno1] = {u.X1, u.Y1};
        if (u.Druh == USECKA) v[u.Jmeno2] = {u.X2, u.Y2};
    }
    for (const auto& [velicina, hodnota] : s.Zadani()) {
        if (velicina == "epsi" || velicina == "omeg") {
            const Bod druhy = v.at(velicina == "epsi" ? "A" : "C");
            EXPECT_LE(OdPaprsku(v.at("S"), v.at("B"), druhy, hodnota), 4) << velicina;
        } else {
            ZmerCtyruhelnik(v, velicina, hodnota);
        }
    }
    EXPECT_LE(std::abs(v.at("A").X + v.at("C").X - v.at("B").X - v.at("D").X), 2);
    EXPECT_LE(std::abs(v.at("A").Y + v.at("C").Y - v.at("B").Y - v.at("D").Y), 2);
}

TEST(RovnoDokonaly, KazdyRadekDaDesetBoduARovnobeznik) {
    StulRovno s(10);
    Pokryti pokryti;
    for (std::uint32_t seminko = 1; !pokryti.Cele(); ++seminko) {
        s.Zacni(seminko);
        DokonalyRovnobeznik zak(s, seminko);
        zak.Sestroj();
        ASSERT_EQ(s.PoKontrole(), "") << "seed " << seminko << ", kind " << s.Zaznam().Druh;
        Zmer(s);
        ASSERT_FALSE(HasFailure()) << "seed " << seminko << ", kind " << s.Zaznam().Druh;
        pokryti.Odehran(s.dialog.CisloPrikladu());
    }
}

const char* const CELY = "01#ABC#a#b#e#cm#cm#cm#sss#bod#AC#obrazbodu#B########";
const char* const PULENY = "25#ABS#a#e#f#cm#cm#cm#sss#bod#S#obrazbodu#A#obrazbodu#B######";
const char* const UHEL = "57#ABS#e#f#epsi#cm#cm#°#sus#bod#S#obrazbodu#A#obrazbodu#B######";

TEST(RovnoChyby, KazdaStojiCoMa) {
    OverVolby<RovnoDialog>(
        10, {{"wrong triangle and theorem", CELY, "DAS", "SUS", {5, 5, 60}, "133/3 101/3"},
             {"each typed value", CELY, "ABC", "SSS", {5, 6, 7}, "113/1 114/1 127/1"},
             {"halves of both diagonals", PULENY, "ABS", "SSS", {3, 4, 5}, "113/1 128/1 127/1"},
             {"whole diagonals are no halves; the angle has no number",
              UHEL,
              "ABS",
              "SUS",
              {-1, -2, 1},
              "127/1 128/1"}});
    StulRovno s(10);
    s.Radek(CELY).Zacni(3);
    EXPECT_EQ(s.PoKontrole(), "301/3 16/1 300/10");
    s.Zacni(3);
    DokonalyRovnobeznik zak(s, 1);
    zak.Oznac();
    zak.Trojuhelnik();
    // Wrong centres, a side's and a vertex.
    s.Nastroj(1).Vyber("střed úsečky AB").Klikni({9, 9}).Zpet().Nastroj(1).Vyber("vrchol B").Zpet();
    zak.Stred();
    // A wrong image is carried out, closes, and the check counts it.
    s.Nastroj(2).Vyber("hledaný bod D je obrazem vrcholu A").Klikni({9, 9});
    EXPECT_TRUE(s.dialog.Hotova());
    EXPECT_EQ(s.PoKontrole(), "112/3 112/3 137/3 301/1");
}

TEST(RovnoZpet, ZeVsechFaziAZnovuBezChyby) {
    StulRovno s(10);
    for (std::uint32_t seminko = 1; seminko <= 40; ++seminko) {
        s.Zacni(seminko);
        DokonalyRovnobeznik zak(s, seminko);
        zak.Sestroj();
        for (int faze = s.dialog.Stav().Faze - 1; faze >= 1; --faze) {
            s.Zpet();
            EXPECT_EQ(s.dialog.Stav().Faze, faze);
            EXPECT_EQ(PocetUtvaru, faze == 1 ? 0 : faze + 1);
            EXPECT_FALSE(s.dialog.Hotova());
        }
        zak.Trojuhelnik();
        zak.Stred();
        s.dialog.Posun(-20, 20);
        zak.Obrazy();
        ASSERT_EQ(s.PoKontrole(), "") << seminko;
        Zmer(s);
    }
}

TEST(RovnoPanel, VyzvyJednohoPrikladu) {
    StulRovno s(10);
    s.Radek(CELY).Zacni(3);
    DokonalyRovnobeznik zak(s, 1);
    zak.Oznac();
    const auto vyzva = [&s] { return s.dialog.UkazPanel().lblText1; };
    EXPECT_EQ(vyzva(), "Nejprve zvol trojúhelník, kterým začneš konstrukci.");
    zak.Trojuhelnik();
    EXPECT_EQ(vyzva(), "Nyní zvol střed souměrnosti.");
    s.Nastroj(1).Vyber("střed úsečky AC");
    EXPECT_EQ(vyzva(), "Zvol kliknutím na kreslící ploše střed úsečky.");
    s.Klikni({9, 9});
    EXPECT_EQ(vyzva(), "Nyní najdi obraz bodů ve středové souměrnosti.");
    s.Nastroj(2).Vyber("hledaný bod D je obrazem vrcholu B");
    EXPECT_EQ(vyzva(), "Zvol kliknutím na kreslící ploše obraz ve střed. souměrnosti.");
}

}  // namespace
}  // namespace rysovna::testy
