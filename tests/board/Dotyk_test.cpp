// A board by finger, and what answers the pointer. Whole examples are played by the perfect pupil,
// everything else at once by the careless one.

#include "platform/Dotyk.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "engine/Tabulky.h"
#include "platform/Obrazovky.h"
#include "podpora/Rysovac.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/DeskaForm.h"
#include "screens/Desky.h"
#include "zak/Tecny.h"

namespace rysovna::testy {
namespace {

using Ohlas = Obrazovky::Ohlas;

constexpr int SSS = 1;

struct SDeskami {
    SDeskami() {}
};

class DotykDesky : private SDeskami, public testing::Test {
protected:
    [[nodiscard]] Obrazovky& Okna() { return r.Hra.Host().Okna(); }
    void Dotyk(Bod odkud, Bod kam) {
        const std::uint32_t ted = r.Hra.Host().TickCount();
        Okna().PrstDolu(odkud.X, odkud.Y, ted);
        if (odkud != kam) Okna().PrstPohyb(kam.X, kam.Y, ted);
        Okna().PrstNahoru(kam.X, kam.Y, ted);
    }
    void Klepni(Bod kde) { Dotyk(kde, kde); }
    /// A place of the plane on the design area.
    [[nodiscard]] Bod NaPlose(Bod b) {
        const Bod roh = r.Hra.Roh(r.Hra.Prvek("Pic"));
        return {roh.X + b.X, roh.Y + b.Y};
    }
    [[nodiscard]] std::optional<Bod> Ohlasu(Ohlas::Druh co) {
        for (const Ohlas& o : Okna().OhlasyVpredu()) {
            if (o.Co == co) return Bod{o.Kde.Left, o.Kde.Top};
        }
        return std::nullopt;
    }
    /// A side is in hand: its length is typed.
    void PripravStranu() {
        r.Zacni();
        r.Kdo.Nastroj(1).Vyber("AB").Napis("12");
    }

    Rysovac r{SSS, 1};
};

TEST_F(DotykDesky, ZvednutyTahDokonciJenHotovo) {
    PripravStranu();
    const Bod od = NaPlose({100, 250});
    const Bod kam = NaPlose({190, 250});
    // A finger that rests there and shakes when it is lifted.
    Okna().PrstDolu(od.X, od.Y, r.Hra.Host().TickCount());
    Okna().PrstPohyb(kam.X, kam.Y, r.Hra.Host().TickCount());
    r.Hra.Cekej(300);
    EXPECT_NE(r.Hra.Prvek<Label>("lblRada", 1).Caption.find("zvedni prst"), std::string::npos);
    Okna().PrstPohyb(kam.X + 1, kam.Y - 2, r.Hra.Host().TickCount());
    Okna().PrstNahoru(kam.X + 2, kam.Y - 2, r.Hra.Host().TickCount());
    ASSERT_EQ(Ohlasu(Ohlas::Druh::Konec), kam);
    const Bod pad = Ohlasu(Ohlas::Druh::Podlozka).value();
    EXPECT_EQ(r.Hra.Pamet().PocetUtvaru, 0);

    // Whatever else is tapped, clicked or typed, nothing comes of it.
    for (const char* jmeno : {"cmd", "PicTop", "INadpis", "MalaSipka", "picSipka"}) {
        const Form& deska = *r.Hra.Vpredu();
        for (const Ovladac* o : deska.Ovladace()) {
            if (o->Name != jmeno) continue;
            const Bod stred{o->Left + o->Width / 2, o->Top + o->Height / 2};
            Klepni(stred);
            r.Hra.StiskniMisto(stred.X, stred.Y);
        }
    }
    for (const char* klavesa : {"Escape", "F1", "Tab", "Space", "Return", "Left", "5"}) {
        r.Hra.Klavesa(klavesa);
        EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form") << klavesa;
        EXPECT_EQ(Ohlasu(Ohlas::Druh::Konec), kam) << klavesa;
    }
    r.Hra.Napis("7");
    Klepni({pad.X + 5, pad.Y + 5});  // an empty corner of the pad
    r.Hra.Cekej(300);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    EXPECT_EQ(r.Hra.Prvek<TextBox>("txtVstup").Text, "12");
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Konec), kam);
    EXPECT_EQ(r.Hra.Pamet().KladneBody + r.Hra.Pamet().ZaporneBody, 0);

    // A tap on the plane moves the end, an arrow by a pixel, the mouse does the same; "hotovo".
    const Bod jinam = NaPlose({194, 250});
    Klepni(jinam);
    ASSERT_EQ(Ohlasu(Ohlas::Druh::Konec), jinam);
    const Bod pad2 = Ohlasu(Ohlas::Druh::Podlozka).value();
    const Bod stred{pad2.X + Podlozka::STRANA / 2, pad2.Y + Podlozka::STRANA / 2};
    Klepni({stred.X + Podlozka::POLE, stred.Y});
    r.Hra.StiskniMisto(stred.X + Podlozka::POLE, stred.Y);
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Konec), (Bod{jinam.X + 2, jinam.Y}));
    EXPECT_EQ(r.Hra.Prvek<Label>("Text").Caption, "12 cm");
    Klepni(stred);
    r.Hra.Cekej(50);
    ASSERT_EQ(r.Hra.Pamet().PocetUtvaru, 1);
    EXPECT_EQ((Bod{r.Hra.Pamet().Utvary[1].X1, r.Hra.Pamet().Utvary[1].Y1}), (Bod{100, 250}));
    EXPECT_EQ((Bod{r.Hra.Pamet().Utvary[1].X2, r.Hra.Pamet().Utvary[1].Y2}), (Bod{196, 250}));
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Podlozka), std::nullopt);
    r.Hra.StiskniMisto(stred.X, stred.Y);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
}

/// A finger whose lifting got lost, and a mouse whose release did, take nothing from the next one.
TEST_F(DotykDesky, ZtraceneZvednutiNevadi) {
    const auto& deska = dynamic_cast<const DeskaForm&>(*r.Hra.Vpredu());
    const Bod roh = r.Hra.Roh(r.Hra.Prvek("SamplePic"));
    for (const bool mysi : {false, true}) {
        if (mysi) {
            Okna().MysDolu(20, 20, 1, 0);
        } else {
            Okna().PrstDolu(20, 20, r.Hra.Host().TickCount());
        }
        r.Hra.Cekej(700);
        const auto predtim = deska.Dialogem().UkazPanel().Nastroje[0].Zivy();
        const Bod zona = MistaPrvku(deska.Dialogem().NacrtPrikladu())[0];
        Klepni({roh.X + zona.X, roh.Y + zona.Y});
        EXPECT_NE(deska.Dialogem().UkazPanel().Nastroje[0].Zivy(), predtim) << mysi;
    }
}

/// A message box that comes over a held drag gets its taps, and the drag goes on after it.
TEST_F(DotykDesky, ZpravaNadZvednutymTahemSeDaOdklepnout) {
    PripravStranu();
    Dotyk(NaPlose({100, 250}), NaPlose({190, 250}));
    const auto konec = Ohlasu(Ohlas::Druh::Konec);
    ASSERT_TRUE(konec);
    r.Hra.Host().SkutecneZpravy = true;
    bool byla = false;
    r.Hra.Host().NaplanujZa(50, [&] {
        const auto zprava = Okna().Vpredu();
        byla = Okna().JeModalni();
        EXPECT_EQ(Okna().OhlasyVpredu().size(), 0U);
        for (const Ovladac* o : zprava->Ovladace()) {
            if (o->Zastavka == 0) continue;
            Klepni({zprava->Left + o->Left + o->Width / 2, zprava->Top + o->Top + o->Height / 2});
        }
    });
    HeadlessHost& host = r.Hra.Host();
    host.Proved(host.MsgBox("Zpráva", "Titul", Styl::Ok));
    EXPECT_TRUE(byla);
    EXPECT_FALSE(Okna().JeModalni());
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Konec), konec);
}

TEST_F(DotykDesky, KlepnutiVedleZonySePocitaJenJednoznacne) {
    const Bod roh = r.Hra.Roh(r.Hra.Prvek("SamplePic"));
    const auto* deska = dynamic_cast<const DeskaForm*>(r.Hra.Vpredu());
    const auto prvek = [&](Bod b) {
        return deska->Dialogem().PrvekNacrtu(static_cast<float>(b.X), static_cast<float>(b.Y));
    };
    const auto znacek = [&] {
        const Panel p = deska->Dialogem().UkazPanel();
        return std::ranges::any_of(p.Nastroje, &MistoNastroje::Zivy);
    };
    // Below the lowest side of the sketch there is nothing else.
    Bod dole{144, 176};
    while (prvek(dole) < 0) --dole.Y;
    for (const auto& [vedle, ma] : {std::pair{DOSAH_PRSTU + 1, false}, {DOSAH_PRSTU, true}}) {
        Klepni({roh.X + dole.X, roh.Y + dole.Y + vedle});
        EXPECT_EQ(znacek(), ma) << vedle;
        r.Hra.Cekej(600);  // the next tap is none of a double one
    }
    // The mouse is as exact as ever.
    r.Hra.StiskniMisto(roh.X + dole.X, roh.Y + dole.Y + 1);
    EXPECT_TRUE(znacek());

    const auto dveMista = [](Bod b) -> CilPrstu {
        static const Label cil;
        return {b.X == 0 || b.X == 10 ? &cil : nullptr, 1 + b.X};
    };
    EXPECT_EQ(NajdiCil({5, 0}, dveMista), std::nullopt) << "as near to one as to the other";
    EXPECT_EQ(NajdiCil({6, 3}, dveMista), (Bod{10, 3}));
    EXPECT_EQ(NajdiCil({21, 0}, dveMista), std::nullopt);
}

TEST_F(DotykDesky, OvladacNaKrajiSahaDalJenVenku) {
    const Ovladac& sipka = r.Hra.Prvek("picSipka", 1);
    const Bod vedle{sipka.Left + 3, sipka.Top + sipka.Height + DOSAH_PRSTU - 1};
    const Bod uvnitr{sipka.Left + 3, sipka.Top - 2};
    ASSERT_GE(uvnitr.X, 226);
    r.Zacni();
    r.Rysuj("AB");
    const int pred = r.Hra.Pamet().Utvary[1].X1;
    Klepni(vedle);
    EXPECT_EQ(r.Hra.Pamet().Utvary[1].X1, pred + 20);
    r.Hra.StiskniMisto(vedle.X, vedle.Y);
    EXPECT_EQ(r.Hra.Pamet().Utvary[1].X1, pred + 20) << "the mouse is no finger";
    r.Kdo.Nastroj(4).Vyber("kružnice k, střed v bodě A");
    Klepni(uvnitr);
    EXPECT_EQ(r.Hra.Pamet().Utvary[1].X1, pred + 20) << "in an armed plane a tap draws";
    EXPECT_TRUE(Ohlasu(Ohlas::Druh::Konec));
}

TEST_F(DotykDesky, KurzorARamyOdpovidajiTomuCoZije) {
    const auto nad = [&](Bod b) {
        r.Hra.NajedNaMisto(b.X, b.Y);
        return Okna().KurzorMysi();
    };
    const Bod nastroj{60, 295};
    const Bod plocha = NaPlose({40, 250});
    EXPECT_EQ(nad(nastroj), Kurzor::Sipka);
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Najeto), std::nullopt);
    EXPECT_EQ(nad(plocha), Kurzor::Sipka);
    EXPECT_EQ(nad({300, 40}), Kurzor::Ruka);
    const Bod roh = r.Hra.Roh(r.Hra.Prvek("SamplePic"));
    const Bod zona =
        MistaPrvku(dynamic_cast<const DeskaForm&>(*r.Hra.Vpredu()).Dialogem().NacrtPrikladu())[0];
    EXPECT_EQ(nad({roh.X + zona.X, roh.Y + zona.Y}), Kurzor::Ruka);
    EXPECT_EQ(nad({roh.X + 2, roh.Y + 2}), Kurzor::Sipka);
    r.Zacni();
    EXPECT_EQ(nad(nastroj), Kurzor::Ruka);
    EXPECT_TRUE(Ohlasu(Ohlas::Druh::Najeto));
    Okna().MysDolu(nastroj.X, nastroj.Y, 1, 0);
    Okna().MysNahoru(nastroj.X, nastroj.Y, 1, 0);
    EXPECT_EQ(nad({nastroj.X + 10, nastroj.Y + 12}), Kurzor::Ruka);
    const Bod radek = r.Hra.Roh(r.Hra.Prvek("ComboLabel", 1));
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Najeto), std::optional(Bod{radek.X - 2, radek.Y}));
    r.Kdo.Vyber("AB");
    EXPECT_EQ(nad(plocha), Kurzor::Kriz);
    EXPECT_EQ(nad({110, 380}), Kurzor::Text);
    EXPECT_EQ(nad(nastroj), Kurzor::Sipka);
    EXPECT_EQ(r.Hra.NoveZvuky().back(), "click.wav");
}

/// The ring is where the press would begin, and in no bitmap.
TEST_F(DotykDesky, PrstenJeNaBoduKteryByStiskChytil) {
    r.Zacni();
    r.Rysuj("AB");
    r.Kdo.Nastroj(4).Vyber("kružnice k, střed v bodě A").Napis("10");
    const std::uint64_t verze = r.Hra.Prvek<PictureBox>("Pic").Plocha().Verze();
    const Bod b{r.Druhy};
    for (const auto& [vedle, je] : {std::pair{7, true}, {8, false}}) {
        const Bod kde = NaPlose({b.X + vedle, b.Y - vedle});
        r.Hra.NajedNaMisto(kde.X, kde.Y);
        EXPECT_EQ(Ohlasu(Ohlas::Druh::Zachytne), je ? std::optional(NaPlose(b)) : std::nullopt)
            << vedle;
    }
    const Bod kde = NaPlose({b.X + 5, b.Y});
    r.Hra.NajedNaMisto(kde.X, kde.Y);
    EXPECT_EQ(r.Hra.Prvek<PictureBox>("Pic").Plocha().Verze(), verze);
    Okna().MysDolu(kde.X, kde.Y, 1, 0);
    Okna().MysPohyb(kde.X + 40, kde.Y, 1, 0);
    const Ovladac& kruh = r.Hra.Prvek("Circle1");
    EXPECT_EQ((Bod{kruh.Left + kruh.Width / 2, kruh.Top + kruh.Height / 2}), b);
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Zachytne), std::nullopt);
}

}  // namespace
}  // namespace rysovna::testy
