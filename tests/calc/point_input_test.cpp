// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "calc/point_input.h"
#include "calc/result_window.h"
#include "calc_fixture.h"

namespace orva::test {
namespace {

TEST(PointInput, AsksForWhatTheKindNeeds) {
    const SubstanceData butane = Butane();
    const Options options;
    BatchDataSet batch;
    CalculationState calculation;
    struct Shown {
        int kind;
        bool T, p, rhoV, rhoL;
    };
    for (const Shown& s :
         {Shown{kindTP, true, true, false, false}, Shown{kindTRho, true, false, true, false},
          Shown{kindTRhoLiquid, true, false, false, true}, Shown{kindPRho, false, true, true, false},
          Shown{kindSaturationTemperature, false, true, false, false},
          Shown{kindLiquidDensity, true, false, false, false}}) {
        PointInput input(s.kind + inputContextOffset, {butane, options, batch, calculation});
        EXPECT_EQ(input.Lines()[0].visible, s.T) << s.kind;
        EXPECT_EQ(input.Lines()[1].visible, s.p) << s.kind;
        EXPECT_EQ(input.Lines()[2].visible, s.rhoV) << s.kind;
        EXPECT_EQ(input.Lines()[3].visible, s.rhoL) << s.kind;
    }
}

TEST(PointInput, LabelsItsLines) {
    const SubstanceData butane = Butane();
    Options options;
    BatchDataSet batch;
    CalculationState calculation;
    PointInput input(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    EXPECT_EQ(input.Title(), "Eingabe Direktberechnung");
    EXPECT_EQ(input.CommandText(), "&Berechnen");
    EXPECT_EQ(input.Lines()[0].label, "      T/K = ");
    EXPECT_EQ(input.Lines()[1].label, "      p/kPa = ");
    EXPECT_EQ(input.Lines()[2].heading, " Eingabe Dichte kg/m^3");
    EXPECT_EQ(input.Lines()[2].label, " rho/kg/m^3 = ");
    input.SetVolumeInput(true);
    EXPECT_EQ(input.Lines()[2].heading, " Eingabe mol. Volumen, vgl. \"Optionen\" ");
    EXPECT_EQ(input.Lines()[2].label, " V/m^3/kmol = ");
    options.volumeBasis = 1;
    PointInput specific(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    specific.SetVolumeInput(true);
    EXPECT_EQ(specific.Lines()[2].heading, "Eingabe spezif. Volumen, vgl. Optionen ");
    EXPECT_EQ(specific.Lines()[2].label, "  V/m^3/kg  = ");
    options.volumeBasis = 2;
    PointInput reduced(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    reduced.SetVolumeInput(true);
    EXPECT_EQ(reduced.Lines()[2].heading, "Eingabe reduz. Volumen, vgl. Optionen ");
    EXPECT_EQ(reduced.Lines()[2].label, "  V/(m^3/m^3)= ");
}

TEST(PointInput, TakesCommaAndPoint) {
    const SubstanceData butane = Butane();
    const Options options;
    BatchDataSet batch;
    CalculationState calculation;
    PointInput input(kindTP + inputContextOffset, {butane, options, batch, calculation});
    input.Lines()[0].text = "300,25";
    input.Lines()[1].text = "1.5E2";
    EXPECT_FALSE(input.Accept());
    EXPECT_EQ(batch.rows[0].T, 300.25);
    EXPECT_EQ(batch.rows[0].p, 150);
}

TEST(PointInput, RefusesInputWithoutANumberAndChangesNothing) {
    const SubstanceData butane = Butane();
    const Options options;
    BatchDataSet batch;
    CalculationState calculation;
    batch.rows[0].T = 280;
    for (const char* text : {"", "abc", "0", "-5", "1e-9"}) {
        PointInput input(kindTP + inputContextOffset, {butane, options, batch, calculation});
        input.Lines()[0].text = text;
        input.Lines()[1].text = "";
        const auto message = input.Accept();
        ASSERT_TRUE(message) << text;
        EXPECT_EQ(message->title, "Ausführung nicht möglich");
        EXPECT_EQ(message->text, "keine gültige Eingabe");
        EXPECT_EQ(batch.rows[0].T, 280);
    }
}

TEST(PointInput, AZeroTemperaturePassesTheSumAndIsReportedLater) {
    const SubstanceData butane = Butane();
    const Options options;
    BatchDataSet batch;
    CalculationState calculation;
    PointInput input(kindTP + inputContextOffset, {butane, options, batch, calculation});
    input.Lines()[0].text = "0";
    input.Lines()[1].text = "100";
    EXPECT_FALSE(input.Accept());
    EXPECT_EQ(batch.rows[0].T, 0);
}

TEST(PointInput, TurnsAVolumeIntoADensity) {
    const SubstanceData butane = Butane();
    Options options;
    BatchDataSet batch;
    CalculationState calculation;
    PointInput input(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    input.SetVolumeInput(true);
    input.Lines()[0].text = "300";
    input.Lines()[2].text = "2";
    EXPECT_FALSE(input.Accept());
    EXPECT_FLOAT_EQ(batch.rows[0].rhoV, 58.1222F / 2);
    options.volumeBasis = 1;
    options.volumeFactor = 1 / 58.1222;
    PointInput specific(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    specific.SetVolumeInput(true);
    specific.Lines()[0].text = "300";
    specific.Lines()[2].text = "0.5";
    EXPECT_FALSE(specific.Accept());
    EXPECT_NEAR(batch.rows[0].rhoV, 2, 1e-6);
}

TEST(PointInput, ShowsTheLastDirectInput) {
    const SubstanceData butane = Butane();
    const Options options;
    BatchDataSet batch;
    CalculationState calculation;
    batch.rows[0].T = 300.123456789;
    batch.rows[0].rhoV = 0.3F;
    PointInput input(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    EXPECT_EQ(input.Lines()[0].text, "300.123456789");
    EXPECT_EQ(input.Lines()[1].text, "");
    EXPECT_EQ(input.Lines()[2].text, "0.3");
}

TEST(ResultWindow, NamesTheCalculationInItsCaption) {
    Calculation c;
    c.state.CalcKind = kindTP;
    EXPECT_EQ(ResultWindow(c.Context()).Caption(), "Ergebnis der Berechnung  T, p => rho");
    c.state.CalcKind = kindSaturationPressure;
    EXPECT_EQ(ResultWindow(c.Context()).Caption(), "Ergebnis der Berechnung  T => p(LV) (Globalberechnung)");
    c.state.GlobalMethod = false;
    EXPECT_EQ(ResultWindow(c.Context()).Caption(), "Ergebnis der Berechnung  T => p(LV) (Partialberechnung)");
}

TEST(ResultWindow, StatusLineShowsPointsUnderADecimalComma) {
    Calculation c;
    c.style.decimal = ',';
    c.model.selection.vaporPressure = vpWagner;
    EXPECT_EQ(
        ResultWindow(c.Context()).StatusLine(),
        "CEOS Peng / Robinson; Wagner;  T(cr)/K = 425.13; p(cr)/kPa = 3796; v(cr, exp)/m^3/kmol= 0.2549; "
        "v(cr, calc)= 0.2862 ");
}

TEST(ResultWindow, StatusLineLeavesOutWhatIsNotGiven) {
    SubstanceData bare = Butane();
    bare.vcDatabase = 0;
    Calculation c(eosIdealGas, bare);
    EXPECT_EQ(ResultWindow(c.Context()).StatusLine(),
              "Idealgas-EOS; keine;  T(cr)/K = 425.13; p(cr)/kPa = 3796 ");
}

TEST(ResultWindow, CalculatesTheRowInForce) {
    Calculation c;
    c.state.CalcKind = kindTP;
    c.batch.rows[0].T = 300;
    c.batch.rows[0].p = 100;
    ResultWindow window(c.Context());
    EXPECT_EQ(window.Calculate().record.phase, " V ");
    EXPECT_EQ(window.Result().par1.text, "T = 300.000 K");
}

TEST(PointInput, AVolumeLineFollowsTheUnitsWithoutTheNumberOfTheOldOnes) {
    const SubstanceData butane = Butane();
    Options options;
    BatchDataSet batch;
    CalculationState calculation;
    PointInput input(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    input.SetVolumeInput(true);
    input.Lines()[0].text = "300";
    input.Lines()[2].text = "24";
    input.FollowUnits();
    EXPECT_EQ(input.Lines()[2].text, "24");
    options.volumeBasis = 1;
    input.FollowUnits();
    EXPECT_EQ(input.Lines()[2].label, "  V/m^3/kg  = ");
    EXPECT_EQ(input.Lines()[2].text, "");
    EXPECT_EQ(input.Lines()[0].text, "300");
}

TEST(PointInput, ADensityLineKeepsItsNumberUnderOtherUnits) {
    const SubstanceData butane = Butane();
    Options options;
    BatchDataSet batch;
    CalculationState calculation;
    PointInput input(kindTRho + inputContextOffset, {butane, options, batch, calculation});
    input.Lines()[2].text = "2.5";
    options.volumeBasis = 2;
    input.FollowUnits();
    EXPECT_EQ(input.Lines()[2].text, "2.5");
}

TEST(PointInput, ShowsEveryDigitOfTheRow) {
    const SubstanceData butane = Butane();
    const Options options;
    BatchDataSet batch;
    CalculationState calculation;
    batch.rows[0].T = 1000.0 / 3;
    PointInput input(kindTP + inputContextOffset, {butane, options, batch, calculation});
    EXPECT_FALSE(input.Accept().has_value());
    EXPECT_EQ(batch.rows[0].T, 1000.0 / 3);
}

} // namespace
} // namespace orva::test
