#include "prehled/Znamkovani.h"

#include <cstdint>
#include <limits>

#include "base/Cisla.h"
#include "platform/Cesta.h"
#include "platform/Stroj.h"
#include "prehled/DodaneZnamky.h"
#include "rules/Znamka.h"
#include "store/JmenaSouboru.h"
#include "store/Nastaveni.h"
#include "store/RadkySouboru.h"
#include "store/Soubory.h"

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
    const std::string kde = SlozkaSLomitkem(SlozkaNastaveni(program));
    const std::string hd = CtiNastaveni(disk, kde, SlozkaDatUctu()).HD;
    const std::string data = hd + JMENO_ZNAMEK;
    if (!hd.empty() && disk.JeSoubor(NativniCesta(data))) NactiZnamky(misc_, disk, data);
}

int Znamkovani::Znamka(const Serie& serie) const {
    // A series of a pupil's has at most five examples; others wrote what they wanted.
    if (!serie.Dokoncena || serie.Nejvic <= 0 ||
        serie.Nejvic > std::numeric_limits<std::uint8_t>::max())
        return 0;
    return CeleCislo<int>(UrciZnamku(misc_, serie.Bodu, serie.Nejvic)).value_or(0);
}

}  // namespace rysovna::prehled
