#include "engine/VolneMisto.h"

#include <gtest/gtest.h>
#include <random>

#include "engine/PametovaPlocha.h"
#include "podpora/ProsteHledani.h"
#include "podpora/Tisk.h"

namespace rysovna {
namespace {

using namespace testy;

TEST(VolneMisto, NajdeTotezCoProsteHledani) {
    std::mt19937 stroj(4);
    const auto n = [&](int meze) { return static_cast<int>(stroj() & 0xFFFF) % meze; };
    int zadne = 0, jine = 0;
    for (int kolo = 0; kolo < 6000; ++kolo) {
        // Now and then sizes beyond those of the labels, up to several words of candidates.
        const bool velke = kolo % 10 == 0;
        PametovaPlocha plocha(20 + n(60), 20 + n(velke ? 200 : 60));
        // Anything from a clean plane to a crowded one: specks, strokes, white blocks in black.
        const int zpusob = kolo % 3;
        if (zpusob == 2) {
            std::swap(plocha.BackColor, plocha.ForeColor);
            plocha.DrawWidth = 10 + n(15);
        }
        plocha.Cls();
        for (int i = n(zpusob == 0 ? 60 : 12); i > 0; --i) {
            if (zpusob == 0) {
                plocha.PSet(n(80), n(80), n(2) == 0 ? CERNA : 0xFFFFFE);
            } else {
                const auto c = [&] { return static_cast<float>(n(80)); };
                plocha.Line(c(), c(), c(), c());
            }
        }
        const Bod puvodni{n(100) - 10, n(100) - 10};
        const int sirka = n(20) - 3, dosah = n(velke ? 60 : 13) - 1;
        Bod rychle = puvodni, proste = puvodni;
        VolneMisto(plocha, rychle, sirka, dosah);
        ProsteHledani(plocha, proste, sirka, dosah);
        ASSERT_EQ(rychle, proste) << "round " << kolo << " width " << sirka << " reach " << dosah;
        ++(proste == puvodni ? zadne : jine);
    }
    // The planes are neither all empty nor all full.
    EXPECT_GT(zadne, 500);
    EXPECT_GT(jine, 1000);
}

}  // namespace
}  // namespace rysovna
