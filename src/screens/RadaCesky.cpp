#include "screens/RadaCesky.h"

#include <string_view>

#include "base/Cisla.h"
#include "rules/Chyby.h"
#include "rules/KatalogChyb.h"
#include "rules/Veliciny.h"

namespace rysovna {

namespace {

using Co = Rada::Co;
using Tvar = Gesto::Tvar;

/// What is always said in the same words.
struct Veta {
    Co Druh;
    std::string_view Prvni, Druha{};
};
constexpr Veta VETY[] = {
    {Co::OznacZadane, "Označ v náčrtku všechno, co je zadáno.", "Potom ožijí nástroje vlevo."},
    {Co::VysunNacrt, "Vysuň náčrtek šipkou na pravém okraji",
     "a označ v něm všechno, co je zadáno."},
    {Co::ZvolPrvni, "Až v náčrtku označíš všechno, co je zadáno,", "zvol nástroj, kterým začneš."},
    {Co::ZvolTrojuhelnik, "Zvol tlačítkem „podle věty“, jak trojúhelník sestrojíš."},
    {Co::VyplnHodnoty, "Vyplň všechna políčka podle zadání.", "Potom stiskni „sestroj“."},
    {Co::PotvrdHodnoty, "Hodnoty potvrď tlačítkem „sestroj“."},
    {Co::Zkontroluj, "Konstrukce je hotová: stiskni nahoře tlačítko Kontrola."},
    {Co::VratNezavrenou, "Narýsované útvary konstrukci nedokončily.",
     "Vrať se tlačítkem „zpět o krok“ a zkus to jinak."},
    {Co::VratNesestrojeny, "Z těchto hodnot trojúhelník sestrojit nejde.",
     "Vrať se tlačítkem „zpět o krok“."},
    {Co::PodZpet, "Vrátí poslední krok.", "Případná chyba v něm se ale dál počítá."},
    {Co::PodSestroj, "Nejprve vyplň všechna políčka.",
     "Prázdné políčko se může počítat jako chyba."},
    {Co::PodKontrola, "Kontrola příklad uzavře.", "Konstrukce ještě není hotová."},
    {Co::PodOdchod, "Odchodem série končí.", "Výsledek se do tabulky nezapíše."},
    {Co::MrtvyBezZnacek, "Nástroje ožijí, až v náčrtku označíš, co je zadáno."},
    {Co::MrtvySUtvarem, "Nejprve dokonči na ploše rozdělaný útvar."},
    {Co::MrtvySeSeznamem, "Nejprve vyber řádek otevřeného seznamu."},
    {Co::MrtveZpet, "Odtud se o krok zpět vrátit nejde."},
    {Co::MrtvaVeta, "Nejprve zvol trojúhelník."},
    {Co::MrtveHodnoty, "Nejprve zvol trojúhelník a větu."},
};

/// How an object in hand is drawn; {} stands for the point that it begins in, [] for the other.
struct Postup {
    Tvar Druh;
    std::string_view SeJmeny, BezeJmen;
};
constexpr Postup POSTUPY[] = {
    {Tvar::Usecka, "Začni tam, kde bude bod {}, táhni k bodu [] a pusť.",
     "Začni v krajním bodě, táhni k druhému a pusť."},
    {Tvar::Primka, "Začni v bodě {}, táhni do bodu [] a pusť.",
     "Začni v jednom bodě přímky, táhni do druhého a pusť."},
    {Tvar::Poloprimka, "Začni v bodě {}, táhni ve směru polopřímky a pusť.",
     "Začni v počátku, táhni ve směru polopřímky a pusť."},
    {Tvar::Kolmice, "", "Začni tam, kudy má kolmice vést, táhni a pusť."},
    {Tvar::Rovnobezka, "", "Začni na přímce, táhni rovnoběžku na její místo a pusť."},
    {Tvar::Kruznice, "Začni ve středu {}, táhni vodorovně a pusť.",
     "Začni ve středu kružnice, táhni vodorovně a pusť."},
    {Tvar::Utvar, "", "Začni na ploše, táhni a pusť."},
    {Tvar::Bod, "", "Označ na ploše hledaný bod, stačí přibližně."},
};

constexpr std::string_view ZASUN_NACRT = "Náčrtek v cestě zasuneš šipkou na jeho levém okraji.";
constexpr std::string_view SHODNA_MIRA = "Pusť, až se ukázaná míra shodne s napsanou.";
constexpr std::string_view BEZ_MIRY = "Velikost není napsaná, políčko vlevo je prázdné.";
constexpr std::string_view TAH_BEZ_MIRY = " – velikost není napsaná, políčko vlevo je prázdné.";
constexpr std::string_view PRESNE_NA_BOD = "Označ na ploše přesně hledaný bod.";
constexpr std::string_view STRED_STRANY = "Začni ve středu strany {}, táhni vodorovně a pusť.";
constexpr std::string_view OZNACI = "Mezerník označí: ", ZRUSI_ZNACKU = "Mezerník zruší značku: ";
constexpr std::string_view DALSI_PRVEK =
    "Označ všechno, co je zadáno. Na další prvek vedou šipky, dál Tab.";
constexpr std::string_view POSUN_KONEC = "Posuň konec šipkami a klepni na „hotovo“.";
constexpr std::string_view POSUN_K_MIRE = " – dolaď šipkami a klepni na „hotovo“.";
constexpr std::string_view UKAZ_CHYBY =
    "Dokud držíš křížek, ukazuje se seznam chybných kroků. Dál vede tlačítko vpravo.";
constexpr std::string_view BEZ_CHYBY = "Bez chyby! Dál vede tlačítko vpravo.";

/// What is said in other words to whom plays by keys or by a finger.
struct Slova {
    std::string_view Mysi, Klavesami, Prstem;
    [[nodiscard]] std::string_view Pro(CimSeHraje cim) const {
        return cim == CimSeHraje::Mysi ? Mysi : cim == CimSeHraje::Prstem ? Prstem : Klavesami;
    }
};
constexpr std::string_view VYBER_RADEK = "Vyber řádek seznamu, volba hned platí.";
constexpr Slova NAPIS_HODNOTU{"Napiš velikost do políčka vlevo, potom rýsuj.",
                              "Napiš velikost do políčka vlevo, Enter vede na plochu.",
                              "Napiš velikost do políčka vlevo, potom rýsuj."};
constexpr Slova ZPET_BEZ_BODU{
    "Nejde-li bod označit, vrať se o krok zpět.",
    "Šipky vedou kříž, mezerník označí. Nejde-li bod označit, vrať se o krok zpět.",
    "Nejde-li bod označit, vrať se o krok zpět."};
constexpr Slova STRED_K_MIRE{
    "Střed se ukáže, když na něj najedeš. Pusť, až se ukázaná míra shodne s napsanou.",
    "Střed se ukáže, když k němu dojde kříž. Pusť, až se míra shodne s napsanou.",
    "Začni blízko středu, kružnice si ho najde. Pusť, až se míra shodne s napsanou."};
constexpr Slova STRED_SE_UKAZE{"Střed se ukáže, když na něj najedeš.",
                               "Střed se ukáže, když k němu dojde kříž.",
                               "Začni blízko středu, kružnice si ho najde."};
constexpr Slova ZAVRI_SEZNAM{"Klepnutím jinam se seznam zavře.", "Klávesou Esc se seznam zavře.",
                             "Klepnutím jinam se seznam zavře."};
/// With a value that is to be reached.
constexpr Slova CIM_KRESLIT_K_MIRE{
    SHODNA_MIRA, "Písmeno skočí na bod, mezerník začne, šipky táhnou. Pusť, až míra souhlasí.",
    SHODNA_MIRA};
constexpr Slova CIM_KRESLIT{
    "", "Mezerník začne i pustí, šipky (se Shiftem víc) táhnou, písmeno skočí na bod.", ""};
constexpr Slova CIM_UKAZAT{
    "", "Šipky (se Shiftem víc) vedou kříž, písmeno skočí na bod, mezerník označí.", ""};
/// A finger may be lifted at any time: the pad goes on.
constexpr Slova TAH_BEZ_ODECTU{"Pusť, až bude útvar na svém místě.",
                               "Pusť mezerníkem, až bude útvar na svém místě.",
                               "Zvedni prst, útvar potom doladíš šipkami."};
constexpr Slova TAH_K_MIRE{" – pusť, až bude velikost souhlasit.",
                           " – pusť mezerníkem, až bude velikost souhlasit.",
                           " – zvedni prst, velikost potom doladíš."};
constexpr Slova TAH_NA_MIRE{" – souhlasí, pusť.", " – souhlasí, pusť mezerníkem.",
                            " – souhlasí, zvedni prst."};
constexpr Slova TAH_NA_MISTO{" – pusť, až bude útvar na svém místě.",
                             " – pusť mezerníkem, až bude útvar na svém místě.",
                             " – zvedni prst, útvar potom doladíš."};

std::string Nahrad(std::string_view veta, std::string_view co, const std::string& cim) {
    std::string v(veta);
    if (const std::size_t kde = v.find(co); kde != std::string::npos)
        v.replace(kde, co.size(), cim);
    return v;
}

/// The midpoint of a side bears the side's name behind an S.
bool JeStredStrany(const Gesto& g) {
    return g.Druh == Tvar::Kruznice && g.Od.size() == 2 && g.Od[0] == 'S' && g.Od[1] >= 'a';
}

std::string JakKreslit(const Gesto& g) {
    if (g.Druh == Tvar::Bod && g.Presne) return std::string(PRESNE_NA_BOD);
    if (JeStredStrany(g)) return Nahrad(STRED_STRANY, "{}", g.Od.substr(1));
    for (const Postup& p : POSTUPY) {
        if (p.Druh != g.Druh) continue;
        if (g.Od.empty() || p.SeJmeny.empty()) return std::string(p.BezeJmen);
        return Nahrad(Nahrad(p.SeJmeny, "{}", g.Od), "[]", g.Kam);
    }
    return {};
}

/// What to keep in mind while drawing.
std::string_view CoPritom(const Rada& r, CimSeHraje cim) {
    const bool bod = r.Kresleni.Druh == Tvar::Bod;
    if (bod && r.Zpet) return ZPET_BEZ_BODU.Pro(cim);
    const bool stred = JeStredStrany(r.Kresleni);
    // How far to draw goes before what only makes room for it.
    if (r.SMirou) return (stred ? STRED_K_MIRE : CIM_KRESLIT_K_MIRE).Pro(cim);
    if (r.ZasunNacrt) return ZASUN_NACRT;
    return (stred ? STRED_SE_UKAZE : bod ? CIM_UKAZAT : CIM_KRESLIT).Pro(cim);
}

RadkyRady PriTahu(const Rada& r, CimSeHraje cim) {
    if (r.BezMiry) {
        const std::string prvni =
            r.Odecet.empty() ? std::string(BEZ_MIRY) : r.Odecet + std::string(TAH_BEZ_MIRY);
        return {prvni, std::string(r.Podlozka ? POSUN_KONEC : "")};
    }
    if (r.Podlozka)
        return {r.Odecet + std::string(r.Odecet.empty() ? POSUN_KONEC : POSUN_K_MIRE), ""};
    const Slova& slova = r.Odecet.empty() ? TAH_BEZ_ODECTU
                         : r.Shoda        ? TAH_NA_MIRE
                         : r.SMirou       ? TAH_K_MIRE
                                          : TAH_NA_MISTO;
    return {r.Odecet + std::string(slova.Pro(cim)), ""};
}

RadkyRady OPrvku(const PrvekVNacrtu& p) {
    return {std::string(p.Oznaceny ? ZRUSI_ZNACKU : OZNACI) + PismenoUhlu(p.Jmeno),
            std::string(DALSI_PRVEK)};
}

RadkyRady OVysledku(const VysledekPrikladu& v) {
    const auto cislo = [](int n) { return TextBezMezery(n); };
    std::string prvni = "Příklad " + cislo(v.Poradi) + " z " + cislo(v.Prikladu) + ": " +
                        TextBodu(v.Bodu) + " z " + cislo(BODU_ZA_PRIKLAD) +
                        ". Série zatím: " + TextBodu(v.BoduSerie) + " z " +
                        cislo(BODU_ZA_PRIKLAD * v.Poradi) + ".";
    return {std::move(prvni), std::string(v.Bezchybny ? BEZ_CHYBY : UKAZ_CHYBY)};
}

}  // namespace

RadkyRady RadaCesky(const Rada& r, CimSeHraje cim) {
    switch (r.Druh) {
        case Co::Vysledek:
            return OVysledku(r.Priklad);
        case Co::NapisHodnotu:
            return {std::string(NAPIS_HODNOTU.Pro(cim)), JakKreslit(r.Kresleni)};
        case Co::VyberRadek:
            return {std::string(VYBER_RADEK), std::string(ZAVRI_SEZNAM.Pro(cim))};
        case Co::Tahni:
            return PriTahu(r, cim);
        case Co::OznacPrvek:
            return OPrvku(r.Prvek);
        case Co::ZvolNastroj:
            return {"Zvol nástroj pro další krok.", std::string(r.ZasunNacrt ? ZASUN_NACRT : "")};
        case Co::Kresli:
            return {JakKreslit(r.Kresleni), std::string(CoPritom(r, cim))};
        default:
            for (const Veta& v : VETY) {
                if (v.Druh == r.Druh) return {std::string(v.Prvni), std::string(v.Druha)};
            }
            return {};
    }
}

}  // namespace rysovna
