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
    if (t.SelAnchor > t.SelStart) vloz(t.SelAnchor, U'<');
    vloz(t.SelStart, U'|');
    if (t.SelAnchor < t.SelStart) vloz(t.SelAnchor, U'<');
    return ZeZnaku(z);
}

class PsaniTest : public NaFormu {
protected:
    PsaniTest() { Form_->SetFocus(Form_->Pole); }
    TextBox& Pole() { return Form_->Pole; }
    /// Each row of keys begins with an empty box.
    void Over(const std::vector<std::pair<Seznam_t, const char*>>& pripady) {
        for (const auto& [slova, ceka] : pripady) {
            Hraj({"C-a", "Delete"});
            Hraj(slova);
            EXPECT_EQ(Stav(Pole()), ceka);
        }
    }
};

TEST_F(PsaniTest, UpravyTextu) {
    Over({
        {{"+Žof", "+\t\n", "+ie", "+ř"}, "Žofieř|"},
        {{"+Žofie", "Home", "Delete", "+Z"}, "Z|ofie"},
        {{"+ac", "+\u030C", "+s\u030C"}, "ačš|"},
        {{"+Žofie", "BackSpace", "Left", "BackSpace"}, "Žo|i"},
        {{"+ab", "Home", "BackSpace", "End", "Delete"}, "ab|"},
        {{"+abcd", "S-Left", "S-Left", "+č"}, "abč|"},
        {{"+abcd", "Home", "S-Right", "S-End"}, "<abcd|"},
        {{"+abcd", "S-Left", "S-Left", "Left"}, "ab|cd"},
        {{"+abcd", "S-Left", "S-Left", "Right"}, "abcd|"},
        {{"+abcd", "C-a", "BackSpace"}, "|"},
        {{"+abcd", "C-a", "C-c", "End", "C-v"}, "abcdabcd|"},
        {{"+abcd", "S-Left", "C-x", "Home", "C-v"}, "d|abc"},
        {{"+Jan Amos Novák", "C-Left", "C-Left"}, "Jan |Amos Novák"},
        {{"+Jan Amos", "Home", "C-Right", "C-Delete"}, "Jan |"},
        {{"+Jan Amos", "C-BackSpace"}, "Jan |"},
    });
}

TEST_F(PsaniTest, NejvetsiDelkaPocitaZnaky) {
    Pole().MaxLength = 4;
    Hraj({"+Žluť", "+x"});
    EXPECT_EQ(Stav(Pole()), "Žluť|");
    Host_.Schranka = "ěšč\r\nřž";
    Hraj({"Home", "S-Right", "S-Right", "C-v"});
    EXPECT_EQ(Stav(Pole()), "ěš|uť") << "as much as there is room for";
}

TEST_F(PsaniTest, CoPoleNedovoliSeNenapise) {
    Pole().MaxLength = 5;
    Pole().Zakazane = U"|#";
    Pole().BezUvodnichMezer = true;
    Host_.Schranka = "  a|b\x07#c\tdefg";
    Over({
        {{"C-v"}, "abcde|"},           // the blanks take no room
        {{"+|", "+#", "+\x7F"}, "|"},  // nothing of it
        {{"+a|b|"}, "ab|"},
        {{"+ ", "+ b"}, "b|"},
        {{"+ab", "Home", "+ "}, "|ab"},
        {{"+a  b", "Home", "Delete"}, "|b"},  // what comes to be the beginning
        {{"+a b", "S-Home", "+ "}, "|"},
        {{"+abcde", "S-Left", "S-Left", "+xyz"}, "abcxy|"},
        {{"+abcde", "Left", "+x"}, "abcd|e"},
        {{"+abc", "Home", "C-v"}, "ab|abc"},
    });
}

TEST_F(PsaniTest, ChangePrijdeJenPriZmeneACoNelzeVidetNelzePsat) {
    EXPECT_EQ(Po({"+a", "Left", "BackSpace", "C-c", "C-x", "Delete", "Return"}),
              (Seznam_t{"Change a", "Change ", "Klavesa Return"}));
    Pole().Text = "od programu";
    for (bool* vlastnost : {&Pole().Enabled, &Pole().Visible, &Pole().MultiLine}) {
        *vlastnost = !*vlastnost;
        Hraj({"+x", "BackSpace"});
        *vlastnost = !*vlastnost;
    }
    EXPECT_EQ(Pole().Text, "od programu");
    EXPECT_EQ(Form_->Vezmi(), Seznam_t(3, "Klavesa BackSpace"));
}

TEST_F(PsaniTest, MysSadiKurzorAVybira) {
    Form_->ZrusZamereni();
    Pole().Text = "Jan Amos Novák";
    const std::vector<double> x = Zacatky(Pole().Font, Pole().Text);
    const auto naX = [&](std::size_t i) { return Pole().Left + 3 + x[i]; };
    const double y = Pole().Top + 10;
    Okna().MysDolu(naX(4) + 0.5, y, LEVE, 0);
    EXPECT_EQ(Form_->Zamereni(), &Pole());
    EXPECT_EQ(Stav(Pole()), "Jan |Amos Novák");
    Okna().MysPohyb(naX(8), y + 300, LEVE, 0);
    EXPECT_EQ(Stav(Pole()), "Jan <Amos| Novák");
    Okna().MysNahoru(naX(8), y + 300, LEVE, 0);
    Hraj({"+B"});
    EXPECT_EQ(Pole().Text, "Jan B Novák");
    Host_.PosunHodiny(1000);
    for (int i = 0; i < 2; ++i) Host_.Stiskni(naX(1), y);
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
}

}  // namespace
}  // namespace rysovna::testy
