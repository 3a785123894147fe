#pragma once

#include <string>
#include <string_view>

#include "podpora/Zak.h"

namespace rysovna::testy {

/// The scripted pupil of the triangle by SSS, SUS and USU: one example of a chosen kind, drawn by a
/// script of steps, each right or wrong in a known way. The first side lies level, its first letter
/// on the left. What is not given counts as 15 cm, 50 degrees.
class Rysovac {
public:
    /// Starts a series of the task whose file holds one line of this kind: 1 a b c, 2 alfa b c,
    /// 3 a beta c, 4 a b gama, 5 a beta gama, 6 alfa b gama, 7 alfa beta c.
    explicit Rysovac(int uloha = 1, int druh = 1, int priklady = 1);

    /// Marks what is given (and what is named besides), slides the panel away.
    Rysovac& Zacni(std::string_view navic = {});
    /// Steps with blanks between: "AB" a side, "kA" a circle about A, "pA" a ray from A, "kolmice",
    /// "rovnobezka" to the first side, "zpet", "vse" the whole figure without a fault. Signs
    /// behind a step: "+" the typed value is 1 more, "~" the drawn one, "^" starts beside its
    /// point, "@" at the other end of the first side, "," types the value with a decimal comma,
    /// "_" types nothing.
    Rysovac& Rysuj(std::string_view kroky);
    Rysovac& Zkontroluj();

    /// The triangle board, and what it shows.
    [[nodiscard]] DeskaForm& Deska();
    [[nodiscard]] Panel P() { return Deska().Dialogem().UkazPanel(); }
    [[nodiscard]] Sezeni& Pamet() { return Hra.Pamet(); }
    /// Whether the last example was given up: nothing is drawn, charged or counted.
    [[nodiscard]] bool JePrazdno();

    Relace Hra;
    Zak Kdo{Hra};
    /// The ends of the first side, px of the plane.
    Bod Prvni{100, 190}, Druhy{};

private:
    void Krok(std::string slovo);
    void Strana(const std::string& jmena);
    void Paprsek(const std::string& vrchol);
    void Kruznice(const std::string& stred);
    [[nodiscard]] bool Ma(char znak) const { return znaky_.find(znak) != std::string::npos; }
    [[nodiscard]] int Hodnota(std::string_view velicina);
    [[nodiscard]] std::string Psane(int hodnota) const;
    [[nodiscard]] Bod Konec(char vrchol) const { return vrchol == jmena_[0] ? Prvni : Druhy; }
    [[nodiscard]] char Jiny(char vrchol) const {
        return vrchol == jmena_[0] ? jmena_[1] : jmena_[0];
    }
    [[nodiscard]] Bod Start(char vrchol) const;

    int druh_;
    std::string jmena_;  ///< of the first side, "AB"
    std::string znaky_;  ///< behind the present step
};

}  // namespace rysovna::testy
