// SPDX-License-Identifier: GPL-3.0-or-later
// What a run tells beside its numbers: colours, weights and sizes of the labels, boxes, the record, the
// command of the diagnosis.
#include <gtest/gtest.h>

#include <algorithm>

#include "report_fixture.h"

namespace orva::test {
namespace {

void ExpectStyle(const ResultLabel& label, TextColour colour, bool bold, int size) {
    EXPECT_EQ(label.colour, colour) << label.text;
    EXPECT_EQ(label.bold, bold) << label.text;
    EXPECT_EQ(label.size, size) << label.text;
}

TEST(LabelStyle, RefusedInputIsRed) {
    Reported c;
    ExpectStyle(c.Run(kindTRho, RowTRho(0, 5)).par1, TextColour::Red, false, 8);
    ExpectStyle(c.Run(kindTRho, RowTRho(300, 0)).par2, TextColour::Red, false, 8);
    ExpectStyle(c.Run(kindPRho, RowPRho(0, 5)).par1, TextColour::Red, false, 8);
    ExpectStyle(c.Run(kindSaturationPressure, RowT(430)).par1, TextColour::Red, false, 8);
    ExpectStyle(c.Run(kindSaturationTemperature, RowP(4000)).par1, TextColour::Red, false, 8);
    ExpectStyle(c.Run(kindVaporisationAtT, RowT(425.125)).par1, TextColour::Red, false, 8);
    ExpectStyle(c.Run(kindVaporisationAtP, RowP(3796)).par1, TextColour::Red, false, 8);
    Reported none(eosPengRobinson, vpNone);
    none.TakePartial(true);
    ExpectStyle(none.Run(kindSaturationPressure, RowT(300)).co2, TextColour::Red, false, 8);
}

TEST(LabelStyle, FoundValuesAreBlack) {
    Reported c;
    for (const int kind : {kindTP, kindFunctions, kindSaturationPressure, kindVaporisationAtT, kindTRho}) {
        BatchRow row = RowTP(300, 100);
        row.rhoV = 2;
        const PointResult r = c.Run(kind, row);
        for (const ResultLabel* label : {&r.par1, &r.par2, &r.co1, &r.co2})
            ExpectStyle(*label, TextColour::Black, false, 8);
        EXPECT_EQ(r.reportColour, TextColour::Black);
    }
}

TEST(LabelStyle, TheVerdictIsBlueBoldAndLarger) {
    Reported c;
    for (const int kind : {kindTP, kindFunctions, kindTRho}) {
        BatchRow row = RowTP(500, 6000);
        row.rhoV = 300;
        ExpectStyle(c.Run(kind, row).co1, TextColour::Blue, true, 10);
    }
}

TEST(LabelStyle, AFoundTemperatureStandsOnTheColourOfTheReport) {
    Reported c;
    const PointResult found = c.Run(kindPRho, RowPRho(500, 9));
    EXPECT_TRUE(found.co2.reportBackground);
    ExpectStyle(found.co2, TextColour::Black, false, 8);
    const PointResult missing = c.Run(kindPRho, RowPRho(100, 900));
    EXPECT_FALSE(missing.co2.reportBackground);
    ExpectStyle(missing.co2, TextColour::Blue, false, 8);
}

TEST(PhaseHeads, ShowThePhasesThatExist) {
    Reported c;
    const PointResult vapour = c.Run(kindTP, RowTP(300, 100));
    EXPECT_TRUE(vapour.lblVphaseVisible);
    EXPECT_FALSE(vapour.lblLphaseVisible);
    const PointResult both = c.Run(kindSaturationPressure, RowT(300));
    EXPECT_TRUE(both.lblLphaseVisible && both.lblVphaseVisible);
    EXPECT_FALSE(both.lblGleichVisible);
    EXPECT_TRUE(c.Run(kindTP, RowTP(500, 6000)).lblGleichVisible);
    EXPECT_FALSE(Reported(virialPitzerCurl).Run(kindTP, RowTP(500, 1000)).lblGleichVisible);
}

TEST(TriplePointHint, ComesForAllKindsButTheSolidOnes) {
    Reported c;
    for (int kind = kindTRho; kind <= kindSolidDensity; ++kind) {
        if (!IsKindAvailable(kind) || kind == kindVesselGlobal || kind == kindVesselPartial)
            continue;
        BatchRow row = RowTP(130, 1e-3);
        row.rhoV = row.rhoL = 700;
        const auto messages = c.Run(kind, row).messages;
        const bool hinted = std::find(messages.begin(), messages.end(),
                                      Message{"Hinweis", "T ist kleiner als Tripelpunkt-Temperatur",
                                              MessageIcon::Information})
                            != messages.end();
        const bool takesT =
            kind != kindSaturationTemperature && kind != kindVaporisationAtP && kind != kindPRho;
        const bool solid = kind == kindIdealGasCp || kind == kindSolidCp || kind == kindSolidDensity;
        EXPECT_EQ(hinted, takesT && !solid) << kind;
    }
}

TEST(TriplePointHint, ComparesInSinglePrecisionAndStaysAwayFromVirialRows) {
    Reported c;
    EXPECT_TRUE(c.Run(kindTP, RowTP(134.895, 100)).messages.empty());
    EXPECT_EQ(c.Run(kindTP, RowTP(134.8949, 100)).messages.size(), 1U);
    EXPECT_TRUE(Reported(virialPitzerCurl).Run(kindTP, RowTP(130, 1)).messages.empty());
}

TEST(DatabaseFunction, WarnsMoreThan10KOutOfItsRange) {
    Reported c;
    c.model.substance.Ttrip = 0;
    // The range of the block is 20 to 134 K.
    EXPECT_TRUE(c.Run(kindSolidCp, RowT(144)).messages.empty());
    const PointResult r = c.Run(kindSolidCp, RowT(144.5));
    ASSERT_EQ(r.messages.size(), 1U);
    EXPECT_EQ(r.messages[0].title, "WARNUNG");
    EXPECT_EQ(r.messages[0].text,
              "T liegt mehr als 10 K außerhalb des Gültigkeitsbereichs der Gleichung\n(T/K = 20...134)");
    EXPECT_EQ(r.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_FALSE(r.failed);
    EXPECT_EQ(c.Run(kindSolidCp, RowT(9.9)).messages.size(), 1U);
    EXPECT_TRUE(c.Run(kindSolidCp, RowT(10)).messages.empty());
    EXPECT_TRUE(c.Run(kindSolidCp, RowT(9.9), {.warn = false}).messages.empty());
}

TEST(DatabaseFunction, NamesItsRangeWhereItCannotBeCalculatedToo) {
    Reported c;
    const PointResult r = c.Run(kindWagner, RowT(500)); // above T(cr)
    EXPECT_TRUE(r.failed);
    ASSERT_EQ(r.messages.size(), 2U);
    EXPECT_EQ(r.messages[0].text,
              "T liegt mehr als 10 K außerhalb des Gültigkeitsbereichs der Gleichung\n(T/K = 158...425)");
    EXPECT_EQ(r.messages[1].text, "Berechnungsfehler aufgetreten");
    EXPECT_EQ(Reported(eosPengRobinson, vpWagner, Butane()).Run(kindWagner, RowT(300)).messages.size(), 1U);
}

TEST(DatabaseFunction, SaysThatItsBlockGivesNothing) {
    Reported c(eosPengRobinson, vpWagner, Butane());
    for (const int kind :
         {kindLiquidDensity, kindVaporisationDb, kindIdealGasCp, kindLiquidCp, kindSolidCp, kindFrostKalkwarf,
          kindWagner, kindAntoineLow, kindAntoineHigh, kindSolidDensity}) {
        const PointResult r = c.Run(kind, RowT(300));
        EXPECT_TRUE(r.failed) << kind;
        ASSERT_FALSE(r.messages.empty()) << kind;
        EXPECT_EQ(r.messages.back().title, "Ausführung nicht möglich") << kind;
        EXPECT_EQ(r.messages.back().text, "Berechnungsfehler aufgetreten") << kind;
        EXPECT_EQ(r.report, "") << kind;
        EXPECT_EQ(r.co2.text, "") << kind;
    }
}

// The saturated vapour of 350 K has 23.39606 kg/m^3, the saturated liquid 516.2077.
TEST(SaturatedDensities, BoundTheTwoPhaseRegion) {
    Reported c;
    const PointResult both = c.Run(kindSaturationPressure, RowT(350));
    const float rhoV = both.record.rhoV;
    const float rhoL = both.record.rhoL;
    EXPECT_NEAR(rhoV, 58.1222 / 2.4842735, 1e-4);
    EXPECT_NEAR(rhoL, 58.1222 / 0.11259459, 1e-3);
    EXPECT_EQ(c.Run(kindTRho, RowTRho(350, rhoV * 0.999F)).record.phase, " V ");
    EXPECT_EQ(c.Run(kindTRho, RowTRho(350, rhoV * 1.001F)).record.phase, "V+L");
    EXPECT_EQ(c.Run(kindTRho, RowTRho(350, rhoL * 0.999F)).record.phase, "V+L");
    EXPECT_EQ(c.Run(kindTRho, RowTRho(350, rhoL * 1.001F)).record.phase, " L ");
}

TEST(Overflow, VoidsTheRun) {
    Reported c(eosIdealGas);
    const PointResult r = c.Run(kindTRho, RowTRho(1e300, 5)); // p = R T / v is beyond single precision
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.report, "                         Meldung von Sub CalcBatch: (E-1)\r\n");
    EXPECT_EQ(r.co2.text, "");
    EXPECT_EQ(r.record.pcalc, 0);
    EXPECT_EQ(r.record.phase, "   ");
    EXPECT_EQ(r.reportColour, TextColour::Red);
}

// The sinh/cosh form of the heat capacity has no value at or below 0.1 K.
TEST(FailedFunctions, LeaveTheSlotsOfTheirPhaseAndTurnTheReportRed) {
    Reported c(eosIdealGas);
    c.model.selection.cpModel = 2;
    const PointResult r = c.Run(kindFunctions, RowTP(0.1, 1e-3));
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.report, "                         Meldung von Sub CalcBatch: (E-1)\r\n");
    EXPECT_EQ(r.reportColour, TextColour::Red);
    std::array<double, resultCount> given{};
    given[slotT] = 0.1;
    given[slotP] = 1e-3;
    EXPECT_EQ(r.results, given);
    EXPECT_EQ(r.record.phase, "   ");
    c.state.FunctionList = true;
    EXPECT_TRUE(c.Run(kindTP, RowTP(0.1, 1e-3)).failed);
    EXPECT_FALSE(c.Run(kindFunctions, RowTP(200, 100)).failed);
}

// Water: at 3000 kg/m^3 the branch below the co-volume of 0.01897 m^3/kmol fulfils the equation at 1774.9 K.
TEST(TemperatureOfADensity, IsNoneBelowTheCoVolume) {
    SubstanceData water = Butane();
    water.molarMass = 18.015F;
    water.Tc = 647.096;
    water.pc = 22064;
    water.omega = 0.34429;
    water.Tb = 373.124F;
    for (const float rho : {960.0F, 1500.0F, 3000.0F, 1e5F}) {
        Reported c(eosPengRobinson, vpNone, water);
        const PointResult r = c.Run(kindPRho, RowPRho(101.325, rho));
        EXPECT_TRUE(r.failed) << rho;
        EXPECT_EQ(r.co2.text, " Fehler") << rho;
        EXPECT_EQ(r.record.phase, "   ") << rho;
        EXPECT_EQ(r.results[slotT], 0) << rho;
    }
}

// Without a vapour-pressure equation the point comes from the data row and may lie off the two-phase line.
TEST(PartialVapourRoot, IsTheSingleRootOnTheSideOfTheVapourOnly) {
    Reported c(eosPengRobinson, vpNone);
    c.TakePartial(true);
    const double vapour =
        1.33123580861259; // the only root at 420 K, 2000 kPa, by the roots of the polynomial
    for (const int kind : {kindSaturationPressure, kindSaturationTemperature}) {
        const PointResult side = c.Run(kind, RowTP(420, 2000));
        EXPECT_FALSE(side.failed) << kind;
        EXPECT_NEAR(side.results[slotVolumeV], vapour, 1e-9) << kind;
        EXPECT_NEAR(side.record.rhoV, 58.1222 / vapour, 1e-4) << kind;
        const PointResult other = c.Run(kind, RowTP(300, 3000)); // the only root is liquid
        EXPECT_FALSE(other.failed) << kind;
        EXPECT_EQ(other.results[slotVolumeV], 0) << kind;
        EXPECT_EQ(other.record.rhoV, 0) << kind;
        EXPECT_EQ(other.report.find("Dichte"), std::string::npos) << kind;
        EXPECT_EQ(c.state.eosState.rootIndex, 3) << kind;
    }
}

TEST(GlobalVolume, StandsInTheUnitsOfTheOptionsFromTheFirstRunOn) {
    Reported c;
    c.options.volumeBasis = 1;
    EXPECT_NEAR(c.Run(kindTRho, RowTRho(350, 5)).results[slotVGlobal], 0.2, 1e-9);
    c.options.volumeBasis = 2;
    const double vCrit = 0.3074 * 8.31451 * 425.125 / 3796;
    EXPECT_NEAR(c.Run(kindTRho, RowTRho(350, 5)).results[slotVGlobal], 58.1222 / 5 / vCrit, 1e-5);
}

// Kept on purpose: at T(cr) the volumes are 1 / rho(cr) of the equation, without the molar mass.
TEST(CriticalTemperature, GivesTheCriticalPressureAndTheReciprocalDensity) {
    Reported c;
    const PointResult r = c.Run(kindSaturationPressure, RowT(425.125));
    const double rhoCrit = 58.1222 / (0.3074 * 8.31451 * 425.125 / 3796);
    EXPECT_FALSE(r.failed);
    EXPECT_EQ(r.p, 3796);
    EXPECT_EQ(r.phaseVerdict, 4);
    EXPECT_EQ(r.co1.text, "=> kritischer Punkt (T = T(cr), p = p(cr))");
    EXPECT_EQ(r.co2.text, " p(LV) = 3796.000 kPa");
    EXPECT_NEAR(r.results[slotVolumeL], 1 / rhoCrit, 1e-9);
    EXPECT_NEAR(r.results[slotVolumeV], 1 / rhoCrit, 1e-9);
    EXPECT_NEAR(r.record.rhoL, 58.1222 * rhoCrit, 1e-2);
    EXPECT_EQ(r.record.hLV, 0);
}

TEST(Record, KeepsTheGuardedValuesOfSaturation) {
    Reported c;
    const PointResult fromT = c.Run(kindSaturationPressure, RowT(350));
    EXPECT_EQ(fromT.record.phase, "V+L");
    EXPECT_NEAR(fromT.record.pcalc, 946.366F, 1e-2F);
    EXPECT_EQ(fromT.record.Tcalc, 0);
    EXPECT_NEAR(fromT.record.hLV, fromT.results[slotVaporisationH], 1e-3);
    const PointResult fromP = c.Run(kindSaturationTemperature, RowP(946.366));
    EXPECT_NEAR(fromP.record.Tcalc, 350, 5e-3);
    EXPECT_EQ(fromP.record.pcalc, 0);
    c.TakePartial(true);
    EXPECT_EQ(c.Run(kindSaturationPressure, RowT(350)).record.hLV, 0);
}

// Kept on purpose: the record of the functions always says liquid.
TEST(Record, OfTheFunctionsAlwaysSaysLiquidAndHoldsThePhaseComputedLast) {
    Reported c;
    const PointResult r = c.Run(kindFunctions, RowTP(350, 500));
    EXPECT_EQ(r.record.phase, " L ");
    EXPECT_EQ(r.record.h, static_cast<float>(r.results[slotVolumeV + 1]));
    EXPECT_EQ(r.record.s, static_cast<float>(r.results[slotVolumeV + 2]));
    EXPECT_EQ(r.record.g, static_cast<float>(r.results[slotVolumeV + 3]));
    EXPECT_EQ(r.record.eH, static_cast<float>(r.results[slotVolumeV + 6]));
    EXPECT_EQ(r.record.eU, static_cast<float>(r.results[slotVolumeV + 7]));
    EXPECT_TRUE(r.hasV && !r.hasL);
}

TEST(Record, TakesThePointAndTheTablesOfTheExtendedBlocks) {
    Reported c;
    const PointResult plain = c.Run(kindTP, RowTP(300, 100));
    EXPECT_EQ(plain.record.T, 0);
    EXPECT_EQ(plain.record.v, 0);
    c.state.ExtendedLevel = 3;
    const PointResult r = c.Run(kindTP, RowTP(300, 100));
    EXPECT_EQ(r.record.T, 300);
    EXPECT_EQ(r.record.p, 100);
    EXPECT_NEAR(r.record.v, 24.261865F, 1e-5F);
    EXPECT_EQ(r.record.mech[1][0], static_cast<float>(r.results[slotAlphaV]));
    EXPECT_EQ(r.record.coeff[1][7], static_cast<float>(r.results[slotDeltaV]));
    EXPECT_NEAR(r.record.deriv[1][0] * r.record.deriv[1][2], 1, 1e-6); // dp/dV dV/dp
    EXPECT_EQ(r.record.deriv[0][0], 0);
    EXPECT_EQ(r.record.resid[1][1], 0);
    // cp - cv = T (dp/dT) (dV/dT)
    EXPECT_NEAR(r.record.coeff[1][9] - r.record.coeff[1][8],
                300 * r.record.deriv[1][1] * r.record.deriv[1][3], 1e-4);
}

struct DiagnosisCase {
    int kind;
    int way;
    bool priority, global, enabled;
};

class Diagnosis : public testing::TestWithParam<DiagnosisCase> {};

TEST_P(Diagnosis, NeedsAGenuineCubicSolution) {
    const DiagnosisCase& d = GetParam();
    Reported c;
    c.model.selection.vaporization = static_cast<std::int16_t>(d.way);
    c.model.selection.eosPriority = d.priority;
    c.state.GlobalMethod = d.global;
    BatchRow row = RowTP(d.kind == kindSolidDensity ? 100 : 320, 300);
    row.rhoV = 20;
    EXPECT_EQ(c.Run(d.kind, row, {.warn = false}).diagnoseEnabled, d.enabled) << d.kind;
}

INSTANTIATE_TEST_SUITE_P(Kinds, Diagnosis,
                         testing::Values(DiagnosisCase{kindTRho, 7, true, true, true},
                                         DiagnosisCase{kindTP, 7, true, true, true},
                                         DiagnosisCase{kindTP, 7, true, false, false},
                                         DiagnosisCase{kindPRho, 7, true, true, true},
                                         DiagnosisCase{kindSaturationPressure, 7, true, true, true},
                                         DiagnosisCase{kindSaturationPressure, 7, false, true, false},
                                         DiagnosisCase{kindSaturationTemperature, 7, false, true, false},
                                         DiagnosisCase{kindVaporisationAtT, 7, true, true, true},
                                         DiagnosisCase{kindVaporisationAtT, 4, true, true, false},
                                         DiagnosisCase{kindVaporisationAtP, 1, true, true, false},
                                         DiagnosisCase{kindVaporisationAtP, 7, false, true, true},
                                         DiagnosisCase{kindFunctions, 7, true, true, true},
                                         DiagnosisCase{kindVirialComparison, 7, true, true, false},
                                         DiagnosisCase{kindLiquidDensity, 7, true, true, false},
                                         DiagnosisCase{kindAntoineHigh, 7, true, true, false},
                                         // The list of the kinds ends at 22.
                                         DiagnosisCase{kindSolidDensity, 7, true, true, true}));

TEST(EosState, HoldsTheLastCubicSolution) {
    Reported c;
    const PointResult r = c.Run(kindSaturationPressure, RowT(350));
    const EosStateRecord& state = c.state.eosState;
    EXPECT_EQ(state.T, 350);
    EXPECT_TRUE(state.hasL && state.hasV);
    EXPECT_EQ(state.rootIndex, 3);
    EXPECT_EQ(state.pEos, r.p);
    EXPECT_NEAR(state.zV, 946.366 * 2.4842735 / (8.31451 * 350), 1e-5);
    EXPECT_NEAR(state.zL, 946.366 * 0.11259459 / (8.31451 * 350), 1e-6);
    EXPECT_NEAR(state.v[0], 0.11259459, 1e-7);
    c.TakePartial(true);
    c.Run(kindSaturationPressure, RowT(300));
    EXPECT_EQ(state.rootIndex, 3);
    EXPECT_NEAR(state.pEos, 257.121, 1e-2); // that of the equation of state
    c.Run(kindWagner, RowT(300));
    EXPECT_EQ(state.rootIndex, 0);
    EXPECT_EQ(state.pEos, 0);
    EXPECT_EQ(state.zV, 0);
}

TEST(DecimalComma, ReachesEveryNumberOfAReport) {
    Reported c;
    c.style.decimal = ',';
    c.state.ExtendedLevel = 4;
    c.state.FunctionList = true;
    for (const int kind : {kindTRho, kindSaturationPressure, kindFunctions, kindWagner, kindVaporisationAtT,
                           kindVirialComparison, kindLiquidDensity}) {
        BatchRow row = RowTP(350.5, 512.5);
        row.rhoV = 45.5F;
        const PointResult r = c.Run(kind, row);
        const std::string text = r.par1.text + r.co2.text + WithoutSlopes(r.report);
        std::smatch point;
        EXPECT_FALSE(std::regex_search(text, point, std::regex("[0-9]\\.[0-9]")))
            << kind << ": " << point.prefix();
        EXPECT_NE(text.find("350,5"), std::string::npos) << kind;
    }
}

} // namespace
} // namespace orva::test
