// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/textbook_equations.h"
#include "thermo/virial_equation.h"

namespace orva {
namespace {

constexpr double R = 8.31451;

TEST(TheCoefficients, FollowTheTemperatureFunctionOfTheTextbook) {
    for (const SubstanceData& s : fluids::All())
        for (const EosRow row : fluids::cubicRows) {
            SubstanceModel model = fluids::ModelOf(s, row);
            const textbook::Equation equation(model);
            for (double Tr = 0.3; Tr < 3; Tr += 0.13) {
                SetEosCoefficients(model, Tr * s.Tc);
                EXPECT_NEAR(model.eos.A / static_cast<double>(equation.a(Tr * s.Tc)), 1, 1e-14) << row;
                EXPECT_NEAR(model.eos.B / static_cast<double>(equation.b()), 1, 1e-14) << row;
                EXPECT_NEAR(model.eos.C + model.eos.D, static_cast<double>(equation.U() * equation.b()),
                            1e-16);
            }
        }
}

TEST(TheCoefficients, StayWhenThereIsNoTemperature) {
    for (const EosRow row : {eosBerthelot, eosPengRobinson, eosVoHalme1}) {
        SubstanceModel model = fluids::ModelOf(fluids::Water(), row);
        fluids::SetVoHalme(model, 0);
        SetEosCoefficients(model, 400);
        const EosParameters before = model.eos;
        for (const double T : {0.0, 9.9e-7, -1.0, -400.0}) {
            SetEosCoefficients(model, T);
            EXPECT_EQ(model.eos.A, before.A) << T;
            EXPECT_EQ(model.eos.B, before.B) << T;
            EXPECT_EQ(model.eos.C, before.C) << T;
            EXPECT_EQ(model.eos.D, before.D) << T;
        }
        SetEosCoefficients(model, 1e-6);
        EXPECT_NE(model.eos.A, row == eosVanDerWaals ? 0 : before.A);
    }
}

// Every parameter may have an exponent of its own.
TEST(TheCoefficients, TakeTheExponentsOfAllFourParameters) {
    SubstanceModel model;
    model.selection.eos = eosRedlichKwong;
    model.eos.a0 = 2;
    model.eos.b0 = 3;
    model.eos.c0 = 5;
    model.eos.d0 = 7;
    model.eos.nA = -0.5;
    model.eos.nB = 1;
    model.eos.nC = 2;
    model.eos.nD = -1;
    SetEosCoefficients(model, 4);
    EXPECT_DOUBLE_EQ(model.eos.A, 1);
    EXPECT_DOUBLE_EQ(model.eos.B, 12);
    EXPECT_DOUBLE_EQ(model.eos.C, 80);
    EXPECT_DOUBLE_EQ(model.eos.D, 1.75);
}

class VoHalme : public testing::TestWithParam<EosRow> {
protected:
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), GetParam());
    void SetUp() override { fluids::SetVoHalme(model, 0.2); }
};

INSTANTIATE_TEST_SUITE_P(Rows, VoHalme, testing::Values(eosVoHalme1, eosVoHalme2),
                         [](const auto& row) { return "Row" + std::to_string(row.param); });

TEST_P(VoHalme, HasItsConstantsAtTheCriticalTemperature) {
    const double Tc = model.substance.Tc;
    const VoHalmeParameters& vh = model.voHalme;
    SetEosCoefficients(model, Tc);
    const double b = vh.OmegaB * R * Tc / model.substance.pc;
    EXPECT_DOUBLE_EQ(model.eos.A, vh.ac);
    EXPECT_DOUBLE_EQ(model.eos.B, b);
    // C and D are the roots of the attraction term: C + D = s b, C D = -s b^2.
    EXPECT_NEAR(model.eos.C + model.eos.D, vh.s * b, 1e-15);
    EXPECT_NEAR(model.eos.C * model.eos.D, -vh.s * b * b, 1e-15);
}

TEST_P(VoHalme, UsesTheCurvedTermsOnlyBelowTheCriticalTemperature) {
    const double Tc = model.substance.Tc;
    const VoHalmeParameters& vh = model.voHalme;
    for (const double Tr : {0.5, 0.8, 1.3, 2.0}) {
        SetEosCoefficients(model, Tr * Tc);
        const double theta = std::pow(Tr, 0.75);
        const double u = 1 - theta;
        const double curved = Tr > 1 ? 0 : (vh.m2 + vh.m3 * u) * u * (0.76528558 - theta);
        const double f = 1 + vh.m1 * u + curved;
        EXPECT_NEAR(model.eos.A, vh.ac * f * f, 1e-12 * vh.ac) << Tr;
    }
}

TEST_P(VoHalme, LosesTheSecondTermAtReducedTemperaturePointSeven) {
    const double Tr = std::pow(0.76528558, 4.0 / 3.0);
    EXPECT_NEAR(Tr, 0.7, 1e-4);
    SetEosCoefficients(model, Tr * model.substance.Tc);
    const double f = 1 + model.voHalme.m1 * (1 - 0.76528558);
    EXPECT_NEAR(model.eos.A, model.voHalme.ac * f * f, 1e-9 * model.voHalme.ac);
}

TEST_P(VoHalme, LetsTheCoVolumeShrinkInTheSecondRowOnly) {
    const double Tc = model.substance.Tc;
    const double b = model.voHalme.OmegaB * R * Tc / model.substance.pc;
    SetEosCoefficients(model, 0.5 * Tc);
    const double shrink = GetParam() == eosVoHalme2 ? 1 - 0.2 * 0.25 : 1;
    EXPECT_DOUBLE_EQ(model.eos.B, b * shrink);
    EXPECT_NEAR(model.eos.C * model.eos.D, -model.voHalme.s * b * b * shrink * shrink, 1e-15);
}

TEST_P(VoHalme, IsNotDeterminedFromTheSubstanceAlone) {
    EXPECT_FALSE(DetermineEosParameters(model, GetParam()));
}

TEST(ThePressure, IsThatOfTheTextbookForEveryRow) {
    for (const SubstanceData& s : fluids::All())
        for (const EosRow row : fluids::cubicRows) {
            SubstanceModel model = fluids::ModelOf(s, row);
            const textbook::Equation equation(model);
            for (const double Tr : {0.6, 1.0, 2.0})
                for (const double v : {1.3, 3.0, 50.0}) {
                    const double volume = v * static_cast<double>(equation.b());
                    const PressureResult result = EosPressure(model, Tr * s.Tc, volume);
                    ASSERT_FALSE(result.failed);
                    EXPECT_NEAR(result.p / static_cast<double>(equation.Pressure(Tr * s.Tc, volume)), 1,
                                1e-11)
                        << row << " " << Tr << " " << v;
                }
        }
}

TEST(ThePressure, FailsAtAndBelowTheCoVolume) {
    for (const EosRow row : fluids::cubicRows) {
        SubstanceModel model = fluids::ModelOf(fluids::Water(), row);
        SetEosCoefficients(model, 500);
        for (const double v : {model.eos.B, 0.5 * model.eos.B, 0.0, -1.0}) {
            const PressureResult result = EosPressure(model, 500, v);
            EXPECT_TRUE(result.failed) << row << " " << v;
            EXPECT_EQ(result.p, 0);
        }
    }
}

// The comparison comes before the evaluation, so that the first call after a change of the constants sees 0.
TEST(ThePressure, ComparesTheVolumeWithTheCoVolumeOfTheEvaluationBefore) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    ASSERT_EQ(model.eos.B, 0);
    const double v = 0.5 * model.eos.b0;
    const PressureResult first = EosPressure(model, 500, v);
    EXPECT_FALSE(first.failed);
    EXPECT_LT(first.p, 0); // beyond the pole
    const PressureResult second = EosPressure(model, 500, v);
    EXPECT_TRUE(second.failed);
    EXPECT_EQ(second.p, 0);
}

// With the second Vo / Halme row the co-volume itself depends on T, and the stale one decides.
TEST(ThePressure, FailsWithAStaleCoVolumeThatIsTooLarge) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosVoHalme2);
    fluids::SetVoHalme(model, 0.4);
    const double Tc = model.substance.Tc;
    SetEosCoefficients(model, Tc);
    const double large = model.eos.B;
    SetEosCoefficients(model, 0.4 * Tc);
    const double small = model.eos.B;
    const double between = 0.5 * (large + small);
    EXPECT_FALSE(EosPressure(model, 0.4 * Tc, between).failed);
    SetEosCoefficients(model, Tc);
    EXPECT_TRUE(EosPressure(model, 0.4 * Tc, between).failed);
}

TEST(ThePressure, OfAVirialRowHasItsPoleAtTheVirialCoefficient) {
    for (const int row : {11, 12, 13, 14, 15, 16}) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), row);
        const double B = VirialCoefficientB(model, row, 350);
        const PressureResult result = EosPressure(model, 350, 3);
        EXPECT_FALSE(result.failed);
        EXPECT_DOUBLE_EQ(result.p, R * 350 / (3 - B));
        EXPECT_EQ(model.eos.B, B); // the shared co-volume now holds the coefficient
        EXPECT_TRUE(EosPressure(model, 350, B).failed);
        EXPECT_TRUE(EosPressure(model, 350, B - 1).failed);
    }
}

TEST(ThePressure, OfTheIdealGasIsRTOverV) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), eosIdealGas);
    EXPECT_DOUBLE_EQ(EosPressure(model, 300, 2).p, R * 150);
    EXPECT_TRUE(EosPressure(model, 300, 0).failed);
}

} // namespace
} // namespace orva
