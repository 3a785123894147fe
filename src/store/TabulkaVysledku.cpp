#include "store/TabulkaVysledku.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/Cisla.h"
#include "store/KodovaStranka.h"
#include "store/RadkySouboru.h"

namespace rysovna {
namespace {

/// What the order of a score table compares: less stands before.
std::array<double, 3> Klic(const ZaznamTabulky& z) {
    return {std::trunc(Cislo(z.Znamka)), -std::trunc(Cislo(z.Spravne)),
            std::trunc(Cislo(z.Spatne))};
}

std::string TextRadku(const ZaznamTabulky& z) {
    std::string radek = z.Jmeno + "|" + z.Spravne + "|" + z.Spatne + "|" + z.Znamka;
    radek += KONEC_RADKU;
    return radek;
}

}  // namespace

bool JeLepsi(const ZaznamTabulky& a, const ZaznamTabulky& b) {
    return Klic(a) < Klic(b);
}

int VlozZaznam(std::vector<ZaznamTabulky>& zaznamy, ZaznamTabulky novy) {
    // A file that somebody edited may be out of order; then the whole list is sorted.
    if (!std::ranges::is_sorted(zaznamy, JeLepsi)) std::ranges::stable_sort(zaznamy, JeLepsi);
    const auto misto = std::ranges::upper_bound(zaznamy, novy, JeLepsi);
    const auto poradi = static_cast<int>(misto - zaznamy.begin()) + 1;
    zaznamy.insert(misto, std::move(novy));
    return poradi;
}

std::vector<ZaznamTabulky> RozdelTabulku(std::string_view obsah) {
    std::vector<ZaznamTabulky> zaznamy;
    for (const std::string& radek : NaRadky(obsah)) {
        const auto pole = Rozdel<4>(radek, '|');
        zaznamy.push_back({.Jmeno = std::string(pole[0]),
                           .Spravne = std::string(pole[1]),
                           .Spatne = std::string(pole[2]),
                           .Znamka = std::string(pole[3])});
    }
    return zaznamy;
}

std::string SlozTabulku(const std::vector<ZaznamTabulky>& zaznamy) {
    std::string obsah;
    for (const ZaznamTabulky& z : zaznamy) obsah += TextRadku(z);
    return obsah;
}

std::vector<ZaznamTabulky> NactiTabulku(Disk& disk, const std::filesystem::path& soubor) {
    std::vector<ZaznamTabulky> zaznamy = RozdelTabulku(NactiPlatne(disk, soubor));
    for (ZaznamTabulky& z : zaznamy) {
        for (std::string* pole : {&z.Jmeno, &z.Spravne, &z.Spatne, &z.Znamka})
            *pole = Z1250Vzdy(*pole);
    }
    return zaznamy;
}

OtevrenaTabulka::OtevrenaTabulka(Disk& disk, const std::filesystem::path& soubor)
    : soubor_(disk, soubor) {}

int OtevrenaTabulka::Kolikrat(const ZaznamTabulky& zaznam) const {
    // As it reads once it was written: a "|" in the name shifts its fields.
    const ZaznamTabulky cteny = RozdelTabulku(TextRadku(zaznam)).front();
    return static_cast<int>(std::ranges::count(RozdelTabulku(soubor_.Platne()), cteny));
}

int OtevrenaTabulka::VlozNovyZaznam(const ZaznamTabulky& zaznam) {
    std::vector<ZaznamTabulky> zaznamy = RozdelTabulku(soubor_.Platne());
    const int misto = VlozZaznam(zaznamy, zaznam);
    soubor_.Uloz(SlozTabulku(zaznamy));
    return misto;
}

}  // namespace rysovna
