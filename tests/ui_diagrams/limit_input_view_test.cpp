// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/limit_input_view.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "diagrams/butane_diagram.h"
#include "ui/diagrams/diagram_window_view.h"

namespace orva {
namespace {

struct Box {
    test::ButaneDiagram d;
    DiagramWindow window{d.Records(), d.dialogs};
    LimitInput input{d.Records(), window, d.dialogs};
    std::unique_ptr<frmInputProzessLinien> box;

    explicit Box(int type) {
        window.Open(FindDiagram(type));
        box = std::make_unique<frmInputProzessLinien>(input);
        box->show();
    }
    QLineEdit* Field(const char* name) { return box->findChild<QLineEdit*>(name); }
    void Type(const char* name, const char* text) {
        Field(name)->selectAll();
        QTest::keyClicks(Field(name), text);
    }
    void Draw() { QTest::mouseClick(box->findChild<QPushButton*>("cmdDraw"), Qt::LeftButton); }
};

TEST(LimitInputWindow, DrawsBetweenTheTypedLimitsAndStays) {
    Box b(107);
    b.Type("txtValue", "350");
    b.Type("txtFrom", "100,5");
    EXPECT_EQ(b.Field("txtFrom")->text(), "100.5");
    b.Type("txtTo", "900");
    b.Draw();
    ASSERT_EQ(b.window.Chart().curveCount, 1);
    EXPECT_EQ(*b.window.Chart().Series(1).Z(1), 100.5F);
    EXPECT_TRUE(b.box->isVisible());
}

TEST(LimitInputWindow, EnterDrawsAnIsobarOverItsTemperatures) {
    Box b(24);
    b.Type("txtValue", "500");
    b.Type("txtFrom", "280");
    b.Type("txtTo", "460");
    QTest::keyClick(b.Field("txtTo"), Qt::Key_Return);
    ASSERT_EQ(b.window.Chart().curveCount, 1);
    EXPECT_EQ(b.window.Chart().Series(1).ZKind(), zTemperature);
}

TEST(LimitInputWindow, WhoComesBackToItStaysInTheField) {
    Box b(22);
    b.box->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(b.box.get()));
    QLineEdit* low = b.Field("txtFrom");
    low->setFocus();
    low->deselect();
    QEvent activated(QEvent::ActivationChange);
    QApplication::sendEvent(b.box.get(), &activated);
    EXPECT_EQ(b.box->focusWidget(), low);
    EXPECT_EQ(low->selectedText(), low->text());
    EXPECT_FALSE(low->text().isEmpty());
}

TEST(LimitInputWindow, RefusesEmptyFields) {
    Box b(107);
    b.Field("txtTo")->clear();
    b.Draw();
    ASSERT_EQ(b.d.dialogs.messages.size(), 1U);
    EXPECT_EQ(b.d.dialogs.messages[0].text, "Eingabe nicht vollständig oder ungültig");
    EXPECT_EQ(b.window.Chart().curveCount, 0);
}

TEST(GraphCommands, FollowTheTypeOfTheDiagram) {
    test::ButaneDiagram d;
    DiagramWindow window(d.Records(), d.dialogs);
    window.Open(FindDiagram(1));
    frmGraph2D view(window, d.dialogs);
    view.show();
    const auto enabled = [&](const char* name) { return view.findChild<QAction*>(name)->isEnabled(); };
    EXPECT_TRUE(enabled("mnuMarkKoex"));
    EXPECT_TRUE(enabled("mnuMarkKonnode"));
    EXPECT_FALSE(enabled("mnuMarkHalbierende"));
    EXPECT_FALSE(enabled("mnuMarkT"));
    view.findChild<QAction*>("mnuMarkKoex")->trigger();
    EXPECT_EQ(window.Chart().curveCount, 2);
    EXPECT_TRUE(enabled("mnuMarkKonnode")); // the type of the coexistence curve does not stay behind
    EXPECT_TRUE(enabled("mnuMarkSKurve"));
    for (const int isobar : {3, 4}) { // they have no tie line of their own
        window.Open(FindDiagram(isobar));
        EXPECT_FALSE(enabled("mnuMarkKonnode")) << isobar;
    }
    window.Open(FindDiagram(8));
    EXPECT_TRUE(enabled("mnuMarkHalbierende"));
    EXPECT_TRUE(enabled("mnuMarkT"));
    EXPECT_FALSE(enabled("cmdInput"));
    view.findChild<QAction*>("cmdDraw")->trigger();
    view.findChild<QAction*>("mnuMarkHalbierende")->trigger();
    view.findChild<QAction*>("mnuMarkT")->trigger();
    EXPECT_EQ(window.Chart().curveCount, 2);
    EXPECT_TRUE(view.findChild<QAction*>("mnuMarkT")->isChecked());
    window.Open(FindDiagram(307));
    EXPECT_FALSE(enabled("mnuMarkKoex"));
    EXPECT_FALSE(enabled("mnuMarkSKurve"));
}

} // namespace
} // namespace orva
