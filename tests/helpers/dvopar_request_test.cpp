// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar/request.h"

#include "helpers/deviations.h"
#include "helpers/dvopar/fit_data.h"
#include "helpers/dvopar/result_text.h"
#include "helpers/request_samples.h"

namespace orva::dvopar {
namespace {

using ::testing::HasSubstr;

SubstanceData Butane() {
    const std::optional<SubstanceData> substance = test::FromDatabase(ORVA_DATABASE, "106-97-8");
    EXPECT_TRUE(substance);
    return substance.value_or(SubstanceData{});
}

TEST(DvoparRequest, IsReadBackAsTheWorkbenchWritesIt) {
    const SubstanceData s = Butane();
    const ParsedRequest parsed =
        ParseRequest(VoHalmeRequestText(test::ModelWith(s, eosVoHalme2, vpWagner), eosVoHalme2));
    ASSERT_TRUE(parsed.request) << parsed.error;
    const Request& r = *parsed.request;
    EXPECT_EQ(r.row, eosVoHalme2);
    EXPECT_EQ(r.substance.cas, "106-97-8    ");
    EXPECT_NEAR(r.substance.Tc, s.Tc, 1e-7 * s.Tc);
    EXPECT_NEAR(r.substance.pc, s.pc, 1e-7 * s.pc);
    EXPECT_NEAR(r.substance.omega, s.omega, 1e-7);
    EXPECT_EQ(r.vapourPressure, vpWagner);
    EXPECT_EQ(r.pressureRange.low, s.wagner.Tlo);
    EXPECT_EQ(r.pressureRange.high, s.wagner.Thi);
    EXPECT_TRUE(r.densityEquation);
    EXPECT_EQ(r.densityRange.low, s.rhoLiquid.Tlo);
}

TEST(DvoparRequest, GivesTheVapourPressureOfEveryEquationOfTheWorkbench) {
    SubstanceData s = Butane();
    for (const int equation : {vpFrostKalkwarfVdW, vpFrostKalkwarfRK, vpThompson})
        CorrelateVapourPressure(s, equation);
    for (int equation = vpAntoineLow; equation <= vpThompson; ++equation) {
        const ParsedRequest parsed =
            ParseRequest(VoHalmeRequestText(test::ModelWith(s, eosVoHalme1, equation), eosVoHalme1));
        ASSERT_TRUE(parsed.request) << parsed.error;
        for (const double T : {230.0, 290.0, 400.0}) {
            const VapourPressureResult mine =
                VapourPressure(parsed.request->substance, T, parsed.request->vapourPressure);
            const VapourPressureResult theirs = VapourPressure(s, T, equation);
            ASSERT_FALSE(theirs.failed);
            EXPECT_NEAR(mine.value, theirs.value, 2e-6 * theirs.value)
                << VaporPressureCodeOf(equation) << " " << T;
        }
    }
}

TEST(DvoparRequest, TellsAStoredFrostKalkwarfExponentFromACorrelatedOne) {
    // E p / T^(F + 2) with the stored F, that is E p / T^2.
    const std::string stored = test::RequestOf("10", "0, 1, 2", test::waterConstants, test::noDensity,
                                               "20,-3000,273.15,-4,3,0,0,0,0,0,300 ,600");
    EXPECT_EQ(ParseRequest(stored).request->substance.frostKalkwarf.c6, 0);
    const double E = 0.185652 * std::pow(647.096, 2.5) / 22064;
    const std::string correlated =
        test::RequestOf("10", "0, 1, 2", test::waterConstants, test::noDensity,
                        "20,-3000,273.15,-4," + std::to_string(E) + ",2.5,0,0,0,0,300 ,600");
    EXPECT_EQ(ParseRequest(correlated).request->substance.frostKalkwarf.c6, 0.5F);
}

TEST(DvoparRequest, SaysInOneLineWhatIsBroken) {
    const std::string good = test::WaterRequest();
    ASSERT_TRUE(ParseRequest(good).request);
    const auto error = [](const std::string& text) {
        const ParsedRequest parsed = ParseRequest(text);
        EXPECT_FALSE(parsed.request);
        EXPECT_EQ(parsed.error.find('\n'), std::string::npos);
        return parsed.error;
    };
    EXPECT_EQ(error(""), "the request ends after 0 of 32 items");
    EXPECT_EQ(error(good.substr(0, good.rfind(','))), "the request ends after 31 of 32 items");
    EXPECT_EQ(error("12" + good.substr(2)), "the request is for no Vo / Halme row");
    EXPECT_EQ(error(test::WaterRequest("NaN")), "the request is for no Vo / Halme row");
    EXPECT_EQ(
        error(test::RequestOf("10", "0, 1, 7", test::waterConstants, test::noDensity, test::waterWagner)),
        "unknown form of the vapour-pressure equation");
    EXPECT_EQ(error(test::RequestOf("10", "1, 1, 3", "18, 373, NaN, 22064, 322, .3\n", test::noDensity,
                                    test::waterWagner)),
              "item 8 of the request is no number");
    EXPECT_EQ(error(test::RequestOf("10", "1, 1, 3", "18, 373, 647, 0, 322, .3\n", test::noDensity,
                                    test::waterWagner)),
              "molar mass, critical temperature or critical pressure is missing");
    EXPECT_EQ(error(test::RequestOf("10", "1, 1, 3", "18, 373, 1E300, 22064, 322, .3\n", test::noDensity,
                                    test::waterWagner)),
              "item 8 of the request is no number");
}

TEST(DvoparFitData, CoverTheRangesOfValidityWithinHalfAndNearlyAllOfTheCriticalTemperature) {
    const SubstanceData s = Butane();
    const ParsedRequest parsed =
        ParseRequest(VoHalmeRequestText(test::ModelWith(s, eosVoHalme1, vpAntoineHigh), eosVoHalme1));
    ASSERT_TRUE(parsed.request);
    int pressures = 0;
    int densities = 0;
    for (const FitPoint& point : FitPoints(*parsed.request)) {
        (point.kind == FitPoint::Kind::Pressure ? pressures : densities) += 1;
        EXPECT_GE(point.T, 0.5 * s.Tc);
        EXPECT_LE(point.T, 0.99001 * s.Tc);
        EXPECT_GT(point.value, 0);
        if (point.kind == FitPoint::Kind::Pressure) {
            EXPECT_GE(point.T, s.antoineHigh.Tlo);
        }
    }
    EXPECT_EQ(pressures, 30);
    EXPECT_EQ(densities, 30);
}

TEST(DvoparFitData, TakeCriticalPointAndAcentricFactorWhereNoEquationIsGiven) {
    const ParsedRequest parsed = ParseRequest(
        test::RequestOf("10", "0, 1, 0", test::waterConstants, test::noDensity, test::noPressure));
    ASSERT_TRUE(parsed.request) << parsed.error;
    const std::vector<FitPoint> points = FitPoints(*parsed.request);
    ASSERT_EQ(points.size(), 60U);
    for (const FitPoint& point : points) {
        if (point.kind == FitPoint::Kind::Density || std::abs(point.T / 647.096 - 0.7) > 0.009)
            continue;
        // The definition of the acentric factor, which the estimate meets within 1 % at T = 0.7 T(cr).
        const double slope = 6.9 * std::log(point.T / 647.096 / 0.7) / 0.7;
        EXPECT_NEAR(std::log(point.value / 22064), -std::log(10.0) * 1.34429 + slope, 0.03);
    }
}

TEST(DvoparFitData, CarryASingleDensityWithTheWeightOfAWholeEquation) {
    const ParsedRequest parsed = ParseRequest(test::RequestOf(
        "10", "1, 1, 3", test::waterConstants, "958.4,-.7,373.1,0,0,0,0,0,0\n", test::waterWagner));
    ASSERT_TRUE(parsed.request) << parsed.error;
    const std::vector<FitPoint> points = FitPoints(*parsed.request);
    ASSERT_EQ(points.size(), 31U);
    EXPECT_EQ(points.back().kind, FitPoint::Kind::Density);
    EXPECT_NEAR(points.back().T, 373.1, 1e-4);
    EXPECT_NEAR(points.back().value, 958.4, 1e-3);
    EXPECT_NEAR(points.back().weight, std::sqrt(30) / 0.03, 1e-9);
}

TEST(DvoparFitData, TakeTheAcentricFactorFromTheVapourPressureWhereItIsNotGiven) {
    const ParsedRequest parsed = ParseRequest(test::RequestOf(
        "10", "1, 1, 3", "18.015, 373.124, 647.096, 22064, 322, 0\n", test::noDensity, test::waterWagner));
    ASSERT_TRUE(parsed.request) << parsed.error;
    EXPECT_NEAR(AcentricFactor(*parsed.request), 0.3443, 2e-4); // Wagner, Pruss 2002
}

TEST(DvoparResult, HoldsTheConstantsWithAllTheirDigits) {
    Request request;
    request.row = eosVoHalme2;
    request.substance.cas = "7732-18-5   ";
    VoHalmeParameters vh;
    vh.m1 = 1.0 / 3;
    vh.m2 = -0.25;
    vh.m3 = 1e-7;
    vh.zeta = 0.29;
    vh.k = 0.1;
    EXPECT_EQ(ResultText(request, vh),
              "11\r\n\"7732-18-5   \"\r\n3.3333333333333331e-01\r\n-2.5000000000000000e-01\r\n"
              "9.9999999999999995e-08\r\n2.8999999999999998e-01\r\n1.0000000000000001e-01\r\n");
    const std::optional<VoHalmeResult> back = ReadVoHalmeResult(ResultText(request, vh), eosVoHalme2);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->m1, vh.m1);
    EXPECT_EQ(back->m3, vh.m3);
    EXPECT_EQ(back->zeta, vh.zeta);
    EXPECT_EQ(back->k, vh.k);
    request.row = eosVoHalme1;
    EXPECT_TRUE(ReadVoHalmeResult(ResultText(request, vh), eosVoHalme1));
    EXPECT_FALSE(ReadVoHalmeResult(ResultText(request, vh), eosVoHalme2));
    EXPECT_EQ(ResultFileName(eosVoHalme1), VoHalmeResultName(eosVoHalme1));
    EXPECT_EQ(ResultFileName(eosVoHalme2), VoHalmeResultName(eosVoHalme2));
}

} // namespace
} // namespace orva::dvopar
