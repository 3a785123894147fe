#pragma once

#include <string>
#include <string_view>

#include "screens/FormHry.h"

namespace rysovna {

/// The list of wrong steps, shown over the board while the verdict is held down: at most the first
/// ten rows.
class ChybovyForm final : public FormHry {
public:
    static constexpr int RADKU = 10;

    explicit ChybovyForm(Sezeni& s);
    [[nodiscard]] std::string_view Jmeno() const override { return "ChybovyForm"; }

    TextBox Text1;  ///< fills the client area but for its frame; all rows fit

    void Load() override;
    /// A press on the list closes it: only a release that got lost leaves it standing so long.
    Cinnost<> MouseDown(Ovladac* o, const Mys& m) override;
    Odezva Klavesa(std::string_view klavesa, int shift) override;
};

/// The text of the list: the lead-in, then a row for each of the first ten wrong steps.
[[nodiscard]] std::string TextChybnychKroku(const Misc& misc);

}  // namespace rysovna
