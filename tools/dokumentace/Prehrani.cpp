#include "dokumentace/Prehrani.h"

#include <filesystem>

#include "base/Chyba.h"
#include "hrac/RukaNaDesce.h"
#include "screens/PrehravaniForm.h"
#include "screens/Start.h"
#include "store/JmenaSouboru.h"
#include "zak/Sestroj.h"

namespace rysovna::dokumentace {

namespace {

using hrac::Relace;
using hrac::RukaNaDesce;

constexpr int ULOHA = 2, PRIKLADU = 2;
constexpr std::uint32_t SEMINKO = 7;
constexpr double MERITKO = 1.5;

/// Draws the third object too large.
class NepresnaRuka final : public RukaNaDesce {
public:
    using RukaNaDesce::RukaNaDesce;

protected:
    void TahPoPlose(Bod odkud, Bod kam) override {
        constexpr int KTERY = 3, NAVIC = 25;  // px
        constexpr std::uint32_t NEZ_ZACNE = 1500;
        Hra().Cekej(NEZ_ZACNE);
        RukaNaDesce::TahPoPlose(odkud, ++tahu_ == KTERY ? Bod{kam.X + NAVIC, kam.Y} : kam);
    }

private:
    int tahu_ = 0;
};

}  // namespace

void VyfotPrehrani(const std::string& soubor) {
    Relace hra(SEMINKO);
    hra.Host().Cas = {2026, 9, 14, 8, 20};
    hra.Start();
    hra.SpustUlohu(ULOHA, "Žofie Řeřichová", PRIKLADU);
    NepresnaRuka ruka(hra);
    Sestroj(ruka, SEMINKO);
    ruka.Zkontroluj();
    hra.Stiskni("picPokracuj");
    constexpr std::uint32_t NEZ_JE_ZADANI = 1600, PO_NAVRATU = 600;
    hra.Cekej(NEZ_JE_ZADANI);
    RukaNaDesce presna(hra);
    Sestroj(presna, SEMINKO);
    presna.Zkontroluj();
    hra.Stiskni("PicTop", 4);
    hra.Cekej(PO_NAVRATU);

    Relace divak(SEMINKO);
    const auto slozka = hra.DataDir() / SLOZKA_POKUSU;
    const std::filesystem::path pokus = std::filesystem::directory_iterator(slozka)->path();
    if (const std::string proc = ZacniPrehravani(divak.Pamet(), pokus); !proc.empty())
        throw BehovaChyba(proc, pokus.string());
    const auto& form = static_cast<PrehravaniForm&>(*divak.Najdi("PrehravaniForm"));
    while (!form.PicKarta.Visible && !form.Co().NaKonci()) divak.Klavesa("Right");
    divak.Host().Snimek(soubor, MERITKO);
}

}  // namespace rysovna::dokumentace
