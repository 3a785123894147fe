#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "rules/Panel.h"
#include "rules/Pokus.h"
#include "rules/Prehravka.h"

namespace rysovna {

/// How fast the calls of an attempt follow each other when it is watched: as the pupil made them,
/// long thinking shortened; or as a teacher would show them, whatever their times were.
enum class Tempo { Zaka, Vyklad };

/// A step that is watched: an example is set, or a call of it made. Times in ms at speed 1.
struct KrokPrehravani {
    std::size_t Priklad = 0, Udalost = 0;  ///< from 1; Udalost 0: the example is set
    std::uint32_t Kdy = 0;                 ///< it is made, from the beginning of the replay
    std::uint32_t Doba = 0;                ///< from the step before
    std::uint32_t Vynechano = 0;           ///< so much of the pupil's time is left out before it
    bool Chyba = false;                    ///< something is charged
    bool Naprazdno = false;                ///< nothing comes of it: a press beside, a double click
};

/// An attempt as it is watched: forward, back, at any place of its time. Without screen and clock:
/// who shows it says how much time has passed. A step back plays all anew up to there, so that
/// tables and planes are what they were.
class Prehravani {
public:
    /// The first example is set on the planes, which must outlive it. All is played once
    /// beforehand, in memory, to know where it is charged and how far it goes.
    Prehravani(Pokus pokus, Platna platna, Tempo tempo, VyrobceDialogu vyrobce = {});
    Prehravani(const Prehravani&) = delete;
    Prehravani& operator=(const Prehravani&) = delete;

    [[nodiscard]] const Pokus& Co() const { return pokus_; }
    /// All steps in their order. Empty: nothing of it can be played.
    [[nodiscard]] const std::vector<KrokPrehravani>& Kroky() const { return kroky_; }
    [[nodiscard]] std::uint32_t Delka() const { return kroky_.empty() ? 0 : kroky_.back().Kdy; }
    /// Where it comes apart with what was written down: behind the last step.
    [[nodiscard]] const std::optional<Rozchod>& KdeSeRozesla() const { return rozchod_; }

    /// The step made last, from 0, and the time, at that step or behind it.
    [[nodiscard]] std::size_t Krok() const { return krok_; }
    [[nodiscard]] std::uint32_t Cas() const { return cas_; }
    [[nodiscard]] bool NaKonci() const { return krok_ + 1 >= kroky_.size(); }
    [[nodiscard]] const KrokPrehravani& Ted() const { return kroky_[krok_]; }
    /// The step to come; null at the end.
    [[nodiscard]] const KrokPrehravani* Pristi() const {
        return NaKonci() ? nullptr : &kroky_[krok_ + 1];
    }
    [[nodiscard]] const HranyPriklad& PrikladKroku(const KrokPrehravani& k) const {
        return pokus_.Priklady[k.Priklad - 1];
    }
    /// The call of a step, and what followed; null where an example is set.
    [[nodiscard]] const Udalost* UdalostKroku(const KrokPrehravani& k) const;

    /// The dialogue of the present step. Another one after each way back.
    [[nodiscard]] const Dialog& Hrany() const { return prehravka_->Hrany(); }
    /// What its panel was before the step made last.
    [[nodiscard]] const Panel& Predtim() const { return predtim_; }
    /// How many objects the example began with.
    [[nodiscard]] int Danych() const { return danych_; }
    /// The sketch is out: the next thing that is done on sketch or plane is done on the sketch.
    [[nodiscard]] bool NacrtVysunuty() const;
    /// The button is held: the step made last is a press that the next one releases.
    [[nodiscard]] bool Drzi() const;

    void NaKrok(std::size_t krok);
    /// To the last step made at that time, and as far behind it.
    void NaCas(std::uint32_t ms);
    /// To a neighbour; in the tempo of a teacher over what nothing comes of.
    void Vpred();
    void Zpet();

private:
    void Rozvrhni();
    void Prejdi(std::size_t krok);
    [[nodiscard]] Volani::Druh DruhKroku(std::size_t krok) const;

    Pokus pokus_;
    Platna platna_;
    Tempo tempo_;
    VyrobceDialogu vyrobce_;
    std::vector<KrokPrehravani> kroky_;
    std::optional<Rozchod> rozchod_;
    std::unique_ptr<Prehravka> prehravka_;
    std::size_t krok_ = 0;
    std::uint32_t cas_ = 0;
    Panel predtim_;
    int danych_ = 0;
};

}  // namespace rysovna
