// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "ui/ui_fixture.h"

#include "ui/shell/icons.h"

namespace orva::test {
namespace {

struct MainWindow : Workbench {
    QString Panel(int number) const {
        return In<QLabel>(window.get(), qPrintable(ControlName("statusPanel", number)))->text();
    }
    StepDisc::State StepState(int number) const {
        return window->findChild<QFrame*>(ControlName("step", number))->findChild<StepDisc*>()->Shown();
    }
    QPushButton* StepButton(const char* command) const {
        return In<QPushButton>(window.get(), qPrintable(QStringLiteral("cmd_") + command));
    }
};

TEST_F(MainWindow, NamesItselfAndSaysWhatItDoes) {
    EXPECT_EQ(window->windowTitle(), "ORVA-6   Zustands- und Prozessberechnungen für reine Stoffe");
    EXPECT_TRUE(window->IsFormOpen("frmPhantom"));
    EXPECT_EQ(window->findChild<StartPage*>()->windowTitle(), "Hauptfenster");
}

TEST_F(MainWindow, ToolbarHasItsTipsAndOffersWhatIsBuilt) {
    const std::pair<int, const char*> tips[] = {{2, " Neues Projekt "},
                                                {4, " Letzte Sitzung laden "},
                                                {6, " Existierendes Projekt laden "},
                                                {7, " Aktuelles Projekt speichern "},
                                                {11, " Normierung thermodynamischer Funktionen "},
                                                {15, " Behälterberechnung (Global-Methode)"}};
    for (const auto& [index, tip] : tips) {
        const auto* button = window->findChild<QAction*>(ControlName("toolbar", index));
        ASSERT_NE(button, nullptr) << index;
        EXPECT_EQ(button->toolTip(), tip);
        EXPECT_FALSE(button->icon().isNull()) << index;
        EXPECT_EQ(button->isEnabled(), index < 7) << index;
    }
    dialogs.files = {(machine.InstallationFolder() / "ORVA.Q05").string()};
    window->findChild<QAction*>(ControlName("toolbar", 2))->trigger();
    EXPECT_NE(Wait<frmStoffWahl>(), nullptr);
}

TEST_F(MainWindow, CancelledFileChoiceChangesNothing) {
    Command("mnuData_OpenBank")->trigger();
    EXPECT_EQ(dialogs.fileRequests.size(), 1U);
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(Find<frmStoffWahl>(), nullptr);
    EXPECT_EQ(StepState(1), StepDisc::State::Current);
}

TEST_F(MainWindow, StatusBarFollowsSubstanceAndModels) {
    EXPECT_EQ(Panel(1), "");
    EXPECT_EQ(Panel(4), ToQt(ContactText()));
    AcceptModels("n-Butan");
    EXPECT_EQ(Panel(1), "n-Butan");
    EXPECT_EQ(Panel(2), "CEOS Peng / Robinson (Priorität!)");
    EXPECT_EQ(Panel(3), "Dampfdruck-Gleichung: Wagner");
    window->resize(window->minimumSize());
    QTest::qWait(1);
    for (int panel = 1; panel <= 3; ++panel) {
        const auto* label = window->findChild<QLabel*>(ControlName("statusPanel", panel));
        EXPECT_GE(label->width(), label->sizeHint().width()) << panel;
    }
}

TEST_F(MainWindow, StartPageShowsTheStepAtHandAndItsButtonsAreTheCommands) {
    EXPECT_EQ(StepState(1), StepDisc::State::Current);
    EXPECT_EQ(StepState(2), StepDisc::State::Ahead);
    EXPECT_TRUE(StepButton("mnuData_OpenBank")->isEnabled());
    EXPECT_TRUE(StepButton("mnuData_OpenBank")->hasFocus());
    for (const char* command : {"mnuStoff", "mnuModel", "mnuCalcMain", "mnu2D", "mnu3D"})
        EXPECT_FALSE(StepButton(command)->isEnabled()) << command;

    dialogs.files = {(machine.InstallationFolder() / "ORVA.Q05").string()};
    Click(StepButton("mnuData_OpenBank"));
    auto* substances = Wait<frmStoffWahl>();
    ASSERT_NE(substances, nullptr);
    substances->close();
    EXPECT_EQ(StepState(1), StepDisc::State::Done);
    EXPECT_EQ(StepState(2), StepDisc::State::Current);

    Click(StepButton("mnuStoff"));
    substances = Wait<frmStoffWahl>();
    ASSERT_NE(substances, nullptr);
    ClickButton(substances, "StoffOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    models->close();
    EXPECT_EQ(StepState(3), StepDisc::State::Current);
    Click(StepButton("mnuModel"));
    models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    ClickButton(models, "OKModell");
    EXPECT_EQ(StepState(4), StepDisc::State::Current);
    EXPECT_TRUE(StepButton("mnuCalcMain")->isEnabled());
    EXPECT_EQ(StepButton("mnuCalcMain")->menu(), window->findChild<QMenu*>("mnuCalcMain"));
}

TEST_F(MainWindow, HintForFirstUsersOpensAndClosesByItsButtonAndClosesByAClick) {
    auto* hint = window->findChild<QFrame*>("Picture1");
    auto* button = In<QToolButton>(window.get(), "cmdErstnutzer");
    EXPECT_EQ(button->text(), "Tip für Erstnutzer          (ein/aus)");
    EXPECT_FALSE(hint->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_TRUE(hint->isVisible());
    QStringList texts;
    for (const QLabel* label : hint->findChildren<QLabel*>())
        texts << label->text();
    EXPECT_EQ(
        texts,
        (QStringList{"Falls Sie noch nicht mit ORVA vertraut sind: ",
                     "(1)  Beginnen Sie mit einem neuen Projekt (Klick auf linkes Icon)",
                     "(2)  Wählen Sie eine Datenbank, dann einen Stoff, dann die gewünschten Rechenmodelle "
                     "(am besten: Voreinstellung bestätigen )",
                     "(3) Danach steht im Hauptmenü die Ausführung von  2D/3D-Diagramm- oder "
                     "Einzelpunkt-Berechnungen bereit "}));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(hint->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::mouseClick(hint->findChildren<QLabel*>().at(2), Qt::LeftButton);
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(MainWindow, HourglassNests) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    window->BeginBusy();
    window->BeginBusy();
    window->EndBusy();
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    window->EndBusy();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    window->EndBusy();
    window->BeginBusy();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    window->EndBusy();
}

TEST_F(MainWindow, ExitClosesAllWindows) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    Command("mnuData_Exit")->trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
}

TEST_F(MainWindow, AltF4Closes) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindow, RemembersItsSize) {
    window->resize(790, 541);
    window->close();
    window.reset();
    Start();
    EXPECT_EQ(window->size(), QSize(790, 541));
}

TEST_F(MainWindow, PicturesAreDrawnAtTheResolutionOfTheScreen) {
    for (const QSize size : {QSize(16, 16), QSize(24, 24), QSize(64, 64)}) {
        const QPixmap picture = DrawnIcon(Picture::SaveProject).pixmap(size, 2.0);
        EXPECT_EQ(picture.size(), size * 2);
        const QImage image = picture.toImage();
        bool drawn = false;
        for (int x = 0; x < image.width() && !drawn; ++x)
            drawn = image.pixelColor(x, image.height() / 2).alpha() > 0;
        EXPECT_TRUE(drawn);
    }
}

} // namespace
} // namespace orva::test
