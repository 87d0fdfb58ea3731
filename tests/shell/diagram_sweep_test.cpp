// SPDX-License-Identifier: GPL-3.0-or-later
// Every diagram type for substances of the master database: each run ends, no point is not finite, and the
// status is one that the diagram window has words for.
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "diagrams/catalogue.h"
#include "diagrams/curve_generator.h"
#include "diagrams/default_ranges.h"
#include "diagrams/diagram_setup.h"
#include "master_database.h"

namespace orva::test {
namespace {

constexpr int substances = 20;
const std::set<int> sweptRows = {eosIdealGas,     2, 3, eosSoaveRedlichKwong,
                                 eosPengRobinson, 11}; // 11 is a virial equation
const std::set<int> statuses = {curveGood, curveBelowTriplePoint, curveNoCriticalDensity,
                                curveTieLineImpossible, curveOutsideWindow};

struct DiagramSweep : MasterDatabase {
    CurvePoints curve;
    DiagramSpec spec;
    int runs = 0, good = 0;
    std::set<int> rowsSeen;

    DiagramRecords Records() {
        return {session.model, session.options, session.ranges,
                session.curve, session.state,   session.calculation.diagramTemperature,
                session.names, session.style};
    }

    void Run(const CurveMode& mode, double T, double p, double v) {
        CurveOutcome outcome;
        curve.Clear();
        const DiagramSpec asked = spec;
        GenerateCurve(session.model, session.options, mode, spec, curve, T, p, v, outcome);
        ++runs;
        good += outcome.status == curveGood && curve.Count() > 0 ? 1 : 0;
        const std::string where = session.model.substance.name + " row "
                                  + std::to_string(session.model.selection.eos) + " type "
                                  + std::to_string(asked.type);
        EXPECT_TRUE(statuses.contains(outcome.status)) << where << " status " << outcome.status;
        EXPECT_EQ(curve.Header().x, static_cast<float>(curve.Count())) << where;
        for (int i = 1; i <= curve.Count(); ++i) {
            const CurvePoint& point = curve[i];
            ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z)) << where;
        }
        EXPECT_TRUE(std::isfinite(outcome.tie.x1 + outcome.tie.y1 + outcome.tie.x2 + outcome.tie.y2))
            << where;
        spec.curveKind = asked.curveKind;
    }

    void RunOddWindows(const DiagramRow& row, double T, double p, double v) {
        const DiagramSpec usual = spec;
        CurveMode mode;
        spec.xMin = spec.xMax; // no width
        Run(mode, T, p, v);
        spec = usual;
        std::swap(spec.xMin, spec.xMax); // reversed
        std::swap(spec.yMin, spec.yMax);
        if (row.type != 6)
            Run(mode, T, p, v);
        spec = usual;
        spec.xMin = 10 * usual.xMax + 1; // far away
        spec.xMax = 20 * usual.xMax + 2;
        Run(mode, T, p, v);
        spec = usual;
        spec.yMin = 1e9F;
        spec.yMax = 2e9F;
        Run(mode, T, p, v);
        spec = usual;
    }

    void SweepModel(const SubstanceModel& model) {
        rowsSeen.insert(model.selection.eos);
        session.ranges = {};
        SetDefaultRanges(session.model, session.options, session.ranges, false);
        for (const DiagramRow& row : Catalogue()) {
            DiagramRecords records = Records();
            SelectDiagram(records, row, spec);
            CurveMode mode;
            mode.limitLow = row.curveKind == curveIsobar ? 0.5 * model.substance.Tc : 1;
            mode.limitHigh = row.curveKind == curveIsobar ? 1.2 * model.substance.Tc : model.substance.pc;
            mode.pMax = session.ranges.pMax;
            const double v = session.curve.curveV;
            Run(mode, 0.8 * model.substance.Tc, 101.325, v);
            Run(mode, 1.2 * model.substance.Tc, 2 * model.substance.pc, 0.3 * v);
            mode.vapourFraction = 1;
            if (row.curveKind == curveProjection)
                Run(mode, 0.8 * model.substance.Tc, 101.325, v);
            mode.tieLineMode = true;
            Run(mode, 0.8 * model.substance.Tc, 101.325, v);
            if (model.selection.eos == eosPengRobinson)
                RunOddWindows(row, 0.8 * model.substance.Tc, 101.325, v);
        }
    }
};

TEST_F(DiagramSweep, EveryTypeEndsWithFinitePoints) {
    session.options.curvePoints = 50;
    const int step = std::max(1, session.state.substanceCount / substances);
    ForEveryModel(step, [&](SubstanceModel& model) {
        if (sweptRows.contains(model.selection.eos))
            SweepModel(model);
    });
    EXPECT_GT(runs, 20000);
    EXPECT_GT(good, runs / 4) << runs;
    EXPECT_EQ(rowsSeen, sweptRows);
}

TEST_F(DiagramSweep, SCurvesEndToo) {
    session.options.curvePoints = 50;
    ForEveryModel(std::max(1, session.state.substanceCount / substances), [&](SubstanceModel& model) {
        if (model.selection.eos != eosPengRobinson)
            return;
        SetDefaultRanges(session.model, session.options, session.ranges, false);
        for (const int type : {1, 2, 26, 3, 4, 15, 18, 150, 155, 156, 160}) {
            DiagramRecords records = Records();
            SelectDiagram(records, *FindDiagram(type), spec);
            CurveMode mode;
            mode.sCurveMode = true;
            Run(mode, 0.8 * model.substance.Tc, 0.3 * model.substance.pc, 1);
        }
    });
    EXPECT_GT(good, 20) << runs;
}

} // namespace
} // namespace orva::test
