// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/textbook_equations.h"

namespace orva {
namespace {

class EqualAreas : public testing::TestWithParam<EosRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, EqualAreas, testing::ValuesIn(fluids::cubicRows),
                         [](const auto& row) { return "Row" + std::to_string(row.param); });

// Integral of p - pLevel by Simpson's rule.
double Lobe(const textbook::Equation& equation, double T, double pLevel, double va, double vb) {
    constexpr int n = 2000;
    const long double h = (static_cast<long double>(vb) - va) / n;
    long double sum = 0;
    for (int i = 0; i <= n; ++i)
        sum += (equation.Pressure(T, va + i * h) - pLevel) * (i == 0 || i == n ? 1 : i % 2 == 1 ? 4 : 2);
    return static_cast<double>(sum * h / 3);
}

TEST_P(EqualAreas, AreTheAreasBetweenIsothermAndIsobar) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam());
    const double T = 0.85 * model.substance.Tc;
    const textbook::Equation equation(model);
    const double p = static_cast<double>(equation.SaturationPressure(T)) * 0.97;
    SetEosCoefficients(model, T);
    ASSERT_EQ(SolveEosCubic(model, T, p).rootCount, 3);
    const auto v = model.work.Roots;
    const AreaRatio areas = MaxwellAreaRatio(model, T, p);
    ASSERT_FALSE(areas.failed);
    const double area1 = Lobe(equation, T, p, v[1], v[2]);
    const double area2 = Lobe(equation, T, p, v[0], v[1]);
    EXPECT_NEAR(areas.area1 / area1, 1, 1e-8);
    EXPECT_NEAR(areas.area2 / area2, 1, 1e-8);
    EXPECT_NEAR(areas.ratio, (area1 + area2) / (area1 - area2), 1e-8);
}

TEST_P(EqualAreas, DifferByTheStableVapourBelowSaturationAndByTheStableLiquidAbove) {
    for (const SubstanceData& s : fluids::All()) {
        SubstanceModel model = fluids::ModelOf(s, GetParam());
        const textbook::Equation equation(model);
        for (const double Tr : {0.8, 0.9, 0.98}) {
            const double T = Tr * s.Tc;
            const double pLV = static_cast<double>(equation.SaturationPressure(T));
            SetEosCoefficients(model, T);
            ASSERT_EQ(SolveEosCubic(model, T, 0.995 * pLV).rootCount, 3);
            EXPECT_GT(MaxwellAreaRatio(model, T, 0.995 * pLV).ratio, 0);
            ASSERT_EQ(SolveEosCubic(model, T, 1.005 * pLV).rootCount, 3);
            EXPECT_LT(MaxwellAreaRatio(model, T, 1.005 * pLV).ratio, 0);
        }
    }
}

// Only for van der Waals and Berthelot is C = D; the logarithm of the general form tends to the same value.
TEST(TheAreaIntegral, HasAFormOfItsOwnWhereTheAttractionHasADoublePole) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosVanDerWaals);
    SetEosCoefficients(model, 380);
    ASSERT_EQ(model.eos.C, model.eos.D);
    ASSERT_EQ(SolveEosCubic(model, 380, 2200).rootCount, 3);
    const AreaRatio exact = MaxwellAreaRatio(model, 380, 2200);
    model.eos.C = -1e-6;
    model.eos.D = 1e-6;
    const AreaRatio limit = MaxwellAreaRatio(model, 380, 2200);
    ASSERT_FALSE(exact.failed || limit.failed);
    EXPECT_NEAR(exact.area1, limit.area1, 1e-5 * std::abs(exact.area1));
    EXPECT_NEAR(exact.area2, limit.area2, 1e-5 * std::abs(exact.area2));
    for (const EosRow row : {eosRedlichKwong, eosSoaveRedlichKwong, eosPengRobinson}) {
        SubstanceModel other = fluids::ModelOf(fluids::NButane(), row);
        SetEosCoefficients(other, 380);
        EXPECT_NE(other.eos.C, other.eos.D);
    }
}

TEST(TheAreaIntegral, FailsWhereALogarithmHasNoValue) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson);
    SetEosCoefficients(model, 380);
    const double B = model.eos.B;
    for (const std::array<double, 3> roots : {std::array<double, 3>{0.5 * B, 2 * B, 3 * B},
                                              {B, 2 * B, 3 * B},
                                              {2 * B, 2 * B, 2 * B},
                                              {std::numeric_limits<double>::quiet_NaN(), 2 * B, 3 * B}}) {
        model.work.Roots = roots;
        const AreaRatio areas = MaxwellAreaRatio(model, 380, 1000);
        EXPECT_TRUE(areas.failed);
        EXPECT_EQ(areas.ratio, 0);
    }
}

} // namespace
} // namespace orva
