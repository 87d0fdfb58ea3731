// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "thermo/vapour_pressure.h"

#include <cmath>
#include <limits>

#include "thermo/fluids.h"

namespace orva {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

double PressureOf(const SubstanceData& s, double T, int equation) {
    const VapourPressureResult result = VapourPressure(s, T, equation);
    EXPECT_FALSE(result.failed) << s.name << " " << T << " " << equation;
    return result.value;
}

// Saturation pressures of the reference equations of state (sources in fluids.h; NIST Chemistry WebBook
// prints the same figures within their digits).
struct LiteraturePoint {
    SubstanceData (*fluid)();
    double T, p;
};

TEST(TheWagnerEquation, MeetsTheReferenceEquationsOfState) {
    for (const LiteraturePoint& point : {LiteraturePoint{fluids::Water, 300, 3.5368},
                                         {fluids::Water, 373.124, 101.325},
                                         {fluids::Water, 450, 932.2},
                                         {fluids::Water, 600, 12345},
                                         {fluids::Ammonia, 239.82, 101.325},
                                         {fluids::Ammonia, 300, 1061.7},
                                         {fluids::NButane, 272.66, 101.325},
                                         {fluids::NButane, 300, 257.6},
                                         {fluids::CarbonDioxide, 273.15, 3485.1},
                                         {fluids::CarbonDioxide, 216.592, 517.95}})
        EXPECT_NEAR(PressureOf(point.fluid(), point.T, vpWagner) / point.p, 1, 1e-3)
            << point.fluid().name << point.T;
}

TEST(TheAntoineEquation, MeetsTheReferenceEquationsOfStateInItsRange) {
    EXPECT_NEAR(PressureOf(fluids::Water(), 300, vpAntoineLow), 3.5368, 0.005 * 3.5368);
    EXPECT_NEAR(PressureOf(fluids::Water(), 373.124, vpAntoineLow), 101.325, 0.005 * 101.325);
    EXPECT_NEAR(PressureOf(fluids::Ammonia(), 239.82, vpAntoineLow), 101.325, 0.005 * 101.325);
    EXPECT_NEAR(PressureOf(fluids::NButane(), 272.66, vpAntoineLow), 101.325, 0.005 * 101.325);
    // Fits over the whole upper range, off by up to 1.3 %.
    EXPECT_NEAR(PressureOf(fluids::Water(), 450, vpAntoineHigh), 932.2, 0.015 * 932.2);
    EXPECT_NEAR(PressureOf(fluids::Ammonia(), 300, vpAntoineHigh), 1061.7, 0.015 * 1061.7);
    EXPECT_NEAR(PressureOf(fluids::NButane(), 300, vpAntoineHigh), 257.6, 0.015 * 257.6);
}

TEST(TheFrostKalkwarfEquation, MeetsTheReferenceEquationsOfState) {
    EXPECT_NEAR(PressureOf(fluids::Water(), 300, vpFrostKalkwarf), 3.5368, 0.01 * 3.5368);
    EXPECT_NEAR(PressureOf(fluids::Water(), 373.124, vpFrostKalkwarf), 101.325, 0.01 * 101.325);
    EXPECT_NEAR(PressureOf(fluids::Ammonia(), 300, vpFrostKalkwarf), 1061.7, 0.01 * 1061.7);
    EXPECT_NEAR(PressureOf(fluids::NButane(), 350, vpFrostKalkwarf), 945.73, 0.01 * 945.73);
}

TEST(TheAugustEquation, GoesThroughTheBoilingAndTheCriticalPoint) {
    for (const SubstanceData& s : fluids::All()) {
        // The stored constants are single precision, ln p = A + B / T with A of about 15.
        EXPECT_NEAR(PressureOf(s, s.Tb, vpAugust), 101.325, 1e-5 * 101.325) << s.name;
        EXPECT_NEAR(PressureOf(s, s.Tc, vpAugust), s.pc, 1e-5 * s.pc) << s.name;
    }
}

class Equation : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(All, Equation, testing::Range(1, 9),
                         [](const auto& row) { return std::string(VaporPressureCodeOf(row.param)); });

// The iterations end with a relative step of 1e-4 and are quadratic before that; in p that is ten times as
// much.
TEST_P(Equation, IsTheSameInBothDirections) {
    for (const SubstanceData& s : fluids::All()) {
        if (GetParam() == vpAntoineLow && s.antoineLow.Tlo == 0)
            continue;
        for (double Tr = 0.6; Tr < 0.99; Tr += 0.03) {
            const double p = PressureOf(s, Tr * s.Tc, GetParam());
            if (p > s.pc)
                continue; // an extrapolated Antoine equation may pass the critical pressure
            const VapourPressureResult back = VapourPressureTemperature(s, p, GetParam());
            ASSERT_FALSE(back.failed) << s.name << " " << Tr;
            EXPECT_NEAR(back.value / (Tr * s.Tc), 1, 2e-6) << s.name << " " << Tr;
        }
    }
}

TEST_P(Equation, FailsAboveTheCriticalPointAndWithoutATemperature) {
    const SubstanceData s = fluids::NButane();
    for (const double T : {std::nextafter(s.Tc, 1e3), 1000.0, 9.9e-7, 0.0, -1.0, infinity, -infinity, nan}) {
        const VapourPressureResult result = VapourPressure(s, T, GetParam());
        EXPECT_TRUE(result.failed) << T;
        EXPECT_EQ(result.value, 0) << T;
    }
    for (const double p : {std::nextafter(s.pc, 1e4), 1e6, 0.0, -1.0, infinity, nan}) {
        const VapourPressureResult result = VapourPressureTemperature(s, p, GetParam());
        EXPECT_TRUE(result.failed) << p;
        EXPECT_EQ(result.value, 0) << p;
    }
}

TEST_P(Equation, IncludesTheCriticalTemperatureButForWagner) {
    const SubstanceData s = fluids::NButane();
    const VapourPressureResult result = VapourPressure(s, s.Tc, GetParam());
    EXPECT_EQ(result.failed, GetParam() == vpWagner); // tau is too small there
    if (GetParam() != vpWagner) {
        EXPECT_NEAR(result.value / s.pc, 1, 0.12); // the low Antoine equation extrapolates far
    }
}

TEST_P(Equation, FailsWithoutItsParameters) {
    SubstanceData s = fluids::NamedFluid("leer", "X", "0-00-0", 50);
    fluids::SetCriticalData(s, 500, 4000, 300, 0.2, 350);
    for (const double T : {100.0, 273.15, 300.0, 499.0}) {
        const VapourPressureResult result = VapourPressure(s, T, GetParam());
        EXPECT_TRUE(result.failed) << T;
        EXPECT_EQ(result.value, 0) << T;
    }
    if (GetParam() == vpAugust)
        return; // makes its constants itself in this direction
    const VapourPressureResult result = VapourPressureTemperature(s, 200, GetParam());
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.value, 0);
}

TEST_P(Equation, NeverReturnsANonFiniteValueForAnyInput) {
    for (const SubstanceData& s : fluids::All())
        for (const double x : {1e-300, 1e-30, 1e-6, 1e-3, 1.0, 5.0, 20.0, 100.0, 1e3, 1e5, 1e300}) {
            for (const VapourPressureResult& result :
                 {VapourPressure(s, x, GetParam()), VapourPressureTemperature(s, x, GetParam())}) {
                EXPECT_TRUE(std::isfinite(result.value));
                EXPECT_TRUE(result.failed ? result.value == 0 : result.value > 0) << s.name << " " << x;
            }
        }
}

TEST(TheAugustEquation, DoesNotUseItsStoredBlockForTheTemperature) {
    SubstanceData s = fluids::NButane();
    const double expected = VapourPressureTemperature(s, 300, vpAugust).value;
    s.august = {1, 2};
    EXPECT_EQ(VapourPressureTemperature(s, 300, vpAugust).value, expected);
    EXPECT_NEAR(VapourPressureTemperature(s, 101.325, vpAugust).value, s.Tb, 1e-9);
    EXPECT_NEAR(VapourPressureTemperature(s, s.pc, vpAugust).value, s.Tc, 1e-9);
}

TEST(NoEquation, Fails) {
    for (const int index : {0, -1, 9, 100}) {
        EXPECT_TRUE(VapourPressure(fluids::Water(), 300, index).failed);
        EXPECT_EQ(VapourPressure(fluids::Water(), 300, index).value, 0);
        EXPECT_TRUE(VapourPressureTemperature(fluids::Water(), 300, index).failed);
    }
}

TEST(TheWagnerEquation, FailsWhereItsSumIsOutOfAllBounds) {
    SubstanceData s = fluids::Water();
    s.wagner.w1 = -1000;
    EXPECT_TRUE(VapourPressure(s, 300, vpWagner).failed);
}

TEST(TheWagnerEquation, FindsTheTemperatureWithoutABoilingTemperature) {
    SubstanceData s = fluids::Water();
    const double expected = VapourPressureTemperature(s, 500, vpWagner).value;
    s.Tb = 0; // starts at 0.8 T(cr) then
    EXPECT_NEAR(VapourPressureTemperature(s, 500, vpWagner).value, expected, 1e-4 * expected);
}

TEST(TheWagnerEquation, TakesForeignReferenceConstants) {
    SubstanceData s = fluids::Water();
    s.wagner.w9 = 640; // below T(cr): fails between the two
    EXPECT_TRUE(VapourPressure(s, 645, vpWagner).failed);
    EXPECT_FALSE(VapourPressure(s, 600, vpWagner).failed);
}

// In the stored block C is relative to the Celsius scale and F less 2.
TEST(TheFrostKalkwarfEquation, ShiftsTheStoredCAndF) {
    SubstanceData s = fluids::NButane();
    s.frostKalkwarf = {6, -1000, 263.15F, 0, 0, 0, 0, 0, 0, 100, 425, 0};
    EXPECT_NEAR(PressureOf(s, 300, vpFrostKalkwarf), std::pow(10, 6 - 1000.0 / 290), 1e-4);
    s.kfw = {6, -1000, -10, 0, 0, 2, 0, 0, 0, 0, 0, 0};
    EXPECT_NEAR(PressureOf(s, 300, vpFrostKalkwarfVdW), std::pow(10, 6 - 1000.0 / 290), 1e-6);
}

TEST(TheFrostKalkwarfEquation, IsImplicitInThePressureWhereItHasTheTermInP) {
    const SubstanceData s = fluids::NButane();
    for (const int index : {vpFrostKalkwarfVdW, vpFrostKalkwarfRK}) {
        const FrostKalkwarfBlock& k = index == vpFrostKalkwarfVdW ? s.kfw : s.kfr;
        ASSERT_GT(k.c5, 0);
        for (const double T : {280.0, 350.0, 400.0}) {
            const double p = PressureOf(s, T, index);
            const double right = k.c1 + k.c2 / T + k.c4 * std::log10(T) + k.c5 * p / std::pow(T, k.c6);
            EXPECT_NEAR(std::log10(p), right, 1e-6) << index << " " << T;
        }
    }
}

TEST(TheFrostKalkwarfEquation, StaysExplicitForATrueZeroOfTheTermInP) {
    SubstanceData s = fluids::NButane();
    const double expected = PressureOf(s, 350, vpFrostKalkwarf);
    s.frostKalkwarf.c5 = 1e-37F;
    EXPECT_EQ(PressureOf(s, 350, vpFrostKalkwarf), expected);
}

} // namespace
} // namespace orva
