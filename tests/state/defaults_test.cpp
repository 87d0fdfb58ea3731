// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "state/batch_data.h"
#include "state/diagram_ranges.h"
#include "state/options.h"
#include "state/session_state.h"
#include "state/substance_list.h"
#include "state/substance_model.h"

namespace orva {
namespace {

TEST(TheReferencePoint, StartsAt298KAndNormalPressureWithZeroEnthalpyAndEntropy) {
    const ReferencePoint reference;
    EXPECT_EQ(reference.kind, 1);
    EXPECT_EQ(reference.T0, 298.15F);
    EXPECT_EQ(reference.p0, 101.325F);
    EXPECT_EQ(reference.h0, 0);
    EXPECT_EQ(reference.s0, 0);
    EXPECT_EQ(reference.Tenv, 298.15);
    EXPECT_EQ(reference.penv, 101.325);
}

TEST(TheReferencePoint, HoldsItsStateInSingleAndItsAmbienceInDoublePrecision) {
    static_assert(std::is_same_v<decltype(ReferencePoint::T0), float>);
    static_assert(std::is_same_v<decltype(ReferencePoint::p0), float>);
    static_assert(std::is_same_v<decltype(ReferencePoint::h0), double>);
    static_assert(std::is_same_v<decltype(ReferencePoint::Tenv), double>);
    EXPECT_NE(static_cast<double>(ReferencePoint().T0), ReferencePoint().Tenv);
}

TEST(TheOptions, StartInMolarUnitsWithoutBatchMode) {
    const Options options;
    EXPECT_FALSE(options.batchMode);
    EXPECT_EQ(options.unitBasis, 0);
    EXPECT_EQ(options.volumeBasis, 0);
    EXPECT_EQ(options.energyFactor, 1.0);
    EXPECT_EQ(options.volumeFactor, 1.0);
    EXPECT_EQ(options.curvePoints, 300);
    EXPECT_TRUE(options.curveTpRestricted);
    EXPECT_FALSE(options.sCurveWithoutTieLine);
    EXPECT_FALSE(options.partialCurveGasOnly);
    EXPECT_EQ(options.pFactor, 1.0F);
    EXPECT_EQ(options.TFactor, 1.0F);
    EXPECT_EQ(options.pUnit, "kPa");
    EXPECT_EQ(options.TUnit, "K");
    EXPECT_EQ(options.vUnit, "m^3/kmol");
    EXPECT_EQ(options.listSeparator, ';');
}

TEST(TheSession, StartsWithoutDatabaseSubstanceAndFiles) {
    const SessionState session;
    EXPECT_EQ(session.databaseFile, "");
    EXPECT_FALSE(session.databaseLoaded);
    EXPECT_EQ(session.substanceCount, 0);
    EXPECT_EQ(session.substanceIndex, 0);
    EXPECT_EQ(session.substanceIndexPending, 0);
    EXPECT_EQ(session.projectFile + session.projectComment, "");
    EXPECT_EQ(session.batchFile + session.batchComment + session.batchDate + session.batchCas, "");
    EXPECT_EQ(session.batchRowCount, 0);
    EXPECT_FALSE(session.rangesStale);
    EXPECT_FALSE(session.englishText);
    EXPECT_TRUE(session.vesselGlobal);
    EXPECT_FALSE(session.batchFileFlag);
}

TEST(TheModelSelection, StartsWithoutModelsAndWithThePriorityOnTheEquationOfState) {
    const ModelSelection selection;
    EXPECT_EQ(selection.eos, -1);
    EXPECT_EQ(selection.vaporPressure, 0);
    EXPECT_EQ(selection.vaporPressureCode, "0"); // the text of the number 0, until the first choice
    EXPECT_EQ(selection.vaporization, 0);
    EXPECT_EQ(selection.cpModel, 0);
    EXPECT_TRUE(selection.eosPriority);
    EXPECT_FALSE(selection.nonCubic);
}

TEST(TheDiagramRanges, StartAtZeroButForTheLowestPressure) {
    const DiagramRanges ranges;
    EXPECT_EQ(ranges.pMin, 0.001F);
    EXPECT_EQ(ranges.pMax, 0);
    EXPECT_EQ(ranges.TMax, 0);
    EXPECT_EQ(ranges.dhMax, 0);
}

TEST(TheSubstance, KeepsTheWidthsOfTheDatabaseFile) {
    static_assert(std::is_same_v<decltype(SubstanceData::molarMass), float>);
    static_assert(std::is_same_v<decltype(SubstanceData::Tb), float>);
    static_assert(std::is_same_v<decltype(SubstanceData::Tc), double>);
    static_assert(std::is_same_v<decltype(SubstanceData::pc), double>);
    static_assert(std::is_same_v<decltype(SubstanceData::rhoc), double>);
    static_assert(std::is_same_v<decltype(SubstanceData::omega), double>);
    static_assert(std::is_same_v<decltype(AntoineBlock::A), float>);
    static_assert(std::is_same_v<decltype(AntoineBlock::Tlo), std::int16_t>);
    static_assert(std::is_same_v<decltype(WagnerBlock::w10), float>);
    static_assert(std::is_same_v<decltype(FrostKalkwarfBlock::c9), float>);
    static_assert(std::is_same_v<decltype(VaporisationBlock::Tcr), float>);
    static_assert(std::is_same_v<decltype(ModelSelection::watsonExponent), float>);
    SubstanceData s;
    s.Tb = 272.66F;
    EXPECT_NE(static_cast<double>(s.Tb), 272.66); // the rounding goes into every result
}

TEST(TheSubstance, StartsWithAllBlocksAbsent) {
    const SubstanceData s;
    for (const int Tlo : {s.antoineLow.Tlo, s.antoineHigh.Tlo, s.frostKalkwarf.Tlo, s.wagner.Tlo,
                          s.rhoLiquid.Tlo, s.rhoSolid.Tlo, s.hVapFunction.Tlo, s.cpPolynomial.Tlo,
                          s.cpSinhCosh.Tlo, s.cpLiquid.Tlo, s.cpSolid.Tlo})
        EXPECT_EQ(Tlo, 0);
    EXPECT_FALSE(s.cpPolynomialValid || s.cpSinhCoshValid || s.cpLiquidValid || s.cpSolidValid);
    EXPECT_EQ(s.vcDatabase, 0);
    EXPECT_EQ(s.omega, 0);
}

TEST(TheEquationOfState, StartsWithZeroConstantsAndThePowerForm) {
    const EosParameters eos;
    for (const double x : {eos.a0, eos.b0, eos.c0, eos.d0, eos.nA, eos.nB, eos.nC, eos.nD, eos.nF, eos.A,
                           eos.B, eos.C, eos.D, eos.vCritCalc, eos.rhoCritCalc})
        EXPECT_EQ(x, 0);
    EXPECT_EQ(eos.AlphaForm, 1);
    const EosWorkingSet work;
    EXPECT_THAT(work.Roots, testing::ElementsAre(0, 0, 0));
    EXPECT_EQ(work.BVirial, 0);
    EXPECT_EQ(work.RegionCode, 0);
}

TEST(TheDataSeries, AlwaysHasTheRowOfTheDirectInput) {
    const BatchDataSet batch;
    ASSERT_EQ(batch.rows.size(), 1u);
    EXPECT_FALSE(batch.rows[0].skip);
    EXPECT_EQ(batch.rows[0].T, 0);
    static_assert(std::is_same_v<decltype(BatchRow::p), double>);
    static_assert(std::is_same_v<decltype(BatchRow::rhoL), float>);
}

TEST(TheSubstanceList, CountsFromOne) {
    SubstanceList list;
    list.entries = {{7, "H2O", "Water", "7732-18-5"}, {9, "NH3", "Ammonia", "7664-41-7"}};
    EXPECT_EQ(list.At(1).number, 7);
    EXPECT_EQ(list.At(2).formula, "NH3");
    EXPECT_THROW(list.At(0), std::out_of_range);
    EXPECT_THROW(list.At(3), std::out_of_range);
}

} // namespace
} // namespace orva
