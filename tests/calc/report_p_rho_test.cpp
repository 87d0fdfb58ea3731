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
    ExpectGood(c.Run(kindPRho, RowPRho(500, 9)),
               {"p = 500.000 kPa", "rho = 9.0 kg/m^3", "", " T = 411.694 K"}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     9\r\n"
               "Volumen          v/ (m^3/kmol)  =                     6.458022\r\n"
                   + PengRobinsonTrailer("1537.33768134308"));
}

TEST(PRhoReport, LiquidTemperature) {
    Reported c;
    ExpectGood(c.Run(kindPRho, RowPRho(1000, 590)),
               {"p = 1000.000 kPa", "rho = 590.0 kg/m^3", "", " T = 308.018 K"}, " L ",
               "Dichte           rho/ (kg/m^3)  = 590                 \r\n"
               "Volumen          v/ (m^3/kmol)  = 0.0985122           \r\n"
                   + PengRobinsonTrailer("1821.11503777545"));
}

TEST(PRhoReport, DensityBetweenThePhasesGivesTheSaturationTemperature) {
    Reported c;
    ExpectGood(c.Run(kindPRho, RowPRho(500, 100)),
               {"p = 500.000 kPa", "rho = 100.0 kg/m^3", "", " T = 323.511 K"}, "V+L",
               "Dichte           rho/ (kg/m^3)  = 564.1063            12.27238\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1030341           4.736017\r\n"
                   + PengRobinsonTrailer("1774.35092861819"));
}

TEST(PRhoReport, UndividedFluid) {
    Reported c;
    ExpectGood(c.Run(kindPRho, RowPRho(6000, 100)),
               {"p = 6000.000 kPa", "rho = 100.0 kg/m^3",
                "=> überkritische Phase L = V (T > T(cr), p > p(cr))", " T = 549.348 K"},
               "V+L",
               "Dichte           rho/ (kg/m^3)  = 100                 100\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.581222            0.581222\r\n"
                   + PengRobinsonTrailer("1240.94402678247"));
}

TEST(PRhoReport, VirialRow) {
    Reported c(virialPitzerCurl);
    ExpectGood(c.Run(kindPRho, RowPRho(100, 2)),
               {"p = 100.000 kPa", "rho = 2.0 kg/m^3", "", " T = 355.423 K"}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     2\r\n"
               "Volumen          v/ (m^3/kmol)  =                     29.0611\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.4905508 m^3/kmol\r\n");
}

TEST(PRhoReport, WithoutASolutionThePhaseStaysBlank) {
    Reported c;
    ExpectFailed(c.Run(kindPRho, RowPRho(100, 900)),
                 {"p = 100.000 kPa", "rho = 900.0 kg/m^3", "", " Fehler"});
}

TEST(PRhoReport, MissingPressure) {
    Reported c;
    ExpectFailed(c.Run(kindPRho, RowPRho(0, 9)), {"kein p in diesem Datensatz", "", "", ""});
}

TEST(PRhoReport, MissingDensity) {
    Reported c;
    ExpectFailed(c.Run(kindPRho, RowPRho(100, 0)), {"", "kein rho in diesem Datensatz", "", ""});
}

} // namespace
} // namespace orva::test
