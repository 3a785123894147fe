#include "Nahravka.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <map>
#include <sstream>

#include "Kresleni.h"
#include "base/Chyba.h"

namespace rysovna::obrazky {

namespace {

/// Places that were recorded are right to this, px.
constexpr double PRESNOST = 1e-3;

/// Reads the script word by word: numbers and names wait for the command behind them.
class Rozbor {
public:
    Rozbor(int sirka, int vyska, int zvetseni, const std::string& kde)
        : sirka_(sirka), vyska_(vyska), zvetseni_(zvetseni), kde_(kde), orez_(Cely()) {}

    std::vector<Ukon> Proved(const std::string& zaznam) {
        std::stringstream proud(zaznam);
        std::string slovo;
        // The head, up to the line that opens the surface, tells nothing new.
        while (proud >> slovo && slovo != "context") {
        }
        while (proud >> slovo && slovo != "pop") Slovo(slovo);
        return std::move(ukony_);
    }

private:
    using Prikaz = void (Rozbor::*)();

    [[noreturn]] void Neumim(const std::string& co) const {
        throw BehovaChyba("Tvary neumějí " + co, kde_);
    }

    void Slovo(std::string slovo) {
        // Brackets stand close to what they hold.
        while (!slovo.empty() && slovo.front() == '[') slovo.erase(0, 1);
        const bool konecPole = !slovo.empty() && slovo.back() == ']';
        if (konecPole) slovo.pop_back();
        if (slovo.empty()) return;
        if (slovo.compare(0, 2, "//") == 0) {
            jmeno_ = slovo.substr(2);
            return;
        }
        double cislo = 0;
        const auto [konec, chyba] =
            std::from_chars(slovo.data(), slovo.data() + slovo.size(), cislo);
        if (chyba == std::errc() && konec == slovo.data() + slovo.size()) {
            cisla_.push_back(cislo);
            return;
        }
        const auto i = PRIKAZY.find(slovo);
        if (i == PRIKAZY.end()) Neumim("\"" + slovo + "\"");
        (this->*i->second)();
        cisla_.clear();
    }

    double Cislo(std::size_t i) const {
        if (i >= cisla_.size()) Neumim("příkaz bez čísel");
        return cisla_[i];
    }
    /// A point of the script as pixels at 1:1.
    BodCesty Bod(std::size_t i) const {
        const double x = Cislo(i);
        const double y = Cislo(i + 1);
        const double px = (m_[0] * x + m_[2] * y + m_[4]) / zvetseni_ - vyska_ * sinus_;
        const double py = (m_[1] * x + m_[3] * y + m_[5]) / zvetseni_;
        return {kosinus_ * px + sinus_ * py, kosinus_ * py - sinus_ * px};
    }
    Obrys& Posledni() {
        if (cesta_.empty()) Neumim("cestu bez začátku");
        return cesta_.back();
    }
    template <std::size_t N>
    int Volba(const std::array<const char*, N>& jmena) const {
        for (std::size_t i = 0; i < N; ++i) {
            if (jmeno_ == jmena[i]) return static_cast<int>(i);
        }
        Neumim(jmeno_);
    }

    void NovaCesta() {
        cesta_.clear();
        vzprimeny_ = false;
    }
    void Zacni() {
        cesta_.emplace_back();
        cesta_.back().Zacatek = Bod(0);
    }
    void Usecka() { Posledni().Useky.push_back({false, {}, {}, Bod(0)}); }
    void Krivka() { Posledni().Useky.push_back({true, Bod(0), Bod(2), Bod(4)}); }
    void Zavri() { Posledni().Zavreny = true; }
    void Obdelnik() {
        cesta_.clear();
        vzprimeny_ = true;
    }

    void Seda() { cisla_ = {Cislo(0), Cislo(0), Cislo(0)}, Barva(); }
    void Barva() {
        ukon_.Barva = 0;
        for (std::size_t i = 0; i < 3; ++i)
            ukon_.Barva =
                ukon_.Barva << 8 | static_cast<std::uint32_t>(std::lround(Cislo(i) * 255));
    }
    void Pruhledna() {
        if (Cislo(3) != 1) Neumim("průhledné barvy");
        Barva();
    }
    void Nic() {}

    void Jednotkova() { m_ = {1, 0, 0, 1, 0, 0}; }
    void Matice() {
        // After "identity" there are no numbers.
        for (std::size_t i = 0; i < cisla_.size(); ++i) m_[i] = Cislo(i);
    }
    void Meritko() {
        for (std::size_t i = 0; i < 4; ++i) m_[i] *= Cislo(i / 2);
    }

    void SirkaPera() { pero_ = Cislo(0); }
    void Konce() { ukon_.Konce = Volba<3>({"LINE_CAP_BUTT", "LINE_CAP_ROUND", "LINE_CAP_SQUARE"}); }
    void Spoje() {
        ukon_.Spoje = Volba<3>({"LINE_JOIN_MITER", "LINE_JOIN_ROUND", "LINE_JOIN_BEVEL"});
    }
    void MezSpoje() { ukon_.MezSpoje = Cislo(0); }
    void Carkovani() {
        if (Cislo(cisla_.size() - 1) != 0) Neumim("čárkování, které nezačíná na začátku");
        cisla_.pop_back();
        carkovani_ = cisla_;
    }
    void Pravidlo() { ukon_.SudaLicha = Volba<2>({"WINDING", "EVEN_ODD"}) == 1; }
    void Skladani() { Volba<1>({"OVER"}); }

    void Vydej(Ukon::Druh co) {
        if (vzprimeny_) Neumim("obdélník napříč");
        Ukon u = ukon_;
        u.Co = co;
        for (const Obrys& o : cesta_) {
            // Where nothing follows, nothing is drawn.
            if (!o.Useky.empty()) u.Cesta.push_back(o);
        }
        ukony_.push_back(std::move(u));
    }
    void Vypln() { Vydej(Ukon::Druh::Vypln); }
    void Tah() {
        const double meritko = std::hypot(m_[0], m_[1]);
        if (std::abs(meritko - std::hypot(m_[2], m_[3])) > 1e-3 * meritko ||
            std::abs(m_[0] * m_[2] + m_[1] * m_[3]) > 1e-3 * meritko * meritko)
            Neumim("nestejně široké pero");
        ukon_.Pero = pero_ * meritko / zvetseni_;
        ukon_.Carkovani = carkovani_;
        for (double& d : ukon_.Carkovani) d *= meritko / zvetseni_;
        Vydej(Ukon::Druh::Tah);
    }
    void Vymaluj() {
        NovaCesta();
        const double w = sirka_;
        const double h = vyska_;
        cesta_.push_back({{0, 0}, {}, true});
        for (const BodCesty& roh : {BodCesty{w, 0}, {w, h}, {0, h}})
            cesta_[0].Useky.push_back({false, {}, {}, roh});
        Vypln();
    }
    void Orez() {
        // The one that stands upright on the turned recording only encloses the one to come.
        if (vzprimeny_) return;
        Ramec r;
        if (!JeObdelnik(cesta_, r)) Neumim("ořez, který není obdélník");
        // A clip within another one.
        const double x = std::max(r.X, orez_.X);
        const double y = std::max(r.Y, orez_.Y);
        const double vpravo = std::min(r.X + r.Sirka, orez_.X + orez_.Sirka);
        const double dole = std::min(r.Y + r.Vyska, orez_.Y + orez_.Vyska);
        orez_ = {x, y, std::max(vpravo - x, 0.0), std::max(dole - y, 0.0)};
        Ukon u;
        u.Co = Ukon::Druh::Orez;
        u.Kam = orez_;
        ukony_.push_back(u);
    }
    void BezOrezu() {
        orez_ = Cely();
        Ukon u;
        u.Co = Ukon::Druh::BezOrezu;
        ukony_.push_back(u);
    }
    [[nodiscard]] Ramec Cely() const {
        return {0, 0, static_cast<double>(sirka_), static_cast<double>(vyska_)};
    }

    static const std::map<std::string, Prikaz> PRIKAZY;

    int sirka_, vyska_, zvetseni_;
    double sinus_ = std::sin(NATOCENI_NAHRAVKY), kosinus_ = std::cos(NATOCENI_NAHRAVKY);
    const std::string& kde_;
    std::vector<double> cisla_;
    std::string jmeno_;
    std::array<double, 6> m_{1, 0, 0, 1, 0, 0};
    std::vector<Obrys> cesta_;
    bool vzprimeny_ = false;  ///< the path is an upright rectangle
    Ramec orez_;
    // What a new drawing begins with.
    double pero_ = 2;
    std::vector<double> carkovani_;
    Ukon ukon_{.MezSpoje = 10, .Carkovani = {}, .Cesta = {}, .Kam = {}};
    std::vector<Ukon> ukony_;
};

const std::map<std::string, Rozbor::Prikaz> Rozbor::PRIKAZY = {
    {"n", &Rozbor::NovaCesta},
    {"m", &Rozbor::Zacni},
    {"l", &Rozbor::Usecka},
    {"c", &Rozbor::Krivka},
    {"h", &Rozbor::Zavri},
    {"rectangle", &Rozbor::Obdelnik},
    {"g", &Rozbor::Seda},
    {"rgb", &Rozbor::Barva},
    {"rgba", &Rozbor::Pruhledna},
    {"set-source", &Rozbor::Nic},
    {"identity", &Rozbor::Jednotkova},
    {"set-matrix", &Rozbor::Matice},
    {"scale", &Rozbor::Meritko},
    {"set-line-width", &Rozbor::SirkaPera},
    {"set-line-cap", &Rozbor::Konce},
    {"set-line-join", &Rozbor::Spoje},
    {"set-miter-limit", &Rozbor::MezSpoje},
    {"set-dash", &Rozbor::Carkovani},
    {"set-fill-rule", &Rozbor::Pravidlo},
    {"set-operator", &Rozbor::Skladani},
    {"set-antialias", &Rozbor::Nic},
    {"set-tolerance", &Rozbor::Nic},
    {"fill+", &Rozbor::Vypln},
    {"stroke+", &Rozbor::Tah},
    {"paint", &Rozbor::Vymaluj},
    {"clip+", &Rozbor::Orez},
    {"reset-clip", &Rozbor::BezOrezu},
};

}  // namespace

std::vector<Ukon> RozeberNahravku(const std::string& zaznam, int sirka, int vyska, int zvetseni,
                                  const std::string& kde) {
    return Rozbor(sirka, vyska, zvetseni, kde).Proved(zaznam);
}

bool JeObdelnik(const std::vector<Obrys>& cesta, Ramec& ramec) {
    std::vector<BodCesty> body;
    for (const Obrys& o : cesta) {
        if (o.Useky.empty()) continue;
        if (!body.empty()) return false;
        body.push_back(o.Zacatek);
        for (const Obrys::Usek& u : o.Useky) {
            if (u.Krivka) return false;
            body.push_back(u.Konec);
        }
    }
    const auto stejne = [](double a, double b) { return std::abs(a - b) < PRESNOST; };
    if (body.size() == 5 && stejne(body[4].X, body[0].X) && stejne(body[4].Y, body[0].Y))
        body.pop_back();
    if (body.size() != 4) return false;
    for (std::size_t i = 0; i < 4; ++i) {
        const BodCesty& a = body[i];
        const BodCesty& b = body[(i + 1) % 4];
        // Level and upright by turns.
        const bool vodorovne = stejne(body[0].Y, body[1].Y) == (i % 2 == 0);
        if (vodorovne ? !stejne(a.Y, b.Y) : !stejne(a.X, b.X)) return false;
    }
    const BodCesty& p = body[0];
    const BodCesty& q = body[2];
    ramec = {std::min(p.X, q.X), std::min(p.Y, q.Y), std::abs(p.X - q.X), std::abs(p.Y - q.Y)};
    return true;
}

}  // namespace rysovna::obrazky
