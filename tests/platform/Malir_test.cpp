#include "platform/Malir.h"

#include <random>

#include "PlatformTest.h"
#include "base/Chyba.h"
#include "platform/Bitmapa.h"
#include "platform/ObrazekData.h"

namespace rysovna::testy {

namespace {

class MalirTest : public NaStroji {
protected:
    MalirTest() : Form_(Okna().Nacti<ZapisForm>()) {
        Form_->Uvnitr.Caption = "Ahoj";
        Form_->BackColor = Rgb(200, 220, 240);
        Form_->Pic.Plocha().Line(0, 0, 199, 149);
        Okna().Show(*Form_);
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
        int nejvetsi = a.Body.size() == b.Body.size() ? 0 : 256;
        for (std::size_t i = 0; i < a.Body.size() && nejvetsi < 256; ++i) {
            for (const unsigned posun : {0U, 8U, 16U}) {
                const auto kanal = [&](const Bitmapa& x) {
                    return static_cast<int>((x.Body[i] >> posun) & 0xFF);
                };
                nejvetsi = std::max(nejvetsi, std::abs(kanal(a) - kanal(b)));
            }
        }
        return nejvetsi;
    }
    static Pixel Bod(const Bitmapa& b, int x, int y) { return b.Radka(y)[x]; }

    std::shared_ptr<ZapisForm> Form_;
    Malir Malir_;
};

TEST_F(MalirTest, VejdeSeSeZachovanymPomeremStran) {
    const struct {
        int W, H;
        Umisteni Ceka;
    } PRIPADY[] = {
        {640, 480, {1, 0, 0}},          {1920, 1080, {2.25, 240, 0}}, {1280, 1024, {2, 0, 32}},
        {1080, 1920, {1.6875, 0, 555}}, {3840, 2160, {4.5, 480, 0}},
    };
    for (const auto& p : PRIPADY) EXPECT_EQ(Umisteni::Vejdi(p.W, p.H), p.Ceka) << p.W;
}

TEST_F(MalirTest, OkoliJeCerneIPoZmeneVelikosti) {
    Bitmapa b(900, 600, 0x123456);
    EXPECT_EQ(Namaluj(b), (std::vector<Obdelnik>{{0, 0, 900, 600}}));
    EXPECT_EQ(Bod(b, 10, 10), DoPixelu(CERNA));
    EXPECT_EQ(Bod(b, 60, 10), DoPixelu(Rgb(200, 220, 240)));
    EXPECT_TRUE(Namaluj(b).empty()) << "nothing changed";
    Bitmapa c(1000, 600, 0x123456);
    EXPECT_EQ(Namaluj(c).size(), 1U);
    EXPECT_EQ(Bod(c, 90, 10), DoPixelu(CERNA));
    Malir_.Znovu();
    EXPECT_EQ(Namaluj(c).size(), 1U);
}

TEST_F(MalirTest, MalujeSeJenCoSeZmenilo) {
    Bitmapa b(640, 480, 0);
    Namaluj(b);
    const Obdelnik uvnitr{120, 80, 40, 40};
    const struct {
        const char* Co;
        std::function<void()> Zmena;
        std::vector<Obdelnik> Ceka;
    } PRIPADY[] = {
        {"caption", [&] { Form_->Uvnitr.Caption = "x"; }, {uvnitr}},
        {"the same caption", [&] { Form_->Uvnitr.Caption = std::string("x"); }, {}},
        {"colour", [&] { Form_->Uvnitr.ForeColor = CERVENA; }, {uvnitr}},
        {"hidden", [&] { Form_->Uvnitr.Visible = false; }, {uvnitr}},
        {"hidden and changed", [&] { Form_->Uvnitr.Caption = "y"; }, {}},
        {"shown", [&] { Form_->Uvnitr.Visible = true; }, {uvnitr}},
        {"moved", [&] { Form_->Uvnitr.Left += 20; }, {{120, 80, 60, 40}}},
        {"drawing", [&] { Form_->Pic.Plocha().Circle(9, 9, 5); }, {{100, 50, 200, 150}}},
        {"two apart",
         [&] {
             Form_->cmd[0].BackColor = CERNA;
             Form_->cmd[1].BackColor = CERNA;
         },
         {{400, 100, 50, 20}, {400, 140, 50, 20}}},
        {"order", [&] { Form_->DoPopredi(Form_->cmd[0]); }, {{400, 100, 50, 20}}},
        {"ground", [&] { Form_->BackColor = BILA; }, {{0, 0, 640, 480}}},
    };
    for (const auto& p : PRIPADY) {
        p.Zmena();
        std::vector<Obdelnik> mame = Namaluj(b);
        std::sort(mame.begin(), mame.end(),
                  [](const Obdelnik& x, const Obdelnik& y) { return x.Top < y.Top; });
        EXPECT_EQ(mame, p.Ceka) << p.Co;
        EXPECT_EQ(b.Body, Znovu(640, 480).Body) << p.Co;
    }
}

TEST_F(MalirTest, PoKouscichJeTotezCoNaraz) {
    // Whatever happens between two paintings, the window shows what one fresh painting would.
    for (const auto& [w, h] : {std::pair{640, 480}, {1000, 700}}) {
        std::mt19937 stroj(7);
        const auto d = [&](int n) { return static_cast<int>(stroj() % static_cast<unsigned>(n)); };
        Bitmapa b(w, h, 0);
        Malir_.Znovu();
        ZapisForm& f = *Form_;
        for (int krok = 0; krok < 60; ++krok) {
            switch (d(12)) {
                case 0:
                    f.Uvnitr.Caption = std::string(static_cast<std::size_t>(d(9)), 'm');
                    break;
                case 1:
                    f.Uvnitr.Visible = !f.Uvnitr.Visible;
                    break;
                case 2:
                    f.Guma.Left = d(300) - 50;
                    break;
                case 3:
                    f.Guma.Width = f.Guma.Height = d(100);
                    break;
                case 4:
                    f.Pic.Left = d(600);
                    break;
                case 5:
                    f.Pic.Plocha().Vypln(d(200), d(150), d(50), d(50), d(0x1000000));
                    break;
                case 6:
                    f.DoPopredi(*f.Ovladace()[static_cast<std::size_t>(d(5))]);
                    break;
                case 7:
                    f.Zamereni() == nullptr ? f.SetFocus(f.Pole) : f.ZrusZamereni();
                    break;
                case 8:
                    Okna().Text("ab");
                    break;
                case 9:
                    Okna().Klavesa("Left", d(2));
                    break;
                case 10:
                    Host_.Spi(300);
                    break;
                default:
                    f.cmd[0].Ramecek = !f.cmd[0].Ramecek;
                    break;
            }
            Namaluj(b);
            ASSERT_LE(NejvetsiRozdil(b, Znovu(w, h)), 12) << "step " << krok << " at " << w;
        }
    }
}

TEST_F(MalirTest, DetiJsouOrezanyRodicem) {
    Form_->Uvnitr.Left = 190;
    Form_->Uvnitr.BackColor = CERVENA;
    const Bitmapa b = Znovu(640, 480);
    EXPECT_EQ(Bod(b, 299, 100), DoPixelu(CERVENA));
    EXPECT_EQ(Bod(b, 300, 100), DoPixelu(Rgb(200, 220, 240)));
}

TEST_F(MalirTest, KlicovaBarvaJePruhledna) {
    Form_->cmd[0].Plocha().Vypln(0, 0, 50, 20, Rgb(9, 9, 9));
    auto data = std::make_shared<DataObrazku>();
    data->Logicka = Bitmapa(50, 10, KLIC);
    data->MaKlic = true;
    Form_->cmd[0].Plocha().PaintPicture(Obrazek(data), 0, 0);
    Form_->cmd[1].Picture = Obrazek(data);
    Form_->cmd[1].Pruhledny = true;
    for (const int s : {1, 2}) {
        const Bitmapa b = Znovu(640 * s, 480 * s);
        EXPECT_EQ(Bod(b, 410 * s, 105 * s), DoPixelu(Rgb(200, 220, 240)));
        EXPECT_EQ(Bod(b, 410 * s, 115 * s), DoPixelu(Rgb(9, 9, 9)));
        EXPECT_EQ(Bod(b, 410 * s, 145 * s), DoPixelu(Rgb(200, 220, 240)));
    }
}

TEST_F(MalirTest, NovyObrazekPrekryjeCoBoxKreslil) {
    auto data = std::make_shared<DataObrazku>();
    data->Logicka = Bitmapa(200, 150, DoPixelu(CERVENA));
    Form_->Pic.Picture = Obrazek(data);
    EXPECT_EQ(Bod(Znovu(640, 480), 250, 60), DoPixelu(CERVENA));
    Form_->Pic.Plocha().Vypln(0, 0, 10, 10, CERNA);
    const Bitmapa b = Znovu(640, 480);
    EXPECT_EQ(Bod(b, 250, 60), DoPixelu(CERVENA)) << "the ground of the new drawing";
    EXPECT_EQ(Bod(b, 105, 55), DoPixelu(CERNA));
}

TEST_F(MalirTest, KurzorBlikaAPriPsaniSviti) {
    Form_->SetFocus(Form_->Pole);
    Host_.Spi(100);
    Okna().Text("a");
    Bitmapa b(640, 480, 0);
    Namaluj(b);
    Host_.Spi(BLIKANI - 10);
    EXPECT_TRUE(Namaluj(b).empty());
    Host_.Spi(20);
    EXPECT_EQ(Namaluj(b), (std::vector<Obdelnik>{{100, 300, 150, 20}})) << "goes out";
    Okna().Klavesa("Left", 0);
    EXPECT_EQ(Namaluj(b).size(), 1U) << "comes back at once";
}

TEST_F(MalirTest, SnimekMaVelikostPodleMeritka) {
    const DocasnySoubor soubor("snimek.png");
    Host_.Snimek(soubor.Cesta().string(), 1.5);
    std::ifstream vstup(soubor.Cesta(), std::ios::binary);
    std::string hlavicka(24, '\0');
    ASSERT_TRUE(vstup.read(hlavicka.data(), 24));
    EXPECT_EQ(hlavicka.substr(1, 3), "PNG");
    EXPECT_EQ(hlavicka.substr(16, 8), std::string("\0\0\x03\xC0\0\0\x02\xD0", 8));
    EXPECT_THROW(Host_.Snimek("/neni/tady/snimek.png"), BehovaChyba);
}

}  // namespace

}  // namespace rysovna::testy
