#include "prehled/Cteni.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/Chyba.h"
#include "base/Cisla.h"
#include "base/Disk.h"
#include "base/Text.h"
#include "engine/Miry.h"
#include "engine/PametovaPlocha.h"
#include "platform/Stroj.h"
#include "prehled/BaleniObrazcu.h"
#include "prehled/Obrazce.h"
#include "rules/Chyby.h"
#include "rules/KatalogChyb.h"
#include "rules/Veliciny.h"
#include "rules/VyrobDialog.h"
#include "store/TextPokusu.h"
#include "store/TextRadku.h"

namespace rysovna::prehled {

namespace {

namespace fs = std::filesystem;

/// Within so many bytes the name stands.
constexpr std::size_t HLAVICKA = 4096;

/// What a file begins with; nothing where it cannot be read.
std::optional<std::string> Zacatek(const fs::path& soubor, std::size_t bajtu) {
    try {
        return DiskStroje().Otevri(soubor, Disk::Jak::Cteni)->Cti(0, bajtu);
    } catch (const ChybaDisku&) {
        return std::nullopt;
    }
}

std::string NazevVeliciny(const ZadanaVelicina& z) {
    return z.Co == ZadanaVelicina::Druh::Uhel ? PismenoUhlu(z.Nazev) : z.Nazev;
}

/// Without the blanks that stand for signs and before degrees.
std::string Hladce(std::string_view text) {
    constexpr std::string_view STUPNE = "°";
    std::string hladky;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool zbytecna =
            text[i] == ' ' && (hladky.ends_with(' ') || text.substr(i + 1).starts_with(STUPNE));
        if (!zbytecna) hladky += text[i];
    }
    return BezKrajnichMezer(hladky);
}

/// The assignments of a task's examples, as its board words them.
class Zadavani {
public:
    explicit Zadavani(int uloha) : dialog_(VyrobDialog(DeskaUlohy(uloha), misc_, {pic_, hiden_})) {
        misc_.CisloUlohy = static_cast<std::uint8_t>(uloha);
        misc_.Vety = [](int) { return std::vector<std::string>(); };
    }
    /// What others wrote may be no example of the board: that has no assignment.
    std::string Text(const ZadanyPriklad& priklad) {
        try {
            dialog_->NovyPriklad();
            dialog_->Zadej(priklad);
            const Panel panel = dialog_->UkazPanel();
            std::string text;
            for (const ZadanaVelicina& z : panel.Zadani) {
                // In words it is whole only with what leads in.
                if (z.Co == ZadanaVelicina::Druh::Slovy) text += panel.Uvod;
                const std::string nazev = NazevVeliciny(z);
                text += (text.empty() || text.ends_with(' ') ? "" : " ") + nazev +
                        (nazev.empty() ? "" : " ") + z.Hodnota;
            }
            return Hladce(text);
        } catch (const std::exception&) {
            return {};
        }
    }

private:
    Misc misc_;
    PametovaPlocha pic_{SIRKA_PLOCHY, VYSKA_PLOCHY}, hiden_{SIRKA_PLOCHY, VYSKA_PLOCHY};
    std::unique_ptr<Dialog> dialog_;
};

/// What others wrote may be no valid text; tables and the page are.
std::string Platne(std::string_view text) {
    return ZeZnaku(DoZnaku(text));
}

std::uint32_t KonecPrikladu(const HranyPriklad& p) {
    return p.Udalosti.empty() ? p.Kdy : std::max(p.Kdy, p.Udalosti.back().Co.Kdy);
}

/// The figure of this order; none where the replay did not come so far.
std::string Vezmi(std::vector<std::string>& obrazce, std::size_t i) {
    return i < obrazce.size() ? std::move(obrazce[i]) : std::string();
}

void PridejPriklad(Serie& serie, const HranyPriklad& p, std::string zadani,
                   std::vector<std::string> obrazceChyb) {
    std::size_t chyba = 0;
    for (const Udalost& u : p.Udalosti) {
        for (const ChybnyKrok& c : u.Chyby) {
            serie.Chyby.push_back({.Cislo = CeleCislo<int>(c.Cislo).value_or(0),
                                   .Bodu = c.Body,
                                   .Veta = BezBodu(Platne(c.Text)),
                                   .Priklad = static_cast<int>(serie.Priklady.size()) + 1,
                                   .Kdy = u.Co.Kdy,
                                   .Obrazec = Vezmi(obrazceChyb, chyba++)});
        }
    }
    PrikladSerie priklad{.Zadani = std::move(zadani),
                         .Nejvic = BODU_ZA_PRIKLAD,
                         .Zkontrolovan = p.Konec.has_value(),
                         .Trvani = KonecPrikladu(p) - p.Kdy};
    if (p.Konec) {
        priklad.Bodu = p.Konec->Bodu;
        priklad.Hotova = p.Konec->Hotova;
        serie.Bodu += priklad.Bodu;
        serie.Nejvic += priklad.Nejvic;
    }
    serie.Trvani = std::max(serie.Trvani, KonecPrikladu(p));
    serie.Priklady.push_back(std::move(priklad));
}

PrectenaSerie SerieZPokusu(const Pokus& pokus, std::string soubor) {
    Obrazce obrazce = NakresliPokus(pokus);
    Serie serie{.Soubor = std::move(soubor),
                .JmenoNapsane = Platne(pokus.Jmeno),
                .Uloha = pokus.CisloUlohy,
                .Zacatek = pokus.Zacatek,
                .Dokoncena = pokus.Dokonceny};
    Zadavani zadavani(pokus.CisloUlohy);
    for (std::size_t i = 0; i < pokus.Priklady.size(); ++i) {
        PridejPriklad(
            serie, pokus.Priklady[i], Platne(zadavani.Text(pokus.Priklady[i].Zadani)),
            i < obrazce.Chyby.size() ? std::move(obrazce.Chyby[i]) : std::vector<std::string>());
        serie.Priklady.back().Obrazec = Vezmi(obrazce.Priklady, i);
    }
    return {.Co = std::move(serie), .Rozchod = std::move(obrazce.Rozchod)};
}

}  // namespace

std::string BezBodu(std::string_view veta) {
    const auto uber = [&veta](std::string_view znaky) {
        const std::size_t konec = veta.find_last_not_of(znaky);
        const std::size_t delka = konec == std::string_view::npos ? 0 : konec + 1;
        const bool neco = delka != veta.size();
        veta = veta.substr(0, delka);
        return neco;
    };
    const std::string_view cela = veta;
    for (const std::string_view slovo : SLOVA_BODU) {
        if (!veta.ends_with(slovo)) continue;
        veta.remove_suffix(slovo.size());
        if (!uber("0123456789")) break;
        uber(" ");
        if (!veta.ends_with('-')) break;
        veta.remove_suffix(1);
        return BezKrajnichMezer(veta);
    }
    return BezKrajnichMezer(cela);
}

std::optional<std::string> JmenoVSouboru(const fs::path& soubor) {
    return JmenoZTextu(Zacatek(soubor, HLAVICKA).value_or(std::string()));
}

PrectenaSerie PrectiSerii(const fs::path& soubor) {
    const std::optional<std::string> text = Zacatek(soubor, NEJVETSI_POKUS + 1);
    if (!text) return {.Vada = "Soubor nelze přečíst."};
    if (text->size() > NEJVETSI_POKUS) return {.Vada = "Soubor je příliš velký."};
    PrectenyPokus pokus = CtiPokus(*text);
    if (!pokus.Co) return {.Vada = std::move(pokus.Vada)};
    try {
        PrectenaSerie serie = SerieZPokusu(*pokus.Co, soubor.filename().string());
        if (DelkaObrazcu(*serie.Co) > NEJVIC_OBRAZCU)
            return {.Vada = "Obrazce pokusu jsou příliš velké."};
        return serie;
    } catch (const std::exception& vyjimka) {
        return {.Vada = std::string("Pokus nejde přehrát: ") + vyjimka.what() + "."};
    }
}

}  // namespace rysovna::prehled
