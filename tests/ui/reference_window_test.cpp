// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "ui/calc/reference_window.h"
#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct ReferenceForm : Workbench {
    frmReferenz* form = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
    }

    // By a click on its button of the toolbar.
    void Open() {
        auto* bar = window->findChild<QToolBar*>("toolbar");
        ASSERT_NE(bar, nullptr);
        auto* action = window->findChild<QAction*>("toolbar(11)");
        ASSERT_NE(action, nullptr);
        ASSERT_TRUE(action->isEnabled());
        QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
        form = Wait<frmReferenz>();
        ASSERT_NE(form, nullptr);
    }

    QLineEdit* Field(int index) const { return In<QLineEdit>(form, qPrintable(ControlName("T", index))); }
    void Option(int index) const {
        auto* option = In<QRadioButton>(form, qPrintable(ControlName("opt_HNull", index)));
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
    }
    static void Retype(QLineEdit* field, const char* keys) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(keys));
    }
    const ReferencePoint& Record() const { return session->model.reference; }
};

TEST_F(ReferenceForm, IsClosedUntilThereIsASubstance) {
    session = std::make_unique<Session>(machine, dialogs);
    window = std::make_unique<mdiORVA>(*session);
    EXPECT_FALSE(window->findChild<QAction*>("toolbar(11)")->isEnabled());
}

TEST_F(ReferenceForm, OpensWithTheRecordAndTheNormalPressure) {
    EXPECT_EQ(Record().p0, 0); // as the reset of the models leaves it
    Open();
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(form->windowTitle(), "Normierung thermodynamischer Funktionen");
    EXPECT_TRUE(In<QRadioButton>(form, "opt_HNull(0)")->isChecked());
    EXPECT_TRUE(In<QRadioButton>(form, "opt_HNull(0)")->hasFocus());
    const char* const texts[] = {"298.15", "101.325", "298.15", "101.325", "0", "0"};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(Field(i)->text(), texts[i]) << i;
        EXPECT_TRUE(Field(i)->isEnabled()) << i;
    }
    EXPECT_NE(In<QToolButton>(form, "cmdRefHelp"), nullptr);
    ClickButton(form, "OK");
    EXPECT_EQ(Find<frmReferenz>(), nullptr);
    EXPECT_EQ(Record(), ReferencePoint());
}

TEST_F(ReferenceForm, TypedNumbersAreTakenWithOK) {
    Open();
    Retype(Field(0), "273,15");
    EXPECT_EQ(Field(0)->text(), "273.15");
    Retype(Field(1), "100");
    Retype(Field(2), "x2y8-8!8");
    EXPECT_EQ(Field(2)->text(), "2888");
    Retype(Field(2), "288");
    Retype(Field(3), "95.5");
    Retype(Field(4), "-1,5e3");
    Retype(Field(5), "2.5");
    EXPECT_EQ(Record().T0, 298.15F);
    Press(Qt::Key_Return); // is OK from every field
    EXPECT_EQ(Find<frmReferenz>(), nullptr);
    EXPECT_EQ(Record(), (ReferencePoint{1, 273.15F, 100, -1500, 2.5, 288, 95.5}));
}

TEST_F(ReferenceForm, PastedNumbersComeWithCommaOrPoint) {
    Open();
    for (const char* text : {"  273,15 ", "273.15\n"}) {
        QGuiApplication::clipboard()->setText(text);
        Field(0)->setFocus();
        Field(0)->selectAll();
        Field(0)->paste();
        EXPECT_EQ(Field(0)->text(), "273.15");
    }
}

TEST_F(ReferenceForm, EscChangesNothing) {
    const ReferencePoint before = Record();
    for (const bool byKey : {false, true}) {
        Open();
        Option(2);
        Retype(Field(4), "5");
        if (byKey)
            QTest::keyClick(form, Qt::Key_Escape);
        else
            ClickButton(form, "Esc");
        EXPECT_EQ(Find<frmReferenz>(), nullptr);
        EXPECT_EQ(Record(), before);
    }
}

TEST_F(ReferenceForm, OptionsLockTheStandardState) {
    Open();
    Retype(Field(0), "250");
    Retype(Field(1), "50");
    Option(1);
    EXPECT_EQ(Field(0)->text(), "298.15");
    EXPECT_EQ(Field(1)->text(), "101.325");
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(Field(i)->isEnabled(), i > 1) << i;
    EXPECT_TRUE(In<QLabel>(form, "lblHNull")->text().startsWith("h(f) = "));
    Option(0);
    EXPECT_EQ(Field(0)->text(), "250");
    EXPECT_EQ(Field(1)->text(), "101.325");
    EXPECT_TRUE(Field(0)->isEnabled());
    Option(2);
    ClickButton(form, "OK");
    EXPECT_EQ(Record().kind, 10);
    EXPECT_EQ(Record().T0, 298.15F);
    Open();
    EXPECT_TRUE(In<QRadioButton>(form, "opt_HNull(2)")->isChecked());
    EXPECT_FALSE(Field(0)->isEnabled());
}

TEST_F(ReferenceForm, KeysChangeTheOption) {
    Open();
    Press(Qt::Key_Down);
    EXPECT_TRUE(In<QRadioButton>(form, "opt_HNull(1)")->isChecked());
    EXPECT_FALSE(Field(0)->isEnabled());
    QTest::keyClick(form, Qt::Key_E, Qt::AltModifier);
    const auto* entropy = In<QRadioButton>(form, "opt_HNull(2)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return entropy->isChecked(); }, 1000));
    QTest::keyClick(form, Qt::Key_H, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), Field(4));
    Type("7");
    Press(Qt::Key_Return);
    EXPECT_EQ(Record().kind, 10);
    EXPECT_EQ(Record().h0, 7);
}

TEST_F(ReferenceForm, UnusableNumbersAreRefusedAndTheWindowStays) {
    const ReferencePoint before = Record();
    Open();
    Retype(Field(4), "5");
    Retype(Field(3), "-1");
    ClickButton(form, "OK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "keine gültige Eingabe");
    EXPECT_EQ(Find<frmReferenz>(), form);
    EXPECT_EQ(Record(), before);
    EXPECT_EQ(QApplication::focusWidget(), Field(3));
    EXPECT_EQ(Field(3)->selectedText(), "-1");
    Type("99");
    Press(Qt::Key_Return);
    EXPECT_EQ(Find<frmReferenz>(), nullptr);
    EXPECT_EQ(Record().penv, 99);
    EXPECT_EQ(Record().h0, 5);
}

TEST_F(ReferenceForm, AmbientTemperatureOfZeroBecomesATinyOne) {
    Open();
    Retype(Field(2), "0");
    ClickButton(form, "OK");
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(Record().Tenv, 1e-6);
}

TEST_F(ReferenceForm, NoTwoControlsShareALetter) {
    Open();
    ExpectOwnLetters(form, 11);
}

TEST_F(ReferenceForm, TabWalksFromTheOptionsThroughTheFields) {
    Open();
    EXPECT_EQ(WalkByTab(), (QStringList{"opt_HNull(0)", "cmdRefHelp", "T(0)", "T(1)", "T(4)", "T(5)", "T(2)",
                                        "T(3)", "OK", "Esc"}));
}

TEST_F(ReferenceForm, AnIsothermInPAndVStays) {
    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* box = Wait<frmTpVSInputBox>();
    ASSERT_NE(box, nullptr);
    auto* graph = Find<frmGraph2D>();
    ASSERT_NE(graph, nullptr);
    window->activateWindow();
    Open();
    Option(1);
    ClickButton(form, "OK");
    EXPECT_EQ(Record().kind, 2);
    EXPECT_TRUE(graph->isVisible());
    EXPECT_EQ(session->ranges.hMin, -300000); // the next diagram starts from there
}

} // namespace
} // namespace orva::test
