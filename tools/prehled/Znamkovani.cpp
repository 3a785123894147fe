#include "prehled/Znamkovani.h"

#include <cstdint>
#include <limits>

#include "platform/Cesta.h"
#include "platform/Stroj.h"
#include "prehled/Verze.h"
#include "rules/Kontrola.h"
#include "store/Cesty.h"
#include "store/JmenaSouboru.h"
#include "store/RadkySouboru.h"
#include "store/Soubory.h"
#include "store/TextRadku.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

constexpr char POZNAMKA = ';', ODDELOVAC = '|';

}  // namespace

Znamkovani::Znamkovani() {
    int i = 0;
    for (const std::string& radek : NaRadky(DODANE_ZNAMKY)) {
        if (radek.empty() || radek.front() == POZNAMKA) continue;
        const auto pole = Rozdel<3>(radek, ODDELOVAC);
        RadekZnamek& r = misc_.ZnamkyTab[++i];
        for (std::size_t j = 0; j < pole.size(); ++j)
            r[j] = CeleCislo<std::uint8_t>(pole[j]).value_or(0);
    }
}

Znamkovani::Znamkovani(const fs::path& program) : Znamkovani() {
    DiskStroje disk;
    for (const fs::path& slozka : {program, SlozkaNastaveniUctu(), SlozkaNastaveniStroje()}) {
        if (slozka.empty() || !disk.JeSoubor(slozka / JMENO_INI)) continue;
        const std::string data =
            CtiCesty(disk, SlozkaSLomitkem(slozka), SlozkaDatUctu()).HD + JMENO_ZNAMEK;
        if (disk.JeSoubor(NativniCesta(data))) NactiZnamky(misc_, disk, data);
        return;
    }
}

int Znamkovani::Znamka(const Serie& serie) const {
    // A series of a pupil's has at most five examples; others wrote what they wanted.
    if (!serie.Dokoncena || serie.Nejvic <= 0 ||
        serie.Nejvic > std::numeric_limits<std::uint8_t>::max())
        return 0;
    return CeleCislo<int>(UrciZnamku(misc_, serie.Bodu, serie.Nejvic)).value_or(0);
}

}  // namespace rysovna::prehled
