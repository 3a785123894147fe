#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace rysovna::obrazky {

/// Sets text in boxes. A template may hold the element
///   <sazba x= y= sirka= vyska= pismo= radek= barva= tucne= zarovnani= svisle=>text</sazba>
/// with a box in px, the size of the letters and of a line in px, zarovnani vlevo (default), stred
/// or vpravo, svisle nahoru (default), stred or dolu. In the text each source line is a paragraph;
/// "*" switches bold and "_" italic, "~" lowers the next character as an index; "# " begins a
/// heading, "1. " (any digits) a step with a hanging indent; an empty line is half a line of space.
/// Lines break at blanks and behind hyphens. Text that does not fit into its box is a fault:
/// nothing is ever printed clipped.
class Sazba {
public:
    /// fonty: folder with the staged font files.
    explicit Sazba(const std::filesystem::path& fonty);
    ~Sazba();
    Sazba(Sazba&&) = delete;

    /// The drawing with every <sazba> element turned into <text> elements. kde: the picture's name
    /// for the message of a fault.
    [[nodiscard]] std::string Vysad(const std::string& svg, const std::string& kde) const;

private:
    struct Pisma;
    std::unique_ptr<Pisma> pisma_;
};

}  // namespace rysovna::obrazky
