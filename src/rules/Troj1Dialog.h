#pragma once

#include <string_view>

#include "rules/DialogTrojuhelniku.h"

namespace rysovna {

/// The dialogue of the triangle by SSS, SUS and USU: three kinds of task, seven kinds of example.
class Troj1Dialog final : public DialogTrojuhelniku {
public:
    Troj1Dialog(Misc& misc, Platna platna);

protected:
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) override;
    void SestavZadani(std::vector<ZadanaVelicina>& zadani) const override;
    [[nodiscard]] bool KruzniceJeChyba(bool krokCekal) const override;
};

}  // namespace rysovna
