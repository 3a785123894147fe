#include "PlatformTest.h"
#include "base/Text.h"
#include "platform/Pisma.h"

namespace rysovna::testy {

namespace {

/// The text with the caret as "|" and the other end of the selection as "<".
std::string Stav(const TextBox& t) {
    std::u32string z = DoZnaku(t.Text);
    const auto vloz = [&](int kam, char32_t znak) {
        z.insert(z.begin() + std::min(kam, static_cast<int>(z.size())), znak);
    };
    if (t.SelAnchor == t.SelStart) {
        vloz(t.SelStart, U'|');
    } else {
        vloz(std::max(t.SelStart, t.SelAnchor), t.SelStart > t.SelAnchor ? U'|' : U'<');
        vloz(std::min(t.SelStart, t.SelAnchor), t.SelStart > t.SelAnchor ? U'<' : U'|');
    }
    return ZeZnaku(z);
}

class PsaniTest : public NaStroji {
protected:
    PsaniTest() : Form_(Okna().Nacti<ZapisForm>()) {
        Okna().Show(*Form_);
        Form_->SetFocus(Form_->Pole);
        Form_->Vezmi();
    }
    TextBox& Pole() { return Form_->Pole; }
    /// Words of a sequence: "+text" types, "^c" is a letter with ctrl, "S-Left" holds Shift,
    /// "C-Left" Ctrl, anything else is a key.
    void Hraj(const std::vector<std::string>& kroky) {
        for (const std::string& k : kroky) {
            if (k[0] == '+') {
                Okna().Text(k.substr(1));
            } else if (k[0] == '^') {
                Okna().Klavesa(k.substr(1), 2);
            } else if (k.starts_with("S-")) {
                Okna().Klavesa(k.substr(2), 1);
            } else if (k.starts_with("C-")) {
                Okna().Klavesa(k.substr(2), 2);
            } else {
                Okna().Klavesa(k, 0);
            }
        }
    }

    std::shared_ptr<ZapisForm> Form_;
};

TEST_F(PsaniTest, UpravyTextu) {
    const struct {
        std::vector<std::string> Kroky;
        std::string Ceka;
    } PRIPADY[] = {
        {{"+Žofie"}, "Žofie|"},
        {{"+Žof", "+\t\n", "+ie", "+ř"}, "Žofieř|"},
        {{"+Žofie", "Home", "Delete", "+Z"}, "Z|ofie"},
        {{"+Žofie", "BackSpace", "Left", "BackSpace"}, "Žo|i"},
        {{"+ab", "Home", "BackSpace", "End", "Delete"}, "ab|"},
        {{"+abcd", "S-Left", "S-Left", "+č"}, "abč|"},
        {{"+abcd", "Home", "S-Right", "S-End"}, "<abcd|"},
        {{"+abcd", "S-Home"}, "|abcd<"},
        {{"+abcd", "S-Left", "S-Left", "Left"}, "ab|cd"},
        {{"+abcd", "S-Left", "S-Left", "Right"}, "abcd|"},
        {{"+abcd", "^a", "BackSpace"}, "|"},
        {{"+abcd", "^a", "^c", "End", "^v"}, "abcdabcd|"},
        {{"+abcd", "S-Left", "^x", "Home", "^v"}, "d|abc"},
        {{"+Jan Amos Novák", "C-Left", "C-Left"}, "Jan |Amos Novák"},
        {{"+Jan Amos", "Home", "C-Right", "C-Delete"}, "Jan |"},
        {{"+Jan Amos", "C-BackSpace"}, "Jan |"},
    };
    for (const auto& p : PRIPADY) {
        Pole().Text.clear();
        Pole().SelStart = Pole().SelAnchor = 0;
        Hraj(p.Kroky);
        EXPECT_EQ(Stav(Pole()), p.Ceka);
    }
}

TEST_F(PsaniTest, NejvetsiDelkaPocitaZnaky) {
    Pole().MaxLength = 4;
    Hraj({"+Žluť", "+x"});
    EXPECT_EQ(Stav(Pole()), "Žluť|");
    Host_.Schranka = "ěšč\r\nřž";
    Hraj({"Home", "S-Right", "S-Right", "^v"});
    EXPECT_EQ(Stav(Pole()), "ěš|uť") << "as much as there is room for";
}

TEST_F(PsaniTest, ChangePrijdeJenPriZmene) {
    Hraj({"+a", "Left", "BackSpace", "^c", "^x", "Delete", "Return"});
    EXPECT_EQ(Form_->Vezmi(), (Seznam_t{"Change a", "Change ", "Klavesa Return"}));
    Pole().Text = "od programu";
    EXPECT_EQ(Form_->Vezmi(), Seznam_t{});
}

TEST_F(PsaniTest, CoNelzeVidetNelzePsat) {
    Pole().Text = "a";
    Pole().Enabled = false;
    Hraj({"+x", "BackSpace"});
    Pole().Enabled = true;
    Pole().Visible = false;
    Hraj({"+x"});
    Pole().Visible = true;
    Pole().MultiLine = true;
    Hraj({"+x"});
    EXPECT_EQ(Pole().Text, "a");
}

TEST_F(PsaniTest, MysSadiKurzorAVybira) {
    Form_->ZrusZamereni();
    Pole().Text = "Jan Amos Novák";
    const std::vector<double> x = Zacatky(Pole().Font, Pole().Text);
    const auto naX = [&](std::size_t i) { return Pole().Left + 3 + x[i]; };
    const double y = Pole().Top + 10;
    Okna().MysDolu(naX(4) + 0.5, y, 1, 0);
    EXPECT_EQ(Form_->Zamereni(), &Pole());
    EXPECT_EQ(Stav(Pole()), "Jan |Amos Novák");
    Okna().MysPohyb(naX(8), y, 1, 0);
    EXPECT_EQ(Stav(Pole()), "Jan <Amos| Novák");
    Okna().MysPohyb(naX(8), y + 300, 1, 0);
    Okna().MysNahoru(naX(8), y + 300, 1, 0);
    Hraj({"+B"});
    EXPECT_EQ(Pole().Text, "Jan B Novák");
    Host_.Spi(1000);
    Host_.Stiskni(naX(1), y);
    Host_.Stiskni(naX(1), y);
    EXPECT_EQ(Stav(Pole()), "<Jan| B Novák") << "a double click takes the word";
}

TEST_F(PsaniTest, TextSePosouvaZaKurzorem) {
    Pole().Width = 60;
    Hraj({"+Nejnezdevětadevadesáteronásobitelnější"});
    const double konec = PresnaSirka(Pole().Font, Pole().Text);
    EXPECT_GT(Pole().Posun, 0);
    EXPECT_LE(konec - Pole().Posun, Pole().Width) << "the caret is seen";
    Hraj({"Home"});
    EXPECT_EQ(Pole().Posun, 0);
    Hraj({"^a", "Delete"});
    EXPECT_EQ(Pole().Posun, 0);
}

}  // namespace

}  // namespace rysovna::testy
