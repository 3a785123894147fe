#pragma once

#include <optional>

#include "base/Bod.h"
#include "base/Plane.h"

namespace rysovna {

/// The second point of a ray or line, moved along it to the margin box of the plane, where its
/// label has room. It stays where it was when the moved one would not lie ahead of the start: no
/// drag at all, or a start beyond the box. A level object above or below the box keeps its X and
/// gets the Y of the box's edge: it tilts.
[[nodiscard]] Bod NaOkraj(const Plane& plane, Bod od, Bod k);

/// A pushed parallel as it is stored.
struct PosunutaPrimka {
    Bod P1, P2;
    /// P1 was looked for on the line and is no point of the construction: it catches no press.
    bool Hledany = false;
};

/// Where the two points of a parallel are stored, so that rounding them tilts it by no more than
/// half a degree: a second point a pixel or two from the first would take any direction.
/// primka: the base's two points as they were pushed; pevny: the named point that the line must
/// pass, which is then its first; ukazatel: where the pointer let it go. All plane pixels. With no
/// named point the first one stays as pushed, unless it lies outside the margin box or close to its
/// margin point; then it is the foot of the pointer on the line, brought into the box. The second
/// point is the margin point ahead, or behind where the one ahead is close. Of a line that hardly
/// crosses the box it is the first point and the base's own way on, wherever that lies.
[[nodiscard]] PosunutaPrimka UlozRovnobezku(const Plane& plane, Dvojice primka,
                                            std::optional<Bod> pevny, Bod ukazatel);

}  // namespace rysovna
