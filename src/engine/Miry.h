#pragma once

namespace rysovna {

// Multiples of pi, each at the value that decides comparisons: quotients of these constants are
// not everywhere equal to the products of PI.
constexpr double PI = 3.14159265358979;
constexpr double DVE_PI = 6.28318530717958;
constexpr double TRI_PI = 9.42477796076937;
constexpr double PET_PI = 15.7079632679489;
constexpr double SEDM_PI = 21.9911485751285;

/// Degrees of half a turn: degrees are radians * STUPNU_PULOTACKY / PI.
constexpr double STUPNU_PULOTACKY = 180;
/// The boards' drawing plane, px.
constexpr int SIRKA_PLOCHY = 384, VYSKA_PLOCHY = 335;
/// Pixels of the plane to the centimetre.
constexpr int PIXELU_NA_CM = 8;
/// A press catches a stored point less than this many pixels off on either axis.
constexpr int DOSAH_CHYTANI = 8;

}  // namespace rysovna
