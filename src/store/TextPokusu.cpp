#include "store/TextPokusu.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "base/Cisla.h"
#include "base/Text.h"
#include "rules/KatalogChyb.h"
#include "rules/Ulohy.h"
#include "store/MapaPoli.h"
#include "store/TextRadku.h"

namespace rysovna {

/// What is wrong with a line. Caught by its type, which therefore has a name outside this file,
/// too.
struct VadnyRadek : std::runtime_error {
    using std::runtime_error::runtime_error;
};

namespace {

constexpr std::string_view ZNACKA = "RYSOVNA1 POKUS ";
constexpr int VERZE = 1;

// The words with which lines begin.
constexpr std::string_view PROGRAM = "program", JMENO = "jmeno", ULOHA = "uloha",
                           ZACATEK = "zacatek", PRIKLADU = "prikladu", PRIKLAD = "priklad",
                           POLE = "pole", HODNOTY = "hodnoty", DANO = "dano", STAV = "stav",
                           VETA = "veta", BEZ_VETY = "bez-vety", CHYBA = "chyba",
                           VYSLEDEK = "vysledek", KONEC = "konec";
constexpr std::string_view DOKONCENY = "ano", NEDOKONCENY = "ne", BEZ_JMENA = "-";

/// A call's word, and what follows it and the time.
enum class Udaje { Zadne, Cislo, CisloAText, Misto, Posun };
constexpr struct RadekVolani {
    Volani::Druh Co;
    std::string_view Slovo;
    Udaje Jake;
} VOLANI[] = {
    {Volani::Druh::Nastroj, "nastroj", Udaje::Cislo},
    {Volani::Druh::Radek, "radek", Udaje::Cislo},
    {Volani::Druh::ZavritSeznam, "zavrit", Udaje::Zadne},
    {Volani::Druh::Napsani, "text", Udaje::CisloAText},
    {Volani::Druh::Stisk, "stisk", Udaje::Misto},
    {Volani::Druh::Pusteni, "pusteni", Udaje::Misto},
    {Volani::Druh::Nacrt, "nacrt", Udaje::Misto},
    {Volani::Druh::Posunuti, "posun", Udaje::Posun},
    {Volani::Druh::Kontrola, "kontrola", Udaje::Zadne},
};
static_assert(std::size(VOLANI) == Volani::DRUHU, "a kind of call without its line");

/// A line, its end included: what is given, with blanks between.
std::string PisRadek(std::string_view slovo, std::initializer_list<std::string> udaje) {
    std::string radek(slovo);
    for (const std::string& u : udaje) radek += " " + u;
    return radek + "\n";
}

std::string S(int cislo) {
    return std::to_string(cislo);
}

// Decimals of a place, at most.
constexpr std::size_t MIST = 15;
constexpr double NASOBEK = 1e15;

/// A place from its whole part and its decimals, at most MIST of them; nothing if they are none.
std::optional<float> SlozMisto(std::string_view cele, std::string_view zlomek) {
    std::string cislice(zlomek);
    cislice.resize(MIST, '0');
    const auto cela = CeleCislo<int>(cele);
    const auto casti = CeleCislo<std::int64_t>(cislice);
    if (!cela || !casti || zlomek.size() > MIST || *cela < 0 || *casti < 0) return std::nullopt;
    return static_cast<float>(*cela + static_cast<double>(*casti) / NASOBEK);
}

/// A single with as few decimals as it is read back with: "12", "33.777779".
std::string TextMista(float x) {
    const double velikost = std::fabs(static_cast<double>(x));
    const double cela = std::floor(velikost);
    const std::string cele = std::to_string(static_cast<int>(cela));
    const std::string znamenko = std::signbit(x) ? "-" : "";
    double rad = 1;
    for (std::size_t mist = 1; mist <= MIST; ++mist) {
        if (velikost == cela) break;
        rad *= 10;
        std::string zlomek =
            std::to_string(static_cast<std::int64_t>(std::nearbyint((velikost - cela) * rad)));
        if (zlomek.size() > mist) continue;  // it rounds to the next whole number
        zlomek.insert(0, mist - zlomek.size(), '0');
        if (mist == MIST || SlozMisto(cele, zlomek) == std::fabs(x))
            return znamenko + cele + "." + zlomek;
    }
    return znamenko + cele;
}

std::string Datum(const DatumACas& d) {
    return S(d.Rok) + "-" + DveCislice(d.Mesic) + "-" + DveCislice(d.Den) + " " +
           DveCislice(d.Hodina) + ":" + DveCislice(d.Minuta);
}

std::string Otisk(std::uint32_t otisk) {
    std::array<char, 8> cislice{};
    const auto [konec, chyba] =
        std::to_chars(cislice.data(), cislice.data() + cislice.size(), otisk, 16);
    static_cast<void>(chyba);
    return {cislice.data(), konec};
}

std::string Bezpecne(const std::string& jmeno) {
    return jmeno.empty() ? std::string(BEZ_JMENA) : NaRadek(jmeno);
}

std::string RadekVolaniJako(const Volani& v) {
    const auto* r = std::ranges::find(VOLANI, v.Co, &RadekVolani::Co);
    const std::string kdy = std::to_string(v.Kdy);
    switch (r->Jake) {
        case Udaje::Zadne:
            break;
        case Udaje::Cislo:
            return PisRadek(r->Slovo, {kdy, S(v.Cislo)});
        case Udaje::CisloAText:
            return PisRadek(r->Slovo, {kdy, S(v.Cislo), NaRadek(v.Text)});
        case Udaje::Misto:
            return PisRadek(r->Slovo, {kdy, TextMista(v.X), TextMista(v.Y)});
        case Udaje::Posun:
            return PisRadek(r->Slovo, {kdy, S(v.O.X), S(v.O.Y)});
    }
    return PisRadek(r->Slovo, {kdy});
}

std::string TextZadani(const ZadanyPriklad& z, int cisloUlohy) {
    std::string text;
    for (const Slot& slot : MapaDesky(DeskaUlohy(cisloUlohy)).Pole) {
        const std::string& hodnota = slot.V(z.Zaznam);
        if (!hodnota.empty()) text += PisRadek(POLE, {std::string(slot.Jmeno), NaRadek(hodnota)});
    }
    if (z.Hodnoty != HodnotyPrikladu{}) {
        const auto& [a, b, c, d, e] = z.Hodnoty;
        text += PisRadek(HODNOTY, {S(a), S(b), S(c), S(d), S(e)});
    }
    for (const DanyUtvar& u : z.Figura) {
        text += PisRadek(DANO, {u.Druh, Bezpecne(u.Jmeno1), Bezpecne(u.Jmeno2), S(u.P1.X),
                                S(u.P1.Y), S(u.P2.X), S(u.P2.Y), Bezpecne(u.NaPrimce)});
    }
    return text;
}

// ---- Reading ---------------------------------------------------------------------------------

/// Words of a line, one after the other, and what is left of it.
class Slova {
public:
    explicit Slova(std::string_view radek) : zbytek_(radek) {}

    std::string_view Slovo() {
        const std::size_t konec = std::min(zbytek_.find(' '), zbytek_.size());
        const std::string_view slovo = zbytek_.substr(0, konec);
        zbytek_.remove_prefix(std::min(konec + 1, zbytek_.size()));
        if (slovo.empty()) throw VadnyRadek("chybí údaj");
        return slovo;
    }
    /// Whatever is left; may be empty.
    std::string Text() { return ZRadku(std::exchange(zbytek_, {})); }
    std::string Jmeno() {
        const std::string_view slovo = Slovo();
        return slovo == BEZ_JMENA ? std::string() : ZRadku(slovo);
    }
    template <class T = int>
    T Cislo(T nejmene, T nejvyse, int zaklad = 10) {
        const auto cislo = CeleCislo<T>(Slovo(), zaklad);
        if (!cislo || *cislo < nejmene || *cislo > nejvyse) throw VadnyRadek("vadné číslo");
        return *cislo;
    }
    int Pixel() { return Cislo(-NEJDAL_V_POKUSU, NEJDAL_V_POKUSU); }
    float Misto() {
        std::string_view slovo = Slovo();
        const bool zaporne = slovo.starts_with('-');
        if (zaporne) slovo.remove_prefix(1);
        const std::size_t tecka = std::min(slovo.find('.'), slovo.size());
        const std::string_view zlomek = slovo.substr(std::min(tecka + 1, slovo.size()));
        const auto misto = SlozMisto(slovo.substr(0, tecka), zlomek);
        if (!misto || *misto > NEJDAL_V_POKUSU) throw VadnyRadek("vadné místo");
        return zaporne ? -*misto : *misto;
    }
    std::uint32_t Cas() { return Cislo<std::uint32_t>(0, UINT32_MAX); }
    void Dost() const {
        if (!zbytek_.empty()) throw VadnyRadek("údaj navíc");
    }

private:
    std::string_view zbytek_;
};

DatumACas CtiDatum(std::string_view text) {
    // "2026-11-22 17:05"
    const auto cast = [text](std::size_t kde, std::size_t delka, int nejmene, int nejvyse) {
        const auto n = CeleCislo<int>(text.substr(std::min(kde, text.size()), delka));
        if (!n || *n < nejmene || *n > nejvyse) throw VadnyRadek("vadné datum");
        return *n;
    };
    if (text.size() != std::string_view("2026-11-22 17:05").size()) throw VadnyRadek("vadné datum");
    return {.Rok = cast(0, 4, 0, 9999),
            .Mesic = cast(5, 2, 1, 12),
            .Den = cast(8, 2, 1, 31),
            .Hodina = cast(11, 2, 0, 23),
            .Minuta = cast(14, 2, 0, 59)};
}

/// Takes in line after line.
class Ctenar {
public:
    void Radek(std::string_view radek) {
        Slova s(radek);
        const std::string_view slovo = s.Slovo();
        if (konec_) throw VadnyRadek("řádek za koncem");
        const bool uvodni = Hlavicka(slovo, s);
        if ((!uvodni || konec_) && pokus_.CisloUlohy == 0) throw VadnyRadek("chybí číslo úlohy");
        if (uvodni) return;
        if (slovo == PRIKLAD) {
            pokus_.Priklady.push_back({.Kdy = s.Cas()});
            otisk_ = 0;
            return s.Dost();
        }
        if (pokus_.Priklady.empty()) throw VadnyRadek("neznámé slovo");
        HranyPriklad& p = pokus_.Priklady.back();
        if (!Zadani(p, slovo, s) && !Prubeh(p, slovo, s)) throw VadnyRadek("neznámé slovo");
    }
    [[nodiscard]] bool MaKonec() const { return konec_; }
    [[nodiscard]] Pokus& Precteny() { return pokus_; }

private:
    bool Hlavicka(std::string_view slovo, Slova& s) {
        if (slovo == PROGRAM) {
            pokus_.Program = s.Text();
        } else if (slovo == JMENO) {
            pokus_.Jmeno = s.Text();
        } else if (slovo == ULOHA) {
            if (pokus_.CisloUlohy != 0) throw VadnyRadek("úloha podruhé");
            pokus_.CisloUlohy = s.Cislo(1, static_cast<int>(std::size(ULOHY)));
        } else if (slovo == ZACATEK) {
            pokus_.Zacatek = CtiDatum(s.Text());
        } else if (slovo == PRIKLADU) {
            pokus_.PrikladuSerie = s.Cislo(0, UINT8_MAX);
        } else if (slovo == KONEC) {
            const std::string jak = s.Text();
            if (jak != DOKONCENY && jak != NEDOKONCENY) throw VadnyRadek("vadný konec");
            pokus_.Dokonceny = jak == DOKONCENY;
            konec_ = true;
        } else {
            return false;
        }
        return true;
    }

    bool Zadani(HranyPriklad& p, std::string_view slovo, Slova& s) const {
        if (slovo == POLE) {
            const auto mapa = MapaDesky(DeskaUlohy(pokus_.CisloUlohy)).Pole;
            const auto slot = std::ranges::find(mapa, s.Slovo(), &Slot::Jmeno);
            if (slot == mapa.end()) throw VadnyRadek("neznámé pole");
            slot->V(p.Zadani.Zaznam) = s.Text();
        } else if (slovo == HODNOTY) {
            for (int& h : p.Zadani.Hodnoty) h = s.Pixel();
            s.Dost();
        } else if (slovo == DANO) {
            DanyUtvar u{.Druh = std::string(s.Slovo())};
            u.Jmeno1 = s.Jmeno();
            u.Jmeno2 = s.Jmeno();
            for (int* n : {&u.P1.X, &u.P1.Y, &u.P2.X, &u.P2.Y}) *n = s.Pixel();
            u.NaPrimce = s.Jmeno();
            s.Dost();
            p.Zadani.Figura.push_back(std::move(u));
        } else {
            return false;
        }
        return true;
    }

    bool Prubeh(HranyPriklad& p, std::string_view slovo, Slova& s) {
        const auto* volani = std::ranges::find(VOLANI, slovo, &RadekVolani::Slovo);
        if (volani != std::end(VOLANI)) {
            p.Udalosti.push_back({.Co = CtiVolani(*volani, s), .Otisk = otisk_});
        } else if (slovo == STAV) {
            otisk_ = s.Cislo<std::uint32_t>(0, UINT32_MAX, 16);
            (p.Udalosti.empty() ? p.Otisk : p.Udalosti.back().Otisk) = otisk_;
            s.Dost();
        } else if (slovo == VETA) {
            const int cislo = s.Cislo(0, INT16_MAX);
            p.Vety[cislo].push_back(s.Text());
        } else if (slovo == BEZ_VETY) {
            p.Vety[s.Cislo(0, INT16_MAX)];
            s.Dost();
        } else if (slovo == CHYBA) {
            if (p.Udalosti.empty()) throw VadnyRadek("chyba bez kroku");
            ChybnyKrok chyba{.Cislo = std::to_string(s.Cislo(0, INT16_MAX))};
            chyba.Body = static_cast<std::int16_t>(s.Cislo(0, BODU_ZA_PRIKLAD));
            chyba.Text = s.Text();
            p.Udalosti.back().Chyby.push_back(std::move(chyba));
        } else if (slovo == VYSLEDEK) {
            const int bodu = s.Cislo(0, BODU_ZA_PRIKLAD);
            p.Konec = {.Bodu = bodu, .Hotova = s.Cislo(0, 1) == 1};
            s.Dost();
        } else {
            return false;
        }
        return true;
    }

    static Volani CtiVolani(const RadekVolani& r, Slova& s) {
        Volani v{.Co = r.Co, .Kdy = s.Cas()};
        switch (r.Jake) {
            case Udaje::Zadne:
                break;
            case Udaje::Cislo:
                v.Cislo = s.Cislo(INT16_MIN, INT16_MAX);
                break;
            case Udaje::CisloAText:
                v.Cislo = s.Cislo(INT16_MIN, INT16_MAX);
                v.Text = s.Text();
                break;
            case Udaje::Misto:
                v.X = s.Misto();
                v.Y = s.Misto();
                break;
            case Udaje::Posun:
                for (int* n : {&v.O.X, &v.O.Y}) *n = s.Pixel();
                break;
        }
        s.Dost();
        return v;
    }

    Pokus pokus_;
    std::uint32_t otisk_ = 0;
    bool konec_ = false;
};

/// Takes the next line off the text; nothing where it has no end any more.
std::optional<std::string_view> DalsiRadek(std::string_view& text) {
    const std::size_t konec = text.find('\n');
    if (konec == std::string_view::npos) return std::nullopt;
    std::string_view radek = text.substr(0, konec);
    text.remove_prefix(konec + 1);
    if (radek.ends_with('\r')) radek.remove_suffix(1);  // an editor or a mail may have put it there
    return radek;
}

/// Why it is no attempt that this program reads, by its first line; no reason if it is one.
PrectenyPokus CtiZnacku(std::string_view prvni) {
    const bool nase = prvni.starts_with(ZNACKA);
    const auto verze = nase ? CeleCislo<int>(prvni.substr(ZNACKA.size())) : std::nullopt;
    if (!verze) return {.Vada = "Soubor není záznam pokusu."};
    if (*verze == VERZE) return {};
    return {.Vada = "Záznam pokusu má verzi " + S(*verze) + ", tento program čte verzi " +
                    S(VERZE) + ".",
            .JinaVerze = true};
}

}  // namespace

std::string ZacatekPokusu(const Pokus& pokus) {
    return std::string(ZNACKA) + S(VERZE) + "\n" + PisRadek(PROGRAM, {NaRadek(pokus.Program)}) +
           PisRadek(JMENO, {NaRadek(pokus.Jmeno)}) + PisRadek(ULOHA, {S(pokus.CisloUlohy)}) +
           PisRadek(ZACATEK, {Datum(pokus.Zacatek)}) + PisRadek(PRIKLADU, {S(pokus.PrikladuSerie)});
}

std::string TextPrikladu(const HranyPriklad& p, int cisloUlohy) {
    std::string text =
        PisRadek(PRIKLAD, {std::to_string(p.Kdy)}) + TextZadani(p.Zadani, cisloUlohy);
    for (const auto& [cislo, vety] : p.Vety) {
        if (vety.empty()) text += PisRadek(BEZ_VETY, {S(cislo)});
        for (const std::string& v : vety) text += PisRadek(VETA, {S(cislo), NaRadek(v)});
    }
    text += PisRadek(STAV, {Otisk(p.Otisk)});
    std::uint32_t otisk = p.Otisk;
    for (const Udalost& u : p.Udalosti) {
        text += RadekVolaniJako(u.Co);
        if (std::exchange(otisk, u.Otisk) != u.Otisk) text += PisRadek(STAV, {Otisk(u.Otisk)});
        for (const ChybnyKrok& c : u.Chyby)
            text += PisRadek(CHYBA, {c.Cislo, S(c.Body), NaRadek(c.Text)});
    }
    if (p.Konec) text += PisRadek(VYSLEDEK, {S(p.Konec->Bodu), S(p.Konec->Hotova ? 1 : 0)});
    return text;
}

std::string KonecPokusu(bool dokonceny) {
    return PisRadek(KONEC, {std::string(dokonceny ? DOKONCENY : NEDOKONCENY)});
}

std::string TextPokusu(const Pokus& pokus) {
    std::string text = ZacatekPokusu(pokus);
    for (const HranyPriklad& p : pokus.Priklady) text += TextPrikladu(p, pokus.CisloUlohy);
    return text + KonecPokusu(pokus.Dokonceny);
}

bool MaKonec(std::string_view text) {
    return text.ends_with("\n" + KonecPokusu(true)) || text.ends_with("\n" + KonecPokusu(false));
}

std::optional<std::string> JmenoZTextu(std::string_view text) {
    const std::string slovo = "\n" + std::string(JMENO) + " ";
    const std::size_t kde = text.find(slovo);
    if (kde == std::string_view::npos) return std::nullopt;
    text.remove_prefix(kde + slovo.size());
    return ZRadku(text.substr(0, text.find_first_of("\r\n")));
}

PrectenyPokus CtiPokus(std::string_view text) {
    const std::optional<std::string_view> prvni = DalsiRadek(text);
    if (PrectenyPokus cizi = CtiZnacku(prvni.value_or("")); !cizi.Vada.empty()) return cizi;
    Ctenar ctenar;
    int cislo = 1;
    try {
        while (const auto radek = DalsiRadek(text)) {
            ++cislo;
            ctenar.Radek(*radek);
        }
    } catch (const VadnyRadek& vada) {
        return {.Vada = "Záznam pokusu je poškozený: řádek " + S(cislo) + ", " + vada.what() + "."};
    }
    // Half a line counts for nothing: there the file was cut off.
    if (!ctenar.MaKonec() || !text.empty())
        return {.Vada = "Záznam pokusu není celý: končí řádkem " + S(cislo) + "."};
    return {.Co = std::move(ctenar.Precteny())};
}

}  // namespace rysovna
