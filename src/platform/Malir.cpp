#include "platform/Malir.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

#include "base/Obdelniky.h"
#include "platform/MalirObjektu.h"
#include "platform/Misto.h"
#include "platform/ObrazekData.h"
#include "platform/Obrazovky.h"

namespace rysovna {

namespace {

constexpr Obdelnik NAVRH{0, 0, NAVRH_SIRKA, NAVRH_VYSKA};
/// More dirty rectangles than this are painted as one.
constexpr std::size_t NEJVIC_OBDELNIKU = 8;

/// A form or object as it was painted.
struct Zaznam {
    const Form* Formular = nullptr;  ///< of a form's ground; null of an object
    Umisteny Objekt;
    Vzhled Jak;

    [[nodiscard]] bool Stejny(const Zaznam& z) const {
        return Formular == z.Formular && Objekt.Co == z.Objekt.Co;
    }
};

/// Whether it paints over all that may be touched.
bool Kryje(const Zaznam& z, const Kresba& k) {
    return Pokryva(k.NaCil(z.Objekt.Videt), k.Orez) &&
           (z.Formular != nullptr ? Kryje(*z.Formular) : Kryje(z.Objekt));
}

/// All that is to be painted, the lowest first.
class Soupis {
public:
    Soupis(const Obrazovky& okna, bool kurzor) : psane_(okna.Psane()), kurzor_(kurzor) {
        const auto& formy = okna.Viditelne();
        // What stands below a form of full size that has a ground cannot be seen.
        std::size_t prvni = formy.size();
        while (prvni > 0) {
            --prvni;
            const Form& f = *formy[prvni];
            if (f.BackColor != BEZ_BARVY && Pokryva(MistoFormu(f), NAVRH)) break;
        }
        for (std::size_t i = prvni; i < formy.size(); ++i) {
            formy[i]->Paint();
            const Form& f = *formy[i];
            const Obdelnik misto = MistoFormu(f);
            Zaznam z;
            z.Formular = &f;
            z.Objekt.Kde = misto;
            z.Objekt.Videt = Prunik(misto, NAVRH);
            z.Jak = VzhledFormu(f);
            const Obdelnik videt = z.Objekt.Videt;
            Radky.push_back(std::move(z));
            Deti(f, nullptr, {misto.Left, misto.Top}, videt);
        }
    }

    std::vector<Zaznam> Radky;

private:
    void Deti(const Form& f, const Ovladac* rodic, Bod roh, const Obdelnik& videt) {
        for (const Ovladac* o : f.Ovladace()) {
            if (o->Rodic != rodic || !o->Visible || o->Druh == Ovladac::Typ::Timer) continue;
            Zaznam z;
            z.Objekt.Co = o;
            z.Objekt.Kde = DosahTvaru(*o);
            z.Objekt.Kde.Left += roh.X;
            z.Objekt.Kde.Top += roh.Y;
            z.Objekt.Videt = Prunik(z.Objekt.Kde, videt);
            if (JePrazdny(z.Objekt.Videt)) continue;
            z.Objekt.Zamereny = o == psane_;
            z.Jak = VzhledObjektu(z.Objekt, kurzor_);
            const Umisteny u = z.Objekt;
            Radky.push_back(std::move(z));
            if (o->Druh == Ovladac::Typ::PictureBox) Deti(f, o, {u.Kde.Left, u.Kde.Top}, u.Videt);
        }
    }

    const TextBox* psane_;
    bool kurzor_;
};

/// The design rectangles in which the two differ. Both run in the order of painting; what stands
/// in one alone, or lies elsewhere in the order, is dirty.
std::vector<Obdelnik> Rozdily(const std::vector<Zaznam>& drive, const std::vector<Zaznam>& nyni) {
    std::vector<Obdelnik> spinave;
    const auto pridej = [&](const Zaznam& z) { spinave.push_back(z.Objekt.Videt); };
    std::size_t i = 0;
    for (const Zaznam& n : nyni) {
        // Looks ahead for the record of last time; what is skipped is gone, or comes later.
        std::size_t j = i;
        while (j < drive.size() && !drive[j].Stejny(n)) ++j;
        if (j == drive.size()) {
            pridej(n);
            continue;
        }
        for (; i < j; ++i) pridej(drive[i]);
        if (!(drive[i].Jak == n.Jak) || !(drive[i].Objekt == n.Objekt)) {
            pridej(drive[i]);
            pridej(n);
        }
        ++i;
    }
    for (; i < drive.size(); ++i) pridej(drive[i]);
    return spinave;
}

/// Rectangles that touch are joined, until there are few.
void Spoj(std::vector<Obdelnik>& obdelniky) {
    std::erase_if(obdelniky, [](const Obdelnik& o) { return JePrazdny(o); });
    bool zmena = true;
    while (zmena) {
        zmena = false;
        for (std::size_t i = 0; i < obdelniky.size() && !zmena; ++i) {
            for (std::size_t j = i + 1; j < obdelniky.size() && !zmena; ++j) {
                if (JePrazdny(Prunik(obdelniky[i], obdelniky[j]))) continue;
                obdelniky[i] = Obal(obdelniky[i], obdelniky[j]);
                obdelniky.erase(obdelniky.begin() + static_cast<std::ptrdiff_t>(j));
                zmena = true;
            }
        }
    }
    if (obdelniky.size() <= NEJVIC_OBDELNIKU) return;
    Obdelnik vse;
    for (const Obdelnik& o : obdelniky) vse = Obal(vse, o);
    obdelniky = {vse};
}

/// Black beside the design area.
void VyplnOkoli(const Vyhled& cil, const Obdelnik& navrh) {
    const int vpravo = navrh.Left + navrh.Width;
    const int dole = navrh.Top + navrh.Height;
    cil.Vypln({0, 0, cil.Sirka, navrh.Top}, DoPixelu(CERNA));
    cil.Vypln({0, dole, cil.Sirka, cil.Vyska - dole}, DoPixelu(CERNA));
    cil.Vypln({0, navrh.Top, navrh.Left, navrh.Height}, DoPixelu(CERNA));
    cil.Vypln({vpravo, navrh.Top, cil.Sirka - vpravo, navrh.Height}, DoPixelu(CERNA));
}

}  // namespace

struct Malir::Vnitrek {
    bool Vse = true;
    int Sirka = 0, Vyska = 0;
    std::uint64_t Verze = 0;
    std::vector<Zaznam> Radky;
    std::optional<Obrazovky::Prsten> Prsten;
    std::vector<Obrazovky::Ohlas> Ohlasy;
};

Umisteni Umisteni::Vejdi(int sirka, int vyska) {
    Umisteni u;
    u.S = std::max(std::min(static_cast<double>(sirka) / NAVRH_SIRKA,
                            static_cast<double>(vyska) / NAVRH_VYSKA),
                   0.1);
    u.X = (sirka - Zvetsi(NAVRH_SIRKA, u.S)) / 2;
    u.Y = (vyska - Zvetsi(NAVRH_VYSKA, u.S)) / 2;
    return u;
}

Malir::Malir() : vnitrek_(std::make_unique<Vnitrek>()) {}

Malir::~Malir() = default;

void Malir::Znovu() {
    vnitrek_->Vse = true;
}

std::vector<Obdelnik> Malir::Namaluj(const Platno& cil, const Obrazovky& okna, std::uint32_t ted) {
    Vnitrek& v = *vnitrek_;
    const Umisteni umisteni = Umisteni::Vejdi(cil.Sirka, cil.Vyska);
    const bool kurzor = okna.KurzorJeVidet(ted);
    Soupis soupis(okna, kurzor);
    const std::optional<Obrazovky::Prsten> prsten = okna.PrstenVpredu();
    std::vector<Obrazovky::Ohlas> ohlasy = okna.OhlasyVpredu();

    Kresba k;
    k.Cil = {cil.Body, cil.Sirka, cil.Vyska, cil.Krok};
    k.S = umisteni.S;
    k.X0 = umisteni.X;
    k.Y0 = umisteni.Y;
    k.Kurzor = kurzor;

    std::vector<Obdelnik> spinave;
    // A screen that came or went may stand at the address of an old one: no comparing then.
    const bool vse =
        v.Vse || v.Sirka != cil.Sirka || v.Vyska != cil.Vyska || v.Verze != okna.Verze();
    if (vse) {
        const Obdelnik navrh = k.NaCil(NAVRH);
        const bool okraje = v.Vse || v.Sirka != cil.Sirka || v.Vyska != cil.Vyska;
        if (okraje) VyplnOkoli(k.Cil, navrh);
        if (soupis.Radky.empty() || !Pokryva(soupis.Radky[0].Objekt.Kde, NAVRH))
            k.Cil.Vypln(navrh, DoPixelu(CERNA));
        spinave = {okraje ? k.Cil.Meze() : navrh};
    } else {
        spinave = Rozdily(v.Radky, soupis.Radky);
        if (prsten != v.Prsten) {
            if (v.Prsten) spinave.push_back(DosahPrstenu(*v.Prsten));
            if (prsten) spinave.push_back(DosahPrstenu(*prsten));
        }
        if (ohlasy != v.Ohlasy) {
            for (const auto* kdy : {&v.Ohlasy, &ohlasy}) {
                for (const Obrazovky::Ohlas& o : *kdy) spinave.push_back(DosahOhlasu(o));
            }
        }
        Spoj(spinave);
        for (Obdelnik& o : spinave) o = Prunik(k.NaCil(o), k.NaCil(NAVRH));
        std::erase_if(spinave, [](const Obdelnik& o) { return JePrazdny(o); });
    }
    if (vse) ZacniMalovat();
    for (const Obdelnik& o : spinave) {
        k.Orez = Prunik(o, k.NaCil(NAVRH));
        // What is painted over entirely is not painted at all.
        std::size_t prvni = soupis.Radky.size();
        while (prvni > 0 && !Kryje(soupis.Radky[--prvni], k)) continue;
        for (const Zaznam& z : std::span(soupis.Radky).subspan(prvni)) {
            if (z.Formular != nullptr) {
                NamalujForm(k, *z.Formular, z.Objekt.Kde);
            } else {
                NamalujObjekt(k, z.Objekt);
            }
        }
        for (const Obrazovky::Ohlas& ohlas : ohlasy) NamalujOhlas(k, ohlas);
        if (prsten) NamalujPrsten(k, *prsten);
    }
    if (vse) ZahodNevidene();
    v = {false,  cil.Sirka,        cil.Vyska, okna.Verze(), std::move(soupis.Radky),
         prsten, std::move(ohlasy)};
    return spinave;
}

}  // namespace rysovna
