#pragma once

#include <memory>
#include <string_view>

#include "base/Bod.h"

namespace rysovna {

struct DataObrazku;

/// A picture: its 1:1 bitmap and, where one stands beside it, its large twin (read when a larger
/// display first shows it). A cheap value: copies share the pixels. Empty by default.
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

/// Begins to read a picture that LoadPicture will soon be asked for, in the size that the display
/// is going to need, and returns at once: what a wait leaves idle is used. One picture at a time; a
/// file that is not there is left for LoadPicture to find fault with.
void PrednactiObrazek(std::string_view cesta);

}  // namespace rysovna
