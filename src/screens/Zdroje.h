#pragma once

#include <string>
#include <string_view>

#include "platform/Obrazek.h"
#include "screens/Sezeni.h"

namespace rysovna {

// Pictures and sounds below the asset root.

/// Reads a picture below the asset root: NactiObrazek("Bitmap\\Select\\bckg.bmp").
[[nodiscard]] Obrazek NactiObrazek(Sezeni& s, std::string_view podCestou);

/// The sound of a press.
void ZvukStisku(Sezeni& s);
/// The sound of the pointer that enters something new.
void ZvukNajeti(Sezeni& s);

/// The two faces of a control that lights up under the pointer.
struct DvojiceObrazku {
    Obrazek Normalni;
    Obrazek Rozsviceny;
};

/// Reads "<zaklad>_0.bmp" and "<zaklad>_1.bmp" below the asset root.
[[nodiscard]] DvojiceObrazku NactiDvojici(Sezeni& s, const std::string& zaklad);

}  // namespace rysovna
