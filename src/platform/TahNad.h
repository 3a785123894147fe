#pragma once

#include <cairo.h>

#include "platform/DisplayList.h"
#include "platform/MalirObjektu.h"

namespace rysovna {

/// Strokes over what stands below: lines and circles lie in no bitmap.
class Tah {
public:
    Tah(const Kresba& k, Barva barva, int sirka) : barva_(barva) {
        plocha_ = cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(k.Cil.Body),
                                                      CAIRO_FORMAT_RGB24, k.Cil.Sirka, k.Cil.Vyska,
                                                      k.Cil.Krok * static_cast<int>(sizeof(Pixel)));
        cairo_ = cairo_create(plocha_);
        cairo_rectangle(cairo_, k.Orez.Left, k.Orez.Top, k.Orez.Width, k.Orez.Height);
        cairo_clip(cairo_);
        cairo_set_line_width(cairo_, SirkaPera(sirka, k.S));
        cairo_set_line_cap(cairo_, CAIRO_LINE_CAP_ROUND);
    }
    ~Tah() {
        Zvol(barva_);
        cairo_stroke(cairo_);
        cairo_destroy(cairo_);
        cairo_surface_destroy(plocha_);
    }
    Tah(const Tah&) = delete;
    Tah& operator=(const Tah&) = delete;
    [[nodiscard]] cairo_t* Kde() const { return cairo_; }
    /// Fills the path so far; its stroke comes over that.
    void Vyplnit(Barva barva) const {
        Zvol(barva);
        cairo_fill_preserve(cairo_);
    }

private:
    void Zvol(Barva barva) const {
        const Pixel p = DoPixelu(barva);
        const auto kanal = [p](unsigned posun) { return ((p >> posun) & 0xFFu) / 255.0; };
        cairo_set_source_rgb(cairo_, kanal(16), kanal(8), kanal(0));
    }

    cairo_surface_t* plocha_;
    cairo_t* cairo_;
    Barva barva_;
};

}  // namespace rysovna
