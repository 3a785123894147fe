// A board by finger, and what answers the pointer. Whole examples are played by the perfect pupil,
// everything else at once by the careless one.

#include "platform/Dotyk.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "engine/Tabulky.h"
#include "podpora/Rysovac.h"
#include "podpora/Udalosti.h"

namespace rysovna::testy {
namespace {

using Ohlas = Obrazovky::Ohlas;

class DotykDesky : public testing::Test {
protected:
    [[nodiscard]] Obrazovky& Okna() { return r.Hra.Host().Okna(); }
    [[nodiscard]] std::uint32_t Ted() { return r.Hra.Host().TickCount(); }
    void Dotyk(Bod odkud, Bod kam) {
        Okna().PrstDolu(odkud.X, odkud.Y, Ted());
        if (odkud != kam) Okna().PrstPohyb(kam.X, kam.Y, Ted());
        Okna().PrstNahoru(kam.X, kam.Y, Ted());
    }
    void Klepni(Bod kde) { Dotyk(kde, kde); }
    /// A place of a control on the design area; its middle.
    [[nodiscard]] Bod Na(const char* prvek, Bod b) {
        const Bod roh = r.Hra.Roh(r.Hra.Prvek(prvek));
        return {roh.X + b.X, roh.Y + b.Y};
    }
    [[nodiscard]] Bod NaPlose(Bod b) { return Na("Pic", b); }
    [[nodiscard]] static Bod Stred(const Ovladac& o) {
        return {o.Left + o.Width / 2, o.Top + o.Height / 2};
    }
    /// The first element of the sketch.
    [[nodiscard]] Bod Znacka() {
        return Na("SamplePic", MistaPrvku(r.Deska().Dialogem().NacrtPrikladu())[0]);
    }
    [[nodiscard]] bool Zacato() {
        return std::ranges::any_of(r.P().Nastroje, &MistoNastroje::Zivy);
    }
    [[nodiscard]] std::optional<Bod> Ohlasu(Ohlas::Druh co) {
        for (const Ohlas& o : Okna().OhlasyVpredu()) {
            if (o.Co == co) return Bod{o.Kde.Left, o.Kde.Top};
        }
        return std::nullopt;
    }
    /// A side is in hand: its length is typed.
    void PripravStranu() { r.Zacni().Kdo.Nastroj(1).Vyber("AB").Napis("12"); }

    Rysovac r;
};

TEST_F(DotykDesky, ZvednutyTahDokonciJenHotovo) {
    PripravStranu();
    const Bod od = NaPlose({100, 250}), kam = NaPlose({190, 250});
    // A finger that rests there and shakes when it is lifted.
    Okna().PrstDolu(od.X, od.Y, Ted());
    Okna().PrstPohyb(kam.X, kam.Y, Ted());
    r.Hra.Cekej(300);
    EXPECT_NE(r.Hra.Prvek<Label>("lblRada", 1).Caption.find("zvedni prst"), std::string::npos);
    Okna().PrstPohyb(kam.X + 1, kam.Y - 2, Ted());
    Okna().PrstNahoru(kam.X + 2, kam.Y - 2, Ted());
    const auto drzi = [&] {
        EXPECT_EQ(Ohlasu(Ohlas::Druh::Konec), kam);
        EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    };
    drzi();
    EXPECT_EQ(r.Pamet().PocetUtvaru, 0);

    // Whatever else is tapped, clicked or typed, nothing comes of it.
    for (const Ovladac* o : r.Deska().Ovladace()) {
        for (const char* jmeno : {"cmd", "PicTop", "INadpis", "MalaSipka", "picSipka"}) {
            if (o->Name != jmeno) continue;
            Klepni(Stred(*o));
            r.Hra.StiskniMisto(Stred(*o).X, Stred(*o).Y);
        }
    }
    for (const char* klavesa : {"Escape", "F1", "Tab", "Space", "Return", "Left", "5", "'7"}) {
        SCOPED_TRACE(klavesa);
        Proved(r.Hra, klavesa);
        drzi();
    }
    const Bod pad = Ohlasu(Ohlas::Druh::Podlozka).value();
    Klepni({pad.X + 5, pad.Y + 5});  // an empty corner of the pad
    r.Hra.Cekej(300);
    drzi();
    EXPECT_EQ(r.Hra.Prvek<TextBox>("txtVstup").Text, "12");
    EXPECT_EQ(r.Pamet().KladneBody + r.Pamet().ZaporneBody, 0);

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
    ASSERT_EQ(r.Pamet().PocetUtvaru, 1);
    const Utvar& u = r.Pamet().Utvary[1];
    EXPECT_EQ((Bod{u.X1, u.Y1}), (Bod{100, 250}));
    EXPECT_EQ((Bod{u.X2, u.Y2}), (Bod{196, 250}));
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Podlozka), std::nullopt);
    r.Hra.StiskniMisto(stred.X, stred.Y);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
}

/// A finger whose lifting got lost, and a mouse whose release did, take nothing from the next one.
TEST_F(DotykDesky, ZtraceneZvednutiNevadi) {
    for (const bool mysi : {false, true}) {
        mysi ? Okna().MysDolu(20, 20, LEVE, 0) : Okna().PrstDolu(20, 20, Ted());
        r.Hra.Cekej(700);
        const bool predtim = Zacato();
        Klepni(Znacka());
        EXPECT_NE(Zacato(), predtim) << mysi;
    }
}

/// A message box that comes over a held drag gets its taps, and the drag goes on after it.
TEST_F(DotykDesky, ZpravaNadZvednutymTahemSeDaOdklepnout) {
    PripravStranu();
    Dotyk(NaPlose({100, 250}), NaPlose({190, 250}));
    const auto konec = Ohlasu(Ohlas::Druh::Konec);
    ASSERT_TRUE(konec);
    HeadlessHost& host = r.Hra.Host();
    host.SkutecneZpravy = true;
    bool byla = false;
    host.NaplanujZa(50, [&] {
        const auto zprava = Okna().Vpredu();
        byla = Okna().JeModalni();
        EXPECT_EQ(Okna().OhlasyVpredu().size(), 0U);
        for (const Ovladac* o : zprava->Ovladace()) {
            if (o->Zastavka == 0) continue;
            Klepni({zprava->Left + Stred(*o).X, zprava->Top + Stred(*o).Y});
        }
    });
    host.Proved(host.MsgBox("Zpráva", "Titul", Styl::Ok));
    EXPECT_TRUE(byla);
    EXPECT_FALSE(Okna().JeModalni());
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Konec), konec);
}

TEST_F(DotykDesky, KlepnutiVedleZonySePocitaJenJednoznacne) {
    // Below the lowest side of the sketch there is nothing else.
    Bod dole{144, 176};
    while (r.Deska().Dialogem().PrvekNacrtu(144, static_cast<float>(dole.Y)) < 0) --dole.Y;
    for (const auto& [vedle, ma] : {std::pair{DOSAH_PRSTU + 1, false}, {DOSAH_PRSTU, true}}) {
        Klepni(Na("SamplePic", {dole.X, dole.Y + vedle}));
        EXPECT_EQ(Zacato(), ma) << vedle;
        r.Hra.Cekej(600);  // the next tap is none of a double one
    }
    // The mouse is as exact as ever.
    r.Hra.Stiskni("SamplePic", 0, dole.X, dole.Y + 1);
    EXPECT_TRUE(Zacato());

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
    r.Zacni().Rysuj("AB");
    const int& x = r.Pamet().Utvary[1].X1;
    const int pred = x;
    Klepni(vedle);
    EXPECT_EQ(x, pred + 20);
    r.Hra.StiskniMisto(vedle.X, vedle.Y);
    EXPECT_EQ(x, pred + 20) << "the mouse is no finger";
    r.Kdo.Nastroj(4).Vyber("kružnice k, střed v bodě A");
    Klepni(uvnitr);
    EXPECT_EQ(x, pred + 20) << "in an armed plane a tap draws";
    EXPECT_TRUE(Ohlasu(Ohlas::Druh::Konec));
}

TEST_F(DotykDesky, KurzorARamyOdpovidajiTomuCoZije) {
    const auto nad = [&](Bod b) {
        r.Hra.NajedNaMisto(b.X, b.Y);
        return Okna().KurzorMysi();
    };
    const Bod nastroj{60, 295}, plocha = NaPlose({40, 250});
    EXPECT_EQ(nad(nastroj), Kurzor::Sipka);
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Najeto), std::nullopt);
    EXPECT_EQ(nad(plocha), Kurzor::Sipka);
    EXPECT_EQ(nad({300, 40}), Kurzor::Ruka);
    EXPECT_EQ(nad(Znacka()), Kurzor::Ruka);
    EXPECT_EQ(nad(Na("SamplePic", {2, 2})), Kurzor::Sipka);
    r.Zacni();
    EXPECT_EQ(nad(nastroj), Kurzor::Ruka);
    EXPECT_TRUE(Ohlasu(Ohlas::Druh::Najeto));
    r.Hra.StiskniMisto(nastroj.X, nastroj.Y);
    EXPECT_EQ(nad({nastroj.X + 10, nastroj.Y + 12}), Kurzor::Ruka);
    const Bod radek = r.Hra.Roh(r.Hra.Prvek("ComboLabel", 1));
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Najeto), std::optional(Bod{radek.X - 2, radek.Y}));
    r.Kdo.Vyber("AB");
    EXPECT_EQ(nad(plocha), Kurzor::Kriz);
    EXPECT_EQ(nad({110, 380}), Kurzor::Text);
    EXPECT_EQ(nad(nastroj), Kurzor::Sipka);
}

/// The ring is where the press would begin, and in no bitmap.
TEST_F(DotykDesky, PrstenJeNaBoduKteryByStiskChytil) {
    r.Zacni().Rysuj("AB").Kdo.Nastroj(4).Vyber("kružnice k, střed v bodě A").Napis("10");
    const auto verze = [&] { return r.Hra.Prvek<PictureBox>("Pic").Plocha().Verze(); };
    const std::uint64_t pred = verze();
    const Bod b{r.Druhy}, kde = NaPlose({b.X + 5, b.Y});
    for (const auto& [vedle, je] : {std::pair{7, true}, {8, false}}) {
        const Bod tam = NaPlose({b.X + vedle, b.Y - vedle});
        r.Hra.NajedNaMisto(tam.X, tam.Y);
        EXPECT_EQ(Ohlasu(Ohlas::Druh::Zachytne), je ? std::optional(NaPlose(b)) : std::nullopt)
            << vedle;
    }
    r.Hra.NajedNaMisto(kde.X, kde.Y);
    EXPECT_EQ(verze(), pred);
    Okna().MysDolu(kde.X, kde.Y, LEVE, 0);
    Okna().MysPohyb(kde.X + 40, kde.Y, LEVE, 0);
    EXPECT_EQ(Stred(r.Hra.Prvek("Circle1")), b);
    EXPECT_EQ(Ohlasu(Ohlas::Druh::Zachytne), std::nullopt);
}

}  // namespace
}  // namespace rysovna::testy
