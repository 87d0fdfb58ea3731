// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/text_file.h"
#include "ui/qt_dialogs.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

// Lets `act` work on the box that the call under test opens.
template<typename Box, typename Act> void WhenOpen(Act act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(box);
    });
}

TEST(Boxes, MessageShowsTitleTextAndOneButton) {
    QtDialogs dialogs;
    QString title, text;
    QStringList buttons;
    WhenOpen<QMessageBox>([&](QMessageBox* box) {
        title = box->windowTitle();
        text = box->text();
        for (const QAbstractButton* button : box->buttons())
            buttons << button->text();
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        box->buttons().constFirst()->click();
    });
    dialogs.Show({"WARNUNG", "v(b) < 3\r\n<b>nicht</b> fett", MessageIcon::Exclamation});
    EXPECT_EQ(title, "WARNUNG");
    EXPECT_EQ(text, "v(b) < 3\n<b>nicht</b> fett");
    EXPECT_EQ(buttons, QStringList{"OK"});
}

TEST(Boxes, QuestionAnswersYesNoAndEscape) {
    QtDialogs dialogs;
    const auto press = [&](const char* label, bool yesIsDefault) {
        WhenOpen<QMessageBox>([&](QMessageBox* box) {
            EXPECT_EQ(box->defaultButton()->text(), yesIsDefault ? "&Ja" : "&Nein");
            for (QAbstractButton* button : box->buttons())
                if (button->text() == label)
                    button->click();
        });
        return dialogs.Ask({"STAPELDATEN", "löschen?", MessageIcon::Question, yesIsDefault});
    };
    EXPECT_TRUE(press("&Ja", true));
    EXPECT_FALSE(press("&Nein", false));
    WhenOpen<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
    EXPECT_FALSE(dialogs.Ask({"STAPELDATEN", "löschen?"}));
}

TEST(Boxes, LineOfTextIsTakenOrCancelled) {
    QtDialogs dialogs;
    WhenOpen<QInputDialog>([](QInputDialog* box) {
        EXPECT_EQ(box->labelText(), "Kommentar:");
        EXPECT_EQ(box->textValue(), "alt");
        EXPECT_EQ(box->cancelButtonText(), "Abbrechen");
        box->setTextValue("größer");
        box->accept();
    });
    EXPECT_EQ(dialogs.InputText({"Projekt", "Kommentar:", "alt"}), "größer");
    WhenOpen<QInputDialog>([](QInputDialog* box) { box->reject(); });
    EXPECT_EQ(dialogs.InputText({"Projekt", "Kommentar:", ""}), std::nullopt);
}

TEST(Boxes, FileIsChosenOrCancelled) {
    QtDialogs dialogs;
    const TestMachine machine;
    const std::filesystem::path file = machine.InstallationFolder() / "Stoffe.Q05";
    ASSERT_TRUE(WriteFile(file, "x"));
    const FileRequest request{"Datenbank auswählen und laden", "Datenbank (*.Q05)|*.Q05",
                              machine.InstallationFolder().string(), "Stoffe.Q05", "*.Q05"};
    WhenOpen<QFileDialog>([](QFileDialog* box) {
        EXPECT_EQ(box->windowTitle(), "Datenbank auswählen und laden");
        EXPECT_EQ(box->nameFilters(), QStringList{"Datenbank (*.Q05 *.q05)"});
        EXPECT_EQ(box->labelText(QFileDialog::Reject), "&Abbrechen");
        EXPECT_EQ(box->fileMode(), QFileDialog::ExistingFile);
        QMetaObject::invokeMethod(box, "accept");
    });
    EXPECT_EQ(dialogs.ChooseFile(request), file.string());
    WhenOpen<QFileDialog>([](QFileDialog* box) { box->reject(); });
    EXPECT_EQ(dialogs.ChooseFile(request), std::nullopt);
}

TEST(Boxes, HourglassIsOffWhileABoxIsOpen) {
    QtDialogs dialogs;
    BusyCursor busy;
    busy.BeginBusy();
    WhenOpen<QMessageBox>([](QMessageBox* box) {
        EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        box->accept();
    });
    dialogs.Show({"Hinweis", "Text"});
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    busy.EndBusy();
}

TEST(Filters, TakeTheFormOfTheDesktop) {
    EXPECT_EQ(FileDialogFilter("Datenbank (*.Q05)|*.Q05"), "Datenbank (*.Q05 *.q05)");
    EXPECT_EQ(FileDialogFilter("Bild (*.svg)|*.svg|Tabelle|*.CSV;*.txt"),
              "Bild (*.svg);;Tabelle (*.CSV *.csv *.txt)");
    EXPECT_EQ(FileDialogFilter(""), "");
    EXPECT_EQ(FileDialogSuffix("*.Q05"), "Q05");
    EXPECT_EQ(FileDialogSuffix(".LST"), "LST");
}

} // namespace
} // namespace orva::test
