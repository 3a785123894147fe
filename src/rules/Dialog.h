#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Plane.h"
#include "rules/Konstrukce.h"
#include "rules/Misc.h"
#include "rules/Nacrt.h"
#include "rules/Panel.h"
#include "rules/ZadanyPriklad.h"

namespace rysovna {

/// The arrows shift the figure by so much, px; how far it was shifted is tested before the step.
constexpr int KROK_POSUNU = 20, MEZ_POSUNU = 120;
/// So this far it can go, px.
constexpr int NEJDAL_POSUNU = MEZ_POSUNU + KROK_POSUNU;

/// The step dialogue of a board: all its rules, as logic without controls. It takes what the pupil
/// does, charges wrong steps, draws on the planes and keeps the construction; what is to be seen
/// comes from UkazPanel alone. A form passes events in and shows the panel, so the rules can be
/// tested without a screen and played as fast as the machine goes. Nothing in it waits.
class Dialog {
public:
    Dialog(Misc& misc, Platna platna) : misc_(misc), platna_(platna) {}
    virtual ~Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    /// Empties the construction, the list of wrong steps and the dialogue: the state in which an
    /// example starts. The example itself is chosen by NoveZadani.
    virtual void NovyPriklad() = 0;
    /// Chooses an example of the task's file, draws its values, clears the marks of the sketch.
    virtual void NoveZadani() = 0;
    /// The example in play as it was set.
    [[nodiscard]] virtual ZadanyPriklad Zadany() const = 0;
    /// In place of NoveZadani: sets this example, which becomes the only one of the session.
    virtual void Zadej(const ZadanyPriklad& zadany) = 0;

    /// The press on the tool in place i, from 1. A tool that is not live does nothing.
    virtual void StiskNastroje(int i) = 0;
    /// The press on line i (from 1) of the open list.
    virtual void VyberRadku(int i) = 0;
    /// The list goes without a pick.
    virtual void ZavriSeznam() = 0;
    /// What is now typed for the value (which one, from 1).
    virtual void Napis(int ktery, const std::string& text) = 0;

    /// The press on the plane, pixels of the plane. Snaps the start and judges what was typed.
    virtual void StiskPlochy(float x, float y) = 0;
    /// The rubber band and the read-out with the pointer here and the button held.
    [[nodiscard]] virtual Gumicka Tah(float x, float y) const = 0;
    /// What the plane shows when the pointer passes with no button held.
    [[nodiscard]] virtual Gumicka Prejezd(float /*x*/, float /*y*/) const { return {}; }
    /// How long the board waits between the release and its judgement, ms.
    [[nodiscard]] virtual std::uint32_t CekaniPoTahu() const { return 100; }
    /// The release on the plane: judges the read-out, draws the object, moves the phase on.
    virtual void PusteniPlochy(float x, float y) = 0;
    /// Whether a press on the plane begins a drag now.
    [[nodiscard]] virtual bool CekaNaKresleni() const = 0;

    /// The point that a press here would catch for a drag to begin in.
    [[nodiscard]] virtual std::optional<Bod> ChytilBy(float /*x*/, float /*y*/) const {
        return std::nullopt;
    }
    /// The place that a click here would be taken for, where it must be met.
    [[nodiscard]] virtual std::optional<Bod> TrefilBy(float /*x*/, float /*y*/) const {
        return std::nullopt;
    }

    /// The sketch of the example in play, and its marks: bits in the order of its elements.
    [[nodiscard]] virtual Nacrt NacrtPrikladu() const = 0;
    [[nodiscard]] virtual std::uint32_t ZnackyNacrtu() const = 0;
    /// The element, from 0, that a press here hits; -1: none.
    [[nodiscard]] int PrvekNacrtu(float x, float y) const {
        return PrvekPod(NacrtPrikladu(), static_cast<double>(x), static_cast<double>(y));
    }
    /// The element as it is seen; -1: none.
    [[nodiscard]] PrvekVNacrtu VidetPrvek(int prvek) const {
        if (prvek < 0) return {};
        const auto i = static_cast<std::size_t>(prvek);
        return {std::string(NacrtPrikladu().Prvky[i].Jmeno), (ZnackyNacrtu() >> i & 1U) != 0};
    }
    /// The press on the sketch. True if it hit something.
    virtual bool StiskNacrtu(float x, float y) = 0;

    /// The arrows: shifts the whole figure by whole pixels and draws it again.
    virtual void Posun(int dx, int dy) = 0;
    /// The judgements of the check: wrong elements, marks, an unfinished construction. Which of
    /// them there are and in which order they are charged is the board's. The dialogue takes no
    /// further step afterwards.
    virtual void Zkontroluj() = 0;
    /// Whether the construction is closed.
    [[nodiscard]] virtual bool Hotova() const = 0;

    [[nodiscard]] virtual Panel UkazPanel() const = 0;

    /// The session that it plays in, to look at.
    [[nodiscard]] const Misc& Pamet() const { return misc_; }

protected:
    /// Makes this record the only example of the session, in row 1.
    void NastavJediny(const Priklad& zaznam) {
        misc_.Priklady[1] = zaznam;
        misc_.PocetPrikladu = 1;
    }

    Misc& misc_;
    Platna platna_;
};

}  // namespace rysovna
