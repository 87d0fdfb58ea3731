// SPDX-License-Identifier: GPL-3.0-or-later
// Reports for a given temperature and pressure, character by character. The volumes were computed apart from
// the program, by bisection of the Peng/Robinson equation with R = 8.31451 kJ/(kmol K).
#include <gtest/gtest.h>

#include "calc_fixture.h"

namespace orva::test {
namespace {

const std::string trailer300 = "\r\n"
                               "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
                               "==============================================================\r\n"
                               "  A = 1846.02295705228\r\n"
                               "  B = 7.24410574720806E-02\r\n"
                               "  C =-3.00060684775846E-02\r\n"
                               "  D = 0.174888183421746\r\n";

TEST(PointTPReport, VapourLeavesTheLiquidFieldBlank) {
    Calculation c;
    const PointResult r = c.At(300, 100);
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  =                     2.39562\r\n"
                        "Volumen          v/ (m^3/kmol)  =                     24.26187\r\n"
                            + trailer300);
}

TEST(PointTPReport, LiquidStandsInItsOwnField) {
    Calculation c;
    const PointResult r = c.At(300, 500);
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  = 599.9648            \r\n"
                        "Volumen          v/ (m^3/kmol)  = 9.687602E-02        \r\n"
                            + trailer300);
}

TEST(PointTPReport, UndividedFluidShowsItsValueTwice) {
    Calculation c;
    const PointResult r = c.At(500, 6000);
    EXPECT_EQ(r.report.substr(0, r.report.find("\r\n\r\n")),
              "Dichte           rho/ (kg/m^3)  = 132.1038            132.1038\r\n"
              "Volumen          v/ (m^3/kmol)  = 0.4399737           0.4399737");
}

TEST(PointTPReport, NearTheCriticalPointItIsNamedButTheVerdictStaysNormal) {
    Calculation c;
    const PointResult r = c.At(425.13, 3796.01);
    EXPECT_EQ(r.report.substr(0, r.report.find("Volumen")),
              "kritischer Punkt!\r\n"
              " T(cr) = 425.13 K\r\n"
              " p(cr) = 3796.00 kPa\r\n"
              "rho(cr) = 203.1 kg/m^3\r\n"
              "  v(cr) = 0.2862404 m^3/kmol\r\n"
              "Dichte           rho/ (kg/m^3)  = 194.4525            194.4525\r\n");
    EXPECT_EQ(r.phaseVerdict, 2);
    EXPECT_EQ(r.co1.text, "=> überkritische Phase L = V (T > T(cr), p > p(cr))");
}

TEST(PointTPReport, ExactCriticalPointIsTheVerdict) {
    Calculation c;
    const PointResult r = c.At(425.125, 3796);
    EXPECT_EQ(r.phaseVerdict, 4);
    EXPECT_EQ(r.co1.text, "=> kritischer Punkt (T = T(cr), p = p(cr))");
    EXPECT_TRUE(r.hasL && r.hasV);
    EXPECT_TRUE(r.lblGleichVisible);
}

TEST(PointTPReport, SpecificVolumeKeepsTheBlanksOfItsUnit) {
    Calculation c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    const PointResult r = c.At(300, 100);
    // 24.2618651 / 58.1222 = 0.41742854, as a single 0.41742855
    EXPECT_EQ(r.report.substr(0, r.report.find("\r\n\r\n")),
              "Dichte           rho/ (kg/m^3)  =                     2.39562\r\n"
              "Volumen          v/ (m^3/kg  )  =                     0.4174286");
    EXPECT_NEAR(r.results[slotVolumeV], 0.41742854, 1e-8);
}

TEST(PointTPReport, ReducedVolumeIsDividedByTheCriticalVolumeOfTheEquation) {
    Calculation c;
    c.options.volumeBasis = 2;
    const PointResult r = c.At(300, 100);
    // 24.2618651 / 0.286240423 = 84.760443
    EXPECT_EQ(r.report.substr(r.report.find("Volumen"), 62),
              "Volumen          v/ (V(red))  =                     84.76044\r\n");
}

TEST(PointTPReport, DecimalCommaReachesEveryNumber) {
    Calculation c;
    c.style.decimal = ',';
    const PointResult r = c.At(300, 100);
    EXPECT_EQ(r.par1.text, "T = 300,000 K");
    EXPECT_EQ(r.par2.text, "p = 100,000 kPa");
    EXPECT_NE(r.report.find("2,39562\r\n"), std::string::npos);
    EXPECT_NE(r.report.find("  B = 7,24410574720806E-02\r\n"), std::string::npos);
}

TEST(PointTPReport, VirialRowNamesItsCoefficientTwice) {
    Calculation c(virialPitzerCurl);
    const PointResult r = c.At(300, 100);
    // Pitzer/Curl at Tr = 300/425.125, omega 0.2: B = -0.717449009 m^3/kmol; v = R T/p + B = 24.226081
    // m^3/kmol
    EXPECT_EQ(r.co1.text, "EOS nur für die V-Phase anwendbar!");
    EXPECT_EQ(r.co2.text, " Virialkoeff. B = -0.717449  m^3/kmol");
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  =                     2.399158\r\n"
                        "Volumen          v/ (m^3/kmol)  =                     24.22608\r\n"
                        "\r\n"
                        "Virialkoeffizient:\r\n"
                        "  B =-0.717449 m^3/kmol\r\n");
}

TEST(PointTPReport, IdealGasHasACoefficientOfZero) {
    Calculation c(eosIdealGas);
    const PointResult r = c.At(300, 100);
    EXPECT_EQ(r.co2.text, " Virialkoeff. B = 0  m^3/kmol");
    EXPECT_NE(r.report.find("Volumen          v/ (m^3/kmol)  =                     24.94353\r\n"),
              std::string::npos);
    EXPECT_NE(r.report.find("  B = 0 m^3/kmol\r\n"), std::string::npos);
}

TEST(PointTPReport, SuppressedReportKeepsTheNumbers) {
    Calculation c;
    const PointResult shown = c.At(300, 100);
    const PointResult hidden = c.At(300, 100, {.suppressReport = true});
    EXPECT_TRUE(hidden.report.empty());
    EXPECT_EQ(hidden.results, shown.results);
}

} // namespace
} // namespace orva::test
