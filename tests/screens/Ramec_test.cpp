// The frame of a board: panel, buttons, list, waits, series. Played on the triangle board.

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <set>

#include "base/Chyba.h"
#include "hrac/RukaNaDesce.h"
#include "podpora/NaObrazovce.h"
#include "podpora/Rysovac.h"
#include "rules/Chyby.h"
#include "screens/ChybovyForm.h"
#include "zak/Tecny.h"

namespace rysovna::testy {
namespace {

using Zvuky = std::vector<std::string>;

TEST(RamecDesky, PanelVyjizdiTriceticiCtyrmiSnimkyPoCtyricetiMsANikohoNepusti) {
    Rysovac r;
    HeadlessHost& host = r.Hra.Host();
    std::vector<std::uint32_t> snimky;
    std::uint32_t zacatek = 0;
    host.PriPrekresleni = [&] { snimky.push_back(host.TickCount() - zacatek); };
    for (const bool zavrit : {true, false, true}) {
        snimky.clear();
        zacatek = host.TickCount();
        // Presses on all that a slide could make wrong, one of them released only behind it.
        for (const auto& [kdy, kam] : {std::pair{500U, Bod{300, 120}}, {900U, Bod{591, 42}}}) {
            host.NaplanujZa(kdy, [&r, kam = kam] { r.Hra.StiskniMisto(kam.X, kam.Y); });
        }
        host.NaplanujZa(1300, [&] { host.Okna().MysDolu(500, 42, LEVE, 0); });
        host.NaplanujZa(1600, [&] { host.Okna().MysNahoru(500, 42, LEVE, 0); });
        r.Hra.NoveZvuky();
        r.Kdo.Stiskni(zavrit ? "Image1" : "MalaSipka");
        EXPECT_EQ(r.Hra.NoveZvuky(), Zvuky{"click.wav"});
        ASSERT_EQ(snimky.size(), 34U);
        for (std::uint32_t k = 0; k < 34; ++k) EXPECT_EQ(snimky[k], 40 * k);
        // When it has shut, a short wait lets events through at last.
        EXPECT_EQ(host.TickCount() - zacatek, zavrit ? 1380U : 1360U);
        r.Hra.Cekej(1000);
        EXPECT_EQ(host.Naplanovano(), 0U);
        EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
        EXPECT_TRUE(r.JePrazdno());
        EXPECT_EQ(r.Hra.Prvek("Image1").Tag, zavrit ? "0" : "1");
        EXPECT_EQ(r.Hra.Prvek("MalaSipka").Visible, zavrit);
        EXPECT_EQ(r.Hra.Prvek("VPImage").Visible, !zavrit);
    }
}

TEST(RamecDesky, PozdniSnimekPaneluSeVynechaAJizdaSeNeprodlouzi) {
    Rysovac r;
    HeadlessHost& host = r.Hra.Host();
    for (const std::uint32_t kresleni : {39U, 41U, 100U, 2000U}) {
        std::vector<std::uint32_t> snimky;
        const std::uint32_t zacatek = host.TickCount();
        host.PriPrekresleni = [&] {
            snimky.push_back((host.TickCount() - zacatek) / 40);
            host.PosunHodiny(kresleni);
        };
        const bool zavrit = r.Hra.Prvek("Image1").Tag == "1";
        r.Kdo.Stiskni(zavrit ? "Image1" : "MalaSipka");
        host.PriPrekresleni = nullptr;
        // One that is drawn late ends the slide at most by its own drawing later.
        const std::uint32_t doba = host.TickCount() - zacatek - (zavrit ? 20 : 0);
        EXPECT_GE(doba, 1360U);
        EXPECT_LT(doba, std::max(1360U, snimky.back() * 40 + kresleni + 40)) << kresleni;
        EXPECT_EQ(std::ranges::adjacent_find(snimky, std::greater_equal()), snimky.end());
        EXPECT_EQ(snimky.size(), 1359 / std::max(kresleni, 40U) + 1) << kresleni;
        EXPECT_EQ(r.Hra.Prvek("Image1").Tag, zavrit ? "0" : "1");
    }
}

TEST(RamecDesky, NajetiRozsvitiJednoAOdjezdZhasneVsechna) {
    Rysovac r;
    std::vector<std::pair<PictureBox*, Obrazek>> prvky;
    for (const int i : {1, 2, 3, 4}) {
        for (const char* jmeno : {"PicTop", "picSipka"}) {
            auto& p = r.Hra.Prvek<PictureBox>(jmeno, i);
            prvky.emplace_back(&p, p.Picture);
        }
    }
    const auto zkontroluj = [&](const PictureBox* sviti) {
        for (const auto& [p, obrazek] : prvky) EXPECT_EQ(p->Picture != obrazek, p == sviti);
    };
    r.Hra.NoveZvuky();
    for (const auto& [p, obrazek] : prvky) {
        for (int i = 0; i < 2; ++i) r.Hra.Najed(p->Name, p->Index);
        zkontroluj(p);
        EXPECT_EQ(r.Hra.NoveZvuky(), Zvuky{"enter.wav"});
    }
    r.Hra.NajedNaMisto(5, 470);
    zkontroluj(nullptr);
    EXPECT_EQ(r.Hra.NoveZvuky(), Zvuky{});
}

TEST(RamecDesky, SeznamZavreStiskVedleANepadneSNimKrok) {
    const std::pair<const char*, std::function<void(Rysovac&)>> vse[] = {
        {"ground", [](Rysovac& r) { r.Hra.StiskniMisto(5, 470); }},
        {"plane", [](Rysovac& r) { r.Hra.Stiskni("Pic", 0, 20, 300); }},
        {"sketch", [](Rysovac& r) { r.Kdo.Oznac("gama").Oznac("gama"); }},
        {"handle", [](Rysovac& r) { r.Kdo.Stiskni("Image1"); }},
        {"Escape", [](Rysovac& r) { r.Hra.Klavesa("Escape"); }},
        {"table", [](Rysovac& r) { r.Kdo.Stiskni("PicTop", 3).Stiskni("picKonec"); }},
        {"check", [](Rysovac& r) { r.Kdo.Stiskni("PicTop", 1); }},
        {"new", [](Rysovac& r) { r.Kdo.Stiskni("PicTop", 2); }},
    };
    for (const auto& [co, stisk] : vse) {
        SCOPED_TRACE(co);
        Rysovac r;
        r.Kdo.Oznac("c").Nastroj(1);
        ASSERT_TRUE(r.Hra.Prvek("Combo").Visible);
        stisk(r);
        EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
        EXPECT_FALSE(r.Hra.Prvek("Combo").Visible);
        EXPECT_FALSE(r.P().Vyber.Otevreny);
        EXPECT_EQ(r.Pamet().PocetUtvaru, 0);
    }
}

TEST(RamecDesky, NapovedaATabulkaSeVraciKRozdelanePraciZpetJiZahodi) {
    Rysovac r(1, 1, 2);
    const Panel rozdelano = r.Zacni().Rysuj("AB kA").P();
    r.Kdo.Stiskni("INadpis");
    EXPECT_EQ(r.Hra.JmenoVpredu(), "HelpForm");
    r.Hra.StiskniMisto(300, 200);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    r.Kdo.Stiskni("PicTop", 3);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "TabulkaForm");
    r.Kdo.Stiskni("picKonec");
    EXPECT_EQ(r.P(), rozdelano);
    r.Rysuj("kB");
    EXPECT_EQ(r.Pamet().PocetUtvaru, 3);
    r.Kdo.Stiskni("PicTop", 4);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "SetupForm");
    EXPECT_EQ(r.Hra.Najdi("Troj1Form"), nullptr);
    EXPECT_EQ(r.Hra.CtiSoubor("01.res") + r.Hra.CtiSoubor("Vysledky.dat"), "");
}

// ---- Waits -----------------------------------------------------------------------------------

using Co = std::function<void(Rysovac&)>;

/// A press that waits, and when in its wait something else happens.
struct CekaniDesky {
    const char* Jmeno;
    std::vector<std::uint32_t> Kdy;  ///< ms from the press
    Co Priprav, Stisk;
};

/// Every wait at every time, so many times over: the board is ready for the press.
void KazdeCekani(int kolikrat,
                 const std::function<void(Rysovac&, const Co& stisk, std::uint32_t, int)>& zkus) {
    const auto vyber = [](const char* kroky, int nastroj, const char* radek) {
        return [=](Rysovac& r) { r.Zacni().Rysuj(kroky).Kdo.Nastroj(nastroj).Vyber(radek); };
    };
    const auto tahni = [](Rysovac& r) { r.Hra.Tahni("Pic", {100, 190}, {200, 190}); };
    const auto nic = [](Rysovac&) {};
    const auto stiskni = [](const char* jmeno, int i) {
        return [=](Rysovac& r) { r.Kdo.Stiskni(jmeno, i); };
    };
    const CekaniDesky vse[] = {
        {"line", {20}, [](Rysovac& r) { r.Zacni().Kdo.Nastroj(1); }, stiskni("ComboLabel", 1)},
        {"side", {4}, vyber("", 1, "AB"), tahni},
        {"circle", {50}, vyber("AB", 4, "kružnice k, střed v bodě A"), tahni},
        {"third object", {50}, vyber("AB kA", 4, "kružnice l, střed v bodě B"), tahni},
        {"panel shuts", {700, 1370}, nic, stiskni("Image1", 0)},
        {"check", {5, 200}, nic, stiskni("PicTop", 1)},
        {"new", {50, 120}, nic, stiskni("PicTop", 2)},
        {"new, panel", {50, 700, 1480}, [](Rysovac& r) { r.Zacni(); }, stiskni("PicTop", 2)},
        {"table", {10}, nic, stiskni("PicTop", 3)},
        {"back", {50}, nic, stiskni("PicTop", 4)},
        {"continue", {50, 120}, [](Rysovac& r) { r.Zkontroluj(); }, stiskni("picPokracuj", 0)},
        {"rolls in",
         {250},
         [](Rysovac& r) { r.Hra.Host().NaplanujZa(200, [&r] { r.Kdo.Stiskni("picPokracuj"); }); },
         stiskni("PicTop", 1)},
    };
    for (const CekaniDesky& c : vse) {
        for (const std::uint32_t kdy : c.Kdy) {
            for (int i = 0; i < kolikrat; ++i) {
                SCOPED_TRACE(std::string(c.Jmeno) + ", after " + std::to_string(kdy) + " ms, " +
                             std::to_string(i));
                Rysovac r(1, 1, 2);
                c.Priprav(r);
                zkus(r, c.Stisk, kdy, i);
            }
        }
    }
}

TEST(RamecDesky, CoSeStiskneBehemCekaniNeublizi) {
    KazdeCekani(5, [](Rysovac& r, const Co& stisk, std::uint32_t kdy, int co) {
        bool stisknuto = false;
        r.Hra.Host().NaplanujZa(kdy, [&] {
            stisknuto = true;
            if (r.Hra.JmenoVpredu() != "Troj1Form") return;
            r.Kdo.Stiskni(co == 0 ? "INadpis" : "PicTop", co);
        });
        stisk(r);
        r.Hra.Cekej(3000);
        EXPECT_TRUE(stisknuto);
        // From wherever that led, the way back is open and a new board starts clean.
        if (r.Hra.JmenoVpredu() == "HelpForm") r.Hra.StiskniMisto(300, 200);
        if (r.Hra.JmenoVpredu() == "TabulkaForm") r.Kdo.Stiskni("picKonec");
        r.Hra.Cekej(1000);
        if (r.Hra.JmenoVpredu() == "Troj1Form") r.Kdo.Stiskni("PicTop", 4);
        ASSERT_EQ(r.Hra.JmenoVpredu(), "SetupForm");
        EXPECT_EQ(r.Hra.Najdi("Troj1Form"), nullptr);
        r.Kdo.Stiskni("picPokracuj");
        r.Hra.Cekej(200);
        ASSERT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
        EXPECT_TRUE(r.JePrazdno());
        EXPECT_EQ(r.Pamet().KladneBody + r.Pamet().ZaporneBody, 0);
        r.Zacni().Rysuj("vse");
        EXPECT_EQ(r.Pamet().PocetUtvaru, 3);
    });
}

/// Whatever is double-clicked costs no more than one click there, and does no more where a second
/// press has nothing of its own to do. (Perfect pupils double-click on what they need, everywhere.)
TEST(RamecDesky, DvojklikNestojiVicNezKlik) {
    const Co STAVY[] = {[](Rysovac&) {},
                        [](Rysovac& r) { r.Zacni(); },
                        [](Rysovac& r) { r.Zacni().Kdo.Nastroj(1); },
                        [](Rysovac& r) { r.Zacni().Kdo.Nastroj(1).Vyber("AB"); },
                        [](Rysovac& r) { r.Zacni().Rysuj("AB kA"); },
                        [](Rysovac& r) { r.Zacni().Rysuj("vse"); },
                        [](Rysovac& r) { r.Zacni().Rysuj("AB+ kA kB").Zkontroluj(); }};
    std::set<std::string> zkouseno;
    for (const Co& stav : STAVY) {
        std::size_t ovladacu = 1;
        for (std::size_t i = 0; i < ovladacu; ++i) {
            // Points lost, what is shown; by one click, by two, by two of a hand that shakes.
            std::array<std::pair<int, std::string>, 3> vysledky;
            std::string jmeno;
            for (const int jak : {0, 1, 2}) {
                Rysovac r(1, 1, 2);
                stav(r);
                r.Hra.Cekej(1000);
                const Form& deska = *r.Hra.Vpredu();
                ovladacu = deska.Ovladace().size();
                const Ovladac& o = *deska.Ovladace()[i];
                if (!Zije(o) || !o.ProMys) break;
                jmeno = o.Name + std::to_string(o.Index);
                const Bod roh = r.Hra.Roh(o);
                const Bod kde = o.Name == "SamplePic" ? MistoNaNacrtu("b").Stred()
                                                      : Bod{o.Width / 3, o.Height / 2};
                Obrazovky& okna = r.Hra.Host().Okna();
                for (int n = 0; n <= std::min(jak, 1); ++n) {
                    const int x = roh.X + kde.X + n * (jak - 1) * 4, y = roh.Y + kde.Y;
                    const auto kdy = static_cast<std::uint32_t>(1 + 300 * n);
                    r.Hra.Host().NaplanujZa(kdy, [&okna, x, y] { okna.MysDolu(x, y, LEVE, 0); });
                    r.Hra.Host().NaplanujZa(kdy + 40,
                                            [&okna, x, y] { okna.MysNahoru(x, y, LEVE, 0); });
                }
                r.Hra.Cekej(2500);
                auto& [body, videt] = vysledky[static_cast<std::size_t>(jak)];
                body = r.Pamet().SoucetZapornychBodu;
                videt = r.Hra.JmenoVpredu() + std::to_string(r.Pamet().PocetUtvaru);
                if (videt.starts_with("Troj1Form")) videt += Slovy(r.P());
            }
            zkouseno.insert(jmeno);
            const bool smi = jmeno.starts_with("cmd") || jmeno.starts_with("picSipka") ||
                             jmeno.starts_with("txtVstup") || jmeno == "PicTop2";
            for (const auto& dvakrat : vysledky) {
                EXPECT_LE(dvakrat.first, vysledky[0].first) << jmeno;
                EXPECT_TRUE(smi || dvakrat == vysledky[0])
                    << jmeno << ": " << vysledky[0].second << " <> " << dvakrat.second;
            }
        }
    }
    EXPECT_GT(zkouseno.size(), 20U);
}

/// Unloaded, at the end of the process, or by a fault of something else: what waits is ended, and
/// nothing holds the board.
TEST(RamecDesky, CekaniSkonciSDeskouSProgramemISChybou) {
    enum { ODSTRANENA, KONEC, CHYBA, ZPUSOBU };
    KazdeCekani(ZPUSOBU, [](Rysovac& r, const Co& stisk, std::uint32_t kdy, int jak) {
        HeadlessHost& host = r.Hra.Host();
        const std::weak_ptr<Form> deska = host.Okna().Najdi("Troj1Form");
        std::size_t cekalo = 0;
        host.NaplanujZa(kdy, [&] {
            cekalo = host.Hloubka();
            if (jak == CHYBA) Selhani("chyba");
            if (jak == KONEC) host.Okna().Konec();
            const auto drz = deska.lock();
            if (jak == ODSTRANENA && drz) host.Okna().Unload(*drz);
        });
        bool chyba = false;
        try {
            stisk(r);
            r.Hra.Cekej(3000);
        } catch (const BehovaChyba&) {
            chyba = true;
        }
        EXPECT_EQ(chyba, jak == CHYBA);
        EXPECT_GT(cekalo, 0U) << "nothing waited";
        EXPECT_EQ(host.Hloubka(), 0U);
        EXPECT_FALSE(host.Okna().JeZavreno());
        host.Okna().UnloadVse();
        EXPECT_TRUE(deska.expired());
    });
}

/// What is pressed before there is an example starts nothing.
TEST(RamecDesky, NezSeLosujePrikladKontrolaAniNovyNicNedelaji) {
    for (const std::uint32_t kdy : {10U, 99U, 140U, 1470U}) {
        for (const int horni : {1, 2}) {
            SCOPED_TRACE(kdy);
            Rysovac r(1, 1, 2);
            r.Zacni().Rysuj("AB kolmice");
            r.Hra.NoveZvuky();
            r.Hra.Host().NaplanujZa(kdy, [&] { r.Kdo.Stiskni("PicTop", horni); });
            r.Hra.Host().NaplanujZa(1540, [&] { r.Kdo.Oznac("a"); });
            r.Kdo.Stiskni("PicTop", 2);
            r.Hra.Cekej(2000);
            EXPECT_TRUE(r.JePrazdno());
            // The panel has come out by itself, with a press of its own to be heard.
            EXPECT_EQ(r.Hra.Prvek("Image1").Tag, "1");
            // What is pressed while it slides is not heard.
            EXPECT_EQ(std::ranges::count(r.Hra.NoveZvuky(), "click.wav"), kdy == 140 ? 2 : 3);
            EXPECT_EQ(r.P().Zadani.size(), 3U);
            // The old marks are gone; the one made once the example was there stays.
            EXPECT_TRUE(r.Hra.Prvek("cmd", 1).Enabled);
            r.Kdo.Oznac("a");
            EXPECT_FALSE(r.Hra.Prvek("cmd", 1).Enabled);
            r.Zacni().Rysuj("vse").Zkontroluj();
            EXPECT_EQ(r.Pamet().KladneBody, 10);
        }
    }
    Rysovac r(1, 1, 2);
    r.Zacni().Rysuj("AB");
    r.Hra.Host().NaplanujZa(1470, [&] { r.Kdo.Oznac("a"); });
    r.Hra.Host().NaplanujZa(1480, [&] { r.Kdo.Stiskni("cmd", 1); });
    r.Kdo.Stiskni("PicTop", 2);
    r.Hra.Cekej(2000);
    EXPECT_FALSE(r.Hra.Prvek("Combo").Visible);
    EXPECT_FALSE(r.Hra.Prvek("cmd", 1).Enabled);
    EXPECT_EQ(r.Pamet().KonstrukceZahajena, NE);
}

/// The read-out that goes with the pointer stays on the plane with it: it neither takes its events
/// nor is left behind.
TEST(RamecDesky, UdajUUkazatelePatriJenNaPlochu) {
    Relace hra;
    hra.Start();
    hra.SpustUlohu(20);
    RukaNaDesce ruka(hra);
    DokonaleTecny zak(ruka, 1);
    zak.Oznac();
    ruka.ZasunPanel();
    zak.Nastroj(Nastroj::Stred);
    const Ovladac& udaj = hra.Prvek("Text");
    const Bod plocha = hra.Roh(hra.Prvek("Pic"));
    hra.NajedNaMisto(plocha.X + 100, plocha.Y + 100);
    EXPECT_TRUE(udaj.Visible);
    const int vlevo = udaj.Left;
    hra.NajedNaMisto(plocha.X + 115, plocha.Y + 106);
    EXPECT_TRUE(udaj.Visible);
    EXPECT_EQ(udaj.Left, vlevo + 15);
    hra.NajedNaMisto(5, 470);
    EXPECT_FALSE(udaj.Visible);
}

/// The list of wrong steps cannot be scrolled: ten rows of any length must be seen.
TEST(RamecDesky, SeznamChybSeVejdeCely) {
    Rysovac r;
    PridejChybu(r.Pamet(), katalog::CHYBNE_PRVKY[0]);
    const auto kratky = r.Hra.Host().Okna().Nacti<ChybovyForm>(r.Hra.Pamet());
    EXPECT_TRUE(kratky->Text1.VejdeSe());
    EXPECT_EQ(kratky->Text1.Font.Velikost, 10);
    r.Pamet().PocetChybnychKroku = 0;
    for (int i = 0; i < ChybovyForm::RADKU; ++i)
        PridejChybu(r.Pamet(), i % 2 == 0 ? ChybaKroku(36) : ChybaKroku(127));
    EXPECT_TRUE(r.Hra.Host().Okna().Nacti<ChybovyForm>(r.Hra.Pamet())->Text1.VejdeSe());
}

TEST(RamecDesky, StiskVedleNezrusiVolbuASipkaNepohneTahem) {
    Rysovac r;
    r.Zacni().Kdo.Nastroj(1);
    r.Hra.Host().NaplanujZa(20, [&] { r.Hra.StiskniMisto(5, 470); });
    r.Kdo.Stiskni("ComboLabel", 1);
    EXPECT_TRUE(r.Hra.Prvek("txtVstup").Visible);
    r.Hra.Host().NaplanujZa(4, [&] { r.Kdo.Stiskni("picSipka", 1); });
    r.Hra.Tahni("Pic", {100, 190}, {200, 190});
    r.Hra.Cekej(100);
    EXPECT_EQ(r.Pamet().Utvary[1].X1, 100);
    EXPECT_EQ(r.Pamet().PosunX, 0);
}

// ---- The series ------------------------------------------------------------------------------

void Pokracuj(Rysovac& r) {
    r.Kdo.Stiskni("picPokracuj");
    r.Hra.Cekej(2000);
}

TEST(RamecDesky, SmiseneTriPrikladyDajiSoucetZaznamALog) {
    Rysovac r(1, 1, 3);
    Pokracuj(r.Zacni().Rysuj("vse").Zkontroluj());
    EXPECT_EQ(r.Hra.JmenoVpredu(), "Troj1Form");
    r.Zacni().Rysuj("AB+ kA kB");
    r.Kdo.Stiskni("PicTop", 2);  // dropped without a mark in the totals
    r.Hra.Cekej(2000);
    Pokracuj(r.Zacni().Rysuj("AB+ kA kB").Zkontroluj());
    r.Zacni().Rysuj("AB").Zkontroluj();
    EXPECT_EQ(r.Hra.CtiSoubor("01.res"), "");
    Pokracuj(r);
    EXPECT_EQ(r.Hra.JmenoVpredu(), "TabulkaForm");
    EXPECT_EQ(r.Hra.Prvek<Label>("LSpravne", 1).Caption, "19");
    EXPECT_EQ(r.Hra.CtiSoubor("01.res"), "\x8E\xE1k|19|11|3\r\n");
    EXPECT_EQ(std::ranges::count(r.Hra.CtiSoubor("Vysledky.dat"), '\n'), 4);
    r.Kdo.Stiskni("picKonec");
    EXPECT_EQ(r.Hra.JmenoVpredu(), "SetupForm");
}

/// A result that cannot be written ends nothing: it is told over the table, stands in it, and goes
/// with the next one.
TEST(RamecDesky, VysledekKteryNejdeZapsatHruNeukonci) {
    Rysovac r;
    const auto denik = r.Hra.DataDir() / "Vysledky.dat", stranou = r.Hra.DataDir() / "stranou";
    const auto hraj = [&r] {
        Pokracuj(r.Zacni().Rysuj("vse").Zkontroluj());
        EXPECT_EQ(r.Hra.JmenoVpredu(), "TabulkaForm");
        EXPECT_EQ(r.Pamet().AktivniForm.lock().get(), r.Hra.Vpredu());
        EXPECT_EQ(r.Hra.Prvek<Label>("LSpravne", 1).Caption, "10");
        ASSERT_EQ(r.Hra.Host().Zpravy.size(), 1U);
    };
    std::filesystem::rename(denik, stranou);
    hraj();
    EXPECT_NE(r.Hra.Host().Zpravy[0].Text.find(denik.string() + " (neexistuje)"),
              std::string::npos);
    EXPECT_EQ(r.Hra.CtiSoubor("01.res"), "");
    std::filesystem::rename(stranou, denik);
    r.Kdo.Stiskni("picKonec");
    r.Hra.Cekej(1000);
    r.Hra.Stiskni("picPokracuj");
    r.Hra.Cekej(200);
    hraj();
    EXPECT_EQ(r.Hra.CtiSoubor("01.res"), "\x8E\xE1k|10|0|1\r\n\x8E\xE1k|10|0|1\r\n");
    EXPECT_EQ(std::ranges::count(r.Hra.CtiSoubor("Vysledky.dat"), '\n'), 8);
}

}  // namespace
}  // namespace rysovna::testy
