// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/vessel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "report_fixture.h"

namespace orva::test {
namespace {

// Height of the segment with a share of the area of a circle of radius 50, by bisection of the exact area
// r^2 acos(1 - h / r) - (r - h) sqrt(2 r h - h^2).
double ExactHeight(double percent) {
    constexpr double r = 50;
    const double target = std::numbers::pi * r * r * percent / 100;
    double low = 0;
    double high = r;
    for (int i = 0; i < 100; ++i) {
        const double h = 0.5 * (low + high);
        const double area = r * r * std::acos(1 - h / r) - (r - h) * std::sqrt(2 * r * h - h * h);
        (area < target ? low : high) = h;
    }
    return low;
}

TEST(FillHeight, LiesWithinItsLastStepOfTheExactHeight) {
    // The search ends at the first step of 0.1 that changes the sign.
    for (double percent = 0.1; percent <= 50; percent += 0.1) {
        const FillHeightResult found = FillHeight(percent, 50);
        ASSERT_FALSE(found.failed) << percent;
        ASSERT_NEAR(found.height, ExactHeight(percent), 0.1 + 1e-9) << percent;
    }
}

TEST(FillHeight, DrawsHalfAVesselForHalfItsContent) {
    EXPECT_NEAR(FillHeight(50, 50).height, 50, 0.1);
    EXPECT_EQ(FillHeight(0, 50).height, 0);
    EXPECT_FALSE(FillHeight(0, 50).failed);
}

TEST(FillHeight, ScalesToTheDrawingOfRadius50) {
    for (const double radius : {25.0, 100.0, 400.0}) {
        const FillHeightResult found = FillHeight(30, radius);
        EXPECT_FALSE(found.failed) << radius;
        EXPECT_NEAR(found.height, ExactHeight(30), 0.1 * 50 / radius + 1e-9) << radius;
    }
}

TEST(FillHeight, FindsALevelForEveryShareUpToTheHalf) {
    for (const double percent : {1e-12, 1e-6, 1e-3, 0.01, 0.05, 49.999, 49.9999999})
        EXPECT_FALSE(FillHeight(percent, 50).failed) << percent;
}

TEST(FillHeight, FailsWithoutACircle) {
    EXPECT_TRUE(FillHeight(10, 0).failed);
    EXPECT_TRUE(FillHeight(10, -1).failed);
    EXPECT_TRUE(FillHeight(10, std::nan("")).failed);
}

TEST(Vessel, WithoutAnInputNothingIsShown) {
    Reported c;
    for (const VesselInput& input :
         {VesselInput{0, 1, 300}, VesselInput{1, 0, 300}, VesselInput{1, 1, 0},
          VesselInput{1e-3F, 1e-3F, 0.5F}, VesselInput{1, 1, HUGE_VALF}, VesselInput{3e38F, 1, 300}}) {
        const PointResult r = c.Vessel(kindVesselGlobal, input.V, input.m, input.T);
        EXPECT_EQ(r.report, "");
        ExpectLabels(r, {"", "", "", ""});
        EXPECT_EQ(r.results, (std::array<double, resultCount>{}));
        EXPECT_TRUE(r.messages.empty());
        EXPECT_FALSE(r.lblLphaseVisible || r.lblVphaseVisible);
    }
}

TEST(Vessel, PartialMethodAboveTheCriticalTemperatureGivesUp) {
    Reported c;
    for (const float T : {425.125F, 500.0F}) {
        const PointResult r = c.Vessel(kindVesselPartial, 1, 10, T);
        EXPECT_EQ(r.note, "EXIT");
        ASSERT_EQ(r.messages.size(), 1U);
        EXPECT_EQ(r.messages[0].title, "Ausführung nicht möglich");
        EXPECT_EQ(r.messages[0].text,
                  "Partialberechnung nur für Phasengleichgewicht - also für T < T(cr) - sinnvoll\n"
                  "(T(cr)/K = 425.125)");
        EXPECT_EQ(r.messages[0].icon, MessageIcon::Stop);
        EXPECT_EQ(r.report, "");
        EXPECT_EQ(r.results[slotT], T);
    }
    EXPECT_TRUE(c.Vessel(kindVesselGlobal, 1, 10, 500).messages.empty());
}

TEST(Vessel, WarnsBelowTheTriplePoint) {
    Reported c;
    const PointResult r = c.Vessel(kindVesselGlobal, 1, 10, 130);
    ASSERT_EQ(r.messages.size(), 1U);
    EXPECT_EQ(r.messages[0].title, "WARNUNG");
    EXPECT_EQ(r.messages[0].text, "T ist kleiner als Tripelpunkt-Temperatur");
    EXPECT_FALSE(r.failed);
    EXPECT_TRUE(c.Vessel(kindVesselGlobal, 1, 10, 130, {.warn = false}).messages.empty());
    EXPECT_TRUE(Reported(virialPitzerCurl).Vessel(kindVesselGlobal, 1, 10, 130).messages.empty());
}

TEST(Vessel, AMissingVapourPressureLeavesTheReport) {
    Reported c(eosPengRobinson, vpNone);
    const PointResult r = c.Vessel(kindVesselPartial, 1, 10, 300);
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  =                     \r\n"
                        "Volumen          v/ (m^3/kmol)  =                     \r\n");
    EXPECT_EQ(r.co2.text, " Systemdruck p/kPa =  (Fehler)");
}

TEST(Vessel, TellsHowMuchOfItIsLiquid) {
    Reported c;
    EXPECT_EQ(c.Vessel(kindVesselGlobal, 2, 10, 350).liquidPercent, 0);
    EXPECT_EQ(c.Vessel(kindVesselGlobal, 0.5F, 301, 300).liquidPercent, 100);
    EXPECT_EQ(c.Vessel(kindVesselPartial, 1, 700, 300).liquidPercent, 100);
    EXPECT_EQ(c.Vessel(kindVesselPartial, 2, 10, 350).liquidPercent, 0);
    const PointResult both = c.Vessel(kindVesselGlobal, 2, 300, 320);
    // VL / V = (rho - rhoV) / (rhoL - rhoV) of the mean density.
    const double share = (150 - both.record.rhoV) / (both.record.rhoL - both.record.rhoV) * 100;
    EXPECT_NEAR(both.liquidPercent, share, 1e-3);
    const VesselResult& kept = c.state.vesselResult;
    EXPECT_EQ(kept.liquidPercent, both.liquidPercent);
    EXPECT_EQ(kept.p, both.p);
    EXPECT_EQ(kept.T, 320);
    EXPECT_EQ(kept.note, "");
}

// Kept on purpose: the mean density of the liquid itself is the full vessel.
TEST(Vessel, TheDensityOfTheLiquidIsTheFullVessel) {
    Reported c;
    c.model.substance.rhoLiquid = {600, 0, 300, 0, 0, 0, 0, 0, 0, 0}; // a point without a slope
    c.model.substance.rhoLiquid.r2 = 1e-30F;
    EXPECT_EQ(c.Vessel(kindVesselPartial, 1, 600, 300).note, "ERROR2");
    EXPECT_EQ(c.Vessel(kindVesselPartial, 1, 599.9F, 300).note, "");
    EXPECT_EQ(c.Vessel(kindVesselPartial, 1, 599.9F, 300).record.phase, "V+L");
}

TEST(Vessel, ASettledReferencePointStaysAndAProposalSettlesNone) {
    Reported c;
    c.state.BensonLiquid = true;
    c.Vessel(kindVesselPartial, 2, 300, 320);
    EXPECT_FALSE(c.state.ReferenceDensityPointValid);
    EXPECT_EQ(c.state.referenceDensity.rhoL, 601.25F);
    c.TakePartial(true);
    c.state.referenceDensity.rhoL = 580;
    c.Vessel(kindVesselPartial, 2, 300, 320);
    EXPECT_EQ(c.state.referenceDensity.rhoL, 580);
}

} // namespace
} // namespace orva::test
