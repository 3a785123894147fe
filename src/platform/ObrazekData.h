#pragma once

#include <filesystem>
#include <future>

#include "platform/Bitmapa.h"
#include "platform/Obrazek.h"

namespace rysovna {

/// What the copies of a picture share: its 1:1 bitmap and, made when first wanted, the picture in
/// the size of the display.
struct DataObrazku {
    std::filesystem::path Cesta;  ///< empty for a picture made in memory
    Bitmapa Logicka;
    bool MaKlic = false;  ///< has pixels of the key colour

    /// The picture enlarged S times. At S = 1 the logical bitmap. Read from the large twin where
    /// there is one; the size last asked for is kept, the twin is not.
    [[nodiscard]] const Bitmapa& VeVelikosti(double s);
    /// Begins to make that size on another thread.
    void PripravVelikost(double s);

private:
    Bitmapa zvetsena_;
    double meritko_ = 0;
    std::future<Bitmapa> budouci_;
    double budouciMeritko_ = 0;
};

/// The scale at which the host is going to show pictures; 1 until it says so.
void NastavOcekavaneMeritko(double s);

/// Reads a bitmap file, packed or plain. Anything else is a run-time fault that names the file.
[[nodiscard]] Bitmapa NactiBmp(const std::filesystem::path& soubor);

}  // namespace rysovna
