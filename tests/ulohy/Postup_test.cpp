// The steps in words: of whatever the perfect pupil constructs, on every board.

#include "rules/Postup.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "base/Cisla.h"
#include "podpora/RukaUlohy.h"
#include "podpora/ZapisPostupu.h"
#include "rules/Veliciny.h"
#include "zak/Sestroj.h"

namespace rysovna::testy {
namespace {

/// Plays any task's lines one by one.
class Zapisovatel final : public RukaSerie {
public:
    explicit Zapisovatel(int uloha) : RukaSerie(uloha) {
        for (int i = 1; i <= Pamet().PocetPrikladu; ++i) priklady_.push_back(Pamet().Priklady[i]);
        Pamet().PocetPrikladu = 1;
        ZacniSerii([] { return 0U; });
    }

    [[nodiscard]] std::size_t Radku() const { return priklady_.size(); }
    Zapisovatel& Sestroj(std::size_t radek) {
        Pamet().Priklady[1] = priklady_[radek];
        Pamet().Generator.Zasej(static_cast<std::uint32_t>(radek) + 1);
        dialog_->NovyPriklad();
        dialog_->NoveZadani();
        hrac::Sestroj(*this, static_cast<std::uint32_t>(radek));
        return *this;
    }
    /// Line by line.
    [[nodiscard]] std::string Text() const {
        std::string text;
        int poradi = 0;
        for (const KrokPostupu& k : SestavPostup(Hrany())) text += TextKroku(++poradi, k) + "\n";
        return text;
    }

private:
    std::vector<Priklad> priklady_;
};

/// The names in a relation: what stands between its signs and is no word and no number.
std::vector<std::string> Jmena(const std::string& vztah) {
    static const std::set<std::string> SLOVA = {"je",     "střed",  "osa", "úsečky",
                                                "obraz",  "bodu",   "v",   "podle",
                                                "středu", "zadáno", "cm",  "souměrnosti"};
    std::vector<std::string> jmena;
    std::istringstream slova(vztah);
    for (std::string slovo; slova >> slovo;) {
        if (SLOVA.contains(slovo)) continue;
        std::string jmeno;
        for (const char c : slovo + " ") {
            const bool patri = std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '\'';
            if (patri) {
                jmeno += c;
                continue;
            }
            const bool slovem = jmeno.empty() || SLOVA.contains(jmeno);
            if (!slovem && std::isdigit(static_cast<unsigned char>(jmeno[0])) == 0)
                jmena.push_back(jmeno);
            jmeno.clear();
        }
    }
    return jmena;
}

/// Whether the name is known, or is put together of points that are ("BAX", "AB1").
bool Zname(const std::string& jmeno, const std::set<std::string>& zname) {
    if (zname.contains(jmeno)) return true;
    for (std::size_t n = 1; n < jmeno.size(); ++n) {
        if (zname.contains(jmeno.substr(0, n)) && Zname(jmeno.substr(n), zname)) return true;
    }
    return false;
}

class PostupUlohy : public testing::TestWithParam<int> {};

TEST_P(PostupUlohy, KazdyUtvarJednouJmenaZnamaHodnotyZadane) {
    Zapisovatel z(GetParam());
    for (std::size_t i = 0; i < z.Radku() && !HasFailure(); ++i) {
        const std::vector<KrokPostupu> kroky = SestavPostup(z.Sestroj(i).Hrany());
        const std::string text = z.Text();
        SCOPED_TRACE("row " + std::to_string(i + 1) + ":\n" + text);
        EXPECT_TRUE(ZapiseSe(z.Hrany()));
        std::set<std::string> zname;
        for (const KrokPostupu& k : kroky) {
            zname.insert(k.Jmena.begin(), k.Jmena.end());
            for (const std::string& j : Jmena(k.Vztah)) EXPECT_TRUE(Zname(j, zname)) << j;
        }
        // Of a diagonal the half may have been typed.
        for (const hrac::Zadano& d : z.Zadani()) {
            if (d.Velicina.find("||") != std::string::npos) continue;
            const std::string jednotka = JeUhel(d.Velicina) ? "°" : " cm";
            const auto je = [&](double h) {
                return text.find(" " + FormatCesky(h) + jednotka) != std::string::npos;
            };
            EXPECT_TRUE(je(d.Hodnota) || je(d.Hodnota / 2.0)) << d.Velicina;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Ulohy, PostupUlohy, testing::Range(1, 21));

TEST(Postup, ZnamePostupy) {
    const struct {
        int Uloha;
        bool Posledni;  ///< line of the file; else the first
        const char* Kroky;
    } ZNAME[] = {
        {2, true,
         "1. BC; |BC| = 28 cm\n2. k; k(C; 16 cm)\n3. ↦CY; |∢BCY| = 49°\n"
         "4. A; A ∈ k ∩ ↦CY\n5. △ABC\n"},
        {5, true,
         "1. AB; |AB| = 21 cm\n2. k; k(A; 16 cm)\n3. Sc; Sc je střed úsečky AB\n"
         "4. l; l(Sc; 23 cm)\n5. C; C ∈ k ∩ l\n6. △ABC\n"},
        {7, false,
         "1. BC; |BC| = 26 cm\n2. k; k(C; 18 cm)\n3. q; q ∥ BC, |q, BC| = 16 cm\n"
         "4. A; A ∈ k ∩ q\n5. △ABC\n"},
        {10, true,
         "1. △BSC; |BS| = 7 cm, |SC| = 5 cm, |∢BSC| = 72°\n2. S; S je střed souměrnosti\n"
         "3. D; D je obraz bodu B v souměrnosti podle středu S\n"
         "4. A; A je obraz bodu C v souměrnosti podle středu S\n5. rovnoběžník ABCD\n"},
        {11, false,
         "1. △ABC; |AB| = 15 cm, |BC| = 12 cm, |∢ABC| = 141°\n2. t; t ∥ AB, C ∈ t\n"
         "3. l; l(A; 18 cm)\n4. D, D'; D ∈ t ∩ l, D' ∈ t ∩ l\n5. lichoběžníky ABCD, ABCD'\n"},
        {17, false,
         "1. k1, k2, S, A; zadáno\n2. ↔AS\n3. B1; B1 ∈ ↔AS ∩ k2\n4. B2; B2 ∈ ↔AS ∩ k2\n"
         "5. S1; S1 je střed úsečky AB1\n6. S2; S2 je střed úsečky AB2\n7. l1; l1(S1; |AS1|)\n"
         "8. l2; l2(S2; |AS2|)\n"},
        {20, false,
         "1. S, SA, k; zadáno\n2. B; B je střed úsečky SA\n3. l; l(B; |SB|)\n4. T1; T1 ∈ l ∩ k\n"
         "5. T2; T2 ∈ l ∩ k\n6. t1; t1 = ↔AT1\n7. t2; t2 = ↔AT2\n"},
    };
    for (const auto& z : ZNAME) {
        Zapisovatel zapisovatel(z.Uloha);
        EXPECT_EQ(zapisovatel.Sestroj(z.Posledni ? zapisovatel.Radku() - 1 : 0).Text(), z.Kroky);
    }
}

}  // namespace
}  // namespace rysovna::testy
