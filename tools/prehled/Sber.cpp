#include "prehled/Sber.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <utility>

#include "base/Chyba.h"
#include "base/Disk.h"
#include "store/JmenaSouboru.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

/// The name that the game has given; of a file of anybody's else own name just that.
std::string JmenoOdHry(const std::string& jmeno) {
    const std::size_t mezera = jmeno.find(' ');
    if (mezera == std::string::npos) return jmeno;
    const std::string odHry = jmeno.substr(0, mezera);
    if (!ZacinaJakoPokus(odHry)) return jmeno;
    return odHry + std::string(PRIPONA_POKUSU);
}

class Prohlidka {
public:
    explicit Prohlidka(Sber& sber) : sber_(sber) {}

    /// One folder after the other, not one in the other: a tree may be deep.
    void Projdi(const fs::path& koren) {
        std::vector<fs::path> cekaji{koren};
        while (!cekaji.empty()) {
            const fs::path slozka = std::move(cekaji.back());
            cekaji.pop_back();
            if (!prosle_.insert(slozka).second) continue;
            std::vector<fs::path> pod = ProjdiJednu(slozka);
            std::ranges::sort(pod, std::greater<>());
            std::ranges::move(pod, std::back_inserter(cekaji));
        }
    }

private:
    /// What is in a folder; gives the folders in it. Links to folders are not followed: they might
    /// lead round.
    std::vector<fs::path> ProjdiJednu(const fs::path& slozka) {
        std::vector<fs::path> pod;
        std::error_code chyba;
        fs::directory_iterator i(slozka, chyba);
        const std::size_t poradi = sber_.Slozky.size();
        bool neco = false;
        for (; !chyba && i != fs::directory_iterator(); i.increment(chyba)) {
            std::error_code nevadi;
            if (i->is_directory(nevadi) && !i->is_symlink(nevadi)) {
                pod.push_back(i->path());
                continue;
            }
            std::string jmeno = i->path().filename().string();
            if (!jmeno.ends_with(PRIPONA_POKUSU) || !i->is_regular_file(nevadi)) continue;
            std::string odHry = JmenoOdHry(jmeno);
            if (odHry == jmeno) jmeno.clear();
            sber_.Soubory.push_back({std::move(odHry), poradi, std::move(jmeno)});
            neco = true;
        }
        if (chyba) sber_.Neprohlednute.push_back(slozka);
        if (neco) sber_.Slozky.push_back(slozka);
        return pod;
    }

    Sber& sber_;
    std::set<fs::path> prosle_;
};

/// Whether a folder is the other one or lies somewhere in it.
bool JeV(const fs::path& slozka, const fs::path& koren) {
    return std::ranges::mismatch(koren, slozka).in1 == koren.end();
}

}  // namespace

std::span<const Nalezeny> Sber::Kopie(std::size_t odkud) const {
    const auto od = Soubory.begin() + static_cast<std::ptrdiff_t>(odkud);
    const auto po =
        std::find_if(od, Soubory.end(), [&](const Nalezeny& n) { return n.Soubor != od->Soubor; });
    return {od, po};
}

bool Sber::Prohlednuta(const fs::path& slozka) const {
    const auto v = [&slozka](const fs::path& koren) { return JeV(slozka, koren); };
    return std::ranges::any_of(Koreny, v) && std::ranges::none_of(Neprohlednute, v);
}

Sber NajdiPokusy(std::span<const fs::path> slozky) {
    Sber sber;
    Prohlidka prohlidka(sber);
    for (const fs::path& slozka : slozky) {
        std::error_code chyba;
        const fs::path koren = fs::canonical(slozka, chyba);
        if (chyba || !fs::is_directory(koren, chyba))
            throw BehovaChyba("Taková složka není", slozka.string());
        sber.Koreny.push_back(koren);
        prohlidka.Projdi(koren);
    }
    std::ranges::stable_sort(sber.Soubory, {}, &Nalezeny::Soubor);
    return sber;
}

}  // namespace rysovna::prehled
