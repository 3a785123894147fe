#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace rysovna::testy {

/// How many times longer a takes than b, in one run: the median over rounds in which both are
/// timed in turn, each for about a millisecond, so that a busy machine slows both alike.
template <class A, class B>
double PomerCasu(A&& a, B&& b) {
    using Hodiny = std::chrono::steady_clock;
    const auto trvani = [](auto& co, int kolikrat) {
        const auto zacatek = Hodiny::now();
        for (int i = 0; i < kolikrat; ++i) co();
        return std::chrono::duration<double>(Hodiny::now() - zacatek).count() / kolikrat;
    };
    const auto opakovani = [&](auto& co) {
        int kolikrat = 1;
        while (trvani(co, kolikrat) * kolikrat < 1e-3) kolikrat *= 2;
        return kolikrat;
    };
    const int kolikratA = opakovani(a);
    const int kolikratB = opakovani(b);
    constexpr int KOL = 51;
    std::vector<double> pomery;
    for (int i = 0; i < KOL; ++i) {
        const double casA = trvani(a, kolikratA);
        pomery.push_back(casA / trvani(b, kolikratB));
    }
    std::ranges::nth_element(pomery, pomery.begin() + KOL / 2);
    return pomery[KOL / 2];
}

}  // namespace rysovna::testy
