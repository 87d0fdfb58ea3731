// SPDX-License-Identifier: GPL-3.0-or-later
// Inversion curves of the Joule-Thomson effect: their points, their branches, where they begin.
#include "curve_checks.h"

namespace orva::test {
namespace {

TEST(InversionCurve, PointsHaveNoJouleThomsonEffect) {
    ButaneDiagram d;
    d.Draw(5, 300, 101.325);
    d.spec.xMax = 2000; // the whole curve
    d.spec.yMax = 60000;
    d.spec.type = 105;
    const CurvePoints curve = d.DrawAgain(300, 101.325);
    EXPECT_EQ(curve.ZKind(), zVolume);
    ASSERT_GT(curve.Count(), 50);
    int atZero = 0;
    for (int i = 1; i < curve.Count(); i += 10) {
        SubstanceModel model = d.model;
        const ResidualState state = ResidualFunctions(model, curve[i].x, curve[i].y, curve[i].z);
        EXPECT_NEAR(state.table.jouleThomson, 0, 2e-5) << curve[i].x;
        ++atZero;
    }
    EXPECT_GT(atZero, 5);
    // It ends beside the vapour-pressure curve, below which the vapour has no such point.
    d.spec.xMin = 250;
    d.spec.xMax = 350;
    d.DrawAgain(300, 101.325);
    SubstanceModel model = d.model;
    const CurvePoint last = d.curve[d.curve.Count()];
    const double pLV = EosSaturationPressure(model, last.x).value;
    EXPECT_GE(last.y, pLV * (1 - 1e-5));
    EXPECT_LT(last.y, 1.1 * pLV);

    d.Draw(2, 300, 101.325);
    d.spec.xMax = 60000;
    d.spec.yMax = 60000;
    d.spec.type = 190;
    const CurvePoints& pv = d.DrawAgain(300, 101.325);
    EXPECT_EQ(pv.ZKind(), zTemperature);
    ASSERT_GT(pv.Count(), 50);
    for (int i = 1; i <= pv.Count(); i += 10) {
        const double v = static_cast<double>(pv[i].y) / pv[i].x;
        const ResidualState state = ResidualFunctions(model, pv[i].z, pv[i].x, v);
        EXPECT_NEAR(state.table.jouleThomson, 0, 5e-4) << pv[i].x;
    }
}

TEST(InversionCurve, Type190StoresItsUpperBranchWithoutTheFactorOfThePressure) {
    ButaneDiagram d(eosPengRobinson, 2);
    d.Draw(2, 300, 101.325);
    d.spec.type = 190;
    const CurvePoints& curve = d.DrawAgain(300, 101.325);
    ASSERT_GT(curve.Count(), 10);
    EXPECT_GT(curve[5].z, 1.5 * Tc); // the upper branch
    EXPECT_GT(curve[5].x, 10);       // kPa in a window up to 1.6
}

struct Branches {
    std::vector<CurvePoint> upper, lower;
};

// The upper branch goes up in p, the lower one back.
Branches BranchesOf(const CurvePoints& curve) {
    Branches branches;
    for (int i = 1; i <= curve.Count(); ++i) {
        const bool back = i > 1 && curve[i].x < curve[i - 1].x;
        (back || !branches.lower.empty() ? branches.lower : branches.upper).push_back(curve[i]);
    }
    return branches;
}

// In a window that holds the summit, where the lower branch falls by more than the march looks back, as well
// as in one that ends below it.
TEST(InversionCurve, BothBranchesEncloseTheRegionOfCooling) {
    for (const float pMax : {6000.0F, 53000.0F}) {
        ButaneDiagram d;
        d.Draw(2, 300, 101.325);
        d.spec.type = 190;
        d.spec.xMin = 0;
        d.spec.xMax = pMax;
        d.spec.yMax = 15000;
        const auto [upper, lower] = BranchesOf(d.DrawAgain(300, 101.325));
        ASSERT_GT(upper.size(), 100U) << pMax;
        ASSERT_GT(lower.size(), 100U) << pMax;
        for (std::size_t i = 1; i < upper.size(); ++i)
            ASSERT_LT(upper[i].z, upper[i - 1].z) << pMax << ' ' << upper[i].x;
        for (std::size_t i = 1; i < lower.size(); ++i)
            ASSERT_LT(lower[i].z, lower[i - 1].z) << pMax << ' ' << lower[i].x;
        EXPECT_LT(lower.front().z, upper.back().z) << pMax;
        EXPECT_LT(lower.back().z, 0.8 * Tc) << pMax;
        EXPECT_GT(upper.front().z, 3.5 * Tc) << pMax;
    }
}

} // namespace
} // namespace orva::test
