// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/diagram_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diagrams/diagram_fixture.h"

namespace orva {
namespace {

using test::MethaneDiagram;
using testing::ElementsAre;
using testing::IsEmpty;

struct OpenWindow {
    MethaneDiagram d;
    DiagramWindow window;

    explicit OpenWindow(int eos = eosPengRobinson, int volumeBasis = 0)
        : d(eos, volumeBasis), window(d.Records(), d.dialogs) {
        window.Open(FindDiagram(1));
    }
    bool DrawAt(double T) {
        d.request.curveT = T;
        return window.cmdDraw();
    }
};

Message Refusal(const std::string& text) {
    return {"Ausführung nicht möglich", text};
}

TEST(DiagramWindow, OpensWithTheTitlesOfTheType) {
    OpenWindow w;
    const ChartDocument& chart = w.window.Chart();
    EXPECT_EQ(chart.xTitle, "v / (m^3/kmol)");
    EXPECT_EQ(chart.yTitle, "p / kPa");
    EXPECT_THAT(chart.headingLines, ElementsAre("Methan (CH4)", " Diagrammtyp:  isothermer Schnitt p - v",
                                                ", CEOS Peng / Robinson"));
    EXPECT_EQ(chart.window.xMax, w.d.spec.xMax);
    EXPECT_EQ(chart.curveCount, 0);
    EXPECT_FALSE(w.window.Open(nullptr));
}

TEST(DiagramWindow, DrawsSeveralTemperaturesInOneDiagram) {
    OpenWindow w;
    EXPECT_TRUE(w.DrawAt(150));
    EXPECT_TRUE(w.DrawAt(190.564));
    EXPECT_TRUE(w.DrawAt(250));
    const ChartDocument& chart = w.window.Chart();
    EXPECT_EQ(chart.curveCount, 3);
    EXPECT_EQ(chart.Series(1).legend, "(1) 150.0 K ");
    EXPECT_EQ(chart.Series(2).legend, "(2) 190.56 K ");
    EXPECT_EQ(chart.Series(3).legend, "(3) 250.0 K ");
    EXPECT_EQ(chart.Series(3).Z(1), 250.0F);
    EXPECT_NE(chart.Series(1).colour, chart.Series(2).colour);
    EXPECT_GT(chart.Series(1).labelPoint, 0);
    EXPECT_THAT(w.d.dialogs.messages, IsEmpty());
}

TEST(DiagramWindow, RefusesTheTwentyFifthCurveAndChangesNoSlot) {
    OpenWindow w;
    for (int i = 0; i < 24; ++i)
        ASSERT_TRUE(w.DrawAt(160 + i));
    EXPECT_THAT(w.d.dialogs.messages, IsEmpty());
    EXPECT_FALSE(w.DrawAt(200));
    EXPECT_THAT(w.d.dialogs.messages,
                ElementsAre(Message{"WARNUNG", "Maximal 24 Kurven möglich\nLöschen Sie vorhandene Kurven"}));
    EXPECT_EQ(w.window.Chart().curveCount, 24);
    EXPECT_EQ(w.window.Chart().Series(24).legend, "(24) 183.0 K ");
}

TEST(DiagramWindow, ReusesDeletedSlotsLowestFirst) {
    OpenWindow w;
    for (int i = 0; i < 4; ++i)
        w.DrawAt(150 + i);
    w.window.mnuSubDelKurv(3);
    w.window.mnuSubDelKurv(1);
    EXPECT_EQ(w.window.Chart().curveCount, 2);
    w.DrawAt(200);
    w.DrawAt(201);
    EXPECT_EQ(w.window.Chart().Series(1).legend, "(1) 200.0 K ");
    EXPECT_EQ(w.window.Chart().Series(3).legend, "(3) 201.0 K ");
    w.window.mnuDelTotal();
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(DiagramWindow, WarnsOfACurveOutsideTheWindowAndStoresIt) {
    OpenWindow w;
    ASSERT_TRUE(w.window.cmdCoord_OK({0.1, 0.2, 1e6, 2e6}));
    EXPECT_TRUE(w.DrawAt(250));
    EXPECT_THAT(
        w.d.dialogs.messages,
        ElementsAre(Message{"WARNUNG", "Kurve befindet sich nicht im eingestellten Koordinatenfenster\n"
                                       "Vergrößern Sie das Koordinatenfenster."}));
    EXPECT_EQ(w.window.Chart().curveCount, 1);
}

TEST(DiagramWindow, CurveWithoutPointsTakesNoSlot) {
    OpenWindow w;
    w.d.model.eos.b0 = 10;
    EXPECT_FALSE(w.DrawAt(150));
    EXPECT_EQ(w.d.dialogs.messages.size(), 1U);
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(DiagramWindow, WindowWithoutExtentGivesNoMessageAndNoCurve) {
    OpenWindow w;
    w.d.ranges.vMax = 0;
    w.window.Open(FindDiagram(1));
    EXPECT_FALSE(w.DrawAt(150));
    EXPECT_THAT(w.d.dialogs.messages, IsEmpty());
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(DiagramWindow, FaultIsWordedWithItsReason) {
    OpenWindow w;
    w.d.options.curvePoints = 0;
    EXPECT_FALSE(w.DrawAt(150));
    EXPECT_THAT(w.d.dialogs.messages,
                ElementsAre(Message{"ABBRUCH",
                                    "Koordinatenfenster oder Punktzahl ist nicht brauchbar\n"
                                    "Es ist ein kritischer Fehler aufgetreten:",
                                    MessageIcon::Stop}));
}

TEST(DiagramWindow, TieLineIsHorizontalAtTheSaturationPressure) {
    OpenWindow w;
    w.DrawAt(150);
    EXPECT_TRUE(w.window.mnuMarkKonnode());
    const ChartSeries& tie = w.window.Chart().Series(2);
    EXPECT_EQ(tie.Count(), 51);
    EXPECT_EQ(tie.legend, "(2) Konnode V-L ");
    for (int i = 0; i < 51; ++i)
        EXPECT_EQ(tie.y[static_cast<std::size_t>(i)], tie.y[0]);
    EXPECT_EQ(tie.y[0], w.window.LastOutcome().tie.y1);
    EXPECT_TRUE(w.window.cmdDraw()); // the mode lasted for one curve
    EXPECT_EQ(w.window.Chart().Series(3).legend, "(3) 150.0 K ");
}

TEST(DiagramWindow, TieLineIsRefusedFromTheCriticalTemperatureOn) {
    OpenWindow w;
    w.d.request.curveT = 190.564;
    EXPECT_FALSE(w.window.mnuMarkKonnode());
    EXPECT_THAT(w.d.dialogs.messages, ElementsAre(Refusal("nur im V-L-Existenzgebiet möglich (T < T(cr))")));
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(DiagramWindow, TieLineIsRefusedForAVirialEquation) {
    OpenWindow w(virialPengRobinson);
    w.d.request.curveT = 150;
    EXPECT_FALSE(w.window.mnuMarkKonnode());
    EXPECT_THAT(w.d.dialogs.messages, ElementsAre(Refusal("Konnode V-L nur für kubische EOS möglich")));
}

TEST(DiagramWindow, ImpossibleTieLineIsWordedAndNotStored) {
    OpenWindow w;
    w.d.model.eos.b0 = 10; // below T(cr), but no equilibrium can be found
    w.d.request.curveT = 150;
    EXPECT_FALSE(w.window.mnuMarkKonnode());
    EXPECT_THAT(w.d.dialogs.messages,
                ElementsAre(Refusal("Konnoden nur für T < T(cr) und p < p(cr) möglich")));
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(DiagramWindow, WarnsOfACurveBelowTheTriplePointAndStoresIt) {
    for (const int eos : {eosPengRobinson, virialPengRobinson}) {
        OpenWindow w(eos);
        w.d.model.selection.cpModel = 1;
        w.d.model.substance.cpPolynomial = {33, 0.01F, 0, 0, 0, 50, 1000};
        w.d.options.curveTpRestricted = false;
        w.window.Open(FindDiagram(19));
        ASSERT_TRUE(w.window.cmdCoord_OK({60, 200, 0, 200}));
        EXPECT_TRUE(w.window.cmdDraw());
        if (eos == eosPengRobinson) {
            EXPECT_THAT(w.d.dialogs.messages,
                        ElementsAre(Message{
                            "WARNUNG", "Es wurde teilweise bei T < T(Trip.P.) gerechnet! (Tripelpunkt)"}));
        } else {
            EXPECT_THAT(w.d.dialogs.messages, IsEmpty()); // a word for cubic equations only
        }
        EXPECT_EQ(w.window.LastOutcome().status, curveBelowTriplePoint);
        EXPECT_EQ(w.window.Chart().curveCount, 1);
    }
}

TEST(DiagramWindow, DensitiesWithoutACriticalVolumeAreRefused) {
    OpenWindow w;
    w.window.Open(FindDiagram(8));
    w.d.model.eos.vCritCalc = 0;
    EXPECT_FALSE(w.window.DrawAtOnce());
    EXPECT_THAT(w.d.dialogs.messages, ElementsAre(Refusal("keine kritische Dichte verfügbar")));
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(DiagramWindow, DensitiesOverTemperatureAreSinglePoints) {
    OpenWindow w;
    w.window.Open(FindDiagram(8));
    EXPECT_TRUE(w.window.DrawAtOnce());
    EXPECT_EQ(w.window.Chart().Series(1).style, LineStyle::PointsOnly);
}

TEST(DiagramWindow, SCurveIsTheDashedInnerPart) {
    OpenWindow w;
    w.d.request.curveT = 150;
    EXPECT_TRUE(w.window.mnuMarkSKurve());
    const ChartSeries& series = w.window.Chart().Series(1);
    EXPECT_EQ(series.style, LineStyle::Dashed);
    EXPECT_EQ(series.x.front(), w.window.LastOutcome().tie.x1);
    EXPECT_EQ(series.x.back(), w.window.LastOutcome().tie.x2);
    EXPECT_TRUE(w.window.cmdDraw());
    EXPECT_LT(w.window.Chart().Series(2).x.front(), w.window.LastOutcome().tie.x1);
}

TEST(DiagramWindow, SCurveIsRefusedFromTheCriticalTemperatureOn) {
    OpenWindow w;
    w.d.request.curveT = 300;
    EXPECT_FALSE(w.window.mnuMarkSKurve());
    EXPECT_THAT(w.d.dialogs.messages, ElementsAre(Refusal("nur im V-L-Existenzgebiet möglich (T < T(cr))")));
}

TEST(DiagramWindow, LimitsMustBeInOrder) {
    OpenWindow w;
    const ChartWindow before = w.window.Chart().window;
    EXPECT_FALSE(w.window.cmdCoord_OK({1, 1, 0, 1}));
    EXPECT_FALSE(w.window.cmdCoord_OK({0, 1, 2, 1}));
    EXPECT_EQ(w.d.dialogs.messages.size(), 2U);
    EXPECT_EQ(w.d.dialogs.messages[0],
              (Message{"EINGABE-FEHLER", "Untere Grenze muss kleiner als obere Grenze sein"}));
    EXPECT_EQ(w.window.Chart().window, before);
    EXPECT_TRUE(w.window.cmdCoord_OK({0.5, 1, 100, 200}));
    EXPECT_EQ(w.window.Spec().xMin, 0.5F);
    EXPECT_EQ(w.window.Spec().yMax, 200.0F);
}

TEST(DiagramWindow, ZoomShowsAPartAndReturns) {
    OpenWindow w;
    const ChartWindow whole = w.window.Chart().window;
    w.window.SetView({0.1, 0.2, 100, 200});
    EXPECT_TRUE(w.window.IsZoomed());
    EXPECT_EQ(w.window.Chart().window, whole);
    w.window.SetView({0.2, 0.1, 100, 200}); // no such view
    EXPECT_EQ(w.window.Chart().view, (ChartWindow{0.1, 0.2, 100, 200}));
    w.window.cmdZoomReset();
    EXPECT_FALSE(w.window.IsZoomed());
}

TEST(DiagramWindow, ANewDiagramReplacesAllContents) {
    OpenWindow w;
    w.DrawAt(150);
    w.window.mnuMarkV();
    w.window.cmdYLog();
    w.window.Open(FindDiagram(1));
    EXPECT_EQ(w.window.Chart().curveCount, 0);
    EXPECT_THAT(w.window.Chart().marks, IsEmpty());
    EXPECT_FALSE(w.window.Chart().logY);
}

TEST(DiagramWindow, MarksComeAndGo) {
    OpenWindow w;
    w.d.request.curveT = 150;
    EXPECT_TRUE(w.window.mnuMarkP());
    EXPECT_TRUE(w.window.mnuMarkV());
    EXPECT_TRUE(w.window.mnuMarkB());
    EXPECT_TRUE(w.window.mnuMarkCritPointCalc());
    EXPECT_TRUE(w.window.mnuMarkCritPointEx());
    std::vector<std::string> texts;
    for (const ChartMark& mark : w.window.Chart().marks)
        texts.push_back(mark.text);
    EXPECT_THAT(texts, ElementsAre("p(cr)", "p(LV) bei T ", "Normal-p", "v(crit)", "v = b", "c.P.", "c.P."));
    EXPECT_DOUBLE_EQ(w.window.Chart().marks[0].y, 4599.2);
    EXPECT_NEAR(w.window.Chart().marks[1].y, 1040, 10.4); // Setzmann, Wagner 1991
    EXPECT_DOUBLE_EQ(w.window.Chart().marks[3].x, w.d.model.eos.vCritCalc);
    EXPECT_FALSE(w.window.mnuMarkP());
    EXPECT_FALSE(w.window.HasMark("mnuMarkP"));
    EXPECT_TRUE(w.window.HasMark("mnuMarkV"));
}

TEST(DiagramWindow, MarksOfMissingDataAreLeftOut) {
    OpenWindow w(eosIdealGas);
    w.d.request.curveT = 150;
    EXPECT_TRUE(w.window.mnuMarkP()); // no p(LV) without a vapour-pressure equation
    EXPECT_EQ(w.window.Chart().marks.size(), 2U);
    EXPECT_FALSE(w.window.mnuMarkB());
    EXPECT_FALSE(w.window.mnuMarkCritPointCalc());
}

TEST(DiagramWindow, TellsWhatChanged) {
    OpenWindow w;
    std::vector<DiagramWindow::Change> changes;
    w.window.changed = [&](DiagramWindow::Change change) { changes.push_back(change); };
    w.DrawAt(250);
    w.window.SetView({0.1, 0.2, 100, 200});
    w.window.SetView({0.1, 0.2, 100, 200});
    EXPECT_THAT(changes, ElementsAre(DiagramWindow::Change::Contents, DiagramWindow::Change::View));
}

} // namespace
} // namespace orva
