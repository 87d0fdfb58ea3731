// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of every window for people to look at, on light and on dark ground, and what can be said of them
// without looking: no text is cut off.
#include <gtest/gtest.h>

#include "ui/dark_palette.h"
#include "ui/ui_fixture.h"

#include "shell/project.h"
#include "shell/status_texts.h"
#include "ui/calc/method_window.h"
#include "ui/calc/reference_window.h"
#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/qt_dialogs.h"
#include "ui/shell/help_window.h"
#include "ui/shell/open_window.h"
#include "ui/shell/options_window.h"
#include "ui/shell/tip_window.h"
#include "ui/substance/virial_input_window.h"

namespace orva::test {
namespace {

struct Screenshots : Workbench, testing::WithParamInterface<const char*> {
    void SetUp() override {
        light = QApplication::palette();
        if (GetParam() == std::string("dunkel"))
            QApplication::setPalette(DarkPalette());
        Workbench::SetUp();
    }
    void TearDown() override {
        Workbench::TearDown();
        QApplication::setPalette(light);
    }

    void Shoot(QWidget* form, const char* name) {
        ASSERT_NE(form, nullptr) << name;
        QTest::qWait(30);
        const QString folder = QStringLiteral(ORVA_SCREENSHOT_DIR);
        ASSERT_TRUE(QDir().mkpath(folder));
        const QPixmap picture = form->grab();
        EXPECT_TRUE(picture.save(QStringLiteral("%1/%2-%3.png").arg(folder, name, GetParam())));
        if (qobject_cast<QFileDialog*>(form)
            != nullptr) // the toolkit squeezes its picture buttons on purpose
            return;
        for (const QAbstractButton* button : form->findChildren<QAbstractButton*>())
            EXPECT_TRUE(!button->isVisible() || qobject_cast<QLineEdit*>(button->parentWidget()) != nullptr
                        || button->width() >= button->minimumSizeHint().width())
                << FromQt(button->objectName());
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            const bool mayBeCut = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
            EXPECT_TRUE(!label->isVisible() || mayBeCut || label->wordWrap()
                        || label->width() >= label->sizeHint().width())
                << FromQt(label->text());
        }
    }

    // The method of an equilibrium and what comes of it, a vessel, and the whole of a report.
    void ShootEquilibrium() {
        Choose("mnuCalcMain", "mnuCalc(5)");
        auto* method = Wait<frmCalcIn>();
        ASSERT_NE(method, nullptr);
        Shoot(method, "18-frmCalcIn-global");
        Click(In<QRadioButton>(method, "opt_glob(1)"));
        Shoot(method, "19-frmCalcIn-partial");
        Click(In<QRadioButton>(method, "opt_glob(0)"));
        ClickButton(method, "OK");
        auto* input = Wait<frmParinput>();
        ASSERT_NE(input, nullptr);
        In<QLineEdit>(input, "par(0)")->setText("350");
        ClickButton(input, "cmdParameter_OK");
        Click(In<QCheckBox>(Find<frmCalcOut>(), "ResPlus(1)"));
        Shoot(Find<frmCalcOut>(), "20-frmCalcOut-Gleichgewicht");
        Find<frmCalcOut>()->close();
        Choose("mnuCalcMain", "mnuCalc(15)");
        input = Wait<frmParinput>();
        ASSERT_NE(input, nullptr);
        In<QLineEdit>(input, "par(0)")->setText("0.1");
        In<QLineEdit>(input, "par(1)")->setText("10");
        In<QLineEdit>(input, "par(3)")->setText("350");
        Shoot(input, "21-frmParinput-Behaelter");
        ClickButton(input, "cmdParameter_OK");
        Shoot(Find<frmCalcOut>(), "22-frmCalcOut-Behaelter");
        Find<frmCalcOut>()->close();
        Choose("mnuCalcMain", "mnuCalc(0)");
        input = Wait<frmParinput>();
        ASSERT_NE(input, nullptr);
        Shoot(input, "23-frmParinput-Dichte");
        input->close();
        Find<frmCalcOut>()->close();
    }

    // A menu as it drops down, with what the session allows.
    void ShootMenu(const char* key, const char* name) {
        auto* menu = window->findChild<QMenu*>(QLatin1String(key));
        ASSERT_NE(menu, nullptr) << key;
        menu->popup(window->mapToGlobal(QPoint(20, 30)));
        Shoot(menu, name);
        menu->hide();
    }

    // A box of the desktop that `open` waits in.
    template<typename Open> void ShootBox(const char* name, Open open) {
        QTimer::singleShot(0, qApp, [this, name] {
            QWidget* box = QApplication::activeModalWidget();
            Shoot(box, name);
            if (box != nullptr)
                box->close();
        });
        open();
    }

    QPalette light;
};

TEST_P(Screenshots, OfStartAndHelpShowTheirTextsWhole) {
    std::filesystem::copy_file(std::filesystem::path(ORVA_DATABASE_DIR) / "ORVATIPS.TXT",
                               machine.InstallationFolder() / "ORVATIPS.TXT");
    window->StartUp();
    frmTip* tips = Wait<frmTip>();
    ASSERT_NE(tips, nullptr);
    Shoot(tips, "20-frmTip");
    ClickButton(tips, "cmdTipsZeigen");
    Shoot(tips, "21-frmTip-Tipp");
    tips->close();
    window->resize(window->minimumSize());
    Shoot(window.get(), "22-mdiORVA-klein");
    ShootMenu("mnuData", "23-mnuData");
    ShootMenu("mnuJOBACK", "24-mnuJOBACK");
    ShootMenu("mnuHilfe", "25-mnuHilfe");
    ShootMenu("mnuWindow", "26-mnuWindow");
}

TEST_P(Screenshots, OfMenusShowTheirTextsWhole) {
    AcceptModels("n-Butan");
    ShootMenu("mnu2D", "30-mnu2D");
    ShootMenu("mnuGraf(0)", "31-mnuGraf");
    ShootMenu("mnu3D", "32-mnu3D");
    ShootMenu("mnuCalcMain", "33-mnuCalcMain");
    ShootMenu("mnuCalc(20)", "34-mnuCalc-Datenbankfunktionen");
}

TEST_P(Screenshots, OfBoxesShowTheirTextsWhole) {
    AcceptModels("n-Butan");
    QtDialogs boxes;
    ShootBox("40-Status", [&] { boxes.Show(StatusMessage(*session)); });
    ShootBox("41-Parameter-EOS", [&] { boxes.Show(EosParametersMessage(*session)); });
    ShootBox("42-Ueber-das-Programm", [&] { boxes.Show(AboutMessage()); });
    std::array<double, resultCount> results{};
    session->protocol.Record(results, session->Calculation());
    Start(); // as after a crash
    dialogs.asked.clear();
    window->StartUp();
    ASSERT_EQ(dialogs.asked.size(), 1U);
    ShootBox("43-Protokoll-wiederherstellen", [&] { boxes.Ask(dialogs.asked[0]); });
    ShootBox("44-Texteingabe", [&] {
        boxes.InputText(
            {" Datei-Kommentar (optional) ", "Eingabe Kommentartext\n<Abbrechen> = kein Kommentar", ""});
    });
    ShootBox("45-Datei", [&] {
        FileRequest request{"Datenbank auswählen und laden", "Datenbank (*.Q05)|*.Q05", "", "", ""};
        request.folder = machine.InstallationFolder().string();
        boxes.ChooseFile(request);
    });
}

TEST_P(Screenshots, OfTheRoadShowTheirTextsWhole) {
    Shoot(window.get(), "01-mdiORVA-Start");
    QTest::mouseClick(In<QToolButton>(window.get(), "cmdErstnutzer"), Qt::LeftButton);
    Shoot(window.get(), "02-mdiORVA-Erstnutzer");
    QTest::mouseClick(In<QToolButton>(window.get(), "cmdErstnutzer"), Qt::LeftButton);
    frmStoffWahl* substances = OpenDatabase();
    ASSERT_NE(substances, nullptr);
    In<SubstanceListView>(substances, "StoffListe")->SelectRow(FindByCas(session->List(), "106-97-8") - 1);
    Shoot(substances, "03-frmStoffWahl");
    ClickButton(substances, "StoffOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    auto* hLV = In<QComboBox>(models, "HLVKombi");
    emit hLV->activated(hLV->findText("Watson-Korrelation"));
    Shoot(models, "04-frmQModell");
    frmBParInput hand({0.0758, 2.31e4, 1.75}, dialogs);
    hand.show();
    Shoot(&hand, "05-frmBParInput");
    hand.close();
    ClickButton(models, "OKModell");
    Shoot(window.get(), "06-mdiORVA-bereit");

    Command("mnuOptions")->trigger();
    auto* options = Wait<frmOptions>();
    ASSERT_NE(options, nullptr);
    Shoot(options, "15-frmOptions");
    ClickButton(options, "Command1");
    auto* reference = Wait<frmReferenz>();
    ASSERT_NE(reference, nullptr);
    Shoot(reference, "16-frmReferenz-frei");
    Click(In<QRadioButton>(reference, "opt_HNull(1)"));
    Shoot(reference, "17-frmReferenz-Bildung");
    ClickButton(reference, "Esc");

    auto* input = StartTP();
    ASSERT_NE(input, nullptr);
    for (const auto& [T, p, name] : {std::tuple{"300", "100", "07-frmCalcOut-Dampf"},
                                     {"300", "500", "08-frmCalcOut-Fluessigkeit"},
                                     {"500", "6000", "09-frmCalcOut-ueberkritisch"},
                                     {"300", "", "10-frmCalcOut-Fehler"}}) {
        In<QLineEdit>(input, "par(0)")->setText(T);
        In<QLineEdit>(input, "par(1)")->setText(p);
        ClickButton(input, "cmdParameter_OK");
        Shoot(Find<frmCalcOut>(), name);
    }
    Shoot(input, "11-frmParinput");
    input->close();
    Find<frmCalcOut>()->close();

    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* box = Wait<frmTpVSInputBox>();
    ASSERT_NE(box, nullptr);
    for (const char* T : {"380", "425.1", "450"}) {
        In<QLineEdit>(box, "txtValue")->setText(T);
        ClickButton(box, "cmdOKAndDraw");
    }
    Shoot(box, "12-frmTpVSInputBox");
    auto* graph = Find<frmGraph2D>();
    Shoot(graph, "13-frmGraph2D");
    ShootBox("14-frmCoord", [graph] { graph->findChild<QAction*>("mnuCoord")->trigger(); });
    ShootEquilibrium();
    std::filesystem::create_directory_symlink(std::filesystem::path(ORVA_DATABASE_DIR) / "help",
                                              machine.InstallationFolder() / "help");
    Command("mnuHilfe_Index")->trigger();
    auto* help = Wait<HelpWindow>();
    Shoot(help, "30-helpWindow");
    help->Open(*HelpTopicOf("frmQModell", ""));
    Shoot(help, "31-helpWindow-Bild");
    help->Open(*FindHelpTopic("eos-peng-robinson.html", ""));
    Shoot(help, "32-helpWindow-Formeln");
    In<QLineEdit>(help, "helpSearch")->setText("Dampfdruck");
    help->Open(*FindHelpTopic("vaporisation.html", ""));
    Shoot(help, "33-helpWindow-Suche");
    help->Open(*FindHelpTopic("report.html", "functions"));
    Shoot(help, "34-helpWindow-Bericht");
}

TEST_P(Screenshots, OfTheProjectsShowTheirTextsWhole) {
    AcceptModels("n-Butan");
    const auto folder = machine.InstallationFolder() / "Projekte";
    std::filesystem::create_directories(folder / "2025");
    session->state.dirProject = folder.string();
    for (const char* name : {"Butan-Lager.QCF", "Flüssiggas.QCF", "Kreisprozess.QCF"}) {
        dialogs.texts = {"Lagertank 3, Füllung bei 20 °C"};
        ASSERT_TRUE(SaveProject(*session, name));
    }
    Command("mnuData_LoadProject")->trigger();
    auto* open = Wait<frmCmnDlg>();
    ASSERT_NE(open, nullptr);
    In<QListWidget>(open, "filOpenList")->setCurrentRow(1);
    Shoot(open, "24-frmCmnDlg");
    open->close();
}

INSTANTIATE_TEST_SUITE_P(Palette, Screenshots, testing::Values("hell", "dunkel"),
                         [](const auto& chosen) { return std::string(chosen.param); });

} // namespace
} // namespace orva::test
