#include "store/Fronta.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <utility>

#include "base/Cisla.h"
#include "store/TextRadku.h"

namespace rysovna {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view PRVNI_RADEK = "RYSOVNA1 VYSLEDEK 1";
constexpr std::string_view CELY = "cely";  // the last line of a new entry: all of it is there
constexpr std::string_view PRIPONA = ".vysledek";
constexpr std::size_t SIRKA_CASU = 20;

/// The texts of a result by their names in the file.
constexpr std::pair<std::string_view, std::string Vysledek::*> TEXTY[] = {
    {"jmeno", &Vysledek::Jmeno},   {"hra", &Vysledek::Hra},
    {"typ", &Vysledek::Typ},       {"prikladu", &Vysledek::Prikladu},
    {"kladne", &Vysledek::Kladne}, {"zaporne", &Vysledek::Zaporne},
    {"znamka", &Vysledek::Znamka},
};

/// The date and time of a result by their names in the file.
constexpr std::pair<std::string_view, int DatumACas::*> CASY[] = {
    {"rok", &DatumACas::Rok},       {"mesic", &DatumACas::Mesic},   {"den", &DatumACas::Den},
    {"hodina", &DatumACas::Hodina}, {"minuta", &DatumACas::Minuta},
};

/// All that may change. A number that is not known has an empty value.
std::string Stav(const CekajiciVysledek& v) {
    const auto cislo = [](const auto& n) { return n ? std::to_string(*n) : std::string(); };
    const auto ano = [](bool je) { return std::string(je ? "1" : "0"); };
    return "delka-deniku=" + cislo(v.DelkaDeniku) + "\nv-deniku=" + ano(v.VDeniku) +
           "\nstejnych-radku=" + cislo(v.StejnychRadku) + "\nv-tabulce=" + ano(v.VTabulce) +
           // What was told never becomes untold, and who notes it may not have the lock.
           (v.Ohlaseno ? "\nohlaseno=1\n" : "\n");
}

/// Takes a line of the file in. Whether it is the one that says that the entry is whole.
bool Prirad(CekajiciVysledek& v, std::string_view klic, std::string_view hodnota) {
    for (const auto& [jmeno, kam] : TEXTY) {
        if (klic == jmeno) v.Co.*kam = ZRadku(hodnota);
    }
    for (const auto& [jmeno, kam] : CASY) {
        if (klic == jmeno) v.Co.Konec.*kam = CeleCislo<int>(hodnota).value_or(0);
    }
    if (klic == "koren") v.Koren = ZRadku(hodnota);
    if (klic == "uloha") v.Co.CisloUlohy = CeleCislo<int>(hodnota).value_or(0);
    if (klic == "delka-deniku") v.DelkaDeniku = CeleCislo<std::uint64_t>(hodnota);
    if (klic == "v-deniku") v.VDeniku = hodnota == "1";
    if (klic == "stejnych-radku") v.StejnychRadku = CeleCislo<int>(hodnota);
    if (klic == "v-tabulce") v.VTabulce = hodnota == "1";
    if (klic == "ohlaseno") v.Ohlaseno = hodnota == "1";
    return klic == CELY;
}

/// Whether the text is one of this format or the beginning of one. What a later version of the
/// program wrote is none.
bool JeNase(std::string_view text) {
    const std::string radek = std::string(PRVNI_RADEK) + "\n";
    return text.substr(0, radek.size()) == radek.substr(0, text.size());
}

/// Whether a file is certainly not there any more.
bool Zmizel(Disk& disk, const fs::path& soubor) {
    try {
        disk.Odstran(soubor);
        return true;
    } catch (const ChybaDisku& chyba) {
        return chyba.Proc() == Pricina::Neni;
    }
}

using Cas = std::chrono::system_clock::time_point;

/// The beginning of a name: the names of entries stand in the order in which they were made.
std::string ZacatekJmena(Cas cas) {
    const auto ns =
        std::chrono::duration_cast<std::chrono::nanoseconds>(cas.time_since_epoch()).count();
    std::string text = std::to_string(ns);
    text.insert(0, SIRKA_CASU - std::min(text.size(), SIRKA_CASU), '0');
    return text;
}

/// An entry that nobody can be writing any more: the program was killed over it.
bool JeOpusteny(const std::string& jmeno) {
    return jmeno.ends_with(PRIPONA_NOVEHO) &&
           jmeno < ZacatekJmena(std::chrono::system_clock::now() - std::chrono::days(1));
}

bool JeZaznam(const std::string& jmeno) {
    return jmeno.ends_with(PRIPONA);
}

}  // namespace

std::string TextCekajiciho(const CekajiciVysledek& v) {
    std::string text(PRVNI_RADEK);
    text += "\nkoren=" + NaRadek(v.Koren) + "\nuloha=" + std::to_string(v.Co.CisloUlohy) + "\n";
    for (const auto& [jmeno, odkud] : TEXTY)
        text += std::string(jmeno) + "=" + NaRadek(v.Co.*odkud) + "\n";
    for (const auto& [jmeno, odkud] : CASY)
        text += std::string(jmeno) + "=" + std::to_string(v.Co.Konec.*odkud) + "\n";
    return text + Stav(v) + std::string(CELY) + "=1\n";
}

std::optional<CekajiciVysledek> CtiCekajiciho(std::string_view text) {
    CekajiciVysledek v;
    bool cely = false;
    bool prvni = true;
    // A line without its end may be half of one.
    for (std::size_t konec = 0; (konec = text.find('\n')) != std::string_view::npos;) {
        const std::string_view radek = text.substr(0, konec);
        text.remove_prefix(konec + 1);
        if (prvni && radek != PRVNI_RADEK) return std::nullopt;
        prvni = false;
        const std::size_t rovna = std::min(radek.find('='), radek.size());
        cely |= Prirad(v, radek.substr(0, rovna),
                       rovna < radek.size() ? radek.substr(rovna + 1) : std::string_view());
    }
    if (!cely) return std::nullopt;
    return v;
}

fs::path Fronta::Slozka(const fs::path& slozkaStavu) {
    return slozkaStavu / "fronta";
}

fs::path Fronta::Zamek(const fs::path& slozkaStavu) {
    return Slozka(slozkaStavu) / JMENO_ZAMKU;
}

Fronta::Fronta(Disk& disk, const fs::path& slozkaStavu)
    : disk_(disk), slozka_(Slozka(slozkaStavu)) {
    // An account without a home has no queue either.
    if (slozkaStavu.empty()) throw ChybaDisku(Pricina::Neni, slozka_);
    disk_.ZalozSlozku(slozka_);
}

const std::shared_ptr<Soubor>& Fronta::OtevriZamek() {
    const fs::path zamek = slozka_ / JMENO_ZAMKU;
    try {
        if (!disk_.JeSoubor(zamek)) zamek_ = disk_.NovySoubor(zamek);
    } catch (const ChybaDisku& chyba) {
        if (chyba.Proc() != Pricina::UzJe) throw;
    }
    if (!zamek_) zamek_ = disk_.Otevri(zamek, Disk::Jak::Zapis);
    return zamek_;
}

std::vector<CekajiciVysledek> Fronta::Cekajici(const std::string& koren) {
    std::vector<CekajiciVysledek> cekajici;
    for (const std::string& jmeno : disk_.Jmena(slozka_)) {
        const fs::path cesta = slozka_ / jmeno;
        if (JeOpusteny(jmeno)) OdstranPotichu(disk_, cesta);
        if (!JeZaznam(jmeno)) continue;
        try {
            const std::string text = disk_.Otevri(cesta, Disk::Jak::Cteni)->Cti();
            auto v = CtiCekajiciho(text);
            if (!v) {
                if (JeNase(text)) disk_.Odstran(cesta);
            } else if (v->Koren == koren) {
                v->Soubor_ = cesta;
                cekajici.push_back(std::move(*v));
            }
        } catch (const ChybaDisku&) {
            // It stays; the others are not held up by it.
        }
    }
    return cekajici;
}

void Fronta::Zarad(CekajiciVysledek& v) {
    // A name that was never there and never will be again: who finds it gone knows that another
    // program of the account has stored the result.
    const std::string jmeno = ZacatekJmena(std::chrono::system_clock::now()) + "-" +
                              std::to_string(std::random_device{}()) + std::string(PRIPONA);
    const fs::path cesta = slozka_ / jmeno;
    const fs::path novy = slozka_ / (jmeno + std::string(PRIPONA_NOVEHO));
    const auto soubor = disk_.NovySoubor(novy);
    bool nahrazeno = false;
    try {
        soubor->Pis(0, TextCekajiciho(v));
        soubor->NaDisk();
        nahrazeno = true;
        // Others see it whole or not at all.
        disk_.Nahrad(novy, cesta);
    } catch (const ChybaDisku&) {
        OdstranPotichu(disk_, novy);
        // One that may be there and cannot be taken away must keep being noted in.
        v.Nejisty = nahrazeno && !Zmizel(disk_, cesta);
        if (v.Nejisty) v.Soubor_ = cesta;
        throw;
    }
    v.Soubor_ = cesta;
    v.Nejisty = false;
    try {
        disk_.SlozkaNaDisk(slozka_);
    } catch (const ChybaDisku&) {
        // It is there for all who look; only a failure of power might still take it.
    }
}

void Fronta::PoznamenejOhlaseni(const CekajiciVysledek& v) {
    disk_.Otevri(v.Soubor_, Disk::Jak::Pripisek)->Pripis("\nohlaseno=1\n");
}

void Fronta::Poznamenej(const CekajiciVysledek& v, bool naDisk) {
    const auto soubor = disk_.Otevri(v.Soubor_, Disk::Jak::Pripisek);
    // Behind a line that was left half written this one would not count.
    soubor->Pripis("\n" + Stav(v));
    if (naDisk) soubor->NaDisk();
}

void Fronta::Vyrad(const CekajiciVysledek& v) {
    if (!Zmizel(disk_, v.Soubor_)) throw ChybaDisku(Pricina::Jina, v.Soubor_);
}

int PocetCekajicich(Disk& disk, const fs::path& slozkaStavu) {
    const fs::path slozka = Fronta::Slozka(slozkaStavu);
    if (slozkaStavu.empty() || !disk.JeSlozka(slozka)) return 0;
    return static_cast<int>(std::ranges::count_if(disk.Jmena(slozka), JeZaznam));
}

}  // namespace rysovna
