// The page: records and figures as text between the two halves of a template. What is written is
// let go at once, so that a page of many series takes no more memory than the series do.

#include "prehled/Stranka.h"

#include <algorithm>
#include <cstddef>
#include <kainjow/mustache.hpp>
#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "base/Cisla.h"
#include "prehled/Vlozene.h"
#include "rules/Ulohy.h"

namespace rysovna::prehled {

namespace {

using Json = nlohmann::json;
namespace mustache = kainjow::mustache;

/// Where records stand in the template.
constexpr std::string_view ZNACKA_DAT = "<!--data-->\n";
/// Figures of so many series are one piece of text.
constexpr std::size_t SERII_V_KUSU = 100;
/// Bits of an example's state.
constexpr int ZKONTROLOVAN = 1, HOTOVA = 2;

/// What a figure's elements begin with; any other < is written as a number, so that no text can end
/// the script that it stands in.
constexpr std::string_view PRVKY_OBRAZCU[] = {"<path", "<circle", "<text", "</text>"};

std::string Zapis(const Json& co, std::span<const std::string_view> smi = {}) {
    const std::string json = co.dump(-1, ' ', false, Json::error_handler_t::replace);
    std::string text;
    text.reserve(json.size());
    for (std::size_t i = 0; i < json.size(); ++i) {
        const std::string_view zbytek = std::string_view(json).substr(i);
        if (json[i] != '<' ||
            std::ranges::any_of(smi, [&](auto prvek) { return zbytek.starts_with(prvek); })) {
            text += json[i];
        } else {
            text += "\\u003c";
        }
    }
    return text;
}

/// How many bytes two figures have in common at their beginning; letters of one byte alone, so that
/// the page counts the same.
std::size_t Spolecneho(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    while (i < a.size() && i < b.size() && a[i] == b[i] && static_cast<unsigned char>(a[i]) < 0x80)
        ++i;
    return i;
}

/// Wordings by number and text, each once.
class Vety {
public:
    std::size_t Cislo(const ChybaSerie& c) {
        const auto [kde, nova] = cisla_.try_emplace({c.Cislo, c.Veta}, cisla_.size());
        if (nova) seznam_.push_back({c.Cislo, c.Veta});
        return kde->second;
    }
    [[nodiscard]] const Json& Seznam() const { return seznam_; }

private:
    std::map<std::pair<int, std::string>, std::size_t> cisla_;
    Json seznam_ = Json::array();
};

std::string Kdy(const DatumACas& d) {
    return std::to_string(d.Rok) + "-" + DveCislice(d.Mesic) + "-" + DveCislice(d.Den) + "T" +
           DveCislice(d.Hodina) + ":" + DveCislice(d.Minuta);
}

Json Zaznam(const Serie& s, Vety& vety) {
    Json priklady = Json::array(), chyby = Json::array();
    for (const PrikladSerie& p : s.Priklady) {
        const int stav = (p.Zkontrolovan ? ZKONTROLOVAN : 0) | (p.Hotova ? HOTOVA : 0);
        priklady.push_back({p.Zadani, p.Bodu, p.Nejvic, stav, p.Trvani});
    }
    for (const ChybaSerie& c : s.Chyby) chyby.push_back({vety.Cislo(c), c.Bodu, c.Priklad, c.Kdy});
    return {s.Zak,    s.Uloha,  Kdy(s.Zacatek), s.Dokoncena ? 1 : 0, s.Bodu,           s.Nejvic,
            s.Znamka, s.Trvani, s.JmenoNapsane, std::move(priklady), std::move(chyby), s.Soubor};
}

/// Of each charge how much of its example's last figure it begins with, and what follows; 0: the
/// same as the one before.
Json ZaznamObrazcu(const Serie& s) {
    Json konce = Json::array(), chyby = Json::array();
    for (const PrikladSerie& p : s.Priklady) konce.push_back(p.Obrazec);
    std::string_view predchozi;
    for (const ChybaSerie& c : s.Chyby) {
        if (c.Obrazec == predchozi) {
            chyby.push_back(0);
            continue;
        }
        predchozi = c.Obrazec;
        const auto i = static_cast<std::size_t>(c.Priklad) - 1;
        const std::size_t n =
            i < s.Priklady.size() ? Spolecneho(s.Priklady[i].Obrazec, c.Obrazec) : 0;
        chyby.push_back({n, c.Obrazec.substr(n)});
    }
    return {std::move(konce), std::move(chyby)};
}

void ZapisData(std::ostream& kam, const Prehled& prehled) {
    Vety vety;
    Json zaci = Json::array(), ulohy = Json::array();
    for (const Zak& z : prehled.Zaci) zaci.push_back({z.Jmeno, z.Trida});
    for (const Uloha& u : ULOHY) ulohy.push_back({u.Cislo, RODINY[u.Rodina], u.TypUlohy});
    kam << "<script type=\"application/json\" id=\"data\">{\"vKusu\":" << SERII_V_KUSU
        << ",\"stavZkontrolovan\":" << ZKONTROLOVAN << ",\"stavHotova\":" << HOTOVA
        << ",\n\"zaci\":" << Zapis(zaci) << ",\n\"ulohy\":" << Zapis(ulohy) << ",\n\"serie\":[";
    std::string_view oddelovac = "\n";
    for (const Serie& s : prehled.Serie) {
        kam << oddelovac << Zapis(Zaznam(s, vety));
        oddelovac = ",\n";
    }
    kam << "],\n\"vety\":" << Zapis(vety.Seznam()) << "}</script>\n";
    for (std::size_t i = 0; i < prehled.Serie.size(); ++i) {
        if (i % SERII_V_KUSU == 0) {
            kam << (i == 0 ? "" : "</script>\n") << "<script type=\"text/plain\" id=\"o"
                << i / SERII_V_KUSU << "\">";
        } else {
            kam << '\n';
        }
        kam << Zapis(ZaznamObrazcu(prehled.Serie[i]), PRVKY_OBRAZCU);
    }
    if (!prehled.Serie.empty()) kam << "</script>\n";
}

std::string Obdobi(const Prehled& p) {
    return (p.Od.empty() ? "" : "od " + p.Od) + (p.Od.empty() || p.Do.empty() ? "" : " ") +
           (p.Do.empty() ? "" : "do " + p.Do);
}

void ZapisCast(std::ostream& kam, std::string_view cast, const mustache::data& co) {
    mustache::mustache sablona{std::string(cast)};
    if (!sablona.is_valid()) throw std::logic_error(sablona.error_message());
    sablona.render(co, [&kam](const std::string& text) { kam << text; });
}

}  // namespace

void ZapisStranku(std::ostream& kam, const Prehled& prehled) {
    using Seznam = mustache::data::type;
    const auto priznak = [](bool plati) {
        return plati ? mustache::data(Seznam::bool_true) : mustache::data(Seznam::bool_false);
    };
    const auto neprazdny = [&](const std::string& text) {
        return text.empty() ? priznak(false) : mustache::data(text);
    };
    mustache::data nevadne(Seznam::list);
    for (const std::string& veta : prehled.Nevadne) nevadne << mustache::data(veta);
    mustache::data co(Seznam::object);
    co.set("trida", neprazdny(prehled.Trida));
    co.set("obdobi", neprazdny(Obdobi(prehled)));
    co.set("vyber", priznak(!prehled.Trida.empty() || !Obdobi(prehled).empty()));
    co.set("prazdny", priznak(prehled.Serie.empty()));
    co.set("nejakeNevadne", priznak(!prehled.Nevadne.empty()));
    co.set("nevadne", nevadne);
    for (const auto& [jmeno, text] : {std::pair{"styl", STYL}, std::pair{"skript", SKRIPT},
                                      std::pair{"graf", GRAF}, std::pair{"licence", LICENCE_GRAFU}})
        co.set(jmeno, std::string(text));

    const std::size_t predel = STRANKA.find(ZNACKA_DAT);
    ZapisCast(kam, STRANKA.substr(0, predel), co);
    if (!prehled.Serie.empty()) ZapisData(kam, prehled);
    ZapisCast(kam, STRANKA.substr(predel + ZNACKA_DAT.size()), co);
}

}  // namespace rysovna::prehled
