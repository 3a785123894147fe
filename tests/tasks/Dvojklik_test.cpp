// Double clicks: whatever a pupil double-clicks on a board, it costs no more than one click there.

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

#include "engine/Tabulky.h"
#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/Desky.h"

namespace rysovna::testy {
namespace {

using namespace hrac;

constexpr std::uint32_t DOZNENI = 2500;  // ms, longer than a slide
constexpr std::uint32_t DRZENI = 40;     // ms from a press to its release

/// What a click came to.
struct Vysledek {
    int Body = -1, Chyb = 0, Utvaru = 0;
    std::size_t Stav = 0;  ///< of the screen in front and the board's panel
    friend bool operator==(const Vysledek&, const Vysledek&) = default;
};

std::size_t Otisk(const Panel& p) {
    std::string t =
        p.Vyzva + '\n' + p.Nadpis + '\n' + p.Rysovane.Nazev + '\n' + p.Rysovane.Jednotka;
    for (const MistoNastroje& n : p.Nastroje) {
        t += '\n' + std::to_string(static_cast<int>(n.Co)) + " -+"[static_cast<int>(n.Jak)];
    }
    for (const RadekSeznamu& r : p.Vyber.Radky) t += '\n' + r.Text;
    t += p.Vyber.Otevreny ? "O" : "Z";
    t += p.PlochaZiva ? "P" : "p";
    return std::hash<std::string>{}(t);
}

/// Does something to the whole program and takes it back: it is done by a copy of the process.
Vysledek Nanecisto(const std::function<Vysledek()>& co) {
    std::array<int, 2> roura{};
    if (pipe(roura.data()) != 0) throw std::runtime_error("pipe");
    const pid_t dite = fork();
    if (dite == 0) {
        Vysledek v;
        try {
            v = co();
        } catch (const std::exception&) {
            v.Body = -1;
        }
        const bool zapsano = write(roura[1], &v, sizeof v) == sizeof v;
        _exit(zapsano ? 0 : 1);
    }
    close(roura[1]);
    Vysledek v;
    const bool precteno = read(roura[0], &v, sizeof v) == sizeof v;
    close(roura[0]);
    int stav = 0;
    waitpid(dite, &stav, 0);
    if (dite < 0 || !precteno || v.Body < 0) throw std::runtime_error("klik skončil chybou");
    return v;
}

/// A hand that tries a double click on everything before each thing that it does.
class ZkousejiciRuka final : public RukaNaDesce {
public:
    ZkousejiciRuka(Relace& hra, std::uint32_t seminko) : RukaNaDesce(hra), nahoda_(seminko) {}

    void Zkontroluj() override {
        Zkousej();
        RukaNaDesce::Zkontroluj();
        Zkousej();
    }
    /// How many times a control of this name was tried.
    [[nodiscard]] int Zkouseno(const std::string& prvek) const {
        const auto z = zkouseno_.find(prvek);
        return z == zkouseno_.end() ? 0 : z->second;
    }

protected:
    bool StiskNacrtu(Bod misto) override {
        Zkousej();
        ZkousejNa("SamplePic", misto);
        return RukaNaDesce::StiskNacrtu(misto);
    }
    void StiskNastroje(int i) override {
        Zkousej();
        RukaNaDesce::StiskNastroje(i);
    }
    void StiskRadku(int i, std::string_view text) override {
        Zkousej();
        RukaNaDesce::StiskRadku(i, text);
    }
    void TahPoPlose(Bod odkud, Bod kam) override {
        Zkousej();
        ZkousejNa("Pic", odkud);
        ZkousejRukojet();
        RukaNaDesce::TahPoPlose(odkud, kam);
    }

private:
    [[nodiscard]] int Cislo(int od, int po) {
        return std::uniform_int_distribution(od, po)(nahoda_);
    }
    /// The second press may do what a second press is told to do there; only the cost counts.
    [[nodiscard]] static bool SmiPodruhe(const Ovladac& o) {
        return o.Name == "cmd" || o.Name == "picSipka" || o.Name.starts_with("txtVstup") ||
               (o.Name == "PicTop" && o.Index == 2);
    }
    [[nodiscard]] static bool JeZivy(const Ovladac& prvek) {
        for (const Ovladac* o = &prvek; o != nullptr; o = o->Rodic) {
            if (!o->Visible || !o->Enabled) return false;
        }
        return prvek.ProMys && prvek.Width > 0 && prvek.Height > 0 &&
               prvek.Druh != Ovladac::Typ::Timer && prvek.Druh != Ovladac::Typ::Line &&
               prvek.Druh != Ovladac::Typ::Circle;
    }

    /// Tries every control twice, then now and then; the plane and the list at each step.
    void Zkousej() {
        constexpr int DOST = 2, JEDNOU_ZA = 5;
        for (const Ovladac* o : Hra().Vpredu()->Ovladace()) {
            if (!JeZivy(*o)) continue;
            const bool vzdy = o->Name == "Pic" || o->Name == "ComboLabel";
            if (!vzdy && Zkouseno(o->Name) >= DOST && Cislo(1, JEDNOU_ZA) != 1) continue;
            ZkousejNa(*o, {Cislo(0, o->Width - 1), Cislo(0, o->Height - 1)});
        }
    }

    /// The handle, when a step is armed: the panel comes out for it first.
    void ZkousejRukojet() {
        constexpr int DOST = 3;
        if (++rukojeti_ > DOST) return;
        vysunout_ = Hra().Prvek("MalaSipka").Visible;
        const Ovladac& rukojet = Hra().Prvek("Image1");
        ZkousejNa(rukojet, {Cislo(0, rukojet.Width - 1), Cislo(0, rukojet.Height - 1)});
        vysunout_ = false;
    }

    void ZkousejNa(std::string_view jmeno, Bod misto) { ZkousejNa(Hra().Prvek(jmeno), misto); }
    /// misto: pixels of the control.
    void ZkousejNa(const Ovladac& o, Bod misto) {
        Bod kde = misto;
        for (const Ovladac* r = &o; r != nullptr; r = r->Rodic) {
            kde = {kde.X + r->Left, kde.Y + r->Top};
        }
        const Vysledek jednou = Nanecisto([&] { return Klikni(kde, nullptr, 0); });
        for (const int tresni : {0, 4}) {
            const Bod podruhe{kde.X + Cislo(-tresni, tresni), kde.Y + Cislo(-tresni, tresni)};
            const auto za = static_cast<std::uint32_t>(Cislo(50, 500));
            const Vysledek dvakrat = Nanecisto([&] { return Klikni(kde, &podruhe, za); });
            const std::string co = o.Name + "(" + std::to_string(o.Index) + ") at " +
                                   std::to_string(kde.X) + "," + std::to_string(kde.Y) +
                                   ", then at " + std::to_string(podruhe.X) + "," +
                                   std::to_string(podruhe.Y) + " after " + std::to_string(za) +
                                   " ms, " + std::to_string(Hra().Pamet().PocetUtvaru) + " objects";
            EXPECT_LE(dvakrat.Body, jednou.Body) << co;
            if (!SmiPodruhe(o)) {
                EXPECT_EQ(dvakrat, jednou) << co;
            }
        }
        ++zkouseno_[o.Name];
    }

    Vysledek Klikni(Bod kde, const Bod* podruhe, std::uint32_t za) {
        HeadlessHost& host = Hra().Host();
        if (vysunout_) {
            Hra().Stiskni("MalaSipka");
            Hra().Cekej(DOZNENI);
        }
        Hra().NajedNaMisto(kde.X, kde.Y);
        const auto klik = [&host](Bod b, std::uint32_t kdy) {
            host.NaplanujZa(kdy, [&host, b] { host.Okna().MysDolu(b.X, b.Y, 1, 0); });
            host.NaplanujZa(kdy + DRZENI, [&host, b] { host.Okna().MysNahoru(b.X, b.Y, 1, 0); });
        };
        klik(kde, 1);
        if (podruhe != nullptr) klik(*podruhe, 1 + za);
        Hra().Cekej(DOZNENI);
        const Misc& m = Hra().Pamet();
        Vysledek v{m.SoucetZapornychBodu, m.PocetChybnychKroku, m.PocetUtvaru, 0};
        v.Stav = std::hash<std::string>{}(Hra().JmenoVpredu());
        if (const auto* deska = dynamic_cast<const DeskaForm*>(Hra().Vpredu()))
            v.Stav += Otisk(deska->Dialogem().UkazPanel());
        return v;
    }

    std::mt19937 nahoda_;
    std::map<std::string, int> zkouseno_;
    int rukojeti_ = 0;
    bool vysunout_ = false;  ///< the panel is to come out before the click
};

class Dvojklik : public testing::TestWithParam<int> {};

TEST_P(Dvojklik, NestojiViceNezJedenKlik) {
    Relace hra(static_cast<std::uint32_t>(GetParam()));
    hra.Start();
    hra.SpustUlohu(GetParam(), "Žák", 2);
    hra.Cekej(1000);
    ZkousejiciRuka ruka(hra, static_cast<std::uint32_t>(GetParam()));
    Sestroj(ruka, static_cast<std::uint32_t>(GetParam()));
    ruka.Zkontroluj();
    EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, 0);
    for (const char* prvek : {"cmd", "ComboLabel", "Pic", "SamplePic", "Image1", "MalaSipka",
                              "picSipka", "PicTop", "INadpis", "picPokracuj"}) {
        EXPECT_GT(ruka.Zkouseno(prvek), 0) << prvek;
    }
}

INSTANTIATE_TEST_SUITE_P(Ulohy, Dvojklik,
                         testing::Values(1, 4, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20));

}  // namespace
}  // namespace rysovna::testy
