#include "platform/Misto.h"

namespace rysovna {

bool Dosazitelny(const Ovladac* o) {
    for (; o != nullptr; o = o->Rodic) {
        if (!o->Visible || !o->Enabled) return false;
    }
    return true;
}

Obdelnik MistoFormu(const Form& f) {
    return {f.Maximised ? 0 : f.Left, f.Maximised ? 0 : f.Top, f.Width, f.Height};
}

void Poloz(Ovladac& o, const Obdelnik& kam) {
    o.Left = kam.Left;
    o.Top = kam.Top;
    o.Width = kam.Width;
    o.Height = kam.Height;
}

Bod Roh(const Ovladac* o) {
    Bod roh;
    for (; o != nullptr; o = o->Rodic) {
        roh.X += o->Left;
        roh.Y += o->Top;
    }
    return roh;
}

Obdelnik MistoNaFormu(const Ovladac& o) {
    const Bod roh = Roh(&o);
    return {roh.X, roh.Y, o.Width, o.Height};
}

Obdelnik MistoNaNavrhu(const Form& f, const Ovladac& o) {
    const Obdelnik form = MistoFormu(f);
    const Obdelnik misto = MistoNaFormu(o);
    return {form.Left + misto.Left, form.Top + misto.Top, misto.Width, misto.Height};
}

}  // namespace rysovna
