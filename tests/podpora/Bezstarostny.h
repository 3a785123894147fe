#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "hrac/Relace.h"
#include "podpora/HlidacRady.h"

namespace rysovna::testy {

using hrac::Relace;

/// The careless pupil: presses, drags, hovers and types at random over all screens from the title
/// on, also while the program waits, and starts it again whenever it has ended. Its choices lean
/// to what is live and brings it further, so that it gets through whole series. After each stretch
/// it looks whether the score tables and the log are whole. Every run with the same seed is the
/// same.
///
/// One that plays by keys goes by the ring to what it wants, as often presses whatever key there
/// is, and takes the mouse now and then. So does one that plays by finger.
///
/// It keeps from one thing that is settled to end badly: the hundred and first wrong step of one
/// example is a fault.
class Bezstarostny {
public:
    using Cim = Relace::Cim;

    /// rodina: the family of tasks that it keeps to, but for a slip now and then, in the order of
    /// the menu from 1; 0: any.
    explicit Bezstarostny(std::uint32_t seminko, int rodina = 0, Cim cim = Cim::Mysi)
        : nahoda_(seminko), rodina_(rodina), cim_(cim) {
        ZacniRelaci();
    }

    /// So many events more. Throws std::runtime_error that tells what was wrong and the last
    /// events before it.
    void Hraj(int udalosti);

    /// What it has come through so far.
    struct Souhrn {
        int Udalosti = 0, Relaci = 0, Serii = 0, Uzavreni = 0;
        int Nedojde = 0;  ///< of what was wanted and live, that the ring did not come to it
        std::map<int, int> Desky;  ///< task -> how many times its board was opened
    };
    [[nodiscard]] const Souhrn& Prozito() const { return souhrn_; }

private:
    [[nodiscard]] int Cislo(int rozpeti) {
        return static_cast<int>(nahoda_() % static_cast<unsigned>(rozpeti));
    }
    [[nodiscard]] bool Jednou(int zKolika) { return Cislo(zKolika) == 0; }
    template <class T, std::size_t N>
    [[nodiscard]] const T& Neco(const T (&z)[N]) {
        return z[static_cast<std::size_t>(Cislo(N))];
    }

    void ZacniRelaci();
    void HlidejZpravy();
    void Krok();
    void Udalost();
    void Mys();
    void Klavesami();
    [[nodiscard]] const Ovladac* Vyhlednuty();
    void Tah(const Ovladac& pic);
    void Klepni(Bod odkud, Bod kam);
    [[nodiscard]] std::optional<Bod> NaPodlozce();
    void Pis();
    void Cekej();
    void Sestroj();
    [[nodiscard]] Bod Uvnitr(const Ovladac& o);
    void Stisk(Bod kde, int tlacitko);
    void Zapamatuj(const std::string& co, Bod kde);
    void Sleduj();
    void ZkontrolujStav();
    void ZkontrolujSoubory();

    std::mt19937 nahoda_;
    int rodina_;
    Cim cim_;
    std::unique_ptr<Relace> relace_;
    std::deque<std::string> stopa_;  ///< the last events
    Souhrn souhrn_;
    HlidacRady hlidac_;
    int planovano_ = 0;  ///< planned events still to come
    int konce_ = 0;      ///< ends of series seen in this run
    bool uzavreno_ = false;
    std::weak_ptr<Form> tabulka_, deska_;
    std::map<std::string, std::vector<std::string>> zaznamy_;  ///< score file -> its lines
};

}  // namespace rysovna::testy
