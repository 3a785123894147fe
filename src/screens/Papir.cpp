#include "screens/Papir.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/Cisla.h"
#include "engine/Miry.h"
#include "platform/Paleta.h"
#include "platform/Pdf.h"
#include "platform/Pisma.h"
#include "platform/Sazba.h"
#include "platform/Zalom.h"
#include "rules/Kontrola.h"
#include "rules/Ulohy.h"
#include "rules/Veliciny.h"
#include "screens/SlovaObrazovek.h"

namespace rysovna {

namespace {

constexpr Pismo TITUL{.Velikost = 17, .Tucne = true};
constexpr Pismo NADPIS{.Velikost = 11, .Tucne = true};
constexpr Pismo BEZNE{.Velikost = 10.5F};
constexpr Pismo VELICINA{.Velikost = 10.5F, .Kurziva = true};
constexpr Pismo DROBNE{.Velikost = 8.5F};

// Measures of the page.
constexpr double OKRAJ = 2.0 * Pdf::NA_CM, NAHORE = 1.5 * Pdf::NA_CM, PATA = 1.3 * Pdf::NA_CM;
constexpr double SIRKA = Pdf::SIRKA - 2 * OKRAJ, DOLE = Pdf::VYSKA - 1.8 * Pdf::NA_CM;
constexpr double SIRKA_NACRTU = 6.2 * Pdf::NA_CM, MEZERA = 0.4 * Pdf::NA_CM;
constexpr double ODSAZENI = 0.75 * Pdf::NA_CM;  ///< of the text behind a number
constexpr double TENCE = 0.6, SILNE = 1.6;      ///< of lines
/// So many times smaller is the figure than on a blackboard, where 8 px are 1 cm.
constexpr int MERITKO = 3;
constexpr double PIXEL_FIGURY = Pdf::NA_CM / (PIXELU_NA_CM * MERITKO);

/// "DA||BC" with a sign of its own.
std::string SRovnobezkou(std::string nazev) {
    constexpr std::string_view DVE_CARY = "||";
    const std::size_t kde = nazev.find(DVE_CARY);
    return kde == std::string::npos ? nazev : nazev.replace(kde, DVE_CARY.size(), " ∥ ");
}

/// "= 12 cm, " without what parts it from the next one, and with one blank before the number.
std::string Hodnota(std::string_view text) {
    while (!text.empty() && (text.back() == ' ' || text.back() == ',')) text.remove_suffix(1);
    std::string hodnota;
    for (const char c : text) {
        if (c != ' ' || (!hodnota.empty() && hodnota.back() != ' ')) hodnota += c;
    }
    return hodnota;
}

std::string NazevUlohy(int cislo) {
    const Uloha* uloha = NajdiUlohu(cislo);
    if (uloha == nullptr) return "Úloha " + TextBezMezery(cislo);
    std::string nazev = std::string(RODINY[uloha->Rodina]) + ": ";
    for (const char c : uloha->TypUlohy) nazev += c == '-' ? "–" : std::string(1, c);
    return nazev;
}

/// Sets one thing below another and goes on to a new page where there is no room.
class Sazec {
public:
    explicit Sazec(const Papir& papir)
        : papir_(papir),
          pdf_({.Nazev = NazevUlohy(papir.CisloUlohy), .Autor = papir.Jmeno, .Kdy = papir.Kdy}) {
        Pata();
    }

    std::string Sloz(const Surface& figura, const Surface& nacrt) {
        Hlavicka();
        Zadani(nacrt);
        Figura(figura);
        Postup();
        Vysledek();
        return pdf_.Dokonci();
    }

private:
    void Pata() {
        ++stranka_;
        const double y = Pdf::VYSKA - PATA;
        const std::string kde = "strana " + TextBezMezery(stranka_);
        pdf_.Text(OKRAJ, y, DROBNE, "Rysovna 1, úloha " + TextBezMezery(papir_.CisloUlohy),
                  paleta::INKOUST2);
        pdf_.Text(OKRAJ + SIRKA - PresnaSirka(DROBNE, kde), y, DROBNE, kde, paleta::INKOUST2);
        y_ = NAHORE;
    }

    /// Room for something of this height.
    void Misto(double vyska) {
        if (y_ + vyska <= DOLE) return;
        pdf_.NovaStranka();
        Pata();
    }

    /// A paragraph from x on; znacka stands before its first row.
    void Odstavec(const std::string& text, const Pismo& pismo, double x, double sirka,
                  const std::string& znacka = {}) {
        const int vyska = VyskaRadku(pismo);
        const double odsazeni = znacka.empty() ? 0 : ODSAZENI;
        bool prvni = true;
        for (const std::string& radek :
             RozdelNaRadky(pismo, text, static_cast<int>(sirka - odsazeni))) {
            Misto(vyska);
            if (prvni) pdf_.Text(x, y_, pismo, znacka);
            pdf_.Text(x + odsazeni, y_, pismo, radek);
            y_ += vyska + 1;
            prvni = false;
        }
    }

    /// A heading never stands at the foot of a page alone.
    void Nadpis(const std::string& text) {
        Misto(3.0 * VyskaRadku(NADPIS));
        pdf_.Text(OKRAJ, y_, NADPIS, text, paleta::ACCENT);
        y_ += VyskaRadku(NADPIS) + 3;
    }

    void Hlavicka() {
        const std::string poradi = "příklad " + TextBezMezery(papir_.Poradi) + " z " +
                                   TextBezMezery(papir_.Prikladu) + ", " +
                                   DatumACasCesky(papir_.Kdy, " v ");
        const double vpravo = PresnaSirka(BEZNE, poradi);
        pdf_.Text(OKRAJ, y_, TITUL, NazevUlohy(papir_.CisloUlohy));
        y_ += VyskaRadku(TITUL) + 4;
        // A name that leaves no room beside it has rows of its own.
        const bool dlouhe = PresnaSirka(BEZNE, papir_.Jmeno) + MEZERA + vpravo > SIRKA;
        if (dlouhe) {
            Odstavec(papir_.Jmeno, BEZNE, OKRAJ, SIRKA);
        } else {
            pdf_.Text(OKRAJ, y_, BEZNE, papir_.Jmeno);
        }
        pdf_.Text(OKRAJ + SIRKA - vpravo, y_, BEZNE, poradi);
        y_ += VyskaRadku(BEZNE) + 4;
        pdf_.Cara(OKRAJ, y_, OKRAJ + SIRKA, y_, SILNE, paleta::ACCENT);
        y_ += MEZERA;
    }

    /// The assignment with the sketch beside it.
    void Zadani(const Surface& nacrt) {
        const double nahore = y_;
        const double zvetseni = SIRKA_NACRTU / nacrt.Width();
        const double vlevo = OKRAJ + SIRKA - SIRKA_NACRTU;
        const double vyska = nacrt.Height() * zvetseni;
        pdf_.Plocha(vlevo, nahore, zvetseni, nacrt);
        pdf_.Ramecek(vlevo, nahore, SIRKA_NACRTU, vyska, TENCE, paleta::INKOUST2);
        Nadpis("Zadání");
        const double sirka = SIRKA - SIRKA_NACRTU - MEZERA;
        Odstavec(Vysad(papir_.Uvod), BEZNE, OKRAJ, sirka);
        y_ += 2;
        for (const ZadanaVelicina& z : papir_.Zadani) {
            if (z.Co == ZadanaVelicina::Druh::Slovy) {
                Odstavec(Vysad(Hodnota(z.Hodnota)), BEZNE, OKRAJ, sirka);
                continue;
            }
            const bool uhel = z.Co == ZadanaVelicina::Druh::Uhel;
            const std::string nazev = Vysad(uhel ? PismenoUhlu(z.Nazev) : SRovnobezkou(z.Nazev));
            const Pismo& pismo = uhel ? BEZNE : VELICINA;
            pdf_.Text(OKRAJ, y_, pismo, nazev);
            pdf_.Text(OKRAJ + PresnaSirka(pismo, nazev + " "), y_, BEZNE,
                      Vysad(Hodnota(z.Hodnota)));
            y_ += VyskaRadku(BEZNE) + 1;
        }
        y_ = std::max(y_, nahore + vyska) + MEZERA;
    }

    void Figura(const Surface& figura) {
        const double w = figura.Width() * PIXEL_FIGURY;
        const double h = figura.Height() * PIXEL_FIGURY;
        const double x = OKRAJ + (SIRKA - w) / 2;
        Misto(h);
        pdf_.Plocha(x, y_, PIXEL_FIGURY, figura);
        pdf_.Ramecek(x, y_, w, h, TENCE, paleta::INKOUST2);
        y_ += h + 2;
        const std::string meritko = "měřítko 1 : " + TextBezMezery(MERITKO);
        pdf_.Text(x + w - PresnaSirka(DROBNE, meritko), y_, DROBNE, meritko, paleta::INKOUST2);
        y_ += VyskaRadku(DROBNE);
    }

    void Postup() {
        Nadpis("Postup konstrukce");
        int poradi = 0;
        for (const KrokPostupu& krok : papir_.Postup) {
            ++poradi;
            const std::string cislo = TextBezMezery(poradi) + ".";
            Odstavec(Vysad(TextKroku(poradi, krok).substr(cislo.size() + 1)), BEZNE, OKRAJ, SIRKA,
                     cislo);
        }
        if (poradi == 0) Odstavec("Zatím není nic narýsováno.", BEZNE, OKRAJ, SIRKA);
        y_ += MEZERA;
    }

    void Vysledek() {
        Nadpis("Hodnocení");
        if (!papir_.Konec) {
            return Odstavec("Kontrola konstrukce ještě neproběhla.", BEZNE, OKRAJ, SIRKA);
        }
        const Papir::Hodnoceni& h = *papir_.Konec;
        Odstavec("Počet bodů: " + TextBezMezery(h.Bodu) + " z " + TextBezMezery(BODU_ZA_PRIKLAD) +
                     (h.Hotova ? "." : ". Konstrukce není dokončena."),
                 BEZNE, OKRAJ, SIRKA);
        if (h.Chyby.empty()) return Odstavec("Bez chyby.", BEZNE, OKRAJ, SIRKA);
        Misto(3.0 * VyskaRadku(BEZNE));
        Odstavec(std::string(CHYBNE_KROKY), BEZNE, OKRAJ, SIRKA);
        int poradi = 0;
        for (const std::string& chyba : h.Chyby)
            Odstavec(chyba, BEZNE, OKRAJ, SIRKA, TextBezMezery(++poradi) + ".");
    }

    const Papir& papir_;
    Pdf pdf_;
    double y_ = 0;
    int stranka_ = 0;
};

}  // namespace

Papir SepisPapir(HlavickaPapiru hlavicka, const Dialog& dialog, bool zkontrolovany) {
    const Misc& misc = dialog.Pamet();
    const Panel panel = dialog.UkazPanel();
    Papir papir;
    static_cast<HlavickaPapiru&>(papir) = std::move(hlavicka);
    papir.CisloUlohy = misc.CisloUlohy;
    papir.Uvod = panel.Uvod;
    papir.Zadani = panel.Zadani;
    papir.Postup = SestavPostup(dialog);
    if (!zkontrolovany) return papir;
    papir.Konec = {.Bodu = BoduPrikladu(misc, dialog.Hotova()), .Hotova = dialog.Hotova()};
    for (int i = 1; i <= misc.PocetChybnychKroku; ++i)
        papir.Konec->Chyby.push_back(misc.ChybneKroky[i].Text);
    return papir;
}

std::string SlozPapir(const Papir& papir, const Surface& figura, const Surface& nacrt) {
    return Sazec(papir).Sloz(figura, nacrt);
}

}  // namespace rysovna
