// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/road.h"
#include "ui/calc/diagnosis_window.h"
#include "ui/calc/iso_window.h"
#include "ui/place_window.h"
#include "ui/theme.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct CalculationWindows : Workbench {
    frmParinput* input = nullptr;
    frmCalcOut* output = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
        input = StartTP();
        ASSERT_NE(input, nullptr);
        output = Find<frmCalcOut>();
        ASSERT_NE(output, nullptr);
    }

    void Enter(const char* T, const char* p) {
        In<QLineEdit>(input, "par(0)")->setText(T);
        In<QLineEdit>(input, "par(1)")->setText(p);
        ClickButton(input, "cmdParameter_OK");
    }
};

TEST_F(CalculationWindows, AskForTAndPAndShowTheResultWindowBeneath) {
    EXPECT_EQ(input->windowTitle(), "Eingabe Direktberechnung");
    EXPECT_GE(input->width(), WidthForTitle(*input));
    EXPECT_FALSE(input->isModal());
    EXPECT_TRUE(In<QLineEdit>(input, "par(0)")->isVisible());
    EXPECT_TRUE(In<QLineEdit>(input, "par(1)")->isVisible());
    EXPECT_FALSE(In<QLineEdit>(input, "par(2)")->isVisible());
    EXPECT_FALSE(In<QLineEdit>(input, "par(3)")->isVisible());
    EXPECT_EQ(In<QPushButton>(input, "cmdParameter_OK")->text(), "&Berechnen");
    EXPECT_EQ(output->windowTitle(), "Ergebnis der Berechnung  T, p => rho");
    EXPECT_EQ(In<QGroupBox>(output, "fraBatchVorgabe")->title(), " Vorgabewert Direkteingabe ");
    EXPECT_EQ(In<QLabel>(output, "par1")->text(), "kein T in diesem Datensatz");
    EXPECT_TRUE(
        In<QLabel>(output, "statusZeile")->text().startsWith("CEOS Peng / Robinson; Wagner;  T(cr)/K = "));
}

TEST_F(CalculationWindows, NothingTypedIsRefused) {
    ClickButton(input, "cmdParameter_OK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "keine gültige Eingabe");
    EXPECT_EQ(Find<frmParinput>(), input);
}

TEST_F(CalculationWindows, FieldsTakeNumbersOnlyAndTurnTheComma) {
    auto* field = In<QLineEdit>(input, "par(0)");
    QTest::keyClicks(field, "-a3x0 0,1.2,5e-2e!");
    EXPECT_EQ(field->text(), "-300.125e-2");
    field->clear();
    QGuiApplication::clipboard()->setText("  298,15 ");
    field->paste();
    EXPECT_EQ(field->text(), "298.15");
}

TEST_F(CalculationWindows, TemperatureAloneLetsTheResultNameTheMissingPressure) {
    Enter("300", "");
    const auto* label = In<QLabel>(output, "par2");
    EXPECT_EQ(label->text(), "kein p in diesem Datensatz");
    EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(128, 0, 0));
}

TEST_F(CalculationWindows, ColdPointShowsItsBoxAndIsCalculated) {
    Enter("100", "100");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "T ist kleiner als Tripelpunkt-Temperatur");
    EXPECT_EQ(In<QLabel>(output, "par1")->text(), "T = 100.000 K");
}

TEST_F(CalculationWindows, SupercriticalPointIsMarkedInBoldBlueAndBothColumnsAreTheSame) {
    Enter("500", "6000");
    const auto* co1 = In<QLabel>(output, "co1");
    EXPECT_EQ(co1->text(), "=> überkritische Phase L = V (T > T(cr), p > p(cr))");
    EXPECT_TRUE(co1->font().bold());
    EXPECT_DOUBLE_EQ(co1->font().pointSizeF(), QApplication::font().pointSizeF() + 2);
    EXPECT_EQ(co1->palette().color(QPalette::WindowText), QColor(0, 0, 255));
    EXPECT_EQ(In<QLabel>(output, "lblGleich")->text(), "identisch");
    EXPECT_TRUE(In<QLabel>(output, "lblGleich")->isVisible());
    Enter("300", "100");
    EXPECT_FALSE(co1->font().bold());
}

TEST_F(CalculationWindows, HeadsStandAboveTheirColumns) {
    Enter("500", "6000");
    auto* list = In<QPlainTextEdit>(output, "Liste");
    const auto leftOfColumn = [&](int column) {
        QTextCursor cursor(list->document());
        cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column);
        return list->viewport()->mapToGlobal(list->cursorRect(cursor).topLeft()).x();
    };
    const auto leftOf = [&](const char* name) {
        return In<QLabel>(output, name)->mapToGlobal(QPoint(0, 0)).x();
    };
    EXPECT_NEAR(leftOf("lblLphase"), leftOfColumn(34), 2);
    EXPECT_NEAR(leftOf("lblVphase"), leftOfColumn(54), 2);
    const auto* first = In<QLabel>(output, "lblLphase");
    const auto* same = In<QLabel>(output, "lblGleich");
    EXPECT_LE(first->geometry().right(), same->geometry().left());
    EXPECT_LE(same->geometry().right(), In<QLabel>(output, "lblVphase")->geometry().left());
}

TEST_F(CalculationWindows, ReportCanBeSelectedAndCopiedButNotChanged) {
    Enter("300", "100");
    auto* list = In<QPlainTextEdit>(output, "Liste");
    const QString before = list->toPlainText();
    list->setFocus();
    QTest::keyClicks(list, "x");
    EXPECT_EQ(list->toPlainText(), before);
    list->selectAll();
    list->copy();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), before);
    EXPECT_FALSE(before.contains('\r'));
    EXPECT_TRUE(IsFixedPitch(list->font()));
}

TEST_F(CalculationWindows, ControlsThatHaveNothingBehindThemAreDisabled) {
    for (const char* name : {"cmdVor", "cmdRueck", "cmdOpenNew", "cmdIsoCalc", "cmdShowManuInput"})
        EXPECT_FALSE(In<QPushButton>(output, name)->isEnabled()) << name;
    EXPECT_EQ(In<QPushButton>(output, "cmdCalc_OK")->text(), "Schließen");
}

TEST_F(CalculationWindows, TabWalksFromTheFieldsToTheButtons) {
    EXPECT_EQ(WalkByTab(), (QStringList{"par(0)", "par(1)", "cmdParameter_OK", "cancel"}));
}

TEST_F(CalculationWindows, TheReportStaysWhereItWasReadForTheNextPoint) {
    Enter("300", "100");
    Click(In<QCheckBox>(output, "ResPlus(1)"));
    Click(In<QCheckBox>(output, "ResPlus(2)"));
    QScrollBar* bar = In<QPlainTextEdit>(output, "Liste")->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 10);
    EXPECT_EQ(bar->value(), 0);
    bar->setValue(9);
    Enter("310", "100");
    EXPECT_EQ(bar->value(), 9);
}

TEST_F(CalculationWindows, TheSeparatorFollowsWhenTheWindowComesToTheFront) {
    session->options.listSeparator = '\t';
    output->activateWindow();
    WaitForKeyboard(output);
    EXPECT_EQ(In<QComboBox>(output, "cmbSep")->currentText(), "Tab");
}

TEST_F(CalculationWindows, ResultsAreCollectedAndGoToFileAndClipboard) {
    session->style.decimal = ','; // the numbers of the file follow the system
    const std::string file = session->protocol.protocolFile;
    EXPECT_EQ(In<QLabel>(output, "lblProtText2")->text(), ToQt(file));
    Enter("300", "100");
    ClickButton(output, "cmdProtokoll");
    Enter("310", "100");
    ClickButton(output, "cmdProtokoll");
    EXPECT_EQ(In<QLabel>(output, "lblProtText2")->text(), ToQt(file));
    EXPECT_EQ(In<QLabel>(output, "lblProtRows")->text(), "2 Zeilen");
    EXPECT_TRUE(In<QPushButton>(output, "cmdOpenNew")->isEnabled());
    auto* separator = In<QComboBox>(output, "cmbSep");
    EXPECT_EQ(separator->currentText(), "Semikolon");
    ClickButton(output, "cmdOpenNew");
    EXPECT_FALSE(In<QPushButton>(output, "cmdOpenNew")->isEnabled());
    EXPECT_NE(session->protocol.protocolFile, file);
    const QStringList lines = QGuiApplication::clipboard()->text().split("\r\n");
    ASSERT_GE(lines.size(), 8);
    EXPECT_EQ(lines[1], "n-Butan");
    EXPECT_EQ(lines[2], "CEOS Peng / Robinson\t Wagner"); // every separator becomes a tab
    EXPECT_TRUE(lines[6].startsWith("T\tp\t")) << FromQt(lines[6]);
    EXPECT_TRUE(lines[7].startsWith("300\t100\t")) << FromQt(lines[7]);
    EXPECT_TRUE(std::filesystem::exists(machine.WritableFolder() / file));
}

TEST_F(CalculationWindows, ACommaAsSeparatorIsTakenWithAWarning) {
    auto* separator = In<QComboBox>(output, "cmbSep");
    separator->setCurrentIndex(1);
    emit separator->activated(1);
    EXPECT_EQ(session->options.listSeparator, ',');
    Enter("300", "100");
    ClickButton(output, "cmdProtokoll");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Warnung");
    EXPECT_EQ(session->protocol.protocolRows(), 1);
}

TEST_F(CalculationWindows, TheDiagnosisStandsBesideItsResult) {
    Enter("300", "256");
    ClickButton(output, "cmdCEOSDiagnose");
    auto* diagnosis = Wait<frmCEOSDiagnose>();
    ASSERT_NE(diagnosis, nullptr);
    EXPECT_EQ(In<QLabel>(diagnosis, "lblStab(2)")->text(), "(instabil)");
    Enter("500", "256"); // one root
    EXPECT_FALSE(In<QLabel>(diagnosis, "lblStab(2)")->isVisible());
    Enter("300", "");
    EXPECT_FALSE(diagnosis->isVisible());
}

TEST_F(CalculationWindows, TheInversionMovesThePointOfItsResult) {
    input->close();
    Choose("mnuCalcMain", "mnuCalc(11)");
    input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    output = Find<frmCalcOut>();
    Enter("300", "100");
    EXPECT_TRUE(In<QPushButton>(output, "cmdIsoCalc")->isEnabled());
    In<QLineEdit>(input, "par(1)")->setText("0");
    ClickButton(output, "cmdIsoCalc");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "noch keine p- oder T-Vorgabe!");
    In<QLineEdit>(input, "par(1)")->setText("100");
    ClickButton(output, "cmdIsoCalc");
    auto* inversion = Wait<frmIsoCalc>();
    ASSERT_NE(inversion, nullptr);
    Click(In<QRadioButton>(inversion, "OptIsoFu(1)"));
    In<QLineEdit>(inversion, "txtFuConst")->setText("1000");
    ClickButton(inversion, "cmdCalc");
    EXPECT_NEAR(session->batch.rows[0].T, 310, 1); // cp is near 100 kJ/(kmol K)
    EXPECT_EQ(In<QLabel>(output, "par1")->text(),
              ToQt("T = " + Format(session->batch.rows[0].T, "###0.000 K", session->style)));
    EXPECT_NEAR(output->Model().Result().results[slotVolumeV + 1], 1000, 0.01);
}

TEST_F(CalculationWindows, ClosingTheResultClosesTheInputToo) {
    ClickButton(output, "cmdCalc_OK");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
}

TEST_F(CalculationWindows, EscClosesEachOfThem) {
    QTest::keyClick(input, Qt::Key_Escape);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
    output->activateWindow();
    WaitForKeyboard(output);
    QTest::keyClick(output, Qt::Key_Escape);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
}

TEST_F(CalculationWindows, NextCalculationStartsWithTheLastNumbers) {
    Enter("300.5", "101.325");
    input = StartTP();
    ASSERT_NE(input, nullptr);
    auto* field = In<QLineEdit>(input, "par(0)");
    EXPECT_EQ(field->text(), "300.5");
    EXPECT_EQ(field->selectedText(), "300.5");
    EXPECT_EQ(In<QLineEdit>(input, "par(1)")->text(), "101.325");
}

TEST(ReportColours, StayReadableOnADarkGround) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    EXPECT_TRUE(IsDark(dark));
    for (const TextColour colour : {TextColour::Black, TextColour::Red, TextColour::Blue})
        EXPECT_GT(ReportColour(colour, dark).lightness(), 150);
    EXPECT_EQ(ReportColour(TextColour::Red, QPalette(Qt::white)), QColor(128, 0, 0));
}

TEST(DensityInput, OffersAVolumeInstead) {
    SubstanceData substance;
    substance.molarMass = 58;
    const Options options;
    BatchDataSet batch;
    ScriptedDialogs dialogs;
    CalculationState calculation;
    frmParinput form(PointInput(kindTRho + inputContextOffset, {substance, options, batch, calculation}),
                     dialogs);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    auto* density = form.findChild<QRadioButton*>("optRhoV(0)");
    auto* volume = form.findChild<QRadioButton*>("optRhoV(1)");
    ASSERT_TRUE(density != nullptr && volume != nullptr);
    EXPECT_TRUE(density->isChecked());
    Workbench::ExpectOwnLetters(&form, 4);
    volume->click();
    form.findChild<QLineEdit*>("par(0)")->setText("300");
    form.findChild<QLineEdit*>("par(2)")->setText("2");
    form.findChild<QPushButton*>("cmdParameter_OK")->click();
    EXPECT_EQ(batch.rows[0].T, 300);
    EXPECT_EQ(batch.rows[0].rhoV, 29.0F);
}

TEST_F(CalculationWindows, AProcessShowsItsReportAlone) {
    BusyCursor busy;
    const CalculationStart start = StartAfterProcess(*session, {300, 100, "Polytrope\r\n"});
    ASSERT_TRUE(start.showResult);
    frmCalcOut form(*session, busy);
    form.show();
    form.Calculate();
    EXPECT_EQ(form.windowTitle(), "Ergebnis der Berechnung Polytropen-Prozess");
    EXPECT_EQ(In<QPlainTextEdit>(&form, "Liste")->toPlainText().trimmed(), "Polytrope");
    for (const char* frame : {"fraBatchVorgabe", "fraCalcErweitert", "fraProtokoll"})
        EXPECT_FALSE(In<QGroupBox>(&form, frame)->isVisible()) << frame;
    for (const char* label : {"co1", "co2", "lblGleich", "lblLphase"})
        EXPECT_FALSE(In<QLabel>(&form, label)->isVisible()) << label;
    EXPECT_FALSE(In<QPushButton>(&form, "cmdIsoCalc")->isEnabled());
    EXPECT_FALSE(In<QPushButton>(&form, "cmdCEOSDiagnose")->isEnabled());
    EXPECT_TRUE(dialogs.shown.empty());
}

} // namespace
} // namespace orva::test
