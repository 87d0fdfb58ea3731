// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "thermo/eos_temperature.h"

#include <cmath>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/phase_volumes.h"
#include "thermo/saturation.h"
#include "thermo/virial_equation.h"

namespace orva {
namespace {

constexpr double R = 8.31451;
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

class TemperatureOf : public testing::TestWithParam<EosRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, TemperatureOf, testing::ValuesIn(fluids::cubicRows),
                         [](const auto& row) { return "Row" + std::to_string(row.param); });

// The iteration ends with a step of 1e-5 T and is quadratic before that.
TEST_P(TemperatureOf, ASinglePhaseStateIsThatOfItsVolume) {
    for (const SubstanceData& s : fluids::All()) {
        SubstanceModel model = fluids::ModelOf(s, GetParam(), vpWagner);
        for (const double Tr : {0.7, 0.8, 0.9, 0.95, 1.05, 1.2, 1.5, 2.0})
            for (const double pr : {0.005, 0.05, 0.2, 0.5, 0.9, 1.5, 3.0}) {
                PhaseVolumes state;
                EosPhaseVolumes(model, Tr * s.Tc, pr * s.pc, state);
                ASSERT_FALSE(state.failed);
                const double rho = state.hasV ? state.rhoV : state.rhoL;
                const double T = EosTemperature(model, pr * s.pc, rho, false);
                EXPECT_NEAR(T / (Tr * s.Tc), 1, 2e-5) << s.name << " Tr=" << Tr << " pr=" << pr;
            }
    }
}

TEST_P(TemperatureOf, AWetStateIsTheSaturationTemperatureOfItsPressure) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam(), vpWagner);
    const double M = static_cast<double>(model.substance.molarMass);
    for (const double pr : {0.05, 0.1, 0.2, 0.4, 0.6}) {
        const double p = pr * model.substance.pc;
        const SaturationResult saturation = EosSaturationTemperature(model, p);
        ASSERT_FALSE(saturation.failed);
        const double vL = model.work.Roots[0];
        const double vV = model.work.Roots[2];
        int met = 0;
        for (const double x : {0.1, 0.3, 0.5, 0.7, 0.9}) {
            const double T = EosTemperature(model, p, M / (vL + x * (vV - vL)), false);
            ASSERT_TRUE(std::isfinite(T));
            met += std::abs(T - saturation.value) < 1e-6 * saturation.value ? 1 : 0;
        }
        EXPECT_GE(met, 3) << pr;
    }
}

// Near p(cr) the temperature comes from Newton's method on p(LV)(T).
TEST_P(TemperatureOf, AWetStateNearTheCriticalPressureLiesOnTheSaturationLine) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam(), vpWagner);
    const double M = static_cast<double>(model.substance.molarMass);
    const double p = 0.8 * model.substance.pc;
    const double expected = EosSaturationTemperature(model, p).value;
    const double v = 0.5 * (model.work.Roots[0] + model.work.Roots[2]);
    const double T = EosTemperature(model, p, M / v, false);
    EXPECT_NEAR(T / expected, 1, 1e-3);
}

TEST_P(TemperatureOf, AWetStateIsThatOfTheIsothermWhenTheWetCheckIsSkipped) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam(), vpWagner);
    const double M = static_cast<double>(model.substance.molarMass);
    const double p = 0.4 * model.substance.pc;
    const double saturation = EosSaturationTemperature(model, p).value;
    const double v = model.work.Roots[0] + 0.7 * (model.work.Roots[2] - model.work.Roots[0]);
    const double T = EosTemperature(model, p, M / v, true);
    EXPECT_GT(std::abs(T - saturation), 0.5);
    EXPECT_NEAR(EosPressure(model, T, v).p / p, 1, 1e-4);
}

// The parameters of the last evaluation, 1e-6 K beside the result, stay in force.
TEST_P(TemperatureOf, AGasStateLeavesTheParametersOfTheLastNewtonEvaluation) {
    if (GetParam() == eosVanDerWaals)
        GTEST_SUCCEED() << "A does not depend on T";
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam(), vpWagner);
    const double T = EosTemperature(model, 5000, 100, false);
    ASSERT_GT(T, model.substance.Tc);
    const double left = model.eos.A;
    SetEosCoefficients(model, T);
    EXPECT_NEAR(left / model.eos.A, 1, 1e-4);
}

class VirialTemperature : public testing::TestWithParam<EosRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, VirialTemperature, testing::ValuesIn(fluids::virialRows),
                         [](const auto& row) { return "Row" + std::to_string(row.param); });

TEST_P(VirialTemperature, ReturnsToTheVolume) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam());
    if (GetParam() == virialByHand) {
        model.eos.b0 = 0.05;
        model.eos.nB = 4000;
        model.eos.nF = 1.5;
    }
    const double M = static_cast<double>(model.substance.molarMass);
    for (const double T : {320.0, 400.0, 600.0})
        for (const double p : {10.0, 100.0, 300.0}) {
            const double v = R * T / p + VirialCoefficientB(model, GetParam(), T);
            EXPECT_NEAR(EosTemperature(model, p, M / v, false), T, 2e-3) << T << " " << p;
        }
}

// Without a wet check there is no difference, whatever the caller asks for.
TEST_P(VirialTemperature, KnowsNoWetCheck) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam());
    EXPECT_EQ(EosTemperature(model, 900, 30, false), EosTemperature(model, 900, 30, true));
}

TEST(TheTemperature, OfTheIdealGasIsPVOverR) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosIdealGas);
    EXPECT_DOUBLE_EQ(EosTemperature(model, 150, static_cast<double>(model.substance.molarMass) / 2, false),
                     300 / R);
}

TEST(TheTemperature, IsZeroWhereThereIsNone) {
    for (int row = 0; row <= 16; ++row) {
        if (row == 1 || row == 9)
            continue;
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), row, vpWagner);
        for (const auto& [p, rho] : {std::pair{100.0, 0.0}, {nan, 10.0}, {100.0, nan}, {infinity, 10.0}}) {
            const double T = EosTemperature(model, p, rho, false);
            EXPECT_EQ(T, 0) << row << " " << p << " " << rho;
        }
    }
}

// More mass than the co-volume leaves room for: no positive temperature belongs to it.
TEST(TheTemperature, IsZeroForADensityBeyondTheCoVolume) {
    for (const EosRow row : {eosRedlichKwong, eosSoaveRedlichKwong, eosPengRobinson}) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), row, vpWagner);
        EXPECT_EQ(EosTemperature(model, 100,
                                 static_cast<double>(model.substance.molarMass) / (0.5 * model.eos.b0),
                                 false),
                  0)
            << row;
    }
}

TEST(TheTemperature, IsZeroForNegativePressureOfTheIdealGas) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosIdealGas);
    EXPECT_EQ(EosTemperature(model, -100, 10, false), 0);
    EXPECT_EQ(EosTemperature(model, 0, 10, false), 0);
}

} // namespace
} // namespace orva
