// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gtest/gtest.h>

#include "thermo/fluids.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

// 27 / (64 R^2) in units of lg: factor of E. van der Waals: 27 / 64 / ln 10; Redlich/Kwong: 0.42748 / ln 10.
TEST(TheCorrelatedConstants, HaveTheAttractionOfTheirEquationOfState) {
    EXPECT_NEAR(27.0 / 64.0 / std::log(10), 0.183218, 2e-6);
    EXPECT_NEAR(0.42748 / std::log(10), 0.185652, 1e-6);
    const SubstanceData s = fluids::Water();
    EXPECT_NEAR(s.kfw.c5, 0.183218 * s.Tc * s.Tc / s.pc, 1e-6 * s.kfw.c5);
    EXPECT_NEAR(s.kfr.c5, 0.185652 * std::pow(s.Tc, 2.5) / s.pc, 1e-6 * s.kfr.c5);
}

TEST(TheThompsonEquation, GoesThroughTheBoilingAndTheCriticalPoint) {
    for (const SubstanceData& s : fluids::All()) {
        const VapourPressureResult boiling = VapourPressure(s, s.Tb, vpThompson);
        const VapourPressureResult critical = VapourPressure(s, s.Tc, vpThompson);
        ASSERT_FALSE(boiling.failed || critical.failed);
        EXPECT_NEAR(boiling.value / 101.325, 1, 5e-6) << s.name; // the constants are rounded to single
        EXPECT_NEAR(critical.value / s.pc, 1, 5e-6) << s.name;
        EXPECT_NEAR(s.thompson.C, (18 - 0.19 * static_cast<double>(s.Tb)) + 273.15, 1e-4);
    }
}

class CorrelatedFrostKalkwarf : public testing::TestWithParam<int> {
protected:
    static const FrostKalkwarfBlock& BlockOf(const SubstanceData& s) {
        return GetParam() == vpFrostKalkwarfVdW ? s.kfw : s.kfr;
    }
};

INSTANTIATE_TEST_SUITE_P(Both, CorrelatedFrostKalkwarf, testing::Values(6, 7),
                         [](const auto& row) { return std::string(VaporPressureCodeOf(row.param)); });

// A, B, D are large and cancel; single precision leaves 1e-5 of p.
TEST_P(CorrelatedFrostKalkwarf, GoesThroughTheBoilingAndTheCriticalPoint) {
    for (const SubstanceData& s : fluids::All()) {
        const FrostKalkwarfBlock& k = BlockOf(s);
        const auto imbalance = [&](double T, double p) {
            return k.c1 + k.c2 / T + k.c4 * std::log10(T) + k.c5 * p / std::pow(T, k.c6) - std::log10(p);
        };
        EXPECT_NEAR(imbalance(s.Tc, s.pc), 0, 2e-5) << s.name;
        EXPECT_NEAR(imbalance(static_cast<double>(s.Tb), 101.325), 0, 2e-5) << s.name;
        const VapourPressureResult boiling = VapourPressure(s, s.Tb, GetParam());
        ASSERT_FALSE(boiling.failed);
        EXPECT_NEAR(boiling.value / 101.325, 1, 1e-4) << s.name;
    }
}

TEST_P(CorrelatedFrostKalkwarf, LinksItsTwoTemperatureTerms) {
    for (const SubstanceData& s : fluids::All()) {
        const FrostKalkwarfBlock& k = BlockOf(s);
        EXPECT_NEAR(k.c4, 1.8 / s.Tc * static_cast<double>(k.c2) + 2.67, 1e-5 * std::abs(k.c4)) << s.name;
        EXPECT_EQ(k.c3, 0);
        EXPECT_EQ(k.c6, GetParam() == vpFrostKalkwarfVdW ? 2.0F : 2.5F);
        EXPECT_EQ(k.c7, 0);
        EXPECT_EQ(k.c8, 0);
        EXPECT_EQ(k.c9, 0);
    }
}

// B and E enter the later formulas at full precision and are rounded only when stored.
TEST_P(CorrelatedFrostKalkwarf, RoundsOnlyWhatItStores) {
    const SubstanceData s = fluids::Ammonia();
    const bool vdW = GetParam() == vpFrostKalkwarfVdW;
    const double Tc = static_cast<float>(s.Tc), pc = static_cast<float>(s.pc), Tb = s.Tb;
    const double n = vdW ? 2 : 2.5, factor = vdW ? 0.183218 : 0.185652;
    const auto lg = [](double x) { return std::log(x) / 2.30258509299405; };
    const double E = factor * std::pow(Tc, n) / pc;
    const double r = Tb / Tc;
    const double k = lg(101.325 / pc) - 2.67 * lg(r) - factor * ((101.325 / pc) / std::pow(r, n) - 1);
    const double B = Tc * k / ((Tc / Tb - 1) + 1.8 * lg(r));
    const double D = (1.8 / Tc) * B + 2.67;
    const double A = lg(pc) - B / Tc - D * lg(Tc) - E * pc / std::pow(Tc, n);
    EXPECT_EQ(BlockOf(s).c1, static_cast<float>(A));
    EXPECT_EQ(BlockOf(s).c2, static_cast<float>(B));
    EXPECT_EQ(BlockOf(s).c4, static_cast<float>(D));
    EXPECT_EQ(BlockOf(s).c5, static_cast<float>(E));
}

// Correlations from Tb, Tc, pc alone: some percent between the two points.
TEST(TheCorrelatedEquations, MeetButaneAt350KWithinFivePercent) {
    for (const int equation : {vpAugust, vpFrostKalkwarfVdW, vpFrostKalkwarfRK, vpThompson})
        EXPECT_NEAR(VapourPressure(fluids::NButane(), 350, equation).value, 945.73, 0.05 * 945.73)
            << equation;
}

TEST(TheCorrelation, NeedsTwoTemperatures) {
    for (const int equation : {6, 7, 8}) {
        SubstanceData s;
        CorrelateVapourPressure(s, equation, 0, 4000, 300);
        CorrelateVapourPressure(s, equation, 500, 4000, 0);
        CorrelateVapourPressure(s, equation, 500, 4000, 9e-7F);
        EXPECT_EQ(s.thompson.A, 0);
        EXPECT_EQ(s.kfw.c1, 0);
        EXPECT_EQ(s.kfr.c1, 0);
    }
}

TEST(TheCorrelation, FillsNothingButItsOwnBlock) {
    SubstanceData s;
    for (const int equation : {-1, 0, 1, 2, 3, 4, 5, 9})
        CorrelateVapourPressure(s, equation, 500, 4000, 350);
    EXPECT_EQ(s.thompson.A, 0);
    EXPECT_EQ(s.kfw.c1, 0);
    EXPECT_EQ(s.kfr.c1, 0);
    CorrelateVapourPressure(s, 8, 500, 4000, 350);
    EXPECT_NE(s.thompson.A, 0);
    EXPECT_EQ(s.kfw.c1, 0);
    EXPECT_EQ(s.kfr.c1, 0);
    CorrelateVapourPressure(s, 7, 500, 4000, 350);
    EXPECT_NE(s.kfr.c1, 0);
    EXPECT_EQ(s.kfw.c1, 0);
}

TEST(TheCorrelation, StoresNoNonFiniteConstant) {
    for (const int equation : {6, 7, 8})
        for (const float pc : {0.0F, -1.0F, 101.325F})
            for (const float Tb : {1.0F, 500.0F, 600.0F}) {
                SubstanceData s;
                CorrelateVapourPressure(s, equation, 500, pc, Tb);
                for (const float x : {s.thompson.A, s.thompson.B, s.thompson.C, s.kfw.c1, s.kfw.c2, s.kfw.c4,
                                      s.kfw.c5, s.kfr.c1, s.kfr.c2, s.kfr.c4, s.kfr.c5})
                    EXPECT_TRUE(std::isfinite(x)) << equation << " " << pc << " " << Tb;
            }
}

} // namespace
} // namespace orva
