// SPDX-License-Identifier: GPL-3.0-or-later
// Curves in windows that are reversed, or narrow and far from where the grid begins.
#include <algorithm>

#include "curve_checks.h"

namespace orva::test {
namespace {

TEST(OddWindows, FunctionsOfVolumeAreTheSameInAReversedWindow) {
    for (const double T : {380.0, 450.0})
        for (const int type : {156, 157, 158, 159, 160}) {
            ButaneDiagram d;
            const CurvePoints usual = d.Draw(type, T, 101.325);
            ASSERT_GT(usual.Count(), 200) << type;
            std::swap(d.spec.xMin, d.spec.xMax);
            const CurvePoints& reversed = d.DrawAgain(T, 101.325);
            ASSERT_EQ(reversed.Count(), usual.Count()) << type;
            EXPECT_EQ(d.outcome.status, curveOutsideWindow) << type; // nothing lies between such limits
            for (int i = 1; i <= usual.Count(); ++i) {
                ASSERT_EQ(reversed[i].x, usual[i].x) << Place(type, i, usual[i]);
                ASSERT_EQ(reversed[i].y, usual[i].y) << Place(type, i, usual[i]);
            }
        }
}

// Grids that begin at the critical point reach a window that is a thousand times narrower than its distance.
TEST(OddWindows, NarrowWindowsFarFromTheCriticalPointAreReached) {
    for (const int type : {8, 9, 10}) {
        ButaneDiagram d;
        d.options.curvePoints = 100;
        d.Draw(type, 300, 101.325);
        const float middle = type == 10 ? 1 / 250.0F : 250.0F;
        d.spec.xMin = middle;
        d.spec.xMax = middle * 1.0005F;
        const CurvePoints& curve = d.DrawAgain(300, 101.325);
        EXPECT_EQ(d.outcome.status, curveGood) << type;
        int inside = 0;
        for (int i = 1; i <= curve.Count(); ++i)
            inside += d.spec.xMin <= curve[i].x && curve[i].x <= d.spec.xMax ? 1 : 0;
        const int phases = type == 8 ? 2 : 1;
        EXPECT_GE(inside, 99 * phases) << type;
        EXPECT_LE(inside, 102 * phases) << type;
        EXPECT_LE(curve.Count(), (100 * 100 + 2) * phases) << type;
    }
}

// As far as the window is not that narrow the grid begins at the critical point.
TEST(OddWindows, UsualWindowsHaveTheWholeGridFromTheCriticalPoint) {
    ButaneDiagram d;
    d.Draw(9, 300, 101.325);
    d.spec.xMin = 250;
    d.spec.xMax = 255;
    const CurvePoints& curve = d.DrawAgain(300, 101.325);
    EXPECT_EQ(curve[1].x, static_cast<float>(Tc));
    EXPECT_NEAR(curve.Count(), (Tc - 250) / 5 * 300, 2);
}

TEST(OddWindows, NoSaturatedVolumeFitsBetweenReversedOrNegativeLimits) {
    ButaneDiagram d;
    ASSERT_GT(d.Draw(6, 300, 101.325).Count(), 50);
    const DiagramSpec usual = d.spec;
    std::swap(d.spec.xMin, d.spec.xMax);
    EXPECT_EQ(d.DrawAgain(300, 101.325).Count(), 0);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
    d.spec = usual;
    d.spec.xMin = -2;
    d.spec.xMax = -1;
    EXPECT_EQ(d.DrawAgain(300, 101.325).Count(), 0);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
}

TEST(OddWindows, AHeatCapacityWithoutDataHasNoCurve) {
    ButaneDiagram d;
    const HeatCapacityPolynomial given{0, 100, 0.1F, 0, 0, 100, 300};
    d.model.substance.cpSolid = d.model.substance.cpLiquid = given;
    for (const int type : {303, 304})
        EXPECT_GT(d.Draw(type, 300, 101.325).Count(), 100) << type;
    d.model.substance.cpSolid = d.model.substance.cpLiquid = {};
    for (const int type : {303, 304}) {
        EXPECT_EQ(d.Draw(type, 300, 101.325).Count(), 0) << type;
        EXPECT_EQ(d.outcome.status, curveOutsideWindow) << type;
    }
}

} // namespace
} // namespace orva::test
