#include "podpora/Udalosti.h"

#include <cstdint>
#include <sstream>

namespace rysovna::testy {

void Proved(Relace& hra, std::string_view udalosti) {
    std::istringstream slova{std::string(udalosti)};
    for (std::string slovo; slova >> slovo;) {
        const char znak = slovo[0];
        if (slovo.ends_with("ms")) {
            hra.Cekej(static_cast<std::uint32_t>(std::stoi(slovo)));
        } else if (znak == '\'') {
            hra.Napis(slovo.substr(1));
        } else if (znak == '@' || znak == '!') {
            std::string jmeno = slovo.substr(1);
            int index = 0;
            if (hra.Vpredu()->Najdi(jmeno) == nullptr) {  // one of an array
                index = jmeno.back() - '0';
                jmeno.pop_back();
            }
            znak == '@' ? hra.NaZastavku(jmeno, index) : hra.Stiskni(jmeno, index);
        } else {
            const std::size_t od = znak == '^' ? 1 : 0, krat = slovo.find('*');
            const int kolikrat = krat == std::string::npos ? 1 : std::stoi(slovo.substr(krat + 1));
            for (int i = 0; i < kolikrat; ++i)
                hra.Klavesa(slovo.substr(od, krat - od), static_cast<int>(od));
        }
    }
}

std::string Prsten(Relace& hra) {
    const auto p = hra.Host().Okna().PrstenVpredu();
    if (!p) return "";
    return p->Co->Name + (p->Co->Index != 0 ? std::to_string(p->Co->Index) : "");
}

}  // namespace rysovna::testy
