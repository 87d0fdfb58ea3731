// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "thermo/fluids.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

constexpr const char* title = "Warnung zur Dampfdruckgleichung";
constexpr const char* tail =
    " K außerhalb Parameter-Gültigkeitsbereich\n(vgl. unter Daten/Parameter Dampfdruckgleichung)";

TEST(TheDeviation, IsTheDistanceFromTheRange) {
    const SubstanceData s = fluids::NButane();
    EXPECT_EQ(VapourPressure(s, 250, vpAntoineLow).deviation, 0); // 201 to 292
    EXPECT_EQ(VapourPressure(s, 201, vpAntoineLow).deviation, 0);
    EXPECT_EQ(VapourPressure(s, 292, vpAntoineLow).deviation, 0);
    EXPECT_EQ(VapourPressure(s, 190, vpAntoineLow).deviation, -11);
    EXPECT_EQ(VapourPressure(s, 305, vpAntoineLow).deviation, 13);
    EXPECT_EQ(VapourPressure(s, 260, vpAntoineHigh).deviation, -13);   // 273 to 425
    EXPECT_EQ(VapourPressure(s, 120, vpFrostKalkwarf).deviation, -15); // 135 to 425
    EXPECT_EQ(VapourPressure(s, 140, vpWagner).deviation, -18);        // 158 to 425
}

TEST(TheDeviation, IsRoundedHalfToEven) {
    const SubstanceData s = fluids::NButane();
    EXPECT_EQ(VapourPressure(s, 292.5, vpAntoineLow).deviation, 0);
    EXPECT_EQ(VapourPressure(s, 293.5, vpAntoineLow).deviation, 2);
    EXPECT_EQ(VapourPressure(s, 294.5, vpAntoineLow).deviation, 2);
    EXPECT_EQ(VapourPressure(s, 200.5, vpAntoineLow).deviation, 0);
    EXPECT_EQ(VapourPressure(s, 199.5, vpAntoineLow).deviation, -2);
    EXPECT_EQ(VapourPressure(s, 190.4, vpAntoineLow).deviation, -11);
}

TEST(TheDeviation, IsTakenFromTheUpperLimitWhereTheLimitsAreCrossed) {
    SubstanceData s = fluids::NButane();
    s.antoineLow.Tlo = 320;
    s.antoineLow.Thi = 280;
    EXPECT_EQ(VapourPressure(s, 300, vpAntoineLow).deviation, 20);
}

TEST(TheDeviation, OfTheAugustEquationCountsFromTheBoilingTemperatureDownOnly) {
    const SubstanceData s = fluids::NButane(); // Tb 272.66
    EXPECT_EQ(VapourPressure(s, 250, vpAugust).deviation, -23);
    EXPECT_EQ(VapourPressure(s, 420, vpAugust).deviation, 0);
    const double p = VapourPressure(s, 250, vpAugust).value;
    EXPECT_EQ(VapourPressureTemperature(s, p, vpAugust).deviation, -23);
}

TEST(TheDeviation, DoesNotExistForCorrelatedEquations) {
    const SubstanceData s = fluids::NButane();
    for (const int equation : {vpFrostKalkwarfVdW, vpFrostKalkwarfRK, vpThompson}) {
        const VapourPressureResult result = VapourPressure(s, 200, equation);
        EXPECT_EQ(result.deviation, 0);
        EXPECT_EQ(VapourPressureTemperature(s, result.value, equation).deviation, 0);
    }
}

TEST(TheDeviation, NeedsBothLimitsForWagnerAndFrostKalkwarf) {
    SubstanceData s = fluids::NButane();
    s.wagner.Tlo = 0;
    s.frostKalkwarf.Thi = 0;
    for (const int equation : {vpWagner, vpFrostKalkwarf}) {
        const VapourPressureResult result = VapourPressure(s, 120, equation);
        EXPECT_EQ(result.deviation, 0);
        EXPECT_EQ(VapourPressureTemperature(s, 1e-4, equation).deviation, 0);
    }
}

TEST(TheDeviation, IsGivenInBothDirections) {
    const SubstanceData s = fluids::NButane();
    for (const int equation : {vpAntoineLow, vpAntoineHigh, vpFrostKalkwarf, vpWagner})
        for (const double T : {150.0, 180.0, 240.0, 300.0, 400.0}) {
            const VapourPressureResult forward = VapourPressure(s, T, equation);
            const VapourPressureResult back = VapourPressureTemperature(s, forward.value, equation);
            ASSERT_FALSE(back.failed);
            EXPECT_EQ(back.deviation, forward.deviation) << equation << " " << T;
        }
}

TEST(TheWarningOfThePressure, SpeaksFromElevenKelvinsOn) {
    VapourPressureResult result{100, false, 10};
    EXPECT_FALSE(VapourPressureWarning(result));
    result.deviation = -10;
    EXPECT_FALSE(VapourPressureWarning(result));
    result.deviation = 11;
    EXPECT_EQ(VapourPressureWarning(result),
              (Message{title, std::string(" Temperatur 11") + tail, MessageIcon::Exclamation}));
    result.deviation = -11;
    EXPECT_EQ(VapourPressureWarning(result),
              (Message{title, std::string(" Temperatur -11") + tail, MessageIcon::Exclamation}));
}

TEST(TheWarningOfTheTemperature, SpeaksFromSixKelvinsOn) {
    VapourPressureResult result{300, false, 5};
    EXPECT_FALSE(VapourPressureTemperatureWarning(result));
    result.deviation = -5;
    EXPECT_FALSE(VapourPressureTemperatureWarning(result));
    result.deviation = 6;
    EXPECT_EQ(VapourPressureTemperatureWarning(result),
              (Message{title, std::string("Temperatur 6") + tail, MessageIcon::Exclamation}));
}

// The two limits differ on purpose.
TEST(TheWarnings, DifferAtSevenKelvins) {
    const SubstanceData s = fluids::NButane();
    const VapourPressureResult forward = VapourPressure(s, 299, vpAntoineLow);
    const VapourPressureResult back = VapourPressureTemperature(s, forward.value, vpAntoineLow);
    EXPECT_EQ(forward.deviation, 7);
    EXPECT_EQ(back.deviation, 7);
    EXPECT_FALSE(VapourPressureWarning(forward));
    EXPECT_TRUE(VapourPressureTemperatureWarning(back));
}

// The box comes before the result is judged.
TEST(TheWarnings, ComeAlsoWithAFailure) {
    const SubstanceData s = fluids::NButane();
    const VapourPressureResult result = VapourPressure(s, 2, vpAntoineHigh); // beyond the pole: overflow
    EXPECT_TRUE(result.failed || result.value > 0);
    EXPECT_EQ(result.deviation, -271);
    EXPECT_TRUE(VapourPressureWarning(result));
}

TEST(TheWarnings, KeepQuietWhenThereIsNothingToSay) {
    EXPECT_FALSE(VapourPressureWarning(VapourPressure(fluids::Water(), 300, vpWagner)));
    EXPECT_FALSE(VapourPressureWarning(VapourPressure(fluids::Water(), 1000, vpWagner)));
    EXPECT_FALSE(VapourPressureWarning(VapourPressure(fluids::Water(), 300, vpNone)));
}

} // namespace
} // namespace orva
