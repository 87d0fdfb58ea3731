// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/value_input_view.h"

#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diagrams/diagram_fixture.h"

namespace orva {
namespace {

using testing::ElementsAre;

struct Box {
    test::MethaneDiagram d;
    DiagramWindow window;
    ValueInput input;
    std::unique_ptr<frmTpVSInputBox> box;
    QLineEdit* value;

    explicit Box(int volumeBasis = 0)
        : d(eosPengRobinson, volumeBasis), window(d.Records(), d.dialogs),
          input(d.Records(), window, d.dialogs) {
        window.Open(FindDiagram(1));
        box = std::make_unique<frmTpVSInputBox>(input);
        box->show();
        value = box->findChild<QLineEdit*>("txtValue");
    }
    void Click(const char* name) { QTest::mouseClick(box->findChild<QPushButton*>(name), Qt::LeftButton); }
    void Type(const char* text) {
        value->selectAll();
        QTest::keyClicks(value, text);
    }
};

TEST(ValueInputWindow, ShowsTheTemperatureInForce) {
    Box b;
    EXPECT_EQ(b.box->findChild<QLabel*>("lblValue")->text(), "T =");
    EXPECT_EQ(b.box->findChild<QLabel*>("lblUnit")->text(), "K");
    EXPECT_EQ(b.value->text(), "190.564");
    EXPECT_EQ(b.value->selectedText(), "190.564");
}

TEST(ValueInputWindow, ReducedTemperatureHasNoUnit) {
    Box b(2);
    EXPECT_EQ(b.box->findChild<QLabel*>("lblValue")->text(), "T(red) =");
    EXPECT_FALSE(b.box->findChild<QLabel*>("lblUnit")->isVisible());
}

TEST(ValueInputWindow, EnterDrawsAndTheWindowStaysForTheNextValue) {
    Box b;
    b.Type("150");
    QTest::keyClick(b.value, Qt::Key_Return);
    EXPECT_EQ(b.window.Chart().curveCount, 1);
    EXPECT_TRUE(b.box->isVisible());
    EXPECT_EQ(b.value->selectedText(), "150");
    QTest::keyClicks(b.value, "170,5"); // replaces the selected value
    EXPECT_EQ(b.value->text(), "170.5");
    QTest::keyClick(b.value, Qt::Key_Enter);
    ASSERT_EQ(b.window.Chart().curveCount, 2);
    EXPECT_EQ(b.window.Chart().Series(2).legend, "(2) 170.5 K ");
}

TEST(ValueInputWindow, WhoComesBackToItTypesANewValue) {
    Box b;
    b.box->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(b.box.get()));
    b.value->deselect();
    QEvent activated(QEvent::ActivationChange);
    QApplication::sendEvent(b.box.get(), &activated);
    EXPECT_EQ(b.value->selectedText(), "190.564");
}

TEST(ValueInputWindow, OkKeepsTheValueAndCloses) {
    Box b;
    b.Type("222");
    b.Click("cmdOK");
    EXPECT_FALSE(b.box->isVisible());
    EXPECT_EQ(b.d.request.curveT, 222);
    EXPECT_EQ(b.window.Chart().curveCount, 0);
}

TEST(ValueInputWindow, ButtonDrawsToo) {
    Box b;
    b.Type("222");
    b.Click("cmdOKAndDraw");
    EXPECT_TRUE(b.box->isVisible());
    EXPECT_EQ(b.window.Chart().curveCount, 1);
}

TEST(ValueInputWindow, UnusableTextKeepsTheWindowOpenAndChangesNothing) {
    Box b;
    b.Type("-abc.e"); // what is no part of a number is not taken
    EXPECT_EQ(b.value->text(), "-.e");
    b.Click("cmdOK");
    EXPECT_TRUE(b.box->isVisible());
    EXPECT_THAT(b.d.dialogs.messages,
                ElementsAre(Message{"Ausführung nicht möglich", "keine gültige Eingabe"}));
    EXPECT_EQ(b.d.request.curveT, 190.564);
}

TEST(ValueInputWindow, CancelOnlyClosesTheWindow) {
    Box b;
    b.Type("222");
    b.Click("cmdAbbrechen");
    EXPECT_FALSE(b.box->isVisible());
    EXPECT_EQ(b.d.request.curveT, 190.564);
    b.box->show(); // and comes back with the value in force
    EXPECT_EQ(b.value->text(), "190.564");
}

TEST(ValueInputWindow, EscapeClosesIt) {
    Box b;
    QTest::keyClick(b.value, Qt::Key_Escape);
    EXPECT_FALSE(b.box->isVisible());
}

} // namespace
} // namespace orva
