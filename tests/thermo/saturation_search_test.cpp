// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/saturation.h"

namespace orva {
namespace {

SubstanceModel Butane(int eos = eosPengRobinson, int vaporPressure = vpWagner) {
    return fluids::ModelOf(fluids::NButane(), eos, vaporPressure);
}

void ExpectFailed(const SaturationResult& result) {
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.value, 0);
}

TEST(TheSearchForTheSaturationPressure, ReturnsTheCriticalPressureAtTheCriticalTemperature) {
    for (const EosRow row : fluids::cubicRows) {
        SubstanceModel model = Butane(row);
        const SaturationResult result = EosSaturationPressure(model, model.substance.Tc);
        EXPECT_FALSE(result.failed);
        EXPECT_EQ(result.value, model.substance.pc);
        // The volumes of the shortcut are the inverse mass density, not a molar volume.
        EXPECT_EQ(model.work.Roots[0], 1 / model.eos.rhoCritCalc);
        EXPECT_EQ(model.work.Roots[2], model.work.Roots[0]);
    }
}

TEST(TheSearchForTheSaturationPressure, TakesTheShortcutAlsoForVirialRowsAndKeepsTheLiquidRoot) {
    SubstanceModel model = Butane(virialPengRobinson);
    model.work.Roots = {0.5, 1, 2};
    const SaturationResult result = EosSaturationPressure(model, model.substance.Tc);
    EXPECT_FALSE(result.failed);
    EXPECT_EQ(result.value, model.substance.pc);
    EXPECT_THAT(model.work.Roots, testing::ElementsAre(0.5, 1, 0.5)); // rhoCritCalc is 0
}

TEST(TheSearchForTheSaturationPressure, FailsAboveTheCriticalTemperature) {
    for (const EosRow row : fluids::cubicRows) {
        SubstanceModel model = Butane(row);
        ExpectFailed(EosSaturationPressure(model, std::nextafter(425.125, 1000.0)));
        ExpectFailed(EosSaturationPressure(model, 1000));
    }
}

TEST(TheSearchForTheSaturationPressure, FailsForVirialRowsTheIdealGasAndWithoutAModel) {
    for (const int row : {0, 10, 11, 12, 13, 14, 15, 16, -1}) {
        SubstanceModel model = Butane(row);
        ExpectFailed(EosSaturationPressure(model, 350));
        ExpectFailed(EosSaturationTemperature(model, 1000));
    }
}

// A start pressure far off the loop: the steps follow the kind of the single root.
TEST(TheSearchForTheSaturationPressure, SteersBackIntoTheLoop) {
    SubstanceModel model = Butane();
    const double expected = EosSaturationPressure(model, 350).value;
    for (const double factor : {0.3, 0.6, 1.4, 2.0, 3.0}) {
        SubstanceModel shifted = Butane();
        shifted.substance.wagner.w10 *= static_cast<float>(factor);
        const SaturationResult result = EosSaturationPressure(shifted, 350);
        ASSERT_FALSE(result.failed) << factor;
        EXPECT_NEAR(result.value / expected, 1, 3e-5) << factor;
    }
}

// A start equation that fails is replaced, and its failure does not outlive the first pass.
TEST(TheSearchForTheSaturationPressure, StartsWithoutTheEquationWhereThatFails) {
    SubstanceModel model = Butane(eosPengRobinson, vpWagner);
    model.substance.wagner = {};
    ASSERT_TRUE(VapourPressure(model.substance, 350, vpWagner).failed);
    const SaturationResult result = EosSaturationPressure(model, 350);
    EXPECT_FALSE(result.failed);
    SubstanceModel without = Butane(eosPengRobinson, vpNone);
    EXPECT_EQ(result.value, EosSaturationPressure(without, 350).value);
}

// In single precision p = p(cr) ends the search, whatever the areas are.
TEST(TheSearchForTheSaturationPressure, EndsWithinSinglePrecisionOfTheCriticalPressure) {
    for (const EosRow row : fluids::cubicRows)
        for (const SubstanceData& s : fluids::All()) {
            SubstanceModel model = fluids::ModelOf(s, row, vpWagner);
            for (const double gap : {1e-3, 1e-4, 1e-5, 1e-6, 1e-8}) {
                const SaturationResult result = EosSaturationPressure(model, s.Tc * (1 - gap));
                if (result.failed) {
                    EXPECT_EQ(result.value, 0);
                    continue;
                }
                EXPECT_NEAR(result.value / s.pc, 1, 10 * gap + 1e-5) << s.name << " " << row << " " << gap;
            }
        }
}

TEST(TheSearchForTheSaturationPressure, GivesUpWithZero) {
    SubstanceModel model = Butane();
    for (const double T : {0.0, -1.0, 1e-7, 1e-3, 1.0, std::numeric_limits<double>::quiet_NaN()})
        ExpectFailed(EosSaturationPressure(model, T));
}

TEST(TheSearchForTheSaturationTemperature, ReturnsTheCriticalTemperatureAtTheCriticalPressure) {
    SubstanceModel model = Butane();
    const SaturationResult result = EosSaturationTemperature(model, model.substance.pc);
    EXPECT_FALSE(result.failed);
    EXPECT_EQ(result.value, model.substance.Tc);
    EXPECT_EQ(model.work.Roots[0], 1 / model.eos.rhoCritCalc);
    EXPECT_EQ(model.work.Roots[2], model.work.Roots[0]);
}

TEST(TheSearchForTheSaturationTemperature, FailsAboveTheCriticalPressureAndWithoutAPressure) {
    SubstanceModel model = Butane();
    for (const double p : {3797.0, 1e10, 0.0, -5.0, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()})
        ExpectFailed(EosSaturationTemperature(model, p));
}

TEST(TheSearchForTheSaturationTemperature, FindsTheSameFromEveryStartNearby) {
    SubstanceModel model = Butane();
    const double expected = EosSaturationTemperature(model, 1000).value;
    ASSERT_GT(expected, 0);
    for (const double start : {330.0, 345.0, 350.0, 355.0, 370.0, 400.0}) {
        const SaturationResult result = EosSaturationTemperature(model, 1000, start);
        ASSERT_FALSE(result.failed) << start;
        EXPECT_NEAR(result.value, expected, 2e-3) << start;
    }
}

// The scan below 0.02 p(cr) ends with |x| < 2e-4 or a step below 5e-4 K.
TEST(TheScanAtLowPressure, AgreesWithTheSearchAtItsLimit) {
    SubstanceModel model = Butane();
    const double limit = 0.02 * model.substance.pc;
    const SaturationResult below = EosSaturationTemperature(model, limit * (1 - 1e-9));
    const SaturationResult above = EosSaturationTemperature(model, limit * (1 + 1e-9));
    ASSERT_FALSE(below.failed || above.failed);
    EXPECT_NEAR(below.value, above.value, 0.02);
}

TEST(TheScanAtLowPressure, TakesNoNoticeOfTheStartValue) {
    SubstanceModel model = Butane();
    const double expected = EosSaturationTemperature(model, 20).value;
    ASSERT_GT(expected, 0);
    EXPECT_EQ(EosSaturationTemperature(model, 20, 100).value, expected);
    EXPECT_EQ(EosSaturationTemperature(model, 20, 400).value, expected);
}

TEST(TheScanAtLowPressure, MeetsTheSaturationPressure) {
    for (const double p : {5.0, 10.0, 30.0, 60.0}) {
        SubstanceModel model = Butane();
        const SaturationResult result = EosSaturationTemperature(model, p);
        ASSERT_FALSE(result.failed) << p;
        EXPECT_NEAR(EosSaturationPressure(model, result.value).value / p, 1, 2e-3) << p;
    }
}

TEST(TheSearches, LeaveRootsAndParametersAtTheSolution) {
    SubstanceModel model = Butane();
    const double T = EosSaturationTemperature(model, 1000).value;
    const std::array<double, 3> roots = model.work.Roots;
    const EosParameters eos = model.eos;
    SetEosCoefficients(model, T);
    EXPECT_EQ(model.eos.A, eos.A);
    ASSERT_EQ(SolveEosCubic(model, T, 1000).rootCount, 3);
    EXPECT_EQ(model.work.Roots, roots);
}

} // namespace
} // namespace orva
