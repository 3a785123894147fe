#pragma once

namespace rysovna {

/// Local date and time of day, as the log prints them.
struct DatumACas {
    int Rok = 2000, Mesic = 1, Den = 1, Hodina = 0, Minuta = 0;
    friend bool operator==(const DatumACas&, const DatumACas&) = default;
};

}  // namespace rysovna
