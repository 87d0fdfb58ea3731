// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/curve_points.h"

#include <gtest/gtest.h>

namespace orva {
namespace {

CurvePoints Sample() {
    CurvePoints curve;
    curve.SetZKind(zPressure);
    curve.Add({3, 1, 30});
    curve.Add({1, 3, 10});
    curve.Add({2, 2, 20});
    curve.Add({1, 0, 11});
    return curve;
}

TEST(CurvePoints, NewListIsAHeaderOnly) {
    const CurvePoints curve;
    EXPECT_EQ(curve.Count(), 0);
    EXPECT_EQ(curve.Header(), CurvePoint());
}

TEST(CurvePoints, HeaderCountsThePoints) {
    const CurvePoints curve = Sample();
    EXPECT_EQ(curve.Header(), (CurvePoint{4, 0, -2}));
    EXPECT_EQ(curve[2], (CurvePoint{1, 3, 10}));
}

TEST(CurvePoints, SortByXMovesWholeTriplesAndKeepsTheOrderOfEqualOnes) {
    CurvePoints curve = Sample();
    SortCurveByX(4, curve);
    EXPECT_EQ(curve[1], (CurvePoint{1, 3, 10}));
    EXPECT_EQ(curve[2], (CurvePoint{1, 0, 11}));
    EXPECT_EQ(curve[3], (CurvePoint{2, 2, 20}));
    EXPECT_EQ(curve[4], (CurvePoint{3, 1, 30}));
    EXPECT_EQ(curve.Header(), (CurvePoint{4, 0, -2}));
}

TEST(CurvePoints, SortByYComparesYOnly) {
    CurvePoints curve = Sample();
    SortCurveByY(4, curve);
    EXPECT_EQ(curve[1].z, 11.0F);
    EXPECT_EQ(curve[2].z, 30.0F);
    EXPECT_EQ(curve[3].z, 20.0F);
    EXPECT_EQ(curve[4].z, 10.0F);
}

TEST(CurvePoints, SortTakesTheFirstPointsOnlyAndNeverMoreThanThereAre) {
    CurvePoints curve = Sample();
    SortCurveByX(2, curve);
    EXPECT_EQ(curve[1].x, 1.0F);
    EXPECT_EQ(curve[2].x, 3.0F);
    EXPECT_EQ(curve[4].z, 11.0F);
    SortCurveByX(1000, curve);
    EXPECT_EQ(curve[4].x, 3.0F);
    SortCurveByX(-3, curve);
    EXPECT_EQ(curve.Count(), 4);
}

} // namespace
} // namespace orva
