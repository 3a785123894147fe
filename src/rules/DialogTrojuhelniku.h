#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "rules/DialogKroku.h"

namespace rysovna {

/// A line of the circles: where the centre is, and for which quantity the radius stands, by the
/// first side (AB, AC, BC).
struct RadekKruznice {
    struct Podle {
        std::string_view Prvek, Nazev;  ///< both empty: the choice keeps what it held
    };
    std::string_view Stred;  ///< name of the centre's point
    std::string_view Text;   ///< the end of the list line, behind "kružnice k, "
    std::array<Podle, 3> PodleStrany;
    ChybaKroku ChybaVolby;  ///< wrong step when the quantity is not given
};

/// What a value costs when it is wrong: typed, then drawn. A tool with no row has no value.
struct CenaVeliciny {
    std::string_view Nastroj, Velicina;
    ChybaKroku Napsana, Nakreslena;
};

/// What one triangle board has of its own. All rows; the interpreter is DialogTrojuhelniku.
struct PravidlaTrojuhelniku {
    std::span<const RadekKruznice> Kruznice;
    std::span<const CenaVeliciny> Ceny;
    Nacrt NacrtFigury;
    /// Wrong step of each press with a parallel in hand. None: a parallel stands for the height
    /// upon its base, and the choice of the base is judged.
    ChybaKroku ChybaRovnobezky;
};

/// The dialogue's own record. Faze: 1 first side, 2 first object, 3 second object, 4 closed.
struct StavTrojuhelniku : StavKroku {
    std::string ZvolenyNazev;  ///< short name: a circle's quantity, letters of a base object
    std::string Velicina;      ///< the quantity that the step stands for: its value is judged
    Bod Vrchol = BEZ_BODU;     ///< the third vertex, once the triangle is closed
    std::string PismenoVrcholu;
    /// A step back leaves the names of the last step: a line that has none takes them over.
    void ZpetNecha(const StavTrojuhelniku& ted) {
        ZvolenyNazev = ted.ZvolenyNazev;
        Velicina = ted.Velicina;
    }
    friend bool operator==(const StavTrojuhelniku&, const StavTrojuhelniku&) = default;
};

/// The step dialogue of the triangle boards: a side, then two objects whose meeting point is the
/// third vertex. Every step is a tool, a line of the list, a typed value, a drag. Wrong choices
/// are charged as they are made and drawn all the same.
class DialogTrojuhelniku : public DialogSeStavem<StavTrojuhelniku> {
public:
    DialogTrojuhelniku(Misc& misc, Platna platna, const PravidlaTrojuhelniku& pravidla);

    void Posun(int dx, int dy) override;

protected:
    /// Whether the triangle is to start with this side.
    [[nodiscard]] virtual bool PrvniStranaSpravna(std::string_view prvek) const;
    /// Whether a circle is a wrong tool in this task; krokCekal: an expected step took it.
    [[nodiscard]] virtual bool KruzniceJeChyba(bool krokCekal) const = 0;
    /// Whether a circle's line is offered now, by the name of its centre's point.
    [[nodiscard]] virtual bool StredVDosahu(std::string_view stred) const;

    void Nabidni(Nastroj co) override;
    void ZvolRadek(std::size_t i) override;
    void PosudStisk(const Zachyt& zachyt) override;
    [[nodiscard]] std::string OdectiPaprsek(Bod konec) const override;
    [[nodiscard]] std::string RamenoUhlu() const override;
    void PosudOdecet(double odecet) override;
    void Uzavri() override;
    [[nodiscard]] int ChybnychPrvku() const override;
    void UkazFazi(Panel& panel) const override;

private:
    struct RadekNastroje;
    [[nodiscard]] static std::span<const RadekNastroje> Nastroje();

    // DialogTrojuhelnikuVolba.cpp: tools, their lists, choosing a line
    [[nodiscard]] std::vector<RadekSeznamu> Strany() const;
    [[nodiscard]] std::vector<RadekSeznamu> Paprsky() const;
    [[nodiscard]] std::vector<RadekSeznamu> Primky() const;
    [[nodiscard]] std::vector<RadekSeznamu> Kruznice() const;
    [[nodiscard]] bool VrcholVDosahu(std::string_view pismeno) const;
    void ZvolStranu(std::size_t i);
    void ZvolPaprsek(std::size_t i);
    void ZvolRovnobezku(std::size_t i);
    void ZvolKruznici(std::size_t i);
    void ZvolKolmici(std::size_t i);

    // DialogTrojuhelniku.cpp: prices of the plane, closing
    [[nodiscard]] bool HodnotaSedi(double hodnota) const;
    [[nodiscard]] const CenaVeliciny* Cena() const;
    [[nodiscard]] bool NajdiVrchol();
    void ObtahniStrany();
    void ZapisVrchol();

    const PravidlaTrojuhelniku& pravidla_;
};

}  // namespace rysovna
