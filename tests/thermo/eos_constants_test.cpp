// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "thermo/eos_constants.h"

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"

namespace orva {
namespace {

constexpr double R = 8.31451;

// Literature: Reid, Prausnitz, Poling, The Properties of Gases and Liquids (1987), table 3-5.
struct RowConstants {
    EosRow row;
    const char* name;
    double omegaA, omegaB; // a(Tc) = omegaA (R Tc)^2 / pc, b = omegaB R Tc / pc
    double zc;
    double printed; // half of the last printed digit of the two constants
};

class CubicRow : public testing::TestWithParam<RowConstants> {};

INSTANTIATE_TEST_SUITE_P(
    Rows, CubicRow,
    testing::Values(RowConstants{eosVanDerWaals, "VanDerWaals", 0.421875, 0.125, 3.0 / 8, 1e-12},
                    RowConstants{eosBerthelot, "Berthelot", 0.421875, 0.125, 3.0 / 8, 1e-12},
                    RowConstants{eosRedlichKwong, "RedlichKwong", 0.42748, 0.08664, 1.0 / 3, 5e-6},
                    RowConstants{eosSoaveRedlichKwong, "Soave", 0.42748, 0.08664, 1.0 / 3, 5e-6},
                    RowConstants{eosPengRobinson, "PengRobinson", 0.45724, 0.07780, 0.3074, 5e-6}),
    [](const auto& row) { return row.param.name; });

TEST_P(CubicRow, HasTheConstantsOfTheLiteratureAtTheCriticalTemperature) {
    for (const SubstanceData& s : fluids::All()) {
        SubstanceModel model = fluids::ModelOf(s, GetParam().row);
        SetEosCoefficients(model, s.Tc);
        EXPECT_NEAR(model.eos.A * s.pc / (R * R * s.Tc * s.Tc), GetParam().omegaA, GetParam().printed)
            << s.name;
        EXPECT_NEAR(model.eos.B * s.pc / (R * s.Tc), GetParam().omegaB, GetParam().printed) << s.name;
    }
}

TEST_P(CubicRow, HasItsCriticalVolumeAndDensity) {
    const SubstanceModel model = fluids::ModelOf(fluids::Water(), GetParam().row);
    EXPECT_DOUBLE_EQ(model.eos.vCritCalc, GetParam().zc * R * 647.096 / 22064);
    EXPECT_DOUBLE_EQ(model.eos.rhoCritCalc, static_cast<double>(18.015F) / model.eos.vCritCalc);
}

// dp/dv and d2p/dv2 vanish at the critical point; for Peng/Robinson with the rounded factor 0.3074 nearly so.
TEST_P(CubicRow, HasAHorizontalInflectionAtItsCriticalPoint) {
    for (const SubstanceData& s : fluids::All()) {
        SubstanceModel model = fluids::ModelOf(s, GetParam().row);
        SetEosCoefficients(model, s.Tc);
        const EosParameters& e = model.eos;
        const double v = e.vCritCalc;
        const double W = (v + e.C) * (v + e.D);
        const double u = v - e.B;
        const double slope = e.A * (2 * v + e.C + e.D) / (W * W) - R * s.Tc / (u * u);
        const double tolerance = GetParam().row == eosPengRobinson ? 2e-6 : 1e-13;
        EXPECT_NEAR(slope * u * u / (R * s.Tc), 0, tolerance) << s.name;
        EXPECT_NEAR(EosPressure(model, s.Tc, v).p / s.pc, 1,
                    GetParam().row == eosPengRobinson ? 1e-6 : 1e-13);
    }
}

TEST_P(CubicRow, GivesItsVirialRowTheSameConstantsButNoCriticalVolume) {
    const int virialRow = GetParam().row + 9;
    const SubstanceModel cubic = fluids::ModelOf(fluids::Ammonia(), GetParam().row);
    const SubstanceModel virial = fluids::ModelOf(fluids::Ammonia(), virialRow);
    EXPECT_EQ(virial.eos.a0, cubic.eos.a0);
    EXPECT_EQ(virial.eos.b0, cubic.eos.b0);
    EXPECT_EQ(virial.eos.nA, cubic.eos.nA);
    EXPECT_EQ(virial.eos.c0, cubic.eos.c0);
    EXPECT_EQ(virial.eos.d0, cubic.eos.d0);
    EXPECT_EQ(virial.eos.AlphaForm, cubic.eos.AlphaForm);
    EXPECT_EQ(virial.eos.vCritCalc, 0);
    EXPECT_EQ(virial.eos.rhoCritCalc, 0);
}

TEST_P(CubicRow, LeavesTheSharedCoVolumeAtZeroUntilTheFirstEvaluation) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), GetParam().row);
    SetEosCoefficients(model, 400);
    ASSERT_GT(model.eos.B, 0);
    EXPECT_TRUE(DetermineEosParameters(model, GetParam().row));
    EXPECT_EQ(model.eos.B, 0);
    EXPECT_EQ(model.eos.A, 0);
}

TEST(TheConstants, HaveTheSoaveFormOnlyForSoaveAndPengRobinson) {
    for (int row = 0; row <= 16; ++row) {
        if (row == eosVoHalme1 || row == eosVoHalme2)
            continue;
        const SubstanceModel model = fluids::ModelOf(fluids::NButane(), row);
        const bool soave = row == 5 || row == 6 || row == 14 || row == 15;
        EXPECT_EQ(model.eos.AlphaForm, soave ? 2 : 1) << row;
    }
}

TEST(TheConstants, HaveTheExponentsOfTheirRow) {
    EXPECT_EQ(fluids::ModelOf(fluids::Water(), eosVanDerWaals).eos.nA, 0);
    EXPECT_EQ(fluids::ModelOf(fluids::Water(), eosBerthelot).eos.nA, -1);
    EXPECT_EQ(fluids::ModelOf(fluids::Water(), eosRedlichKwong).eos.nA, -0.5);
    const double w = 0.34429;
    EXPECT_DOUBLE_EQ(fluids::ModelOf(fluids::Water(), eosSoaveRedlichKwong).eos.nA,
                     0.48 + 1.574 * w - 0.176 * w * w);
    EXPECT_DOUBLE_EQ(fluids::ModelOf(fluids::Water(), eosPengRobinson).eos.nA,
                     0.37464 + 1.54226 * w - 0.26992 * w * w);
}

TEST(TheConstants, PlaceTheAttractionTermOfTheirRow) {
    for (const EosRow row : {eosVanDerWaals, eosBerthelot}) {
        const EosParameters eos = fluids::ModelOf(fluids::Water(), row).eos;
        EXPECT_EQ(eos.c0, 0);
        EXPECT_EQ(eos.d0, 0);
    }
    for (const EosRow row : {eosRedlichKwong, eosSoaveRedlichKwong}) {
        const EosParameters eos = fluids::ModelOf(fluids::Water(), row).eos;
        EXPECT_EQ(eos.c0, 0);
        EXPECT_EQ(eos.d0, eos.b0);
    }
    const EosParameters eos = fluids::ModelOf(fluids::Water(), eosPengRobinson).eos;
    EXPECT_DOUBLE_EQ(eos.c0 + eos.d0, 2 * eos.b0);
    EXPECT_NEAR(eos.c0 * eos.d0 / (eos.b0 * eos.b0), -1, 1e-14);
}

TEST(TheConstants, OfRowOneAreThoseOfTheRowBefore) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    SetEosCoefficients(model, 500);
    const EosParameters before = model.eos;
    EXPECT_TRUE(DetermineEosParameters(model, 1));
    EXPECT_EQ(model.eos.a0, before.a0);
    EXPECT_EQ(model.eos.nA, before.nA);
    EXPECT_EQ(model.eos.B, before.B);
    EXPECT_EQ(model.eos.AlphaForm, 1);
    EXPECT_EQ(model.eos.vCritCalc, 0);
    EXPECT_EQ(model.eos.rhoCritCalc, 0);
}

TEST(TheConstants, AreAllZeroForRowsWithoutThem) {
    for (const int row : {0, 9, 10, 16, -1, 17}) {
        SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
        EXPECT_TRUE(DetermineEosParameters(model, row)) << row;
        EXPECT_EQ(model.eos.a0, 0) << row;
        EXPECT_EQ(model.eos.b0, 0) << row;
        EXPECT_EQ(model.eos.d0, 0) << row;
        EXPECT_EQ(model.eos.vCritCalc, 0) << row;
        EXPECT_EQ(model.eos.rhoCritCalc, 0) << row;
    }
}

// The switch is the one of the model choice, not the row that the constants are made for.
TEST(TheConstants, OfACubicRowHaveNoCriticalVolumeWhileAVirialRowIsChosen) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), virialPengRobinson);
    EXPECT_TRUE(DetermineEosParameters(model, eosPengRobinson));
    EXPECT_GT(model.eos.a0, 0);
    EXPECT_EQ(model.eos.vCritCalc, 0);
    EXPECT_EQ(model.eos.rhoCritCalc, 0);
}

TEST(TheConstants, HaveNoCriticalDensityForAVanishingCriticalVolume) {
    SubstanceData s = fluids::Water();
    s.pc = 1e10; // vCritCalc = 2e-7 m^3/kmol
    const SubstanceModel model = fluids::ModelOf(s, eosVanDerWaals);
    EXPECT_GT(model.eos.vCritCalc, 0);
    EXPECT_LT(model.eos.vCritCalc, 1e-6);
    EXPECT_EQ(model.eos.rhoCritCalc, 0);
}

TEST(TheConstants, CannotBeMadeWithoutACriticalPressure) {
    for (const EosRow row : fluids::cubicRows) {
        SubstanceModel model = fluids::ModelOf(fluids::Water(), row);
        model.substance.pc = 0;
        EXPECT_FALSE(DetermineEosParameters(model, row)) << row;
        EXPECT_EQ(model.eos.a0, 0);
        EXPECT_EQ(model.eos.vCritCalc, 0);
        EXPECT_EQ(model.eos.rhoCritCalc, 0);
    }
}

TEST(TheCriticalVolume, FollowsFromTheFactor) {
    EXPECT_DOUBLE_EQ(CriticalVolumeFromFactor(fluids::Water(), 0.25), 0.25 * R * 647.096 / 22064);
}

TEST(ClearingTheConstants, KeepsTheCriticalVolume) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    const double vCrit = model.eos.vCritCalc;
    ClearEosParameters(model.eos);
    EXPECT_EQ(model.eos.a0 + model.eos.b0 + model.eos.d0 + model.eos.nA, 0);
    EXPECT_EQ(model.eos.vCritCalc, vCrit);
}

} // namespace
} // namespace orva
