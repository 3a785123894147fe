#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <string_view>

namespace rysovna::prehled {

/// What the database could not do.
class ChybaSql : public std::runtime_error {
public:
    explicit ChybaSql(sqlite3* databaze);
    /// Its file is damaged, or no database at all.
    [[nodiscard]] bool Vadna() const { return vadna_; }

private:
    bool vadna_;
};

/// An open database, a file that is made where there is none. Every call does what it says or
/// throws ChybaSql.
class Databaze {
public:
    explicit Databaze(const std::filesystem::path& soubor);
    void Proved(const char* prikazy);
    [[nodiscard]] std::int64_t Cislo(const char* dotaz);
    /// Of the row that was added last.
    [[nodiscard]] std::int64_t PosledniRadek() const { return sqlite3_last_insert_rowid(Spoj()); }
    [[nodiscard]] sqlite3* Spoj() const { return spoj_.get(); }

private:
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> spoj_;
};

/// A statement, prepared once and used as often as wanted. Texts that are put in must live until
/// it was carried out. Places and columns count from 1 and from 0, as the library does.
class Dotaz {
public:
    Dotaz(const Databaze& databaze, const char* sql);

    Dotaz& Dosad(int kam, std::int64_t cislo);
    Dotaz& Dosad(int kam, std::string_view text);
    Dotaz& DosadBajty(int kam, std::string_view bajty);
    /// Carries out a statement that gives no rows.
    void Proved();
    /// The next row of its answer. After the last one the statement is as it was at first.
    [[nodiscard]] bool Dalsi();
    /// Gives up what is left of the answer.
    void Znovu() { sqlite3_reset(prikaz_.get()); }

    [[nodiscard]] std::int64_t Cislo(int sloupec) const;
    /// A number that was put in as an int.
    [[nodiscard]] int Int(int sloupec) const { return static_cast<int>(Cislo(sloupec)); }
    /// Valid until the next row.
    [[nodiscard]] std::string_view Bajty(int sloupec) const;
    [[nodiscard]] std::string Text(int sloupec) const { return std::string(Bajty(sloupec)); }

private:
    void Over(int kod) const;

    sqlite3* spoj_;
    std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> prikaz_;
};

}  // namespace rysovna::prehled
