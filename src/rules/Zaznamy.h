#pragma once

#include <cstdint>
#include <string>

#include "base/Tabulka.h"

namespace rysovna {

/// One expected step of an example.
struct Krok {
    std::string Jmeno{};      ///< name of the step's object; a quantity on the quadrilaterals
    std::string JmenoB{};     ///< unit of that quantity, there alone
    std::string Utvar{};      ///< expected kind of object
    std::string UtvarB{};     ///< second expected kind, or the expected element
    std::int16_t Hotovo = 0;  ///< -1: the pupil took this step in the current example
    friend bool operator==(const Krok&, const Krok&) = default;
};

/// One example as its line of the task file gives it: what is given and which steps are expected,
/// never the numbers. All text, as it stands in the file.
struct Priklad {
    std::string Druh{};  ///< kind of example; on the tangent board the code of the exercise
    std::string Text1{}, Text2{};
    std::string Nazev1{}, Nazev2{}, Nazev3{};           ///< names of the given quantities
    std::string Jednotka1{}, Jednotka2{}, Jednotka3{};  ///< their units
    std::string Dalsi1{}, Dalsi2{}, Dalsi3{};  ///< partners of the names, on the tangent board
    Tabulka<Krok, 8> Kroky{};
    friend bool operator==(const Priklad&, const Priklad&) = default;
};

/// What the pupil entered at one phase of a construction.
struct ZadanyPrvek {
    std::int16_t Faze = 0;  ///< the phase, which is also the row; 0 is an empty row
    std::string Utvar{};    ///< kind of object
    std::string Prvek{};    ///< name of the quantity that the object stands for; may be empty
    std::string Text1{}, Text2{}, Text3{}, Text4{};  ///< reserved: cleared only
    friend bool operator==(const ZadanyPrvek&, const ZadanyPrvek&) = default;
};

/// One wrong step of the current example.
struct ChybnyKrok {
    std::string Cislo{};         ///< its number as text, without blanks
    std::string Text{};          ///< the sentence and the points behind it
    std::int16_t Vyhrazeno = 0;  ///< always 0
    std::int16_t Body = 0;       ///< points charged
    friend bool operator==(const ChybnyKrok&, const ChybnyKrok&) = default;
};

/// The tables of an example beside the construction.
struct Zaznamy {
    /// The examples of the task's file, in use from 1 to PocetPrikladu.
    Tabulka<Priklad, 100> Priklady;
    int PocetPrikladu = 0;
    /// One row a phase of the construction.
    Tabulka<ZadanyPrvek, 20> ZadanePrvky;
    /// The wrong steps, in use from 1 to PocetChybnychKroku.
    Tabulka<ChybnyKrok, 100> ChybneKroky;
};

}  // namespace rysovna
