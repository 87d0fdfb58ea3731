// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/label_layout.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace orva {
namespace {

constexpr SheetBox frame{100, 50, 700, 450};
constexpr double labelWidth = 80, labelHeight = 14;

LabelledCurve Line(SheetPoint from, SheetPoint to, int count = 101, int preferredPoint = 51) {
    LabelledCurve curve;
    for (int i = 0; i < count; ++i) {
        const double part = static_cast<double>(i) / (count - 1);
        curve.points.push_back({from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)});
    }
    curve.preferredPoint = preferredPoint;
    curve.width = labelWidth;
    curve.height = labelHeight;
    curve.shortWidth = 20;
    return curve;
}

SheetBox BoxOf(const LabelledCurve& curve, const LabelPlace& place) {
    const double width = place.shortened ? curve.shortWidth : curve.width;
    return {place.centre.x - width / 2, place.centre.y - curve.height / 2, place.centre.x + width / 2,
            place.centre.y + curve.height / 2};
}

// No label on another, none over the frame. Returns how many have a place.
int ExpectReadable(const std::vector<LabelledCurve>& curves,
                   const std::vector<std::optional<LabelPlace>>& places) {
    int placed = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (!places[i])
            continue;
        ++placed;
        const SheetBox box = BoxOf(curves[i], *places[i]);
        EXPECT_GE(box.left, frame.left) << i;
        EXPECT_LE(box.right, frame.right) << i;
        EXPECT_GE(box.top, frame.top) << i;
        EXPECT_LE(box.bottom, frame.bottom) << i;
        for (std::size_t k = i + 1; k < places.size(); ++k)
            EXPECT_FALSE(places[k] && box.Meets(BoxOf(curves[k], *places[k]))) << i << " " << k;
    }
    return placed;
}

TEST(LabelLayout, LonelyLabelStandsAtItsPreferredPoint) {
    const std::vector curves = {Line({100, 250}, {700, 250}, 101, 26)};
    const auto places = LabelLayout(frame).Place(curves);
    ASSERT_TRUE(places[0]);
    EXPECT_NEAR(places[0]->centre.x, 250, 1e-9);
    EXPECT_NEAR(places[0]->centre.y, 250, 1e-9);
    EXPECT_FALSE(places[0]->shortened);
}

TEST(LabelLayout, NearCurvesShareTheRoomAlongThem) {
    std::vector<LabelledCurve> curves;
    for (int i = 0; i < 6; ++i)
        curves.push_back(Line({100, 250.0 + i}, {700, 250.0 + i}));
    EXPECT_EQ(ExpectReadable(curves, LabelLayout(frame).Place(curves)), 6);
}

TEST(LabelLayout, GoesWhereTheCurvesPart) {
    const std::vector curves = {Line({100, 250}, {700, 100}, 101, 6), Line({100, 250}, {700, 400}, 101, 6)};
    const auto places = LabelLayout(frame).Place(curves);
    ASSERT_EQ(ExpectReadable(curves, places), 2);
    const SheetBox upper = BoxOf(curves[0], *places[0]);
    const SheetBox lower = BoxOf(curves[1], *places[1]);
    EXPECT_LT(upper.bottom, 250 + 0.25 * (upper.left - 100)); // above all of the lower curve
    EXPECT_GT(lower.top, 250 - 0.25 * (lower.left - 100));
}

TEST(LabelLayout, StaysInTheFrameWhereACurveRunsAlongItsEdge) {
    const std::vector curves = {Line({100, 450}, {700, 450}), Line({100, 50}, {100, 450}),
                                Line({700, 50}, {700, 450})};
    EXPECT_EQ(ExpectReadable(curves, LabelLayout(frame).Place(curves)), 3);
}

TEST(LabelLayout, FindsTheVisiblePartOfACurveWithoutPointsInTheFrame) {
    const std::vector curves = {Line({-500, 300}, {2000, 300}, 2, 1)}; // both ends of a tie line are outside
    const auto places = LabelLayout(frame).Place(curves);
    ASSERT_TRUE(places[0]);
    EXPECT_NEAR(places[0]->centre.x, 100 + 0.6 * 600, 1e-9);
    EXPECT_NEAR(places[0]->centre.y, 300, 1e-9);
}

TEST(LabelLayout, HiddenCurveHasNoLabel) {
    std::vector curves = {Line({0, 0}, {90, 40}), Line({100, 250}, {700, 250})};
    curves.push_back(LabelledCurve());
    curves.back().width = labelWidth;
    const auto places = LabelLayout(frame).Place(curves);
    EXPECT_FALSE(places[0]);
    EXPECT_TRUE(places[1]);
    EXPECT_FALSE(places[2]);
}

TEST(LabelLayout, PointsThatAreNoNumbersAreLeftOut) {
    std::vector curves = {Line({100, 250}, {700, 250})};
    for (std::size_t i = 0; i < 40; ++i)
        curves[0].points[i].y = i % 2 == 0 ? std::nan("") : std::numeric_limits<double>::infinity();
    const auto places = LabelLayout(frame).Place(curves);
    ASSERT_TRUE(places[0]);
    EXPECT_TRUE(std::isfinite(places[0]->centre.x) && std::isfinite(places[0]->centre.y));
    EXPECT_GT(places[0]->centre.x, 100 + 0.4 * 600 - 1);
}

TEST(LabelLayout, KeepsOffWhatIsTaken) {
    const SheetBox text{360, 240, 440, 260};
    LabelLayout layout(frame);
    layout.Block(text);
    const std::vector curves = {Line({100, 250}, {700, 250})};
    const auto places = layout.Place(curves);
    ASSERT_TRUE(places[0]);
    EXPECT_FALSE(BoxOf(curves[0], *places[0]).Meets(text));
}

TEST(LabelLayout, ShortCurveIsNotHiddenByItsOwnLabel) {
    const std::vector curves = {Line({300, 250}, {370, 250})};
    const auto places = LabelLayout(frame).Place(curves);
    ASSERT_TRUE(places[0]);
    const SheetBox box = BoxOf(curves[0], *places[0]);
    EXPECT_TRUE(box.bottom < 250 || box.top > 250 || box.right < 345 || box.left > 325);
}

TEST(LabelLayout, SeparatePointsCarryTheLabelThemselves) {
    std::vector curves = {Line({150, 100}, {600, 400}, 21, 11)};
    for (std::size_t i = 1; i < curves[0].points.size(); i += 2)
        curves[0].points[i].y = 440; // no line between both rows
    curves[0].joined = false;
    const auto places = LabelLayout(frame).Place(curves);
    ASSERT_TRUE(places[0]);
    EXPECT_NEAR(places[0]->centre.x, curves[0].points[10].x, labelWidth / 2 + 5);
}

// Where whole labels find no room the numbers may; the rest stays to the legend.
TEST(LabelLayout, CrowdedCurvesKeepTheirNumbers) {
    std::vector<LabelledCurve> curves;
    for (int i = 0; i < 24; ++i) {
        curves.push_back(Line({100, 250}, {700, 252}));
        curves.back().width = 400;
    }
    const auto places = LabelLayout(frame).Place(curves);
    const int placed = ExpectReadable(curves, places);
    EXPECT_GE(placed, 6);
    EXPECT_LT(placed, 24);
    EXPECT_TRUE(std::any_of(places.begin(), places.end(),
                            [](const auto& place) { return place && place->shortened; }));
}

TEST(LabelLayout, EmptyFrameTakesNoLabel) {
    const std::vector curves = {Line({0, 0}, {10, 10})};
    EXPECT_FALSE(LabelLayout({0, 0, 0, 0}).Place(curves)[0]);
    EXPECT_FALSE(LabelLayout({10, 10, 0, 0}).Place(curves)[0]);
}

} // namespace
} // namespace orva
