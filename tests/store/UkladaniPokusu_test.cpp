#include "store/UkladaniPokusu.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "podpora/HlidanyDisk.h"
#include "podpora/PravaUctu.h"
#include "podpora/UkladaniHned.h"
#include "podpora/VzorkyVysledku.h"
#include "store/TextPokusu.h"

namespace rysovna::testy {
namespace {

namespace fs = std::filesystem;

using Co = HlidanyDisk::Co;

class UkladaniPokusuTest : public ::testing::Test {
protected:
    UkladaniPokusuTest() {
        slozka = fs::temp_directory_path() / ("pokusy." + std::to_string(std::random_device()()));
        fs::create_directories(slozka / "vysledky");
    }
    ~UkladaniPokusuTest() override { fs::remove_all(slozka); }

    [[nodiscard]] UkladaniPokusuHned Nove(const char* kam = "vysledky") {
        return {disk,
                {[this] { return ted; }, [this](std::uint32_t ms) { ted += ms; }},
                slozka / kam,
                slozka / "stav"};
    }
    std::string Odehraj(UkladaniPokusuHned& u, bool dokonceny = true) {
        const Pokus serie = SerieZaka();
        u.Zacni(serie);
        for (const HranyPriklad& p : serie.Priklady) u.Pridej(p);
        return u.Dokonci(dokonceny);
    }
    [[nodiscard]] std::vector<std::string> Soubory(const fs::path& kde) {
        return disk.JeSlozka(slozka / kde) ? disk.Jmena(slozka / kde) : std::vector<std::string>();
    }
    /// The attempts that are kept; each must be whole, and nothing else may lie there.
    std::vector<Pokus> Ulozene() {
        std::vector<Pokus> pokusy;
        for (const std::string& jmeno : Soubory("vysledky/Pokusy")) {
            const PrectenyPokus p = CtiPokus(*CelySoubor(slozka / "vysledky/Pokusy" / jmeno));
            EXPECT_TRUE(p.Co) << jmeno << ": " << p.Vada;
            if (p.Co) pokusy.push_back(*p.Co);
        }
        return pokusy;
    }

    static constexpr DatumACas DNES{2026, 11, 22, 17, 5}, ZITRA{2026, 11, 23, 8, 0};
    fs::path slozka;
    std::uint32_t ted = 0;
    HlidanyDisk disk;
};

TEST_F(UkladaniPokusuTest, SeriePoSeriiKazdaSvujSoubor) {
    fs::permissions(slozka / "vysledky", fs::perms(0770));
    UkladaniPokusuHned ukladani = Nove();
    EXPECT_EQ(Odehraj(ukladani), "");
    EXPECT_EQ(Odehraj(ukladani, false), "");
    Pokus jen = SerieZaka();
    for (HranyPriklad& p : jen.Priklady) p.Udalosti.clear();
    ukladani.Zacni(jen);  // nothing was done
    ukladani.Pridej(jen.Priklady[0]);
    EXPECT_EQ(ukladani.Dokonci(false), "");
    EXPECT_EQ(ukladani.Dokonci(true), "");
    Pokus cely = SerieZaka();
    cely.Dokonceny = true;
    std::vector<Pokus> pokusy = Ulozene();
    ASSERT_EQ(pokusy.size(), 2U);
    std::ranges::sort(pokusy, {}, &Pokus::Dokonceny);
    EXPECT_EQ(pokusy[0], SerieZaka());
    EXPECT_EQ(pokusy[1], cely);
    EXPECT_TRUE(Soubory("stav/fronta").empty());
    EXPECT_EQ(Soubory("vysledky/Pokusy")[0].substr(0, 17), "20261122-1705-01-");
    // Who shares the results shares these.
    if (MaPravaPosix()) {
        EXPECT_EQ(fs::status(slozka / "vysledky/Pokusy").permissions(), fs::perms(0770));
    }
}

/// One call of the disk after the other fails, alone or with all that follow: there is never half
/// an attempt, never two, and the next start has the rest of it.
TEST_F(UkladaniPokusuTest, ZadnaPoruchaNicNezkazi) {
    for (const bool naporad : {false, true}) {
        int volani = 0;
        for (int n = 1; n == 1 || n <= volani; ++n) {
            SCOPED_TRACE(std::to_string(n) + (naporad ? " napořád" : ""));
            fs::remove_all(slozka / "stav");
            fs::remove_all(slozka / "vysledky/Pokusy");
            int poradi = 0;
            disk.Pred = [&](Co, const fs::path& co) {
                if (++poradi == n || (naporad && poradi > n)) throw ChybaDisku(Pricina::Plno, co);
            };
            {
                UkladaniPokusuHned ukladani = Nove();
                const std::string zprava = Odehraj(ukladani);
                volani = std::max(volani, poradi);
                EXPECT_TRUE(!zprava.empty() || Ulozene().size() == 1);
                // Told once, whatever fails afterwards.
                EXPECT_TRUE(!naporad || zprava.empty() || Odehraj(ukladani).empty());
            }
            disk.Pred = [](Co, const fs::path&) {};
            UkladaniPokusuHned znovu = Nove();
            const bool vRade = !Soubory("stav/fronta").empty();
            EXPECT_EQ(znovu.ZkusCekajici(ZITRA), "");
            const std::vector<Pokus> pokusy = Ulozene();
            EXPECT_LE(pokusy.size(), naporad ? 2U : 1U);
            EXPECT_TRUE(!(vRade || !naporad) || !pokusy.empty());
            for (const Pokus& p : pokusy) EXPECT_EQ(p.Priklady[0], SerieZaka().Priklady[0]);
            EXPECT_TRUE(Soubory("stav/fronta").empty());
        }
        EXPECT_GE(volani, 5);
    }
}

TEST_F(UkladaniPokusuTest, ZabitaSerieSeNajdeAzKdyzJiNikdoNehraje) {
    {
        UkladaniPokusuHned hrajici = Nove();
        hrajici.Zacni(SerieZaka());
        hrajici.Pridej(SerieZaka().Priklady[0]);
        ASSERT_EQ(Soubory("stav/fronta").size(), 1U);
        EXPECT_EQ(Nove().ZkusCekajici(ZITRA), "");
        EXPECT_TRUE(Ulozene().empty());
    }
    const fs::path vRade = slozka / "stav/fronta" / Soubory("stav/fronta")[0];
    std::string jina = *CelySoubor(vRade);
    // Of another folder of results: not here.
    fs::create_directories(slozka / "jine");
    EXPECT_EQ(Nove("jine").ZkusCekajici(ZITRA), "");
    EXPECT_EQ(Soubory("stav/fronta").size(), 1U);
    EXPECT_EQ(Nove().ZkusCekajici(ZITRA), "");
    const std::vector<Pokus> pokusy = Ulozene();
    ASSERT_EQ(pokusy.size(), 1U);
    EXPECT_FALSE(pokusy[0].Dokonceny);
    EXPECT_EQ(pokusy[0].Priklady, std::vector{SerieZaka().Priklady[0]});
    EXPECT_TRUE(Soubory("stav/fronta").empty());
    // Another version's is left to it.
    jina.replace(jina.find("POKUS 1"), 7, "POKUS 2");
    disk.NovySoubor(vRade)->Pis(0, jina);
    EXPECT_EQ(Nove().ZkusCekajici(ZITRA), "");
    EXPECT_EQ(Soubory("stav/fronta").size(), 1U);
}

/// A name is never taken from a file that has it, whatever is in that; and what a disk that answers
/// later has not kept is in the queue, whether somebody waits for it or not.
TEST_F(UkladaniPokusuTest, NicCiziNezmeniANicNevydaZaUlozene) {
    UkladaniPokusuHned ukladani = Nove();
    std::vector<fs::path> cizi;
    disk.Pred = [&](Co co, const fs::path& jmeno) {
        if (co != Co::Jmeno || cizi.size() == 2) return;
        cizi.push_back(jmeno);
        disk.NovySoubor(jmeno)->Pis(0, cizi.size() == 1 ? "" : "cizí");
    };
    EXPECT_EQ(Odehraj(ukladani), "");
    ASSERT_EQ(cizi.size(), 2U);
    EXPECT_EQ(fs::file_size(cizi[0]), 0U);
    EXPECT_EQ(CelySoubor(cizi[1]), "cizí");
    for (const fs::path& c : cizi) fs::remove(c);
    EXPECT_EQ(Ulozene().size(), 1U);

    std::size_t vRade = 1;
    int otazek = 0;
    bool odmita = false;
    disk.PriOtazce = [&] {
        EXPECT_EQ(Soubory("stav/fronta").size(), vRade);
        if (++otazek % 3 != 0) return false;
        if (odmita) throw ChybaDisku(Pricina::Plno, "uloziste");
        return true;
    };
    EXPECT_EQ(Odehraj(ukladani), "");
    EXPECT_TRUE(Soubory("stav/fronta").empty());
    odmita = true;
    EXPECT_NE(Odehraj(ukladani).find("uložen stranou"), std::string::npos);
    odmita = false;
    vRade = 3;  // with the note that it was told
    ukladani.Zacni(SerieZaka());
    ukladani.Pridej(SerieZaka().Priklady[0]);
    ukladani.Opust();
    EXPECT_EQ(Soubory("stav/fronta").size(), vRade);
    disk.PriOtazce = [&] { return ++otazek % 3 == 0; };
    EXPECT_EQ(Nove().ZkusCekajici(ZITRA), "");
    EXPECT_TRUE(Soubory("stav/fronta").empty());
    EXPECT_EQ(Ulozene().size(), 4U);
}

/// A file stands where the folder should be.
TEST_F(UkladaniPokusuTest, KamNelzePsatSeRekneJednouADoplniSe) {
    static_cast<void>(disk.NovySoubor(slozka / "vysledky/Pokusy"));
    {
        UkladaniPokusuHned ukladani = Nove();
        const std::string zprava = Odehraj(ukladani);
        EXPECT_TRUE(zprava.starts_with("Záznam pokusu se nepodařilo uložit: ")) << zprava;
        EXPECT_NE(zprava.find("uložen stranou"), std::string::npos);
        EXPECT_EQ(Odehraj(ukladani), "");
    }
    EXPECT_EQ(Nove().ZkusCekajici(DNES), "");
    fs::remove(slozka / "vysledky/Pokusy");
    // What cannot be read keeps the others waiting no longer.
    const fs::path necitelny = slozka / "stav/fronta/0.pokus";
    fs::create_directory(necitelny);
    EXPECT_EQ(Nove().ZkusCekajici(DNES), "");
    EXPECT_EQ(Ulozene().size(), 2U);
    fs::remove(necitelny);
    EXPECT_EQ(Nove().ZkusCekajici(DNES), "");
    EXPECT_TRUE(Soubory("stav/fronta").empty());
}

}  // namespace
}  // namespace rysovna::testy
