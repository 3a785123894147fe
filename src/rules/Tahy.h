#pragma once

#include <string>
#include <string_view>

#include "base/Bod.h"
#include "engine/Tabulky.h"
#include "rules/Panel.h"

namespace rysovna {

// What a drag makes: the points of the new object and the read-out that the pupil steers by. The
// read-out, not the pixels, is what is judged; that gives a segment its play of half a centimetre
// to either side.

/// The point of the base line at the press: its Y at the press's X, rounded; on an upright base
/// its X at the press's Y.
[[nodiscard]] Bod BodNaZakladne(const Utvar& zakladna, float x, float y);

/// The pixel that the pointer is on.
[[nodiscard]] Bod NaPixely(float x, float y);

/// The parallel that is pushed: the base line itself, shifted by the pointer's way from the start.
[[nodiscard]] Dvojice Rovnobezne(const Utvar& zakladna, Bod start, Bod ukazatel);

/// The perpendicular to the base line through its start, exactly: the base's own way turned by a
/// quarter, to the pointer's side. A base without length gives an upright line.
[[nodiscard]] Dvojice Kolme(const Utvar& zakladna, Bod start, Bod ukazatel);

/// The foot of the pointer on the line of these two points: where the rubber band of a
/// perpendicular ends.
[[nodiscard]] Bod PataUkazatele(Dvojice primka, Bod ukazatel);

/// A length in pixels as the pupil reads it: centimetres cut (not rounded) to one decimal.
[[nodiscard]] double DelkaVCm(double px);
/// "12 cm": a length in pixels, cut to a tenth of a centimetre and shown in whole ones.
[[nodiscard]] std::string OdectiDelku(double px);
/// The distance of the pointer from the base line, with a "-" in front when the way from the start
/// to the pointer goes down.
[[nodiscard]] std::string OdectiVzdalenost(const Utvar& zakladna, Bod start, Bod ukazatel);
/// "35°": the angle, 0 to 180 degrees, between a side, seen from its end rameno1 towards rameno2,
/// and the way from the start to the pointer.
[[nodiscard]] std::string OdectiUhel(Bod rameno1, Bod rameno2, Bod start, Bod ukazatel);

/// The rubber band of a circle: about its centre, as far as the pointer is from it along X, and the
/// radius read off.
[[nodiscard]] Gumicka TahKruznice(Bod stred, Bod ukazatel);

/// The number of a read-out: its text without blanks, "°", "c" and "m".
[[nodiscard]] double CisloZOdectu(std::string_view text);

/// Straight distance of two points, pixels.
[[nodiscard]] double Vzdalenost(Bod a, Bod b);
/// The midpoint of two points, halved with a rounding.
[[nodiscard]] Bod StredUseckyBodu(Bod a, Bod b);

}  // namespace rysovna
