// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/text_file.h"
#include "ui/shell/tip_window.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct TipWindow : Workbench {
    void LayTips(std::string_view bytes) const {
        ASSERT_TRUE(WriteFile(machine.InstallationFolder() / "ORVATIPS.TXT", bytes));
    }
    frmTip* StartWithTips() {
        window->StartUp();
        return Wait<frmTip>();
    }
    frmTip* AskForTips() {
        Choose("mnuHilfe", "mnuHilfe_Tip");
        return Wait<frmTip>();
    }
    static QString Tip(const frmTip* form) { return In<QLabel>(form, "lblTip")->text(); }
};

TEST_F(TipWindow, OpensAtTheStartBesideTheWorkAndSaysWhatItIs) {
    const frmTip* form = StartWithTips();
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(form->windowTitle(), "   30 Tipps zur Arbeit mit ORVA");
    const auto* box = In<QCheckBox>(form, "chkLoadTipsAtStartup");
    EXPECT_EQ(box->text(), "Dieses Fenster bei jedem Start anzeigen    (Das Fenster bleibt  immer über den "
                           "Hauprmenüpunkt \"Hilfe\" erreichbar)");
    EXPECT_TRUE(box->isChecked());
    EXPECT_EQ(In<QPushButton>(form, "cmdTipsZeigen")->text(), "Tipps zeigen");
    EXPECT_EQ(In<QPushButton>(form, "cmdNextTip")->text(), "Nächster Tipp");
    EXPECT_EQ(In<QPushButton>(form, "cmdOK")->text(), "Schließen");
    QStringList labels;
    for (const QLabel* label : form->findChildren<QLabel*>())
        labels << label->text();
    EXPECT_TRUE(labels.contains("Tipp des Tages:"));
    EXPECT_EQ(Tip(form), "");
    EXPECT_TRUE(window->IsFormOpen("frmTip"));
}

TEST_F(TipWindow, ReadsTheFileOnlyWhenAskedTo) {
    const frmTip* form = StartWithTips();
    ASSERT_NE(form, nullptr);
    EXPECT_FALSE(In<QPushButton>(form, "cmdNextTip")->isEnabled());
    ClickButton(form, "cmdTipsZeigen");
    EXPECT_EQ(Tip(form), "Die Datei ORVATIPS.TXT im ORVA-Verzeichnis nicht gefunden \n\n");
    EXPECT_FALSE(In<QPushButton>(form, "cmdNextTip")->isEnabled());
    LayTips("eins\nzwei");
    ClickButton(form, "cmdTipsZeigen");
    const QString first = Tip(form);
    EXPECT_TRUE(first == "eins\n" || first == "zwei\n") << FromQt(first);
    ClickButton(form, "cmdNextTip");
    EXPECT_EQ(Tip(form), first == "eins\n" ? "zwei\n" : "eins\n");
    ClickButton(form, "cmdNextTip");
    EXPECT_EQ(Tip(form), first);
}

TEST_F(TipWindow, StaysAwayWhenTheUserSaidSo) {
    frmTip* form = StartWithTips();
    ASSERT_NE(form, nullptr);
    auto* box = In<QCheckBox>(form, "chkLoadTipsAtStartup");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(settings.Number("Options", "Show Tips at Startup"), 0);
    ClickButton(form, "cmdOK");
    EXPECT_EQ(Find<frmTip>(), nullptr);
    window.reset();
    Start();
    window->StartUp();
    EXPECT_EQ(Find<frmTip>(), nullptr);

    form = AskForTips();
    ASSERT_NE(form, nullptr);
    box = In<QCheckBox>(form, "chkLoadTipsAtStartup");
    EXPECT_FALSE(box->isChecked());
    QTest::keyClick(box, Qt::Key_Space);
    EXPECT_EQ(settings.Number("Options", "Show Tips at Startup"), 1);
}

TEST_F(TipWindow, IsOneWindowHoweverOftenItIsAskedFor) {
    const frmTip* form = StartWithTips();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(AskForTips(), form);
    EXPECT_EQ(window->findChildren<frmTip*>().size(), 1);
}

TEST_F(TipWindow, ClosesWithTheDataMenuAndByEsc) {
    ASSERT_NE(StartWithTips(), nullptr);
    emit window->findChild<QMenu*>("mnuData")->aboutToShow();
    EXPECT_EQ(Find<frmTip>(), nullptr);
    frmTip* form = AskForTips();
    ASSERT_NE(form, nullptr);
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_EQ(Find<frmTip>(), nullptr);
    form = AskForTips();
    ASSERT_NE(form, nullptr);
    emit window->findChild<QMenu*>("mnuCalcMain")->aboutToShow();
    EXPECT_EQ(Find<frmTip>(), form);
}

TEST_F(TipWindow, EnterShowsATipAtOnce) {
    LayTips("eins");
    frmTip* form = StartWithTips();
    ASSERT_NE(form, nullptr);
    Press(Qt::Key_Return);
    EXPECT_EQ(Tip(form), "eins\n");
}

} // namespace
} // namespace orva::test
