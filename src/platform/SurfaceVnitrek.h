#pragma once

#include "platform/DisplayList.h"
#include "platform/Surface.h"

namespace rysovna {

/// What a surface is made of: the logical bitmap and the display list.
struct Surface::Vnitrek {
    Bitmapa Logicka;
    bool Jednobitova = false;  ///< black and white alone
    bool MaKlic = false;       ///< may hold pixels of the key colour
    Obrazek Podklad;
    Okamzik Obsah;
    std::uint64_t Verze = 0;

    /// Adds an item to the list; what it paints over entirely is dropped when that is worth it.
    void Pridej(Polozka p);
    /// Empties the list: the ground over a colour.
    void Vyprazdni(Pixel pozadi);
    void NovaVerze();
};

}  // namespace rysovna
