#include "shell/Soubory.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <utility>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "base/Text.h"
#include "platform/Host.h"
#include "shell/Kodovani.h"
#include "shell/MapaPoli.h"
#include "shell/Misc.h"

namespace rysovna {
namespace {

constexpr std::string_view KONEC_RADKU = "\r\n";

/// Splits a line at a separator into N fields; what stands behind the last is dropped, those that
/// the line does not reach are empty. Lines that were cut short are read as they are here, in the
/// task files too: the data tool is what reports them.
template <std::size_t N>
std::array<std::string_view, N> Rozdel(std::string_view radek, char oddelovac) {
    std::array<std::string_view, N> pole{};
    for (std::string_view& p : pole) {
        const std::size_t konec = radek.find(oddelovac);
        p = radek.substr(0, konec);
        if (konec == std::string_view::npos) break;
        radek.remove_prefix(konec + 1);
    }
    return pole;
}

std::uint8_t BajtZnamky(std::string_view text, const std::string& misto) {
    const double cislo = Cislo(text);
    // Far beyond a byte, so that the rounding itself cannot fault without a place in the file.
    constexpr double JISTE_MIMO = 1000;
    const int cele = std::abs(cislo) < JISTE_MIMO ? Zaokrouhli(cislo) : -1;
    if (cele < 0 || cele > 255) throw BehovaChyba("Číslo mimo rozsah 0 až 255", misto);
    return static_cast<std::uint8_t>(cele);
}

constexpr int DELKA_CISLA = 3;      // digits of a wrong step's number
constexpr int ZACATEK_VETY = 4;     // a separator stands between
constexpr int NEJKRATSI_RADEK = 5;  // number, separator, and the last character, which is dropped

/// What the order of a score table compares: less stands before.
std::array<double, 3> Klic(const ZaznamTabulky& z) {
    return {std::trunc(Cislo(z.Znamka)), -std::trunc(Cislo(z.Spravne)),
            std::trunc(Cislo(z.Spatne))};
}

// Widths of the log's values, characters. What is longer stays whole.
constexpr int SIRKA_JMENA = 35;
constexpr int SIRKA_DATA = 10;
constexpr int SIRKA_HRY = 20;
constexpr int SIRKA_TYPU = 30;
constexpr int SIRKA_CISLA = 6;
constexpr std::size_t DELKA_CARY = 75;

}  // namespace

void NactiZnamky(std::string_view soubor) {
    const std::filesystem::path cesta = NativniCesta(soubor);
    ZnamkyTab.Smaz();
    int i = 0;
    for (const std::string& radek : CtiRadky(cesta)) {
        const std::string misto = Misto(cesta, ++i);
        if (i > decltype(ZnamkyTab)::POSLEDNI) {
            throw BehovaChyba("Tabulka známek má více než 5 řádků", misto);
        }
        const std::string text = Z1250(radek, misto);
        const auto pole = Rozdel<3>(text, '|');
        std::ranges::transform(pole, ZnamkyTab[i].begin(),
                               [&](std::string_view p) { return BajtZnamky(p, misto); });
    }
}

std::string UrciZnamku(int kladne, int celkem) {
    const double citatel = Bajt(kladne);
    const double jmenovatel = Bajt(celkem);
    if (jmenovatel == 0) Selhani("Dělení nulou");
    const double procenta = citatel / jmenovatel * 100;
    std::string znamka;
    for (int i = 1; i <= decltype(ZnamkyTab)::POSLEDNI; ++i) {
        const auto& [dolni, horni, stupen] = ZnamkyTab[i];
        if (!(procenta > horni) && !(procenta < dolni)) znamka = TextBezMezery(stupen);
    }
    return znamka;
}

void NactiPriklady(std::string_view soubor, Deska deska) {
    const std::span<const Slot> mapa = PoleDesky(deska);
    constexpr int RADKU = decltype(Priklady)::POSLEDNI;
    for (int i = 1; i <= RADKU; ++i) {
        for (const Slot& slot : mapa) slot.V(Priklady[i]).clear();
        if (deska == Deska::Troj1Form) {
            for (const int k : {1, 2, 3}) Priklady[i].Kroky[k].Hotovo = 0;
        }
    }
    PocetPrikladu = 0;

    const std::filesystem::path cesta = NativniCesta(soubor);
    for (const std::string& ulozeny : CtiRadky(cesta)) {
        const std::string misto = Misto(cesta, PocetPrikladu + 1);
        if (PocetPrikladu == RADKU) {
            throw BehovaChyba("Soubor úlohy má více než 100 řádků", misto);
        }
        Priklad& priklad = Priklady[++PocetPrikladu];
        const std::string text = Z1250(DekodujRadek(ulozeny), misto);
        std::string_view zbytek = text;
        for (const Slot& slot : mapa) {
            const std::size_t konec = zbytek.find('#');
            slot.V(priklad) = zbytek.substr(0, konec);
            if (konec == std::string_view::npos) break;
            zbytek.remove_prefix(konec + 1);
        }
    }
}

void PridejChybu(int cislo, std::string_view text, int body) {
    const std::filesystem::path cesta = NativniCesta(CestaHD + "Errors.dat");
    int i = 0;
    for (const std::string& ulozeny : CtiRadky(cesta)) {
        ++i;
        const std::string radek = DekodujRadek(ulozeny);
        if (Cislo(std::string_view(radek).substr(0, DELKA_CISLA)) != cislo) continue;
        const std::string misto = Misto(cesta, i);
        if (radek.size() < NEJKRATSI_RADEK) throw BehovaChyba("Příliš krátký řádek", misto);
        SoucetZapornychBodu += body;
        ++PocetChybnychKroku;
        ChybnyKrok& krok = ChybneKroky[PocetChybnychKroku];
        krok.Cislo = TextBezMezery(cislo);
        krok.Text = Z1250(radek.substr(ZACATEK_VETY, radek.size() - NEJKRATSI_RADEK), misto);
        krok.Text += text;
        krok.Vyhrazeno = 0;
        krok.Body = static_cast<std::int16_t>(body);
    }
}

std::vector<ZaznamTabulky> CtiTabulku(std::string_view soubor) {
    const std::filesystem::path cesta = NativniCesta(soubor);
    std::vector<ZaznamTabulky> zaznamy;
    int i = 0;
    for (const std::string& radek : CtiRadky(cesta)) {
        const std::string text = Z1250(radek, Misto(cesta, ++i));
        const auto pole = Rozdel<4>(text, '|');
        zaznamy.push_back({.Jmeno = std::string(pole[0]),
                           .Spravne = std::string(pole[1]),
                           .Spatne = std::string(pole[2]),
                           .Znamka = std::string(pole[3])});
    }
    return zaznamy;
}

void PisTabulku(std::string_view soubor, const std::vector<ZaznamTabulky>& zaznamy) {
    std::string obsah;
    for (const ZaznamTabulky& z : zaznamy) {
        obsah += z.Jmeno + "|" + z.Spravne + "|" + z.Spatne + "|" + z.Znamka;
        obsah += KONEC_RADKU;
    }
    PrepisSoubor(NativniCesta(soubor), Do1250(obsah));
}

bool JeLepsi(const ZaznamTabulky& a, const ZaznamTabulky& b) {
    return Klic(a) < Klic(b);
}

void VlozZaznam(std::vector<ZaznamTabulky>& zaznamy, ZaznamTabulky novy) {
    // A file that somebody edited may be out of order; then the whole list is sorted.
    if (!std::ranges::is_sorted(zaznamy, JeLepsi)) std::ranges::stable_sort(zaznamy, JeLepsi);
    const auto misto = std::ranges::upper_bound(zaznamy, novy, JeLepsi);
    zaznamy.insert(misto, std::move(novy));
}

void ZapisVysledek(const std::string& jmeno, const std::string& hra, const std::string& typ,
                   const std::string& kladne, const std::string& zaporne,
                   const std::string& znamka) {
    const DatumACas ted = Stroj().Nyni();
    const std::string datum =
        TextBezMezery(ted.Den) + "." + TextBezMezery(ted.Mesic) + "." + TextBezMezery(ted.Rok);
    const std::string cas = DveCislice(ted.Hodina) + ":" + DveCislice(ted.Minuta);
    const std::string radky[]{
        "Jméno: " + Dopln(jmeno, SIRKA_JMENA) + "   Datum: " + Dopln(datum, SIRKA_DATA) +
            "   Čas: " + cas,
        "Hra: " + Dopln(hra, SIRKA_HRY) + " Typ úlohy: " + Dopln(typ, SIRKA_TYPU),
        "Počet příkladů:  " + Dopln(TextBezMezery(PocetPrikladuSerie), SIRKA_CISLA) +
            "   Klad. body: " + Dopln(kladne, SIRKA_CISLA) +
            " Záp. body: " + Dopln(zaporne, SIRKA_CISLA) + "   Známka:  " + znamka,
        std::string(DELKA_CARY, '='),
    };
    std::string zapis;
    for (const std::string& radek : radky) {
        zapis += radek;
        zapis += KONEC_RADKU;
    }
    PripisSoubor(NativniCesta(CestaHD + "Vysledky.dat"), Do1250(zapis));
}

}  // namespace rysovna
