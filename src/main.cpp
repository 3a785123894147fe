#include <cstdint>
#include <exception>
#include <iostream>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/Cisla.h"
#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/Stroj.h"
#include "platform/sdl/SdlHost.h"
#include "platform/sdl/Zvuk.h"
#include "rules/Ulohy.h"
#include "screens/Desky.h"
#include "screens/KontrolaPocitace.h"
#include "screens/Start.h"

namespace {

constexpr int STAV_CHYBA = 1;
constexpr int STAV_BEZ_OBRAZOVKY = 2;
constexpr int STAV_POUZITI = 3;

constexpr const char* NENI_OBRAZOVKA = "Není k dispozici žádná obrazovka.";

constexpr const char* POUZITI =
    "Použití: rysovna [--seminko ČÍSLO]\n"
    "         rysovna --prehraj SOUBOR\n"
    "         rysovna --predved ÚLOHA [--seminko ČÍSLO]\n"
    "         rysovna --kontrola | --help\n"
    "Se semínkem vylosuje hra při každém spuštění stejné příklady. --prehraj přehraje uložený "
    "pokus žáka, --predved předvede konstrukci úlohy 1 až 20 (semínko vybírá příklad); nic se "
    "přitom nezapisuje. Kontrola prohlédne počítač před hodinou a hru nespustí.\n";

/// What the program is to do, by its arguments.
struct Prikaz {
    enum class Co { Hra, Prehrani, Predvedeni, Kontrola, Napoveda } Druh = Co::Hra;
    std::optional<std::uint32_t> Seminko{};
    std::string Soubor{};
    int Uloha = 0;
};

/// Nothing if they are no arguments of the program.
std::optional<Prikaz> CtiArgumenty(std::span<const std::string> a) {
    using Co = Prikaz::Co;
    Prikaz p;
    if (a.size() == 1 && a[0] == "--kontrola") return Prikaz{.Druh = Co::Kontrola};
    if (a.size() == 1 && a[0] == "--help") return Prikaz{.Druh = Co::Napoveda};
    if (a.size() == 2 && a[0] == "--prehraj") return Prikaz{.Druh = Co::Prehrani, .Soubor = a[1]};
    if (a.size() >= 2 && a[0] == "--predved") {
        p.Druh = Co::Predvedeni;
        p.Uloha = rysovna::CeleCislo<int>(a[1]).value_or(0);
        if (rysovna::NajdiUlohu(p.Uloha) == nullptr) return std::nullopt;
        a = a.subspan(2);
    }
    if (a.empty()) return p;
    if (a.size() != 2 || a[0] != "--seminko") return std::nullopt;
    p.Seminko = rysovna::CeleCislo<std::uint32_t>(a[1]);
    return p.Seminko ? std::optional(p) : std::nullopt;
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
        ZkontrolujPocitac({.SlozkaNastaveni = SlozkaNastaveni(SlozkaProgramu()).string(),
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

/// Begins what the window is to show. False: it cannot, and that was told.
bool Zacni(rysovna::SdlHost& host, rysovna::Sezeni& sezeni, const Prikaz& prikaz) {
    using namespace rysovna;
    if (prikaz.Druh == Prikaz::Co::Hra) {
        Zacni(sezeni);
        return true;
    }
    const std::string proc =
        prikaz.Druh == Prikaz::Co::Prehrani
            ? ZacniPrehravani(sezeni, CestaZTextu(prikaz.Soubor))
            : ZacniPredvedeni(sezeni, prikaz.Uloha, prikaz.Seminko.value_or(0));
    if (proc.empty()) {
        host.Proved(PrepniObrazovku(sezeni));
        return true;
    }
    std::cerr << "Rysovna: " << proc << '\n';
    host.Proved(host.MsgBox(proc, "Chyba", Styl::Stop));
    return false;
}

int Hraj(rysovna::SdlHost& host, const Prikaz& prikaz) {
    using namespace rysovna;
    Sezeni sezeni(host, VyrobDesku);
    try {
        if (!Zacni(host, sezeni, prikaz)) return STAV_CHYBA;
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
    const std::vector<std::string> argumenty = rysovna::Argumenty(pocet, slova);
    const std::optional<Prikaz> prikaz = CtiArgumenty(argumenty);
    if (!prikaz) {
        std::cerr << POUZITI;
        return STAV_POUZITI;
    }
    if (prikaz->Druh == Prikaz::Co::Napoveda) {
        std::cout << POUZITI;
        return 0;
    }
    try {
        if (prikaz->Druh == Prikaz::Co::Kontrola) return Zkontroluj();
        if (!rysovna::SdlHost::MaDisplej()) {
            std::cerr << NENI_OBRAZOVKA << '\n';
            return STAV_BEZ_OBRAZOVKY;
        }
        rysovna::SdlHost host(prikaz->Seminko);
        return Hraj(host, *prikaz);
    } catch (const std::exception& chyba) {
        VypisChybu(chyba);
        return STAV_CHYBA;
    }
}
