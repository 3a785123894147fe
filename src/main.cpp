#include <charconv>
#include <cstdint>
#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/sdl/SdlHost.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"
#include "shell/Ulohy.h"
#include "tasks/Desky.h"

namespace {

constexpr int STAV_CHYBA = 1;
constexpr int STAV_BEZ_OBRAZOVKY = 2;
constexpr int STAV_POUZITI = 3;

/// False if they are no arguments of the program.
bool CtiArgumenty(std::span<const std::string_view> argumenty,
                  std::optional<std::uint32_t>& seminko) {
    if (argumenty.size() != 2 || argumenty[0] != "--seminko") return false;
    const std::string_view text = argumenty[1];
    std::uint32_t cislo = 0;
    const auto [konec, chyba] = std::from_chars(text.data(), text.data() + text.size(), cislo);
    if (chyba != std::errc() || konec != text.data() + text.size()) return false;
    seminko = cislo;
    return true;
}

void VypisChybu(const std::exception& chyba) {
    std::cerr << "Rysovna skončila chybou: " << chyba.what() << '\n';
}

/// Tells the fault in the window; where that cannot be done either, on the error output.
void OznamChybu(rysovna::Host& host, const std::exception& chyba) {
    using namespace rysovna;
    try {
        // No screen may act behind the message: what they share is not to be trusted any more.
        host.Okna().UnloadVse();
        host.MsgBox(chyba.what(), "Chyba", Styl::Stop);
        ObnovObrazovku();
    } catch (const std::exception& dalsi) {
        VypisChybu(chyba);
        VypisChybu(dalsi);
    }
}

int Hraj(rysovna::Host& host) {
    using namespace rysovna;
    try {
        NastavVyrobceDesek(VyrobDesku);
        host.Okna().Nacti<SelectForm>();
        while (!host.Okna().JeKonec()) host.DoEvents(1000);
        host.Okna().UnloadVse();
        return host.Okna().StavKonce();
    } catch (const std::exception& chyba) {
        OznamChybu(host, chyba);
        return STAV_CHYBA;
    }
}

}  // namespace

int main(int pocet, char** slova) {
    std::optional<std::uint32_t> seminko;
    const std::vector<std::string_view> argumenty(slova + 1, slova + pocet);
    if (!argumenty.empty() && !CtiArgumenty(argumenty, seminko)) {
        std::cerr << "Použití: rysovna [--seminko ČÍSLO]\n"
                     "Se semínkem vylosuje hra při každém spuštění stejné příklady.\n";
        return STAV_POUZITI;
    }
    try {
        if (!rysovna::SdlHost::MaDisplej()) {
            std::cerr << "Není k dispozici žádná obrazovka.\n";
            return STAV_BEZ_OBRAZOVKY;
        }
        rysovna::SdlHost host(seminko);
        const rysovna::HostNaDobu naDobu(host);
        return Hraj(host);
    } catch (const std::exception& chyba) {
        VypisChybu(chyba);
        return STAV_CHYBA;
    }
}
