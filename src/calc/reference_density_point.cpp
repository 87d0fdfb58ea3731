// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/reference_density_point.h"

#include <algorithm>
#include <cmath>

#include "state/constants.h"
#include "text/columns.h"
#include "text/number_format.h"
#include "thermo/density_correlations.h"
#include "thermo/phase_volumes.h"

namespace orva {

namespace {

constexpr float bensonPressure = 101.335F;      // kPa, of the point
constexpr double bensonFormulaPressure = 101.3; // kPa, in the approximation
const NumberStyle pointStyle{'.'};

std::string EosName(const SubstanceModel& model, const NameTables& names) {
    const auto row = static_cast<std::size_t>(std::max<int>(model.selection.eos, 0));
    return std::string(Trim(names.EosNames.at(row)));
}

std::string LiquidSource(LiquidDensitySource source) {
    switch (source) {
    case LiquidDensitySource::BoilingPointValue:
        return " (aus Datenbank)";
    case LiquidDensitySource::Equation:
        return " (aus Datenbank-Polynom rho(T))";
    case LiquidDensitySource::Slope:
        return " (berechnet aus dRho/dT)";
    case LiquidDensitySource::SinglePoint:
        return " (Datenbank-Einzelpunkt bei T(ref))";
    case LiquidDensitySource::None:
        break;
    }
    return "";
}

std::string VapourSource(VapourDensitySource source, const std::string& eosName) {
    switch (source) {
    case VapourDensitySource::EquationOfState:
        return " (aus " + eosName + ")";
    case VapourDensitySource::PitzerCurl:
        return " (aus Virial-EOS, PITZER/CURL)";
    case VapourDensitySource::IdealGas:
        break;
    }
    return " (aus Idealgas-EOS)";
}

std::string LiquidLine(const ReferenceDensityProposal& point) {
    return " rho(L)(ref)/kg/m^3 =" + Str(point.rhoL, pointStyle) + LiquidSource(point.liquid) + "\n";
}

} // namespace

ReferenceDensityPoint AsReferencePoint(const ReferenceDensityProposal& proposal) {
    return {proposal.T, proposal.p, proposal.rhoL, proposal.rhoV};
}

void TakeReferenceDensity(CalculationState& calculation, const ReferenceDensityPoint& point) {
    const float product = point.T * point.p * point.rhoL * point.rhoV;
    calculation.referenceDensity = point;
    calculation.ReferenceDensityPointValid =
        std::isfinite(product) && product > static_cast<float>(missingValue);
}

std::string ProposalText(const ReferenceDensityProposal& point, const SubstanceModel& model,
                         const NameTables& names) {
    std::string text;
    if (point.atBoilingPoint) {
        text = " T(ref)/K           =" + Str(point.T, pointStyle) + " (Normalsiede-T)\n"
               + " p(LV)(ref)/kPa     = 101.325 (Normaldruck)\n";
        if (point.liquid != LiquidDensitySource::None)
            text += LiquidLine(point);
    } else if (point.liquid == LiquidDensitySource::SinglePoint) {
        text = "T(ref)/K         =" + Str(point.T, pointStyle) + " (Datenbank-Einzelpunkt für Dichte)\n"
               + LiquidLine(point) + " pLV(ref)/kPa     =" + Str(point.p, pointStyle) + " (bei T(ref) mit "
               + model.selection.vaporPressureCode + "-Gleichung)\n";
    }
    return text + " rho(V)(ref)/kg/m^3 =" + Str(point.rhoV, pointStyle)
           + VapourSource(point.vapour, EosName(model, names));
}

ReferenceDensityPoint BensonReferencePoint(SubstanceModel& model) {
    const SubstanceData& substance = model.substance;
    ReferenceDensityPoint point;
    point.T = substance.Tb;
    point.p = bensonPressure;
    point.rhoL = BensonApproximation(bensonFormulaPressure, substance.pc, substance.rhoc);
    PhaseVolumes phases;
    EosPhaseVolumes(model, point.T, point.p, phases);
    point.rhoV = phases.failed ? 0 : static_cast<float>(phases.rhoV);
    return point;
}

std::string BensonReferenceText(const ReferenceDensityPoint& point, const SubstanceModel& model,
                                const NameTables& names) {
    return "Bezugspunkt mit BENSON-Näherungsformel für rho(L):\n T(ref)/K           = "
           + Format(point.T, "####.#", pointStyle)
           + " (Normalsiedetemp.)\n p(LV)(ref)/kPa     = 101.325  (Normaldruck)\n rho(L)(ref)/kg/m^3 = "
           + Format(point.rhoL, "####.#", pointStyle) + " (BENSON-Näherung)\n rho(V)(ref)/kg/m^3 = "
           + Format(point.rhoV, "##.###", pointStyle) + " (" + EosName(model, names) + ")";
}

} // namespace orva
