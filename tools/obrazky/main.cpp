// Renders the pictures of the game from SVG templates, each at 1:1 as a .bmp, and writes their
// shapes beside it, from which they are drawn at any other scale. A picture whose drawing did not
// change since the last run is left alone.
//
//   obrazky LIST STAGED_ASSETS WORK_FOLDER     renders
//   obrazky --zkontroluj FILES STAGED_ASSETS   holds the staged files against a list of them
#include <algorithm>
#include <atomic>
#include <exception>
#include <fstream>
#include <iostream>
#include <map>
#include <mutex>
#include <sstream>
#include <thread>

#include "Glyfy.h"
#include "KontrolaAssetu.h"
#include "Kresleni.h"
#include "Nahravka.h"
#include "OvereniKresby.h"
#include "Predlohy.h"
#include "Sazba.h"
#include "ZapisTvaru.h"
#include "base/Chyba.h"
#include "platform/ObrazekData.h"
#include "platform/Pisma.h"
#include "platform/Tvary.h"

namespace rysovna::obrazky {

namespace {

namespace fs = std::filesystem;

/// Grows by one when the tool itself comes to draw differently: all is then rendered anew.
constexpr std::uint64_t VERZE = 4;

/// How many times larger a drawing is recorded: Cairo keeps places in 256ths of a pixel.
constexpr int PRESNOST_NAHRAVKY = 16;
/// At so many times the size the shapes are held against the drawing.
constexpr int ZVETSENI = 3;

/// A number by which a changed drawing is known (FNV-1a, 64 bits).
std::uint64_t Otisk(const std::string& text,
                    std::uint64_t otisk = 14695981039346656037ULL + VERZE) {
    for (const char z : text) otisk = (otisk ^ static_cast<unsigned char>(z)) * 1099511628211ULL;
    return otisk;
}

/// The prints of the last run, by picture.
std::map<std::string, std::uint64_t> NactiOtisky(const fs::path& soubor) {
    std::map<std::string, std::uint64_t> otisky;
    std::ifstream vstup(soubor);
    std::string jmeno;
    std::uint64_t otisk = 0;
    while (vstup >> otisk >> jmeno) otisky[jmeno] = otisk;
    return otisky;
}

void UlozOtisky(const std::map<std::string, std::uint64_t>& otisky, const fs::path& soubor) {
    std::ofstream ven(soubor);
    for (const auto& [jmeno, otisk] : otisky) ven << otisk << ' ' << jmeno << '\n';
    ven.close();
    if (!ven) throw BehovaChyba("Nelze zapsat", soubor.string());
}

/// The whole file anew; one that cannot be written is a fault.
void Uloz(const std::string& data, const std::filesystem::path& soubor) {
    std::ofstream ven(soubor, std::ios::binary);
    ven.write(data.data(), static_cast<std::streamsize>(data.size()));
    ven.close();
    if (!ven) throw BehovaChyba("Nelze zapsat", soubor.string());
}

/// What all pictures are made with. Fonts are read by one thread at a time.
struct Dilna {
    Glyfy Pismena;
    std::mutex Zamek;
};

void Vyrob(const Obrazek& o, const fs::path& soubor, Dilna& dilna) {
    fs::create_directories(soubor.parent_path());
    const ObrazBmp maly = Vykresli(o.Svg, o.Sirka, o.Vyska, 1, o.Soubor);
    const ObrazBmp velky = Vykresli(o.Svg, o.Sirka, o.Vyska, ZVETSENI, o.Soubor);
    if (o.Klic) {
        OverKlic(maly, o.Soubor);
        OverKlic(velky, o.Soubor + ", zvětšený");
    }
    const auto ukony = RozeberNahravku(Nahraj(o.Svg, o.Sirka, o.Vyska, PRESNOST_NAHRAVKY, o.Soubor),
                                       o.Sirka, o.Vyska, PRESNOST_NAHRAVKY, o.Soubor);
    std::string tvary;
    {
        const std::lock_guard drzi(dilna.Zamek);
        tvary = SlozTvary(o, ukony, dilna.Pismena, OtiskBodu(maly));
        OverTvary(CtiTvary(tvary, o.Soubor), velky, o.Soubor);
    }
    Uloz(ZabalenyBmp(maly), soubor);
    Uloz(tvary, SouborTvaru(soubor));
}

/// Runs the work on all rows, on as many threads as the machine has. The first fault is thrown
/// on once all threads have ended.
template <class Radek, class Prace>
void Soubezne(std::vector<Radek>& radky, Prace prace) {
    std::atomic<std::size_t> dalsi{0};
    std::exception_ptr chyba;
    std::mutex zamek;
    const auto vlakno = [&] {
        for (std::size_t i = dalsi++; i < radky.size(); i = dalsi++) {
            try {
                prace(radky[i]);
            } catch (...) {
                const std::lock_guard drzi(zamek);
                if (!chyba) chyba = std::current_exception();
            }
        }
    };
    {
        std::vector<std::jthread> vlakna;
        for (unsigned i = 0; i < std::max(1U, std::thread::hardware_concurrency()); ++i)
            vlakna.emplace_back(vlakno);
    }
    if (chyba) std::rethrow_exception(chyba);
}

void VyrobVse(const fs::path& seznam, const fs::path& assety, const fs::path& pracovni) {
    fs::create_directories(pracovni);
    const fs::path fonty = fs::absolute(assety / "Fonts");
    const fs::path soubor = pracovni / "otisky.txt";
    const auto minule = NactiOtisky(soubor);
    std::map<std::string, std::uint64_t> otisky;
    std::vector<Obrazek> zmenene;
    const Sazba sazba(fonty);
    std::uint64_t otiskPisem = Otisk("");
    for (const auto& p : fs::directory_iterator(fonty)) {
        // Sum, so that the order in which the folder lists its files does not matter.
        otiskPisem += Otisk(p.path().filename().string() + std::to_string(p.file_size()));
    }
    for (Obrazek& o : NactiSeznam(seznam)) {
        o.Svg = sazba.Vysad(o.Svg, o.Soubor);
        const std::uint64_t otisk =
            Otisk(o.Svg + std::to_string(o.Sirka) + "x" + std::to_string(o.Vyska), otiskPisem);
        const fs::path cil = assety / o.Soubor;
        const auto stary = minule.find(o.Soubor);
        if (stary == minule.end() || stary->second != otisk || !fs::exists(cil) ||
            !fs::exists(SouborTvaru(cil)))
            zmenene.push_back(o);
        otisky[o.Soubor] = otisk;
    }
    NastavPisma(fonty, fs::absolute(pracovni));
    NastavSlozkuPisem(fonty.string());
    std::vector<fs::path> soubory;
    for (unsigned i = 0; i < POCET_REZU; ++i) soubory.push_back(fonty / SouborRezu(i));
    Dilna dilna{Glyfy(soubory), {}};
    Soubezne(zmenene, [&](const Obrazek& o) { Vyrob(o, assety / o.Soubor, dilna); });
    // A picture that left the list must not stay among the staged ones.
    for (const auto& [jmeno, otisk] : minule) {
        if (otisky.count(jmeno) != 0) continue;
        fs::remove(assety / jmeno);
        fs::remove(SouborTvaru(assety / jmeno));
    }
    UlozOtisky(otisky, soubor);
    std::cout << "Obrázky: " << otisky.size() << ", nově vykresleno " << zmenene.size() << "\n";
}

}  // namespace

}  // namespace rysovna::obrazky

int main(int argc, char** argv) {
    using namespace rysovna::obrazky;
    try {
        const std::string prvni = argc > 1 ? argv[1] : "";
        if (argc == 4 && prvni == "--zkontroluj") return Zkontroluj(argv[2], argv[3]) == 0 ? 0 : 1;
        if (argc == 4) {
            VyrobVse(argv[1], argv[2], argv[3]);
            return 0;
        }
        std::cerr << "obrazky SEZNAM ASSETY PRACOVNI_SLOZKA\n"
                     "obrazky --zkontroluj SOUBORY ASSETY\n";
    } catch (const std::exception& chyba) {
        std::cerr << "obrazky: " << chyba.what() << "\n";
    }
    return 1;
}
