#include "prehled/Rejstrik.h"

#include <memory>
#include <system_error>
#include <utility>

#include "base/Chyba.h"
#include "prehled/BaleniObrazcu.h"
#include "prehled/Verze.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

/// By which its file is known: "RYSP".
constexpr std::int64_t ZNACKA = 0x52595350;
/// Of what stands in it. A change of the tables, or of figures and sentences, wants another one.
constexpr std::int64_t VERZE = 1;

constexpr const char* TABULKY = R"(
    CREATE TABLE program(verze TEXT NOT NULL);
    CREATE TABLE serie(id INTEGER PRIMARY KEY, soubor TEXT NOT NULL UNIQUE, slozka TEXT NOT NULL,
        jmeno TEXT NOT NULL, uloha INTEGER NOT NULL, zacatek INTEGER NOT NULL,
        dokoncena INTEGER NOT NULL, bodu INTEGER NOT NULL, nejvic INTEGER NOT NULL,
        trvani INTEGER NOT NULL, rozchod TEXT NOT NULL);
    CREATE TABLE priklad(serie INTEGER NOT NULL, poradi INTEGER NOT NULL, zadani TEXT NOT NULL,
        bodu INTEGER NOT NULL, nejvic INTEGER NOT NULL, zkontrolovan INTEGER NOT NULL,
        hotova INTEGER NOT NULL, trvani INTEGER NOT NULL,
        PRIMARY KEY(serie, poradi)) WITHOUT ROWID;
    CREATE TABLE veta(id INTEGER PRIMARY KEY, text TEXT NOT NULL UNIQUE);
    CREATE TABLE chyba(serie INTEGER NOT NULL, poradi INTEGER NOT NULL, cislo INTEGER NOT NULL,
        bodu INTEGER NOT NULL, veta INTEGER NOT NULL, priklad INTEGER NOT NULL,
        kdy INTEGER NOT NULL, PRIMARY KEY(serie, poradi)) WITHOUT ROWID;
    CREATE TABLE obrazce(serie INTEGER PRIMARY KEY, data BLOB NOT NULL);
)";

/// Takes a fault of the library for what it means here.
template <class F>
auto Preloz(F co) {
    try {
        return co();
    } catch (const ChybaSql& chyba) {
        if (chyba.Vadna()) throw VadnyRejstrik(chyba.what());
        throw;
    }
}

Databaze Otevri(const fs::path& soubor) {
    try {
        return Databaze(soubor);
    } catch (const ChybaSql& chyba) {
        if (chyba.Vadna()) throw VadnyRejstrik(chyba.what());
        throw BehovaChyba(std::string("Rejstřík nelze otevřít: ") + chyba.what(), soubor.string());
    }
}

/// 2026-11-22 17:05 as 202611221705: later times are greater.
std::int64_t CisloCasu(const DatumACas& d) {
    std::int64_t cislo = d.Rok;
    for (const int dalsi : {d.Mesic, d.Den, d.Hodina, d.Minuta}) cislo = cislo * 100 + dalsi;
    return cislo;
}

DatumACas CasZCisla(std::int64_t c) {
    const auto cast = [&c](int kolik) {
        const auto n = static_cast<int>(c % kolik);
        c /= kolik;
        return n;
    };
    DatumACas kdy;
    kdy.Minuta = cast(100);
    kdy.Hodina = cast(100);
    kdy.Den = cast(100);
    kdy.Mesic = cast(100);
    kdy.Rok = static_cast<int>(c);
    return kdy;
}

}  // namespace

Rejstrik::Rejstrik(const fs::path& soubor) : db_(Otevri(soubor)) {
    Preloz([&] {
        // What is taken away is not left lying in the file.
        db_.Proved("PRAGMA secure_delete = ON; PRAGMA cache_size = -32000; BEGIN IMMEDIATE");
        if (db_.Cislo("SELECT COUNT(*) FROM sqlite_master") == 0) Zaloz();
        if (db_.Cislo("PRAGMA application_id") != ZNACKA)
            throw VadnyRejstrik("soubor není rejstřík přehledu");
        if (db_.Cislo("PRAGMA user_version") != VERZE) throw VadnyRejstrik("rejstřík je starší");
        Dotaz verze(db_, "SELECT verze FROM program");
        if (!verze.Dalsi() || verze.Bajty(0) != VERZE_PROGRAMU)
            throw VadnyRejstrik("rejstřík je od jiné verze programu");
        pridejSerii_.emplace(db_, "INSERT INTO serie VALUES(NULL,?,?,?,?,?,?,?,?,?,?)");
        pridejPriklad_.emplace(db_, "INSERT INTO priklad VALUES(?,?,?,?,?,?,?,?)");
        pridejChybu_.emplace(db_, "INSERT INTO chyba VALUES(?,?,?,?,?,?,?)");
        pridejObrazce_.emplace(db_, "INSERT INTO obrazce VALUES(?,?)");
        obrazce_.emplace(db_, "SELECT data FROM obrazce WHERE serie=?");
        Dotaz vety(db_, "SELECT text, id FROM veta");
        while (vety.Dalsi()) vety_.emplace(vety.Text(0), vety.Cislo(1));
    });
}

void Rejstrik::Zaloz() {
    db_.Proved(TABULKY);
    db_.Proved(("PRAGMA application_id = " + std::to_string(ZNACKA)).c_str());
    db_.Proved(("PRAGMA user_version = " + std::to_string(VERZE)).c_str());
    Dotaz(db_, "INSERT INTO program VALUES(?)").Dosad(1, VERZE_PROGRAMU).Proved();
}

std::unordered_map<std::string, Rejstrik::Zaznam> Rejstrik::Serie() {
    return Preloz([&] {
        std::unordered_map<std::string, Zaznam> vse;
        Dotaz d(db_, "SELECT soubor, id, slozka, jmeno FROM serie");
        while (d.Dalsi()) vse.emplace(d.Text(0), Zaznam{d.Cislo(1), d.Text(2), d.Text(3)});
        return vse;
    });
}

std::int64_t Rejstrik::IdVety(const std::string& veta) {
    const auto [kde, nova] = vety_.try_emplace(veta, 0);
    if (nova) {
        Dotaz(db_, "INSERT INTO veta VALUES(NULL,?)").Dosad(1, veta).Proved();
        kde->second = db_.PosledniRadek();
    }
    return kde->second;
}

void Rejstrik::Pridej(const prehled::Serie& s, const std::string& slozka, std::string_view rozchod,
                      std::string_view obrazce) {
    Preloz([&] {
        pridejSerii_->Dosad(1, s.Soubor)
            .Dosad(2, slozka)
            .Dosad(3, s.JmenoNapsane)
            .Dosad(4, s.Uloha)
            .Dosad(5, CisloCasu(s.Zacatek))
            .Dosad(6, s.Dokoncena)
            .Dosad(7, s.Bodu)
            .Dosad(8, s.Nejvic)
            .Dosad(9, s.Trvani)
            .Dosad(10, rozchod)
            .Proved();
        const std::int64_t id = db_.PosledniRadek();
        int poradi = 0;
        for (const PrikladSerie& p : s.Priklady) {
            pridejPriklad_->Dosad(1, id)
                .Dosad(2, ++poradi)
                .Dosad(3, p.Zadani)
                .Dosad(4, p.Bodu)
                .Dosad(5, p.Nejvic)
                .Dosad(6, p.Zkontrolovan)
                .Dosad(7, p.Hotova)
                .Dosad(8, p.Trvani)
                .Proved();
        }
        poradi = 0;
        for (const ChybaSerie& c : s.Chyby) {
            pridejChybu_->Dosad(1, id)
                .Dosad(2, ++poradi)
                .Dosad(3, c.Cislo)
                .Dosad(4, c.Bodu)
                .Dosad(5, IdVety(c.Veta))
                .Dosad(6, c.Priklad)
                .Dosad(7, c.Kdy)
                .Proved();
        }
        pridejObrazce_->Dosad(1, id).DosadBajty(2, obrazce).Proved();
    });
}

void Rejstrik::Odeber(std::int64_t id) {
    Preloz([&] {
        for (const char* prikaz :
             {"DELETE FROM serie WHERE id=?", "DELETE FROM priklad WHERE serie=?",
              "DELETE FROM chyba WHERE serie=?", "DELETE FROM obrazce WHERE serie=?"})
            Dotaz(db_, prikaz).Dosad(1, id).Proved();
    });
}

void Rejstrik::Potvrd() {
    Preloz([&] { db_.Proved("COMMIT; BEGIN"); });
}

void Rejstrik::ProKazdou(const std::function<void(Prectena&)>& coSNi) {
    Preloz([&] {
        Dotaz serie(db_,
                    "SELECT id, soubor, jmeno, uloha, zacatek, dokoncena, bodu, nejvic, trvani, "
                    "rozchod FROM serie ORDER BY zacatek, soubor");
        Dotaz priklady(db_,
                       "SELECT zadani, bodu, nejvic, zkontrolovan, hotova, trvani FROM priklad "
                       "WHERE serie=? ORDER BY poradi");
        Dotaz chyby(db_,
                    "SELECT cislo, bodu, text, priklad, kdy FROM chyba JOIN veta ON veta=veta.id "
                    "WHERE serie=? ORDER BY poradi");
        while (serie.Dalsi()) {
            Prectena p{.Id = serie.Cislo(0), .Rozchod = serie.Text(9)};
            p.Co = {.Soubor = serie.Text(1),
                    .JmenoNapsane = serie.Text(2),
                    .Uloha = serie.Int(3),
                    .Zacatek = CasZCisla(serie.Cislo(4)),
                    .Dokoncena = serie.Int(5) != 0,
                    .Bodu = serie.Int(6),
                    .Nejvic = serie.Int(7),
                    .Trvani = static_cast<std::uint32_t>(serie.Cislo(8))};
            priklady.Dosad(1, p.Id);
            while (priklady.Dalsi()) {
                p.Co.Priklady.push_back({.Zadani = priklady.Text(0),
                                         .Bodu = priklady.Int(1),
                                         .Nejvic = priklady.Int(2),
                                         .Zkontrolovan = priklady.Int(3) != 0,
                                         .Hotova = priklady.Int(4) != 0,
                                         .Trvani = static_cast<std::uint32_t>(priklady.Cislo(5))});
            }
            chyby.Dosad(1, p.Id);
            while (chyby.Dalsi()) {
                p.Co.Chyby.push_back({.Cislo = chyby.Int(0),
                                      .Bodu = chyby.Int(1),
                                      .Veta = chyby.Text(2),
                                      .Priklad = chyby.Int(3),
                                      .Kdy = static_cast<std::uint32_t>(chyby.Cislo(4))});
            }
            coSNi(p);
        }
    });
}

void Rejstrik::NactiObrazce(std::int64_t id, prehled::Serie& serie) {
    Preloz([&] {
        obrazce_->Dosad(1, id);
        const bool jsou = obrazce_->Dalsi() && RozbalObrazce(obrazce_->Bajty(0), serie);
        obrazce_->Znovu();
        if (!jsou) throw VadnyRejstrik("obrazce jsou poškozené");
    });
}

namespace {

/// Whether the file begins as an index of this program's does: such a one nobody misses.
bool JeNase(const fs::path& soubor) {
    try {
        return Databaze(soubor).Cislo("PRAGMA application_id") == ZNACKA;
    } catch (const ChybaSql&) {
        return false;
    }
}

}  // namespace

void OdlozRejstrik(const fs::path& soubor, std::string& oznam) {
    std::error_code chyba;
    fs::path denik = soubor;
    denik += "-journal";
    if (JeNase(soubor)) {
        fs::remove(soubor, chyba);
        oznam = "Rejstřík se zakládá znovu, všechny pokusy se čtou od začátku.";
    } else {
        fs::path stranou = soubor;
        stranou += ".vadny";
        fs::rename(soubor, stranou, chyba);
        oznam = "Soubor " + soubor.string() +
                " není rejstřík přehledu nebo je poškozený: odložen jako " + stranou.string() +
                ", zakládá se nový.";
    }
    if (chyba) throw BehovaChyba("Vadný rejstřík nelze odstranit", soubor.string());
    fs::remove(denik, chyba);
}

std::unique_ptr<Rejstrik> OtevriRejstrik(const fs::path& soubor, std::string& oznam) {
    try {
        return std::make_unique<Rejstrik>(soubor);
    } catch (const VadnyRejstrik&) {
        OdlozRejstrik(soubor, oznam);
    }
    return std::make_unique<Rejstrik>(soubor);
}

}  // namespace rysovna::prehled
