#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

#include "platform/Stroj.h"
#include "podpora/UkladaniHned.h"
#include "store/Fronta.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

/// A disk that has kept what was written at the third question only, or refuses at that.
class PozdniDisk final : public DiskStroje {
public:
    bool Odmita = false;
    std::function<void()> PriOtazce = [] {};

    bool Uchovano() override {
        PriOtazce();
        if (++otazek_ % 3 != 0) return false;
        if (Odmita) throw ChybaDisku(Pricina::Plno, "uloziste");
        return true;
    }

private:
    int otazek_ = 0;
};

class Uchovani : public ::testing::Test {
protected:
    ~Uchovani() override { fs::remove_all(slozka); }

    [[nodiscard]] std::string Obsah(const char* jmeno) const {
        std::ifstream f(slozka / "vysledky" / jmeno);
        return {std::istreambuf_iterator<char>(f), {}};
    }
    [[nodiscard]] std::size_t Kolikrat(const char* jmeno, const std::string& co) const {
        const std::string vse = Obsah(jmeno);
        std::size_t n = 0;
        for (auto i = vse.find(co); i != vse.npos; i = vse.find(co, i + 1)) ++n;
        return n;
    }

    static fs::path Nova() {
        const fs::path nova =
            fs::temp_directory_path() / ("uchovani." + std::to_string(std::random_device()()));
        fs::create_directories(nova / "vysledky");
        for (const char* soubor : {"Vysledky.dat", "01.res"})
            std::ofstream(nova / "vysledky" / soubor).close();
        return nova;
    }

    fs::path slozka = Nova();
    PozdniDisk disk;
    std::uint32_t ted = 0;
    UkladaniHned ukladani{disk,
                          {[this] { return ted; }, [this](std::uint32_t ms) { ted += ms; }},
                          slozka / "vysledky",
                          slozka / "stav"};
    Vysledek vysledek{.CisloUlohy = 1,
                      .Jmeno = "Eva",
                      .Hra = "h",
                      .Typ = "t",
                      .Prikladu = "5",
                      .Kladne = "50",
                      .Zaporne = "0",
                      .Znamka = "1"};
};

/// A result is told as stored, and taken out of the queue, only when the disk has kept it: whoever
/// is killed before has it in the queue, and the queue claims nothing that may be lost.
TEST_F(Uchovani, DoOdpovediZustavaVeFronte) {
    int otazek = 0;
    disk.PriOtazce = [&] {
        ++otazek;
        const auto fronta = Fronta(disk, slozka / "stav").Cekajici((slozka / "vysledky").string());
        ASSERT_EQ(fronta.size(), 1U);
        EXPECT_EQ(fronta[0].VDeniku, otazek > 3);
        EXPECT_FALSE(fronta[0].VTabulce);
    };
    const auto ulozeni = ukladani.Uloz(vysledek);
    EXPECT_EQ(ulozeni.Text, "");
    EXPECT_EQ(ulozeni.Misto, 1);
    EXPECT_EQ(otazek, 6);
    EXPECT_EQ(PocetCekajicich(disk, slozka / "stav"), 0);
}

/// What the disk refused is tried again, and then stands in log and table once.
TEST_F(Uchovani, OdmitnuteSeZkusiZnovu) {
    disk.Odmita = true;
    EXPECT_NE(ukladani.Uloz(vysledek).Text.find("uložen stranou"), std::string::npos);
    EXPECT_EQ(PocetCekajicich(disk, slozka / "stav"), 1);
    disk.Odmita = false;
    EXPECT_EQ(ukladani.ZkusCekajici(), "");
    EXPECT_EQ(PocetCekajicich(disk, slozka / "stav"), 0);
    EXPECT_EQ(Kolikrat("Vysledky.dat", "Eva"), 1U);
    EXPECT_EQ(Kolikrat("01.res", "Eva"), 1U);
}

}  // namespace
}  // namespace rysovna::testy
