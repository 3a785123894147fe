#include "rules/Rada.h"

#include <algorithm>

namespace rysovna {

namespace {

bool JeZivy(const Panel& p, Nastroj co) {
    return std::ranges::any_of(p.Nastroje,
                               [co](const MistoNastroje& n) { return n.Co == co && n.Zivy(); });
}

/// Whether a tool is live that begins a step.
bool MuzeZacit(const Panel& p) {
    return std::ranges::any_of(
        p.Nastroje, [](const MistoNastroje& n) { return n.Zivy() && n.Co != Nastroj::Zpet; });
}

bool Vyplneno(const Panel& p) {
    return std::ranges::none_of(p.Veliciny,
                                [](const Velicina& v) { return v.Hodnota.Text.empty(); });
}

Rada::Co ProcMrtvy(const Panel& p, int nastroj) {
    using enum Rada::Co;
    const MistoNastroje& n = p.Nastroje[static_cast<std::size_t>(nastroj - 1)];
    if (n.Co == Nastroj::Zadny || n.Zivy() || !p.PlochaZiva) return Nic;
    if (p.Vyber.Otevreny) return MrtvySeSeznamem;
    if (p.Kresleni.Druh != Gesto::Tvar::Zadny) return MrtvySUtvarem;
    if (n.Co == Nastroj::Zpet) return MrtveZpet;
    if (!MuzeZacit(p)) return MrtvyBezZnacek;
    return n.Co == Nastroj::Veta ? MrtvaVeta : n.Co == Nastroj::Sestroj ? MrtveHodnoty : Nic;
}

/// Where a hasty press would cost something.
Rada::Co CoHrozi(const Videne& v) {
    using enum Rada::Co;
    const Panel& p = v.Krok;
    switch (v.Pod) {
        case Videne::CoPod::Zpet:
            return JeZivy(p, Nastroj::Zpet) ? PodZpet : Nic;
        case Videne::CoPod::Sestroj:
            return p.Veliciny.empty() || Vyplneno(p) ? Nic : PodSestroj;
        case Videne::CoPod::Kontrola:
            return p.PlochaZiva ? PodKontrola : Nic;
        case Videne::CoPod::Odchod:
            return PodOdchod;
        case Videne::CoPod::Nic:
            break;
    }
    return Nic;
}

/// The number that a read-out begins with, as text.
std::string_view Mira(std::string_view odecet) {
    return odecet.substr(0, odecet.find_first_not_of("-0123456789"));
}

/// A value is asked for and not typed yet.
bool JePrazdne(const Vstup& v) {
    return v.Videt && v.Text.empty();
}

/// The object in hand.
Rada::Co CoSUtvarem(const Videne& v) {
    using enum Rada::Co;
    if (v.Tahne) return Tahni;
    return JePrazdne(v.Krok.Rysovane.Hodnota) ? NapisHodnotu : Kresli;
}

/// No object in hand, and no list open.
Rada::Co CoDal(const Videne& v) {
    using enum Rada::Co;
    const Panel& p = v.Krok;
    const bool zpet = JeZivy(p, Nastroj::Zpet);
    // Before the other: how many steps were done since cannot be seen.
    if (p.Nesestrojen) return VratNesestrojeny;
    if (p.Nezavrena) return VratNezavrenou;
    if (!p.Veliciny.empty()) return Vyplneno(p) ? PotvrdHodnoty : VyplnHodnoty;
    if (!MuzeZacit(p)) return v.NacrtVysunuty ? OznacZadane : VysunNacrt;
    if (JeZivy(p, Nastroj::Veta)) return ZvolTrojuhelnik;
    return zpet || v.Narysovano ? ZvolNastroj : ZvolPrvni;
}

Rada::Co CoPriHre(const Videne& v) {
    using enum Rada::Co;
    const Panel& p = v.Krok;
    // What lies under the pointer is asked about.
    if (v.MrtvyNastroj != 0 && !v.Tahne) {
        if (const Rada::Co proc = ProcMrtvy(p, v.MrtvyNastroj); proc != Nic) return proc;
    }
    if (!v.Tahne) {
        if (const Rada::Co hrozi = CoHrozi(v); hrozi != Nic) return hrozi;
    }
    if (!v.Tahne && !v.PodPrstenem.Jmeno.empty()) return OznacPrvek;
    if (!p.PlochaZiva) return Zkontroluj;
    if (p.Vyber.Otevreny) return VyberRadek;
    if (p.Kresleni.Druh != Gesto::Tvar::Zadny) return CoSUtvarem(v);
    return CoDal(v);
}

}  // namespace

Rada UrciRadu(const Videne& v) {
    using enum Rada::Co;
    Rada r;
    switch (v.Kdy) {
        case Videne::Doba::Ceka:
            return r;
        case Videne::Doba::PoKontrole:
            r.Druh = Vysledek;
            r.Priklad = v.Vysledek;
            return r;
        case Videne::Doba::Hraje:
            break;
    }
    r.Druh = CoPriHre(v);
    if (r.Druh == ZvolNastroj) r.ZasunNacrt = v.NacrtVysunuty;
    if (r.Druh == NapisHodnotu || r.Druh == Kresli || r.Druh == Tahni) {
        r.Kresleni = v.Krok.Kresleni;
        r.ZasunNacrt = v.NacrtVysunuty;
        r.Zpet = JeZivy(v.Krok, Nastroj::Zpet);
        r.SMirou = v.Krok.Rysovane.Hodnota.Videt && !v.Krok.Rysovane.Hodnota.Text.empty();
    }
    if (r.Druh == OznacPrvek) r.Prvek = v.PodPrstenem;
    if (r.Druh == Tahni) {
        r.BezMiry = JePrazdne(v.Krok.Rysovane.Hodnota);
        r.Odecet = v.Odecet;
        r.Shoda = r.SMirou && Mira(v.Odecet) == v.Krok.Rysovane.Hodnota.Text;
        r.Podlozka = v.Podlozka;
    }
    return r;
}

}  // namespace rysovna
