// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <limits>

#include "shell/road.h"
#include "substance/substance_loading.h"
#include "support/sample_database.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"

namespace orva::test {
namespace {

struct Road : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    Session session{machine, dialogs};

    void OpenSample() {
        WriteSampleDatabase(machine.InstallationFolder());
        ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    }
    void AcceptButane() {
        OpenSample();
        ASSERT_TRUE(AcceptSubstance(session, 1));
    }
};

TEST_F(Road, StartsWithTheDefaultsOfTheSession) {
    EXPECT_EQ(session.model.selection.eos, eosNotChosen);
    EXPECT_EQ(session.model.selection.vaporPressureCode, "0");
    EXPECT_EQ(session.model.reference.kind, 1);
    EXPECT_EQ(session.model.reference.p0, 0);
    EXPECT_EQ(session.options.curvePoints, 300);
    EXPECT_EQ(session.curve.curveT, 298.15);
    EXPECT_EQ(session.state.dirXY, machine.InstallationFolder().string());
    EXPECT_EQ(session.state.lastSessionFile, (machine.InstallationFolder() / "OrvaLastSession.QCF").string());
    EXPECT_EQ(session.statusPanels[0], "");
    EXPECT_FALSE(session.state.decimalComma);
}

TEST_F(Road, TakesTheDecimalCommaFromTheMachine) {
    const TestMachine german(true);
    const Session other(german, dialogs);
    EXPECT_TRUE(other.state.decimalComma);
    EXPECT_EQ(other.style.decimal, ',');
}

TEST_F(Road, AsksForTheDatabaseStartingWithTheMasterDatabase) {
    EXPECT_FALSE(OpenDatabaseDialog(session));
    ASSERT_EQ(dialogs.fileRequests.size(), 1U);
    const FileRequest& request = dialogs.fileRequests[0];
    EXPECT_EQ(request.title, "Datenbank auswählen und laden");
    EXPECT_EQ(request.filter, "Datenbank (*.Q05)|*.Q05");
    EXPECT_EQ(request.fileName, "ORVA.Q05");
    EXPECT_EQ(request.folder, machine.InstallationFolder().string());
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_FALSE(session.state.databaseLoaded);
}

TEST_F(Road, OpensTheChosenDatabase) {
    const auto path = WriteSampleDatabase(machine.InstallationFolder());
    dialogs.files = {path.string()};
    EXPECT_TRUE(OpenDatabaseDialog(session));
    EXPECT_EQ(session.state.databaseFile, path.string());
    EXPECT_EQ(session.state.substanceCount, 3);
    dialogs.files = {std::nullopt};
    EXPECT_FALSE(OpenDatabaseDialog(session));
    EXPECT_EQ(dialogs.fileRequests.back().fileName, path.string());
}

TEST_F(Road, SaysThatADatabaseIsMissing) {
    dialogs.files = {"nichts.Q05"};
    EXPECT_FALSE(OpenDatabaseDialog(session));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "Datenbank nichts.Q05 nicht gefunden bzw. leer");
}

TEST_F(Road, KeepsTheLoadedDatabaseWhenAnotherOneFails) {
    OpenSample();
    WriteFile(machine.InstallationFolder() / "halb.Q05",
              DatabaseBytes(SampleRecords()).substr(0, 2 * recordSize + 100));
    for (const char* name : {"nichts.Q05", "halb.Q05"}) {
        dialogs.files = {name};
        dialogs.shown.clear();
        EXPECT_FALSE(OpenDatabaseDialog(session));
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_EQ(dialogs.shown[0].title, "Warnung");
        EXPECT_EQ(dialogs.shown[0].text, std::string("Datenbank ") + name
                                             + " im ORVA-Verzeichnis nicht gefunden bzw. leer.\n"
                                               "Bereits geladene Datenbank ORVA.Q05 wird weiter verwendet.");
        EXPECT_EQ(session.List().entries.size(), 3U);
        EXPECT_TRUE(AcceptSubstance(session, 1));
        EXPECT_EQ(session.model.substance.name, "n-Butan");
    }
}

TEST_F(Road, AcceptingASubstanceLoadsItAndFillsThePanel) {
    AcceptButane();
    EXPECT_EQ(session.model.substance.name, "n-Butan");
    EXPECT_EQ(session.statusPanels[0], "n-Butan");
    EXPECT_EQ(session.state.substanceIndex, 1);
    EXPECT_TRUE(session.state.rangesStale);
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Road, ASubstanceWithoutCriticalDataStaysLoadedWithItsWarning) {
    OpenSample();
    ASSERT_TRUE(AcceptSubstance(session, 1));
    ASSERT_TRUE(session.commands.Allowed(FindCommand("mnuModel")));
    EXPECT_FALSE(AcceptSubstance(session, 3));
    EXPECT_FALSE(session.commands.Allowed(FindCommand("mnuModel")));
    EXPECT_TRUE(session.commands.Allowed(FindCommand("mnuData_EditStoffdaten")));
    EXPECT_EQ(session.statusPanels[0], "Stoff ohne kritische Daten");
    EXPECT_EQ(session.state.substanceIndex, 3);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "WARNUNG");
    EXPECT_EQ(dialogs.shown[0].text,
              "T(cr) und/oder p(cr) in der Datenbank nicht verfügbar.\n\n"
              "(fehlende kritische Daten können im Stoffdatenbank-Editor manuell eingetragen werden.)\n\n"
              "Für Stoff ohne kritische Daten sind keine Berechnungen möglich!");
    EXPECT_EQ(session.model.substance.name, "Stoff ohne kritische Daten");
}

TEST_F(Road, ADamagedRecordLeavesTheSubstanceInForce) {
    std::vector<DatabaseRecord> records = SampleRecords();
    records[1].values[6] = std::numeric_limits<float>::quiet_NaN();
    WriteFile(machine.InstallationFolder() / "ORVA.Q05", DatabaseBytes(records));
    ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    ASSERT_TRUE(AcceptSubstance(session, 1));
    EXPECT_FALSE(AcceptSubstance(session, 2));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text,
              "Der Datensatz 2 der Datenbank ist beschädigt und kann nicht gelesen werden.");
    EXPECT_EQ(session.model.substance.name, "n-Butan");
    EXPECT_EQ(session.state.substanceIndex, 1);
    EXPECT_EQ(session.statusPanels[0], "n-Butan");
}

TEST_F(Road, AsksAboutLoadedSeriesWhenTheSubstanceChanges) {
    OpenSample();
    session.state.batchRowCount = 2;
    session.batch.rows.resize(3);
    session.state.batchFile = "x.BAQ";
    dialogs.answers = {false, true};
    EXPECT_TRUE(AcceptSubstance(session, 1));
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "STAPELDATEN");
    EXPECT_EQ(dialogs.asked[0].text,
              "Neuer Stoff wurde gewählt.\nGeladene exper. Daten (Stapeldaten) jetzt löschen?");
    EXPECT_EQ(session.state.batchRowCount, 2);
    EXPECT_TRUE(AcceptSubstance(session, 2));
    EXPECT_EQ(session.state.batchRowCount, 0);
    EXPECT_EQ(session.state.batchFile, "");
    EXPECT_EQ(session.batch.rows.size(), 1U);
}

TEST_F(Road, LookingAtOthersLeavesTheAcceptedSubstance) {
    AcceptButane();
    LoadSubstanceRecord(session.database, 2, false, session.model.substance);
    EXPECT_EQ(session.model.substance.name, "Argon ohne Omega");
    RestoreSubstance(session);
    EXPECT_EQ(session.model.substance.name, "n-Butan");
}

TEST_F(Road, AcceptedModelsBringUnitsAndRangesUpToDate) {
    AcceptButane();
    ModelChoice choice(session.model, session.names);
    choice.Open();
    ASSERT_TRUE(choice.OKModell(dialogs));
    session.options.volumeBasis = 1;
    AcceptModels(session, choice.Panels());
    EXPECT_EQ(session.statusPanels[0], "n-Butan");
    EXPECT_EQ(session.statusPanels[1].substr(0, 19), "CEOS Peng / Robinso");
    EXPECT_EQ(session.statusPanels[2], "Dampfdruck-Gleichung: Wagner");
    EXPECT_TRUE(session.commands.Enabled(FindCommand("mnuCalc", 2)));
    EXPECT_NEAR(session.options.volumeFactor, 1 / 58.1222, 1e-9);
    EXPECT_NEAR(session.ranges.TMax, 1.1 * 425.125, 1e-3);
}

TEST_F(Road, ACalculationOpensResultAndInput) {
    AcceptButane();
    const CalculationStart start = DispatchCalculation(session, kindTP);
    EXPECT_TRUE(start.showResult);
    EXPECT_TRUE(start.askForPoint);
    EXPECT_EQ(session.calculation.CalcKind, kindTP);
    EXPECT_EQ(session.calculation.InputContext, 103);
}

TEST_F(Road, AVirialEquationRefusesTheDensityOfTheLiquid) {
    session.model.selection.nonCubic = true;
    const CalculationStart start = DispatchCalculation(session, kindTRhoLiquid);
    EXPECT_FALSE(start.showResult);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "nur möglich mit einer kubischen EOS");
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(session.calculation.CalcKind, kindNone);
}

struct CalculationRoad : Road {
    void SetUp() override {
        AcceptButane();
        ModelChoice choice(session.model, session.names);
        choice.Open();
        ASSERT_TRUE(choice.OKModell(dialogs));
    }
    void TakeVirialRow() {
        session.model.selection.eos = virialPitzerCurl;
        session.model.selection.nonCubic = true;
    }
};

TEST_F(CalculationRoad, KindNoneIsTheFirstCalculation) {
    EXPECT_TRUE(DispatchCalculation(session, kindNone).askForPoint);
    EXPECT_EQ(session.calculation.CalcKind, kindTRho);
    EXPECT_EQ(session.calculation.InputContext, 101);
}

TEST_F(CalculationRoad, AsksWhetherTemperatureAndPressureDescribeEquilibrium) {
    dialogs.answers = {true, false};
    const CalculationStart assumed = DispatchCalculation(session, kindTP);
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "T-p-Vorgabe");
    EXPECT_EQ(dialogs.asked[0].text, "Sollen die Vorgabewerte T, p ein V-L-Phasengleichgewicht beschreiben?\n"
                                     "ACHTUNG: Bei \"Ja\" wird die Existenz einer L-Phase vorausgesetzt\n"
                                     "und eine \"Partialberechnung\" durchgeführt.");
    EXPECT_EQ(dialogs.asked[0].icon, MessageIcon::Exclamation);
    EXPECT_FALSE(dialogs.asked[0].yesIsDefault);
    EXPECT_TRUE(assumed.askForMethod);
    EXPECT_FALSE(assumed.showResult || assumed.askForPoint);
    EXPECT_TRUE(session.calculation.AssumeEquilibrium);
    EXPECT_FALSE(DispatchCalculation(session, kindTP).askForMethod);
    EXPECT_FALSE(session.calculation.AssumeEquilibrium);
}

TEST_F(CalculationRoad, AsksNothingInBatchModeAndForOtherKinds) {
    session.calculation.AssumeEquilibrium = true;
    DispatchCalculation(session, kindFunctions);
    EXPECT_FALSE(session.calculation.AssumeEquilibrium);
    session.options.batchMode = true;
    const CalculationStart start = DispatchCalculation(session, kindTP);
    EXPECT_TRUE(start.showResult);
    EXPECT_FALSE(start.askForPoint);
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(CalculationRoad, EquilibriumAsksForTheMethodFirst) {
    for (const int kind : {kindSaturationPressure, kindSaturationTemperature}) {
        const CalculationStart start = DispatchCalculation(session, kind);
        EXPECT_TRUE(start.askForMethod) << kind;
        EXPECT_FALSE(start.showResult || start.askForPoint) << kind;
        EXPECT_EQ(session.calculation.InputContext, kind + 100);
        MakeCalculationInput(session).Accept();
        const CalculationStart after = StartAfterMethod(session);
        EXPECT_TRUE(after.showResult && after.askForPoint) << kind;
        EXPECT_FALSE(after.askForMethod) << kind;
        EXPECT_EQ(session.calculation.InputContext, kind + 100);
    }
}

TEST_F(CalculationRoad, VaporisationAsksForTheMethodWithTheReferencePointOnly) {
    for (const int kind : {kindVaporisationAtT, kindVaporisationAtP})
        for (std::int16_t way = 1; way <= 7; ++way) {
            session.model.selection.vaporization = way;
            EXPECT_EQ(DispatchCalculation(session, kind).askForMethod, way == 6) << kind << ' ' << way;
        }
}

TEST_F(CalculationRoad, ThePartialVesselIsEnteredBeforeItsResultIsShown) {
    const CalculationStart global = DispatchCalculation(session, kindVesselGlobal);
    EXPECT_TRUE(global.showResult && global.askForPoint);
    EXPECT_FALSE(global.askForMethod);
    EXPECT_EQ(session.calculation.InputContext, 33);
    EXPECT_TRUE(session.calculation.GlobalMethod);
    const CalculationStart partial = DispatchCalculation(session, kindVesselPartial);
    EXPECT_TRUE(partial.askForMethod);
    EXPECT_FALSE(session.calculation.GlobalMethod);
    MakeCalculationInput(session).Accept();
    const CalculationStart after = StartAfterMethod(session);
    EXPECT_TRUE(after.askForPoint);
    EXPECT_FALSE(after.showResult);
    EXPECT_EQ(session.calculation.InputContext, 33);
    EXPECT_FALSE(session.calculation.GlobalMethod);
}

TEST_F(CalculationRoad, AProcessIsFollowedBeforeItsResultIsShown) {
    const CalculationStart start = DispatchCalculation(session, kindPolytrope);
    EXPECT_TRUE(start.askForProcess && start.Opens());
    EXPECT_FALSE(start.askForMethod || start.showResult || start.askForPoint);
    const CalculationStart after = StartAfterProcess(session, {310, 250, "Polytrope"});
    EXPECT_TRUE(after.showResult);
    EXPECT_FALSE(after.askForPoint || after.askForProcess);
    EXPECT_EQ(session.calculation.CalcKind, kindPolytrope);
    EXPECT_EQ(session.batch.rows[0].T, 310);
    EXPECT_EQ(session.batch.rows[0].p, 250);
    EXPECT_EQ(session.calculation.processPoint.report, "Polytrope");
}

TEST_F(CalculationRoad, AfterTheMethodABatchRunAsksForNoPoint) {
    session.options.batchMode = true;
    DispatchCalculation(session, kindSaturationPressure);
    const CalculationStart after = StartAfterMethod(session);
    EXPECT_TRUE(after.showResult);
    EXPECT_FALSE(after.askForPoint);
}

TEST_F(CalculationRoad, EveryDatabaseFunctionOpensResultAndInput) {
    for (int kind = kindLiquidDensity; kind <= kindSolidDensity; ++kind) {
        const CalculationStart start = DispatchCalculation(session, kind);
        EXPECT_TRUE(start.showResult && start.askForPoint) << kind;
        EXPECT_EQ(session.calculation.InputContext, kind + 100);
    }
}

TEST_F(CalculationRoad, AVirialRowIsNeverTreatedGlobally) {
    TakeVirialRow();
    for (const int kind : {kindTRho, kindTP, kindSaturationPressure, kindFunctions}) {
        EXPECT_TRUE(SetCalculation(session, kind, false)) << kind;
        EXPECT_FALSE(session.calculation.GlobalMethod) << kind;
    }
    EXPECT_FALSE(SetCalculation(session, kindTRhoLiquid, false));
    EXPECT_EQ(session.calculation.CalcKind, kindNone);
}

TEST_F(CalculationRoad, OnlyTemperatureAndPressureCanBeAssumedToDescribeEquilibrium) {
    EXPECT_TRUE(SetCalculation(session, kindTP, true));
    EXPECT_TRUE(session.calculation.AssumeEquilibrium);
    EXPECT_TRUE(SetCalculation(session, kindFunctions, true));
    EXPECT_FALSE(session.calculation.AssumeEquilibrium);
}

TEST_F(CalculationRoad, AKindThatDoesNotExistOpensNothing) {
    EXPECT_FALSE(DispatchCalculation(session, 25).Opens());
    EXPECT_FALSE(DispatchCalculation(session, -3).Opens());
}

TEST_F(Road, TheCalculationMenuHintsAtAMissingSeriesInBatchMode) {
    session.options.batchMode = true;
    OpenCalculationMenu(session);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "Diese Berechnungsart ist nur möglich, wenn Stapeldaten\n"
                                     " (exper. T-p-rho-..-Daten) bereitgestellt sind.\n\n"
                                     "Geben Sie Stapeldaten ein\n"
                                     "(per File oder Neueingabe) => Menü \"Daten/exper. Daten...\"");
}

} // namespace
} // namespace orva::test
