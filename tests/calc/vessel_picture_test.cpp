// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "calc/vessel.h"
#include "calc/vessel_picture.h"
#include "calc_fixture.h"

namespace orva::test {
namespace {

VesselResult Filled(double percent, double p = 250, double T = 300) {
    VesselResult vessel;
    vessel.T = T;
    vessel.p = p;
    vessel.liquidPercent = static_cast<float>(percent);
    return vessel;
}

VesselPicture Picture(VesselResult vessel, int kind = kindVesselGlobal, NumberStyle style = {}) {
    return DrawVessel(vessel, kind, Butane(), style);
}

// Share of the circle below a chord at `height` of a diameter of 100, in percent.
double ShareBelow(double height) {
    const double x = 1 - height / 50;
    return 100 * (std::acos(x) - x * std::sqrt(1 - x * x)) / std::numbers::pi;
}

TEST(VesselPicture, NamesTheMethodInItsCaption) {
    EXPECT_EQ(Picture(Filled(40)).caption, "Behälter-Berechnung (Global-Methode)");
    EXPECT_EQ(Picture(Filled(40), kindVesselPartial).caption, "Behälter-Berechnung (Partial-Methode)");
    EXPECT_EQ(Picture(Filled(40)).title, "zylinderförmiger Behälter");
}

TEST(VesselPicture, SaysHowMuchIsLiquid) {
    EXPECT_EQ(Picture(Filled(42)).levelText, "Füllstand 42.0 % (Vol.-anteil)");
    EXPECT_EQ(Picture(Filled(42.256)).levelText, "Füllstand 42.26 % (Vol.-anteil)");
    EXPECT_EQ(Picture(Filled(42.5), kindVesselGlobal, {','}).levelText, "Füllstand 42,5 % (Vol.-anteil)");
    EXPECT_EQ(Picture(Filled(42)).phaseText, "");
    EXPECT_EQ(Picture(Filled(42)).noteText, "");
}

TEST(VesselPicture, EmptyVesselHoldsVapour) {
    const VesselPicture picture = Picture(Filled(0));
    EXPECT_EQ(picture.levelText, "Füllstand 0.0 % (Vol.-anteil)");
    EXPECT_EQ(picture.phaseText, "  V-Phase");
    EXPECT_EQ(picture.levelHeight, 0);
    EXPECT_FALSE(picture.HasLevel());
    EXPECT_EQ(picture.upper, VesselColour::Vapour);
}

TEST(VesselPicture, NegativeFillingCountsAsEmptyInTheRecordToo) {
    VesselResult vessel = Filled(-0.001);
    EXPECT_EQ(DrawVessel(vessel, kindVesselGlobal, Butane(), {}).levelText, "Füllstand 0.0 % (Vol.-anteil)");
    EXPECT_EQ(vessel.fillPercent, 0);
    vessel = Filled(37.5);
    DrawVessel(vessel, kindVesselGlobal, Butane(), {});
    EXPECT_EQ(vessel.fillPercent, 37.5);
}

TEST(VesselPicture, LevelHoldsItsShareOfTheCircle) {
    for (const double percent : {0.5, 3.0, 10.0, 25.0, 49.9, 50.0, 50.1, 75.0, 97.0, 99.5, 99.85}) {
        const VesselPicture picture = Picture(Filled(percent));
        EXPECT_NEAR(ShareBelow(picture.levelHeight), static_cast<float>(percent), 0.02) << percent;
        EXPECT_TRUE(picture.HasLevel()) << percent;
    }
    EXPECT_NEAR(Picture(Filled(50)).levelHeight, 50, 0.01);
    EXPECT_EQ(Picture(Filled(50)).heightText, "0.50 d");
    EXPECT_EQ(Picture(Filled(50), kindVesselGlobal, {','}).heightText, "0,50 d");
    EXPECT_EQ(Picture(Filled(0)).heightText + Picture(Filled(100)).heightText, "");
}

TEST(VesselPicture, AboveHalfTheEmptyShareIsDrawnFromTheTop) {
    EXPECT_FALSE(Picture(Filled(50)).mirrored);
    EXPECT_TRUE(Picture(Filled(50.01)).mirrored);
    EXPECT_TRUE(Picture(Filled(99.8)).mirrored);
    EXPECT_DOUBLE_EQ(Picture(Filled(75)).levelHeight, 100 - Picture(Filled(25)).levelHeight);
}

TEST(VesselPicture, NearlyFullVesselIsAWholeCircle) {
    EXPECT_FALSE(Picture(Filled(99.84)).full);
    const VesselPicture picture = Picture(Filled(99.86));
    EXPECT_TRUE(picture.full);
    EXPECT_FALSE(picture.mirrored);
    EXPECT_FALSE(picture.HasLevel());
    EXPECT_EQ(picture.phaseText, "  L-Phase");
    EXPECT_EQ(picture.levelText, "Füllstand 99.86 % (Vol.-anteil)");
}

TEST(VesselPicture, WarnsOfAVesselWithoutRoomAboveTheLiquid) {
    for (const double percent : {0.0, 50.0, 99.9, 99.998}) {
        EXPECT_EQ(Picture(Filled(percent)).pressureGround, VesselColour::Black) << percent;
        EXPECT_EQ(Picture(Filled(percent)).pressureColour, VesselColour::LightYellow) << percent;
    }
    EXPECT_EQ(Picture(Filled(100)).pressureGround, VesselColour::LightRed);
    EXPECT_EQ(Picture(Filled(100)).pressureColour, VesselColour::White);
    EXPECT_EQ(Picture(Filled(100)).pressureText, "250.0 kPa");
}

TEST(VesselPicture, ShowsThePressureWithADigitLessAbove1000) {
    EXPECT_EQ(Picture(Filled(40, 0.0123)).pressureText, "0.012 kPa");
    EXPECT_EQ(Picture(Filled(40, 257.1234)).pressureText, "257.123 kPa");
    EXPECT_EQ(Picture(Filled(40, 1000)).pressureText, "1000.0 kPa");
    EXPECT_EQ(Picture(Filled(40, 1234.5678)).pressureText, "1234.57 kPa");
    EXPECT_EQ(Picture(Filled(40, 257.5), kindVesselGlobal, {','}).pressureText, "257,5 kPa");
}

TEST(VesselPicture, LiquidVolumeBelowTheCoVolumeIsDrawnFull) {
    VesselResult vessel = Filled(0, 0);
    vessel.note = noteBelowCoVolume;
    const VesselPicture picture = Picture(vessel);
    EXPECT_TRUE(picture.full);
    EXPECT_EQ(picture.fillPercent, 100);
    EXPECT_EQ(picture.pressureText, " Error: v < b");
    EXPECT_EQ(picture.noteText, "");
    EXPECT_EQ(picture.pressureGround, VesselColour::LightRed);
    EXPECT_EQ(picture.pressureColour, VesselColour::White);
    EXPECT_EQ(picture.levelText, "Füllstand 100.0 % (Vol.-anteil)");
}

TEST(VesselPicture, FullVesselOfThePartialMethodPointsToTheHelp) {
    VesselResult vessel = Filled(100, 0);
    vessel.note = noteVesselFull;
    const VesselPicture picture = Picture(vessel, kindVesselPartial);
    EXPECT_TRUE(picture.full);
    EXPECT_EQ(picture.pressureText, "Error");
    EXPECT_EQ(picture.noteText, "s. Hilfe 'Behälter'");
    EXPECT_EQ(picture.phaseText, "  L-Phase");
    EXPECT_EQ(picture.pressureGround, VesselColour::LightRed);
}

TEST(VesselPicture, FailureOfTheDrawingIsRed) {
    VesselResult vessel = Filled(40);
    vessel.note = "ERROR3";
    EXPECT_EQ(Picture(vessel).pressureGround, VesselColour::Red);
    EXPECT_EQ(Picture(vessel).pressureText, "250.0 kPa");
}

TEST(VesselPicture, FluidAboveTheCriticalTemperatureHasNoLevel) {
    const VesselPicture picture = Picture(Filled(0, 5000, 430));
    EXPECT_EQ(picture.levelText, "  überkritisch");
    EXPECT_EQ(picture.phaseText, "");
    EXPECT_EQ(picture.upper, VesselColour::Supercritical);
    EXPECT_EQ(picture.lower, VesselColour::Supercritical);
    // Both temperatures count as singles.
    EXPECT_EQ(Picture(Filled(0, 3796, 425.125001)).levelText, "Füllstand 0.0 % (Vol.-anteil)");
}

TEST(VesselPicture, CalculationWithoutAResultShowsNoContent) {
    const VesselPicture picture = Picture({});
    EXPECT_EQ(picture.levelText, "keine Lösung");
    EXPECT_EQ(picture.pressureText, "Error");
    EXPECT_EQ(picture.upper, VesselColour::Empty);
    EXPECT_EQ(picture.phaseText, "");
}

struct CalculatedVessel : testing::Test {
    Calculation c;

    VesselPicture Calculate(double mass, double T, int kind = kindVesselGlobal) {
        c.state.vessel = {static_cast<float>(mass), 0.1F, static_cast<float>(T), false};
        c.state.CalcKind = static_cast<std::int16_t>(kind);
        CalculationContext context = c.Context();
        result = CalcBatch(context, kind, 0);
        return DrawVessel(c.state.vesselResult, kind, c.model.substance, {});
    }

    PointResult result;
};

TEST_F(CalculatedVessel, WithBothPhasesShowsTheShareAndTheVapourPressure) {
    const VesselPicture picture = Calculate(20, 300);
    EXPECT_TRUE(result.hasL && result.hasV);
    EXPECT_NEAR(picture.fillPercent, 32.9, 1);
    EXPECT_FLOAT_EQ(static_cast<float>(picture.fillPercent), result.liquidPercent);
    EXPECT_EQ(picture.pressureText, Format(result.p, "###0.0## kPa"));
    EXPECT_NEAR(ShareBelow(picture.levelHeight), picture.fillPercent, 0.02);
}

TEST_F(CalculatedVessel, OfVapourIsEmptyAndOverfilledIsAnError) {
    EXPECT_EQ(Calculate(0.1, 300).phaseText, "  V-Phase");
    EXPECT_EQ(Calculate(59.95, 300).phaseText, "  L-Phase");
    const VesselPicture tooMuch = Calculate(90, 300);
    EXPECT_EQ(result.note, "ERROR1");
    EXPECT_EQ(tooMuch.pressureText, " Error: v < b");
    EXPECT_TRUE(tooMuch.full);
    EXPECT_EQ(Calculate(5, 450).levelText, "  überkritisch");
}

} // namespace
} // namespace orva::test
