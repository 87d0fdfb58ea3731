// SPDX-License-Identifier: GPL-3.0-or-later
// Where grids begin and end, which phase wins, what is raised, and how a run ends without a curve.
#include "curve_checks.h"
#include "diagrams/diagram_window.h"

namespace orva {
namespace {

using namespace test;

double StepX(const ButaneDiagram& d) {
    return (static_cast<double>(d.spec.xMax) - d.spec.xMin) / d.options.curvePoints;
}

// Number of the first of two neighbours with one abscissa, 0 if there are none.
int JumpOf(const CurvePoints& curve) {
    for (int i = 1; i < curve.Count(); ++i)
        if (curve[i].x == curve[i + 1].x)
            return i;
    return 0;
}

TEST(CurveEdges, ResidualFunctionsDoNotEndAtTheTriplePoint) {
    ButaneDiagram d;
    d.model.substance.ptrip = 500;
    d.model.substance.Ttrip = 250;
    ASSERT_TRUE(d.options.curveTpRestricted);
    for (const bool restricted : {true, false}) {
        d.options.curveTpRestricted = restricted;
        for (const int type : {40, 41, 42, 43}) {
            const CurvePoints& curve = d.Draw(type, 380, 1000);
            EXPECT_LT(curve[1].x, 1) << type;
            EXPECT_EQ(d.outcome.status, curveGood) << type;
        }
        for (const int type : {30, 31, 32, 33}) {
            d.Draw(type, 380, 1000);
            d.spec.xMin = 200;
            const CurvePoints& curve = d.DrawAgain(380, 1000);
            EXPECT_EQ(curve[1].x, 200.0F) << type;
            EXPECT_EQ(d.outcome.status, curveGood) << type;
        }
    }
    d.options.curveTpRestricted = true;
    EXPECT_GE(d.Draw(150, 380, 1000)[1].x, 500); // the functions of state do
}

// What the restriction leaves to the ideal gas, which has no triple point, and what it does not.
TEST(CurveEdges, TripleStopsDifferForTheIdealGas) {
    ButaneDiagram d(eosIdealGas);
    d.model.substance.Ttrip = 300;
    d.model.substance.ptrip = 500;
    const auto draw = [&d](int type, double low, double high) -> const CurvePoints& {
        d.mode.limitLow = low;
        d.mode.limitHigh = high;
        d.Draw(type, 380, 101.325, 30);
        d.spec.xMin = static_cast<float>(low);
        return d.DrawAgain(380, 101.325, 30);
    };
    EXPECT_EQ(draw(15, 250, 450)[1].x, 250.0F);
    EXPECT_EQ(d.outcome.status, curveBelowTriplePoint);
    EXPECT_EQ(draw(150, 100, 900)[1].x, 100.0F);
    EXPECT_EQ(d.outcome.status, curveBelowTriplePoint);
    EXPECT_EQ(draw(21, 100, 900)[1].z, 100.0F);
    for (const int type : {19, 34}) { // down from the end of the window
        const CurvePoints& curve = draw(type, 250, 450);
        ASSERT_GT(curve.Count(), 100) << type;
        EXPECT_GE(curve[curve.Count()].x, 300) << type;
        EXPECT_LT(curve[curve.Count()].x, 302) << type;
    }
    EXPECT_EQ(draw(22, 250, 450).Count(), 0); // it begins below and ends there at once
    EXPECT_GT(draw(22, 310, 450).Count(), 290);
}

TEST(CurveEdges, OutsideOfTheWindowReplacesTheWarningOfTheTriplePoint) {
    ButaneDiagram d;
    d.options.curveTpRestricted = false;
    d.Draw(15, 300, 101.325);
    d.spec.xMin = 100;
    d.DrawAgain(300, 101.325);
    ASSERT_EQ(d.outcome.status, curveBelowTriplePoint);
    d.spec.yMin = 1e7F;
    d.spec.yMax = 2e7F;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
}

// With a light molecule the volume that the equilibrium reports at T(cr) would pass for a liquid.
TEST(CurveEdges, DensitiesHaveOnePointAtTheCriticalTemperature) {
    ButaneDiagram d;
    d.model.substance.molarMass = 2.016F;
    d.model.eos.rhoCritCalc = 2.016F / d.model.eos.vCritCalc;
    const CurvePoints& curve = d.Draw(8, 300, 101.325);
    ASSERT_GT(curve.Count(), 300);
    EXPECT_EQ(curve[1].x, static_cast<float>(Tc));
    ExpectClose(curve[1].y, d.model.eos.rhoCritCalc, 1e-6, "critical density");
    EXPECT_LT(curve[2].x, static_cast<float>(Tc));
    EXPECT_EQ(curve[2].x, curve[3].x);
}

TEST(CurveEdges, LiquidOrVapourComesFirstAtAJump) {
    ButaneDiagram d;
    for (const int type : {15, 16, 18, 31, 30}) { // T rises: the liquid, then the vapour
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        const int at = JumpOf(curve);
        ASSERT_GT(at, 1) << type;
        EXPECT_NEAR(curve[at].y, curve[at - 1].y, 0.1 * std::abs(curve[at + 1].y - curve[at].y)) << type;
    }
    for (const int type : {150, 151, 40, 41}) { // p rises: the vapour, then the liquid
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        const int at = JumpOf(curve);
        ASSERT_GT(at, 1) << type;
        EXPECT_NEAR(curve[at].y, curve[at - 1].y, 0.1 * std::abs(curve[at + 1].y - curve[at].y)) << type;
    }
}

// A window that holds one end of the jump and nothing else shows a part of the curve.
TEST(CurveEdges, EndsOfAJumpCountAsPointsInTheWindow) {
    ButaneDiagram d;
    for (const int type : {15, 16, 31, 33, 150, 154, 41, 43}) {
        d.Draw(type, 380, 1000);
        const TieLine tie = d.outcome.tie;
        // The vapour over T, the liquid over p: beside the other end stands a point of the grid.
        const float y = type < 20 || (type >= 40 && type < 50) || type >= 150 ? tie.y2 : tie.y1;
        const float room = 1e-5F * std::abs(tie.y2 - tie.y1);
        d.spec.yMin = y - room;
        d.spec.yMax = y + room;
        const CurvePoints& curve = d.DrawAgain(380, 1000);
        int inside = 0;
        for (int i = 1; i <= curve.Count(); ++i)
            inside += curve[i].y > d.spec.yMin && curve[i].y < d.spec.yMax ? 1 : 0;
        EXPECT_EQ(inside, 1) << type;
        EXPECT_EQ(d.outcome.status, curveGood) << type;
    }
}

TEST(CurveEdges, WhereBothPhasesStandTheFamilyChooses) {
    ButaneDiagram d;
    const Saturated s = SaturationAt(d, 380);
    d.mode.limitLow = s.p;
    d.mode.limitHigh = 2 * s.p;
    for (const int type : {21, 107, 109}) {
        const CaloricValues liquid = StateAt(d, 380, s.p, s.vL);
        ExpectClose(d.Draw(type, 380, s.p)[1].y, type == 107 ? liquid.h : liquid.exergyH, 1e-4, "liquid");
    }
    d.mode.limitLow = 380;
    d.mode.limitHigh = 450;
    for (const int type : {22, 23, 24}) {
        const CaloricValues vapour = StateAt(d, 380, s.p, s.vV);
        ExpectClose(d.Draw(type, 380, s.p)[1].y, type == 24 ? vapour.h : vapour.exergyH, 1e-4, "vapour");
    }
    SubstanceModel model = d.model;
    d.Draw(19, 380, s.p);
    d.spec.xMax = 380;
    ExpectClose(d.DrawAgain(380, s.p)[1].y, ResidualFunctions(model, 380, s.p, s.vL).table.cpTotal, 1e-4,
                "cp of the liquid");
    d.Draw(34, 380, s.p);
    d.spec.xMax = 380;
    ExpectClose(d.DrawAgain(380, s.p)[1].y, ResidualFunctions(model, 380, s.p, s.vV).table.jouleThomson, 1e-4,
                "coefficient of the vapour");
}

TEST(CurveEdges, LowPressuresAreRaisedAtTheirPointOnly) {
    ButaneDiagram d;
    for (const auto& [T, lowest] : {std::pair{380.0, 0.01F}, std::pair{500.0, 1e-10F}})
        for (const int type : {2, 26}) {
            d.Draw(type, T, 101.325);
            d.spec.xMin = 0;
            const CurvePoints& curve = d.DrawAgain(T, 101.325);
            EXPECT_EQ(curve[1].x, lowest) << type;
            EXPECT_EQ(curve[2].x, static_cast<float>(StepX(d))) << type;
        }
    for (const int type : {27, 106}) {
        d.options.curveTpRestricted = false;
        d.Draw(type, 300, 101.325);
        d.spec.xMin = 0;
        const CurvePoints& curve = d.DrawAgain(300, 101.325);
        ASSERT_GT(curve.Count(), 10);
        EXPECT_EQ(curve[1].x, 0.1F) << type;
        EXPECT_EQ(curve[2].x, static_cast<float>(0.75 * StepX(d))) << type;
    }
    d.Draw(150, 380, 101.325);
    d.spec.xMin = 0;
    EXPECT_EQ(d.DrawAgain(380, 101.325)[1].x, 0.1F);
}

TEST(CurveEdges, ClampedGridsEndExactlyAtTheWindow) {
    ButaneDiagram d;
    d.options.curvePoints = 7;
    for (const int type : {2, 26, 150, 154, 15, 18, 30, 33, 40, 43, 156, 160}) {
        d.Draw(type, 380, 1000);
        if (type == 2 || type == 26)
            d.spec.xMin = 1;
        const CurvePoints& curve = d.DrawAgain(380, 1000);
        EXPECT_EQ(curve[curve.Count()].x, d.spec.xMax) << type;
        if (type < 156) {
            EXPECT_EQ(curve[1].x, d.spec.xMin) << type;
        }
    }
    d.options.curveTpRestricted = false;
    d.Draw(5, 380, 1000, 30);
    EXPECT_EQ(d.curve[1].x, d.spec.xMax);
    EXPECT_EQ(d.curve[d.curve.Count()].x, d.spec.xMin);
}

TEST(CurveEdges, TheGridOverVolumeJumpsOnceAndOnlyFromBelow) {
    ButaneDiagram d;
    const Saturated s = SaturationAt(d, 380);
    d.Draw(157, 380, 101.325);
    const double half = StepX(d) / 2;
    const CurvePoints below = d.curve;
    EXPECT_EQ(below[2].x, static_cast<float>(s.vV)); // the jump
    EXPECT_EQ(below[3].x, static_cast<float>(s.vV)); // the saturated end
    EXPECT_EQ(below[4].x, static_cast<float>(s.vV + half));
    d.spec.xMin = static_cast<float>(1.2 * s.vV);
    const CurvePoints& above = d.DrawAgain(380, 101.325);
    EXPECT_EQ(above[3].x, d.spec.xMin); // after both ends
    d.mode.sCurveMode = true;
    d.Draw(157, 380, 101.325);
    bool inside = false;
    for (int i = 1; i <= d.curve.Count(); ++i)
        inside = inside || (d.curve[i].x > 1.2 * s.vL && d.curve[i].x < 0.8 * s.vV);
    EXPECT_TRUE(inside);
}

TEST(CurveEdges, NegativePressuresOfALoopBecomeSmallOnes) {
    ButaneDiagram d;
    d.mode.sCurveMode = true;
    d.Draw(157, 300, 101.325);
    d.spec.xMax = 0.3F;
    const CurvePoints& curve = d.DrawAgain(300, 101.325);
    int raised = 0;
    for (int i = 1; i <= curve.Count(); ++i) {
        EXPECT_GT(curve[i].z, 0);
        raised += curve[i].z == 0.01F ? 1 : 0;
    }
    EXPECT_GT(raised, 10);
}

TEST(CurveEdges, SCurvesAreThinnedByTheirAbscissa) {
    ButaneDiagram d;
    d.mode.sCurveMode = true;
    const double pLV = SaturationAt(d, 380).p;
    constexpr struct {
        int type;
        double steps;
        bool sorted;
    } rows[] = {{2, 0.5, false}, {3, 1, true}, {4, 1, true}, {15, 1.5, false}, {150, 1, false}};
    for (const auto& [type, steps, sorted] : rows) {
        const CurvePoints& curve = d.Draw(type, 380, pLV);
        ASSERT_GT(curve.Count(), 20) << type;
        EXPECT_EQ(SortedByX(curve), sorted) << type;
        int close = 0; // the end of the loop alone may come nearer
        for (int i = 2; i <= curve.Count(); ++i)
            close +=
                std::abs(static_cast<double>(curve[i].x) - curve[i - 1].x) < steps * StepX(d) * (1 - 1e-3)
                    ? 1
                    : 0;
        EXPECT_LE(close, 1) << type;
    }
}

TEST(CurveEdges, IsochorWithoutRestrictionPassesTheCoexistenceCurve) {
    ButaneDiagram d;
    d.options.curveTpRestricted = false;
    const CurvePoints& curve = d.Draw(5, 300, 101.325, 1.5);
    const CurvePoint& last = curve[curve.Count()];
    SubstanceModel model = d.model;
    EXPECT_GT(last.y, 2 * EosSaturationPressure(model, last.x).value);
}

TEST(CurveEdges, VapourPressureCurvesBeginAtTheCriticalPointInSpiteOfRounding) {
    for (const int basis : {0, 2})
        for (int i = 0; i < 40; ++i) {
            ButaneDiagram d(eosPengRobinson, basis);
            d.model.substance.Tc = Tc + 0.001 * i; // some of them grow by 1 / (1 / T)
            d.model.eos.vCritCalc = d.model.eos.rhoCritCalc = 0.3;
            const double factor = (d.Draw(9, 300, 101.325), d.options.TFactor);
            EXPECT_EQ(d.curve[1].x, static_cast<float>(d.model.substance.Tc * factor)) << basis << " " << i;
            EXPECT_FLOAT_EQ(d.curve[1].y, static_cast<float>(pc * d.options.pFactor));
            d.Draw(10, 300, 101.325);
            EXPECT_EQ(d.curve[1].x, static_cast<float>(1 / (d.model.substance.Tc * factor)))
                << basis << " " << i;
        }
}

TEST(CurveEdges, PairsOnTheCoexistenceCurveWalkTheirOwnWindowOfPressure) {
    ButaneDiagram d;
    d.ranges.pMin = 0;
    const CurvePoints& curve = d.Draw(96, 300, 101.325);
    EXPECT_EQ(curve[1].z, 0.05F);
    const double step = 0.3 * (static_cast<double>(d.ranges.pMax) - 0.05) / d.options.curvePoints;
    ExpectClose(curve[2].z, 0.05 + step, 1e-6, "second");
    EXPECT_EQ(curve[curve.Count()].z, static_cast<float>(pc));
}

TEST(CurveEdges, TieLinesOfIsochorDiagramsBelongToTheirPressure) {
    ButaneDiagram d;
    d.mode.tieLineMode = true;
    const double TLV = BoilingPoint(d, 1000);
    for (const int type : {181, 182, 183, 184}) {
        const CurvePoints& curve = d.Draw(type, 300, 1000, 0.5);
        ASSERT_EQ(curve.Count(), 51) << type;
        ExpectClose(curve[1].x, TLV, 1e-6, "T(LV)");
        EXPECT_EQ(curve[1].x, curve[51].x);
        EXPECT_EQ(curve.ZKind(), zPressure);
    }
}

TEST(CurveEdges, HeatCapacitiesOfBothBoundariesRiseTowardsTheCriticalPoint) {
    for (const int eos :
         {eosVanDerWaals, eosBerthelot, eosRedlichKwong, eosSoaveRedlichKwong, eosPengRobinson})
        for (const int type : {72, 92})
            for (const int fraction : {0, 1}) {
                ButaneDiagram d(eos);
                d.mode.vapourFraction = fraction;
                const CurvePoints& curve = d.Draw(type, 300, 101.325);
                ASSERT_GT(curve.Count(), 50) << eos;
                for (int i = 1; i < 20; ++i)
                    EXPECT_GT(curve[i].y, curve[i + 1].y) << eos << " " << Place(type, i, curve[i]);
            }
}

TEST(CurveEdges, DensitiesWithoutLimitsAreDrawnAroundTheirTemperature) {
    ButaneDiagram d;
    d.model.substance.rhoLiquid = {};
    d.model.substance.rhoLiquid.r1 = 900; // a single point at r3 with the slope r2
    d.model.substance.rhoLiquid.r2 = -1;
    d.model.substance.rhoLiquid.r3 = 293;
    d.model.substance.rhoLiquid.Tcr = 425;
    for (const int type : {300, 301}) {
        const CurvePoints& curve = d.Draw(type, 300, 101.325);
        EXPECT_EQ(d.spec.dbTMin, 283.0F);
        EXPECT_EQ(d.spec.dbTMax, 303.0F);
        EXPECT_EQ(curve[1].x, 283.0F);
        const double rho = 900 - 283;
        ExpectClose(curve[1].y, type == 300 ? rho : d.model.substance.molarMass / rho, single, "first");
    }
    d.model.substance.rhoLiquid = {};
    d.model.substance.rhoLiquid.r2 = 60; // c1/c2^(1 + (1 - T/H)^c3)
    d.model.substance.rhoLiquid.r3 = 0.26F;
    d.model.substance.rhoLiquid.r4 = 0.28F;
    d.model.substance.rhoLiquid.Tcr = 425;
    d.Draw(300, 300, 101.325);
    EXPECT_EQ(d.spec.dbTMin, 415.0F);
    EXPECT_EQ(d.spec.dbTMax, 435.0F);
    d.model.substance.rhoSolid = {};
    d.model.substance.rhoSolid.s1 = 900;
    d.model.substance.rhoSolid.s2 = -1;
    d.model.substance.rhoSolid.s3 = 120;
    d.Draw(310, 300, 101.325);
    EXPECT_EQ(d.spec.dbTMin, 110.0F);
    EXPECT_EQ(d.spec.dbTMax, 130.0F);
    EXPECT_EQ(d.curve[1].y, 790.0F);
}

TEST(CurveEdges, WindowsOfDatabaseFunctionsHoldTheirValuesAndNoNegativeOnes) {
    ButaneDiagram d;
    for (const int type : {302, 307}) {
        const CurvePoints& curve = d.Draw(type, 300, 101.325);
        EXPECT_EQ(d.outcome.status, curveGood);
        EXPECT_GE(d.spec.yMin, 0);
        for (int i = 1; i <= curve.Count(); ++i) {
            EXPECT_GE(curve[i].y, d.spec.yMin) << type;
            EXPECT_LE(curve[i].y, d.spec.yMax) << type;
        }
    }
}

TEST(CurveEdges, InversionWithoutAStartIsGivenUpWithoutAMessage) {
    ButaneDiagram d(eosVanDerWaals); // its coefficient is positive at none of the starts
    d.Draw(2, 300, 101.325);
    d.spec.type = 190;
    EXPECT_EQ(d.DrawAgain(300, 101.325).Count(), 0);
    EXPECT_EQ(d.outcome.status, curveGood);
    DiagramWindow window(d.Records(), d.dialogs);
    window.Open(FindDiagram(2));
    EXPECT_FALSE(window.mnuMarkInversion());
    EXPECT_TRUE(d.dialogs.messages.empty());
    EXPECT_EQ(window.Chart().curveCount, 0);
}

TEST(CurveEdges, TheSearchForAnInversionBeginsTwoStepsBeforeItsStart) {
    ButaneDiagram d;
    const InversionResult found = JouleThomsonInversionT(d.model, 0.02, 1700, -10, 0, 1720.5);
    ASSERT_FALSE(found.failed);
    EXPECT_NEAR(found.value, 1680, 20); // below 1720, where it began
    EXPECT_TRUE(JouleThomsonInversionT(d.model, 0.02, 1700, -10, 0, 1720).failed);
    EXPECT_TRUE(JouleThomsonInversionT(d.model, 0.02, 1700, -10, 1690, 1800).failed);
    ButaneDiagram ideal(eosIdealGas); // without any effect there is no change of sign
    EXPECT_TRUE(JouleThomsonInversionT(ideal.model, 0.02, 1700, -10, 0, 1800).failed);
}

TEST(CurveEdges, InversionOfACoolGasHasItsLowerBranchThoughTheFixedStartFails) {
    MethaneDiagram d;
    d.model.selection.cpModel = 1;
    d.model.substance.cpPolynomial = {33, 0.01F, 0, 0, 0, 50, 1000};
    d.model.substance.cpPolynomialValid = true;
    d.spec.type = 190;
    d.spec.xMin = 0.001F;
    d.spec.xMax = 7000;
    d.spec.yMin = 0;
    d.spec.yMax = 3000;
    CurvePoints curve;
    CurveOutcome outcome;
    GenerateCurve(d.model, d.options, {}, d.spec, curve, 150, 101.325, 1, outcome);
    ASSERT_GT(curve.Count(), 50);
    EXPECT_EQ(outcome.status, curveGood);
    for (int i = 1; i <= curve.Count(); i += 5) {
        const double v = static_cast<double>(curve[i].y) / curve[i].x;
        EXPECT_LT(curve[i].z, 190);
        EXPECT_NEAR(ResidualFunctions(d.model, curve[i].z, curve[i].x, v).table.jouleThomson, 0, 5e-4);
    }
    // A window that shows none of it is told as ever.
    d.spec.yMin = 1e6F;
    d.spec.yMax = 2e6F;
    GenerateCurve(d.model, d.options, {}, d.spec, curve, 150, 101.325, 1, outcome);
    EXPECT_EQ(outcome.status, curveOutsideWindow);
}

} // namespace
} // namespace orva
