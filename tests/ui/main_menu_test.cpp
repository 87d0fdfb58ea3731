// SPDX-License-Identifier: GPL-3.0-or-later
// The main menu as a text dump, and its enabling phase by phase.
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

void Dump(const QList<QAction*>& actions, int depth, std::string& text) {
    for (const QAction* action : actions) {
        text.append(static_cast<std::size_t>(depth) * 4, ' ');
        if (action->isSeparator())
            text += "----\n";
        else
            text += FromQt(action->objectName()) + " \"" + FromQt(action->text()) + "\"\n";
        if (action->menu() != nullptr)
            Dump(action->menu()->actions(), depth + 1, text);
    }
}

void CollectEnabled(const QList<QAction*>& actions, QStringList& enabled) {
    for (const QAction* action : actions) {
        if (!action->isEnabled() || action->isSeparator())
            continue;
        enabled << action->objectName();
        if (action->menu() != nullptr)
            CollectEnabled(action->menu()->actions(), enabled);
    }
}

struct MainMenu : Workbench {
    QStringList Enabled() const {
        QStringList enabled;
        CollectEnabled(window->menuBar()->actions(), enabled);
        return enabled;
    }
};

const QStringList load{"mnuData", "mnuData_OpenBank", "mnuData_Status", "mnuData_LoadLastSession",
                       "mnuData_LoadProject"};
const QStringList always = load + QStringList{"mnuData_Exit"};
const QStringList help{"mnuWindow",      "mnuHilfe",     "mnuHilfe_About",
                       "mnuHilfe_Index", "mnuHilfe_Tip", "mnuHilfe_AboutText"};

TEST_F(MainMenu, HoldsEveryCommandInItsPlaceWithItsText) {
    std::ifstream file(std::string(ORVA_TEST_DATA_DIR) + "/menu_tree.txt");
    std::ostringstream expected;
    expected << file.rdbuf();
    ASSERT_FALSE(expected.str().empty());
    std::string shown;
    Dump(window->menuBar()->actions(), 0, shown);
    EXPECT_EQ(shown, expected.str());
}

TEST_F(MainMenu, OffersAtStartWhatNeedsNoDatabase) {
    EXPECT_EQ(Enabled(), always + help);
}

TEST_F(MainMenu, OffersTheSubstancesOnceADatabaseIsOpen) {
    frmStoffWahl* form = OpenDatabase();
    ASSERT_NE(form, nullptr);
    form->close();
    EXPECT_EQ(Enabled(), always + QStringList{"mnuStoff"} + help);
}

TEST_F(MainMenu, OffersTheModelsOnceASubstanceIsChosen) {
    frmQModell* form = ChooseSubstance("n-Butan");
    ASSERT_NE(form, nullptr);
    form->close();
    EXPECT_EQ(Enabled(),
              (load + QStringList{"mnuData_SaveProject", "mnuData_Exit", "mnuStoff", "mnuModel"} + help));
}

TEST_F(MainMenu, OffersCalculationsAndDiagramsOnceTheModelsStand) {
    AcceptModels("n-Butan");
    const QStringList enabled = Enabled();
    for (const char* key :
         {"mnuData_ParameterEOS", "mnuCalcMain", "mnuCalc(2)", "mnu2D", "mnuGraf(0)", "mnuGraf_sub_cut(1)"})
        EXPECT_TRUE(enabled.contains(key)) << key;
}

TEST_F(MainMenu, EnablesNoCommandWithoutAnAction) {
    AcceptModels("n-Butan");
    for (const QString& key : Enabled()) {
        const auto table = CommandTable();
        const auto row = std::find_if(table.begin(), table.end(), [&](const CommandRow& candidate) {
            return ToQt(CommandKey(candidate.name, candidate.index)) == key;
        });
        ASSERT_NE(row, table.end()) << key.toStdString();
        EXPECT_TRUE(row->kind == CommandKind::Menu || row->action != CommandAction::None)
            << key.toStdString();
    }
}

TEST_F(MainMenu, DisabledCommandsDoNothing) {
    Command("mnuStoff")->trigger();
    Command("mnuModel")->trigger();
    window->RunCommand(FindCommand("mnuStoff"));
    window->RunCommand(FindCommand("mnuCalc", 2));
    window->RunCommand(FindCommand("mnuGraf_sub_cut", 1));
    EXPECT_EQ(Find<frmStoffWahl>(), nullptr);
    EXPECT_EQ(Find<frmQModell>(), nullptr);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_FALSE(window->IsFormOpen("frmGraph2D"));
}

TEST_F(MainMenu, TextOfTheVirialCommandFollowsTheModels) {
    AcceptModels("n-Butan");
    auto* menu = window->findChild<QMenu*>("mnuCalcMain");
    emit menu->aboutToShow();
    EXPECT_EQ(Command("mnuCalc(18)")->text(), "T => Virialkoeffizienten B, Parameter der CEOS");
    session->model.selection.nonCubic = true;
    emit menu->aboutToShow();
    EXPECT_EQ(Command("mnuCalc(18)")->text(), "T => Virialkoeffizienten B");
}

TEST_F(MainMenu, OpeningTheCalculationsClosesTheLastOne) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    ASSERT_NE(Find<frmCalcOut>(), nullptr);
    emit window->findChild<QMenu*>("mnuCalcMain")->aboutToShow();
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
}

TEST_F(MainMenu, StatusAboutAndEosParametersAreBoxes) {
    Command("mnuData_Status")->trigger();
    Command("mnuHilfe_About")->trigger();
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[0].title, " geladen sind jetzt ... ");
    EXPECT_TRUE(dialogs.shown[0].text.starts_with("... noch keine Datenbank"));
    EXPECT_EQ(dialogs.shown[1].title, "Über das Programm");
    AcceptModels("n-Butan");
    Command("mnuData_ParameterEOS")->trigger();
    ASSERT_EQ(dialogs.shown.size(), 3U);
    EXPECT_EQ(dialogs.shown[2].title, " Parameter der generalisierten Zustandsgleichung ");
}

TEST_F(MainMenu, WindowMenuListsTheOpenWindowsAndBringsThemUp) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    auto* windows = window->findChild<QMenu*>("mnuWindow");
    emit windows->aboutToShow();
    QStringList titles;
    for (const QAction* action : windows->actions())
        titles << action->text();
    EXPECT_TRUE(titles.contains("Ergebnis der Berechnung  T, p => rho"));
    EXPECT_TRUE(titles.contains("Eingabe Direktberechnung"));
    EXPECT_EQ(titles.back(), "Hauptfenster");
    windows->actions().at(titles.indexOf("Ergebnis der Berechnung  T, p => rho"))->trigger();
    EXPECT_TRUE(QTest::qWaitForWindowActive(Find<frmCalcOut>(), 2000));
}

} // namespace
} // namespace orva::test
