#include "platform/DisplayList.h"

#include <algorithm>
#include <cmath>

#include "base/Obdelniky.h"
#include "platform/SurfaceVnitrek.h"

namespace rysovna {

namespace {

/// From this length on a list is looked through for items that a new one hides.
constexpr std::size_t KDY_UKLIDIT = 32;
/// A list that came to this length all the same is kept as plain pixels.
constexpr std::size_t NEJDELSI_SEZNAM = 20000;

int HloubkaPolozky(const Polozka& p) {
    if (const auto* kopie = std::get_if<PolozkaKopie>(&p)) return kopie->Zdroj.Kde->Hloubka + 1;
    if (const auto* vrstvy = std::get_if<PolozkaVrstev>(&p))
        return std::max(vrstvy->Dolni.Kde->Hloubka, vrstvy->Horni.Kde->Hloubka) + 1;
    return 0;
}

bool Skryje(const Dosah& nova, const Polozka& stara, const DisplayList& s) {
    return nova.Kryje && Pokryva(nova.Kde, DosahPolozky(stara, s).Kde);
}

/// Drops the items that the new one paints over, of a list that nobody else holds. The display
/// bitmap stays right: what is dropped there gets painted over.
void Uklid(DisplayList& s, const Dosah& nova) {
    std::size_t zije = 0;
    std::size_t vykresleno = 0;
    for (std::size_t i = 0; i < s.Polozky.size(); ++i) {
        if (Skryje(nova, s.Polozky[i], s)) continue;
        if (i < s.Vykresleno) ++vykresleno;
        if (i != zije) s.Polozky[zije] = std::move(s.Polozky[i]);
        ++zije;
    }
    s.Polozky.resize(zije, PolozkaObraceni{});
    s.Vykresleno = vykresleno;
}

/// A list without items in the place of another.
Okamzik Prazdny(const DisplayList& jako) {
    auto novy = std::make_shared<DisplayList>();
    novy->Sirka = jako.Sirka;
    novy->Vyska = jako.Vyska;
    novy->Pozadi = jako.Pozadi;
    novy->Podklad = jako.Podklad;
    return {std::move(novy), 0};
}

/// A list of its own with the items of that moment.
Okamzik Opis(const Okamzik& okamzik) {
    const DisplayList& stary = *okamzik.Kde;
    Okamzik opis{Prazdny(stary).Kde, okamzik.Pocet};
    DisplayList& novy = *opis.Kde;
    novy.Hloubka = stary.Hloubka;
    novy.Polozky.assign(stary.Polozky.begin(),
                        stary.Polozky.begin() + static_cast<std::ptrdiff_t>(okamzik.Pocet));
    if (stary.Vykresleno <= okamzik.Pocet) {
        novy.Dvojce = stary.Dvojce;
        novy.Meritko = stary.Meritko;
        novy.Vykresleno = stary.Vykresleno;
    }
    return opis;
}

}  // namespace

Dosah DosahPolozky(const Polozka& p, const DisplayList& s) {
    const Obdelnik cely{0, 0, s.Sirka, s.Vyska};
    const auto v = [&](const Obdelnik& o, bool kryje) { return Dosah{Prunik(o, cely), kryje}; };
    struct Navstevnik {
        const decltype(v)& V;
        const Obdelnik& Cely;
        // Strokes and text are not worth measuring: taken as if they could reach anywhere.
        Dosah operator()(const PolozkaUsecky&) const { return {Cely, false}; }
        Dosah operator()(const PolozkaKruznice&) const { return {Cely, false}; }
        Dosah operator()(const PolozkaTextu&) const { return {Cely, false}; }
        Dosah operator()(const PolozkaVyplne& x) const { return V(x.Kam, true); }
        Dosah operator()(const PolozkaObrazku& x) const {
            return V({x.X, x.Y, x.Co.Width(), x.Co.Height()}, true);
        }
        Dosah operator()(const PolozkaKopie& x) const {
            return V(x.Kam, x.Jak == Prenos::Kopie || x.Jak == Prenos::NaJednobitovou);
        }
        Dosah operator()(const PolozkaPixelu& x) const {
            return V(x.Kam, x.Jak == Prenos::Kopie || x.Jak == Prenos::NaJednobitovou);
        }
        Dosah operator()(const PolozkaObraceni& x) const { return V(x.Kde, false); }
        Dosah operator()(const PolozkaVrstev&) const { return {Cely, true}; }
    };
    return std::visit(Navstevnik{v, cely}, p);
}

void Surface::Vnitrek::NovaVerze() {
    // One count for all surfaces: a new one in the place of an old one never has its number.
    static std::uint64_t posledni = 0;
    Verze = ++posledni;
}

void Surface::Vnitrek::Vyprazdni(Pixel pozadi) {
    auto novy = std::make_shared<DisplayList>();
    novy->Sirka = Logicka.Sirka;
    novy->Vyska = Logicka.Vyska;
    novy->Pozadi = pozadi;
    novy->Podklad = Podklad;
    // What is drawn anew is mostly about as long as before.
    novy->Polozky.reserve(Obsah.Pocet);
    Obsah = {std::move(novy), 0};
    MaKlic = !Podklad.Prazdny() && Podklad.Data()->MaKlic();
    NovaVerze();
}

void Surface::Vnitrek::Pridej(Polozka p) {
    const int hloubka = HloubkaPolozky(p);
    const Dosah dosah = DosahPolozky(p, *Obsah.Kde);
    const bool vse = dosah.Kryje && dosah.Kde == Obdelnik{0, 0, Logicka.Sirka, Logicka.Vyska};
    const bool sam = Obsah.Kde.use_count() == 1;
    // A list that others hold may only grow, at its end. Nor may it take in a copy that could lead
    // back here: of itself (two surfaces may share it), or of a list that holds copies.
    const auto* kopie = std::get_if<PolozkaKopie>(&p);
    const bool pripsat = sam || (!vse && Obsah.Kde->Polozky.size() == Obsah.Pocet && hloubka < 2 &&
                                 (kopie == nullptr || kopie->Zdroj.Kde != Obsah.Kde));
    if (!pripsat) Obsah = vse ? Prazdny(*Obsah.Kde) : Opis(Obsah);
    DisplayList& s = *Obsah.Kde;
    if (s.Polozky.size() > Obsah.Pocet) {
        // Nobody else is left who saw the rest.
        s.Polozky.resize(Obsah.Pocet, PolozkaObraceni{});
        if (s.Vykresleno > Obsah.Pocet) s.Meritko = 0;
    }
    const bool jediny = Obsah.Kde.use_count() == 1;
    if (jediny && vse) {
        s.Polozky.clear();
        s.Vykresleno = 0;
        s.Hloubka = 0;
    } else if (jediny && dosah.Kryje && s.Polozky.size() >= KDY_UKLIDIT) {
        Uklid(s, dosah);
    }
    if (s.Polozky.size() >= NEJDELSI_SEZNAM) {
        Vyprazdni(s.Pozadi);
        const Obdelnik cely{0, 0, Logicka.Sirka, Logicka.Vyska};
        Obsah.Kde->Polozky.push_back(
            PolozkaPixelu{cely, std::make_shared<Bitmapa>(Logicka), Prenos::Kopie, KLIC});
    } else {
        s.Polozky.push_back(std::move(p));
        s.Hloubka = std::max(s.Hloubka, hloubka);
    }
    Obsah.Pocet = Obsah.Kde->Polozky.size();
    NovaVerze();
}

}  // namespace rysovna
