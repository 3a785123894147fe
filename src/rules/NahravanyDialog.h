#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "rules/Dialog.h"
#include "rules/Pokus.h"

namespace rysovna {

/// Any board's dialogue, and whatever is called on it written down. It changes nothing: each call
/// goes on to the board's own dialogue with the same arguments. Between the check of an example and
/// the next one nothing is written, since nothing can come of it.
///
/// While a call is carried out it notes, too, which sentences of wrong steps the rules ask the
/// session for.
class NahravanyDialog final : public Dialog {
public:
    /// ted: tick count, ms; the series begins now.
    NahravanyDialog(Misc& misc, Platna platna, std::unique_ptr<Dialog> hrany,
                    std::function<std::uint32_t()> ted);

    /// The board's own dialogue.
    [[nodiscard]] const Dialog& Hrany() const { return *hrany_; }
    /// What was played so far; the last one may be in play.
    [[nodiscard]] const std::vector<HranyPriklad>& Priklady() const { return priklady_; }
    /// Whether an example is in play, so that more may come to the last one.
    [[nodiscard]] bool Nahrava() const { return nahrava_; }

    void NovyPriklad() override;
    void NoveZadani() override;
    void Zadej(const ZadanyPriklad& zadany) override;
    [[nodiscard]] ZadanyPriklad Zadany() const override { return hrany_->Zadany(); }
    void StiskNastroje(int i) override;
    void VyberRadku(int i) override;
    void ZavriSeznam() override;
    void Napis(int ktery, const std::string& text) override;
    void StiskPlochy(float x, float y) override;
    void PusteniPlochy(float x, float y) override;
    bool StiskNacrtu(float x, float y) override;
    void Posun(int dx, int dy) override;
    void Zkontroluj() override;

    [[nodiscard]] Gumicka Tah(float x, float y) const override { return hrany_->Tah(x, y); }
    [[nodiscard]] Gumicka Prejezd(float x, float y) const override { return hrany_->Prejezd(x, y); }
    [[nodiscard]] std::uint32_t CekaniPoTahu() const override { return hrany_->CekaniPoTahu(); }
    [[nodiscard]] bool CekaNaKresleni() const override { return hrany_->CekaNaKresleni(); }
    [[nodiscard]] std::optional<Bod> ChytilBy(float x, float y) const override {
        return hrany_->ChytilBy(x, y);
    }
    [[nodiscard]] std::optional<Bod> TrefilBy(float x, float y) const override {
        return hrany_->TrefilBy(x, y);
    }
    [[nodiscard]] Nacrt NacrtPrikladu() const override { return hrany_->NacrtPrikladu(); }
    [[nodiscard]] std::uint32_t ZnackyNacrtu() const override { return hrany_->ZnackyNacrtu(); }
    [[nodiscard]] bool Hotova() const override { return hrany_->Hotova(); }
    [[nodiscard]] Panel UkazPanel() const override { return hrany_->UkazPanel(); }

private:
    [[nodiscard]] std::uint32_t Cas() const { return ted_() - od_; }
    void ZacniPriklad();
    /// Carries a call out and writes it down; gives what Proved does.
    bool Nahraj(Volani volani);

    std::unique_ptr<Dialog> hrany_;
    std::function<std::uint32_t()> ted_;
    std::uint32_t od_;
    std::vector<HranyPriklad> priklady_;
    bool nahrava_ = false;
};

}  // namespace rysovna
