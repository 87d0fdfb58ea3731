// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/vapour_pressure.h"

#include <cmath>

#include "state/constants.h"

namespace orva {

namespace {

float FiniteSingle(double x) {
    const float single = static_cast<float>(x);
    return std::isfinite(single) ? single : 0.0F;
}

double Lg(double x) {
    return std::log(x) / ln10;
}

// Antoine constants through (Tb, 101.325 kPa) and (Tc, pc) with C after Thomson.
void CorrelateThompson(AntoineBlock& block, double Tc, double pc, double Tb) {
    const double C = (18 - 0.19 * Tb) + 273.15;
    const double t1 = C + Tc - 273.15;
    const double t2 = C + Tb - 273.15;
    const double B = -Lg(pc / normalPressure) / (1 / t1 - 1 / t2);
    const double A = Lg(pc) + B / t1;
    block.A = FiniteSingle(A);
    block.B = FiniteSingle(B);
    block.C = FiniteSingle(C);
}

// Frost/Kalkwarf constants from Tb, Tc, pc. `attraction` is the factor of the pressure term that belongs to
// the equation of state, `exponent` its power of T. All steps run in double; only what is stored becomes
// single.
void CorrelateFrostKalkwarf(FrostKalkwarfBlock& block, double Tc, double pc, double Tb, double attraction,
                            double exponent) {
    const double power = std::pow(Tc, exponent);
    const double E = attraction * power / pc;
    const double r = Tb / Tc;
    const double lnR = std::log(r) / ln10;
    const double k = Lg(normalPressure / pc) - 2.67 * lnR
                     - attraction * ((normalPressure / pc) / std::pow(r, exponent) - 1);
    const double n = (Tc / Tb - 1) + 1.8 * lnR;
    const double B = Tc * k / n;
    const double D = (1.8 / Tc) * B + 2.67;
    const double A = Lg(pc) - B / Tc - D * std::log(Tc) / ln10 - E * pc / power;
    block.c1 = FiniteSingle(A);
    block.c2 = FiniteSingle(B);
    block.c3 = 0;
    block.c4 = FiniteSingle(D);
    block.c5 = FiniteSingle(E);
    block.c6 = static_cast<float>(exponent);
    block.c7 = block.c8 = block.c9 = 0;
}

} // namespace

void CorrelateVapourPressure(SubstanceData& substance, int equation, float Tc, float pc, float Tb) {
    if (!(Tb >= missingValue && Tc >= missingValue))
        return;
    if (equation == vpThompson)
        CorrelateThompson(substance.thompson, Tc, pc, Tb);
    else if (equation == vpFrostKalkwarfRK)
        CorrelateFrostKalkwarf(substance.kfr, Tc, pc, Tb, 0.185652, 2.5);
    else if (equation == vpFrostKalkwarfVdW)
        CorrelateFrostKalkwarf(substance.kfw, Tc, pc, Tb, 0.183218, 2);
}

void CorrelateVapourPressure(SubstanceData& substance, int equation) {
    CorrelateVapourPressure(substance, equation, static_cast<float>(substance.Tc),
                            static_cast<float>(substance.pc), substance.Tb);
}

} // namespace orva
