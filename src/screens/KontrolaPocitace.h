#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "base/Disk.h"
#include "store/Nastaveni.h"

namespace rysovna {

/// What one check found.
struct Nalez {
    enum class Jak {
        VPoradku,
        Pozor,  ///< the game can be played, somebody should know
        Chyba   ///< it cannot, or results would not be stored
    };
    Jak Stav = Jak::VPoradku;
    std::string Co;        ///< what was looked at
    std::string Zjisteno;  ///< what it is like
    friend bool operator==(const Nalez&, const Nalez&) = default;
};

/// What the check wants of the machine.
struct KontrolovanyStroj {
    std::string SlozkaNastaveni;                   ///< folder of Rysovna.ini
    std::filesystem::path SlozkaStavu, SlozkaDat;  ///< of the account
    Disk& disk;
    std::function<std::string()> Obrazovka, Zvuk;  ///< as Host::OverObrazovku and OverZvuk
};

/// The check before a lesson: configuration, screen, sound, fonts, pictures and sounds, game data,
/// files of results, their lock, the queue. Everything is looked at whatever was found before.
/// Nothing is made or changed.
[[nodiscard]] std::vector<Nalez> ZkontrolujPocitac(const KontrolovanyStroj& stroj);

/// The parts of it that look at files.
void ZkontrolujAssety(const std::string& slozka, std::vector<Nalez>& nalezy);
void ZkontrolujVysledky(const KontrolovanyStroj& stroj, const Nastaveni& nastaveni,
                        std::vector<Nalez>& nalezy);

/// Prints the list, a line a check, and what it comes to; 0 if nothing is wrong, else 1.
int VypisKontrolu(std::ostream& kam, const std::vector<Nalez>& nalezy);

}  // namespace rysovna
