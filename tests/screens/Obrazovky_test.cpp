#include "platform/Obrazovky.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

#include "platform/Pisma.h"
#include "podpora/SouboryPomoc.h"
#include "rules/Ulohy.h"
#include "screens/HelpForm.h"
#include "screens/SelectForm.h"
#include "screens/SetupForm.h"
#include "screens/TabulkaForm.h"

namespace rysovna::testy {
namespace {

using Zvuky = std::vector<std::string>;

/// The menu with a memory of the normal pictures, so that it can say what is lit.
class Nabidka : public Soubory {
protected:
    Nabidka() {
        relace.Start();
        for (Image& li : Menu(relace.Pamet()).LI) normalni[&li] = li.Picture;
        konec = Menu(relace.Pamet()).picKonec.Picture;
        relace.NoveZvuky();
    }
    void ZvolRodinu(int i) {
        relace.Stiskni("LI", i);
        for (Image& ri : Menu(relace.Pamet()).RI) normalni[&ri] = ri.Picture;
        relace.NoveZvuky();
    }
    /// "L1 R2 K ": what is lit.
    std::string Sviti() {
        std::string text;
        const auto pridej = [&](const auto& sloupec, char pismeno) {
            for (const Image& o : sloupec) {
                if (o.Visible && o.Picture != normalni[&o])
                    text += pismeno + std::to_string(o.Index) + " ";
            }
        };
        pridej(Menu(relace.Pamet()).LI, 'L');
        pridej(Menu(relace.Pamet()).RI, 'R');
        return text + (Menu(relace.Pamet()).picKonec.Picture == konec ? "" : "K ");
    }
    /// The score table of the task.
    std::shared_ptr<TabulkaForm> Tabulka(int uloha = 7) {
        misc.CisloUlohy = static_cast<std::uint8_t>(uloha);
        return host.Okna().Nacti<TabulkaForm>(relace.Pamet());
    }
    static Vysledek Zak(const char* jmeno, const char* plus, const char* znamka = "1") {
        return {.CisloUlohy = 7, .Jmeno = jmeno, .Kladne = plus, .Zaporne = "0", .Znamka = znamka};
    }
    std::map<const Image*, Obrazek> normalni;
    Obrazek konec;
};

TEST_F(Nabidka, NajezdRozsveciNesoumerne) {
    relace.StiskniMisto(400, 160);  // no family, no tasks
    EXPECT_EQ(relace.JmenoVpredu() + Sviti(), "SelectForm");
    ZvolRodinu(1);
    const std::tuple<std::string, int, std::string, bool> kroky[]{
        {"LI", 3, "L1 L3 ", true},
        {"LI", 3, "L1 L3 ", false},
        {"LI", 2, "L1 L2 ", true},
        {"RI", 1, "L1 R1 ", true},
        {"LI", 2, "L1 L2 R1 ", true},  // a task stays lit when the pointer leaves it
        {"", 0, "L1 R1 ", false},      // even for the ground
        {"RI", 2, "L1 R2 ", true},
        {"picKonec", 0, "L1 R2 K ", true},
        {"picKonec", 0, "L1 R2 K ", false},
        {"Image1", 0, "L1 R2 K ", true},  // the banner changes nothing
        {"", 0, "L1 R2 ", false},
        {"RI", 3, "L1 R3 ", true},
    };
    for (const auto& [kam, index, sviti, zvuk] : kroky) {
        kam.empty() ? relace.NajedNaMisto(320, 470) : relace.Najed(kam, index);
        EXPECT_EQ(Sviti(), sviti) << kam << index;
        EXPECT_EQ(relace.NoveZvuky(), zvuk ? Zvuky{"enter.wav"} : Zvuky{}) << kam << index;
    }
    relace.Stiskni("LI", 1);  // the family that is chosen already leaves its tasks alone
    EXPECT_EQ(Sviti(), "L1 R3 ");
}

TEST_F(Nabidka, KazdaUlohaJdeZvolitASloupceJsouSlozene) {
    int cislo = 0;
    for (std::size_t i = 0; i < RODINY.size(); ++i) {
        const std::string rodina = "L" + std::to_string(i + 1) + " ";
        const int uloh = static_cast<int>(UlohyRodiny(i).size());
        ZvolRodinu(static_cast<int>(i) + 1);
        EXPECT_EQ(Sviti(), rodina);
        int spodek = 141;
        for (const Image& uloha : Menu(relace.Pamet()).RI) {
            EXPECT_EQ(uloha.Visible, uloha.Index <= uloh);
            if (!uloha.Visible) continue;
            EXPECT_EQ(uloha.Top, spodek - 1);
            EXPECT_EQ(uloha.Height, uloha.Picture.Height());
            spodek = uloha.Top + uloha.Height;
        }
        EXPECT_EQ(spodek, 140 + 298);
        for (int j = 1; j <= uloh; ++j) {
            relace.Stiskni("RI", j);
            EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
            EXPECT_EQ(misc.AktivniForm.lock().get(), relace.Vpredu());
            EXPECT_EQ(misc.CisloUlohy, ++cislo);
            EXPECT_EQ(misc.NazevHry, RODINY[i]);
            EXPECT_EQ(misc.TypUlohy, NajdiUlohu(cislo)->TypUlohy);
            relace.Stiskni("picKonec");
            EXPECT_EQ(Sviti(), rodina + "R" + std::to_string(j) + " ");
        }
    }
}

TEST_F(Nabidka, KonecAZavreniOknaSePtaji) {
    const HeadlessHost::Zprava otazka{"Opravdu chcete ukončit tento program?", "Ukončení aplikace",
                                      Styl::OtazkaAnoNe, Odpoved::Ne};
    relace.Stiskni("picKonec");
    EXPECT_EQ(host.Zpravy, std::vector{otazka});
    relace.Stiskni("Image1");
    host.Okna().ZadostOZavreni();
    EXPECT_EQ(host.Zpravy, (std::vector{otazka, otazka}));
    EXPECT_EQ(relace.JmenoVpredu(), "HelpForm");
    relace.StiskniMisto(5, 5);
    ZvolRodinu(1);
    relace.Stiskni("RI", 1);
    EXPECT_FALSE(host.Okna().JeKonec());
    EXPECT_EQ(host.Rezimy.size(), 1U);
    host.PridejOdpoved(Odpoved::Ano);
    host.Okna().ZadostOZavreni();
    EXPECT_TRUE(host.Okna().JeKonec());
    EXPECT_EQ(host.Rezimy.at(1), (RezimObrazovky{1024, 768, 32}));
}

TEST_F(Nabidka, TabulkaSJedenactiZaznamy) {
    std::string soubor;
    for (int i = 0; i < 9; ++i) soubor += "Z" + std::to_string(i) + "|20|0|1\r\n";
    Pis("07.res", soubor + "\x8E\x83neta|2|9|5\r\nPosledni|1|9|5\r\n");
    const auto radek = [&](std::size_t i, int uloha = 7) {
        const auto t = Tabulka(uloha);
        EXPECT_EQ(t->LJmeno[9].Top, 9 * 30 + 165);
        return t->LPoradi[i].Caption + t->LJmeno[i].Caption + "|" + t->LSpravne[i].Caption + "|" +
               t->LSpatne[i].Caption + "|" + t->LZnamka[i].Caption;
    };
    EXPECT_EQ(radek(9), "10.Ž\uFFFDneta|2|9|5");
    // What cannot be written stands in it all the same; one without a grade beats all.
    Schovej("Vysledky.dat");
    EXPECT_NE(UlozVysledek(Zak("Bez", "0", "")).Text, "");
    EXPECT_EQ(radek(0) + radek(9), "1.Bez|0|0|10.Z8|20|0|1");
    EXPECT_EQ(radek(0, 8), "1.|||");
    std::filesystem::remove(Cesta("08.res"));
    EXPECT_EQ(radek(0, 8), "1.Tabulku výsledků nelze přečíst|||");
    Vrat("Vysledky.dat");
    EXPECT_EQ(host.Proved(relace.Pamet().Vysledky().ZkusCekajici()), "");
    EXPECT_EQ(radek(0) + radek(1), "1.Bez|0|0|2.Z0|20|0|1");
    EXPECT_TRUE(Cti("07.res").starts_with("Bez|0|0|\r\nZ0|"));
}

TEST_F(Nabidka, TabulkaUkazeVlastniVysledekAStupnici) {
    std::string stejne;
    for (int i = 0; i < 9; ++i) stejne += "A|10|0|1\r\n";
    Pis("07.res", stejne + "B|1|9|5\r\n");
    const auto ukaz = [&](const Vysledek& v, int misto) {
        const auto t = Tabulka();
        t->UkazVysledek(misto, v);
        EXPECT_NE(t->LVlastni.Visible, t->LVysledek.Visible);
        return std::to_string(misto) + ": " +
               (t->LVysledek.Visible ? t->LVysledek.Caption
                                     : "row " + std::to_string((t->LVlastni.Top - 160) / 30 + 1));
    };
    const auto uloz = [&](const Vysledek& v) { return ukaz(v, UlozVysledek(v).Misto); };
    // The place is told, not looked for: the rows before it read the same.
    EXPECT_EQ(uloz(Zak("A", "10")), "10: row 10");
    EXPECT_EQ(uloz(Zak("C", "20")), "1: row 1");
    EXPECT_EQ(uloz(Zak("A", "10")), "12: Tvoje místo: 12. Body: 10, známka: 1");
    // What cannot be stored is shown among the others too, and moves those that can.
    Schovej("Vysledky.dat");
    EXPECT_EQ(uloz(Zak("D", "30")), "0: row 1");
    EXPECT_EQ(uloz(Zak("E", "15")), "0: row 3");
    EXPECT_EQ(ukaz(Zak("A", "10"), 2), "2: row 4") << "behind C in the file; D, E before it here";
    EXPECT_EQ(ukaz(Zak("A", "10"), 1), "1: row 4") << "C came above it since";
    const auto t = Tabulka();
    EXPECT_EQ(t->LStupnice.Caption, "Známky: 1 od 90 %, 2 od 75 %, 3 od 50 %, 4 od 25 %, 5 od 0 %");
    EXPECT_LE(SirkaTextu(t->LStupnice.Font, t->LStupnice.Caption), t->LStupnice.Width);

    Pis("08.res", std::string(60, 'W') + "|1|9|5\r\n" + std::string(20, 'W') + "|1|9|5\r\n");
    const auto dlouha = Tabulka(8);
    for (const std::size_t i : {0U, 1U}) {
        const Label& l = dlouha->LJmeno[i];
        EXPECT_LE(SirkaTextu(l.Font, l.Caption), l.Width);
        EXPECT_EQ(l.Caption.ends_with("…"), i == 0) << l.Caption;
    }
    EXPECT_FALSE(dlouha->LVlastni.Visible || dlouha->LVysledek.Visible);
}

/// A board with a way back, and nothing else.
class ZkusebniDeska final : public FormHry {
public:
    explicit ZkusebniDeska(Sezeni& s) : FormHry(s) { Pridej(PicTop, "PicTop", {546, 5, 91, 75}); }
    [[nodiscard]] std::string_view Jmeno() const override { return "ZkusebniDeska"; }
    Cinnost<> MouseDown(Ovladac* o, const Mys&) override {
        if (o == &PicTop) VratSeK(s_, s_.Okna().Najdi("SetupForm"), *this);
        return {};
    }
    PictureBox PicTop;
};

class Nastaveni : public ::testing::Test {
protected:
    Nastaveni() {
        relace.Start();
        ZvolUlohu();
    }
    void ZvolUlohu() {
        relace.Stiskni("LI", 1);
        relace.Stiskni("RI", 2);
    }
    SetupForm& Obrazovka() { return dynamic_cast<SetupForm&>(*relace.Najdi("SetupForm")); }
    const void* Aktivni() { return relace.Pamet().AktivniForm.lock().get(); }
    /// What the button shows: how it came in, or how it looks before.
    bool Prijelo() {
        const auto& pic = Obrazovka().picPokracuj;
        EXPECT_EQ(pic.Visible, pic.Picture == Menu(relace.Pamet()).PicClip.GraphicCell(22));
        return pic.Visible;
    }
    /// How long something kept the program busy, ms.
    template <class Akce>
    std::uint32_t Trvani(Akce&& akce) {
        const std::uint32_t od = host.TickCount();
        akce();
        return host.TickCount() - od;
    }
    std::uint32_t Napis(std::string_view text) {
        return Trvani([&] { relace.Napis(text); });
    }
    std::uint32_t Zvol(int cislice) {
        return Trvani([&] { relace.Stiskni("ICislo", cislice); });
    }
    std::vector<int> vyrobene;
    hrac::Relace relace{1, hrac::Relace::Cim::Mysi, [this](Sezeni& s, int cislo) {
                            vyrobene.push_back(cislo);
                            return std::make_shared<ZkusebniDeska>(s);
                        }};
    HeadlessHost& host = relace.Host();
};

constexpr std::uint32_t CISLICE = 100;       // ms, the wait after a digit
constexpr std::uint32_t ROLOVANI = 23 * 20;  // ms

TEST_F(Nastaveni, PokracujPrijedeJednouAzJeJmenoIPocet) {
    EXPECT_EQ(Napis("   "), 0U);
    EXPECT_EQ(Zvol(3), CISLICE);
    EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Napis("E"), ROLOVANI);
    EXPECT_TRUE(Prijelo());
    EXPECT_EQ(Zvol(5), CISLICE);
    EXPECT_EQ(relace.Pamet().PocetPrikladuSerie, 5);
    EXPECT_EQ(Obrazovka().ICislo[2].Tag + Obrazovka().ICislo[4].Tag, "01");
    // Leading blanks go, and the caret does not run off.
    relace.Klavesa("Home");
    relace.Napis(" Z");
    EXPECT_EQ(Obrazovka().TJmeno.Text, "ZE");
    // The name cleared, the button goes; a letter brings it back.
    EXPECT_EQ(Trvani([&] { relace.Prepis("TJmeno", ""); }), 0U);
    EXPECT_FALSE(Prijelo());
    EXPECT_EQ(Napis("x"), ROLOVANI);
    EXPECT_TRUE(Prijelo());
}

TEST_F(Nastaveni, JmenoMaNejvyseSedesatZnakuAnicCoByRozbiloZaznam) {
    const std::string dlouhe(SetupForm::NEJDELSI_JMENO, 'x');
    // What is pasted, and the name that the game has of it; empty if it cannot start.
    const std::pair<std::string, std::string> PRIPADY[] = {
        {" | ", ""},
        {"  Jan  Novák  ", "Jan  Novák"},
        {"Ja|n\r\nNo\tvák", "JanNovák"},
        {"   " + dlouhe + "yz", dlouhe},
        {dlouhe.substr(1) + "  y", dlouhe.substr(1)},
    };
    for (const auto& [vlozene, jmeno] : PRIPADY) {
        host.Schranka = vlozene;
        relace.Klavesa("a", CTRL);
        relace.Klavesa("v", CTRL);
        Zvol(1);
        ASSERT_EQ(Prijelo(), !jmeno.empty()) << vlozene;
        if (jmeno.empty()) continue;
        relace.Stiskni("picPokracuj");
        EXPECT_EQ(relace.Pamet().JmenoHrace, jmeno);
        relace.Stiskni("PicTop");
    }
}

TEST_F(Nastaveni, JmenoSmazaneBehemRolovani) {
    relace.Napis("A");
    host.NaplanujZa(CISLICE + 200, [&] { relace.Klavesa("BackSpace"); });
    EXPECT_LT(Zvol(1), CISLICE + ROLOVANI);
    EXPECT_FALSE(Prijelo());
    // Written anew: the second roll-in runs inside the first, which then leaves the button alone.
    host.NaplanujZa(200, [&] {
        relace.Klavesa("BackSpace");
        relace.Napis("B");
    });
    EXPECT_LT(Napis("A"), 220 + ROLOVANI + 20);
    EXPECT_TRUE(Prijelo());
}

TEST_F(Nastaveni, SpustiDeskuACeleJmenoZustane) {
    const std::string jmeno = "Příliš Žluťoučký Kůň z Úpících Ďábelských Ódin";
    relace.Napis(jmeno);
    Zvol(4);
    relace.Klavesa("Return");
    EXPECT_EQ(vyrobene, std::vector{2});
    EXPECT_EQ(relace.JmenoVpredu(), "ZkusebniDeska");
    EXPECT_EQ(Aktivni(), relace.Vpredu());
    EXPECT_FALSE(Obrazovka().Viditelny());
    EXPECT_EQ(relace.Pamet().JmenoHrace, jmeno);
    EXPECT_EQ(relace.Pamet().PocetPrikladuSerie, 4);
    // Back from the board, and from the help: all as it was, with the keyboard in the name.
    relace.Stiskni("PicTop");
    relace.Stiskni("Image1");
    relace.Klavesa("Escape");
    relace.Napis("a");
    relace.Klavesa("Escape");  // by mistake: a name that is there must not be lost
    EXPECT_EQ(relace.Prvek<TextBox>("TJmeno").Text, jmeno + "a");
    // Through the menu: nothing chosen.
    relace.Stiskni("picKonec");
    ZvolUlohu();
    EXPECT_EQ(Obrazovka().TJmeno.Text, "");
    relace.Klavesa("Return");
    // A number that is no task starts nothing.
    relace.Napis("A");
    Zvol(1);
    relace.Pamet().CisloUlohy = 21;
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(vyrobene.size(), 1U);
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
}

TEST_F(Nastaveni, OdchodUprostredCekani) {
    // Into the wait of the digit, into the roll-in: back to the menu.
    for (const std::uint32_t kdy : {50U, CISLICE + 50}) {
        relace.Napis("A");
        host.NaplanujZa(kdy, [&] { relace.Stiskni("picKonec"); });
        // The handler ends with the wait in which its screen went: no roll-in for nobody.
        EXPECT_LE(Zvol(2), std::max(CISLICE, kdy + 20));
        EXPECT_EQ(relace.Najdi("SetupForm"), nullptr);
        EXPECT_EQ(Aktivni(), &Menu(relace.Pamet()));
        ZvolUlohu();
    }
    // Into the start of the board: back at once; back, and on to the menu.
    relace.Napis("A");
    Zvol(1);
    host.NaplanujZa(50, [&] { relace.Stiskni("PicTop"); });
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
    EXPECT_EQ(Aktivni(), &Obrazovka());
    host.NaplanujZa(40, [&] { relace.Stiskni("PicTop"); });
    host.NaplanujZa(60, [&] { relace.Stiskni("picKonec", 0, 5, 5); });
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(Aktivni(), &Menu(relace.Pamet()));
}

}  // namespace
}  // namespace rysovna::testy
