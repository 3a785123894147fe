#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "rules/Dialog.h"
#include "rules/Kontrola.h"
#include "rules/Nacrt.h"
#include "rules/Prichytavani.h"
#include "rules/Tahy.h"
#include "rules/Veliciny.h"
#include "rules/Zadani.h"

namespace rysovna {

/// Wrong steps that several boards charge: an object that no expected step asks for.
constexpr ChybaKroku CHYBA_PAPRSEK_NECEKANY = 18, CHYBA_KOLMICE = 19, CHYBA_ROVNOBEZKA = 20,
                     CHYBA_KRUZNICE_NECEKANA = 21;

/// Name of a new object by its kind, as the first and as the second of the two that meet in a
/// vertex. Of a ray it is the second point.
struct JmenaUtvaru {
    std::string_view Druh, Prvni, Druhy;
};

/// What a release costs when the object does not start at its vertex or centre.
struct CenaPocatku {
    std::string_view Druh;
    ChybaKroku Prvni, Druhy;
};

/// What the boards of one figure have of their own in every step.
struct PravidlaKroku {
    std::string_view Uvod;  ///< lead-in of the assignment
    Nacrt NacrtFigury;
    std::span<const JmenaUtvaru> Jmena;
    std::span<const CenaPocatku> CenyPocatku;
    std::array<int, 2> Ocekavane;  ///< numbers of the data's steps with the two expected objects
    ChybaKroku Nedokoncena;        ///< what an unfinished construction costs
};

/// What changes from step to step besides the construction, as far as the boards of triangles and
/// quadrilaterals share it.
struct StavKroku {
    int Faze = 1;
    std::string ZvolenyUtvar;  ///< kind of the tool in hand; empty between steps
    std::string ZvolenyPrvek;  ///< code of the element: "a", "Aalfa", "AkB", "KA", "AXAB", ...
    bool CekaNaKresleni = false;
    bool KrokChybny = false;  ///< judged wrong already: its values cost nothing more
    bool HotovaKonstrukce = false;
    bool Skontrolovano = false;  ///< the check took the example
    bool Tazeni = false;         ///< the button is held over the plane
    Bod Start;
    std::string BodVyzvy;      ///< the vertex or centre that the prompt names; empty: none
    std::uint32_t Znacky = 0;  ///< marks of the sketch, bits in the order of its elements
    Seznam Vyber;
    Velicina Rysovane;  ///< name and value of the object in hand
    friend bool operator==(const StavKroku&, const StavKroku&) = default;
};

/// What a step back leaves as it is now: marks, what the last step was judged and named by, where
/// its drag began, the list that was closed. All else of the record is what it was at the beginning
/// of the step.
inline constexpr std::tuple ZPET_NECHA{&StavKroku::Znacky,       &StavKroku::KrokChybny,
                                       &StavKroku::ZvolenyPrvek, &StavKroku::Start,
                                       &StavKroku::BodVyzvy,     &StavKroku::Vyber};

/// The course of a step, as the boards of triangles and quadrilaterals share it: a tool, a line of
/// its list, a typed value, a drag; then undo, the check, the panel. What is offered and what it
/// costs is the board's.
class DialogKroku : public Dialog {
public:
    DialogKroku(Misc& misc, Platna platna, const PravidlaKroku& pravidla)
        : Dialog(misc, platna), pravidlaKroku_(pravidla) {}

    void NovyPriklad() override;
    void NoveZadani() override;
    [[nodiscard]] ZadanyPriklad Zadany() const override { return {Hrany(), hodnoty_, {}}; }
    void Zadej(const ZadanyPriklad& zadany) override;
    void Posun(int dx, int dy) override;
    void StiskNastroje(int i) override;
    void VyberRadku(int i) override;
    void ZavriSeznam() override { Upravit().Vyber.Otevreny = false; }
    void Napis(int ktery, const std::string& text) override;
    void StiskPlochy(float x, float y) override;
    [[nodiscard]] std::optional<Bod> ChytilBy(float x, float y) const override;
    [[nodiscard]] Gumicka Tah(float x, float y) const override;
    [[nodiscard]] std::uint32_t CekaniPoTahu() const override;
    void PusteniPlochy(float x, float y) override;
    [[nodiscard]] bool CekaNaKresleni() const override {
        return Stav().CekaNaKresleni && !Stav().Skontrolovano;
    }
    [[nodiscard]] Nacrt NacrtPrikladu() const override { return pravidlaKroku_.NacrtFigury; }
    [[nodiscard]] std::uint32_t ZnackyNacrtu() const override { return Stav().Znacky; }
    bool StiskNacrtu(float x, float y) override;
    void Zkontroluj() override;
    [[nodiscard]] bool Hotova() const override { return Stav().HotovaKonstrukce; }
    [[nodiscard]] Panel UkazPanel() const override;

    [[nodiscard]] virtual const StavKroku& Stav() const = 0;
    /// Number of the example in play, its record, and its values in the order of its names.
    [[nodiscard]] int CisloPrikladu() const { return cisloPrikladu_; }
    [[nodiscard]] const Priklad& Hrany() const { return misc_.Priklady[cisloPrikladu_]; }
    [[nodiscard]] const HodnotyPrikladu& Hodnoty() const { return hodnoty_; }
    /// The example's value of a quantity; none if it is not given.
    [[nodiscard]] std::optional<int> Hodnota(std::string_view velicina) const;

protected:
    // What the boards answer each in its own way.

    [[nodiscard]] virtual StavKroku& Upravit() = 0;
    /// The given quantities in their order: the three of the record.
    [[nodiscard]] virtual std::vector<Zadana> Zadane() const;
    /// Draws the values for a kind. False for an unknown kind: values and assignment stay.
    [[nodiscard]] virtual bool VylosujHodnoty(const Priklad& p, HodnotyPrikladu& hodnoty) = 0;
    /// Puts the assignment together; what has no unit has no value.
    virtual void SestavZadani(std::vector<ZadanaVelicina>& zadani) const;
    /// Whether the tool begins a step, which is not judged wrong yet.
    [[nodiscard]] virtual bool ZacinaKrok(Nastroj /*co*/) const { return true; }
    /// The tool, live, was pressed: opens its list. Not called for the step back.
    virtual void Nabidni(Nastroj co) = 0;
    /// Line i, from 0, of the list was chosen; the list is closed by now.
    virtual void ZvolRadek(std::size_t i) = 0;
    /// Judges the press that begins a drag, by what it caught; its start is known by now.
    virtual void PosudStisk(const Zachyt& /*zachyt*/) {}
    /// The named point that the parallel in hand is drawn through, when it is let go here; none: it
    /// stays where it was pushed.
    [[nodiscard]] virtual std::optional<Bod> BodRovnobezky(Bod /*konec*/) const { return {}; }
    /// The two points of the straight object that a drag to here makes.
    [[nodiscard]] Dvojice BodyPrimky(Bod konec) const;
    /// The read-out of a ray.
    [[nodiscard]] virtual std::string OdectiPaprsek(Bod /*konec*/) const { return {}; }
    /// Judges the number of the read-out at the release, in a step that is right so far.
    virtual void PosudOdecet(double /*odecet*/) {}
    /// Whether the ray or circle in hand starts at its vertex or centre.
    [[nodiscard]] virtual bool ZacinaSpravne() const;
    /// Whether the circle in hand may have its centre in the midpoint of a side.
    [[nodiscard]] virtual bool ChytaStredStrany() const { return false; }
    virtual void NakresliUtvar(Bod konec);
    /// Names that the object in hand goes by, as its prompt says: a base, a centre, the far end of
    /// the angle's other arm.
    [[nodiscard]] virtual std::string PodleCeho() const;
    /// Of a ray: the far end of the arm that its angle is measured from.
    [[nodiscard]] virtual std::string RamenoUhlu() const { return {}; }
    /// The number of the phase in which the construction is closed.
    [[nodiscard]] virtual int PosledniFaze() const { return 4; }
    /// The last phase was reached: closes the figure, if its objects meet.
    virtual void Uzavri() = 0;
    /// The record as at the beginning of an example.
    virtual void VymazStav() = 0;
    /// Keeps the record of the step that begins; puts the kept one of a phase, from 1, back.
    virtual void ZapamatujStav() = 0;
    virtual void VratStav(int faze) = 0;
    /// Draws the construction anew.
    virtual void Prekresli();
    /// Whether a kind of object is the one that an expected step asks for.
    [[nodiscard]] virtual bool DruhSedi(const Krok& krok, std::string_view druh) const;
    /// How many of the three entered elements are wrong.
    [[nodiscard]] virtual int ChybnychPrvku() const = 0;
    /// Prompts and tools of the phase.
    virtual void UkazFazi(Panel& panel) const = 0;

    // What the boards build their answers from.

    /// Opens the list.
    void OtevriSeznam(Seznam::Obsah coRika, std::vector<RadekSeznamu> radky);
    /// The list line of a straight object that a perpendicular or a parallel can go by; none for
    /// any other object.
    [[nodiscard]] static std::optional<RadekSeznamu> RadekPrimky(const Utvar& u, bool kolmice);
    /// Name of the object in hand, by its kind and the phase.
    [[nodiscard]] std::string Jmeno() const;
    /// Asks for the value of the object in hand.
    void Vyzvi(std::string nazev, std::string jednotka);
    /// Names the object in hand and prompts for it: a ray by the far end of the angle's other arm,
    /// a circle by its centre, a perpendicular or parallel by the names of its base and by what
    /// the prompt calls it.
    void ZacniPaprsek(const std::string& rameno, const std::string& vrchol);
    void ZacniKruznici(std::string_view stred);
    void ZacniPrimku(const std::string& jmena, const std::string& nazev);
    /// Opens the next row of the construction for a drag.
    void ZacniUtvar(std::string_view jmeno1, std::string_view jmeno2);
    /// Charges a choice; the step is wrong from now on.
    void ChybnaVolba(ChybaKroku chyba, std::string_view slovy = {});
    /// Takes the first expected step of this kind that was not taken yet; false if there is none.
    bool ObsadKrok(std::string_view druh);
    /// What the pupil chose in this phase, for the check.
    void Zapis(std::string_view druh, std::string_view prvek);
    /// The step is drawn: the next phase, or the end.
    void DalsiFaze();
    /// The base line of the perpendicular or parallel in hand.
    [[nodiscard]] const Utvar& Zakladna() const;
    [[nodiscard]] bool JeZadana(std::string_view velicina) const {
        return Hodnota(velicina).has_value();
    }
    /// What the plane waits for with the object in hand.
    [[nodiscard]] Gesto GestoKroku() const;
    /// Whether the first step may begin: it waits for a mark on the sketch until then.
    [[nodiscard]] bool MuzeZacit() const;
    /// The tools in their places; one out of turn or beside an awaited drag is not live.
    void UkazNastroje(Panel& panel, const std::array<Nastroj, 6>& nastroje,
                      const std::array<bool, 6>& naRade) const;
    /// The step in which one of the two objects is chosen that meet in a vertex.
    void UkazVolbuUtvaru(Panel& panel, std::string_view vyzva) const;
    [[nodiscard]] Priklad& HranyProUpravu() { return misc_.Priklady[cisloPrikladu_]; }
    [[nodiscard]] std::vector<ZadanaVelicina>& ZadaniProUpravu() { return zadani_; }

private:
    void ZacniZadani(int cisloPrikladu);
    void ZapamatujKrok();
    void Zpet();

    struct DruhTahu;
    [[nodiscard]] const DruhTahu* Druh() const;
    [[nodiscard]] Zachyt ChytPosledni(float x, float y) const;
    [[nodiscard]] Zachyt Chyt(float x, float y) const;
    [[nodiscard]] Zachyt ChytStred(float x, float y) const;
    [[nodiscard]] Zachyt ChytZakladnu(float x, float y) const;
    void NakresliUsecku(int n, Bod konec) const;
    void NakresliPoloprimku(int n, Bod konec) const;
    void NakresliKruznici(int n, Bod konec) const;
    void NakresliKolmici(int n, Bod konec) const;
    void NakresliRovnobezku(int n, Bod konec) const;
    [[nodiscard]] std::string OdectiUsecku(Bod konec) const;
    [[nodiscard]] std::string OdectiPosunuti(Bod konec) const;

    PravidlaKroku pravidlaKroku_;
    std::vector<ZadanaVelicina> zadani_;
    int cisloPrikladu_ = 1;
    HodnotyPrikladu hodnoty_{};
    std::vector<SnimekKonstrukce> snimky_;  ///< at the beginning of each phase so far
};

/// The step dialogue with its record. A step back keeps of it what ZPET_NECHA names, and of what S
/// has beyond StavKroku what S::ZpetNecha takes over.
template <class S>
class DialogSeStavem : public DialogKroku {
public:
    using DialogKroku::DialogKroku;
    [[nodiscard]] const S& Stav() const override { return stav_; }

protected:
    [[nodiscard]] S& Upravit() override { return stav_; }
    void VymazStav() override {
        stav_ = S{};
        stavy_.clear();
    }
    void ZapamatujStav() override { stavy_.push_back(stav_); }
    void VratStav(int faze) override {
        stavy_.resize(static_cast<std::size_t>(faze));
        S vraceny = stavy_.back();
        std::apply([&](auto... pole) { ((vraceny.*pole = stav_.*pole), ...); }, ZPET_NECHA);
        if constexpr (requires { vraceny.ZpetNecha(stav_); }) vraceny.ZpetNecha(stav_);
        stav_ = std::move(vraceny);
    }

    S stav_;

private:
    std::vector<S> stavy_;  ///< at the beginning of each phase so far
};

}  // namespace rysovna
