// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <set>

#include "shell/command_states.h"

namespace orva::test {
namespace {

struct Commands : testing::Test {
    SubstanceData substance;
    ModelSelection selection;
    int batchRowCount = 0;
    CommandStates states;

    void Enter(SessionEvent event) { states.Apply(event, PhaseFacts{substance, selection, batchRowCount}); }
    bool Allowed(std::string_view name, int index = noIndex) {
        return states.Allowed(FindCommand(name, index));
    }
    bool Enabled(std::string_view name, int index = noIndex) {
        return states.Enabled(FindCommand(name, index));
    }

    void Begin() {
        Enter(SessionEvent::ModelStateReset);
        Enter(SessionEvent::Start);
    }
    void ReachModels() {
        Begin();
        Enter(SessionEvent::DatabaseOpened);
        substance.Tc = 425;
        substance.pc = 3796;
        Enter(SessionEvent::SubstanceAccepted);
        Enter(SessionEvent::ModelsAccepted);
    }
};

TEST_F(Commands, EveryEntryStandsUnderAMenuThatComesBefore) {
    std::set<std::string> menus;
    std::set<std::string> keys;
    for (const CommandRow& row : CommandTable()) {
        EXPECT_TRUE(row.parent.empty() || menus.contains(CommandKey(row.parent, row.parentIndex)))
            << row.name << row.index;
        EXPECT_TRUE(keys.insert(CommandKey(row.name, row.index)).second) << row.name << row.index;
        if (row.kind == CommandKind::Menu)
            menus.insert(CommandKey(row.name, row.index));
        EXPECT_EQ(row.text.empty(), row.kind == CommandKind::Separator) << row.name << row.index;
    }
}

TEST_F(Commands, AtStartOnlyTheDatabaseIsOpen) {
    Begin();
    EXPECT_TRUE(Enabled("mnuData_OpenBank"));
    EXPECT_TRUE(Enabled("mnuData_Status"));
    EXPECT_TRUE(Enabled("mnuData_LoadLastSession"));
    EXPECT_TRUE(Enabled("mnuData_LoadProject"));
    EXPECT_TRUE(Enabled("mnuData_Exit"));
    for (const int button : {2, 4, 6})
        EXPECT_TRUE(states.ToolbarEnabled(button)) << button;
    for (const char* name :
         {"mnuStoff", "mnuModel", "mnu2D", "mnu3D", "mnuCalcMain", "mnuOptions", "mnuFitting",
          "mnuData_SaveProject", "mnuData_BatchInput", "mnuData_BatchEdit", "mnuData_EditStoffdaten"})
        EXPECT_FALSE(Allowed(name)) << name;
    for (const int button : {7, 11, 15})
        EXPECT_FALSE(states.ToolbarAllowed(button)) << button;
}

TEST_F(Commands, ADatabaseOpensTheSubstances) {
    Begin();
    Enter(SessionEvent::DatabaseOpened);
    for (const char* name : {"mnuStoff", "mnuData_EditStoffdaten", "mnuData_BatchInput"})
        EXPECT_TRUE(Allowed(name)) << name;
    for (const char* name : {"mnuModel", "mnuCalcMain", "mnuOptions", "mnuFitting", "mnu2D", "mnu3D"})
        EXPECT_FALSE(Allowed(name)) << name;
}

TEST_F(Commands, ASubstanceOpensTheModelsIfItHasCriticalData) {
    Begin();
    Enter(SessionEvent::DatabaseOpened);
    Enter(SessionEvent::SubstanceAccepted);
    EXPECT_FALSE(Allowed("mnuModel"));
    substance.Tc = 425;
    substance.pc = 3796;
    Enter(SessionEvent::SubstanceAccepted);
    EXPECT_TRUE(Allowed("mnuModel"));
    EXPECT_TRUE(Allowed("mnuData_SaveProject"));
    for (const int button : {7, 11, 15})
        EXPECT_TRUE(states.ToolbarAllowed(button)) << button;
    EXPECT_FALSE(Allowed("mnuCalcMain"));
}

TEST_F(Commands, AcceptedModelsOpenTheRest) {
    ReachModels();
    for (const char* name :
         {"mnuModel", "mnuData_ParameterEOS", "mnuCalcMain", "mnuOptions", "mnuFitting", "mnu2D", "mnu3D"})
        EXPECT_TRUE(Allowed(name)) << name;
    EXPECT_TRUE(Allowed("mnu3DSub", 1));
    EXPECT_TRUE(Allowed("mnuCalc", 15));
    EXPECT_TRUE(Enabled("mnuCalc", 2));
    EXPECT_TRUE(Enabled("mnuGraf_sub_cut", 1));
}

TEST_F(Commands, AnEquationThatIsNotCubicClosesVolumeSurfaceAndGlobalVessel) {
    selection.nonCubic = true;
    ReachModels();
    EXPECT_FALSE(Allowed("mnu3DSub", 1));
    EXPECT_FALSE(Allowed("mnuCalc", 15));
    EXPECT_TRUE(Allowed("mnuCalc", 16));
    EXPECT_TRUE(Allowed("mnuCalc", 18));
}

TEST_F(Commands, AnotherDatabaseClosesThemAgain) {
    ReachModels();
    Enter(SessionEvent::DatabaseOpened);
    for (const char* name : {"mnuModel", "mnuCalcMain", "mnuOptions", "mnuFitting", "mnu2D", "mnu3D"})
        EXPECT_FALSE(Allowed(name)) << name;
    EXPECT_TRUE(Allowed("mnuStoff"));
}

TEST_F(Commands, ANewSubstanceClosesCalculationsUntilItsModelsStand) {
    ReachModels();
    Enter(SessionEvent::ModelStateReset);
    EXPECT_FALSE(Allowed("mnuCalcMain"));
    EXPECT_FALSE(Allowed("mnuData_SaveProject"));
    EXPECT_FALSE(states.ToolbarAllowed(7));
    EXPECT_TRUE(Allowed("mnuModel"));
}

TEST_F(Commands, ALoadedProjectOpensTheDataCommands) {
    Begin();
    Enter(SessionEvent::ProjectLoaded);
    for (const char* name : {"mnuData_Status", "mnuStoff", "mnuData_EditStoffdaten", "mnuData_BatchInput",
                             "mnuData_SaveProject"})
        EXPECT_TRUE(Allowed(name)) << name;
    for (const int button : {7, 11, 15})
        EXPECT_TRUE(states.ToolbarAllowed(button)) << button;
    EXPECT_TRUE(states.ToolbarEnabled(7));
    // Its models are confirmed first.
    for (const char* name : {"mnuModel", "mnuCalcMain", "mnuOptions", "mnuFitting", "mnu2D", "mnu3D"})
        EXPECT_FALSE(Allowed(name)) << name;
    substance.Tc = 425;
    substance.pc = 3796;
    Enter(SessionEvent::ProjectLoaded);
    EXPECT_TRUE(Allowed("mnuModel"));
}

TEST_F(Commands, RowsOfASeriesOpenItsEditorWhenTheMenuOpens) {
    Begin();
    Enter(SessionEvent::DataMenuOpened);
    EXPECT_FALSE(Allowed("mnuData_BatchEdit"));
    batchRowCount = 1;
    Enter(SessionEvent::DataMenuOpened);
    EXPECT_TRUE(Allowed("mnuData_BatchEdit"));
}

TEST_F(Commands, TheVirialEntryFollowsTheEquation) {
    ReachModels();
    Enter(SessionEvent::CalculationMenuOpened);
    EXPECT_EQ(states.Text(FindCommand("mnuCalc", 18)), "T => Virialkoeffizienten B, Parameter der CEOS");
    selection.nonCubic = true;
    Enter(SessionEvent::CalculationMenuOpened);
    EXPECT_EQ(states.Text(FindCommand("mnuCalc", 18)), "T => Virialkoeffizienten B");
}

TEST_F(Commands, DatabaseFunctionsNeedTheirData) {
    ReachModels();
    Enter(SessionEvent::DatabaseFunctionsOpened);
    Enter(SessionEvent::VapourPressureFunctionsOpened);
    for (int index = 1; index <= 6; ++index)
        EXPECT_FALSE(Allowed("mnuCalc_sub_database", index)) << index;
    for (int index = 0; index <= 3; ++index)
        EXPECT_FALSE(Allowed("mnuCalc_sub_sub_database", index)) << index;
    substance.rhoLiquid.r2 = -1;
    substance.rhoSolid.s1 = 900;
    substance.hVapFunction.Tlo = 200;
    substance.cpSinhCosh.Tlo = 200;
    substance.cpLiquid.Tlo = 200;
    substance.cpSolid.Tlo = 20;
    substance.wagner.Tlo = 200;
    substance.frostKalkwarf.Tlo = 200;
    substance.frostKalkwarf.Thi = 400;
    Enter(SessionEvent::DatabaseFunctionsOpened);
    Enter(SessionEvent::VapourPressureFunctionsOpened);
    for (int index = 1; index <= 6; ++index)
        EXPECT_TRUE(Allowed("mnuCalc_sub_database", index)) << index;
    EXPECT_TRUE(Allowed("mnuCalc_sub_sub_database", 0));
    EXPECT_FALSE(Allowed("mnuCalc_sub_sub_database", 1)); // no upper limit
}

TEST_F(Commands, DiagramsOfDatabaseFunctionsNeedTheirData) {
    ReachModels();
    const auto open = [this] {
        Enter(SessionEvent::DiagramFunctionsOpened);
        Enter(SessionEvent::DiagramVapourPressuresOpened);
    };
    open();
    for (int index = 1; index <= 7; ++index)
        EXPECT_FALSE(Allowed("mnuGraf_sub_database", index)) << index;
    for (int index = 0; index <= 3; ++index)
        EXPECT_FALSE(Allowed("mnuGraf_sub_sub_database", index)) << index;
    substance.rhoLiquid.r2 = -1;
    substance.cpLiquid.Tlo = 200;
    substance.wagner.Tlo = 200;
    substance.wagner.Thi = 400;
    open();
    EXPECT_TRUE(Allowed("mnuGraf_sub_database", 1));
    EXPECT_TRUE(Allowed("mnuGraf_sub_database", 2));
    EXPECT_FALSE(Allowed("mnuGraf_sub_database", 3));
    EXPECT_TRUE(Allowed("mnuGraf_sub_database", 6));
    EXPECT_TRUE(Allowed("mnuGraf_sub_sub_database", 1));
    EXPECT_FALSE(Allowed("mnuGraf_sub_sub_database", 0));
}

TEST_F(Commands, EveryDiagramEntryDrawsAndOneIsMarked) {
    int drawn = 0;
    for (const CommandRow& row : CommandTable()) {
        const bool diagram = row.name.starts_with("mnuGraf_sub");
        if (diagram && row.kind == CommandKind::Command) {
            EXPECT_EQ(row.action, CommandAction::Draw) << row.name << row.index;
            ++drawn;
        }
    }
    EXPECT_EQ(drawn, 66);
    const int first = FindCommand("mnuGraf_sub_cut", 1);
    const int second = FindCommand("mnuGraf_sub_proj", 6);
    states.CheckDiagram(first);
    EXPECT_TRUE(states.Checked(first));
    states.CheckDiagram(second);
    EXPECT_FALSE(states.Checked(first));
    EXPECT_TRUE(states.Checked(second));
}

TEST_F(Commands, BatchModeRenamesAndCloses) {
    ReachModels();
    Enter(SessionEvent::BatchModeOn);
    EXPECT_FALSE(Allowed("mnuCalc", 15));
    EXPECT_FALSE(Allowed("mnuCalc", 16));
    EXPECT_TRUE(states.Visible(FindCommand("mnuCalc", 1)));
    EXPECT_EQ(states.Text(FindCommand("mnuCalc", 1)),
              "Spalten T, rho(L) => p, Zustand L/V     + thermod. Fu.");
    Enter(SessionEvent::BatchModeOff);
    EXPECT_FALSE(states.Visible(FindCommand("mnuCalc", 1)));
    EXPECT_EQ(states.Text(FindCommand("mnuCalc", 2)), "T, p         => rho, Zustand L/V  + thermod. Fu.");
    EXPECT_TRUE(Allowed("mnuCalc", 16));
}

TEST_F(Commands, LeavingBatchModeKeepsTheGlobalVesselClosedWithoutACubicEquation) {
    selection.nonCubic = true;
    ReachModels();
    Enter(SessionEvent::BatchModeOn);
    Enter(SessionEvent::BatchModeOff);
    EXPECT_FALSE(Allowed("mnuCalc", 15));
    EXPECT_TRUE(Allowed("mnuCalc", 16));
}

TEST_F(Commands, ACommandWithoutAnActionStaysDisabledInItsPlace) {
    ReachModels();
    EXPECT_TRUE(Allowed("mnuFitting"));
    EXPECT_FALSE(Enabled("mnuFitting"));
    EXPECT_FALSE(Enabled("mnu3D"));
    EXPECT_TRUE(Enabled("mnu2D"));
    EXPECT_TRUE(Enabled("mnuGraf", 1));
    EXPECT_TRUE(states.ToolbarEnabled(2));
}

TEST_F(Commands, ReferencePointIsOpenFromTheSubstanceOnAndOptionsFromTheModelsOn) {
    Begin();
    EXPECT_FALSE(states.ToolbarEnabled(11));
    EXPECT_FALSE(Enabled("mnuOptions"));
    Enter(SessionEvent::DatabaseOpened);
    EXPECT_FALSE(states.ToolbarEnabled(11));
    Enter(SessionEvent::SubstanceAccepted);
    EXPECT_TRUE(states.ToolbarEnabled(11));
    EXPECT_FALSE(Enabled("mnuOptions"));
    Enter(SessionEvent::ModelsAccepted);
    EXPECT_TRUE(Enabled("mnuOptions"));
}

TEST_F(Commands, TheVesselButtonFollowsThePriority) {
    const auto row = [this](int button) {
        for (const ToolbarRow& candidate : ToolbarTable())
            if (candidate.index == button)
                return ToolbarCommand(candidate, selection);
        return -1;
    };
    EXPECT_EQ(row(15), FindCommand("mnuCalc", 15));
    selection.eosPriority = false;
    EXPECT_EQ(row(15), FindCommand("mnuCalc", 16));
    EXPECT_EQ(row(2), FindCommand("mnuData_OpenBank"));
    EXPECT_EQ(row(7), FindCommand("mnuData_SaveProject"));
}

TEST_F(Commands, AnEntryIsReachableThroughOpenMenusOnly) {
    Begin();
    EXPECT_TRUE(Enabled("mnuCalc", 2));
    EXPECT_FALSE(states.Reachable(FindCommand("mnuCalc", 2)));
    EXPECT_TRUE(states.Reachable(FindCommand("mnuHilfe_Tip")));
    ReachModels();
    EXPECT_TRUE(states.Reachable(FindCommand("mnuCalc", 2)));
}

TEST_F(Commands, KeysNameTheEntriesOfAnArray) {
    EXPECT_EQ(CommandKey("mnuStoff"), "mnuStoff");
    EXPECT_EQ(CommandKey("mnuCalc", 2), "mnuCalc(2)");
    EXPECT_EQ(FindCommand("mnuNichts"), -1);
    EXPECT_EQ(FindCommand("mnuCalc", 21), -1);
}

} // namespace
} // namespace orva::test
