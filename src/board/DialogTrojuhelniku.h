#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "board/Dialog.h"
#include "board/Nacrt.h"
#include "board/Tahy.h"
#include "board/Zadani.h"

namespace rysovna {

/// A line of the first list: the side that the triangle starts with.
struct RadekStrany {
    std::string_view Text;   ///< the line, the letters of both ends
    std::string_view Prvek;  ///< the side
    int ChybaVolby;          ///< wrong step when it is not the one to start with
};

/// A line of the rays: the vertex at which the angle stands.
struct RadekPaprsku {
    std::string_view Vrchol;
    std::string_view Prvek;      ///< vertex and angle, "Aalfa"
    int ChybaFaze2, ChybaFaze3;  ///< wrong step when the angle is not given
};

/// A line of the circles: where the centre is, and for which quantity the radius stands, by the
/// first side (AB, AC, BC).
struct RadekKruznice {
    struct Podle {
        std::string_view Prvek, Nazev;  ///< both empty: the choice keeps what it held
    };
    std::string_view Stred;  ///< name of the centre's point
    std::string_view Text;   ///< the end of the list line, behind "kružnice k, "
    std::array<Podle, 3> PodleStrany;
    int ChybaVolby;  ///< wrong step when the quantity is not given
};

/// What a value costs when it is wrong: typed, then drawn. A tool with no row has no value.
struct CenaVeliciny {
    std::string_view Nastroj, Velicina;
    int Napsana, Nakreslena;
};

/// One kind of example of a triangle board.
struct DruhTrojuhelniku {
    std::string_view Druh;
    std::uint32_t Znacky;  ///< the marks that the check expects, bits in the order of the sketch
};

/// What one triangle board has of its own. All rows; the interpreter is DialogTrojuhelniku.
struct PravidlaTrojuhelniku {
    std::string_view Uvod;  ///< lead-in of the assignment
    std::span<const RadekStrany> Strany;
    std::span<const RadekPaprsku> Paprsky;
    std::span<const RadekKruznice> Kruznice;
    std::span<const CenaVeliciny> Ceny;
    std::span<const DruhTrojuhelniku> Druhy;
    std::span<const PrvekNacrtu> Nacrt;
    std::span<const PismenoNacrtu> PismenaNacrtu;
    bool TretiBody;  ///< midpoints are snap targets for the circles about them
};

/// The dialogue's own record: all that changes from step to step besides the construction.
struct StavTrojuhelniku {
    int Faze = 1;              ///< 1 first side, 2 first object, 3 second object, 4 closed
    std::string ZvolenyUtvar;  ///< kind of the tool in hand; empty between steps
    std::string ZvolenyPrvek;  ///< "a"; "Aalfa"; "AkB", ...
    std::string ZvolenyNazev;  ///< short name: a circle's quantity, letters of a base object
    std::string Velicina;      ///< the quantity that the step stands for: its value is judged
    bool CekaNaKresleni = false;
    bool KrokChybny = false;  ///< judged wrong already: its values cost nothing more
    bool HotovaKonstrukce = false;
    bool Skontrolovano = false;  ///< the check took the example
    bool Tazeni = false;         ///< the button is held over the plane
    Bod Start;
    Bod Vrchol = BEZ_BODU;  ///< the third vertex, once the triangle is closed
    std::string PismenoVrcholu;
    std::uint32_t Znacky = 0;  ///< marks of the sketch, bits in the order of its elements
    Seznam Combo;
    std::string lblText3;
    TextPanelu lblText4;
    Vstup txtVstup;
    friend bool operator==(const StavTrojuhelniku&, const StavTrojuhelniku&) = default;
};

/// The step dialogue of the triangle boards: a side, then two objects whose meeting point is the
/// third vertex. Every step is a tool, a line of the list, a typed value, a drag. Wrong choices
/// are charged as they are made and drawn all the same.
class DialogTrojuhelniku : public Dialog {
public:
    DialogTrojuhelniku(Platna platna, const PravidlaTrojuhelniku& pravidla);

    void NovyPriklad() override;
    void NoveZadani() override;
    void StiskNastroje(int i) override;
    void VyberRadku(int i) override;
    void ZavriSeznam() override;
    void Napis(int ktery, const std::string& text) override;
    void StiskPlochy(float x, float y) override;
    [[nodiscard]] Gumicka Tah(float x, float y) const override;
    [[nodiscard]] std::uint32_t CekaniPoTahu() const override;
    void PusteniPlochy(float x, float y) override;
    [[nodiscard]] bool CekaNaKresleni() const override {
        return stav_.CekaNaKresleni && !stav_.Skontrolovano;
    }
    bool StiskNacrtu(float x, float y) override;
    void KresliNacrt(Plane& plocha) const override;
    void Posun(int dx, int dy) override;
    void Zkontroluj() override;
    [[nodiscard]] bool Hotova() const override { return stav_.HotovaKonstrukce; }
    [[nodiscard]] Panel UkazPanel() const override;

    [[nodiscard]] const StavTrojuhelniku& Stav() const { return stav_; }
    /// Number of the example in play, its record, and its three values in the order of the board.
    [[nodiscard]] int CisloPrikladu() const { return cisloPrikladu_; }
    [[nodiscard]] const Priklad& Hrany() const { return Priklady[cisloPrikladu_]; }
    [[nodiscard]] const Hodnoty3& Hodnoty() const { return hodnoty_; }

protected:
    // What the boards answer each in its own way.

    /// Draws the three values for a kind. False for an unknown kind: values and assignment stay.
    [[nodiscard]] virtual bool VylosujHodnoty(const Priklad& p, Hodnoty3& hodnoty) = 0;
    /// Sets the labels of the assignment; a label whose rule fits nothing keeps its caption.
    virtual void SestavZadani(const Priklad& p, const Hodnoty3& hodnoty,
                              std::vector<PolozkaZadani>& zadani) = 0;
    /// The example's value of a quantity.
    [[nodiscard]] virtual int Hodnota(std::string_view velicina) const = 0;
    /// Whether the triangle is to start with this side.
    [[nodiscard]] virtual bool PrvniStranaSpravna(std::string_view prvek) const = 0;
    /// Whether a circle is a wrong tool in this task; krokCekal: an expected step took it.
    [[nodiscard]] virtual bool KruzniceJeChyba(bool krokCekal) const = 0;
    /// Judges the choice of a parallel that stands for a height. Sets KrokChybny.
    virtual void PosudVolbuRovnobezky(std::string_view vyska) = 0;
    /// Charges the press with a parallel in hand, where the board does.
    virtual void PosudStiskRovnobezky() = 0;
    /// Whether a kind of object is the one that an expected step asks for.
    [[nodiscard]] virtual bool DruhSedi(const Krok& krok, std::string_view druh) const;
    /// The marks that the check expects, bits in the order of the sketch.
    [[nodiscard]] virtual std::uint32_t OcekavaneZnacky() const;
    /// Whether a circle's line is offered now, by the name of its centre's point.
    [[nodiscard]] virtual bool StredVDosahu(std::string_view stred) const;
    /// Whether the ray or circle in hand starts at its vertex or centre.
    [[nodiscard]] virtual bool ZacinaSpravne() const;

    /// Charges a choice: 3 points, and the step is wrong from now on.
    void ChybnaVolba(int cislo);
    [[nodiscard]] bool JeZadana(std::string_view velicina) const;
    [[nodiscard]] StavTrojuhelniku& StavProUpravu() { return stav_; }

private:
    // DialogTrojuhelnikuSeznam.cpp: tools and their lists
    /// kolik: rows that the list is as tall as.
    void OtevriSeznam(int sirka, int sirkaRadku, std::size_t kolik,
                      std::vector<RadekSeznamu> radky);
    void NabidniStrany();
    void NabidniPaprsky();
    void NabidniKolmice();
    void NabidniRovnobezky();
    void NabidniKruznice();
    [[nodiscard]] bool VrcholVDosahu(std::string_view pismeno) const;
    void Zpet();

    // DialogTrojuhelnikuVolba.cpp: choosing a line
    void ZvolStranu(int i);
    void ZvolPaprsek(int i);
    void ZvolRovnobezku(int i);
    void ZvolKruznici(int i);
    void ZvolKolmici(int i);
    void Pripoj(std::string jmeno1, std::string jmeno2);
    void Vyzvi(std::string vyzva, std::string jednotka);
    [[nodiscard]] bool ObsadKrok(std::string_view druh);
    void Zapis(std::string_view druh, std::string_view prvek);

    // DialogTrojuhelniku.cpp: the plane and the check
    bool PosudNapsane();
    void NakresliUtvar(Bod konec);
    void DalsiFaze();
    void DokonciTrojuhelnik(bool pridatRadek);
    void PosudPrvky();
    [[nodiscard]] const CenaVeliciny* Cena() const;
    [[nodiscard]] const Utvar& Zakladna() const;
    [[nodiscard]] Dvojice BodyPrimky(Bod konec) const;

    const PravidlaTrojuhelniku& pravidla_;
    StavTrojuhelniku stav_;
    std::vector<PolozkaZadani> zadani_;
    int cisloPrikladu_ = 1;
    Hodnoty3 hodnoty_{};
};

}  // namespace rysovna
