// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "caloric_fixture.h"
#include "thermo/residual_functions.h"
#include "thermo/saturation_bracket.h"
#include "thermo/spinodal.h"

namespace orva::caloric {
namespace {

// Difference of ln phi of the two volumes that a saturation search left.
double FugacityGap(SubstanceModel& model, double T, double p) {
    const std::array<double, 3> v = model.work.Roots;
    return ResidualFunctions(model, T, p, v[0], 100).table.lnPhi
           - ResidualFunctions(model, T, p, v[2], 100).table.lnPhi;
}

TEST(BracketedSaturation, HasEqualFugacitiesOverManyOrdersOfPressure) {
    for (const double omega : {0.01, 0.2, 0.6, 1.2}) {
        SubstanceData s = fluids::NButane();
        s.omega = omega;
        for (const EosRow eos : fluids::cubicRows) {
            SubstanceModel model = fluids::ModelOf(s, eos);
            for (const double Tr : {0.1, 0.15, 0.25, 0.4, 0.7, 0.99, 0.9999, 0.999999, 0.99999999}) {
                const double T = Tr * s.Tc;
                const SaturationResult r = BracketedSaturationPressure(model, T);
                ASSERT_FALSE(r.failed) << eos << " " << Tr << " " << omega;
                EXPECT_NEAR(FugacityGap(model, T, r.value), 0, 1e-11) << eos << " " << Tr << " " << omega;
                const SaturationResult back = BracketedSaturationTemperature(model, r.value);
                ASSERT_FALSE(back.failed) << eos << " " << Tr << " " << omega;
                EXPECT_NEAR(back.value / T, 1, 1e-10) << eos << " " << Tr << " " << omega;
            }
        }
    }
}

TEST(BracketedSaturation, AgreesWithTheSecantSearchWhereThatConverges) {
    for (const EosRow eos : fluids::cubicRows) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), eos, vpWagner);
        for (double Tr = 0.5; Tr < 0.99; Tr += 0.07) {
            const SaturationResult secant = EosSaturationPressure(model, Tr * 425.125);
            const SaturationResult bracket = BracketedSaturationPressure(model, Tr * 425.125);
            EXPECT_NEAR(secant.value / bracket.value, 1, 2e-4) << eos << " " << Tr;
        }
    }
}

TEST(BracketedSaturation, RefusesWhatHasNoSaturation) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson);
    for (const double T : {-1.0, 0.0, 425.125, 500.0, std::nan("")})
        EXPECT_TRUE(BracketedSaturationPressure(model, T).failed) << T;
    for (const double p : {-1.0, 0.0, 3796.0, 5000.0, std::nan("")})
        EXPECT_TRUE(BracketedSaturationTemperature(model, p).failed) << p;
    SubstanceModel virial = fluids::ModelOf(fluids::NButane(), virialPitzerCurl);
    EXPECT_TRUE(BracketedSaturationPressure(virial, 300).failed);
    EXPECT_TRUE(BracketedSaturationTemperature(virial, 300).failed);
    model.eos = {};
    EXPECT_TRUE(BracketedSaturationPressure(model, 300).failed);
    EXPECT_TRUE(BracketedSaturationTemperature(model, 300).failed);
}

// The secant search falls into a cycle of two steps at these states.
TEST(Saturation, HasNoHolesWhereTheSecantSearchCycles) {
    SubstanceModel pr = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    const SaturationResult nearCritical = EosSaturationPressure(pr, 424.8917347925446);
    EXPECT_FALSE(nearCritical.failed);
    EXPECT_NEAR(nearCritical.value, BracketedSaturationPressure(pr, 424.8917347925446).value, 0.5);
    SubstanceModel rk = fluids::ModelOf(fluids::NButane(), eosRedlichKwong, vpWagner);
    const SaturationResult T = EosSaturationTemperature(rk, 3236.32054);
    EXPECT_FALSE(T.failed);
    EXPECT_NEAR(T.value, BracketedSaturationTemperature(rk, 3236.32054).value, 0.05);
}

TEST(Saturation, IsFoundBelowTheSmallestStepOfTheSecantSearch) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson, vpWagner);
    const SaturationResult r = EosSaturationPressure(model, 0.3 * 425.125);
    EXPECT_FALSE(r.failed);
    EXPECT_GT(r.value, 0);
    EXPECT_LT(r.value, 1e-3);
    EXPECT_NEAR(FugacityGap(model, 0.3 * 425.125, r.value), 0, 1e-4);
}

TEST(FindSpinodal, FindsThePointsOfInflection) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson);
    const SpinodalSearch s = FindSpinodal(model, 380);
    ASSERT_FALSE(s.failed);
    for (const InflectionPoint& point : s.points) {
        const double curvature =
            CentralCurvature([&](double v) { return PressureAt(model, 380, v); }, point.v, 1e-3 * point.v);
        const double scale = 8.31451 * 380 / std::pow(point.v, 3);
        EXPECT_NEAR(curvature, 0, 1e-5 * scale);
        EXPECT_NEAR(point.p, PressureAt(model, 380, point.v), 1e-6);
    }
    EXPECT_NEAR(s.points[0].v, 0.2097, 1e-3);
    EXPECT_NEAR(s.points[1].v, 0.918, 2e-3);
}

TEST(FindSpinodal, AMissingSecondPointIsNoFailure) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson);
    const SpinodalSearch hot = FindSpinodal(model, 900);
    EXPECT_EQ(hot.points[1].v, 0);
    SubstanceModel virial = fluids::ModelOf(fluids::NButane(), virialPitzerCurl);
    EXPECT_TRUE(FindSpinodal(virial, 380).failed);
}

TEST(SpinodalVolumes, HaveNoSlope) {
    for (const EosRow eos : fluids::cubicRows) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), eos);
        for (const double Tr : {0.5, 0.7, 0.9, 0.99, 0.999}) {
            const double T = Tr * 425.125;
            const SpinodalPoints s = SpinodalVolumes(model, T);
            ASSERT_FALSE(s.failed) << eos << " " << Tr;
            for (const double v : s.v) {
                const double slope =
                    CentralSlope([&](double x) { return PressureAt(model, T, x); }, v, 1e-4 * v);
                EXPECT_NEAR(slope * v * v / (8.31451 * T), 0, 1e-5) << eos << " " << Tr;
            }
            EXPECT_LT(s.p[0], s.p[1]);
            const SaturationResult saturation = BracketedSaturationPressure(model, T);
            EXPECT_LT(s.p[0], saturation.value);
            EXPECT_GT(s.p[1], saturation.value);
        }
        EXPECT_TRUE(SpinodalVolumes(model, 425.125).failed);
        EXPECT_TRUE(SpinodalVolumes(model, 0).failed);
    }
}

} // namespace
} // namespace orva::caloric
