// The guide line: it is nowhere cut, follows a drag beyond the plane, tells what an example
// brought, and goes when the configuration says so. That it fits every state is watched by the
// careless pupil.

#include <array>
#include <gtest/gtest.h>
#include <tuple>
#include <vector>

#include "platform/Obrazovky.h"
#include "podpora/HlidacRady.h"
#include "podpora/Rysovac.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "screens/Desky.h"
#include "screens/RadaCesky.h"

namespace rysovna::testy {
namespace {

constexpr int SSS = 1;

class RadaDesky : public testing::Test {
protected:
    RadaDesky() {}
    [[nodiscard]] static DeskaForm& Deska(Rysovac& r) {
        return dynamic_cast<DeskaForm&>(*r.Hra.Najdi("Troj1Form"));
    }
    [[nodiscard]] static std::string Slova(Rysovac& r) {
        const DeskaForm& d = Deska(r);
        return d.lblRada[0].Caption + "|" + d.lblRada[1].Caption;
    }
};

TEST_F(RadaDesky, NicNeniUriznuto) {
    Rysovac r(SSS, 1);
    const DeskaForm& deska = Deska(r);
    std::vector<Rada> vse;
    for (int co = 0; co <= static_cast<int>(Rada::Co::Vysledek); ++co) {
        for (int tvar = 1; tvar <= static_cast<int>(Gesto::Tvar::Bod); ++tvar) {
            for (const std::string bod : {"", "T2", "Sc"}) {
                vse.push_back({.Druh = static_cast<Rada::Co>(co),
                               .Kresleni = {static_cast<Gesto::Tvar>(tvar), bod, bod},
                               .ZasunNacrt = bod == "T2",
                               .SMirou = bod != "T2",
                               .BezMiry = bod == "T2",
                               .Shoda = bod == "Sc",
                               .Zpet = !bod.empty(),
                               .Prvek = {"delta", bod.empty()},
                               .Odecet = bod.empty() ? "" : "123,45 cm",
                               .Priklad = {10, 50, 5, 5, bod.empty()}});
            }
        }
    }
    for (std::size_t i = 0; i < 3 * vse.size(); ++i) {
        const Rada& rada = vse[i / 3];
        const RadkyRady radky = RadaCesky(rada, static_cast<CimSeHraje>(i % 3));
        EXPECT_EQ(radky[0].empty(), rada.Druh == Rada::Co::Nic) << static_cast<int>(rada.Druh);
        for (const std::string& text : radky) {
            Label l;
            l.Font.Velikost = radky[1].empty() ? 10 : 8;
            l.Caption = text;
            l.PodleTextu();
            EXPECT_LE(l.Width, deska.lblRada[0].Width) << text;
        }
    }
    for (const std::size_t i : {0U, 1U}) {
        const Label& l = deska.lblRada[i];
        EXPECT_LE(l.Top + l.Height, deska.PicRada.Height);
    }
}

TEST_F(RadaDesky, VedeOdZnacekAzZaKontrolu) {
    Rysovac r(SSS, 1, 2);
    EXPECT_EQ(Deska(r).RadaTed().Druh, Rada::Co::OznacZadane);
    r.Hra.StiskniMisto(50, 298);  // the tool, which is dead
    EXPECT_EQ(Deska(r).RadaTed().Druh, Rada::Co::MrtvyBezZnacek);
    r.Hra.NajedNaMisto(50, 340);
    EXPECT_EQ(Deska(r).RadaTed().Druh, Rada::Co::OznacZadane);
    r.Hra.Stiskni("Image1");
    EXPECT_EQ(Deska(r).RadaTed().Druh, Rada::Co::VysunNacrt);
    r.Hra.Stiskni("MalaSipka");
    // By keys it names the element under the ring.
    std::string prvky;
    r.Hra.NaZastavku("SamplePic");
    for (const char* klavesa : {"Right", "Space", "Right", "Right", "Left"}) {
        const std::string slova = Slova(r);
        prvky += slova.substr(0, slova.find('|')) + "\n";
        r.Hra.Klavesa(klavesa);
    }
    EXPECT_EQ(prvky,
              "Mezerník označí: c\nMezerník označí: a\nMezerník zruší značku: a\n"
              "Mezerník označí: b\nMezerník označí: α\n");
    r.Hra.Klavesa("Left");
    r.Hra.Klavesa("Space");
    r.Zacni();
    EXPECT_EQ(Deska(r).RadaTed().Druh, Rada::Co::ZvolPrvni);

    r.Rysuj("AB");
    r.Hra.Stiskni("cmd", 4);
    EXPECT_EQ(Deska(r).RadaTed().Druh, Rada::Co::VyberRadek);
    r.Hra.Stiskni("ComboLabel", 1);
    EXPECT_EQ(Slova(r),
              "Napiš velikost do políčka vlevo, potom rýsuj.|"
              "Začni ve středu A, táhni vodorovně a pusť.");
    // A sketch in the way is not spoken of before the value that is to be reached.
    r.Hra.Stiskni("MalaSipka");
    r.Hra.Napis("12");
    EXPECT_EQ(Slova(r),
              "Začni ve středu A, táhni vodorovně a pusť.|"
              "Pusť, až se ukázaná míra shodne s napsanou.");
    r.Hra.Stiskni("Image1");
    // To each hand in its words.
    r.Hra.NaZastavku("Pic");
    EXPECT_EQ(Deska(r).CimRady(), CimSeHraje::Klavesami);
    EXPECT_NE(Slova(r).find("|Písmeno skočí na bod, mezerník začne"), std::string::npos)
        << Slova(r);
    // Beyond the plane's edge, where its own read-out cannot be seen.
    Obrazovky& okna = r.Hra.Host().Okna();
    const Bod roh = r.Hra.Roh(r.Hra.Prvek("Pic"));
    okna.MysDolu(roh.X + r.Prvni.X, roh.Y + r.Prvni.Y, 1, 0);
    okna.MysPohyb(roh.X + r.Prvni.X - 132, roh.Y - 40, 1, 0);
    EXPECT_TRUE(Deska(r).Text.Caption.ends_with(" cm"));
    EXPECT_EQ(Slova(r), Deska(r).Text.Caption + " – pusť, až bude velikost souhlasit.|");
    for (int i = 0; i < 2; ++i) r.Hra.Klavesa("BackSpace");
    EXPECT_EQ(Slova(r),
              Deska(r).Text.Caption + " – velikost není napsaná, políčko vlevo je prázdné.|");
    okna.MysNahoru(roh.X + r.Prvni.X - 132, roh.Y - 40, 1, 0);

    // Before a press that cannot be taken back; the dead tool says why it is dead.
    for (const auto& [jmeno, index, co] : {std::tuple{"PicTop", 1, Rada::Co::PodKontrola},
                                           {"PicTop", 4, Rada::Co::PodOdchod},
                                           {"cmd", 5, Rada::Co::PodZpet},
                                           {"cmd", 4, Rada::Co::ZvolNastroj}}) {
        r.Hra.Najed(jmeno, index);
        EXPECT_EQ(Deska(r).RadaTed().Druh, co) << jmeno << index;
    }
    r.Rysuj("zpet kA+ kB").Zkontroluj();
    const VysledekPrikladu v = Deska(r).RadaTed().Priklad;
    EXPECT_EQ(v.Poradi, 1);
    EXPECT_EQ(v.Prikladu, 2);
    EXPECT_LT(v.Bodu, 10);
    EXPECT_EQ(v.Bodu, r.Hra.Pamet().KladneBody);
    EXPECT_EQ(v.Bodu, 10 - r.Hra.Pamet().SoucetZapornychBodu);
    EXPECT_FALSE(v.Bezchybny);
}

TEST_F(RadaDesky, NeVKonfiguraciVratiPravitko) {
    constexpr Obdelnik PRUH{6, 449, 515, 27};
    for (const bool ne : {false, true}) {
        Relace hra;
        const std::string ini = hra.CtiSoubor("../Rysovna.ini");
        hra.PisSoubor("../Rysovna.ini", ini + (ne ? "\r\nRady = ne\r\n" : "\r\n"));
        hra.Start();
        hra.SpustUlohu(SSS);
        bool zakryto = false;
        for (const Ovladac* o : hra.Vpredu()->Ovladace()) {
            const bool pres = o->Rodic == nullptr && o->Visible &&
                              o->Left < PRUH.Left + PRUH.Width && o->Left + o->Width > PRUH.Left &&
                              o->Top < PRUH.Top + PRUH.Height && o->Top + o->Height > PRUH.Top;
            zakryto = zakryto || pres;
        }
        EXPECT_EQ(zakryto, !ne);
    }
}

}  // namespace
}  // namespace rysovna::testy
