#include <gtest/gtest.h>
#include <thread>

#include "platform/Stroj.h"
#include "platform/windows/Volani.h"
#include "podpora/SouboryPomoc.h"
#include "podpora/UkladaniHned.h"
#include "podpora/VzorkyVysledku.h"
#include "store/Fronta.h"

// What other programs do to the files of results on Windows: they have them open, so that nobody
// else can read, write or replace them, or they are marked as not to be written.

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

/// A file that another program has open and lets others do so much with it.
class Drzeny {
public:
    Drzeny(const fs::path& soubor, DWORD sdili)
        : h_(CreateFileW(soubor.c_str(), GENERIC_READ, sdili, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(h_, INVALID_HANDLE_VALUE) << soubor;
    }
    ~Drzeny() { Pust(); }
    Drzeny(const Drzeny&) = delete;
    Drzeny& operator=(const Drzeny&) = delete;
    void Pust() {
        if (h_ != INVALID_HANDLE_VALUE) CloseHandle(h_);
        h_ = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE h_;
};

class CiziProgram : public Soubory {
protected:
    CiziProgram() {
        Pis("Vysledky.dat", "");
        Pis("01.res", "");
    }
    std::string Uloz(const std::string& jmeno) { return UlozVysledek(VysledekZaka(jmeno)).Text; }
    std::string Start() {
        relace.Pamet().ZapomenVysledky();
        return host.Proved(relace.Pamet().Vysledky().ZkusCekajici());
    }
    int Ceka() { return PocetCekajicich(host.Disk(), host.SlozkaStavu()); }
    /// False if this account may write all the same: an administrator where rights are those of
    /// POSIX.
    bool JenKeCteni(bool ano) {
        for (const char* jmeno : {"Vysledky.dat", "01.res"}) {
            SetFileAttributesW(Cesta(jmeno).c_str(),
                               ano ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
        }
        try {
            static_cast<void>(host.Disk().Otevri(Cesta("01.res"), Disk::Jak::Zapis));
            return !ano;
        } catch (const ChybaDisku&) {
            return ano;
        }
    }
};

/// A result waits and is written once the other one is done: the log, or the table, is open in a
/// program that shares nothing, or shares reading alone; or both may not be written.
TEST_F(CiziProgram, VysledekPockaANicSeNeztrati) {
    std::string tabulka;
    std::string denik;
    for (const char* jmeno : {"Vysledky.dat", "01.res", ""}) {
        for (const DWORD sdili : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
            SCOPED_TRACE(std::string(jmeno) + " " + std::to_string(sdili));
            {
                std::optional<Drzeny> cizi;
                if (*jmeno == 0) {
                    if (!JenKeCteni(true)) GTEST_SKIP() << "smí se i to, co je jen ke čtení";
                } else {
                    cizi.emplace(Cesta(jmeno), sdili);
                }
                EXPECT_NE(Uloz("A").find("Je uložen stranou"), std::string::npos);
                EXPECT_EQ(Ceka(), 1);
                cizi.reset();
                EXPECT_EQ(Cti("01.res"), tabulka);
                ASSERT_TRUE(JenKeCteni(false));
            }
            EXPECT_EQ(Start(), "");
            EXPECT_EQ(Ceka(), 0);
            tabulka += RadekTabulky("A");
            denik += RadkyDeniku(VysledekZaka("A"));
            EXPECT_EQ(Cti("01.res"), tabulka);
            EXPECT_EQ(Cti("Vysledky.dat"), denik);
        }
    }
}

/// Who looks at a table while it is written, or a scanner that has it for a moment, is no
/// hindrance.
TEST_F(CiziProgram, KdoSeDivaNevadi) {
    {
        const Drzeny diva(Cesta("01.res"), FILE_SHARE_READ | FILE_SHARE_WRITE);
        EXPECT_EQ(Uloz("A"), "");
        EXPECT_EQ(Cti("01.res"), RadekTabulky("A"));
    }
    Drzeny skener(Cesta("01.res"), 0);
    std::thread konec([&] {
        Sleep(60);
        skener.Pust();
    });
    EXPECT_EQ(Uloz("B"), "");
    konec.join();
    EXPECT_EQ(Cti("01.res"), RadekTabulky("A") + RadekTabulky("B"));
    EXPECT_EQ(Ceka(), 0);
    // Nothing of what is written beside stays behind.
    for (const auto& soubor : fs::directory_iterator(Cesta("")))
        EXPECT_NE(soubor.path().extension(), ".nove") << soubor.path();
}

/// Names are what they are, in whatever letters, and folders are found whatever stands behind them.
TEST_F(CiziProgram, CeskaJmena) {
    DiskStroje disk;
    const fs::path slozka = disk.Skutecna(Cesta("").string() + "\\Škola Řeř\\");
    disk.ZalozSlozku(slozka / "hluboko");
    disk.NovySoubor(slozka / CestaZTextu("Žák.dat"))->Pripis("ř");
    EXPECT_EQ(disk.Jmena(slozka), (std::vector<std::string>{"hluboko", "Žák.dat"}));
    EXPECT_TRUE(disk.JeSlozka(slozka / ""));
    EXPECT_EQ(
        disk.Otevri(disk.Skutecna(Cesta("").string() + "škola ŘEŘ\\žÁK.DAT"), Disk::Jak::Cteni)
            ->Cti(),
        "ř");
    EXPECT_EQ(CelySoubor(slozka / "neni"), std::nullopt);
}

}  // namespace
}  // namespace rysovna::testy
