#include "Kontrola.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "Pravidla.h"
#include "Prevod.h"
#include "base/Cisla.h"
#include "shell/Kodovani.h"
#include "shell/MapaPoli.h"

namespace rysovna::kodovani {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t NEJVIC_PRIKLADU = 100;
constexpr std::size_t RADKU_ZNAMEK = 5;
constexpr std::size_t KROK_KODU = 4;

std::string Uvozovky(std::string_view text) {
    return "„" + std::string(text) + "“";
}

bool JeMezi(std::string_view slovo, Slova slova) {
    return std::ranges::find(slova, slovo) != slova.end();
}

std::string Vycet(Slova slova) {
    std::string text;
    for (const std::string_view slovo : slova) {
        if (!text.empty()) text += ", ";
        text += slovo.empty() ? "nic" : slovo;
    }
    return text;
}

/// A whole number that is nothing but digits.
std::optional<int> CeleCislo(std::string_view text) {
    int cislo = 0;
    const char* const konec = text.data() + text.size();
    const auto [kam, chyba] = std::from_chars(text.data(), konec, cislo);
    if (text.empty() || chyba != std::errc() || kam != konec || text.front() == '-') return {};
    return cislo;
}

std::vector<std::string> Rozdel(const std::string& text, char oddelovac) {
    std::vector<std::string> pole(1);
    for (const char znak : text) {
        if (znak == oddelovac) {
            pole.emplace_back();
        } else {
            pole.back() += znak;
        }
    }
    return pole;
}

/// The search of one file.
class Hledani {
public:
    explicit Hledani(fs::path cesta) : cesta_(std::move(cesta)), soubor_(Rozpoznej(cesta_)) {}

    std::vector<Nalez> Proved() {
        if (soubor_.obsah == Obsah::Neznamy) {
            Pridej(0, {},
                   "neznámý soubor; zkontrolovat jdou 01 až 20 (.txt, .dat, .res), Errors a "
                   "Znamky (.txt, .dat)");
            return nalezy_;
        }
        const std::vector<Radek> radky = soubor_.Citelny ? Citelne() : Ulozene();
        switch (soubor_.obsah) {
            case Obsah::Uloha:
                Uloha(radky);
                break;
            case Obsah::Chyby:
                Vety(radky);
                break;
            case Obsah::Znamky:
                Znamky(radky);
                break;
            case Obsah::Tabulka:
                Tabulka(radky);
                break;
            case Obsah::Neznamy:
                break;
        }
        return nalezy_;
    }

private:
    void Pridej(int radek, std::string pole, std::string duvod) {
        nalezy_.push_back({.Misto = radek == 0 ? cesta_.string() : Misto(cesta_, radek),
                           .Pole = std::move(pole),
                           .Duvod = std::move(duvod)});
    }

    std::vector<Radek> Citelne() {
        std::vector<Radek> radky = CtiCitelny(cesta_);
        for (const Radek& radek : radky) {
            if (const auto znak = ZnakMimoStranku(radek.Text)) {
                Pridej(radek.Cislo, {},
                       "znak č. " + std::to_string(*znak + 1) +
                           " nejde uložit (není v kódové stránce 1250)");
            }
        }
        return radky;
    }

    /// Decoded lines; those whose bytes mean nothing are told and left out.
    std::vector<Radek> Ulozene() {
        const bool kodovane = soubor_.obsah == Obsah::Uloha || soubor_.obsah == Obsah::Chyby;
        std::vector<Radek> radky;
        int cislo = 0;
        for (const std::string& ulozeny : CtiRadky(cesta_)) {
            ++cislo;
            if (kodovane && ulozeny.size() % KROK_KODU != 0) {
                Pridej(cislo, {}, "délka uloženého řádku není násobkem čtyř (useknutý řádek?)");
            }
            std::string text = kodovane ? DekodujRadek(ulozeny) : ulozeny;
            if (const auto bajt = NedefinovanyBajt(text)) {
                Pridej(cislo, {},
                       "znak č. " + std::to_string(*bajt + 1) + " není v kódové stránce 1250");
                continue;
            }
            text = Z1250(text, {});
            if (soubor_.obsah == Obsah::Chyby) text = CitelnaVeta(text);
            radky.push_back({.Cislo = cislo, .Text = std::move(text)});
        }
        if (cislo > 0 && !KonciRadkem()) {
            Pridej(cislo, {}, "za posledním řádkem chybí konec řádku (useknutý soubor?)");
        }
        return radky;
    }

    [[nodiscard]] bool KonciRadkem() const {
        std::ifstream proud(cesta_, std::ios::binary | std::ios::ate);
        proud.seekg(-1, std::ios::end);
        return proud.get() == '\n';
    }

    void Uloha(const std::vector<Radek>& radky) {
        if (radky.empty()) Pridej(0, {}, "žádný příklad");
        std::size_t poradi = 0;
        for (const Radek& radek : radky) {
            if (++poradi == NEJVIC_PRIKLADU + 1) {
                Pridej(radek.Cislo, {}, "příkladů je více než 100");
            }
            Priklad(radek);
        }
    }

    void Priklad(const Radek& radek) {
        radek_ = radek.Cislo;
        mapa_ = PoleDesky(DeskaUlohy(soubor_.Uloha));
        pole_ = Rozdel(radek.Text, '#');
        if (pole_.size() > mapa_.size()) {
            Pridej(radek_, "pole " + std::to_string(mapa_.size() + 1),
                   "je navíc; řádek má mít nejvýš " + std::to_string(mapa_.size()) + " polí");
        }
        pole_.resize(mapa_.size());
        for (std::size_t i = 0; i < pole_.size(); ++i) {
            const std::string& p = pole_[i];
            if (p.starts_with(' ') || p.ends_with(' ')) {
                PridejPole(static_cast<int>(i) + 1, "mezera na začátku nebo na konci");
            }
        }
        if (!Druh()) return;
        PoleZVyctu();
        Dvojice();
        Trojuhelnik();
        Reseni();
    }

    [[nodiscard]] std::string_view Pole(int i) const {
        return pole_[static_cast<std::size_t>(i) - 1];
    }
    void PridejPole(int i, std::string duvod) {
        Pridej(radek_,
               "pole " + std::to_string(i) + " (" +
                   std::string(mapa_[static_cast<std::size_t>(i) - 1].Jmeno) + ")",
               std::move(duvod));
    }
    void CekaSe(int i, std::string_view coMaByt) {
        PridejPole(i, "je " + Uvozovky(Pole(i)) + ", má být " + std::string(coMaByt));
    }
    template <class P>
    [[nodiscard]] bool Plati(const P& pravidlo) const {
        return soubor_.Uloha >= pravidlo.UlohaOd && soubor_.Uloha <= pravidlo.UlohaPo;
    }

    bool Druh() {
        for (const PravidloDruhu& p : DRUHY) {
            if (!Plati(p)) continue;
            const auto cislo = CeleCislo(Pole(1));
            if (Pole(1).size() == p.Cislic && cislo && *cislo >= p.Od && *cislo <= p.Po) continue;
            const auto text = [&](int n) {
                return p.Cislic == 2 ? DveCislice(n) : TextBezMezery(n);
            };
            CekaSe(1, text(p.Od) + (p.Od == p.Po ? "" : " až " + text(p.Po)));
            return false;
        }
        return true;
    }

    void PoleZVyctu() {
        for (const PravidloPole& p : POLE) {
            if (Plati(p) && !JeMezi(Pole(p.Pole), p.Povolene)) {
                CekaSe(p.Pole, (p.Povolene.size() == 1 ? "" : "jedno z: ") + Vycet(p.Povolene));
            }
        }
    }

    void Dvojice() {
        for (const PravidloDvojice& p : DVOJICE) {
            if (!Plati(p)) continue;
            if (p.vazba == Vazba::NazevAJednotka) {
                const std::string_view jednotka = JeMezi(Pole(p.Pole), UHLY)            ? STUPNE
                                                  : JeMezi(Pole(p.Pole), ROVNOBEZNOSTI) ? ""
                                                                                        : CM;
                if (Pole(p.Druhe) != jednotka) CekaSe(p.Druhe, Uvozovky(jednotka));
            } else if (Pole(p.Pole).empty() != Pole(p.Druhe).empty()) {
                PridejPole(Pole(p.Pole).empty() ? p.Pole : p.Druhe,
                           "chybí, ačkoli druhé pole kroku je vyplněné");
            }
        }
    }

    /// Kinds whose given quantities and steps are settled wholly.
    void Trojuhelnik() {
        if (DeskaUlohy(soubor_.Uloha) != Deska::Troj1Form) return;
        const auto* const t = std::ranges::find(TROJUHELNIKY, Pole(1), &PravidloTrojuhelniku::Druh);
        for (int i = 0; i < 3; ++i) {
            if (Pole(3 + i) != t->Nazvy[i]) CekaSe(3 + i, Uvozovky(t->Nazvy[i]));
        }
        if (Pole(9) != USECKA[0]) CekaSe(9, Uvozovky(USECKA[0]));
        const auto [u1, u2] = t->Utvary;
        if (Pole(10) != u1 && Pole(10) != u2) {
            CekaSe(10, Uvozovky(u1) + (u1 == u2 ? "" : " nebo " + Uvozovky(u2)));
        } else if (const std::string_view zbyva = Pole(10) == u1 ? u2 : u1; Pole(11) != zbyva) {
            CekaSe(11, Uvozovky(zbyva));
        }
    }

    /// Solution entries of a tangent exercise, whole: the board finds them by these names.
    void Reseni() {
        if (DeskaUlohy(soubor_.Uloha) != Deska::TecnyForm) return;
        const auto* const r = std::ranges::find(RESENI, Pole(1), &PravidloReseni::Druh);
        for (int i = 0; i < static_cast<int>(std::size(r->Pole)); ++i) {
            const std::string_view ma = r->Pole[i];
            const int pole = PRVNI_POLE_RESENI + i;
            if (Pole(pole) != ma) CekaSe(pole, ma.empty() ? "prázdné" : Uvozovky(ma));
        }
    }

    void Vety(const std::vector<Radek>& radky) {
        std::map<int, int> kde;  // number of a step: its line
        std::set<int> chybi;
        for (const RozsahKroku& r : CHYBNE_KROKY) {
            for (int n = r.Od; n <= r.Po; ++n) chybi.insert(n);
        }
        const std::set<int> zname = chybi;
        for (const Radek& radek : radky) {
            const std::size_t mezera = std::min(radek.Text.find(' '), radek.Text.size());
            const std::string_view text = radek.Text;
            const auto cislo = CeleCislo(text.substr(0, mezera));
            if (!cislo || *cislo < 1 || *cislo > 999) {
                Pridej(radek.Cislo, "číslo",
                       "je " + Uvozovky(text.substr(0, mezera)) + ", má být 1 až 999");
                continue;
            }
            if (text.find_first_not_of(' ', mezera) == std::string_view::npos) {
                Pridej(radek.Cislo, "věta", "chybí");
            }
            if (const auto [prvni, nova] = kde.emplace(*cislo, radek.Cislo); !nova) {
                Pridej(radek.Cislo, "číslo",
                       "krok " + std::to_string(*cislo) + " už je na řádku " +
                           std::to_string(prvni->second) + "; body by se strhly dvakrát");
            }
            if (!zname.contains(*cislo)) {
                Pridej(radek.Cislo, "číslo",
                       "krok " + std::to_string(*cislo) + " žádná úloha nezná");
            }
            chybi.erase(*cislo);
        }
        for (const int n : chybi) Pridej(0, {}, "chybí věta ke kroku " + std::to_string(n));
    }

    void Znamky(const std::vector<Radek>& radky) {
        struct Meze {
            int Dolni, Horni, Znamka;
        };
        static constexpr std::string_view JMENA[]{"dolní mez", "horní mez", "známka"};
        std::vector<Meze> meze;
        for (const Radek& radek : radky) {
            const std::vector<std::string> pole = Rozdel(radek.Text, '|');
            if (pole.size() != 3) {
                Pridej(radek.Cislo, {}, "řádek má mít tři pole oddělená znakem |");
                continue;
            }
            std::vector<int> cisla;
            for (std::size_t i = 0; i < 3; ++i) {
                const auto cislo = CeleCislo(pole[i]);
                if (cislo && *cislo <= 255) {
                    cisla.push_back(*cislo);
                } else {
                    Pridej(radek.Cislo,
                           "pole " + std::to_string(i + 1) + " (" + std::string(JMENA[i]) + ")",
                           "je " + Uvozovky(pole[i]) + ", má být celé číslo 0 až 255");
                }
            }
            if (cisla.size() != 3) continue;
            if (cisla[0] > cisla[1]) {
                Pridej(radek.Cislo, {}, "dolní mez je větší než horní");
            }
            if (!meze.empty() && cisla[2] <= meze.back().Znamka) {
                Pridej(radek.Cislo, "pole 3 (známka)", "známky nejdou od nejlepší k nejhorší");
            }
            meze.push_back({cisla[0], cisla[1], cisla[2]});
        }
        if (radky.size() > RADKU_ZNAMEK) {
            Pridej(radky[RADKU_ZNAMEK].Cislo, {}, "řádků je více než pět");
        } else if (radky.size() < RADKU_ZNAMEK) {
            Pridej(0, {}, "řádků má být pět; za chybějící by nula procent dostala známku 0");
        }
        std::ranges::sort(meze, {}, &Meze::Dolni);
        int pokryto = 0;
        for (const Meze& m : meze) {
            if (m.Dolni > pokryto) {
                Pridej(0, {},
                       "mezi " + std::to_string(pokryto) + " a " + std::to_string(m.Dolni) +
                           " % není žádná známka");
            }
            pokryto = std::max(pokryto, m.Horni);
        }
        if (pokryto < 100) {
            Pridej(0, {}, "nad " + std::to_string(pokryto) + " % není žádná známka");
        }
    }

    void Tabulka(const std::vector<Radek>& radky) {
        static constexpr std::string_view JMENA[]{"Jmeno", "Spravne", "Spatne", "Znamka"};
        for (const Radek& radek : radky) {
            const std::vector<std::string> pole = Rozdel(radek.Text, '|');
            if (pole.size() != std::size(JMENA)) {
                Pridej(radek.Cislo, {}, "řádek má mít čtyři pole oddělená znakem |");
                continue;
            }
            for (std::size_t i = 1; i < pole.size(); ++i) {
                const bool prazdnaZnamka = i == 3 && pole[i].empty();
                if (!prazdnaZnamka && !CeleCislo(pole[i])) {
                    Pridej(radek.Cislo,
                           "pole " + std::to_string(i + 1) + " (" + std::string(JMENA[i]) + ")",
                           "je " + Uvozovky(pole[i]) + ", má být celé číslo");
                }
            }
        }
    }

    fs::path cesta_;
    Soubor soubor_;
    std::vector<Nalez> nalezy_;
    // Of the line in hand.
    int radek_ = 0;
    std::span<const Slot> mapa_;
    std::vector<std::string> pole_;
};

}  // namespace

std::vector<Nalez> Zkontroluj(const fs::path& cesta) {
    return Hledani(cesta).Proved();
}

}  // namespace rysovna::kodovani
