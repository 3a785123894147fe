#pragma once

#include "base/Disk.h"

namespace rysovna {

/// The disk of a POSIX system. Tests put faults in its way.
class PosixDisk : public Disk {
public:
    [[nodiscard]] std::filesystem::path Skutecna(std::string_view cesta) override;
    [[nodiscard]] std::filesystem::path Jednoznacna(const std::filesystem::path& co) override;
    [[nodiscard]] bool JeSoubor(const std::filesystem::path& co) override;
    [[nodiscard]] bool JeSlozka(const std::filesystem::path& co) override;
    [[nodiscard]] std::unique_ptr<Soubor> Otevri(const std::filesystem::path& co, Jak jak) override;
    [[nodiscard]] std::unique_ptr<Soubor> NovySoubor(const std::filesystem::path& co) override;
    void Nahrad(const std::filesystem::path& novy, const std::filesystem::path& stary) override;
    void Odstran(const std::filesystem::path& soubor) override;
    [[nodiscard]] std::vector<std::string> Jmena(const std::filesystem::path& slozka) override;
    void ZalozSlozku(const std::filesystem::path& slozka) override;
    void SlozkaNaDisk(const std::filesystem::path& slozka) override;
    [[nodiscard]] bool SmiZakladat(const std::filesystem::path& slozka) override;
    [[nodiscard]] std::uint64_t Volno(const std::filesystem::path& slozka) override;
};

/// Where this account keeps what the program remembers between runs ($XDG_STATE_HOME or
/// ~/.local/state) and its own data ($XDG_DATA_HOME or ~/.local/share), each with the program's
/// name behind. Empty where the account has no home.
[[nodiscard]] std::filesystem::path SlozkaStavuUctu();
[[nodiscard]] std::filesystem::path SlozkaDatUctu();

}  // namespace rysovna
