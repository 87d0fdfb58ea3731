// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/substance_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_database.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "text/code_page.h"

namespace orva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const Message notFound{"Fehler bei Stoffwahl", "Unter dieser Bezeichnung nichts gefunden.",
                       MessageIcon::Exclamation};

class SubstanceWindow : public testing::Test {
protected:
    test::TestMachine machine;
    test::ScriptedDialogs dialogs;
    Database database;
    SessionState session;
    SubstanceChoice window{database, session, dialogs, machine.InstallationFolder()};

    void SetUp() override {
        using test::SampleRecord;
        WriteFile(machine.InstallationFolder() / "ORVA.Q05",
                  test::DatabaseBytes({SampleRecord("C2H6O", "Ethanol; Weingeist", "64-17-5", 12, {}),
                                       SampleRecord("H2O", "Wasser", "7732-18-5", 7, {}),
                                       SampleRecord("C2H4O2", "Essigsäure", "64-19-7", 1999, {}),
                                       SampleRecord("X", "Wasser", "1-1-1", 2000, {})}));
        WriteFile(
            machine.InstallationFolder() / "SYNOM.TXT",
            OemFromUtf8("7732-18-5\r\n*Wasser\r\nEIS\r\n\r\n"
                        "7440-59-7\r\n*Helium_He_ein_Edelgas_und_mehr_Gas der Sonne\r\nHELIUM\r\n\r\n"));
        ASSERT_TRUE(database.LoadDatabase("ORVA.Q05", machine.InstallationFolder(), false).Good());
        session.substanceCount = 4;
        window.Open();
    }
};

TEST_F(SubstanceWindow, CarriesItsTitles) {
    EXPECT_EQ(SubstanceChoice(database, session, dialogs, "").title, "   Stoffwahl");
    EXPECT_EQ(window.title, "Wählen Sie einen Stoff (aus 4)");
    EXPECT_EQ(SubstanceChoice::listHeading, " lfd. #     Stoffname");
    EXPECT_EQ(SubstanceChoice::acceptText, "Stoff &OK\nWeiter >");
}

TEST_F(SubstanceWindow, ListsIndexFormulaAndName) {
    ASSERT_EQ(window.StoffListe.size(), 4U);
    EXPECT_EQ(window.StoffListe[0], "   1 C2H6O        Ethanol; Weingeist                      ");
    EXPECT_EQ(window.StoffListe[2], "   3 C2H4O2       Essigsäure                              ");
}

TEST_F(SubstanceWindow, OpensWithTheFirstRow) {
    EXPECT_EQ(window.selectedRow, 0);
    EXPECT_EQ(session.substanceIndexPending, 1);
    EXPECT_EQ(window.NameCombo, "Ethanol; Weingeist");
    EXPECT_EQ(window.Text1, "12");
    EXPECT_EQ(window.Bez4, " CASRN: 64-17-5     ");
}

TEST_F(SubstanceWindow, OpensEmptyWithoutADatabase) {
    Database none;
    SessionState fresh;
    SubstanceChoice empty(none, fresh, dialogs, machine.InstallationFolder());
    empty.Open();
    EXPECT_EQ(empty.title, "Wählen Sie einen Stoff (aus 0)");
    EXPECT_THAT(empty.StoffListe, IsEmpty());
    EXPECT_EQ(empty.selectedRow, -1);
    EXPECT_FALSE(empty.AcceptName());
}

TEST_F(SubstanceWindow, ARowFillsTheFieldsAndTheRecordBuffer) {
    window.SelectRow(2);
    EXPECT_EQ(session.substanceIndexPending, 3);
    EXPECT_EQ(window.NameCombo, "Essigsäure");
    EXPECT_EQ(window.Text1, "1999");
    EXPECT_EQ(window.Bez4, " CASRN: 64-19-7     ");
    ASSERT_TRUE(window.record);
    EXPECT_EQ(window.record->number, 1999);
    window.SelectRow(4);
    EXPECT_EQ(window.selectedRow, 2) << "a row that is not there changes nothing";
}

TEST_F(SubstanceWindow, ATypedNumberSelectsItsSubstance) {
    window.TypeNumber("7");
    EXPECT_EQ(window.selectedRow, 1);
    EXPECT_EQ(session.substanceIndexPending, 2);
    EXPECT_EQ(window.NameCombo, "Wasser");
}

TEST_F(SubstanceWindow, AnUnknownNumberLeavesTheSelectedRowPending) {
    window.SelectRow(1);
    session.substanceIndexPending = 3;
    window.TypeNumber("5");
    EXPECT_EQ(window.Text1, "5");
    EXPECT_EQ(window.selectedRow, 1);
    EXPECT_EQ(session.substanceIndexPending, 2);
}

TEST_F(SubstanceWindow, NumbersOutOfRangeAreIgnored) {
    session.substanceIndexPending = 3;
    for (const char* text : {"2000", "00007", "0", "-7", "", "x", "7 7 7 7"}) {
        window.TypeNumber(text);
        EXPECT_EQ(window.selectedRow, 0) << text;
        EXPECT_EQ(session.substanceIndexPending, 3) << text;
    }
    window.TypeNumber("1999");
    EXPECT_EQ(window.selectedRow, 2);
}

TEST_F(SubstanceWindow, FindsByCasAndNumber) {
    const SubstanceList& list = database.List();
    EXPECT_EQ(FindByCas(list, "7732-18-5"), 2);
    EXPECT_EQ(FindByCas(list, "7732-18-5   "), 2);
    EXPECT_EQ(FindByCas(list, " 7732-18-5"), 0) << "blanks count in front";
    EXPECT_EQ(FindByCas(list, "7732"), 0);
    EXPECT_EQ(FindByNumber(list, 2000), 4);
    EXPECT_EQ(FindByNumber(list, 3), 0);
}

TEST_F(SubstanceWindow, AnExactNameNeedsNoSynonyms) {
    std::filesystem::remove(machine.InstallationFolder() / "SYNOM.TXT");
    const SearchResult result = window.FindSubstance("Wasser  ");
    EXPECT_TRUE(result.found);
    EXPECT_EQ(result.index, 2) << "the first of two equal names";
    EXPECT_EQ(window.FindSubstance("64-19-7").index, 3);
    EXPECT_EQ(window.FindSubstance("Ethanol; Weingeist").index, 1);
    EXPECT_THAT(dialogs.shown, IsEmpty());
}

TEST_F(SubstanceWindow, TheExactComparisonMindsCapitalsAndLeadingBlanks) {
    std::filesystem::remove(machine.InstallationFolder() / "SYNOM.TXT");
    EXPECT_FALSE(window.FindSubstance("wasser").found);
    EXPECT_FALSE(window.FindSubstance(" Wasser").found);
    EXPECT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[0].title, "FEHLER");
}

TEST_F(SubstanceWindow, ASynonymSelectsTheRow) {
    const SearchResult result = window.FindSubstance("Eis");
    EXPECT_TRUE(result.found);
    EXPECT_EQ(result.index, 2);
    EXPECT_EQ(window.selectedRow, 1);
    EXPECT_EQ(window.Text1, "7");
}

TEST_F(SubstanceWindow, AnUnknownNameIsToldAndTheFieldsGoBack) {
    window.SelectRow(1);
    window.NameCombo = "Nichts";
    window.Text1 = "55";
    EXPECT_FALSE(window.FindSubstance("Nichts").found);
    EXPECT_THAT(dialogs.shown, ElementsAre(notFound));
    EXPECT_EQ(window.NameCombo, "Wasser");
    EXPECT_EQ(window.Text1, "7");
}

TEST_F(SubstanceWindow, ASubstanceThatTheDatabaseLacksIsDescribed) {
    window.NameCombo = "Helium";
    EXPECT_FALSE(window.FindSubstance("Helium").found);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "  dieser Stoff ist in der Datenbank nicht enthalten  ");
    EXPECT_EQ(dialogs.shown[0].text, "Helium\nHe ein Edelgas und_mehr\n\nCAS-Nr. 7440-59-7\nGas der Sonne");
    EXPECT_EQ(window.NameCombo, "Ethanol; Weingeist");
}

TEST_F(SubstanceWindow, EnterSearchesAndRemembersTheText) {
    window.EnterName("Essigsäure");
    EXPECT_EQ(session.substanceIndexPending, 3);
    EXPECT_EQ(window.selectedRow, 2);
    window.EnterName("Ethanol; Weingeist");
    EXPECT_EQ(session.substanceIndexPending, 1);
    window.EnterName("");
    EXPECT_THAT(window.nameHistory, ElementsAre("Essigsäure", "Ethanol"));
}

TEST_F(SubstanceWindow, AnExactHitSelectsItsRowAndKeepsTheText) {
    window.EnterName("1-1-1"); // the second of two with the name Wasser
    EXPECT_EQ(window.selectedRow, 3);
    EXPECT_EQ(window.Text1, "2000");
    EXPECT_EQ(window.Bez4, " CASRN: 1-1-1       ");
    EXPECT_EQ(window.NameCombo, "1-1-1");
    EXPECT_TRUE(window.AcceptName());
    EXPECT_EQ(session.substanceIndexPending, 4);
}

TEST_F(SubstanceWindow, AVainSearchLeavesTheFirstSubstancePending) {
    window.SelectRow(2);
    window.EnterName("Nichts");
    EXPECT_EQ(session.substanceIndexPending, 1);
    EXPECT_EQ(window.selectedRow, 2);
}

TEST_F(SubstanceWindow, TheHistoryHoldsSevenTexts) {
    for (const char* text :
         {"1-1-1", "Wasser", "Eis", "Ethanol", "Wasser", "64-17-5", "64-19-7", "7732-18-5"})
        window.EnterName(text);
    EXPECT_THAT(window.nameHistory,
                ElementsAre("Wasser", "Eis", "Ethanol", "Wasser", "64-17-5", "64-19-7", "7732-18-5"));
}

TEST_F(SubstanceWindow, AcceptingSearchesForTheText) {
    window.NameCombo = "Wasser   ";
    EXPECT_TRUE(window.AcceptName());
    EXPECT_EQ(window.NameCombo, "Wasser");
    EXPECT_EQ(session.substanceIndexPending, 2);
    window.NameCombo = "Nichts";
    EXPECT_FALSE(window.AcceptName());
    EXPECT_THAT(dialogs.shown, ElementsAre(notFound));
}

TEST_F(SubstanceWindow, AcceptingNothingDoesNothing) {
    window.NameCombo.clear();
    EXPECT_FALSE(window.AcceptName());
    EXPECT_THAT(dialogs.shown, IsEmpty());
}

TEST_F(SubstanceWindow, ANewlyTypedNumberFollowsTheSelectionOnlyIfThereIsOne) {
    session.substanceIndexPending = 3;
    window.ClearSelection();
    window.TypeNumber("5");
    EXPECT_EQ(session.substanceIndexPending, 3);
    window.FindSubstance("Nichts");
    EXPECT_EQ(window.Text1, "5") << "without a selected row there is nothing to restore";
}

TEST(BatchDataQuestion, IsAskedOnlyWithADataSeries) {
    test::ScriptedDialogs dialogs;
    SessionState session;
    session.batchFile = "a.BAQ";
    EXPECT_FALSE(AskDeleteBatchData(session, dialogs));
    EXPECT_THAT(dialogs.asked, IsEmpty());
    EXPECT_EQ(session.batchFile, "a.BAQ");
}

TEST(BatchDataQuestion, DropsTheSeriesOnYes) {
    test::ScriptedDialogs dialogs;
    SessionState session;
    session.batchFile = "a.BAQ";
    session.batchFileFlag = true;
    session.batchRowCount = 5;
    EXPECT_FALSE(AskDeleteBatchData(session, dialogs));
    EXPECT_EQ(session.batchRowCount, 5);
    EXPECT_EQ(session.batchFile, "a.BAQ");
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "STAPELDATEN");
    EXPECT_EQ(dialogs.asked[0].text,
              "Neuer Stoff wurde gewählt.\nGeladene exper. Daten (Stapeldaten) jetzt löschen?");
    dialogs.answers = {true};
    EXPECT_TRUE(AskDeleteBatchData(session, dialogs));
    EXPECT_EQ(session.batchRowCount, 0);
    EXPECT_EQ(session.batchFile, "");
    EXPECT_FALSE(session.batchFileFlag);
}

} // namespace
} // namespace orva
