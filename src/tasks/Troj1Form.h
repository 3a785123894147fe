#pragma once

#include <memory>
#include <string_view>

#include "board/DeskaForm.h"
#include "board/DialogTrojuhelniku.h"

namespace rysovna {

/// The dialogue of the triangle by SSS, SUS and USU: three kinds of task, seven kinds of example.
class Troj1Dialog final : public DialogTrojuhelniku {
public:
    explicit Troj1Dialog(Platna platna);

protected:
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) override;
    void SestavZadani(std::vector<PolozkaZadani>& zadani) const override;
    [[nodiscard]] bool KruzniceJeChyba(bool krokCekal) const override;
};

/// The board of the triangle by SSS, SUS and USU (tasks 1 to 3).
class Troj1Form final : public DeskaForm {
public:
    [[nodiscard]] std::string_view Jmeno() const override { return "Troj1Form"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
    [[nodiscard]] std::span<const int> Tvary() const override;
};

}  // namespace rysovna
