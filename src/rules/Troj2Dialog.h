#pragma once

#include <string_view>

#include "rules/DialogTrojuhelniku.h"

namespace rysovna {

/// The dialogue of the triangle by a height or a median: five kinds of task, 27 kinds of example.
/// A parallel to a side stands for the height upon it, a circle about a side's midpoint for the
/// median to it.
class Troj2Dialog final : public DialogTrojuhelniku {
public:
    Troj2Dialog(Misc& misc, Platna platna);

    /// Names the midpoint of a segment when the pointer is near it.
    [[nodiscard]] Gumicka Prejezd(float x, float y) const override;

protected:
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) override;
    [[nodiscard]] bool PrvniStranaSpravna(std::string_view prvek) const override;
    [[nodiscard]] bool KruzniceJeChyba(bool krokCekal) const override;
    [[nodiscard]] bool DruhSedi(const Krok& krok, std::string_view druh) const override;
    [[nodiscard]] bool StredVDosahu(std::string_view stred) const override;
    [[nodiscard]] bool ChytaStredStrany() const override;
    [[nodiscard]] bool ZacinaSpravne() const override;
};

}  // namespace rysovna
