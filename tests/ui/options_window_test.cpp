// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "ui/calc/reference_window.h"
#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/shell/options_window.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct OptionsForm : Workbench {
    frmOptions* form = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
    }

    // Through the entry of the menu bar, as the user does it.
    void Open() {
        QAction* entry = Command("mnuOptions");
        ASSERT_NE(entry, nullptr);
        ASSERT_TRUE(entry->isEnabled());
        QTest::mouseClick(window->menuBar(), Qt::LeftButton, {},
                          window->menuBar()->actionGeometry(entry).center());
        form = Wait<frmOptions>();
        ASSERT_NE(form, nullptr);
    }

    template<typename Button> void Tick(const char* name) const {
        auto* button = In<Button>(form, name);
        // On the mark itself: the text may end before the middle of the control.
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    QString ResultText() const { return In<QPlainTextEdit>(Find<frmCalcOut>(), "Liste")->toPlainText(); }

    frmGraph2D* DrawIsotherm() const {
        Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
        auto* box = Wait<frmTpVSInputBox>();
        EXPECT_NE(box, nullptr);
        ClickButton(box, "cmdOKAndDraw");
        return Find<frmGraph2D>();
    }
};

// What the user reads: the underlined letters are no part of it.
QString Words(QString text) {
    return text.remove(u'&');
}

TEST_F(OptionsForm, IsAModalWindowWithItsTitle) {
    Open();
    EXPECT_EQ(form->windowTitle(), "   Optionen");
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(form->objectName(), "frmOptions");
}

TEST_F(OptionsForm, ShowsEveryTextWordForWord) {
    Open();
    const std::pair<const char*, const char*> buttons[] = {
        {"OptCalcMode(0)", "Direkt-Berechnung"},
        {"OptCalcMode(1)", "Stapel-Berechnung"},
        {"optMolarSpez(0)", "molare Größen"},
        {"optMolarSpez(1)", "spezifische Größen"},
        {"chkReduziert", "reduzierte Größen  z(red) = z / z(cr)"},
        {"chkCurveTpRestricted", "physikalisch realen Bereich zeichnen (T>T(trip) bzw. p> p(trip))"},
        {"chkSKurveOhneKonnode", "für kubische EOS: Bei T < T(cr) nur S-Kurve ohne Konnode zeichnen"},
        {"chkPartialKurve", "Partialkurve \"Gasphase\" z(T), isobar oder z(p), isotherm, d. h. nur Kurve für "
                            "T > T(LV) bzw. p < p(LV)  zeichnen "},
        {"Command1", "Einstellen / Sichten"},
        {"cmdClose", "Abbrechen"},
        {"cmdOK", "OK"}};
    for (const auto& [name, text] : buttons)
        EXPECT_EQ(Words(In<QAbstractButton>(form, name)->text()), text) << name;

    QStringList frames;
    for (const QGroupBox* frame : form->findChildren<QGroupBox*>())
        frames << frame->title();
    for (const char* heading : {"Modus für Berechnungen", "Kurven-Auflösung", "2D-Diagramm-Optionen",
                                "Einheiten für berechnete Größen", "reduzierte Größen für T, p, V"})
        EXPECT_TRUE(frames.contains(heading)) << heading;

    QStringList labels;
    for (const QLabel* label : form->findChildren<QLabel*>())
        labels << Words(label->text());
    for (const char* text :
         {"(betrifft nur Menüpunkt \"Berechnungen\")", " Einzeleingabe T, p, ... => Berechnung ",
          " Abarbeitung einer \"Stapel-Liste\" mit Vorgabewerten T, p, ...; Eingabe unter "
          "\"Daten/exper. Daten...\"  ",
          " z. B. kJ/kmol oder m^3/kmol ", " z. B. kJ/kg oder m^3/kg ",
          " vorerst nur wirksam für Virial-EOS ", "Punkte pro Kurve", "Normierung für thermodynamische ",
          "Funktionen "})
        EXPECT_TRUE(labels.contains(text)) << text;
}

TEST_F(OptionsForm, SliderHasItsStepsAndShowsItsValueLive) {
    Open();
    auto* slider = In<QSlider>(form, "Slider1_punktdichte");
    const auto* value = In<QLabel>(form, "Label54");
    EXPECT_EQ(In<QLabel>(form, "lblSlideMin")->text(), "50");
    EXPECT_EQ(In<QLabel>(form, "lblSlideMax")->text(), "800");
    EXPECT_EQ(slider->minimum(), 50);
    EXPECT_EQ(slider->maximum(), 800);
    EXPECT_EQ(slider->tickInterval(), 50);
    EXPECT_EQ(value->text(), "300");
    slider->setFocus();
    Press(Qt::Key_Right);
    EXPECT_EQ(value->text(), "310");
    Press(Qt::Key_PageUp);
    EXPECT_EQ(value->text(), "360");
    Press(Qt::Key_End);
    EXPECT_EQ(value->text(), "800");
    EXPECT_EQ(session->options.curvePoints, 300);
    Press(Qt::Key_Return);
    EXPECT_EQ(session->options.curvePoints, 800);
    EXPECT_EQ(Find<frmOptions>(), nullptr);
}

TEST_F(OptionsForm, ValueOfAProjectOutOfRangeIsClamped) {
    session->options.curvePoints = 2000;
    Open();
    EXPECT_EQ(In<QLabel>(form, "Label54")->text(), "800");
    EXPECT_EQ(session->options.curvePoints, 2000);
    ClickButton(form, "cmdOK");
    EXPECT_EQ(session->options.curvePoints, 800);
}

TEST_F(OptionsForm, ClicksComeIntoForceWithOK) {
    Open();
    Tick<QRadioButton>("optMolarSpez(1)");
    Tick<QCheckBox>("chkCurveTpRestricted");
    Tick<QCheckBox>("chkSKurveOhneKonnode");
    Tick<QCheckBox>("chkPartialKurve");
    EXPECT_EQ(session->options.unitBasis, 0);
    EXPECT_TRUE(session->options.curveTpRestricted);
    ClickButton(form, "cmdOK");
    EXPECT_EQ(session->options.unitBasis, 3);
    EXPECT_FALSE(session->options.curveTpRestricted);
    EXPECT_TRUE(session->options.sCurveWithoutTieLine);
    EXPECT_TRUE(session->options.partialCurveGasOnly);
    Open();
    EXPECT_TRUE(In<QRadioButton>(form, "optMolarSpez(1)")->isChecked());
    EXPECT_FALSE(In<QCheckBox>(form, "chkCurveTpRestricted")->isChecked());
    EXPECT_TRUE(In<QCheckBox>(form, "chkSKurveOhneKonnode")->isChecked());
    EXPECT_TRUE(In<QCheckBox>(form, "chkPartialKurve")->isChecked());
}

TEST_F(OptionsForm, BothWaysOfLeavingChangeNothing) {
    for (const bool byKey : {false, true}) {
        Open();
        Tick<QRadioButton>("optMolarSpez(1)");
        Tick<QRadioButton>("OptCalcMode(1)");
        Tick<QCheckBox>("chkReduziert");
        if (byKey)
            QTest::keyClick(form, Qt::Key_Escape);
        else
            ClickButton(form, "cmdClose");
        EXPECT_EQ(Find<frmOptions>(), nullptr);
        EXPECT_EQ(session->options.unitBasis, 0);
        EXPECT_EQ(session->options.volumeBasis, 0);
        EXPECT_FALSE(session->options.batchMode);
    }
}

TEST_F(OptionsForm, KeysAloneDoIt) {
    window->activateWindow();
    WaitForKeyboard(window.get());
    QTest::keyClick(window.get(), Qt::Key_O, Qt::AltModifier);
    form = Wait<frmOptions>();
    ASSERT_NE(form, nullptr);
    const std::pair<Qt::Key, const char*> letters[] = {{Qt::Key_P, "optMolarSpez(1)"},
                                                       {Qt::Key_R, "chkReduziert"},
                                                       {Qt::Key_K, "chkSKurveOhneKonnode"},
                                                       {Qt::Key_S, "OptCalcMode(1)"}};
    for (const auto& [key, name] : letters) {
        QTest::keyClick(form, key, Qt::AltModifier);
        const auto* button = In<QAbstractButton>(form, name);
        EXPECT_TRUE(QTest::qWaitFor([&] { return button->isChecked(); }, 1000)) << name;
    }
    QTest::keyClick(form, Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Slider1_punktdichte");
    Press(Qt::Key_Return);
    EXPECT_EQ(session->options.unitBasis, 3);
    EXPECT_EQ(session->options.volumeBasis, 2);
    EXPECT_TRUE(session->options.sCurveWithoutTieLine);
    EXPECT_TRUE(session->options.batchMode);
}

TEST_F(OptionsForm, NoTwoControlsShareALetter) {
    Open();
    ExpectOwnLetters(form, 12);
}

TEST_F(OptionsForm, TabWalksThroughTheControlsInTheirOrder) {
    Open();
    EXPECT_EQ(WalkByTab(),
              (QStringList{"OptCalcMode(0)", "optMolarSpez(0)", "chkReduziert", "Slider1_punktdichte",
                           "Command1", "cmdReferenzHelp", "chkCurveTpRestricted", "chkSKurveOhneKonnode",
                           "chkPartialKurve", "cmdRealBreichHelp", "cmdOK", "cmdClose"}));
}

TEST_F(OptionsForm, ControlsFollowTheSubstanceAndItsEquation) {
    session->model.selection.nonCubic = true;
    Open();
    EXPECT_FALSE(In<QCheckBox>(form, "chkSKurveOhneKonnode")->isEnabled());
    EXPECT_TRUE(In<QCheckBox>(form, "chkReduziert")->isEnabled());
    form->close();
    session->model.selection.nonCubic = false;
    session->model.substance.Tc = 0;
    session->options.volumeBasis = 2;
    Open();
    EXPECT_TRUE(In<QCheckBox>(form, "chkSKurveOhneKonnode")->isEnabled());
    EXPECT_FALSE(In<QCheckBox>(form, "chkReduziert")->isEnabled());
    EXPECT_FALSE(In<QCheckBox>(form, "chkReduziert")->isChecked());
    EXPECT_EQ(session->options.volumeBasis, 0);
}

TEST_F(OptionsForm, BatchModeRewordsTheMenu) {
    Open();
    Tick<QRadioButton>("OptCalcMode(1)");
    ClickButton(form, "cmdOK");
    EXPECT_EQ(Command("mnuCalc(0)")->text(), "Spalten T, rho(V) => p, Zustand L/V     + thermod. Fu.");
    EXPECT_TRUE(Command("mnuCalc(1)")->isVisible());
    emit window->findChild<QMenu*>("mnuCalcMain")->aboutToShow();
    ASSERT_EQ(dialogs.shown.size(), 1U); // there is no data series
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    Open();
    EXPECT_TRUE(In<QRadioButton>(form, "OptCalcMode(1)")->isChecked());
    Tick<QRadioButton>("OptCalcMode(0)");
    ClickButton(form, "cmdOK");
    EXPECT_EQ(Command("mnuCalc(0)")->text(), "T, rho      => p, Zustand L/V     + thermod. Fu.");
    EXPECT_FALSE(Command("mnuCalc(1)")->isVisible());
}

TEST_F(OptionsForm, OtherUnitsCloseTheDiagram) {
    frmGraph2D* graph = DrawIsotherm();
    ASSERT_NE(graph, nullptr);
    Open();
    Tick<QCheckBox>("chkSKurveOhneKonnode");
    ClickButton(form, "cmdOK");
    EXPECT_TRUE(graph->isVisible());
    EXPECT_NE(Find<frmTpVSInputBox>(), nullptr);
    Open();
    Tick<QRadioButton>("optMolarSpez(1)");
    ClickButton(form, "cmdOK");
    EXPECT_FALSE(graph->isVisible());
    EXPECT_EQ(Find<frmTpVSInputBox>(), nullptr);
}

TEST_F(OptionsForm, AnOpenResultFollowsTheUnits) {
    auto* input = StartTP();
    ASSERT_NE(input, nullptr);
    In<QLineEdit>(input, "par(0)")->setText("300");
    In<QLineEdit>(input, "par(1)")->setText("100");
    ClickButton(input, "cmdParameter_OK");
    ASSERT_TRUE(ResultText().contains("m^3/kmol"));
    In<QLineEdit>(input, "par(1)")->setText("20"); // typed, not yet calculated
    Open();
    Tick<QRadioButton>("optMolarSpez(1)");
    ClickButton(form, "cmdOK");
    EXPECT_TRUE(ResultText().contains("m^3/kg"));
    EXPECT_FALSE(ResultText().contains("m^3/kmol"));
    EXPECT_EQ(In<QLabel>(Find<frmCalcOut>(), "par2")->text(), "p = 100.000 kPa");
    EXPECT_EQ(In<QLineEdit>(input, "par(1)")->text(), "20");
    Open();
    Tick<QRadioButton>("OptCalcMode(1)");
    ClickButton(form, "cmdOK");
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
}

TEST_F(OptionsForm, FollowingTheUnitsShowsNoBoxAgain) {
    auto* input = StartTP();
    In<QLineEdit>(input, "par(0)")->setText("100"); // below the triple point
    In<QLineEdit>(input, "par(1)")->setText("100");
    ClickButton(input, "cmdParameter_OK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    Open();
    Tick<QRadioButton>("optMolarSpez(1)");
    ClickButton(form, "cmdOK");
    EXPECT_EQ(dialogs.shown.size(), 1U);
}

TEST_F(OptionsForm, ReferenceWindowOpensInsteadWithNothingChanged) {
    Open();
    Tick<QRadioButton>("optMolarSpez(1)");
    ClickButton(form, "Command1");
    auto* reference = Wait<frmReferenz>();
    ASSERT_NE(reference, nullptr);
    EXPECT_EQ(Find<frmOptions>(), nullptr);
    EXPECT_EQ(session->options.unitBasis, 0);
}

TEST_F(OptionsForm, HelpButtonsStandBesideWhatTheyExplain) {
    Open();
    for (const char* name : {"cmdReferenzHelp", "cmdRealBreichHelp"})
        EXPECT_NE(In<QToolButton>(form, name), nullptr);
}

} // namespace
} // namespace orva::test
