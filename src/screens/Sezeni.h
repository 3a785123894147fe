#pragma once

#include <functional>
#include <memory>

#include "platform/Form.h"
#include "platform/Host.h"
#include "platform/Obrazek.h"
#include "platform/Obrazovky.h"
#include "rules/Misc.h"
#include "store/Ukladani.h"
#include "store/UkladaniPokusu.h"

namespace rysovna {

struct Sezeni;

/// Makes the board of a task, not loaded yet. It is asked for tasks only.
using VyrobceDesek = std::function<std::shared_ptr<Form>(Sezeni& s, int cisloUlohy)>;

/// One session of the game: what all screens share, on the machine that they run on. Whoever
/// starts the game makes one and hands it down; it outlives all its screens.
struct Sezeni : Misc {
    /// vyrobce: what makes the boards. An empty one makes nothing.
    Sezeni(Host& kde, VyrobceDesek vyrobce);
    Sezeni(const Sezeni&) = delete;
    Sezeni& operator=(const Sezeni&) = delete;

    Host& Stroj;

    /// The screen in front. Keeps no screen alive: one that was unloaded is gone from here too.
    std::weak_ptr<Form> AktivniForm;

    Obrazek PokracujObrazek;  ///< the continue button at rest

    /// The board of a task; null for a number that is none.
    [[nodiscard]] std::shared_ptr<Form> VyrobDesku(int cisloUlohy);

    [[nodiscard]] Obrazovky& Okna() const { return Stroj.Okna(); }
    [[nodiscard]] rysovna::Disk& Disk() const { return Stroj.Disk(); }

    /// What stores the results, made when it is first wanted.
    [[nodiscard]] Ukladani& Vysledky();
    /// What keeps the attempts, made when it is first wanted; and whether they are kept.
    [[nodiscard]] UkladaniPokusu& Pokusy();
    bool PokusyUkladat = true;
    /// The folder of results has changed: they are stored by new ones.
    void ZapomenVysledky() {
        vysledky_.reset();
        pokusy_.reset();
    }

private:
    VyrobceDesek vyrobce_;
    std::unique_ptr<Ukladani> vysledky_;
    std::unique_ptr<UkladaniPokusu> pokusy_;
};

}  // namespace rysovna
