#include "prehled/TabulkyCsv.h"

#include <ostream>
#include <span>

#include "base/Cisla.h"
#include "rules/Ulohy.h"
#include "store/KodovaStranka.h"

namespace rysovna::prehled {

namespace {

constexpr std::string_view KONEC = "\r\n";
constexpr char ODDELOVAC = ';';
/// What a spreadsheet would reckon with.
constexpr std::string_view ZACATKY_VZORCU = "=+-@\t\r";
constexpr double MS_V_SEKUNDE = 1000, MS_V_MINUTE = 60'000;

std::string S(int n) {
    return std::to_string(n);
}

/// With one decimal behind a comma.
std::string SCarkou(double x) {
    const auto desetin = static_cast<long long>(x * 10 + 0.5);
    return std::to_string(desetin / 10) + "," + std::to_string(desetin % 10);
}

/// "2026-11-22" and "17:05": whatever language the spreadsheet speaks, it takes them for what they
/// are.
std::string TextDatumu(const DatumACas& d) {
    return S(d.Rok) + "-" + DveCislice(d.Mesic) + "-" + DveCislice(d.Den);
}
std::string TextHodin(const DatumACas& d) {
    return DveCislice(d.Hodina) + ":" + DveCislice(d.Minuta);
}

std::string NazevUlohy(int cislo) {
    const Uloha* u = NajdiUlohu(cislo);
    if (u == nullptr) return {};
    return std::string(RODINY[u->Rodina]) + ": " + std::string(u->TypUlohy);
}

/// What a row is made of.
struct RadekSerii {
    const Serie& Co;
    const Zak& Ci;
};
struct RadekChyb {
    const Serie& Kde;
    const Zak& Ci;
    const ChybaSerie& Co;
};

template <class R>
struct Sloupec {
    std::string_view Nadpis;
    std::string (*Text)(const R&);
};

constexpr Sloupec<RadekSerii> SLOUPCE_SERII[] = {
    {"Žák", [](const RadekSerii& r) { return PoleCsv(r.Ci.Jmeno); }},
    {"Třída", [](const RadekSerii& r) { return PoleCsv(r.Ci.Trida); }},
    {"Napsané jméno", [](const RadekSerii& r) { return PoleCsv(r.Co.JmenoNapsane); }},
    {"Úloha", [](const RadekSerii& r) { return S(r.Co.Uloha); }},
    {"Název úlohy", [](const RadekSerii& r) { return PoleCsv(NazevUlohy(r.Co.Uloha)); }},
    {"Datum", [](const RadekSerii& r) { return TextDatumu(r.Co.Zacatek); }},
    {"Čas", [](const RadekSerii& r) { return TextHodin(r.Co.Zacatek); }},
    {"Dokončená", [](const RadekSerii& r) { return std::string(r.Co.Dokoncena ? "ano" : "ne"); }},
    {"Bodů", [](const RadekSerii& r) { return S(r.Co.Bodu); }},
    {"Nejvíc bodů", [](const RadekSerii& r) { return S(r.Co.Nejvic); }},
    {"Úspěšnost v %",
     [](const RadekSerii& r) {
         return r.Co.Nejvic > 0 ? SCarkou(100.0 * r.Co.Bodu / r.Co.Nejvic) : std::string();
     }},
    {"Známka",
     [](const RadekSerii& r) { return r.Co.Znamka > 0 ? S(r.Co.Znamka) : std::string(); }},
    {"Trvání v min", [](const RadekSerii& r) { return SCarkou(r.Co.Trvani / MS_V_MINUTE); }},
    {"Příkladů", [](const RadekSerii& r) { return std::to_string(r.Co.Priklady.size()); }},
    {"Chybných kroků", [](const RadekSerii& r) { return std::to_string(r.Co.Chyby.size()); }},
    {"Soubor", [](const RadekSerii& r) { return PoleCsv(r.Co.Soubor); }},
};

constexpr Sloupec<RadekChyb> SLOUPCE_CHYB[] = {
    {"Žák", [](const RadekChyb& r) { return PoleCsv(r.Ci.Jmeno); }},
    {"Třída", [](const RadekChyb& r) { return PoleCsv(r.Ci.Trida); }},
    {"Úloha", [](const RadekChyb& r) { return S(r.Kde.Uloha); }},
    {"Název úlohy", [](const RadekChyb& r) { return PoleCsv(NazevUlohy(r.Kde.Uloha)); }},
    {"Datum", [](const RadekChyb& r) { return TextDatumu(r.Kde.Zacatek); }},
    {"Čas", [](const RadekChyb& r) { return TextHodin(r.Kde.Zacatek); }},
    {"Příklad", [](const RadekChyb& r) { return S(r.Co.Priklad); }},
    {"Zadání",
     [](const RadekChyb& r) {
         const auto i = static_cast<std::size_t>(r.Co.Priklad - 1);
         return i < r.Kde.Priklady.size() ? PoleCsv(r.Kde.Priklady[i].Zadani) : std::string();
     }},
    {"Po sekundách", [](const RadekChyb& r) { return SCarkou(r.Co.Kdy / MS_V_SEKUNDE); }},
    {"Číslo chyby", [](const RadekChyb& r) { return S(r.Co.Cislo); }},
    {"Chybný krok", [](const RadekChyb& r) { return PoleCsv(r.Co.Veta); }},
    {"Ztracených bodů", [](const RadekChyb& r) { return S(r.Co.Bodu); }},
    {"Soubor", [](const RadekChyb& r) { return PoleCsv(r.Kde.Soubor); }},
};

template <class R, class T>
void Radek(std::ostream& kam, std::span<const Sloupec<R>> sloupce, T text) {
    bool prvni = true;
    for (const Sloupec<R>& s : sloupce) {
        if (!prvni) kam << ODDELOVAC;
        prvni = false;
        kam << text(s);
    }
    kam << KONEC;
}

template <class R>
void Nadpisy(std::ostream& kam, std::span<const Sloupec<R>> sloupce) {
    kam << ZNACKA_UTF8;
    Radek<R>(kam, sloupce, [](const Sloupec<R>& s) { return s.Nadpis; });
}

template <class R>
void Udaje(std::ostream& kam, std::span<const Sloupec<R>> sloupce, const R& radek) {
    Radek<R>(kam, sloupce, [&radek](const Sloupec<R>& s) { return s.Text(radek); });
}

}  // namespace

std::string PoleCsv(std::string_view text) {
    std::string pole;
    if (!text.empty() && ZACATKY_VZORCU.find(text.front()) != std::string_view::npos) pole += '\'';
    pole += text;
    if (pole.find_first_of(";\"\r\n") == std::string::npos) return pole;
    std::string vUvozovkach = "\"";
    for (const char z : pole) {
        vUvozovkach += z;
        if (z == '"') vUvozovkach += z;
    }
    return vUvozovkach + "\"";
}

TabulkyCsv::TabulkyCsv(std::ostream& serie, std::ostream& chyby) : serie_(serie), chyby_(chyby) {
    Nadpisy<RadekSerii>(serie_, SLOUPCE_SERII);
    Nadpisy<RadekChyb>(chyby_, SLOUPCE_CHYB);
}

void TabulkyCsv::Pridej(const Serie& serie, const Zak& zak) {
    Udaje<RadekSerii>(serie_, SLOUPCE_SERII, {serie, zak});
    for (const ChybaSerie& c : serie.Chyby) Udaje<RadekChyb>(chyby_, SLOUPCE_CHYB, {serie, zak, c});
}

}  // namespace rysovna::prehled
