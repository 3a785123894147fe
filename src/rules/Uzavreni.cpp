#include "rules/Uzavreni.h"

#include <string_view>

#include "engine/Miry.h"
#include "engine/Resitele.h"

namespace rysovna {

namespace {

bool JeKruznice(const Utvar& u) {
    return u.Druh == KRUZNICE;
}
bool JePaprsek(const Utvar& u) {
    return u.Druh == POLOPRIMKA;
}

bool JePrimy(const Utvar& u) {
    const bool druh = JePaprsek(u) || u.Druh == PRIMKA || u.Druh == KOLMICE || u.Druh == ROVNOBEZKA;
    return druh && !(u.X1 == u.X2 && u.Y1 == u.Y2);
}

Bod Prvni(const Utvar& u) {
    return {u.X1, u.Y1};
}
Bod Druhy(const Utvar& u) {
    return {u.X2, u.Y2};
}

bool PredZacatkem(const Utvar& paprsek, Bod s) {
    const double dx = paprsek.X2 - paprsek.X1;
    const double dy = paprsek.Y2 - paprsek.Y1;
    return (s.X - paprsek.X1) * dx + (s.Y - paprsek.Y1) * dy > 0;
}

Pruseciky PaprsekAKruznice(const Utvar& p, const Utvar& k) {
    Pruseciky vse;
    PrunikPrimkyKruznice(Prvni(k), k.Polomer, Prvni(p), Druhy(p), Prvni(p), Druhy(p), vse.P1,
                         vse.P2);
    Pruseciky v = vse;
    FiltrPaprsku(Prvni(p), Druhy(p), v.P1, v.P2);
    if (v.P1 == BEZ_BODU && v.P2 == BEZ_BODU && !(vse.P1 == BEZ_BODU)) {
        if (PredZacatkem(p, vse.P1)) {
            v.P1 = vse.P1;
        } else if (PredZacatkem(p, vse.P2)) {
            v.P1 = vse.P2;
        }
    }
    return v;
}

}  // namespace

Bod PrusecikPrimek(const Utvar& a, const Utvar& b) {
    Bod p = BEZ_BODU;
    Bod zadny;
    PrunikPrimek(Prvni(a), Druhy(a), Prvni(b), Druhy(b), p, zadny);
    // It may stand straight above both first points. Of two lines that meet no more than one is
    // upright, so one of them has its second point elsewhere.
    if (p == BEZ_BODU) PrunikPrimek(Prvni(a), Druhy(a), Druhy(b), Prvni(b), p, zadny);
    if (p == BEZ_BODU) PrunikPrimek(Druhy(a), Prvni(a), Prvni(b), Druhy(b), p, zadny);
    return p;
}

bool JePred(const Utvar& utvar, Bod s) {
    return !JePaprsek(utvar) || PredZacatkem(utvar, s);
}

Pruseciky PrusecikyUtvaru(const Plane& plocha, const Utvar& prvni, const Utvar& druhy) {
    if (JeKruznice(druhy) && !JeKruznice(prvni)) return PrusecikyUtvaru(plocha, druhy, prvni);
    Pruseciky v;
    if (JeKruznice(prvni) && JeKruznice(druhy)) {
        PrunikKruznic(plocha, Prvni(prvni), prvni.Polomer, Prvni(druhy), druhy.Polomer, v.P1, v.P2);
    } else if (JeKruznice(prvni) && JePaprsek(druhy) && JePrimy(druhy)) {
        v = PaprsekAKruznice(druhy, prvni);
    } else if (JeKruznice(prvni) && JePrimy(druhy)) {
        PrunikPrimkyKruzniceVPlose(plocha, Prvni(prvni), prvni.Polomer, Prvni(druhy), Druhy(druhy),
                                   Prvni(druhy), Druhy(druhy), v.P1, v.P2);
    } else if (JePrimy(prvni) && JePrimy(druhy) && !(Prvni(prvni) == Prvni(druhy))) {
        v.P1 = PrusecikPrimek(prvni, druhy);
    }
    return v;
}

Bod VyberVrchol(const Utvar& strana, const Pruseciky& body) {
    if (body.P2 == BEZ_BODU) return body.P1;
    const bool odDruheho = strana.Jmeno1 == "A" && strana.Jmeno2 == "C";
    const Bod pocatek = odDruheho ? Druhy(strana) : Prvni(strana);
    double smer = static_cast<double>(strana.Smer) + (odDruheho ? PI : 0.0);
    if (smer >= DVE_PI) smer -= DVE_PI;
    double rozdil = (static_cast<double>(Smer(pocatek, body.P1, 0)) - smer) * STUPNU_PULOTACKY / PI;
    if (rozdil < 0) rozdil += 360;
    return rozdil < 180 ? body.P1 : body.P2;
}

}  // namespace rysovna
