#include "platform/Obrazek.h"

#include <algorithm>
#include <cairo.h>
#include <map>

#include "base/Chyba.h"
#include "platform/Cesta.h"
#include "platform/Host.h"
#include "platform/ObrazekData.h"
#include "platform/bmp/Bmp.h"

namespace rysovna {

namespace {

/// The large twin that stands beside a bitmap, brought to the size; empty where none can be read.
Bitmapa ZDvojcete(std::filesystem::path cesta, int sirka, int vyska, bool sKlicem) {
    cesta.replace_extension(".png");
    cairo_surface_t* png = cairo_image_surface_create_from_png(cesta.c_str());
    Bitmapa obraz;
    const auto format = cairo_image_surface_get_format(png);
    if (cairo_surface_status(png) == CAIRO_STATUS_SUCCESS &&
        (format == CAIRO_FORMAT_RGB24 || format == CAIRO_FORMAT_ARGB32)) {
        obraz = Preskaluj({reinterpret_cast<const Pixel*>(cairo_image_surface_get_data(png)),
                           cairo_image_surface_get_width(png), cairo_image_surface_get_height(png),
                           cairo_image_surface_get_stride(png) / static_cast<int>(sizeof(Pixel))},
                          sirka, vyska, sKlicem);
    }
    cairo_surface_destroy(png);
    return obraz;
}

/// Pictures that somebody still shows, by their real paths.
std::map<std::filesystem::path, std::weak_ptr<DataObrazku>>& Nactene() {
    static std::map<std::filesystem::path, std::weak_ptr<DataObrazku>> nactene;
    return nactene;
}

double g_ocekavaneMeritko = 1;
/// Holds the picture that was asked for ahead until somebody takes it.
Obrazek g_prednacteny;

}  // namespace

const Bitmapa& DataObrazku::VeVelikosti(double s) {
    if (s == 1 || Logicka.Prazdna()) return Logicka;
    if (meritko_ != s) {
        const int sirka = Zvetsi(Logicka.Sirka, s);
        const int vyska = Zvetsi(Logicka.Vyska, s);
        // Let go first: both sizes at once would only cost memory.
        zvetsena_ = {};
        if (budouci_.valid() && budouciMeritko_ == s) {
            zvetsena_ = budouci_.get();
        } else if (!Cesta.empty()) {
            zvetsena_ = ZDvojcete(Cesta, sirka, vyska, MaKlic);
        }
        if (zvetsena_.Prazdna()) zvetsena_ = Preskaluj(Logicka.KeCteni(), sirka, vyska, MaKlic);
        meritko_ = s;
    }
    return zvetsena_;
}

void DataObrazku::PripravVelikost(double s) {
    if (s == 1 || meritko_ == s || budouci_.valid() || Cesta.empty()) return;
    budouciMeritko_ = s;
    budouci_ = std::async(std::launch::async, ZDvojcete, Cesta, Zvetsi(Logicka.Sirka, s),
                          Zvetsi(Logicka.Vyska, s), MaKlic);
}

void NastavOcekavaneMeritko(double s) {
    g_ocekavaneMeritko = s;
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
    if (data_) vyrez_ = {0, 0, data_->Logicka.Sirka, data_->Logicka.Vyska};
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
    if (auto data = nacteny.lock()) {
        if (g_prednacteny.Data() == data) g_prednacteny = Obrazek();
        return Obrazek(data);
    }
    auto data = std::make_shared<DataObrazku>();
    data->Cesta = soubor;
    data->Logicka = NactiBmp(soubor);
    data->MaKlic = std::find(data->Logicka.Body.begin(), data->Logicka.Body.end(), KLIC) !=
                   data->Logicka.Body.end();
    nacteny = data;
    return Obrazek(data);
}

void PrednactiObrazek(std::string_view cesta) {
    std::error_code chyba;
    if (!std::filesystem::is_regular_file(NativniCesta(cesta), chyba)) return;
    const Obrazek obrazek = LoadPicture(cesta);
    obrazek.Data()->PripravVelikost(g_ocekavaneMeritko);
    g_prednacteny = obrazek;
}

}  // namespace rysovna
