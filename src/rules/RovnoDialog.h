#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rules/DialogCtyruhelniku.h"

namespace rysovna {

/// The dialogue of the parallelogram: a starting triangle, whole or with the centre S, then the
/// centre of symmetry and the missing vertices as images in it. 60 kinds of example.
class RovnoDialog final : public DialogCtyruhelniku {
public:
    RovnoDialog(Misc& misc, Platna platna);

protected:
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) override;
    void NabidniDalsi(Nastroj co) override;
    void ZvolDalsi(std::size_t i) override;
    [[nodiscard]] int PosledniFaze() const override;
    [[nodiscard]] bool PrvekSpravny(int faze) const override;
    void UkazDalsi(Panel& panel) const override;
    void NakresliUtvar(Bod konec) override;
    [[nodiscard]] std::string PodleCeho() const override { return Stav().ZvolenyPrvek; }
    void Uzavri() override;

private:
    void NabidniStredy();
    void NabidniObrazy();
    void ZvolStred(const std::string& kod);
    void ZvolObraz(const std::string& vzor);
    void NakresliStred(Bod stred, bool maPismeno);
    [[nodiscard]] std::vector<std::string_view> Stredy() const;
    [[nodiscard]] std::vector<std::string_view> Vzory() const;
    [[nodiscard]] std::optional<Bod> Misto(std::string_view pismeno) const;
    [[nodiscard]] std::string HledanyBod() const;
    [[nodiscard]] bool SeStredem() const;
};

}  // namespace rysovna
