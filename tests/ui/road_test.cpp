// SPDX-License-Identifier: GPL-3.0-or-later
// The whole road from the database to a report and to an isotherm, as a user walks it.
#include <gtest/gtest.h>

#include "shell/road.h"
#include "ui/shell/start_page.h"
#include "ui/ui_fixture.h"

#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/limit_input_view.h"
#include "ui/diagrams/value_input_view.h"

namespace orva::test {
namespace {

struct WholeRoad : Workbench {
    QString ShownReport() const {
        auto* form = Find<frmCalcOut>();
        return form == nullptr ? QString() : In<QPlainTextEdit>(form, "Liste")->toPlainText();
    }
    QString Label(const char* name) const { return In<QLabel>(Find<frmCalcOut>(), name)->text(); }
};

TEST_F(WholeRoad, LeadsByKeyboardFromTheDatabaseToTheReport) {
    dialogs.files = {(machine.InstallationFolder() / "ORVA.Q05").string()};
    QTest::keyClick(window->findChild<QPushButton*>("cmd_mnuData_OpenBank"), Qt::Key_Space);
    ASSERT_NE(Wait<frmStoffWahl>(), nullptr);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "NameCombo");
    Type("n-Butan");
    Press(Qt::Key_Return);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "StoffOK");
    Press(Qt::Key_Return);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    Press(Qt::Key_Return);
    ASSERT_EQ(Find<frmQModell>(), nullptr);
    ASSERT_NE(StartTP(), nullptr);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "par(0)");
    Type("300,15");
    Press(Qt::Key_Return);
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "par(1)");
    Type("1,5e2");
    Press(Qt::Key_Return);

    EXPECT_EQ(session->batch.rows[0].T, 300.15);
    EXPECT_EQ(session->batch.rows[0].p, 150);
    EXPECT_EQ(Label("par1"), "T = 300.150 K");
    EXPECT_EQ(Label("par2"), "p = 150.000 kPa");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(WholeRoad, ShowsTheReportOfTheCalculationCharacterByCharacter) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    Type("300");
    Press(Qt::Key_Return);
    Type("100");
    Press(Qt::Key_Return);

    CalculationContext context = session->Calculation();
    const PointResult expected = CalcBatch(context, kindTP, 0);
    ASSERT_FALSE(expected.report.empty());
    EXPECT_EQ(ShownReport(), ToQt(expected.report).replace("\r\n", "\n"));
    EXPECT_EQ(Label("co1"), ToQt(expected.co1.text));
    EXPECT_EQ(Label("co2"), ToQt(expected.co2.text));
    // p M / (R T) is 2.3302 kg/m^3 for the ideal gas; attraction makes the vapour 2 to 4 % denser at 1 bar.
    const QStringList lines = ShownReport().split('\n');
    EXPECT_EQ(lines[0].left(54), "Dichte           rho/ (kg/m^3)  =                     ");
    EXPECT_NEAR(lines[0].mid(54).toDouble() / 2.3302, 1.03, 0.01);
    EXPECT_EQ(lines[1].left(54), "Volumen          v/ (m^3/kmol)  =                     ");
    EXPECT_TRUE(lines.contains("Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):"));
    EXPECT_TRUE(In<QLabel>(Find<frmCalcOut>(), "lblVphase")->isVisible());
    EXPECT_FALSE(In<QLabel>(Find<frmCalcOut>(), "lblLphase")->isVisible());
    EXPECT_FALSE(In<QLabel>(Find<frmCalcOut>(), "lblGleich")->isVisible());
}

TEST_F(WholeRoad, TakesTheNextPointAtOnce) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    for (const auto& [T, p] : {std::pair{"300", "100"}, {"310", "2000"}}) {
        ASSERT_EQ(QApplication::focusWidget()->objectName(), "par(0)");
        Type(T);
        Press(Qt::Key_Return);
        Type(p);
        Press(Qt::Key_Return);
    }
    EXPECT_EQ(Label("par1"), "T = 310.000 K");
    EXPECT_EQ(Label("par2"), "p = 2000.000 kPa");
    EXPECT_TRUE(In<QLabel>(Find<frmCalcOut>(), "lblLphase")->isVisible());
}

TEST_F(WholeRoad, DrawsAnIsothermFromTheMenu) {
    AcceptModels("n-Butan");
    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* box = Wait<frmTpVSInputBox>();
    ASSERT_NE(box, nullptr);
    auto* graph = Find<frmGraph2D>();
    ASSERT_NE(graph, nullptr);
    auto* plot = In<QWidget>(graph, "chart");
    const QImage before = plot->grab().toImage();
    auto* value = In<QLineEdit>(box, "txtValue");
    value->selectAll();
    QTest::keyClicks(value, "400,5");
    EXPECT_EQ(value->text(), "400.5");
    QTest::keyClick(value, Qt::Key_Return);
    EXPECT_DOUBLE_EQ(session->curve.curveT, 400.5);
    EXPECT_TRUE(QTest::qWaitFor([&] { return plot->grab().toImage() != before; }, 2000));
    EXPECT_TRUE(dialogs.shown.empty());

    graph->close();
    box->close();
    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    EXPECT_NE(Wait<frmTpVSInputBox>(), nullptr);
    EXPECT_EQ(Find<frmGraph2D>(), graph);
}

TEST_F(WholeRoad, ProjectionsDrawAtOnceAndTheMenuMarksTheDiagram) {
    AcceptModels("n-Butan");
    Choose("mnuGraf(9)", "mnuGraf_sub_proj(1)");
    auto* graph = Find<frmGraph2D>();
    ASSERT_NE(graph, nullptr);
    EXPECT_EQ(Find<frmTpVSInputBox>(), nullptr);
    EXPECT_TRUE(graph->findChild<QAction*>("mnuDelTotal")->isEnabled()); // it has curves
    EXPECT_TRUE(Command("mnuGraf_sub_proj(1)")->isChecked());
    Choose("mnuGraf(6)", "mnuGraf_sub_HS(0)");
    auto* limits = Wait<frmInputProzessLinien>();
    ASSERT_NE(limits, nullptr);
    ClickButton(limits, "cmdDraw");
    EXPECT_TRUE(graph->findChild<QAction*>("mnuDelTotal")->isEnabled());
    EXPECT_FALSE(Command("mnuGraf_sub_proj(1)")->isChecked());
    EXPECT_TRUE(Command("mnuGraf_sub_HS(0)")->isChecked());
    limits->close();
    Choose("mnuGraf(1)", "mnuGraf_sub_FuT(3)");
    EXPECT_NE(Wait<frmTpVSInputBox>(), nullptr);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(WholeRoad, ADiagramDoesNotOutliveItsSubstance) {
    AcceptModels("n-Butan");
    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* graph = Find<frmGraph2D>();
    ASSERT_NE(graph, nullptr);
    Find<frmTpVSInputBox>()->close();
    AcceptModels("n-Butan"); // the same again leaves it
    EXPECT_TRUE(graph->isVisible());
    ASSERT_NE(ChooseSubstance("Methan"), nullptr);
    EXPECT_FALSE(graph->isVisible());
}

TEST_F(WholeRoad, ADiagramDoesNotOutliveItsEquationOfState) {
    AcceptModels("n-Butan");
    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* graph = Find<frmGraph2D>();
    Find<frmTpVSInputBox>()->close();
    Command("mnuModel")->trigger();
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    auto* combo = In<QComboBox>(models, "EOSKombi");
    combo->setCurrentIndex(combo->findText("CEOS van der Waals"));
    emit combo->activated(combo->currentIndex());
    ClickButton(models, "OKModell");
    EXPECT_FALSE(graph->isVisible());
}

TEST_F(WholeRoad, AnExtremeNumberDoesNotWidenTheWindow) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    const int width = Find<frmCalcOut>()->width();
    Type("1e308");
    Press(Qt::Key_Return);
    Type("1e308");
    Press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(Find<frmCalcOut>()->width(), width);
    EXPECT_LE(Find<frmCalcOut>()->minimumSizeHint().width(), width);
}

TEST_F(WholeRoad, OpeningAnotherDatabaseStartsItAgain) {
    AcceptModels("n-Butan");
    ASSERT_TRUE(Command("mnuCalcMain")->isEnabled());
    ASSERT_NE(OpenDatabase(), nullptr);
    for (const char* key : {"mnuModel", "mnuCalcMain", "mnu2D"})
        EXPECT_FALSE(Command(key)->isEnabled()) << key;
    // Left without a choice, the page asks for a substance and not for models that are closed.
    Find<frmStoffWahl>()->close();
    EXPECT_EQ(In<QFrame>(window.get(), "step(2)")->findChild<StepDisc*>()->Shown(), StepDisc::State::Current);
    EXPECT_EQ(window->focusWidget()->objectName(), "cmd_mnuStoff");
}

} // namespace
} // namespace orva::test
