// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "state/resets.h"

namespace orva {
namespace {

EosParameters FilledParameters() {
    EosParameters eos;
    eos.a0 = eos.b0 = eos.c0 = eos.d0 = 1;
    eos.nA = eos.nB = eos.nC = eos.nD = eos.nF = 2;
    eos.reserve = {3, 3, 3};
    eos.A = eos.B = eos.C = eos.D = 4;
    eos.AlphaForm = 2;
    eos.vCritCalc = 0.25;
    eos.rhoCritCalc = 200;
    return eos;
}

void ExpectSixteenZeros(const EosParameters& eos) {
    for (const double x : {eos.a0, eos.b0, eos.c0, eos.d0, eos.nA, eos.nB, eos.nC, eos.nD, eos.nF,
                           eos.reserve[0], eos.reserve[1], eos.reserve[2], eos.A, eos.B, eos.C, eos.D})
        EXPECT_EQ(x, 0);
}

// A session in the middle of its work: every field differs from what the reset sets.
struct BusySession : testing::Test {
    SubstanceModel model;
    Options options;
    SessionState session;
    DiagramRanges ranges;

    BusySession() {
        model.substance.name = "n-Butan";
        model.substance.Tc = 425.125;
        model.selection = {6, 4, "WAG", 7, 2, 0.38F, false, true};
        model.reference = {10, 300, 100, 1000, 10, 280, 95};
        model.eos = FilledParameters();
        model.voHalme.zeta = 0.3;
        model.work.Roots = {1, 2, 3};
        model.work.BVirial = -1;
        model.work.RegionCode = 2;
        options.batchMode = true;
        options.unitBasis = 3;
        options.curvePoints = 77;
        session.batchFile = "series.BAQ";
        session.batchFileFlag = true;
        session.batchRowCount = 5;
        session.databaseFile = "ORVA.Q05";
        session.databaseLoaded = true;
        session.substanceCount = 800;
        session.substanceIndex = 12;
        session.substanceIndexPending = 13;
        session.rangesStale = true;
        session.vesselGlobal = false;
        ranges.pMax = 5000;
        ranges.pMin = 1;
        ranges.dhMin = -3;
        ranges.deltaMax = 2;
    }
};

TEST_F(BusySession, TheResetEndsBatchModeAndForgetsTheSubstance) {
    ResetModelState(model, options, session, ranges);
    EXPECT_FALSE(options.batchMode);
    EXPECT_FALSE(session.batchFileFlag);
    EXPECT_EQ(session.substanceIndex, 0);
    EXPECT_EQ(model.selection.vaporization, 0);
    EXPECT_TRUE(model.selection.eosPriority);
    EXPECT_TRUE(session.vesselGlobal);
}

// The reference window sets 101.325 itself when its first choice is taken; until then p0 is 0.
TEST_F(BusySession, TheResetLeavesTheReferencePressureAtZero) {
    ResetModelState(model, options, session, ranges);
    EXPECT_EQ(model.reference.p0, 0);
    EXPECT_EQ(model.reference.T0, 298.15F);
    EXPECT_EQ(model.reference.h0, 0);
    EXPECT_EQ(model.reference.s0, 0);
    EXPECT_EQ(model.reference.Tenv, 298.15);
    EXPECT_EQ(model.reference.penv, 101.325);
}

TEST_F(BusySession, TheResetKeepsTheKindOfTheReferencePoint) {
    ResetModelState(model, options, session, ranges);
    EXPECT_EQ(model.reference.kind, 10);
}

TEST_F(BusySession, TheResetZeroesTheDiagramRangesButOne) {
    ResetModelState(model, options, session, ranges);
    EXPECT_EQ(ranges.pMin, 0.001F);
    EXPECT_EQ(ranges.pMax, 0);
    EXPECT_EQ(ranges.dhMin, 0);
    EXPECT_EQ(ranges.deltaMax, 0);
}

TEST_F(BusySession, TheResetClearsTheConstantsOfTheEquationOfState) {
    ResetModelState(model, options, session, ranges);
    ExpectSixteenZeros(model.eos);
}

TEST_F(BusySession, TheResetKeepsTheChosenModelsForTheNextSubstance) {
    ResetModelState(model, options, session, ranges);
    EXPECT_EQ(model.selection.eos, 6);
    EXPECT_EQ(model.selection.vaporPressure, 4);
    EXPECT_EQ(model.selection.vaporPressureCode, "WAG");
    EXPECT_EQ(model.selection.cpModel, 2);
    EXPECT_EQ(model.selection.watsonExponent, 0.38F);
    EXPECT_TRUE(model.selection.nonCubic);
}

TEST_F(BusySession, TheResetTouchesNothingElse) {
    ResetModelState(model, options, session, ranges);
    EXPECT_EQ(model.substance.name, "n-Butan");
    EXPECT_EQ(model.substance.Tc, 425.125);
    EXPECT_EQ(model.voHalme.zeta, 0.3);
    EXPECT_THAT(model.work.Roots, testing::ElementsAre(1, 2, 3));
    EXPECT_EQ(model.work.BVirial, -1);
    EXPECT_EQ(model.work.RegionCode, 2);
    EXPECT_EQ(options.unitBasis, 3);
    EXPECT_EQ(options.curvePoints, 77);
    EXPECT_EQ(session.batchFile, "series.BAQ");
    EXPECT_EQ(session.batchRowCount, 5);
    EXPECT_EQ(session.databaseFile, "ORVA.Q05");
    EXPECT_TRUE(session.databaseLoaded);
    EXPECT_EQ(session.substanceCount, 800);
    EXPECT_EQ(session.substanceIndexPending, 13);
    EXPECT_TRUE(session.rangesStale);
}

TEST_F(BusySession, ClearingTheBatchFileKeepsTheRows) {
    session.batchComment = "comment";
    ClearBatchFile(session);
    EXPECT_EQ(session.batchFile, "");
    EXPECT_FALSE(session.batchFileFlag);
    EXPECT_EQ(session.batchRowCount, 5);
    EXPECT_EQ(session.batchComment, "comment");
}

TEST(ResettingTheConstants, KeepsTheFormAndTheCriticalVolume) {
    EosParameters eos = FilledParameters();
    ResetEosParameters(eos);
    ExpectSixteenZeros(eos);
    EXPECT_EQ(eos.AlphaForm, 2);
    EXPECT_EQ(eos.vCritCalc, 0.25);
    EXPECT_EQ(eos.rhoCritCalc, 200);
}

} // namespace
} // namespace orva
