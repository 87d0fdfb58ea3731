// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/value_input.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diagrams/diagram_fixture.h"

namespace orva {
namespace {

using test::MethaneDiagram;
using testing::ElementsAre;
using testing::IsEmpty;

struct OpenInput {
    MethaneDiagram d;
    DiagramWindow window;
    ValueInput input;

    explicit OpenInput(int volumeBasis = 0)
        : d(eosPengRobinson, volumeBasis), window(d.Records(), d.dialogs),
          input(d.Records(), window, d.dialogs) {
        window.Open(FindDiagram(1));
    }
};

// A catalogue row as an isochoric section would have it, for the rules of v.
DiagramRow IsochoricRow() {
    DiagramRow row = *FindDiagram(1);
    row.curveKind = curveIsochor;
    return row;
}

TEST(ValueInput, AsksForTheTemperatureOfAnIsotherm) {
    OpenInput w;
    EXPECT_EQ(w.input.Label(), " T = ");
    EXPECT_EQ(w.input.Unit(), " K");
    EXPECT_EQ(w.input.Value(), "190.564");
}

TEST(ValueInput, AsksForAReducedTemperature) {
    OpenInput w(2);
    EXPECT_EQ(w.input.Label(), " T(red) = ");
    EXPECT_EQ(w.input.Unit(), "");
    EXPECT_EQ(w.input.Value(), "1.00");
    EXPECT_TRUE(w.input.cmdOK("0.8"));
    EXPECT_NEAR(w.d.request.curveT, 0.8 * 190.564, 1e-4);
}

TEST(ValueInput, OkKeepsTheValueAndDrawsNothing) {
    OpenInput w;
    EXPECT_TRUE(w.input.cmdOK("150,5"));
    EXPECT_EQ(w.d.request.curveT, 150.5);
    EXPECT_EQ(w.d.diagramTemperature, 150.5);
    EXPECT_EQ(w.window.Chart().curveCount, 0);
}

TEST(ValueInput, DrawsSeveralTemperaturesOneAfterAnother) {
    OpenInput w;
    EXPECT_TRUE(w.input.cmdOKAndDraw("150"));
    EXPECT_TRUE(w.input.cmdOKAndDraw("170.5"));
    EXPECT_TRUE(w.input.cmdOKAndDraw("2,5E2"));
    EXPECT_EQ(w.window.Chart().curveCount, 3);
    EXPECT_EQ(w.window.Chart().Series(3).legend, "(3) 250.0 K ");
    EXPECT_THAT(w.d.dialogs.messages, IsEmpty());
}

TEST(ValueInput, TextThatIsNoNumberIsRefused) {
    for (const char* text : {"", "abc", "-", "."}) {
        OpenInput w;
        EXPECT_FALSE(w.input.cmdOKAndDraw(text)) << text;
        EXPECT_THAT(w.d.dialogs.messages,
                    ElementsAre(Message{"Ausführung nicht möglich", "keine gültige Eingabe"}));
        EXPECT_EQ(w.d.request.curveT, 190.564);
        EXPECT_EQ(w.window.Chart().curveCount, 0);
    }
}

TEST(ValueInput, ValuesThatNoStateHasAreRefused) {
    for (const char* text : {"0", "-20", "1e-9", "1e12"}) {
        OpenInput w;
        EXPECT_FALSE(w.input.cmdOK(text)) << text;
        EXPECT_THAT(w.d.dialogs.messages,
                    ElementsAre(Message{"Ausführung nicht möglich",
                                        "diese Eingabe ist nicht im Gültigkeitsbereich!"}));
        EXPECT_EQ(w.d.request.curveT, 190.564);
    }
}

TEST(ValueInput, ReadingStopsBehindTheNumber) {
    OpenInput w;
    EXPECT_TRUE(w.input.cmdOK("150 K"));
    EXPECT_EQ(w.d.request.curveT, 150);
}

TEST(ValueInput, VolumeBelowTheCoVolumeIsRefused) {
    OpenInput w;
    const DiagramRow row = IsochoricRow();
    w.window.Open(&row);
    EXPECT_EQ(w.input.Label(), "v = ");
    EXPECT_EQ(w.input.Unit(), " m^3/kmol");
    EXPECT_FALSE(w.input.cmdOK("0.02")); // b is 0.0268 m^3/kmol
    EXPECT_THAT(w.d.dialogs.messages,
                ElementsAre(Message{"Ausführung nicht möglich", "v < b nicht möglich"}));
}

TEST(ValueInput, VolumeNearTheCoVolumeIsTakenWithAWarning) {
    OpenInput w;
    const DiagramRow row = IsochoricRow();
    w.window.Open(&row);
    EXPECT_TRUE(w.input.cmdOK("0.0275"));
    EXPECT_EQ(w.d.request.curveV, 0.0275);
    EXPECT_THAT(w.d.dialogs.messages,
                ElementsAre(Message{
                    "Warnung", "v ist nahe b\nEs treten möglicherweise Probleme bei der Berechnung auf."}));
}

TEST(ValueInput, LabelsFollowTheKindAndTheUnits) {
    OpenInput w(2);
    DiagramRow row = IsochoricRow();
    w.window.Open(&row);
    EXPECT_EQ(w.input.Label(), "v(red) = ");
    row.curveKind = curveIsobar;
    w.window.Open(&row);
    EXPECT_EQ(w.input.Label(), "p(red) = ");
}

} // namespace
} // namespace orva
