#pragma once

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "base/Bod.h"
#include "podpora/Relace.h"

namespace rysovna::testy {

/// One charged wrong step as a test looks at it.
struct Chyba {
    int Cislo;
    std::string Body;  ///< the points text at the end of its sentence
    int Bodu;
    friend bool operator==(const Chyba&, const Chyba&) = default;
};

/// A given quantity as it stands in the assignment: "a", "alfa", and its value.
struct Zadano {
    std::string Velicina;
    int Hodnota;
};

/// A pupil at a triangle board, by names of controls and through the same events as a person. It
/// knows of the example what the assignment says. Calls chain.
class Zak {
public:
    explicit Zak(Relace& relace) : relace_(relace) {}

    /// Presses the element's place on the sketch. "va", "ta" and so on where the board has them.
    Zak& Oznac(std::string_view velicina);
    /// Presses a control.
    Zak& Stiskni(std::string_view jmeno, int index = 0);
    /// Presses a tool and waits for its list.
    Zak& Nastroj(int i) { return Stiskni("cmd", i); }
    /// Presses the line of the open list that reads so; throws if there is none or it is grey.
    Zak& Vyber(std::string_view radek);
    Zak& Napis(std::string_view text);
    Zak& Napis(int hodnota) { return Napis(std::to_string(hodnota)); }
    /// Drags on the plane and waits for the release to be judged.
    Zak& Tahni(Bod odkud, Bod kam);

    /// What the assignment says.
    [[nodiscard]] std::vector<Zadano> Zadani();
    [[nodiscard]] int Hodnota(std::string_view velicina);
    [[nodiscard]] bool JeZadano(std::string_view velicina);
    /// The wrong steps so far.
    [[nodiscard]] static std::vector<Chyba> Chyby();

    [[nodiscard]] Relace& Hra() { return relace_; }

private:
    Relace& relace_;
};

/// The perfect pupil of the triangle by SSS, SUS and USU: reads the assignment, marks what is
/// given, constructs it without a fault. The way (which side first, where, which object first) goes
/// by a seed.
class DokonalyZak {
public:
    /// zasunPanel: slides the panel away first and draws all over the plane; otherwise keeps to
    /// the strip that the panel leaves free.
    DokonalyZak(Relace& relace, std::uint32_t seminko, bool zasunPanel = false)
        : zak_(relace), nahoda_(seminko), zasunPanel_(zasunPanel) {}

    /// The whole example up to the closed figure, without the check.
    void Sestroj();
    /// The example, its check, and the wait until the continue button is up.
    void OdehrajPriklad();
    /// A series: each example and the press on the continue button.
    void OdehrajSerii(int prikladu);

private:
    struct Strana {
        std::string Nazev, Od, Do;  ///< "c", "A", "B"
        Bod OdBod, DoBod;
    };
    void NarysujPrvni();
    void NarysujPaprsek(std::string_view uhel);
    void NarysujKruznici(std::string_view strana);
    [[nodiscard]] Bod Poloha(std::string_view vrchol) const;
    [[nodiscard]] int Cislo(int rozpeti) {
        return static_cast<int>(nahoda_() % static_cast<unsigned>(rozpeti));
    }

    Zak zak_;
    std::mt19937 nahoda_;
    bool zasunPanel_;
    Strana strana_;
};

/// A place at the given whole-number angle, degrees, from the direction rameno1 to rameno2, turned
/// to the left, whose read-out is exactly that angle.
[[nodiscard]] Bod PodUhlem(Bod rameno1, Bod rameno2, int stupnu);

}  // namespace rysovna::testy
