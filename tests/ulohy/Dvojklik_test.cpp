// Double clicks: whatever a pupil double-clicks on a board, it costs no more than one click there.

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "hrac/RukaNaDesce.h"
#include "hrac/Serie.h"
#include "podpora/HlidacRady.h"
#include "rules/Misc.h"

namespace rysovna::testy {
namespace {

using namespace hrac;

constexpr std::uint32_t DOZNENI = 2500;  // ms, longer than a slide
constexpr std::uint32_t DRZENI = 40;     // ms from a press to its release

/// What a click came to: points lost; a hash of that, the tables, the screen in front and the
/// panel.
struct Vysledek {
    int Body = -1;
    std::size_t Vse = 0;
    friend bool operator==(const Vysledek&, const Vysledek&) = default;
};

/// Does something to the whole program and takes it back: it is done by a copy of the process.
Vysledek Nanecisto(const std::function<Vysledek()>& co) {
    void* pamet =
        mmap(nullptr, sizeof(Vysledek), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (pamet == MAP_FAILED) throw std::runtime_error("mmap");
    auto* spolecny = new (pamet) Vysledek;
    const pid_t dite = fork();
    if (dite == 0) {
        try {
            *spolecny = co();
        } catch (const std::exception&) {
            _exit(1);
        }
        _exit(0);
    }
    waitpid(dite, nullptr, 0);
    const Vysledek v = *spolecny;
    munmap(pamet, sizeof(Vysledek));
    if (v.Body < 0) throw std::runtime_error("klik skončil chybou");
    return v;
}

/// A hand that tries a double click on everything before each thing that it does.
class ZkousejiciRuka final : public RukaNaDesce {
public:
    ZkousejiciRuka(Relace& hra, std::uint32_t seminko) : RukaNaDesce(hra), los_(seminko) {}

    void Zkontroluj() override {
        Zkousej();
        RukaNaDesce::Zkontroluj();
        Zkousej();
    }
    /// How many times a control of this name was tried.
    std::map<std::string, int> Zkouseno;

protected:
    bool StiskNacrtu(Bod misto) override {
        Zkousej();
        ZkousejNa(Hra().Prvek("SamplePic"), misto);
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
        ZkousejNa(Hra().Prvek("Pic"), odkud);
        ZkousejRukojet();
        RukaNaDesce::TahPoPlose(odkud, kam);
    }

private:
    /// The second press may do what a second press is told to do there; only the cost counts.
    [[nodiscard]] static bool SmiPodruhe(const Ovladac& o) {
        return o.Name == "cmd" || o.Name == "picSipka" || o.Name.starts_with("txtVstup") ||
               (o.Name == "PicTop" && o.Index == 2);
    }
    [[nodiscard]] Bod Nekde(const Ovladac& o) {
        return {los_.Mezi(0, o.Width - 1), los_.Mezi(0, o.Height - 1)};
    }

    /// Tries every control twice, then now and then; the plane and the list at each step.
    void Zkousej() {
        constexpr int DOST = 2, JEDNOU_ZA = 5;
        for (const Ovladac* o : Hra().Vpredu()->Ovladace()) {
            if (!Zije(*o) || !o->ProMys) continue;
            const bool vzdy = o->Name == "Pic" || o->Name == "ComboLabel";
            if (vzdy || Zkouseno[o->Name] < DOST || los_.Cislo(JEDNOU_ZA) == 0)
                ZkousejNa(*o, Nekde(*o));
        }
    }

    /// The handle, when a step is armed: the panel comes out for it first.
    void ZkousejRukojet() {
        constexpr int DOST = 3;
        if (++rukojeti_ > DOST) return;
        vysunout_ = Hra().Prvek("MalaSipka").Visible;
        ZkousejNa(Hra().Prvek("Image1"), Nekde(Hra().Prvek("Image1")));
        vysunout_ = false;
    }

    /// misto: pixels of the control.
    void ZkousejNa(const Ovladac& o, Bod misto) {
        Bod kde = misto;
        for (const Ovladac* r = &o; r != nullptr; r = r->Rodic)
            kde = {kde.X + r->Left, kde.Y + r->Top};
        const Vysledek jednou = Nanecisto([&] { return Klikni(kde, kde, 0); });
        for (const int tresni : {0, 4}) {
            const Bod podruhe = los_.Vedle(kde, tresni);
            const int za = los_.Mezi(50, 500);
            const Vysledek dvakrat = Nanecisto([&] { return Klikni(kde, podruhe, za); });
            SCOPED_TRACE(o.Name + "(" + std::to_string(o.Index) + ") at " + std::to_string(kde.X) +
                         "," + std::to_string(kde.Y) + ", then at " + std::to_string(podruhe.X) +
                         "," + std::to_string(podruhe.Y) + " after " + std::to_string(za) +
                         " ms, " + std::to_string(Hra().Pamet().PocetUtvaru) + " objects");
            EXPECT_LE(dvakrat.Body, jednou.Body);
            EXPECT_TRUE(SmiPodruhe(o) || dvakrat == jednou);
        }
        ++Zkouseno[o.Name];
    }

    /// Once, and again so many ms later; never again after 0.
    Vysledek Klikni(Bod kde, Bod podruhe, int za) {
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
        if (za > 0) klik(podruhe, static_cast<std::uint32_t>(1 + za));
        Hra().Cekej(DOZNENI);
        const Misc& m = Hra().Pamet();
        std::string vse = Hra().JmenoVpredu() + " " + std::to_string(m.PocetChybnychKroku) + " " +
                          std::to_string(m.PocetUtvaru);
        if (const auto* deska = dynamic_cast<const DeskaForm*>(Hra().Vpredu()))
            vse += Slovy(deska->Dialogem().UkazPanel());
        return {m.SoucetZapornychBodu, std::hash<std::string>{}(vse)};
    }

    Los los_;
    int rukojeti_ = 0;
    bool vysunout_ = false;  ///< the panel is to come out before the click
};

class Dvojklik : public testing::TestWithParam<int> {};

TEST_P(Dvojklik, NestojiViceNezJedenKlik) {
    const auto seminko = static_cast<std::uint32_t>(GetParam());
    Relace hra(seminko);
    hra.Start();
    hra.SpustUlohu(GetParam(), "Žák", 2);
    hra.Cekej(1000);
    ZkousejiciRuka ruka(hra, seminko);
    Sestroj(ruka, seminko);
    ruka.Zkontroluj();
    EXPECT_EQ(hra.Pamet().SoucetZapornychBodu, 0);
    for (const char* prvek : {"cmd", "ComboLabel", "Pic", "SamplePic", "Image1", "MalaSipka",
                              "picSipka", "PicTop", "INadpis", "picPokracuj"}) {
        EXPECT_GT(ruka.Zkouseno[prvek], 0) << prvek;
    }
}

INSTANTIATE_TEST_SUITE_P(Ulohy, Dvojklik,
                         testing::Values(1, 4, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20));

}  // namespace
}  // namespace rysovna::testy
