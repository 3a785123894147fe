#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <utility>

#include "base/Cinnost.h"
#include "base/Disk.h"

namespace rysovna {

/// What all that stores has in common: a disk that may answer later, and a clock to wait by.
class UkladaniNaDisk : public SmiCekat {
public:
    /// How long a disk that answers later is waited for at a time, ms.
    static constexpr std::uint32_t NEJDELE_NA_UCHOVANI = 10'000;

protected:
    /// Between two questions, ms.
    static constexpr std::uint32_t KROK_CEKANI = 20;

    /// ted: tick count, ms.
    UkladaniNaDisk(Disk& disk, std::function<std::uint32_t()> ted)
        : disk_(disk), ted_(std::move(ted)) {}

    /// Until the disk has kept what was written; ChybaDisku (that names the file) if it did not. A
    /// disk that has kept it by now is not waited for.
    Cinnost<> PockejNaUchovani(std::filesystem::path cesta);

    Disk& disk_;
    std::function<std::uint32_t()> ted_;
};

}  // namespace rysovna
