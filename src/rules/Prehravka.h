#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

#include "rules/Dialog.h"
#include "rules/Misc.h"
#include "rules/Pokus.h"
#include "rules/VyrobDialog.h"

namespace rysovna {

/// Where a replay and what was written down come apart, in Czech, and what differs there.
struct Rozchod {
    std::size_t Priklad = 0;  ///< from 1
    std::size_t Udalost = 0;  ///< from 1; 0: as it was set
    std::string Proc{};
    friend bool operator==(const Rozchod&, const Rozchod&) = default;
};

/// "příklad 2, krok 14: konstrukce je jiná".
[[nodiscard]] std::string TextRozchodu(const Rozchod& rozchod);

/// An attempt played again, on a session and a dialogue of its own: without screen, file and
/// chance. After each call charges and tables are compared with what was written down; where they
/// differ it stops for good. The attempt and the planes must outlive it.
class Prehravka {
public:
    /// Without a maker: the program's own boards. A task that there is none of is a fault.
    Prehravka(const Pokus& pokus, Platna platna, const VyrobceDialogu& vyrobce = {});

    /// The next step: an example is set, or a call of it made. False when there is none, or where
    /// it comes apart.
    bool Dalsi();
    /// All that is left; where it came apart, if it did.
    const std::optional<Rozchod>& DoKonce();

    [[nodiscard]] const std::optional<Rozchod>& KdeSeRozesla() const { return rozchod_; }
    /// The example, from 1, and its call, from 1, that were played last; 0: none yet.
    [[nodiscard]] std::size_t Priklad() const { return priklad_; }
    [[nodiscard]] std::size_t Udalost() const { return udalost_; }
    [[nodiscard]] const Dialog& Hrany() const { return *dialog_; }

private:
    void Zadej(const HranyPriklad& p);
    void Proved(const HranyPriklad& p, const rysovna::Udalost& u);
    void Rozejdi(std::string proc);
    void PorovnejTabulky(std::uint32_t otisk);

    const Pokus& pokus_;
    Misc misc_;
    std::unique_ptr<Dialog> dialog_;
    std::size_t priklad_ = 0, udalost_ = 0;
    std::optional<Rozchod> rozchod_;
};

}  // namespace rysovna
