// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "shell/project_fixture.h"

namespace orva::test {
namespace {

using testing::ElementsAre;

struct Preview : ProjectFixture {
    OpenWithPreview Open() { return LoadProjectDialog(session); }
    OpenWithPreview OpenBatch() { return {session, "Öffnen einer Stapeldatei", "*.BAQ", Path(""), ""}; }
    void Put(const std::string& name, std::string_view bytes) const {
        ASSERT_TRUE(WriteFile(PathOf(Path(name)), bytes));
    }
};

TEST_F(Preview, SaysWhatItChooses) {
    const OpenWithPreview projects = Open();
    EXPECT_EQ(projects.title, "Projekt laden (*.QCF)");
    EXPECT_EQ(projects.frameTitle, "Projektinformation");
    EXPECT_TRUE(projects.showsDatabase);
    const OpenWithPreview batch = OpenBatch();
    EXPECT_EQ(batch.frameTitle, "Datei-Information");
    EXPECT_FALSE(batch.showsDatabase);
}

TEST_F(Preview, ListsFilesOfThePatternAndFoldersByName) {
    for (const char* name : {"b.QCF", "A.qcf", "x.txt", "c.BAQ"})
        Put(name, "x");
    for (const char* name : {"Zwei", "eins", ".versteckt", "d.QCF"})
        std::filesystem::create_directory(Path(name));
    EXPECT_THAT(Open().files, ElementsAre("A.qcf", "b.QCF"));
    EXPECT_THAT(Open().folders, ElementsAre("d.QCF", "eins", "Zwei"));
    EXPECT_THAT(OpenBatch().files, ElementsAre("c.BAQ"));
    const OpenWithPreview all(session, "", "", Path(""), "");
    EXPECT_THAT(all.files, ElementsAre("A.qcf", "b.QCF", "c.BAQ", "ORVA.Q05", "x.txt"));
}

TEST_F(Preview, AnEmptyFolderIsTheCurrentOne) {
    std::filesystem::current_path(machine.InstallationFolder());
    EXPECT_EQ(OpenWithPreview(session, "", "*.QCF", "", "").Folder(), PathText(machine.InstallationFolder()));
    std::filesystem::current_path(std::filesystem::temp_directory_path());
}

TEST_F(Preview, AFolderThatIsGoneIsEmpty) {
    const OpenWithPreview choice(session, "", "*.QCF", Path("fehlt"), "");
    EXPECT_TRUE(choice.files.empty());
    EXPECT_TRUE(choice.folders.empty());
}

TEST_F(Preview, PickingAProjectShowsItAndLoadsItsDatabase) {
    Write("a.QCF", ButaneProject());
    OpenWithPreview choice = Open();
    choice.SelectFile(0);
    EXPECT_EQ(choice.txtOpenFile, "a.QCF");
    EXPECT_EQ(choice.Text1, "n-Butan; Butan");
    EXPECT_EQ(choice.Text2, "Füllung");
    EXPECT_EQ(choice.Label5, "ORVA.Q05");
    EXPECT_TRUE(choice.okEnabled);
    EXPECT_EQ(session.state.databaseFile, "ORVA.Q05");
    EXPECT_EQ(session.state.batchDate, "1.2.2025");
    EXPECT_EQ(session.state.projectComment, "");
    EXPECT_EQ(session.options.curvePoints, 300);
    EXPECT_TRUE(Allowed("mnuStoff"));
}

TEST_F(Preview, AMissingSubstanceDisablesTheChoiceUntilAnotherIsPicked) {
    ProjectFile missing = ButaneProject();
    missing.cas = "1-2-3";
    Write("a.QCF", missing);
    Write("b.QCF", ButaneProject());
    Put("c.QCF", "Unsinn");
    OpenWithPreview choice = Open();
    for (const int row : {0, 2}) {
        choice.SelectFile(row);
        EXPECT_EQ(choice.Text1, "Stoff nicht in aktueller Datenbank gefunden") << row;
        EXPECT_FALSE(choice.okEnabled) << row;
        EXPECT_FALSE(choice.cmdOpenOK()) << row;
        choice.SelectFile(1);
        EXPECT_TRUE(choice.okEnabled);
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(Preview, BrowsingToAnotherDatabaseEndsTheWorkWithTheSubstance) {
    AcceptButane();
    WriteArgonDatabase();
    Write("a.QCF", ButaneProject());
    ProjectFile argon = ButaneProject();
    argon.database = "ARGON.Q05";
    argon.cas = "7440-37-1";
    Write("b.QCF", argon);
    OpenWithPreview choice = Open();
    choice.SelectFile(0); // the database that is loaded
    EXPECT_TRUE(Allowed("mnuCalcMain"));
    EXPECT_EQ(session.state.substanceIndex, 1);
    choice.SelectFile(1);
    EXPECT_EQ(choice.Text1, "Argon ohne Omega");
    EXPECT_EQ(session.state.databaseFile, "ARGON.Q05");
    EXPECT_EQ(session.state.substanceIndex, 0);
    EXPECT_FALSE(Allowed("mnuCalcMain"));
    EXPECT_EQ(session.statusPanels[0], "");
}

TEST_F(Preview, ACancelKeepsTheSession) {
    AcceptButane();
    Write("a.QCF", ButaneProject());
    OpenWithPreview choice = Open();
    choice.SelectFile(0);
    choice.cmdOpenCancel();
    EXPECT_FALSE(choice.Accepted());
    EXPECT_EQ(choice.File(), "");
    EXPECT_FALSE(LoadChosenProject(session, choice));
    EXPECT_TRUE(Allowed("mnuCalcMain"));
    EXPECT_EQ(session.state.projectFile, "");
}

TEST_F(Preview, ShowsADataSeriesAgainstTheDatabaseInForce) {
    Put("a.BAQ", "3.4.2024\r\nMessung \xDC\r\n106-97-8    \r\n1\r\n");
    Put("b.BAQ", "3.4.2024\r\n\r\n1-2-3       \r\n0\r\n");
    Put("c.BAQ", "nur ein Datum");
    OpenWithPreview choice = OpenBatch();
    choice.SelectFile(0);
    EXPECT_EQ(choice.Text1, "(Stoff nicht in aktueller Datenbank gefunden)");
    ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    choice.SelectFile(0);
    EXPECT_EQ(choice.Text1, "n-Butan; Butan");
    EXPECT_EQ(choice.Text2, "Messung Ü");
    EXPECT_EQ(session.state.batchDate, "3.4.2024");
    for (const int row : {1, 2}) {
        choice.SelectFile(row);
        EXPECT_EQ(choice.Text1, "(Stoff nicht in aktueller Datenbank gefunden)") << row;
        EXPECT_TRUE(choice.okEnabled);
    }
    EXPECT_EQ(session.state.batchDate, "nur ein Datum");
}

TEST_F(Preview, TheEditedCommentGoesToItsKindOfFile) {
    Write("a.qcf", ButaneProject());
    Put("b.BAQ", "3.4.2024\r\nMessung\r\n106-97-8\r\n");
    OpenWithPreview choice(session, "", "", Path(""), "");
    choice.SelectFile(0);
    ASSERT_EQ(choice.txtOpenFile, "a.qcf");
    choice.EditComment("Füllung 2");
    EXPECT_EQ(session.state.projectComment, "Füllung 2");
    choice.SelectFile(1);
    choice.EditComment("Messung 2");
    EXPECT_EQ(session.state.batchComment, "Messung 2");
    EXPECT_EQ(session.state.projectComment, "Füllung 2");
    choice.TypeFile("x");
    choice.EditComment("nichts");
    EXPECT_EQ(session.state.projectComment, "Füllung 2");
    EXPECT_EQ(session.state.batchComment, "Messung 2");
}

TEST_F(Preview, DeletesAfterAYesOnly) {
    Write("a.QCF", ButaneProject());
    Write("b.QCF", ButaneProject());
    OpenWithPreview choice = Open();
    EXPECT_FALSE(choice.DeleteSelected()); // nothing is picked
    EXPECT_TRUE(dialogs.asked.empty());
    choice.SelectFile(1);
    dialogs.answers = {false, true};
    EXPECT_FALSE(choice.DeleteSelected());
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "Löschen von Dateien bestätigen");
    EXPECT_EQ(dialogs.asked[0].text, "File b.QCF wirklich löschen?");
    EXPECT_FALSE(dialogs.asked[0].yesIsDefault);
    EXPECT_TRUE(FileExists(Path("b.QCF")));
    EXPECT_EQ(choice.selectedFile, 1);
    EXPECT_TRUE(choice.DeleteSelected());
    EXPECT_FALSE(FileExists(Path("b.QCF")));
    EXPECT_THAT(choice.files, ElementsAre("a.QCF"));
    EXPECT_EQ(choice.selectedFile, -1);
    EXPECT_EQ(choice.txtOpenFile, "");
    EXPECT_EQ(choice.Text1, "");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(Preview, SaysThatAFileCannotBeDeleted) {
    Write("a.QCF", ButaneProject());
    OpenWithPreview choice = Open();
    choice.SelectFile(0);
    std::filesystem::remove(Path("a.QCF"));
    dialogs.answers = {true};
    EXPECT_TRUE(choice.DeleteSelected());
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "Die Datei kann nicht gelöscht werden:\na.QCF");
    EXPECT_TRUE(choice.files.empty());
}

TEST_F(Preview, WalksThroughTheFolders) {
    std::filesystem::create_directories(Path("eins/zwei"));
    Put("eins/a.QCF", "x");
    OpenWithPreview choice = Open();
    choice.OpenFolder(0);
    EXPECT_EQ(choice.Folder(), Path("eins"));
    EXPECT_THAT(choice.files, ElementsAre("a.QCF"));
    EXPECT_THAT(choice.folders, ElementsAre("zwei"));
    choice.cmdReturn();
    EXPECT_EQ(choice.Folder(), PathText(machine.InstallationFolder()));
    for (int i = 0; i < 20; ++i)
        choice.cmdReturn();
    EXPECT_EQ(choice.Folder(), PathText(machine.InstallationFolder().root_path()));
    choice.OpenFolder(-1);
    choice.SelectFile(1000);
    EXPECT_EQ(choice.Folder(), PathText(machine.InstallationFolder().root_path()));
}

TEST_F(Preview, ShortensALongPath) {
    const std::string deep =
        Path("ein-sehr-langer-Ordnername/noch-ein-sehr-langer-Ordnername/und-ein-dritter");
    std::filesystem::create_directories(deep);
    const OpenWithPreview choice(session, "", "*.QCF", deep + "/", "");
    EXPECT_EQ(choice.Folder(), deep);
    EXPECT_EQ(choice.PathLabel(), ShortenPath(deep, 60));
    EXPECT_LE(choice.PathLabel().size(), 60U);
}

TEST_F(Preview, AMissingFileIsTold) {
    OpenWithPreview choice = Open();
    Put("leer.QCF", "");
    for (const char* name : {"", "fehlt.QCF", "leer.QCF"}) {
        dialogs.shown.clear();
        choice.TypeFile(name);
        EXPECT_FALSE(choice.cmdOpenOK()) << name;
        ASSERT_EQ(dialogs.shown.size(), 1U) << name;
        EXPECT_EQ(dialogs.shown[0].text, "Datei im ORVA-Verzeichnis nicht gefunden");
        EXPECT_FALSE(choice.Accepted());
    }
}

TEST_F(Preview, ATypedNameMayLeadIntoAnotherFolder) {
    std::filesystem::create_directory(Path("eins"));
    Write("eins/a.QCF", ButaneProject());
    OpenWithPreview choice = Open();
    choice.TypeFile("eins");
    EXPECT_FALSE(choice.cmdOpenOK());
    EXPECT_EQ(choice.Folder(), Path("eins"));
    OpenWithPreview direct = Open();
    direct.TypeFile("eins/a.QCF");
    EXPECT_TRUE(direct.cmdOpenOK());
    EXPECT_EQ(direct.Folder(), Path("eins"));
    EXPECT_EQ(direct.File(), "a.QCF");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(Preview, StartsWithTheLastProjectWithoutLookingIntoIt) {
    Write("a.QCF", ButaneProject());
    session.state.projectFile = "a.QCF";
    OpenWithPreview choice = Open();
    EXPECT_EQ(choice.txtOpenFile, "a.QCF");
    EXPECT_FALSE(session.state.databaseLoaded);
    EXPECT_TRUE(choice.cmdOpenOK());
}

} // namespace
} // namespace orva::test
