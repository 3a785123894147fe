#include "Sazba.h"

#include <array>
#include <cmath>
#include <ft2build.h>
#include <map>
#include <sstream>
#include <vector>
#include FT_FREETYPE_H

#include "Predlohy.h"
#include "base/Chyba.h"
#include "base/Text.h"
#include "platform/Pisma.h"

namespace rysovna::obrazky {

namespace {

/// Bits of a letter's style; the lowest two are also the number of its font file.
enum Rez : unsigned { OBYCEJNY = 0, KURZIVA = 1, TUCNY = 2, DOLNI_INDEX = 4 };
constexpr unsigned MASKA_PISMA = 3;

/// A lower index is this much smaller and lower, in sizes of the letters around it.
constexpr double VELIKOST_INDEXU = 0.72;
constexpr double POKLES_INDEXU = 0.2;

/// The file that has the signs the others lack.
constexpr std::size_t NAHRADNI = POCET_REZU - 1;

struct Znak {
    char32_t Kod;
    unsigned Rez;
};
using Radek = std::vector<Znak>;

/// A line as it will stand: how far it is indented, px, and what stands in the indent.
struct HotovyRadek {
    double Odsazeni = 0;
    Radek Znaky;
    Radek Cislo;
    bool Nadpis = false;
};

/// The box and look of one element.
struct Ramec {
    double X = 0, Y = 0, Sirka = 0, Vyska = 0, Pismo = 13, RadekPx = 17;
    std::string Barva = "#000", Zarovnani = "vlevo", Svisle = "nahoru", BarvaNadpisu;
    bool Tucne = false;
};

Ramec PrectiRamec(const std::string& znacka, const std::string& kde) {
    Ramec r;
    std::size_t i = 0;
    while ((i = znacka.find('=', i)) != std::string::npos) {
        const auto mezera = znacka.find_last_of(" \n\t", i);
        const std::string jmeno = znacka.substr(mezera + 1, i - mezera - 1);
        const auto konec = znacka.find('"', i + 2);
        if (konec == std::string::npos || znacka[i + 1] != '"')
            throw BehovaChyba("Chybí uvozovky v <sazba>", kde);
        const std::string hodnota = znacka.substr(i + 2, konec - i - 2);
        const std::map<std::string, double*> cisla = {{"x", &r.X},         {"y", &r.Y},
                                                      {"sirka", &r.Sirka}, {"vyska", &r.Vyska},
                                                      {"pismo", &r.Pismo}, {"radek", &r.RadekPx}};
        const std::map<std::string, std::string*> slova = {{"barva", &r.Barva},
                                                           {"zarovnani", &r.Zarovnani},
                                                           {"svisle", &r.Svisle},
                                                           {"nadpis", &r.BarvaNadpisu}};
        if (const auto c = cisla.find(jmeno); c != cisla.end()) {
            *c->second = std::stod(hodnota);
        } else if (const auto s = slova.find(jmeno); s != slova.end()) {
            *s->second = hodnota;
        } else if (jmeno == "tucne") {
            r.Tucne = hodnota == "ano";
        } else {
            throw BehovaChyba("Neznámá vlastnost " + jmeno + " v <sazba>", kde);
        }
        i = konec;
    }
    if (r.BarvaNadpisu.empty()) r.BarvaNadpisu = r.Barva;
    return r;
}

Radek RozlisRezy(const std::string& text, bool tucne) {
    Radek znaky;
    unsigned rez = tucne ? TUCNY : OBYCEJNY;
    bool index = false;
    for (const char32_t z : DoZnaku(text)) {
        if (index) {
            znaky.push_back({z, (rez & TUCNY) | DOLNI_INDEX});
            index = false;
        } else if (z == U'~') {
            index = true;
        } else if (z == U'*') {
            rez ^= TUCNY;
        } else if (z == U'_') {
            rez ^= KURZIVA;
        } else {
            znaky.push_back({z, rez});
        }
    }
    return znaky;
}

/// The word before the blank at the given place, or the one behind it.
Radek Slovo(const Radek& odstavec, std::size_t mezera, bool pred) {
    std::size_t od = pred ? mezera : mezera + 1;
    std::size_t po = od;
    while (pred && od > 0 && odstavec[od - 1].Kod != U' ') --od;
    while (!pred && po < odstavec.size() && odstavec[po].Kod != U' ') ++po;
    const auto i = odstavec.begin();
    return {i + static_cast<std::ptrdiff_t>(od), i + static_cast<std::ptrdiff_t>(po)};
}

/// Whether a line may end at the blank at the given place. As Czech is set, it may not behind a
/// preposition or conjunction of one letter nor behind a number, not around the equals sign, and
/// not before the name of an object, which is a single letter in italic.
bool SmiZalomit(const Radek& odstavec, std::size_t mezera) {
    const Radek pred = Slovo(odstavec, mezera, true);
    const Radek po = Slovo(odstavec, mezera, false);
    constexpr std::u32string_view PREDLOZKY = U"aikosuvzIKOUVZ";
    if (pred.empty()) return false;
    if (pred.size() == 1 && (pred[0].Rez & KURZIVA) == 0 &&
        PREDLOZKY.find(pred[0].Kod) != std::u32string_view::npos)
        return false;
    if (pred[0].Kod >= U'0' && pred[0].Kod <= U'9') return false;
    if (po.empty() || po[0].Kod == U'=') return po.empty();
    const bool pismeno = po.size() == 1 || (po[1].Rez & DOLNI_INDEX) != 0 || po[1].Kod < U'A';
    return !(pismeno && (po[0].Rez & KURZIVA) != 0);
}

/// How many characters of a step's number, with its point and blank; 0 when the line is no step.
std::size_t DelkaCisla(const std::string& text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i;
    return i > 0 && text.compare(i, 2, ". ") == 0 ? i + 2 : 0;
}

std::string Xml(char32_t z) {
    if (z == U'&') return "&amp;";
    if (z == U'<') return "&lt;";
    if (z == U'>') return "&gt;";
    return ZeZnaku(std::u32string_view(&z, 1));
}

}  // namespace

struct Sazba::Pisma {
    FT_Library Knihovna = nullptr;
    std::array<FT_Face, POCET_REZU> Tvare{};

    explicit Pisma(const std::filesystem::path& fonty) {
        if (FT_Init_FreeType(&Knihovna) != 0) Selhani("FreeType nelze spustit");
        for (unsigned i = 0; i < POCET_REZU; ++i) {
            const auto soubor = fonty / SouborRezu(i);
            if (FT_New_Face(Knihovna, soubor.c_str(), 0, &Tvare[i]) != 0)
                throw BehovaChyba("Nelze otevřít písmo", soubor.string());
        }
    }
    ~Pisma() { FT_Done_FreeType(Knihovna); }
    Pisma(const Pisma&) = delete;

    /// Width of the letters, px, unhinted.
    [[nodiscard]] double Sirka(const Radek& znaky, double pismo) const {
        double sirka = 0;
        for (const Znak& z : znaky) {
            FT_Face tvar = Tvare[z.Rez & MASKA_PISMA];
            if (FT_Get_Char_Index(tvar, z.Kod) == 0) tvar = Tvare[NAHRADNI];
            const FT_UInt index = FT_Get_Char_Index(tvar, z.Kod);
            if (index == 0) Selhani("Znak " + Xml(z.Kod) + " není v žádném písmu");
            FT_Load_Glyph(tvar, index, FT_LOAD_NO_SCALE);
            sirka +=
                static_cast<double>(tvar->glyph->metrics.horiAdvance) * pismo / tvar->units_per_EM;
        }
        return sirka;
    }

    /// Breaks one paragraph into lines that are no wider than given, px.
    [[nodiscard]] std::vector<Radek> Zalom(const Radek& odstavec, double sirka, double pismo,
                                           const std::string& kde) const {
        std::vector<Radek> radky(1);
        Radek slovo;
        const auto pridej = [&] {
            if (slovo.empty()) return;
            Radek zkus = radky.back();
            zkus.insert(zkus.end(), slovo.begin(), slovo.end());
            while (!zkus.empty() && zkus.back().Kod == U' ') zkus.pop_back();
            if (Sirka(zkus, pismo) > sirka) {
                while (!radky.back().empty() && radky.back().back().Kod == U' ')
                    radky.back().pop_back();
                if (!radky.back().empty()) radky.emplace_back();
                Radek same = slovo;
                while (!same.empty() && same.back().Kod == U' ') same.pop_back();
                if (Sirka(same, pismo) > sirka) {
                    std::string text;
                    for (const Znak& z : slovo) text += Xml(z.Kod);
                    throw BehovaChyba("Slovo se nevejde do rámce: " + text, kde);
                }
            }
            radky.back().insert(radky.back().end(), slovo.begin(), slovo.end());
            slovo.clear();
        };
        for (std::size_t i = 0; i < odstavec.size(); ++i) {
            slovo.push_back(odstavec[i]);
            const char32_t kod = odstavec[i].Kod;
            if (kod == U'-' || (kod == U' ' && SmiZalomit(odstavec, i))) pridej();
        }
        pridej();
        return radky;
    }

    /// The lines of a whole text, top to bottom. A line with no letters is half a line of space.
    [[nodiscard]] std::vector<HotovyRadek> Radky(const std::string& text, const Ramec& r,
                                                 const std::string& kde) const {
        std::vector<HotovyRadek> vysledek;
        std::stringstream proud(text);
        std::string zdroj;
        while (std::getline(proud, zdroj)) {
            zdroj = Orez(zdroj);
            HotovyRadek vzor;
            vzor.Nadpis = zdroj.rfind("# ", 0) == 0;
            if (vzor.Nadpis) zdroj = zdroj.substr(2);
            const std::size_t cislo = DelkaCisla(zdroj);
            vzor.Cislo = RozlisRezy(zdroj.substr(0, cislo), true);
            vzor.Odsazeni = cislo > 0 ? std::ceil(r.Pismo * 1.5) : 0;
            const Radek znaky = RozlisRezy(zdroj.substr(cislo), r.Tucne || vzor.Nadpis);
            for (Radek& radek : Zalom(znaky, r.Sirka - vzor.Odsazeni, r.Pismo, kde)) {
                vzor.Znaky = std::move(radek);
                vysledek.push_back(vzor);
                vzor.Cislo.clear();
            }
        }
        return vysledek;
    }
};

namespace {

void Vypis(std::ostream& ven, const Radek& znaky, double x, double y, const Ramec& r,
           const std::string& barva, const char* kotva) {
    ven << "<text x=\"" << x << "\" y=\"" << y << "\" font-size=\"" << r.Pismo << "\" fill=\""
        << barva << "\" text-anchor=\"" << kotva << "\" xml:space=\"preserve\">";
    bool dole = false;
    for (std::size_t i = 0; i < znaky.size();) {
        const unsigned rez = znaky[i].Rez;
        const bool index = (rez & DOLNI_INDEX) != 0;
        ven << "<tspan" << ((rez & TUCNY) != 0 ? " font-weight=\"bold\"" : "")
            << ((rez & KURZIVA) != 0 ? " font-style=\"italic\"" : "");
        if (index) ven << " font-size=\"" << VELIKOST_INDEXU * r.Pismo << "\"";
        if (index != dole) ven << " dy=\"" << (index ? 1 : -1) * POKLES_INDEXU * r.Pismo << "\"";
        dole = index;
        ven << ">";
        for (; i < znaky.size() && znaky[i].Rez == rez; ++i) ven << Xml(znaky[i].Kod);
        ven << "</tspan>";
    }
    ven << "</text>\n";
}

}  // namespace

Sazba::Sazba(const std::filesystem::path& fonty) : pisma_(std::make_unique<Pisma>(fonty)) {}
Sazba::~Sazba() = default;

std::string Sazba::Vysad(const std::string& svg, const std::string& kde) const {
    const std::string zacatek = "<sazba";
    const std::string konec = "</sazba>";
    std::stringstream ven;
    std::size_t i = 0;
    for (;;) {
        const auto od = svg.find(zacatek, i);
        ven << svg.substr(i, od - i);
        if (od == std::string::npos) break;
        const auto text = svg.find('>', od);
        const auto po = svg.find(konec, od);
        if (po == std::string::npos || text > po) throw BehovaChyba("Neuzavřená <sazba>", kde);
        i = po + konec.size();

        const Ramec r = PrectiRamec(svg.substr(od, text - od), kde);
        const auto radky = pisma_->Radky(Orez(svg.substr(text + 1, po - text - 1)), r, kde);
        double vyska = 0;
        for (const HotovyRadek& h : radky) vyska += h.Znaky.empty() ? r.RadekPx / 2 : r.RadekPx;
        if (vyska > r.Vyska)
            throw BehovaChyba("Text je vyšší než rámec o " + std::to_string(vyska - r.Vyska) +
                                  " px: " + svg.substr(text + 1, 40),
                              kde);
        double y = r.Y;
        if (r.Svisle == "stred") y += (r.Vyska - vyska) / 2;
        if (r.Svisle == "dolu") y += r.Vyska - vyska;
        for (const HotovyRadek& h : radky) {
            if (h.Znaky.empty()) {
                y += r.RadekPx / 2;
                continue;
            }
            // The letters' height is about 0.73 of their size: so they stand in the line's middle,
            // and the base line falls on a whole pixel.
            const double ucari = std::round(y + (r.RadekPx + 0.73 * r.Pismo) / 2);
            const std::string& barva = h.Nadpis ? r.BarvaNadpisu : r.Barva;
            if (!h.Cislo.empty()) Vypis(ven, h.Cislo, r.X, ucari, r, r.BarvaNadpisu, "start");
            if (r.Zarovnani == "stred") {
                Vypis(ven, h.Znaky, r.X + r.Sirka / 2, ucari, r, barva, "middle");
            } else if (r.Zarovnani == "vpravo") {
                Vypis(ven, h.Znaky, r.X + r.Sirka, ucari, r, barva, "end");
            } else {
                Vypis(ven, h.Znaky, r.X + h.Odsazeni, ucari, r, barva, "start");
            }
            y += r.RadekPx;
        }
    }
    return ven.str();
}

}  // namespace rysovna::obrazky
