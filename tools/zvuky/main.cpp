// Makes a sound from a recipe: zvuky RECIPE FILE.wav. The file is 16-bit mono at 22050 Hz.
//
// Lines of a recipe ("#" begins a comment):
//   delka MS               how long the sound is
//   nabeh MS               how long it takes to rise from silence
//   hlasitost H            its loudest level, 0 to 1
//   ton HZ H UTLUM_MS      one partial: pitch, share, and the time in which it falls to 1/e
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <numbers>
#include <sstream>
#include <string>
#include <vector>

#include "base/Chyba.h"

namespace {

using rysovna::BehovaChyba;

constexpr int VZORKU_ZA_S = 22050;

/// The end is faded over this long, so that the sound does not break off with a crack. ms
constexpr double DOZNENI_MS = 6;

struct Ton {
    double Hz = 0, Podil = 0, UtlumMs = 1;
};

struct Recept {
    double DelkaMs = 0, NabehMs = 1, Hlasitost = 0.5;
    std::vector<Ton> Tony;
};

Recept NactiRecept(const std::string& soubor) {
    std::ifstream vstup(soubor);
    if (!vstup) throw BehovaChyba("Nelze číst recept", soubor);
    Recept r;
    std::string text;
    for (int cislo = 1; std::getline(vstup, text); ++cislo) {
        std::stringstream radek(text);
        std::string slovo;
        if (!(radek >> slovo) || slovo[0] == '#') continue;
        if (slovo == "delka") {
            radek >> r.DelkaMs;
        } else if (slovo == "nabeh") {
            radek >> r.NabehMs;
        } else if (slovo == "hlasitost") {
            radek >> r.Hlasitost;
        } else if (slovo == "ton") {
            Ton t;
            radek >> t.Hz >> t.Podil >> t.UtlumMs;
            r.Tony.push_back(t);
        } else {
            radek.setstate(std::ios::failbit);
        }
        if (!radek) throw BehovaChyba("Špatný řádek receptu", soubor + ":" + std::to_string(cislo));
    }
    if (r.DelkaMs <= 0 || r.NabehMs <= 0 || r.Tony.empty())
        throw BehovaChyba("Recept nemá délku, náběh nebo tón", soubor);
    return r;
}

std::vector<double> Namichej(const Recept& r) {
    std::vector<double> vzorky;
    const int pocet = static_cast<int>(r.DelkaMs * VZORKU_ZA_S / 1000);
    double nejvic = 0;
    for (int i = 0; i < pocet; ++i) {
        const double ms = i * 1000.0 / VZORKU_ZA_S;
        double v = 0;
        for (const Ton& t : r.Tony)
            v += t.Podil * std::exp(-ms / t.UtlumMs) *
                 std::sin(2 * std::numbers::pi * t.Hz * ms / 1000);
        v *= std::min({1.0, ms / r.NabehMs, (r.DelkaMs - ms) / DOZNENI_MS});
        vzorky.push_back(v);
        nejvic = std::max(nejvic, std::abs(v));
    }
    for (double& v : vzorky) v *= r.Hlasitost / nejvic;
    return vzorky;
}

void UlozWav(const std::vector<double>& vzorky, const std::string& soubor) {
    std::string data;
    const auto pripis = [&data](std::uint32_t hodnota, int bytu) {
        for (int i = 0; i < bytu; ++i) data.push_back(static_cast<char>(hodnota >> (8 * i) & 255));
    };
    const auto delka = static_cast<std::uint32_t>(vzorky.size() * 2);
    data += "RIFF";
    pripis(36 + delka, 4);
    data += "WAVEfmt ";
    pripis(16, 4);
    pripis(1, 2);  // plain samples
    pripis(1, 2);  // one channel
    pripis(VZORKU_ZA_S, 4);
    pripis(VZORKU_ZA_S * 2, 4);
    pripis(2, 2);
    pripis(16, 2);
    data += "data";
    pripis(delka, 4);
    for (const double v : vzorky)
        pripis(static_cast<std::uint32_t>(static_cast<std::int32_t>(std::lround(v * 32767))), 2);
    std::ofstream ven(soubor, std::ios::binary);
    ven << data;
    ven.close();
    if (!ven) throw BehovaChyba("Nelze zapsat", soubor);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc == 3) {
            UlozWav(Namichej(NactiRecept(argv[1])), argv[2]);
            return 0;
        }
        std::cerr << "zvuky RECEPT SOUBOR.wav\n";
    } catch (const std::exception& chyba) {
        std::cerr << "zvuky: " << chyba.what() << "\n";
    }
    return 1;
}
