#pragma once

#include "screens/DeskaForm.h"

namespace rysovna {

/// The frame of the quadrilateral boards: besides what all boards have, three rows in which the
/// values of the starting triangle are typed, and room for five given quantities.
class DeskaCtyruhelniku : public DeskaForm {
public:
    DeskaCtyruhelniku(Sezeni& s, const RadekDesky& deska);

    Label lblText5, lblText6, lblText7;  ///< names of the three values
    Label lblText8, lblText9;            ///< units of the second and third; lblText4 of the first
    TextBox txtVstup2, txtVstup3;        ///< second and third value; txtVstup is the first

    void Load() override;
    void Change(TextBox& t) override;

protected:
    [[nodiscard]] const TextBox& Pole(int ktery) const override {
        return ktery == 2 ? txtVstup2 : ktery == 3 ? txtVstup3 : txtVstup;
    }
    void UkazDalsi(const Panel& panel) override;
};

}  // namespace rysovna
