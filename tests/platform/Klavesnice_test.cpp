// The ring of the keys on a form of a few objects: where it goes, how it presses, when it hides.

#include "platform/Klavesnice.h"

#include "PlatformTest.h"

namespace rysovna::testy {
namespace {

class KlavesniceTest : public NaStroji {
protected:
    KlavesniceTest() : Form_(Okna().Nacti<ZapisForm>(Host_)) {
        Form_->BereKlavesy = false;
        Form_->Pole.Zastavka = 3;
        Form_->Pic.Zastavka = 5;
        for (PictureBox& c : Form_->cmd) c.Zastavka = 2;
        Okna().Show(*Form_);
        Form_->Vezmi();
    }
    /// Name and index of what has the ring; empty if it is not shown.
    std::string Prsten() {
        const auto p = Okna().PrstenVpredu();
        return !p ? "" : p->Co->Name + (p->Co->Index != 0 ? std::to_string(p->Co->Index) : "");
    }
    Seznam_t PoKlavesach(const std::vector<std::pair<const char*, int>>& klavesy) {
        Seznam_t kde;
        for (const auto& [k, shift] : klavesy) {
            Okna().Klavesa(k, shift);
            kde.push_back(Prsten());
        }
        return kde;
    }

    std::shared_ptr<ZapisForm> Form_;
};

TEST_F(KlavesniceTest, ObchaziZiveZastavkyVPoradiASchovaSePredMysi) {
    EXPECT_EQ(Prsten(), "");
    EXPECT_EQ(PoKlavesach({{"a", 0}, {"1", 0}}), (Seznam_t{"", ""})) << "these press nothing seen";
    EXPECT_EQ(PoKlavesach({{"Space", 0}}), Seznam_t{"cmd1"}) << "it comes up and presses nothing";
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
    EXPECT_EQ(PoKlavesach({{"Tab", 0}, {"Tab", 0}, {"Tab", 0}, {"Tab", 0}, {"Tab", 1}, {"Tab", 1}}),
              (Seznam_t{"cmd2", "Pole", "Pic", "cmd1", "Pic", "Pole"}));
    Form_->cmd[1].Enabled = false;
    Form_->Pic.Visible = false;
    EXPECT_EQ(PoKlavesach({{"Tab", 0}, {"Tab", 0}}), (Seznam_t{"cmd1", "Pole"}));
    Form_->cmd[1].Enabled = Form_->Pic.Visible = true;
    EXPECT_EQ(PoKlavesach({{"Tab", 1}, {"Up", 0}, {"Down", 0}, {"Left", 0}, {"Left", 0}}),
              (Seznam_t{"cmd2", "cmd1", "cmd2", "Pic", "Pic"}));
    Form_->ZrusZamereni();  // the box keeps the keyboard where no ring is shown
    // A hand that only rests on the mouse takes nothing over.
    Okna().MysPohyb(300, 300, 0, 0);
    Okna().Klavesa("Tab", 0);
    Okna().MysPohyb(302, 302, 0, 0);
    EXPECT_EQ(Prsten(), "cmd1");
    Okna().MysPohyb(303, 303, 0, 0);
    EXPECT_EQ(Prsten(), "");
    EXPECT_EQ(PoKlavesach({{"Tab", 0}}), Seznam_t{"cmd1"});
    Host_.Stiskni(410, 145);
    EXPECT_EQ(Prsten(), "");
    EXPECT_EQ(PoKlavesach({{"Tab", 0}}), Seznam_t{"cmd2"}) << "it comes back where the mouse was";
}

TEST_F(KlavesniceTest, StiskKlavesouJeCelyKlikANikdyDvojklik) {
    const Seznam_t klik = {"Down cmd(1) 25,10", "Up cmd(1) 25,10", "Click cmd(1)"};
    Okna().Klavesa("Tab", 0);
    for (const char* cim : {"Space", "Return", "Space"}) {
        Okna().Klavesa(cim, 0);
        Okna().KlavesaNahoru(cim);
        EXPECT_EQ(Form_->Vezmi(), klik);
    }
    // Nor with a press of the mouse, before or behind it.
    for (int i = 0; i < 2; ++i) {
        Host_.Stiskni(425, 110);
        EXPECT_EQ(Form_->Vezmi(), klik);
        Okna().Klavesa("Tab", 0);
        Okna().Klavesa("Space", 0);
        EXPECT_EQ(Form_->Vezmi(), klik);
        Host_.PosunHodiny(1000);
    }
    // While the mouse holds something, keys press nothing.
    Host_.PosunHodiny(1000);
    Okna().MysDolu(425, 110, 1, 0);
    Form_->Vezmi();
    Okna().Klavesa("Tab", 0);
    Okna().Klavesa("Space", 0);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
}

TEST_F(KlavesniceTest, DrzenaKlavesaJeDrzeneTlacitko) {
    Form_->cmd[0].Klavesou = StiskKlavesou::Drzeni;
    PoKlavesach({{"Tab", 0}, {"Space", 0}});
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Down cmd(1) 25,10"});
    PoKlavesach({{"Tab", 0}, {"Return", 0}, {"Left", 0}, {"F1", 0}});
    Okna().KlavesaNahoru("Return");
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
    EXPECT_EQ(Prsten(), "cmd1");
    Okna().KlavesaNahoru("Space");
    EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Up cmd(1) 25,10", "Click cmd(1)"}));
    // It went meanwhile: nobody gets its release.
    Okna().Klavesa("Space", 0);
    Form_->cmd[0].Visible = false;
    Okna().KlavesaNahoru("Space");
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Down cmd(1) 25,10"});
    EXPECT_FALSE(Okna().DrziKlavesa());
}

TEST_F(KlavesniceTest, SipkyPosouvajiDrzenouMysPoPixelu) {
    Form_->Pic.JemneSipkami = true;
    Form_->Uvnitr.Visible = false;
    Okna().MysDolu(150, 100, 1, 0);
    PoKlavesach({{"Right", 0}, {"Right", 1}, {"Down", 0}});
    Okna().MysPohyb(170, 100, 1, 0);
    Okna().MysNahoru(170, 100, 1, 0);
    EXPECT_EQ(Form_->Vezmi(),
              (Seznam_t{"Down Pic 50,50", "Move Pic 51,50", "Move Pic 52,50", "Move Pic 52,51",
                        "Move Pic 72,51", "Up Pic 72,51", "Click Pic"}));
    // Gone with the release; and elsewhere there is nothing so fine.
    Host_.PosunHodiny(1000);
    Okna().MysDolu(150, 100, 1, 0);
    Okna().MysNahoru(150, 100, 1, 0);
    EXPECT_EQ(Form_->Vezmi().at(1), "Up Pic 50,50");
    Okna().MysDolu(410, 105, 1, 0);
    Okna().Klavesa("Right", 0);
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{"Down cmd(1) 10,5"});
    // Its form went while it was held.
    Okna().MysNahoru(410, 105, 1, 0);
    Host_.PosunHodiny(1000);
    Okna().MysDolu(150, 100, 1, 0);
    Okna().Unload(*Form_);
    Form_.reset();
    Okna().Klavesa("Right", 0);
}

}  // namespace
}  // namespace rysovna::testy
