// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/vo_halme_fit.h"

#include "helpers/deviations.h"
#include "helpers/request_samples.h"

namespace orva::dvopar {
namespace {

constexpr std::array<int, 2> rows = {eosVoHalme1, eosVoHalme2};

class VoHalmeFitQuality : public ::testing::TestWithParam<test::NamedSubstance> {
protected:
    // Constants of any row from the data of the substance with the Wagner equation.
    SubstanceModel Fitted(int eos) {
        const std::optional<SubstanceData> substance = test::FromDatabase(ORVA_DATABASE, GetParam().cas);
        EXPECT_TRUE(substance);
        SubstanceModel model = test::ModelWith(substance.value_or(SubstanceData{}), eos, vpWagner);
        EXPECT_TRUE(test::Determine(model));
        return model;
    }
};

TEST_P(VoHalmeFitQuality, IsBetterThanTheClosedEquationsInPressureAndDensity) {
    SubstanceModel soave = Fitted(eosSoaveRedlichKwong);
    SubstanceModel peng = Fitted(eosPengRobinson);
    const test::Deviations ofSoave = test::DeviationsOf(soave);
    const test::Deviations ofPeng = test::DeviationsOf(peng);
    ASSERT_FALSE(ofSoave.failed || ofPeng.failed);
    for (const int row : rows) {
        SubstanceModel model = Fitted(row);
        const test::Deviations deviations = test::DeviationsOf(model);
        ASSERT_FALSE(deviations.failed);
        EXPECT_LT(deviations.pressure.mean, 0.3); // per cent
        EXPECT_LT(deviations.pressure.max, 0.6);
        EXPECT_LT(deviations.density.mean, 2.5);
        EXPECT_LT(deviations.density.max, 9.5);
        EXPECT_LT(deviations.pressure.mean, 0.3 * ofSoave.pressure.mean);
        EXPECT_LT(deviations.density.mean, 0.8 * ofPeng.density.mean);
    }
}

TEST_P(VoHalmeFitQuality, GainsInDensityByTheSecondRow) {
    SubstanceModel first = Fitted(eosVoHalme1);
    SubstanceModel second = Fitted(eosVoHalme2);
    EXPECT_EQ(first.voHalme.k, 0);
    EXPECT_LT(test::DeviationsOf(second).density.mean, test::DeviationsOf(first).density.mean);
}

TEST_P(VoHalmeFitQuality, FallsWithTemperatureAndMeetsTheCriticalPoint) {
    for (const int row : rows) {
        SubstanceModel model = Fitted(row);
        const double Tc = model.substance.Tc;
        double last = HUGE_VAL;
        for (int i = 0; i <= 170; ++i) {
            SetEosCoefficients(model, Tc * (0.3 + 0.01 * i));
            EXPECT_GT(model.eos.A, 0);
            EXPECT_LT(model.eos.A, last);
            EXPECT_GT(model.eos.B, 0);
            last = model.eos.A;
        }
        SetEosCoefficients(model, 1500);
        EXPECT_GT(model.eos.B, 0);
        EXPECT_NEAR(EosPressure(model, Tc, model.eos.vCritCalc).p, model.substance.pc,
                    1e-9 * model.substance.pc);
        const SaturationResult near = BracketedSaturationPressure(model, 0.9999 * Tc);
        EXPECT_NEAR(near.value, model.substance.pc, 0.002 * model.substance.pc);
    }
}

TEST_P(VoHalmeFitQuality, IsTheSameOnEveryRun) {
    const SubstanceModel once = Fitted(eosVoHalme2);
    const SubstanceModel again = Fitted(eosVoHalme2);
    EXPECT_EQ(once.voHalme.zeta, again.voHalme.zeta);
    EXPECT_EQ(once.voHalme.m1, again.voHalme.m1);
    EXPECT_EQ(once.voHalme.k, again.voHalme.k);
}

INSTANTIATE_TEST_SUITE_P(TenSubstances, VoHalmeFitQuality, ::testing::ValuesIn(test::tenSubstances),
                         [](const auto& instance) {
                             std::string name(instance.param.name);
                             std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
                             return name;
                         });

// Water as the fit sees it, with a request of its own.
SubstanceModel WaterOf(const std::string& text) {
    const ParsedRequest parsed = ParseRequest(text);
    EXPECT_TRUE(parsed.request) << parsed.error;
    SubstanceModel model = test::ModelWith(parsed.request->substance, parsed.request->row, vpWagner);
    const VoHalmeFit fit = FitVoHalme(*parsed.request);
    EXPECT_TRUE(fit.parameters) << fit.error;
    model.voHalme = fit.parameters.value_or(VoHalmeParameters{});
    EXPECT_TRUE(SetVoHalmeConstants(model));
    return model;
}

TEST(FitVoHalme, WithoutDensityStillFollowsTheVapourPressure) {
    SubstanceModel model = WaterOf(test::WaterRequest());
    for (const double T : {373.124, 450.0, 550.0, 630.0}) {
        const double p = VapourPressure(model.substance, T, vpWagner).value;
        EXPECT_NEAR(BracketedSaturationPressure(model, T).value, p, 0.005 * p) << T;
    }
}

TEST(FitVoHalme, WithoutDensityTakesAnEstimateThatHoldsForANonpolarSubstance) {
    const std::optional<SubstanceData> butane = test::FromDatabase(ORVA_DATABASE, "106-97-8");
    ASSERT_TRUE(butane);
    SubstanceModel model = test::ModelWith(*butane, eosVoHalme1, vpWagner);
    model.substance.rhoLiquid = {};
    ASSERT_TRUE(test::Determine(model));
    for (const double T : {230.0, 272.66, 340.0}) {
        const double rho = LiquidDensity(*butane, static_cast<float>(T)).rho;
        ASSERT_FALSE(BracketedSaturationPressure(model, T).failed);
        EXPECT_NEAR(model.substance.molarMass / model.work.Roots[0], rho, 0.04 * rho) << T;
    }
}

TEST(FitVoHalme, WithoutAnyEquationMeetsTheAcentricFactor) {
    SubstanceModel model =
        WaterOf(test::RequestOf("10", "0, 1, 0", test::waterConstants, test::noDensity, test::noPressure));
    const double p = 22064 * std::pow(10.0, -1.34429);
    EXPECT_NEAR(BracketedSaturationPressure(model, 0.7 * 647.096).value, p, 0.02 * p);
}

TEST(FitVoHalme, MeetsASingleDensity) {
    SubstanceModel model = WaterOf(test::RequestOf("11", "1, 1, 3", test::waterConstants,
                                                   "958.4,-.7,373.1,0,0,0,0,0,0\n", test::waterWagner));
    ASSERT_FALSE(BracketedSaturationPressure(model, 373.1).failed);
    EXPECT_NEAR(model.substance.molarMass / model.work.Roots[0], 958.4, 0.005 * 958.4);
}

TEST(FitVoHalme, WithAnEquationForLowTemperaturesMeetsItAndTheAcentricFactor) {
    // Antoine up to 100 degrees Celsius (Poling, Prausnitz, O'Connell 2001).
    SubstanceModel model = WaterOf(test::RequestOf("10", "0, 1, 1", test::waterConstants, test::noDensity,
                                                   "7.11564,1687.537,230.17,0,0,0,0,0,0,0,274,373\n"));
    const double atBoiling = BracketedSaturationPressure(model, 373.124).value;
    EXPECT_NEAR(atBoiling, 101.325, 0.01 * 101.325);
    const double p = 22064 * std::pow(10.0, -1.34429);
    EXPECT_NEAR(BracketedSaturationPressure(model, 0.7 * 647.096).value, p, 0.01 * p);
    // And between there and the critical point it stays near the true curve: 6116.5 kPa at 550 K (Wagner,
    // Pruss).
    EXPECT_NEAR(BracketedSaturationPressure(model, 550).value, 6116.5, 0.03 * 6116.5);
}

TEST(FitVoHalme, RefusesAVapourPressureThatContradictsTheCriticalPoint) {
    // p = 1 kPa at all temperatures up to the critical point at 22 MPa.
    const ParsedRequest parsed = ParseRequest(test::RequestOf(
        "10", "0, 1, 1", test::waterConstants, test::noDensity, "0,1E-6,230,0,0,0,0,0,0,0,300,640\n"));
    ASSERT_TRUE(parsed.request);
    const VoHalmeFit fit = FitVoHalme(*parsed.request);
    EXPECT_FALSE(fit.parameters);
    EXPECT_EQ(fit.error.find('\n'), std::string::npos);
    EXPECT_FALSE(fit.error.empty());
}

} // namespace
} // namespace orva::dvopar
