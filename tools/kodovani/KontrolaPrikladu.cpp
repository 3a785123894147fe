#include "KontrolaPrikladu.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>

#include "Pole.h"
#include "Pravidla.h"
#include "base/Cisla.h"
#include "rules/Ulohy.h"
#include "rules/Veliciny.h"
#include "store/MapaPoli.h"

namespace rysovna::kodovani {
namespace {

constexpr std::string_view NAHRADNI = "náhradní útvar je útvar druhého z obou kroků";

using SeznamSlov = std::vector<std::string_view>;

bool JeMezi(std::string_view slovo, Slova slova) {
    return std::ranges::find(slova, slovo) != slova.end();
}

/// What a field should hold: one word, or one of several.
std::string Nabidka(Slova slova) {
    std::string text;
    for (const std::string_view slovo : slova) {
        if (!text.empty()) text += ", ";
        text += slovo.empty() ? "nic" : Uvozovky(slovo);
    }
    return (slova.size() == 1 ? "" : "jedno z: ") + text;
}

/// The words of a row: the rest of their places is empty.
SeznamSlov Neprazdna(Slova slova) {
    SeznamSlov s;
    std::ranges::copy_if(slova, std::back_inserter(s), [](auto slovo) { return !slovo.empty(); });
    return s;
}

/// The first row that fits; null if there is none.
template <class P>
const P* Najdi(std::span<const P> radky, auto&& sedi) {
    const auto r = std::ranges::find_if(radky, sedi);
    return r == radky.end() ? nullptr : &*r;
}
template <class P, std::size_t N>
const P* Najdi(const P (&tabulka)[N], auto&& sedi) {
    return Najdi(std::span<const P>(tabulka), sedi);
}

/// The search of one line. Fields are numbered from 1.
class HledaniVRadku {
public:
    HledaniVRadku(int uloha, std::string_view radek)
        : uloha_(uloha),
          pole_(Rozdel(radek, '#')),
          jichMaByt_(MapaDesky(DeskaUlohy(uloha)).Pole.size()) {}

    std::vector<NalezPole> Proved() {
        if (pole_.size() > jichMaByt_) {
            Pridej(static_cast<int>(jichMaByt_) + 1,
                   "je navíc; řádek má mít nejvýš " + std::to_string(jichMaByt_) + " polí");
        }
        pole_.resize(jichMaByt_);
        for (std::size_t i = 0; i < pole_.size(); ++i) {
            if (pole_[i].starts_with(' ') || pole_[i].ends_with(' ')) {
                Pridej(static_cast<int>(i) + 1, "mezera na začátku nebo na konci");
            }
        }
        if (Druh()) {
            PoleZVyctu();
            Trojuhelnik();
            TrojuhelnikSVyskou();
            Ctyruhelnik();
            Jednotky();
            Cviceni();
        }
        std::vector<NalezPole> nalezy;
        for (const auto& [pole, duvod] : nalezy_) nalezy.push_back({pole, duvod});
        return nalezy;
    }

private:
    [[nodiscard]] std::string_view Pole(int i) const {
        return pole_[static_cast<std::size_t>(i) - 1];
    }
    /// A name as the rules spell it.
    [[nodiscard]] std::string_view Nazev(int i) const {
        const auto* p = Najdi(JINAK_PSANE, [&](const PravidloPsani& r) {
            return r.Uloha == uloha_ && r.Psano == Pole(i);
        });
        return p == nullptr ? Pole(i) : p->Mini;
    }
    /// The first reason of a field is the one to be told.
    void Pridej(int pole, std::string duvod) { nalezy_.emplace(pole, std::move(duvod)); }
    void CekaSe(int i, std::string_view coMaByt) {
        Pridej(i, "je " + Uvozovky(Pole(i)) + ", má být " + std::string(coMaByt));
    }
    bool Ma(int i, Slova slova, std::string_view proc = {}) {
        if (JeMezi(Pole(i), slova)) return true;
        CekaSe(i, Nabidka(slova) + (proc.empty() ? "" : " (" + std::string(proc) + ")"));
        return false;
    }
    bool Ma(int i, std::string_view slovo) { return Ma(i, Slova(&slovo, 1)); }
    [[nodiscard]] bool Plati(const auto& p) const {
        return uloha_ >= p.UlohaOd && uloha_ <= p.UlohaPo;
    }

    /// The fields hold the words, each of them once, in any order. Words that no field holds are
    /// left behind.
    bool MajiKazdeJednou(std::span<const int> pole, SeznamSlov& slova) {
        std::vector<int> jinak;
        for (const int i : pole) {
            const auto slovo = std::ranges::find(slova, Nazev(i));
            if (slovo == slova.end()) {
                jinak.push_back(i);
            } else {
                slova.erase(slovo);
            }
        }
        for (const int i : jinak) {
            CekaSe(i, slova.empty() ? "prázdné" : Nabidka(slova));
        }
        return jinak.empty();
    }
    bool MajiKazdeJednou(std::initializer_list<int> pole, Slova slova) {
        SeznamSlov zbyva(slova.begin(), slova.end());
        return MajiKazdeJednou(std::span(pole.begin(), pole.size()), zbyva);
    }

    // ---- The rules, one kind of table after another ------------------------------------------

    bool Druh() {
        const auto* p = Najdi(DRUHY, [&](const PravidloDruhu& r) { return Plati(r); });
        const auto cislo = CisloZCislic(Pole(1));
        if (cislo && Pole(1).size() == p->Cislic && *cislo >= p->Od && *cislo <= p->Po) return true;
        const auto text = [p](int n) { return p->Cislic == 2 ? DveCislice(n) : TextBezMezery(n); };
        CekaSe(1, text(p->Od) + (p->Od == p->Po ? "" : " až " + text(p->Po)));
        return false;
    }

    void PoleZVyctu() {
        for (const PravidloPole& p : POLE) {
            if (Plati(p)) Ma(p.Pole, p.Povolene);
        }
    }

    void Jednotky() {
        for (const PravidloJednotky& p : JEDNOTKY) {
            if (!Plati(p) || nalezy_.contains(p.Nazev)) continue;
            Ma(p.Jednotka, JeUhel(Pole(p.Nazev))                  ? STUPNE
                           : JeMezi(Pole(p.Nazev), ROVNOBEZNOSTI) ? ""
                                                                  : CM);
        }
    }

    void Trojuhelnik() {
        if (DeskaUlohy(uloha_) != Deska::Troj1Form) return;
        const auto* t =
            Najdi(TROJUHELNIKY, [&](const PravidloTrojuhelniku& r) { return r.Druh == Pole(1); });
        for (int i = 0; i < 3; ++i) Ma(3 + i, t->Nazvy[i]);
        MajiKazdeJednou({10, 11}, t->Utvary);
    }

    [[nodiscard]] const PravidloVeliciny* Velicina(int i) const {
        return Najdi(VELICINY, [&](const PravidloVeliciny& r) { return r.Nazev == Pole(i); });
    }

    void TrojuhelnikSVyskou() {
        if (DeskaUlohy(uloha_) != Deska::Troj2Form || !nalezy_.empty()) return;
        for (const PravidloStrany& p : PATRI_KE_STRANE) {
            if (p.Uloha != uloha_) continue;
            const bool patri = std::ranges::any_of(p.Strany, [&](int i) {
                return i != 0 && Velicina(i)->Strana == Velicina(p.Pole)->Strana;
            });
            if (patri != p.Patri) {
                Pridej(p.Pole, "je " + Uvozovky(Pole(p.Pole)) + "; " + std::string(p.Duvod));
            }
        }
        if (!nalezy_.empty()) return;
        // What is given besides the first side is drawn after it.
        const auto* prvni =
            Najdi(PRVNI_STRANY, [&](const PravidloPrvniStrany& r) { return r.Uloha == uloha_; });
        SeznamSlov utvary;
        for (const int i : {3, 4, 5}) {
            if (Pole(i) != Velicina(prvni->Pole)->Strana) utvary.push_back(Velicina(i)->Utvar);
        }
        if (!MajiKazdeJednou({11, 13}, utvary)) return;
        // An object takes the first step that expects its kind. So the first may do for the second
        // only where the second does for it.
        const std::string_view druheho[] = {"", Pole(11)};
        const std::string_view prvniho[] = {"", Pole(13)};
        Ma(14, druheho, NAHRADNI);
        Ma(12, Slova(prvniho).first(Pole(14).empty() ? 1 : 2), NAHRADNI);
    }

    // ---- Quadrilaterals ----------------------------------------------------------------------

    void Ctyruhelnik() {
        const auto* s = Najdi(SKUPINY, [&](const PravidloSkupiny& r) {
            const int druh = CisloZCislic(Pole(1)).value_or(0);
            return std::ranges::find(r.Ulohy, uloha_) != std::end(r.Ulohy) && druh >= r.Od &&
                   druh <= r.Po && (druh - r.Od) % r.PoKolika == 0;
        });
        if (s == nullptr) return;
        const bool trojuhelnik = Ma(2, s->Trojuhelniky, "podle druhu");
        if (!Ma(9, Slova(&s->Veta, 1), "podle druhu") || !trojuhelnik) return;
        const auto* v = Najdi(VETY, [&](const PravidloVety& r) {
            return r.Veta == s->Veta && r.Trojuhelnik == Pole(2);
        });
        const Slova nazvy = v->Nazvy;
        bool sedi = false;
        if (s->TretiPosledni) {
            sedi = MajiKazdeJednou({3, 4}, nazvy.first(2));
            sedi = MajiKazdeJednou({5}, nazvy.last(1)) && sedi;
        } else {
            sedi = MajiKazdeJednou({3, 4, 5}, nazvy);
        }
        if (s->Ctvrta == Ctvrty::Zadna) {
            KrokyRovnobezniku();
        } else if (sedi) {
            CtvrtyVrchol(*s, *v);
        }
    }

    /// The object for the quantity that begins at this field; null if it cannot be one.
    const PravidloPrvku* Prvek(int i, Ctvrty co, const PravidloVety& v, bool rovnobeznost) {
        const auto* c = Najdi(CTVRTE, [co](const PravidloCtvrteho& r) { return r.co == co; });
        // The outer end of the first side in the theorem is the triangle's first letter.
        const bool prvni = (co == Ctvrty::UhelPrvni) == (Pole(3) == v.Nazvy[0]);
        const char vrchol = v.Trojuhelnik[prvni ? 0 : 2];
        SeznamSlov nazvy;
        const PravidloPrvku* nalezeny = nullptr;
        for (const PravidloPrvku& p : PRVKY) {
            if (p.Trojuhelnik != v.Trojuhelnik) continue;
            const bool tady = p.Utvar == c->Utvar && (co == Ctvrty::Strana || p.Vrchol == vrchol);
            if (!tady && !(rovnobeznost && p.Utvar == ROVNOBEZKA)) continue;
            nazvy.push_back(p.Velicina);
            if (p.Velicina == Nazev(i)) nalezeny = &p;
        }
        if (nalezeny == nullptr) {
            CekaSe(i, Nabidka(nazvy) + " (" + std::string(c->Popis) +
                          (rovnobeznost ? ", nebo rovnoběžnost)" : ")"));
        } else {
            Ma(i + 2, nalezeny->Utvar);
            Ma(i + 3, nalezeny->Prvek);
        }
        return nalezeny;
    }

    void CtvrtyVrchol(const PravidloSkupiny& s, const PravidloVety& v) {
        const int pocet = Najdi(ROVNOBEZEK, [&](const PravidloRovnobeznosti& r) {
                              return r.Uloha == uloha_;
                          })->Pocet;
        const auto* prvni = Prvek(POLE_CTVRTE, s.Ctvrta, v, pocet != 0);
        const auto* druhy = Prvek(POLE_PATE, s.Pata, v, pocet != 0);
        if (prvni == nullptr || druhy == nullptr) return;
        const int je = static_cast<int>(prvni->Utvar == ROVNOBEZKA) +
                       static_cast<int>(druhy->Utvar == ROVNOBEZKA);
        if (je != pocet) {
            Pridej(POLE_PATE, "čtvrtou nebo pátou veličinou má být rovnoběžnost, právě jednou");
        } else if (prvni == druhy || (pocet != 0 && prvni->Vrchol == druhy->Vrchol)) {
            Pridej(POLE_PATE, "je " + Uvozovky(Pole(POLE_PATE)) +
                                  "; s prvním útvarem čtvrtý vrchol neurčí, oba vycházejí z " +
                                  std::string(1, druhy->Vrchol));
        }
    }

    void KrokyRovnobezniku() {
        const auto utvar = [](int n) { return POLE_KROKU + 2 * (n - 1); };
        bool znameDruhy = true;
        for (int n = 1; n <= KROKU; ++n) {
            znameDruhy = Ma(utvar(n), DRUHY_KROKU) && znameDruhy;
            if (Pole(utvar(n)).empty() && !Pole(utvar(n) + 1).empty()) {
                Pridej(utvar(n), "chybí, ačkoli jméno kroku je vyplněné");
            }
        }
        for (const PravidloKroku& p : KROKY) {
            if (p.Trojuhelnik != Pole(2)) continue;
            std::vector<int> jmena;
            for (int n = 1; n <= KROKU; ++n) {
                if (Pole(utvar(n)) != p.Utvar) continue;
                jmena.push_back(utvar(n) + 1);
                if (n > p.Posledni) {
                    Pridej(utvar(n), "je " + Uvozovky(p.Utvar) + "; smí být jen mezi prvními " +
                                         std::to_string(p.Posledni) + " kroky");
                }
            }
            SeznamSlov zbyva = Neprazdna(p.Jmena);
            if (!MajiKazdeJednou(jmena, zbyva) || !znameDruhy) continue;
            for (const std::string_view jmeno : zbyva) {
                Pridej(0, "chybí krok " + Uvozovky(p.Utvar) + " se jménem " + Uvozovky(jmeno));
            }
        }
    }

    // ---- Circles and tangents ----------------------------------------------------------------

    /// Given objects and solution entries, whole: the board finds the entries by their names.
    void Cviceni() {
        if (DeskaUlohy(uloha_) != Deska::TecnyForm) return;
        const auto* c = NajdiCviceni(Pole(1));
        std::vector<std::string> maByt(jichMaByt_);
        auto dane = maByt.begin() + POLE_DANYCH - 1;
        for (const std::string& utvar : Rozdel(c->Dano, ',')) {
            // A segment is given by its two points, anything else by one name.
            const std::string jmeno = utvar.substr(utvar.rfind(' ') + 1);
            const bool usecka = utvar.find("úsečka") != std::string::npos;
            *dane++ = usecka ? jmeno.substr(0, 1) : jmeno;
            *dane++ = usecka ? jmeno.substr(1) : "";
        }
        auto reseni = maByt.begin() + POLE_RESENI - 1;
        for (const KrokTecny& k : c->Kroky) {
            const auto* r =
                Najdi(RESENI, [&k](const PravidloReseni& x) { return x.Cim == k.Spravny; });
            if (r == nullptr) continue;
            for (const std::string_view jmeno : Neprazdna(k.Jmena)) {
                if (!r->Bod && !JeMezi(jmeno, c->Vysledky)) continue;
                // Two results can be made in two steps that are alike.
                if (std::find(maByt.begin() + POLE_RESENI - 1, reseni, jmeno) != reseni) continue;
                *reseni++ = jmeno;
                *reseni++ = r->Utvar;
            }
        }
        for (std::size_t i = 1; i < maByt.size(); ++i) {
            const int pole = static_cast<int>(i) + 1;
            if (Pole(pole) != maByt[i]) {
                CekaSe(pole, maByt[i].empty() ? "prázdné" : Uvozovky(maByt[i]));
            }
        }
    }

    int uloha_;
    std::vector<std::string> pole_;
    std::size_t jichMaByt_;
    std::map<int, std::string> nalezy_;  // by the field
};

}  // namespace

std::vector<NalezPole> ZkontrolujPriklad(int uloha, std::string_view radek) {
    return HledaniVRadku(uloha, radek).Proved();
}

}  // namespace rysovna::kodovani
