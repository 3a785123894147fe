#include "podpora/HlidacRady.h"

#include <algorithm>
#include <sstream>

#include "podpora/NaObrazovce.h"
#include "rules/Misc.h"
#include "screens/RadaCesky.h"

namespace rysovna::testy {

namespace {

using Co = Rada::Co;

constexpr std::size_t ZPET = 4, SESTROJ = 5;

bool ZijeNastroj(const DeskaForm& d) {
    for (std::size_t i = 0; i < d.cmd.size(); ++i) {
        if (i != ZPET && Zije(d.cmd[i])) return true;
    }
    return false;
}
bool ZijeZpet(const DeskaForm& d) {
    return Zije(d.cmd[ZPET]);
}
bool ZijeRadek(const DeskaForm& d) {
    return std::ranges::any_of(d.ComboLabel, [](const Label& l) { return Zije(l); });
}
bool ZijePlocha(const DeskaForm& d) {
    return Zije(d.Pic) && !ZijeNastroj(d) && !d.Combo.Visible;
}
bool JeMrtvy(const DeskaForm& d) {
    const PictureBox& t = d.cmd[static_cast<std::size_t>(d.VidenoTed().MrtvyNastroj - 1)];
    return t.Visible && !t.Enabled;
}

/// What must be so when the guide says this.
struct Podminka {
    Co Druh;
    bool (*Plati)(const DeskaForm&);
};
constexpr Podminka PODMINKY[] = {
    {Co::OznacZadane, [](const DeskaForm& d) { return Zije(d.SamplePic) && !ZijeNastroj(d); }},
    {Co::VysunNacrt, [](const DeskaForm& d) { return Zije(d.MalaSipka) && !ZijeNastroj(d); }},
    {Co::ZvolPrvni, [](const DeskaForm& d) { return ZijeNastroj(d) && !d.VidenoTed().Narysovano; }},
    {Co::ZvolTrojuhelnik, ZijeNastroj},
    {Co::ZvolNastroj, ZijeNastroj},
    {Co::VyberRadek, ZijeRadek},
    {Co::VyplnHodnoty, [](const DeskaForm& d) { return Zije(d.txtVstup); }},
    {Co::PotvrdHodnoty, [](const DeskaForm& d) { return Zije(d.cmd[SESTROJ]); }},
    {Co::NapisHodnotu, [](const DeskaForm& d) { return ZijePlocha(d) && Zije(d.txtVstup); }},
    {Co::Kresli, ZijePlocha},
    {Co::Tahni,
     [](const DeskaForm& d) { return ZijePlocha(d) && (d.Line1.Visible || d.Circle1.Visible); }},
    {Co::Zkontroluj, [](const DeskaForm& d) { return Zije(d.PicTop[0]) && !d.Pic.Enabled; }},
    {Co::VratNezavrenou, ZijeZpet},
    {Co::VratNesestrojeny, ZijeZpet},
    {Co::OznacPrvek,
     [](const DeskaForm& d) {
         const Bod b = d.Ukazatel(d.SamplePic).Hrot;
         const Dialog& dialog = d.Dialogem();
         const int prvek = dialog.PrvekNacrtu(static_cast<float>(b.X), static_cast<float>(b.Y));
         return Zije(d.SamplePic) && dialog.VidetPrvek(prvek) == d.RadaTed().Prvek;
     }},
    {Co::MrtvyBezZnacek, JeMrtvy},
    {Co::MrtvySUtvarem, JeMrtvy},
    {Co::MrtvySeSeznamem, [](const DeskaForm& d) { return JeMrtvy(d) && ZijeRadek(d); }},
    {Co::MrtveZpet, JeMrtvy},
    {Co::MrtvaVeta, JeMrtvy},
    {Co::MrtveHodnoty, JeMrtvy},
    {Co::PodZpet, ZijeZpet},
    {Co::PodSestroj, [](const DeskaForm& d) { return Zije(d.cmd[SESTROJ]); }},
    {Co::PodKontrola, [](const DeskaForm& d) { return Zije(d.PicTop[0]) && Zije(d.Pic); }},
    {Co::PodOdchod, [](const DeskaForm& d) { return Zije(d.PicTop[3]); }},
    {Co::Vysledek,
     [](const DeskaForm& d) {
         return d.ImgHodnoceni.Visible && d.ImgHodnoceni.Enabled != d.RadaTed().Priklad.Bezchybny;
     }},
};

/// All that is seen of the dialogue, as text: neither its phase nor which object it waits for. That
/// a press would draw is seen by the pointer.
std::string CoJeVidet(const DeskaForm& d) {
    const Videne& v = d.VidenoTed();
    const Panel& p = v.Krok;
    const Misc& m = d.Dialogem().Pamet();
    std::ostringstream s;
    s << int{m.CisloUlohy} << '|' << static_cast<int>(d.CimRady()) << '|' << m.PocetUtvaru << '|'
      << v.NacrtVysunuty << v.Tahne << v.Podlozka << '|' << v.Odecet << '|' << v.MrtvyNastroj
      << static_cast<int>(v.Pod) << '|' << v.PodPrstenem.Jmeno << v.PodPrstenem.Oznaceny << '|'
      << (p.Kresleni.Druh != Gesto::Tvar::Zadny) << p.Nesestrojen << '|' << Slovy(p);
    return s.str();
}

}  // namespace

std::string HlidacRady::Zkontroluj(const DeskaForm& deska) {
    if (deska.JeUprostred()) return {};
    if (!(deska.VidenoTed().Krok == deska.Dialogem().UkazPanel())) {
        return "the guide was computed from an older panel";
    }
    const Rada& r = deska.RadaTed();
    const RadkyRady radky = RadaCesky(r, deska.CimRady());
    const std::string slova = radky[0] + " / " + radky[1];
    if (deska.PicRada.Visible != deska.Dialogem().Pamet().RadyUkazovat)
        return "the guide's strip is not as configured";
    for (std::size_t i = 0; i < radky.size(); ++i) {
        if (deska.lblRada[i].Caption != radky[i]) return "the guide does not show: " + slova;
    }
    if (r.Druh == Co::Nic) return {};
    const auto* p = std::ranges::find(PODMINKY, r.Druh, &Podminka::Druh);
    if (p == std::end(PODMINKY)) return "the guide says what nobody checks: " + slova;
    if (!p->Plati(deska)) return "the guide names what is not live: " + slova;
    if (deska.VidenoTed().Kdy != Videne::Doba::Hraje) return {};
    const auto [kde, novy] = videno_.try_emplace(CoJeVidet(deska), slova);
    if (!novy && kde->second != slova) {
        return "the guide tells what cannot be seen: " + kde->second + " <> " + slova + " at " +
               kde->first;
    }
    return {};
}

}  // namespace rysovna::testy
