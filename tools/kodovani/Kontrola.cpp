#include "Kontrola.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <span>
#include <string_view>

#include "CeleSoubory.h"
#include "KontrolaPrikladu.h"
#include "Pole.h"
#include "Pravidla.h"
#include "Prevod.h"
#include "rules/KatalogChyb.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "store/KodovaStranka.h"
#include "store/Kodovani.h"
#include "store/MapaPoli.h"
#include "store/RadkySouboru.h"

namespace rysovna::kodovani {
namespace {

namespace fs = std::filesystem;

// As many as the session has room for.
constexpr std::size_t NEJVIC_PRIKLADU = decltype(Misc::Priklady)::POSLEDNI;
constexpr std::size_t RADKU_ZNAMEK = decltype(Misc::ZnamkyTab)::POSLEDNI;
constexpr std::size_t KROK_KODU = 4;

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
        for (const std::string& ulozeny : NaRadky(CtiSoubor(cesta_))) {
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
        const std::span<const Slot> mapa = MapaDesky(DeskaUlohy(soubor_.Uloha)).Pole;
        for (const auto& [pole, duvod] : ZkontrolujPriklad(soubor_.Uloha, radek.Text)) {
            const auto i = static_cast<std::size_t>(pole);
            std::string misto = i == 0 ? "" : "pole " + std::to_string(i);
            if (i >= 1 && i <= mapa.size()) misto += " (" + std::string(mapa[i - 1].Jmeno) + ")";
            Pridej(radek.Cislo, std::move(misto), duvod);
        }
    }

    void Vety(const std::vector<Radek>& radky) {
        std::map<int, int> kde;      // number of a step: its line
        std::set<int> chybi, uvody;  // those to whose sentence the board adds words of its own
        for (const DruhChyby& d : katalog::RADKY) {
            chybi.insert(d.Cislo);
            if (d.Kde.Jak == Zneni::SeSlovy) uvody.insert(d.Cislo);
        }
        const std::set<int> zname = chybi;
        for (const Radek& radek : radky) {
            const std::size_t mezera = std::min(radek.Text.find(' '), radek.Text.size());
            const std::string_view text = radek.Text;
            const auto cislo = CisloVety(text);
            if (!cislo) {
                Pridej(radek.Cislo, "číslo",
                       "je " + Uvozovky(text.substr(0, mezera)) + ", má být 1 až 999");
                continue;
            }
            if (text.find_first_not_of(' ', mezera) == std::string_view::npos) {
                Pridej(radek.Cislo, "věta", "chybí");
            } else if (uvody.contains(*cislo) && !text.ends_with(' ')) {
                // An editor that trims the ends of lines takes it away.
                Pridej(radek.Cislo, "věta",
                       "musí končit mezerou: program k ní připojí další slova");
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
                const auto cislo = CisloZCislic(pole[i]);
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
            // On a shared bound the lower line holds, and that is to be the better grade.
            if (!meze.empty() && cisla[2] >= meze.back().Znamka) {
                Pridej(radek.Cislo, "pole 3 (známka)", "známky nejdou od nejhorší k nejlepší");
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
                if (!prazdnaZnamka && !CisloZCislic(pole[i])) {
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
};

}  // namespace

std::vector<Nalez> Zkontroluj(const fs::path& cesta) {
    return Hledani(cesta).Proved();
}

}  // namespace rysovna::kodovani
