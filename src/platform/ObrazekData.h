#pragma once

#include <filesystem>
#include <memory>

#include "platform/Bitmapa.h"
#include "platform/Obrazek.h"
#include "platform/Tvary.h"

namespace rysovna {

/// What the copies of a picture share: its 1:1 bitmap, read when somebody first wants its pixels,
/// and its shapes, if they belong to just that bitmap.
class DataObrazku {
public:
    /// A picture made in memory.
    explicit DataObrazku(Bitmapa logicka);
    /// The picture of a bitmap file. A file of which not even the head can be read is a run-time
    /// fault that names it.
    explicit DataObrazku(std::filesystem::path soubor);

    /// Size in design pixels.
    [[nodiscard]] int Sirka() const { return sirka_; }
    [[nodiscard]] int Vyska() const { return vyska_; }
    /// Has pixels of the key colour.
    [[nodiscard]] bool MaKlic() const { return maKlic_; }
    /// The 1:1 bitmap. A damaged file is a run-time fault that names it.
    [[nodiscard]] const Bitmapa& Logicka();
    /// The picture enlarged S times; at S = 1 the 1:1 bitmap. The size last asked for is kept.
    [[nodiscard]] const Bitmapa& VeVelikosti(double s);
    /// What it can be drawn from at any scale, straight to where it is wanted; null where it must
    /// go through a bitmap: it has see-through parts, or no shapes.
    [[nodiscard]] const Tvary* PrimeTvary() const { return maKlic_ ? nullptr : tvary_.get(); }

private:
    friend void ZahodNevidene();
    std::filesystem::path soubor_;
    int sirka_ = 0, vyska_ = 0;
    bool maKlic_ = false;
    Bitmapa logicka_;
    std::unique_ptr<Tvary> tvary_;
    Bitmapa zvetsena_;
    double meritko_ = 0;
    std::uint64_t videna_ = 0;  ///< the count of whole paintings when it was last asked for
};

/// Lays what the picture shows on the target: its top left corner and size at kam, within orez. A
/// see-through picture leaves the target's pixels where it is the key, or (pruhledne is false)
/// brings the key there.
void PolozObrazek(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez,
                  const Obrazek& obrazek, double s, bool pruhledne);

/// The shapes beside a bitmap file.
[[nodiscard]] std::filesystem::path SouborTvaru(std::filesystem::path soubor);
/// From now on there are no bitmap files: the home has shapes alone, from which 1:1 bitmaps are
/// made too.
void PouzijJenTvary();
[[nodiscard]] bool JsouJenTvary();

/// A whole painting begins; and it ended: enlarged bitmaps that it did not ask for are let go.
void ZacniMalovat();
void ZahodNevidene();

/// Reads a bitmap file, packed or plain. Anything else is a run-time fault that names the file.
[[nodiscard]] Bitmapa NactiBmp(const std::filesystem::path& soubor);

}  // namespace rysovna
