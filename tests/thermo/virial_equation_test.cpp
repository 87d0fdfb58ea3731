// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "thermo/virial_equation.h"

#include <cmath>

#include "thermo/cubic_equation.h"
#include "thermo/fluids.h"
#include "thermo/textbook_equations.h"

namespace orva {
namespace {

constexpr double R = 8.31451;

TEST(TheSecondVirialCoefficient, OfACubicRowIsBLessAOverRT) {
    for (const SubstanceData& s : fluids::All())
        for (const EosRow row : fluids::cubicRows) {
            SubstanceModel model = fluids::ModelOf(s, row + 9);
            SubstanceModel cubic = fluids::ModelOf(s, row);
            const textbook::Equation equation(cubic);
            for (const double T : {200.0, 400.0, 900.0}) {
                const double expected = static_cast<double>(
                    equation.b() - equation.a(T) / (textbook::R * static_cast<long double>(T)));
                EXPECT_NEAR(VirialCoefficientB(model, row + 9, T), expected,
                            1e-13 * std::abs(expected) + 1e-16);
            }
        }
}

// van der Waals: B = 0 at T = 27/8 Tc (Boyle temperature).
TEST(TheSecondVirialCoefficient, VanishesAtTheBoyleTemperature) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), virialVanDerWaals);
    EXPECT_NEAR(VirialCoefficientB(model, virialVanDerWaals, 27.0 / 8.0 * 425.125), 0, 1e-15);
}

// Against Pitzer and Curl's correlation at the temperatures of Poling, Prausnitz, O'Connell: B pc / (R Tc) of
// a simple fluid is -0.3361 at Tr = 1 and the correction by omega is -0.0713.
TEST(TheSecondVirialCoefficient, OfPitzerAndCurlHasItsValuesAtTheCriticalTemperature) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), virialPitzerCurl);
    const SubstanceData& s = model.substance;
    const double reduced = VirialCoefficientB(model, virialPitzerCurl, s.Tc) * s.pc / (R * s.Tc);
    EXPECT_NEAR(reduced, (0.1445 - 0.33 - 0.1385 - 0.0121) + s.omega * (0.073 + 0.46 - 0.5 - 0.097 - 0.0073),
                1e-14);
}

// Measured: n-butane at 300 K about -0.72, at 400 K about -0.37 m^3/kmol; Dymond, Smith, The Virial
// Coefficients of Pure Gases and Mixtures (1980). The correlation is good to some percent.
TEST(TheSecondVirialCoefficient, OfPitzerAndCurlMeetsTheMeasuredOneOfButane) {
    SubstanceModel model = fluids::ModelOf(fluids::NButane(), virialPitzerCurl);
    EXPECT_NEAR(VirialCoefficientB(model, virialPitzerCurl, 300), -0.722, 0.03);
    EXPECT_NEAR(VirialCoefficientB(model, virialPitzerCurl, 400), -0.370, 0.02);
}

TEST(TheSecondVirialCoefficient, ByHandIsMadeFromThreeNumbers) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), virialByHand);
    model.eos.b0 = 0.05;
    model.eos.nB = 4000;
    model.eos.nF = 1.5;
    EXPECT_DOUBLE_EQ(VirialCoefficientB(model, virialByHand, 400), 0.05 - 4000 / std::pow(400, 1.5));
    EXPECT_EQ(model.eos.b0, 0.05);
    EXPECT_EQ(model.eos.nB, 4000);
    EXPECT_EQ(model.eos.nF, 1.5);
}

TEST(TheSecondVirialCoefficient, IsZeroForRowsWithoutOne) {
    for (const int row : {1, 2, 3, 4, 5, 6, 9, 17, -1}) {
        SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
        EXPECT_EQ(VirialCoefficientB(model, row, 400), 0) << row;
    }
}

TEST(TheSecondVirialCoefficient, OfTheIdealGasIsZeroAndClearsTheSharedValues) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    SetEosCoefficients(model, 400);
    EXPECT_EQ(VirialCoefficientB(model, eosIdealGas, 400), 0);
    EXPECT_EQ(model.eos.A, 0);
    EXPECT_EQ(model.eos.B, 0);
    EXPECT_EQ(model.eos.C, 0);
    EXPECT_EQ(model.eos.D, 0);
    EXPECT_GT(model.eos.a0, 0);
}

TEST(TheSecondVirialCoefficient, IsZeroWithoutTemperatureAndLeavesTheSharedValues) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), virialPengRobinson);
    SetEosCoefficients(model, 400);
    const double A = model.eos.A;
    for (const double T : {0.0, 9.9e-7, -300.0}) {
        EXPECT_EQ(VirialCoefficientB(model, virialPengRobinson, T), 0);
        EXPECT_EQ(model.eos.A, A);
    }
}

// Rows without a coefficient evaluate A and B all the same.
TEST(TheSecondVirialCoefficient, BringsTheSharedAttractionAndCoVolumeToTheTemperature) {
    SubstanceModel model = fluids::ModelOf(fluids::Water(), eosPengRobinson);
    SetEosCoefficients(model, 400);
    const double expected = model.eos.A;
    SetEosCoefficients(model, 600);
    VirialCoefficientB(model, eosPengRobinson, 400);
    EXPECT_DOUBLE_EQ(model.eos.A, expected);
}

TEST(TheSecondVirialCoefficient, OfVoHalmeIsBLessAOverRT) {
    for (const EosRow row : {eosVoHalme1, eosVoHalme2}) {
        SubstanceModel model = fluids::ModelOf(fluids::NButane(), row);
        fluids::SetVoHalme(model, 0.1);
        const double value = VirialCoefficientB(model, row, 350);
        EXPECT_DOUBLE_EQ(value, model.eos.B - model.eos.A / (R * 350));
        EXPECT_LT(value, 0);
    }
}

} // namespace
} // namespace orva
