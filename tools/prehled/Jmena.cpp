#include "prehled/Jmena.h"

#include <cstdlib>
#include <memory>
#include <utf8proc.h>

#include "base/Text.h"

namespace rysovna::prehled {

std::string KlicJmena(std::string_view jmeno) {
    // What is no valid text becomes such that is.
    const std::string platne = ZeZnaku(DoZnaku(jmeno));
    utf8proc_uint8_t* slozene = nullptr;
    const auto delka = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t*>(platne.data()),
        static_cast<utf8proc_ssize_t>(platne.size()), &slozene,
        static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPAT | UTF8PROC_COMPOSE |
                                       UTF8PROC_STRIPMARK | UTF8PROC_CASEFOLD | UTF8PROC_IGNORE |
                                       UTF8PROC_STRIPCC));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> drzene(slozene, &std::free);
    std::string_view zbyva = delka < 0 ? std::string_view(platne)
                                       : std::string_view(reinterpret_cast<const char*>(slozene),
                                                          static_cast<std::size_t>(delka));
    std::string klic;
    bool mezera = false;
    for (const char znak : zbyva) {
        if (znak == ' ') {
            mezera = !klic.empty();
            continue;
        }
        if (mezera) klic += ' ';
        mezera = false;
        klic += znak;
    }
    return klic;
}

}  // namespace rysovna::prehled
