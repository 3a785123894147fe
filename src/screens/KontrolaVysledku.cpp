// The part of the check before a lesson that looks at results: files, room, lock, queue, and the
// attempts that are kept.

#include "platform/Host.h"
#include "screens/KontrolaPocitace.h"
#include "store/Fronta.h"
#include "store/JmenaSouboru.h"
#include "store/Nastaveni.h"
#include "store/TextPokusu.h"
#include "store/Ukladani.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;
using enum Nalez::Jak;

/// A class of thirty does not write so much in a year.
constexpr std::uint64_t NEJMENE_MISTA = 16 << 20;
constexpr std::uint64_t MEGABAJT = 1 << 20;

/// The folder, or where it is not there yet the one that it would be made in.
fs::path NejblizsiSlozka(Disk& disk, fs::path slozka) {
    if (!slozka.has_filename()) slozka = slozka.parent_path();  // a separator at the end
    while (!disk.JeSlozka(slozka) && slozka != slozka.parent_path()) slozka = slozka.parent_path();
    return slozka;
}

bool PujdeZakladat(Disk& disk, const fs::path& slozka) {
    return disk.SmiZakladat(NejblizsiSlozka(disk, slozka));
}

/// What is wrong with one file of results; empty if nothing is. A file that is not there is no
/// fault where it is going to be made; one in a folder that the account may not enter is not
/// missing.
std::string Vada(Disk& disk, const fs::path& soubor, bool zalozi) {
    const bool je = disk.JeSoubor(soubor);
    if (!je && zalozi) return {};
    try {
        static_cast<void>(disk.Otevri(soubor, Disk::Jak::Zapis)->Cti(0, 1));
    } catch (const ChybaDisku& chyba) {
        if (je || chyba.Proc() == Pricina::Nepovoleno) return chyba.what();
    }
    return je ? "" : ChybaDisku(Pricina::Neni, soubor).what();
}

/// What is wrong with the folder itself, so that nothing in it can be had; empty if it can be read.
std::string VadaSlozky(Disk& disk, const fs::path& slozka) {
    try {
        static_cast<void>(disk.Jmena(slozka.has_filename() ? slozka : slozka.parent_path()));
    } catch (const ChybaDisku& chyba) {
        return chyba.what();
    }
    return {};
}

void Soubory(Disk& disk, const Nastaveni& nastaveni, bool zalozi, std::vector<Nalez>& nalezy) {
    const fs::path slozka = disk.Skutecna(nastaveni.Vysledky);
    std::vector<Nalez> vady;
    for (const std::string& jmeno : JmenaVysledku()) {
        std::string vada = Vada(disk, disk.Skutecna(nastaveni.Vysledky + jmeno), zalozi);
        if (!vada.empty()) vady.push_back({Chyba, "Soubor výsledků", std::move(vada)});
    }
    if (vady.size() == JmenaVysledku().size()) {
        const std::string vada = VadaSlozky(disk, slozka);
        if (!vada.empty()) vady = {{Chyba, "Složka výsledků", vada}};
    }
    if (vady.empty()) {
        vady.push_back({VPoradku, "Soubory výsledků",
                        "souborů: " + std::to_string(JmenaVysledku().size()) +
                            (disk.JeSlozka(slozka) && !disk.SmiZakladat(slozka)
                                 ? ", ve složce nelze zakládat další"
                                 : "")});
    }
    nalezy.insert(nalezy.end(), vady.begin(), vady.end());
}

Nalez Misto(Disk& disk, const fs::path& slozka, const std::string& co) {
    try {
        const std::uint64_t volno = disk.Volno(slozka);
        return {volno < NEJMENE_MISTA ? Chyba : VPoradku, co,
                slozka.string() + ", volno " + std::to_string(volno / MEGABAJT) + " MB"};
    } catch (const ChybaDisku& chyba) {
        return {Chyba, co, chyba.what()};
    }
}

Nalez Zamek(Disk& disk, const fs::path& denik) {
    const std::string co = "Zámek výsledků";
    try {
        if (disk.Otevri(denik, Disk::Jak::Zapis)->Zamkni()) return {VPoradku, co, "lze získat"};
        return {Chyba, co, denik.string() + ": drží jej jiný program"};
    } catch (const ChybaDisku& chyba) {
        return {Chyba, co, chyba.what()};
    }
}

Nalez Fronta_(Disk& disk, const fs::path& stav) {
    const std::string co = "Výsledky uložené stranou";
    if (stav.empty()) return {Pozor, co, "účet nemá složku, do které by šly"};
    const fs::path slozka = Fronta::Slozka(stav);
    if (!PujdeZakladat(disk, slozka)) return {Pozor, co, slozka.string() + ": nelze zapisovat"};
    try {
        const fs::path zamek = Fronta::Zamek(stav);
        if (disk.JeSoubor(zamek) && !disk.Otevri(zamek, Disk::Jak::Zapis)->Zamkni())
            return {Pozor, co, zamek.string() + ": drží jej jiný program"};
        const int ceka = PocetCekajicich(disk, stav);
        const std::uint64_t volno = disk.Volno(NejblizsiSlozka(disk, slozka));
        return {ceka == 0 && volno >= NEJMENE_MISTA ? VPoradku : Pozor, co,
                slozka.string() + ": čeká jich " + std::to_string(ceka) + ", volno " +
                    std::to_string(volno / MEGABAJT) + " MB"};
    } catch (const ChybaDisku& chyba) {
        return {Pozor, co, chyba.what()};
    }
}

/// What is wrong with a file among the attempts; empty if nothing is, or if it is in the making.
std::string VadaPokusu(Disk& disk, const fs::path& soubor) {
    if (soubor.extension() == PRIPONA_NOVEHO) return {};
    try {
        return CtiPokus(disk.Otevri(soubor, Disk::Jak::Cteni)->Cti(0, NEJVETSI_POKUS)).Vada;
    } catch (const ChybaDisku& chyba) {
        return std::string(TextPriciny(chyba.Proc()));
    }
}

/// Attempts are no results: whatever is wrong with them, the game can be played.
void Pokusy(Disk& disk, const fs::path& slozka, bool ukladaji, std::vector<Nalez>& nalezy) {
    constexpr std::size_t NEJVIC_VAD = 5;  // of a folder of something else there would be too many
    const std::string co = "Záznamy pokusů";
    std::size_t vadnych = 0, souboru = 0;
    try {
        if (disk.JeSlozka(slozka)) {
            for (const std::string& jmeno : disk.Jmena(slozka)) {
                ++souboru;
                const std::string vada = VadaPokusu(disk, slozka / jmeno);
                if (vada.empty() || ++vadnych > NEJVIC_VAD) continue;
                nalezy.push_back({Pozor, "Záznam pokusu", (slozka / jmeno).string() + ": " + vada});
            }
        }
    } catch (const ChybaDisku& chyba) {
        nalezy.push_back({Pozor, co, chyba.what()});
        return;
    }
    const bool pujde = !ukladaji || PujdeZakladat(disk, slozka);
    nalezy.push_back({pujde && vadnych == 0 ? VPoradku : Pozor, co,
                      slozka.string() + ": souborů: " + std::to_string(souboru) +
                          (vadnych > 0 ? ", z toho vadných " + std::to_string(vadnych) : "") +
                          (pujde ? "" : ", nelze zapisovat") +
                          (ukladaji ? "" : ", ukládání je vypnuto")});
}

}  // namespace

void ZkontrolujVysledky(const KontrolovanyStroj& stroj, const Nastaveni& nastaveni,
                        std::vector<Nalez>& nalezy) {
    Disk& disk = stroj.disk;
    const fs::path slozka = disk.Skutecna(nastaveni.Vysledky);
    const bool ucet = !stroj.SlozkaDat.empty() && slozka == stroj.SlozkaDat / "";
    const bool zalozi =
        nastaveni.Oddelene && (disk.JeSlozka(slozka) || ucet) && PujdeZakladat(disk, slozka);
    Soubory(disk, nastaveni, zalozi, nalezy);
    nalezy.push_back(Misto(disk, NejblizsiSlozka(disk, slozka), "Místo na výsledky"));
    const fs::path denik = disk.Skutecna(nastaveni.Vysledky + JMENO_DENIKU);
    if (disk.JeSoubor(denik)) nalezy.push_back(Zamek(disk, denik));
    Pokusy(disk, slozka / SLOZKA_POKUSU, nastaveni.Pokusy, nalezy);
    nalezy.push_back(Fronta_(disk, stroj.SlozkaStavu));
}

}  // namespace rysovna
