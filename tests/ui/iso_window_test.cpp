// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/number_format.h"
#include "ui/calc/iso_window.h"
#include "ui/point_tools_fixture.h"

namespace orva::test {
namespace {

struct IsoWindow : PointTools {
    std::unique_ptr<frmIsoCalc> form;
    std::unique_ptr<QSignalSpy> changes;

    void Open(double T, double p) {
        Calculate(kindFunctions, T, p);
        form = std::make_unique<frmIsoCalc>(*session, busy);
        changes = std::make_unique<QSignalSpy>(form.get(), &frmIsoCalc::WorkingPointChanged);
        Expose(*form);
        form->activateWindow();
        WaitForKeyboard(form.get());
    }
    void TearDown() override {
        form.reset();
        PointTools::TearDown();
    }

    BatchRow& Row() { return session->batch.rows.front(); }
    QString Given() { return In<QLineEdit>(form.get(), "txtTpVorgabe")->text(); }
    QString Constant() { return In<QLineEdit>(form.get(), "txtFuConst")->text(); }
    QString Solution() { return In<QLineEdit>(form.get(), "txtTpCalc")->text(); }
    QString Label(const char* name) { return In<QLabel>(form.get(), name)->text(); }
};

TEST_F(IsoWindow, OpensAtTheStartPoint) {
    Open(300, 500);
    EXPECT_EQ(form->objectName(), "frmIsoCalc");
    EXPECT_EQ(form->windowTitle(), "Iso-Rechner");
    EXPECT_TRUE(In<QRadioButton>(form.get(), "optIsoTp(0)")->isChecked());
    EXPECT_TRUE(In<QRadioButton>(form.get(), "optIsoPhase(1)")->isChecked());
    EXPECT_TRUE(In<QRadioButton>(form.get(), "OptIsoFu(2)")->isChecked());
    EXPECT_EQ(Label("lblTpVorgabe"), "p/kPa = ");
    EXPECT_EQ(Label("lblFuConst"), "S  = ");
    EXPECT_EQ(Given(), "500");
    EXPECT_EQ(Solution(), "");
    EXPECT_EQ(QApplication::focusWidget(), In<QLineEdit>(form.get(), "txtTpVorgabe"));
}

TEST_F(IsoWindow, OffersAllFunctionsWithTheirValues) {
    Open(400, 100);
    const PointResult point = Calculate(kindFunctions, 400, 100);
    const char* const labels[] = {"V  = ", "H  = ", "S  = ", "G  = ", "U  = ", "A  = ", "E(H)=", "E(U)="};
    for (int i = 0; i < isoFunctionCount; ++i) {
        const QString option = ControlName("OptIsoFu", i);
        EXPECT_EQ(In<QRadioButton>(form.get(), option.toLatin1())->text(), labels[i]);
        ClickOption(*form, option.toLatin1());
        EXPECT_EQ(Label("lblFuConst"), labels[i]);
        const double value = point.results[slotVolumeV + static_cast<std::size_t>(i)];
        EXPECT_NEAR(Constant().toDouble(), value, 1e-12 * std::abs(value));
        EXPECT_EQ(FromQt(Label(ControlName("lblFu", i).toLatin1())), General(static_cast<float>(value)));
    }
}

TEST_F(IsoWindow, OptionsSettleTheGivenValue) {
    Open(400, 100);
    ClickOption(*form, "optIsoTp(1)");
    EXPECT_EQ(Label("lblTpVorgabe"), "  T/K =");
    EXPECT_EQ(Given(), "400");
    ClickOption(*form, "optIsoTp(0)");
    EXPECT_EQ(Given(), "100");
    ClickOption(*form, "optIsoPhase(1)");
    EXPECT_EQ(Constant(), "0");
}

TEST_F(IsoWindow, ReturnCalculatesTheIsentropeToAnotherPressure) {
    Open(400, 100);
    const double s = Constant().toDouble();
    Type("150,5");
    EXPECT_EQ(Given(), "150.5");
    Press(Qt::Key_Return);
    EXPECT_EQ(changes->count(), 1);
    EXPECT_EQ(Row().p, 150.5);
    EXPECT_EQ(FromQt(Solution()), "T/K =" + Str(static_cast<float>(Row().T)));
    EXPECT_GT(Row().T, 405);
    EXPECT_NEAR(Calculate(kindFunctions, Row().T, Row().p).results[slotVolumeV + 2], s, 1e-3);
    EXPECT_TRUE(form->isVisible());
    EXPECT_FALSE(busy.IsBusy());
}

TEST_F(IsoWindow, SolvesForThePressureByItsButton) {
    Open(400, 100);
    ClickOption(*form, "optIsoTp(1)");
    In<QLineEdit>(form.get(), "txtTpVorgabe")->setText("420");
    ClickButton(form.get(), "cmdCalc");
    EXPECT_EQ(Row().T, 420);
    EXPECT_GT(Row().p, 100);
    EXPECT_THAT(FromQt(Solution()), testing::StartsWith("p/kPa = "));
}

TEST_F(IsoWindow, SaysThatThereIsNoSolution) {
    Open(400, 100);
    ClickOption(*form, "OptIsoFu(0)");
    In<QLineEdit>(form.get(), "txtFuConst")->setText("-4");
    ClickButton(form.get(), "cmdCalc");
    EXPECT_EQ(Solution(), "keine Lösung");
    EXPECT_EQ(changes->count(), 1);
    EXPECT_EQ(Row().T, 400);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(IsoWindow, ResetGoesBackToTheGivenPoint) {
    Open(400, 100);
    Type("200\r");
    ClickButton(form.get(), "cmdReset");
    EXPECT_EQ(Row().T, 400);
    EXPECT_EQ(Row().p, 100);
    EXPECT_EQ(Given(), "100");
    EXPECT_EQ(Solution(), "");
    EXPECT_EQ(changes->count(), 2);
}

TEST_F(IsoWindow, FieldsTakeDigitsPointCommaAndSignOnly) {
    Open(400, 100);
    for (const char* name : {"txtTpVorgabe", "txtFuConst"}) {
        auto* field = In<QLineEdit>(form.get(), name);
        field->clear();
        QTest::keyClicks(field, "-1e2x,5E3 .7");
        EXPECT_EQ(field->text(), "-12.537");
    }
}

TEST_F(IsoWindow, RefusesAFieldWithoutANumber) {
    Open(400, 100);
    In<QLineEdit>(form.get(), "txtTpVorgabe")->clear();
    ClickButton(form.get(), "cmdCalc");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "keine gültige Eingabe");
    EXPECT_EQ(changes->count(), 0);
    EXPECT_EQ(Row().p, 100);
}

TEST_F(IsoWindow, OpensTheEditorWhereSomebodyListens) {
    Open(400, 100);
    EXPECT_FALSE(In<QPushButton>(form.get(), "cmdShowManuInput")->isEnabled());
    form->hide();
    const QSignalSpy wanted(form.get(), &frmIsoCalc::ManuInputWanted);
    Expose(*form);
    ClickButton(form.get(), "cmdShowManuInput");
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_NE(In<QToolButton>(form.get(), "cmdIsoHelp"), nullptr);
}

TEST_F(IsoWindow, EscAndItsButtonCloseIt) {
    Open(400, 100);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    Expose(*form);
    ClickButton(form.get(), "cmdEsc");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(IsoWindow, TabWalksFromTheFieldsToTheButtonsAndRoundToTheOptions) {
    Open(400, 100);
    EXPECT_EQ(WalkByTab().join(u' ').toStdString(),
              "txtTpVorgabe txtFuConst txtTpCalc cmdIsoHelp cmdCalc cmdReset cmdEsc optIsoTp(0) "
              "optIsoPhase(0) OptIsoFu(0)");
}

// The window as the result window opens it, with the one of the input beside it.
struct OpenInversion : Workbench {
    frmParinput* input = nullptr;
    frmIsoCalc* form = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
        Choose("mnuCalcMain", "mnuCalc(11)");
        input = Wait<frmParinput>();
        ASSERT_NE(input, nullptr);
        Enter("400", "100");
        ClickButton(Find<frmCalcOut>(), "cmdIsoCalc");
        form = Wait<frmIsoCalc>();
        ASSERT_NE(form, nullptr);
    }

    void Enter(const char* T, const char* p) const {
        In<QLineEdit>(input, "par(0)")->setText(T);
        In<QLineEdit>(input, "par(1)")->setText(p);
        ClickButton(input, "cmdParameter_OK");
    }
    QString Text(const char* name) const { return In<QLineEdit>(form, name)->text(); }
};

TEST_F(OpenInversion, KeepsItsSolutionWhenTheResultWindowFollows) {
    const QString entropy = Text("txtFuConst");
    In<QLineEdit>(form, "txtTpVorgabe")->setText("150");
    ClickButton(form, "cmdCalc");
    EXPECT_TRUE(Text("txtTpCalc").startsWith("T/K = 4"));
    EXPECT_EQ(Text("txtFuConst"), entropy);
    Click(In<QCheckBox>(Find<frmCalcOut>(), "ResPlus(1)"));
    EXPECT_TRUE(Text("txtTpCalc").startsWith("T/K = 4"));
}

TEST_F(OpenInversion, BeginsAnewAtAnotherPointOfTheInputWindow) {
    Enter("300", "500"); // a liquid
    EXPECT_EQ(Text("txtTpVorgabe"), "500");
    EXPECT_EQ(Text("txtTpCalc"), "");
    EXPECT_TRUE(In<QRadioButton>(form, "optIsoPhase(1)")->isChecked());
    const auto& results = Find<frmCalcOut>()->Model().Result().results;
    EXPECT_DOUBLE_EQ(Text("txtFuConst").toDouble(), results[slotVolumeL + 2]);
    In<QLineEdit>(form, "txtTpVorgabe")->setText("600");
    ClickButton(form, "cmdCalc");
    ClickButton(form, "cmdReset");
    EXPECT_EQ(session->batch.rows[0].T, 300);
    EXPECT_EQ(session->batch.rows[0].p, 500);
}

TEST_F(OpenInversion, FollowsTheUnits) {
    const double molar = Text("txtFuConst").toDouble();
    session->options.unitBasis = 3;
    Find<frmCalcOut>()->Refresh(); // as after the window of the options
    EXPECT_NEAR(Text("txtFuConst").toDouble(), molar / session->model.substance.molarMass, 1e-12);
    EXPECT_EQ(In<QLabel>(form, "lblUnit(2)")->text(), "kJ/(kg K)");
}

TEST_F(IsoWindow, Pictures) {
    Open(400, 100);
    Type("150\r");
    Shoot(*form, "46-frmIsoCalc");
}

} // namespace
} // namespace orva::test
