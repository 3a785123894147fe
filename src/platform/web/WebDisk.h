#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/PosixDisk.h"

namespace rysovna {

/// Where things are in the browser. All files lie in memory; the page fills the folders before the
/// program starts.
constexpr const char* SLOZKA_HRY = "/hra";     ///< configuration, pictures, data: as they were sent
constexpr const char* SLOZKA_UCTU = "/ucet";   ///< results
constexpr const char* SLOZKA_STAVU = "/stav";  ///< the queue

/// The disk of a page. Files of results go to the browser's store when Uchovano() is asked, all
/// that changed in one transaction; if the store refuses, they are in memory again what the store
/// has, and attempts, which nothing was there of, are not. Files of the queue are kept at once by
/// each call; a call that the browser refuses did nothing. No other program sees the files, so a
/// lock holds between opened copies alone.
class WebDisk final : public PosixDisk {
public:
    /// Takes what lies in the folder of results for what the store has.
    WebDisk();

    [[nodiscard]] std::unique_ptr<Soubor> Otevri(const std::filesystem::path& co, Jak jak) override;
    [[nodiscard]] std::unique_ptr<Soubor> NovySoubor(const std::filesystem::path& co) override;
    void Nahrad(const std::filesystem::path& novy, const std::filesystem::path& stary) override;
    void Prejmenuj(const std::filesystem::path& soubor,
                   const std::filesystem::path& jmeno) override;
    void Odstran(const std::filesystem::path& soubor) override;
    void SlozkaNaDisk(const std::filesystem::path& /*slozka*/) override {}
    [[nodiscard]] bool SmiZakladat(const std::filesystem::path& slozka) override;
    [[nodiscard]] std::uint64_t Volno(const std::filesystem::path& slozka) override;
    [[nodiscard]] bool Uchovano() override;

private:
    class WebSoubor;
    void Zmenen(const std::filesystem::path& co);
    void HnedUchovej(const std::filesystem::path& co);
    void VratUchovane();

    std::map<std::string, std::string> uchovane_;  ///< results as the store has them
    std::set<std::string> zmenene_;                ///< since the last transaction began
    /// What the transaction under way keeps; none: none is under way.
    std::map<std::string, std::optional<std::string>> uklada_;
    std::set<std::string> zamcene_;
};

}  // namespace rysovna
