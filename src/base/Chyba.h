#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace rysovna {

/// A run-time fault: a table overrun, a number out of its type, a file that went missing, a
/// division by zero. The checked primitives throw it. In the game that is played nobody but main
/// catches it, since nobody knows what its tables are worth by then: a message box, the screen mode
/// restored, exit status 1.
///
/// It may be caught where that game is not touched: by who looks files over, whose finding it is;
/// by who plays an attempt again, in a session apart, and says how far it went; by what stores
/// results and attempts or shows a table of them, for which no file ends the game. What a disk
/// cannot do is another matter: ChybaDisku.
class BehovaChyba : public std::runtime_error {
public:
    /// co: what went wrong, in Czech, as the user reads it. kde: the place, "file:line" of a data
    /// file or of the code.
    BehovaChyba(const std::string& co, std::string kde)
        : std::runtime_error(co + " (" + kde + ")"), kde_(std::move(kde)) {}

    /// The place alone.
    [[nodiscard]] const std::string& Kde() const { return kde_; }

private:
    std::string kde_;
};

/// A place of the code: as a default argument, that of the caller. A value, unlike what the library
/// has for it, which leaves a writable record behind for each place.
struct MistoKodu {
    const char* Soubor;
    int Radek;
    static constexpr MistoKodu Tady(const char* soubor = __builtin_FILE(),
                                    int radek = __builtin_LINE()) {
        return {soubor, radek};
    }
};

/// Throws a fault whose place is the caller's line of code.
[[noreturn]] void Selhani(std::string_view co, MistoKodu kde = MistoKodu::Tady());

}  // namespace rysovna
