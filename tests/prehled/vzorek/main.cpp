// A made-up class for trying the overview: vzorek FOLDER SERIES writes as many attempts, of thirty
// pupils who play tasks from September to November, make the usual mistakes and make fewer of them
// later. The same each time. Beside the attempts it leaves zaci.csv, which tells their classes.

#include <algorithm>
#include <array>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <stdexcept>
#include <string>

#include "base/Cisla.h"
#include "podpora/RukaUlohy.h"
#include "store/JmenaSouboru.h"
#include "store/TextPokusu.h"
#include "zak/Sestroj.h"

namespace {

using namespace rysovna;

constexpr std::array JMENA = {
    "Adamová Šárka",    "Beneš Ondřej",      "Bílková Anežka",    "Čermák Vít",
    "Doležalová Ema",   "Dvořák Matěj",      "Fialová Zuzana",    "Hájek Štěpán",
    "Horáková Nela",    "Jelínek Tomáš",     "Kadlecová Žofie",   "Kolář Jáchym",
    "Kratochvíl Filip", "Králová Barbora",   "Kučera Dominik",    "Marková Tereza",
    "Mašek Lukáš",      "Moravcová Klára",   "Němec Jiří",        "Novák Šimon",
    "Pokorná Eliška",   "Procházka Kryštof", "Růžičková Adéla",   "Říhová Veronika",
    "Sedláček Daniel",  "Svoboda Tobiáš",    "Šimková Magdaléna", "Urban Hynek",
    "Vávrová Julie",    "Žák Bořivoj"};
constexpr std::array ULOHY_TRIDY = {1, 2, 3, 5, 7, 9, 10, 12, 18};
constexpr int PRIKLADU = 2;
constexpr int NEJVIC_CHYB = 90;  // the game has room for a hundred

/// Plays series of one task at a recorded dialogue; slips now and then.
class Hrac final : public testy::RukaSerie {
public:
    explicit Hrac(int uloha) : RukaSerie(uloha) {}

    /// chybuje: of a hundred things that are done so many go wrong.
    Pokus Odehraj(std::uint32_t seminko, unsigned chybuje) {
        los_.seed(seminko);
        chybuje_ = chybuje;
        Pamet().Generator.Zasej(seminko);
        Pamet().SmazTabulky();
        NactiRadky();
        ted_ = 0;
        ZacniSerii([this] { return ted_ += 700 + static_cast<std::uint32_t>(los_() % 5000); });
        const bool dokonci = los_() % 20 != 0;
        for (int i = 0; i < PRIKLADU; ++i) {
            dialog_->NovyPriklad();
            dialog_->NoveZadani();
            try {
                hrac::Sestroj(*this, static_cast<std::uint32_t>(los_() % 1000));
            } catch (const std::runtime_error&) {
                // A slip leads where the perfect way has no next step, or into too many wrong ones:
                // it stays unfinished.
            }
            const bool jde = Pamet().PocetChybnychKroku < NEJVIC_CHYB;
            if (jde && (dokonci || i + 1 < PRIKLADU)) dialog_->Zkontroluj();
        }
        return {.Program = "1.0",
                .CisloUlohy = Pamet().CisloUlohy,
                .PrikladuSerie = PRIKLADU,
                .Priklady = dialog_->Priklady(),
                .Dokonceny = dokonci};
    }

protected:
    bool StiskNacrtu(Bod b) override { return Zmyli() || RukaPravidel::StiskNacrtu(b); }
    void Pis(int ktery, const std::string& text) override {
        RukaPravidel::Pis(ktery, Zmyli() ? text + "1" : text);
    }
    void TahPoPlose(Bod odkud, Bod kam) override {
        if (Zmyli()) kam.X += 16;
        RukaPravidel::TahPoPlose(odkud, kam);
    }

private:
    bool Zmyli() { return los_() % 100 < chybuje_; }

    unsigned chybuje_ = 0;
    std::mt19937 los_;
    std::uint32_t ted_ = 0;
};

void Vyrob(const std::filesystem::path& kam, int serii) {
    std::filesystem::create_directories(kam);
    std::ofstream zaci(kam / "zaci.csv", std::ios::binary);
    for (std::size_t i = 0; i < JMENA.size(); ++i)
        zaci << JMENA[i] << ';' << JMENA[i] << ';' << (i % 2 == 0 ? "7.A" : "7.B") << '\n';
    std::mt19937 los(2026);
    for (const int uloha : ULOHY_TRIDY) {
        Hrac hrac(uloha);
        for (int n = 0; n < serii; ++n) {
            if (ULOHY_TRIDY[static_cast<std::size_t>(n) % ULOHY_TRIDY.size()] != uloha) continue;
            const auto zak = static_cast<std::size_t>(los() % JMENA.size());
            const int den = static_cast<int>(static_cast<std::int64_t>(n) * 80 / serii);
            const auto schopnost = static_cast<unsigned>(zak * 7 % 11);
            const unsigned chybuje = schopnost + 14U * static_cast<unsigned>(80 - den) / 80U;
            Pokus p = hrac.Odehraj(static_cast<std::uint32_t>(n) + 1, chybuje);
            p.Jmeno = JMENA[zak];
            p.Zacatek = {2026, 9 + den / 27, 1 + den % 27, 8 + n % 6, n * 7 % 60};
            const std::string jmeno = "2026-" + DveCislice(p.Zacatek.Mesic) + "-" +
                                      DveCislice(p.Zacatek.Den) + "_" + DveCislice(uloha) + "_" +
                                      std::to_string(n);
            std::ofstream(kam / (jmeno + std::string(PRIPONA_POKUSU)), std::ios::binary)
                << TextPokusu(p);
        }
    }
}

}  // namespace

int main(int pocet, char** slova) {
    if (pocet != 3) {
        std::cerr << "Použití: vzorek SLOŽKA SÉRIÍ\n";
        return 2;
    }
    try {
        Vyrob(slova[1], std::stoi(slova[2]));
        return 0;
    } catch (const std::exception& chyba) {
        std::cerr << "Vzorek selhal: " << chyba.what() << "\n";
        return 1;
    }
}
