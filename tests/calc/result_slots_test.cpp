// SPDX-License-Identifier: GPL-3.0-or-later
// The 42 result slots of each kind: those that are filled, and that all others stay 0. The numbers were
// computed apart from the program with 40 digits (volumes as polynomial roots, saturation by equal
// fugacities, functions from the Helmholtz energy by numerical differentiation).
#include <gtest/gtest.h>

#include <map>

#include "report_fixture.h"

namespace orva::test {
namespace {

// `tolerance` is relative: that of the search for equal areas where one takes part.
void ExpectSlots(const PointResult& r, const std::map<std::size_t, double>& filled, double tolerance) {
    for (std::size_t slot = 0; slot < resultCount; ++slot) {
        const auto value = filled.find(slot);
        if (value == filled.end())
            EXPECT_EQ(r.results[slot], 0) << "slot " << slot;
        else
            EXPECT_NEAR(r.results[slot], value->second, tolerance * std::abs(value->second))
                << "slot " << slot;
    }
}

TEST(ResultSlots, DensityOfAVapour) {
    Reported c;
    ExpectSlots(c.Run(kindTRho, RowTRho(350, 5)),
                {{0, 350}, {1, 239.497665}, {2, 5}, {3, 11.62444}, {9, 11.62444}, {19, 0.113668448}}, 1e-08);
}

TEST(ResultSlots, DensityOfALiquidReachesNoGlobalSlot) {
    Reported c;
    ExpectSlots(c.Run(kindTRhoLiquid, RowTRhoLiquid(300, 602)),
                {{0, 300}, {1, 1263.68954}, {19, 0.096548505}}, 1e-07);
}

TEST(ResultSlots, BothPhasesOfADensity) {
    Reported c;
    ExpectSlots(c.Run(kindTRho, RowTRho(350, 100)),
                {{0, 350}, {1, 946.365963}, {2, 100}, {3, 0.581222}, {9, 2.48427351}, {19, 0.112594592}},
                1e-06);
}

TEST(ResultSlots, VirialRowHasNoVolumes) {
    Reported c(virialPitzerCurl);
    ExpectSlots(c.Run(kindTRho, RowTRho(300, 2)), {{0, 300}, {1, 83.7634164}, {2, 2}, {3, 29.0611}}, 1e-08);
}

TEST(ResultSlots, SpecificVolumesOfATemperatureAndPressure) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindTP, RowTP(300, 100)), {{0, 300}, {1, 100}, {9, 0.41742854}, {19, 0.00166980962}},
                1e-08);
}

TEST(ResultSlots, ExtendedVapour) {
    Reported c;
    c.state.ExtendedLevel = 3;
    ExpectSlots(c.Run(kindTP, RowTP(300, 100)),
                {{0, 300},
                 {1, 100},
                 {9, 24.2618651},
                 {19, 0.0970530085},
                 {31, 0.00359042099},
                 {32, 0.0102870331},
                 {33, 0.00349023956},
                 {34, 0.018819868}},
                1e-07);
}

TEST(ResultSlots, ExtendedLiquid) {
    Reported c;
    c.state.ExtendedLevel = 2;
    ExpectSlots(c.Run(kindTP, RowTP(300, 1000)),
                {{0, 300},
                 {1, 1000},
                 {9, 1.49059757},
                 {19, 0.0966600923},
                 {35, 0.00227769102},
                 {36, 4.40845906e-06},
                 {37, 0.516663756},
                 {38, -0.000217760506}},
                1e-07);
}

TEST(ResultSlots, SaturationPressure) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindSaturationPressure, RowT(350)),
                {{0, 350},
                 {1, 946.365963},
                 {9, 0.0427422483},
                 {19, 0.00193720458},
                 {29, 300.625234},
                 {30, 0.858929241}},
                1e-06);
}

TEST(ResultSlots, SaturationPressureWithItsFunctionList) {
    Reported c;
    c.state.FunctionList = true;
    ExpectSlots(c.Run(kindSaturationPressure, RowT(350)),
                {{0, 350},         {1, 946.365963},   {9, 2.48427351},   {10, 3827.12991},  {11, -4.91716091},
                 {12, 5548.13623}, {13, 1476.09802},  {14, 3197.10434},  {15, 5362.26427},  {16, 3262.95139},
                 {17, 121.673905}, {18, 103.948709},  {19, 0.112594592}, {20, -13645.8431}, {21, -54.839941},
                 {22, 5548.13623}, {23, -13752.3988}, {24, 5441.58054},  {25, 2773.76812},  {26, 2678.62108},
                 {27, 169.825655}, {28, 116.44131},   {29, 17473},       {30, 49.9228571},  {39, 468.524249},
                 {40, 191.933808}},
                2e-06);
}

// Below about 1e-3 kPa the cubic solved at the pressure loses the liquid volume to rounding.
TEST(ResultSlots, ListsAndBlocksOfAColdLiquidHaveBothPhases) {
    Reported c;
    c.state.FunctionList = true;
    c.state.ExtendedLevel = 4;
    for (const double T : {115.0, 120.0, 130.0}) {
        const PointResult r = c.Run(kindSaturationPressure, RowT(T));
        EXPECT_LT(r.p, 1e-3);
        const double hV = r.results[slotVolumeV + 1], hL = r.results[slotVolumeL + 1];
        const double gV = r.results[slotVolumeV + 3], gL = r.results[slotVolumeL + 3];
        EXPECT_NEAR(gL, gV, 1e-6 * std::abs(gV)) << T;
        EXPECT_NEAR(r.record.coeff[0][0], r.record.coeff[1][0], 1e-4) << T; // ln phi
        EXPECT_LT(r.record.deriv[0][0], 100 * r.record.deriv[1][0]) << T;   // dp/dv, steep for a liquid
        const double slope = std::log(c.Run(kindSaturationPressure, RowT(T + 0.1)).p
                                      / c.Run(kindSaturationPressure, RowT(T - 0.1)).p)
                             / 0.2;
        EXPECT_NEAR(hV - hL, 8.31451 * T * T * slope, 1e-4 * (hV - hL)) << T;
    }
}

TEST(ResultSlots, SaturationTemperature) {
    Reported c;
    ExpectSlots(
        c.Run(kindSaturationTemperature, RowP(500)),
        {{0, 323.513007}, {1, 500}, {9, 4.73605163}, {19, 0.103034634}, {29, 19573}, {30, 60.5014315}},
        5e-05);
}

TEST(ResultSlots, PressureWithoutPriorityHasAnEnthalpy) {
    Reported c;
    c.model.selection.eosPriority = false;
    ExpectSlots(c.Run(kindSaturationPressure, RowT(300)),
                {{0, 300}, {1, 266.524687}, {29, 21019}, {30, 70.0633333}}, 1e-07);
}

TEST(ResultSlots, TemperatureWithoutPriorityHasNone) {
    Reported c;
    c.model.selection.eosPriority = false;
    ExpectSlots(c.Run(kindSaturationTemperature, RowP(500)), {{0, 322.478867}, {1, 500}}, 1e-07);
}

TEST(ResultSlots, PartialPressureHasNoEnthalpy) {
    Reported c;
    c.TakePartial(false);
    ExpectSlots(c.Run(kindSaturationPressure, RowT(300)),
                {{0, 300}, {1, 266.524687}, {9, 8.65027915}, {19, 0.101528304}}, 1e-07);
}

TEST(ResultSlots, VaporisationHoldsTheFactorSquared) {
    Reported c;
    c.model.selection.vaporization = 4;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindVaporisationAtT, RowT(320)), {{0, 320}, {29, 5.75722479}, {30, 0.0179913275}},
                1e-08);
}

TEST(ResultSlots, VaporisationFromThePressure) {
    Reported c;
    c.model.selection.vaporization = 1;
    ExpectSlots(c.Run(kindVaporisationAtP, RowP(300)), {{1, 300}, {29, 20146}, {30, 66.2777681}}, 1e-08);
}

TEST(ResultSlots, FunctionsOfAVapour) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindFunctions, RowTP(350, 500)),
                {{0, 350},
                 {1, 500},
                 {9, 0.0907456811},
                 {10, 80.1658802},
                 {11, 0.0351479923},
                 {12, 67.8640829},
                 {13, 34.7930397},
                 {14, 22.4912424},
                 {15, 70.8750855},
                 {16, 34.6970511},
                 {17, 1.98375766},
                 {18, 1.78074262},
                 {40, 213.270046}},
                1e-07);
}

TEST(ResultSlots, FunctionsOfAnUndividedFluid) {
    Reported c;
    ExpectSlots(c.Run(kindFunctions, RowTP(500, 6000)),
                {{0, 500},         {1, 6000},        {9, 0.439973733},  {10, 18637.2679}, {11, 19.2700215},
                 {12, 9002.25712}, {13, 15997.4255}, {14, 6362.41472},  {15, 12960.9938}, {16, 10365.7317},
                 {17, 193.732076}, {18, 141.965338}, {19, 0.439973733}, {20, 18637.2679}, {21, 19.2700215},
                 {22, 9002.25712}, {23, 15997.4255}, {24, 6362.41472},  {25, 12960.9938}, {26, 10365.7317},
                 {27, 193.732076}, {28, 141.965338}, {39, 204.292311},  {40, 204.292311}},
                1e-07);
}

TEST(ResultSlots, VirialCoefficientOfTheCubicRow) {
    Reported c;
    ExpectSlots(c.Run(kindVirialComparison, RowT(300)), {{0, 300}}, 1e-08);
}

TEST(ResultSlots, VirialCoefficientOfTheChosenRow) {
    Reported c(virialPengRobinson);
    ExpectSlots(c.Run(kindVirialComparison, RowT(300)), {{0, 300}, {41, -0.66763982}}, 1e-08);
}

TEST(ResultSlots, TemperatureOfADensity) {
    Reported c;
    ExpectSlots(c.Run(kindPRho, RowPRho(500, 9)),
                {{0, 411.694103}, {1, 500}, {2, 9}, {3, 6.45802222}, {9, 6.45802222}}, 1e-07);
}

TEST(ResultSlots, LiquidDensityWithItsMolarVolume) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindLiquidDensity, RowT(300)), {{0, 300}, {4, 572.472873}, {19, 0.101528304}}, 1e-08);
}

TEST(ResultSlots, VaporisationFunctionWithTheFactorOnce) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindVaporisationDb, RowT(300)), {{0, 300}, {29, 351.012597}, {30, 1.17004199}}, 1e-08);
}

TEST(ResultSlots, IdealGasHeatCapacity) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectSlots(c.Run(kindIdealGasCp, RowT(300)), {{0, 300}, {7, 1.69512516}}, 1e-08);
}

TEST(ResultSlots, LiquidHeatCapacity) {
    Reported c;
    ExpectSlots(c.Run(kindLiquidCp, RowT(300)), {{0, 300}, {27, 185}}, 1e-08);
}

TEST(ResultSlots, SolidHeatCapacity) {
    Reported c;
    ExpectSlots(c.Run(kindSolidCp, RowT(100)), {{0, 100}, {5, 120}}, 1e-08);
}

TEST(ResultSlots, WagnerPressure) {
    Reported c;
    ExpectSlots(c.Run(kindWagner, RowT(300)), {{0, 300}, {1, 266.524687}}, 1e-08);
}

TEST(ResultSlots, FrostKalkwarfPressure) {
    Reported c;
    ExpectSlots(c.Run(kindFrostKalkwarf, RowT(300)), {{0, 300}, {1, 255.700888}}, 1e-08);
}

TEST(ResultSlots, AntoinePressures) {
    Reported c;
    ExpectSlots(c.Run(kindAntoineLow, RowT(280)), {{0, 280}, {1, 129.221667}}, 1e-08);
}

TEST(ResultSlots, AntoineHighPressure) {
    Reported c;
    ExpectSlots(c.Run(kindAntoineHigh, RowT(350)), {{0, 350}, {1, 937.79332}}, 1e-08);
}

TEST(ResultSlots, SolidDensityHasNoSlot) {
    Reported c;
    ExpectSlots(c.Run(kindSolidDensity, RowT(100)), {{0, 100}}, 1e-08);
}

TEST(ResultSlots, KindWithoutAFunction) {
    Reported c;
    ExpectSlots(c.Run(kindWithoutFunction, RowT(300)), {{0, 300}}, 1e-08);
}

} // namespace
} // namespace orva::test
