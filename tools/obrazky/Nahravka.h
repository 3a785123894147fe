#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace rysovna::obrazky {

struct BodCesty {
    double X = 0, Y = 0;
};

struct Ramec {
    double X = 0, Y = 0, Sirka = 0, Vyska = 0;
};

/// One closed or open line of a path: where it begins, and its segments, a straight one with one
/// point, a curve with three.
struct Obrys {
    struct Usek {
        bool Krivka = false;
        BodCesty Ridici1, Ridici2;  ///< of a curve
        BodCesty Konec;
    };
    BodCesty Zacatek;
    std::vector<Usek> Useky;
    bool Zavreny = false;
};

/// One command of a drawing. Places and lengths in pixels at 1:1.
struct Ukon {
    enum class Druh { Vypln, Tah, Orez, BezOrezu };
    Druh Co = Druh::Vypln;
    std::uint32_t Barva = 0;  ///< 0xRRGGBB
    bool SudaLicha = false;   ///< how it is filled
    double Pero = 0, MezSpoje = 0;
    int Konce = 0, Spoje = 0;  ///< as Cairo numbers them
    std::vector<double> Carkovani;
    std::vector<Obrys> Cesta;
    Ramec Kam;  ///< of a clip
};

/// Takes apart what Nahraj recorded. What the shapes cannot bear (see-through colours, gradients,
/// pens of uneven width, clips that are no rectangles) is a fault; kde names the drawing.
std::vector<Ukon> RozeberNahravku(const std::string& zaznam, int sirka, int vyska, int zvetseni,
                                  const std::string& kde);

/// Whether a path is an upright rectangle, and which.
bool JeObdelnik(const std::vector<Obrys>& cesta, Ramec& ramec);

}  // namespace rysovna::obrazky
