#include "rules/VolaniDialogu.h"

#include <string_view>

#include "rules/Kontrola.h"

namespace rysovna {

namespace {

/// The hash FNV-1a, 32 bits.
class Otisk {
public:
    void Pridej(std::string_view text) {
        for (const char c : text) PridejBajt(static_cast<unsigned char>(c));
        PridejBajt(KONEC_TEXTU);
    }
    void Pridej(int cislo) {
        const auto n = static_cast<std::uint32_t>(cislo);
        for (unsigned posun = 0; posun < 32; posun += 8) PridejBajt(n >> posun & 0xFF);
    }
    [[nodiscard]] std::uint32_t Hodnota() const { return hodnota_; }

private:
    static constexpr std::uint32_t ZACATEK = 2166136261U, NASOBEK = 16777619U;
    static constexpr std::uint32_t KONEC_TEXTU = 0xFF;  // stands in no text

    void PridejBajt(std::uint32_t bajt) { hodnota_ = (hodnota_ ^ bajt) * NASOBEK; }

    std::uint32_t hodnota_ = ZACATEK;
};

}  // namespace

bool Proved(Dialog& dialog, const Volani& v) {
    using enum Volani::Druh;
    switch (v.Co) {
        case Nastroj:
            dialog.StiskNastroje(v.Cislo);
            break;
        case Radek:
            dialog.VyberRadku(v.Cislo);
            break;
        case ZavritSeznam:
            dialog.ZavriSeznam();
            break;
        case Napsani:
            dialog.Napis(v.Cislo, v.Text);
            break;
        case Stisk:
            dialog.StiskPlochy(v.X, v.Y);
            break;
        case Pusteni:
            dialog.PusteniPlochy(v.X, v.Y);
            break;
        case Nacrt:
            return dialog.StiskNacrtu(v.X, v.Y);
        case Posunuti:
            dialog.Posun(v.O.X, v.O.Y);
            break;
        case Kontrola:
            dialog.Zkontroluj();
            break;
    }
    return true;
}

std::vector<ChybnyKrok> NoveChyby(const Misc& misc, int dosud) {
    std::vector<ChybnyKrok> chyby;
    for (int i = dosud + 1; i <= misc.PocetChybnychKroku; ++i) chyby.push_back(misc.ChybneKroky[i]);
    return chyby;
}

HranyPriklad::Vysledek KonecPrikladu(const Dialog& dialog) {
    const bool hotova = dialog.Hotova();
    return {.Bodu = BoduPrikladu(dialog.Pamet(), hotova), .Hotova = hotova};
}

std::uint32_t OtiskTabulek(const Misc& misc, const Dialog& dialog) {
    Otisk o;
    o.Pridej(misc.PocetUtvaru);
    for (int i = 1; i <= misc.PocetUtvaru; ++i) {
        const Utvar& u = misc.Utvary[i];
        for (const std::string* s : {&u.Druh, &u.Jmeno1, &u.Jmeno2, &u.Jmeno3, &u.NaPrimce})
            o.Pridej(*s);
        for (const int n : {u.X1, u.Y1, u.X2, u.Y2, u.X3, u.Y3}) o.Pridej(n);
    }
    o.Pridej(misc.PocetTrojic);
    for (int i = 1; i <= misc.PocetTrojic; ++i) {
        const Trojice& t = misc.Trojice_tab[i];
        for (const std::string* s : {&t.Jmeno1, &t.Jmeno2, &t.Jmeno3}) o.Pridej(*s);
        for (const int n : {t.X1, t.Y1, t.X2, t.Y2, t.X3, t.Y3}) o.Pridej(n);
    }
    for (int i = 1; i <= decltype(Misc::ZadanePrvky)::POSLEDNI; ++i) {
        const ZadanyPrvek& z = misc.ZadanePrvky[i];
        o.Pridej(z.Faze);
        o.Pridej(z.Utvar);
        o.Pridej(z.Prvek);
    }
    o.Pridej(static_cast<int>(dialog.ZnackyNacrtu()));
    o.Pridej(dialog.Hotova() ? 1 : 0);
    return o.Hodnota();
}

}  // namespace rysovna
