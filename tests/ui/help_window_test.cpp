// SPDX-License-Identifier: GPL-3.0-or-later
// The help as a user meets it: by F1, by the help buttons, by the menu, beside modal windows.
#include <gtest/gtest.h>

#include "ui/ui_fixture.h"

#include "ui/calc/diagnosis_window.h"
#include "ui/calc/iso_window.h"
#include "ui/calc/method_window.h"
#include "ui/calc/reference_window.h"
#include "ui/calc/vessel_window.h"
#include "ui/diagrams/coordinate_input_view.h"
#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/shell/help_window.h"
#include "ui/shell/options_window.h"
#include "ui/substance/virial_input_window.h"

namespace orva::test {
namespace {

struct Help : Workbench {
    void SetUp() override {
        Workbench::SetUp();
        std::filesystem::copy(std::filesystem::path(ORVA_DATABASE_DIR) / "help", HelpFolder(),
                              std::filesystem::copy_options::recursive);
    }
    void TearDown() override {
        Workbench::TearDown();
        QSettings().clear();
    }
    std::filesystem::path HelpFolder() const { return machine.InstallationFolder() / "help"; }

    static HelpBrowser* Browser(const QWidget* help) { return In<HelpBrowser>(help, "helpPage"); }

    // "model-window.html#eos" of the open help, empty if none is open.
    std::string Place() const {
        const auto* help = Find<HelpWindow>();
        if (help == nullptr)
            return "";
        const std::string anchor = Browser(help)->Anchor();
        return Browser(help)->PageName() + (anchor.empty() ? "" : "#" + anchor);
    }
    // What F1 shows in a window; the help is closed again.
    std::string PlaceByF1(QWidget* form) {
        form->activateWindow();
        WaitForKeyboard(form);
        QWidget* target = QApplication::focusWidget() != nullptr ? QApplication::focusWidget() : form;
        QTest::keyClick(target, Qt::Key_F1);
        const std::string place = Place();
        CloseHelp();
        return place;
    }
    void CloseHelp() const {
        if (auto* help = Find<HelpWindow>())
            help->close();
    }
    HelpWindow* OpenIndex() const {
        Choose("mnuHilfe", "mnuHilfe_Index");
        return Wait<HelpWindow>();
    }
    // A click that goes through the window system's side of the program, as the user's does.
    static void ClickWindow(QWidget* control) {
        QWidget* form = control->window();
        QTest::mouseClick(form->windowHandle(), Qt::LeftButton, {},
                          control->mapTo(form, control->rect().center()));
    }
    static QTreeWidgetItem* ItemOf(QTreeWidget* contents, int number) {
        for (QTreeWidgetItemIterator item(contents); *item != nullptr; ++item)
            if ((*item)->data(0, Qt::UserRole).toInt() == number)
                return *item;
        ADD_FAILURE() << "no topic " << number;
        return nullptr;
    }
};

TEST_F(Help, OpensAtItsIndexFromTheMenu) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(Place(), "index.html");
    EXPECT_EQ(help->windowTitle(), "ORVA-Hilfe");
    EXPECT_TRUE(Browser(help)->toPlainText().contains("ORVA berechnet Zustände"));
    EXPECT_EQ(OpenIndex(), help) << "one window, however often it is opened";
}

TEST_F(Help, OpensOnTheRightPageByF1InEveryWindow) {
    EXPECT_EQ(PlaceByF1(window.get()), "main-window.html");
    frmStoffWahl* substances = OpenDatabase();
    ASSERT_NE(substances, nullptr);
    EXPECT_EQ(PlaceByF1(substances), "substance-window.html#name");
    In<QLineEdit>(substances, "Text1")->setFocus();
    EXPECT_EQ(PlaceByF1(substances), "substance-window.html#number");
    In<QComboBox>(substances, "NameCombo")->setEditText("n-Butan");
    ClickButton(substances, "StoffOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    EXPECT_EQ(PlaceByF1(models), "model-window.html#eos");
    In<QComboBox>(models, "pKombi")->setFocus();
    EXPECT_EQ(PlaceByF1(models), "model-window.html#vapour-pressure");
    auto* eos = In<QComboBox>(models, "EOSKombi");
    emit eos->activated(eos->findText("VIRIAL-Gl. Hand-Eingabe"));
    auto* virial = Wait<frmBParInput>();
    ASSERT_NE(virial, nullptr);
    EXPECT_EQ(PlaceByF1(virial), "virial-input.html");
    ClickButton(virial, "cancel");
    emit eos->activated(eos->findText("CEOS Peng / Robinson"));
    ClickButton(models, "OKModell");

    auto* input = StartTP();
    ASSERT_NE(input, nullptr);
    EXPECT_EQ(PlaceByF1(input), "point-input.html");
    EXPECT_EQ(PlaceByF1(Find<frmCalcOut>()), "report.html");
    Find<frmCalcOut>()->close();

    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* box = Wait<frmTpVSInputBox>();
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(PlaceByF1(box), "value-input.html");
    box->close();
    auto* graph = Find<frmGraph2D>();
    ASSERT_NE(graph, nullptr);
    const std::string inGraph = PlaceByF1(graph);
    EXPECT_TRUE(inGraph == "diagram-window.html" || inGraph == "diagram-window.html#mouse") << inGraph;
    std::string inLimits;
    QTimer::singleShot(100, [&] {
        QWidget* limits = QApplication::activeModalWidget();
        ASSERT_NE(limits, nullptr);
        inLimits = PlaceByF1(limits);
        limits->close();
    });
    graph->findChild<QAction*>("mnuCoord")->trigger();
    EXPECT_EQ(inLimits, "diagram-window.html#coordinates");
}

TEST_F(Help, OpensByF1OrByItsButtonInTheWindowsOfTheCalculations) {
    AcceptModels("n-Butan");
    Choose("mnuCalcMain", "mnuCalc(5)");
    auto* method = Wait<frmCalcIn>();
    ASSERT_NE(method, nullptr);
    EXPECT_EQ(PlaceByF1(method), "global-partial.html#window");
    ClickButton(method, "OK");
    auto* input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    In<QLineEdit>(input, "par(0)")->setText("350");
    ClickButton(input, "cmdParameter_OK");
    ClickButton(Find<frmCalcOut>(), "cmdCEOSDiagnose");
    auto* diagnosis = Wait<frmCEOSDiagnose>();
    ASSERT_NE(diagnosis, nullptr);
    EXPECT_EQ(PlaceByF1(diagnosis), "diagnosis.html");
    Find<frmCalcOut>()->close();

    Choose("mnuCalcMain", "mnuCalc(11)");
    input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    In<QLineEdit>(input, "par(0)")->setText("350");
    In<QLineEdit>(input, "par(1)")->setText("100");
    ClickButton(input, "cmdParameter_OK");
    ClickButton(Find<frmCalcOut>(), "cmdIsoCalc");
    auto* inversion = Wait<frmIsoCalc>();
    ASSERT_NE(inversion, nullptr);
    EXPECT_EQ(PlaceByF1(inversion), "inversion.html");
    Click(In<QToolButton>(inversion, "cmdIsoHelp"));
    EXPECT_EQ(Place(), "inversion.html");
    CloseHelp();
    Find<frmCalcOut>()->close();

    Choose("mnuCalcMain", "mnuCalc(15)");
    input = Wait<frmParinput>();
    ASSERT_NE(input, nullptr);
    In<QLineEdit>(input, "par(0)")->setText("0.1");
    In<QLineEdit>(input, "par(1)")->setText("20");
    In<QLineEdit>(input, "par(3)")->setText("300");
    ClickButton(input, "cmdParameter_OK");
    auto* vessel = Wait<frmKessel>();
    ASSERT_NE(vessel, nullptr);
    EXPECT_EQ(PlaceByF1(vessel), "vessel.html#picture");
    Find<frmCalcOut>()->close();
}

TEST_F(Help, OpensByF1AndByItsButtonsInOptionsAndReference) {
    AcceptModels("n-Butan");
    Command("mnuOptions")->trigger();
    auto* options = Wait<frmOptions>();
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(PlaceByF1(options), "options.html#mode");
    for (const auto& [button, place] :
         {std::pair{"cmdRealBreichHelp", "options.html#real-range"}, {"cmdReferenzHelp", "reference.html"}}) {
        Click(In<QToolButton>(options, button));
        EXPECT_EQ(Place(), place);
        CloseHelp();
    }
    ClickButton(options, "Command1");
    auto* reference = Wait<frmReferenz>();
    ASSERT_NE(reference, nullptr);
    EXPECT_EQ(PlaceByF1(reference), "reference.html#kinds");
    Click(In<QToolButton>(reference, "cmdRefHelp"));
    EXPECT_EQ(Place(), "reference.html");
    CloseHelp();
    reference->close();
}

TEST_F(Help, OpensByF1OnTheCommandOfAnOpenMenuAndOnItself) {
    AcceptModels("n-Butan");
    auto* menu = window->findChild<QMenu*>("mnuCalcMain");
    menu->popup(window->mapToGlobal(QPoint(20, 40)));
    menu->setActiveAction(Command("mnuCalc(2)"));
    QTest::keyClick(menu, Qt::Key_F1);
    EXPECT_EQ(Place(), "calculations.html#states");
    EXPECT_FALSE(menu->isVisible());
    QTest::keyClick(Browser(Find<HelpWindow>()), Qt::Key_F1);
    EXPECT_EQ(Place(), "help-window.html");
}

TEST_F(Help, OpensByEveryHelpButton) {
    frmStoffWahl* substances = OpenDatabase();
    ASSERT_NE(substances, nullptr);
    ClickButton(substances, "Hilfe");
    EXPECT_EQ(Place(), "substance-window.html");
    CloseHelp();
    In<QComboBox>(substances, "NameCombo")->setEditText("n-Butan");
    ClickButton(substances, "StoffOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    for (const auto& [name, section] : {std::pair{"EOSHilfe", "eos"},
                                        {"pHilfe", "vapour-pressure"},
                                        {"PriorHilfe", "priority"},
                                        {"HLVHilfe", "vaporisation"},
                                        {"cpHilfe", "heat-capacity"},
                                        {"RhoLHilfe", "liquid-density"}}) {
        auto* button = In<QToolButton>(models, name);
        ASSERT_TRUE(button->isEnabled()) << name;
        Click(button);
        EXPECT_EQ(Place(), std::string("model-window.html#") + section);
        CloseHelp();
    }
}

// Windows that come later are held to it as soon as they are opened here.
TEST_F(Help, KnowsEveryHelpButtonOfEveryWindow) {
    frmStoffWahl* substances = OpenDatabase();
    ASSERT_NE(substances, nullptr);
    ClickButton(substances, "StoffOK");
    ASSERT_NE(Wait<frmQModell>(), nullptr);
    int count = 0;
    for (QWidget* form : QApplication::topLevelWidgets())
        for (const QToolButton* button : form->findChildren<QToolButton*>())
            if (button->text() == "?") {
                const std::string name = FromQt(button->objectName());
                EXPECT_NE(HelpTopicOf(FromQt(form->objectName()), name), nullptr) << name;
                EXPECT_TRUE(button->isEnabled()) << name;
                ++count;
            }
    EXPECT_GE(count, 6);
}

// Names of help buttons end in "Hilfe", "Help" or "HELP", wherever a window is built.
TEST(HelpButtons, OfAllWindowsHaveTheirTopics) {
    const QRegularExpression name(QStringLiteral("\"(\\w*(?:Hilfe|Help|HELP))\""));
    QDirIterator sources(QStringLiteral(ORVA_UI_SOURCE_DIR), {QStringLiteral("*.cpp")}, QDir::Files,
                         QDirIterator::Subdirectories);
    QSet<QString> names;
    while (sources.hasNext()) {
        QFile file(sources.next());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        for (auto match = name.globalMatch(text); match.hasNext();)
            names << match.next().captured(1);
    }
    EXPECT_GE(names.size(), 7);
    names.remove(QStringLiteral("Hilfe")); // of frmStoffWahl, and the tip of all help buttons
    EXPECT_NE(HelpTopicOf("frmStoffWahl", "Hilfe"), nullptr);
    for (const QString& found : names)
        EXPECT_NE(HelpTopicOf("", FromQt(found)), nullptr) << FromQt(found);
}

TEST_F(Help, StaysUsableBesideAModalWindow) {
    frmQModell* models = ChooseSubstance("n-Butan");
    ASSERT_NE(models, nullptr);
    ASSERT_EQ(models->windowModality(), Qt::ApplicationModal);
    Click(In<QToolButton>(models, "pHilfe"));
    auto* help = Wait<HelpWindow>();
    ASSERT_NE(help, nullptr);
    EXPECT_FALSE(help->isModal());
    ClickWindow(In<QToolButton>(help, "helpHome"));
    EXPECT_EQ(Place(), "index.html");
    ClickWindow(In<QToolButton>(help, "helpBack"));
    EXPECT_EQ(Place(), "model-window.html#vapour-pressure");
    ClickWindow(In<QPushButton>(models, "OKModell"));
    EXPECT_EQ(Find<frmQModell>(), nullptr) << "the modal window is usable as well";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(help->isVisible()) << "the help outlives the window that it was opened from";
    ClickWindow(In<QToolButton>(help, "helpHome"));
    EXPECT_EQ(Place(), "index.html");
}

TEST_F(Help, OpenBeforeAModalWindowStaysUsableToo) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    frmQModell* models = ChooseSubstance("n-Butan");
    ASSERT_NE(models, nullptr);
    QTest::qWait(20);
    QTreeWidgetItem* item = ItemOf(In<QTreeWidget>(help, "helpContents"), 212);
    auto* contents = In<QTreeWidget>(help, "helpContents");
    contents->scrollToItem(item);
    QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {},
                      contents->viewport()->mapTo(help, contents->visualItemRect(item).center()));
    EXPECT_EQ(Place(), "model-window.html#vapour-pressure");
}

TEST_F(Help, ContentsReachEveryTopicInBothLanguages) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    auto* contents = In<QTreeWidget>(help, "helpContents");
    for (const int row : {0, 1}) {
        In<QComboBox>(help, "helpLanguage")->setCurrentIndex(row);
        emit In<QComboBox>(help, "helpLanguage")->activated(row);
        for (const HelpTopic& topic : HelpTopics()) {
            QTreeWidgetItem* item = ItemOf(contents, topic.number);
            ASSERT_NE(item, nullptr);
            contents->setCurrentItem(item);
            const HelpLanguage language = row == 0 ? HelpLanguage::German : HelpLanguage::English;
            EXPECT_EQ(item->text(0), ToQt(TitleOf(topic, language)));
            EXPECT_EQ(Browser(help)->PageName(), topic.page);
            EXPECT_EQ(Browser(help)->Anchor(), topic.anchor);
            EXPECT_EQ(contents->currentItem(), item);
            EXPECT_TRUE(Browser(help)->toPlainText().size() > 150) << topic.page;
        }
    }
}

TEST_F(Help, ScrollsToTheSection) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    help->resize(900, 400);
    help->Open(*FindHelpTopic(204));
    QTest::qWait(20);
    const QTextCursor top = Browser(help)->cursorForPosition(QPoint(5, 12));
    EXPECT_EQ(top.block().text(), "Schreibregeln der Suche");
}

TEST_F(Help, SearchesAsTheUserTypesAndMarksTheWords) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    QTest::keyClick(Browser(help), Qt::Key_F, Qt::ControlModifier);
    auto* search = In<QLineEdit>(help, "helpSearch");
    EXPECT_TRUE(search->hasFocus());
    Type("Waermekapazitaet");
    auto* results = In<QListWidget>(help, "helpResults");
    ASSERT_TRUE(results->isVisible());
    ASSERT_GT(results->count(), 3);
    EXPECT_EQ(results->item(0)->text(), "Wärmekapazitäten");
    Press(Qt::Key_Return);
    EXPECT_EQ(Place(), "heat-capacity.html");
    const auto marks = Browser(help)->extraSelections();
    ASSERT_FALSE(marks.isEmpty());
    for (const auto& mark : marks)
        EXPECT_EQ(mark.cursor.selectedText().left(14).toLower(), "wärmekapazität");
    Press(Qt::Key_Down);
    EXPECT_NE(Place(), "heat-capacity.html");

    search->setText("gibtesnichtwort");
    ASSERT_EQ(results->count(), 1);
    EXPECT_EQ(results->item(0)->text(), "Nichts gefunden.");
    search->clear();
    EXPECT_TRUE(In<QTreeWidget>(help, "helpContents")->isVisible());
    EXPECT_TRUE(Browser(help)->extraSelections().isEmpty());
}

TEST_F(Help, MarksWordsBehindCharactersOutsideOfTheBasicPlane) {
    const QString path = QString::fromStdString((HelpFolder() / "de" / "index.html").string());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<html><body><p>\xF0\x9D\x91\x9D und Nadel</p></body></html>");
    file.close();
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    In<QLineEdit>(help, "helpSearch")->setText("nadel");
    ASSERT_EQ(Browser(help)->extraSelections().size(), 1);
    EXPECT_EQ(Browser(help)->extraSelections().front().cursor.selectedText(), "Nadel");
}

TEST_F(Help, GoesBackAndForwardByButtonsAndKeys) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    EXPECT_FALSE(In<QToolButton>(help, "helpBack")->isEnabled());
    help->Open(*FindHelpTopic(350));
    help->Open(*FindHelpTopic(620));
    Click(In<QToolButton>(help, "helpBack"));
    EXPECT_EQ(Place(), "eos-peng-robinson.html");
    QTest::keyClick(Browser(help), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Place(), "index.html");
    QTest::keyClick(Browser(help), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Place(), "eos-peng-robinson.html");
    QTest::keyClick(Browser(help), Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Place(), "index.html");
}

TEST_F(Help, ChangesTheLanguageOnTheSpotAndBackWithTheHistory) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    help->Open(*FindHelpTopic(213));
    auto* languages = In<QComboBox>(help, "helpLanguage");
    languages->setCurrentIndex(1);
    emit languages->activated(1);
    EXPECT_EQ(Place(), "model-window.html#priority");
    EXPECT_TRUE(Browser(help)->toPlainText().contains("Priority in phase equilibrium"));
    EXPECT_EQ(help->windowTitle(), "ORVA Help");
    EXPECT_EQ(In<QTreeWidget>(help, "helpContents")->topLevelItem(0)->text(0), "Getting started");
    Click(In<QToolButton>(help, "helpBack"));
    EXPECT_TRUE(Browser(help)->toPlainText().contains("Priorität beim Phasengleichgewicht"));
    EXPECT_EQ(help->windowTitle(), "ORVA-Hilfe");
    EXPECT_EQ(languages->currentIndex(), 0);
}

TEST_F(Help, RemembersSizeLanguageAndZoomAndClosesByEsc) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    help->resize(901, 555);
    const double ordinary = Browser(help)->font().pointSizeF();
    Click(In<QToolButton>(help, "helpLarger"));
    Click(In<QToolButton>(help, "helpLarger"));
    EXPECT_EQ(In<QLabel>(help, "helpZoom")->text(), "120 %");
    EXPECT_NEAR(Browser(help)->font().pointSizeF(), 1.2 * ordinary, 1e-6);
    emit In<QComboBox>(help, "helpLanguage")->activated(1);
    QTest::keyClick(Browser(help), Qt::Key_Escape);
    EXPECT_EQ(Find<HelpWindow>(), nullptr);
    window.reset();
    Start();
    help = OpenIndex();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(help->size(), QSize(901, 555));
    EXPECT_EQ(help->windowTitle(), "ORVA Help");
    EXPECT_EQ(In<QLabel>(help, "helpZoom")->text(), "120 %");
    QTest::keyClick(Browser(help), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(In<QLabel>(help, "helpZoom")->text(), "100 %");
}

TEST_F(Help, SaysWhichPageIsMissing) {
    std::filesystem::remove_all(HelpFolder());
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    const QString text = Browser(help)->toPlainText();
    EXPECT_TRUE(text.startsWith("Hilfeseite nicht gefunden")) << FromQt(text);
    EXPECT_TRUE(text.contains("Die Seite „Willkommen“ fehlt."));
    EXPECT_TRUE(text.contains("index.html"));
    In<QLineEdit>(help, "helpSearch")->setText("Dampf");
    EXPECT_EQ(In<QListWidget>(help, "helpResults")->item(0)->text(), "Nichts gefunden.");
}

TEST_F(Help, FollowsTheColoursOfTheDesktop) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    const auto inkOfHeading = [&] {
        return Browser(help)->document()->firstBlock().begin().fragment().charFormat().foreground().color();
    };
    const QColor light = inkOfHeading();
    QPalette dark = help->palette();
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::Text, QColor(225, 227, 230));
    Browser(help)->setPalette(dark);
    EXPECT_LT(light.lightness(), 128);
    EXPECT_GT(inkOfHeading().lightness(), 128);
}

TEST_F(Help, ShowsItsPictures) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    for (const HelpTopic& topic : HelpTopics()) {
        if (!topic.anchor.empty())
            continue;
        help->Open(topic);
        for (QTextBlock block = Browser(help)->document()->begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (const QTextImageFormat image = part.fragment().charFormat().toImageFormat();
                    image.isValid()) {
                    const QVariant data =
                        Browser(help)->loadResource(QTextDocument::ImageResource, image.name());
                    EXPECT_FALSE(data.value<QImage>().isNull()) << FromQt(image.name());
                }
    }
}

TEST_F(Help, PicturesFitThePage) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    for (const int width : {760, 1300, 900}) {
        help->resize(width, 600);
        QTest::qWait(20);
        EXPECT_EQ(Browser(help)->horizontalScrollBar()->maximum(), 0) << width;
    }
}

TEST_F(Help, IsListedAmongTheWindowsAndClosesWithTheProgram) {
    HelpWindow* help = OpenIndex();
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(window->IsFormOpen("helpWindow"));
    auto* windows = window->findChild<QMenu*>("mnuWindow");
    emit windows->aboutToShow();
    EXPECT_EQ(windows->actions().front()->text(), "ORVA-Hilfe");
    Command("mnuData_Exit")->trigger();
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(Find<HelpWindow>(), nullptr);
}

} // namespace
} // namespace orva::test
