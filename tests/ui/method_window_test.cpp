// SPDX-License-Identifier: GPL-3.0-or-later
// How equilibrium is treated, settled by clicks, on the way from the menu to the report.
#include <gtest/gtest.h>

#include "ui/calc/method_window.h"
#include "ui/calc/vessel_window.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct MethodWindow : Workbench {
    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
    }

    frmCalcIn* Start(int menuIndex) {
        Choose("mnuCalcMain", ControlName("mnuCalc", menuIndex).toLatin1().constData());
        return Wait<frmCalcIn>();
    }

    // Leaves the window with OK, types one number and calculates.
    frmCalcOut* CalculateAt(frmCalcIn* form, const char* field, const char* number) {
        ClickButton(form, "OK");
        auto* input = Wait<frmParinput>();
        if (input == nullptr)
            return nullptr;
        In<QLineEdit>(input, field)->setText(number);
        ClickButton(input, "cmdParameter_OK");
        return Find<frmCalcOut>();
    }

    static QString Report(const frmCalcOut* output) {
        return In<QPlainTextEdit>(output, "Liste")->toPlainText();
    }
};

TEST_F(MethodWindow, StartsWithTheCubicEquationForBothPhases) {
    auto* form = Start(5);
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_TRUE(In<QRadioButton>(form, "opt_glob(0)")->isChecked());
    EXPECT_FALSE(In<QRadioButton>(form, "Ref_opt(0)")->isVisible());
    EXPECT_TRUE(In<QLabel>(form, "GlobalSit")
                    ->text()
                    .startsWith("Die gewählte EOS ermöglicht die Berechnung beider Gleichgewichtsphasen\n"));
    frmCalcOut* output = CalculateAt(form, "par(0)", "350");
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(output->windowTitle(), "Ergebnis der Berechnung  T => p(LV) (Globalberechnung)");
    EXPECT_TRUE(Report(output).startsWith("            aus kubischer EOS:\nDichte "));
    EXPECT_EQ(In<QLabel>(output, "co2")->text(), " p(LV) = 945.536 kPa");
    // The list of functions belongs to the global method.
    EXPECT_TRUE(In<QCheckBox>(output, "chkUHS")->isChecked());
    EXPECT_TRUE(Report(output).contains("thermodynamische Funktionen"));
    Click(In<QCheckBox>(output, "chkUHS"));
    EXPECT_FALSE(Report(output).contains("thermodynamische Funktionen"));
}

TEST_F(MethodWindow, PartialMethodOffersTheReferencePoint) {
    auto* form = Start(5);
    ASSERT_NE(form, nullptr);
    Click(In<QRadioButton>(form, "opt_glob(1)"));
    EXPECT_TRUE(In<QRadioButton>(form, "optPartialBenson(1)")->isChecked());
    EXPECT_TRUE(In<QLabel>(form, "referenceText")->text().startsWith(" T(ref)/K           = 272."));
    Click(In<QRadioButton>(form, "Ref_opt(1)"));
    EXPECT_TRUE(In<QLabel>(form, "referenceText")
                    ->text()
                    .startsWith("Bezugspunkt mit BENSON-Näherungsformel für rho(L):\n"));
    Click(In<QRadioButton>(form, "optPartialBenson(0)"));
    EXPECT_FALSE(In<QRadioButton>(form, "Ref_opt(0)")->isEnabled());
    EXPECT_TRUE(In<QLabel>(form, "GlobalSit")
                    ->text()
                    .endsWith("Die L-Dichte wird mit der Datenbankfunktion rho(L) = Fu(T) berechnet."));
    frmCalcOut* output = CalculateAt(form, "par(0)", "350");
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(output->windowTitle(), "Ergebnis der Berechnung  T => p(LV) (Partialberechnung)");
    EXPECT_TRUE(Report(output).startsWith("            nach Datenbankgleichung rho(T):\n"));
    EXPECT_FALSE(In<QGroupBox>(output, "fraCalcErweitert")->isEnabled());
}

TEST_F(MethodWindow, AReferencePointCanBeTyped) {
    auto* form = Start(6);
    ASSERT_NE(form, nullptr);
    Click(In<QRadioButton>(form, "opt_glob(1)"));
    EXPECT_FALSE(In<QPushButton>(form, "RefInput")->isEnabled());
    Click(In<QRadioButton>(form, "Ref_opt(2)"));
    ClickButton(form, "RefInput");
    auto* point = Wait<frmParinput>();
    ASSERT_NE(point, nullptr);
    EXPECT_EQ(point->windowTitle(), "Eingabe: Bezugspunkt");
    const char* const numbers[] = {"272.66", "101.3", "0", "2.7"};
    for (int i = 0; i < 4; ++i)
        point->findChild<QLineEdit*>(ControlName("par", i))->setText(numbers[i]);
    ClickButton(point, "cmdParameter_OK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "keine gültige Eingabe");
    In<QLineEdit>(point, "par(2)")->setText("601,3");
    ClickButton(point, "cmdParameter_OK");
    EXPECT_TRUE(In<QLabel>(form, "referenceText")->text().contains(" rho(L)(ref)/kg/m^3 = 601.3\n"));
    frmCalcOut* output = CalculateAt(form, "par(1)", "500");
    ASSERT_NE(output, nullptr);
    EXPECT_TRUE(Report(output).startsWith("            nach BENSON-Methode:\n"));
    EXPECT_FLOAT_EQ(session->calculation.referenceDensity.rhoL, 601.3F);
}

TEST_F(MethodWindow, EscLeavesEverythingAsItWas) {
    session->calculation.referenceDensity = {1, 2, 3, 4};
    auto* form = Start(5);
    ASSERT_NE(form, nullptr);
    Click(In<QRadioButton>(form, "opt_glob(1)"));
    ClickButton(form, "Esc");
    EXPECT_EQ(Find<frmParinput>(), nullptr);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_TRUE(session->calculation.GlobalMethod);
    EXPECT_EQ(session->calculation.referenceDensity.rhoL, 3);
}

TEST_F(MethodWindow, GivenTAndPCanDescribeEquilibrium) {
    dialogs.answers = {true};
    auto* form = Start(2);
    ASSERT_NE(form, nullptr);
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "T-p-Vorgabe");
    EXPECT_EQ(dialogs.asked[0].text, "Sollen die Vorgabewerte T, p ein V-L-Phasengleichgewicht beschreiben?\n"
                                     "ACHTUNG: Bei \"Ja\" wird die Existenz einer L-Phase vorausgesetzt\n"
                                     "und eine \"Partialberechnung\" durchgeführt.");
    EXPECT_FALSE(dialogs.asked[0].yesIsDefault);
    EXPECT_EQ(dialogs.asked[0].icon, MessageIcon::Exclamation);
    EXPECT_FALSE(In<QRadioButton>(form, "opt_glob(0)")->isEnabled());
    EXPECT_TRUE(
        In<QLabel>(form, "GlobalSit")
            ->text()
            .startsWith("Annahme, dass die Vorgabewerte exakt das Phasengleichgewicht beschreiben.\n"));
    ClickButton(form, "OK");
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    In<QLineEdit>(input, "par(0)")->setText("300");
    In<QLineEdit>(input, "par(1)")->setText("256");
    ClickButton(input, "cmdParameter_OK");
    auto* output = Find<frmCalcOut>();
    ASSERT_NE(output, nullptr);
    EXPECT_TRUE(Report(output).startsWith("            nach BENSON-Methode:\nDichte "));
    EXPECT_TRUE(In<QLabel>(output, "lblLphase")->isVisible());
    EXPECT_TRUE(In<QLabel>(output, "lblVphase")->isVisible());
}

TEST_F(MethodWindow, NoMeansAPointLikeAnyOther) {
    auto* input = StartTP();
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(Find<frmCalcIn>(), nullptr);
    EXPECT_FALSE(session->calculation.AssumeEquilibrium);
}

TEST_F(MethodWindow, WithoutPriorityNothingIsLeftToChoose) {
    session->model.selection.eosPriority = false;
    auto* form = Start(5);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), "Berechnungs-Situation");
    EXPECT_FALSE(In<QPushButton>(form, "Esc")->isVisible());
    EXPECT_FALSE(In<QRadioButton>(form, "opt_glob(0)")->isVisible());
    EXPECT_EQ(In<QLabel>(form, "GlobalSit")->text(),
              "Gleichgewichtsberechnung L-V erfolgt mit der aktuellen Dampfdruckgleichung.\n"
              "(Die EOS wurde im Fenster \"Modelle\" deaktiviert.)");
    frmCalcOut* output = CalculateAt(form, "par(0)", "300");
    ASSERT_NE(output, nullptr);
    EXPECT_TRUE(Report(output).contains("(Dichte-Berechnung nicht möglich mit Dampfdruckgleichung!)"));
    EXPECT_TRUE(
        Report(output).startsWith(QString(75, '-') + "\n")); // visible, although drawn with soft hyphens
}

TEST_F(MethodWindow, NoTwoControlsShareALetter) {
    ExpectOwnLetters(Start(5), 10);
}

TEST_F(MethodWindow, TabWalksThroughTheControlsInTheirOrder) {
    auto* form = Start(5);
    ASSERT_NE(form, nullptr);
    Click(In<QRadioButton>(form, "opt_glob(1)"));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "opt_glob(1)");
    EXPECT_EQ(WalkByTab().join(u' ').toStdString(),
              "opt_glob(1) GlobHilfe optPartialBenson(0) BENSON_HELP Ref_opt(0) OK Esc");
}

TEST_F(MethodWindow, LettersOfTheVesselTakeMassOrAmount) {
    Choose("mnuCalcMain", "mnuCalc(15)");
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    ExpectOwnLetters(input, 4);
    QTest::keyClick(input, Qt::Key_N, Qt::AltModifier);
    const auto* amount = In<QRadioButton>(input, "optm_n(1)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return amount->isChecked(); }, 1000));
    QTest::keyClick(input, Qt::Key_M, Qt::AltModifier);
    const auto* mass = In<QRadioButton>(input, "optm_n(0)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return mass->isChecked(); }, 1000));
}

TEST_F(MethodWindow, VesselAsksForVolumeContentAndTemperature) {
    Choose("mnuCalcMain", "mnuCalc(15)");
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(input->windowTitle(), "Behälter-Berechnung");
    auto* output = Find<frmCalcOut>();
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(Report(output), ""); // nothing to calculate yet
    EXPECT_EQ(Find<frmKessel>(), nullptr);
    In<QLineEdit>(input, "par(0)")->setText("0.1");
    In<QLineEdit>(input, "par(1)")->setText("10");
    ClickButton(input, "cmdParameter_OK");
    ASSERT_EQ(dialogs.shown.size(), 1U); // T is missing
    In<QLineEdit>(input, "par(3)")->setText("350");
    ClickButton(input, "cmdParameter_OK");
    EXPECT_EQ(Find<frmCalcOut>(), output);
    EXPECT_FALSE(input->isVisible());
    EXPECT_EQ(output->windowTitle(), "Phasenzustand und Druck in einem Behälter (Globalberechnung)");
    EXPECT_FALSE(In<QGroupBox>(output, "fraProtokoll")->isVisible());
    EXPECT_TRUE(Report(output).startsWith("                         Verdampfungsgrad y(V) = 0.19738898\n"));
    auto* picture = Find<frmKessel>();
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->windowTitle(), "Behälter-Berechnung (Global-Methode)");
    EXPECT_TRUE(In<QLabel>(picture, "labLevel")->text().startsWith("Füllstand 15.5"));
}

TEST_F(MethodWindow, PartialVesselIsRefusedAboveTheCriticalTemperature) {
    auto* form = Start(16);
    ASSERT_NE(form, nullptr);
    ClickButton(form, "OK");
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    Click(In<QRadioButton>(input, "optm_n(1)"));
    In<QLineEdit>(input, "par(0)")->setText("0.1");
    In<QLineEdit>(input, "par(1)")->setText("0.2");
    In<QLineEdit>(input, "par(3)")->setText("500");
    ClickButton(input, "cmdParameter_OK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(
        dialogs.shown[0].text,
        "Partialberechnung nur für Phasengleichgewicht - also für T < T(cr) - sinnvoll\n(T(cr)/K = 425.125)");
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    ASSERT_NE(Find<frmParinput>(), nullptr);
    In<QLineEdit>(input, "par(3)")->setText("350");
    ClickButton(input, "cmdParameter_OK");
    auto* output = Find<frmCalcOut>();
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(output->windowTitle(),
              "Phasenzustand und Druck in einem Behälter (Partialberechnung, rho(L)  nach BENSON)");
    EXPECT_FLOAT_EQ(session->calculation.vessel.m, 0.2F * session->model.substance.molarMass);
}

TEST_F(MethodWindow, KeyboardAloneSettlesTheMethod) {
    auto* form = Start(5);
    ASSERT_NE(form, nullptr);
    Press(Qt::Key_Return);
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    Type("350");
    Press(Qt::Key_Return);
    auto* output = Find<frmCalcOut>();
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(In<QLabel>(output, "co1")->text(), "p(LV) aus kubischer EOS");
}

} // namespace
} // namespace orva::test
