// An example on paper: pages of every board, their text read back; a place that cannot be written.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "hrac/RukaNaDesce.h"
#include "podpora/PravaUctu.h"
#include "rules/Postup.h"
#include "rules/Ulohy.h"
#include "screens/PapirUlozeni.h"
#include "screens/Start.h"
#include "zak/Sestroj.h"

namespace rysovna::hrac {
namespace {

namespace fs = std::filesystem;

/// The text of a document as another program reads it, without blanks.
std::string CtiPdf(const fs::path& soubor) {
    const std::string povel = "pdftotext -enc UTF-8 -raw '" + soubor.string() + "' -";
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> roura(popen(povel.c_str(), "r"), pclose);
    std::string text;
    for (int c = 0; roura != nullptr && (c = std::fgetc(roura.get())) != EOF;)
        text += static_cast<char>(c);
    return text;
}

std::string BezMezer(const std::string& text) {
    std::string bez;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.compare(i, 3, "\u2009") == 0) {
            i += 2;
        } else if (std::isspace(static_cast<unsigned char>(text[i])) == 0) {
            bez += text[i];
        }
    }
    return bez;
}

class PapirDesky : public testing::TestWithParam<int> {};

TEST_P(PapirDesky, TextStranekPredKontrolouAPoNi) {
    const std::string JMENO = "Žofie Řeřichová-Ďáblíková";
    Relace hra(7);
    hra.Host().Cas = {2026, 11, 22, 9, 5};
    hra.Start();
    hra.SpustUlohu(GetParam(), JMENO);
    hra.Klavesa("p", CTRL);
    RukaNaDesce ruka(hra);
    Sestroj(ruka, 3);
    hra.Klavesa("p", CTRL);
    ruka.Zkontroluj();
    hra.Klavesa("p", CTRL);

    const std::vector<fs::path>& dokumenty = hra.Host().Dokumenty;
    ASSERT_EQ(dokumenty.size(), 3U);
    for (std::size_t i = 0; i < dokumenty.size(); ++i) {
        EXPECT_EQ(dokumenty[i].filename().string(),
                  "Rysovna " + JMENO + " úloha " + std::to_string(GetParam()) + " 2026-11-22 " +
                      std::to_string(i + 1) + ".pdf");
        const std::string text = BezMezer(CtiPdf(dokumenty[i]));
        const auto je = [&](const std::string& co) {
            return text.find(BezMezer(co)) != std::string::npos;
        };
        const Panel panel = ruka.Hrany().UkazPanel();
        EXPECT_TRUE(je(JMENO) && je(std::string(RODINY[NajdiUlohu(GetParam())->Rodina]) + ":") &&
                    je(panel.Uvod) && je("22. 11. 2026 v 9.05"))
            << text;
        int poradi = 0;
        const std::vector<KrokPostupu> kroky = SestavPostup(ruka.Hrany());
        for (const KrokPostupu& k : kroky) {
            // Before the first step only what is given stands there.
            const bool stoji = i > 0 || k.Vztah == "zadáno";
            EXPECT_EQ(je(TextKroku(++poradi, k)), stoji) << TextKroku(poradi, k) << "\n" << text;
        }
        EXPECT_EQ(je("Počet bodů: 10 z 10. Bez chyby."), i == 2) << text;
    }
    EXPECT_EQ(hra.Prvek<Label>("lblRada", 1).Caption,
              "Uloženo: " + dokumenty[2].filename().string());
}

INSTANTIATE_TEST_SUITE_P(Desky, PapirDesky, testing::Values(1, 5, 9, 10, 11, 13, 17, 20));

TEST(Papir, ZPrehravaniJsouTytezStranky) {
    Relace hra(7);
    hra.Host().Cas = {2026, 11, 22, 9, 5};
    hra.Start();
    hra.SpustUlohu(11, "Žofie");
    RukaNaDesce ruka(hra);
    Sestroj(ruka, 3);
    ruka.Zkontroluj();
    hra.Klavesa("p", CTRL);
    hra.Stiskni("picPokracuj");
    hra.Cekej(2000);

    Relace divak;
    const fs::path pokus = fs::directory_iterator(hra.DataDir() / "Pokusy")->path();
    ASSERT_EQ(ZacniPrehravani(divak.Pamet(), pokus), "");
    divak.Cekej(100);
    divak.Klavesa("End");
    divak.Klavesa("p", CTRL);
    ASSERT_EQ(divak.Host().Dokumenty.size(), 1U);
    const std::string text = CtiPdf(divak.Host().Dokumenty[0]);
    EXPECT_NE(text.find("10 z 10"), std::string::npos);
    EXPECT_EQ(text, CtiPdf(hra.Host().Dokumenty[0]));
    EXPECT_TRUE(divak.Prvek<Label>("lblKrok").Caption.starts_with("Uloženo: "));
}

/// Names as files of others hold them.
TEST(Papir, JmenoSmiBytJakekoli) {
    Relace hra;  // fonts
    hra.Start();
    const Surface plocha(100, 100);
    for (const std::string jmeno : {"Petr \xFF Nov\xE1k", "\x01\n(%)\\", ""}) {
        Papir papir;
        papir.Jmeno = jmeno;
        papir.CisloUlohy = 1;
        const std::string pdf = SlozPapir(papir, plocha, plocha);
        EXPECT_TRUE(pdf.starts_with("%PDF") && pdf.ends_with("%%EOF\n")) << jmeno;
    }
}

TEST(Papir, CoNelzeZapsatSeRekneANicNezustane) {
    Relace hra;
    hra.Start();
    hra.SpustUlohu(1);
    const fs::path slozka = hra.Host().SlozkaDokumentu();
    const auto receno = [&] { return hra.Prvek<Label>("lblRada", 1).Caption; };
    {
        const testy::PlnyDisk plny(1000);
        hra.Klavesa("p", CTRL);
    }
    EXPECT_EQ(receno(),
              "PDF se nepodařilo uložit (na disku není místo). Konstrukce zůstává, jak je.");
    EXPECT_TRUE(fs::is_empty(slozka));
    // What stands under the name is another's.
    std::ofstream(slozka / "Rysovna 1.pdf") << "cizí";
    EXPECT_EQ(UlozDokument(hra.Host().Disk(), slozka, "Rysovna", "%PDF"), slozka / "Rysovna 2.pdf");
    EXPECT_EQ(fs::file_size(slozka / "Rysovna 1.pdf"), std::string("cizí").size());

    fs::remove_all(slozka);
    std::ofstream(slozka) << "soubor, ne složka";
    hra.Klavesa("p", CTRL);
    EXPECT_TRUE(hra.Host().Dokumenty.empty());
    EXPECT_TRUE(hra.Host().Zpravy.empty());
    const std::string nejde = receno();
    EXPECT_TRUE(nejde.starts_with("PDF se nepodařilo uložit (")) << nejde;
    // The guide goes on.
    RukaNaDesce ruka(hra);
    Sestroj(ruka, 1);
    EXPECT_NE(receno(), nejde);
    ruka.Zkontroluj();
    EXPECT_EQ(hra.Pamet().KladneBody, 10);
}

}  // namespace
}  // namespace rysovna::hrac
