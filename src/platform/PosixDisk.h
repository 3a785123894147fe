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
    void Prejmenuj(const std::filesystem::path& soubor,
                   const std::filesystem::path& jmeno) override;
    void Odstran(const std::filesystem::path& soubor) override;
    [[nodiscard]] std::vector<std::string> Jmena(const std::filesystem::path& slozka) override;
    void ZalozSlozku(const std::filesystem::path& slozka) override;
    void ZalozPodslozku(const std::filesystem::path& slozka) override;
    void SlozkaNaDisk(const std::filesystem::path& slozka) override;
    [[nodiscard]] bool SmiZakladat(const std::filesystem::path& slozka) override;
    [[nodiscard]] std::uint64_t Volno(const std::filesystem::path& slozka) override;
};

}  // namespace rysovna
