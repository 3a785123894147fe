#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "base/Bod.h"
#include "platform/Form.h"

// Fingers. A finger is wide and hides what it points at, so it gets what a mouse has no need of:
//
//   - a tap near something small counts as on it (NajdiCil);
//   - the shake of its lifting is left out (StopaPrstu);
//   - a drag is not over when it is lifted: it is held until "hotovo" of a pad (Podlozka) that
//     stands in the corner of the plane, whose arrows move its end by a pixel each. A tap on the
//     plane moves the end there. All else is dead meanwhile, and there is no giving up: what was
//     begun with the mouse has no way back either.
//
// One finger plays; a second one on the screen is nobody's.

namespace rysovna {

/// How far beside a small thing a tap still counts as on it, design px on each axis.
constexpr int DOSAH_PRSTU = 10;

/// What lies at a place, told apart by object and part; {nullptr, ...}: nothing.
struct CilPrstu {
    const Ovladac* Co = nullptr;
    int Cast = 0;
    friend bool operator==(const CilPrstu&, const CilPrstu&) = default;
};

/// The place nearest to (x, y), at most DOSAH_PRSTU away on each axis, at which there is something;
/// none if there is nothing, or more than one thing equally near.
[[nodiscard]] std::optional<Bod> NajdiCil(Bod odkud, const std::function<CilPrstu(Bod)>& coTamJe);

/// Where a finger has been lately.
class StopaPrstu {
public:
    void Zacni(Bod kde, std::uint32_t cas);
    void Pridej(Bod kde, std::uint32_t cas);
    /// Where it was lifted: where it rested before, if the last moves are no more than the shake
    /// of the lifting.
    [[nodiscard]] Bod Konec(std::uint32_t cas) const;

private:
    struct Misto {
        Bod Kde;
        std::uint32_t Cas;
    };
    std::deque<Misto> mista_;
};

/// The pad: three by three squares, arrows at the sides, "hotovo" in the middle; the corners are
/// empty. Design px.
struct Podlozka {
    static constexpr int POLE = 44;  ///< side of a square: a finger's width on a small tablet
    static constexpr int STRANA = 3 * POLE;
    static constexpr int OKRAJ = 4;  ///< px from the corner of the plane

    Bod Roh;

    /// In the corner of the plane that is the farthest from both ends of the drag.
    [[nodiscard]] static Podlozka VRohu(const Obdelnik& plocha, Bod zacatek, Bod konec);
    [[nodiscard]] bool Obsahuje(Bod b) const {
        return Obdelnik{Roh.X, Roh.Y, STRANA, STRANA}.Obsahuje(b.X, b.Y);
    }
    /// The step of the arrow at a place; {0, 0}: "hotovo"; none in an empty corner.
    [[nodiscard]] std::optional<Bod> Pole(Bod b) const;
    friend bool operator==(const Podlozka&, const Podlozka&) = default;
};

}  // namespace rysovna
