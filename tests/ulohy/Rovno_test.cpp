// The parallelogram, at the dialogue.

#include "podpora/MeryBodu.h"
#include "rules/RovnoDialog.h"
#include "ulohy/Ctyruhelniky.h"

namespace rysovna::testy {
namespace {

using StulRovno = Stul<RovnoDialog>;

void Zmer(const StulRovno& s) {
    const std::map<std::string, Bod> v = Body(s.Pamet());
    for (const auto& [velicina, hodnota] : s.Zadani()) {
        if (velicina == "epsi" || velicina == "omeg") {
            const Bod druhy = v.at(velicina == "epsi" ? "A" : "C");
            EXPECT_LE(OdPaprsku(v.at("S"), v.at("B"), druhy, hodnota), VULE_OBRAZU) << velicina;
        } else {
            ZmerCtyruhelnik(v, "ABCD", velicina, hodnota, VULE_OBRAZU);
        }
    }
    EXPECT_LE(std::abs(v.at("A").X + v.at("C").X - v.at("B").X - v.at("D").X), 2);
    EXPECT_LE(std::abs(v.at("A").Y + v.at("C").Y - v.at("B").Y - v.at("D").Y), 2);
}

TEST(RovnoDokonaly, KazdyRadekDaDesetBoduARovnobeznik) {
    OdehrajSoubor<DokonalyRovnobeznik>(10, Zmer);
}

/// By halves of the diagonals; their angle at S has no wrong step.
const Zacatky PULENE = {{{"ABS", "a 113 f 128 e 127", "e 127 f 128 epsi 0"},
                         {"BCS", "b 114 e 127 f 128", "f 128 e 127 omeg 0"},
                         {"CDS", "c 115 f 128 e 127", "e 127 f 128 epsi 0"},
                         {"DAS", "d 116 e 127 f 128", "f 128 e 127 omeg 0"}}};
/// One image over the midpoint of a diagonal; two over the triangle's own S.
const Konce JEDEN = {"bod#AC#obrazbodu#B########", "bod#BD#obrazbodu#C########",
                     "bod#AC#obrazbodu#D########", "bod#BD#obrazbodu#A########"};
const Konce DVA = {"bod#S#obrazbodu#A#obrazbodu#B######", "bod#S#obrazbodu#B#obrazbodu#C######",
                   "bod#S#obrazbodu#C#obrazbodu#D######", "bod#S#obrazbodu#D#obrazbodu#A######"};

TEST(RovnoChyby, KazdyTrojuhelnikPodleKazdeVetyINesestrojeny) {
    StulRovno s(10);
    OverZacatky(s, CELE, "01", "57", JEDEN);
    OverZacatky(s, PULENE, "25", "57", DVA);
    for (const bool sus : {false, true}) {
        OverNesestrojeny<DokonalyRovnobeznik>(
            s, RadekDat(sus ? "57" : "01", CELE[0], sus, JEDEN[0]),
            {{1, "vrchol A"}, {2, "hledaný bod D je obrazem vrcholu B"}});
    }
}

// Every centre with every first image: wrong ones are carried out, close the figure, and the check
// counts them.
TEST(RovnoChyby, KazdyStredAKazdyVzor) {
    StulRovno s(10);
    for (std::size_t i = 0; i < 8 * 6 * 4; ++i) {
        const std::size_t t = i / 24 % 4;
        const bool cely = i < 4 * 24;
        s.Radek(cely ? RadekDat("01", CELE[t], false, JEDEN[t])
                     : RadekDat("25", PULENE[t], false, DVA[t]));
        s.Zacni(3);
        DokonalyRovnobeznik zak(s, 1);
        zak.Oznac();
        zak.Trojuhelnik();
        const std::string stred = s.Nastroj(1).Hrany().UkazPanel().Vyber.Radky[i / 4 % 6].Text;
        s.Vyber(stred).Klikni({9, 9}).Posun(20, -20);
        std::string vzor = s.Nastroj(2).Hrany().UkazPanel().Vyber.Radky.back().Text;
        const char protejsi = "CDAB"[vzor[sizeof "hledaný bod " - 1] - 'A'];
        vzor.back() = "ABCD"[i % 4];
        s.Vyber(vzor).Klikni({9, 9});
        if (!s.dialog.Hotova()) zak.Obrazy();
        const std::string pravy = cely ? "střed úsečky " + JEDEN[t].substr(4, 2) : "vrchol S";
        std::string ceka = stred == pravy ? "" : "112/3 ";
        if (vzor.back() != protejsi) ceka += "137/3 ";
        if (!ceka.empty()) ceka += ceka.size() > 6 ? "301/2" : "301/1";
        EXPECT_EQ(s.PoKontrole(), ceka) << JEDEN[t] << ", " << stred << ", " << vzor;
    }
    s.Zacni(3);
    EXPECT_EQ(s.PoKontrole(), "301/3 16/1 300/10");
}

TEST(RovnoPanel, VyzvyJednohoPrikladu) {
    StulRovno s(10);
    s.Radek(RadekDat("01", CELE[0], false, JEDEN[0])).Zacni(3);
    DokonalyRovnobeznik zak(s, 1);
    zak.Oznac();
    const auto vyzva = [&s] { return s.dialog.UkazPanel().Vyzva; };
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
