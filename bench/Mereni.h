#pragma once

#include <algorithm>
#include <chrono>
#include <ctime>
#include <vector>

namespace rysovna::testy {

/// How many times longer a takes than b, in one run: the median over rounds in which both are
/// timed in turn, each for about a millisecond, so that a busy machine slows both alike. The time
/// is the processor's: what others take of it counts for neither.
template <class A, class B>
double PomerCasu(A&& a, B&& b) {
    const auto trvani = [](auto& co, int kolikrat) {
        const std::clock_t zacatek = std::clock();
        for (int i = 0; i < kolikrat; ++i) co();
        return static_cast<double>(std::clock() - zacatek) / CLOCKS_PER_SEC / kolikrat;
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

/// The same of works that change what they work on: each is timed once a round, after priprav.
struct MedianyCasu {
    double A = 0, B = 0;  ///< seconds
    double Pomer = 0;
};
template <class P, class A, class B>
MedianyCasu PoJednom(P&& priprav, A&& a, B&& b) {
    using Hodiny = std::chrono::steady_clock;
    const auto trvani = [&](auto& co) {
        priprav();
        const auto zacatek = Hodiny::now();
        co();
        return std::chrono::duration<double>(Hodiny::now() - zacatek).count();
    };
    constexpr int KOL = 31;
    std::vector<double> casyA, casyB, pomery;
    for (int i = 0; i < KOL; ++i) {
        casyA.push_back(trvani(a));
        casyB.push_back(trvani(b));
        pomery.push_back(casyA.back() / casyB.back());
    }
    const auto median = [](std::vector<double>& v) {
        std::ranges::nth_element(v, v.begin() + KOL / 2);
        return v[KOL / 2];
    };
    return {median(casyA), median(casyB), median(pomery)};
}

}  // namespace rysovna::testy
