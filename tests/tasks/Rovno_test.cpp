// The parallelogram, at the dialogue.

#include "tasks/CtyrU_zak.h"
#include "tasks/RovnoForm.h"

namespace rysovna::testy {
namespace {

using StulRovno = Stul<RovnoDialog>;

/// The vertex across the centre.
char Pres(char c) {
    return "CDAB"[c - 'A'];
}

class Dokonaly {
public:
    Dokonaly(StulRovno& stul, std::uint32_t seminko) : s_(stul), nahoda_(seminko) {
        const Priklad& p = s_.Hrany();
        const auto& h = s_.dialog.Hodnoty();
        hodnoty_ = {{p.Nazev1, h[0]}, {p.Nazev2, h[1]}, {p.Nazev3, h[2]}};
    }
    void Oznac() {
        for (const auto& [velicina, hodnota] : hodnoty_) {
            if (VELICINY_CTYRUHELNIKU.contains(velicina)) OznacCtyruhelnik(s_, velicina);
        }
    }
    void Trojuhelnik() { NapisTrojuhelnik(s_, hodnoty_); }
    void Stred() {
        const std::string t = s_.Hrany().Text2;
        if (t[2] == 'S') {
            s_.Nastroj(1).Vyber("vrchol S");
            return;
        }
        std::string uhlopricka{t[0], t[2]};
        std::ranges::sort(uhlopricka);
        s_.Nastroj(1).Vyber("střed úsečky " + uhlopricka).Klikni(Nekam());
    }
    void Obrazy() {
        while (!s_.dialog.Hotova()) {
            s_.Nastroj(2);
            // "hledaný bod D je obrazem vrcholu A": the pupil sees which point is looked for.
            const std::string radek = s_.dialog.UkazPanel().Combo.Radky[0].Text;
            const std::string uvod = "hledaný bod ";
            const char hledany = radek[uvod.size()];
            s_.Vyber(radek.substr(0, radek.size() - 1) + Pres(hledany)).Klikni(Nekam());
        }
    }
    void Sestroj() {
        Oznac();
        Trojuhelnik();
        Stred();
        Obrazy();
    }
    void Zmer() const {
        std::map<std::string, Bod> v;
        for (int i = 1; i <= PocetUtvaru; ++i) {
            const Utvar& u = Utvary[i];
            v[u.Jmeno1] = {u.X1, u.Y1};
            if (u.Druh == USECKA) v[u.Jmeno2] = {u.X2, u.Y2};
        }
        for (const auto& [velicina, hodnota] : hodnoty_) {
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

private:
    /// A miss costs nothing.
    Bod Nekam() { return {static_cast<int>(nahoda_() % 384), static_cast<int>(nahoda_() % 335)}; }

    StulRovno& s_;
    std::mt19937 nahoda_;
    std::map<std::string, int> hodnoty_;
};

TEST(RovnoDokonaly, KazdyRadekDaDesetBoduARovnobeznik) {
    StulRovno s(10);
    Pokryti pokryti;
    for (std::uint32_t seminko = 1; !pokryti.Cele(); ++seminko) {
        s.Zacni(seminko);
        Dokonaly zak(s, seminko);
        zak.Sestroj();
        ASSERT_EQ(s.Zkontroluj(), "") << "seed " << seminko << ", kind " << s.Hrany().Druh;
        zak.Zmer();
        ASSERT_FALSE(HasFailure()) << "seed " << seminko << ", kind " << s.Hrany().Druh;
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
    EXPECT_EQ(s.Zkontroluj(), "301/3 16/1 300/10");
    s.Zacni(3);
    Dokonaly zak(s, 1);
    zak.Oznac();
    zak.Trojuhelnik();
    // Wrong centres, a side's and a vertex.
    s.Nastroj(1).Vyber("střed úsečky AB").Klikni({9, 9}).Zpet().Nastroj(1).Vyber("vrchol B").Zpet();
    zak.Stred();
    // A wrong image is carried out, closes, and the check counts it.
    s.Nastroj(2).Vyber("hledaný bod D je obrazem vrcholu A").Klikni({9, 9});
    EXPECT_TRUE(s.dialog.Hotova());
    EXPECT_EQ(s.Zkontroluj(), "112/3 112/3 137/3 301/1");
}

TEST(RovnoZpet, ZeVsechFaziAZnovuBezChyby) {
    StulRovno s(10);
    for (std::uint32_t seminko = 1; seminko <= 40; ++seminko) {
        s.Zacni(seminko);
        Dokonaly zak(s, seminko);
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
        ASSERT_EQ(s.Zkontroluj(), "") << seminko;
        zak.Zmer();
    }
}

TEST(RovnoPanel, VyzvyJednohoPrikladu) {
    StulRovno s(10);
    s.Radek(CELY).Zacni(3);
    Dokonaly zak(s, 1);
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
