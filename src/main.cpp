#include <exception>
#include <iostream>

#include "platform/Host.h"
#include "platform/Obrazovky.h"
#include "platform/sdl/SdlHost.h"
#include "shell/Misc.h"
#include "shell/SelectForm.h"
#include "shell/Ulohy.h"
#include "tasks/Desky.h"

namespace {

constexpr int STAV_CHYBA = 1;
constexpr int STAV_BEZ_OBRAZOVKY = 2;

void VypisChybu(const std::exception& chyba) {
    std::cerr << "Rysovna skončila chybou: " << chyba.what() << '\n';
}

/// Tells the fault in the window; where that cannot be done either, on the error output.
void OznamChybu(rysovna::Host& host, const std::exception& chyba) {
    using namespace rysovna;
    try {
        // No screen may act behind the message: what they share is not to be trusted any more.
        host.Okna().UnloadVse();
        host.MsgBox(chyba.what(), "Chyba", Styl::Stop);
        ObnovObrazovku();
    } catch (const std::exception& dalsi) {
        VypisChybu(chyba);
        VypisChybu(dalsi);
    }
}

int Hraj(rysovna::Host& host) {
    using namespace rysovna;
    try {
        NastavVyrobceDesek(VyrobDesku);
        host.Okna().Nacti<SelectForm>();
        while (!host.Okna().JeKonec()) host.DoEvents(1000);
        host.Okna().UnloadVse();
        return host.Okna().StavKonce();
    } catch (const std::exception& chyba) {
        OznamChybu(host, chyba);
        return STAV_CHYBA;
    }
}

}  // namespace

int main() {
    try {
        if (!rysovna::SdlHost::MaDisplej()) {
            std::cerr << "Není k dispozici žádná obrazovka.\n";
            return STAV_BEZ_OBRAZOVKY;
        }
        rysovna::SdlHost host;
        const rysovna::HostNaDobu naDobu(host);
        return Hraj(host);
    } catch (const std::exception& chyba) {
        VypisChybu(chyba);
        return STAV_CHYBA;
    }
}
