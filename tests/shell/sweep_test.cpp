// SPDX-License-Identifier: GPL-3.0-or-later
// Every substance of the master database with every equation of state on a coarse grid: each call ends, and
// nothing that is not finite comes back as a good result.
#include <gtest/gtest.h>

#include <cmath>

#include "fit_in_process.h"
#include "master_database.h"
#include "thermo/caloric_state.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_temperature.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/saturation_bracket.h"
#include "thermo/spinodal.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/virial_equation.h"

namespace orva::test {
namespace {

// The fits of the Vo / Halme rows take most of the time, those of the second row twice as much: every so many
// substances stand for all. On the saturation line, a step in per cent of T(cr).
#if defined(__SANITIZE_ADDRESS__)
constexpr int firstFittedStep = 10, secondFittedStep = 10, saturationStep = 6;
#else
constexpr int firstFittedStep = 1, secondFittedStep = 3, saturationStep = 1;
#endif

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

void CheckSaturationAt(SubstanceModel& model, double T, const AmbientState& ambient) {
    const SaturationResult pressure = EosSaturationPressure(model, T);
    ASSERT_FALSE(pressure.failed) << Name(model, T, 0);
    ASSERT_GT(pressure.value, 0) << Name(model, T, 0);
    ASSERT_GT(model.work.Roots[2], model.work.Roots[0]) << Name(model, T, pressure.value);
    const double bracketed = BracketedSaturationPressure(model, T).value;
    ASSERT_NEAR(pressure.value, bracketed, 0.002 * bracketed) << Name(model, T, pressure.value);
    const SaturationResult back = EosSaturationTemperature(model, pressure.value);
    ASSERT_FALSE(back.failed) << Name(model, T, pressure.value);
    ASSERT_NEAR(back.value, T, 0.002 * T) << Name(model, T, pressure.value);
    const SaturationCaloricResult caloric = SaturationCaloric(model, T, ambient);
    for (const CaloricValues& c : {caloric.liquid, caloric.vapour})
        ASSERT_TRUE(std::isfinite(c.h + c.u + c.s + c.g + c.f + c.cp + c.cv + c.exergyH + c.exergyU))
            << Name(model, T, caloric.p);
}

void CheckSaturation(SubstanceModel& model) {
    if (model.selection.nonCubic)
        return;
    const AmbientState ambient = EvaluateAmbientState(model);
    for (int percent = 40; percent < 100; percent += saturationStep)
        CheckSaturationAt(model, percent / 100.0 * model.substance.Tc, ambient);
    for (const double Tr : {0.9995, 0.99999})
        CheckSaturationAt(model, Tr * model.substance.Tc, ambient);
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

struct FittedRow : testing::TestWithParam<EosRow> {
    BuiltMachine machine{testing::TempDir() + "orva_sweep_" + std::to_string(GetParam())};
    ScriptedDialogs dialogs;
    FitInProcess runner;
    Session session{machine, dialogs, &runner};

    void SetUp() override {
        std::filesystem::create_directories(machine.WritableFolder());
        ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    }
    void TearDown() override { std::filesystem::remove_all(machine.WritableFolder()); }
};

// With the vapour-pressure equation that the model window presets.
TEST_P(FittedRow, HasFiniteStatesAndNoHoleInTheSaturationLine) {
    const int step = GetParam() == eosVoHalme1 ? firstFittedStep : secondFittedStep;
    int fitted = 0;
    for (int index = 1; index <= session.state.substanceCount; index += step) {
        if (!AcceptSubstance(session, index))
            continue;
        ModelChoice choice = MakeModelChoice(session);
        choice.Open();
        const int row = choice.EOSKombi.RowOf(GetParam());
        if (row < 0) // not offered without an acentric factor
            continue;
        choice.SelectEos(row);
        const std::string& name = session.model.substance.name;
        EXPECT_TRUE(choice.OKModell(dialogs)) << name;
        EXPECT_EQ(session.model.selection.eos, GetParam());
        ++fitted;
        CheckStates(session.model);
        CheckSaturation(session.model);
    }
    EXPECT_GE(fitted * step, session.state.substanceCount * 9 / 10);
    EXPECT_TRUE(dialogs.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(VoHalme, FittedRow, testing::Values(eosVoHalme1, eosVoHalme2));

} // namespace
} // namespace orva::test
