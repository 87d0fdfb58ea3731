// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "ui/substance/virial_input_window.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct ModelWindow : Workbench {
    frmQModell* form = nullptr;
    QComboBox* EOSKombi = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        form = ChooseSubstance("n-Butan");
        ASSERT_NE(form, nullptr);
        EOSKombi = In<QComboBox>(form, "EOSKombi");
    }

    // Opens a list by keyboard, goes to the row and takes it.
    static void Pick(QComboBox* combo, const QString& text) {
        const int row = combo->findText(text);
        ASSERT_GE(row, 0) << text.toStdString();
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_Down, Qt::AltModifier);
        ASSERT_TRUE(combo->view()->isVisible());
        QTest::keyClick(combo->view(), Qt::Key_Home);
        for (int i = 0; i < row; ++i)
            QTest::keyClick(combo->view(), Qt::Key_Down);
        QTest::keyClick(combo->view(), Qt::Key_Return);
    }
};

TEST_F(ModelWindow, OpensWithThePresetChoice) {
    EXPECT_EQ(form->windowTitle(), " Berechnungsmodelle für n-Butan");
    EXPECT_EQ(EOSKombi->currentText(), "CEOS Peng / Robinson");
    EXPECT_EQ(In<QComboBox>(form, "pKombi")->currentText(), "Wagner");
    EXPECT_EQ(In<QLabel>(form, "Rx1")->text(), "Parameter aus Datenbank verfügbar");
    EXPECT_TRUE(In<QRadioButton>(form, "PriorOpt(0)")->isChecked());
    EXPECT_FALSE(In<QComboBox>(form, "WatsonKombi")->isVisible());
    EXPECT_FALSE(In<QLabel>(form, "Bz1")->isVisible());
    EXPECT_TRUE(EOSKombi->hasFocus());
}

TEST_F(ModelWindow, VirialRowTakesThePriorityAndTheEnthalpyFromTheEquationAway) {
    auto* HLVKombi = In<QComboBox>(form, "HLVKombi");
    Pick(HLVKombi, "aus kub.-EOS (Globalberechnung)");
    Pick(EOSKombi, "VIRIAL-Gl. Van der Waals");
    EXPECT_EQ(HLVKombi->findText("aus kub.-EOS (Globalberechnung)"), -1);
    EXPECT_EQ(HLVKombi->currentIndex(), 0);
    EXPECT_FALSE(In<QRadioButton>(form, "PriorOpt(0)")->isEnabled());
    EXPECT_TRUE(In<QRadioButton>(form, "PriorOpt(1)")->isChecked());
    Pick(EOSKombi, "CEOS Redlich / Kwong");
    EXPECT_TRUE(In<QRadioButton>(form, "PriorOpt(0)")->isChecked());
    EXPECT_GE(HLVKombi->findText("aus kub.-EOS (Globalberechnung)"), 0);
    ClickButton(form, "OKModell");
    EXPECT_EQ(session->model.selection.eos, eosRedlichKwong);
}

TEST_F(ModelWindow, WatsonExponentIsThereForTheWatsonRowOnly) {
    auto* exponent = In<QComboBox>(form, "WatsonKombi");
    Pick(In<QComboBox>(form, "HLVKombi"), "Watson-Korrelation");
    ASSERT_TRUE(exponent->isVisible());
    EXPECT_TRUE(In<QLabel>(form, "Bz1")->isVisible());
    EXPECT_EQ(exponent->currentText(), "0.38");
    exponent->lineEdit()->selectAll();
    QTest::keyClicks(exponent->lineEdit(), "0,4");
    EXPECT_EQ(exponent->currentText(), "0.4");
    EXPECT_EQ(session->model.selection.watsonExponent, 0.4F);
}

TEST_F(ModelWindow, KeysOpenTheListOfEquationsInsteadOfWalkingThroughIt) {
    QTest::keyClick(EOSKombi, Qt::Key_Down);
    EXPECT_TRUE(EOSKombi->view()->isVisible());
    QTest::keyClick(EOSKombi->view(), Qt::Key_Down);
    EXPECT_EQ(session->model.selection.eos, eosPengRobinson);
    QTest::keyClick(EOSKombi->view(), Qt::Key_Escape);
    EXPECT_EQ(session->model.selection.eos, eosPengRobinson);
    EXPECT_EQ(Find<frmBParInput>(), nullptr);
}

TEST_F(ModelWindow, PriorityFollowsTheButtons) {
    QTest::mouseClick(In<QRadioButton>(form, "PriorOpt(1)"), Qt::LeftButton);
    EXPECT_FALSE(session->model.selection.eosPriority);
    ClickButton(form, "OKModell");
    EXPECT_EQ(In<QLabel>(window.get(), "statusPanel(3)")->text(),
              "Dampfdruck-Gleichung: Wagner (Priorität!)");
}

TEST_F(ModelWindow, EscRestoresTheOldChoice) {
    ClickButton(form, "OKModell");
    Command("mnuModel")->trigger();
    form = Wait<frmQModell>();
    ASSERT_NE(form, nullptr);
    Pick(In<QComboBox>(form, "EOSKombi"), "CEOS van der Waals");
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_EQ(Find<frmQModell>(), nullptr);
    EXPECT_EQ(session->model.selection.eos, eosPengRobinson);
    EXPECT_TRUE(Command("mnuCalcMain")->isEnabled());
}

TEST_F(ModelWindow, HandInputOfTheVirialConstantsIsTakenWithTheModels) {
    Pick(EOSKombi, "VIRIAL-Gl. Hand-Eingabe");
    auto* input = Wait<frmBParInput>();
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "par(0)");
    for (const char* value : {"0,08", "1e4", "1.75"}) {
        Type(value);
        Press(Qt::Key_Return);
    }
    EXPECT_EQ(Find<frmBParInput>(), nullptr);
    ClickButton(form, "OKModell");
    EXPECT_EQ(session->model.selection.eos, virialByHand);
    EXPECT_EQ(session->model.eos.b0, 0.08);
    EXPECT_EQ(session->model.eos.nB, 1e4);
    EXPECT_EQ(session->model.eos.nF, 1.75);
}

TEST_F(ModelWindow, HandInputWithoutUsableNumbersIsRefusedAndStaysOpen) {
    Pick(EOSKombi, "VIRIAL-Gl. Hand-Eingabe");
    auto* input = Wait<frmBParInput>();
    ASSERT_NE(input, nullptr);
    Type("0,08");
    EXPECT_EQ(In<QLineEdit>(input, "par(0)")->text(), "0.08");
    Press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "par(1)");
    Type("1e400");
    Press(Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "par(2)");
    Press(Qt::Key_Return);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "keine gültige Eingabe");
    EXPECT_EQ(Find<frmBParInput>(), input);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "par(1)");
    Type("1e4"); // the refused text is selected
    ClickButton(input, "cmdParameter_OK");
    EXPECT_EQ(Find<frmBParInput>(), nullptr);
    ClickButton(form, "OKModell");
    EXPECT_EQ(session->model.eos.b0, 0.08);
    EXPECT_EQ(session->model.eos.nB, 1e4);
}

TEST_F(ModelWindow, EscLeavesTheHandInput) {
    Pick(EOSKombi, "VIRIAL-Gl. Hand-Eingabe");
    auto* input = Wait<frmBParInput>();
    ASSERT_NE(input, nullptr);
    Type("5");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Find<frmBParInput>(), nullptr);
    EXPECT_TRUE(dialogs.shown.empty());
    ClickButton(form, "OKModell");
    EXPECT_EQ(session->model.eos.b0, 0);
}

TEST_F(ModelWindow, CancelledHandInputLeavesTheConstantsAlone) {
    ClickButton(form, "OKModell");
    const double b0 = session->model.eos.b0;
    ASSERT_GT(b0, 0);
    Command("mnuModel")->trigger();
    form = Wait<frmQModell>();
    ASSERT_NE(form, nullptr);
    Pick(In<QComboBox>(form, "EOSKombi"), "VIRIAL-Gl. Hand-Eingabe");
    auto* input = Wait<frmBParInput>();
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(In<QLineEdit>(input, "par(0)")->text(), "0");
    Type("7");
    ClickButton(input, "cmdParameter_OK");
    ClickButton(form, "cmdEsc");
    EXPECT_EQ(session->model.eos.b0, b0);
}

TEST_F(ModelWindow, ClosesTheWindowsOfTheLastCalculation) {
    ClickButton(form, "OKModell");
    ASSERT_NE(StartTP(), nullptr);
    Command("mnuModel")->trigger();
    form = Wait<frmQModell>();
    ASSERT_NE(form, nullptr);
    ClickButton(form, "cmdEsc");
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
}

TEST_F(ModelWindow, NoTwoControlsShareALetter) {
    ExpectOwnLetters(form, 9);
}

TEST_F(ModelWindow, TabWalksThroughTheControlsInTheirOrder) {
    EXPECT_EQ(WalkByTab().join(u' ').toStdString(),
              "EOSKombi EOSHilfe pKombi pHilfe PriorOpt(0) PriorHilfe HLVKombi HLVHilfe cpKombi cpHilfe "
              "RhoLHilfe OKModell cmdEsc");
    auto* HLVKombi = In<QComboBox>(form, "HLVKombi");
    emit HLVKombi->activated(HLVKombi->findText("Watson-Korrelation"));
    HLVKombi->setFocus();
    EXPECT_EQ(WalkByTab().mid(0, 4).join(u' ').toStdString(), "HLVKombi WatsonKombi HLVHilfe cpKombi");
}

TEST_F(ModelWindow, ButtonsWithoutAWindowBehindThemAreDisabled) {
    EXPECT_FALSE(In<QAbstractButton>(form, "cmdData")->isEnabled());
    for (const char* name : {"EOSHilfe", "pHilfe", "HLVHilfe", "cpHilfe", "RhoLHilfe", "PriorHilfe"})
        EXPECT_TRUE(In<QAbstractButton>(form, name)->isEnabled()) << name;
}

} // namespace
} // namespace orva::test
