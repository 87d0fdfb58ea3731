// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/options_choice.h"
#include "shell/road.h"
#include "support/sample_database.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"

namespace orva::test {
namespace {

struct OptionsWindow : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    Session session{machine, dialogs};
    Options& options = session.options;

    void SetUp() override {
        WriteSampleDatabase(machine.InstallationFolder());
        ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
        Take(1, eosPengRobinson);
    }

    void Take(int substance, int eos) {
        ASSERT_TRUE(AcceptSubstance(session, substance));
        TakeModels(eos);
    }
    void TakeModels(int eos) {
        ModelChoice choice(session.model, session.names);
        choice.Open();
        choice.SelectEos(choice.EOSKombi.RowOf(eos));
        ASSERT_TRUE(choice.OKModell(dialogs));
        AcceptModels(session, choice.Panels());
    }

    bool Allowed(const char* name, int index) const {
        return session.commands.Allowed(FindCommand(name, index));
    }
    bool Visible(int index) const { return session.commands.Visible(FindCommand("mnuCalc", index)); }
    std::string Text(int index) const { return session.commands.Text(FindCommand("mnuCalc", index)); }

    OptionsChoice::Outcome Accept(void (*choose)(OptionsChoice&)) {
        OptionsChoice choice(session);
        choose(choice);
        return choice.cmdOK();
    }
};

TEST_F(OptionsWindow, OpensWithTheDefaults) {
    const OptionsChoice choice(session);
    EXPECT_EQ(choice.OptCalcMode, 0);
    EXPECT_EQ(choice.optMolarSpez, 0);
    EXPECT_FALSE(choice.chkReduziert);
    EXPECT_TRUE(choice.chkReduziertEnabled);
    EXPECT_TRUE(choice.chkCurveTpRestricted);
    EXPECT_FALSE(choice.chkSKurveOhneKonnode);
    EXPECT_TRUE(choice.chkSKurveOhneKonnodeEnabled);
    EXPECT_FALSE(choice.chkPartialKurve);
    EXPECT_EQ(choice.Slider1_punktdichte, 300);
}

TEST_F(OptionsWindow, OpensWithWhatIsInForce) {
    options.batchMode = true;
    options.unitBasis = 3;
    options.volumeBasis = 2;
    options.curveTpRestricted = false;
    options.sCurveWithoutTieLine = true;
    options.partialCurveGasOnly = true;
    options.curvePoints = 451;
    const OptionsChoice choice(session);
    EXPECT_EQ(choice.OptCalcMode, 1);
    EXPECT_EQ(choice.optMolarSpez, 1);
    EXPECT_TRUE(choice.chkReduziert);
    EXPECT_FALSE(choice.chkCurveTpRestricted);
    EXPECT_TRUE(choice.chkSKurveOhneKonnode);
    EXPECT_TRUE(choice.chkPartialKurve);
    EXPECT_EQ(choice.Slider1_punktdichte, 451);
}

TEST_F(OptionsWindow, BasesThatItDoesNotOfferShowAsMolar) {
    for (const int basis : {1, 2}) {
        options.unitBasis = static_cast<std::int16_t>(basis);
        EXPECT_EQ(OptionsChoice(session).optMolarSpez, 0);
    }
}

TEST_F(OptionsWindow, OpeningAndClosingChangesNothing) {
    options.curvePoints = 7;
    options.unitBasis = 2;
    options.volumeBasis = 1;
    options.energyFactor = 0.5;
    options.volumeFactor = 0.25;
    {
        OptionsChoice choice(session);
        choice.optMolarSpez = 1;
        choice.OptCalcMode = 1;
        choice.chkReduziert = true;
    }
    EXPECT_EQ(options.curvePoints, 7);
    EXPECT_EQ(options.unitBasis, 2);
    EXPECT_EQ(options.volumeBasis, 1);
    EXPECT_EQ(options.energyFactor, 0.5);
    EXPECT_EQ(options.volumeFactor, 0.25);
    EXPECT_FALSE(options.batchMode);
}

TEST_F(OptionsWindow, WithoutCriticalDataNothingIsReduced) {
    options.volumeBasis = 2;
    session.model.substance.pc = 0;
    const OptionsChoice choice(session);
    EXPECT_FALSE(choice.chkReduziertEnabled);
    EXPECT_FALSE(choice.chkReduziert);
    EXPECT_EQ(options.volumeBasis, 0);
    EXPECT_EQ(options.volumeFactor, 1);
    EXPECT_EQ(options.vUnit, "m^3/kmol");
}

TEST_F(OptionsWindow, LimitOfTheCriticalDataIsTheirProduct) {
    SubstanceData& substance = session.model.substance;
    substance.Tc = 1e-3;
    substance.pc = 2e-3;
    EXPECT_TRUE(OptionsChoice(session).chkReduziertEnabled);
    substance.pc = 0.5e-3;
    EXPECT_FALSE(OptionsChoice(session).chkReduziertEnabled);
}

TEST_F(OptionsWindow, TheSCurveBelongsToCubicEquations) {
    TakeModels(virialVanDerWaals);
    EXPECT_FALSE(OptionsChoice(session).chkSKurveOhneKonnodeEnabled);
    TakeModels(eosVanDerWaals);
    EXPECT_TRUE(OptionsChoice(session).chkSKurveOhneKonnodeEnabled);
}

TEST_F(OptionsWindow, SpecificUnitsDivideByTheMolarMass) {
    const auto outcome = Accept([](OptionsChoice& c) { c.optMolarSpez = 1; });
    const double M = session.model.substance.molarMass;
    EXPECT_TRUE(outcome.unitsChanged);
    EXPECT_EQ(options.unitBasis, 3);
    EXPECT_EQ(options.volumeBasis, 1);
    EXPECT_EQ(options.energyFactor, 1 / M);
    EXPECT_EQ(options.volumeFactor, 1 / M);
    EXPECT_EQ(options.vUnit, "m^3/kg  ");
    EXPECT_EQ(options.TUnit, "K");

    EXPECT_FALSE(Accept([](OptionsChoice&) {}).unitsChanged);
    EXPECT_TRUE(Accept([](OptionsChoice& c) { c.optMolarSpez = 0; }).unitsChanged);
    EXPECT_EQ(options.unitBasis, 0);
    EXPECT_EQ(options.energyFactor, 1);
    EXPECT_EQ(options.volumeFactor, 1);
    EXPECT_EQ(options.vUnit, "m^3/kmol");
}

TEST_F(OptionsWindow, ReducedUnitsWorkWithoutADensityInTheDatabase) {
    Take(2, eosVanDerWaals);
    ASSERT_EQ(session.model.substance.vcDatabase, 0);
    ASSERT_GT(session.model.eos.vCritCalc, 0);
    const auto outcome = Accept([](OptionsChoice& c) { c.chkReduziert = true; });
    EXPECT_TRUE(outcome.unitsChanged);
    EXPECT_EQ(options.volumeBasis, 2);
    EXPECT_EQ(options.volumeFactor, 1 / session.model.eos.vCritCalc);
    EXPECT_EQ(options.vUnit, "V(red)");
    EXPECT_EQ(options.TUnit, "p(red)");
    EXPECT_EQ(options.pUnit, "kPa");
    EXPECT_EQ(options.TFactor, static_cast<float>(1 / session.model.substance.Tc));
    EXPECT_TRUE(OptionsChoice(session).chkReduziert);
}

TEST_F(OptionsWindow, ReducedVolumesGoWithSpecificEnergies) {
    Accept([](OptionsChoice& c) {
        c.optMolarSpez = 1;
        c.chkReduziert = true;
    });
    EXPECT_EQ(options.unitBasis, 3);
    EXPECT_EQ(options.volumeBasis, 2);
    EXPECT_EQ(options.energyFactor, 1 / static_cast<double>(session.model.substance.molarMass));
    EXPECT_EQ(options.volumeFactor, 1 / session.model.eos.vCritCalc);
    EXPECT_EQ(OptionsChoice(session).optMolarSpez, 1);
}

TEST_F(OptionsWindow, WithoutACriticalVolumeReducedUnitsFallBackAndShowUnticked) {
    TakeModels(eosIdealGas);
    ASSERT_EQ(session.model.eos.vCritCalc, 0);
    const auto outcome = Accept([](OptionsChoice& c) { c.chkReduziert = true; });
    EXPECT_FALSE(outcome.unitsChanged);
    EXPECT_EQ(options.volumeBasis, 0);
    EXPECT_EQ(options.volumeFactor, 1);
    EXPECT_EQ(options.TFactor, 1); // all quantities fall back together
    EXPECT_EQ(options.pFactor, 1);
    EXPECT_EQ(options.TUnit, "K");
    EXPECT_FALSE(OptionsChoice(session).chkReduziert);
    EXPECT_TRUE(OptionsChoice(session).chkReduziertEnabled);
}

TEST_F(OptionsWindow, TheFallBackIsToMolarVolumesUnderSpecificEnergiesToo) {
    TakeModels(eosIdealGas);
    Accept([](OptionsChoice& c) {
        c.optMolarSpez = 1;
        c.chkReduziert = true;
    });
    EXPECT_EQ(options.unitBasis, 3);
    EXPECT_EQ(options.volumeBasis, 0);
    EXPECT_EQ(options.vUnit, "m^3/kmol");
}

TEST_F(OptionsWindow, UnitsFollowTheSubstance) {
    Accept([](OptionsChoice& c) { c.optMolarSpez = 1; });
    Take(2, eosVanDerWaals);
    const double M = session.model.substance.molarMass;
    EXPECT_EQ(options.volumeFactor, 1 / M);
    EXPECT_EQ(options.energyFactor, 1 / M);
}

TEST_F(OptionsWindow, DiagramOptionsAreTaken) {
    const auto outcome = Accept([](OptionsChoice& c) {
        c.chkCurveTpRestricted = false;
        c.chkSKurveOhneKonnode = true;
        c.chkPartialKurve = true;
    });
    EXPECT_FALSE(outcome.unitsChanged);
    EXPECT_FALSE(options.curveTpRestricted);
    EXPECT_TRUE(options.sCurveWithoutTieLine);
    EXPECT_TRUE(options.partialCurveGasOnly);
    EXPECT_FALSE(Accept([](OptionsChoice& c) { c.chkCurveTpRestricted = true; }).unitsChanged);
    EXPECT_TRUE(options.curveTpRestricted);
    EXPECT_TRUE(options.partialCurveGasOnly);
}

TEST_F(OptionsWindow, DefaultWindowsOfTheDiagramsFollow) {
    const double TMax = session.ranges.TMax;
    const double hMax = session.ranges.hMax;
    Accept([](OptionsChoice& c) {
        c.optMolarSpez = 1;
        c.chkReduziert = true;
    });
    EXPECT_NEAR(session.ranges.TMax, TMax / session.model.substance.Tc, 1e-6);
    EXPECT_NEAR(session.ranges.hMax, hMax / session.model.substance.molarMass, 1e-3);
}

TEST_F(OptionsWindow, PointsOutOfRangeAreClampedOnOpeningAndTakenOnAcceptance) {
    for (const auto& [stored, shown] : {std::pair{49, 50},
                                        {50, 50},
                                        {51, 51},
                                        {800, 800},
                                        {801, 800},
                                        {0, 50},
                                        {-32768, 50},
                                        {32767, 800}}) {
        options.curvePoints = static_cast<std::int16_t>(stored);
        OptionsChoice choice(session);
        EXPECT_EQ(choice.Slider1_punktdichte, shown);
        EXPECT_EQ(options.curvePoints, stored);
        choice.cmdOK();
        EXPECT_EQ(options.curvePoints, shown);
    }
    Accept([](OptionsChoice& c) { c.Slider1_punktdichte = 123; });
    EXPECT_EQ(options.curvePoints, 123);
}

TEST_F(OptionsWindow, BatchModeRewordsTheCalculations) {
    const auto outcome = Accept([](OptionsChoice& c) { c.OptCalcMode = 1; });
    EXPECT_TRUE(outcome.batchModeChanged);
    EXPECT_FALSE(outcome.unitsChanged);
    EXPECT_TRUE(options.batchMode);
    EXPECT_FALSE(Allowed("mnuCalc", 15));
    EXPECT_FALSE(Allowed("mnuCalc", 16));
    for (const int index : {1, 2, 3})
        EXPECT_TRUE(Visible(index)) << index;
    EXPECT_EQ(Text(0), "Spalten T, rho(V) => p, Zustand L/V     + thermod. Fu.");
    EXPECT_EQ(Text(1), "Spalten T, rho(L) => p, Zustand L/V     + thermod. Fu.");
    EXPECT_EQ(Text(2), "Spalten T, p         => rho, Zustand L/V  + thermod. Fu.");
    EXPECT_EQ(Text(3), "Spalten p, rho(V) => T, Zustand L/V     + thermod. Fu.");
    EXPECT_EQ(OptionsChoice(session).OptCalcMode, 1);
    EXPECT_FALSE(Accept([](OptionsChoice&) {}).batchModeChanged);
}

TEST_F(OptionsWindow, DirectModeRewordsThemBack) {
    Accept([](OptionsChoice& c) { c.OptCalcMode = 1; });
    EXPECT_TRUE(Accept([](OptionsChoice& c) { c.OptCalcMode = 0; }).batchModeChanged);
    EXPECT_FALSE(options.batchMode);
    EXPECT_TRUE(Allowed("mnuCalc", 15));
    EXPECT_TRUE(Allowed("mnuCalc", 16));
    EXPECT_FALSE(Visible(1));
    EXPECT_EQ(Text(0), "T, rho      => p, Zustand L/V     + thermod. Fu.");
    EXPECT_EQ(Text(2), "T, p         => rho, Zustand L/V  + thermod. Fu.");
    EXPECT_EQ(Text(3), "p, rho      => T, Zustand L/V     + thermod. Fu.");
}

TEST_F(OptionsWindow, AcceptingInDirectModeHidesTheSecondCalculation) {
    EXPECT_TRUE(Visible(1));
    EXPECT_FALSE(Accept([](OptionsChoice&) {}).batchModeChanged);
    EXPECT_FALSE(Visible(1));
}

TEST_F(OptionsWindow, TheGlobalVesselStaysClosedWithoutACubicEquation) {
    TakeModels(virialVanDerWaals);
    Accept([](OptionsChoice& c) { c.OptCalcMode = 1; });
    Accept([](OptionsChoice& c) { c.OptCalcMode = 0; });
    EXPECT_FALSE(Allowed("mnuCalc", 15));
    EXPECT_TRUE(Allowed("mnuCalc", 16));
}

TEST_F(OptionsWindow, ModelsAcceptedInBatchModeKeepTheVesselClosed) {
    Accept([](OptionsChoice& c) { c.OptCalcMode = 1; });
    TakeModels(eosVanDerWaals);
    EXPECT_FALSE(Allowed("mnuCalc", 15));
    EXPECT_FALSE(Allowed("mnuCalc", 16));
}

TEST_F(OptionsWindow, ANewSubstanceEndsBatchModeInTheMenuToo) {
    Accept([](OptionsChoice& c) { c.OptCalcMode = 1; });
    Take(1, eosPengRobinson);
    EXPECT_FALSE(options.batchMode);
    EXPECT_EQ(Text(0), "T, rho      => p, Zustand L/V     + thermod. Fu.");
    EXPECT_TRUE(Allowed("mnuCalc", 15));
    EXPECT_TRUE(Allowed("mnuCalc", 16));
}

TEST_F(OptionsWindow, TheReferencePointMovesTheDefaultWindows) {
    EXPECT_EQ(session.ranges.hMax, 50000);
    session.model.reference.kind = 2;
    AcceptReference(session);
    EXPECT_EQ(session.ranges.hMax, 0);
    EXPECT_EQ(session.ranges.hMin, -300000);
}

TEST_F(OptionsWindow, BeforeTheModelsStandTheReferencePointLeavesThemAlone) {
    ASSERT_TRUE(AcceptSubstance(session, 2));
    session.model.reference.kind = 2;
    AcceptReference(session);
    EXPECT_EQ(session.ranges.hMin, 0);
}

} // namespace
} // namespace orva::test
