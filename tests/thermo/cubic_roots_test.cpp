// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/textbook_equations.h"

namespace orva {
namespace {

constexpr double R = 8.31451;

class CubicRoots : public testing::TestWithParam<EosRow> {};

INSTANTIATE_TEST_SUITE_P(Rows, CubicRoots, testing::ValuesIn(fluids::cubicRows),
                         [](const auto& row) { return "Row" + std::to_string(row.param); });

// What a root by Newton with the step limit 5e-7 and the deflation behind it can be off, from the remainder
// of the division and the rounding of its coefficients at the size of the first root; and from the rounding
// of the coefficients of the cubic.
double ExpectedError(const SubstanceModel& model, double T, double p, double firstRoot, double v) {
    const EosParameters& e = model.eos;
    const double eps = std::numeric_limits<double>::epsilon();
    const double q = R * T / p + e.B;
    const double c2 = e.D + e.C - q;
    const double c1 = e.D * e.C + e.A / p - (e.D + e.C) * q;
    const double c1Size = std::abs(e.D * e.C) + e.A / p + std::abs((e.D + e.C) * q);
    const double c0Size = e.A * e.B / p + std::abs(e.D * e.C * q);
    const double slope = std::abs((3 * v + 2 * c2) * v + c1);
    const double scale = std::max(std::abs(c2), std::abs(firstRoot));
    const double dr = 5e-7 * firstRoot;
    const double remainder = std::abs(3 * firstRoot + c2) * dr * dr + dr * dr * dr;
    const double rounding =
        eps
        * (v * v * v + (std::abs(c2) + q) * v * v + c1Size * v + c0Size
           + std::abs(v - firstRoot) * (scale * v + scale * std::abs(firstRoot) + c1Size));
    return (remainder + 20 * rounding) / slope;
}

TEST_P(CubicRoots, AgreeWithBisectionOfTheTextbookFormInExtendedPrecision) {
    int compared = 0, illConditioned = 0, lost = 0, threeRoots = 0;
    for (const SubstanceData& s : fluids::All()) {
        SubstanceModel model = fluids::ModelOf(s, GetParam());
        const textbook::Equation equation(model);
        for (double Tr = 0.3; Tr <= 3.001; Tr += 0.05)
            for (double p = 1e-3; p <= 1.001e5; p *= std::pow(10, 0.25)) {
                const double T = Tr * s.Tc;
                SetEosCoefficients(model, T);
                const CubicSolution solution = SolveEosCubic(model, T, p);
                ASSERT_FALSE(solution.failed) << s.name << " " << T << " " << p;
                const auto& roots = model.work.Roots;
                const std::vector<long double> exact = equation.Volumes(T, p);
                ASSERT_FALSE(exact.empty());
                // The iteration starts at R T / p and as a rule finds the largest root.
                const double first = static_cast<double>(exact.back());
                const std::size_t given = solution.rootCount == 3 ? 3 : 1;
                if (given != exact.size()) {
                    // The liquid is lost where the vapour volume is larger by more than half of the digits.
                    EXPECT_GT(R * T / p, 5e6 * model.eos.B) << s.name << " " << T << " " << p;
                    EXPECT_NEAR(roots[given - 1], first, 1e-9 * first);
                    ++lost;
                    continue;
                }
                threeRoots += given == 3 ? 1 : 0;
                for (std::size_t i = 0; i < given; ++i) {
                    const double v = static_cast<double>(exact[i]);
                    const double error = ExpectedError(model, T, p, std::max(first, R * T / p), v);
                    if (!(error < 0.01 * v)) {
                        ++illConditioned;
                        continue;
                    }
                    ++compared;
                    EXPECT_NEAR(roots[i], v, error + 2e-14 * v)
                        << s.name << " T=" << T << " p=" << p << " root " << i << " of " << given;
                }
            }
    }
    EXPECT_GT(compared, 7000);
    EXPECT_GT(threeRoots, 300);
    // The two small roots lose their digits in the deflation where R T / p is larger by seven orders of
    // magnitude.
    EXPECT_LT(illConditioned, compared / 10);
    EXPECT_LT(lost, compared / 40);
}

TEST_P(CubicRoots, GiveBackTheirPressure) {
    for (const SubstanceData& s : fluids::All()) {
        SubstanceModel model = fluids::ModelOf(s, GetParam());
        for (double Tr = 0.5; Tr < 2; Tr += 0.1)
            for (const double p : {10.0, 1000.0, 20000.0}) {
                const double T = Tr * s.Tc;
                SetEosCoefficients(model, T);
                const CubicSolution solution = SolveEosCubic(model, T, p);
                const int vapour = solution.rootCount == 3 ? 2 : 0;
                const double v = model.work.Roots[static_cast<std::size_t>(vapour)];
                const PressureResult back = EosPressure(model, T, v);
                ASSERT_FALSE(back.failed);
                EXPECT_NEAR(back.p / (R * T / (v - model.eos.B)), p / (R * T / (v - model.eos.B)), 1e-9)
                    << s.name << " " << T << " " << p;
            }
    }
}

TEST_P(CubicRoots, AreAscending) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam());
    SetEosCoefficients(model, 350);
    ASSERT_EQ(SolveEosCubic(model, 350, 900).rootCount, 3);
    EXPECT_GT(model.work.Roots[0], model.eos.B);
    EXPECT_LT(model.work.Roots[0], model.work.Roots[1]);
    EXPECT_LT(model.work.Roots[1], model.work.Roots[2]);
}

TEST_P(CubicRoots, MeetTheIdealGasAtLowPressure) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam());
    const double T = 600;
    SetEosCoefficients(model, T);
    const double B = model.eos.B - model.eos.A / (R * T);
    for (const double p : {1e-3, 1e-2, 1e-1}) {
        ASSERT_FALSE(SolveEosCubic(model, T, p).failed);
        const double v = std::max(model.work.Roots[0], model.work.Roots[2]);
        EXPECT_NEAR(v - R * T / p, B, 1e-3 * std::abs(B) + 1e-8)
            << p; // truncated after the second coefficient
    }
}

TEST_P(CubicRoots, AreOneAboveTheCriticalTemperature) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), GetParam());
    for (const double p : {100.0, 22064.0, 80000.0}) {
        SetEosCoefficients(model, 800);
        const CubicSolution solution = SolveEosCubic(model, 800, p);
        EXPECT_FALSE(solution.failed);
        EXPECT_EQ(solution.rootCount, 1);
        EXPECT_GT(model.work.Roots[0], model.eos.B);
    }
}

// Two roots below the co-volume have no meaning; the third one takes the first place.
TEST(TheCubic, KeepsOnlyTheRootAboveTheCoVolume) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosPengRobinson);
    const double T = 3 * 425.125; // there the attraction term has two zeros of its own below the co-volume
    SetEosCoefficients(model, T);
    const CubicSolution solution = SolveEosCubic(model, T, 1);
    ASSERT_FALSE(solution.failed);
    EXPECT_EQ(solution.rootCount, 1);
    EXPECT_EQ(model.work.Roots[0], model.work.Roots[2]);
    EXPECT_LT(model.work.Roots[1], model.eos.B);
    EXPECT_NEAR(model.work.Roots[0], R * T, 1);
}

// With A = C = D = 0 the cubic is v^2 (v - R T / p - B), roots 0, 0, R T / p + B.
TEST(TheCubic, CountsARootAtTheCoVolumeAsNotBelowIt) {
    SubstanceModel model;
    model.selection.eos = eosVanDerWaals;
    model.eos.B = 0;
    const CubicSolution solution = SolveEosCubic(model, 300, 100);
    EXPECT_EQ(solution.rootCount, 3);
    EXPECT_NEAR(model.work.Roots[0], 0, 1e-12);
    EXPECT_NEAR(model.work.Roots[2], R * 3, 1e-12);
}

TEST(TheCubic, LeavesTheRootsAloneWhenItsCoefficientsCannotBeFormed) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    SetEosCoefficients(model, 500);
    for (const double p : {0.0, std::numeric_limits<double>::quiet_NaN()}) {
        model.work.Roots = {1, 2, 3};
        const CubicSolution solution = SolveEosCubic(model, 500, p);
        EXPECT_TRUE(solution.failed);
        EXPECT_EQ(solution.rootCount, 0);
        EXPECT_THAT(model.work.Roots, testing::ElementsAre(1, 2, 3));
    }
}

TEST(TheCubic, KeepsTheSecondRootOfBeforeWhenThereIsOnlyOne) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    SetEosCoefficients(model, 300);
    model.work.Roots = {1, 2, 3};
    ASSERT_EQ(SolveEosCubic(model, 300, 50000).rootCount, 1);
    EXPECT_EQ(model.work.Roots[1], 2);
    EXPECT_EQ(model.work.Roots[2], 0);
}

} // namespace
} // namespace orva
