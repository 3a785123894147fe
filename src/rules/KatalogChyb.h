#pragma once

#include <algorithm>
#include <array>

#include "rules/Ulohy.h"

namespace rysovna {

// The catalogue of wrong steps: all that boards charge, each with what it costs and where. Their
// sentences stand in data/Errors.txt under the same numbers. Boards name a row and judge whether it
// falls; numbers and points stand here alone.

/// An example is worth this many points.
constexpr int BODU_ZA_PRIKLAD = 10;

/// How the points are told behind the sentence.
enum class Zneni {
    Obvykle,    ///< "  -3 body"
    SPomlckou,  ///< " - 3 body"
    SeSlovy,    ///< words of the board, then the points; the sentence ends in a blank
    ZbytekBod,  ///< what was still to be lost, always "bod"
    Zbytek      ///< the same, with the form of the word that the number wants
};

// Boards, phases of their construction and, besides, the check, as bits.
using Bity = unsigned;
constexpr Bity NaDesce(Deska deska) {
    return 1U << static_cast<unsigned>(deska);
}
constexpr Bity VeFazi(int faze) {
    return 1U << faze;
}
constexpr Bity VeFazich(int od, int po) {
    return VeFazi(po + 1) - VeFazi(od);
}
constexpr Bity PRI_KONTROLE = VeFazi(0);

/// Where a wrong step can fall, and how it is worded there.
struct MistoChyby {
    Bity Desky = 0, Faze = 0;
    Zneni Jak = Zneni::Obvykle;

    [[nodiscard]] constexpr bool Zahrnuje(Bity deska, Bity faze) const {
        return (Desky & deska) != 0 && (Faze & faze) != 0;
    }
};

/// A row of the catalogue.
struct DruhChyby {
    int Cislo;  ///< of its sentence
    int Body;   ///< what it costs
    MistoChyby Kde, Jinde{};

    [[nodiscard]] constexpr bool MuzePadnout(Bity deska, Bity faze) const {
        return Kde.Zahrnuje(deska, faze) || Jinde.Zahrnuje(deska, faze);
    }
};

namespace katalog {

constexpr Bity TROJ1 = NaDesce(Deska::Troj1Form), TROJ2 = NaDesce(Deska::Troj2Form),
               CTYRU = NaDesce(Deska::CtyrUForm), ROVNO = NaDesce(Deska::RovnoForm),
               LICHO = NaDesce(Deska::LichoForm), TECNY = NaDesce(Deska::TecnyForm);
constexpr Bity TROJUHELNIKY = TROJ1 | TROJ2, SE_DVEMA_UTVARY = CTYRU | LICHO,
               CTYRUHELNIKY = SE_DVEMA_UTVARY | ROVNO;
constexpr Bity ZACATEK = VeFazi(1);      // the first side, the starting triangle
constexpr Bity UTVARY = VeFazich(2, 3);  // the two objects that meet in a vertex

using enum Zneni;

// Rows of a number that costs now this, now that.
constexpr DruhChyby MIMO_PRUSECIK{219, 1, {TECNY, VeFazi(2) | VeFazi(4)}},
    OBA_HOTOVE{219, 3, {TECNY, VeFazich(2, 3)}};
constexpr std::array<DruhChyby, 3> CHYBNE_PRVKY{
    {{301, 1, {TROJUHELNIKY | CTYRUHELNIKY, PRI_KONTROLE}},
     {301, 2, {TROJUHELNIKY | CTYRUHELNIKY, PRI_KONTROLE}},
     {301, 3, {TROJUHELNIKY | CTYRUHELNIKY, PRI_KONTROLE}}}};

constexpr DruhChyby RADKY[] = {
    // the first side: not the one to begin with
    {1, 3, {TROJUHELNIKY, ZACATEK}},
    {2, 3, {TROJUHELNIKY, ZACATEK}},
    {3, 3, {TROJUHELNIKY, ZACATEK}},
    // typed: sides, angles
    {7, 1, {TROJUHELNIKY, ZACATEK | UTVARY}},
    {8, 1, {TROJUHELNIKY, ZACATEK | UTVARY}},
    {9, 1, {TROJUHELNIKY, ZACATEK | UTVARY}},
    {10, 1, {TROJUHELNIKY, UTVARY}},
    {11, 1, {TROJUHELNIKY, UTVARY}},
    {12, 1, {TROJUHELNIKY, UTVARY}},
    // drawn: the first side
    {13, 1, {TROJUHELNIKY, ZACATEK}},
    {14, 1, {TROJUHELNIKY, ZACATEK}},
    {15, 1, {TROJUHELNIKY, ZACATEK}},
    // marks of the sketch
    {16, 1, {TROJUHELNIKY | CTYRUHELNIKY | TECNY, PRI_KONTROLE}},
    // a tool that the construction does not want
    {18, 3, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}},
    {19, 3, {TROJUHELNIKY, UTVARY}, {SE_DVEMA_UTVARY, UTVARY, SPomlckou}},
    {20, 3, {TROJ1, UTVARY}, {CTYRU, UTVARY, SPomlckou}},
    {21, 3, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}, {TECNY, VeFazich(1, 5)}},
    // an object drawn from another point than its own
    {22, 1, {TROJUHELNIKY | SE_DVEMA_UTVARY, VeFazi(2)}},
    {23, 1, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}},
    // parallels to the sides, for heights that are not given
    {24, 3, {TROJ2, UTVARY}},
    {25, 3, {TROJ2, UTVARY}},
    {26, 3, {TROJ2, UTVARY}},
    // drawn: radii, angles
    {27, 1, {TROJUHELNIKY, UTVARY}},
    {28, 1, {TROJUHELNIKY, UTVARY}},
    {29, 1, {TROJUHELNIKY, UTVARY}},
    {30, 1, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}},
    {31, 1, {TROJUHELNIKY, UTVARY}},
    // circles about vertices and midpoints, rays, for what is not given
    {32, 3, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}},
    {33, 3, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}},
    {34, 3, {TROJUHELNIKY | SE_DVEMA_UTVARY, UTVARY}},
    {35, 3, {TROJ2, UTVARY}},
    {36, 3, {TROJ2, UTVARY}},
    {37, 3, {TROJ2, UTVARY}},
    {38, 3, {TROJUHELNIKY, VeFazi(2)}},
    {39, 3, {TROJUHELNIKY, VeFazi(3)}},
    {40, 3, {TROJUHELNIKY, VeFazi(2)}},
    {41, 3, {TROJUHELNIKY, VeFazi(3)}},
    {42, 3, {TROJUHELNIKY, VeFazi(2)}},
    {43, 3, {TROJUHELNIKY, VeFazi(3)}},
    {45, 1, {TROJUHELNIKY | SE_DVEMA_UTVARY, VeFazi(3)}},
    {46, 3, {SE_DVEMA_UTVARY, UTVARY}},
    {49, 3, {SE_DVEMA_UTVARY, UTVARY, SeSlovy}},
    // medians and heights: radii drawn, medians typed, distances drawn
    {52, 1, {TROJ2, UTVARY}},
    {53, 1, {TROJ2, UTVARY}},
    {54, 1, {TROJ2, UTVARY}},
    {55, 1, {TROJ2, UTVARY}},
    {56, 1, {TROJ2, UTVARY}},
    {57, 1, {TROJ2, UTVARY}},
    {58, 1, {TROJ2, UTVARY}},
    {59, 1, {TROJ2, UTVARY}},
    {60, 1, {TROJ2, UTVARY}},
    // the starting triangle: its theorem; the centre of a parallelogram
    {101, 3, {CTYRUHELNIKY, ZACATEK, SeSlovy}},
    {112, 3, {ROVNO, VeFazi(2)}},
    // typed for the starting triangle: sides, angles
    {113, 1, {CTYRUHELNIKY, ZACATEK}},
    {114, 1, {CTYRUHELNIKY, ZACATEK}},
    {115, 1, {CTYRUHELNIKY, ZACATEK}},
    {116, 1, {CTYRUHELNIKY, ZACATEK}},
    {117, 1, {CTYRUHELNIKY, ZACATEK}},
    {118, 1, {CTYRUHELNIKY, ZACATEK}},
    {119, 1, {CTYRUHELNIKY, ZACATEK}},
    {120, 1, {CTYRUHELNIKY, ZACATEK}},
    // a picked centre
    {124, 3, {TECNY, VeFazich(2, 7)}},
    // drawn: the radius at the fourth vertex; typed: diagonals
    {126, 1, {SE_DVEMA_UTVARY, UTVARY}},
    {127, 1, {CTYRUHELNIKY, ZACATEK}},
    {128, 1, {CTYRUHELNIKY, ZACATEK}},
    // typed: heights
    {130, 1, {TROJ2, UTVARY}},
    {131, 1, {TROJ2, UTVARY}},
    {132, 1, {TROJ2, UTVARY}},
    // the starting triangle itself; picked bases; the image of a vertex
    {133, 3, {CTYRUHELNIKY, ZACATEK}},
    {134, 3, {TECNY, VeFazich(4, 5)}},
    {135, 3, {TECNY, VeFazich(1, 5)}},
    {137, 3, {ROVNO, VeFazich(3, 4)}},
    // circles and tangents: what was drawn or marked misses its point
    {202, 1, {TECNY, VeFazi(1)}},
    {203, 1, {TECNY, VeFazi(1)}},
    {204, 1, {TECNY, VeFazi(1)}},
    {205, 1, {TECNY, VeFazi(1) | VeFazich(3, 5)}},
    {206, 1, {TECNY, VeFazi(2)}},
    {207, 1, {TECNY, VeFazi(2)}},
    {208, 1, {TECNY, VeFazi(1) | VeFazich(5, 6)}},
    {209, 1, {TECNY, VeFazi(1)}},
    {210, 1, {TECNY, VeFazich(4, 5)}},
    {211, 1, {TECNY, VeFazich(1, 5)}},
    {212, 1, {TECNY, VeFazi(3) | VeFazich(6, 7)}},
    {214, 1, {TECNY, VeFazich(2, 3)}},
    {215, 1, {TECNY, VeFazi(1) | VeFazich(4, 5)}},
    {216, 1, {TECNY, VeFazi(4)}},
    {217, 1, {TECNY, VeFazich(2, 4)}},
    MIMO_PRUSECIK,
    OBA_HOTOVE,
    // the check
    {300,
     BODU_ZA_PRIKLAD,
     {TROJUHELNIKY, PRI_KONTROLE, ZbytekBod},
     {CTYRUHELNIKY | TECNY, PRI_KONTROLE, Zbytek}},
    CHYBNE_PRVKY[0],
    CHYBNE_PRVKY[1],
    CHYBNE_PRVKY[2],
};

// A number is told what it costs in one place.
static_assert([] {
    for (const DruhChyby& a : RADKY) {
        const auto stejna = [&a](const DruhChyby& b) {
            return a.Cislo == b.Cislo && a.Body == b.Body;
        };
        if (std::ranges::count_if(RADKY, stejna) != 1) return false;
    }
    return true;
}());

}  // namespace katalog

/// A wrong step as it falls on a board, or none. Given by its number where that stands in one row;
/// any other number does not compile.
class ChybaKroku {
public:
    constexpr ChybaKroku() = default;
    consteval ChybaKroku(int cislo) {
        for (const DruhChyby& d : katalog::RADKY) {
            if (d.Cislo != cislo) continue;
            if (druh_ != nullptr) throw "the number has several rows: name the row";
            druh_ = &d;
        }
        if (druh_ == nullptr) throw "the catalogue has no such number";
    }
    constexpr ChybaKroku(const DruhChyby& druh) : druh_(&druh) {}
    /// The same as it falls, and is worded, in the row's second place.
    [[nodiscard]] constexpr ChybaKroku Jinde() const {
        ChybaKroku tam = *this;
        tam.jinde_ = true;
        return tam;
    }

    [[nodiscard]] constexpr explicit operator bool() const { return druh_ != nullptr; }
    [[nodiscard]] constexpr int Cislo() const { return druh_->Cislo; }
    [[nodiscard]] constexpr int Body() const { return druh_->Body; }
    [[nodiscard]] constexpr Zneni Jak() const { return jinde_ ? druh_->Jinde.Jak : druh_->Kde.Jak; }

private:
    const DruhChyby* druh_ = nullptr;
    bool jinde_ = false;
};

}  // namespace rysovna
