// Two sessions beside each other, each on a machine, a clock and a folder of its own: an event of
// one, an event of the other. Neither may see anything of the other one.

#include <array>
#include <atomic>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <semaphore>
#include <sstream>
#include <string>

#include "base/Cisla.h"
#include "hrac/Serie.h"
#include "platform/SurfaceVnitrek.h"

namespace rysovna::hrac {
namespace {

/// Two take turns: who has had its turn waits until the other had one, or has ended.
struct Stridani {
    std::array<std::binary_semaphore, 2> NaRade{std::binary_semaphore(1), std::binary_semaphore(0)};
    std::atomic<bool> Skoncil = false;  ///< the one that is left goes on alone
    std::atomic<int> Predani = 0;

    void Predej(std::size_t kdo) {
        if (Skoncil) return;
        ++Predani;
        NaRade[1 - kdo].release();
        NaRade[kdo].acquire();
    }
};

/// Plays a series and tells all that came of it: each event with its time, the plane and the tables
/// behind it, the score table, the log.
std::string Odehraj(int uloha, Relace::Cim cim, const std::function<void()>& poUdalosti) {
    Relace hra(static_cast<std::uint32_t>(uloha), cim);
    hra.Host().Cas = {2026, 11, uloha, 9, 5};
    std::ostringstream vse;
    hra.Zaznamenavej(vse);
    hra.Sleduj([&](std::string_view) {
        const Misc& m = hra.Pamet();
        vse << m.PocetUtvaru << ' ' << m.PocetTrojic << ' ' << m.SoucetZapornychBodu << ' '
            << int{m.KladneBody} << ' ' << m.PosunX << ' ' << m.Utvary[m.PocetUtvaru].X1 << '\n';
        const Form* f = hra.Vpredu();
        const auto* pic = f == nullptr ? nullptr : dynamic_cast<PictureBox*>(f->Najdi("Pic"));
        if (pic != nullptr && pic->PlochaNeboNic() != nullptr) {
            const auto& body = pic->PlochaNeboNic()->Uvnitr().Logicka.Body;
            vse << std::hash<std::string_view>{}(
                       {reinterpret_cast<const char*>(body.data()), body.size() * sizeof(body[0])})
                << '\n';
        }
        poUdalosti();
    });
    hra.Start();
    OdehrajSerii(hra, uloha, "Žák", 2, 3);
    return vse.str() + hra.CtiSoubor(DveCislice(uloha) + ".res") + hra.CtiSoubor("Vysledky.dat");
}

TEST(DveSezeni, NastridacDajiTotezCoSama) {
    using Cim = Relace::Cim;
    constexpr struct {
        int Uloha;
        Cim Hraje;
    } DVOJICE[][2] = {{{1, Cim::Mysi}, {1, Cim::Klavesami}},
                      {{10, Cim::Mysi}, {18, Cim::Prstem}},
                      {{5, Cim::Mysi}, {9, Cim::Mysi}}};
    for (const auto& dva : DVOJICE) {
        std::array<std::string, 2> sami;
        for (std::size_t i = 0; i < 2; ++i) sami[i] = Odehraj(dva[i].Uloha, dva[i].Hraje, [] {});
        Stridani stridani;
        const auto spolu = [&](std::size_t i) {
            stridani.NaRade[i].acquire();
            std::string vse;
            try {
                vse = Odehraj(dva[i].Uloha, dva[i].Hraje, [&] { stridani.Predej(i); });
            } catch (const std::exception& chyba) {
                vse = chyba.what();
            }
            stridani.Skoncil = true;
            stridani.NaRade[1 - i].release();
            return vse;
        };
        auto druhy = std::async(std::launch::async, spolu, 1U);
        EXPECT_EQ(spolu(0), sami[0]);
        EXPECT_EQ(druhy.get(), sami[1]);
        EXPECT_GT(stridani.Predani, 100);
    }
}

}  // namespace
}  // namespace rysovna::hrac
