// Choosing a line of the list: names the new object, prompts for its value, judges the choice.

#include "board/DialogTrojuhelniku.h"
#include "shell/Misc.h"
#include "shell/Soubory.h"

namespace rysovna {

namespace {

constexpr int CHYBA_PAPRSEK_NECEKANY = 18;
constexpr int CHYBA_KRUZNICE_NECEKANA = 21;

// Where lblText4 stands behind lblText3, px.
constexpr int ODSAZENI_JEDNOTKY = 142;
constexpr int ODSAZENI_KOLMO = 66;

// What is cut from a parallel's list line, by its lead-in, to get the name of the base.
constexpr std::string_view UVODY_ROVNOBEZKY[] = {"s úsečkou ", "s přímkou ", "s polopřímkou "};

// The only lead-in that a perpendicular's line loses: the comparisons for the longer ones look at
// the first nine characters alone and never match, so those captions stay whole.
constexpr std::string_view UVOD_KOLMICE = "k úsečce ";

/// The height that a parallel to a side stands for.
struct VyskaStrany {
    std::string_view Strana, Vyska;
};
constexpr VyskaStrany VYSKY[] = {{"AB", "vc"}, {"AC", "vb"}, {"BC", "va"}};

std::string BezUvodu(const std::string& text, std::string_view uvod) {
    return text.starts_with(uvod) ? text.substr(uvod.size()) : text;
}

/// The last object whose first name is the first letter of jmena and whose second name is its
/// second letter; 0 if none is.
int NajdiUtvar(std::string_view jmena) {
    int nalezeny = 0;
    for (int i = 1; i <= PocetUtvaru; ++i) {
        if (Utvary[i].Jmeno1 == jmena.substr(0, 1) &&
            Utvary[i].Jmeno2 == (jmena.size() > 1 ? jmena.substr(1, 1) : "")) {
            nalezeny = i;
        }
    }
    return nalezeny;
}

}  // namespace

void DialogTrojuhelniku::VyberRadku(int i) {
    if (stav_.Skontrolovano) return;
    if (!stav_.Combo.Otevreny || i < 1 || i > static_cast<int>(stav_.Combo.Radky.size())) return;
    const RadekSeznamu& radek = stav_.Combo.Radky[static_cast<std::size_t>(i - 1)];
    if (!radek.Videt || !radek.Ziva) return;
    ZavriSeznam();
    stav_.Velicina.clear();
    SmazRadekUtvaru(PocetUtvaru + 1);
    SmazRadekTrojic(PocetTrojic + 1);
    stav_.CekaNaKresleni = true;
    stav_.Tazeni = false;
    if (stav_.ZvolenyUtvar == USECKA) return ZvolStranu(i);
    if (stav_.ZvolenyUtvar == POLOPRIMKA) return ZvolPaprsek(i);
    if (stav_.ZvolenyUtvar == ROVNOBEZKA) return ZvolRovnobezku(i);
    if (stav_.ZvolenyUtvar == KRUZNICE) return ZvolKruznici(i);
    ZvolKolmici(i);
}

void DialogTrojuhelniku::Napis(int /*ktery*/, const std::string& text) {
    stav_.txtVstup.Text = text;
}

/// Names the points of the new object.
void DialogTrojuhelniku::Pripoj(std::string jmeno1, std::string jmeno2) {
    Utvar& novy = Utvary[PocetUtvaru + 1];
    novy.Jmeno1 = std::move(jmeno1);
    novy.Jmeno2 = std::move(jmeno2);
}

/// Prompts for a value.
void DialogTrojuhelniku::Vyzvi(std::string vyzva, std::string jednotka) {
    stav_.lblText3 = std::move(vyzva);
    stav_.lblText4 = {std::move(jednotka), true, false, ODSAZENI_JEDNOTKY, false};
    stav_.txtVstup = {"", true, true};
}

/// Takes the first expected step of this kind that was not taken yet.
bool DialogTrojuhelniku::ObsadKrok(std::string_view druh) {
    for (const int n : {2, 3}) {
        Krok& krok = Priklady[cisloPrikladu_].Kroky[n];
        if (krok.Hotovo != NE || !DruhSedi(krok, druh)) continue;
        krok.Hotovo = ANO;
        return true;
    }
    return false;
}

void DialogTrojuhelniku::Zapis(std::string_view druh, std::string_view prvek) {
    ZadanyPrvek& z = ZadanePrvky[stav_.Faze];
    z.Faze = static_cast<std::int16_t>(stav_.Faze);
    z.Utvar = druh;
    z.Prvek = prvek;
}

void DialogTrojuhelniku::ZvolStranu(int i) {
    const RadekStrany& r = pravidla_.Strany[static_cast<std::size_t>(i - 1)];
    const std::string strana(r.Text);
    stav_.ZvolenyPrvek = r.Prvek;
    stav_.Velicina = r.Prvek;
    Pripoj(strana.substr(0, 1), strana.substr(1));
    Vyzvi("úsečka " + strana + ", |" + strana + "| = ", " cm");
    stav_.KrokChybny = false;
    if (!PrvniStranaSpravna(r.Prvek)) ChybnaVolba(r.ChybaVolby);
    Zapis(USECKA, r.Prvek);
}

void DialogTrojuhelniku::ZvolPaprsek(int i) {
    const RadekPaprsku& r = pravidla_.Paprsky[static_cast<std::size_t>(i - 1)];
    const std::string vrchol(r.Vrchol);
    const std::string druhyBod = stav_.Faze == 2 ? "X" : "Y";
    const Utvar& posledni = Utvary[PocetUtvaru];
    const std::string rameno = posledni.Jmeno1 == vrchol ? posledni.Jmeno2 : posledni.Jmeno1;
    stav_.ZvolenyPrvek = r.Prvek;
    stav_.Velicina = r.Prvek.substr(vrchol.size());
    Pripoj(vrchol, druhyBod);
    Vyzvi("polopřímka " + vrchol + druhyBod + ", |<" + rameno + vrchol + druhyBod + "| = ", "°");
    stav_.KrokChybny = false;
    if (!ObsadKrok(POLOPRIMKA)) {
        ChybnaVolba(CHYBA_PAPRSEK_NECEKANY);
    } else if (!JeZadana(stav_.Velicina)) {
        ChybnaVolba(stav_.Faze == 2 ? r.ChybaFaze2 : r.ChybaFaze3);
    }
    Zapis(POLOPRIMKA, stav_.Velicina);
}

void DialogTrojuhelniku::ZvolRovnobezku(int i) {
    std::string nazev = stav_.Combo.Radky[static_cast<std::size_t>(i - 1)].Text;
    for (const std::string_view uvod : UVODY_ROVNOBEZKY) nazev = BezUvodu(nazev, uvod);
    stav_.ZvolenyNazev = nazev;
    const std::string p = stav_.Faze == 2 ? "p" : "q";
    Pripoj(p, "");
    Vyzvi("přímka " + p + ", " + p + "||" + nazev + ", |" + p + "," + nazev + "| = ", " cm");
    VybranyUtvar = NajdiUtvar(nazev);
    std::string_view vyska;
    for (const VyskaStrany& v : VYSKY) {
        if (v.Strana == nazev) vyska = v.Vyska;
    }
    stav_.ZvolenyPrvek = vyska;
    stav_.Velicina = vyska;
    PosudVolbuRovnobezky(vyska);
    Zapis(ROVNOBEZKA, vyska);
}

void DialogTrojuhelniku::ZvolKruznici(int i) {
    const RadekKruznice& r = pravidla_.Kruznice[static_cast<std::size_t>(i - 1)];
    const bool ceka = ObsadKrok(KRUZNICE);
    const std::string k = stav_.Faze == 2 ? "k" : "l";
    const Utvar& strana = Utvary[stav_.Faze == 2 ? PocetUtvaru : PocetUtvaru - 1];
    const std::string jmena = strana.Jmeno1 + strana.Jmeno2;
    const std::size_t podle = jmena == "AB" ? 0 : jmena == "AC" ? 1 : 2;
    if (const RadekKruznice::Podle& p = r.PodleStrany[podle]; !p.Prvek.empty()) {
        stav_.ZvolenyPrvek = p.Prvek;
        stav_.ZvolenyNazev = p.Nazev;
    }
    stav_.Velicina = stav_.ZvolenyNazev;
    Pripoj(k, "");
    Vyzvi("kružnice " + k + "(" + std::string(r.Stred) + ", r = ", ") cm");
    stav_.KrokChybny = false;
    if (KruzniceJeChyba(ceka)) {
        ChybnaVolba(CHYBA_KRUZNICE_NECEKANA);
    } else if (!JeZadana(stav_.ZvolenyNazev)) {
        ChybnaVolba(r.ChybaVolby);
    }
    Zapis(KRUZNICE, stav_.ZvolenyNazev);
}

void DialogTrojuhelniku::ZvolKolmici(int i) {
    const RadekSeznamu radek = stav_.Combo.Radky[static_cast<std::size_t>(i - 1)];
    stav_.ZvolenyNazev = BezUvodu(radek.Text, UVOD_KOLMICE);
    const std::string p = stav_.Faze == 2 ? "b" : "c";
    Pripoj(p, "");
    stav_.lblText3 = "přímka " + p + ", " + p + "      " + stav_.ZvolenyNazev;
    stav_.lblText4 = {"^", true, true, ODSAZENI_KOLMO, true};
    stav_.txtVstup = {};
    VybranyUtvar = NajdiUtvar(radek.Tag);
    Zapis(KOLMICE, "");
}

}  // namespace rysovna
