#include "podpora/NaObrazovce.h"

#include <sstream>

namespace rysovna::testy {

bool Zije(const Ovladac& o) {
    for (const Ovladac* p = &o; p != nullptr; p = p->Rodic) {
        if (!p->Visible || !p->Enabled) return false;
    }
    return o.Width > 0 && o.Height > 0;
}

std::string Slovy(const Panel& p) {
    std::ostringstream s;
    for (const MistoNastroje& n : p.Nastroje)
        s << static_cast<int>(n.Co) << "sbz"[static_cast<int>(n.Jak)] << ' ';
    const auto& [nazev, hodnota, jednotka] = p.Rysovane;
    s << '|' << p.Vyzva << '|' << p.Nadpis << '|' << nazev << '|' << jednotka;
    s << '|' << hodnota.Videt << hodnota.Ziva << hodnota.Text << '|' << p.PlochaZiva;
    for (const Velicina& r : p.Veliciny) s << '|' << r.Nazev << r.Hodnota.Text;
    if (p.Vyber.Otevreny) {
        for (const RadekSeznamu& r : p.Vyber.Radky) s << '|' << r.Text << r.Videt << r.Ziva;
    }
    return s.str();
}

}  // namespace rysovna::testy
