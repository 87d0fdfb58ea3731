// SPDX-License-Identifier: GPL-3.0-or-later
// Every substance of the master database with every equation of state on a coarse grid: each call ends, and
// nothing that is not finite comes back as a good result.
#include <gtest/gtest.h>

#include <cmath>

#include "master_database.h"
#include "thermo/caloric_state.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/spinodal.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/virial_equation.h"

namespace orva::test {
namespace {

constexpr double reducedTemperatures[] = {0.3, 0.5, 0.7, 0.9, 0.999, 1.0, 1.1, 1.6, 3.0};
constexpr double pressures[] = {1e-3, 1.0, 101.325, 2000.0, 1e5};

std::string Name(const SubstanceModel& m, double T, double p) {
    return m.substance.name + " row " + std::to_string(m.selection.eos) + " T " + std::to_string(T) + " p "
           + std::to_string(p);
}

void CheckStates(SubstanceModel& model) {
    const AmbientState ambient = EvaluateAmbientState(model);
    for (const double Tr : reducedTemperatures) {
        const double T = Tr * model.substance.Tc;
        for (const double p : pressures) {
            PhaseVolumes phases;
            EosPhaseVolumes(model, T, p, phases);
            if (phases.failed)
                continue;
            const double v = phases.hasV ? phases.vV : phases.vL;
            ASSERT_TRUE(std::isfinite(v) && std::isfinite(phases.rhoL + phases.rhoV)) << Name(model, T, p);
            const CaloricResult caloric = CaloricState(model, T, p, v, ambient);
            const CaloricValues& c = caloric.values;
            ASSERT_TRUE(std::isfinite(c.h + c.u + c.s + c.g + c.f + c.cp + c.cv + c.exergyH + c.exergyU
                                      + c.soundSpeed))
                << Name(model, T, p);
            const PressureResult pressure = EosPressure(model, T, v);
            ASSERT_TRUE(std::isfinite(pressure.p)) << Name(model, T, p);
            const double found = EosTemperature(model, p, model.substance.molarMass / v, true);
            ASSERT_TRUE(std::isfinite(found)) << Name(model, T, p);
        }
        ASSERT_TRUE(std::isfinite(VirialCoefficientB(model, model.selection.eos, T))) << Name(model, T, 0);
    }
}

TEST_F(MasterDatabase, GivesNothingButFiniteStates) {
    ForEveryModel(CheckStates);
}

void CheckSaturation(SubstanceModel& model) {
    if (model.selection.nonCubic)
        return;
    for (const double Tr : {0.4, 0.45, 0.55, 0.65, 0.75, 0.85, 0.95, 0.99, 0.9995, 0.99999}) {
        const double T = Tr * model.substance.Tc;
        const SaturationResult pressure = EosSaturationPressure(model, T);
        ASSERT_FALSE(pressure.failed) << Name(model, T, 0);
        ASSERT_GT(pressure.value, 0) << Name(model, T, 0);
        ASSERT_GT(model.work.Roots[2], model.work.Roots[0]) << Name(model, T, pressure.value);
        const SaturationResult back = EosSaturationTemperature(model, pressure.value);
        ASSERT_FALSE(back.failed) << Name(model, T, pressure.value);
        ASSERT_NEAR(back.value, T, 0.002 * T) << Name(model, T, pressure.value);
    }
}

TEST_F(MasterDatabase, HasNoHoleInTheSaturationLine) {
    ForEveryModel(CheckSaturation);
}

void CheckVaporisation(SubstanceModel& model) {
    if (model.selection.eos != eosPengRobinson && model.selection.eos != eosRedlichKwong)
        return;
    for (int way = 1; way <= 7; ++way)
        for (const double Tr : {0.5, 0.8, 1.0}) {
            VaporisationRequest request;
            request.T = Tr * model.substance.Tc;
            request.reference = {model.substance.Tb, model.substance.rhoLb, 2};
            const VaporisationResult r =
                VaporisationEnthalpy(model, way, model.selection.vaporPressure, request);
            ASSERT_TRUE(std::isfinite(r.p + r.T + r.zV + r.zL))
                << Name(model, request.T, r.p) << " way " << way;
        }
    const SpinodalPoints spinodal = SpinodalVolumes(model, 0.8 * model.substance.Tc);
    ASSERT_FALSE(spinodal.failed) << Name(model, 0, 0);
}

TEST_F(MasterDatabase, GivesNothingButFiniteVaporisation) {
    ForEveryModel(CheckVaporisation);
}

} // namespace
} // namespace orva::test
