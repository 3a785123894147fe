#include "store/UkladaniNaDisk.h"

namespace rysovna {

Cinnost<> UkladaniNaDisk::PockejNaUchovani(std::filesystem::path cesta) {
    const std::uint32_t od = ted_();
    while (!disk_.Uchovano()) {
        if (ted_() - od + KROK_CEKANI > NEJDELE_NA_UCHOVANI) throw ChybaDisku(Pricina::Jina, cesta);
        co_await Cekani::SVstupem(KROK_CEKANI);
    }
}

}  // namespace rysovna
