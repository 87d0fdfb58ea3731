// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/diagram_setup.h"

#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "diagrams/diagram_fixture.h"

namespace orva {
namespace {

using test::MethaneDiagram;

TEST(Catalogue, TypesAndMenuEntriesAreUnique) {
    std::set<int> types;
    std::set<std::pair<std::string_view, int>> entries;
    for (const DiagramRow& row : Catalogue()) {
        EXPECT_TRUE(types.insert(row.type).second) << row.type;
        if (!row.command.empty()) {
            EXPECT_TRUE(entries.insert({row.command, row.index}).second) << row.type;
        }
        EXPECT_NE(row.family, nullptr) << row.type;
        EXPECT_FALSE(row.title.empty()) << row.type;
    }
}

TEST(Catalogue, FirstSectionIsTheIsotherm) {
    const DiagramRow* row = FindDiagram("mnuGraf_sub_cut", 1);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row, FindDiagram(1));
    EXPECT_EQ(row->title, "isothermer Schnitt p - v");
    EXPECT_EQ(row->curveKind, 1);
    EXPECT_EQ(FindDiagram("mnuGraf_sub_cut", 99), nullptr);
    EXPECT_EQ(FindDiagram(-1), nullptr);
}

TEST(DefaultRanges, FollowTheCriticalDataOfACubicEquation) {
    MethaneDiagram d;
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_FLOAT_EQ(d.ranges.pMax, 1.4F * 4599.2F);
    EXPECT_EQ(d.ranges.pMin, 0.001F);
    EXPECT_FLOAT_EQ(d.ranges.TMax, 1.1F * 190.564F);
    EXPECT_EQ(d.ranges.TMin, 90.69F);
    EXPECT_FLOAT_EQ(d.ranges.vMax, static_cast<float>(7 * d.model.eos.vCritCalc));
    EXPECT_EQ(d.ranges.vMin, 0.0F);
    EXPECT_FLOAT_EQ(d.ranges.rhoMax, static_cast<float>(3.5 * d.model.eos.rhoCritCalc));
    EXPECT_FLOAT_EQ(d.ranges.vSmallMax, static_cast<float>(1.4 * d.model.substance.vcDatabase));
    EXPECT_FLOAT_EQ(d.ranges.vSmallMin, 0.01F);
    EXPECT_FLOAT_EQ(d.ranges.pvMax, 4599.2F * d.ranges.vMax);
    EXPECT_FLOAT_EQ(d.ranges.lnPMax, static_cast<float>(1.1 * std::log(4599.2)));
    EXPECT_EQ(d.ranges.lnPMin, -5.0F);
    EXPECT_FLOAT_EQ(d.ranges.invTMax, static_cast<float>(1 / 85.69));
    EXPECT_FLOAT_EQ(d.ranges.invTMin, static_cast<float>(1 / 200.564));
    EXPECT_EQ(d.ranges.dlnMax, -500.0F);
    EXPECT_EQ(d.ranges.dlnMin, -6000.0F);
    EXPECT_EQ(d.ranges.hVapMax, 50000.0F);
    EXPECT_EQ(d.ranges.TwideMax, 300.0F);
    EXPECT_EQ(d.ranges.deltaMax, 0.04F);
    EXPECT_EQ(d.ranges.deltaMin, -0.005F);
    EXPECT_EQ(d.ranges.cpMin, -10.0F);
    EXPECT_EQ(d.ranges.dsMin, -498.8706F);
    EXPECT_EQ(d.ranges.dsMax, 20.0F);
    EXPECT_EQ(d.ranges.dhMin, -49887.06F);
    EXPECT_EQ(d.ranges.dhMax, 1000.0F);
}

TEST(DefaultRanges, OfAnEquationThatIsNotCubicComeFromTheDatabase) {
    MethaneDiagram d(virialPitzerCurl);
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_FLOAT_EQ(d.ranges.TMin, 0.3F * 90.69F);
    EXPECT_FLOAT_EQ(d.ranges.vMax, static_cast<float>(7 * d.model.substance.vcDatabase));
    EXPECT_FLOAT_EQ(d.ranges.rhoMax, 3.5F * 162.66F);
    d.model.substance.vcDatabase = 0;
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_EQ(d.ranges.vMax, 1.5F);
}

TEST(DefaultRanges, CaloricLimitsFollowTheReferenceAndTheUnits) {
    MethaneDiagram d;
    EXPECT_EQ(d.ranges.hMax, 50000.0F);
    EXPECT_EQ(d.ranges.hMin, -50000.0F);
    EXPECT_EQ(d.ranges.sMax, 250.0F);
    EXPECT_EQ(d.ranges.sMin, -250.0F);
    d.model.reference.kind = 10;
    d.options.unitBasis = 3;
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_EQ(d.ranges.hMax, 0.0F);
    EXPECT_FLOAT_EQ(d.ranges.hMin, -300000 / 16.0428F);
    EXPECT_FLOAT_EQ(d.ranges.sMax, 200 / 16.0428F);
    EXPECT_FLOAT_EQ(d.ranges.sMin, -250 / 16.0428F);
}

TEST(DefaultRanges, HeatCapacityAxisLeavesRoomAboveTheIdealGas) {
    MethaneDiagram d;
    EXPECT_EQ(d.ranges.cpMax, 250.0F); // no model chosen
    d.model.substance.cpPolynomial = {20, 0.05F, 0, 0, 0, 50, 1000};
    d.model.substance.cpPolynomialValid = true;
    d.model.selection.cpModel = 1;
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_NEAR(d.ranges.cpMax, 20 + 0.05 * 190.564 + 100, 1e-3);
}

TEST(DefaultRanges, ReducedUnitsMakeReducedWindows) {
    MethaneDiagram d(eosPengRobinson, 2);
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_FLOAT_EQ(d.ranges.pMax, 1.4F);
    EXPECT_FLOAT_EQ(d.ranges.TMax, 1.1F);
    EXPECT_FLOAT_EQ(d.ranges.vMax, 7.0F);
    EXPECT_EQ(d.ranges.lnPMax, 0.5F);
}

TEST(DefaultRanges, KeptLimitsStayUnlessTheyAreZero) {
    MethaneDiagram d;
    d.ranges.pMax = 123;
    d.ranges.TMax = 0;
    d.ranges.TMin = 77;
    SetDefaultRanges(d.model, d.options, d.ranges, true);
    EXPECT_EQ(d.ranges.pMax, 123.0F);
    EXPECT_FLOAT_EQ(d.ranges.TMax, 1.1F * 190.564F);
    EXPECT_EQ(d.ranges.TMin, 77.0F);
    SetDefaultRanges(d.model, d.options, d.ranges);
    EXPECT_FLOAT_EQ(d.ranges.pMax, 1.4F * 4599.2F);
}

TEST(DefaultRanges, ASubstanceWithoutAnyDataGivesFiniteLimits) {
    SubstanceModel model;
    Options options;
    DiagramRanges ranges;
    SetDefaultRanges(model, options, ranges);
    EXPECT_EQ(ranges.vMax, 1.5F);
    EXPECT_EQ(ranges.invTMax, 0.0F);
    EXPECT_EQ(ranges.lnPMax, 0.0F);
    EXPECT_TRUE(std::isfinite(ranges.invTMin));
}

TEST(SetUpDiagram, FirstDiagramOfASubstanceStartsAtTheCriticalTemperature) {
    MethaneDiagram d;
    EXPECT_EQ(d.request.curveT, 190.564);
    EXPECT_EQ(d.request.curveP, 4599.2); // 101.325 belongs to the types from 13 to 99
    EXPECT_EQ(d.request.curveV, d.model.eos.vCritCalc);
    EXPECT_FALSE(d.session.rangesStale);
    EXPECT_FLOAT_EQ(d.ranges.pMax, 1.6F * 4599.2F);
    EXPECT_FLOAT_EQ(d.spec.yMax, 1.6F * 4599.2F);
    EXPECT_EQ(d.spec.yMin, 0.001F);
    EXPECT_EQ(d.spec.xMin, 0.0F);
    EXPECT_EQ(d.spec.xMax, d.ranges.vMax);
}

TEST(SetUpDiagram, LaterDiagramsKeepTheTemperatureOfTheUser) {
    MethaneDiagram d;
    d.request.curveT = 222;
    d.request.curveV = 0.3;
    d.request.curveP = 500;
    DiagramRecords records = d.Records();
    SetUpDiagram(records, d.spec);
    EXPECT_EQ(d.request.curveT, 222);
    EXPECT_EQ(d.request.curveP, 500);
    EXPECT_EQ(d.request.curveV, 0.3);
}

TEST(SetUpDiagram, CriticalPressureAsCurvePressureResetsTheVolume) {
    MethaneDiagram d;
    d.request.curveT = 222;
    d.request.curveV = 0.3;
    d.request.curveP = 4599.2;
    DiagramRecords records = d.Records();
    SetUpDiagram(records, d.spec);
    EXPECT_EQ(d.request.curveT, 222);
    EXPECT_EQ(d.request.curveV, d.model.eos.vCritCalc);
}

TEST(SetUpDiagram, VolumeFallsBackToTheDatabaseAndThenToTwo) {
    MethaneDiagram d;
    d.model.eos.vCritCalc = 0;
    d.request.curveV = 0;
    d.request.curveP = 1;
    DiagramRecords records = d.Records();
    SetUpDiagram(records, d.spec);
    EXPECT_EQ(d.request.curveV, d.model.substance.vcDatabase);
    d.model.substance.vcDatabase = 0;
    d.request.curveV = 0;
    SetUpDiagram(records, d.spec);
    EXPECT_EQ(d.request.curveV, 2);
}

TEST(SetUpDiagram, TitlesNameQuantityAndUnit) {
    MethaneDiagram d;
    EXPECT_EQ(d.spec.xTitle, "v / (m^3/kmol)");
    EXPECT_EQ(d.spec.yTitle, "p / kPa");
    EXPECT_EQ(d.spec.heading, "Methan (CH4) Diagrammtyp:  isothermer Schnitt p - v");
    EXPECT_EQ(d.spec.subTitle, ", CEOS Peng / Robinson");
    MethaneDiagram specific(eosPengRobinson, 1);
    EXPECT_EQ(specific.spec.xTitle, "v / (m^3/kg)");
}

TEST(SetUpDiagram, ReducedTitlesReplaceTheUnits) {
    MethaneDiagram d(eosPengRobinson, 2);
    EXPECT_EQ(d.spec.xTitle, "V(red)");
    EXPECT_EQ(d.spec.yTitle, "p / p(cr)");
    EXPECT_FLOAT_EQ(d.spec.yMax, 1.6F);
}

TEST(SetUpDiagram, ATypeThatIsNotBuiltChangesNothing) {
    MethaneDiagram d;
    d.spec.type = 999;
    const std::string before = d.spec.heading;
    DiagramRecords records = d.Records();
    SetUpDiagram(records, d.spec);
    EXPECT_EQ(d.spec.heading, before);
}

TEST(Catalogue, KnowsWhichQuantitiesCountFromTheReferencePoint) {
    for (const Quantity thermal :
         {Quantity::None, Quantity::Temperature, Quantity::Pressure, Quantity::Volume})
        EXPECT_FALSE(DependsOnReference(thermal));
    EXPECT_TRUE(DependsOnReference(static_cast<Quantity>(250))); // one that nobody has judged yet
}

} // namespace
} // namespace orva
