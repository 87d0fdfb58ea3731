// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "thermo/fluids.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

// d ln p / d(1/T) by central differences.
double Difference(const SubstanceData& s, double T, int equation) {
    const double h = 0.01;
    const double up = std::log(VapourPressure(s, T + h, equation).value);
    const double down = std::log(VapourPressure(s, T - h, equation).value);
    return -T * T * (up - down) / (2 * h);
}

class Slope : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(All, Slope, testing::Range(1, 9),
                         [](const auto& row) { return std::string(VaporPressureCodeOf(row.param)); });

// The implicit forms end their iteration at 1e-4 of p and are quadratic before that.
TEST_P(Slope, IsTheDerivativeOfTheLogarithmOfThePressure) {
    for (const SubstanceData& s : fluids::All()) {
        if (GetParam() == vpAntoineLow && s.antoineLow.Tlo == 0)
            continue;
        for (const double Tr : {0.55, 0.65, 0.75, 0.85, 0.95}) {
            const SlopeResult result = VapourPressureSlope(s, Tr * s.Tc, GetParam());
            ASSERT_FALSE(result.failed) << s.name << " " << Tr;
            EXPECT_LT(result.slope, 0);
            EXPECT_NEAR(result.slope / Difference(s, Tr * s.Tc, GetParam()), 1, 2e-5) << s.name << " " << Tr;
        }
    }
}

// Water at its boiling point: hVap = -R slope dz, 40650 kJ/kmol (IAPWS) with dz = 0.985 within 1 %.
TEST_P(Slope, GivesTheEnthalpyOfVaporisationOfWater) {
    const SlopeResult result = VapourPressureSlope(fluids::Water(), 373.124, GetParam());
    const double tolerance = GetParam() <= vpWagner && GetParam() != vpAntoineHigh ? 0.01 : 0.1;
    EXPECT_NEAR(-8.31451 * result.slope * 0.985 / 40650, 1, tolerance);
}

TEST(TheSlope, WithoutAnEquationIsZeroWithoutFailure) {
    for (const int index : {0, -1, 9}) {
        const SlopeResult result = VapourPressureSlope(fluids::Water(), 300, index);
        EXPECT_EQ(result.slope, 0);
        EXPECT_FALSE(result.failed);
    }
}

TEST(TheSlope, OfTheAugustEquationComesFromThreeConstantsNotFromTheBlock) {
    SubstanceData s = fluids::NButane();
    s.august = {1, 2};
    const double Tb = static_cast<double>(s.Tb);
    const double expected = std::log(s.pc / 101.325) * s.Tc * Tb / (Tb - s.Tc);
    EXPECT_DOUBLE_EQ(VapourPressureSlope(s, 300, vpAugust).slope, expected);
    EXPECT_DOUBLE_EQ(VapourPressureSlope(s, 400, vpAugust).slope, expected);
}

// The difference C' - T, where the pressure has C' + T, is kept; a stored C off 273.15 makes it show.
TEST(TheSlope, OfFrostKalkwarfTakesCLessT) {
    SubstanceData s = fluids::NButane();
    s.frostKalkwarf = {6, -1000, 263.15F, 0, 0, 0, 0, 0, 0, 100, 425, 0};
    const double T = 300;
    const double C = static_cast<double>(263.15F) - 273.15;
    const double kept = -T * T * 1000 * 2.30258509299405 / ((C - T) * (C - T));
    const double derivative = -T * T * 1000 * 2.30258509299405 / ((C + T) * (C + T));
    EXPECT_NEAR(VapourPressureSlope(s, T, vpFrostKalkwarf).slope, kept, 1e-9 * std::abs(kept));
    EXPECT_NEAR(Difference(s, T, vpFrostKalkwarf), derivative, 1e-4 * std::abs(derivative));
    EXPECT_GT(std::abs(kept - derivative), 0.1 * std::abs(kept));
}

TEST(TheSlope, OfWagnerFailsAtItsReferenceTemperature) {
    const SubstanceData s = fluids::Water();
    for (const double T : {static_cast<double>(s.wagner.w9), 700.0}) {
        const SlopeResult result = VapourPressureSlope(s, T, vpWagner);
        EXPECT_TRUE(result.failed);
        EXPECT_EQ(result.slope, 0);
    }
}

TEST(TheSlope, FailsOnAnyArithmeticFault) {
    SubstanceData s = fluids::Water();
    EXPECT_TRUE(VapourPressureSlope(s, std::numeric_limits<double>::quiet_NaN(), vpAntoineLow).failed);
    s.antoineLow.C = 0;
    s.antoineLow.B = 1000;
    EXPECT_TRUE(VapourPressureSlope(s, 273.15, vpAntoineLow).failed); // the pole of the equation
    s.pc = 0;
    EXPECT_TRUE(VapourPressureSlope(s, 300, vpAugust).failed);
}

} // namespace
} // namespace orva
