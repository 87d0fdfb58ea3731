// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "text/columns.h"
#include "ui/theme.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct SubstanceWindow : Workbench {
    frmStoffWahl* form = nullptr;
    QComboBox* NameCombo = nullptr;
    QLineEdit* Text1 = nullptr;
    SubstanceListView* StoffListe = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        form = OpenDatabase();
        ASSERT_NE(form, nullptr);
        NameCombo = In<QComboBox>(form, "NameCombo");
        Text1 = In<QLineEdit>(form, "Text1");
        StoffListe = In<SubstanceListView>(form, "StoffListe");
    }

    QString Name(int row) const { return ToQt(Trim(session->List().At(row + 1).name)); }
    int RowOfCas(const char* cas) const { return FindByCas(session->List(), cas) - 1; }
};

TEST_F(SubstanceWindow, CountsTheSubstancesInItsTitleAndListsThemAll) {
    EXPECT_EQ(form->windowTitle(),
              QStringLiteral("Wählen Sie einen Stoff (aus %1)").arg(session->state.substanceCount));
    EXPECT_EQ(StoffListe->model()->rowCount(), session->state.substanceCount);
    const QString first = StoffListe->model()->index(0, 0).data().toString();
    EXPECT_EQ(first.size(), 5 + 12 + 1 + 40);
    EXPECT_EQ(first.left(5), "   1 ");
    EXPECT_EQ(StoffListe->CurrentRow(), 0);
    EXPECT_EQ(NameCombo->currentText(), Name(0));
    EXPECT_TRUE(IsFixedPitch(StoffListe->font()));
}

TEST_F(SubstanceWindow, TypedNumberSelectsItsRow) {
    const int row = RowOfCas("106-97-8");
    ASSERT_GE(row, 0);
    Text1->setFocus();
    Text1->selectAll();
    QTest::keyClicks(Text1, QString::number(session->List().At(row + 1).number));
    EXPECT_EQ(StoffListe->CurrentRow(), row);
    EXPECT_EQ(NameCombo->currentText(), Name(row));
    EXPECT_TRUE(In<QLabel>(form, "Bez4")->text().startsWith(" CASRN: 106-97-8"));
    QTest::keyClick(Text1, Qt::Key_Return);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(session->state.substanceIndex, row + 1);
    EXPECT_EQ(session->model.substance.name, "n-Butan");
}

TEST_F(SubstanceWindow, NumberBeyondTheRangeIsIgnored) {
    Text1->selectAll();
    QTest::keyClicks(Text1, "2000");
    EXPECT_EQ(StoffListe->CurrentRow(), FindByNumber(session->List(), 200) - 1);
    EXPECT_EQ(Text1->text(), "2000");
}

TEST_F(SubstanceWindow, TypingInTheListJumpsToAName) {
    StoffListe->setFocus();
    QTest::keyClicks(StoffListe, "prop");
    const int row = StoffListe->CurrentRow();
    EXPECT_TRUE(Name(row).startsWith("Prop", Qt::CaseInsensitive)) << FromQt(Name(row));
    EXPECT_EQ(NameCombo->currentText(), Name(row));
    for (int before = 0; before < row; ++before)
        EXPECT_FALSE(Name(before).startsWith("Prop", Qt::CaseInsensitive)) << FromQt(Name(before));
}

TEST_F(SubstanceWindow, EnterInTheListAccepts) {
    StoffListe->setFocus();
    QTest::keyClick(StoffListe, Qt::Key_Down);
    QTest::keyClick(StoffListe, Qt::Key_Return);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(session->state.substanceIndex, 2);
}

TEST_F(SubstanceWindow, DoubleClickInTheListAccepts) {
    const QPoint third = StoffListe->visualRect(StoffListe->model()->index(2, 0)).center();
    QTest::mouseClick(StoffListe->viewport(), Qt::LeftButton, {}, third);
    QTest::mouseDClick(StoffListe->viewport(), Qt::LeftButton, {}, third);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(session->state.substanceIndex, 3);
}

TEST_F(SubstanceWindow, SynonymFindsTheRowAndTheNextEnterAccepts) {
    NameCombo->lineEdit()->selectAll();
    QTest::keyClicks(NameCombo, "Kohlendioxyd");
    QTest::keyClick(NameCombo, Qt::Key_Return);
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(StoffListe->CurrentRow(), RowOfCas("124-38-9"));
    ASSERT_EQ(QApplication::focusWidget()->objectName(), "StoffOK");
    Press(Qt::Key_Return);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(TrimRight(session->model.substance.cas), "124-38-9");
}

TEST_F(SubstanceWindow, UnknownNameIsSaidAndTheWindowStays) {
    NameCombo->setEditText("gibtesnicht");
    ClickButton(form, "StoffOK");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Fehler bei Stoffwahl");
    EXPECT_EQ(Find<frmStoffWahl>(), form);
    EXPECT_EQ(NameCombo->currentText(), Name(0));
    EXPECT_EQ(session->state.substanceIndex, 0);
}

TEST_F(SubstanceWindow, SearchedNamesStayInTheListOfTheField) {
    for (const char* name : {"n-Butan", "Ethan"}) {
        NameCombo->lineEdit()->selectAll();
        QTest::keyClicks(NameCombo, name);
        QTest::keyClick(NameCombo, Qt::Key_Return);
    }
    ASSERT_EQ(NameCombo->count(), 2);
    EXPECT_EQ(NameCombo->itemText(0), "n-Butan");
    EXPECT_EQ(NameCombo->itemText(1), "Ethan");
}

TEST_F(SubstanceWindow, ANameOrCasNumberFoundAsItStandsShowsItsRow) {
    const int row = RowOfCas("7732-18-5");
    NameCombo->lineEdit()->selectAll();
    QTest::keyClicks(NameCombo, "7732-18-5");
    QTest::keyClick(NameCombo, Qt::Key_Return);
    EXPECT_EQ(StoffListe->CurrentRow(), row);
    EXPECT_EQ(Text1->text(), QString::number(session->List().At(row + 1).number));
    EXPECT_TRUE(In<QLabel>(form, "Bez4")->text().startsWith(" CASRN: 7732-18-5"));
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "StoffOK");
    Press(Qt::Key_Return);
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(session->state.substanceIndex, row + 1);
}

TEST_F(SubstanceWindow, EscInTheNameClearsTheSelectionFirstAndClosesThen) {
    QTest::keyClick(NameCombo, Qt::Key_Escape);
    EXPECT_EQ(Find<frmStoffWahl>(), form);
    EXPECT_FALSE(StoffListe->selectionModel()->hasSelection());
    QTest::keyClick(NameCombo, Qt::Key_Escape);
    EXPECT_EQ(Find<frmStoffWahl>(), nullptr);
}

TEST_F(SubstanceWindow, CancelKeepsTheSubstanceInForce) {
    ClickButton(form, "Esc");
    AcceptModels("n-Butan");
    Command("mnuStoff")->trigger();
    form = Wait<frmStoffWahl>();
    ASSERT_NE(form, nullptr);
    In<SubstanceListView>(form, "StoffListe")->SelectRow(5);
    ClickButton(form, "Esc");
    EXPECT_EQ(session->model.substance.name, "n-Butan");
    EXPECT_TRUE(Command("mnuCalcMain")->isEnabled());
}

TEST_F(SubstanceWindow, OpensOnTheNameAndTabsThroughItsControlsInReadingOrder) {
    QStringList order;
    for (int i = 0; i < 6; ++i) {
        QWidget* focus = QApplication::focusWidget();
        order << focus->objectName();
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"NameCombo", "Text1", "StoffListe", "Hilfe", "StoffOK", "Esc"}));
}

TEST_F(SubstanceWindow, ButtonsWithoutAWindowBehindThemAreDisabled) {
    EXPECT_FALSE(In<QPushButton>(form, "cmdDaten")->isEnabled());
    EXPECT_TRUE(In<QPushButton>(form, "Hilfe")->isEnabled());
    EXPECT_EQ(In<QPushButton>(form, "StoffOK")->text(), "Stoff &OK\nWeiter >");
}

} // namespace
} // namespace orva::test
