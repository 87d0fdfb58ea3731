// SPDX-License-Identifier: GPL-3.0-or-later
// The commands that add curves, and the conditions of the menu, with their words.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "butane_diagram.h"
#include "diagrams/diagram_conditions.h"
#include "diagrams/diagram_window.h"
#include "diagrams/limit_input.h"

namespace orva {
namespace {

using test::ButaneDiagram;

constexpr double Tc = 425.125, pc = 3796;

struct Commands : testing::Test {
    ButaneDiagram d;
    DiagramWindow window{d.Records(), d.dialogs};

    void Open(int type) { ASSERT_TRUE(window.Open(FindDiagram(type))); }
    void MakeVirial() {
        d.model = caloric::ModelOf(virialPengRobinson);
        SetDefaultRanges(d.model, d.options, d.ranges, false);
    }
    void ExpectRefusal(const char* text) {
        ASSERT_FALSE(d.dialogs.messages.empty());
        EXPECT_EQ(d.dialogs.messages.back().title, "Ausführung nicht möglich");
        EXPECT_EQ(d.dialogs.messages.back().text, text);
        EXPECT_EQ(window.Chart().curveCount, 0);
    }
    const std::string& Legend(int slot) { return window.Chart().Series(slot).legend; }
};

TEST_F(Commands, CoexistenceDrawsLiquidThenVapourAndRestoresTheType) {
    for (const int type : {1,  2,  26,  3,   4,   15,  16,  17,  18,  19,  181, 182, 183, 184, 21, 22,
                           23, 24, 107, 109, 150, 151, 152, 153, 154, 155, 156, 157, 158, 159, 160}) {
        Open(type);
        const auto kind = window.Spec().curveKind;
        EXPECT_TRUE(window.mnuMarkKoex()) << type;
        EXPECT_EQ(window.Spec().type, type);
        EXPECT_EQ(window.Spec().curveKind, kind);
        ASSERT_EQ(window.Chart().curveCount, 2) << type;
        EXPECT_EQ(Legend(1), "(1) VLE  (L)");
        EXPECT_EQ(Legend(2), "(2) VLE  (V)");
    }
}

TEST_F(Commands, TheVapourPressureCurveOfAnIsochorDiagramIsOne) {
    Open(5);
    EXPECT_TRUE(window.mnuMarkKoex());
    EXPECT_EQ(window.Chart().curveCount, 1);
}

TEST_F(Commands, CoexistenceTypesAreThoseOfTheTable) {
    const std::pair<int, int> table[] = {
        {1, 6},     {2, 106},   {26, 27},  {3, 7},    {4, 12},    {5, 9},     {15, 90},  {16, 91},
        {184, 91},  {17, 93},   {18, 94},  {19, 92},  {181, 95},  {182, 98},  {183, 99}, {24, 120},
        {107, 120}, {21, 96},   {22, 96},  {23, 121}, {109, 121}, {150, 70},  {151, 71}, {152, 73},
        {153, 74},  {154, 72},  {155, 75}, {156, 97}, {157, 100}, {158, 101}, {159, 89}, {160, 102},
        {8, 8},     {185, 185}, {31, 31},  {300, 300}};
    for (const auto& [type, coexistence] : table)
        EXPECT_EQ(CoexistenceTypeOf(type), coexistence) << type;
}

TEST_F(Commands, CommandsForCubicEquationsRefuseOthers) {
    MakeVirial();
    Open(1);
    EXPECT_FALSE(window.mnuMarkKoex());
    ExpectRefusal("VL-Koexistenzkurve nur für kubische EOS möglich.");
    EXPECT_FALSE(window.mnuMarkInversion());
    ExpectRefusal("Inversionskurve nur mit kubischer EOS möglich.");
    EXPECT_FALSE(window.mnuMarkKonnode());
    ExpectRefusal("Konnode V-L nur für kubische EOS möglich");
}

TEST_F(Commands, SCurveAsksForTheTwoPhaseRegionByType) {
    for (const int type : {1, 2, 26, 40, 41, 42, 43, 150, 156, 184}) {
        Open(type);
        d.request.curveT = Tc;
        d.request.curveP = 500;
        EXPECT_FALSE(window.mnuMarkSKurve()) << type;
        ExpectRefusal("nur im V-L-Existenzgebiet möglich (T < T(cr))");
    }
    for (const int type : {3, 4, 15, 16, 18, 30, 31, 32, 33}) {
        Open(type);
        d.request.curveT = 300;
        d.request.curveP = pc;
        EXPECT_FALSE(window.mnuMarkSKurve()) << type;
        ExpectRefusal("nur im V-L-Existenzgebiet möglich (p < p(cr))");
    }
    d.dialogs.messages.clear();
    Open(17); // without a condition
    d.request.curveT = 500;
    d.request.curveP = pc;
    EXPECT_TRUE(window.mnuMarkSKurve());
    EXPECT_TRUE(d.dialogs.messages.empty());
}

TEST_F(Commands, TieLineAsksForTheTwoPhaseRegionByKind) {
    Open(107);
    d.request.curveT = Tc;
    EXPECT_FALSE(window.mnuMarkKonnode());
    ExpectRefusal("nur im V-L-Existenzgebiet möglich (T < T(cr))");
    Open(15);
    d.request.curveP = pc;
    EXPECT_FALSE(window.mnuMarkKonnode());
    ExpectRefusal("nur im V-L-Existenzgebiet möglich (p < p(cr))");
    Open(185);
    EXPECT_FALSE(window.mnuMarkKonnode());
    ExpectRefusal("Konnoden nur für T < T(cr) und p < p(cr) möglich");
}

TEST_F(Commands, InversionCurveTakesItsTypeFromTheDiagram) {
    for (const int type : {2, 5, 9}) {
        Open(type);
        ChartWindow wide = window.Chart().window;
        wide.xMax = type == 2 ? 60000 : 2000;
        wide.yMax = 60000;
        ASSERT_TRUE(window.cmdCoord_OK(wide));
        EXPECT_TRUE(window.mnuMarkInversion()) << type;
        EXPECT_EQ(window.Spec().type, type);
        EXPECT_EQ(Legend(1), "(1) Inversionskurve delta = 0 ");
        EXPECT_EQ(window.Chart().Series(1).ZKind(), type == 2 ? zTemperature : zVolume);
    }
}

TEST_F(Commands, TheDiameterBelongsToTheDiagramOfDensities) {
    Open(1);
    EXPECT_FALSE(window.mnuMarkHalbierende());
    Open(8);
    EXPECT_TRUE(window.mnuMarkHalbierende());
    EXPECT_EQ(window.Spec().type, 8);
    EXPECT_EQ(Legend(1), "(1) VLE ");
}

TEST_F(Commands, ProjectionsShowBothBoundariesAtOnce) {
    for (const int type : {6, 7, 27, 106, 90, 91, 92, 93, 94}) {
        Open(type);
        EXPECT_TRUE(window.DrawAtOnce()) << type;
        EXPECT_EQ(window.Chart().curveCount, 2) << type;
    }
    for (const int type : {8, 9, 10, 11, 13, 307}) {
        Open(type);
        EXPECT_TRUE(window.DrawAtOnce()) << type;
        EXPECT_EQ(window.Chart().curveCount, 1) << type;
    }
}

TEST_F(Commands, MaximumOfTheSlopeStandsInTheHeading) {
    Open(11);
    window.DrawAtOnce();
    window.DrawAtOnce();
    const std::string& line = window.Chart().headingLines[1];
    const std::size_t at = line.find("; Maximum bei T/K = ");
    ASSERT_NE(at, std::string::npos) << line;
    EXPECT_EQ(line.find("; Maximum", at + 1), std::string::npos);
}

TEST_F(Commands, MarksOfTheTemperatureAxis) {
    Open(3);
    d.request.curveP = 500;
    EXPECT_TRUE(window.mnuMarkT());
    ASSERT_EQ(window.Chart().marks.size(), 4U);
    EXPECT_EQ(window.Chart().marks[0].text, "T(cr)");
    EXPECT_NEAR(window.Chart().marks[0].y, Tc, 1e-4);
    EXPECT_EQ(window.Chart().marks[1].text, "T(Trip.P.)");
    EXPECT_EQ(window.Chart().marks[2].text, "                      T(LV) bei p");
    EXPECT_EQ(window.Chart().marks[3].text, "                      T(LV) bei Normaldruck");
    EXPECT_NEAR(window.Chart().marks[3].y, 272.66, 1);
    EXPECT_FALSE(window.mnuMarkT());
    EXPECT_TRUE(window.Chart().marks.empty());
}

TEST_F(Commands, MenuConditionsHaveTheirWords) {
    for (const DiagramRow& row : Catalogue())
        if (row.type != 11 && row.type != 303) {
            EXPECT_TRUE(MayDraw(row, d.model, d.dialogs)) << row.type;
        }
    EXPECT_TRUE(d.dialogs.messages.empty());
    EXPECT_FALSE(MayDraw(*FindDiagram(303), d.model, d.dialogs));
    EXPECT_EQ(d.dialogs.messages.back().text, "für diesen Stoff ist keine Funktion cp(L)= Fu(T) verfügbar.");
    EXPECT_TRUE(MayDraw(*FindDiagram(11), d.model, d.dialogs));
    EXPECT_EQ(d.dialogs.messages.back().title, "HINWEIS");
    EXPECT_EQ(d.dialogs.messages.back().text,
              "Kurve gilt für die aktuelle Dampfdruckgleichung,\nnicht für die EOS");
    d.model.selection.eosPriority = false;
    d.dialogs.messages.clear();
    EXPECT_TRUE(MayDraw(*FindDiagram(11), d.model, d.dialogs));
    EXPECT_TRUE(d.dialogs.messages.empty());
    d.model.selection.cpModel = 0;
    EXPECT_FALSE(MayDraw(*FindDiagram(19), d.model, d.dialogs));
    EXPECT_EQ(d.dialogs.messages.back().text, "es stehen keine cp(idG)-Modellparameter zur Verfügung");
    EXPECT_FALSE(MayDraw(*FindDiagram(302), d.model, d.dialogs));
    EXPECT_EQ(d.dialogs.messages.back().text, "für diesen Stoff ist keine Funktion cpIdG)= Fu(T) verfügbar.");
    d.model.selection.nonCubic = true;
    for (const int type : {6, 7, 8, 9, 90, 91, 92, 93, 106}) {
        EXPECT_FALSE(MayDraw(*FindDiagram(type), d.model, d.dialogs)) << type;
        EXPECT_EQ(d.dialogs.messages.back().title, "Ausführung nicht möglich");
        EXPECT_EQ(d.dialogs.messages.back().text,
                  "Phasengleichgewichts-Berechnungen sind nur mit einer kubischen Zustandsgleichung möglich");
    }
}

struct Limits : Commands {
    LimitInput input{d.Records(), window, d.dialogs};
};

TEST_F(Limits, DrawBetweenTwoPressures) {
    Open(107);
    EXPECT_EQ(input.LowLabel(), "p1/kPa = ");
    EXPECT_EQ(input.HighLabel(), "p2/kPa = ");
    EXPECT_TRUE(input.cmdDraw("350", "100", "900"));
    ASSERT_EQ(window.Chart().curveCount, 1);
    EXPECT_EQ(d.request.curveT, 350);
    EXPECT_EQ(*window.Chart().Series(1).Z(1), 100.0F);
    EXPECT_EQ(Legend(1), "(1) 350.0 K ");
    Open(24);
    EXPECT_EQ(input.LowLabel(), "T1/K = ");
    EXPECT_TRUE(input.cmdDraw("500", "280", "460"));
    EXPECT_EQ(d.request.curveP, 500);
    EXPECT_EQ(Legend(1), "(1) 500.0 kPa ");
}

TEST_F(Limits, UnusableNumbersAreRefusedAndChangeNothing) {
    Open(107);
    const double T = d.request.curveT;
    const struct {
        const char *value, *low, *high, *text;
    } rows[] = {{"", "100", "900", "Eingabe nicht vollständig oder ungültig"},
                {"350", "abc", "900", "Eingabe nicht vollständig oder ungültig"},
                {"350", "0", "900", "T- und p-Vorgabe müssen größer Null sein"},
                {"-3", "100", "900", "T- und p-Vorgabe müssen größer Null sein"},
                {"350", "100", "100", "Bereichsangabe ungültig"},
                {"350", "100", "1e12", "Eingabewert nicht im gültigen Bereich"}};
    for (const auto& row : rows) {
        EXPECT_FALSE(input.cmdDraw(row.value, row.low, row.high));
        ExpectRefusal(row.text);
    }
    EXPECT_EQ(d.request.curveT, T);
}

} // namespace
} // namespace orva
