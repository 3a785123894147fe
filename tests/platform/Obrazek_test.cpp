#include <random>

#include "PlatformTest.h"
#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "platform/ObrazekData.h"
#include "platform/Stroj.h"
#include "platform/bmp/Bmp.h"
#include "platform/bmp/Sbaleni.h"

namespace rysovna::testy {
namespace {

/// A bitmap file of 3 by 2 pixels: red, green, blue above, key, white, black below.
std::string Bmp(int bity = 24, bool odshora = false) {
    std::string d(54, '\0');
    const std::pair<std::size_t, int> hlavicka[] = {
        {0, 0x4D42}, {10, 54}, {14, 40}, {18, 3}, {22, odshora ? -2 : 2}, {26, 1 + (bity << 16)}};
    for (const auto& [kde, x] : hlavicka) {
        for (std::size_t i = 0; i < 4; ++i) d[kde + i] = static_cast<char>((x >> (8 * i)) & 0xFF);
    }
    const std::string nahore("\0\0\xFF\0\xFF\0\xFF\0\0\0\0\0", 12);
    const std::string dole("\xFF\0\xFF\xFF\xFF\xFF\0\0\0\0\0\0", 12);
    return d + (odshora ? nahore + dole : dole + nahore);
}

TEST_F(NaStroji, BitmapaSePrecteBodPoBodu) {
    for (const bool odshora : {false, true}) {
        const std::string soubor = Soubor("obr.bmp", Bmp(24, odshora));
        std::vector<Pixel> ceka;
        for (const Barva b : {CERVENA, Rgb(0, 255, 0), Rgb(0, 0, 255), PURPUROVA, BILA, CERNA}) {
            ceka.push_back(DoPixelu(b));
        }
        EXPECT_EQ(NactiBmp(soubor).Body, ceka);
    }
}

TEST_F(NaStroji, VadnaBitmapaJeChybaSeJmenemSouboru) {
    std::string obri = Bmp();
    obri[20] = '\x7F';
    std::string posunuta = Bmp();
    posunuta[10] = '\0';
    const std::pair<const char*, std::string> PRIPADY[] = {
        {"empty", ""},
        {"cut in the header", Bmp().substr(0, 40)},
        {"cut in the last row", Bmp().substr(0, 77)},
        {"another format", "GIF89a" + Bmp().substr(6)},
        {"32 bits", Bmp(32)},
        {"a size out of reason", obri},
        {"pixels inside the header", posunuta},
    };
    for (const auto& [proc, obsah] : PRIPADY) {
        const std::string soubor = Soubor("vadny.bmp", obsah);
        try {
            (void)LoadPicture(soubor);
            FAIL() << proc;
        } catch (const BehovaChyba& chyba) {
            EXPECT_EQ(chyba.Kde(), soubor) << proc;
        }
    }
    EXPECT_THROW((void)LoadPicture("/neni/tady.bmp"), BehovaChyba);
}

TEST_F(NaStroji, ZabalenaBitmapaSeVratiAPoskozenaNespadne) {
    std::mt19937 generator(7);
    const auto nahoda = [&] { return static_cast<unsigned>(generator()); };
    for (const unsigned barev : {1U, 2U, 256U, 257U, 5000U}) {
        ObrazBmp obraz{83, 61, {}};
        for (int i = 0; i < 83 * 61; ++i) {
            const unsigned barva =
                static_cast<unsigned>(i) < barev ? static_cast<unsigned>(i) : nahoda() % barev;
            obraz.Body.push_back(0xFF000000U | barva * 3331U);
        }
        const std::string soubor = Soubor("zabaleny.bmp", ZabalenyBmp(obraz));
        EXPECT_EQ(NactiObrazBmp(soubor).Body, obraz.Body) << barev;
        const std::string prosty = Soubor("prosty.bmp", ProstyBmp(NactiObrazBmp(soubor)));
        EXPECT_EQ(NactiObrazBmp(prosty).Body, obraz.Body) << barev;
        EXPECT_EQ(NactiHlavuBmp(soubor).Otisk, OtiskBodu(obraz))
            << "the same as that of its pixels";
        EXPECT_EQ(NactiHlavuBmp(prosty).Otisk, std::nullopt);
        obraz.Body[500] ^= 1;
        EXPECT_NE(NactiHlavuBmp(soubor).Otisk, OtiskBodu(obraz));
    }
    const std::string zdravy = ZabalenyBmp({3, 2, {1, 2, 3, 4, 5, 6}});
    int vadnych = 0;
    for (int i = 0; i < 3000; ++i) {
        std::string data = zdravy.substr(0, zdravy.size() - (i % 3 == 0 ? nahoda() % 90 : 0));
        for (unsigned zmen = nahoda() % 3 + (i % 3 == 0 ? 0 : 1); zmen > 0; --zmen)
            data[nahoda() % data.size()] = static_cast<char>(nahoda());
        try {
            (void)CtiBmp(data, "zmeneny.bmp");
        } catch (const BehovaChyba& chyba) {
            ASSERT_EQ(chyba.Kde(), "zmeneny.bmp");
            ++vadnych;
        }
    }
    EXPECT_GT(vadnych, 1500);
}

TEST_F(NaStroji, ObrazekSeDrziJedenADaSvePolickoPasu) {
    const std::string soubor = Soubor("Obr.bmp", Bmp());
    std::string jinak = soubor;
    jinak.replace(jinak.rfind('/'), 1, "\\");
    jinak.replace(jinak.rfind("Obr"), 3, "oBR");
    Obrazek a = LoadPicture(soubor);
    Obrazek b = LoadPicture(jinak);
    EXPECT_EQ(a, b) << "backslashes and another case give the same file";
    Surface p(1, 2);  // holds the picture that it has painted
    p.PaintPicture(a.Bunka(1, 3), 0, 0);
    EXPECT_EQ(p.Point(0, 0), Rgb(0, 255, 0));
    EXPECT_EQ(p.Point(0, 1), BILA);
    EXPECT_THROW((void)a.Bunka(3, 3), BehovaChyba);
    const std::weak_ptr<DataObrazku> drzi = a.Data();
    a = b = Obrazek();
    EXPECT_FALSE(drzi.expired());
    p.Cls();
    EXPECT_TRUE(drzi.expired());
}

/// Every staged picture, its bitmap and its shapes.
template <class F>
void ProObrazky(F f) {
    for (const auto& soubor :
         std::filesystem::recursive_directory_iterator(Staging() / "assets" / "Bitmap")) {
        if (soubor.path().extension() != ".bmp") continue;
        auto tvary = soubor.path();
        f(soubor.path(), tvary.replace_extension(PRIPONA_TVARU));
    }
}

/// The most levels by which a channel differs.
int Rozdil(Pixel a, Pixel b) {
    int rozdil = 0;
    for (const unsigned posun : {0U, 8U, 16U, 24U}) {
        rozdil = std::max(rozdil, std::abs(static_cast<int>(a >> posun & 255U) -
                                           static_cast<int>(b >> posun & 255U)));
    }
    return rozdil;
}

TEST_F(NaStroji, TvaryKresliTotezCoBitmapa) {
    int obrazku = 0;
    ProObrazky([&](const std::filesystem::path& soubor, const std::filesystem::path& jeho) {
        ++obrazku;
        const Bitmapa vzor = NactiBmp(soubor);
        const auto tvary = NactiTvary(jeho);
        ASSERT_TRUE(tvary) << soubor;
        Bitmapa b(vzor.Sirka, vzor.Vyska, 0);
        KresliTvary(b.Pohled(), b.Pohled().Meze(), b.Pohled().Meze(), *tvary);
        int jinych = 0;
        for (std::size_t i = 0; i < b.Body.size(); ++i) {
            const Pixel nas = b.Body[i] == KLIC || b.Body[i] >> 24 == 255
                                  ? b.Body[i]
                                  : Smichej(KLIC, b.Body[i], b.Body[i] >> 24);
            if (Rozdil(nas, vzor.Body[i]) > 64) ++jinych;
        }
        EXPECT_LE(jinych, 8 + static_cast<int>(b.Body.size() / 500)) << soubor;
        // A part drawn alone is that part of the whole, and nothing else.
        Bitmapa cast(vzor.Sirka, vzor.Vyska, 0x55);
        const Obdelnik kde{vzor.Sirka / 3, vzor.Vyska / 4, vzor.Sirka / 2, vzor.Vyska / 2};
        KresliTvary(cast.Pohled(), cast.Pohled().Meze(), kde, *tvary);
        for (int y = 0; y < vzor.Vyska; ++y) {
            for (int x = 0; x < vzor.Sirka; ++x) {
                const bool v = !JePrazdny(Prunik(kde, {x, y, 1, 1}));
                const Pixel ceka = v ? b.Radka(y)[x] : 0x55U;
                // Cut edges are rounded a little otherwise.
                ASSERT_LE(Rozdil(cast.Radka(y)[x], ceka), v ? 16 : 0) << soubor << x << "," << y;
            }
        }
    });
    EXPECT_GT(obrazku, 180);
}

TEST_F(NaStroji, PoskozeneTvaryJsouChybaAleNikdyPad) {
    std::mt19937 generator(11);
    const auto nahoda = [&] { return static_cast<unsigned>(generator()); };
    int vadnych = 0;
    ProObrazky([&](const std::filesystem::path&, const std::filesystem::path& jeho) {
        const std::string zdravy = *CelySoubor(jeho);
        const Tvary tvary = CtiTvary(zdravy, "vzor");
        for (int i = 0; i < 30; ++i) {
            std::string data = zdravy;
            if (i % 3 == 0) data.resize(nahoda() % data.size());
            // Most mutations must come through the packing, which knows its own.
            std::string prikazy = tvary.Prikazy;
            for (unsigned n = nahoda() % 4 + 1; n > 0; --n) {
                std::string& kde = i % 3 == 1 ? data : prikazy;
                if (!kde.empty()) kde[nahoda() % kde.size()] = static_cast<char>(nahoda());
            }
            if (i % 3 == 2) data = zdravy.substr(0, VELIKOST_HLAVY_TVARU) + Sbal(prikazy);
            try {
                const Tvary jine = CtiTvary(data, "zmeneny");
                Bitmapa b(97, 61, 0);
                KresliTvary(b.Pohled(), {-20, -10, 130, 90}, b.Pohled().Meze(), jine);
            } catch (const BehovaChyba& chyba) {
                ASSERT_EQ(chyba.Kde(), "zmeneny");
                ++vadnych;
            }
        }
    });
    EXPECT_GT(vadnych, 2000);
}

TEST_F(NaStroji, VymenenyObrazekMaPrednostPredTvary) {
    const auto titul = Staging() / "assets" / "Bitmap" / "Intro" / "title.bmp";
    auto jeho = titul;
    const std::string tvary = *CelySoubor(jeho.replace_extension(PRIPONA_TVARU));
    ObrazBmp obraz = NactiObrazBmp(titul);
    const std::vector<Pixel> kreslene = LoadPicture(titul.string()).Data()->VeVelikosti(1.5).Body;
    const auto nacti = [&](const std::string& bmp) {
        (void)Soubor("vymena.tvary", tvary);
        return LoadPicture(Soubor("vymena.bmp", bmp)).Data()->VeVelikosti(1.5).Body;
    };
    EXPECT_EQ(nacti(ZabalenyBmp(obraz)), kreslene) << "the same pixels, packed again";
    obraz.Body[0] ^= 1;
    for (const std::string& bmp : {ZabalenyBmp(obraz), ProstyBmp(obraz)}) {
        const Bitmapa vlastni{NactiBmp(Soubor("jiny.bmp", bmp))};
        EXPECT_EQ(nacti(bmp), Preskaluj(vlastni.KeCteni(), 960, 720, false).Body);
    }
}

TEST_F(NaStroji, PreskalovaniDrziBarvyAKlic) {
    Bitmapa plna(30, 20, DoPixelu(Rgb(12, 200, 77)));
    plna.Pohled().Vypln({0, 0, 15, 20}, KLIC);
    const Bitmapa b = Preskaluj(plna.KeCteni(), 67, 45, true);
    // Neither mixes: at the edge the colour is the whole one, and the highest byte tells its share.
    double podil = 0;
    for (const Pixel p : b.Body) {
        if (p == KLIC) continue;
        ASSERT_EQ(p | 0xFF000000u, DoPixelu(Rgb(12, 200, 77)));
        podil += (p >> 24) / 255.0;
    }
    EXPECT_NEAR(podil, 67 * 45 / 2.0, 5) << "the edge stays in the middle";
    // Laid on another colour, the edge is mixed by that share, and what comes out covers all.
    Bitmapa cil(67, 45, DoPixelu(Rgb(212, 200, 77)));
    Prenes(cil.Pohled(), {0, 0, 67, 45}, cil.Pohled().Meze(), b, 0, 0, Prenos::BezKlice);
    double polozeno = 0;
    for (const Pixel p : cil.Body) {
        ASSERT_EQ(p & 0xFF00FFFFu, 0xFF00C84Du);
        polozeno += (212 - (p >> 16 & 0xFF)) / 200.0;
    }
    EXPECT_NEAR(polozeno, podil, 1);
    // Without the key the edge is smooth, and halving averages exactly.
    Bitmapa pruhy(4, 1, DoPixelu(CERNA));
    pruhy.Pohled().Vypln({1, 0, 1, 1}, DoPixelu(BILA));
    EXPECT_EQ(Preskaluj(pruhy.KeCteni(), 2, 1, false).Body[0] & 0xFF, 128U);
}

}  // namespace
}  // namespace rysovna::testy
