// SPDX-License-Identifier: GPL-3.0-or-later
// A process brings its own report; the driver adds the marks of its start point and nothing else.
#include <gtest/gtest.h>

#include "calc/result_window.h"
#include "report_fixture.h"

namespace orva::test {
namespace {

constexpr const char* story = "Polytrope\r\n=========\r\n w = 12 kJ/kmol\r\n";

Reported WithStory() {
    Reported c;
    c.state.processPoint = {300, 100, story};
    return c;
}

TEST(ProcessReport, IsTheTextThatCameWithTheProcess) {
    Reported c = WithStory();
    const PointResult r = c.Run(kindPolytrope, RowTP(300, 100));
    ExpectGood(r, {"", "", "", ""}, "   ", story);
    EXPECT_EQ(r.results[slotT], 300);
    EXPECT_EQ(r.results[slotP], 100);
    EXPECT_FALSE(r.diagnoseEnabled);
}

TEST(ProcessReport, TakesNoListOfFunctions) {
    Reported c = WithStory();
    c.state.FunctionList = true;
    EXPECT_EQ(c.Run(kindPolytrope, RowTP(300, 100)).report, story);
}

TEST(ProcessReport, NeverCallsItsPhasesIdentical) {
    Reported c = WithStory();
    const PointResult r = c.Run(kindPolytrope, RowTP(500, 6000));
    EXPECT_FALSE(r.lblGleichVisible);
    EXPECT_EQ(r.phaseVerdict, 2);
}

TEST(ProcessReport, StaysAwayWhereNumbersAloneAreWanted) {
    Reported c = WithStory();
    RunOptions quiet;
    quiet.suppressReport = true;
    EXPECT_EQ(c.Run(kindPolytrope, RowTP(300, 100), quiet).report, "");
}

TEST(ProcessReport, NeedsAStartPoint) {
    Reported c = WithStory();
    ExpectFailed(c.Run(kindPolytrope, RowTP(0, 100)), {"kein T in diesem Datensatz", "", "", ""});
    ExpectFailed(c.Run(kindPolytrope, RowTP(300, 0)), {"", "kein p in diesem Datensatz", "", ""});
}

TEST(ProcessReport, HidesWhatBelongsToASinglePoint) {
    Reported c = WithStory();
    c.state.CalcKind = kindPolytrope;
    c.batch.rows[0] = RowTP(300, 100);
    ResultWindow window(c.Context());
    EXPECT_EQ(window.Caption(), "Ergebnis der Berechnung Polytropen-Prozess");
    EXPECT_FALSE(window.PointVisible());
    EXPECT_FALSE(window.ExtensionVisible());
    EXPECT_FALSE(window.ProtocolVisible());
    EXPECT_FALSE(window.IsoCalcEnabled());
    EXPECT_EQ(window.Calculate().report, story);
    c.state.CalcKind = kindTP;
    EXPECT_TRUE(window.PointVisible());
}

} // namespace
} // namespace orva::test
