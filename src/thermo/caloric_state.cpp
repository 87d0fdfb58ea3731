// SPDX-License-Identifier: GPL-3.0-or-later
#include "thermo/caloric_state.h"

#include <cmath>

#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/ideal_gas_functions.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"

namespace orva {

namespace {

// The shared working set as it was, given back when the excursion to another state ends.
class KeptWorkingSet {
public:
    explicit KeptWorkingSet(SubstanceModel& owner) : model(owner), eos(owner.eos), work(owner.work) {}
    ~KeptWorkingSet() {
        model.eos = eos;
        model.work = work;
    }
    KeptWorkingSet(const KeptWorkingSet&) = delete;
    KeptWorkingSet& operator=(const KeptWorkingSet&) = delete;

private:
    SubstanceModel& model;
    EosParameters eos;
    EosWorkingSet work;
};

// Functions of one phase from its residual functions, without its exergies.
void FillPhase(double T, double p, double v, const IdealGasState& ideal, const ResidualTable& r,
               CaloricValues& values) {
    values.h = ideal.h + gasConstant * r.h;
    values.u = values.h - p * v;
    values.s = ideal.s + gasConstant * r.s;
    values.g = values.h - T * values.s;
    values.f = values.g - p * v;
    values.cp = r.cpTotal;
    values.cv = r.cv;
    values.cpIdeal = ideal.cp;
    values.soundSpeed = r.soundSpeed;
}

void AddExergies(const ReferencePoint& reference, double v, const AmbientPhase& ambient,
                 CaloricValues& values) {
    const double lost = reference.Tenv * (values.s - ambient.s);
    values.exergyH = (values.h - ambient.h) - lost;
    values.exergyU = (values.u - ambient.u) - lost + reference.penv * (v - ambient.v);
}

// False when a residual function cannot be formed.
bool FillAmbientPhase(SubstanceModel& model, double v, const IdealGasState& ideal, AmbientPhase& phase) {
    CaloricValues values;
    ResidualState residual;
    const double T = model.reference.Tenv;
    const double p = model.reference.penv;
    ResidualFunctions(model, T, p, v, ideal.cp, residual);
    if (residual.failed)
        return false;
    FillPhase(T, p, v, ideal, residual.table, values);
    phase = {values.h, values.h - p * v, values.s, v};
    return true;
}

// Volumes of both phases; the critical volume of the equation at T(cr). False without two volumes.
bool FillVolumes(SubstanceModel& model, double T, const SaturationResult& saturation,
                 SaturationCaloricResult& result) {
    if (T == model.substance.Tc && model.eos.rhoCritCalc > 0) {
        result.vL = result.vV = model.substance.molarMass / model.eos.rhoCritCalc;
        return true;
    }
    PhaseVolumes phases;
    SaturatedPhaseVolumes(model, T, saturation.value, saturation, phases);
    if (phases.failed || !(phases.vL > 0 && phases.vV > 0))
        return false;
    result.vL = phases.vL;
    result.vV = phases.vV;
    return true;
}

} // namespace

AmbientState EvaluateAmbientState(SubstanceModel& model) {
    const KeptWorkingSet kept(model);
    const double T = model.reference.Tenv;
    const double p = model.reference.penv;
    AmbientState ambient;
    const IdealGasState ideal =
        IdealGasFunctions(model.substance, model.reference, model.selection.cpModel, T, p);
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    ambient.reference = ReferenceTerms(model.substance, model.reference, model.selection.cpModel);
    ambient.hasV = phases.hasV;
    ambient.failed = ideal.failed || phases.failed || !(phases.hasL || phases.hasV);
    if (ambient.failed)
        return ambient;
    if (phases.hasV)
        ambient.failed = !FillAmbientPhase(model, phases.vV, ideal, ambient.vapour);
    if (phases.hasL && !ambient.failed)
        ambient.failed = !FillAmbientPhase(model, phases.vL, ideal, ambient.liquid);
    if (!phases.hasL)
        ambient.liquid = ambient.vapour;
    if (!phases.hasV)
        ambient.vapour = ambient.liquid;
    return ambient;
}

CaloricResult CaloricState(SubstanceModel& model, double T, double p, double v, const AmbientState& ambient) {
    CaloricResult result;
    const IdealGasState ideal =
        IdealGasFunctions(model.substance, model.reference, model.selection.cpModel, T, p, ambient.reference);
    result.failed = ideal.failed || ambient.failed;
    if (result.failed)
        return result;
    ResidualFunctions(model, T, p, v, ideal.cp, result.residual);
    result.failed = result.residual.failed;
    if (result.failed)
        return result;
    FillPhase(T, p, v, ideal, result.residual.table, result.values);
    AddExergies(model.reference, v, ambient.Single(), result.values);
    return result;
}

CaloricResult CaloricState(SubstanceModel& model, double T, double p, double v) {
    return CaloricState(model, T, p, v, EvaluateAmbientState(model));
}

SaturationCaloricResult SaturationCaloric(SubstanceModel& model, double T, const AmbientState& ambient) {
    SaturationCaloricResult result;
    result.failed = true;
    SetEosCoefficients(model, T);
    const SaturationResult saturation = EosSaturationPressure(model, T);
    if (saturation.failed || ambient.failed)
        return result;
    const double p = saturation.value;
    result.p = p;
    if (!FillVolumes(model, T, saturation, result))
        return result;
    const IdealGasState ideal =
        IdealGasFunctions(model.substance, model.reference, model.selection.cpModel, T, p, ambient.reference);
    if (ideal.failed)
        return result;
    ResidualState residual;
    ResidualFunctions(model, T, p, result.vL, ideal.cp, residual);
    if (residual.failed)
        return result;
    FillPhase(T, p, result.vL, ideal, residual.table, result.liquid);
    ResidualFunctions(model, T, p, result.vV, ideal.cp, residual);
    if (residual.failed)
        return result;
    FillPhase(T, p, result.vV, ideal, residual.table, result.vapour);
    AddExergies(model.reference, result.vL, ambient.liquid, result.liquid);
    AddExergies(model.reference, result.vV, ambient.vapour, result.vapour);
    result.failed = false;
    return result;
}

SaturationCaloricResult SaturationCaloric(SubstanceModel& model, double T) {
    return SaturationCaloric(model, T, EvaluateAmbientState(model));
}

} // namespace orva
