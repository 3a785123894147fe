#include "rules/NazvyPrimek.h"

#include "rules/Panel.h"

namespace rysovna {

namespace {

std::string NazevPrimky(std::string_view jmeno, std::string_view vztah, std::string_view zaklad) {
    const std::string j(jmeno);
    return "přímka " + j + ", " + j + std::string(vztah) + std::string(zaklad);
}

}  // namespace

std::string NazevKolmice(std::string_view jmeno, std::string_view zaklad) {
    return NazevPrimky(jmeno, " " + std::string(KOLMO) + " ", zaklad);
}

std::string NazevRovnobezky(std::string_view jmeno, std::string_view zaklad) {
    return NazevPrimky(jmeno, "||", zaklad);
}

}  // namespace rysovna
