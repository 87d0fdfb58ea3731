// SPDX-License-Identifier: GPL-3.0-or-later
// Projects by clicks and keys: the window of their choice, saving, and the last session.
#include <gtest/gtest.h>

#include "shell/project_file.h"
#include "text/paths.h"
#include "text/text_file.h"
#include "ui/diagrams/diagram_window_view.h"
#include "ui/qt_dialogs.h"
#include "ui/shell/open_window.h"
#include "ui/ui_fixture.h"

namespace orva::test {
namespace {

struct OpenForm : Workbench {
    frmCmnDlg* form = nullptr;

    void SetUp() override {
        Workbench::SetUp();
        std::filesystem::create_directory(Path("Projekte"));
        session->state.dirProject = PathText(Path("Projekte"));
        ProjectFile project = ButaneProject();
        Write("Projekte/a-Butan.QCF", project);
        project.cas = "1-2-3";
        project.comment = "unbekannt";
        Write("Projekte/b-fehlt.QCF", project);
        project.cas = "74-98-6";
        project.comment = "Flasche";
        Write("Projekte/c-Propan.qcf", project);
    }
    void TearDown() override {
        Workbench::TearDown();
        std::filesystem::current_path(std::filesystem::temp_directory_path());
    }

    std::filesystem::path Path(const char* name) const { return machine.InstallationFolder() / name; }
    void Write(const char* name, const ProjectFile& project) const {
        ASSERT_TRUE(WriteFile(Path(name), WriteProject(project)));
    }
    static ProjectFile ButaneProject() {
        ProjectFile project;
        project.comment = "Füllung";
        project.database = "ORVA.Q05";
        project.cas = "106-97-8";
        project.vaporPressure = 3;
        project.eos = eosRedlichKwong;
        project.vaporization = 6;
        project.eosPriority = false;
        project.unitBasis = 3;
        project.volumeBasis = 1;
        return project;
    }

    void Open() {
        Choose("mnuData", "mnuData_LoadProject");
        form = Wait<frmCmnDlg>();
        ASSERT_NE(form, nullptr);
    }
    QListWidget* Files() const { return In<QListWidget>(form, "filOpenList"); }
    QString FieldText(const char* name) const { return In<QLineEdit>(form, name)->text(); }
    QString Shown(const char* name) const { return In<QLabel>(form, name)->text(); }
    void ClickFile(int row) const {
        const QRect place = Files()->visualItemRect(Files()->item(row));
        QTest::mouseClick(Files()->viewport(), Qt::LeftButton, {}, place.center());
    }
};

QString Words(QString text) {
    return text.remove(u'&');
}

TEST_F(OpenForm, ShowsItsTextsAndTheFilesOfTheFolder) {
    Open();
    EXPECT_EQ(form->windowTitle(), "Projekt laden (*.QCF)");
    EXPECT_TRUE(form->isModal());
    EXPECT_EQ(In<QGroupBox>(form, "fraViewStoff")->title(), "Projektinformation");
    EXPECT_EQ(Words(In<QPushButton>(form, "cmdReturn")->text()), " übergeordneter Ordner ");
    EXPECT_EQ(Words(In<QPushButton>(form, "cmdOpenOK")->text()), "OK, Laden");
    EXPECT_EQ(Words(In<QPushButton>(form, "cmdOpenCancel")->text()), "Abbrechen");
    QStringList labels;
    for (const QLabel* label : form->findChildren<QLabel*>())
        labels << Words(label->text());
    EXPECT_TRUE(labels.contains("Dateikommentar (editierbar):"));
    ASSERT_EQ(Files()->count(), 3);
    EXPECT_EQ(Files()->item(2)->text(), "c-Propan.qcf");
    EXPECT_TRUE(In<QLabel>(form, "Label5")->isVisible());
    EXPECT_FALSE(session->state.databaseLoaded) << "nothing is picked yet";
    ExpectOwnLetters(form, 7);
}

TEST_F(OpenForm, HidesTheDatabaseForDataSeries) {
    frmCmnDlg batch(OpenWithPreview(*session, "Stapel", "*.BAQ", PathText(Path("Projekte")), ""));
    batch.show();
    EXPECT_EQ(In<QGroupBox>(&batch, "fraViewStoff")->title(), "Datei-Information");
    EXPECT_FALSE(In<QLabel>(&batch, "Label4")->isVisible());
    EXPECT_FALSE(In<QLabel>(&batch, "Label5")->isVisible());
    EXPECT_EQ(In<QListWidget>(&batch, "filOpenList")->count(), 0);
}

TEST_F(OpenForm, APickedFileShowsWhatIsInIt) {
    Open();
    ClickFile(2);
    EXPECT_EQ(FieldText("txtOpenFile"), "c-Propan.qcf");
    EXPECT_EQ(Shown("Text1"), "Propan; R290");
    EXPECT_EQ(FieldText("Text2"), "Flasche");
    EXPECT_EQ(Shown("Label5"), "ORVA.Q05");
    EXPECT_TRUE(In<QPushButton>(form, "cmdOpenOK")->isEnabled());
    ClickFile(1);
    EXPECT_EQ(Shown("Text1"), "Stoff nicht in aktueller Datenbank gefunden");
    EXPECT_FALSE(In<QPushButton>(form, "cmdOpenOK")->isEnabled());
    Press(Qt::Key_Return);
    EXPECT_TRUE(form->isVisible());
    Press(Qt::Key_Up);
    EXPECT_EQ(Shown("Text1"), "n-Butan; Butan; R600");
    EXPECT_TRUE(In<QPushButton>(form, "cmdOpenOK")->isEnabled());
}

TEST_F(OpenForm, KeysAloneLoadAProject) {
    Open();
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "filOpenList");
    Press(Qt::Key_Down);
    EXPECT_EQ(FieldText("txtOpenFile"), "a-Butan.QCF");
    Press(Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    EXPECT_EQ(models->windowTitle(), " Berechnungsmodelle für n-Butan");
    EXPECT_EQ(session->state.projectFile, "a-Butan.QCF");
}

TEST_F(OpenForm, TheLoadedModelsStandInTheWindowAndComeIntoForce) {
    Open();
    ClickFile(0);
    ClickButton(form, "cmdOpenOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogs.shown.empty(); }, 2000));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, " geladen sind jetzt ... ");
    EXPECT_TRUE(dialogs.shown[0].text.find("106-97-8, n-Butan") != std::string::npos);
    EXPECT_EQ(In<QComboBox>(models, "EOSKombi")->currentText().trimmed(), "CEOS Redlich / Kwong");
    EXPECT_EQ(In<QComboBox>(models, "HLVKombi")->currentText().trimmed(), "aus Dampfdruckgl.+ Benson");
    EXPECT_TRUE(In<QRadioButton>(models, "PriorOpt(1)")->isChecked());
    EXPECT_FALSE(Command("mnuCalcMain")->isEnabled()) << "the models are to be confirmed first";
    ClickButton(models, "OKModell");
    EXPECT_TRUE(Command("mnuCalcMain")->isEnabled());
    EXPECT_EQ(session->model.selection.eos, eosRedlichKwong);
    EXPECT_FALSE(session->model.selection.eosPriority);
    EXPECT_EQ(session->options.unitBasis, 3);
    EXPECT_NE(session->model.eos.a0, 0);
    EXPECT_TRUE(In<QLabel>(window.get(), "statusPanel(3)")->text().endsWith("(Priorität!)"));
}

TEST_F(OpenForm, LeavingTheModelsKeepsTheProject) {
    Open();
    ClickFile(0);
    ClickButton(form, "cmdOpenOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    models->reject();
    EXPECT_EQ(session->model.selection.eos, eosRedlichKwong);
    EXPECT_TRUE(Command("mnuModel")->isEnabled());
    EXPECT_TRUE(Command("mnuData_SaveProject")->isEnabled());
    EXPECT_FALSE(Command("mnuCalcMain")->isEnabled());
    EXPECT_TRUE(window->findChild<QAction*>("toolbar(7)")->isEnabled());
}

TEST_F(OpenForm, ACancelLeavesTheWorkAsItWas) {
    AcceptModels("n-Butan");
    const std::string database = session->state.databaseFile;
    Open();
    ClickFile(2);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Find<frmCmnDlg>(), nullptr);
    EXPECT_EQ(session->model.substance.name, "n-Butan");
    EXPECT_EQ(session->state.databaseFile, database);
    EXPECT_TRUE(Command("mnuCalcMain")->isEnabled());
    EXPECT_EQ(Find<frmQModell>(), nullptr);
}

TEST_F(OpenForm, ClosesResultsAndDiagramsOfTheWorkBefore) {
    AcceptModels("n-Butan");
    ASSERT_NE(StartTP(), nullptr);
    Choose("mnuGraf(9)", "mnuGraf_sub_proj(6)");
    ASSERT_NE(Find<frmGraph2D>(), nullptr);
    Open();
    ClickFile(2);
    ClickButton(form, "cmdOpenOK");
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(Find<frmCalcOut>(), nullptr);
    EXPECT_EQ(Find<frmParinput>(), nullptr);
    EXPECT_EQ(Find<frmGraph2D>(), nullptr);
}

TEST_F(OpenForm, ATypedNameIsTakenAndAMissingOneTold) {
    Open();
    ClickFile(1);
    In<QLineEdit>(form, "txtOpenFile")->setFocus();
    In<QLineEdit>(form, "txtOpenFile")->selectAll();
    Type("nichts.QCF");
    EXPECT_TRUE(Files()->selectedItems().isEmpty());
    EXPECT_EQ(Shown("Text1"), "");
    EXPECT_FALSE(In<QLineEdit>(form, "Text2")->isEnabled());
    Press(Qt::Key_Return);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "Datei im ORVA-Verzeichnis nicht gefunden");
    EXPECT_EQ(FieldText("txtOpenFile"), "nichts.QCF");
    ASSERT_TRUE(form->isVisible());
    In<QLineEdit>(form, "txtOpenFile")->selectAll();
    Type("c-Propan.qcf");
    Press(Qt::Key_Return);
    EXPECT_NE(Wait<frmQModell>(), nullptr);
    EXPECT_EQ(session->model.substance.name, "Propan");
}

TEST_F(OpenForm, DeleteRemovesThePickedFileAfterAYes) {
    Open();
    ClickFile(1);
    Press(Qt::Key_Delete);
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(Files()->count(), 3);
    EXPECT_EQ(FieldText("txtOpenFile"), "b-fehlt.QCF");
    dialogs.answers = {true};
    Press(Qt::Key_Delete);
    EXPECT_EQ(Files()->count(), 2);
    EXPECT_FALSE(FileExists(Path("Projekte/b-fehlt.QCF")));
    EXPECT_EQ(FieldText("txtOpenFile"), "");
    EXPECT_TRUE(In<QPushButton>(form, "cmdOpenOK")->isEnabled());
}

TEST_F(OpenForm, WalksUpAndDownTheFolders) {
    Open();
    ClickButton(form, "cmdReturn");
    EXPECT_EQ(Files()->count(), 0);
    auto* folders = In<QListWidget>(form, "dirOpenList");
    ASSERT_EQ(folders->count(), 1);
    EXPECT_EQ(folders->item(0)->text(), "Projekte");
    folders->setFocus();
    folders->setCurrentRow(0);
    Press(Qt::Key_Return);
    EXPECT_EQ(Files()->count(), 3);
    EXPECT_TRUE(Shown("lblPath").endsWith("Projekte"));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(OpenForm, TheEditedCommentIsWrittenWithTheNextSave) {
    Open();
    ClickFile(0);
    auto* comment = In<QLineEdit>(form, "Text2");
    comment->setFocus();
    comment->selectAll();
    QTest::keyClicks(comment, "Versuch 2");
    ClickButton(form, "cmdOpenOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    ClickButton(models, "OKModell");
    dialogs.files = {PathText(Path("Projekte/neu.QCF"))};
    dialogs.texts = {"Versuch 2"};
    dialogs.shown.clear();
    window->findChild<QAction*>("toolbar(7)")->trigger();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "einmaliger allgemeiner Hinweis");
    ASSERT_EQ(dialogs.textRequests.size(), 1U);
    EXPECT_EQ(dialogs.textRequests[0].text, "Versuch 2");
    ProjectFile saved;
    ASSERT_EQ(ReadProject(ReadFile(Path("Projekte/neu.QCF")).value_or(""), saved), 32);
    EXPECT_EQ(saved.comment, "Versuch 2");
    EXPECT_EQ(saved.eos, eosRedlichKwong);
    EXPECT_FALSE(saved.eosPriority);
}

TEST_F(OpenForm, TabReachesEveryControl) {
    Open();
    ClickFile(0);
    for (const char* name :
         {"filOpenList", "dirOpenList", "txtOpenFile", "Text2", "cmdReturn", "cmdOpenOK", "cmdOpenCancel"})
        EXPECT_TRUE(WalkByTab().contains(name)) << name;
}

TEST_F(OpenForm, TheLastSessionComesBackWithoutAWindow) {
    AcceptModels("Propan");
    session->options.curvePoints = 520;
    window->close();
    window.reset();
    dialogs.shown.clear();
    Start();
    window->findChild<QAction*>("toolbar(4)")->trigger();
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    EXPECT_EQ(models->windowTitle(), " Berechnungsmodelle für Propan");
    EXPECT_EQ(session->options.curvePoints, 520);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !dialogs.shown.empty(); }, 2000));
    ClickButton(models, "OKModell");
    EXPECT_TRUE(Command("mnuCalcMain")->isEnabled());
}

// With real boxes: the one on what is loaded stands over the window of the models, which has the keyboard
// after it.
TEST_F(OpenForm, TheBoxStandsOverTheModels) {
    std::filesystem::copy_file(Path("Projekte/a-Butan.QCF"), Path("OrvaLastSession.QCF"));
    QtDialogs boxes;
    Session own(machine, boxes);
    mdiORVA main(own);
    main.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    QString text, owner;
    QTimer::singleShot(500, &main, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        text = box->text();
        owner = box->parentWidget() == nullptr ? QString() : box->parentWidget()->objectName();
        box->buttons().constFirst()->click();
    });
    main.findChild<QAction*>("mnuData_LoadLastSession")->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !text.isEmpty(); }, 3000));
    EXPECT_TRUE(text.startsWith("... Datenbank ORVA.Q05"));
    EXPECT_EQ(owner, "frmQModell");
    frmQModell* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    models->close();
}

TEST_F(OpenForm, WithoutALastSessionNothingHappens) {
    Choose("mnuData", "mnuData_LoadLastSession");
    EXPECT_EQ(Find<frmQModell>(), nullptr);
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_FALSE(session->state.databaseLoaded);
}

} // namespace
} // namespace orva::test
