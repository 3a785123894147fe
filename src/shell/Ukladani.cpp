#include "shell/Ukladani.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/Cisla.h"
#include "shell/Kodovani.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

ZaznamTabulky RadekTextu(const Vysledek& v) {
    return {.Jmeno = v.Jmeno, .Spravne = v.Kladne, .Spatne = v.Zaporne, .Znamka = v.Znamka};
}

/// As it stands in the file.
ZaznamTabulky RadekSouboru(const Vysledek& v) {
    return {.Jmeno = Do1250(v.Jmeno),
            .Spravne = Do1250(v.Kladne),
            .Spatne = Do1250(v.Zaporne),
            .Znamka = Do1250(v.Znamka)};
}

/// What must stand before the first line that is written at this place, so that it is a new line.
std::string_view PredRadkem(Soubor& denik, std::uint64_t kde) {
    const std::string posledni = kde == 0 ? "\n" : denik.Cti(kde - 1, 1);
    if (posledni == "\n") return {};
    return posledni == "\r" ? "\n" : KONEC_RADKU;
}

/// Notes how far an entry came; one that is in memory alone knows it anyway.
void Poznamenej(const CekajiciVysledek& v, Fronta* fronta) {
    if (!v.Soubor_.empty() && fronta != nullptr) fronta->Poznamenej(v, true);
}

/// The same where the note only saves work later.
void PoznamenejPotichu(const CekajiciVysledek& v, Fronta* fronta) {
    try {
        if (!v.Soubor_.empty() && fronta != nullptr) fronta->Poznamenej(v, false);
    } catch (const ChybaDisku&) {
        // What stands in log and table tells it too.
    }
}

const std::string ULOZEN_STRANOU =
    "Je uložen stranou a zapíše se s příštím výsledkem nebo při příštím spuštění programu.";

std::string JenVPameti(const std::string& proc) {
    return "Nelze jej ani uložit stranou: " + proc +
           ". Program zkusí zápis znovu s příštím výsledkem. Kdyby byl předtím ukončen, výsledek "
           "se ztratí.";
}

}  // namespace

Ukladani::Ukladani(Disk& disk, Hodiny hodiny, const fs::path& koren, fs::path slozkaStavu)
    : disk_(disk),
      hodiny_(std::move(hodiny)),
      koren_(disk.Jednoznacna(koren)),
      slozkaStavu_(std::move(slozkaStavu)) {}

Ukladani::Ulozeni Ukladani::Uloz(const Vysledek& vysledek) {
    cekaji_.push_back({.Koren = koren_.string(), .Co = vysledek});
    return Zapis();
}

std::string Ukladani::ZkusCekajici() {
    try {
        if (cekaji_.empty() && PocetCekajicich(disk_, slozkaStavu_) == 0) return {};
    } catch (const ChybaDisku&) {
        return {};  // a queue that cannot be looked into; the next result will tell
    }
    return Zapis().Text;
}

std::vector<ZaznamTabulky> Ukladani::Nezapsane(int cisloUlohy) const {
    std::vector<ZaznamTabulky> zaznamy;
    for (const CekajiciVysledek& v : cekaji_) {
        if (v.Co.CisloUlohy == cisloUlohy && !v.VTabulce) zaznamy.push_back(RadekTextu(v.Co));
    }
    return zaznamy;
}

Ukladani::Ulozeni Ukladani::Zapis() {
    std::optional<Fronta> fronta;
    std::string bezFronty;
    std::vector<CekajiciVysledek> vse = Serad(fronta, bezFronty);
    // What stands in a queue that cannot be had now stays as it is known.
    std::erase_if(cekaji_, [&](const auto& v) { return fronta || v.Soubor_.empty(); });
    Ulozeni zprava;
    std::string zamceno;  // waited for once, not for each result
    for (CekajiciVysledek& v : vse) {
        std::string proc = zamceno;
        // No fault of any kind may end the game over a result: this is the one place besides main
        // that catches all, a table too large for the memory included.
        try {
            if (zamceno.empty()) {
                ZapisJeden(v, fronta ? &*fronta : nullptr);
                zprava.Misto = v.Misto;  // the newest is the last
                continue;
            }
        } catch (const ChybaDisku& chyba) {
            proc = chyba.what();
            if (chyba.Proc() == Pricina::Zamceno) zamceno = proc;
        } catch (const std::exception& chyba) {
            proc = chyba.what();
        }
        zprava.Misto = 0;
        if (!v.Ohlaseno) {
            v.Ohlaseno = true;
            PoznamenejPotichu(v, fronta ? &*fronta : nullptr);
            zprava.Text = "Výsledek se nepodařilo zapsat: " + proc + ".\n\n" +
                          (v.Soubor_.empty() || v.Nejisty ? JenVPameti(bezFronty) : ULOZEN_STRANOU);
        }
        cekaji_.push_back(std::move(v));
    }
    return zprava;
}

/// All that is to be written now, oldest first: what is in the queue, then what could not be put
/// there so far. Without the queue only the latter, and bezFronty says why.
std::vector<CekajiciVysledek> Ukladani::Serad(std::optional<Fronta>& fronta,
                                              std::string& bezFronty) {
    std::vector<CekajiciVysledek> vse;
    try {
        fronta.emplace(disk_, slozkaStavu_, hodiny_);
        vse = fronta->Cekajici(koren_.string());
    } catch (const std::exception& chyba) {
        fronta.reset();
        bezFronty = chyba.what();
    }
    for (CekajiciVysledek& v : cekaji_) {
        // The queue's own are taken as they stand there: another program may have gone on.
        const bool tam = std::ranges::any_of(
            vse, [&](const CekajiciVysledek& u) { return u.Soubor_ == v.Soubor_; });
        if (!v.Soubor_.empty() && (!fronta || tam || !v.Nejisty)) continue;
        v.Soubor_.clear();
        try {
            if (fronta) fronta->Zarad(v);
        } catch (const std::exception& chyba) {
            bezFronty = chyba.what();
        }
        vse.push_back(std::move(v));
    }
    return vse;
}

void Ukladani::ZapisJeden(CekajiciVysledek& v, Fronta* fronta) {
    if (!v.VDeniku || !v.VTabulce) {
        const fs::path cesta = Cesta(JMENO_DENIKU);
        const auto denik = disk_.Otevri(cesta, Disk::Jak::Pripisek);
        PockejNaZamek(*denik, cesta, hodiny_);
        if (!v.VDeniku) ZapisVysledek(v, *denik, fronta);
        if (!v.VTabulce) DoTabulky(v, fronta);
    }
    try {
        if (fronta != nullptr && !v.Soubor_.empty()) fronta->Vyrad(v);
    } catch (const ChybaDisku&) {
        // It stays, and says that all is done.
    }
}

void Ukladani::ZapisVysledek(CekajiciVysledek& v, Soubor& denik, Fronta* fronta) {
    const std::string text = RadkyDeniku(v.Co);
    const std::uint64_t delka = denik.Delka();
    std::optional<std::string> zbyva;
    if (v.DelkaDeniku && *v.DelkaDeniku <= delka) {
        // A program that was killed began it: what stands at its place tells how far it came.
        const std::string cele = std::string(PredRadkem(denik, *v.DelkaDeniku)) + text;
        const std::string tam = denik.Cti(*v.DelkaDeniku, cele.size());
        if (cele.starts_with(tam)) zbyva = cele.substr(tam.size());
    }
    if (!zbyva) {
        v.DelkaDeniku = delka;
        Poznamenej(v, fronta);
        zbyva = std::string(PredRadkem(denik, delka)) + text;
    }
    if (!zbyva->empty()) denik.Pripis(*zbyva);
    denik.NaDisk();
    v.VDeniku = true;
    PoznamenejPotichu(v, fronta);
}

void Ukladani::DoTabulky(CekajiciVysledek& v, Fronta* fronta) {
    const fs::path cesta = Cesta(DveCislice(v.Co.CisloUlohy) + ".res");
    const ZaznamTabulky radek = RadekSouboru(v.Co);
    OtevrenaTabulka tabulka(disk_, cesta);
    const int stejnych = tabulka.Kolikrat(radek);
    if (v.StejnychRadku && stejnych > *v.StejnychRadku) {
        // A program that was killed put it in.
        tabulka.Potvrd();
    } else {
        v.StejnychRadku = stejnych;
        Poznamenej(v, fronta);
        try {
            v.Misto = tabulka.VlozNovyZaznam(radek);
        } catch (const ChybaDisku&) {
            // It is not there: the same row of somebody else, later, must not pass for this one.
            if (OtevrenaTabulka(disk_, cesta).Kolikrat(radek) == stejnych) {
                v.StejnychRadku.reset();
                PoznamenejPotichu(v, fronta);
            }
            throw;
        }
    }
    v.VTabulce = true;
    PoznamenejPotichu(v, fronta);
}

fs::path Ukladani::Cesta(std::string_view jmeno) const {
    return disk_.Skutecna((koren_ / jmeno).string());
}

}  // namespace rysovna
