#include "prehled/Volby.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "base/Cisla.h"
#include "base/Disk.h"
#include "prehled/Jmena.h"

namespace rysovna::prehled {

const std::string_view NAPOVEDA =
    R"(Použití:
  prehled SLOŽKA... -o SOUBOR.html     z pokusů ve složkách vyrobí přehled třídy
  prehled SLOŽKA... --smaz JMÉNO       odstraní pokusy žáka, předtím se zeptá
  prehled --help                       tato nápověda

Složka je složka výsledků hry, složka Pokusy v ní nebo jakákoli, ve které takové jsou. Může jich být
víc; týž pokus z několika složek se počítá jednou. Vedle stránky vzniknou dvě tabulky pro tabulkový
program: SOUBOR-serie.csv a SOUBOR-chyby.csv.

  -o SOUBOR.html      stránka, kterou otevře každý prohlížeč, i bez internetu; .html, které chybí,
                      se doplní
  --od DATUM          na stránce jen série od tohoto dne, třeba 1.9.2026
  --do DATUM          a do tohoto dne, včetně; tabulky mají série vždy všechny
  --trida TŘÍDA       na stránce jen žáci této třídy; k tomu je potřeba --zaci
  --zaci TABULKA      vaše tabulka (.csv) s řádky jméno;žák;třída: kdo se pod kterým jménem skrývá
  --rejstrik SOUBOR   kam si pamatovat přečtené pokusy; jinak do složky účtu
  --smaz JMÉNO        odstranit pokusy žáka tohoto jména, jakkoli je napsáno; s --zaci
                      i pod jeho dalšími jmény

Jedno jméno napsané s velkými či malými písmeny, s mezerami navíc nebo bez háčků a čárek je jeden žák.
Návratová hodnota: 0 hotovo, 1 nejde to, 2 špatné zadání příkazu.
)";

namespace {

/// The words that are followed by another one, and what they do with it.
struct Volba {
    std::string_view Slovo, CoZaNi;
    std::function<void(Volby&, const std::string&)> Vezmi;
};

Den CtiDen(const std::string& text) {
    const auto den = DenZTextu(text);
    if (!den) throw SpatneVolby("Takový den není: " + text + " (píše se 1.9.2026).");
    return *den;
}

/// A page's name ends as browsers know it: "7.A" is "7.A.html", and a table is never written over.
std::filesystem::path JmenoStranky(const std::string& text) {
    std::filesystem::path stranka = CestaZTextu(text);
    const std::string jmeno = stranka.filename().string();
    if (jmeno.empty() || jmeno == "." || jmeno == "..")
        throw SpatneVolby("Za -o patří jméno stránky, ne složka (" + text + ").");
    const std::string pripona = KlicJmena(stranka.extension().string());
    if (pripona != ".html" && pripona != ".htm") stranka += ".html";
    return stranka;
}

std::vector<Volba> ZnameVolby() {
    return {{"-o", "jméno stránky", [](Volby& v, const auto& t) { v.Vystup = JmenoStranky(t); }},
            {"--od", "datum", [](Volby& v, const auto& t) { v.Od = CtiDen(t); }},
            {"--do", "datum", [](Volby& v, const auto& t) { v.Do = CtiDen(t); }},
            {"--trida", "třída", [](Volby& v, const auto& t) { v.Trida = t; }},
            {"--zaci", "tabulka žáků", [](Volby& v, const auto& t) { v.Zaci = CestaZTextu(t); }},
            {"--rejstrik", "jméno souboru",
             [](Volby& v, const auto& t) { v.Rejstrik = CestaZTextu(t); }},
            {"--smaz", "jméno žáka", [](Volby& v, const auto& t) { v.Smazat = t; }}};
}

void Over(const Volby& v) {
    if (v.Slozky.empty()) throw SpatneVolby("Chybí složka s pokusy.");
    if (v.Smazat && !v.Vystup.empty())
        throw SpatneVolby("Mazání a výroba stránky jsou dva různé příkazy.");
    if (v.Smazat && v.Smazat->empty()) throw SpatneVolby("Jméno žáka je prázdné.");
    if (v.Smazat && (v.Od || v.Do))
        throw SpatneVolby("Maže se všechno, co žák odehrál: --od a --do k mazání nepatří.");
    if (!v.Smazat && v.Vystup.empty()) throw SpatneVolby("Chybí -o SOUBOR.html.");
    if (!v.Trida.empty() && v.Zaci.empty())
        throw SpatneVolby("K volbě --trida je potřeba tabulka žáků, volba --zaci.");
    if (v.Od && v.Do && *v.Od > *v.Do) throw SpatneVolby("Den --od je až za dnem --do.");
}

}  // namespace

std::optional<Den> DenZTextu(std::string_view text) {
    std::string hladky;
    std::ranges::copy_if(text, std::back_inserter(hladky), [](char z) { return z != ' '; });
    const char oddelovac = hladky.find('.') == std::string::npos ? '-' : '.';
    std::vector<int> cisla;
    for (std::string_view zbyva = hladky;;) {
        const std::size_t konec = std::min(zbyva.find(oddelovac), zbyva.size());
        cisla.push_back(CeleCislo<int>(zbyva.substr(0, konec)).value_or(0));
        if (konec == zbyva.size()) break;
        zbyva.remove_prefix(konec + 1);
    }
    if (cisla.size() != 3) return std::nullopt;
    if (oddelovac == '.') std::swap(cisla[0], cisla[2]);
    if (cisla[0] < 1000 || cisla[0] > 9999 || std::ranges::min(cisla) < 1) return std::nullopt;
    const Den den{std::chrono::year{cisla[0]}, std::chrono::month{static_cast<unsigned>(cisla[1])},
                  std::chrono::day{static_cast<unsigned>(cisla[2])}};
    return den.ok() ? std::optional(den) : std::nullopt;
}

std::string TextDne(Den den) {
    return std::to_string(static_cast<unsigned>(den.day())) + ". " +
           std::to_string(static_cast<unsigned>(den.month())) + ". " +
           std::to_string(static_cast<int>(den.year()));
}

Volby CtiVolby(std::span<const std::string> argumenty) {
    const std::vector<Volba> zname = ZnameVolby();
    Volby volby;
    for (std::size_t i = 0; i < argumenty.size(); ++i) {
        const std::string& slovo = argumenty[i];
        if (slovo == "--help" || slovo == "-h") {
            volby.Napoveda = true;
            return volby;
        }
        const auto volba = std::ranges::find(zname, slovo, &Volba::Slovo);
        if (volba != zname.end()) {
            if (i + 1 == argumenty.size())
                throw SpatneVolby("Za " + slovo + " chybí " + std::string(volba->CoZaNi) + ".");
            volba->Vezmi(volby, argumenty[++i]);
        } else if (slovo.starts_with('-')) {
            throw SpatneVolby("Neznámá volba: " + slovo + ".");
        } else {
            volby.Slozky.push_back(CestaZTextu(slovo));
        }
    }
    Over(volby);
    return volby;
}

}  // namespace rysovna::prehled
