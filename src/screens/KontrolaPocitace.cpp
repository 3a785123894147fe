#include "screens/KontrolaPocitace.h"

#include <algorithm>
#include <exception>
#include <ostream>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "platform/Cesta.h"
#include "platform/Host.h"
#include "platform/Overeni.h"
#include "rules/Misc.h"
#include "rules/Ulohy.h"
#include "screens/SeznamAssetu.h"
#include "store/JmenaSouboru.h"
#include "store/Nastaveni.h"
#include "store/RadkySouboru.h"
#include "store/Soubory.h"

namespace rysovna {
namespace {

using enum Nalez::Jak;

/// Adds what a look found; its fault is the finding.
template <class Pohled>
void Zkus(std::vector<Nalez>& nalezy, const std::string& co, Nalez::Jak jinak, Pohled&& pohled) {
    try {
        nalezy.push_back({VPoradku, co, pohled()});
    } catch (const std::exception& chyba) {
        nalezy.push_back({jinak, co, chyba.what()});
    }
}

void ZkontrolujData(Disk& disk, const std::string& slozka, std::vector<Nalez>& nalezy) {
    std::size_t vadnych = 0;
    Misc misc;
    const auto zkus = [&](const std::string& jmeno, auto&& pohled) {
        std::vector<Nalez> jeden;
        Zkus(jeden, "Data " + disk.Skutecna(slozka + jmeno).filename().string(), Chyba,
             [&] { return pohled(slozka + jmeno), std::string(); });
        if (jeden.front().Stav == VPoradku) return;
        ++vadnych;
        nalezy.push_back(jeden.front());
    };
    for (const Uloha& uloha : ULOHY) {
        zkus(JmenoUlohy(uloha.Cislo), [&](const std::string& soubor) {
            NactiPriklady(misc, disk, soubor, MapaDesky(uloha.deska));
        });
    }
    zkus(JMENO_ZNAMEK, [&](const std::string& soubor) {
        NactiZnamky(misc, disk, soubor);
        if (misc.ZnamkyTab[1] == RadekZnamek{})
            throw BehovaChyba("V souboru není žádná známka", disk.Skutecna(soubor).string());
    });
    zkus(JMENO_VET, [&](const std::string& soubor) {
        if (PocetVet(disk, soubor) == 0)
            throw BehovaChyba("V souboru není žádná věta", disk.Skutecna(soubor).string());
    });
    if (vadnych == 0)
        nalezy.push_back({VPoradku, "Data", "souborů: " + std::to_string(JmenaDat().size())});
}

}  // namespace

void ZkontrolujAssety(const std::string& slozka, std::vector<Nalez>& nalezy) {
    struct Druh {
        const char* Slozka;
        const char* Co;
        std::function<std::string(const std::filesystem::path&, int, int)> Vada;
        int Dobrych = 0, Vadnych = 0;
    };
    Druh druhy[] = {
        {"Fonts/", "Písma", [](const auto& s, int, int) { return VadaPisma(s); }},
        {"Sound/", "Zvuky", [](const auto& s, int, int) { return VadaZvuku(s); }},
        {"Bitmap/", "Obrázky", [](const auto& s, int w, int h) { return VadaObrazku(s, w, h); }},
    };
    for (const std::string& radek : NaRadky(SEZNAM_ASSETU)) {
        const auto [jmeno, sirka, vyska] = Rozdel<3>(radek, ' ');
        for (Druh& druh : druhy) {
            if (!jmeno.starts_with(druh.Slozka)) continue;
            const auto soubor = NativniCesta(slozka + std::string(jmeno));
            const std::string vada =
                druh.Vada(soubor, Zaokrouhli(Cislo(sirka)), Zaokrouhli(Cislo(vyska)));
            ++(vada.empty() ? druh.Dobrych : druh.Vadnych);
            if (!vada.empty()) nalezy.push_back({Chyba, druh.Co, soubor.string() + ": " + vada});
        }
    }
    for (const Druh& druh : druhy) {
        if (druh.Vadnych == 0)
            nalezy.push_back({VPoradku, druh.Co, "souborů: " + std::to_string(druh.Dobrych)});
    }
}

std::vector<Nalez> ZkontrolujPocitac(const KontrolovanyStroj& stroj) {
    std::vector<Nalez> nalezy;
    const Nastaveni nastaveni = CtiNastaveni(stroj.disk, stroj.SlozkaNastaveni, stroj.SlozkaDat);
    const bool uplne = !nastaveni.CD.empty() && !nastaveni.HD.empty();
    nalezy.push_back({uplne ? VPoradku : Chyba, "Nastavení",
                      (stroj.disk.Skutecna(stroj.SlozkaNastaveni) / JMENO_INI).string() +
                          (uplne ? "" : ": chybí, nebo v něm není klíč CD nebo HD")});
    Zkus(nalezy, "Obrazovka", Chyba, stroj.Obrazovka);
    // The game is silent without it and nothing else.
    Zkus(nalezy, "Zvukové zařízení", Pozor, stroj.Zvuk);
    if (!nastaveni.CD.empty()) ZkontrolujAssety(nastaveni.CD, nalezy);
    if (!nastaveni.HD.empty()) ZkontrolujData(stroj.disk, nastaveni.HD, nalezy);
    if (!nastaveni.Vysledky.empty() || nastaveni.Oddelene)
        ZkontrolujVysledky(stroj, nastaveni, nalezy);
    return nalezy;
}

int VypisKontrolu(std::ostream& kam, const std::vector<Nalez>& nalezy) {
    constexpr const char* SLOVA[] = {"v pořádku", "pozor    ", "CHYBA    "};
    for (const Nalez& n : nalezy)
        kam << SLOVA[static_cast<int>(n.Stav)] << "  " << n.Co << ": " << n.Zjisteno << '\n';
    const auto chyb = std::ranges::count(nalezy, Chyba, &Nalez::Stav);
    kam << (chyb == 0 ? "Hra je připravena." : "Chyb: " + std::to_string(chyb)) << '\n';
    return chyb == 0 ? 0 : 1;
}

}  // namespace rysovna
