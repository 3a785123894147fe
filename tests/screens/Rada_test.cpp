// The guide line: it is nowhere cut, follows a drag beyond the plane, tells what an example
// brought, and goes when the configuration says so. That it fits every state is watched by the
// careless pupil.

#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>
#include <vector>

#include "base/Obdelniky.h"
#include "podpora/Rysovac.h"
#include "podpora/Udalosti.h"
#include "screens/DeskaForm.h"
#include "screens/RadaCesky.h"

namespace rysovna::testy {
namespace {

TEST(RadaDesky, NicNeniUriznuto) {
    Rysovac r;
    const DeskaForm& deska = r.Deska();
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

TEST(RadaDesky, VedeOdZnacekAzZaKontrolu) {
    Rysovac r(1, 1, 2);
    DeskaForm& deska = r.Deska();
    const auto slova = [&] { return deska.lblRada[0].Caption + "|" + deska.lblRada[1].Caption; };
    /// Events, and what the guide speaks of after them.
    const auto rika = [&](const char* udalosti, Rada::Co co) {
        Proved(r.Hra, udalosti);
        EXPECT_EQ(deska.RadaTed().Druh, co) << udalosti;
    };
    rika("", Rada::Co::OznacZadane);
    r.Hra.StiskniMisto(50, 298);  // the tool, which is dead
    rika("", Rada::Co::MrtvyBezZnacek);
    r.Hra.NajedNaMisto(50, 340);
    rika("", Rada::Co::OznacZadane);
    rika("!Image1", Rada::Co::VysunNacrt);
    // By keys it names the element under the ring.
    std::string prvky;
    Proved(r.Hra, "!MalaSipka @SamplePic");
    for (const char* klavesa : {"Right", "Space", "Right", "Right", "Left"}) {
        prvky += slova().substr(0, slova().find('|')) + "\n";
        r.Hra.Klavesa(klavesa);
    }
    EXPECT_EQ(prvky,
              "Mezerník označí: c\nMezerník označí: a\nMezerník zruší značku: a\n"
              "Mezerník označí: b\nMezerník označí: α\n");
    Proved(r.Hra, "Left Space");
    r.Zacni();
    rika("", Rada::Co::ZvolPrvni);
    r.Rysuj("AB");
    rika("!cmd4", Rada::Co::VyberRadek);

    // Events, and the very words after them.
    const std::string zacni = "Začni ve středu A, táhni vodorovně a pusť.";
    for (const auto& [udalosti, ceka] : {
             std::pair{"!ComboLabel1", "Napiš velikost do políčka vlevo, potom rýsuj.|" + zacni},
             // A sketch in the way is not spoken of before the value that is to be reached.
             {"!MalaSipka '12", zacni + "|Pusť, až se ukázaná míra shodne s napsanou."},
             // To each hand in its words.
             {"!Image1 @Pic", "|Písmeno skočí na bod, mezerník začne"},
         }) {
        Proved(r.Hra, udalosti);
        EXPECT_NE(slova().find(ceka), std::string::npos) << slova();
    }
    EXPECT_EQ(deska.CimRady(), CimSeHraje::Klavesami);
    // Beyond the plane's edge, where its own read-out cannot be seen.
    Obrazovky& okna = r.Hra.Host().Okna();
    const Bod roh = r.Hra.Roh(r.Hra.Prvek("Pic"));
    okna.MysDolu(roh.X + r.Prvni.X, roh.Y + r.Prvni.Y, LEVE, 0);
    okna.MysPohyb(roh.X + r.Prvni.X - 132, roh.Y - 40, LEVE, 0);
    EXPECT_TRUE(deska.Text.Caption.ends_with(" cm"));
    EXPECT_EQ(slova(), deska.Text.Caption + " – pusť, až bude velikost souhlasit.|");
    Proved(r.Hra, "BackSpace*2");
    EXPECT_EQ(slova(), deska.Text.Caption + " – velikost není napsaná, políčko vlevo je prázdné.|");
    okna.MysNahoru(roh.X + r.Prvni.X - 132, roh.Y - 40, LEVE, 0);

    // Before a press that cannot be taken back; the dead tool says why it is dead.
    for (const auto& [jmeno, index, co] : {std::tuple{"PicTop", 1, Rada::Co::PodKontrola},
                                           {"PicTop", 4, Rada::Co::PodOdchod},
                                           {"cmd", 5, Rada::Co::PodZpet},
                                           {"cmd", 4, Rada::Co::ZvolNastroj}}) {
        r.Hra.Najed(jmeno, index);
        rika("", co);
    }
    r.Rysuj("zpet kA+ kB").Zkontroluj();
    const VysledekPrikladu v = deska.RadaTed().Priklad;
    EXPECT_EQ(v.Poradi, 1);
    EXPECT_EQ(v.Prikladu, 2);
    EXPECT_LT(v.Bodu, 10);
    EXPECT_EQ(v.Bodu, r.Pamet().KladneBody);
    EXPECT_EQ(v.Bodu, 10 - r.Pamet().SoucetZapornychBodu);
    EXPECT_FALSE(v.Bezchybny);
}

TEST(RadaDesky, NeVKonfiguraciVratiPravitko) {
    constexpr Obdelnik PRUH{6, 449, 515, 27};
    for (const bool ne : {false, true}) {
        Relace hra;
        const std::string ini = hra.CtiSoubor("../Rysovna.ini");
        hra.PisSoubor("../Rysovna.ini", ini + (ne ? "\r\nRady = ne\r\n" : "\r\n"));
        hra.Start();
        hra.SpustUlohu(1);
        EXPECT_EQ(ne, std::ranges::none_of(hra.Vpredu()->Ovladace(), [&](const Ovladac* o) {
                      return o->Rodic == nullptr && o->Visible &&
                             !JePrazdny(Prunik(PRUH, {o->Left, o->Top, o->Width, o->Height}));
                  }));
    }
}

}  // namespace
}  // namespace rysovna::testy
