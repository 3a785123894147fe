#include "prehled/SvgPlocha.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>

#include "base/Cisla.h"
#include "base/Text.h"
#include "prehled/ZnakyPlochy.h"

namespace rysovna::prehled {

namespace {

/// What stands for what in a text of XML.
struct Nahrada {
    char32_t Znak;
    std::string_view Cim;
};
constexpr Nahrada NAHRADY[] = {{U'&', "&amp;"}, {U'<', "&lt;"}, {U'>', "&gt;"}};
constexpr char32_t NEZNAMY = U'\uFFFD';

/// Further than this no number of a figure goes, px: it is seen as little there as further on.
constexpr double NEJDAL = 1e6;

const ZnakPlochy* NajdiZnak(char32_t znak) {
    if (znak < PRVNI_ZNAK || znak - PRVNI_ZNAK >= std::size(ZNAKY_PLOCHY)) return nullptr;
    return &ZNAKY_PLOCHY[znak - PRVNI_ZNAK];
}

/// Pixels to the inch by points to the inch.
double Pixelu(float bodu) {
    return static_cast<double>(bodu) * 96 / 72;
}

double PosuvZnaku(char32_t znak, double velikost) {
    const ZnakPlochy* z = NajdiZnak(znak);
    return z == nullptr ? PametovaPlocha::SIRKA_ZNAKU : velikost * z->Posuv / ZNAKU_NA_VELIKOST;
}

/// Tenths of a pixel: what figures are written in.
using Desetiny = long long;
Desetiny NaDesetiny(float x) {
    const auto px = static_cast<double>(x);
    return std::isfinite(px) ? std::llround(std::clamp(px, -NEJDAL, NEJDAL) * 10) : 0;
}

/// "12", "-.5", "3.2".
void Pripis(std::string& kam, Desetiny d) {
    if (d < 0) kam += '-';
    const Desetiny cele = std::abs(d) / 10, zbytek = std::abs(d) % 10;
    if (cele != 0 || zbytek == 0) {
        std::array<char, 24> misto{};
        const auto konec = std::to_chars(misto.data(), misto.data() + misto.size(), cele).ptr;
        kam.append(misto.data(), konec);
    }
    if (zbytek != 0) {
        kam += '.';
        kam += static_cast<char>('0' + zbytek);
    }
}

/// Numbers of a path: a minus parts them as well as a blank does.
void PripisDalsi(std::string& kam, Desetiny d) {
    if (d >= 0) kam += ' ';
    Pripis(kam, d);
}

void PripisPolozku(std::string& kam, std::string_view jmeno, Desetiny d) {
    kam.append(" ").append(jmeno).append("='");
    Pripis(kam, d);
    kam += '\'';
}

/// "#12af00", of a colour whose red is the lowest byte.
std::string Sestnactkove(Barva barva) {
    constexpr std::string_view CISLICE = "0123456789abcdef";
    std::string text = "#";
    for (const int posun : {4, 0, 12, 8, 20, 16})
        text += CISLICE[static_cast<std::size_t>(barva >> posun & 0xF)];
    return text;
}

void PripisText(std::string& kam, std::string_view text, bool symbol) {
    for (char32_t znak : DoZnaku(text)) {
        if (symbol) znak = ZnakSymbolu(znak);
        if (znak < U' ' || znak == U'\uFFFE' || znak == U'\uFFFF') znak = NEZNAMY;
        const auto* n = std::ranges::find(NAHRADY, znak, &Nahrada::Znak);
        kam += n != std::end(NAHRADY) ? std::string(n->Cim) : ZeZnaku({&znak, 1});
    }
}

/// Writes lines as one path for as long as they have the same pen.
class Cary {
public:
    explicit Cary(std::string& kam) : kam_(kam) {}
    ~Cary() { Ukonci(); }
    Cary(const Cary&) = delete;
    Cary& operator=(const Cary&) = delete;

    void Pridej(float x1, float y1, float x2, float y2, std::string_view pero) {
        const std::array<Desetiny, 4> u = {NaDesetiny(x1), NaDesetiny(y1), NaDesetiny(x2),
                                           NaDesetiny(y2)};
        if (!otevrena_ || pero != pero_) {
            Ukonci();
            pero_ = pero;
            kam_.append("<path").append(pero).append(" d='M");
            Pripis(kam_, u[0]);
            PripisDalsi(kam_, u[1]);
            otevrena_ = true;
        } else if (x_ != u[0] || y_ != u[1]) {
            kam_ += 'm';
            Pripis(kam_, u[0] - x_);
            PripisDalsi(kam_, u[1] - y_);
        }
        x_ = u[2];
        y_ = u[3];
        if (u[1] == u[3]) {
            kam_ += 'h';
            Pripis(kam_, u[2] - u[0]);
        } else if (u[0] == u[2]) {
            kam_ += 'v';
            Pripis(kam_, u[3] - u[1]);
        } else {
            kam_ += 'l';
            Pripis(kam_, u[2] - u[0]);
            PripisDalsi(kam_, u[3] - u[1]);
        }
    }

    void Ukonci() {
        if (otevrena_) kam_ += "'/>";
        otevrena_ = false;
    }

private:
    std::string& kam_;
    std::string pero_;
    bool otevrena_ = false;
    Desetiny x_ = 0, y_ = 0;  ///< where the path is
};

}  // namespace

SvgPlocha::SvgPlocha(int w, int h) : body_(w, h) {}

void SvgPlocha::Line(float x1, float y1, float x2, float y2) {
    if (!AutoRedraw) return;
    body_.ForeColor = ForeColor;
    body_.DrawWidth = DrawWidth;
    body_.Line(x1, y1, x2, y2);
    kresby_.push_back({Kresba::Druh::Usecka, x1, y1, x2, y2, DrawWidth, ForeColor, {}, {}});
}

void SvgPlocha::Circle(float x, float y, float r) {
    if (!AutoRedraw) return;
    body_.ForeColor = ForeColor;
    body_.DrawWidth = DrawWidth;
    body_.Circle(x, y, r);
    kresby_.push_back({Kresba::Druh::Kruznice, x, y, r, 0, DrawWidth, ForeColor, {}, {}});
}

void SvgPlocha::Print(std::string_view text) {
    if (!AutoRedraw) return;
    double x = static_cast<double>(CurrentX);
    const int y = Zaokrouhli(static_cast<double>(CurrentY));
    for (const char32_t znak : DoZnaku(text)) {
        // As letters are set on the screen: a half goes up.
        const int vlevo = Podlaha(x + 0.5);
        if (const ZnakPlochy* z = NajdiZnak(znak); z == nullptr) {
            for (int i = 0; i < PametovaPlocha::SIRKA_ZNAKU * PametovaPlocha::VYSKA_ZNAKU; ++i)
                body_.PSet(vlevo + i % PametovaPlocha::SIRKA_ZNAKU,
                           y + i / PametovaPlocha::SIRKA_ZNAKU, ForeColor);
        } else {
            for (int r = 0; r < static_cast<int>(z->Radky.size()); ++r) {
                unsigned bity = z->Radky[static_cast<std::size_t>(r)];
                for (int s = 0; bity != 0; ++s, bity >>= 1U) {
                    if ((bity & 1U) != 0)
                        body_.PSet(vlevo + z->Vlevo + s, y + z->Nahore + r, ForeColor);
                }
            }
        }
        x += PosuvZnaku(znak, Pixelu(VELIKOST_ZNAKU));
    }
    kresby_.push_back(
        {Kresba::Druh::Text, CurrentX, CurrentY, 0, 0, 1, ForeColor, Font, std::string(text)});
}

int SvgPlocha::TextWidth(std::string_view text) const {
    double sirka = 0;
    for (const char32_t znak : DoZnaku(text)) sirka += PosuvZnaku(znak, Pixelu(Font.Velikost));
    return static_cast<int>(std::ceil(sirka));
}

int SvgPlocha::TextHeight() const {
    return Zaokrouhli(static_cast<double>(VYSKA_RADKU_ZNAKU * Font.Velikost / VELIKOST_ZNAKU));
}

void SvgPlocha::Cls() {
    CurrentX = CurrentY = 0;
    body_.BackColor = BackColor;
    body_.Cls();
    kresby_.clear();
}

bool SvgPlocha::BitBlt(int x, int y, int w, int h, const Plane& zdroj, int zx, int zy, Rop rop) {
    if (!AutoRedraw) return true;
    const auto* svg = dynamic_cast<const SvgPlocha*>(&zdroj);
    if (svg == nullptr) return body_.BitBlt(x, y, w, h, zdroj, zx, zy, rop);
    const bool cela = rop == Rop::SrcCopy && x == 0 && y == 0 && zx == 0 && zy == 0 &&
                      w == Width() && h == Height() && w == svg->Width() && h == svg->Height();
    if (cela) kresby_ = svg->kresby_;
    return body_.BitBlt(x, y, w, h, svg->body_, zx, zy, rop);
}

std::string SvgPlocha::Obsah() const {
    std::string text;
    Cary cary(text);
    for (const Kresba& k : kresby_) {
        using enum Kresba::Druh;
        if (k.Co == Text) {
            if (k.Napis.empty()) continue;
            cary.Ukonci();
            text += "<text";
            const float podil = k.Cim.Velikost / VELIKOST_ZNAKU;
            PripisPolozku(text, "x", NaDesetiny(k.X1));
            PripisPolozku(text, "y", NaDesetiny(k.Y1 + static_cast<float>(UCARI_ZNAKU) * podil));
            if (k.Cim.Velikost != VELIKOST_ZNAKU)
                PripisPolozku(text, "font-size",
                              NaDesetiny(static_cast<float>(Pixelu(k.Cim.Velikost))));
            if (k.Cim.Kurziva) text += " font-style='italic'";
            if (k.Cim.Tucne) text += " font-weight='bold'";
            if (k.Jaka != CERNA) text += " fill='" + Sestnactkove(k.Jaka) + '\'';
            text += '>';
            PripisText(text, k.Napis, k.Cim.Nazev == Pismo::Rez::Symbol);
            text += "</text>";
            continue;
        }
        std::string pero;
        if (k.Pero > 1) PripisPolozku(pero, "stroke-width", k.Pero * 10);
        if (k.Jaka != CERNA) pero += " stroke='" + Sestnactkove(k.Jaka) + '\'';
        if (k.Co == Usecka) {
            cary.Pridej(k.X1, k.Y1, k.X2, k.Y2, pero);
        } else if (k.X2 >= 0) {
            cary.Ukonci();
            text += "<circle" + pero;
            PripisPolozku(text, "cx", NaDesetiny(k.X1));
            PripisPolozku(text, "cy", NaDesetiny(k.Y1));
            PripisPolozku(text, "r", NaDesetiny(k.X2));
            text += "/>";
        }
    }
    cary.Ukonci();
    return text;
}

}  // namespace rysovna::prehled
