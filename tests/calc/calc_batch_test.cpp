// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "calc_fixture.h"

namespace orva::test {
namespace {

TEST(CalcBatch, IsRepeatableToTheLastBit) {
    Calculation c;
    const PointResult first = c.At(340.5, 812.25);
    c.At(500, 9000);
    const PointResult again = c.At(340.5, 812.25);
    EXPECT_EQ(first.results, again.results);
    EXPECT_EQ(first.report, again.report);
    EXPECT_EQ(first.roots, again.roots);
}

TEST(CalcBatch, PutsTPAndBothVolumesIntoTheirSlots) {
    Calculation c;
    const PointResult r = c.At(300, 500);
    EXPECT_EQ(r.results[slotT], 300);
    EXPECT_EQ(r.results[slotP], 500);
    // The three roots are known, so both volumes stand in their slots although only the liquid is stable.
    EXPECT_NEAR(r.results[slotVolumeL], 0.0968760173, 1e-9);
    EXPECT_NEAR(r.results[slotVolumeV], 4.23177626, 1e-7);
    EXPECT_EQ(r.results[slotB], 0);
}

TEST(CalcBatch, RecordsTheStablePhaseOnly) {
    Calculation c;
    const PointResult liquid = c.At(300, 500);
    EXPECT_EQ(liquid.record.phase, " L ");
    EXPECT_NEAR(liquid.record.rhoL, 599.9648F, 1e-3F);
    EXPECT_EQ(liquid.record.rhoV, 0);
    EXPECT_EQ(liquid.liquidPercent, 100);
    const PointResult vapour = c.At(300, 100);
    EXPECT_EQ(vapour.record.phase, " V ");
    EXPECT_EQ(vapour.record.rhoL, 0);
    EXPECT_EQ(vapour.liquidPercent, 0);
    EXPECT_EQ(c.At(500, 6000).record.phase, "V+L");
}

TEST(CalcBatch, MissingTemperatureTurnsItsLabelRed) {
    Calculation c;
    const PointResult r = c.At(0, 100);
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.par1.text, "kein T in diesem Datensatz");
    EXPECT_EQ(r.par1.colour, TextColour::Red);
    EXPECT_EQ(r.record.phase, "   ");
    EXPECT_FALSE(r.hasL || r.hasV);
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  =                     \r\n"
                        "Volumen          v/ (m^3/kmol)  =                     \r\n");
}

TEST(CalcBatch, MissingPressureTurnsItsLabelRed) {
    Calculation c;
    const PointResult r = c.At(300, 0);
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.par2.text, "kein p in diesem Datensatz");
    EXPECT_EQ(r.par2.colour, TextColour::Red);
    EXPECT_EQ(r.results[slotT], 300);
    EXPECT_EQ(r.results[slotP], 0);
}

TEST(CalcBatch, NotANumberCountsAsMissing) {
    Calculation c;
    EXPECT_EQ(c.At(std::nan(""), 100).par1.text, "kein T in diesem Datensatz");
    EXPECT_EQ(c.At(300, std::nan("")).par2.text, "kein p in diesem Datensatz");
}

TEST(CalcBatch, InfinityCountsAsMissing) {
    Calculation c;
    EXPECT_EQ(c.At(HUGE_VAL, 100).par1.text, "kein T in diesem Datensatz");
    EXPECT_EQ(c.At(300, HUGE_VAL).par2.text, "kein p in diesem Datensatz");
    CalculationContext context = c.Context();
    for (const int kind : {kindTRho, kindTRhoLiquid}) {
        c.batch.rows[0] = {false, 300, 0, HUGE_VALF, HUGE_VALF, 0, 0};
        EXPECT_EQ(CalcBatch(context, kind, 0).par2.text, "kein rho in diesem Datensatz") << kind;
    }
}

TEST(CalcBatch, HintsAtTemperaturesBelowTheTriplePointAndGoesOn) {
    Calculation c;
    const PointResult r = c.At(130, 100);
    ASSERT_EQ(r.messages.size(), 1U);
    EXPECT_EQ(r.messages[0].title, "Hinweis");
    EXPECT_EQ(r.messages[0].text, "T ist kleiner als Tripelpunkt-Temperatur");
    EXPECT_FALSE(r.failed);
    EXPECT_TRUE(c.At(130, 100, {.warn = false}).messages.empty());
    EXPECT_TRUE(Calculation(eosIdealGas).At(130, 100).messages.empty());
}

TEST(CalcBatch, FailureOfTheEquationIsReportedInRed) {
    Calculation c;
    c.model.eos = {}; // without constants there is no volume above the co-volume
    const PointResult r = c.At(300, 100);
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.reportColour, TextColour::Red);
    EXPECT_EQ(r.report.substr(0, r.report.find("\r\n")),
              "                         Meldung von Sub CalcBatch: (E-1)");
    EXPECT_FALSE(r.diagnoseEnabled);
}

struct Verdict {
    double T, p;
    int verdict;
    const char* co1;
    bool blue;
    const char* lblL;
    const char* lblV;
    bool same;
};

class GivenState : public testing::TestWithParam<Verdict> {};

TEST_P(GivenState, IsJudgedAgainstTheCriticalPoint) {
    Calculation c;
    const Verdict& v = GetParam();
    const PointResult r = c.At(v.T, v.p);
    EXPECT_EQ(r.phaseVerdict, v.verdict);
    EXPECT_EQ(r.co1.text, v.co1);
    EXPECT_EQ(r.co1.colour, v.blue ? TextColour::Blue : TextColour::Black);
    EXPECT_EQ(r.co1.bold, v.blue);
    EXPECT_EQ(r.co1.size, v.blue ? 10 : 8);
    EXPECT_EQ(r.lblLphase, v.lblL);
    EXPECT_EQ(r.lblVphase, v.lblV);
    EXPECT_EQ(r.lblGleichVisible, v.same);
}

INSTANTIATE_TEST_SUITE_P(
    Butane, GivenState,
    testing::Values(Verdict{300, 100, 0, "3 V-Lösungen der EOS", false, "L-Phase", "V-Phase", false},
                    Verdict{200, 3000, 0, "1 V-Lösung der EOS", false, "L-Phase", "V-Phase", false},
                    Verdict{300, 5000, 1, "=> überkritische L-Phase (T < T(cr), p > p(cr))", true, "L-Phase",
                            "L-Phase", false},
                    Verdict{500, 6000, 2, "=> überkritische Phase L = V (T > T(cr), p > p(cr))", true,
                            "L-Phase", "V-Phase", true},
                    Verdict{500, 100, 3, "=> überkritische V-Phase (T > T(cr), p < p(cr))", true, "V-Phase",
                            "V-Phase", false},
                    // On the critical isobar the words of the equation of state stay, blue.
                    Verdict{300, 3796, 1, "1 V-Lösung der EOS", true, "L-Phase", "V-Phase", false}));

TEST(CalcBatch, DiagnosisNeedsACubicEquationAndTheGlobalMethod) {
    Calculation c;
    EXPECT_TRUE(c.At(300, 100).diagnoseEnabled);
    c.state.GlobalMethod = false;
    EXPECT_FALSE(c.At(300, 100).diagnoseEnabled);
    EXPECT_FALSE(Calculation(virialPitzerCurl).At(300, 100).diagnoseEnabled);
}

TEST(CalcBatch, LeavesTheRootsForTheDiagnosis) {
    Calculation c;
    c.At(300, 100);
    EXPECT_EQ(c.state.eosState.rootIndex, 3);
    EXPECT_TRUE(c.state.eosState.hasV);
    EXPECT_FALSE(c.state.eosState.hasL);
    EXPECT_NEAR(c.state.eosState.v[1], 0.512170862, 1e-9);
    EXPECT_NEAR(c.state.eosState.zV, 100 * 24.2618651 / (8.31451 * 300), 1e-6);
    c.At(0, 0);
    EXPECT_EQ(c.state.eosState.rootIndex, 0);
}

TEST(CalcBatch, EnergyFactorFollowsTheUnitBasis) {
    Calculation c;
    const double expected[] = {1, 1 / 8.31451, 1 / (8.31451 * 298.15), 1 / 58.1222};
    for (std::int16_t basis = 0; basis < 4; ++basis) {
        c.options.unitBasis = basis;
        c.At(300, 100);
        EXPECT_NEAR(c.options.energyFactor / expected[basis], 1, 1e-9);
    }
}

TEST(CalcBatch, RefusesAKindThatItDoesNotKnow) {
    Calculation c;
    CalculationContext context = c.Context();
    EXPECT_TRUE(CalcBatch(context, 25, 0).failed);
    EXPECT_FALSE(IsKindAvailable(25));
    for (int kind = kindTRho; kind <= kindSolidDensity; ++kind)
        EXPECT_TRUE(IsKindAvailable(kind)) << kind;
}

TEST(CalcBatch, ARowThatIsNotThereIsARowWithoutValues) {
    Calculation c;
    CalculationContext context = c.Context();
    const PointResult r = CalcBatch(context, kindTP, 7);
    EXPECT_TRUE(r.failed);
    EXPECT_EQ(r.par1.text, "kein T in diesem Datensatz");
}

} // namespace
} // namespace orva::test
