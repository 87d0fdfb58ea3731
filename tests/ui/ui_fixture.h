// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>

#include <QApplication>
#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "ui/calc/point_input_window.h"
#include "ui/calc/result_window_view.h"
#include "ui/shell/main_window.h"
#include "ui/substance/model_window.h"
#include "ui/substance/substance_window.h"
#include "ui/text.h"

namespace orva::test {

// The program with the master database in its own folder, and a user who types and clicks.
struct Workbench : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    SessionSettings settings;
    std::unique_ptr<Session> session;
    std::unique_ptr<mdiORVA> window;

    void SetUp() override {
        QSettings().clear();
        for (const char* file : {"ORVA.Q05", "SYNOM.TXT"})
            std::filesystem::copy_file(std::filesystem::path(ORVA_DATABASE_DIR) / file,
                                       machine.InstallationFolder() / file);
        Start();
    }

    void TearDown() override {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void Start() {
        session = std::make_unique<Session>(machine, dialogs, nullptr, &settings);
        window = std::make_unique<mdiORVA>(*session);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    // An open window of this class, null if there is none.
    template<typename Form> Form* Find() const {
        for (QWidget* candidate : QApplication::topLevelWidgets())
            if (auto* form = qobject_cast<Form*>(candidate); form != nullptr && form->isVisible())
                return form;
        return nullptr;
    }

    // A window that belongs to the active one counts as active, but has the keyboard only as the active one
    // itself.
    static void WaitForKeyboard(QWidget* form) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == form; }, 2000));
    }

    template<typename Form> Form* Wait() const {
        Form* form = nullptr;
        (void)QTest::qWaitFor([&] { return (form = Find<Form>()) != nullptr; }, 2000);
        if (form != nullptr)
            WaitForKeyboard(form);
        return form;
    }

    QAction* Command(const char* key) const { return window->findChild<QAction*>(QLatin1String(key)); }

    template<typename Control> static Control* In(const QWidget* form, const char* name) {
        auto* control = form->findChild<Control*>(QLatin1String(name));
        if (control == nullptr)
            ADD_FAILURE() << "no control " << name;
        return control;
    }

    static void Click(QWidget* control) {
        ASSERT_NE(control, nullptr);
        ASSERT_TRUE(control->isVisible());
        // A box or an option takes clicks on its mark and text only, however wide it is.
        const bool hasMark =
            qobject_cast<QCheckBox*>(control) != nullptr || qobject_cast<QRadioButton*>(control) != nullptr;
        const QPoint at = hasMark ? QPoint(8, control->height() / 2) : QPoint();
        QTest::mouseClick(control, Qt::LeftButton, {}, at);
    }

    static void ClickButton(const QWidget* form, const char* name) { Click(In<QPushButton>(form, name)); }

    // Opens a menu as the user would, takes the entry, and closes it.
    void Choose(const char* menuKey, const char* commandKey) const {
        auto* menu = window->findChild<QMenu*>(QLatin1String(menuKey));
        ASSERT_NE(menu, nullptr);
        ASSERT_TRUE(menu->menuAction()->isEnabled()) << menuKey;
        menu->popup(window->mapToGlobal(QPoint(20, 40)));
        QAction* command = Command(commandKey);
        ASSERT_NE(command, nullptr);
        ASSERT_TRUE(command->isEnabled()) << commandKey;
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(command).center());
        menu->hide();
    }

    // Types into the widget that has the keyboard.
    static void Type(const char* keys) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(keys));
    }
    static void Press(Qt::Key key) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key);
    }

    // Every letter with Alt belongs to one control of the window.
    static void ExpectOwnLetters(const QWidget* form, int count) {
        QStringList letters;
        const auto collect = [&letters](const QString& text) {
            const QKeySequence letter = QKeySequence::mnemonic(text);
            if (!letter.isEmpty())
                letters << letter.toString();
        };
        for (const auto* button : form->findChildren<QAbstractButton*>())
            collect(button->text());
        for (const auto* label : form->findChildren<QLabel*>())
            collect(label->text());
        for (const auto* frame : form->findChildren<QGroupBox*>())
            collect(frame->title());
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u' ').toStdString();
        EXPECT_EQ(letters.size(), count);
    }

    // The controls that Tab reaches, from the one that has the keyboard on, once round.
    static QStringList WalkByTab() {
        constexpr int enough = 40;
        QStringList walked;
        while (walked.size() < enough && !walked.contains(QApplication::focusWidget()->objectName())) {
            walked << QApplication::focusWidget()->objectName();
            Press(Qt::Key_Tab);
        }
        return walked;
    }

    // The way to the point at which calculations begin.
    frmStoffWahl* OpenDatabase() {
        dialogs.files = {(machine.InstallationFolder() / "ORVA.Q05").string()};
        Command("mnuData_OpenBank")->trigger();
        return Wait<frmStoffWahl>();
    }

    frmQModell* ChooseSubstance(const char* name) {
        frmStoffWahl* form = OpenDatabase();
        if (form == nullptr)
            return nullptr;
        auto* combo = In<QComboBox>(form, "NameCombo");
        combo->setEditText(QString::fromUtf8(name));
        ClickButton(form, "StoffOK");
        return Wait<frmQModell>();
    }

    void AcceptModels(const char* substance) {
        frmQModell* form = ChooseSubstance(substance);
        ASSERT_NE(form, nullptr);
        ClickButton(form, "OKModell");
        ASSERT_EQ(Find<frmQModell>(), nullptr);
    }

    frmParinput* StartTP() {
        Choose("mnuCalcMain", "mnuCalc(2)");
        return Wait<frmParinput>();
    }
};

} // namespace orva::test
