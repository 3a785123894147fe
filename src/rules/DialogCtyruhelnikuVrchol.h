#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "rules/DialogCtyruhelniku.h"

namespace rysovna {

/// What the boards that find the fourth vertex by two objects differ in.
struct PravidlaVrcholu {
    /// A parallel is an expected tool; list lines then name sides by their letters alone.
    bool Rovnobezky;
};

/// The step dialogue of the boards where the fourth vertex of a quadrilateral is the meeting point
/// of two objects.
class DialogCtyruhelnikuVrchol : public DialogCtyruhelniku {
public:
    DialogCtyruhelnikuVrchol(Misc& misc, Platna platna, const PravidlaCtyruhelniku& pravidla,
                             const PravidlaVrcholu& vrchol)
        : DialogCtyruhelniku(misc, platna, pravidla), vrchol_(vrchol) {}

protected:
    /// The three of the record and, each with its step, those of the two objects.
    [[nodiscard]] std::vector<Zadana> Zadane() const override;
    [[nodiscard]] bool VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) override;
    void NabidniDalsi(Nastroj co) override;
    void ZvolDalsi(std::size_t i) override;
    [[nodiscard]] bool PrvekSpravny(int faze) const override;
    void UkazDalsi(Panel& panel) const override;
    [[nodiscard]] std::optional<Bod> BodRovnobezky(Bod konec) const override;
    [[nodiscard]] std::string OdectiPaprsek(Bod konec) const override;
    [[nodiscard]] std::string RamenoUhlu() const override;
    void PosudOdecet(double odecet) override;
    [[nodiscard]] bool ZacinaSpravne() const override;
    void Uzavri() override;

private:
    struct RadekNastroje;
    [[nodiscard]] static std::span<const RadekNastroje> Nastroje();
    [[nodiscard]] std::vector<RadekSeznamu> Paprsky() const;
    [[nodiscard]] std::vector<RadekSeznamu> Primky() const;
    [[nodiscard]] std::vector<RadekSeznamu> Kruznice() const;
    void ZvolPaprsek(const std::string& kod);
    void ZvolKruznici(const std::string& kod);
    void ZvolKolmici(const std::string& jmena);
    void ZvolRovnobezku(const std::string& jmena);
    [[nodiscard]] bool JeOcekavany(std::string_view prvek) const;

    const PravidlaVrcholu& vrchol_;
};

}  // namespace rysovna
