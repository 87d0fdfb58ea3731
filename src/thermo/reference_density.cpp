// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/reference_density.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/density_correlations.h"
#include "thermo/phase_volumes.h"
#include "thermo/vapour_pressure.h"
#include "thermo/virial_equation.h"

namespace orva {

namespace {

constexpr float boilingPressure = 101.3F; // kPa

bool Given(double x) {
    return x > missingValue;
}

void LiquidAtBoilingPoint(const SubstanceData& substance, ReferenceDensityProposal& point) {
    const LiquidDensityBlock& c = substance.rhoLiquid;
    point.atBoilingPoint = true;
    point.T = substance.Tb;
    point.p = boilingPressure;
    point.rhoL = substance.rhoLb;
    if (Given(point.rhoL)) {
        point.liquid = LiquidDensitySource::BoilingPointValue;
    } else if (Given(c.Tlo)) {
        const DensityResult density = LiquidDensity(substance, point.T);
        if (!density.failed) {
            point.rhoL = static_cast<float>(density.rho);
            point.liquid = LiquidDensitySource::Equation;
        }
    } else if (Given(c.r1) && Given(std::abs(c.r2)) && Given(c.r3)) {
        point.rhoL =
            static_cast<float>(static_cast<double>(c.r2) * point.T + c.r1 - static_cast<double>(c.r3) * c.r2);
        point.liquid = LiquidDensitySource::Slope;
    }
}

void LiquidAtSinglePoint(const SubstanceModel& model, ReferenceDensityProposal& point) {
    const LiquidDensityBlock& c = model.substance.rhoLiquid;
    if (!Given(c.r1) || !Given(c.r3))
        return;
    point.T = c.r3;
    point.rhoL = c.r1;
    point.liquid = LiquidDensitySource::SinglePoint;
    point.p =
        static_cast<float>(VapourPressure(model.substance, point.T, model.selection.vaporPressure).value);
}

float DensityOf(double M, double v) {
    const auto rho = static_cast<float>(M / v);
    return std::isfinite(rho) ? rho : 0;
}

void VapourDensity(SubstanceModel& model, ReferenceDensityProposal& point) {
    const double M = model.substance.molarMass;
    const double T = point.T;
    const double p = point.p;
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    if (!phases.failed && phases.rhoV >= missingValue) {
        point.rhoV = static_cast<float>(phases.rhoV);
        point.vapour = VapourDensitySource::EquationOfState;
        return;
    }
    if (model.substance.omega != 0) {
        const std::int16_t chosen = model.selection.eos;
        model.selection.eos = virialPitzerCurl;
        model.work.BVirial = VirialCoefficientB(model, virialPitzerCurl, T);
        model.selection.eos = chosen;
        point.rhoV = DensityOf(M, gasConstant * T / p + model.work.BVirial);
        point.vapour = VapourDensitySource::PitzerCurl;
        return;
    }
    point.rhoV = DensityOf(M, gasConstant * T / p);
    point.vapour = VapourDensitySource::IdealGas;
}

} // namespace

ReferenceDensityProposal ProposeReferenceDensityPoint(SubstanceModel& model) {
    ReferenceDensityProposal point;
    if (Given(model.substance.Tb))
        LiquidAtBoilingPoint(model.substance, point);
    else
        LiquidAtSinglePoint(model, point);
    VapourDensity(model, point);
    return point;
}

} // namespace orva
