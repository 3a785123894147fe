#pragma once

#include <span>
#include <string>
#include <string_view>

#include "rules/Ulohy.h"
#include "rules/Zaznamy.h"

namespace rysovna {

/// Where a field of a task file's line goes: into the example itself, or into one of its steps.
struct Slot {
    std::string_view Jmeno;  ///< "Nazev1", "Kroky[2].Utvar"
    std::string Priklad::*Pole = nullptr;
    int CisloKroku = 0;
    std::string Krok::*PoleKroku = nullptr;

    /// The slot in a given example.
    [[nodiscard]] std::string& V(Priklad& p) const {
        return CisloKroku == 0 ? p.*Pole : p.Kroky[CisloKroku].*PoleKroku;
    }
    [[nodiscard]] const std::string& V(const Priklad& p) const {
        return CisloKroku == 0 ? p.*Pole : p.Kroky[CisloKroku].*PoleKroku;
    }
};

namespace mapa {

constexpr Slot Druh{"Druh", &Priklad::Druh};
constexpr Slot Text1{"Text1", &Priklad::Text1}, Text2{"Text2", &Priklad::Text2};
constexpr Slot Nazev1{"Nazev1", &Priklad::Nazev1}, Nazev2{"Nazev2", &Priklad::Nazev2},
    Nazev3{"Nazev3", &Priklad::Nazev3};
constexpr Slot Jednotka1{"Jednotka1", &Priklad::Jednotka1},
    Jednotka2{"Jednotka2", &Priklad::Jednotka2}, Jednotka3{"Jednotka3", &Priklad::Jednotka3};
constexpr Slot Dalsi1{"Dalsi1", &Priklad::Dalsi1}, Dalsi2{"Dalsi2", &Priklad::Dalsi2},
    Dalsi3{"Dalsi3", &Priklad::Dalsi3};

constexpr Slot K1J{"Kroky[1].Jmeno", nullptr, 1, &Krok::Jmeno},
    K2J{"Kroky[2].Jmeno", nullptr, 2, &Krok::Jmeno},
    K3J{"Kroky[3].Jmeno", nullptr, 3, &Krok::Jmeno},
    K4J{"Kroky[4].Jmeno", nullptr, 4, &Krok::Jmeno},
    K5J{"Kroky[5].Jmeno", nullptr, 5, &Krok::Jmeno},
    K6J{"Kroky[6].Jmeno", nullptr, 6, &Krok::Jmeno},
    K7J{"Kroky[7].Jmeno", nullptr, 7, &Krok::Jmeno},
    K8J{"Kroky[8].Jmeno", nullptr, 8, &Krok::Jmeno};
constexpr Slot K1JB{"Kroky[1].JmenoB", nullptr, 1, &Krok::JmenoB},
    K2JB{"Kroky[2].JmenoB", nullptr, 2, &Krok::JmenoB};
constexpr Slot K1U{"Kroky[1].Utvar", nullptr, 1, &Krok::Utvar},
    K2U{"Kroky[2].Utvar", nullptr, 2, &Krok::Utvar},
    K3U{"Kroky[3].Utvar", nullptr, 3, &Krok::Utvar},
    K4U{"Kroky[4].Utvar", nullptr, 4, &Krok::Utvar},
    K5U{"Kroky[5].Utvar", nullptr, 5, &Krok::Utvar},
    K6U{"Kroky[6].Utvar", nullptr, 6, &Krok::Utvar},
    K7U{"Kroky[7].Utvar", nullptr, 7, &Krok::Utvar},
    K8U{"Kroky[8].Utvar", nullptr, 8, &Krok::Utvar};
constexpr Slot K1UB{"Kroky[1].UtvarB", nullptr, 1, &Krok::UtvarB},
    K2UB{"Kroky[2].UtvarB", nullptr, 2, &Krok::UtvarB},
    K3UB{"Kroky[3].UtvarB", nullptr, 3, &Krok::UtvarB};

// Field 1 of a line is the first of a row here.

constexpr Slot TROJ1[]{Druh,      Text1,     Nazev1, Nazev2, Nazev3, Jednotka1,
                       Jednotka2, Jednotka3, K1U,    K2U,    K3U};

constexpr Slot TROJ2[]{Druh,      Text1, Nazev1, Nazev2, Nazev3, Jednotka1, Jednotka2,
                       Jednotka3, K1U,   K1UB,   K2U,    K2UB,   K3U,       K3UB};

constexpr Slot CTYRUHELNIK[]{Druh,      Text2,     Nazev1, Nazev2, Nazev3, Jednotka1,
                             Jednotka2, Jednotka3, Text1,  K1J,    K1JB,   K1U,
                             K1UB,      K2J,       K2JB,   K2U,    K2UB};

constexpr Slot ROVNOBEZNIK[]{Druh,      Text2, Nazev1, Nazev2, Nazev3, Jednotka1, Jednotka2,
                             Jednotka3, Text1, K1U,    K1J,    K2U,    K2J,       K3U,
                             K3J,       K4U,   K4J,    K5U,    K5J,    K6U,       K6J};

constexpr Slot TECNY[]{Druh, Nazev1, Dalsi1, Nazev2, Dalsi2, Nazev3, Dalsi3, K1J,
                       K1U,  K2J,    K2U,    K3J,    K3U,    K4J,    K4U,    K5J,
                       K5U,  K6J,    K6U,    K7J,    K7U,    K8J,    K8U};

}  // namespace mapa

/// What a board's line of a task file holds.
struct MapaRadku {
    std::span<const Slot> Pole;  ///< its fields in their order, field 1 first
    bool NulujeKroky = false;    ///< reading clears the done flags of the three steps
};

constexpr MapaRadku MapaDesky(Deska deska) {
    switch (deska) {
        case Deska::Troj1Form:
            return {mapa::TROJ1, true};
        case Deska::Troj2Form:
            return {mapa::TROJ2};
        case Deska::CtyrUForm:
        case Deska::LichoForm:
            return {mapa::CTYRUHELNIK};
        case Deska::RovnoForm:
            return {mapa::ROVNOBEZNIK};
        case Deska::TecnyForm:
            return {mapa::TECNY};
    }
    return {};
}

}  // namespace rysovna
