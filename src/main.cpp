#include <charconv>
#include <cstdint>
#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Stroj.h"
#include "platform/sdl/SdlHost.h"
#include "platform/sdl/Zvuk.h"
#include "screens/Desky.h"
#include "screens/KontrolaPocitace.h"
#include "screens/Start.h"

namespace {

constexpr int STAV_CHYBA = 1;
constexpr int STAV_BEZ_OBRAZOVKY = 2;
constexpr int STAV_POUZITI = 3;

constexpr const char* NENI_OBRAZOVKA = "Není k dispozici žádná obrazovka.";

/// False if they are no arguments of the program.
bool CtiArgumenty(std::span<const std::string> argumenty, std::optional<std::uint32_t>& seminko) {
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
void OznamChybu(rysovna::SdlHost& host, rysovna::Sezeni& sezeni, const std::exception& chyba) {
    using namespace rysovna;
    try {
        // No screen may act behind the message: what they share is not to be trusted any more.
        host.Okna().UnloadVse();
        host.Proved(host.MsgBox(chyba.what(), "Chyba", Styl::Stop));
        host.Proved(ObnovObrazovku(sezeni));
    } catch (const std::exception& dalsi) {
        VypisChybu(chyba);
        VypisChybu(dalsi);
    }
}

/// The check before a lesson. Without a display everything else is looked at all the same.
int Zkontroluj() {
    using namespace rysovna;
    std::optional<SdlHost> host;
    if (SdlHost::MaDisplej()) host.emplace();
    DiskStroje disk;
    return VypisKontrolu(
        std::cout,
        ZkontrolujPocitac({.SlozkaNastaveni = SdlHost::SlozkaNastaveni(),
                           .SlozkaStavu = SlozkaStavuUctu(),
                           .SlozkaDat = SlozkaDatUctu(),
                           .disk = disk,
                           .Obrazovka =
                               [&] {
                                   return host ? host->OverObrazovku()
                                               : throw std::runtime_error(NENI_OBRAZOVKA);
                               },
                           .Zvuk = [&] { return host ? host->OverZvuk() : Zvuk().Over(); }}));
}

int Hraj(rysovna::SdlHost& host) {
    using namespace rysovna;
    Sezeni sezeni(host, VyrobDesku);
    try {
        Zacni(sezeni);
        while (!host.Okna().JeKonec()) host.Obrat(Smycka::BEZ_LHUTY);
        host.Okna().UnloadVse();
        return host.Okna().StavKonce();
    } catch (const std::exception& chyba) {
        OznamChybu(host, sezeni, chyba);
        return STAV_CHYBA;
    }
}

}  // namespace

int main(int pocet, char** slova) {
    std::optional<std::uint32_t> seminko;
    const std::vector<std::string> argumenty = rysovna::Argumenty(pocet, slova);
    const bool kontrola = argumenty.size() == 1 && argumenty[0] == "--kontrola";
    if (!argumenty.empty() && !kontrola && !CtiArgumenty(argumenty, seminko)) {
        std::cerr << "Použití: rysovna [--seminko ČÍSLO | --kontrola]\n"
                     "Se semínkem vylosuje hra při každém spuštění stejné příklady. Kontrola "
                     "prohlédne počítač před hodinou a hru nespustí.\n";
        return STAV_POUZITI;
    }
    try {
        if (kontrola) return Zkontroluj();
        if (!rysovna::SdlHost::MaDisplej()) {
            std::cerr << NENI_OBRAZOVKA << '\n';
            return STAV_BEZ_OBRAZOVKY;
        }
        rysovna::SdlHost host(seminko);
        return Hraj(host);
    } catch (const std::exception& chyba) {
        VypisChybu(chyba);
        return STAV_CHYBA;
    }
}
