// SPDX-License-Identifier: GPL-3.0-or-later
// Reports for a given pressure and density, character by character. The numbers were computed apart from the
// program: volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual
// functions from the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were
// laid out by the widths of the fields. Where both phases exist the volumes are those at which the search
// for equal areas ends, within 8e-6 of the exact ones.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(PRhoReport, VapourTemperature) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(500, 9));
    ExpectLabels(r, {"p = 500.000 kPa", "rho = 9.0 kg/m^3", "", " T = 411.694 K"});
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  =                     9\r\n"
                        "Volumen          v/ (m^3/kmol)  =                     6.458022\r\n"
                        "\r\n"
                        "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
                        "==============================================================\r\n"
                        "  A = 1537.33768134308\r\n"
                        "  B = 7.24410574720806E-02\r\n"
                        "  C =-3.00060684775846E-02\r\n"
                        "  D = 0.174888183421746\r\n");
    EXPECT_EQ(r.record.phase, " V ");
    EXPECT_FALSE(r.failed);
}

TEST(PRhoReport, LiquidTemperature) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(1000, 590));
    ExpectLabels(r, {"p = 1000.000 kPa", "rho = 590.0 kg/m^3", "", " T = 308.018 K"});
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  = 590                 \r\n"
                        "Volumen          v/ (m^3/kmol)  = 0.0985122           \r\n"
                        "\r\n"
                        "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
                        "==============================================================\r\n"
                        "  A = 1821.11503777545\r\n"
                        "  B = 7.24410574720806E-02\r\n"
                        "  C =-3.00060684775846E-02\r\n"
                        "  D = 0.174888183421746\r\n");
    EXPECT_EQ(r.record.phase, " L ");
    EXPECT_FALSE(r.failed);
}

TEST(PRhoReport, DensityBetweenThePhasesGivesTheSaturationTemperature) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(500, 100));
    ExpectLabels(r, {"p = 500.000 kPa", "rho = 100.0 kg/m^3", "", " T = 323.511 K"});
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  = 564.1063            12.27238\r\n"
                        "Volumen          v/ (m^3/kmol)  = 0.1030341           4.736017\r\n"
                        "\r\n"
                        "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
                        "==============================================================\r\n"
                        "  A = 1774.35092861819\r\n"
                        "  B = 7.24410574720806E-02\r\n"
                        "  C =-3.00060684775846E-02\r\n"
                        "  D = 0.174888183421746\r\n");
    EXPECT_EQ(r.record.phase, "V+L");
    EXPECT_FALSE(r.failed);
}

TEST(PRhoReport, UndividedFluid) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(6000, 100));
    ExpectLabels(r, {"p = 6000.000 kPa", "rho = 100.0 kg/m^3",
                     "=> überkritische Phase L = V (T > T(cr), p > p(cr))", " T = 549.348 K"});
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  = 100                 100\r\n"
                        "Volumen          v/ (m^3/kmol)  = 0.581222            0.581222\r\n"
                        "\r\n"
                        "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
                        "==============================================================\r\n"
                        "  A = 1240.94402678247\r\n"
                        "  B = 7.24410574720806E-02\r\n"
                        "  C =-3.00060684775846E-02\r\n"
                        "  D = 0.174888183421746\r\n");
    EXPECT_EQ(r.record.phase, "V+L");
    EXPECT_FALSE(r.failed);
}

TEST(PRhoReport, VirialRow) {
    Reported c(virialPitzerCurl);
    const PointResult r = c.Run(kindPRho, RowPRho(100, 2));
    ExpectLabels(r, {"p = 100.000 kPa", "rho = 2.0 kg/m^3", "", " T = 355.423 K"});
    EXPECT_EQ(r.report, "Dichte           rho/ (kg/m^3)  =                     2\r\n"
                        "Volumen          v/ (m^3/kmol)  =                     29.0611\r\n"
                        "\r\n"
                        "Virialkoeffizient:\r\n"
                        "  B =-0.4905508 m^3/kmol\r\n");
    EXPECT_EQ(r.record.phase, " V ");
    EXPECT_FALSE(r.failed);
}

TEST(PRhoReport, WithoutASolutionThePhaseStaysBlank) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(100, 900));
    ExpectLabels(r, {"p = 100.000 kPa", "rho = 900.0 kg/m^3", "", " Fehler"});
    EXPECT_EQ(r.report, "");
    EXPECT_EQ(r.record.phase, "   ");
    EXPECT_TRUE(r.failed);
}

TEST(PRhoReport, MissingPressure) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(0, 9));
    ExpectLabels(r, {"kein p in diesem Datensatz", "", "", ""});
    EXPECT_EQ(r.report, "");
    EXPECT_EQ(r.record.phase, "   ");
    EXPECT_TRUE(r.failed);
}

TEST(PRhoReport, MissingDensity) {
    Reported c;
    const PointResult r = c.Run(kindPRho, RowPRho(100, 0));
    ExpectLabels(r, {"", "kein rho in diesem Datensatz", "", ""});
    EXPECT_EQ(r.report, "");
    EXPECT_EQ(r.record.phase, "   ");
    EXPECT_TRUE(r.failed);
}

} // namespace
} // namespace orva::test
