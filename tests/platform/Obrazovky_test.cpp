#include <memory>
#include <sstream>

#include "PlatformTest.h"
#include "base/Chyba.h"
#include "platform/Pisma.h"
#include "platform/ZpravaForm.h"

namespace rysovna::testy {
namespace {

using ObrazovkyTest = NaFormu;

TEST_F(ObrazovkyTest, UdalostDostaneNejvyssiObjektPodUkazatelem) {
    bool nic = true;
    const std::tuple<const char*, bool*, std::string> PRIPADY[] = {
        {"s105,55", &nic, "Down Pic 5,5"},
        {"s125,85", &nic, "Down Uvnitr 5,5"},
        {"s299,199", &nic, "Down Pic 199,149"},
        {"s300,200", &nic, "Down form 300,200"},
        {"s410,145", &nic, "Down cmd(2) 10,5"},
        // A hidden one is not in the way; nor is the rubber band, ever.
        {"s125,85", &Form_->Uvnitr.Visible, "Down Pic 25,35"},
        {"s125,85", &Form_->Pic.Visible, "Down form 125,85"},
        // One that is disabled leaves the event to its container, that one to the form.
        {"s125,85", &Form_->Uvnitr.Enabled, "Down Pic 25,35"},
        {"s125,85", &Form_->Pic.Enabled, "Down form 125,85"},
    };
    for (const auto& [stisk, vypni, dostane] : PRIPADY) {
        *vypni = false;
        EXPECT_EQ(Po({stisk}).at(0), dostane);
        *vypni = true;
    }
    // What is later in the order lies higher.
    Form_->cmd[1].Top = Form_->cmd[0].Top;
    EXPECT_EQ(Po({"s410,105"}).at(0), "Down cmd(2) 10,5");
    Form_->DoPopredi(Form_->cmd[0]);
    EXPECT_EQ(Po({"s410,105"}).at(0), "Down cmd(1) 10,5");
}

TEST_F(ObrazovkyTest, StiskDrziUkazatelAzDoPusteni) {
    // The second button belongs to the same object.
    EXPECT_EQ(Po({"d290,60", "d410,105:2", "n410,105", "p500,10:2", "n500,10:2", "p500,10"}),
              (Seznam_t{"Down Pic 190,10", "Down Pic 310,55", "Up Pic 310,55", "Move Pic 400,-40",
                        "Up Pic 400,-40", "Move form 500,10"}))
        << "released elsewhere: no Click";
    // What it hits goes: the plane must see no drag.
    Form_->PriStisku = [&] {
        Form_->cmd[0].Visible = false;
        return Cinnost<>();
    };
    EXPECT_EQ(Po({"d410,105", "p150,100:1", "n150,100"}), Seznam_t{"Down cmd(1) 10,5"});
}

TEST_F(ObrazovkyTest, DvojklikJeDvaStiskyAVPoliVybereSlovo) {
    const Seznam_t klik = {"Down cmd(1) 10,5", "Up cmd(1) 10,5", "Click cmd(1)"};
    for (int i = 0; i < 2; ++i) EXPECT_EQ(Po({"d410,105", "n410,105"}), klik);
    Form_->Pole.Text = "slovo za slovem";
    const auto vybral = [&](const Seznam_t& druhy) {
        Hraj({"s110,310"});
        Hraj(druhy);
        return Form_->Pole.SelStart != Form_->Pole.SelAnchor;
    };
    EXPECT_TRUE(vybral({"@100", "d110,310", "n110,310"}));
    EXPECT_FALSE(vybral({"@600", "d110,310", "n110,310"})) << "too late";
    EXPECT_FALSE(vybral({"@100", "d120,310", "n120,310"})) << "too far";

    // The first press took its form away: the second one is not for the form below.
    const auto nahore = Okna().Nacti<ZapisForm>(Host_);
    Okna().Show(*nahore);
    nahore->PriStisku = [&] {
        Okna().Hide(*nahore);
        return Cinnost<>();
    };
    Form_->Vezmi();
    EXPECT_EQ(Po({"s410,105", "d410,105", "n410,105"}), Seznam_t{"Activate"});
    EXPECT_EQ(Po({"@501", "d410,105", "n410,105"}).size(), 3U);
}

/// A row of presses, each measured from the one before: all act on what the first one hit, or not
/// at all.
TEST_F(ObrazovkyTest, RadaStiskuPatriTomuCoZasahlPrvni) {
    struct Stisk {
        std::uint32_t Po;  // ms behind the one before
        double X, Y;
        int Tlacitko;
        const char* Dostane;  // nobody if empty
    };
    const std::vector<Stisk> RADY[] = {
        {{0, 410, 118, 1, "cmd(1)"}, {500, 410, 122, 1, ""}, {500, 410, 119, 1, "cmd(1)"}},
        {{0, 410, 118, 1, "cmd(1)"}, {501, 410, 122, 1, "form"}},
        {{0, 410, 118, 1, "cmd(1)"}, {100, 410, 123, 1, "form"}},
        {{0, 402, 110, 1, "cmd(1)"}, {100, 398, 110, 1, ""}, {100, 394, 110, 1, ""}},
        {{0, 410, 118, 1, "cmd(1)"}, {100, 410, 122, 2, ""}, {100, 410, 119, 2, "cmd(1)"}},
        {{0, 202, 110, 1, "Pic"}, {400, 202, 110, 1, ""}, {400, 202, 110, 1, ""}},
        {{0, 202, 110, 1, "Pic"}, {501, 202, 110, 1, "Pic"}},
        {{0, 398, 110, 1, "form"}, {100, 402, 110, 1, ""}, {501, 402, 110, 1, "cmd(1)"}},
    };
    Form_->Pic.BereDvojklik = false;
    for (const auto& rada : RADY) {
        Host_.PosunHodiny(1000);
        for (const Stisk& s : rada) {
            SCOPED_TRACE(std::to_string(&rada - RADY) + ", press " +
                         std::to_string(&s - rada.data()));
            Host_.PosunHodiny(s.Po);
            Okna().MysDolu(s.X, s.Y, s.Tlacitko, 0);
            Okna().MysPohyb(s.X + 1, s.Y, s.Tlacitko, 0);
            Okna().MysNahoru(s.X, s.Y, s.Tlacitko, 0);
            const Seznam_t u = Form_->Vezmi();
            const std::string kdo = s.Dostane;
            ASSERT_EQ(u.empty(), kdo.empty()) << u.front();
            for (const std::string& radek : u) EXPECT_NE(radek.find(" " + kdo), std::string::npos);
        }
    }
    // Times that are known roughly are taken to be as near as they can be.
    Host_.PosunHodiny(1000);
    Okna().MysDolu(410, 118, LEVE, 0, {100, 700});
    Po({"n410,118"});
    Okna().MysDolu(410, 122, LEVE, 0, {1200, 1900});
    EXPECT_EQ(Po({"n410,122"}), Seznam_t{});
    Okna().MysDolu(410, 122, LEVE, 0, {2401, 2401});
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Down form 410,122"});
}

TEST_F(ObrazovkyTest, ZavreneCekaniZahodiStiskyAOstatniPodrzi) {
    Form_->SetFocus(Form_->Pole);
    Form_->Hodiny.Interval = 30;
    Form_->Hodiny.Enabled = true;
    // Words, each with its time, in a closed wait of 100 ms or after it; all that comes of them.
    const std::pair<const char*, Seznam_t> PRIPADY[] = {
        {"20 d410,105 30 n410,105", {}},
        {"20 d410,105 90 p350,300:1 110 p360,300:1 120 n410,105", {}},
        {"20 d410,105 120 n410,105 130 d410,105:2 140 n410,105:2",
         {"Down cmd(1) 10,5", "Up cmd(1) 10,5"}},
        {"100 d410,105 101 n410,105", {}},
        {"20 +x 21 Return 22 Space 23 Tab 24 +y 25 BackSpace 40 d410,105 50 zavri 60 p350,300:1 "
         "70 n410,105 80 p370,300 81 p380,300",
         {"Change x", "Change xy", "Change x", "QueryUnload", "Move form 380,300"}},
    };
    for (const auto& [co, dostane] : PRIPADY) {
        SCOPED_TRACE(co);
        Host_.PosunHodiny(1000);
        Form_->Pole.Text.clear();
        const std::uint32_t zacatek = Host_.TickCount();
        std::istringstream vse(co);
        std::uint32_t kdy = 0;
        for (std::string slovo; vse >> kdy >> slovo;) {
            Host_.NaplanujZa(
                kdy, [this, slovo] { slovo == "zavri" ? Okna().ZadostOZavreni() : Hraj({slovo}); });
        }
        Host_.Proved(Zavrene(10, 10));
        EXPECT_EQ(Host_.TickCount() - zacatek, 100U);
        EXPECT_EQ(Form_->Vezmi(), Seznam_t{}) << "nothing comes through, nor does the timer";
        Form_->Hodiny.Enabled = false;
        while (Host_.Naplanovano() > 0) Host_.Obrat(10);
        Host_.Obrat(0);
        EXPECT_EQ(Form_->Vezmi(), dostane);
        Form_->Hodiny.Enabled = true;
    }
    // A release whose press came before the wait is its own; and some forms take presses always.
    Form_->Hodiny.Enabled = false;
    for (const bool vzdy : {false, true}) {
        Host_.PosunHodiny(1000);
        Form_->StiskVzdy = vzdy;
        if (!vzdy) Hraj({"d410,105"});
        {
            const Obrazovky::Zavreni zavreni(Okna());
            if (vzdy) Hraj({"d410,105"});
            Hraj({"n410,105"});
        }
        Host_.Obrat(0);
        EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Down cmd(1) 10,5", "Up cmd(1) 10,5", "Click cmd(1)"}));
    }
}

TEST_F(ObrazovkyTest, ActivateDostaneTenKdoPrijdeDoPopredi) {
    const auto maly = Okna().Nacti<ZapisForm>(Host_);
    maly->Left = 500;
    maly->Width = maly->Height = 100;
    for (int i = 0; i < 2; ++i) Okna().Show(*maly);
    EXPECT_EQ(maly->Vezmi(), Seznam_t{"Activate"}) << "once";
    Okna().Hide(*maly);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Activate"}) << "the next one behind comes to the front";
    Okna().Show(*maly);
    // A press beside a small form calls the one behind, which calls the small one back.
    Form_->PriAktivaci = [&] { Okna().Show(*maly); };
    maly->Vezmi();
    EXPECT_EQ(Po({"d10,10", "n10,10"}), Seznam_t{"Activate"}) << "and no press";
    EXPECT_EQ(maly->Vezmi(), Seznam_t{"Activate"});
    Hraj({"s510,20"});
    EXPECT_EQ(maly->Vezmi().at(0), "Down form 10,20");
    Okna().Unload(*maly);
    Okna().Show(*maly);
    EXPECT_EQ(Okna().Vpredu(), Form_) << "what is unloaded does not come back";
}

TEST_F(ObrazovkyTest, FormularOdstranenyPriCekaniNicNedrzi) {
    auto form = Okna().Nacti<ZapisForm>(Host_);
    const std::weak_ptr<ZapisForm> zije = form;
    Okna().Show(*form);
    form->PriStisku = [&] { return Cekej(200); };
    Host_.NaplanujZa(50, [&, f = form.get()] {
        Okna().Unload(*f);
        EXPECT_TRUE(f->Zavreny() && !f->Viditelny() && !zije.expired());
        f->SetFocus(f->Pole);
    });
    form.reset();
    Hraj({"d150,150"});
    EXPECT_TRUE(zije.expired()) << "destroyed when its handler was ended";
    Form_->Vezmi();
    EXPECT_EQ(Po({"p160,160:1", "+x", "n160,160"}), Seznam_t{}) << "capture and focus went with it";
}

TEST_F(ObrazovkyTest, ModalniFormularMaVsechnoSam) {
    Form_->SetFocus(Form_->Pole);
    Form_->Hodiny.Interval = 10;
    Form_->Hodiny.Enabled = true;
    const auto modalni = Okna().Nacti<ZapisForm>(Host_);
    Okna().NastavModalni(modalni);
    Okna().Show(*Form_);
    EXPECT_EQ(Okna().Vpredu(), modalni) << "nobody gets over it";
    Form_->Vezmi();
    Hraj({"d150,150", "n150,150", "+x", "Return"});
    Okna().ZadostOZavreni();
    Host_.Cekej(50);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
    EXPECT_EQ(modalni->Vezmi(), (Seznam_t{"Down Pic 50,100", "Up Pic 50,100", "Click Pic",
                                          "Klavesa Return", "QueryUnload"}));
    Okna().Unload(*modalni);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{}) << "no Activate when a message box goes";
}

TEST_F(ObrazovkyTest, StiskZapocatyPredZpravouUzNikomuNepatri) {
    Host_.SkutecneZpravy = true;
    Form_->PriStisku = [&] {
        Host_.NaplanujZa(10, [&] { Hraj({"n410,105"}); });
        Host_.NaplanujZa(20, [&] { Hraj({"Return"}); });
        return Zeptej("Opravdu?", Odpoved::Ano);
    };
    EXPECT_EQ(Po({"d410,105"}), Seznam_t{"Down cmd(1) 10,5"});
}

TEST_F(NaStroji, ZpravaOdpovidaNaKlavesyIMys) {
    Host_.SkutecneZpravy = true;
    const std::tuple<Styl, std::vector<std::string>, Odpoved> PRIPADY[] = {
        {Styl::OtazkaAnoNe, {"Escape"}, Odpoved::Ne},
        {Styl::OtazkaAnoNe, {"Right", "Return"}, Odpoved::Ne},
        {Styl::OtazkaAnoNe, {"Left", "Space"}, Odpoved::Ne},
        {Styl::OtazkaAnoNe, {"Tab", "Tab", "Return"}, Odpoved::Ano},
        {Styl::OtazkaAnoNe, {"F5", "Home", "Escape"}, Odpoved::Ne},
        {Styl::Ok, {"Escape"}, Odpoved::Ok},
        {Styl::Stop, {"Right", "Return"}, Odpoved::Ok},
    };
    for (const auto& [styl, stisky, ceka] : PRIPADY) {
        for (const std::string& k : stisky) Host_.NaplanujZa(10, [&] { Hraj({k}); });
        EXPECT_EQ(Host_.Proved(Host_.MsgBox("Text", "Titul", styl)), ceka) << stisky.front();
        EXPECT_EQ(Host_.Naplanovano(), 0U) << "closed too soon";
        EXPECT_FALSE(Okna().JeModalni());
    }
    Host_.NaplanujZa(10, [&] {
        const auto form = Okna().Vpredu();
        const Ovladac* ne = form->Najdi("cmdNe");
        Host_.Stiskni(form->Left + 5, form->Top + 5);
        EXPECT_EQ(Okna().Vpredu(), form) << "a press beside the buttons answers nothing";
        Host_.Stiskni(form->Left + ne->Left + 3, form->Top + ne->Top + 3);
    });
    EXPECT_EQ(Host_.Proved(Host_.MsgBox("Text", "Titul", Styl::OtazkaAnoNe)), Odpoved::Ne);
    EXPECT_THROW((void)Host_.Proved(Host_.MsgBox("Text", "Titul", Styl::Ok)), BehovaChyba)
        << "a script that never answers must not hang";
}

TEST_F(NaStroji, DlouhaZpravaSeVejdeDoOkna) {
    std::string text = "Grafická";
    for (int i = 0; i < 20; ++i) text += " karta";
    const auto form = Okna().Nacti<ZpravaForm>(Host_, text, "Upozornění", Styl::Ok);
    std::string slozeny;
    for (const Ovladac* o : form->Ovladace()) {
        EXPECT_LE(o->Top + o->Height, form->Height) << o->Name;
        if (o->Name != "text") continue;
        const auto& radek = static_cast<const Label&>(*o);
        EXPECT_LE(SirkaTextu(radek.Font, radek.Caption), radek.Width) << "clipped";
        slozeny += radek.Caption + " ";
    }
    EXPECT_EQ(slozeny, text + " ");
}

}  // namespace
}  // namespace rysovna::testy
