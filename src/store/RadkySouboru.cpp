#include "store/RadkySouboru.h"

#include <algorithm>

#include "base/Chyba.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t MEGABAJT = 1024 * 1024;

}  // namespace

std::string Misto(const fs::path& soubor, int radek) {
    return soubor.string() + ":" + std::to_string(radek);
}

std::vector<std::string> NaRadky(std::string_view obsah) {
    std::vector<std::string> radky;
    for (std::size_t i = 0; i < obsah.size();) {
        const std::size_t konec = std::min(obsah.find('\n', i), obsah.size());
        std::size_t delka = konec - i;
        if (delka > 0 && obsah[konec - 1] == '\r') --delka;
        radky.emplace_back(obsah.substr(i, delka));
        i = konec + 1;
    }
    return radky;
}

std::string CtiVse(Disk& disk, const fs::path& soubor, std::size_t nejvyse) {
    std::string obsah;
    try {
        const std::size_t dost = nejvyse == Soubor::VSE ? nejvyse : nejvyse + 1;
        obsah = disk.Otevri(soubor, Disk::Jak::Cteni)->Cti(0, dost);
    } catch (const ChybaDisku&) {
        throw BehovaChyba("Soubor nelze přečíst", soubor.string());
    }
    if (obsah.size() > nejvyse) {
        const std::string mez = std::to_string(nejvyse / MEGABAJT);
        throw BehovaChyba("Soubor je větší než " + mez + " MB", soubor.string());
    }
    return obsah;
}

std::vector<std::string> CtiRadky(Disk& disk, const fs::path& soubor, std::size_t nejvyse) {
    return NaRadky(CtiVse(disk, soubor, nejvyse));
}

}  // namespace rysovna
