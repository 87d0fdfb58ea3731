// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/cubic_equation.h"

#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr double voHalmeInflection = 0.76528558; // zero of the fourth term of the temperature function

} // namespace

// Vo / Halme: A from the temperature function, B, C, D from the critical point; the second row lets them
// shrink away from the critical temperature.
void cubic::SetVoHalmeCoefficients(SubstanceModel& model, double T) {
    const double Tc = model.substance.Tc;
    const VoHalmeParameters& vh = model.voHalme;
    EosParameters& eos = model.eos;
    const double theta = std::pow(T / Tc, 0.75);
    const double u = 1 - theta;
    double f = 1 + vh.m1 * u;
    if (T <= Tc)
        f += (vh.m2 + vh.m3 * u) * u * (voHalmeInflection - theta);
    eos.A = vh.ac * Square(f);

    const double b = vh.OmegaB * gasConstant * Tc / model.substance.pc;
    const double w = std::sqrt(vh.s * vh.s + 4 * vh.s);
    eos.B = b;
    eos.C = 0.5 * (vh.s - w) * b;
    eos.D = 0.5 * (vh.s + w) * b;
    if (model.selection.eos == eosVoHalme2) {
        const double shrink = 1 - vh.k * Square(1 - T / Tc);
        eos.B *= shrink;
        eos.C *= shrink;
        eos.D *= shrink;
    }
}

PressureResult EosPressure(SubstanceModel& model, double T, double v) {
    EosParameters& eos = model.eos;
    const bool virial = model.selection.nonCubic;
    if (virial)
        eos.B = VirialCoefficientB(model, model.selection.eos, T);
    // Kept on purpose: for a cubic row this is the co-volume of the evaluation before.
    if (v <= eos.B)
        return {0, true};
    double p = 0;
    if (virial) {
        p = gasConstant * T / (v - eos.B);
    } else {
        SetEosCoefficients(model, T);
        p = gasConstant * T / (v - eos.B) - (eos.A / (eos.C + v)) / (eos.D + v);
    }
    if (!std::isfinite(p))
        return {0, true};
    return {p, false};
}

} // namespace orva
