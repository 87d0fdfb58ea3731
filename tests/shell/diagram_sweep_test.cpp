// SPDX-License-Identifier: GPL-3.0-or-later
// Every diagram type for substances of the master database, in usual and in odd windows: each run ends, no
// point is not finite, and the status is one that the diagram window has words for.
#include <cmath>
#include <map>

#include "diagrams/catalogue.h"
#include "diagrams/curve_generator.h"
#include "diagrams/default_ranges.h"
#include "diagrams/diagram_setup.h"
#include "substance_shard.h"

namespace orva::test {
namespace {

// The sanitizers look at one substance a part.
#if defined(__SANITIZE_ADDRESS__)
constexpr int substancesEach = 1;
#else
constexpr int substancesEach = 5;
#endif

const std::set<int> sweptRows = {eosIdealGas,     eosVanDerWaals, eosBerthelot,      eosSoaveRedlichKwong,
                                 eosPengRobinson, eosVoHalme1,    virialVanDerWaals, virialPitzerCurl};
const std::set<int> statuses = {curveGood, curveBelowTriplePoint, curveNoCriticalDensity,
                                curveTieLineImpossible, curveOutsideWindow};

struct WindowChange {
    const char* name;
    void (*apply)(DiagramSpec&);
};

constexpr float farAway = 1e9F, beyond = 3e38F;
constexpr WindowChange oddWindows[] = {
    {"no width", [](DiagramSpec& w) { w.xMin = w.xMax; }},
    {"no height", [](DiagramSpec& w) { w.yMin = w.yMax; }},
    {"hardly a width", [](DiagramSpec& w) { w.xMin = std::nextafter(w.xMax, -beyond); }},
    {"reversed", [](DiagramSpec& w) { std::swap(w.xMin, w.xMax), std::swap(w.yMin, w.yMax); }},
    {"reversed in x", [](DiagramSpec& w) { std::swap(w.xMin, w.xMax); }},
    {"far to the right", [](DiagramSpec& w) { w.xMin = 10 * w.xMax + 1, w.xMax = 2 * w.xMin; }},
    {"far to the left", [](DiagramSpec& w) { w.xMax = -farAway, w.xMin = -2 * farAway; }},
    {"far above", [](DiagramSpec& w) { w.yMin = farAway, w.yMax = 2 * farAway; }},
    {"far below", [](DiagramSpec& w) { w.yMin = -2 * farAway, w.yMax = -farAway; }},
    {"boundless", [](DiagramSpec& w) { w.xMin = w.yMin = -beyond, w.xMax = w.yMax = beyond; }},
};

class DiagramSweep : public SubstanceShard {
protected:
    CurvePoints curve;
    DiagramSpec spec;
    int runs = 0, good = 0;
    std::map<int, int> rowsSeen;

    int Step() const { return session.state.substanceCount / (shards * substancesEach); }

    DiagramRecords Records() {
        return {session.model, session.options, session.ranges,
                session.curve, session.state,   session.calculation.diagramTemperature,
                session.names, session.style};
    }

    void Run(const char* window, const CurveMode& mode, double T, double p, double v) {
        CurveOutcome outcome;
        curve.Clear();
        const DiagramSpec asked = spec;
        GenerateCurve(session.model, session.options, mode, spec, curve, T, p, v, outcome);
        ++runs;
        good += outcome.status == curveGood && curve.Count() > 0 ? 1 : 0;
        const auto where = [&] {
            return ModelName() + " type " + std::to_string(asked.type) + " window " + window;
        };
        EXPECT_TRUE(statuses.contains(outcome.status)) << where() << " status " << outcome.status;
        EXPECT_EQ(curve.Header().x, static_cast<float>(curve.Count())) << where();
        for (int i = 1; i <= curve.Count(); ++i) {
            const CurvePoint& point = curve[i];
            ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z))
                << where();
        }
        const TieLine& tie = outcome.tie;
        EXPECT_TRUE(std::isfinite(tie.x1) && std::isfinite(tie.y1) && std::isfinite(tie.x2)
                    && std::isfinite(tie.y2))
            << where();
        spec.curveKind = asked.curveKind;
    }

    // Every second of the odd windows, the others for the next model.
    void RunOddWindows(const CurveMode& mode, double T, double p, double v, int turn) {
        const DiagramSpec usual = spec;
        for (std::size_t i = static_cast<std::size_t>(turn % 2); i < std::size(oddWindows); i += 2) {
            oddWindows[i].apply(spec);
            Run(oddWindows[i].name, mode, T, p, v);
            spec = usual;
        }
    }

    // A different mixture of units and options for each model.
    void ChooseOptions(int turn) {
        Options& options = session.options;
        options.curvePoints = 30;
        options.unitBasis = static_cast<std::int16_t>(turn % 4);
        options.volumeBasis = static_cast<std::int16_t>(turn / 2 % 3);
        options.curveTpRestricted = turn % 3 != 0;
        options.partialCurveGasOnly = turn % 5 == 0;
        options.sCurveWithoutTieLine = turn % 7 == 0;
        session.ranges = {};
        SetDefaultRanges(session.model, options, session.ranges, false);
    }

    void SweepModel(const SubstanceModel& model) {
        int turn = rowsSeen[model.selection.eos]++;
        ChooseOptions(turn);
        const double Tc = model.substance.Tc, pc = model.substance.pc;
        for (const DiagramRow& row : Catalogue()) {
            DiagramRecords records = Records();
            SelectDiagram(records, row, spec);
            CurveMode mode;
            const bool isobar = row.curveKind == curveIsobar;
            mode.limitLow = isobar ? 0.5 * Tc : 1;
            mode.limitHigh = isobar ? 1.2 * Tc : pc;
            mode.pMax = session.ranges.pMax;
            const double v = session.curve.curveV;
            Run("usual", mode, 0.8 * Tc, 101.325, v);
            Run("usual", mode, Tc, pc, v);
            Run("usual", mode, 1.2 * Tc, 2 * pc, 0.3 * v);
            RunOddWindows(mode, 0.8 * Tc, 101.325, v, turn++);
            mode.vapourFraction = 1;
            if (row.curveKind == curveProjection)
                Run("usual", mode, 0.8 * Tc, 101.325, v);
            mode.tieLineMode = true;
            Run("usual", mode, 0.8 * Tc, 101.325, v);
        }
    }
};

TEST_P(DiagramSweep, EveryTypeEndsWithFinitePoints) {
    ForModels(Step(), sweptRows, [this](const SubstanceModel& model) { SweepModel(model); });
    EXPECT_GE(substancesSeen, substancesEach);
    EXPECT_GT(runs, substancesEach * 8 * 80 * 8);
    EXPECT_GT(good, runs / 8) << runs;
    EXPECT_EQ(rowsSeen.size(), sweptRows.size());
}

// Some tens of thousands of states each: one substance a part.
TEST_P(DiagramSweep, SCurvesEndToo) {
    const std::set<int> cubic = {eosVanDerWaals, eosSoaveRedlichKwong, eosPengRobinson};
    int turn = GetParam();
    ForModels(session.state.substanceCount / shards, cubic, [&](const SubstanceModel& model) {
        ChooseOptions(turn);
        for (const DiagramRow& row : Catalogue()) {
            if (row.tieLine == nullptr && row.type != 3 && row.type != 4)
                continue;
            DiagramRecords records = Records();
            SelectDiagram(records, row, spec);
            CurveMode mode;
            mode.sCurveMode = true;
            const DiagramSpec usual = spec;
            Run("usual", mode, 0.8 * model.substance.Tc, 0.3 * model.substance.pc, 1);
            const WindowChange& window = oddWindows[static_cast<std::size_t>(turn++) % std::size(oddWindows)];
            window.apply(spec);
            Run(window.name, mode, 0.9 * model.substance.Tc, 0.5 * model.substance.pc, 1);
            spec = usual;
        }
    });
    EXPECT_GT(good, 20) << runs;
}

INSTANTIATE_TEST_SUITE_P(Substances, DiagramSweep, testing::Range(0, shards));

} // namespace
} // namespace orva::test
