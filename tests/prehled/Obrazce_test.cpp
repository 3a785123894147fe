// Figures of attempts: the same pixels as on the pupil's screen, so that labels lie where they lay,
// and vectors that show these pixels.

#include "prehled/Obrazce.h"

#include <algorithm>
#include <cairo.h>
#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <librsvg/rsvg.h>
#include <memory>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/Text.h"
#include "engine/Miry.h"
#include "hrac/Serie.h"
#include "platform/Stroj.h"
#include "platform/Surface.h"
#include "podpora/Konstrukce.h"
#include "prehled/Prehled.h"
#include "prehled/SvgPlocha.h"
#include "rules/Prehravka.h"
#include "rules/VolaniDialogu.h"
#include "store/JmenaSouboru.h"
#include "store/TextPokusu.h"

namespace rysovna::testy {
namespace {

using prehled::SvgPlocha;

/// A series of a task without a fault, as the game kept it.
Pokus OdehranyPokus(int uloha) {
    hrac::Relace hra(3);
    hra.Start();
    hrac::OdehrajSerii(hra, uloha, "Žák", 2, 3);
    for (const auto& s : std::filesystem::directory_iterator(hra.DataDir() / SLOZKA_POKUSU))
        return CtiPokus(CelySoubor(s.path()).value()).Co.value();
    throw std::runtime_error("no attempt");
}

/// Dark pixels of a picture, row by row.
struct Inkoust {
    std::vector<bool> Body = std::vector<bool>(std::size_t{SIRKA_PLOCHY} * VYSKA_PLOCHY);

    [[nodiscard]] bool Je(int x, int y) const {
        return x >= 0 && y >= 0 && x < SIRKA_PLOCHY && y < VYSKA_PLOCHY &&
               Body[static_cast<std::size_t>(y) * SIRKA_PLOCHY + static_cast<std::size_t>(x)];
    }
    void Dej(int x, int y) {
        Body[static_cast<std::size_t>(y) * SIRKA_PLOCHY + static_cast<std::size_t>(x)] = true;
    }
    [[nodiscard]] Inkoust Bez(const Inkoust& jiny) const {
        Inkoust zbytek = *this;
        for (std::size_t i = 0; i < Body.size(); ++i)
            if (jiny.Body[i]) zbytek.Body[i] = false;
        return zbytek;
    }
    /// How many of its pixels have none of the other within so many px.
    [[nodiscard]] int Navic(const Inkoust& jiny, int dosah) const {
        int pocet = 0;
        for (int i = 0; i < SIRKA_PLOCHY * VYSKA_PLOCHY; ++i) {
            const int x = i % SIRKA_PLOCHY, y = i / SIRKA_PLOCHY;
            if (!Je(x, y)) continue;
            bool blizko = false;
            for (int d = 0; d < (2 * dosah + 1) * (2 * dosah + 1); ++d)
                blizko = blizko ||
                         jiny.Je(x - dosah + d % (2 * dosah + 1), y - dosah + d / (2 * dosah + 1));
            pocet += blizko ? 0 : 1;
        }
        return pocet;
    }
};

Inkoust ZPlochy(const Plane& plocha) {
    Inkoust i;
    for (int y = 0; y < VYSKA_PLOCHY; ++y)
        for (int x = 0; x < SIRKA_PLOCHY; ++x)
            if (plocha.Point(x, y) != BILA) i.Dej(x, y);
    return i;
}

/// Where letters are, from the places of the texts: boxes as wide as the widest letters, some
/// of which reach a pixel to the left.
Inkoust ZTextu(const std::string& obsah) {
    static const std::regex TEXT("<text x='(-?[0-9]+)' y='(-?[0-9]+)'>([^<]*)</text>");
    constexpr int SIRKA_ZNAKU = 11, NAD_UCARIM = 9, POD_UCARIM = 3;
    Inkoust i;
    for (std::sregex_iterator t(obsah.begin(), obsah.end(), TEXT), konec; t != konec; ++t) {
        const int x = std::stoi((*t)[1]), y = std::stoi((*t)[2]);
        const int vpravo = std::min(x + SIRKA_ZNAKU * PocetZnaku((*t)[3].str()), SIRKA_PLOCHY);
        for (int py = std::max(y - NAD_UCARIM, 0); py < std::min(y + POD_UCARIM, VYSKA_PLOCHY);
             ++py)
            for (int px = std::max(x - 1, 0); px < vpravo; ++px) i.Dej(px, py);
    }
    return i;
}

/// Lines and circles, as another program sees them.
Inkoust ZVektoru(const std::string& obsah) {
    static const std::regex TEXT("<text[^<]*</text>");
    const std::string svg =
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="384" height="335" viewBox="-.5 -.5 384 )"
        R"(335"><g stroke="#000" fill="none">)" +
        std::regex_replace(obsah, TEXT, "") + "</g></svg>";
    RsvgHandle* handle =
        rsvg_handle_new_from_data(reinterpret_cast<const guint8*>(svg.data()), svg.size(), nullptr);
    if (handle == nullptr) throw std::runtime_error("no picture: " + svg);
    cairo_surface_t* plocha =
        cairo_image_surface_create(CAIRO_FORMAT_A8, SIRKA_PLOCHY, VYSKA_PLOCHY);
    cairo_t* cr = cairo_create(plocha);
    const RsvgRectangle kam{0, 0, SIRKA_PLOCHY, VYSKA_PLOCHY};
    const bool vyslo = rsvg_handle_render_document(handle, cr, &kam, nullptr) != 0;
    cairo_destroy(cr);
    g_object_unref(handle);
    cairo_surface_flush(plocha);
    Inkoust i;
    constexpr int KRYJE = 96;  // of 255
    for (int y = 0; y < VYSKA_PLOCHY && vyslo; ++y) {
        const unsigned char* radka = cairo_image_surface_get_data(plocha) +
                                     std::ptrdiff_t{y} * cairo_image_surface_get_stride(plocha);
        for (int x = 0; x < SIRKA_PLOCHY; ++x)
            if (radka[x] > KRYJE) i.Dej(x, y);
    }
    cairo_surface_destroy(plocha);
    return i;
}

/// A board's dialogue on planes of a kind.
template <class Plocha>
struct Deska_ {
    explicit Deska_(int uloha) {
        Relace_.Vety = [](int) { return std::vector<std::string>{"Chybný krok."}; };
        Relace_.CisloUlohy = static_cast<std::uint8_t>(uloha);
        Hra = VyrobDialog(DeskaUlohy(uloha), Relace_, {Pic, HidenPic});
    }
    Misc Relace_;
    Plocha Pic{SIRKA_PLOCHY, VYSKA_PLOCHY}, HidenPic{SIRKA_PLOCHY, VYSKA_PLOCHY};
    std::unique_ptr<Dialog> Hra;
};

class Obrazce : public testing::TestWithParam<int> {};

TEST_P(Obrazce, JakoNaObrazovce) {
    const Pokus pokus = OdehranyPokus(GetParam());
    Deska_<Surface> obrazovka(GetParam());
    Deska_<SvgPlocha> vektory(GetParam());
    std::mt19937 los(7);
    const auto obe = [&](auto co) {
        co(*obrazovka.Hra);
        co(*vektory.Hra);
    };
    for (const HranyPriklad& p : pokus.Priklady) {
        obe([&](Dialog& d) {
            d.NovyPriklad();
            d.Zadej(p.Zadani);
        });
        for (const Udalost& u : p.Udalosti) {
            obe([&](Dialog& d) { Proved(d, u.Co); });
            // Redraws: labels look for their places anew, among other things.
            if (const auto n = los(); n % 4 == 0)
                obe([&](Dialog& d) { d.Posun(n % 8 == 0 ? 20 : -20, n % 16 < 8 ? 20 : -20); });
        }
        const Inkoust videt = ZPlochy(obrazovka.Pic);
        EXPECT_EQ(videt.Navic(ZPlochy(vektory.Pic), 0), 0);
        EXPECT_EQ(ZPlochy(vektory.Pic).Navic(videt, 0), 0);
        const Inkoust kreslene = ZVektoru(vektory.Pic.Obsah());
        const Inkoust popsane = ZTextu(vektory.Pic.Obsah());
        EXPECT_EQ(videt.Bez(popsane).Navic(kreslene, 2), 0) << vektory.Pic.Obsah();
        EXPECT_GT(kreslene.Navic({}, 0), 100);
        EXPECT_EQ(kreslene.Navic(videt, 2), 0) << vektory.Pic.Obsah();
        EXPECT_LT(vektory.Pic.Obsah().size(), 1500U);
    }
    // Of what is wrongly done each charge has its figure, up to where it comes apart.
    Pokus jiny = pokus;
    jiny.Priklady[0].Udalosti.back().Chyby = {{}, {}};
    const prehled::Obrazce dobre = prehled::NakresliPokus(pokus);
    const prehled::Obrazce spatne = prehled::NakresliPokus(jiny);
    EXPECT_EQ(dobre.Rozchod, "");
    EXPECT_EQ(std::ranges::count(dobre.Priklady, ""), 0);
    EXPECT_NE(spatne.Rozchod.find("příklad 1"), std::string::npos) << spatne.Rozchod;
}

INSTANTIATE_TEST_SUITE_P(Ulohy, Obrazce, testing::Values(1, 5, 9, 10, 11, 13, 17, 18, 20));

TEST(SvgPlochaTest, PismenaJsouTaZObrazovky) {
    hrac::Relace hra;
    hra.Start();
    Surface obrazovka(SIRKA_PLOCHY, VYSKA_PLOCHY);
    SvgPlocha vektory(SIRKA_PLOCHY, VYSKA_PLOCHY);
    float y = 1;
    for (char prvni = ' '; prvni <= '~'; ++prvni, y += 3) {
        std::string text{prvni, 'A', 'q', prvni, '1'};
        for (Plane* p : {static_cast<Plane*>(&obrazovka), static_cast<Plane*>(&vektory)}) {
            p->CurrentX = static_cast<float>(prvni % 9) * 40;
            p->CurrentY = y;
            p->Print(text);
        }
        EXPECT_EQ(vektory.TextWidth(text), obrazovka.TextWidth(text)) << text;
    }
    EXPECT_EQ(vektory.TextHeight(), obrazovka.TextHeight());
    EXPECT_EQ(ZPlochy(obrazovka).Body, ZPlochy(vektory).Body);

    // What others wrote into a name stays text.
    vektory.Cls();
    vektory.Font.Nazev = Pismo::Rez::Symbol;
    vektory.Print("a<b>&\x01^");
    EXPECT_EQ(vektory.Obsah(), "<text x='0' y='10'>α&lt;β&gt;&amp;\uFFFD⊥</text>");
}

}  // namespace
}  // namespace rysovna::testy
