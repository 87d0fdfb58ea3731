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

// Functions of one phase without its exergies. False when a residual function cannot be formed.
bool FillPhase(SubstanceModel& model, double T, double p, double v, const IdealGasState& ideal,
               CaloricValues& values, ResidualState& residual) {
    ResidualFunctions(model, T, p, v, ideal.cp, residual);
    if (residual.failed)
        return false;
    const ResidualTable& r = residual.table;
    values.h = ideal.h + gasConstant * r.h;
    values.u = values.h - p * v;
    values.s = ideal.s + gasConstant * r.s;
    values.g = values.h - T * values.s;
    values.f = values.g - p * v;
    values.cp = r.cpTotal;
    values.cv = r.cv;
    values.cpIdeal = ideal.cp;
    values.soundSpeed = r.soundSpeed;
    return true;
}

void AddExergies(const ReferencePoint& reference, double v, const AmbientPhase& ambient,
                 CaloricValues& values) {
    const double lost = reference.Tenv * (values.s - ambient.s);
    values.exergyH = (values.h - ambient.h) - lost;
    values.exergyU = (values.u - ambient.u) - lost + reference.penv * (v - ambient.v);
}

bool FillAmbientPhase(SubstanceModel& model, double v, const IdealGasState& ideal, AmbientPhase& phase) {
    CaloricValues values;
    ResidualState residual;
    const double p = model.reference.penv;
    if (!FillPhase(model, model.reference.Tenv, p, v, ideal, values, residual))
        return false;
    phase = {values.h, values.h - p * v, values.s, v};
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
        IdealGasFunctions(model.substance, model.reference, model.selection.cpModel, T, p);
    result.failed =
        ideal.failed || ambient.failed || !FillPhase(model, T, p, v, ideal, result.values, result.residual);
    if (result.failed) {
        result.values = {};
        return result;
    }
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
    if (T == model.substance.Tc && model.eos.rhoCritCalc > 0) {
        result.vL = result.vV = model.substance.molarMass / model.eos.rhoCritCalc;
    } else {
        PhaseVolumes phases;
        EosPhaseVolumes(model, T, p, phases);
        if (phases.failed || !(phases.vL > 0 && phases.vV > 0))
            return result;
        result.vL = phases.vL;
        result.vV = phases.vV;
    }
    const IdealGasState ideal =
        IdealGasFunctions(model.substance, model.reference, model.selection.cpModel, T, p);
    ResidualState residual;
    if (ideal.failed || !FillPhase(model, T, p, result.vL, ideal, result.liquid, residual)
        || !FillPhase(model, T, p, result.vV, ideal, result.vapour, residual))
        return result;
    AddExergies(model.reference, result.vL, ambient.liquid, result.liquid);
    AddExergies(model.reference, result.vV, ambient.vapour, result.vapour);
    SetEosCoefficients(model, T);
    result.failed = false;
    return result;
}

SaturationCaloricResult SaturationCaloric(SubstanceModel& model, double T) {
    return SaturationCaloric(model, T, EvaluateAmbientState(model));
}

} // namespace orva
