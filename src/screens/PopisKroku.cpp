#include "screens/PopisKroku.h"

#include <string_view>

#include "rules/Veliciny.h"
#include "screens/TlacitkoNastroje.h"

namespace rysovna {

namespace {

constexpr std::string_view ZAVORKA = ") ";

std::string JmenoNastroje(const Volani& v, const Panel& p) {
    constexpr const char* NEZIVY = "Stisk, kde není živý nástroj";
    if (v.Cislo < 1 || v.Cislo > static_cast<int>(p.Nastroje.size())) return NEZIVY;
    const MistoNastroje& misto = p.Nastroje[static_cast<std::size_t>(v.Cislo - 1)];
    const TlacitkoNastroje* t = NajdiTlacitko(misto.Co);
    if (t == nullptr) return NEZIVY;
    return t->BezNastroje ? "Tlačítko „" + std::string(t->Jmeno) + "“"
                          : "Nástroj: " + std::string(t->Jmeno);
}

std::string TextVeliciny(const Velicina& v, const std::string& hodnota) {
    std::string text = v.Nazev;
    if (hodnota.empty()) {
        // A name that leads to a value that is not there.
        while (text.ends_with(' ') || text.ends_with('=')) text.pop_back();
        return text;
    }
    if (!text.ends_with(' ')) text += ' ';
    // "k(A, r = " and ") cm": the unit stands within the bracket here, where one reads on.
    const bool zavorka = v.Jednotka.starts_with(ZAVORKA);
    std::string jednotka = zavorka ? v.Jednotka.substr(ZAVORKA.size()) : v.Jednotka;
    jednotka.erase(0, jednotka.find_first_not_of(' '));
    return text + hodnota + (jednotka.empty() ? "" : " " + jednotka) + (zavorka ? ")" : "");
}

/// What is being drawn; nothing where no object is in hand.
std::string Rysovane(const Panel& p) {
    if (p.Kresleni.Druh == Gesto::Tvar::Zadny) return {};
    if (!p.Rysovane.Nazev.empty()) return TextVeliciny(p.Rysovane, p.Rysovane.Hodnota.Text);
    return p.Nadpis;
}

std::string Posun(Bod o) {
    const std::string kam = o.X > 0 ? "doprava" : o.X < 0 ? "doleva" : o.Y > 0 ? "dolů" : "nahoru";
    return "Posun celého obrázku " + kam;
}

}  // namespace

std::string PopisKroku(const Volani& v, const Panel& p, const Dialog& dialog) {
    switch (v.Co) {
        case Volani::Druh::Nastroj:
            return JmenoNastroje(v, p);
        case Volani::Druh::Radek:
            if (v.Cislo < 1 || v.Cislo > static_cast<int>(p.Vyber.Radky.size())) return "Volba";
            return "Volba: " + p.Vyber.Radky[static_cast<std::size_t>(v.Cislo - 1)].Text;
        case Volani::Druh::ZavritSeznam:
            return "Seznam se zavírá bez volby";
        case Volani::Druh::Napsani: {
            const auto i = static_cast<std::size_t>(v.Cislo - 1);
            const Velicina& velicina = i < p.Veliciny.size() ? p.Veliciny[i] : p.Rysovane;
            return "Píše se: " + TextVeliciny(velicina, v.Text);
        }
        case Volani::Druh::Stisk:
        case Volani::Druh::Pusteni: {
            const std::string co = Rysovane(p);
            if (!co.empty()) return "Rýsuje se: " + co;
            return p.Kresleni.Druh == Gesto::Tvar::Bod ? "Označuje se bod" : "Stisk na ploše";
        }
        case Volani::Druh::Nacrt: {
            const std::string prvek = dialog.VidetPrvek(dialog.PrvekNacrtu(v.X, v.Y)).Jmeno;
            return "Značka v náčrtku" + (prvek.empty() ? "" : ": " + PismenoUhlu(prvek));
        }
        case Volani::Druh::Posunuti:
            return Posun(v.O);
        case Volani::Druh::Kontrola:
            return "Kontrola";
    }
    return {};
}

}  // namespace rysovna
