#include "rules/Misc.h"

#include "engine/Tabulky.h"

namespace rysovna {

namespace {

constexpr int SMAZANYCH_RADKU = 50;

}  // namespace

void SmazTabulky() {
    for (int i = 1; i <= SMAZANYCH_RADKU; ++i) {
        Priklady[i] = {};
        ChybneKroky[i] = {};
        SmazRadekUtvaru(i);
        SmazRadekTrojic(i);
    }
    for (int i = 1; i <= decltype(ZadanePrvky)::POSLEDNI; ++i) ZadanePrvky[i] = {};
}

void VychoziPromenne() {
    for (std::string* text : {&AdresarSystemu, &DiskSystemu, &CestaCD, &CestaHD, &CestaVysledku,
                              &NazevHry, &TypUlohy, &JmenoHrace}) {
        text->clear();
    }
    for (int* cislo : {&PuvodniSirka, &PuvodniVyska, &PuvodniBarvy, &SoucetZapornychBodu,
                       &PocetChybnychKroku, &PosunX, &PosunY, &VybranyUtvar, &KonstrukceZahajena,
                       &PocetPrikladu, &PocetUtvaru, &PocetTrojic}) {
        *cislo = 0;
    }
    for (std::uint8_t* bajt : {&CisloUlohy, &PocetPrikladuSerie, &KladneBody, &ZaporneBody}) {
        *bajt = 0;
    }
    RadyUkazovat = true;
    ZnamkyTab.Smaz();
    Priklady.Smaz();
    ZadanePrvky.Smaz();
    ChybneKroky.Smaz();
    Utvary.Smaz();
    Trojice_tab.Smaz();
    Generator = {};
}

}  // namespace rysovna
