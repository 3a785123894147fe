// The program as a page of a browser: what the page calls, by these names (packaging/web). Texts
// are UTF-8; what is given back lives until the next call.

#include <emscripten.h>
#include <exception>
#include <memory>
#include <optional>
#include <sstream>
#include <string>

#include "platform/Klavesnice.h"
#include "platform/Obrazovky.h"
#include "platform/web/Stranka.h"
#include "platform/web/WebHost.h"
#include "screens/Desky.h"
#include "screens/KontrolaPocitace.h"
#include "screens/Sezeni.h"
#include "screens/Start.h"
#include "store/JmenaSouboru.h"
#include "store/SlouceniVysledku.h"
#include "store/TextPokusu.h"

namespace rysovna {
namespace {

constexpr double SKONCILA = -1;  // in the place of ms until the next turn

/// One game, from the page's start to its end.
class Hra : public SmiCekat {
public:
    explicit Hra(std::optional<std::uint32_t> seminko) : Host_(seminko) {}

    WebHost Host_;
    Sezeni Sezeni_{Host_, VyrobDesku};

    double Tah() {
        try {
            const std::uint32_t pristeMs = Host_.Tah();
            if (!Host_.Okna().JeKonec()) return pristeMs;
            Host_.Okna().UnloadVse();
            return SKONCILA;
        } catch (const std::exception& chyba) {
            return Ohlas(chyba.what());
        }
    }

private:
    /// A fault is told in the picture; where that cannot be done either, beside it.
    double Ohlas(const std::string& text) {
        constexpr const char* TITUL = "Chyba";
        try {
            if (!ohlasena_) {
                ohlasena_ = true;
                // No screen may act behind the message.
                Host_.Okna().UnloadVse();
                Host_.Okna().Spust(OhlasASkonci(text));
                return Host_.Tah();
            }
        } catch (const std::exception&) {
            // It is told beside it.
        }
        stranka_zprava(TITUL, text.c_str());
        return SKONCILA;
    }

    Cinnost<> OhlasASkonci(std::string text) {
        co_await Host_.MsgBox(text, "Chyba", Styl::Stop);
        Host_.Okna().Konec(1);
    }

    bool ohlasena_ = false;
};

std::unique_ptr<Hra>& Bezi() {
    static std::unique_ptr<Hra> hra;
    return hra;
}

/// The text that a call has given back.
const char* Vrat(std::string text) {
    static std::string vraceny;
    vraceny = std::move(text);
    return vraceny.c_str();
}

}  // namespace
}  // namespace rysovna

using rysovna::Bezi;
using rysovna::Vrat;

extern "C" {

/// Starts the game; a negative seed is drawn.
EMSCRIPTEN_KEEPALIVE void rys_zacni(double seminko, int sirka, int vyska) {
    const auto zadane = seminko < 0
                            ? std::nullopt
                            : std::optional<std::uint32_t>(static_cast<std::uint32_t>(seminko));
    Bezi() = std::make_unique<rysovna::Hra>(zadane);
    Bezi()->Host_.Rozmer(sirka, vyska);
    Zacni(Bezi()->Sezeni_);
}

/// Watches an attempt of the browser's in place of the game. Why it cannot be watched; empty: it
/// can.
EMSCRIPTEN_KEEPALIVE const char* rys_prehraj(const char* jmeno, int sirka, int vyska) {
    using namespace rysovna;
    Bezi() = std::make_unique<Hra>(std::nullopt);
    Bezi()->Host_.Rozmer(sirka, vyska);
    return Vrat(ZacniPrehravani(Bezi()->Sezeni_,
                                std::filesystem::path(SLOZKA_UCTU) / SLOZKA_POKUSU / jmeno));
}

/// A turn; ms until the next one, or less than nothing: the game is over.
EMSCRIPTEN_KEEPALIVE double rys_tah() {
    return Bezi()->Tah();
}

EMSCRIPTEN_KEEPALIVE void rys_rozmer(int sirka, int vyska) {
    Bezi()->Host_.Rozmer(sirka, vyska);
}
EMSCRIPTEN_KEEPALIVE void rys_mys(int druh, double x, double y, int tlacitko, int shift,
                                  double cas) {
    Bezi()->Host_.Mys(druh, x, y, tlacitko, shift, static_cast<std::uint32_t>(cas));
}
EMSCRIPTEN_KEEPALIVE void rys_prst(int druh, double x, double y, double cas) {
    Bezi()->Host_.Prst(druh, x, y, static_cast<std::uint32_t>(cas));
}
EMSCRIPTEN_KEEPALIVE void rys_klavesa(const char* jmeno, int shift, int opakovana) {
    Bezi()->Host_.Klavesa(jmeno, shift, opakovana != 0);
}
EMSCRIPTEN_KEEPALIVE void rys_klavesa_nahoru(const char* jmeno) {
    Bezi()->Host_.KlavesaNahoru(jmeno);
}
/// Whether the game has a use for a key with Ctrl; 0: it is the browser's.
EMSCRIPTEN_KEEPALIVE int rys_plati_s_ctrl(const char* jmeno) {
    return rysovna::PlatiSCtrl(jmeno) ? 1 : 0;
}
EMSCRIPTEN_KEEPALIVE void rys_pis(const char* text) {
    Bezi()->Host_.Pis(text);
}
EMSCRIPTEN_KEEPALIVE void rys_vloz(const char* text) {
    Bezi()->Host_.Vloz(text);
}
EMSCRIPTEN_KEEPALIVE const char* rys_schranka() {
    return Bezi()->Host_.Schranka().c_str();
}
EMSCRIPTEN_KEEPALIVE void rys_navrat() {
    Bezi()->Host_.Navrat();
}
/// A whole repaint; how long it took, ms.
EMSCRIPTEN_KEEPALIVE double rys_prekresli_vse() {
    return Bezi()->Host_.PrekresliVse();
}

/// Adds results of another machine to one file. 0: done in memory, rys_uchovano tells the rest; 1:
/// not now, a result is being stored; 2: there is no such file of results.
EMSCRIPTEN_KEEPALIVE int rys_pridej_vysledky(const char* jmeno, const char* data, int delka) {
    using namespace rysovna;
    if (Bezi()->Host_.Okna().JeZavreno()) return 1;
    try {
        return PrevezmiVysledky(Bezi()->Host_.Disk(), SLOZKA_UCTU, jmeno,
                                std::string_view(data, static_cast<std::size_t>(delka)))
                   ? 0
                   : 2;
    } catch (const ChybaDisku&) {
        return 2;
    }
}

/// Adds an attempt of another machine under its name, a file's; the same as above.
EMSCRIPTEN_KEEPALIVE int rys_pridej_pokus(const char* jmeno, const char* data, int delka) {
    using namespace rysovna;
    if (Bezi()->Host_.Okna().JeZavreno()) return 1;
    const std::string_view text(data, static_cast<std::size_t>(delka));
    if (!CtiPokus(text).Co) return 2;
    try {
        Bezi()->Sezeni_.Pokusy().Prevezmi(jmeno, text);
        return 0;
    } catch (const ChybaDisku&) {
        return 2;
    }
}

/// Empty when all is kept, "?" while it is not yet, else why it is not.
EMSCRIPTEN_KEEPALIVE const char* rys_uchovano() {
    try {
        return Bezi()->Host_.Disk().Uchovano() ? "" : "?";
    } catch (const rysovna::ChybaDisku& chyba) {
        return Vrat(chyba.what());
    }
}

/// The check before a lesson, as text.
EMSCRIPTEN_KEEPALIVE const char* rys_kontrola(int sirka, int vyska) {
    using namespace rysovna;
    WebHost host;
    host.Rozmer(sirka, vyska);
    std::ostringstream text;
    VypisKontrolu(text, ZkontrolujPocitac({.SlozkaNastaveni = host.WindowsDirectory(),
                                           .SlozkaStavu = host.SlozkaStavu(),
                                           .SlozkaDat = host.SlozkaDat(),
                                           .disk = host.Disk(),
                                           .Obrazovka = [&] { return host.OverObrazovku(); },
                                           .Zvuk = [&] { return host.OverZvuk(); }}));
    return Vrat(text.str());
}

}  // extern "C"
