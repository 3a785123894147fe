#include "platform/PsaniTextu.h"

#include <algorithm>
#include <cmath>

#include "base/Text.h"
#include "platform/Host.h"
#include "platform/Pisma.h"

namespace rysovna {

namespace {

std::size_t Z(int i) {
    return static_cast<std::size_t>(i);
}

/// A mark that is typed or pasted as a character of its own, the letters that it may stand behind,
/// and what each gives with it: all that the code page of the files knows.
constexpr struct {
    char32_t Znamenko;
    std::u32string_view Pismena, Slozena;
} SLOZENI[] = {
    {0x0301, U"AaCcEeIiLlNnOoRrSsUuYyZz", U"ÁáĆćÉéÍíĹĺŃńÓóŔŕŚśÚúÝýŹź"},
    {0x030C, U"CcDdEeLlNnRrSsTtZz", U"ČčĎďĚěĽľŇňŘřŠšŤťŽž"},
    {0x030A, U"Uu", U"Ůů"},
    {0x0308, U"AaEeOoUu", U"ÄäËëÖöÜü"},
    {0x0302, U"AaIiOo", U"ÂâÎîÔô"},
    {0x0306, U"Aa", U"Ăă"},
    {0x0307, U"Zz", U"Żż"},
    {0x030B, U"OoUu", U"ŐőŰű"},
    {0x0327, U"CcSsTt", U"ÇçŞşŢţ"},
    {0x0328, U"AaEe", U"ĄąĘę"},
};

static_assert(std::ranges::all_of(SLOZENI, [](const auto& s) {
    return s.Pismena.size() == s.Slozena.size();
}));

/// The one letter for a letter and the mark behind it; 0 if there is none.
char32_t Slozene(char32_t pismeno, char32_t znamenko) {
    for (const auto& s : SLOZENI) {
        if (s.Znamenko != znamenko) continue;
        const std::size_t kde = s.Pismena.find(pismeno);
        return kde == std::u32string_view::npos ? 0 : s.Slozena[kde];
    }
    return 0;
}

/// With one letter in place of each pair that has one.
std::u32string Sloz(const std::u32string& znaky) {
    std::u32string slozeny;
    for (const char32_t z : znaky) {
        const char32_t jeden = slozeny.empty() ? 0 : Slozene(slozeny.back(), z);
        if (jeden != 0) {
            slozeny.back() = jeden;
        } else {
            slozeny += z;
        }
    }
    return slozeny;
}

}  // namespace

PsaniTextu::PsaniTextu(Host& host, TextBox& t) : host_(host), t_(t) {
    // The program may have written another text under the caret.
    t_.SelStart = std::clamp(t_.SelStart, 0, Delka());
    t_.SelAnchor = std::clamp(t_.SelAnchor, 0, Delka());
}

int PsaniTextu::Delka() const {
    return PocetZnaku(t_.Text);
}

bool PsaniTextu::Nahrad(const std::u32string& novy) {
    const std::u32string znaky = DoZnaku(t_.Text);
    const int od = std::min(t_.SelStart, t_.SelAnchor);
    const int po = std::max(t_.SelStart, t_.SelAnchor);
    const std::u32string pred = znaky.substr(0, Z(od));
    std::u32string za = znaky.substr(Z(po));
    std::u32string vejde = novy;
    if (t_.BezUvodnichMezer && pred.empty()) {
        vejde.erase(0, vejde.find_first_not_of(U' '));
        if (vejde.empty()) za.erase(0, za.find_first_not_of(U' '));
    }
    if (t_.MaxLength > 0) {
        const bool neco = !vejde.empty();
        const int zbyva = t_.MaxLength - static_cast<int>(pred.size() + za.size());
        vejde.resize(std::min(vejde.size(), Z(std::max(zbyva, 0))));
        if (neco && vejde.empty()) return false;  // no room: what is selected stays
    }
    if (vejde.empty() && od == po) return false;
    t_.Text = ZeZnaku(pred + vejde + za);
    Posad(od + static_cast<int>(vejde.size()), false);
    return true;
}

bool PsaniTextu::Napis(std::string_view utf8) {
    std::u32string znaky = DoZnaku(utf8);
    std::erase_if(znaky, [this](char32_t z) {
        return z < U' ' || (z >= 0x7F && z < 0xA0) || t_.Zakazane.find(z) != std::u32string::npos;
    });
    if (znaky.empty()) return false;
    // A mark that comes alone belongs to the letter before the caret.
    if (t_.SelStart == t_.SelAnchor && t_.SelStart > 0) {
        const char32_t jeden = Slozene(DoZnaku(t_.Text)[Z(t_.SelStart - 1)], znaky.front());
        if (jeden != 0) {
            znaky.front() = jeden;
            t_.SelAnchor = t_.SelStart - 1;
        }
    }
    return Nahrad(Sloz(znaky));
}

bool PsaniTextu::Smaz(int kam) {
    if (t_.SelStart == t_.SelAnchor) t_.SelAnchor = std::clamp(kam, 0, Delka());
    return Nahrad({});
}

void PsaniTextu::Posad(int kam, bool vybirat) {
    t_.SelStart = std::clamp(kam, 0, Delka());
    if (!vybirat) t_.SelAnchor = t_.SelStart;
    Ukaz();
}

int PsaniTextu::Slovo(int od, int smer) const {
    const std::u32string znaky = DoZnaku(t_.Text);
    const int konec = static_cast<int>(znaky.size());
    const auto mezera = [&](int i) { return znaky[Z(i)] == U' '; };
    int i = od;
    if (smer < 0) {
        while (i > 0 && mezera(i - 1)) --i;
        while (i > 0 && !mezera(i - 1)) --i;
    } else {
        while (i < konec && !mezera(i)) ++i;
        while (i < konec && mezera(i)) ++i;
    }
    return i;
}

bool PsaniTextu::Bere(std::string_view jmeno, int shift) {
    constexpr std::string_view KLAVESY[] = {"Left", "Right", "Home", "End", "BackSpace", "Delete"};
    constexpr std::string_view POVELY[] = {"a", "c", "v", "x"};
    return std::ranges::find(KLAVESY, jmeno) != std::end(KLAVESY) ||
           ((shift & CTRL) != 0 && std::ranges::find(POVELY, jmeno) != std::end(POVELY));
}

bool PsaniTextu::Klavesa(std::string_view jmeno, int shift, bool& vzal) {
    const bool vybirat = (shift & SHIFT) != 0;
    const bool ctrl = (shift & CTRL) != 0;
    const int od = std::min(t_.SelStart, t_.SelAnchor);
    const int po = std::max(t_.SelStart, t_.SelAnchor);
    const bool vyber = od != po;
    vzal = Bere(jmeno, shift);
    if (!vzal) return false;
    if (jmeno == "Left") {
        Posad(ctrl ? Slovo(t_.SelStart, -1) : vyber && !vybirat ? od : t_.SelStart - 1, vybirat);
    } else if (jmeno == "Right") {
        Posad(ctrl ? Slovo(t_.SelStart, 1) : vyber && !vybirat ? po : t_.SelStart + 1, vybirat);
    } else if (jmeno == "Home") {
        Posad(0, vybirat);
    } else if (jmeno == "End") {
        Posad(Delka(), vybirat);
    } else if (jmeno == "BackSpace") {
        return Smaz(ctrl ? Slovo(t_.SelStart, -1) : t_.SelStart - 1);
    } else if (jmeno == "Delete") {
        return Smaz(ctrl ? Slovo(t_.SelStart, 1) : t_.SelStart + 1);
    } else if (jmeno == "a") {
        t_.SelAnchor = 0;
        Posad(Delka(), true);
    } else if (jmeno == "c" || jmeno == "x") {
        if (!vyber) return false;
        host_.DoSchranky(ZeZnaku(DoZnaku(t_.Text).substr(Z(od), Z(po - od))));
        return jmeno == "x" && Nahrad({});
    } else if (jmeno == "v") {
        return Napis(host_.SchrankaText());
    }
    return false;
}

void PsaniTextu::Stisk(double x, bool vybirat) {
    const std::vector<double> zacatky = Zacatky(t_.Font, t_.Text);
    const double naTextu = x - OKRAJ_TEXTU + t_.Posun;
    int kam = 0;
    for (std::size_t i = 0; i + 1 < zacatky.size(); ++i) {
        if (naTextu >= (zacatky[i] + zacatky[i + 1]) / 2) kam = static_cast<int>(i) + 1;
    }
    Posad(kam, vybirat);
}

void PsaniTextu::VyberSlovo() {
    const std::u32string znaky = DoZnaku(t_.Text);
    const int konec = static_cast<int>(znaky.size());
    if (konec == 0) return;
    const int stred = std::min(t_.SelStart, konec - 1);
    const bool mezera = znaky[Z(stred)] == U' ';
    int od = stred;
    int po = stred;
    while (od > 0 && (znaky[Z(od - 1)] == U' ') == mezera) --od;
    while (po < konec && (znaky[Z(po)] == U' ') == mezera) ++po;
    t_.SelAnchor = od;
    Posad(po, true);
}

/// Scrolls so that the caret is seen, and no further than the text reaches.
void PsaniTextu::Ukaz() {
    const std::vector<double> zacatky = Zacatky(t_.Font, t_.Text);
    const int misto = std::max(t_.Width - 2 * OKRAJ_TEXTU - 1, 1);
    const auto kurzor = static_cast<int>(std::ceil(zacatky[Z(t_.SelStart)]));
    const auto delka = static_cast<int>(std::ceil(zacatky.back()));
    t_.Posun = std::min(t_.Posun, std::max(delka - misto, 0));
    t_.Posun = std::clamp(t_.Posun, kurzor - misto, kurzor);
    t_.Posun = std::max(t_.Posun, 0);
}

}  // namespace rysovna
