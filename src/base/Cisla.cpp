#include "base/Cisla.h"

#include <cmath>
#include <cstdio>
#include <limits>

#include "base/Chyba.h"

namespace rysovna {

namespace {

/// Throws unless the value, already whole, fits a signed 32-bit number.
int DoCelehoCisla(double cele, MistoKodu kde) {
    if (!(cele >= static_cast<double>(std::numeric_limits<int>::min()) &&
          cele <= static_cast<double>(std::numeric_limits<int>::max()))) {
        Selhani("Přetečení čísla", kde);
    }
    return static_cast<int>(cele);
}

/// Ties to even whatever rounding mode the process has.
double KSudemu(double x) {
    const double dole = std::floor(x);
    const double zbytek = x - dole;
    if (zbytek < 0.5) return dole;
    if (zbytek > 0.5) return dole + 1;
    return std::fmod(dole, 2.0) == 0.0 ? dole : dole + 1;
}

std::string Tisk(const char* format, double x) {
    char text[400];
    const int n = std::snprintf(text, sizeof text, format, x);
    return std::string(text, static_cast<std::size_t>(n));
}

}  // namespace

int Zaokrouhli(double x, MistoKodu kde) {
    return DoCelehoCisla(KSudemu(x), kde);
}

int Podlaha(double x, MistoKodu kde) {
    return DoCelehoCisla(std::floor(x), kde);
}

std::uint8_t Bajt(double x, MistoKodu kde) {
    const int cele = Zaokrouhli(x, kde);
    if (cele < 0 || cele > 255) Selhani("Číslo mimo rozsah 0 až 255", kde);
    return static_cast<std::uint8_t>(cele);
}

double Cislo(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t')) ++i;
    bool zaporne = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) zaporne = text[i++] == '-';
    double hodnota = 0;
    double rad = 1;
    bool zaTeckou = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '.' && !zaTeckou) {
            zaTeckou = true;
        } else if (c >= '0' && c <= '9') {
            hodnota = hodnota * 10 + (c - '0');
            if (zaTeckou) rad *= 10;
        } else {
            break;
        }
    }
    hodnota /= rad;
    if (!std::isfinite(hodnota)) return 0;
    return zaporne ? -hodnota : hodnota;
}

std::string TextCisla(int cislo) {
    return (cislo < 0 ? "" : " ") + std::to_string(cislo);
}

std::string TextBezMezery(int cislo) {
    return std::to_string(cislo);
}

std::string FormatCele(double x) {
    const double cele = std::round(x);
    return Tisk("%.0f", cele == 0 ? 0.0 : cele);
}

std::string FormatCesky(double x) {
    std::string text = Tisk("%.2f", x);
    text.erase(text.find_last_not_of('0') + 1);
    const std::size_t tecka = text.find('.');
    if (tecka + 1 == text.size()) {
        text.pop_back();
    } else {
        text[tecka] = ',';
    }
    return text == "-0" ? "0" : text;
}

std::string FormatPetMist(double x) {
    std::string text = Tisk("%.5f", x);
    const bool minus = text.front() == '-';
    if (text.compare(minus ? 1 : 0, 2, "0.") == 0) text.erase(minus ? 1 : 0, 1);
    return text == "-.00000" ? ".00000" : text;
}

std::string Sestnactkove(std::uint64_t cislo) {
    std::string text(16, '0');
    for (std::size_t i = text.size(); i-- > 0; cislo >>= 4)
        text[i] = "0123456789abcdef"[cislo & 15];
    return text;
}

std::string DveCislice(int cislo) {
    const std::string text = std::to_string(cislo);
    return text.size() < 2 ? "0" + text : text;
}

}  // namespace rysovna
