// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/chart_text.h"

#include <gtest/gtest.h>

#include "diagrams/diagram_fixture.h"

namespace orva {
namespace {

ChartDocument OneCurve() {
    ChartDocument chart;
    chart.headingLines = {"Methan (CH4)", " Diagrammtyp:  isothermer Schnitt p - v",
                          ", CEOS Peng / Robinson"};
    chart.xTitle = "v / (m^3/kmol)";
    chart.yTitle = "p / kPa";
    chart.xQuantity = Quantity::Volume;
    chart.yQuantity = Quantity::Pressure;
    chart.TakeSlot();
    CurvePoints curve;
    curve.SetZKind(zTemperature);
    curve.Add({0.5F, 1234.5F, 150});
    curve.Add({1.25F, 640, 150});
    StorePoints(curve, chart.Series(1));
    chart.Series(1).legend = "(1) 150.0 K ";
    return chart;
}

std::pair<double, double> SameScale(double x, double y) {
    return {x * 100, y / 10};
}

struct Description {
    DiagramSpec spec;
    CurveMode mode;
    CurveRequest request;
    Options options;

    std::string Text(NumberStyle style = {}) const {
        return DescribeCurve({spec, mode, request, options, 0.0985, style});
    }
};

TEST(CurveDescriptionText, NamesWhatIsConstant) {
    Description d;
    d.request.curveT = 150;
    d.request.curveP = 101.325;
    d.request.curveV = 0.0998;
    d.spec.curveKind = curveIsotherm;
    EXPECT_EQ(d.Text(), "150.0 K ");
    d.request.curveT = 190.564;
    EXPECT_EQ(d.Text({','}), "190,56 K ");
    d.spec.curveKind = curveIsobar;
    EXPECT_EQ(d.Text(), "101.33 kPa ");
    d.spec.curveKind = curveIsochor;
    EXPECT_EQ(d.Text(), "0.0998 m^3/kmol ");
    d.mode.tieLineMode = true;
    EXPECT_EQ(d.Text(), "Konnode V-L ");
}

TEST(CurveDescriptionText, NamesTheBoundaryOfTheCoexistenceCommand) {
    Description d;
    d.spec.curveKind = curveProjection;
    EXPECT_EQ(d.Text(), "VLE ");
    d.mode.coexistenceMode = true;
    EXPECT_EQ(d.Text(), "VLE  (L)");
    d.mode.vapourFraction = 1;
    EXPECT_EQ(d.Text(), "VLE  (V)");
    d.mode.vapourFraction = 0.5;
    EXPECT_EQ(d.Text(), "VLE ");
}

TEST(CurveDescriptionText, NamesInversionAndNoDatabaseFunction) {
    Description d;
    d.spec.curveKind = curveInversion;
    EXPECT_EQ(d.Text(), "Inversionskurve delta = 0 ");
    d.spec.curveKind = curveFunctionOfT;
    EXPECT_EQ(d.Text(), "");
}

TEST(CurveDescriptionText, TellsTheSideOfAnIsochor) {
    Description d;
    d.spec.type = 5;
    d.spec.curveKind = curveIsochor;
    d.request.curveV = 0.05;
    EXPECT_EQ(d.Text(), "0.05 m^3/kmol  (L) ");
    d.request.curveV = 0.0985;
    EXPECT_EQ(d.Text(), "0.0985 m^3/kmol  (cr) ");
    d.request.curveV = 0.5;
    EXPECT_EQ(d.Text(), "0.5 m^3/kmol  (V) ");
    d.options.volumeBasis = 1;
    d.options.volumeFactor = 0.1F;
    EXPECT_EQ(d.Text(), "0.05 m^3/kg  (V) ");
}

TEST(NearestPoint, IsTheNearestOnTheSheetNotInTheUnits) {
    const ChartDocument chart = OneCurve();
    const auto nearest = FindNearestPoint(chart, 51, 120, SameScale);
    ASSERT_TRUE(nearest.has_value());
    EXPECT_EQ(nearest->slot, 1);
    EXPECT_EQ(nearest->point, 1);
    EXPECT_FALSE(FindNearestPoint(ChartDocument(), 0, 0, SameScale).has_value());
}

TEST(NearestPoint, OfAHiddenCurveIsNotFound) {
    ChartDocument chart = OneCurve();
    chart.Series(1).visible = false;
    EXPECT_FALSE(FindNearestPoint(chart, 51, 120, SameScale).has_value());
}

TEST(CoordinateText, ShowsTemperaturePressureAndVolume) {
    const ChartDocument chart = OneCurve();
    Options options;
    const NearestPoint point{1, 1, 0.5F, 1234.5F, 0};
    EXPECT_EQ(CoordinateText(chart, point, options, {}),
              " T = 150.00 K   p = 1234.50 kPa   v = 0.50  m^3/kmol");
    EXPECT_EQ(CoordinateText(chart, point, options, {','}),
              " T = 150,00 K   p = 1234,50 kPa   v = 0,50  m^3/kmol");
    options.volumeBasis = 1;
    EXPECT_EQ(CoordinateText(chart, point, options, {}),
              " T = 150.00 K   p = 1234.50 kPa   v = 0.50  m^3/kg");
}

TEST(CoordinateText, ReducesTheTemperatureOfReducedDiagrams) {
    const ChartDocument chart = OneCurve();
    Options options;
    options.volumeBasis = 2;
    options.TFactor = 1 / 200.0F;
    EXPECT_EQ(CoordinateText(chart, {1, 2, 1.25F, 0.64F, 0}, options, {}),
              " T(red) = 0.75   p(red) = 0.64   v(red) = 1.25");
}

TEST(CoordinateText, LeavesOutWhatThePointDoesNotKnow) {
    ChartDocument chart = OneCurve();
    chart.Series(1).z = {0};
    EXPECT_EQ(CoordinateText(chart, {1, 1, 0.5F, 1, 0}, {}, {}), "p = 1.00 kPa   v = 0.50  m^3/kmol");
}

TEST(CurveTableText, HasHeadingsUnitsAndPoints) {
    EXPECT_EQ(CurveTableText(OneCurve(), '\t', {}),
              "Methan (CH4) Diagrammtyp:  isothermer Schnitt p - v, CEOS Peng / Robinson\n"
              "\n"
              "(1) 150.0 K\n"
              "v / (m^3/kmol)\tp / kPa\tT / K\n"
              "0.5\t1234.5\t150\n"
              "1.25\t640\t150\n");
}

TEST(CurveTableText, DecimalCommaGivesWayToACommaAsSeparator) {
    EXPECT_NE(CurveTableText(OneCurve(), ';', {','}).find("1,25;640;150\n"), std::string::npos);
    EXPECT_NE(CurveTableText(OneCurve(), ',', {','}).find("1.25,640,150\n"), std::string::npos);
}

} // namespace
} // namespace orva
