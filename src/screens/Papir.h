#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/DatumACas.h"
#include "platform/Surface.h"
#include "rules/Dialog.h"
#include "rules/Postup.h"

namespace rysovna {

/// Whose example it is.
struct HlavickaPapiru {
    std::string Jmeno{};  ///< as typed
    DatumACas Kdy{};
    int Poradi = 1, Prikladu = 1;  ///< which example of how many
};

/// An example as it is put on paper.
struct Papir : HlavickaPapiru {
    int CisloUlohy = 0;
    std::string Uvod;
    std::vector<ZadanaVelicina> Zadani;
    std::vector<KrokPostupu> Postup;
    /// After the check.
    struct Hodnoceni {
        int Bodu = 0;
        bool Hotova = false;
        std::vector<std::string> Chyby{};  ///< the sentences of the wrong steps
    };
    std::optional<Hodnoceni> Konec;
};

/// What a dialogue and its session tell of the example: assignment and steps, and once it was
/// checked points and wrong steps.
[[nodiscard]] Papir SepisPapir(HlavickaPapiru hlavicka, const Dialog& dialog, bool zkontrolovany);

/// The pages: name, assignment, sketch, figure, steps, result.
[[nodiscard]] std::string SlozPapir(const Papir& papir, const Surface& figura,
                                    const Surface& nacrt);

}  // namespace rysovna
