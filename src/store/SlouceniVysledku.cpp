#include "store/SlouceniVysledku.h"

#include <algorithm>
#include <map>
#include <vector>

#include "store/JmenaSouboru.h"
#include "store/RadkySouboru.h"
#include "store/TabulkaVysledku.h"
#include "store/VymenaSouboru.h"
#include "store/Vysledek.h"

namespace rysovna {
namespace {

/// Of equal entries here, so many of those to be added are the same ones.
template <class T, class Pridej>
void PridejChybejici(const std::vector<T>& zde, const std::vector<T>& pridat, Pridej&& pridej) {
    std::map<T, int> mame;
    for (const T& z : zde) ++mame[z];
    for (const T& z : pridat) {
        if (mame[z]-- <= 0) pridej(z);
    }
}

}  // namespace

std::string SlucVysledky(std::string_view jmeno, std::string_view zde, std::string_view pridat) {
    if (jmeno == JMENO_DENIKU) {
        std::string vse(zde);
        if (!vse.empty() && !vse.ends_with('\n')) vse += KONEC_RADKU;
        PridejChybejici(ZapisyDeniku(zde), ZapisyDeniku(pridat),
                        [&](const std::string& zapis) { vse += zapis; });
        return vse;
    }
    const auto radky = [](std::string_view tabulka) {
        std::vector<std::string> text;
        for (const ZaznamTabulky& z : RozdelTabulku(PlatneBajty(tabulka)))
            text.push_back(SlozTabulku({z}));
        return text;
    };
    std::vector<ZaznamTabulky> vse = RozdelTabulku(PlatneBajty(zde));
    PridejChybejici(radky(zde), radky(pridat), [&](const std::string& radek) {
        VlozZaznam(vse, RozdelTabulku(radek).front());
    });
    return SlozTabulku(vse);
}

bool PrevezmiVysledky(Disk& disk, const std::filesystem::path& slozka, std::string_view jmeno,
                      std::string_view pridat) {
    const std::vector<std::string> nase = JmenaVysledku();
    if (std::find(nase.begin(), nase.end(), jmeno) == nase.end()) return false;
    const auto soubor = disk.Otevri(slozka / CestaZTextu(jmeno), Disk::Jak::Zapis);
    const std::string nove = SlucVysledky(jmeno, soubor->Cti(), pridat);
    soubor->Zkrat(0);
    soubor->Pis(0, nove);
    return true;
}

}  // namespace rysovna
