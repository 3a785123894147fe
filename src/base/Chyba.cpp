#include "base/Chyba.h"

#include <cstring>

namespace rysovna {

void Selhani(std::string_view co, MistoKodu kde) {
    const char* soubor = kde.Soubor;
    if (const char* lomitko = std::strrchr(soubor, '/')) soubor = lomitko + 1;
    throw BehovaChyba(std::string(co), std::string(soubor) + ":" + std::to_string(kde.Radek));
}

}  // namespace rysovna
