#pragma once

#include <cstdint>
#include <random>

namespace rysovna {

/// The generator of examples. The host gives the seed (from the clock in the window, from the
/// script headless), so a test can play the same game twice.
class Nahoda {
public:
    void Zasej(std::uint32_t seminko) { stroj_.seed(seminko); }

    /// Uniform in 0 up to but excluding 1, single precision: 24 bits.
    float Rnd() { return static_cast<float>(stroj_() >> 8) * (1.0F / 16777216.0F); }

    /// The whole part of r times rozpeti plus zaklad, with a fresh r: a whole number from zaklad
    /// to zaklad + rozpeti - 1.
    int D(int rozpeti, int zaklad) {
        return static_cast<int>(static_cast<double>(Rnd()) * rozpeti + zaklad);
    }

private:
    std::mt19937 stroj_;
};

}  // namespace rysovna
