// The net under a rebuilding: plays every task by seeds, rightly and carelessly, and writes down
// what is to be seen and what is stored at every event. Two builds that behave alike write the
// same; porovnej runs both and shows where they part.

#include <algorithm>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "rules/KatalogChyb.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "sit/Obrazy.h"
#include "sit/Pozorovatel.h"
#include "sit/Ruce.h"
#include "zak/Sestroj.h"

namespace rysovna::sit {
namespace {

using hrac::NejdeUdelat;
using hrac::Relace;

constexpr const char* VERZE = "sit 1";  // of the output: another one cannot be compared
constexpr int PRIKLADU = 2;             // of a series
constexpr std::uint32_t PO_STISKU = 600, PO_KONCI = 1200, NEZ_JE_ZADANI = 1600;  // ms

/// One series to play.
struct Hrani {
    int Uloha = 1;
    std::uint32_t Seminko = 1;
    Relace::Cim Cim = Relace::Cim::Mysi;
    bool Spravne = true;
    sit::Velikosti Velikosti = sit::Velikosti::Obe;
};

/// In the order of the numbers of Cim.
constexpr std::pair<std::string_view, Relace::Cim> ZPUSOBY[] = {
    {"mysi", Relace::Cim::Mysi},
    {"klavesami", Relace::Cim::Klavesami},
    {"prstem", Relace::Cim::Prstem}};

/// From the title to the question at the end, with all that can be opened on the way.
class Serie {
public:
    Serie(const Hrani& h, std::ostream& kam, std::optional<Prani> prani)
        : h_(h),
          kam_(kam),
          hra_(h.Seminko, h.Cim),
          pozorovatel_(hra_, kam, h.Velikosti, std::move(prani)),
          los_(h.Seminko + 1000),
          ruka_(hra_, h.Seminko + 2000, souhrn_),
          nedbala_(hra_, h.Seminko + 3000, souhrn_) {}

    void Odehraj() {
        hra_.Host().Cas = {2026, 11, 3, 9, 5};
        hra_.Start();
        hra_.SpustUlohu(h_.Uloha, h_.Spravne ? "Žák" : "Řehoř", PRIKLADU);
        for (int i = 1; i <= PRIKLADU && NaDesce(); ++i) {
            if (i == 1) Rozhlednise();
            Sestroj(i);
            if (!NaDesce()) break;
            Zkontroluj();
            hra_.Cekej(i == PRIKLADU ? PO_STISKU : NEZ_JE_ZADANI);
        }
        Skonci();
        pozorovatel_.Zaver(h_.Uloha);
        VypisSouhrn();
    }

private:
    /// What this way of playing cannot do here is written down, and the play goes on.
    template <class Co>
    bool Zkus(const char* jmeno, Co&& co) {
        try {
            co();
            return true;
        } catch (const NejdeUdelat&) {
            pozorovatel_.Stanice(std::string("nejde ") + jmeno);
            return false;
        }
    }

    void Stiskni(const char* jmeno, int index = 0, std::uint32_t pak = PO_STISKU) {
        (void)Zkus(jmeno, [&] { hra_.Stiskni(jmeno, index); });
        hra_.Cekej(pak);
    }

    void Rozhlednise() {
        Stiskni("INadpis");
        hra_.Klavesa("Escape");
        hra_.Cekej(PO_STISKU);
        Stiskni("PicTop", 3);
        Stiskni("picKonec");
        Stiskni("Image1");
        Stiskni("MalaSipka");
    }

    void Sestroj(int priklad) {
        const auto seminko = h_.Seminko * 10 + static_cast<std::uint32_t>(priklad);
        const int poradi = static_cast<int>(h_.Seminko) * PRIKLADU + priklad;
        Vracejici& ruka = h_.Spravne ? ruka_ : nedbala_;
        ruka.NovyPriklad(poradi);
        // Every other example of the careless one is given up somewhere in the middle.
        nedbala_.DejTrpelivost(los_.Cislo(3) > 0 ? 80 : los_.Mezi(2, 20));
        const bool hotovo = Zkus("sestrojit", [&] { hrac::Sestroj(ruka, seminko); });
        if (h_.Spravne || hotovo) return;
        for (int i = los_.Mezi(0, 16); i > 0 && NaDesce(); --i) {
            (void)Zkus("neco", [&] { nedbala_.Neco(); });
        }
    }

    void Zkontroluj() {
        (void)Zkus("zkontrolovat", [&] { (h_.Spravne ? ruka_ : nedbala_).Zkontroluj(); });
        Stiskni("ImgHodnoceni", 0, 0);
        Stiskni("picPokracuj", 0, 0);
    }

    /// Whether a board is in front, once what covers it is closed.
    bool NaDesce() {
        for (int i = 0; i < 3 && hra_.Vpredu() != nullptr; ++i) {
            if (hra_.JmenoVpredu() == "HelpForm") {
                hra_.Klavesa("Escape");
            } else if (hra_.JmenoVpredu() == "TabulkaForm") {
                (void)Zkus("picKonec", [&] { hra_.Stiskni("picKonec"); });
            } else {
                break;
            }
            hra_.Cekej(PO_STISKU);
        }
        return hra_.Vpredu() != nullptr && hra_.Vpredu()->Najdi("SamplePic") != nullptr;
    }

    void Skonci() {
        if (NaDesce()) Stiskni("PicTop", 4);
        for (int i = 0; i < 3 && hra_.JmenoVpredu() != "SelectForm"; ++i) {
            Stiskni("picKonec", 0, PO_KONCI);
        }
        hra_.Host().Okna().ZadostOZavreni();
        pozorovatel_.Stanice("zavrit");
    }

    void VypisSouhrn() {
        kam_ << "souhrn " << h_.Uloha << " fazi " << souhrn_.NejvyssiFaze << " zpet z fazi";
        for (const auto& [faze, kolik] : souhrn_.ZpetZFaze) kam_ << ' ' << faze << ':' << kolik;
        kam_ << " po nastrojich";
        for (const auto& [nastroj, kolik] : souhrn_.ZpetPo) kam_ << ' ' << nastroj << ':' << kolik;
        kam_ << " sipek";
        for (const int kolik : souhrn_.Sipek) kam_ << ' ' << kolik;
        kam_ << " chyby";
        for (const auto& [chyba, kolik] : pozorovatel_.Chyb()) kam_ << ' ' << chyba << ':' << kolik;
        kam_ << " bodu " << int{hra_.Pamet().KladneBody} << " z " << PRIKLADU * BODU_ZA_PRIKLAD
             << '\n';
    }

    Hrani h_;
    std::ostream& kam_;
    Relace hra_;
    Pozorovatel pozorovatel_;
    hrac::Los los_;
    Souhrn souhrn_;
    Vracejici ruka_;
    Nedbala nedbala_;
};

void Odehraj(const Hrani& h, std::ostream& kam, const std::optional<Prani>& prani = {}) {
    kam << "hra " << h.Uloha << ' ' << h.Seminko << ' '
        << ZPUSOBY[static_cast<std::size_t>(h.Cim)].first << ' '
        << (h.Spravne ? "spravne" : "nedbale") << '\n';
    try {
        Serie(h, kam, prani).Odehraj();
    } catch (const std::exception& chyba) {
        kam << "chyba\n";
        std::cerr << h.Uloha << ' ' << h.Seminko << ": " << chyba.what() << '\n';
    }
}

/// "1-20", "4", "1,4,9-11".
std::vector<int> Cisla(const std::string& text) {
    std::vector<int> cisla;
    std::istringstream casti(text);
    for (std::string cast; std::getline(casti, cast, ',');) {
        const std::size_t pomlcka = cast.find('-') + 1;
        for (int i = std::stoi(cast); i <= std::stoi(cast.substr(pomlcka)); ++i) cisla.push_back(i);
    }
    return cisla;
}

/// "mysi", "klavesami-nedbale", "prstem-spravne"; without the latter both, one after the other.
std::vector<Hrani> Zpusoby(const std::string& text) {
    std::vector<Hrani> vsechny;
    for (const auto& [cim, ktery] : ZPUSOBY) {
        for (const bool spravne : {true, false}) {
            const std::string jmeno(cim);
            if (text == jmeno || text == jmeno + (spravne ? "-spravne" : "-nedbale"))
                vsechny.push_back({.Cim = ktery, .Spravne = spravne});
        }
    }
    if (vsechny.empty()) throw std::invalid_argument("takový způsob není: " + text);
    return vsechny;
}

constexpr const char* POUZITI =
    "Použití: sit hraj ÚLOHY SEMÍNKA [ZPŮSOB [640x480]]\n"
    "         sit obraz ÚLOHA SEMÍNKO ZPŮSOB ČÍSLO_UDÁLOSTI CO SOUBOR.png\n"
    "         sit rozdil A.png B.png KAM.png\n"
    "ÚLOHY a SEMÍNKA: 1-20, 1,4,9-11. ZPŮSOB: mysi, klavesami, prstem; s -spravne nebo -nedbale\n"
    "jen jedno z obojího. CO: 640x480, 1920x1080, Pic, HidenPic. S 640x480 na konci se velký\n"
    "obraz nemaluje.\n";

int Spust(const std::vector<std::string>& a) {
    const std::string co = a.empty() ? "" : a[0];
    if (co == "hraj" && a.size() >= 3 && a.size() <= 5) {
        const bool jenMala = a.size() == 5;
        if (jenMala && a[4] != "640x480")
            throw std::invalid_argument("jen v takové velikosti hrát nejde: " + a[4]);
        std::cout << VERZE << '\n';
        for (const int uloha : Cisla(a[1])) {
            for (const int seminko : Cisla(a[2])) {
                for (Hrani h : Zpusoby(a.size() > 3 ? a[3] : "mysi")) {
                    h.Uloha = uloha;
                    h.Seminko = static_cast<std::uint32_t>(seminko);
                    if (jenMala) h.Velikosti = Velikosti::JenMala;
                    Odehraj(h, std::cout);
                }
            }
        }
        return std::cout.flush() ? 0 : 1;
    }
    if (co == "obraz" && a.size() == 7) {
        Hrani h = Zpusoby(a[3]).at(0);
        h.Uloha = std::stoi(a[1]);
        h.Seminko = static_cast<std::uint32_t>(std::stoi(a[2]));
        // Who wants another picture than the large one need not wait for it.
        if (a[5] != "1920x1080") h.Velikosti = Velikosti::JenMala;
        std::ofstream nikam;  // closed: what is written to it is gone
        try {
            Odehraj(h, nikam, Prani{std::stoi(a[4]), a[5], a[6]});
        } catch (const ObrazHotov&) {
            return 0;
        }
        std::cerr << "k takové události nedošlo\n";
        return 1;
    }
    if (co == "rozdil" && a.size() == 4) {
        Obraz kam;
        const int lisiSe = Rozdil(NactiPng(a[1]), NactiPng(a[2]), kam);
        UlozPng(kam, a[3]);
        std::cout << lisiSe << '\n';
        return lisiSe == 0 ? 0 : 1;
    }
    std::cerr << POUZITI;
    return 2;
}

}  // namespace
}  // namespace rysovna::sit

int main(int pocet, char** slova) {
    try {
        return rysovna::sit::Spust({slova + 1, slova + pocet});
    } catch (const std::exception& chyba) {
        std::cerr << "sit: " << chyba.what() << '\n';
        return 2;
    }
}
