// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/chart_document.h"

#include <set>

#include <gtest/gtest.h>

namespace orva {
namespace {

CurvePoints Straight(int count) {
    CurvePoints curve;
    curve.SetZKind(zTemperature);
    for (int i = 1; i <= count; ++i)
        curve.Add({static_cast<float>(i), static_cast<float>(2 * i), static_cast<float>(1000 + i)});
    return curve;
}

TEST(ChartDocument, SlotsAreTakenFromTheLowest) {
    ChartDocument chart;
    EXPECT_EQ(chart.TakeSlot(), 1);
    EXPECT_EQ(chart.TakeSlot(), 2);
    EXPECT_EQ(chart.TakeSlot(), 3);
    chart.FreeSlot(2);
    chart.FreeSlot(2);
    EXPECT_EQ(chart.curveCount, 2);
    EXPECT_FALSE(chart.IsTaken(2));
    EXPECT_EQ(chart.TakeSlot(), 2);
    EXPECT_EQ(chart.TakeSlot(), 4);
    EXPECT_EQ(chart.currentSlot, 4);
}

TEST(ChartDocument, HoldsTwentyFourCurves) {
    ChartDocument chart;
    for (int i = 1; i <= 24; ++i)
        EXPECT_EQ(chart.TakeSlot(), i);
    EXPECT_EQ(chart.TakeSlot(), 0);
    EXPECT_EQ(chart.curveCount, 24);
    EXPECT_EQ(chart.currentSlot, 24);
    chart.FreeAllSlots();
    EXPECT_EQ(chart.curveCount, 0);
    EXPECT_EQ(chart.TakeSlot(), 1);
}

TEST(ChartDocument, NumbersThatAreNoSlotAreIgnored) {
    ChartDocument chart;
    EXPECT_FALSE(chart.IsTaken(0));
    EXPECT_FALSE(chart.IsTaken(25));
    chart.FreeSlot(-1);
    chart.FreeSlot(99);
    EXPECT_EQ(chart.curveCount, 0);
}

TEST(ChartDocument, EverySlotLooksDifferent) {
    std::set<std::tuple<int, int, int, int>> looks;
    for (int slot = 1; slot <= 24; ++slot) {
        const ChartColour c = SlotColour(slot);
        looks.insert({c.red, c.green, c.blue, static_cast<int>(SlotLineStyle(slot))});
    }
    EXPECT_EQ(looks.size(), 24U);
}

// WCAG 2.1, relative luminance; 2.5 keeps a line of two points readable on white paper.
TEST(ChartDocument, EveryColourStandsOutAgainstWhite) {
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    for (int slot = 1; slot <= 8; ++slot) {
        const ChartColour c = SlotColour(slot);
        const double luminance = 0.2126 * linear(c.red) + 0.7152 * linear(c.green) + 0.0722 * linear(c.blue);
        EXPECT_GT(1.05 / (luminance + 0.05), 2.5) << slot;
    }
}

TEST(ChartDocument, PresetColourIsTakenForTheNextCurve) {
    ChartDocument chart;
    chart.curveColour = ChartColour{1, 2, 3};
    chart.TakeSlot();
    EXPECT_EQ(chart.Series(1).colour, (ChartColour{1, 2, 3}));
}

TEST(ChartDocument, PointsBeyondTwelveHundredAreDrawnButKeepNoZ) {
    ChartSeries series;
    StorePoints(Straight(1300), series);
    EXPECT_EQ(series.Count(), 1300);
    EXPECT_EQ(series.x[1299], 1300.0F);
    EXPECT_EQ(series.ZKind(), zTemperature);
    EXPECT_EQ(series.Z(1), 1001.0F);
    EXPECT_EQ(series.Z(1200), 2200.0F);
    EXPECT_FALSE(series.Z(1201).has_value());
    EXPECT_FALSE(series.Z(0).has_value());
}

TEST(ChartDocument, LineIsInterruptedWhereTheTemperatureJumps) {
    CurvePoints curve;
    curve.SetZKind(zTemperature);
    for (const float T : {1600.0F, 1500.0F, 400.0F, 390.0F, 600.0F})
        curve.Add({T, T, T});
    ChartSeries series;
    StorePoints(curve, series);
    InterruptAtJumps(series);
    EXPECT_EQ(series.gaps, (std::vector{3, 5}));
    curve.SetZKind(zVolume);
    series = {};
    StorePoints(curve, series);
    InterruptAtJumps(series);
    EXPECT_TRUE(series.gaps.empty());
}

TEST(ChartDocument, LabelsMoveLeftWithTheSlot) {
    const CurvePoints curve = Straight(300);
    EXPECT_EQ(LabelPoint(curve, 1000, 1), 241); // 300 / 1.2 - 9
    EXPECT_EQ(LabelPoint(curve, 1000, 2), 232);
    EXPECT_EQ(LabelPoint(curve, 1000, 24), 34);
}

TEST(ChartDocument, LabelCountsFromTheLastPointLeftOfTheEndOfTheWindow) {
    const CurvePoints curve = Straight(300);
    EXPECT_EQ(LabelPoint(curve, 121, 1), 96); // 120 / 1.2 - 3.6, rounded
    EXPECT_EQ(LabelPoint(curve, -5, 1), 1);
    EXPECT_EQ(LabelPoint(CurvePoints(), 5, 1), 0);
}

} // namespace
} // namespace orva
