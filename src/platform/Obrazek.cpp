#include "platform/Obrazek.h"

#include <algorithm>
#include <cairo.h>
#include <map>

#include "base/Chyba.h"
#include "platform/Host.h"
#include "platform/ObrazekData.h"

namespace rysovna {

namespace {

/// The large twin that stands beside a bitmap; empty where none can be read.
Bitmapa NactiDvojce(std::filesystem::path cesta) {
    cesta.replace_extension(".png");
    cairo_surface_t* png = cairo_image_surface_create_from_png(cesta.c_str());
    Bitmapa dvojce;
    const auto format = cairo_image_surface_get_format(png);
    if (cairo_surface_status(png) == CAIRO_STATUS_SUCCESS &&
        (format == CAIRO_FORMAT_RGB24 || format == CAIRO_FORMAT_ARGB32)) {
        dvojce =
            Bitmapa(cairo_image_surface_get_width(png), cairo_image_surface_get_height(png), 0);
        const unsigned char* data = cairo_image_surface_get_data(png);
        for (int y = 0; y < dvojce.Vyska; ++y) {
            const auto* radka = reinterpret_cast<const Pixel*>(
                data + static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(png));
            std::transform(radka, radka + dvojce.Sirka, dvojce.Pohled().Radka(y),
                           [](Pixel p) { return p | 0xFF000000u; });
        }
    }
    cairo_surface_destroy(png);
    return dvojce;
}

/// Pictures that somebody still shows, by their real paths.
std::map<std::filesystem::path, std::weak_ptr<DataObrazku>>& Nactene() {
    static std::map<std::filesystem::path, std::weak_ptr<DataObrazku>> nactene;
    return nactene;
}

}  // namespace

const Bitmapa& DataObrazku::VeVelikosti(double s) {
    if (s == 1 || Logicka.Prazdna()) return Logicka;
    if (meritko_ != s) {
        const Bitmapa dvojce = Cesta.empty() ? Bitmapa() : NactiDvojce(Cesta);
        zvetsena_ = Preskaluj(dvojce.Prazdna() ? Logicka : dvojce, Zvetsi(Logicka.Sirka, s),
                              Zvetsi(Logicka.Vyska, s), MaKlic);
        meritko_ = s;
    }
    return zvetsena_;
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
    if (auto data = nacteny.lock()) return Obrazek(data);
    auto data = std::make_shared<DataObrazku>();
    data->Cesta = soubor;
    data->Logicka = NactiBmp(soubor);
    data->MaKlic = std::find(data->Logicka.Body.begin(), data->Logicka.Body.end(), KLIC) !=
                   data->Logicka.Body.end();
    nacteny = data;
    return Obrazek(data);
}

}  // namespace rysovna
