#include "rules/Rada.h"

#include <algorithm>

namespace rysovna {

namespace {

// Faces of the step buttons that do not begin with a choice of an object.
constexpr int TVAR_VETA = 13, TVAR_HODNOTY = 14;

bool JeZivy(const Panel& p, int tvar) {
    return std::ranges::any_of(p.cmd,
                               [tvar](const Tlacitko& t) { return t.Tvar == tvar && t.Zive; });
}

/// Whether a tool is live that begins a step.
bool MuzeZacit(const Panel& p) {
    return std::ranges::any_of(
        p.cmd, [](const Tlacitko& t) { return t.Zive && t.Tvar != 0 && t.Tvar != TVAR_ZPET; });
}

bool Vyplneno(const Panel& p) {
    return std::ranges::none_of(p.Vstupy, [](const RadekVstupu& r) { return r.Box.Text.empty(); });
}

Rada::Co ProcMrtvy(const Panel& p, int nastroj) {
    using enum Rada::Co;
    const auto& [tvar, barevne, zive] = p.cmd[static_cast<std::size_t>(nastroj - 1)];
    if (tvar == 0 || zive || !p.PicZiva) return Nic;
    if (p.Combo.Otevreny) return MrtvySeSeznamem;
    if (p.Kresleni.Druh != Gesto::Tvar::Zadny) return MrtvySUtvarem;
    if (tvar == TVAR_ZPET) return MrtveZpet;
    if (!MuzeZacit(p)) return MrtvyBezZnacek;
    return tvar == TVAR_VETA ? MrtvaVeta : tvar == TVAR_HODNOTY ? MrtveHodnoty : Nic;
}

/// Where a hasty press would cost something.
Rada::Co CoHrozi(const Videne& v) {
    using enum Rada::Co;
    const Panel& p = v.Krok;
    switch (v.Pod) {
        case Videne::CoPod::Zpet:
            return JeZivy(p, TVAR_ZPET) ? PodZpet : Nic;
        case Videne::CoPod::Sestroj:
            return p.Vstupy.empty() || Vyplneno(p) ? Nic : PodSestroj;
        case Videne::CoPod::Kontrola:
            return p.PicZiva ? PodKontrola : Nic;
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

/// A box for a value waits to be filled in.
bool JePrazdne(const Vstup& box) {
    return box.Videt && box.Text.empty();
}

/// The object in hand.
Rada::Co CoSUtvarem(const Videne& v) {
    using enum Rada::Co;
    if (v.Tahne) return Tahni;
    return JePrazdne(v.Krok.txtVstup) ? NapisHodnotu : Kresli;
}

/// No object in hand, and no list open.
Rada::Co CoDal(const Videne& v) {
    using enum Rada::Co;
    const Panel& p = v.Krok;
    const bool zpet = JeZivy(p, TVAR_ZPET);
    // Before the other: how many steps were done since cannot be seen.
    if (p.Nesestrojen) return VratNesestrojeny;
    if (p.Nezavrena) return VratNezavrenou;
    if (!p.Vstupy.empty()) return Vyplneno(p) ? PotvrdHodnoty : VyplnHodnoty;
    if (!MuzeZacit(p)) return v.NacrtVysunuty ? OznacZadane : VysunNacrt;
    if (JeZivy(p, TVAR_VETA)) return ZvolTrojuhelnik;
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
    if (!p.PicZiva) return Zkontroluj;
    if (p.Combo.Otevreny) return VyberRadek;
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
        r.Zpet = JeZivy(v.Krok, TVAR_ZPET);
        r.SMirou = v.Krok.txtVstup.Videt && !v.Krok.txtVstup.Text.empty();
    }
    if (r.Druh == OznacPrvek) r.Prvek = v.PodPrstenem;
    if (r.Druh == Tahni) {
        r.BezMiry = JePrazdne(v.Krok.txtVstup);
        r.Odecet = v.Odecet;
        r.Shoda = r.SMirou && Mira(v.Odecet) == v.Krok.txtVstup.Text;
        r.Podlozka = v.Podlozka;
    }
    return r;
}

}  // namespace rysovna
