// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/project_fixture.h"

#include <cmath>

#include "shell/exit.h"

namespace orva::test {
namespace {

using Project = ProjectFixture;

std::vector<std::string> LinesOf(const std::filesystem::path& path) {
    std::vector<std::string> lines;
    std::string text = ReadFile(path).value_or("");
    for (std::size_t end; (end = text.find("\r\n")) != text.npos; text.erase(0, end + 2))
        lines.push_back(text.substr(0, end));
    return lines;
}

TEST_F(Project, FileNameIsTheTextBehindTheLastSeparator) {
    EXPECT_EQ(FileNameOnly("C:\\ORVA\\Butan.QCF"), "Butan.QCF");
    EXPECT_EQ(FileNameOnly("/home/x/Butan.QCF"), "Butan.QCF");
    EXPECT_EQ(FileNameOnly("Butan.QCF"), "Butan.QCF");
    EXPECT_EQ(FileNameOnly("C:\\ORVA\\"), "");
}

TEST_F(Project, SavingAsksForTheComment) {
    AcceptButane();
    session.state.projectComment = "alt";
    dialogs.texts = {"neu"};
    ASSERT_TRUE(SaveProject(session, Path("a.QCF")));
    ASSERT_EQ(dialogs.textRequests.size(), 1U);
    EXPECT_EQ(dialogs.textRequests[0].title, " Datei-Kommentar (optional) ");
    EXPECT_EQ(dialogs.textRequests[0].prompt, "Eingabe Kommentartext\n<Abbrechen> = kein Kommentar");
    EXPECT_EQ(dialogs.textRequests[0].text, "alt");
    EXPECT_EQ(session.state.projectComment, "neu");
    const auto lines = LinesOf(Path("a.QCF"));
    ASSERT_EQ(lines.size(), 32U);
    EXPECT_EQ(lines[0], "21.11.2026");
    EXPECT_EQ(lines[1], "neu");
    EXPECT_EQ(lines[2], "ORVA.Q05");
    EXPECT_EQ(lines[3], "106-97-8    ");
    EXPECT_EQ(lines[14], "6"); // Peng / Robinson
    dialogs.texts = {std::nullopt};
    ASSERT_TRUE(SaveProject(session, Path("a.QCF")));
    EXPECT_EQ(LinesOf(Path("a.QCF"))[1], "");
    EXPECT_EQ(session.state.projectComment, "");
}

TEST_F(Project, TheLastSessionIsSavedWithoutAsking) {
    AcceptButane();
    for (const char* name : {"OrvaLastSession.QCF", "orvalastsession.qcf", "meineORVALASTSESSION.QCF"}) {
        EXPECT_TRUE(SaveProject(session, Path(name)));
        EXPECT_TRUE(FileExists(Path(name)));
    }
    EXPECT_TRUE(dialogs.textRequests.empty());
    EXPECT_TRUE(SaveProject(session, Path("LastSession.QCF")));
    EXPECT_EQ(dialogs.textRequests.size(), 1U);
}

TEST_F(Project, APathWithoutAFolderIsSavedInTheProjectFolder) {
    AcceptButane();
    std::filesystem::create_directory(Path("Projekte"));
    for (const char* end : {"Projekte", "Projekte/"}) {
        session.state.dirProject = Path(end);
        EXPECT_TRUE(SaveProject(session, "b.QCF"));
        EXPECT_TRUE(std::filesystem::remove(Path("Projekte/b.QCF")));
    }
}

TEST_F(Project, TheDatabaseIsNamedWithoutItsFolder) {
    ASSERT_TRUE(OpenDatabase(session, PathOf(Path("ORVA.Q05"))));
    ASSERT_TRUE(SaveProject(session, Path("c.QCF")));
    EXPECT_EQ(LinesOf(Path("c.QCF"))[2], "ORVA.Q05");
    EXPECT_EQ(LinesOf(Path("c.QCF"))[3], std::string(12, ' '));
}

TEST_F(Project, AFailedSaveIsToldAndLeavesTheOldFile) {
    AcceptButane();
    const std::string path = Path("fehlt/a.QCF");
    EXPECT_FALSE(SaveProject(session, path));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausgabe-Fehler");
    EXPECT_EQ(dialogs.shown[0].text, "Die Datei kann nicht geschrieben werden:\n" + path);
}

TEST_F(Project, SaveDialogTakesFolderAndFile) {
    AcceptButane();
    session.state.projectFile = "alt.QCF";
    EXPECT_FALSE(SaveProjectDialog(session));
    const FileRequest request = dialogs.fileRequests.at(0);
    EXPECT_EQ(request.title, "aktuelles Projekt speichern unter ...");
    EXPECT_EQ(request.filter, "ORVA-Projektdatei (*.QCF)|*.QCF");
    EXPECT_EQ(request.defaultExtension, ".QCF");
    EXPECT_EQ(request.fileName, "alt.QCF");
    EXPECT_EQ(request.folder, PathText(machine.WritableFolder()));
    EXPECT_TRUE(request.saving);
    EXPECT_TRUE(dialogs.textRequests.empty());
    EXPECT_EQ(session.state.projectFile, "alt.QCF");

    std::filesystem::create_directory(Path("P"));
    dialogs.files = {Path("P/neu.QCF")};
    EXPECT_TRUE(SaveProjectDialog(session));
    EXPECT_EQ(session.state.dirProject, Path("P/"));
    EXPECT_EQ(session.state.projectFile, "neu.QCF");
    EXPECT_TRUE(FileExists(Path("P/neu.QCF")));
}

TEST_F(Project, TheHintComesBeforeTheFirstSaveOnly) {
    AcceptButane();
    EXPECT_FALSE(StartSavingProject(session));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "einmaliger allgemeiner Hinweis");
    EXPECT_EQ(dialogs.shown[0].text, "Bitte beachten:\n"
                                     "Vor dem Abspeichern des Projekts müssen die Einstellungen\n"
                                     "unter \"Modelle\" und \"Optionen\" komplett sein.");
    EXPECT_FALSE(StartSavingProject(session));
    EXPECT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.fileRequests.size(), 2U);
}

TEST_F(Project, ComesBackAsItWasSaved) {
    AcceptButane();
    session.options.unitBasis = 3;
    session.options.volumeBasis = 2;
    session.options.curvePoints = 610;
    session.options.curveTpRestricted = false;
    session.options.listSeparator = ',';
    session.model.selection.eos = eosRedlichKwong;
    session.model.selection.eosPriority = false;
    session.model.selection.vaporization = 4;
    session.model.selection.watsonExponent = 0.41F;
    session.model.reference = {10, 310.5F, 200, -1.5, 2.25, 280, 90};
    session.processLineMode = 0;
    session.curve = {400, 2000, 0.3};
    ASSERT_TRUE(SaveProject(session, Path("a.QCF")));

    Session other(machine, dialogs);
    other.model.selection.nonCubic = true; // of a substance before
    ASSERT_TRUE(LoadProject(other, Path("a.QCF")));
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(other.state.databaseFile, "ORVA.Q05");
    EXPECT_EQ(other.state.substanceIndex, 1);
    EXPECT_EQ(other.model.substance.name, "n-Butan");
    EXPECT_EQ(other.options.unitBasis, 3);
    EXPECT_EQ(other.options.volumeBasis, 2);
    EXPECT_EQ(other.options.curvePoints, 610);
    EXPECT_FALSE(other.options.curveTpRestricted);
    EXPECT_EQ(other.options.listSeparator, ',');
    EXPECT_EQ(other.options.energyFactor, session.options.energyFactor);
    EXPECT_EQ(other.model.selection.eos, eosRedlichKwong);
    EXPECT_EQ(other.model.selection.vaporPressure, vpWagner);
    EXPECT_EQ(other.model.selection.vaporPressureCode, "WAG");
    EXPECT_EQ(other.model.selection.vaporization, 4);
    EXPECT_EQ(other.model.selection.watsonExponent, 0.41F);
    EXPECT_EQ(other.model.reference, session.model.reference);
    EXPECT_EQ(other.processLineMode, 0);
    EXPECT_EQ(other.curve.curveT, 400);
    EXPECT_EQ(other.curve.curveP, 2000);
    EXPECT_EQ(other.curve.curveV, 0.3);
    EXPECT_EQ(other.state.projectComment, ""); // the comment of the file is not taken

    ModelChoice choice = MakeModelChoice(other);
    choice.Open();
    EXPECT_EQ(other.model.selection.eos, eosRedlichKwong);
    EXPECT_FALSE(other.model.selection.eosPriority) << "a stale flag would have taken it away";
    EXPECT_EQ(choice.PriorOpt, 1);
    EXPECT_EQ(other.model.selection.vaporPressure, vpWagner);
}

TEST_F(Project, AnEquationNotYetChosenLoadsAsTheIdealGas) {
    ProjectFile project = ButaneProject();
    project.eos = eosNotChosen;
    ASSERT_TRUE(LoadProject(session, Write("a.QCF", project)));
    EXPECT_EQ(session.model.selection.eos, eosIdealGas);
    EXPECT_TRUE(session.model.selection.nonCubic);
}

TEST_F(Project, AnAmbientTemperatureOfZeroIsReplaced) {
    ProjectFile project = ButaneProject();
    project.Tenv = 0;
    ASSERT_TRUE(LoadProject(session, Write("a.QCF", project)));
    EXPECT_EQ(session.model.reference.Tenv, 1e-6);
}

TEST_F(Project, ANameWithoutAFolderIsLookedForInTheInstallationFolder) {
    Write("a.QCF", ButaneProject());
    EXPECT_TRUE(LoadProject(session, "a.QCF"));
}

TEST_F(Project, WithoutAnyDatabaseItIsToldAndNothingIsLoaded) {
    ProjectFile project = ButaneProject();
    project.database = "FEHLT.Q05";
    EXPECT_FALSE(LoadProject(session, Write("a.QCF", project)));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[0].text, "Projekt-Datenbank FEHLT.Q05 im ORVA-Verzeichnis nicht gefunden");
    EXPECT_FALSE(session.state.databaseLoaded);
    EXPECT_EQ(session.options.curvePoints, 300);
}

TEST_F(Project, GoesOnWithTheDatabaseThatIsLoaded) {
    ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    ProjectFile project = ButaneProject();
    project.database = "FEHLT.Q05";
    EXPECT_TRUE(LoadProject(session, Write("a.QCF", project)));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Hinweis");
    EXPECT_EQ(dialogs.shown[0].text,
              "Projekt-Datenbank FEHLT.Q05 im ORVA-Verzeichnis nicht gefunden bzw. leer.\n"
              "Die aktuelle Bank ORVA.Q05 wird weiter verwendet.");
    EXPECT_EQ(session.state.databaseFile, "ORVA.Q05");
    EXPECT_EQ(session.model.substance.name, "n-Butan");
}

TEST_F(Project, OfASubstanceThatIsMissingChangesTheDatabaseAlone) {
    WriteArgonDatabase();
    ProjectFile project = ButaneProject();
    project.database = "ARGON.Q05";
    session.model.selection.eos = eosPengRobinson;
    EXPECT_FALSE(LoadProject(session, Write("a.QCF", project)));
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(session.state.databaseFile, "ARGON.Q05");
    EXPECT_EQ(session.state.substanceIndex, 0);
    EXPECT_EQ(session.model.selection.eos, eosPengRobinson);
    EXPECT_EQ(session.options.curvePoints, 300);
}

TEST_F(Project, WarnsOfMissingCriticalDataAndGoesOn) {
    ProjectFile project = ButaneProject();
    project.cas = "50-00-0";
    EXPECT_TRUE(LoadProject(session, Write("a.QCF", project)));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "WARNUNG");
    EXPECT_TRUE(dialogs.shown[0].text.starts_with("T(cr) und/oder p(cr) in der Datenbank nicht verfügbar."));
    EXPECT_EQ(session.options.curvePoints, 450);
}

// The window of the models opens for such a substance, and the ideal gas needs no critical data.
TEST_F(Project, WithoutCriticalDataNoNumberGoesAstray) {
    ProjectFile project = ButaneProject();
    project.cas = "50-00-0";
    project.eos = eosIdealGas;
    Write("OrvaLastSession.QCF", project);
    ASSERT_TRUE(LoadLastSession(session));
    EXPECT_FALSE(Allowed("mnuModel"));
    ModelChoice choice = MakeModelChoice(session);
    choice.Open();
    ASSERT_TRUE(choice.OKModell(dialogs));
    AcceptModels(session, choice.Panels());
    EXPECT_TRUE(std::isfinite(session.ranges.TMax) && std::isfinite(session.ranges.pMax));
    EXPECT_TRUE(std::isfinite(session.ranges.vMax) && std::isfinite(session.ranges.hMax));
    session.batch.rows[0].T = 300;
    session.batch.rows[0].p = 100;
    CalculationContext context = session.Calculation();
    for (int kind = kindTRho; kind <= kindSolidDensity; ++kind) {
        session.batch.rows[0].rhoV = 1.2F;
        if (!SetCalculation(session, kind, false))
            continue;
        const PointResult result = CalcBatch(context, kind, 0, {});
        for (const double number : result.results)
            EXPECT_TRUE(std::isfinite(number)) << kind;
    }
}

TEST_F(Project, CorrelatesTheEquationOfTheSessionFirst) {
    session.model.selection.vaporPressure = vpThompson;
    ASSERT_TRUE(LoadProject(session, Write("a.QCF", ButaneProject())));
    EXPECT_NE(session.model.substance.thompson.A, 0);
    EXPECT_EQ(session.model.selection.vaporPressure, vpWagner);
    Session other(machine, dialogs);
    ASSERT_TRUE(LoadProject(other, Path("a.QCF")));
    EXPECT_EQ(other.model.substance.thompson.A, 0);
}

TEST_F(Project, ADamagedLineLeavesWhatWasReadBefore) {
    std::string bytes = WriteProject(ButaneProject());
    bytes.resize(bytes.find("450\r\n") + 5); // up to the points per curve
    ASSERT_TRUE(WriteFile(PathOf(Path("a.QCF")), bytes));
    EXPECT_FALSE(LoadProject(session, Path("a.QCF")));
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(session.options.curvePoints, 450);
    EXPECT_EQ(session.state.substanceIndex, 1);
    EXPECT_EQ(session.model.selection.vaporPressure, vpNone);
}

TEST_F(Project, ForeignFilesLeaveTheSessionAlone) {
    AcceptButane();
    const ModelSelection before = session.model.selection;
    for (const char* bytes : {"", "x", "\r\n\r\n", "eins\r\nzwei\r\ndrei\r\n"}) {
        ASSERT_TRUE(WriteFile(PathOf(Path("OrvaLastSession.QCF")), bytes));
        EXPECT_FALSE(LoadLastSession(session));
        EXPECT_TRUE(dialogs.shown.empty());
        EXPECT_EQ(session.state.substanceIndex, 1);
        EXPECT_EQ(session.model.selection.vaporization, before.vaporization);
        EXPECT_TRUE(Allowed("mnuCalcMain"));
        EXPECT_EQ(session.statusPanels[0], "n-Butan");
    }
    std::filesystem::remove(Path("OrvaLastSession.QCF"));
    EXPECT_FALSE(LoadLastSession(session));
    EXPECT_TRUE(Allowed("mnuCalcMain"));
}

TEST_F(Project, LoadingBeginsWithTheResetAndOpensTheDataCommands) {
    AcceptButane();
    session.Enter(SessionEvent::BatchModeOn);
    session.options.batchMode = true;
    session.state.rangesStale = false;
    Write("a.QCF", ButaneProject());
    EXPECT_TRUE(LoadChosen("a.QCF"));
    EXPECT_FALSE(session.options.batchMode);
    EXPECT_TRUE(session.state.rangesStale);
    EXPECT_EQ(session.statusPanels[0], "n-Butan");
    EXPECT_EQ(session.statusPanels[1], "");
    for (const char* command : {"mnuData_Status", "mnuStoff", "mnuModel", "mnuData_EditStoffdaten",
                                "mnuData_BatchInput", "mnuData_SaveProject"})
        EXPECT_TRUE(Allowed(command)) << command;
    for (const char* command : {"mnuCalcMain", "mnuOptions", "mnu2D", "mnu3D", "mnuFitting"})
        EXPECT_FALSE(Allowed(command)) << command;
    for (const int button : {7, 11, 15})
        EXPECT_TRUE(session.commands.ToolbarAllowed(button)) << button;
    EXPECT_EQ(session.state.dirProject, PathText(machine.InstallationFolder()));
    EXPECT_EQ(session.state.projectFile, "a.QCF");
    EXPECT_EQ(std::filesystem::current_path(), machine.InstallationFolder());
    std::filesystem::current_path(std::filesystem::temp_directory_path());
}

TEST_F(Project, ASubstanceThatIsMissingClosesTheCalculations) {
    AcceptButane();
    WriteArgonDatabase();
    ProjectFile project = ButaneProject();
    project.database = "ARGON.Q05";
    Write("OrvaLastSession.QCF", project);
    EXPECT_FALSE(LoadLastSession(session));
    EXPECT_FALSE(Allowed("mnuCalcMain"));
    EXPECT_FALSE(Allowed("mnuModel"));
    EXPECT_TRUE(Allowed("mnuStoff"));
    EXPECT_EQ(session.statusPanels[0], "");
}

TEST_F(Project, HandInputOfVirialConstantsDoesNotComeFromAnotherEquation) {
    AcceptButane();
    ASSERT_NE(session.model.eos.b0, 0);
    ProjectFile project = ButaneProject();
    project.eos = virialByHand;
    Write("a.QCF", project);
    ASSERT_TRUE(LoadChosen("a.QCF"));
    ModelChoice choice = MakeModelChoice(session);
    choice.Open();
    EXPECT_EQ(choice.VirialConstants(), (std::array{0.0, 0.0, 0.0}));
    std::filesystem::current_path(std::filesystem::temp_directory_path());
}

TEST_F(Project, TheEndOfASessionSavesItAndTheNextOneTakesItUp) {
    AcceptButane();
    session.state.projectComment = "Versuch 7";
    session.options.curvePoints = 520;
    EndSession(session, [] {});
    EXPECT_TRUE(dialogs.textRequests.empty());
    EXPECT_EQ(LinesOf(Path("OrvaLastSession.QCF")).at(1), "Versuch 7");
    EXPECT_EQ(session.state.projectComment, "");
    EndSession(session, [] {}); // once
    EXPECT_EQ(LinesOf(Path("OrvaLastSession.QCF")).at(1), "Versuch 7");

    Session next(machine, dialogs);
    ASSERT_TRUE(LoadLastSession(next));
    EXPECT_EQ(next.options.curvePoints, 520);
    EXPECT_EQ(next.model.substance.name, "n-Butan");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(Project, TheEndOfASessionWithoutADatabaseSavesNothing) {
    EndSession(session, [] {});
    EXPECT_FALSE(std::filesystem::exists(Path("OrvaLastSession.QCF")));
}

// An installation that only its owner may write to.
class SharedMachine : public TestMachine {
public:
    std::filesystem::path WritableFolder() const override { return user.InstallationFolder(); }

private:
    TestMachine user;
};

TEST_F(Project, TheUsersFolderTakesWhatTheInstallationMustNot) {
    const SharedMachine shared;
    WriteSampleDatabase(shared.InstallationFolder());
    Session own(shared, dialogs);
    EXPECT_EQ(own.state.dirProject, PathText(shared.WritableFolder()));
    ASSERT_TRUE(OpenDatabase(own, "ORVA.Q05"));
    ASSERT_TRUE(AcceptSubstance(own, 1));
    EndSession(own, [] {});
    EXPECT_TRUE(FileExists(shared.WritableFolder() / "OrvaLastSession.QCF"));
    EXPECT_FALSE(FileExists(shared.InstallationFolder() / "OrvaLastSession.QCF"));
    Session next(shared, dialogs);
    EXPECT_TRUE(LoadLastSession(next));
}

} // namespace
} // namespace orva::test
