#pragma once

#include <filesystem>
#include <fstream>

namespace rysovna::prehled {

/// A file that is written beside its place and put there when it is whole: until then what stood
/// there stands. What cannot be done is a fault.
class NovySoubor {
public:
    explicit NovySoubor(std::filesystem::path kam);
    ~NovySoubor();
    NovySoubor(const NovySoubor&) = delete;
    NovySoubor& operator=(const NovySoubor&) = delete;

    [[nodiscard]] std::ostream& Proud() { return proud_; }
    void Dokonci();

private:
    [[noreturn]] void Selhal() const;

    std::filesystem::path kam_, vedle_;
    std::ofstream proud_;
};

}  // namespace rysovna::prehled
