#include "sit/Obrazy.h"

#include <algorithm>
#include <cairo.h>
#include <cstring>
#include <stdexcept>

namespace rysovna::sit {
namespace {

constexpr std::uint32_t BARVY = 0xFFFFFF, CERVENA = 0xFF0000;

void Over(cairo_status_t stav, const std::string& soubor) {
    if (stav != CAIRO_STATUS_SUCCESS) {
        throw std::runtime_error(soubor + ": " + cairo_status_to_string(stav));
    }
}

std::uint32_t BledeSeda(std::uint32_t bod) {
    const std::uint32_t jas = ((bod >> 16 & 0xFF) + (bod >> 8 & 0xFF) + (bod & 0xFF)) / 3;
    return (160 + jas / 3) * 0x010101;
}

}  // namespace

void UlozPng(const Obraz& obraz, const std::string& soubor) {
    std::vector<std::uint32_t> body = obraz.Body;
    cairo_surface_t* png = cairo_image_surface_create_for_data(
        reinterpret_cast<unsigned char*>(body.data()), CAIRO_FORMAT_RGB24, obraz.Sirka, obraz.Vyska,
        obraz.Sirka * static_cast<int>(sizeof(std::uint32_t)));
    const cairo_status_t stav = cairo_surface_write_to_png(png, soubor.c_str());
    cairo_surface_destroy(png);
    Over(stav, soubor);
}

Obraz NactiPng(const std::string& soubor) {
    cairo_surface_t* png = cairo_image_surface_create_from_png(soubor.c_str());
    Over(cairo_surface_status(png), soubor);
    Obraz obraz(cairo_image_surface_get_width(png), cairo_image_surface_get_height(png));
    const auto krok = static_cast<std::size_t>(cairo_image_surface_get_stride(png));
    const auto sirka = static_cast<std::size_t>(obraz.Sirka);
    for (std::size_t y = 0; y < static_cast<std::size_t>(obraz.Vyska); ++y) {
        std::memcpy(obraz.Body.data() + y * sirka, cairo_image_surface_get_data(png) + y * krok,
                    sirka * sizeof(std::uint32_t));
    }
    cairo_surface_destroy(png);
    return obraz;
}

int Rozdil(const Obraz& a, const Obraz& b, Obraz& kam) {
    kam = Obraz(std::max(a.Sirka, b.Sirka), std::max(a.Vyska, b.Vyska));
    int lisiSe = 0;
    std::size_t i = 0;
    for (int y = 0; y < kam.Vyska; ++y) {
        for (int x = 0; x < kam.Sirka; ++x, ++i) {
            const auto ma = [&](const Obraz& o) { return x < o.Sirka && y < o.Vyska; };
            const bool stejny = ma(a) && ma(b) && ((a.Radka(y)[x] ^ b.Radka(y)[x]) & BARVY) == 0;
            kam.Body[i] = stejny ? BledeSeda(a.Radka(y)[x]) : CERVENA;
            if (!stejny) ++lisiSe;
        }
    }
    return lisiSe;
}

}  // namespace rysovna::sit
