#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/Chyba.h"

namespace rysovna {

/// The boards by name.
enum class Deska { Troj1Form, Troj2Form, CtyrUForm, RovnoForm, LichoForm, TecnyForm };

/// The families of tasks in the order of the menu, the pictures on its left.
constexpr std::array<std::string_view, 5> RODINY = {"Trojúhelník 1", "Trojúhelník 2", "Čtyřúhelník",
                                                    "Kružnice", "Tečny"};

/// A task: its number is the number of its files.
struct Uloha {
    int Cislo;
    std::size_t Rodina;  ///< index in RODINY
    std::string_view TypUlohy;
    Deska deska;
    /// What the sketch asks for; nearly all tasks ask for the same.
    std::string_view NadpisNacrtu = "Označ strany (resp. úhly, výšky, těžnice), které jsou zadány:";
};

/// All tasks; those of a family follow one another.
inline constexpr Uloha ULOHY[] = {
    {1, 0, "podle věty SSS", Deska::Troj1Form, "Označ strany (resp. úhly), které jsou zadány:"},
    {2, 0, "podle věty SUS", Deska::Troj1Form},
    {3, 0, "podle věty USU", Deska::Troj1Form},
    {4, 1, "strana-výška-úhel", Deska::Troj2Form},
    {5, 1, "strana-strana-těžnice", Deska::Troj2Form},
    {6, 1, "strana-těžnice-úhel", Deska::Troj2Form},
    {7, 1, "strana-strana-výška", Deska::Troj2Form},
    {8, 1, "strana-výška-těžnice", Deska::Troj2Form},
    {9, 2, "obecný čtyřúhelník", Deska::CtyrUForm},
    {10, 2, "rovnoběžník", Deska::RovnoForm},
    {11, 2, "lichoběžník", Deska::LichoForm},
    {12, 3, "kružnice-bod-tečna", Deska::TecnyForm},
    {13, 3, "kružnice-dva body-přímka", Deska::TecnyForm},
    {14, 3, "kružnice-dvě rovnoběžné tečny", Deska::TecnyForm},
    {15, 3, "kružnice-přímka-tečna", Deska::TecnyForm},
    {16, 3, "kružnice-dva body-tečna", Deska::TecnyForm},
    {17, 3, "dvě soustředné kružnice", Deska::TecnyForm},
    {18, 4, "rovnoběžné s přímkou", Deska::TecnyForm},
    {19, 4, "kolmé k přímce", Deska::TecnyForm},
    {20, 4, "procházející bodem", Deska::TecnyForm},
};

/// The tasks of a family, in their order.
constexpr std::span<const Uloha> UlohyRodiny(std::size_t rodina) {
    const auto [od, po] = std::ranges::equal_range(ULOHY, rodina, {}, &Uloha::Rodina);
    return {od, po};
}

/// The task of this number; null if there is none.
constexpr const Uloha* NajdiUlohu(int cislo) {
    for (const Uloha& uloha : ULOHY) {
        if (uloha.Cislo == cislo) return &uloha;
    }
    return nullptr;
}

/// The board that plays a task. A number that is no task is a fault.
inline Deska DeskaUlohy(int cislo) {
    const Uloha* uloha = NajdiUlohu(cislo);
    if (uloha == nullptr) Selhani("Není taková úloha: " + std::to_string(cislo));
    return uloha->deska;
}

}  // namespace rysovna
