#include <memory>

#include "PlatformTest.h"
#include "base/Chyba.h"
#include "platform/ZpravaForm.h"

namespace rysovna::testy {

namespace {

class ObrazovkyTest : public NaStroji {
protected:
    ObrazovkyTest() : Form_(Okna().Nacti<ZapisForm>()) {
        Okna().Show(*Form_);
        Form_->Vezmi();
    }
    void Stiskni(double x, double y) { Host_.Stiskni(x, y); }

    std::shared_ptr<ZapisForm> Form_;
};

TEST_F(ObrazovkyTest, UdalostDostaneNejvyssiObjektPodUkazatelem) {
    const struct {
        double X, Y;
        std::function<void()> Uprava;
        std::string Dostane;
    } PRIPADY[] = {
        {105, 55, {}, "Down Pic 5,5"},
        {125, 85, {}, "Down Uvnitr 5,5"},
        {299, 199, {}, "Down Pic 199,149"},
        {300, 200, {}, "Down form 300,200"},
        {410, 145, {}, "Down cmd(2) 10,5"},
        // Neither is in the way: a hidden one, a rubber band.
        {125, 85, [&] { Form_->Uvnitr.Visible = false; }, "Down Pic 25,35"},
        {299, 199, [&] { Form_->Guma.Width = 500; }, "Down Pic 199,149"},
        // One that is disabled, itself or by its container, leaves the event to the form.
        {125, 85, [&] { Form_->Uvnitr.Enabled = false; }, "Down form 125,85"},
        {125, 85, [&] { Form_->Pic.Enabled = false; }, "Down form 125,85"},
        {125, 85, [&] { Form_->Pic.Visible = false; }, "Down form 125,85"},
    };
    for (const auto& p : PRIPADY) {
        Form_->Uvnitr.Visible = Form_->Pic.Visible = true;
        Form_->Uvnitr.Enabled = Form_->Pic.Enabled = true;
        if (p.Uprava) p.Uprava();
        Okna().MysDolu(p.X, p.Y, 1, 0);
        Okna().MysNahoru(p.X, p.Y, 1, 0);
        EXPECT_EQ(Form_->Vezmi().at(0), p.Dostane) << p.X << "," << p.Y;
    }
}

TEST_F(ObrazovkyTest, CoJePozdejiVPoradiLeziVys) {
    Form_->cmd[1].Top = Form_->cmd[0].Top;
    Stiskni(410, 105);
    EXPECT_EQ(Form_->Vezmi().at(0), "Down cmd(2) 10,5");
    Form_->DoPopredi(Form_->cmd[0]);
    Stiskni(410, 105);
    EXPECT_EQ(Form_->Vezmi().at(0), "Down cmd(1) 10,5");
}

TEST_F(ObrazovkyTest, StiskDrziUkazatelAzDoPusteni) {
    Okna().MysDolu(290, 60, 1, 0);
    Okna().MysPohyb(500, 10, 1, 0);
    Okna().MysNahoru(500, 10, 1, 0);
    EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Down Pic 190,10", "Move Pic 400,-40", "Up Pic 400,-40"}))
        << "released elsewhere: no Click";
    Okna().MysPohyb(500, 10, 0, 0);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Move form 500,10"});
}

TEST_F(ObrazovkyTest, DruheTlacitkoPatriTemuzObjektu) {
    Okna().MysDolu(110, 60, 1, 0);
    Okna().MysDolu(410, 105, 2, 0);
    Okna().MysNahoru(410, 105, 1, 0);
    Okna().MysPohyb(410, 105, 2, 0);
    Okna().MysNahoru(410, 105, 2, 0);
    EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Down Pic 10,10", "Down Pic 310,55", "Up Pic 310,55",
                                        "Move Pic 310,55", "Up Pic 310,55"}));
}

TEST_F(ObrazovkyTest, ZmizelyObjektNedostaneNicANikdoJiny) {
    Form_->PriStisku = [&] { Form_->cmd[0].Visible = false; };
    Okna().MysDolu(410, 105, 1, 0);
    Okna().MysPohyb(150, 100, 1, 0);
    Okna().MysNahoru(150, 100, 1, 0);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Down cmd(1) 10,5"}) << "the plane must see no drag";
    Form_->PriStisku = {};
    Stiskni(150, 150);
    EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Down Pic 50,100", "Up Pic 50,100", "Click Pic"}));
}

TEST_F(ObrazovkyTest, DvojklikJeDvaStiskyAJednoNavic) {
    Stiskni(410, 105);
    Stiskni(411, 105);
    Stiskni(411, 105);
    EXPECT_EQ(Form_->Vezmi(),
              (Seznam_t{"Down cmd(1) 10,5", "Up cmd(1) 10,5", "Click cmd(1)", "Down cmd(1) 11,5",
                        "DblClick cmd(1)", "Up cmd(1) 11,5", "Click cmd(1)", "Down cmd(1) 11,5",
                        "Up cmd(1) 11,5", "Click cmd(1)"}));
    const auto dvojkliky = [&](double x2, std::uint32_t pauza) {
        Host_.Spi(1000);
        Stiskni(410, 105);
        Host_.Spi(pauza);
        Stiskni(x2, 105);
        const Seznam_t u = Form_->Vezmi();
        return std::count(u.begin(), u.end(), "DblClick cmd(1)");
    };
    EXPECT_EQ(dvojkliky(410, 400), 1);
    EXPECT_EQ(dvojkliky(410, 600), 0) << "too late";
    EXPECT_EQ(dvojkliky(420, 100), 0) << "too far";
}

TEST_F(ObrazovkyTest, ActivateDostaneTenKdoPrijdeDoPopredi) {
    const auto druhy = Okna().Nacti<ZapisForm>();
    druhy->JmenoFormu = "Druhy";
    Okna().Show(*druhy);
    Okna().Show(*druhy);
    EXPECT_EQ(druhy->Vezmi(), Seznam_t{"Activate"}) << "once";
    EXPECT_EQ(Okna().Vpredu(), druhy);
    Okna().Hide(*druhy);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Activate"}) << "the next one behind comes to the front";
    EXPECT_EQ(Okna().Najdi("Druhy"), druhy) << "hidden, not forgotten";
    Okna().Unload(*druhy);
    EXPECT_EQ(Okna().Najdi("Druhy"), nullptr);
    Okna().Show(*druhy);
    EXPECT_EQ(Okna().Vpredu(), Form_) << "what is unloaded does not come back";
}

TEST_F(ObrazovkyTest, StiskVedleMalehoFormulareVolaPozadi) {
    const auto maly = Okna().Nacti<ZapisForm>();
    maly->Left = 500;
    maly->Top = 300;
    maly->Width = maly->Height = 100;
    Okna().Show(*maly);
    Form_->PriAktivaci = [&] { Okna().Show(*maly); };
    Form_->Vezmi();
    maly->Vezmi();
    Stiskni(10, 10);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Activate"}) << "and no press";
    EXPECT_EQ(maly->Vezmi(), Seznam_t{"Activate"});
    EXPECT_EQ(Okna().Vpredu(), maly);
    Stiskni(510, 320);
    EXPECT_EQ(maly->Vezmi().at(0), "Down form 10,20");
}

TEST_F(ObrazovkyTest, CasovaceJdouPodleHodin) {
    Form_->Hodiny.Interval = 1000;
    Form_->Hodiny.Enabled = true;
    for (int i = 0; i < 25; ++i) Host_.DoEvents(100);
    EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Tick 1000", "Tick 2000"}));
    // A handler that waits longer than the interval is not entered again.
    Form_->PriTiku = [&] {
        const std::uint32_t konec = Host_.TickCount() + 2500;
        while (Host_.TickCount() < konec) Host_.DoEvents(100);
        Form_->Hodiny.Enabled = false;
    };
    for (int i = 0; i < 60; ++i) Host_.DoEvents(100);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Tick 3000"});
}

TEST_F(ObrazovkyTest, FormularZnicenyVeVnorenemCekaniDoziveSvujHandler) {
    // The form unloads while its handler waits: by its own second press, by its timer, by another.
    for (int jak = 0; jak < 3; ++jak) {
        auto form = Okna().Nacti<ZapisForm>();
        const std::weak_ptr<ZapisForm> zije = form;
        Okna().Show(*form);
        ZapisForm* f = form.get();
        form.reset();
        bool dobehl = false;
        f->PriStisku = [&, f] {
            f->PriStisku = [f] { Stroj().Okna().Unload(*f); };
            f->PriTiku = f->PriStisku;
            if (jak == 0) {
                Host_.NaplanujZa(50, [&] {
                    Okna().MysNahoru(150, 150, 1, 0);
                    Okna().MysDolu(410, 105, 1, 0);
                });
            }
            if (jak == 1) {
                f->Hodiny.Interval = 30;
                f->Hodiny.Enabled = true;
            }
            if (jak == 2) Host_.NaplanujZa(50, [&, f] { Okna().Unload(*f); });
            const std::uint32_t konec = Host_.TickCount() + 200;
            while (Host_.TickCount() < konec) Host_.DoEvents(20);
            EXPECT_TRUE(f->Zavreny());
            EXPECT_FALSE(f->Viditelny());
            EXPECT_FALSE(zije.expired());
            f->SetFocus(f->Pole);
            dobehl = true;
        };
        Okna().MysDolu(150, 150, 1, 0);
        EXPECT_TRUE(dobehl);
        EXPECT_TRUE(zije.expired()) << "destroyed when its handler was done";
        Form_->Vezmi();
        Okna().MysPohyb(160, 160, 1, 0);
        Okna().Text("x");
        Okna().MysNahoru(160, 160, 1, 0);
        EXPECT_EQ(Form_->Vezmi(), Seznam_t{}) << "capture and focus went with it";
        Okna().UnloadVse();
        Form_ = Okna().Nacti<ZapisForm>();
        Okna().Show(*Form_);
    }
}

TEST_F(ObrazovkyTest, ModalniFormularMaVsechnoSam) {
    Form_->SetFocus(Form_->Pole);
    Form_->Hodiny.Interval = 10;
    Form_->Hodiny.Enabled = true;
    const auto modalni = Okna().Nacti<ZapisForm>();
    Okna().NastavModalni(modalni);
    Okna().Show(*Form_);
    EXPECT_EQ(Okna().Vpredu(), modalni) << "nobody gets over it";
    Form_->Vezmi();
    Stiskni(150, 150);
    Okna().Text("x");
    Okna().Klavesa("Return", 0);
    Okna().ZadostOZavreni();
    for (int i = 0; i < 5; ++i) Host_.DoEvents(10);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
    EXPECT_EQ(modalni->Vezmi(), (Seznam_t{"Down Pic 50,100", "Up Pic 50,100", "Click Pic",
                                          "Klavesa Return", "QueryUnload"}));
    Okna().Unload(*modalni);
    EXPECT_FALSE(Okna().JeModalni());
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{}) << "no Activate when a message box goes";
}

TEST_F(ObrazovkyTest, StiskZapocatyPredZpravouUzNikomuNepatri) {
    Host_.SkutecneZpravy = true;
    Form_->PriStisku = [&] {
        Host_.NaplanujZa(10, [&] { Okna().MysNahoru(410, 105, 1, 0); });
        Host_.NaplanujZa(20, [&] { Okna().Klavesa("Return", 0); });
        EXPECT_EQ(Host_.MsgBox("Opravdu?", "Konec", Styl::OtazkaAnoNe), Odpoved::Ano);
    };
    Okna().MysDolu(410, 105, 1, 0);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Down cmd(1) 10,5"});
}

TEST_F(NaStroji, ZpravaOdpovidaNaKlavesyIMys) {
    Host_.SkutecneZpravy = true;
    using Klavesy = std::vector<std::string>;
    const struct {
        Styl Druh;
        Klavesy Stisky;
        Odpoved Ceka;
    } PRIPADY[] = {
        {Styl::OtazkaAnoNe, {"Return"}, Odpoved::Ano},
        {Styl::OtazkaAnoNe, {"Escape"}, Odpoved::Ne},
        {Styl::OtazkaAnoNe, {"Right", "Return"}, Odpoved::Ne},
        {Styl::OtazkaAnoNe, {"Left", "Space"}, Odpoved::Ne},
        {Styl::OtazkaAnoNe, {"Tab", "Tab", "Return"}, Odpoved::Ano},
        {Styl::OtazkaAnoNe, {"F5", "Home", "Escape"}, Odpoved::Ne},
        {Styl::Ok, {"Escape"}, Odpoved::Ok},
        {Styl::Stop, {"Right", "Return"}, Odpoved::Ok},
    };
    for (const auto& p : PRIPADY) {
        for (const std::string& k : p.Stisky) Host_.NaplanujZa(10, [&] { Okna().Klavesa(k, 0); });
        EXPECT_EQ(Host_.MsgBox("Text", "Titul", p.Druh), p.Ceka) << p.Stisky.front();
        EXPECT_EQ(Host_.Naplanovano(), 0U) << "closed too soon";
        EXPECT_FALSE(Okna().JeModalni());
    }
    Host_.NaplanujZa(10, [&] {
        const auto form = Okna().Vpredu();
        const Ovladac* ne = form->Najdi("cmdNe");
        ASSERT_NE(ne, nullptr);
        Host_.Stiskni(form->Left + 5, form->Top + 5);
        EXPECT_EQ(Okna().Vpredu(), form) << "a press beside the buttons answers nothing";
        Host_.Stiskni(form->Left + ne->Left + 3, form->Top + ne->Top + 3);
    });
    EXPECT_EQ(Host_.MsgBox("Text", "Titul", Styl::OtazkaAnoNe), Odpoved::Ne);
    EXPECT_EQ(Host_.Zpravy.size(), std::size(PRIPADY) + 1);
    EXPECT_THROW((void)Host_.MsgBox("Text", "Titul", Styl::Ok), BehovaChyba)
        << "a script that never answers must not hang";
}

TEST_F(NaStroji, DlouhaZpravaSeVejdeDoOkna) {
    const std::string text =
        "Grafická karta nepodporuje okamžité přepnutí rozlišení obrazovky. Aplikace proto nepoběží "
        "přes celou obrazovku.";
    const auto form = Okna().Nacti<ZpravaForm>(text, "Upozornění", Styl::Ok);
    std::string slozeny;
    for (const Ovladac* o : form->Ovladace()) {
        EXPECT_GE(o->Left, 0);
        EXPECT_LE(o->Left + o->Width, form->Width) << o->Name;
        EXPECT_LE(o->Top + o->Height, form->Height) << o->Name;
        if (o->Name != "text") continue;
        const auto& radek = static_cast<const Label&>(*o);
        EXPECT_LE(SirkaTextu(radek.Font, radek.Caption), radek.Width) << "clipped";
        slozeny += (slozeny.empty() ? "" : " ") + radek.Caption;
    }
    EXPECT_EQ(slozeny, text);
}

TEST_F(NaStroji, ScenarJdePodleVirtualnichHodin) {
    std::vector<std::string> dorucene;
    const auto zapis = [&](const std::string& co) {
        dorucene.push_back(co + " " + std::to_string(Host_.TickCount()));
    };
    Host_.Naplanuj(300, [&] { zapis("c"); });
    Host_.Naplanuj(100, [&] {
        zapis("a");
        Host_.DoEvents(500);
    });
    Host_.Naplanuj(100, [&] { zapis("b"); });
    Host_.Spi(150);
    EXPECT_TRUE(dorucene.empty()) << "a sleep lets nothing through";
    Host_.DoEvents(1000);
    EXPECT_EQ(dorucene, (std::vector<std::string>{"a 150", "b 150", "c 300"}));
    const std::uint32_t pred = Host_.TickCount();
    Host_.DoEvents(0);
    EXPECT_EQ(Host_.TickCount(), pred + 1);
    EXPECT_EQ(Host_.MsgBox("?", "", Styl::OtazkaAnoNe), Odpoved::Ne);
    Host_.PridejOdpoved(Odpoved::Ano);
    EXPECT_EQ(Host_.MsgBox("?", "", Styl::OtazkaAnoNe), Odpoved::Ano);
}

}  // namespace

}  // namespace rysovna::testy
