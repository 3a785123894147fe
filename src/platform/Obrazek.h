#pragma once

#include <memory>
#include <string_view>

#include "base/Bod.h"

namespace rysovna {

class DataObrazku;

/// A picture: its 1:1 bitmap and, where they stand beside it, its shapes, drawn on larger displays.
/// A cheap value: copies share what was read. Empty by default.
class Obrazek {
public:
    Obrazek() = default;
    explicit Obrazek(std::shared_ptr<DataObrazku> data);

    [[nodiscard]] bool Prazdny() const { return !data_; }
    /// Size in design pixels.
    [[nodiscard]] int Width() const { return vyrez_.Width; }
    [[nodiscard]] int Height() const { return vyrez_.Height; }
    /// Cell i (from 0) of a strip of one row with this many cells.
    [[nodiscard]] Obrazek Bunka(int i, int pocet) const;

    /// What the platform paints from.
    [[nodiscard]] const std::shared_ptr<DataObrazku>& Data() const { return data_; }
    [[nodiscard]] const Obdelnik& Vyrez() const { return vyrez_; }

    friend bool operator==(const Obrazek&, const Obrazek&) = default;

private:
    std::shared_ptr<DataObrazku> data_;
    Obdelnik vyrez_;
};

/// Reads a picture. cesta: with backslashes, any case. A missing or damaged file is a run-time
/// fault that names it.
[[nodiscard]] Obrazek LoadPicture(std::string_view cesta);

}  // namespace rysovna
