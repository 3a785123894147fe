#include "platform/Obrazek.h"

#include <algorithm>
#include <map>

#include "base/Chyba.h"
#include "base/Obdelniky.h"
#include "platform/Cesta.h"
#include "platform/ObrazekData.h"
#include "platform/bmp/Bmp.h"

namespace rysovna {

namespace {

/// Pictures that somebody still shows, by their real paths.
std::map<std::filesystem::path, std::weak_ptr<DataObrazku>>& Nactene() {
    static std::map<std::filesystem::path, std::weak_ptr<DataObrazku>> nactene;
    return nactene;
}

/// Whether there are no bitmap files, but shapes alone.
bool g_jenTvary = false;

/// How many whole paintings there were.
std::uint64_t g_malovani = 0;

bool ObsahujeKlic(const Bitmapa& b) {
    return std::find(b.Body.begin(), b.Body.end(), KLIC) != b.Body.end();
}

/// The shapes beside a bitmap file, if they were made with the very pixels that it has.
std::unique_ptr<Tvary> NajdiTvary(const std::filesystem::path& soubor, const HlavaBmp& hlava) {
    if (!hlava.Otisk) return nullptr;
    auto tvary = NactiTvary(SouborTvaru(soubor));
    if (tvary && (tvary->Otisk != *hlava.Otisk || tvary->Sirka != hlava.Sirka ||
                  tvary->Vyska != hlava.Vyska))
        tvary.reset();
    return tvary;
}

/// The 1:1 bitmap of a picture that has shapes alone: where less than half of a pixel is covered,
/// it is the key.
Bitmapa ZTvaru(const Tvary& tvary) {
    constexpr Pixel CELA = 0xFF000000U, PUL = 0x80000000U;
    Bitmapa b(tvary.Sirka, tvary.Vyska, 0);
    const Obdelnik vse{0, 0, tvary.Sirka, tvary.Vyska};
    KresliTvary(b.Pohled(), vse, vse, tvary);
    for (Pixel& p : b.Body) p = p < PUL ? KLIC : p | CELA;
    return b;
}

}  // namespace

DataObrazku::DataObrazku(Bitmapa logicka)
    : sirka_(logicka.Sirka),
      vyska_(logicka.Vyska),
      maKlic_(ObsahujeKlic(logicka)),
      logicka_(std::move(logicka)) {}

DataObrazku::DataObrazku(std::filesystem::path soubor) : soubor_(std::move(soubor)) {
    if (g_jenTvary) {
        tvary_ = NactiTvary(SouborTvaru(soubor_));
        if (!tvary_) throw BehovaChyba("Nelze otevřít obrázek", soubor_.string());
        sirka_ = tvary_->Sirka;
        vyska_ = tvary_->Vyska;
        maKlic_ = tvary_->MaKlic;
        return;
    }
    const HlavaBmp hlava = NactiHlavuBmp(soubor_);
    sirka_ = hlava.Sirka;
    vyska_ = hlava.Vyska;
    tvary_ = NajdiTvary(soubor_, hlava);
    maKlic_ = tvary_ ? tvary_->MaKlic : ObsahujeKlic(Logicka());
}

const Bitmapa& DataObrazku::Logicka() {
    if (logicka_.Prazdna() && !soubor_.empty())
        logicka_ = g_jenTvary ? ZTvaru(*tvary_) : NactiBmp(soubor_);
    return logicka_;
}

const Bitmapa& DataObrazku::VeVelikosti(double s) {
    if (s == 1) return Logicka();
    videna_ = g_malovani;
    if (meritko_ == s) return zvetsena_;
    const int sirka = std::max(Zvetsi(sirka_, s), 1);
    const int vyska = std::max(Zvetsi(vyska_, s), 1);
    if (tvary_) {
        // In the place of another size.
        zvetsena_.Sirka = sirka;
        zvetsena_.Vyska = vyska;
        zvetsena_.Body.resize(static_cast<std::size_t>(sirka) * static_cast<std::size_t>(vyska));
        const Obdelnik vse{0, 0, sirka, vyska};
        KresliTvary(zvetsena_.Pohled(), vse, vse, *tvary_);
    } else {
        zvetsena_ = {};
        zvetsena_ = Preskaluj(Logicka().KeCteni(), sirka, vyska, maKlic_);
    }
    meritko_ = s;
    return zvetsena_;
}

void PolozObrazek(const Vyhled& cil, const Obdelnik& kam, const Obdelnik& orez,
                  const Obrazek& obrazek, double s, bool pruhledne) {
    if (obrazek.Prazdny()) return;
    const Obdelnik& vyrez = obrazek.Vyrez();
    DataObrazku& data = *obrazek.Data();
    const int zx = Zvetsi(vyrez.Left, s);
    const int zy = Zvetsi(vyrez.Top, s);
    if (const Tvary* tvary = s == 1 ? nullptr : data.PrimeTvary()) {
        // By rounding, the place may be a pixel smaller than the enlarged picture: a whole one is
        // fitted into it, or its last edge would be cut. Of a part, the whole is laid around; it
        // may end a pixel beyond it.
        const bool vse = vyrez == Obdelnik{0, 0, data.Sirka(), data.Vyska()};
        const Obdelnik cely = vse ? kam
                                  : Obdelnik{kam.Left - zx, kam.Top - zy,
                                             std::max(Zvetsi(data.Sirka(), s), zx + kam.Width),
                                             std::max(Zvetsi(data.Vyska(), s), zy + kam.Height)};
        KresliTvary(cil, cely, Prunik(kam, orez), *tvary);
        return;
    }
    Prenes(cil, kam, orez, data.VeVelikosti(s), zx, zy,
           data.MaKlic() && pruhledne ? Prenos::BezKlice : Prenos::Kopie);
}

std::filesystem::path SouborTvaru(std::filesystem::path soubor) {
    return soubor.replace_extension(PRIPONA_TVARU);
}

void PouzijJenTvary() {
    g_jenTvary = true;
}

bool JsouJenTvary() {
    return g_jenTvary;
}

void ZacniMalovat() {
    ++g_malovani;
}

void ZahodNevidene() {
    for (const auto& [cesta, drzeny] : Nactene()) {
        const auto data = drzeny.lock();
        if (!data || data->videna_ == g_malovani) continue;
        data->zvetsena_ = {};
        data->meritko_ = 0;
    }
}

Bitmapa NactiBmp(const std::filesystem::path& soubor) {
    ObrazBmp obraz = NactiObrazBmp(soubor);
    Bitmapa b;
    b.Sirka = obraz.Sirka;
    b.Vyska = obraz.Vyska;
    b.Body = std::move(obraz.Body);
    return b;
}

Obrazek::Obrazek(std::shared_ptr<DataObrazku> data) : data_(std::move(data)) {
    if (data_) vyrez_ = {0, 0, data_->Sirka(), data_->Vyska()};
}

Obrazek Obrazek::Bunka(int i, int pocet) const {
    if (!data_) return *this;
    if (pocet < 1 || i < 0 || i >= pocet)
        Selhani("Políčko obrázkového pásu mimo meze: " + std::to_string(i));
    Obrazek bunka = *this;
    bunka.vyrez_.Width = vyrez_.Width / pocet;
    bunka.vyrez_.Left += i * bunka.vyrez_.Width;
    return bunka;
}

Obrazek LoadPicture(std::string_view cesta) {
    const std::filesystem::path soubor = NativniCesta(cesta);
    std::weak_ptr<DataObrazku>& nacteny = Nactene()[soubor];
    if (auto data = nacteny.lock()) return Obrazek(data);
    auto data = std::make_shared<DataObrazku>(soubor);
    nacteny = data;
    return Obrazek(data);
}

}  // namespace rysovna
