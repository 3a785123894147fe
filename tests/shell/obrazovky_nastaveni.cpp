#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/Obrazovky.h"
#include "podpora/Relace.h"
#include "shell/HelpForm.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"
#include "shell/SetupForm.h"
#include "shell/Ulohy.h"

namespace rysovna::testy {
namespace {

/// A board with a way back and a help, and nothing else.
class ZkusebniDeska final : public Form {
public:
    ZkusebniDeska() {
        Pridej(PicTop, "PicTop", {546, 5, 91, 75});
        Pridej(INadpis, "INadpis", {0, 0, 238, 80});
    }
    [[nodiscard]] std::string_view Jmeno() const override { return "ZkusebniDeska"; }
    void MouseDown(Ovladac* o, const Mys&) override {
        if (o == &INadpis) UkazNapovedu("Bitmap\\Help\\setup.bmp", *this);
        if (o != &PicTop) return;
        const auto setup = Stroj().Okna().Najdi("SetupForm");
        Stroj().Okna().Show(*setup);
        AktivniForm = setup;
        Stroj().Okna().Unload(*this);
    }
    PictureBox PicTop;
    Image INadpis;
};

class Nastaveni : public ::testing::Test {
protected:
    Nastaveni() {
        relace.Start();
        NastavVyrobceDesek([this](int cislo) {
            vyrobene.push_back(cislo);
            return std::make_shared<ZkusebniDeska>();
        });
        ZvolUlohu();
    }
    ~Nastaveni() override { NastavVyrobceDesek({}); }

    void ZvolUlohu() {
        relace.Stiskni("LI", 1);
        relace.Stiskni("RI", 2);
    }
    SetupForm& Obrazovka() { return dynamic_cast<SetupForm&>(*relace.Najdi("SetupForm")); }
    /// How long something kept the program busy, ms.
    std::uint32_t Trvani(const std::function<void()>& co) {
        const std::uint32_t od = relace.Host().TickCount();
        co();
        return relace.Host().TickCount() - od;
    }

    Relace relace;
    std::vector<int> vyrobene;
};

constexpr std::uint32_t CISLICE = 100;       // ms, the wait after a digit
constexpr std::uint32_t ROLOVANI = 23 * 20;  // ms

TEST_F(Nastaveni, PokracujPrijedeJednouAzJeJmenoIPocet) {
    EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Trvani([&] { relace.Napis("   "); }), 0U);
    EXPECT_EQ(Obrazovka().TJmeno.Text, "");
    EXPECT_EQ(Trvani([&] { relace.Stiskni("ICislo", 3); }), CISLICE);
    EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Trvani([&] { relace.Napis("Ž"); }), ROLOVANI);
    EXPECT_TRUE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Obrazovka().picPokracuj.Picture, Menu().PicClip.GraphicCell(22));
    EXPECT_EQ(Trvani([&] { relace.Napis("ofie"); }), 0U);
    EXPECT_EQ(Trvani([&] { relace.Stiskni("ICislo", 5); }), CISLICE);
    EXPECT_EQ(PocetPrikladuSerie, 5);
    EXPECT_EQ(Obrazovka().ICislo[2].Tag, "0");
    EXPECT_EQ(Obrazovka().ICislo[4].Tag, "1");
    // The name cleared, the button goes; a letter brings it back.
    EXPECT_EQ(Trvani([&] { relace.Prepis("TJmeno", ""); }), 0U);
    EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Trvani([&] { relace.Napis("x"); }), ROLOVANI);
    EXPECT_TRUE(Obrazovka().picPokracuj.Visible);
}

TEST_F(Nastaveni, UvodniMezeryZmiziIPrediTextem) {
    relace.Napis("Eva");
    relace.Klavesa("Home");
    relace.Napis(" ");
    EXPECT_EQ(Obrazovka().TJmeno.Text, "Eva");
    relace.Napis("Z");  // the caret did not run off
    EXPECT_EQ(Obrazovka().TJmeno.Text, "ZEva");
}

TEST_F(Nastaveni, SmazaneJmenoZastaviRolovani) {
    relace.Napis("A");
    relace.Host().NaplanujZa(CISLICE + 200, [&] { relace.Klavesa("BackSpace"); });
    EXPECT_LT(Trvani([&] { relace.Stiskni("ICislo", 1); }), CISLICE + ROLOVANI);
    EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Obrazovka().picPokracuj.Picture, PokracujObrazek);
}

TEST_F(Nastaveni, JmenoSmazaneAZnovuNapsaneBehemRolovani) {
    relace.Napis("A");
    relace.Host().NaplanujZa(CISLICE + 200, [&] {
        relace.Klavesa("BackSpace");
        relace.Napis("B");
    });
    // The second roll-in runs inside the first, which then leaves the button alone.
    EXPECT_LT(Trvani([&] { relace.Stiskni("ICislo", 1); }), CISLICE + 220 + ROLOVANI + 20);
    EXPECT_TRUE(Obrazovka().picPokracuj.Visible);
    EXPECT_EQ(Obrazovka().picPokracuj.Picture, Menu().PicClip.GraphicCell(22));
}

TEST_F(Nastaveni, SpustiDeskuACeleJmenoZustane) {
    const std::string jmeno = "Příliš Žluťoučký Kůň z Úpících Ďábelských Ódin";
    relace.Napis(jmeno);
    relace.Stiskni("ICislo", 4);
    relace.Klavesa("Return");
    EXPECT_EQ(vyrobene, std::vector{2});
    EXPECT_EQ(relace.JmenoVpredu(), "ZkusebniDeska");
    EXPECT_EQ(AktivniForm.lock().get(), relace.Vpredu());
    EXPECT_FALSE(Obrazovka().Viditelny());
    EXPECT_EQ(JmenoHrace, jmeno);
    EXPECT_EQ(PocetPrikladuSerie, 4);
    // Back from the board: all as it was, the same task starts at once.
    relace.Stiskni("PicTop");
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
    EXPECT_EQ(Obrazovka().TJmeno.Text, jmeno);
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(relace.JmenoVpredu(), "ZkusebniDeska");
    // Through the menu: nothing chosen.
    relace.Stiskni("PicTop");
    relace.Klavesa("Escape");
    ZvolUlohu();
    EXPECT_EQ(Obrazovka().TJmeno.Text, "");
    EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    relace.Klavesa("Return");
    EXPECT_EQ(vyrobene.size(), 2U);
}

TEST_F(Nastaveni, UlohaBezDeskyTorekne) {
    NastavVyrobceDesek([](int) { return nullptr; });
    relace.Napis("A");
    relace.Stiskni("ICislo", 1);
    relace.Stiskni("picPokracuj");
    ASSERT_EQ(relace.Host().Zpravy.size(), 1U);
    EXPECT_EQ(relace.Host().Zpravy[0].Text, "Tato úloha zatím není k dispozici.");
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
    EXPECT_TRUE(Obrazovka().picPokracuj.Visible);
    // Outside the tasks there is not even a message.
    CisloUlohy = 21;
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(relace.Host().Zpravy.size(), 1U);
}

TEST_F(Nastaveni, OdchodUprostredCekani) {
    // Into the wait of the digit, into the roll-in: back to the menu.
    for (const std::uint32_t kdy : {50U, CISLICE + 50}) {
        SCOPED_TRACE(kdy);
        relace.Napis("A");
        relace.Host().NaplanujZa(kdy, [&] { relace.Stiskni("picKonec"); });
        // The handler ends with the wait in which its screen went: no roll-in for nobody.
        EXPECT_LE(Trvani([&] { relace.Stiskni("ICislo", 2); }), std::max(CISLICE, kdy + 20));
        EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
        EXPECT_EQ(relace.Najdi("SetupForm"), nullptr);
        EXPECT_EQ(AktivniForm.lock().get(), &Menu());
        ZvolUlohu();
        EXPECT_FALSE(Obrazovka().picPokracuj.Visible);
    }
}

TEST_F(Nastaveni, StiskNaDesceUprostredJejihoStartu) {
    relace.Napis("A");
    relace.Stiskni("ICislo", 1);
    // Back from the board at once: setup stays in front and active.
    relace.Host().NaplanujZa(50, [&] { relace.Stiskni("PicTop"); });
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
    EXPECT_EQ(AktivniForm.lock().get(), &Obrazovka());
    EXPECT_EQ(relace.Najdi("ZkusebniDeska"), nullptr);
    // Back, and on to the menu.
    relace.Host().NaplanujZa(40, [&] { relace.Stiskni("PicTop"); });
    relace.Host().NaplanujZa(60, [&] { relace.Stiskni("picKonec"); });
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(relace.JmenoVpredu(), "SelectForm");
    EXPECT_EQ(AktivniForm.lock().get(), &Menu());
    // Help over the board: it stays in front, and leads back to the board.
    ZvolUlohu();
    relace.Napis("A");
    relace.Stiskni("ICislo", 1);
    relace.Host().NaplanujZa(50, [&] { relace.Stiskni("INadpis"); });
    relace.Stiskni("picPokracuj");
    EXPECT_EQ(relace.JmenoVpredu(), "HelpForm");
    EXPECT_FALSE(Obrazovka().Viditelny());
    relace.StiskniMisto(300, 300);
    EXPECT_EQ(relace.JmenoVpredu(), "ZkusebniDeska");
    EXPECT_EQ(AktivniForm.lock().get(), relace.Vpredu());
}

TEST_F(Nastaveni, NapovedaSeVraciSeVsim) {
    relace.Napis("Jan");
    relace.Stiskni("ICislo", 2);
    relace.Stiskni("Image1");
    EXPECT_EQ(relace.JmenoVpredu(), "HelpForm");
    EXPECT_FALSE(Obrazovka().Viditelny());
    relace.Klavesa("Escape");
    EXPECT_EQ(relace.JmenoVpredu(), "SetupForm");
    EXPECT_TRUE(Obrazovka().picPokracuj.Visible);
    relace.Napis("a");  // the keyboard goes to the name again
    EXPECT_EQ(Obrazovka().TJmeno.Text, "Jana");
}

TEST_F(Nastaveni, NajezdRozsveciCisliceAZvolenaSviti) {
    const Obrazek normalni = Obrazovka().ICislo[0].Picture;
    const Obrazek konec = Obrazovka().picKonec.Picture;
    relace.Stiskni("ICislo", 2);
    const Obrazek zvolena = Obrazovka().ICislo[1].Picture;
    relace.NoveZvuky();
    relace.Najed("ICislo", 1);
    EXPECT_FALSE(Obrazovka().ICislo[0].Picture == normalni);
    relace.Najed("picKonec");
    EXPECT_EQ(Obrazovka().ICislo[0].Picture, normalni);
    EXPECT_FALSE(Obrazovka().picKonec.Picture == konec);
    relace.Najed("Image1");
    relace.NajedNaMisto(300, 200);
    EXPECT_EQ(Obrazovka().picKonec.Picture, konec);
    EXPECT_EQ(Obrazovka().ICislo[1].Picture, zvolena);
    EXPECT_EQ(relace.NoveZvuky(), std::vector<std::string>(3, "enter.wav"));
}

}  // namespace
}  // namespace rysovna::testy
