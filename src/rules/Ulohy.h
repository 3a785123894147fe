#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Chyba.h"

namespace rysovna {

/// The boards by name.
enum class Deska { Troj1Form, Troj2Form, CtyrUForm, RovnoForm, LichoForm, TecnyForm };

/// A family of tasks: one picture on the left of the menu.
struct Rodina {
    std::string_view NazevHry;
    int PrvniUloha;            ///< number of its first task; the others follow
    int Pocet;                 ///< how many tasks
    std::array<int, 6> Vysky;  ///< heights of their pictures, top to bottom, px; 0 past the last
};

/// The families in the order of the menu. Neighbours of a stack share a row of pixels, so each
/// stack is 298 px tall.
constexpr std::array<Rodina, 5> RODINY{{
    {"Trojúhelník 1", 1, 3, {102, 93, 105}},
    {"Trojúhelník 2", 4, 5, {66, 56, 56, 56, 68}},
    {"Čtyřúhelník", 9, 3, {102, 93, 105}},
    {"Kružnice", 12, 6, {57, 46, 47, 47, 46, 60}},
    {"Tečny", 18, 3, {102, 93, 105}},
}};

/// A task: its number is the number of its files.
struct Uloha {
    int Cislo;
    std::string_view TypUlohy;
    Deska deska;
};

constexpr std::array<Uloha, 20> ULOHY{{
    {1, "podle věty SSS", Deska::Troj1Form},
    {2, "podle věty SUS", Deska::Troj1Form},
    {3, "podle věty USU", Deska::Troj1Form},
    {4, "strana-výška-úhel", Deska::Troj2Form},
    {5, "strana-strana-těžnice", Deska::Troj2Form},
    {6, "strana-těžnice-úhel", Deska::Troj2Form},
    {7, "strana-strana-výška", Deska::Troj2Form},
    {8, "strana-výška-těžnice", Deska::Troj2Form},
    {9, "obecný čtyřúhelník", Deska::CtyrUForm},
    {10, "rovnoběžník", Deska::RovnoForm},
    {11, "lichoběžník", Deska::LichoForm},
    {12, "kružnice-bod-tečna", Deska::TecnyForm},
    {13, "kružnice-dva body-přímka", Deska::TecnyForm},
    {14, "kružnice-dvě rovnoběžné tečny", Deska::TecnyForm},
    {15, "kružnice-přímka-tečna", Deska::TecnyForm},
    {16, "kružnice-dva body-tečna", Deska::TecnyForm},
    {17, "dvě soustředné kružnice", Deska::TecnyForm},
    {18, "rovnoběžné s přímkou", Deska::TecnyForm},
    {19, "kolmé k přímce", Deska::TecnyForm},
    {20, "procházející bodem", Deska::TecnyForm},
}};

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
