// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/parameter_derivatives.h"

#include "thermo/cubic_equation.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

// The temperature function of the Vo / Halme rows, in theta = Tr^0.75.
void VoHalmeAttraction(const SubstanceModel& model, double T, ParameterSlopes& s) {
    const VoHalmeParameters& vh = model.voHalme;
    const double Tc = model.substance.Tc;
    const double Tr = T / Tc;
    const double theta = std::pow(Tr, 0.75);
    const double u = 1 - theta;
    const double root = std::sqrt(Tr);
    double g = 0, P = 0, Q = 0;
    if (T > Tc) {
        const double f = 1 + vh.m1 * u;
        g = -1.5 * vh.m1 * f;
        P = 0.375 * vh.m1 * f;
        Q = 1.125 * vh.m1 * vh.m1 / root;
    } else {
        const double f = 1 + vh.m1 * u + (vh.m2 + vh.m3 * u) * u * (0.76528558 - theta);
        const double G = (2.53057116 - 3 * theta) * vh.m3 * u + (1.76528558 - 2 * theta) * vh.m2 + vh.m1;
        g = -1.5 * G * f;
        P = 0.375 * G * f;
        Q = 1.125 * (G * G + f * ((5.53057116 - 6 * theta) * vh.m3 + 2 * vh.m2)) / root;
    }
    s.dA = vh.ac * (g / std::pow(Tr, 0.25)) / Tc;
    s.d2A = vh.ac * (P / std::pow(Tr, 1.25) + Q) / (Tc * Tc);
}

// The co-volumes of the second Vo / Halme row shrink away from T(cr).
void VoHalmeVolumes(const SubstanceModel& model, double T, ParameterSlopes& s) {
    const VoHalmeParameters& vh = model.voHalme;
    const double Tc = model.substance.Tc;
    const double b = vh.OmegaB * gasConstant * Tc / model.substance.pc;
    const double w = std::sqrt(vh.s * vh.s + 4 * vh.s);
    const double slope = 2 * vh.k * (1 - T / Tc) / Tc;
    const double curvature = -2 * vh.k / (Tc * Tc);
    s.dB = b * slope;
    s.d2B = b * curvature;
    s.dC = 0.5 * (vh.s - w) * b * slope;
    s.d2C = 0.5 * (vh.s - w) * b * curvature;
    s.dD = 0.5 * (vh.s + w) * b * slope;
    s.d2D = 0.5 * (vh.s + w) * b * curvature;
}

VirialSlopes PitzerCurlSlopes(const SubstanceData& substance, double T, double B) {
    const double Tr = T / substance.Tc;
    const double Tr2 = Tr * Tr;
    const double Tr3 = Tr2 * Tr;
    const double Tr8 = Tr3 * Tr3 * Tr2;
    const double G0 = 0.33 / Tr + 0.277 / Tr2 + 0.0363 / Tr3;
    const double H0 = 0.66 / Tr + 0.831 / Tr2 + 0.1452 / Tr3;
    const double G1 = -0.46 / Tr + 1 / Tr2 + 0.291 / Tr3 + 0.0584 / Tr8;
    const double H1 = -0.92 / Tr + 3 / Tr2 + 1.164 / Tr3 + 0.5256 / Tr8;
    const double scale = gasConstant / Tr / substance.pc;
    return {B, (G0 + substance.omega * G1) * scale, -(scale / T) * (H0 + substance.omega * H1)};
}

// B = b0 - b1 / T^b2, entered by hand.
VirialSlopes HandSlopes(const EosParameters& eos, double T, double B) {
    const double b1 = eos.nB;
    const double b2 = eos.nF;
    return {B, b1 * b2 / std::pow(T, b2 + 1), -b1 * b2 * (b2 + 1) / std::pow(T, b2 + 2)};
}

} // namespace

ParameterSlopes slopes::VoHalme(const SubstanceModel& model, double T) {
    ParameterSlopes s;
    VoHalmeAttraction(model, T, s);
    if (model.selection.eos == eosVoHalme2)
        VoHalmeVolumes(model, T, s);
    return s;
}

VirialSlopes VirialDerivatives(SubstanceModel& model, double T) {
    const std::int16_t row = model.selection.eos;
    const double B = VirialCoefficientB(model, row, T);
    model.work.BVirial = B;
    if (row == eosIdealGas)
        return {};
    if (row == virialPitzerCurl)
        return PitzerCurlSlopes(model.substance, T, B);
    if (row == virialByHand)
        return HandSlopes(model.eos, T, B);
    const EosParameters& eos = model.eos;
    const ParameterSlopes s = ParameterDerivatives(model, T);
    const double RT = gasConstant * T;
    return {B, (eos.A / T - s.dA) / RT + s.dB, s.d2B - (2 * (eos.A / T - s.dA) + T * s.d2A) / RT / T};
}

} // namespace orva
