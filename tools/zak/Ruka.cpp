#include "zak/Ruka.h"

#include <algorithm>

#include "base/Cisla.h"

namespace rysovna::hrac {
namespace {

/// By what letters an assignment may name angles.
constexpr std::pair<std::string_view, std::string_view> UHLY[] = {
    {"a", "alfa"},     {"b", "beta"}, {"g", "gama"}, {"d", "delta"},
    {"delt", "delta"}, {"e", "epsi"}, {"w", "omeg"}};

[[noreturn]] void Nejde(std::string_view proc, std::string_view co) {
    throw NejdeUdelat(std::string(proc) + ": " + std::string(co));
}

}  // namespace

std::vector<Zadano> CtiZadani(const std::vector<ZadanaVelicina>& zadani) {
    std::vector<Zadano> vse;
    for (const auto& [druh, nazev, hodnota] : zadani) {
        if (druh == ZadanaVelicina::Druh::Slovy) continue;
        std::string velicina = nazev;
        for (const auto& [pismeno, uhel] : UHLY) {
            if (druh == ZadanaVelicina::Druh::Uhel && nazev == pismeno) velicina = uhel;
        }
        const std::size_t cislice = hodnota.find_first_of("0123456789");  // "= 12 cm, "
        vse.push_back({velicina, cislice == std::string::npos
                                     ? 0
                                     : static_cast<int>(Cislo(hodnota.substr(cislice)))});
    }
    return vse;
}

const MistoZnacky& NajdiMisto(std::span<const MistoZnacky> nacrt, std::string_view velicina) {
    const auto z = std::ranges::find(nacrt, velicina, &MistoZnacky::Velicina);
    if (z == nacrt.end()) Nejde("není na náčrtu", velicina);
    return *z;
}

int Ruka::Hodnota(std::string_view velicina) const {
    for (const Zadano& z : Zadani()) {
        if (z.Velicina == velicina) return z.Hodnota;
    }
    Nejde("není zadáno", velicina);
}

bool Ruka::JeZadano(std::string_view velicina) const {
    return std::ranges::any_of(Zadani(), [&](const Zadano& z) { return z.Velicina == velicina; });
}

int Ruka::CisloRadku(std::string_view text) const {
    const Seznam seznam = Hrany().UkazPanel().Vyber;
    for (std::size_t i = 0; seznam.Otevreny && i < seznam.Radky.size(); ++i) {
        const RadekSeznamu& r = seznam.Radky[i];
        if (r.Videt && r.Ziva && r.Text == text) return static_cast<int>(i) + 1;
    }
    return 0;
}

Ruka& Ruka::Oznac(Bod misto) {
    if (!StiskNacrtu(misto)) {
        Nejde("na náčrtu tu nic není", std::to_string(misto.X) + "," + std::to_string(misto.Y));
    }
    return *this;
}

Ruka& Ruka::Nastroj(int i) {
    if (!Hrany().UkazPanel().Nastroje[static_cast<std::size_t>(i - 1)].Zivy()) {
        Nejde("nástroj nejde stisknout", std::to_string(i));
    }
    StiskNastroje(i);
    return *this;
}

Ruka& Ruka::Vyber(std::string_view radek) {
    const int i = CisloRadku(radek);
    if (i == 0) Nejde("v seznamu nelze zvolit", radek);
    StiskRadku(i, radek);
    return *this;
}

Ruka& Ruka::Napis(std::string_view text, int ktery) {
    Pis(ktery, std::string(text));
    return *this;
}

Ruka& Ruka::Napis(int cislo, int ktery) {
    return Napis(TextBezMezery(cislo), ktery);
}

Ruka& Ruka::Tahni(Bod odkud, Bod kam) {
    TahPoPlose(odkud, kam);
    return *this;
}

}  // namespace rysovna::hrac
