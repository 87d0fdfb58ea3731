// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "calc/eos_diagnosis.h"
#include "calc_fixture.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"

namespace orva::test {
namespace {

struct Diagnosis : testing::Test {
    Calculation c;

    EosDiagnosis Of(NumberStyle style = {}) { return DiagnoseEos(c.state.eosState, c.model, c.names, style); }
    EosDiagnosis At(double T, double p) {
        c.At(T, p);
        return Of();
    }
    EosDiagnosis AtDensity(double T, float rho) {
        c.batch.rows[0] = {};
        c.batch.rows[0].T = T;
        c.batch.rows[0].rhoV = rho;
        CalculationContext context = c.Context();
        CalcBatch(context, kindTRho, 0);
        return Of();
    }
};

TEST_F(Diagnosis, OfVapourWithThreeRoots) {
    const EosDiagnosis d = At(300, 100);
    EXPECT_EQ(d.lblEOSType, "CEOS Peng / Robinson");
    EXPECT_EQ(d.lblixk, "3");
    EXPECT_TRUE(d.threeRoots);
    EXPECT_EQ(d.windowHeight, 8000);
    for (int i = 0; i < 3; ++i) {
        const auto at = static_cast<std::size_t>(i);
        EXPECT_TRUE(d.lines[at].visible);
        EXPECT_EQ(d.lines[at].solution,
                  "v(" + std::to_string(i + 1) + ") =" + Str(static_cast<float>(c.state.eosState.v[at])));
    }
    EXPECT_EQ(d.lines[0].stability, "(metastabil)");
    EXPECT_EQ(d.lines[1].stability, "(instabil)");
    EXPECT_EQ(d.lines[2].stability, "(stabil, V-Phase)");
    EXPECT_EQ(d.lines[0].kind, RootStability::Metastable);
    EXPECT_EQ(d.lines[1].kind, RootStability::Unstable);
    EXPECT_EQ(d.lines[2].kind, RootStability::Stable);
}

TEST_F(Diagnosis, OfLiquidWithThreeRoots) {
    const EosDiagnosis d = At(300, 500);
    EXPECT_EQ(d.lines[0].stability, "(stabil, L-Phase)");
    EXPECT_EQ(d.lines[1].stability, "(instabil)");
    EXPECT_EQ(d.lines[2].stability, "(metastabil)");
}

TEST_F(Diagnosis, OfEquilibriumHasTwoStablePhasesAndEqualAreas) {
    const double pLV = EosSaturationPressure(c.model, 300).value;
    const EosDiagnosis d = At(300, pLV);
    EXPECT_EQ(d.lines[0].stability, "(stabil, L-Phase)");
    EXPECT_EQ(d.lines[1].stability, "(instabil)");
    EXPECT_EQ(d.lines[2].stability, "(stabil, V-Phase)");
    EXPECT_GT(d.upperArea, 0);
    EXPECT_LT(d.lowerArea, 0);
    EXPECT_NEAR(d.upperArea, -d.lowerArea, 2e-3 * d.upperArea);
    EXPECT_EQ(d.lblA_o, "A(o) =" + Str(static_cast<float>(d.upperArea)) + " kJ/kmol");
    EXPECT_EQ(d.lblA_u, "A(u) =" + Str(static_cast<float>(d.lowerArea)) + " kJ/kmol");
    EXPECT_THAT(d.lblA_x, testing::StartsWith("(A(o) + A(u)) / (A(o) - A(u)) ="));
}

TEST_F(Diagnosis, OneRootHasOneLineAndNoAreas) {
    const EosDiagnosis liquid = At(200, 3000);
    EXPECT_EQ(liquid.lblixk, "1");
    EXPECT_FALSE(liquid.threeRoots);
    EXPECT_EQ(liquid.windowHeight, 5600);
    EXPECT_EQ(liquid.lines[0].stability, "(stabil, L-Phase)");
    EXPECT_FALSE(liquid.lines[1].visible || liquid.lines[2].visible);
    EXPECT_EQ(liquid.lines[1].solution + liquid.lines[2].stability + liquid.lblA_o, "");
    EXPECT_EQ(At(400, 100).lines[0].stability, "(stabil, V-Phase)");
}

TEST_F(Diagnosis, UndividedFluidIsCalledBySideOfTheCriticalTemperature) {
    EXPECT_EQ(At(300, 5000).lines[0].stability, "(stabil, L-Phase)");
    EXPECT_EQ(At(500, 100).lines[0].stability, "(stabil, V-Phase)");
    const EosDiagnosis d = At(500, 6000);
    EXPECT_EQ(d.lblixk, "1");
    EXPECT_EQ(d.lines[0].stability, "(stabil, V-Phase)");
}

TEST_F(Diagnosis, WritesNumbersAsTheSystemDoes) {
    c.At(300, 100);
    EXPECT_THAT(Of({','}).lines[1].solution, testing::StartsWith("v(2) = 0,51217"));
}

TEST_F(Diagnosis, OfAGivenDensityShowsTheRootsAtThePressureFound) {
    const EosDiagnosis vapour = AtDensity(300, 2);
    ASSERT_TRUE(vapour.threeRoots);
    EXPECT_NEAR(vapour.lines[2].v, 58.1222 / 2, 1e-3);
    EXPECT_EQ(vapour.lines[2].stability, "(stabil, V-Phase)");
    const EosDiagnosis hot = AtDensity(500, 100);
    EXPECT_FALSE(hot.threeRoots);
    EXPECT_EQ(hot.lblixk, "1");
    EXPECT_NEAR(hot.lines[0].v, 58.1222 / 100, 1e-4);
    const EosDiagnosis wet = AtDensity(300, 100);
    EXPECT_EQ(wet.lines[0].stability, "(stabil, L-Phase)");
    EXPECT_EQ(wet.lines[2].stability, "(stabil, V-Phase)");
    EXPECT_NEAR(wet.upperArea, -wet.lowerArea, 2e-3 * wet.upperArea);
}

TEST_F(Diagnosis, LeavesTheModelAlone) {
    c.At(300, 100);
    const auto roots = c.model.work.Roots;
    const double A = c.model.eos.A;
    c.state.eosState.T = 350;
    DrawIsotherm(Of(), c.model);
    EXPECT_EQ(c.model.work.Roots, roots);
    EXPECT_EQ(c.model.eos.A, A);
}

TEST_F(Diagnosis, IsothermPointsLieOnTheEquation) {
    const auto points = IsothermPoints(c.model, 300, 0.09, 30, 61);
    ASSERT_EQ(points.size(), 61U);
    EXPECT_EQ(points.front().v, 0.09);
    EXPECT_EQ(points.back().v, 30);
    for (std::size_t i = 0; i < points.size(); ++i) {
        SetEosCoefficients(c.model, 300);
        EXPECT_DOUBLE_EQ(points[i].p, EosPressure(c.model, 300, points[i].v).p);
        if (i > 0) {
            EXPECT_NEAR(std::log(points[i].v / points[i - 1].v), std::log(30 / 0.09) / 60, 1e-12);
        }
    }
}

TEST_F(Diagnosis, IsothermBeginsAboveTheCoVolume) {
    const auto points = IsothermPoints(c.model, 300, 0.01, 1, 50);
    ASSERT_FALSE(points.empty());
    EXPECT_LT(points.size(), 50U);
    EXPECT_GT(points.front().v, 0.0724);
    EXPECT_TRUE(IsothermPoints(c.model, 300, 1, 0.5, 50).empty());
    EXPECT_TRUE(IsothermPoints(c.model, 300, 0, 0.5, 50).empty());
    EXPECT_TRUE(IsothermPoints(c.model, 300, 0.1, 0.5, 1).empty());
}

TEST_F(Diagnosis, PictureShowsTheLoopTheIsobarAndTheRoots) {
    for (const double T : {200.0, 300.0, 380.0, 420.0}) {
        const EosDiagnosis d = At(T, EosSaturationPressure(c.model, T).value);
        ASSERT_TRUE(d.threeRoots) << T;
        const IsothermPicture picture = DrawIsotherm(d, c.model);
        EXPECT_LT(picture.vMin, d.lines[0].v);
        EXPECT_GT(picture.vMax, d.lines[2].v);
        EXPECT_LT(picture.pMin, d.p);
        EXPECT_GT(picture.pMax, d.p);
        for (const DiagnosisLine& line : d.lines) // the curve goes through every root
            EXPECT_TRUE(std::any_of(picture.curve.begin(), picture.curve.end(),
                                    [&](const IsothermPoint& point) { return point.v == line.v; }))
                << T;
        double top = 0;
        for (const IsothermPoint& point : picture.upperLobe) {
            EXPECT_GE(point.p, d.p * (1 - 1e-4)) << T;
            top = std::max(top, point.p);
        }
        EXPECT_LT(top, picture.pMax) << T;
        for (const IsothermPoint& point : picture.lowerLobe)
            EXPECT_LE(point.p, d.p * (1 + 1e-4) + 0.1) << T;
    }
}

// The lobes as drawn have the areas of the labels.
TEST_F(Diagnosis, LobesHaveTheAreasOfMaxwell) {
    const EosDiagnosis d = At(380, 1500);
    ASSERT_TRUE(d.threeRoots);
    const IsothermPicture picture = DrawIsotherm(d, c.model);
    const auto area = [&d](const std::vector<IsothermPoint>& lobe) {
        double sum = 0;
        for (std::size_t i = 1; i < lobe.size(); ++i)
            sum += (lobe[i].v - lobe[i - 1].v) * ((lobe[i].p + lobe[i - 1].p) / 2 - d.p);
        return sum;
    };
    EXPECT_NEAR(area(picture.upperLobe), d.upperArea, 0.01 * d.upperArea);
    EXPECT_NEAR(area(picture.lowerLobe), d.lowerArea, -0.01 * d.lowerArea);
}

TEST_F(Diagnosis, PictureOfOneRootHoldsItInTheWindow) {
    for (const auto& [T, p] : {std::pair{500.0, 6000.0}, {500.0, 100.0}, {300.0, 5000.0}, {200.0, 3000.0}}) {
        const EosDiagnosis d = At(T, p);
        const IsothermPicture picture = DrawIsotherm(d, c.model);
        EXPECT_LT(picture.vMin, d.lines[0].v);
        EXPECT_GT(picture.vMax, d.lines[0].v);
        EXPECT_LT(picture.pMin, p);
        EXPECT_GT(picture.pMax, p);
        EXPECT_FALSE(picture.curve.empty());
        EXPECT_TRUE(picture.lowerLobe.empty() && picture.upperLobe.empty());
    }
}

TEST_F(Diagnosis, OfACalculationWithoutTheCubicEquationNamesNoRoot) {
    At(300, 100); // leaves its roots
    c.batch.rows[0].T = 100;
    CalculationContext context = c.Context();
    CalcBatch(context, kindSolidDensity, 0);
    const EosDiagnosis d = Of();
    EXPECT_EQ(d.lblixk, "0");
    for (const DiagnosisLine& line : d.lines)
        EXPECT_TRUE(!line.visible && line.solution.empty() && line.stability.empty());
    EXPECT_TRUE(DrawIsotherm(d, c.model).curve.empty());
}

TEST_F(Diagnosis, WithoutAStateThereIsNoPicture) {
    const EosDiagnosis d = DiagnoseEos({}, c.model, c.names, {});
    EXPECT_TRUE(DrawIsotherm(d, c.model).curve.empty());
}

} // namespace
} // namespace orva::test
