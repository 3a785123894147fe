#include "prehled/Sql.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace rysovna::prehled {

namespace {

constexpr int CEKANI_NA_JINEHO = 10'000;  // ms

/// What a teacher can do something about; anything else is told in the library's own words.
constexpr std::pair<int, const char*> PRICINY[] = {
    {SQLITE_BUSY, "pracuje s ním jiný přehled, zkuste to, až skončí"},
    {SQLITE_FULL, "na disku není místo"},
    {SQLITE_READONLY, "nesmí se do něj psát"},
    {SQLITE_CANTOPEN, "není to soubor, nebo k němu chybí oprávnění"},
    {SQLITE_IOERR, "disk nečte nebo nezapisuje"},
    {SQLITE_NOMEM, "nestačí paměť"}};

int Kod(sqlite3* databaze) {
    return databaze == nullptr ? SQLITE_NOMEM : sqlite3_errcode(databaze);
}

const char* Proc(sqlite3* databaze) {
    const auto* p = std::ranges::find(PRICINY, Kod(databaze), &std::pair<int, const char*>::first);
    return p != std::end(PRICINY) ? p->second : sqlite3_errmsg(databaze);
}

}  // namespace

ChybaSql::ChybaSql(sqlite3* databaze) : std::runtime_error(Proc(databaze)) {
    const int kod = Kod(databaze);
    vadna_ = kod == SQLITE_CORRUPT || kod == SQLITE_NOTADB;
}

Databaze::Databaze(const std::filesystem::path& soubor) : spoj_(nullptr, &sqlite3_close) {
    sqlite3* spoj = nullptr;
    const int kod = sqlite3_open_v2(soubor.string().c_str(), &spoj,
                                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    spoj_.reset(spoj);
    if (kod != SQLITE_OK) throw ChybaSql(spoj);
    sqlite3_busy_timeout(spoj, CEKANI_NA_JINEHO);
}

void Databaze::Proved(const char* prikazy) {
    if (sqlite3_exec(Spoj(), prikazy, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw ChybaSql(Spoj());
}

std::int64_t Databaze::Cislo(const char* dotaz) {
    Dotaz d(*this, dotaz);
    return d.Dalsi() ? d.Cislo(0) : 0;
}

Dotaz::Dotaz(const Databaze& databaze, const char* sql)
    : spoj_(databaze.Spoj()), prikaz_(nullptr, &sqlite3_finalize) {
    sqlite3_stmt* prikaz = nullptr;
    Over(sqlite3_prepare_v2(spoj_, sql, -1, &prikaz, nullptr));
    prikaz_.reset(prikaz);
}

void Dotaz::Over(int kod) const {
    if (kod != SQLITE_OK) throw ChybaSql(spoj_);
}

Dotaz& Dotaz::Dosad(int kam, std::int64_t cislo) {
    Over(sqlite3_bind_int64(prikaz_.get(), kam, cislo));
    return *this;
}

Dotaz& Dotaz::Dosad(int kam, std::string_view text) {
    Over(sqlite3_bind_text64(prikaz_.get(), kam, text.data(), text.size(), SQLITE_STATIC,
                             SQLITE_UTF8));
    return *this;
}

Dotaz& Dotaz::DosadBajty(int kam, std::string_view bajty) {
    Over(sqlite3_bind_blob64(prikaz_.get(), kam, bajty.data(), bajty.size(), SQLITE_STATIC));
    return *this;
}

void Dotaz::Proved() {
    while (Dalsi()) {
    }
}

bool Dotaz::Dalsi() {
    const int kod = sqlite3_step(prikaz_.get());
    if (kod == SQLITE_ROW) return true;
    if (kod != SQLITE_DONE) {
        const ChybaSql chyba(spoj_);
        Znovu();
        throw ChybaSql(chyba);
    }
    Znovu();
    return false;
}

std::int64_t Dotaz::Cislo(int sloupec) const {
    return sqlite3_column_int64(prikaz_.get(), sloupec);
}

std::string_view Dotaz::Bajty(int sloupec) const {
    const auto* bajty = static_cast<const char*>(sqlite3_column_blob(prikaz_.get(), sloupec));
    const int delka = sqlite3_column_bytes(prikaz_.get(), sloupec);
    return bajty == nullptr ? std::string_view()
                            : std::string_view(bajty, static_cast<std::size_t>(delka));
}

}  // namespace rysovna::prehled
