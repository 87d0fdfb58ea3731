// SPDX-License-Identifier: GPL-3.0-or-later
// The caloric and residual families against an evaluation of their own, and their tie lines.
#include "curve_checks.h"

namespace orva {
namespace {

using namespace test;

constexpr CaloricType isobars[] = {
    {15, &CaloricValues::h}, {16, &CaloricValues::s}, {17, &CaloricValues::g}, {18, &CaloricValues::exergyH}};
constexpr CaloricType isochors[] = {{181, &CaloricValues::exergyU},
                                    {182, &CaloricValues::f},
                                    {183, &CaloricValues::u},
                                    {184, &CaloricValues::s},
                                    {185, &CaloricValues::cv}};
constexpr CaloricType isotherms[] = {
    {150, &CaloricValues::h},       {151, &CaloricValues::s},  {152, &CaloricValues::g},
    {153, &CaloricValues::exergyH}, {154, &CaloricValues::cp}, {155, &CaloricValues::exergyU},
};
constexpr CaloricType overVolume[] = {{156, &CaloricValues::f},
                                      {157, &CaloricValues::u},
                                      {158, &CaloricValues::s},
                                      {159, &CaloricValues::cv},
                                      {160, &CaloricValues::exergyU}};

TEST(Families, IsobarsOfTheCaloricFunctionsHoldTheStateAtTheirTemperature) {
    ButaneDiagram d;
    constexpr double p = 500;
    const double TLV = BoilingPoint(d, p);
    for (const auto& [type, value] : isobars) {
        const CurvePoints& curve = d.Draw(type, 300, p);
        ASSERT_GT(curve.Count(), 290) << type;
        EXPECT_TRUE(SortedByX(curve));
        EXPECT_EQ(curve.ZKind(), zNothing);
        int ends = 0;
        for (int i = 1; i <= curve.Count(); ++i) {
            const double T = curve[i].x;
            if (std::abs(T - TLV) < 1e-3) { // tie line and its neighbour
                ++ends;
                continue;
            }
            const double y = StateAt(d, T, p, VolumeAt(d, T, p)).*value;
            ExpectClose(curve[i].y, y, 2e-5, Place(type, i, curve[i]), type == 16 ? 1 : energyScale);
        }
        EXPECT_EQ(ends, 3) << type;
    }
}

TEST(Families, TheJumpOfAnIsobarIsItsTieLine) {
    ButaneDiagram d;
    constexpr double p = 500;
    const double TLV = BoilingPoint(d, p);
    const Saturated s = SaturationAt(d, TLV);
    const CurvePoints& curve = d.Draw(15, 300, p);
    int at = 1;
    while (at <= curve.Count() && curve[at].x < static_cast<float>(TLV))
        ++at;
    ASSERT_LT(at, curve.Count());
    ExpectClose(curve[at].y, StateAt(d, TLV, p, s.vL).h, 1e-4, "liquid");
    ExpectClose(curve[at + 1].y, StateAt(d, TLV, p, s.vV).h, 1e-4, "vapour");
    EXPECT_EQ(curve[at].x, curve[at + 1].x);
}

TEST(Families, ReducedIsobarsTakeTheFactorOfTheTemperatureOnce) {
    ButaneDiagram plain;
    ButaneDiagram reduced(eosPengRobinson, 2);
    const TieLine a = (plain.Draw(15, 300, 500), plain.outcome.tie);
    const TieLine b = (reduced.Draw(15, 300, 500), reduced.outcome.tie);
    EXPECT_NEAR(b.x1, a.x1 / Tc, 1e-6);
    bool jumps = false;
    for (int i = 2; i <= reduced.curve.Count(); ++i)
        jumps = jumps || (reduced.curve[i].x == b.x1 && reduced.curve[i - 1].x == b.x1);
    EXPECT_TRUE(jumps);
}

TEST(Families, IsochorsOfTheCaloricFunctionsEndWhereThePressureEnds) {
    ButaneDiagram d;
    for (const auto& [type, value] : isochors) {
        const CurvePoints& curve = d.Draw(type, 300, 101.325, 0.5);
        ASSERT_GT(curve.Count(), 100) << type;
        for (int i = 1; i <= curve.Count(); i += 7) {
            const double T = curve[i].x;
            SubstanceModel model = d.model;
            const double p = caloric::PressureAt(model, T, 0.5);
            ASSERT_GT(p, 0);
            ExpectClose(curve[i].y, StateAt(d, T, p, 0.5).*value, 2e-5, Place(type, i, curve[i]),
                        energyScale);
        }
    }
}

TEST(Families, IsothermsOfTheCaloricFunctionsJumpAtTheVapourPressure) {
    ButaneDiagram d;
    constexpr double T = 380;
    const Saturated s = SaturationAt(d, T);
    for (const auto& [type, value] : isotherms) {
        const CurvePoints& curve = d.Draw(type, T, 101.325);
        ASSERT_GT(curve.Count(), 290) << type;
        EXPECT_TRUE(SortedByX(curve));
        int ends = 0;
        for (int i = 1; i <= curve.Count(); ++i) {
            const double p = curve[i].x;
            if (std::abs(p / s.p - 1) < 1e-6) {
                ++ends;
                continue;
            }
            ExpectClose(curve[i].y, StateAt(d, T, p, VolumeAt(d, T, p)).*value, 1e-4,
                        Place(type, i, curve[i]));
        }
        EXPECT_EQ(ends, 2) << type;
    }
}

TEST(Families, FunctionsOfTheVolumeHoldTheVapourAndBothSaturatedEnds) {
    ButaneDiagram d;
    constexpr double T = 380;
    const Saturated s = SaturationAt(d, T);
    for (const auto& [type, value] : overVolume) {
        const CurvePoints& curve = d.Draw(type, T, 101.325);
        ASSERT_GT(curve.Count(), 100) << type;
        EXPECT_EQ(curve.ZKind(), zPressure);
        ExpectClose(curve[1].x, s.vL, 1e-5, "liquid end");
        ExpectClose(curve[1].z, s.p, 1e-5, "p(LV)");
        for (int i = 2; i <= curve.Count(); ++i) {
            ASSERT_GE(curve[i].x, s.vV * (1 - 1e-5)) << Place(type, i, curve[i]);
            double y = StateAt(d, T, curve[i].z, curve[i].x).*value;
            if (type == 159)
                y = std::abs(y);
            ExpectClose(curve[i].y, y, 1e-4, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, ResidualFunctionsAreTheRowsOfTheirTable) {
    ButaneDiagram d;
    for (const int type : {30, 31, 32, 33, 40, 41, 42, 43}) {
        const bool isobar = type < 40;
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        ASSERT_GT(curve.Count(), 280) << type;
        EXPECT_EQ(curve.ZKind(), isobar ? zPressure : zTemperature);
        const double end = isobar ? BoilingPoint(d, 1000) : SaturationAt(d, 380).p;
        for (int i = 1; i <= curve.Count(); i += 5) {
            if (std::abs(curve[i].x / end - 1) < 1e-5)
                continue;
            const double T = isobar ? curve[i].x : curve[i].z;
            const double p = isobar ? curve[i].z : curve[i].x;
            SubstanceModel model = d.model;
            const ResidualState state = ResidualFunctions(model, T, p, VolumeAt(d, T, p));
            const double y = 8.31451 * state.table.Row(type - (isobar ? 27 : 37));
            ExpectClose(curve[i].y, y, 1e-4, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, HeatCapacityIsTheIdealGasAndTheResidualPart) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(19, 300, 500);
    ASSERT_GT(curve.Count(), 280);
    for (int i = 1; i <= curve.Count(); i += 9) {
        SubstanceModel model = d.model;
        const double T = curve[i].x;
        const ResidualState state = ResidualFunctions(model, T, 500, VolumeAt(d, T, 500));
        ExpectClose(curve[i].y, IdealGasCp(model.substance, T, 2).cp + 8.31451 * state.table.cp, 2e-5,
                    Place(19, i, curve[i]));
    }
}

TEST(Families, JouleThomsonCoefficientIsTheSlopeOfAnIsenthalp) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(34, 300, 500);
    EXPECT_EQ(curve.ZKind(), zPressure);
    const double TLV = BoilingPoint(d, 500);
    int checked = 0;
    for (int i = 1; i <= curve.Count(); i += 11) {
        const double T = curve[i].x;
        if (T < TLV + 5)
            continue;
        // (dT/dp)_h = -(dh/dp)_T / cp
        const double dp = 0.5;
        const double up = StateAt(d, T, 500 + dp, VolumeAt(d, T, 500 + dp)).h;
        const double down = StateAt(d, T, 500 - dp, VolumeAt(d, T, 500 - dp)).h;
        const double cp = StateAt(d, T, 500, VolumeAt(d, T, 500)).cp;
        EXPECT_NEAR(curve[i].y, -(up - down) / (2 * dp) / cp, 2e-3 * std::abs(curve[i].y)) << T;
        ++checked;
    }
    EXPECT_GT(checked, 5);
}

TEST(Families, PairsFollowTheirLimitsInAscendingOrder) {
    ButaneDiagram d;
    d.mode.limitLow = 900; // given the wrong way round
    d.mode.limitHigh = 100;
    for (const int type : {21, 107, 109}) {
        const CurvePoints& curve = d.Draw(type, 350, 500);
        ASSERT_GE(curve.Count(), 300) << type;
        EXPECT_EQ(curve.ZKind(), zPressure);
        EXPECT_EQ(curve[1].z, 100.0F);
        for (int i = 1; i <= curve.Count(); i += 13) {
            const CaloricValues state = StateAt(d, 350, curve[i].z, VolumeAt(d, 350, curve[i].z));
            const double x = type == 21 ? state.h : type == 107 ? state.s : d.model.reference.Tenv * state.s;
            ExpectClose(curve[i].x, x, 2e-5, Place(type, i, curve[i]));
            ExpectClose(curve[i].y, type == 107 ? state.h : state.exergyH, 2e-5, Place(type, i, curve[i]));
        }
    }
    d.mode.limitLow = 280;
    d.mode.limitHigh = 460;
    for (const int type : {22, 23, 24}) {
        const CurvePoints& curve = d.Draw(type, 350, 500);
        ASSERT_GE(curve.Count(), 300) << type;
        EXPECT_EQ(curve.ZKind(), zTemperature);
        for (int i = 1; i <= curve.Count(); i += 13) {
            const CaloricValues state = StateAt(d, curve[i].z, 500, VolumeAt(d, curve[i].z, 500));
            ExpectClose(curve[i].y, type == 24 ? state.h : state.exergyH, 2e-5, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, EqualLimitsGiveNoPairs) {
    ButaneDiagram d;
    d.mode.limitLow = d.mode.limitHigh = 300;
    EXPECT_EQ(d.Draw(107, 350, 500).Count(), 0);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
}

// Equal fugacity of both ends, h - T s of the tie line, is what the equal areas promise.
TEST(Families, EndsOfTheTieLineHaveOneFreeEnthalpy) {
    ButaneDiagram d;
    for (const int type : {17, 152}) {
        d.Draw(type, 380, 1000);
        const TieLine& tie = d.outcome.tie;
        ASSERT_FALSE(tie.failed) << type;
        EXPECT_NEAR(tie.y1, tie.y2, 2e-5 * std::abs(tie.y1)) << type;
    }
    for (const int type : {32, 42}) { // residual parts too: the ideal gas at T, p is the same
        d.Draw(type, 380, 1000);
        EXPECT_NEAR(d.outcome.tie.y1, d.outcome.tie.y2, 0.3) << type;
    }
}

TEST(Families, TieLinesAreFiftyOneEquallySpacedPoints) {
    ButaneDiagram d;
    d.mode.tieLineMode = true;
    for (const int type :
         {1, 2, 26, 15, 16, 17, 18, 150, 155, 156, 160, 30, 33, 40, 43, 21, 22, 23, 24, 107, 109}) {
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        ASSERT_EQ(d.outcome.status, curveGood) << type;
        ASSERT_EQ(curve.Count(), 51);
        EXPECT_EQ(curve.Header().x, 51.0F);
        const bool isotherm = d.spec.curveKind == curveIsotherm;
        EXPECT_EQ(curve.ZKind(), isotherm ? zTemperature : zPressure);
        EXPECT_EQ(curve[26].z, isotherm ? 380.0F : 1000.0F);
        EXPECT_EQ(curve[1].x, d.outcome.tie.x1);
        EXPECT_EQ(curve[1].y, d.outcome.tie.y1);
        ExpectClose(curve[51].y, d.outcome.tie.y2, single, "last");
        ExpectClose(curve[26].y, (static_cast<double>(curve[1].y) + curve[51].y) / 2, 1e-5, "middle");
    }
}

// The exergy of the saturated liquid has a minimum near the ambient temperature.
TEST(Families, LiquidLinesOverVolumeAreInTheOrderOfTheirFunction) {
    ButaneDiagram d;
    const auto turns = [](const CurvePoints& curve, float CurvePoint::*coordinate) {
        int falling = 0;
        for (int i = 2; i <= curve.Count(); ++i)
            falling += curve[i].*coordinate < curve[i - 1].*coordinate ? 1 : 0;
        return falling;
    };
    const CurvePoints liquid = d.Draw(102, 300, 101.325);
    ASSERT_GT(liquid.Count(), 100);
    EXPECT_EQ(turns(liquid, &CurvePoint::y), 0);
    EXPECT_GT(turns(liquid, &CurvePoint::x), 10);
    d.mode.vapourFraction = 1;
    const CurvePoints& vapour = d.Draw(102, 300, 101.325);
    EXPECT_EQ(turns(vapour, &CurvePoint::x), vapour.Count() - 1); // from cold and wide to the critical point
}

TEST(Families, TypesWithoutTieLineAndStatesAboveTheCriticalPointRefuseIt) {
    ButaneDiagram d;
    d.mode.tieLineMode = true;
    for (const int type : {3, 4, 5, 19, 34, 185, 6, 90, 307}) {
        EXPECT_EQ(d.Draw(type, 380, 1000).Count(), 0) << type;
        EXPECT_EQ(d.outcome.status, curveTieLineImpossible) << type;
    }
    d.Draw(1, Tc, 1000);
    EXPECT_EQ(d.outcome.status, curveTieLineImpossible);
    d.Draw(15, 300, pc);
    EXPECT_EQ(d.outcome.status, curveTieLineImpossible);
}

// s = -(da/dT)_v, p = -(da/dv)_T, and (ds/dp)_T = -(dv/dT)_p, taken from the curves alone.
TEST(Families, MaxwellRelationsHoldBetweenTheDiagrams) {
    ButaneDiagram d;
    d.options.curvePoints = 800;
    const CurvePoints a = d.Draw(182, 300, 101.325, 2.0);
    const CurvePoints s = d.Draw(184, 300, 101.325, 2.0);
    ASSERT_EQ(a.Count(), s.Count());
    for (int i = 100; i < a.Count() - 100; i += 90) {
        const double slope = (static_cast<double>(a[i + 40].y) - a[i - 40].y)
                             / (static_cast<double>(a[i + 40].x) - a[i - 40].x);
        EXPECT_NEAR(-slope, s[i].y, 2e-3 * std::abs(s[i].y) + 0.05) << a[i].x;
    }
    const CurvePoints overV = d.Draw(156, 450, 101.325);
    for (int i = 400; i < overV.Count() - 50; i += 90) {
        const double slope = (static_cast<double>(overV[i + 5].y) - overV[i - 5].y)
                             / (static_cast<double>(overV[i + 5].x) - overV[i - 5].x);
        EXPECT_NEAR(-slope, overV[i].z, 5e-3 * overV[i].z) << overV[i].x;
    }
    const CurvePoints sOverP = d.Draw(151, 450, 101.325);
    for (int i = 60; i < 400; i += 60) {
        const double p = sOverP[i].x;
        const double left = (static_cast<double>(sOverP[i + 5].y) - sOverP[i - 5].y)
                            / (static_cast<double>(sOverP[i + 5].x) - sOverP[i - 5].x);
        const double right = (VolumeAt(d, 450.5, p) - VolumeAt(d, 449.5, p)) / 1.0;
        EXPECT_NEAR(left, -right, 5e-3 * right) << p;
    }
}

} // namespace
} // namespace orva
