#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "hrac/Relace.h"
#include "platform/Malir.h"
#include "sit/Obrazy.h"

namespace rysovna::sit {

/// A picture that is wanted of a play: of which event, what ("640x480", "1920x1080", "Pic",
/// "HidenPic"), and where to.
struct Prani {
    int Cislo = 0;
    std::string Co, Soubor;
};

/// Which windows are painted at each stage: both, or the small one alone, which is sooner.
enum class Velikosti { Obe, JenMala };

/// The picture that was wanted is written; nothing more is to be played.
struct ObrazHotov {};

/// The window of one size, painted as a real one: what changed since the last time.
class Okno {
public:
    Okno(int sirka, int vyska) : obraz_(sirka, vyska), radky_(static_cast<std::size_t>(vyska)) {}
    /// Whether anything was painted.
    bool Namaluj(const Obrazovky& okna, std::uint32_t ted);
    [[nodiscard]] std::uint64_t OtiskObrazu() const;
    [[nodiscard]] const Obraz& Obrazem() const { return obraz_; }

private:
    Malir malir_;
    Obraz obraz_;
    std::vector<std::uint64_t> radky_;  ///< a hash of each row
};

/// Looks at a session and writes down what it saw: a line for each event of the player (a stage),
/// and one for each change of the picture between two of them. All that the net reads of the game
/// besides what a player sees is read here.
///
/// A stage: number, clock, hashes of the window at 640x480 and 1920x1080, of the planes Pic and
/// HidenPic, points won/lost/of this example, wrong steps and a hash of them, the screen in front,
/// the event. "." is what stands in the line before. A change: number, clock, hash, "snimek".
class Pozorovatel {
public:
    Pozorovatel(hrac::Relace& hra, std::ostream& kam, Velikosti velikosti,
                std::optional<Prani> prani);
    void Stanice(std::string_view co);
    /// Score table, log, sounds and message boxes.
    void Zaver(int uloha);
    /// Numbers of the wrong steps that were charged, and in how many stages they were new.
    [[nodiscard]] const std::map<std::string, int>& Chyb() const { return chyb_; }

private:
    void Tik();
    void Snimek();
    void Splnit(std::string_view co, const Obraz& obraz);
    void Sloupec(std::size_t ktery, std::string text);
    [[nodiscard]] std::string OtiskPlochy(std::string_view jmeno);
    [[nodiscard]] bool Chce(std::string_view co) const {
        return prani_ && prani_->Cislo == cislo_ && prani_->Co == co;
    }

    hrac::Relace& hra_;
    std::ostream& kam_;
    Velikosti velikosti_;
    std::optional<Prani> prani_;
    Okno male_{640, 480}, velke_{1920, 1080};
    int cislo_ = 0, pocetChyb_ = 0;
    std::map<std::string, int> chyb_;
    std::vector<std::string> drive_;  ///< the columns of the last stage
};

}  // namespace rysovna::sit
