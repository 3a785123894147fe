#include "platform/Malir.h"

#include <algorithm>
#include <random>

#include "PlatformTest.h"
#include "platform/Bitmapa.h"
#include "platform/ObrazekData.h"

namespace rysovna::testy {
namespace {

class MalirTest : public NaFormu {
protected:
    MalirTest() {
        Form_->Uvnitr.Caption = "Ahoj";
        Form_->BackColor = Rgb(200, 220, 240);
        Form_->Pic.Plocha().Line(0, 0, 199, 149);
    }
    std::vector<Obdelnik> Namaluj(Bitmapa& b) {
        return Malir_.Namaluj({b.Body.data(), b.Sirka, b.Vyska, b.Sirka}, Okna(),
                              Host_.TickCount());
    }
    Bitmapa Znovu(int w, int h) {
        Bitmapa b(w, h, 0);
        Malir().Namaluj({b.Body.data(), w, h, w}, Okna(), Host_.TickCount());
        return b;
    }
    /// Of any channel of any pixel. A stroke that is painted in part differs by a few levels of
    /// smoothing from one that is painted whole.
    static int NejvetsiRozdil(const Bitmapa& a, const Bitmapa& b) {
        int nejvetsi = 0;
        for (std::size_t i = 0; i < 3 * a.Body.size(); ++i) {
            const auto kanal = [&](Pixel p) { return static_cast<int>(p >> (i % 3 * 8) & 0xFF); };
            nejvetsi = std::max(nejvetsi, std::abs(kanal(a.Body[i / 3]) - kanal(b.Body.at(i / 3))));
        }
        return nejvetsi;
    }
    static Pixel Bod(const Bitmapa& b, int x, int y) { return b.Radka(y)[x]; }

    Malir Malir_;
};

TEST_F(MalirTest, VejdeSeAOkoliJeCerneIPoZmeneVelikosti) {
    EXPECT_EQ(Umisteni::Vejdi(1920, 1080), (Umisteni{2.25, 240, 0}));
    EXPECT_EQ(Umisteni::Vejdi(1080, 1920), (Umisteni{1.6875, 0, 555}));
    Bitmapa b(900, 600, 0x123456);
    EXPECT_EQ(Namaluj(b), (std::vector<Obdelnik>{{0, 0, 900, 600}}));
    EXPECT_EQ(Bod(b, 10, 10), DoPixelu(CERNA));
    EXPECT_EQ(Bod(b, 60, 10), DoPixelu(Rgb(200, 220, 240)));
    EXPECT_TRUE(Namaluj(b).empty()) << "nothing changed";
    b = Bitmapa(1000, 600, 0x123456);
    EXPECT_EQ(Namaluj(b).size(), 1U);
    EXPECT_EQ(Bod(b, 90, 10), DoPixelu(CERNA));
}

TEST_F(MalirTest, MalujeSeJenCoSeZmenilo) {
    Bitmapa b(640, 480, 0);
    Namaluj(b);
    const Obdelnik uvnitr{120, 80, 40, 40};
    const std::tuple<const char*, std::function<void()>, std::vector<Obdelnik>> PRIPADY[] = {
        {"caption", [&] { Form_->Uvnitr.Caption = "x"; }, {uvnitr}},
        {"the same caption", [&] { Form_->Uvnitr.Caption = std::string("x"); }, {}},
        {"hidden", [&] { Form_->Uvnitr.Visible = false; }, {uvnitr}},
        {"shown", [&] { Form_->Uvnitr.Visible = true; }, {uvnitr}},
        {"moved", [&] { Form_->Uvnitr.Left += 20; }, {{120, 80, 60, 40}}},
        {"drawing", [&] { Form_->Pic.Plocha().Circle(9, 9, 5); }, {{100, 50, 200, 150}}},
        {"two apart",
         [&] { Form_->cmd[0].BackColor = Form_->cmd[1].BackColor = CERNA; },
         {{400, 100, 50, 20}, {400, 140, 50, 20}}},
        {"order", [&] { Form_->DoPopredi(Form_->cmd[0]); }, {{400, 100, 50, 20}}},
        {"ground", [&] { Form_->BackColor = BILA; }, {{0, 0, 640, 480}}},
    };
    for (const auto& [co, zmena, ceka] : PRIPADY) {
        zmena();
        EXPECT_TRUE(std::ranges::is_permutation(Namaluj(b), ceka)) << co;
    }
}

TEST_F(MalirTest, PoKouscichJeTotezCoNaraz) {
    // Whatever happens between two paintings, the window shows what one fresh painting would.
    std::mt19937 stroj(7);
    const auto d = [&](int n) { return static_cast<int>(stroj() % static_cast<unsigned>(n)); };
    ZapisForm& f = *Form_;
    f.BereKlavesy = false;
    f.Pic.Zastavka = f.cmd[0].Zastavka = f.cmd[1].Zastavka = 2;
    const std::vector<std::function<void()>> zmeny = {
        [&] { f.Uvnitr.Caption = std::string(static_cast<std::size_t>(d(9)), 'm'); },
        [&] { f.Uvnitr.Visible = !f.Uvnitr.Visible; },
        [&] { f.Guma.Left = d(300) - 50; },
        [&] { f.Guma.Width = f.Guma.Height = d(100); },
        [&] { f.Pic.Left = d(600); },
        [&] { f.Pic.Plocha().Vypln(d(200), d(150), d(50), d(50), d(0x1000000)); },
        [&] { f.DoPopredi(*f.Ovladace()[static_cast<std::size_t>(d(5))]); },
        [&] { f.Zamereni() == nullptr ? f.SetFocus(f.Pole) : f.ZrusZamereni(); },
        [&] { Hraj({"+ab"}); },
        [&] { Okna().Klavesa("Left", d(2)); },
        [&] { Host_.PosunHodiny(300); },
        [&] { f.cmd[0].Ramecek = !f.cmd[0].Ramecek; },
        [&] { Okna().Klavesa("Tab", d(2)); },
        [&] { Okna().Klavesa("Down", 0); },
        [&] { Okna().MysPohyb(d(640), d(480), 0, 0); },
    };
    for (const auto& [w, h] : {std::pair{640, 480}, {1000, 700}}) {
        Bitmapa b(w, h, 0);
        Malir_.Znovu();
        for (int krok = 0; krok < 60; ++krok) {
            zmeny[static_cast<std::size_t>(d(static_cast<int>(zmeny.size())))]();
            Namaluj(b);
            ASSERT_LE(NejvetsiRozdil(b, Znovu(w, h)), 12) << "step " << krok << " at " << w;
        }
    }
}

TEST_F(MalirTest, KlicJePruhlednyADetiOrezaneRodicem) {
    const Barva pozadi = Form_->BackColor;
    auto data = std::make_shared<DataObrazku>(Bitmapa(50, 10, KLIC));
    Form_->cmd[0].Plocha().Vypln(0, 0, 50, 20, CERNA);
    Form_->cmd[0].Plocha().PaintPicture(Obrazek(data), 0, 0);
    Form_->cmd[1].Picture = Obrazek(data);
    Form_->cmd[1].Pruhledny = true;
    Form_->Uvnitr.Left = 190;
    Form_->Uvnitr.BackColor = CERVENA;
    const std::tuple<int, int, Barva> BODY[] = {{410, 105, pozadi},
                                                {410, 115, CERNA},
                                                {410, 145, pozadi},
                                                {299, 100, CERVENA},
                                                {300, 100, pozadi}};
    for (const int s : {1, 2}) {
        const Bitmapa b = Znovu(640 * s, 480 * s);
        for (const auto& [x, y, c] : BODY) EXPECT_EQ(Bod(b, x * s, y * s), DoPixelu(c)) << x;
    }
    // A new picture covers what the box has drawn, and is the ground of what it draws next.
    data = std::make_shared<DataObrazku>(Bitmapa(200, 150, DoPixelu(CERVENA)));
    Form_->Pic.Picture = Obrazek(data);
    Form_->Pic.Plocha().Vypln(0, 0, 10, 10, CERNA);
    const Bitmapa b = Znovu(640, 480);
    EXPECT_EQ(Bod(b, 250, 165), DoPixelu(CERVENA));
    EXPECT_EQ(Bod(b, 105, 55), DoPixelu(CERNA));
}

}  // namespace
}  // namespace rysovna::testy
