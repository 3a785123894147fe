// Two sessions beside each other, each on a machine, a clock and a folder of its own: an event of
// one, an event of the other. Neither may see anything of the other one.

#include <array>
#include <condition_variable>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <mutex>
#include <sstream>
#include <string>

#include "base/Cisla.h"
#include "hrac/Serie.h"
#include "platform/SurfaceVnitrek.h"

namespace rysovna::hrac {
namespace {

/// Two take turns: who has had its turn waits until the other had one, or has ended.
class Stridani {
public:
    void Pockej(int kdo) {
        std::unique_lock zamek(mutex_);
        naRade_.wait(zamek, [&] { return rada_ == kdo || skoncil_; });
    }
    void Predej(int kdo) {
        {
            const std::lock_guard zamek(mutex_);
            rada_ = 1 - kdo;
            ++predani_;
        }
        naRade_.notify_all();
        Pockej(kdo);
    }
    void Skonci() {
        {
            const std::lock_guard zamek(mutex_);
            skoncil_ = true;
        }
        naRade_.notify_all();
    }
    [[nodiscard]] int Predani() const { return predani_; }

private:
    std::mutex mutex_;
    std::condition_variable naRade_;
    int rada_ = 0, predani_ = 0;
    bool skoncil_ = false;  ///< the one that is left goes on alone
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
    struct Kdo {
        int Uloha;
        Cim Hraje;
    };
    const std::array<std::array<Kdo, 2>, 3> dvojice{{{{{1, Cim::Mysi}, {1, Cim::Klavesami}}},
                                                     {{{10, Cim::Mysi}, {18, Cim::Prstem}}},
                                                     {{{5, Cim::Mysi}, {9, Cim::Mysi}}}}};
    for (const auto& dva : dvojice) {
        std::array<std::string, 2> sami;
        for (std::size_t i = 0; i < 2; ++i) sami[i] = Odehraj(dva[i].Uloha, dva[i].Hraje, [] {});
        Stridani stridani;
        const auto spolu = [&](int i) {
            const Kdo& kdo = dva[static_cast<std::size_t>(i)];
            stridani.Pockej(i);
            std::string vse;
            try {
                vse = Odehraj(kdo.Uloha, kdo.Hraje, [&] { stridani.Predej(i); });
            } catch (const std::exception& chyba) {
                vse = chyba.what();
            }
            stridani.Skonci();
            return vse;
        };
        auto druhy = std::async(std::launch::async, spolu, 1);
        EXPECT_EQ(spolu(0), sami[0]);
        EXPECT_EQ(druhy.get(), sami[1]);
        EXPECT_GT(stridani.Predani(), 100);
    }
}

}  // namespace
}  // namespace rysovna::hrac
