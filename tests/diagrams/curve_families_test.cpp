// SPDX-License-Identifier: GPL-3.0-or-later
// The points of each family against an evaluation of their own, and relations between the families.
#include <cmath>

#include <gtest/gtest.h>

#include "butane_diagram.h"
#include "diagrams/inversion_curves.h"
#include "thermo/eos_temperature.h"
#include "thermo/heat_capacity.h"
#include "thermo/phase_volumes.h"
#include "thermo/residual_functions.h"
#include "thermo/saturation.h"
#include "thermo/vapour_pressure.h"

namespace orva {
namespace {

using test::ButaneDiagram;

constexpr double Tc = 425.125, pc = 3796;
constexpr double single = 3e-6; // relative rounding of a stored coordinate, and of the x it came from

constexpr double smallValue = 1e-3; // below it an error counts as absolute
constexpr double energyScale = 100; // kJ/kmol, of functions that pass through 0

struct Saturated {
    double p = 0, vL = 0, vV = 0;
};

Saturated SaturationAt(const ButaneDiagram& d, double T) {
    SubstanceModel model = d.model;
    const double p = EosSaturationPressure(model, T).value;
    return {p, model.work.Roots[0], model.work.Roots[2]};
}

double BoilingPoint(const ButaneDiagram& d, double p) {
    SubstanceModel model = d.model;
    return EosSaturationTemperature(model, p).value;
}

// The phase that is there, liquid first.
double VolumeAt(const ButaneDiagram& d, double T, double p) {
    SubstanceModel model = d.model;
    PhaseVolumes phases;
    EosPhaseVolumes(model, T, p, phases);
    return phases.hasL ? phases.vL : phases.vV;
}

CaloricValues StateAt(const ButaneDiagram& d, double T, double p, double v) {
    SubstanceModel model = d.model;
    return CaloricState(model, T, p, v).values;
}

bool SortedByX(const CurvePoints& curve) {
    for (int i = 2; i <= curve.Count(); ++i)
        if (curve[i].x < curve[i - 1].x)
            return false;
    return true;
}

void ExpectClose(double found, double expected, double tolerance, const std::string& where,
                 double scale = smallValue) {
    EXPECT_NEAR(found, expected, tolerance * (std::abs(expected) + scale)) << where;
}

std::string Place(int type, int i, const CurvePoint& point) {
    return "type " + std::to_string(type) + " point " + std::to_string(i) + " x " + std::to_string(point.x);
}

struct CaloricType {
    int type;
    double CaloricValues::*value;
};

constexpr CaloricType isobars[] = {
    {15, &CaloricValues::h}, {16, &CaloricValues::s}, {17, &CaloricValues::g}, {18, &CaloricValues::exergyH}};
constexpr CaloricType isochors[] = {{181, &CaloricValues::exergyU},
                                    {182, &CaloricValues::f},
                                    {183, &CaloricValues::u},
                                    {184, &CaloricValues::s},
                                    {185, &CaloricValues::cv}};
constexpr CaloricType isotherms[] = {
    {150, &CaloricValues::h},       {151, &CaloricValues::s},  {152, &CaloricValues::g},
    {153, &CaloricValues::exergyH}, {154, &CaloricValues::cp}, {155, &CaloricValues::exergyU},
};
constexpr CaloricType overVolume[] = {{156, &CaloricValues::f},
                                      {157, &CaloricValues::u},
                                      {158, &CaloricValues::s},
                                      {159, &CaloricValues::cv},
                                      {160, &CaloricValues::exergyU}};

TEST(Families, IsobarsOfTheCaloricFunctionsHoldTheStateAtTheirTemperature) {
    ButaneDiagram d;
    constexpr double p = 500;
    const double TLV = BoilingPoint(d, p);
    for (const auto& [type, value] : isobars) {
        const CurvePoints& curve = d.Draw(type, 300, p);
        ASSERT_GT(curve.Count(), 290) << type;
        EXPECT_TRUE(SortedByX(curve));
        EXPECT_EQ(curve.ZKind(), zNothing);
        int ends = 0;
        for (int i = 1; i <= curve.Count(); ++i) {
            const double T = curve[i].x;
            if (std::abs(T - TLV) < 1e-3) { // tie line and its neighbour
                ++ends;
                continue;
            }
            const double y = StateAt(d, T, p, VolumeAt(d, T, p)).*value;
            ExpectClose(curve[i].y, y, 2e-5, Place(type, i, curve[i]), type == 16 ? 1 : energyScale);
        }
        EXPECT_EQ(ends, 3) << type;
    }
}

TEST(Families, TheJumpOfAnIsobarIsItsTieLine) {
    ButaneDiagram d;
    constexpr double p = 500;
    const double TLV = BoilingPoint(d, p);
    const Saturated s = SaturationAt(d, TLV);
    const CurvePoints& curve = d.Draw(15, 300, p);
    int at = 1;
    while (at <= curve.Count() && curve[at].x < static_cast<float>(TLV))
        ++at;
    ASSERT_LT(at, curve.Count());
    ExpectClose(curve[at].y, StateAt(d, TLV, p, s.vL).h, 1e-4, "liquid");
    ExpectClose(curve[at + 1].y, StateAt(d, TLV, p, s.vV).h, 1e-4, "vapour");
    EXPECT_EQ(curve[at].x, curve[at + 1].x);
}

TEST(Families, ReducedIsobarsTakeTheFactorOfTheTemperatureOnce) {
    ButaneDiagram plain;
    ButaneDiagram reduced(eosPengRobinson, 2);
    const TieLine a = (plain.Draw(15, 300, 500), plain.outcome.tie);
    const TieLine b = (reduced.Draw(15, 300, 500), reduced.outcome.tie);
    EXPECT_NEAR(b.x1, a.x1 / Tc, 1e-6);
    bool jumps = false;
    for (int i = 2; i <= reduced.curve.Count(); ++i)
        jumps = jumps || (reduced.curve[i].x == b.x1 && reduced.curve[i - 1].x == b.x1);
    EXPECT_TRUE(jumps);
}

TEST(Families, IsochorsOfTheCaloricFunctionsEndWhereThePressureEnds) {
    ButaneDiagram d;
    for (const auto& [type, value] : isochors) {
        const CurvePoints& curve = d.Draw(type, 300, 101.325, 0.5);
        ASSERT_GT(curve.Count(), 100) << type;
        for (int i = 1; i <= curve.Count(); i += 7) {
            const double T = curve[i].x;
            SubstanceModel model = d.model;
            const double p = caloric::PressureAt(model, T, 0.5);
            ASSERT_GT(p, 0);
            ExpectClose(curve[i].y, StateAt(d, T, p, 0.5).*value, 2e-5, Place(type, i, curve[i]),
                        energyScale);
        }
    }
}

TEST(Families, IsothermsOfTheCaloricFunctionsJumpAtTheVapourPressure) {
    ButaneDiagram d;
    constexpr double T = 380;
    const Saturated s = SaturationAt(d, T);
    for (const auto& [type, value] : isotherms) {
        const CurvePoints& curve = d.Draw(type, T, 101.325);
        ASSERT_GT(curve.Count(), 290) << type;
        EXPECT_TRUE(SortedByX(curve));
        int ends = 0;
        for (int i = 1; i <= curve.Count(); ++i) {
            const double p = curve[i].x;
            if (std::abs(p / s.p - 1) < 1e-6) {
                ++ends;
                continue;
            }
            ExpectClose(curve[i].y, StateAt(d, T, p, VolumeAt(d, T, p)).*value, 1e-4,
                        Place(type, i, curve[i]));
        }
        EXPECT_EQ(ends, 2) << type;
    }
}

TEST(Families, FunctionsOfTheVolumeHoldTheVapourAndBothSaturatedEnds) {
    ButaneDiagram d;
    constexpr double T = 380;
    const Saturated s = SaturationAt(d, T);
    for (const auto& [type, value] : overVolume) {
        const CurvePoints& curve = d.Draw(type, T, 101.325);
        ASSERT_GT(curve.Count(), 100) << type;
        EXPECT_EQ(curve.ZKind(), zPressure);
        ExpectClose(curve[1].x, s.vL, 1e-5, "liquid end");
        ExpectClose(curve[1].z, s.p, 1e-5, "p(LV)");
        for (int i = 2; i <= curve.Count(); ++i) {
            ASSERT_GE(curve[i].x, s.vV * (1 - 1e-5)) << Place(type, i, curve[i]);
            double y = StateAt(d, T, curve[i].z, curve[i].x).*value;
            if (type == 159)
                y = std::abs(y);
            ExpectClose(curve[i].y, y, 1e-4, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, ResidualFunctionsAreTheRowsOfTheirTable) {
    ButaneDiagram d;
    for (const int type : {30, 31, 32, 33, 40, 41, 42, 43}) {
        const bool isobar = type < 40;
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        ASSERT_GT(curve.Count(), 280) << type;
        EXPECT_EQ(curve.ZKind(), isobar ? zPressure : zTemperature);
        const double end = isobar ? BoilingPoint(d, 1000) : SaturationAt(d, 380).p;
        for (int i = 1; i <= curve.Count(); i += 5) {
            if (std::abs(curve[i].x / end - 1) < 1e-5)
                continue;
            const double T = isobar ? curve[i].x : curve[i].z;
            const double p = isobar ? curve[i].z : curve[i].x;
            SubstanceModel model = d.model;
            const ResidualState state = ResidualFunctions(model, T, p, VolumeAt(d, T, p));
            const double y = 8.31451 * state.table.Row(type - (isobar ? 27 : 37));
            ExpectClose(curve[i].y, y, 1e-4, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, HeatCapacityIsTheIdealGasAndTheResidualPart) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(19, 300, 500);
    ASSERT_GT(curve.Count(), 280);
    for (int i = 1; i <= curve.Count(); i += 9) {
        SubstanceModel model = d.model;
        const double T = curve[i].x;
        const ResidualState state = ResidualFunctions(model, T, 500, VolumeAt(d, T, 500));
        ExpectClose(curve[i].y, IdealGasCp(model.substance, T, 2).cp + 8.31451 * state.table.cp, 2e-5,
                    Place(19, i, curve[i]));
    }
}

TEST(Families, JouleThomsonCoefficientIsTheSlopeOfAnIsenthalp) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(34, 300, 500);
    EXPECT_EQ(curve.ZKind(), zPressure);
    const double TLV = BoilingPoint(d, 500);
    int checked = 0;
    for (int i = 1; i <= curve.Count(); i += 11) {
        const double T = curve[i].x;
        if (T < TLV + 5)
            continue;
        // (dT/dp)_h = -(dh/dp)_T / cp
        const double dp = 0.5;
        const double up = StateAt(d, T, 500 + dp, VolumeAt(d, T, 500 + dp)).h;
        const double down = StateAt(d, T, 500 - dp, VolumeAt(d, T, 500 - dp)).h;
        const double cp = StateAt(d, T, 500, VolumeAt(d, T, 500)).cp;
        EXPECT_NEAR(curve[i].y, -(up - down) / (2 * dp) / cp, 2e-3 * std::abs(curve[i].y)) << T;
        ++checked;
    }
    EXPECT_GT(checked, 5);
}

TEST(Families, PairsFollowTheirLimitsInAscendingOrder) {
    ButaneDiagram d;
    d.mode.limitLow = 900; // given the wrong way round
    d.mode.limitHigh = 100;
    for (const int type : {21, 107, 109}) {
        const CurvePoints& curve = d.Draw(type, 350, 500);
        ASSERT_GE(curve.Count(), 300) << type;
        EXPECT_EQ(curve.ZKind(), zPressure);
        EXPECT_EQ(curve[1].z, 100.0F);
        for (int i = 1; i <= curve.Count(); i += 13) {
            const CaloricValues state = StateAt(d, 350, curve[i].z, VolumeAt(d, 350, curve[i].z));
            const double x = type == 21 ? state.h : type == 107 ? state.s : d.model.reference.Tenv * state.s;
            ExpectClose(curve[i].x, x, 2e-5, Place(type, i, curve[i]));
            ExpectClose(curve[i].y, type == 107 ? state.h : state.exergyH, 2e-5, Place(type, i, curve[i]));
        }
    }
    d.mode.limitLow = 280;
    d.mode.limitHigh = 460;
    for (const int type : {22, 23, 24}) {
        const CurvePoints& curve = d.Draw(type, 350, 500);
        ASSERT_GE(curve.Count(), 300) << type;
        EXPECT_EQ(curve.ZKind(), zTemperature);
        for (int i = 1; i <= curve.Count(); i += 13) {
            const CaloricValues state = StateAt(d, curve[i].z, 500, VolumeAt(d, curve[i].z, 500));
            ExpectClose(curve[i].y, type == 24 ? state.h : state.exergyH, 2e-5, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, EqualLimitsGiveNoPairs) {
    ButaneDiagram d;
    d.mode.limitLow = d.mode.limitHigh = 300;
    EXPECT_EQ(d.Draw(107, 350, 500).Count(), 0);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
}

// Equal fugacity of both ends, h - T s of the tie line, is what the equal areas promise.
TEST(Families, EndsOfTheTieLineHaveOneFreeEnthalpy) {
    ButaneDiagram d;
    for (const int type : {17, 152}) {
        d.Draw(type, 380, 1000);
        const TieLine& tie = d.outcome.tie;
        ASSERT_FALSE(tie.failed) << type;
        EXPECT_NEAR(tie.y1, tie.y2, 2e-5 * std::abs(tie.y1)) << type;
    }
    for (const int type : {32, 42}) { // residual parts too: the ideal gas at T, p is the same
        d.Draw(type, 380, 1000);
        EXPECT_NEAR(d.outcome.tie.y1, d.outcome.tie.y2, 0.3) << type;
    }
}

TEST(Families, TieLinesAreFiftyOneEquallySpacedPoints) {
    ButaneDiagram d;
    d.mode.tieLineMode = true;
    for (const int type :
         {1, 2, 26, 15, 16, 17, 18, 150, 155, 156, 160, 30, 33, 40, 43, 21, 22, 23, 24, 107, 109}) {
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        ASSERT_EQ(d.outcome.status, curveGood) << type;
        ASSERT_EQ(curve.Count(), 51);
        EXPECT_EQ(curve.Header().x, 51.0F);
        const bool isotherm = d.spec.curveKind == curveIsotherm;
        EXPECT_EQ(curve.ZKind(), isotherm ? zTemperature : zPressure);
        EXPECT_EQ(curve[26].z, isotherm ? 380.0F : 1000.0F);
        EXPECT_EQ(curve[1].x, d.outcome.tie.x1);
        EXPECT_EQ(curve[1].y, d.outcome.tie.y1);
        ExpectClose(curve[51].y, d.outcome.tie.y2, single, "last");
        ExpectClose(curve[26].y, (static_cast<double>(curve[1].y) + curve[51].y) / 2, 1e-5, "middle");
    }
}

TEST(Families, TypesWithoutTieLineAndStatesAboveTheCriticalPointRefuseIt) {
    ButaneDiagram d;
    d.mode.tieLineMode = true;
    for (const int type : {3, 4, 5, 19, 34, 185, 6, 90, 307}) {
        EXPECT_EQ(d.Draw(type, 380, 1000).Count(), 0) << type;
        EXPECT_EQ(d.outcome.status, curveTieLineImpossible) << type;
    }
    d.Draw(1, Tc, 1000);
    EXPECT_EQ(d.outcome.status, curveTieLineImpossible);
    d.Draw(15, 300, pc);
    EXPECT_EQ(d.outcome.status, curveTieLineImpossible);
}

// s = -(da/dT)_v, p = -(da/dv)_T, and (ds/dp)_T = -(dv/dT)_p, taken from the curves alone.
TEST(Families, MaxwellRelationsHoldBetweenTheDiagrams) {
    ButaneDiagram d;
    d.options.curvePoints = 800;
    const CurvePoints a = d.Draw(182, 300, 101.325, 2.0);
    const CurvePoints s = d.Draw(184, 300, 101.325, 2.0);
    ASSERT_EQ(a.Count(), s.Count());
    for (int i = 100; i < a.Count() - 100; i += 90) {
        const double slope = (static_cast<double>(a[i + 40].y) - a[i - 40].y)
                             / (static_cast<double>(a[i + 40].x) - a[i - 40].x);
        EXPECT_NEAR(-slope, s[i].y, 2e-3 * std::abs(s[i].y) + 0.05) << a[i].x;
    }
    const CurvePoints overV = d.Draw(156, 450, 101.325);
    for (int i = 400; i < overV.Count() - 50; i += 90) {
        const double slope = (static_cast<double>(overV[i + 5].y) - overV[i - 5].y)
                             / (static_cast<double>(overV[i + 5].x) - overV[i - 5].x);
        EXPECT_NEAR(-slope, overV[i].z, 5e-3 * overV[i].z) << overV[i].x;
    }
    const CurvePoints sOverP = d.Draw(151, 450, 101.325);
    for (int i = 60; i < 400; i += 60) {
        const double p = sOverP[i].x;
        const double left = (static_cast<double>(sOverP[i + 5].y) - sOverP[i - 5].y)
                            / (static_cast<double>(sOverP[i + 5].x) - sOverP[i - 5].x);
        const double right = (VolumeAt(d, 450.5, p) - VolumeAt(d, 449.5, p)) / 1.0;
        EXPECT_NEAR(left, -right, 5e-3 * right) << p;
    }
}

TEST(Families, SectionsOverPressureAndVolumeAreOneSurface) {
    ButaneDiagram d;
    for (const int type : {2, 26}) {
        const CurvePoints& curve = d.Draw(type, 380, 101.325);
        EXPECT_TRUE(SortedByX(curve));
        EXPECT_EQ(curve.ZKind(), zTemperature);
        for (int i = 1; i <= curve.Count(); ++i) {
            const double v = type == 2 ? curve[i].y / static_cast<double>(curve[i].x)
                                       : d.model.substance.molarMass / static_cast<double>(curve[i].y);
            SubstanceModel model = d.model;
            // A liquid answers a rounding error of its volume with a wide swing of the pressure.
            const double p = caloric::PressureAt(model, 380, v);
            const double swing = std::abs(caloric::PressureAt(model, 380, v * (1 + 2e-6)) - p);
            EXPECT_NEAR(p, curve[i].x, swing + 1e-4 * curve[i].x) << Place(type, i, curve[i]);
        }
    }
    for (const int type : {3, 4}) {
        const CurvePoints& curve = d.Draw(type, 380, 1000);
        EXPECT_TRUE(SortedByX(curve));
        EXPECT_EQ(curve.ZKind(), zNothing);
        for (int i = 1; i <= curve.Count(); i += 3) {
            const double v = type == 3 ? static_cast<double>(curve[i].x)
                                       : d.model.substance.molarMass / static_cast<double>(curve[i].x);
            SubstanceModel model = d.model;
            const double T = curve[i].y;
            const double swing =
                std::abs(caloric::PressureAt(model, T, v * (1 + 2e-6)) - caloric::PressureAt(model, T, v));
            EXPECT_NEAR(caloric::PressureAt(model, T, v), 1000, swing + 0.2) << Place(type, i, curve[i]);
        }
    }
}

TEST(Families, IsochorEndsWithOnePointOnTheCoexistenceCurve) {
    for (const double v : {0.15, 1.5}) {
        ButaneDiagram d;
        d.options.curveTpRestricted = true;
        const CurvePoints& curve = d.Draw(5, 300, 101.325, v);
        ASSERT_GT(curve.Count(), 5);
        EXPECT_EQ(curve.ZKind(), zVolume);
        int onCurve = 0;
        for (int i = 1; i <= curve.Count(); ++i) {
            SubstanceModel model = d.model;
            const double p = EosSaturationPressure(model, curve[i].x).value;
            onCurve += p > 0 && std::abs(curve[i].y / p - 1) < 1e-5 ? 1 : 0;
        }
        EXPECT_EQ(onCurve, 1) << v;
        SubstanceModel model = d.model;
        const CurvePoint& last = curve[curve.Count()];
        EXPECT_NEAR(last.y, EosSaturationPressure(model, last.x).value, 1e-4 * last.y);
    }
}

TEST(Families, CoexistenceProjectionsLieOnTheSaturationLine) {
    ButaneDiagram d;
    for (const double fraction : {0.0, 1.0, 0.4})
        for (const int type : {6, 7, 12, 27, 106}) {
            d.mode.vapourFraction = fraction;
            const CurvePoints& curve = d.Draw(type, 300, 101.325);
            ASSERT_GT(curve.Count(), 30) << type << " " << fraction;
            for (int i = 2; i < curve.Count(); i += 7) {
                const CurvePoint& c = curve[i];
                const double T = type == 7 || type == 12 ? c.y : c.z;
                const double p = type == 6 ? c.y : type == 7 || type == 12 ? c.z : c.x;
                const Saturated s = SaturationAt(d, T);
                ExpectClose(p, s.p, 3e-4, Place(type, i, c));
                const double v = s.vL + (s.vV - s.vL) * fraction;
                const double M = d.model.substance.molarMass;
                const double found = type == 6 || type == 7 ? static_cast<double>(c.x)
                                     : type == 12           ? M / c.x
                                     : type == 27           ? M / c.y
                                                            : c.y / static_cast<double>(c.x);
                ExpectClose(found, v, 1e-3, Place(type, i, c));
            }
        }
}

TEST(Families, BothBoundariesMeetAtTheCriticalPoint) {
    ButaneDiagram d;
    for (const int type : {6, 7, 12, 27, 106}) {
        CurvePoint ends[2];
        for (const int fraction : {0, 1}) {
            d.mode.vapourFraction = fraction;
            const CurvePoints& curve = d.Draw(type, 300, 101.325);
            ASSERT_GT(curve.Count(), 0) << type;
            ends[fraction] = curve[type == 27 || type == 106 ? curve.Count() : 1];
        }
        EXPECT_EQ(ends[0], ends[1]) << type;
    }
    EXPECT_NEAR(d.curve[d.curve.Count()].x, pc, 0.01);
}

TEST(Families, CaloricBoundariesHoldTheSaturatedStates) {
    ButaneDiagram d;
    constexpr CaloricType types[] = {
        {70, &CaloricValues::h}, {71, &CaloricValues::s},       {72, &CaloricValues::cp},
        {73, &CaloricValues::g}, {74, &CaloricValues::exergyH}, {75, &CaloricValues::exergyU},
        {90, &CaloricValues::h}, {91, &CaloricValues::s},       {92, &CaloricValues::cp},
        {93, &CaloricValues::g}, {94, &CaloricValues::exergyH}, {95, &CaloricValues::exergyU},
        {99, &CaloricValues::u}};
    for (const auto& [type, value] : types)
        for (const int fraction : {0, 1}) {
            d.mode.vapourFraction = fraction;
            const CurvePoints& curve = d.Draw(type, 300, 101.325);
            ASSERT_GT(curve.Count(), 100) << type;
            EXPECT_EQ(curve.ZKind(), type < 90 ? zTemperature : zPressure);
            EXPECT_NEAR(curve[1].x, type < 90 ? pc : Tc, 1e-3);
            for (int i = 20; i <= curve.Count(); i += 17) {
                const double T = type < 90 ? curve[i].z : curve[i].x;
                const Saturated s = SaturationAt(d, T);
                const double y = StateAt(d, T, s.p, fraction == 0 ? s.vL : s.vV).*value;
                ExpectClose(curve[i].y, y, 2e-3, Place(type, i, curve[i]));
            }
        }
}

TEST(Families, Type98ShowsTheParameterAndBeginsWithTheFreeEnergy) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(98, 300, 101.325);
    ASSERT_GT(curve.Count(), 100);
    const double vCr = VolumeAt(d, Tc, pc);
    ExpectClose(curve[1].y, StateAt(d, Tc, pc, vCr).f, 1e-3, "critical point");
    for (int i = 2; i <= curve.Count(); i += 23) {
        SubstanceModel model = d.model;
        SetEosCoefficients(model, curve[i].x);
        ExpectClose(curve[i].y, model.eos.A, 1e-5, Place(98, i, curve[i]));
    }
}

TEST(Families, BoundariesOverTheVolumeAndPairsAreSaturatedStates) {
    ButaneDiagram d;
    constexpr CaloricType types[] = {{89, &CaloricValues::cv},
                                     {97, &CaloricValues::f},
                                     {100, &CaloricValues::u},
                                     {101, &CaloricValues::s},
                                     {102, &CaloricValues::exergyU}};
    for (const auto& [type, value] : types)
        for (const int fraction : {0, 1}) {
            d.mode.vapourFraction = fraction;
            const CurvePoints& curve = d.Draw(type, 300, 101.325);
            ASSERT_GT(curve.Count(), 60) << type;
            EXPECT_EQ(curve.ZKind(), zTemperature);
            for (int i = 10; i <= curve.Count() - 10; i += 11) {
                const Saturated s = SaturationAt(d, curve[i].z);
                const double v = fraction == 0 ? s.vL : s.vV;
                ExpectClose(curve[i].x, v, 1e-3, Place(type, i, curve[i]));
                ExpectClose(curve[i].y, StateAt(d, curve[i].z, s.p, v).*value, 2e-3,
                            Place(type, i, curve[i]));
            }
        }
    for (const int type : {96, 120, 121}) {
        d.mode.vapourFraction = 1;
        const CurvePoints& curve = d.Draw(type, 300, 101.325);
        ASSERT_GT(curve.Count(), 300) << type;
        EXPECT_EQ(curve.ZKind(), zPressure);
        EXPECT_NEAR(curve[curve.Count()].z, pc, 0.01);
        for (int i = 10; i < curve.Count(); i += 101) {
            const double T = VapourPressureTemperature(d.model.substance, curve[i].z, vpWagner).value;
            const Saturated s = SaturationAt(d, T);
            const CaloricValues state = StateAt(d, T, s.p, s.vV);
            ExpectClose(curve[i].y, type == 120 ? state.h : state.exergyH, 1e-3, Place(type, i, curve[i]));
        }
    }
}

TEST(Families, DensitiesComeInPairsLiquidFirst) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(8, 300, 101.325);
    ASSERT_GT(curve.Count(), 300);
    for (int i = 2; i + 1 <= curve.Count(); i += 2) {
        ASSERT_EQ(curve[i].x, curve[i + 1].x) << i;
        EXPECT_GE(curve[i].y, curve[i + 1].y) << i;
        if (i < 40)
            continue;
        const Saturated s = SaturationAt(d, curve[i].x);
        // Far below the boiling point the root of the liquid is lost in that of the vapour.
        ExpectClose(curve[i].y, d.model.substance.molarMass / s.vL, s.p < 0.01 ? 2e-3 : 1e-4,
                    Place(8, i, curve[i]));
    }
    d.model.eos.vCritCalc = 0;
    EXPECT_EQ(d.DrawAgain(300, 101.325).Count(), 0);
    EXPECT_EQ(d.outcome.status, curveNoCriticalDensity);
}

TEST(Families, TheDiameterIsTheMeanOfBothDensities) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(80, 300, 101.325);
    EXPECT_NEAR(curve[1].x, Tc, 1e-3);
    ASSERT_GT(curve.Count(), 5);
    for (int i = 2; i <= curve.Count(); ++i) {
        const Saturated s = SaturationAt(d, curve[i].x);
        const double M = d.model.substance.molarMass;
        ExpectClose(curve[i].y, (M / s.vL + M / s.vV) / 2, s.p < 0.01 ? 2e-3 : 1e-4, Place(80, i, curve[i]));
        EXPECT_GE(s.vL * s.vV, 5.00001 * (1 - 1e-3));
    }
}

TEST(Families, VapourPressureCurvesAreOneFunction) {
    ButaneDiagram d;
    const CurvePoints p = d.Draw(9, 300, 101.325);
    EXPECT_EQ(p.ZKind(), zNothing);
    for (int i = 5; i <= p.Count(); i += 20)
        ExpectClose(p[i].y, SaturationAt(d, p[i].x).p, 1e-4, Place(9, i, p[i]));
    const CurvePoints logarithm = d.Draw(10, 300, 101.325);
    for (int i = 5; i <= logarithm.Count(); i += 20)
        EXPECT_NEAR(logarithm[i].y, std::log(SaturationAt(d, 1 / static_cast<double>(logarithm[i].x)).p),
                    1e-3);
    const CurvePoints slope = d.Draw(11, 300, 101.325);
    ASSERT_GT(slope.Count(), 100);
    for (int i = 20; i <= slope.Count(); i += 40) {
        const double x = slope[i].x;
        const auto ln = [&](double inverse) {
            return std::log(VapourPressure(d.model.substance, 1 / inverse, vpWagner).value);
        };
        const double h = 1e-4 * x;
        EXPECT_NEAR(slope[i].y, (ln(x + h) - ln(x - h)) / (2 * h), 1e-3 * std::abs(slope[i].y));
    }
}

TEST(Families, Type11NamesItsMaximumForFourEquationsOnly) {
    ButaneDiagram d;
    d.Draw(11, 300, 101.325);
    EXPECT_TRUE(d.outcome.resultText.starts_with("; Maximum bei T/K = ")) << d.outcome.resultText;
    double T = 0;
    double highest = -1e9;
    for (int i = 1; i <= d.curve.Count(); ++i)
        if (d.curve[i].y > highest) {
            highest = d.curve[i].y;
            T = 1 / static_cast<double>(d.curve[i].x);
        }
    EXPECT_NEAR(std::stod(d.outcome.resultText.substr(20)), T, 0.06);
    d.model.selection.vaporPressure = vpAntoineHigh;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.outcome.resultText, "");
}

TEST(Families, InversionPointsHaveNoJouleThomsonEffect) {
    ButaneDiagram d;
    d.Draw(5, 300, 101.325);
    d.spec.xMax = 2000; // the whole curve
    d.spec.yMax = 60000;
    d.spec.type = 105;
    const CurvePoints curve = d.DrawAgain(300, 101.325);
    EXPECT_EQ(curve.ZKind(), zVolume);
    ASSERT_GT(curve.Count(), 50);
    int atZero = 0;
    for (int i = 1; i < curve.Count(); i += 10) {
        SubstanceModel model = d.model;
        const ResidualState state = ResidualFunctions(model, curve[i].x, curve[i].y, curve[i].z);
        EXPECT_NEAR(state.table.jouleThomson, 0, 2e-5) << curve[i].x;
        ++atZero;
    }
    EXPECT_GT(atZero, 5);
    // It ends beside the vapour-pressure curve, below which the vapour has no such point.
    d.spec.xMin = 250;
    d.spec.xMax = 350;
    d.DrawAgain(300, 101.325);
    SubstanceModel model = d.model;
    const CurvePoint last = d.curve[d.curve.Count()];
    const double pLV = EosSaturationPressure(model, last.x).value;
    EXPECT_GE(last.y, pLV * (1 - 1e-5));
    EXPECT_LT(last.y, 1.1 * pLV);

    d.Draw(2, 300, 101.325);
    d.spec.xMax = 60000;
    d.spec.yMax = 60000;
    d.spec.type = 190;
    const CurvePoints& pv = d.DrawAgain(300, 101.325);
    EXPECT_EQ(pv.ZKind(), zTemperature);
    ASSERT_GT(pv.Count(), 50);
    for (int i = 1; i <= pv.Count(); i += 10) {
        const double v = static_cast<double>(pv[i].y) / pv[i].x;
        const ResidualState state = ResidualFunctions(model, pv[i].z, pv[i].x, v);
        EXPECT_NEAR(state.table.jouleThomson, 0, 5e-4) << pv[i].x;
    }
}

TEST(Families, Type190StoresItsUpperBranchWithoutTheFactorOfThePressure) {
    ButaneDiagram d(eosPengRobinson, 2);
    d.Draw(2, 300, 101.325);
    d.spec.type = 190;
    const CurvePoints& curve = d.DrawAgain(300, 101.325);
    ASSERT_GT(curve.Count(), 10);
    EXPECT_GT(curve[5].z, 1.5 * Tc); // the upper branch
    EXPECT_GT(curve[5].x, 10);       // kPa in a window up to 1.6
}

TEST(Families, SCurvesHaveThePressureOrTemperatureOfTheirLine) {
    ButaneDiagram d;
    d.mode.sCurveMode = true;
    const Saturated s = SaturationAt(d, 380);
    for (const int type : {1, 2, 26}) {
        const CurvePoints& curve = d.Draw(type, 380, 101.325);
        ASSERT_GT(curve.Count(), 20) << type;
        for (int i = 1; i <= curve.Count(); ++i) {
            const double p = type == 1 ? curve[i].y : curve[i].x;
            const double v = type == 1   ? static_cast<double>(curve[i].x)
                             : type == 2 ? curve[i].y / p
                                         : d.model.substance.molarMass / static_cast<double>(curve[i].y);
            EXPECT_GE(v, s.vL * (1 - 1e-5));
            EXPECT_LE(v, s.vV * (1 + 1e-5));
        }
    }
    EXPECT_EQ(d.curve.Count(), 202); // 201 values of the grid and the liquid end
    for (const int type : {3, 4, 15, 16, 17, 18}) {
        const CurvePoints& curve = d.Draw(type, 380, s.p);
        ASSERT_GT(curve.Count(), 5) << type;
        EXPECT_EQ(d.outcome.status, curveGood) << type;
    }
    for (int type = 150; type <= 155; ++type) {
        const CurvePoints& curve = d.Draw(type, 380, 101.325);
        ASSERT_GT(curve.Count(), 20) << type;
        for (int i = 1; i <= curve.Count(); ++i)
            EXPECT_GE(curve[i].x, 0);
    }
}

TEST(Families, GasOnlyCurvesEndAtTheVapourPressure) {
    ButaneDiagram d(virialPengRobinson);
    d.options.partialCurveGasOnly = true;
    const double pLV = VapourPressure(d.model.substance, 350, vpWagner).value;
    for (const int type : {2, 26, 150, 151, 40, 41}) {
        const CurvePoints& curve = d.Draw(type, 350, 101.325);
        ASSERT_GT(curve.Count(), 10) << type;
        float highest = 0;
        for (int i = 1; i <= curve.Count(); ++i)
            highest = std::max(highest, curve[i].x);
        ExpectClose(highest, pLV, 1e-5, "type " + std::to_string(type));
    }
    const double TLV = VapourPressureTemperature(d.model.substance, 500, vpWagner).value;
    for (const int type : {15, 31}) {
        const CurvePoints& curve = d.Draw(type, 350, 500);
        ExpectClose(curve[1].x, TLV, 1e-5, "type " + std::to_string(type));
    }
    // Above the critical temperature there is no liquid to leave out.
    const CurvePoints& curve = d.Draw(150, 500, 101.325);
    ExpectClose(curve[curve.Count()].x, d.spec.xMax, 1e-6, "above T(cr)");
}

TEST(Families, BelowTheTriplePointTheCurveEndsOrWarns) {
    ButaneDiagram d;
    d.options.curveTpRestricted = false;
    d.Draw(15, 300, 101.325);
    d.spec.xMin = 100;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.outcome.status, curveBelowTriplePoint);
    EXPECT_LT(d.curve[1].x, 134.895F);
    d.options.curveTpRestricted = true;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.outcome.status, curveGood);
    EXPECT_GE(d.curve[1].x, 134.895F);
}

TEST(Families, ACurveOutsideTheWindowKeepsItsPointsUnderStatusTen) {
    ButaneDiagram d;
    d.Draw(15, 300, 101.325);
    d.spec.yMin = 1e7F;
    d.spec.yMax = 2e7F;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
    EXPECT_GT(d.curve.Count(), 290);
}

TEST(Families, AWindowWithoutWidthChangesNothing) {
    ButaneDiagram d;
    const CurvePoints before = d.Draw(1, 380, 101.325);
    d.outcome.status = 77;
    d.outcome.resultText = "as it was";
    d.spec.xMax = d.spec.xMin;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.curve, before);
    EXPECT_EQ(d.outcome.status, 77);
    EXPECT_EQ(d.outcome.resultText, "as it was");
}

TEST(Families, DatabaseFunctionsSetKindCodeAndRange) {
    ButaneDiagram d;
    const CurvePoints& curve = d.Draw(307, 300, 101.325);
    EXPECT_EQ(d.spec.curveKind, curveFunctionOfT);
    EXPECT_EQ(d.spec.curveCode, "pT");
    EXPECT_EQ(d.spec.dbTMin, 158.0F);
    EXPECT_EQ(d.spec.dbTMax, 425.0F);
    EXPECT_EQ(d.spec.subTitle, ", Gültigkeit T = 158 ... 425 K");
    EXPECT_EQ(curve.ZKind(), zNothing);
    for (int i = 1; i <= curve.Count(); i += 30)
        ExpectClose(curve[i].y, VapourPressure(d.model.substance, curve[i].x, vpWagner).value, 1e-4,
                    Place(307, i, curve[i]));
    d.Draw(302, 300, 101.325);
    EXPECT_EQ(d.spec.curveCode, "yT");
    ExpectClose(d.curve[100].y, IdealGasCp(d.model.substance, d.curve[100].x, 2).cp, 1e-5, "cp");
}

TEST(Families, SpecificEnergiesAreDividedByTheMolarMass) {
    ButaneDiagram molar;
    ButaneDiagram specific(eosPengRobinson, 1, 3);
    for (const int type : {15, 13, 19, 31}) {
        const CurvePoints a = molar.Draw(type, 300, 500);
        const CurvePoints& b = specific.Draw(type, 300, 500);
        ASSERT_EQ(a.Count(), b.Count()) << type;
        for (int i = 1; i <= a.Count(); i += 37)
            ExpectClose(b[i].y, a[i].y / molar.model.substance.molarMass, 1e-5, Place(type, i, b[i]));
    }
}

} // namespace
} // namespace orva
