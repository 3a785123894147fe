#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "board/DeskaCtyruhelniku.h"
#include "board/DialogCtyruhelniku.h"

namespace rysovna {

/// The dialogue of the parallelogram: a starting triangle, whole or with the centre S, then the
/// centre of symmetry and the missing vertices as images in it. 60 kinds of example.
class RovnoDialog final : public DialogCtyruhelniku {
public:
    explicit RovnoDialog(Platna platna);

    void StiskPlochy(float x, float y) override;
    [[nodiscard]] Gumicka Tah(float /*x*/, float /*y*/) const override { return {}; }
    [[nodiscard]] std::uint32_t CekaniPoTahu() const override { return 100; }
    void PusteniPlochy(float x, float y) override;

protected:
    [[nodiscard]] std::vector<Zadana> Zadane() const override;
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, Hodnoty5& hodnoty) override;
    void NabidniDalsi(int i) override;
    void ZvolDalsi(const RadekSeznamu& radek) override;
    [[nodiscard]] int PosledniFaze() const override;
    [[nodiscard]] bool PrvekSpravny(int faze) const override;
    void UkazDalsi(Panel& panel) const override;

private:
    void NabidniStredy();
    void NabidniObrazy();
    void ZvolStred(const std::string& kod);
    void ZvolObraz(const std::string& vzor);
    void NakresliStred(Bod stred, bool maPismeno);
    void Uzavri();
    [[nodiscard]] std::vector<std::string_view> Stredy() const;
    [[nodiscard]] std::vector<std::string_view> Vzory() const;
    [[nodiscard]] std::optional<Bod> Misto(std::string_view pismeno) const;
    [[nodiscard]] std::string HledanyBod() const;
    [[nodiscard]] bool SeStredem() const;
};

/// The board of the parallelogram (task 10).
class RovnoForm final : public DeskaCtyruhelniku {
public:
    [[nodiscard]] std::string_view Jmeno() const override { return "RovnoForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
    [[nodiscard]] std::span<const int> Tvary() const override;
};

}  // namespace rysovna
