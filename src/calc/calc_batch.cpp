// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/calc_batch.h"

#include <cmath>

#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "calc/report_blocks.h"
#include "calc/report_extended.h"
#include "calc/report_functions.h"
#include "calc/units.h"
#include "state/constants.h"

namespace orva {

namespace {

constexpr int verdictSize = 10; // points, of the words on the given state

using KindFunction = void (*)(PointRun&);

struct KindRow {
    int kind;
    KindFunction calculate;
};

constexpr KindRow kindTable[] = {
    {kindTRho, CalculateFromTRho},
    {kindTRhoLiquid, CalculateFromTRho},
    {kindTP, CalculateFromTP},
    {kindSaturationPressure, CalculateSaturation},
    {kindSaturationTemperature, CalculateSaturation},
    {kindVaporisationAtT, CalculateVaporisation},
    {kindVaporisationAtP, CalculateVaporisation},
    {kindFunctions, CalculateFunctions},
    {kindVesselGlobal, CalculateVessel},
    {kindVesselPartial, CalculateVessel},
    {kindVirialComparison, CompareVirialCoefficients},
    {kindPolytrope, ShowProcess},
    {kindPRho, CalculateFromPRho},
    {kindLiquidDensity, CalculateDatabaseFunction},
    {kindVaporisationDb, CalculateDatabaseFunction},
    {kindIdealGasCp, CalculateDatabaseFunction},
    {kindLiquidCp, CalculateDatabaseFunction},
    {kindSolidCp, CalculateDatabaseFunction},
    {kindFrostKalkwarf, CalculateDatabaseFunction},
    {kindWagner, CalculateDatabaseFunction},
    {kindAntoineLow, CalculateDatabaseFunction},
    {kindAntoineHigh, CalculateDatabaseFunction},
    {kindWithoutFunction, CalculateDatabaseFunction},
    {kindSolidDensity, CalculateDatabaseFunction},
};

const KindRow* FindKind(int kind) {
    for (const KindRow& row : kindTable)
        if (row.kind == kind)
            return &row;
    return nullptr;
}

void PrepareRun(CalculationContext& context) {
    context.model.work.Roots = {};
    EosStateRecord& state = context.calculation.eosState;
    state.rootIndex = 0;
    state.zV = state.zL = 0;
    state.pEos = 0;
    SetUnits(context.model, context.options);
    context.options.energyFactor = EnergyFactor(
        context.options.unitBasis, context.calculation.diagramTemperature, context.model.substance);
}

// The words on a given state beyond the critical point. A state on a border keeps what the equation of state
// said.
void JudgeGivenState(PointRun& run) {
    PointResult& result = run.result;
    SubstanceModel& model = run.context.model;
    const double Tc = model.substance.Tc;
    const double pc = model.substance.pc;
    const double T = run.T;
    const double p = run.p;
    result.co1.colour = TextColour::Blue;
    result.co1.bold = true;
    result.co1.size = verdictSize;
    std::int16_t& verdict = model.work.RegionCode;
    std::string_view text;
    if (static_cast<float>(T) == static_cast<float>(Tc) && static_cast<float>(p) == static_cast<float>(pc)) {
        verdict = 4;
        text = "=> kritischer Punkt (T = T(cr), p = p(cr))";
    } else if (p < pc && T < Tc) {
        verdict = 0;
        result.co1.colour = TextColour::Black;
        result.co1.bold = false;
        result.co1.size = ResultLabel().size;
    } else if (p > pc && T > Tc) {
        verdict = 2;
        text = "=> überkritische Phase L = V (T > T(cr), p > p(cr))";
    } else if (p > pc) {
        verdict = 1;
        text = "=> überkritische L-Phase (T < T(cr), p > p(cr))";
        result.lblVphase = "L-Phase";
    } else if (T > Tc && p == 0) {
        verdict = 3;
        text = "=> überkritische Phase (T > T(cr))";
    } else if (T > Tc) {
        verdict = 3;
        text = "=> überkritische V-Phase (T > T(cr), p < p(cr))";
        result.lblLphase = "V-Phase";
    }
    if (!text.empty())
        ShowText(run, result.co1, text);
}

// The diagnosis window explains a genuine cubic solution only.
bool DiagnosisPossible(const PointRun& run) {
    const ModelSelection& selection = run.context.model.selection;
    const int kind = run.result.kind;
    if (run.result.failed || selection.nonCubic || !run.context.calculation.GlobalMethod)
        return false;
    if (kind == kindPolytrope || kind == kindVirialComparison || (kind >= 14 && kind <= 22))
        return false;
    if (!selection.eosPriority && (kind == kindSaturationPressure || kind == kindSaturationTemperature))
        return false;
    return (kind != kindVaporisationAtT && kind != kindVaporisationAtP) || selection.vaporization == 7;
}

void BlankRecord(ResultRecord& record) {
    record.phase = "   ";
    record.Tcalc = record.pcalc = record.rhoV = record.rhoL = record.hLV = 0;
}

template<class Number, std::size_t count> bool AllSingles(const std::array<Number, count>& values) {
    bool all = true;
    for (const Number value : values)
        all &= FitsSingle(value);
    return all;
}

bool AllFinite(const PointResult& result) {
    const ResultRecord& r = result.record;
    bool all = AllSingles(result.results) && AllSingles(std::array{result.T, result.p})
               && AllSingles(std::array{r.T, r.p, r.v, r.Tcalc, r.pcalc, r.rhoV, r.rhoL, r.hLV, r.h, r.s, r.g,
                                        r.eH, r.eU, result.liquidPercent});
    for (const std::size_t phase : {0U, 1U})
        all = all && AllSingles(r.deriv[phase]) && AllSingles(r.resid[phase]) && AllSingles(r.coeff[phase])
              && AllSingles(r.mech[phase]);
    return all;
}

// A number beyond single precision is an overflow: nothing of the run but its finite slots stays.
void VoidRun(PointRun& run) {
    PointResult& result = run.result;
    for (double& value : result.results)
        value = std::isfinite(value) ? value : 0;
    result.T = std::isfinite(result.T) ? result.T : 0;
    result.p = std::isfinite(result.p) ? result.p : 0;
    result.liquidPercent = 0;
    result.record = {};
    result.report.clear();
    result.co1 = result.co2 = {};
    result.diagnoseEnabled = false;
    ReportFailure(run, FailureNumber());
}

void CommonEnd(PointRun& run) {
    PointResult& result = run.result;
    const bool cubic = !run.context.model.selection.nonCubic;
    result.hasL = run.phases.hasL;
    result.hasV = run.phases.hasV;
    result.lblLphaseVisible = result.hasL;
    result.lblVphaseVisible = result.hasV;
    if (cubic)
        JudgeGivenState(run);
    result.phaseVerdict = run.context.model.work.RegionCode;
    result.lblGleichVisible =
        cubic && result.kind != kindPolytrope && (result.phaseVerdict == 2 || result.phaseVerdict == 4);
    if (result.failed) {
        BlankRecord(result.record);
    } else {
        result.record.T = result.record.p = result.record.v = 0;
        AppendExtendedBlocks(run);
        AppendFunctionList(run);
        AppendParameterTrailer(run);
    }
    if (result.hasV && !result.hasL)
        result.liquidPercent = 0;
    if (result.hasL && !result.hasV)
        result.liquidPercent = 100;
    result.diagnoseEnabled = DiagnosisPossible(run);
    result.T = run.T;
    result.p = run.p;
    result.roots = run.context.model.work.Roots;
    if (!AllFinite(result))
        VoidRun(run);
}

} // namespace

bool IsKindAvailable(int kind) {
    return FindKind(kind) != nullptr;
}

PointResult CalcBatch(CalculationContext& context, int kind, int dataSet, RunOptions options) {
    PointResult result;
    result.kind = kind;
    const KindRow* row = FindKind(kind);
    if (row == nullptr) {
        result.failed = true;
        return result;
    }
    context.calculation.CurrentDataSet = dataSet;
    PrepareRun(context);
    PointRun run{context, result, options};
    row->calculate(run);
    if (!run.endsAtOnce)
        CommonEnd(run);
    return result;
}

} // namespace orva
