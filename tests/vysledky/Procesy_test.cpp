// Many programs that store results into one folder at once, each a process of its own.

#include <algorithm>
#include <map>
#include <signal.h>

#include "podpora/Prostredi.h"
#include "podpora/VzorkyVysledku.h"
#include "store/RadkySouboru.h"
#include "vysledky/Trida.h"

namespace rysovna::testy {
namespace {

constexpr uid_t PRVNI_UCET = 61001;

/// Who the programs belong to, and whether the folder lets them make files.
struct Poradek {
    const char* Jmeno;
    bool UcetKazdemu, Otevrena;
    bool VeTride = true;  ///< the programs are of the group that the files are of
};

class Procesy : public Trida, public ::testing::WithParamInterface<Poradek> {
protected:
    /// Programs and results of each; more of both by the environment.
    const int programu = Prostredi("RYSOVNA_PROGRAMU", 6);
    const int vysledku = Prostredi("RYSOVNA_VYSLEDKU", 8);

    static std::string JmenoZaka(int program, int poradi) {
        return "zak" + std::to_string(program) + "v" + std::to_string(poradi);
    }
    /// The storing of one program, in a process of its own.
    pid_t SpustProgram(int program, const std::function<void(UkladaniHned&)>& co) const {
        const int ucet = GetParam().UcetKazdemu ? program : 0;
        const uid_t kdo = PRVNI_UCET + static_cast<uid_t>(ucet);
        const auto delej = [&] {
            PosixDisk disk;
            UkladaniHned ukladani(disk, SkutecneHodiny(), data, Stav(ucet));
            co(ukladani);
        };
        return Spust(kdo, delej, GetParam().VeTride ? SKUPINA : kdo);
    }
    /// A pupil who looks at the table again and again; 1 if it was ever neither of two.
    [[noreturn]] void Divej() const {
        PosixDisk disk;
        std::size_t bylo = 0;
        while (!fs::exists(koren / "konec")) {
            const auto zaznamy = NactiTabulku(disk, data / "01.res");
            const bool dobre = std::ranges::all_of(zaznamy, [](const ZaznamTabulky& z) {
                return z.Jmeno.starts_with("zak") && z.Spravne == "50" && z.Spatne == "0" &&
                       z.Znamka == "1";
            });
            if (!dobre || zaznamy.size() < bylo) _exit(1);
            bylo = zaznamy.size();
        }
        _exit(0);
    }
    /// How many times each pupil stands in the table and in the log; a line that is none of a
    /// result's counts under its own text.
    using Pocty = std::map<std::string, int>;
    Pocty VTabulce() const {
        Pocty pocty;
        for (const std::string& radek : NaRadky(Cti(data / "01.res"))) {
            const std::string jmeno = radek.substr(0, radek.find('|'));
            ++pocty[radek + "\r\n" == RadekTabulky(jmeno) ? jmeno : radek];
        }
        return pocty;
    }
    Pocty VDeniku() const {
        Pocty pocty;
        const std::string denik = Denik();
        const std::size_t delka = RadkyDeniku(VysledekZaka("zak")).size();
        for (std::size_t i = 0; i < denik.size(); i += delka) {
            const std::string kus = denik.substr(i, delka);
            const std::string jmeno = kus.substr(7, kus.find(' ', 7) - 7);
            ++pocty[kus == RadkyDeniku(VysledekZaka(jmeno)) ? jmeno : kus];
        }
        return pocty;
    }
};

TEST_P(Procesy, KazdyVysledekPraveJednou) {
    if (GetParam().UcetKazdemu && geteuid() != 0)
        GTEST_SKIP() << "jen pro roota: programy mají běžet pod různými účty";
    for (const char* s : {"Vysledky.dat", "01.res"}) Pis(data / s, "");
    for (int p = 0; p < programu; ++p) ZalozStav(p);
    NastavPrava(GetParam().Otevrena);
    const auto od = std::chrono::steady_clock::now();
    const pid_t divak = Spust(PRVNI_UCET, [&] { Divej(); });
    std::vector<pid_t> deti;
    for (int p = 0; p < programu; ++p) {
        deti.push_back(SpustProgram(p, [&](UkladaniHned& ukladani) {
            for (int i = 0; i < vysledku; ++i)
                static_cast<void>(ukladani.Uloz(VysledekZaka(JmenoZaka(p, i))));
        }));
    }
    for (const pid_t dite : deti) EXPECT_EQ(Pockej(dite), 0);
    const auto trvalo = std::chrono::steady_clock::now() - od;
    Pis(koren / "konec", "");
    EXPECT_EQ(Pockej(divak), 0) << "tabulka nebyla stará ani nová";

    // What still waits goes with the next start, and then all are there once, and nothing else.
    for (int p = 0; p < programu; ++p) {
        EXPECT_EQ(Pockej(SpustProgram(
                      p, [](UkladaniHned& u) { _exit(u.ZkusCekajici().empty() ? 0 : 1); })),
                  0);
    }
    Pocty ocekavane;
    for (int p = 0; p < programu; ++p) {
        for (int i = 0; i < vysledku; ++i) ++ocekavane[JmenoZaka(p, i)];
    }
    EXPECT_EQ(VTabulce(), ocekavane);
    EXPECT_EQ(VDeniku(), ocekavane);
    struct stat stav {};
    ASSERT_EQ(stat((data / "01.res").c_str(), &stav), 0);
    EXPECT_EQ(stav.st_mode & 07777, 0666U);
    if (geteuid() == 0) {
        EXPECT_EQ(stav.st_gid, SKUPINA);
    }
    std::cout << GetParam().Jmeno << ": " << programu << " programů, " << programu * vysledku
              << " výsledků, "
              << std::chrono::duration_cast<std::chrono::milliseconds>(trvalo).count() << " ms\n";
}

INSTANTIATE_TEST_SUITE_P(Kdo, Procesy,
                         ::testing::Values(Poradek{"jedenUcet", false, true},
                                           Poradek{"jedenUcetZavrena", false, false},
                                           Poradek{"ucetKazdemu", true, true},
                                           Poradek{"ucetKazdemuZavrena", true, false},
                                           Poradek{"ucetKazdemuCiziSkupina", true, true, false}),
                         [](const auto& p) { return std::string(p.param.Jmeno); });

}  // namespace
}  // namespace rysovna::testy
