// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/diagrams/diagram_window_view.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <qcustomplot.h>

#include "diagrams/diagram_fixture.h"
#include "ui/diagrams/coordinate_input_view.h"

namespace orva {
namespace {

using testing::ElementsAre;

struct Graph {
    test::MethaneDiagram d;
    DiagramWindow window;
    std::unique_ptr<frmGraph2D> view;

    explicit Graph(int eos = eosPengRobinson) : d(eos), window(d.Records(), d.dialogs) {
        window.Open(FindDiagram(1));
        view = std::make_unique<frmGraph2D>(window, d.dialogs);
        view->show();
        QTest::qWait(30);
    }
    QAction* Action(const char* name) { return view->findChild<QAction*>(name); }
    // Clicks the button of a command on the tool bar.
    void Click(const char* name) {
        auto* bar = view->findChild<QToolBar*>("tools");
        QWidget* button = bar->widgetForAction(Action(name));
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void DrawAt(double T) {
        d.request.curveT = T;
        Click("cmdDraw");
        QTest::qWait(30);
    }
    QCustomPlot& Plot() { return view->Plot(); }
    QPoint At(double v, double p) {
        return {static_cast<int>(std::lround(Plot().xAxis->coordToPixel(v))),
                static_cast<int>(std::lround(Plot().yAxis->coordToPixel(p)))};
    }
    void Drag(QPoint from, QPoint to) {
        QTest::mousePress(&Plot(), Qt::LeftButton, {}, from);
        QTest::mouseMove(&Plot(), (from + to) / 2);
        QTest::mouseMove(&Plot(), to);
        QTest::mouseRelease(&Plot(), Qt::LeftButton, {}, to);
        QTest::qWait(30);
    }
    QString Coordinates() { return view->findChild<QLabel*>("lblCoordinates")->text(); }
};

TEST(GraphWindow, ShowsTheDiagramOfItsModel) {
    Graph g;
    EXPECT_EQ(g.view->windowTitle(), "Methan (CH4) – isothermer Schnitt p - v");
    EXPECT_EQ(g.Plot().xAxis->label(), "v / (m³/kmol)");
    EXPECT_EQ(g.Plot().plottableCount(), 0);
}

TEST(GraphWindow, DrawButtonAddsCurves) {
    Graph g;
    g.DrawAt(170);
    g.DrawAt(250);
    EXPECT_EQ(g.Plot().plottableCount(), 2);
    EXPECT_EQ(g.Plot().legend->itemCount(), 2);
    EXPECT_EQ(g.Plot().plottable(1)->name(), "(2) 250.0 K");
}

TEST(GraphWindow, AsksForHelpOnItselfAndOnItsType) {
    Graph g;
    QSignalSpy wanted(g.view.get(), &frmGraph2D::HelpWanted);
    auto* button = g.view->findChild<QToolButton*>("cmdGraphHelp");
    ASSERT_NE(button, nullptr);
    ASSERT_TRUE(button->isVisible());
    QTest::mouseClick(button, Qt::LeftButton);
    g.Action("cmdGraphHelp")->trigger();
    g.Action("cmdTypeHelp")->trigger();
    ASSERT_EQ(wanted.size(), 3);
    EXPECT_EQ(wanted[0][0].toString(), "cmdGraphHelp");
    EXPECT_EQ(wanted[1][0].toString(), "cmdGraphHelp");
    EXPECT_EQ(wanted[2][0].toString(), "mnuGraf_sub_cut(1)");
}

TEST(GraphWindow, OnlyCommandsThatWorkAreEnabled) {
    Graph g;
    EXPECT_FALSE(g.Action("cmdClipboard")->isEnabled());
    EXPECT_FALSE(g.Action("mnuDelTotal")->isEnabled());
    EXPECT_FALSE(g.Action("cmdZoomReset")->isEnabled());
    EXPECT_TRUE(g.Action("cmdDraw")->isEnabled());
    g.DrawAt(250);
    EXPECT_TRUE(g.Action("cmdClipboard")->isEnabled());
    EXPECT_TRUE(g.Action("mnuDelTotal")->isEnabled());
    Graph ideal(eosIdealGas);
    EXPECT_FALSE(ideal.Action("mnuMarkB")->isEnabled());
    EXPECT_FALSE(ideal.Action("mnuMarkCritPointCalc")->isEnabled());
}

TEST(GraphWindow, TieLineAndSCurveComeFromTheirButtons) {
    Graph g;
    g.d.request.curveT = 170;
    g.Click("mnuMarkKonnode");
    g.Click("mnuMarkSKurve");
    ASSERT_EQ(g.window.Chart().curveCount, 2);
    EXPECT_EQ(g.Plot().plottable(0)->name(), "(1) Konnode V-L");
    const auto tie = qobject_cast<QCPCurve*>(g.Plot().plottable(0))->data();
    ASSERT_EQ(tie->size(), 51);
    for (const QCPCurveData& point : *tie)
        EXPECT_EQ(point.value, tie->at(0)->value);
}

TEST(GraphWindow, RefusalsReachTheUser) {
    Graph g;
    g.d.request.curveT = 300;
    g.Click("mnuMarkKonnode");
    EXPECT_THAT(g.d.dialogs.messages, ElementsAre(Message{"Ausführung nicht möglich",
                                                          "nur im V-L-Existenzgebiet möglich (T < T(cr))"}));
}

TEST(GraphWindow, WheelZoomsAndDoubleClickReturns) {
    Graph g;
    g.DrawAt(250);
    const QPoint at = g.At(0.3, 3000);
    QWheelEvent wheel(QPointF(at), g.Plot().mapToGlobal(QPointF(at)), {}, QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&g.Plot(), &wheel);
    EXPECT_TRUE(g.window.IsZoomed());
    EXPECT_LT(g.Plot().xAxis->range().size(), g.window.Chart().window.xMax);
    EXPECT_TRUE(g.Action("cmdZoomReset")->isEnabled());
    QTest::mouseDClick(&g.Plot(), Qt::LeftButton, {}, at);
    EXPECT_FALSE(g.window.IsZoomed());
    EXPECT_FLOAT_EQ(static_cast<float>(g.Plot().xAxis->range().upper), g.window.Spec().xMax);
    EXPECT_EQ(g.Plot().yAxis->range().lower, 0);
}

TEST(GraphWindow, DraggingMovesTheSheet) {
    Graph g;
    g.Drag(g.At(0.4, 3000), g.At(0.3, 2000));
    EXPECT_NEAR(g.Plot().xAxis->range().lower, 0.1, 0.01);
    EXPECT_NEAR(g.Plot().yAxis->range().lower, 1000, 60);
    EXPECT_NEAR(g.window.Chart().view.xMin, 0.1, 0.01);
    g.Click("cmdZoomReset");
    EXPECT_EQ(g.Plot().xAxis->range().lower, 0);
}

TEST(GraphWindow, LensTakesOneRectangle) {
    Graph g;
    g.Click("cmdZoom");
    EXPECT_TRUE(g.Action("cmdZoom")->isChecked());
    g.Drag(g.At(0.2, 4000), g.At(0.4, 2000));
    EXPECT_NEAR(g.Plot().xAxis->range().lower, 0.2, 0.01);
    EXPECT_NEAR(g.Plot().xAxis->range().upper, 0.4, 0.01);
    EXPECT_NEAR(g.window.Chart().view.yMax, 4000, 60);
    EXPECT_FALSE(g.Action("cmdZoom")->isChecked());
    EXPECT_EQ(g.Plot().selectionRectMode(), QCP::srmNone);
}

TEST(GraphWindow, MovingTheMouseShowsTheStateOfTheNearestPoint) {
    Graph g;
    g.DrawAt(250);
    const ChartSeries& series = g.window.Chart().Series(1);
    QTest::mouseMove(&g.Plot(), g.At(series.x[150], series.y[150]));
    QTest::qWait(30);
    const NearestPoint point{1, 151, series.x[150], series.y[150], 0};
    const std::string expected = CoordinateText(g.window.Chart(), point, g.d.options, {});
    EXPECT_EQ(g.Coordinates(),
              "(1) 250.0 K:   " + QString::fromStdString(expected).trimmed().replace("m^3", "m³"));
    EXPECT_TRUE(g.Coordinates().contains("T = 250.00 K"));
}

TEST(GraphWindow, MovingOverAnEmptySheetIsHarmless) {
    Graph g;
    QTest::mouseMove(&g.Plot(), g.At(0.3, 3000));
    QTest::qWait(10);
    EXPECT_EQ(g.Coordinates(), "Wert eingeben und zeichnen: Strg+E");
    g.DrawAt(250);
    QTest::mouseMove(&g.Plot(), g.At(0.31, 3000));
    g.Action("mnuDelTotal")->trigger(); // takes the marker of the nearest point along
    QTest::mouseMove(&g.Plot(), g.At(0.35, 3000));
    QTest::qWait(10);
    EXPECT_EQ(g.Plot().itemCount(), 0);
}

TEST(GraphWindow, PictureOnTheClipboardShowsTheCurves) {
    Graph g;
    g.DrawAt(250);
    QTest::mouseMove(&g.Plot(), g.At(0.3, 3000));
    g.Action("mnuBildClipboard")->trigger();
    const QImage image = QApplication::clipboard()->image();
    ASSERT_EQ(image.size(), g.Plot().size() * 2);
    const ChartColour c = SlotColour(1);
    int coloured = 0;
    for (int x = 0; x < image.width(); ++x)
        coloured += image.pixelColor(x, image.height() / 2) == QColor(c.red, c.green, c.blue) ? 1 : 0;
    EXPECT_GT(coloured, 0);
}

TEST(GraphWindow, CurvesAreDeletedFromTheirMenu) {
    Graph g;
    g.DrawAt(170);
    g.DrawAt(250);
    auto* menu = g.view->findChild<QMenu*>("mnuDel");
    emit menu->aboutToShow();
    auto* curves = g.view->findChild<QMenu*>("mnuSubDelKurv");
    ASSERT_EQ(curves->actions().size(), 2);
    EXPECT_EQ(curves->actions().at(0)->text(), "(1) 170.0 K ");
    curves->actions().at(0)->trigger();
    EXPECT_FALSE(g.window.Chart().IsTaken(1));
    EXPECT_EQ(g.Plot().plottableCount(), 1);
}

TEST(GraphWindow, PointsGoToTheClipboardWithHeadings) {
    Graph g;
    g.DrawAt(250);
    g.Click("cmdClipboard");
    const QStringList lines = QApplication::clipboard()->text().split('\n');
    EXPECT_EQ(lines[0], "Methan (CH4) Diagrammtyp:  isothermer Schnitt p - v, CEOS Peng / Robinson");
    EXPECT_EQ(lines[2], "(1) 250.0 K");
    EXPECT_EQ(lines[3], "v / (m^3/kmol)\tp / kPa\tT / K");
    EXPECT_EQ(lines.size(), 4 + g.window.Chart().Series(1).Count() + 1);
    for (QAction* action : g.view->findChild<QMenu*>("mnuSeparator")->actions())
        if (action->text() == "Trennzeichen Semikolon")
            action->trigger();
    g.Action("cmdClipboard")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text().split('\n')[3], "v / (m^3/kmol);p / kPa;T / K");
}

TEST(GraphWindow, SavesTheDiagramInTheFormatOfTheName) {
    Graph g;
    g.DrawAt(250);
    const QTemporaryDir folder;
    for (const char* name : {"/bild.svg", "/bild.pdf", "/bild.png"}) {
        g.d.dialogs.fileName = folder.path().toStdString() + name;
        g.Click("mnuBildFile");
        EXPECT_GT(QFile(folder.path() + name).size(), 5000) << name;
    }
    EXPECT_EQ(g.d.session.dirDiagram2D, folder.path().toStdString());
    EXPECT_TRUE(g.d.dialogs.messages.empty());
}

TEST(GraphWindow, NameWithoutExtensionBecomesAnSvg) {
    Graph g;
    const QTemporaryDir folder;
    g.d.dialogs.fileName = folder.path().toStdString() + "/bild";
    g.Click("mnuBildFile");
    EXPECT_TRUE(QFile::exists(folder.path() + "/bild.svg"));
}

TEST(GraphWindow, FailedSavingIsSaid) {
    Graph g;
    g.d.dialogs.fileName = "/nonexistent-folder/bild.svg";
    g.Click("mnuBildFile");
    g.d.dialogs.fileName = "bild.xyz";
    g.Click("mnuBildFile");
    EXPECT_THAT(
        g.d.dialogs.messages,
        ElementsAre(Message{"Ausführung nicht möglich",
                            "Die Datei kann nicht geschrieben werden:\n/nonexistent-folder/bild.svg"},
                    Message{"Ausführung nicht möglich", "Bildfiles haben die Endung .svg, .pdf oder .png."}));
}

TEST(GraphWindow, LimitsAreTypedWithCommaOrPoint) {
    Graph g;
    QTimer::singleShot(50, [] {
        auto* box = qobject_cast<frmCoord*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        box->findChild<QLineEdit*>("xMin")->setText("0,1");
        box->findChild<QLineEdit*>("xMax")->setText("0.5");
        QTest::mouseClick(box->findChild<QPushButton*>("cmdCoord_OK"), Qt::LeftButton);
        if (box->isVisible())
            box->reject();
    });
    g.Click("mnuCoord");
    EXPECT_EQ(g.window.Spec().xMin, 0.1F);
    EXPECT_EQ(g.window.Spec().xMax, 0.5F);
    EXPECT_TRUE(g.d.dialogs.messages.empty());
}

TEST(GraphWindow, MarksAreCheckedWhileTheyStand) {
    Graph g;
    g.Action("mnuMarkV")->trigger();
    EXPECT_TRUE(g.Action("mnuMarkV")->isChecked());
    EXPECT_GT(g.Plot().itemCount(), 0);
    g.Action("mnuMarkV")->trigger();
    EXPECT_FALSE(g.Action("mnuMarkV")->isChecked());
    EXPECT_EQ(g.Plot().itemCount(), 0);
}

TEST(GraphWindow, LogarithmicAxesKeepTheViewOfTheModel) {
    Graph g;
    g.DrawAt(250);
    g.Click("cmdYLog");
    EXPECT_TRUE(g.Action("cmdYLog")->isChecked());
    EXPECT_EQ(g.Plot().yAxis->scaleType(), QCPAxis::stLogarithmic);
    EXPECT_FALSE(g.window.IsZoomed());
    g.Click("cmdYLog");
    EXPECT_EQ(g.Plot().yAxis->range().lower, 0);
}

TEST(GraphWindow, AsksForTheNextValue) {
    Graph g;
    const QSignalSpy wanted(g.view.get(), &frmGraph2D::InputWanted);
    g.Click("cmdInput");
    EXPECT_EQ(wanted.count(), 1);
}

TEST(GraphWindow, SheetStaysWhiteOnADarkDesktop) {
    Graph g;
    g.view->setPalette(QPalette(QColor(0x22, 0x22, 0x22)));
    QTest::qWait(30);
    EXPECT_EQ(g.Plot().grab().toImage().pixelColor(3, 3), QColor(Qt::white));
}

TEST(GraphWindow, ModelOutlivesItsWindow) {
    Graph g;
    g.view.reset();
    g.d.request.curveT = 250;
    EXPECT_TRUE(g.window.cmdDraw());
}

} // namespace
} // namespace orva
