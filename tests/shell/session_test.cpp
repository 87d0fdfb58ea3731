// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/session.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"

namespace orva::test {
namespace {

struct Start : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
};

TEST_F(Start, SetsEveryDefault) {
    const Session session(machine, dialogs);
    const std::string folder = machine.InstallationFolder().string();
    const SessionState& state = session.state;
    for (const std::string& kind :
         {state.dirBatch, state.dirDiagram2D, state.dirDiagram3D, state.dirXY, state.dirProject})
        EXPECT_EQ(kind, folder);
    EXPECT_EQ(state.projectFile, "");
    EXPECT_EQ(state.projectComment, "");
    EXPECT_EQ(state.databaseFile, "");
    EXPECT_FALSE(state.databaseLoaded);
    EXPECT_EQ(state.batchRowCount, 0);
    EXPECT_FALSE(state.englishText);
    EXPECT_TRUE(state.vesselGlobal);
    const Options& options = session.options;
    EXPECT_FALSE(options.batchMode);
    EXPECT_EQ(options.volumeFactor, 1);
    EXPECT_EQ(options.energyFactor, 1);
    EXPECT_TRUE(options.curveTpRestricted);
    EXPECT_FALSE(options.sCurveWithoutTieLine);
    EXPECT_EQ(options.curvePoints, 300);
    EXPECT_EQ(options.listSeparator, ';');
    EXPECT_EQ(session.model.reference.kind, 1);
    EXPECT_EQ(session.model.selection.eos, eosNotChosen);
    EXPECT_EQ(session.calculation.diagramTemperature, 298.15);
    EXPECT_TRUE(session.calculation.GlobalMethod);
    EXPECT_EQ(session.protocol.protocolRows(), 0);
    EXPECT_EQ(session.protocol.protocolFile, "26211101.CSV");
    EXPECT_FALSE(session.protocol.protocolOpen());
    EXPECT_EQ(session.names.EosNames.at(2), "CEOS van der Waals                 ");
    EXPECT_EQ(session.statusPanels[3], ContactText());
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(Start, KeepsSettingsInTheStoreOrForItself) {
    SessionSettings store;
    Session withStore(machine, dialogs, nullptr, &store);
    Session alone(machine, dialogs);
    withStore.settings.SetNumber("Options", "x", 1);
    alone.settings.SetNumber("Options", "x", 2);
    EXPECT_EQ(store.Number("Options", "x"), 1);
    EXPECT_EQ(alone.settings.Number("Options", "x"), 2);
    EXPECT_EQ(alone.settings.Number("Options", "y"), std::nullopt);
}

} // namespace
} // namespace orva::test
