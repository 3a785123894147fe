#include "Predlohy.h"

#include <fstream>
#include <set>
#include <sstream>
#include <utility>

#include "base/Chyba.h"

namespace rysovna::obrazky {

namespace {

/// One group of the list: what it makes, and its table.
struct Skupina {
    std::string Kde;                   ///< file and line of its beginning
    Hodnoty Klice;                     ///< soubor, predloha, rozmer, klic, stavy
    Hodnoty Stale;                     ///< values of placeholders, the same in all rows
    std::vector<std::string> Sloupce;  ///< names of the columns
    std::vector<std::vector<std::string>> Radky;
};

std::vector<std::string> Rozdel(const std::string& text, char oddelovac) {
    std::vector<std::string> casti;
    std::stringstream proud(text);
    std::string cast;
    while (std::getline(proud, cast, oddelovac)) casti.push_back(Orez(cast));
    return casti;
}

bool JeVelke(const std::string& klic) {
    return !klic.empty() && klic[0] >= 'A' && klic[0] <= 'Z';
}

/// A line "key = value" taken apart.
std::pair<std::string, std::string> KlicAHodnota(const std::string& text, const std::string& kde) {
    const auto rovna = text.find('=');
    if (rovna == std::string::npos) throw BehovaChyba("Chybí rovnítko", kde);
    return {Orez(text.substr(0, rovna)), Orez(text.substr(rovna + 1))};
}

bool JeRadek(const std::string& text) {
    return !text.empty() && text[0] != '#';
}

std::string Misto(const std::filesystem::path& soubor, int cislo) {
    return soubor.filename().string() + ":" + std::to_string(cislo);
}

Hodnoty NactiBarvy(const std::filesystem::path& soubor) {
    Hodnoty barvy;
    std::stringstream proud(NactiSoubor(soubor));
    std::string radek;
    for (int cislo = 1; std::getline(proud, radek); ++cislo) {
        const std::string text = Orez(radek);
        if (!JeRadek(text)) continue;
        const std::string kde = Misto(soubor, cislo);
        const auto [klic, hodnota] = KlicAHodnota(text, kde);
        if (!JeVelke(klic)) throw BehovaChyba("Neznámý klíč " + klic, kde);
        barvy[klic] = hodnota;
    }
    return barvy;
}

std::vector<Skupina> NactiSkupiny(const std::filesystem::path& soubor) {
    const std::set<std::string> znameKlice = {"soubor", "predloha", "rozmer", "klic", "stavy"};
    std::vector<Skupina> skupiny;
    std::stringstream proud(NactiSoubor(soubor));
    std::string radek;
    bool vTabulce = false;
    for (int cislo = 1; std::getline(proud, radek); ++cislo) {
        const std::string kde = Misto(soubor, cislo);
        const std::string text = Orez(radek);
        if (!JeRadek(text)) continue;
        if (text[0] == '[') {
            skupiny.push_back({kde, {}, {}, {}, {}});
            vTabulce = false;
            continue;
        }
        if (skupiny.empty()) throw BehovaChyba("Řádek před první skupinou", kde);
        Skupina& s = skupiny.back();
        if (vTabulce) {
            s.Radky.push_back(Rozdel(text, '|'));
            if (s.Radky.back().size() != s.Sloupce.size())
                throw BehovaChyba("Řádek má jiný počet polí než záhlaví", kde);
            continue;
        }
        const auto [klic, hodnota] = KlicAHodnota(text, kde);
        if (klic == "radky") {
            s.Sloupce = Rozdel(hodnota, '|');
            vTabulce = true;
        } else if (JeVelke(klic)) {
            s.Stale[klic] = hodnota;
        } else if (znameKlice.count(klic) != 0) {
            s.Klice[klic] = hodnota;
        } else {
            throw BehovaChyba("Neznámý klíč " + klic, kde);
        }
    }
    return skupiny;
}

const std::string& Klic(const Skupina& s, const std::string& jmeno) {
    const auto i = s.Klice.find(jmeno);
    if (i == s.Klice.end()) throw BehovaChyba("Skupině chybí klíč " + jmeno, s.Kde);
    return i->second;
}

Obrazek VytvorObrazek(const Skupina& s, const Hodnoty& hodnoty, const std::filesystem::path& svg) {
    Obrazek o;
    o.Soubor = Dopln(Klic(s, "soubor"), hodnoty, svg, s.Kde);
    std::stringstream rozmer(Dopln(Klic(s, "rozmer"), hodnoty, svg, o.Soubor));
    if (!(rozmer >> o.Sirka >> o.Vyska) || o.Sirka < 1 || o.Vyska < 1)
        throw BehovaChyba("Špatný rozměr", o.Soubor);
    o.Klic = s.Klice.count("klic") != 0 && s.Klice.at("klic") == "ano";
    Hodnoty uplne = hodnoty;
    uplne["SIRKA"] = std::to_string(o.Sirka);
    uplne["VYSKA"] = std::to_string(o.Vyska);
    o.Svg = Dopln("{{>" + Klic(s, "predloha") + "}}", uplne, svg, o.Soubor);
    return o;
}

}  // namespace

std::string Orez(const std::string& text) {
    const auto zacatek = text.find_first_not_of(" \t\r\n");
    if (zacatek == std::string::npos) return {};
    return text.substr(zacatek, text.find_last_not_of(" \t\r\n") - zacatek + 1);
}

std::string NactiSoubor(const std::filesystem::path& soubor) {
    std::ifstream vstup(soubor, std::ios::binary);
    if (!vstup) throw BehovaChyba("Nelze číst soubor", soubor.string());
    std::stringstream obsah;
    obsah << vstup.rdbuf();
    return obsah.str();
}

std::string Dopln(std::string text, const Hodnoty& hodnoty, const std::filesystem::path& koren,
                  const std::string& kde) {
    constexpr int NEJVIC_NAHRAD = 10000;  // a file that includes itself would never end
    for (int nahrad = 0;; ++nahrad) {
        const auto konec = text.find("}}");
        if (konec == std::string::npos) break;
        const auto zacatek = text.rfind("{{", konec);
        if (zacatek == std::string::npos || nahrad == NEJVIC_NAHRAD)
            throw BehovaChyba("Závorky {{ }} nejsou v páru nebo nekončí", kde);
        const std::string jmeno = text.substr(zacatek + 2, konec - zacatek - 2);
        std::string nove;
        if (!jmeno.empty() && jmeno[0] == '>') {
            nove = NactiSoubor(koren / jmeno.substr(1));
        } else {
            const auto i = hodnoty.find(jmeno);
            if (i == hodnoty.end()) throw BehovaChyba("Chybí hodnota {{" + jmeno + "}}", kde);
            nove = i->second;
        }
        text.replace(zacatek, konec + 2 - zacatek, nove);
    }
    if (text.find("{{") != std::string::npos) throw BehovaChyba("Neuzavřená závorka {{", kde);
    return text;
}

std::vector<Obrazek> NactiSeznam(const std::filesystem::path& soubor) {
    const std::filesystem::path svg = soubor.parent_path() / "svg";
    std::vector<Obrazek> obrazky;
    std::set<std::string> jmena;
    const Hodnoty barvy = NactiBarvy(soubor.parent_path() / "barvy.txt");
    for (const Skupina& s : NactiSkupiny(soubor)) {
        const auto radky = s.Sloupce.empty() ? std::vector<std::vector<std::string>>{{}} : s.Radky;
        std::vector<std::string> stavy = {""};
        if (s.Klice.count("stavy") != 0) stavy = Rozdel(s.Klice.at("stavy"), ' ');
        for (const auto& radek : radky) {
            for (const std::string& stav : stavy) {
                Hodnoty hodnoty = barvy;
                for (const auto& [k, v] : s.Stale) hodnoty[k] = v;
                for (std::size_t i = 0; i < radek.size(); ++i) hodnoty[s.Sloupce[i]] = radek[i];
                if (!stav.empty()) hodnoty["S"] = stav;
                obrazky.push_back(VytvorObrazek(s, hodnoty, svg));
                if (!jmena.insert(obrazky.back().Soubor).second)
                    throw BehovaChyba("Obrázek je v seznamu dvakrát", obrazky.back().Soubor);
            }
        }
    }
    return obrazky;
}

}  // namespace rysovna::obrazky
