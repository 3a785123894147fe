#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hrac/Relace.h"
#include "screens/DeskaForm.h"
#include "zak/Ruka.h"

namespace rysovna::hrac {

/// At the board on the screen of a session: controls by their names, the same events as a person's.
class RukaNaDesce : public Ruka {
public:
    explicit RukaNaDesce(Relace& relace) : relace_(relace) {}
    /// One that double-clicks now and then where a click would do, by chance of this seed.
    RukaNaDesce(Relace& relace, std::uint32_t dvojkliky) : relace_(relace), dvojkliky_(dvojkliky) {}

    [[nodiscard]] const Dialog& Hrany() const override;
    [[nodiscard]] std::vector<Zadano> Zadani() const override;
    [[nodiscard]] bool Presna() const override { return relace_.Hraje() != Relace::Cim::Prstem; }
    void Posun(int dx, int dy) override;
    void ZasunPanel() override;
    /// Presses the check and waits until the continue button is up.
    void Zkontroluj() override;

protected:
    bool StiskNacrtu(Bod misto) override;
    void StiskNastroje(int i) override;
    void StiskRadku(int i, std::string_view text) override;
    void Pis(int ktery, const std::string& text) override;
    void TahPoPlose(Bod odkud, Bod kam) override;
    [[nodiscard]] Relace& Hra() const { return relace_; }

private:
    /// The board in front.
    [[nodiscard]] DeskaForm& Deska() const;
    /// Presses a control, as Relace::Stiskni; now and then twice, the hand shaking a little.
    void Klepni(std::string_view jmeno, int index, int dx = -1, int dy = -1);

    Relace& relace_;
    std::optional<Los> dvojkliky_;
    std::optional<Bod> oznaceno_;  ///< where the sketch was pressed last, px of it
};

}  // namespace rysovna::hrac
