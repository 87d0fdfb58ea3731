// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include <gtest/gtest.h>

#include "diagrams/curve_generator.h"
#include "diagrams/diagram_fixture.h"
#include "state/constants.h"
#include "thermo/cubic_equation.h"
#include "thermo/saturation.h"
#include "thermo/virial_equation.h"

namespace orva {
namespace {

using test::MethaneDiagram;

struct Drawn {
    CurvePoints curve;
    CurveOutcome outcome;
};

Drawn Draw(MethaneDiagram& d, double T, const CurveMode& mode = {}) {
    Drawn drawn;
    GenerateCurve(d.model, d.options, mode, d.spec, drawn.curve, T, d.request.curveP, d.request.curveV,
                  drawn.outcome);
    return drawn;
}

// Saturated volumes and pressure, on a model of their own.
struct Saturation {
    double vLiquid, vVapour, p;
};

Saturation SaturationAt(const MethaneDiagram& d, double T) {
    SubstanceModel model = d.model;
    const double p = EosSaturationPressure(model, T).value;
    return {model.work.Roots[0], model.work.Roots[2], p};
}

// p of Peng and Robinson from its formula alone, in kPa.
double PengRobinsonPressure(const SubstanceData& s, double T, double v) {
    const double R = 8.31451;
    const double b = 0.0777960739 * R * s.Tc / s.pc;
    const double m = 0.37464 + 1.54226 * s.omega - 0.26992 * s.omega * s.omega;
    const double alpha = std::pow(1 + m * (1 - std::sqrt(T / s.Tc)), 2);
    const double a = 0.4572355289 * R * R * s.Tc * s.Tc / s.pc * alpha;
    return R * T / (v - b) - a / (v * v + 2 * b * v - b * b);
}

// Grid points above a volume. The sums may miss the end of the window by a rounding error, and then end
// before it.
int GridPointsAbove(const MethaneDiagram& d, double vLowest) {
    const double step = (static_cast<double>(d.spec.xMax) - d.spec.xMin) / d.options.curvePoints;
    int count = 0;
    for (double x = d.spec.xMin; x <= d.spec.xMax; x += step)
        count += x > vLowest ? 1 : 0;
    return count;
}

double CoVolume(const MethaneDiagram& d) {
    return 0.0777960739 * gasConstant * d.model.substance.Tc / d.model.substance.pc;
}

int IndexOf(const CurvePoints& curve, double x) {
    for (int i = 1; i <= curve.Count(); ++i)
        if (curve[i].x == static_cast<float>(x))
            return i;
    return 0;
}

bool IsSortedByX(const CurvePoints& curve) {
    for (int i = 2; i <= curve.Count(); ++i)
        if (curve[i].x < curve[i - 1].x)
            return false;
    return true;
}

TEST(Isotherm, PointsAboveTheCriticalTemperatureLieOnTheEquation) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 250);
    ASSERT_EQ(drawn.outcome.status, curveGood);
    EXPECT_EQ(drawn.curve.Count(), GridPointsAbove(d, CoVolume(d)));
    EXPECT_NEAR(drawn.curve.Count(), 300 * (1 - 0.253 / 7), 1); // b = 0.253 v(cr) of 7 v(cr)
    for (int i = 1; i <= drawn.curve.Count(); ++i) {
        const CurvePoint& point = drawn.curve[i];
        EXPECT_NEAR(point.y / PengRobinsonPressure(d.model.substance, 250, point.x), 1, 2e-5)
            << "v = " << point.x;
        EXPECT_EQ(point.z, 250.0F);
    }
}

TEST(Isotherm, HeaderHoldsTheCountAndTheTemperatureCode) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 250);
    EXPECT_EQ(drawn.curve.Header().x, static_cast<float>(drawn.curve.Count()));
    EXPECT_EQ(drawn.curve.Header().z, -1.0F);
    EXPECT_EQ(drawn.curve.ZKind(), zTemperature);
}

TEST(Isotherm, AbscissaeAreRepeatedSumsOfTheStep) {
    MethaneDiagram d(virialPengRobinson);
    const Drawn drawn = Draw(d, 250);
    const double step = (static_cast<double>(d.spec.xMax) - d.spec.xMin) / d.options.curvePoints;
    double x = d.spec.xMin;
    for (int i = 1; i <= drawn.curve.Count(); ++i, x += step)
        ASSERT_EQ(drawn.curve[i].x, static_cast<float>(x));
}

TEST(Isotherm, CriticalTemperatureItselfTakesTheOnePhaseBranch) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, d.model.substance.Tc);
    EXPECT_EQ(drawn.outcome.status, curveGood);
    EXPECT_EQ(drawn.curve.Count(), GridPointsAbove(d, CoVolume(d)));
    EXPECT_EQ(IndexOf(drawn.curve, 1 / d.model.eos.rhoCritCalc), 0);
    EXPECT_TRUE(drawn.outcome.tie.failed);
}

TEST(Isotherm, BelowTheCriticalTemperatureTheSaturatedPointsAreNeighboursAtOneHeight) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 150);
    const Saturation s = SaturationAt(d, 150);
    EXPECT_EQ(drawn.outcome.status, curveGood);
    const int liquid = IndexOf(drawn.curve, s.vLiquid);
    ASSERT_GT(liquid, 0);
    const CurvePoint& l = drawn.curve[liquid];
    const CurvePoint& v = drawn.curve[liquid + 1];
    EXPECT_EQ(v.x, static_cast<float>(s.vVapour));
    EXPECT_EQ(l.y, static_cast<float>(s.p));
    EXPECT_EQ(v.y, l.y);
    EXPECT_TRUE(IsSortedByX(drawn.curve));
}

// p(LV) of methane at 150 K is 1040 kPa (Setzmann, Wagner 1991); Peng and Robinson give it within 1 %.
TEST(Isotherm, SaturationPressureOfMethaneIsThatOfTheLiterature) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 150);
    EXPECT_NEAR(drawn.outcome.tie.y1, 1040, 10.4);
}

TEST(Isotherm, EqualAreasLieAboveAndBelowTheTieLine) {
    MethaneDiagram d;
    const Saturation s = SaturationAt(d, 150);
    const int steps = 20000;
    const double h = (s.vVapour - s.vLiquid) / steps;
    double integral = 0;
    for (int i = 0; i <= steps; ++i) {
        const double p = PengRobinsonPressure(d.model.substance, 150, s.vLiquid + i * h);
        integral += (i == 0 || i == steps ? 1 : i % 2 == 1 ? 4 : 2) * p * h / 3;
    }
    EXPECT_NEAR(integral / (s.p * (s.vVapour - s.vLiquid)), 1, 1e-4);
}

TEST(Isotherm, OrdinaryModeHasNoPointInsideTheTwoPhaseRegion) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 150);
    const Saturation s = SaturationAt(d, 150);
    for (int i = 1; i <= drawn.curve.Count(); ++i)
        EXPECT_FALSE(drawn.curve[i].x > static_cast<float>(s.vLiquid)
                     && drawn.curve[i].x < static_cast<float>(s.vVapour));
}

TEST(Isotherm, SCurveModeKeepsTheInnerPartAndTheSaturatedPoints) {
    MethaneDiagram d;
    CurveMode mode;
    mode.sCurveMode = true;
    const Drawn drawn = Draw(d, 150, mode);
    const Saturation s = SaturationAt(d, 150);
    ASSERT_GT(drawn.curve.Count(), 50);
    EXPECT_EQ(drawn.curve[1].x, static_cast<float>(s.vLiquid));
    EXPECT_EQ(drawn.curve[drawn.curve.Count()].x, static_cast<float>(s.vVapour));
    for (int i = 2; i < drawn.curve.Count(); ++i) {
        EXPECT_GT(drawn.curve[i].x, static_cast<float>(s.vLiquid));
        EXPECT_LT(drawn.curve[i].x, static_cast<float>(s.vVapour));
        EXPECT_NEAR(drawn.curve[i].y, PengRobinsonPressure(d.model.substance, 150, drawn.curve[i].x), 0.05);
    }
}

TEST(Isotherm, OrdinaryCurveAndSCurveTogetherHoldTheWholeLoop) {
    MethaneDiagram d;
    CurveMode inner;
    inner.sCurveMode = true;
    const int parts = Draw(d, 150).curve.Count() + Draw(d, 150, inner).curve.Count();
    d.options.sCurveWithoutTieLine = true;
    const Drawn whole = Draw(d, 150);
    EXPECT_EQ(whole.curve.Count(), parts - 2); // the saturated points are in both
    EXPECT_EQ(whole.curve.Count(), GridPointsAbove(d, CoVolume(d)) + 2);
    EXPECT_TRUE(IsSortedByX(whole.curve));
}

TEST(Isotherm, LoopWithoutTieLineHasAMinimumBelowTheSaturationPressure) {
    MethaneDiagram d;
    d.options.sCurveWithoutTieLine = true;
    const Drawn drawn = Draw(d, 150);
    float lowest = 1e9F;
    for (int i = 1; i <= drawn.curve.Count(); ++i)
        lowest = std::min(lowest, drawn.curve[i].y);
    EXPECT_LT(lowest, static_cast<float>(SaturationAt(d, 150).p) / 2);
}

TEST(Isotherm, SaturatedPointsStayThoughTheyLieOutsideTheWindow) {
    MethaneDiagram d;
    d.spec.xMax = 0.2F;
    const Drawn drawn = Draw(d, 120);
    const Saturation s = SaturationAt(d, 120);
    ASSERT_GT(s.vVapour, 1);
    EXPECT_EQ(drawn.curve[drawn.curve.Count()].x, static_cast<float>(s.vVapour));
}

TEST(Isotherm, SaturatedPointsAloneDoNotMakeTheCurveVisible) {
    MethaneDiagram d;
    const Saturation s = SaturationAt(d, 150);
    // A window around the liquid end that no grid point of the ordinary curve can reach.
    d.spec.xMin = static_cast<float>(s.vLiquid * 0.999999);
    d.spec.xMax = static_cast<float>(s.vLiquid * 1.2);
    d.spec.yMin = static_cast<float>(s.p - 0.001);
    d.spec.yMax = static_cast<float>(s.p + 0.001);
    const Drawn drawn = Draw(d, 150);
    EXPECT_GT(IndexOf(drawn.curve, s.vLiquid), 0);
    EXPECT_EQ(drawn.outcome.status, curveOutsideWindow);
}

TEST(Isotherm, CurveWhollyOutsideTheWindowReturnsItsPointsAndStatusTen) {
    MethaneDiagram d;
    d.spec.yMin = 1e6F;
    d.spec.yMax = 2e6F;
    d.spec.xMin = 0.1F;
    const Drawn drawn = Draw(d, 250);
    EXPECT_EQ(drawn.outcome.status, curveOutsideWindow);
    EXPECT_EQ(drawn.curve.Count(), 301);
}

TEST(Isotherm, PointsOnTheBorderOfTheWindowDoNotCount) {
    MethaneDiagram d(eosIdealGas);
    d.options.curvePoints = 1; // x takes the two limits of the window only
    d.spec.xMin = 1;
    d.spec.xMax = 2;
    d.spec.yMin = 0;
    d.spec.yMax = 1e5F;
    const Drawn drawn = Draw(d, 300);
    EXPECT_EQ(drawn.curve.Count(), 2);
    EXPECT_EQ(drawn.outcome.status, curveOutsideWindow);
}

TEST(Isotherm, WithoutAnEquilibriumPressureThereAreNoPoints) {
    MethaneDiagram d;
    d.model.eos.b0 = 10; // a co-volume beyond all roots: no equilibrium can be found
    const Drawn drawn = Draw(d, 150);
    EXPECT_EQ(drawn.curve.Count(), 0);
    EXPECT_EQ(drawn.outcome.status, curveOutsideWindow);
}

TEST(Isotherm, HasNoTieLineToAVolumeBeyondSinglePrecision) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 8);
    EXPECT_TRUE(drawn.outcome.tie.failed);
    EXPECT_EQ(drawn.outcome.tie.x2, 0);
}

TEST(Isotherm, WindowWithoutExtentLeavesEverythingUntouched) {
    MethaneDiagram d;
    Drawn drawn = Draw(d, 250);
    const Drawn before = drawn;
    drawn.outcome.status = 7;
    drawn.outcome.resultText = "unberührt";
    d.spec.xMax = d.spec.xMin;
    GenerateCurve(d.model, d.options, {}, d.spec, drawn.curve, 200, 0, 0, drawn.outcome);
    EXPECT_EQ(drawn.curve, before.curve);
    EXPECT_EQ(drawn.outcome.status, 7);
    EXPECT_EQ(drawn.outcome.resultText, "unberührt");
}

TEST(Isotherm, VirialEquationIsOnePhaseAtEveryTemperature) {
    MethaneDiagram d(virialPitzerCurl);
    const Drawn drawn = Draw(d, 150);
    SubstanceModel model = d.model;
    const double B = VirialCoefficientB(model, virialPitzerCurl, 150);
    ASSERT_LT(B, 0);
    ASSERT_EQ(drawn.curve.Count(), 301);
    for (int i = 2; i <= drawn.curve.Count(); ++i)
        EXPECT_NEAR(drawn.curve[i].y / (gasConstant * 150 / (drawn.curve[i].x - B)), 1, 1e-6);
}

TEST(Isotherm, IdealGasIsAHyperbola) {
    MethaneDiagram d(eosIdealGas);
    const Drawn drawn = Draw(d, 300);
    ASSERT_EQ(drawn.curve.Count(), 300); // v = 0 has no pressure
    for (int i = 1; i <= drawn.curve.Count(); ++i)
        EXPECT_NEAR(drawn.curve[i].x * drawn.curve[i].y / (gasConstant * 300), 1, 1e-6);
}

TEST(Isotherm, ReducedUnitsScaleTheAxesAndLeaveTheTemperaturePlain) {
    MethaneDiagram plain;
    MethaneDiagram reduced(eosPengRobinson, 2);
    EXPECT_FLOAT_EQ(reduced.spec.xMax, 7.0F);
    const Drawn a = Draw(plain, 150);
    const Drawn b = Draw(reduced, 150);
    EXPECT_NEAR(b.outcome.tie.y1, a.outcome.tie.y1 / 4599.2, 1e-6);
    EXPECT_NEAR(b.outcome.tie.x2, a.outcome.tie.x2 / plain.model.eos.vCritCalc, 1e-4);
    EXPECT_EQ(b.curve[1].z, 150.0F);
}

TEST(Isotherm, SpecificVolumesAreMolarOnesDividedByM) {
    MethaneDiagram molar;
    MethaneDiagram specific(eosPengRobinson, 1);
    EXPECT_NEAR(Draw(specific, 150).outcome.tie.x2 * 16.0428, Draw(molar, 150).outcome.tie.x2, 1e-5);
}

TEST(Isotherm, EveryCubicEquationDrawsAHorizontalTieLine) {
    for (const int eos :
         {eosVanDerWaals, eosBerthelot, eosRedlichKwong, eosSoaveRedlichKwong, eosPengRobinson}) {
        MethaneDiagram d(eos);
        const Drawn drawn = Draw(d, 170);
        const Saturation s = SaturationAt(d, 170);
        const int liquid = IndexOf(drawn.curve, s.vLiquid);
        ASSERT_GT(liquid, 0) << eos;
        EXPECT_EQ(drawn.curve[liquid].y, drawn.curve[liquid + 1].y) << eos;
    }
}

TEST(Isotherm, InvertedWindowIsWalkedDownwards) {
    MethaneDiagram d;
    std::swap(d.spec.xMin, d.spec.xMax);
    const Drawn drawn = Draw(d, 250);
    EXPECT_EQ(drawn.curve.Count(), 301 - 11);
    EXPECT_EQ(drawn.outcome.status, curveOutsideWindow);
}

TEST(Isotherm, UnusableGridIsAFaultWithAText) {
    MethaneDiagram d;
    d.options.curvePoints = 0;
    Drawn drawn = Draw(d, 250);
    EXPECT_EQ(drawn.outcome.status, curveFault);
    EXPECT_FALSE(drawn.outcome.resultText.empty());
    d.options.curvePoints = 300;
    d.spec.xMax = INFINITY;
    drawn = Draw(d, 250);
    EXPECT_EQ(drawn.outcome.status, curveFault);
    EXPECT_EQ(drawn.curve.Count(), 0);
}

TEST(Isotherm, NoTemperatureGivesAnInfiniteOrUndefinedPoint) {
    for (const int eos : {0, 2, 3, 4, 5, 6, 10, 11, 12, 13, 14, 15, 16})
        for (const double T : {-5.0, 0.0, 1e-9, 0.01, 5.0, 190.5639, 190.564, 1e5, 1e300}) {
            MethaneDiagram d(eos);
            const Drawn drawn = Draw(d, T);
            for (int i = 1; i <= drawn.curve.Count(); ++i)
                ASSERT_TRUE(std::isfinite(drawn.curve[i].x) && std::isfinite(drawn.curve[i].y)
                            && std::isfinite(drawn.curve[i].z))
                    << eos << " " << T;
        }
}

TEST(Isotherm, UnknownTypeIsAFault) {
    MethaneDiagram d;
    d.spec.type = 9999;
    const Drawn drawn = Draw(d, 250);
    EXPECT_EQ(drawn.outcome.status, curveFault);
    EXPECT_EQ(drawn.outcome.resultText, "Diagrammtyp 9999 ist nicht vorhanden");
}

TEST(TieLine, HasFiftyOnePointsFromLiquidToVapour) {
    MethaneDiagram d;
    CurveMode mode;
    mode.tieLineMode = true;
    const Drawn drawn = Draw(d, 150, mode);
    const Saturation s = SaturationAt(d, 150);
    EXPECT_EQ(drawn.outcome.status, curveGood);
    ASSERT_EQ(drawn.curve.Header().x, 51.0F);
    EXPECT_EQ(drawn.curve.ZKind(), zTemperature);
    EXPECT_EQ(drawn.curve[1].x, static_cast<float>(s.vLiquid));
    EXPECT_NEAR(drawn.curve[51].x, s.vVapour, 1e-6);
    for (int i = 1; i <= 51; ++i) {
        EXPECT_EQ(drawn.curve[i].y, static_cast<float>(s.p));
        EXPECT_EQ(drawn.curve[i].z, 150.0F);
    }
    EXPECT_EQ(drawn.outcome.tie.stepY, 0);
    EXPECT_NEAR(drawn.outcome.tie.stepX, (s.vVapour - s.vLiquid) / 50, 1e-8);
}

TEST(TieLine, OutsideOfTheWindowIsNoFault) {
    MethaneDiagram d;
    d.spec.yMin = 1e5F;
    d.spec.yMax = 2e5F;
    CurveMode mode;
    mode.tieLineMode = true;
    EXPECT_EQ(Draw(d, 150, mode).outcome.status, curveGood);
}

TEST(TieLine, IsImpossibleFromTheCriticalTemperatureOn) {
    for (const double T : {190.564, 200.0}) {
        MethaneDiagram d;
        CurveMode mode;
        mode.tieLineMode = true;
        const Drawn drawn = Draw(d, T, mode);
        EXPECT_EQ(drawn.outcome.status, curveTieLineImpossible);
        EXPECT_EQ(drawn.curve.Count(), 0);
        EXPECT_EQ(drawn.outcome.tie.x1, 0.0F);
        EXPECT_EQ(drawn.outcome.tie.y2, 0.0F);
    }
}

TEST(TieLine, IsImpossibleForAVirialEquation) {
    MethaneDiagram d(virialPengRobinson);
    CurveMode mode;
    mode.tieLineMode = true;
    EXPECT_EQ(Draw(d, 150, mode).outcome.status, curveTieLineImpossible);
}

TEST(TieLine, EndsAreKnownAfterAnOrdinaryCurveToo) {
    MethaneDiagram d;
    const Drawn drawn = Draw(d, 150);
    const Saturation s = SaturationAt(d, 150);
    EXPECT_EQ(drawn.outcome.tie.x1, static_cast<float>(s.vLiquid));
    EXPECT_EQ(drawn.outcome.tie.x2, static_cast<float>(s.vVapour));
}

} // namespace
} // namespace orva
