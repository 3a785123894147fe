#include "CeleSoubory.h"

#include <array>
#include <fstream>
#include <ios>
#include <string>
#include <system_error>

#include "Popisovac.h"
#include "base/Chyba.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void NelzeZapsat(const fs::path& soubor) {
    throw BehovaChyba("Do souboru nelze zapsat", soubor.string());
}

/// Unbuffered, so that one call writes all at once and its failure is seen there.
template <class Proud>
Proud Otevri(const fs::path& soubor, std::ios::openmode jak) {
    Proud proud;
    proud.rdbuf()->pubsetbuf(nullptr, 0);
    proud.open(soubor, jak | std::ios::binary);
    return proud;
}

bool Zapis(std::ostream& kam, std::string_view obsah) {
    return static_cast<bool>(
        kam.write(obsah.data(), static_cast<std::streamsize>(obsah.size())).flush());
}

/// Writes over a file that has this content: first what grows it, then the rest, then cuts it.
bool PrepisNaMiste(const fs::path& soubor, const std::string& stary, std::string_view novy) {
    auto proud = Otevri<std::fstream>(soubor, std::ios::in | std::ios::out);
    if (!proud) return false;
    std::error_code nevadi;
    if (novy.size() > stary.size()) {
        proud.seekp(static_cast<std::streamoff>(stary.size()));
        if (!Zapis(proud, novy.substr(stary.size()))) {
            proud.close();
            fs::resize_file(soubor, stary.size(), nevadi);
            return false;
        }
    }
    proud.seekp(0);
    if (!Zapis(proud, novy.substr(0, stary.size()))) {
        proud.clear();
        proud.seekp(0);
        Zapis(proud, stary);
        proud.close();
        fs::resize_file(soubor, stary.size(), nevadi);
        return false;
    }
    proud.close();
    if (novy.size() < stary.size()) {
        std::error_code chyba;
        fs::resize_file(soubor, novy.size(), chyba);
        if (chyba) return false;
    }
    // All is written: a disk that cannot be waited for changes nothing about it.
    (void)NaDisk(soubor);
    return true;
}

}  // namespace

std::string CtiSoubor(const fs::path& soubor) {
    auto proud = Otevri<std::ifstream>(soubor, std::ios::in);
    std::string obsah;
    std::array<char, 65536> kus;
    do {
        proud.read(kus.data(), kus.size());
        obsah.append(kus.data(), static_cast<std::size_t>(proud.gcount()));
    } while (proud);
    if (!proud.eof() || proud.bad()) throw BehovaChyba("Soubor nelze přečíst", soubor.string());
    return obsah;
}

void PrepisSoubor(const fs::path& soubor, std::string_view obsah) {
    std::error_code chyba;
    // What is written is the file itself, not a link that leads to it.
    fs::path cil = fs::weakly_canonical(soubor, chyba);
    if (chyba) cil = soubor;
    const bool jeTu = fs::exists(cil, chyba);
    if (jeTu && !Otevri<std::fstream>(cil, std::ios::in | std::ios::out)) {
        NelzeZapsat(soubor);
    }

    fs::path vedle = cil;
    vedle += ".nove";
    auto proud = Otevri<std::ofstream>(vedle, std::ios::out | std::ios::trunc);
    if (!proud) {
        if (!jeTu || !PrepisNaMiste(cil, CtiSoubor(cil), obsah)) NelzeZapsat(soubor);
        return;
    }
    bool zapsano = Zapis(proud, obsah);
    proud.close();
    zapsano = zapsano && !proud.fail();
    if (zapsano) {
        zapsano = NaDisk(vedle);
        // A table that several pupils' accounts share stays theirs: one that only its owner may
        // replace is written over in place. Until that is done, the copy beside it stays.
        if (zapsano && jeTu && !PrevezmiPrava(vedle, cil)) {
            zapsano = PrepisNaMiste(cil, CtiSoubor(cil), obsah);
            fs::remove(vedle, chyba);
        } else if (zapsano) {
            fs::rename(vedle, cil, chyba);
            zapsano = !chyba;
            if (zapsano) (void)NaDisk(cil.parent_path());
        }
    }
    if (!zapsano) {
        fs::remove(vedle, chyba);
        NelzeZapsat(soubor);
    }
}

}  // namespace rysovna
