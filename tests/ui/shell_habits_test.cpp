// SPDX-License-Identifier: GPL-3.0-or-later
// Start and end of the program, the places of its windows, and the road by keys alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "platform/program_number.h"
#include "platform/qt_settings.h"
#include "text/text_file.h"
#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/shell/tip_window.h"
#include "ui/ui_fixture.h"
#include "ui/window_places.h"

void PrintTo(const QRect& rect, std::ostream* stream) {
    *stream << rect.width() << 'x' << rect.height() << " at (" << rect.x() << ", " << rect.y() << ')';
}

namespace orva::test {
namespace {

struct ShellHabits : Workbench {
    void Record(double T) const {
        std::array<double, resultCount> results{};
        results[slotT] = T;
        session->protocol.Record(results, session->Calculation());
    }
    std::filesystem::path Path(const char* name) const { return machine.WritableFolder() / name; }
    void Restart() {
        window.reset();
        Start();
    }
};

TEST_F(ShellHabits, ClosingTheWindowWritesTheProtocolAndClosesTheFiles) {
    AcceptModels("n-Butan");
    session->state.projectComment = "Versuch";
    Record(300);
    window->close();
    EXPECT_TRUE(FileExists(Path("26211101.CSV")));
    EXPECT_FALSE(session->database.IsOpen());
    EXPECT_EQ(session->state.projectComment, "");
}

TEST_F(ShellHabits, ExitByTheMenuDoesTheSame) {
    AcceptModels("n-Butan");
    Record(300);
    Choose("mnuData", "mnuData_Exit");
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(FileExists(Path("26211101.CSV")));
    EXPECT_FALSE(session->database.IsOpen());
}

TEST_F(ShellHabits, ExitWithoutADatabaseLeavesNoFile) {
    window->close();
    std::set<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(machine.WritableFolder()))
        files.insert(entry.path().filename().string());
    EXPECT_EQ(files, (std::set<std::string>{"ORVA.Q05", "SYNOM.TXT"}));
}

TEST_F(ShellHabits, StartOffersTheProtocolOfASessionThatBrokeOffThenTheTips) {
    Record(300);
    Restart();
    EXPECT_TRUE(dialogs.asked.empty());
    dialogs.answers = {true};
    window->StartUp();
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "Protokoll wiederherstellen");
    EXPECT_EQ(session->protocol.protocolRows(), 1);
    EXPECT_NE(Find<frmTip>(), nullptr);
    window->close();
    EXPECT_TRUE(FileExists(Path("26211101.CSV")));
    Restart();
    window->StartUp();
    EXPECT_EQ(dialogs.asked.size(), 1U);
}

TEST_F(ShellHabits, StoreOfTheUserKeepsNumbers) {
    QtSettings store;
    EXPECT_EQ(store.Number("Options", "Show Tips at Startup"), std::nullopt);
    store.SetNumber("Options", "Show Tips at Startup", 0);
    EXPECT_EQ(QtSettings().Number("Options", "Show Tips at Startup"), 0);
    EXPECT_EQ(QSettings().value("Options/Show Tips at Startup").toInt(), 0);
    QSettings().setValue("Options/Show Tips at Startup", "kaputt");
    EXPECT_EQ(store.Number("Options", "Show Tips at Startup"), std::nullopt);
}

TEST_F(ShellHabits, ProgramsSideBySideHaveNumbersOfTheirOwn) {
    const auto none = [](int) { return false; };
    const std::filesystem::path folder = machine.WritableFolder();
    auto first = std::make_unique<ProgramNumber>(folder, none);
    const ProgramNumber second(folder, none);
    EXPECT_EQ(first->Number(), 1);
    EXPECT_EQ(second.Number(), 2);
    first.reset();
    EXPECT_EQ(ProgramNumber(folder, none).Number(), 1);
    EXPECT_EQ(ProgramNumber(folder / "missing", none).Number(), 1);
    // What a program leaves that was killed: its number, and no process behind it.
    ASSERT_TRUE(
        WriteFile(Path("ORVA1.LCK"), "2147483646\norva\n" + FromQt(QSysInfo::machineHostName()) + "\n"));
    EXPECT_EQ(ProgramNumber(folder, none).Number(), 1);
}

TEST_F(ShellHabits, ANumberThatLeftWorkBehindIsTakenFirstUnlessItsProgramRuns) {
    const auto second = [](int number) { return number == 2; };
    const ProgramNumber recovering(machine.WritableFolder(), second);
    EXPECT_EQ(recovering.Number(), 2);
    EXPECT_EQ(ProgramNumber(machine.WritableFolder(), second).Number(), 1);
}

TEST_F(ShellHabits, EveryWindowOpensWhereItWasLeft) {
    frmStoffWahl* form = OpenDatabase();
    ASSERT_NE(form, nullptr);
    const QSize size = form->size() + QSize(33, 21);
    form->resize(size);
    form->move(57, 43);
    ClickButton(form, "Esc");
    Command("mnuStoff")->trigger();
    form = Wait<frmStoffWahl>();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->size(), size);
    EXPECT_EQ(form->pos(), QPoint(57, 43));
    form->close();
    Restart();
    form = OpenDatabase();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->size(), size);
    EXPECT_EQ(form->pos(), QPoint(57, 43));
}

TEST_F(ShellHabits, AWindowThatWasOnlyMovedKeepsItsOwnSize) {
    window->StartUp();
    frmTip* form = Wait<frmTip>();
    ASSERT_NE(form, nullptr);
    const QSize own = form->size();
    form->move(12, 34);
    form->close();
    EXPECT_FALSE(QSettings().contains("windows/frmTip/sized"));
    EXPECT_TRUE(QSettings().contains("windows/frmTip/geometry"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Choose("mnuHilfe", "mnuHilfe_Tip");
    form = Wait<frmTip>();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->pos(), QPoint(12, 34));
    EXPECT_EQ(form->size(), own);
}

TEST_F(ShellHabits, AWindowThatWasLeftAloneIsNotWrittenDown) {
    frmStoffWahl* form = OpenDatabase();
    ASSERT_NE(form, nullptr);
    QTest::qWait(400); // the desktop has placed it by then
    form->close();
    EXPECT_FALSE(QSettings().contains("windows/frmStoffWahl/geometry"));
}

TEST_F(ShellHabits, TheResultOpensAtTheCornerOfItsOwnerAndKeepsItsPlace) {
    AcceptModels("n-Butan");
    window->move(3, 5);
    StartTP();
    auto* form = Find<frmCalcOut>();
    ASSERT_NE(form, nullptr);
    const QRect area = form->screen()->availableGeometry();
    const QPoint corner = window->frameGeometry().topLeft() + QPoint(48, 72);
    EXPECT_TRUE(form->testAttribute(Qt::WA_Moved));
    constexpr int frame = 8;
    EXPECT_NEAR(form->x(), std::clamp(corner.x(), area.left(), area.right() - form->width()), frame);
    EXPECT_NEAR(form->y(), std::clamp(corner.y(), area.top(), area.bottom() - form->height()), frame);
}

TEST_F(ShellHabits, NoWindowOpensOffTheScreenOrLargerThanIt) {
    const QRect area = window->screen()->availableGeometry();
    for (const QRect& left : {QRect(5000, 5000, 700, 500), QRect(-4000, -3000, 700, 500),
                              QRect(100, 100, 9000, 8000), QRect(area.right() - 20, 0, 700, 500)}) {
        {
            QWidget away;
            away.setGeometry(left);
            QSettings().setValue("windows/mdiORVA/geometry", away.saveGeometry());
            QSettings().setValue("windows/mdiORVA/sized", true);
        }
        window.reset();
        Start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return area.contains(window->frameGeometry()); }, 2000))
            << testing::PrintToString(area) << testing::PrintToString(window->frameGeometry());
        QSettings().clear();
    }
}

TEST_F(ShellHabits, ABrokenPlaceIsIgnored) {
    QSettings().setValue("windows/mdiORVA/geometry", QByteArray("\x01\xD9\xD0\xCBkaputt"));
    QSettings().setValue("windows/mdiORVA/sized", "?");
    Restart();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window->screen()->availableGeometry().contains(window->frameGeometry()); }, 2000));
}

TEST_F(ShellHabits, TheMainWindowFitsASmallScreenWithAllItsButtons) {
    window->resize(1, 1);
    EXPECT_LE(window->width(), 800);
    EXPECT_LE(window->height(), 480);
    const auto* page = window->findChild<QScrollArea*>();
    ASSERT_NE(page, nullptr);
    EXPECT_FALSE(page->horizontalScrollBar()->isVisible());
    for (const char* command : {"mnuData_OpenBank", "mnuCalcMain", "mnu3D"}) {
        const auto* button = In<QPushButton>(window.get(), qPrintable(QStringLiteral("cmd_") + command));
        const int right = button->mapTo(page->viewport(), button->rect().bottomRight()).x();
        EXPECT_LT(right, page->viewport()->width()) << command;
    }
}

// However small a user draws a window, it stays one to work with.
TEST_F(ShellHabits, EveryWindowHasASensibleSmallestSize) {
    const auto squeeze = [](QWidget* form) {
        ASSERT_NE(form, nullptr);
        form->resize(1, 1);
        EXPECT_GE(form->width(), 240) << FromQt(form->objectName());
        EXPECT_GE(form->height(), 60) << FromQt(form->objectName());
        EXPECT_LE(form->width(), 800) << FromQt(form->objectName());
        EXPECT_LE(form->height(), 700) << FromQt(form->objectName());
    };
    frmStoffWahl* substances = OpenDatabase();
    squeeze(substances);
    substances->close();
    frmQModell* models = ChooseSubstance("n-Butan");
    squeeze(models);
    ClickButton(models, "OKModell");
    squeeze(StartTP());
    squeeze(Find<frmCalcOut>());
    Find<frmCalcOut>()->close();
    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    squeeze(Wait<frmTpVSInputBox>());
    squeeze(Find<frmGraph2D>());
    Choose("mnuHilfe", "mnuHilfe_Tip");
    squeeze(Wait<frmTip>());
}

TEST_F(ShellHabits, BoxesHaveNoPlaceOfTheirOwn) {
    QMessageBox box(window.get());
    box.setObjectName("messageBox");
    box.show();
    box.move(50, 50);
    box.hide();
    EXPECT_FALSE(QSettings().allKeys().contains("windows/messageBox/geometry"));
}

// Alt and a letter, arrows, Enter and Esc: the whole way without a mouse.
TEST_F(ShellHabits, TheWholeRoadGoesByKeysAlone) {
    dialogs.files = {(machine.InstallationFolder() / "ORVA.Q05").string()};
    auto* data = window->findChild<QMenu*>("mnuData");
    QTest::keyClick(window.get(), Qt::Key_D, Qt::AltModifier);
    ASSERT_TRUE(data->isVisible());
    QTest::keyClick(data, Qt::Key_Escape);
    EXPECT_FALSE(data->isVisible());
    QTest::keyClick(window.get(), Qt::Key_D, Qt::AltModifier);
    if (data->activeAction() == nullptr)
        QTest::keyClick(data, Qt::Key_Down);
    EXPECT_EQ(data->activeAction(), Command("mnuData_OpenBank"));
    QTest::keyClick(data, Qt::Key_Return);
    auto* substances = Wait<frmStoffWahl>();
    ASSERT_NE(substances, nullptr);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
    Type("Butan");
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    Press(Qt::Key_Return);
    ASSERT_EQ(Find<frmQModell>(), nullptr);
    window->activateWindow(); // what a desktop does by itself
    WaitForKeyboard(window.get());

    auto* calculations = window->findChild<QMenu*>("mnuCalcMain");
    QTest::keyClick(window.get(), Qt::Key_B, Qt::AltModifier);
    ASSERT_TRUE(calculations->isVisible());
    calculations->setActiveAction(Command("mnuCalc(2)"));
    QTest::keyClick(calculations, Qt::Key_Return);
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    Type("300");
    Press(Qt::Key_Return);
    Type("100");
    Press(Qt::Key_Return);
    auto* output = Find<frmCalcOut>();
    ASSERT_NE(output, nullptr);
    EXPECT_EQ(In<QLabel>(output, "par1")->text(), "T = 300.000 K");
    QTest::keyClick(input, Qt::Key_Escape);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
    QTest::keyClick(output, Qt::Key_Escape);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
}

TEST_F(ShellHabits, EveryMenuOfTheBarHasALetterOfItsOwn) {
    std::set<QChar> letters;
    for (const QAction* action : window->menuBar()->actions()) {
        if (action->objectName() == "mnuWindow") // its text has none
            continue;
        const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
        ASSERT_FALSE(mnemonic.isEmpty()) << FromQt(action->text());
        EXPECT_TRUE(letters.insert(QChar(mnemonic[0].key())).second) << FromQt(action->text());
    }
}

} // namespace
} // namespace orva::test
