#include "Prevod.h"

#include <algorithm>
#include <cctype>

#include "CeleSoubory.h"
#include "Pole.h"
#include "base/Chyba.h"
#include "base/Text.h"
#include "rules/Ulohy.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/RadkySouboru.h"

namespace rysovna::kodovani {
namespace {

constexpr std::size_t DELKA_CISLA = 3;
constexpr int NEJVETSI_KROK = 999;
constexpr char KONCOVY_ZNAK = '|';

std::string Malymi(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

int CisloUlohy(const std::string& jmeno) {
    const bool dveCislice = jmeno.size() == 2 && std::ranges::all_of(jmeno, [](unsigned char c) {
                                return std::isdigit(c) != 0;
                            });
    const int cislo = dveCislice ? std::stoi(jmeno) : 0;
    return NajdiUlohu(cislo) == nullptr ? 0 : cislo;
}

bool MaKodovaneRadky(const Soubor& soubor) {
    return soubor.obsah == Obsah::Uloha || soubor.obsah == Obsah::Chyby;
}

}  // namespace

Soubor Rozpoznej(const std::filesystem::path& cesta) {
    const std::string jmeno = Malymi(cesta.stem().string());
    const std::string pripona = Malymi(cesta.extension().string());
    Soubor soubor{.Uloha = CisloUlohy(jmeno), .Citelny = pripona == ".txt"};
    if (pripona == ".res") {
        if (soubor.Uloha != 0) soubor.obsah = Obsah::Tabulka;
    } else if (soubor.Citelny || pripona == ".dat") {
        if (soubor.Uloha != 0) soubor.obsah = Obsah::Uloha;
        if (jmeno == "errors") soubor.obsah = Obsah::Chyby;
        if (jmeno == "znamky") soubor.obsah = Obsah::Znamky;
    }
    return soubor;
}

std::vector<Radek> CtiCitelny(const std::filesystem::path& cesta) {
    std::vector<Radek> radky;
    int cislo = 0;
    for (std::string& text : NaRadky(CtiSoubor(cesta))) {
        if (++cislo == 1 && text.starts_with(ZNACKA_UTF8)) text.erase(0, ZNACKA_UTF8.size());
        if (text.find_first_not_of(" \t") == std::string::npos || text.front() == ';') continue;
        radky.push_back({.Cislo = cislo, .Text = std::move(text)});
    }
    return radky;
}

std::optional<int> CisloVety(std::string_view citelna) {
    const auto cislo = CisloZCislic(citelna.substr(0, citelna.find(' ')));
    return cislo && *cislo >= 1 && *cislo <= NEJVETSI_KROK ? cislo : std::nullopt;
}

std::string CitelnaVeta(std::string_view ulozena) {
    std::string cislo(ulozena.substr(0, DELKA_CISLA));
    cislo.erase(0, std::min(cislo.find_first_not_of(" 0"), cislo.size()));
    std::string veta;
    if (ulozena.size() > DELKA_CISLA + 2) {
        veta = ulozena.substr(DELKA_CISLA + 1, ulozena.size() - DELKA_CISLA - 2);
    }
    return (cislo.empty() ? "0" : cislo) + " " + veta;
}

std::string UlozenaVeta(std::string_view citelna) {
    const std::size_t mezera = std::min(citelna.find(' '), citelna.size());
    std::string cislo(citelna.substr(0, mezera));
    if (cislo.size() < DELKA_CISLA) cislo.insert(0, DELKA_CISLA - cislo.size(), '0');
    return cislo + " " + BezUvodnichMezer(citelna.substr(mezera)) + KONCOVY_ZNAK;
}

std::string Zakoduj(const std::filesystem::path& zdroj) {
    const Soubor soubor = Rozpoznej(zdroj);
    if (soubor.obsah == Obsah::Neznamy || !soubor.Citelny) {
        throw BehovaChyba("Není to čitelný soubor úlohy, vět ani známek", zdroj.string());
    }
    std::string ulozeny;
    for (const Radek& radek : CtiCitelny(zdroj)) {
        if (const auto znak = ZnakMimoStranku(radek.Text)) {
            throw BehovaChyba("Znak č. " + std::to_string(*znak + 1) + " nejde uložit",
                              Misto(zdroj, radek.Cislo));
        }
        const bool veta = soubor.obsah == Obsah::Chyby;
        if (veta && !CisloVety(radek.Text)) {
            throw BehovaChyba("Řádek nezačíná číslem kroku 1 až 999", Misto(zdroj, radek.Cislo));
        }
        const std::string text = Do1250(veta ? UlozenaVeta(radek.Text) : radek.Text);
        ulozeny += MaKodovaneRadky(soubor) ? ZakodujRadek(text) : text;
        ulozeny += "\r\n";
    }
    return ulozeny;
}

std::string Dekoduj(const std::filesystem::path& zdroj) {
    const Soubor soubor = Rozpoznej(zdroj);
    if (soubor.obsah == Obsah::Neznamy || soubor.Citelny) {
        throw BehovaChyba("Není to uložený soubor úlohy, vět, známek ani výsledků", zdroj.string());
    }
    std::string citelny;
    int cislo = 0;
    for (const std::string& ulozeny : NaRadky(CtiSoubor(zdroj))) {
        const std::string text =
            Z1250(MaKodovaneRadky(soubor) ? DekodujRadek(ulozeny) : ulozeny, Misto(zdroj, ++cislo));
        citelny += soubor.obsah == Obsah::Chyby ? CitelnaVeta(text) : text;
        citelny += '\n';
    }
    return citelny;
}

}  // namespace rysovna::kodovani
