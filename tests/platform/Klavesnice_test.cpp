// The ring of the keys on a form of a few objects: where it goes, how it presses, when it hides.

#include "PlatformTest.h"

namespace rysovna::testy {
namespace {

class KlavesniceTest : public NaFormu {
protected:
    KlavesniceTest() {
        Form_->BereKlavesy = false;
        Form_->Pole.Zastavka = 3;
        Form_->Pic.Zastavka = 5;
        for (PictureBox& c : Form_->cmd) c.Zastavka = 2;
    }
    /// Name and index of what has the ring after each of the words; "-" if it is not shown.
    std::string Prsten(const Seznam_t& slova) {
        std::string kde;
        for (const std::string& s : slova) {
            Hraj({s});
            const auto p = Okna().PrstenVpredu();
            kde += !p ? "- " : p->Co->Name + std::to_string(p->Co->Index) + " ";
        }
        return kde;
    }
};

TEST_F(KlavesniceTest, ObchaziZiveZastavkyVPoradiASchovaSePredMysi) {
    EXPECT_EQ(Prsten({"a", "1"}), "- - ") << "these press nothing seen";
    EXPECT_EQ(Prsten({"Space"}), "cmd1 ") << "it comes up and presses nothing";
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
    EXPECT_EQ(Prsten({"Tab", "Tab", "Tab", "Tab", "S-Tab", "S-Tab"}),
              "cmd2 Pole0 Pic0 cmd1 Pic0 Pole0 ");
    Form_->cmd[1].Enabled = false;
    Form_->Pic.Visible = false;
    EXPECT_EQ(Prsten({"Tab", "Tab"}), "cmd1 Pole0 ");
    Form_->cmd[1].Enabled = Form_->Pic.Visible = true;
    EXPECT_EQ(Prsten({"S-Tab", "Up", "Down", "Left", "Left"}), "cmd2 cmd1 cmd2 Pic0 Pic0 ");
    Form_->ZrusZamereni();  // the box keeps the keyboard where no ring is shown
    // A hand that only rests on the mouse takes nothing over.
    EXPECT_EQ(Prsten({"p300,300", "Tab", "p302,302", "p303,303", "Tab"}), "Pic0 cmd1 cmd1 - cmd1 ");
    EXPECT_EQ(Prsten({"s410,145", "Tab"}), "- cmd2 ") << "it comes back where the mouse was";
}

TEST_F(KlavesniceTest, StiskKlavesouJeCelyKlikANikdyDvojklik) {
    const Seznam_t klik = {"Down cmd(1) 25,10", "Up cmd(1) 25,10", "Click cmd(1)"};
    Hraj({"Tab"});
    for (const std::string cim : {"Space", "Return", "Space"})
        EXPECT_EQ(Po({cim, "^" + cim}), klik);
    // Nor with a press of the mouse, before or behind it.
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Po({"d425,110", "n425,110"}), klik);
        EXPECT_EQ(Po({"Tab", "Space"}), klik);
        Hraj({"@1000"});
    }
    Po({"@1000", "d425,110"});
    EXPECT_EQ(Po({"Tab", "Space"}), Seznam_t{}) << "while the mouse holds something";
}

TEST_F(KlavesniceTest, DrzenaKlavesaJeDrzeneTlacitko) {
    Form_->cmd[0].Klavesou = StiskKlavesou::Drzeni;
    EXPECT_EQ(Po({"Tab", "Space"}), Seznam_t{"Down cmd(1) 25,10"});
    EXPECT_EQ(Po({"Tab", "Return", "Left", "F1", "^Return"}), Seznam_t{});
    EXPECT_EQ(Prsten({"@0"}), "cmd1 ");
    EXPECT_EQ(Po({"^Space"}), (Seznam_t{"Up cmd(1) 25,10", "Click cmd(1)"}));
    // It went meanwhile: nobody gets its release.
    Hraj({"Space"});
    Form_->cmd[0].Visible = false;
    EXPECT_EQ(Po({"^Space"}), Seznam_t{"Down cmd(1) 25,10"});
    EXPECT_FALSE(Okna().DrziKlavesa());
}

TEST_F(KlavesniceTest, SipkyPosouvajiDrzenouMysPoPixelu) {
    Form_->Pic.JemneSipkami = true;
    Form_->Uvnitr.Visible = false;
    EXPECT_EQ(Po({"d150,100", "Right", "S-Right", "Down", "p170,100:1", "n170,100"}),
              (Seznam_t{"Down Pic 50,50", "Move Pic 51,50", "Move Pic 52,50", "Move Pic 52,51",
                        "Move Pic 72,51", "Up Pic 72,51", "Click Pic"}));
    // Gone with the release; and elsewhere there is nothing so fine.
    EXPECT_EQ(Po({"s150,100"}).at(1), "Up Pic 50,50");
    EXPECT_EQ(Po({"d410,105", "Right"}), Seznam_t{"Down cmd(1) 10,5"});
    // Its form went while it was held.
    Hraj({"n410,105", "@1000", "d150,100"});
    Okna().Unload(*Form_);
    Form_.reset();
    Hraj({"Right"});
}

}  // namespace
}  // namespace rysovna::testy
