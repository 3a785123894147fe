#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/Ovladace.h"
#include "screens/Zdroje.h"

namespace rysovna {

/// What the pointer is over on a screen: an unsigned byte, 0 for nothing. Each screen numbers its
/// own controls.
class Hover {
public:
    explicit Hover(Sezeni& s) : s_(s) {}

    /// The numbers that all screens share.
    static constexpr std::uint8_t NIC = 0;
    static constexpr std::uint8_t ZAHLAVI = 12;  ///< the banner
    static constexpr std::uint8_t KONEC = 20;    ///< the exit or back button

    /// The pointer is over the control of this number. True, with the enter sound, when it was
    /// over another one before.
    bool Vstup(std::uint8_t cislo);
    /// The pointer is over the ground of the screen. True, silently, when it was over a control
    /// before.
    bool Opust();

private:
    Sezeni& s_;
    std::uint8_t cislo_ = NIC;
};

/// Whether a control is the chosen one: the number in its tag is not 0.
[[nodiscard]] bool Zvoleny(const Ovladac& o);

/// Every control of the row that is not chosen gets its normal picture.
template <std::size_t N>
void ZhasniNezvolene(std::array<Image, N>& rada, const std::array<DvojiceObrazku, N>& obrazky) {
    for (std::size_t k = 0; k < N; ++k) {
        if (!Zvoleny(rada[k])) rada[k].Picture = obrazky[k].Normalni;
    }
}

/// Every control of the row gets the tag "0" and its normal picture.
template <std::size_t N>
void OdzvolVse(std::array<Image, N>& rada, const std::array<DvojiceObrazku, N>& obrazky) {
    for (std::size_t k = 0; k < N; ++k) {
        rada[k].Tag = "0";
        rada[k].Picture = obrazky[k].Normalni;
    }
}

}  // namespace rysovna
