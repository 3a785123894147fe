#include "platform/MalirObjektu.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <numbers>

#include "base/Obdelniky.h"
#include "platform/Paleta.h"
#include "platform/Pisma.h"
#include "platform/PsaniTextu.h"
#include "platform/SurfaceVnitrek.h"
#include "platform/TahNad.h"
#include "platform/Zalom.h"

namespace rysovna {

namespace {

constexpr Pixel VYBER = DoPixelu(paleta::VYBER);
constexpr Pixel OBRYS = DoPixelu(paleta::OBRYS);

void NamalujObrazek(const Kresba& k, const Obdelnik& kde, const Obrazek& obrazek) {
    if (obrazek.Prazdny()) return;
    const Obdelnik kam = k.NaCil({kde.Left, kde.Top, obrazek.Width(), obrazek.Height()});
    PolozObrazek(k.Cil, kam, Prunik(k.Orez, k.NaCil(kde)), obrazek, k.S, true);
}

void Ram(const Kresba& k, const Obdelnik& kde, Pixel barva) {
    const Obdelnik r = k.NaCil(kde);
    const int t = std::max(1, static_cast<int>(std::lround(k.S)));
    const auto pruh = [&](const Obdelnik& o) { k.Cil.Vypln(Prunik(o, k.Orez), barva); };
    pruh({r.Left, r.Top, r.Width, t});
    pruh({r.Left, r.Top + r.Height - t, r.Width, t});
    pruh({r.Left, r.Top, t, r.Height});
    pruh({r.Left + r.Width - t, r.Top, t, r.Height});
}

void Namaluj(const Kresba& k, const Obdelnik& kde, const PictureBox& p) {
    if (const Surface* plocha = p.PlochaNeboNic()) {
        const Surface::Vnitrek& v = plocha->Uvnitr();
        Bitmapa docasna;
        const Bitmapa& obraz = k.S == 1 ? v.Logicka : Vykresli(v.Obsah, k.S, docasna);
        Prenes(k.Cil, k.NaCil(kde), k.Orez, obraz, 0, 0,
               v.MaKlic ? Prenos::BezKlice : Prenos::Kopie);
    } else {
        if (!p.Pruhledny && !(p.Picture.Width() >= p.Width && p.Picture.Height() >= p.Height))
            k.Cil.Vypln(Prunik(k.NaCil(kde), k.Orez), DoPixelu(p.BackColor));
        NamalujObrazek(k, kde, p.Picture);
    }
    if (p.Ramecek) Ram(k, kde, OBRYS);
}

void Radek(const Kresba& k, double x, double y, const Pismo& pismo, const std::string& text,
           Pixel barva, const Obdelnik& orez) {
    KresliText(k.Cil, Prunik(k.Orez, orez), k.X0 + x * k.S, k.Y0 + y * k.S, k.S, pismo, text, barva,
               Hladkost::Seda);
}

void Namaluj(const Kresba& k, const Obdelnik& kde, const Label& l) {
    const Obdelnik misto = k.NaCil(kde);
    if (l.BackColor != BEZ_BARVY) k.Cil.Vypln(Prunik(misto, k.Orez), DoPixelu(l.BackColor));
    if (l.Caption.empty()) return;
    int y = kde.Top;
    for (const std::string& radek :
         RozdelNaRadky(l.Font, l.Tisteny(), l.WordWrap ? std::max(l.Width, 1) : 0)) {
        const double volno = l.Alignment == 0 ? 0 : kde.Width - PresnaSirka(l.Font, radek);
        Radek(k, kde.Left + (l.Alignment == 2 ? volno / 2 : volno), y, l.Font, radek,
              DoPixelu(l.Enabled ? l.ForeColor : paleta::ZASEDLA), misto);
        y += VyskaRadku(l.Font);
    }
}

void NamalujRadkyTextu(const Kresba& k, const Obdelnik& kde, const TextBox& t) {
    const Obdelnik misto = k.NaCil(kde);
    int y = kde.Top + OKRAJ_TEXTU;
    for (const std::string& radek : t.Radky()) {
        Radek(k, kde.Left + OKRAJ_TEXTU, y, t.Font, radek, DoPixelu(CERNA), misto);
        y += VyskaRadku(t.Font);
    }
}

void Namaluj(const Kresba& k, const Obdelnik& kde, const TextBox& t, bool zamereny) {
    k.Cil.Vypln(Prunik(k.NaCil(kde), k.Orez), DoPixelu(t.BackColor));
    Ram(k, kde, zamereny ? VYBER : OBRYS);
    if (t.MultiLine) {
        NamalujRadkyTextu(k, kde, t);
        return;
    }
    const Obdelnik vnitrek{kde.Left + 2, kde.Top + 1, kde.Width - 4, kde.Height - 2};
    const Obdelnik orez = k.NaCil(vnitrek);
    const double x = kde.Left + OKRAJ_TEXTU - t.Posun;
    const double y = kde.Top + (kde.Height - VyskaRadku(t.Font)) / 2.0;
    Radek(k, x, y, t.Font, t.Text, DoPixelu(CERNA), orez);
    if (!zamereny) return;

    const std::vector<double> zacatky = Zacatky(t.Font, t.Text);
    const auto misto = [&](int i) {
        const int konec = static_cast<int>(zacatky.size()) - 1;
        return x + zacatky[static_cast<std::size_t>(std::clamp(i, 0, konec))];
    };
    const int vyska = VyskaRadku(t.Font);
    const auto svisle = [&](double x1, double x2) {
        const int a = k.X0 + static_cast<int>(std::lround(x1 * k.S));
        const int b = k.X0 + static_cast<int>(std::lround(x2 * k.S));
        const Obdelnik r = k.NaCil({0, static_cast<int>(y), 1, vyska});
        return Obdelnik{a, r.Top, b - a, r.Height};
    };
    if (t.SelStart != t.SelAnchor) {
        const Obdelnik vyber = Prunik(svisle(misto(std::min(t.SelStart, t.SelAnchor)),
                                             misto(std::max(t.SelStart, t.SelAnchor))),
                                      orez);
        k.Cil.Vypln(Prunik(vyber, k.Orez), VYBER);
        Radek(k, x, y, t.Font, t.Text, DoPixelu(BILA), vyber);
    }
    if (k.Kurzor) {
        Obdelnik kurzor = svisle(misto(t.SelStart), misto(t.SelStart));
        kurzor.Width = std::max(1, static_cast<int>(std::lround(k.S)));
        k.Cil.Vypln(Prunik(Prunik(kurzor, orez), k.Orez), DoPixelu(CERNA));
    }
}

void Namaluj(const Kresba& k, Bod posun, const LineShape& l) {
    const auto x = [&](int n) { return k.X0 + (posun.X + n + 0.5) * k.S; };
    const auto y = [&](int n) { return k.Y0 + (posun.Y + n + 0.5) * k.S; };
    const Tah tah(k, l.BorderColor, l.BorderWidth);
    cairo_move_to(tah.Kde(), x(l.X1), y(l.Y1));
    cairo_line_to(tah.Kde(), x(l.X2), y(l.Y2));
}

void Namaluj(const Kresba& k, Bod posun, const CircleShape& c) {
    const double r = std::min(c.Width, c.Height) / 2.0;
    if (r <= 0) return;
    const Tah tah(k, c.BorderColor, c.BorderWidth);
    cairo_arc(tah.Kde(), k.X0 + (posun.X + c.Left + c.Width / 2.0 + 0.5) * k.S,
              k.Y0 + (posun.Y + c.Top + c.Height / 2.0 + 0.5) * k.S, r * k.S, 0,
              2 * std::numbers::pi);
}

/// Of a picture over a ground that is painted where the picture does not reach.
bool KryjePodklad(const Obrazek& obrazek, int sirka, int vyska, bool maPodklad) {
    if (obrazek.Prazdny() || obrazek.Width() < sirka || obrazek.Height() < vyska) return maPodklad;
    return !obrazek.Data()->MaKlic();
}

}  // namespace

Obdelnik DosahTvaru(const Ovladac& o) {
    Obdelnik dosah{o.Left, o.Top, o.Width, o.Height};
    int pero = 0;
    if (o.Druh == Ovladac::Typ::Line) {
        const auto& l = static_cast<const LineShape&>(o);
        dosah = {std::min(l.X1, l.X2), std::min(l.Y1, l.Y2), std::abs(l.X2 - l.X1),
                 std::abs(l.Y2 - l.Y1)};
        pero = l.BorderWidth;
    } else if (o.Druh == Ovladac::Typ::Circle) {
        pero = static_cast<const CircleShape&>(o).BorderWidth;
    } else {
        return dosah;
    }
    const int okraj = std::max(pero, 1) + 1;
    return {dosah.Left - okraj, dosah.Top - okraj, dosah.Width + 2 * okraj + 1,
            dosah.Height + 2 * okraj + 1};
}

void NamalujForm(const Kresba& k, const Form& form, const Obdelnik& kde) {
    const bool presahuje = form.Picture.Width() < form.Width || form.Picture.Height() < form.Height;
    if (presahuje && form.BackColor != BEZ_BARVY)
        k.Cil.Vypln(Prunik(k.NaCil(kde), k.Orez), DoPixelu(form.BackColor));
    NamalujObrazek(k, kde, form.Picture);
}

bool Kryje(const Form& form) {
    return KryjePodklad(form.Picture, form.Width, form.Height, form.BackColor != BEZ_BARVY);
}

bool Kryje(const Umisteny& u) {
    switch (u.Co->Druh) {
        case Ovladac::Typ::PictureBox: {
            const auto& p = static_cast<const PictureBox&>(*u.Co);
            if (const Surface* plocha = p.PlochaNeboNic()) return !plocha->Uvnitr().MaKlic;
            return KryjePodklad(p.Picture, p.Width, p.Height, !p.Pruhledny);
        }
        case Ovladac::Typ::Image: {
            const auto& i = static_cast<const Image&>(*u.Co);
            return KryjePodklad(i.Picture, i.Width, i.Height, false);
        }
        case Ovladac::Typ::Label:
            return static_cast<const Label&>(*u.Co).BackColor != BEZ_BARVY;
        case Ovladac::Typ::TextBox:
            return true;
        default:
            return false;
    }
}

void NamalujObjekt(const Kresba& k, const Umisteny& u) {
    Kresba orezana = k;
    orezana.Orez = Prunik(k.Orez, k.NaCil(u.Videt));
    if (JePrazdny(orezana.Orez)) return;
    // Shapes have places of their own within the parent's; u.Kde gives where that begins.
    const Obdelnik dosah = DosahTvaru(*u.Co);
    const Bod posun{u.Kde.Left - dosah.Left, u.Kde.Top - dosah.Top};
    switch (u.Co->Druh) {
        case Ovladac::Typ::PictureBox:
            Namaluj(orezana, u.Kde, static_cast<const PictureBox&>(*u.Co));
            break;
        case Ovladac::Typ::Image:
            NamalujObrazek(orezana, u.Kde, static_cast<const Image&>(*u.Co).Picture);
            break;
        case Ovladac::Typ::Label:
            Namaluj(orezana, u.Kde, static_cast<const Label&>(*u.Co));
            break;
        case Ovladac::Typ::TextBox:
            Namaluj(orezana, u.Kde, static_cast<const TextBox&>(*u.Co), u.Zamereny);
            break;
        case Ovladac::Typ::Line:
            Namaluj(orezana, posun, static_cast<const LineShape&>(*u.Co));
            break;
        case Ovladac::Typ::Circle:
            Namaluj(orezana, posun, static_cast<const CircleShape&>(*u.Co));
            break;
        case Ovladac::Typ::Timer:
        case Ovladac::Typ::PictureClip:
            break;
    }
}

Vzhled VzhledFormu(const Form& form) {
    Vzhled v;
    v.Jak = VzhledPictureBoxu{.Picture = form.Picture, .BackColor = form.BackColor};
    return v;
}

Vzhled VzhledObjektu(const Umisteny& u, bool kurzor) {
    Vzhled v;
    if (u.Co->MaPismo()) v.Font = u.Co->Font;
    switch (u.Co->Druh) {
        case Ovladac::Typ::PictureBox: {
            const auto& p = static_cast<const PictureBox&>(*u.Co);
            v.Jak = static_cast<const VzhledPictureBoxu&>(p);
            if (p.MaPlochu()) v.Kresleni = p.PlochaNeboNic()->Verze();
            break;
        }
        case Ovladac::Typ::Image:
            v.Jak = static_cast<const VzhledObrazku&>(static_cast<const Image&>(*u.Co));
            break;
        case Ovladac::Typ::Label:
            v.Jak = static_cast<const VzhledLabelu&>(static_cast<const Label&>(*u.Co));
            v.Zivy = u.Co->Enabled;
            break;
        case Ovladac::Typ::TextBox:
            v.Jak = static_cast<const VzhledTextBoxu&>(static_cast<const TextBox&>(*u.Co));
            v.SKurzorem = u.Zamereny && kurzor;
            break;
        case Ovladac::Typ::Line:
            v.Jak = static_cast<const VzhledTvaru&>(static_cast<const LineShape&>(*u.Co));
            break;
        case Ovladac::Typ::Circle:
            v.Jak = static_cast<const VzhledTvaru&>(static_cast<const CircleShape&>(*u.Co));
            break;
        case Ovladac::Typ::Timer:
        case Ovladac::Typ::PictureClip:
            break;
    }
    return v;
}

}  // namespace rysovna
