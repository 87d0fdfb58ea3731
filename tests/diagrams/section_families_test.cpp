// SPDX-License-Identifier: GPL-3.0-or-later
// Sections, the two-phase region, inversion and database curves against an evaluation of their own.
#include "curve_checks.h"

namespace orva {
namespace {

using namespace test;

TEST(SectionFamilies, SectionsOverPressureAndVolumeAreOneSurface) {
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

TEST(SectionFamilies, IsochorEndsWithOnePointOnTheCoexistenceCurve) {
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

TEST(SectionFamilies, CoexistenceProjectionsLieOnTheSaturationLine) {
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

TEST(SectionFamilies, BothBoundariesMeetAtTheCriticalPoint) {
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

TEST(SectionFamilies, CaloricBoundariesHoldTheSaturatedStates) {
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
            if (value != &CaloricValues::cp) { // which has no bound there
                EXPECT_NEAR(curve[1].x, type < 90 ? pc : Tc, 1e-3);
            }
            for (int i = 20; i <= curve.Count(); i += 17) {
                const double T = type < 90 ? curve[i].z : curve[i].x;
                const Saturated s = SaturationAt(d, T);
                const double y = StateAt(d, T, s.p, fraction == 0 ? s.vL : s.vV).*value;
                ExpectClose(curve[i].y, y, 2e-3, Place(type, i, curve[i]));
            }
        }
}

TEST(SectionFamilies, Type98ShowsTheParameterAndBeginsWithTheFreeEnergy) {
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

TEST(SectionFamilies, BoundariesOverTheVolumeAndPairsAreSaturatedStates) {
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

TEST(SectionFamilies, DensitiesComeInPairsLiquidFirst) {
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

TEST(SectionFamilies, TheDiameterIsTheMeanOfBothDensities) {
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

TEST(SectionFamilies, VapourPressureCurvesAreOneFunction) {
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

TEST(SectionFamilies, Type11NamesItsMaximumForFourEquationsOnly) {
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

TEST(SectionFamilies, SCurvesHaveThePressureOrTemperatureOfTheirLine) {
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

TEST(SectionFamilies, GasOnlyCurvesEndAtTheVapourPressure) {
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

TEST(SectionFamilies, BelowTheTriplePointTheCurveEndsOrWarns) {
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

TEST(SectionFamilies, ACurveOutsideTheWindowKeepsItsPointsUnderStatusTen) {
    ButaneDiagram d;
    d.Draw(15, 300, 101.325);
    d.spec.yMin = 1e7F;
    d.spec.yMax = 2e7F;
    d.DrawAgain(300, 101.325);
    EXPECT_EQ(d.outcome.status, curveOutsideWindow);
    EXPECT_GT(d.curve.Count(), 290);
}

TEST(SectionFamilies, AWindowWithoutWidthChangesNothing) {
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

TEST(SectionFamilies, DatabaseFunctionsSetKindCodeAndRange) {
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

TEST(SectionFamilies, SpecificEnergiesAreDividedByTheMolarMass) {
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
