#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "screens/DeskaCtyruhelniku.h"
#include "screens/DeskaForm.h"

namespace rysovna {

/// The board of the triangle by SSS, SUS and USU (tasks 1 to 3).
class Troj1Form final : public DeskaForm {
public:
    using DeskaForm::DeskaForm;
    [[nodiscard]] std::string_view Jmeno() const override { return "Troj1Form"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
    [[nodiscard]] std::span<const int> Tvary() const override;
};

/// The board of the triangle by a height or a median (tasks 4 to 8).
class Troj2Form final : public DeskaForm {
public:
    using DeskaForm::DeskaForm;
    [[nodiscard]] std::string_view Jmeno() const override { return "Troj2Form"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
    [[nodiscard]] std::span<const int> Tvary() const override;
};

/// The board of the general quadrilateral (task 9).
class CtyrUForm final : public DeskaCtyruhelniku {
public:
    using DeskaCtyruhelniku::DeskaCtyruhelniku;
    [[nodiscard]] std::string_view Jmeno() const override { return "CtyrUForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
};

/// The board of the trapezoid (task 11).
class LichoForm final : public DeskaCtyruhelniku {
public:
    using DeskaCtyruhelniku::DeskaCtyruhelniku;
    [[nodiscard]] std::string_view Jmeno() const override { return "LichoForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
};

/// The board of the parallelogram (task 10).
class RovnoForm final : public DeskaCtyruhelniku {
public:
    using DeskaCtyruhelniku::DeskaCtyruhelniku;
    [[nodiscard]] std::string_view Jmeno() const override { return "RovnoForm"; }

protected:
    [[nodiscard]] std::unique_ptr<Dialog> VyrobDialog(Platna platna) override;
    [[nodiscard]] std::span<const int> Tvary() const override;
};

}  // namespace rysovna
