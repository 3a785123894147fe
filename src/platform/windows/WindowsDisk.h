#pragma once

#include "base/Disk.h"

namespace rysovna {

/// The disk of Windows. Its rules differ from POSIX's in three ways that show here: a file that
/// another program has open, were it a virus scanner for a moment, can be neither opened nor
/// replaced, so such calls are repeated for a while; what a folder allows its files inherit; and
/// what was made in a folder needs no waiting for. Tests put faults in its way.
class WindowsDisk : public Disk {
public:
    [[nodiscard]] std::filesystem::path Skutecna(std::string_view cesta) override;
    [[nodiscard]] std::filesystem::path Jednoznacna(const std::filesystem::path& co) override;
    [[nodiscard]] bool JeSoubor(const std::filesystem::path& co) override;
    [[nodiscard]] bool JeSlozka(const std::filesystem::path& co) override;
    [[nodiscard]] std::unique_ptr<Soubor> Otevri(const std::filesystem::path& co, Jak jak) override;
    [[nodiscard]] std::unique_ptr<Soubor> NovySoubor(const std::filesystem::path& co) override;
    void Nahrad(const std::filesystem::path& novy, const std::filesystem::path& stary) override;
    void Prejmenuj(const std::filesystem::path& soubor,
                   const std::filesystem::path& jmeno) override;
    void Odstran(const std::filesystem::path& soubor) override;
    [[nodiscard]] std::vector<std::string> Jmena(const std::filesystem::path& slozka) override;
    void ZalozSlozku(const std::filesystem::path& slozka) override;
    void SlozkaNaDisk(const std::filesystem::path& slozka) override;
    [[nodiscard]] bool SmiZakladat(const std::filesystem::path& slozka) override;
    [[nodiscard]] std::uint64_t Volno(const std::filesystem::path& slozka) override;
};

}  // namespace rysovna
