// SPDX-License-Identifier: GPL-3.0-or-later
// The blocks that extend a report, character by character. The numbers were computed apart from the program:
// volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual functions from
// the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were laid out by the
// widths of the fields. The derivatives are central differences. The digit behind "2.Abl.=" is rounding
// noise of a value that is sought to be 0, and is left out.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(ExtendedReport, CoefficientsOfAVapour) {
    Reported c;
    c.state.ExtendedLevel = 2;
    ExpectGood(c.Run(kindTP, RowTP(300, 100)),
               {"T = 300.000 K", "p = 100.000 kPa", "3 V-Lösungen der EOS", ""}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     2.39562\r\n"
               "Volumen          v/ (m^3/kmol)  =                     24.26187\r\n"
               "\r\n"
               "**************************************************************************\r\n"
               "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
               "**************************************************************************\r\n"
               " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
               "                                                 1.8820E-02\r\n"
               "     ln (phi*) :                                -2.7043E-02\r\n"
               "    dln phi/dT :                                 2.4417E-04\r\n"
               "  d2ln phi/dT² :                                -2.8357E-06\r\n"
               "Residualfunktionen:\r\n"
               "   (s-s_idG)/R :                                -4.6207E-02\r\n"
               "   (h-h_idG)/R :                                -2.1975E+01\r\n"
               "   (g-g_idG)/R :                                -8.1128E+00\r\n"
               " (cp-cp_idG)/R :                                 1.0872E-01\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                     mechanische Koeffizienten\r\n"
               "********************************************************************\r\n"
               " alpha/(1/K)   :                                3.5904E-03\r\n"
               "   chi/(1/kPa) :                                1.0287E-02\r\n"
               "  beta/(1/K)   :                                3.4902E-03\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(ExtendedReport, DerivativesOfAVapour) {
    Reported c;
    c.state.ExtendedLevel = 3;
    PointResult r = c.Run(kindTP, RowTP(300, 100));
    r.report = WithoutSlopes(r.report);
    ExpectGood(r, {"T = 300.000 K", "p = 100.000 kPa", "3 V-Lösungen der EOS", ""}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     2.39562\r\n"
               "Volumen          v/ (m^3/kmol)  =                     24.26187\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                    Ableitungen nach T, p, V(molar)\r\n"
               "\r\n"
               "********************************************************************\r\n"
               " (dp/dV) bei T :                                -4.0067E+00\r\n"
               " (dp/dT) bei v :                                 3.4902E-01\r\n"
               " (dV/dp) bei T :                                -2.4958E-01\r\n"
               " (dV/dT) bei p :                                 8.7110E-02\r\n"
               " (dT/dV) bei p :                                 1.1480E+01\r\n"
               " (dT/dp) bei v :                                 2.8651E+00\r\n"
               "       d2p/dV² :                                 3.2087E-01\r\n"
               "       d2V/dT² :                                -3.2445E-05\r\n"
               "       d2T/dV² :                                -4.2757E-03\r\n"
               "1.Wendepunkt p-v-Isoth.: v = 0.15641 m^3/kmol, p = -14376 kPa (vgl. 2.Abl.=)\r\n"
               "2.Wendepunkt p-v-Isoth.: v = 1.65482 m^3/kmol, p = 955 kPa (vgl. 2.Abl.=)\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(ExtendedReport, EverythingOfALiquid) {
    Reported c;
    c.state.ExtendedLevel = 4;
    PointResult r = c.Run(kindTP, RowTP(300, 1000));
    r.report = WithoutSlopes(r.report);
    ExpectGood(r, {"T = 300.000 K", "p = 1000.000 kPa", "3 V-Lösungen der EOS", ""}, " L ",
               "Dichte           rho/ (kg/m^3)  = 601.3051            \r\n"
               "Volumen          v/ (m^3/kmol)  = 9.666009E-02        \r\n"
               "\r\n"
               "**************************************************************************\r\n"
               "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
               "**************************************************************************\r\n"
               " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
               "                   -2.1776E-04\r\n"
               "     ln (phi*) :   -1.4001E+00\r\n"
               "    dln phi/dT :    2.8740E-02\r\n"
               "  d2ln phi/dT² :   -2.4779E-04\r\n"
               "Residualfunktionen:\r\n"
               "   (s-s_idG)/R :   -7.2217E+00\r\n"
               "   (h-h_idG)/R :   -2.5866E+03\r\n"
               "   (g-g_idG)/R :   -4.2004E+02\r\n"
               " (cp-cp_idG)/R :    5.0574E+00\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                     mechanische Koeffizienten\r\n"
               "********************************************************************\r\n"
               " alpha/(1/K)   :   2.2777E-03\r\n"
               "   chi/(1/kPa) :   4.4085E-06\r\n"
               "  beta/(1/K)   :   5.1666E-01\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                    Ableitungen nach T, p, V(molar)\r\n"
               "\r\n"
               "********************************************************************\r\n"
               " (dp/dV) bei T :   -2.3467E+06\r\n"
               " (dp/dT) bei v :    5.1666E+02\r\n"
               " (dV/dp) bei T :   -4.2612E-07\r\n"
               " (dV/dT) bei p :    2.2016E-04\r\n"
               " (dT/dV) bei p :    4.5421E+03\r\n"
               " (dT/dp) bei v :    1.9355E-03\r\n"
               "       d2p/dV² :    2.9122E+08\r\n"
               "       d2V/dT² :    2.5617E-06\r\n"
               "       d2T/dV² :    5.2850E+01\r\n"
               "1.Wendepunkt p-v-Isoth.: v = 0.15641 m^3/kmol, p = -14376 kPa (vgl. 2.Abl.=)\r\n"
               "2.Wendepunkt p-v-Isoth.: v = 1.65482 m^3/kmol, p = 955 kPa (vgl. 2.Abl.=)\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(ExtendedReport, CoefficientsOfAnUndividedFluid) {
    Reported c;
    c.state.ExtendedLevel = 2;
    ExpectGood(
        c.Run(kindTP, RowTP(500, 6000)),
        {"T = 500.000 K", "p = 6000.000 kPa", "=> überkritische Phase L = V (T > T(cr), p > p(cr))", ""},
        "V+L",
        "Dichte           rho/ (kg/m^3)  = 132.1038            132.1038\r\n"
        "Volumen          v/ (m^3/kmol)  = 0.4399737           0.4399737\r\n"
        "\r\n"
        "**************************************************************************\r\n"
        "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
        "**************************************************************************\r\n"
        " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
        "                    6.3950E-03                   6.3950E-03\r\n"
        "     ln (phi*) :   -3.6803E-01                  -3.6803E-01\r\n"
        "    dln phi/dT :    2.9891E-03                   2.9891E-03\r\n"
        "  d2ln phi/dT² :   -3.4607E-05                  -3.4607E-05\r\n"
        "Residualfunktionen:\r\n"
        "   (s-s_idG)/R :   -1.1265E+00                  -1.1265E+00\r\n"
        "   (h-h_idG)/R :   -7.4726E+02                  -7.4726E+02\r\n"
        "   (g-g_idG)/R :   -1.8402E+02                  -1.8402E+02\r\n"
        " (cp-cp_idG)/R :    5.6626E+00                   5.6626E+00\r\n"
        "\r\n"
        "********************************************************************\r\n"
        "                     mechanische Koeffizienten\r\n"
        "********************************************************************\r\n"
        " alpha/(1/K)   :   7.6318E-03                  7.6318E-03\r\n"
        "   chi/(1/kPa) :   2.4751E-04                  2.4751E-04\r\n"
        "  beta/(1/K)   :   5.1390E-03                  5.1390E-03\r\n"
            + PengRobinsonTrailer("1338.82609967514"));
}

TEST(ExtendedReport, DerivativesOfSpecificVolumes) {
    Reported c;
    c.state.ExtendedLevel = 3;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    PointResult r = c.Run(kindTP, RowTP(300, 100));
    r.report = WithoutSlopes(r.report);
    ExpectGood(r, {"T = 300.000 K", "p = 100.000 kPa", "3 V-Lösungen der EOS", ""}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     2.39562\r\n"
               "Volumen          v/ (m^3/kg  )  =                     0.4174286\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                    Ableitungen nach T, p, V(spezif.)\r\n"
               "\r\n"
               "********************************************************************\r\n"
               " (dp/dV) bei T :                                -2.3288E+02\r\n"
               " (dp/dT) bei v :                                 3.4902E-01\r\n"
               " (dV/dp) bei T :                                -4.2941E-03\r\n"
               " (dV/dT) bei p :                                 1.4987E-03\r\n"
               " (dT/dV) bei p :                                 6.6723E+02\r\n"
               " (dT/dp) bei v :                                 2.8651E+00\r\n"
               "       d2p/dV² :                                 1.0840E+03\r\n"
               "       d2V/dT² :                                -5.5821E-07\r\n"
               "       d2T/dV² :                                -1.4444E+01\r\n"
               "1.Wendepunkt p-v-Isoth.: v = 0.00269 m^3/kg, p = -14376 kPa (vgl. 2.Abl.=)\r\n"
               "2.Wendepunkt p-v-Isoth.: v = 0.02847 m^3/kg, p = 955 kPa (vgl. 2.Abl.=)\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(ExtendedReport, FirstLevelAddsNothing) {
    Reported c;
    c.state.ExtendedLevel = 1;
    ExpectGood(c.Run(kindTP, RowTP(300, 100)),
               {"T = 300.000 K", "p = 100.000 kPa", "3 V-Lösungen der EOS", ""}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     2.39562\r\n"
               "Volumen          v/ (m^3/kmol)  =                     24.26187\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(ExtendedReport, EverythingOfAVirialRow) {
    Reported c(virialPitzerCurl);
    c.state.ExtendedLevel = 4;
    ExpectGood(c.Run(kindTP, RowTP(300, 100)),
               {"T = 300.000 K", "p = 100.000 kPa", "EOS nur für die V-Phase anwendbar!",
                " Virialkoeff. B = -0.717449  m^3/kmol"},
               " V ",
               "Dichte           rho/ (kg/m^3)  =                     2.399158\r\n"
               "Volumen          v/ (m^3/kmol)  =                     24.22608\r\n"
               "\r\n"
               "**************************************************************************\r\n"
               "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
               "**************************************************************************\r\n"
               " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
               "                                                 2.3392E-02\r\n"
               "     ln (phi*) :                                -2.8763E-02\r\n"
               "    dln phi/dT :                                 3.1414E-04\r\n"
               "  d2ln phi/dT² :                                -4.7212E-06\r\n"
               "Residualfunktionen:\r\n"
               "   (s-s_idG)/R :                                -6.5478E-02\r\n"
               "   (h-h_idG)/R :                                -2.8272E+01\r\n"
               "   (g-g_idG)/R :                                -8.6289E+00\r\n"
               " (cp-cp_idG)/R :                                 2.3643E-01\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                     mechanische Koeffizienten\r\n"
               "********************************************************************\r\n"
               " alpha/(1/K)   :                                3.6568E-03\r\n"
               "   chi/(1/kPa) :                                1.0296E-02\r\n"
               "  beta/(1/K)   :                                3.5516E-03\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                    Ableitungen nach T, p, V(molar)\r\n"
               "\r\n"
               "********************************************************************\r\n"
               " (dp/dV) bei T :                                -4.0091E+00\r\n"
               " (dp/dT) bei v :                                 3.5516E-01\r\n"
               " (dV/dp) bei T :                                -2.4944E-01\r\n"
               " (dV/dT) bei p :                                 8.8589E-02\r\n"
               " (dT/dV) bei p :                                 1.1288E+01\r\n"
               " (dT/dp) bei v :                                 2.8156E+00\r\n"
               "       d2p/dV² :                                 3.2145E-01\r\n"
               "       d2V/dT² :                                -6.5526E-05\r\n"
               "       d2T/dV² :                                -8.3493E-03\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.717449 m^3/kmol\r\n");
}

TEST(ExtendedReport, CoefficientsOfBothPhases) {
    Reported c;
    c.state.ExtendedLevel = 2;
    ExpectGood(c.Run(kindSaturationPressure, RowT(350)),
               {"T = 350.000 K", "", "p(LV) aus kubischer EOS", " p(LV) = 946.366 kPa"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 516.2078            23.39606\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1125946           2.484273\r\n"
               "\r\n"
               "**************************************************************************\r\n"
               "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
               "**************************************************************************\r\n"
               " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
               "                    3.0595E-04                   1.7183E-02\r\n"
               "     ln (phi*) :   -1.7756E-01                  -1.7756E-01\r\n"
               "    dln phi/dT :    1.8731E-02                   1.5761E-03\r\n"
               "  d2ln phi/dT² :   -1.6439E-04                  -1.9088E-05\r\n"
               "Residualfunktionen:\r\n"
               "   (s-s_idG)/R :   -6.3784E+00                  -3.7406E-01\r\n"
               "   (h-h_idG)/R :   -2.2946E+03                  -1.9307E+02\r\n"
               "   (g-g_idG)/R :   -6.2147E+01                  -6.2147E+01\r\n"
               " (cp-cp_idG)/R :    7.0264E+00                   1.2351E+00\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                     mechanische Koeffizienten\r\n"
               "********************************************************************\r\n"
               " alpha/(1/K)   :   4.1756E-03                  5.2617E-03\r\n"
               "   chi/(1/kPa) :   1.2871E-05                  1.3581E-03\r\n"
               "  beta/(1/K)   :   3.4281E-01                  4.0939E-03\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(ExtendedReport, DerivativesOfBothPhases) {
    Reported c;
    c.state.ExtendedLevel = 3;
    PointResult r = c.Run(kindSaturationPressure, RowT(350));
    r.report = WithoutSlopes(r.report);
    ExpectGood(r, {"T = 350.000 K", "", "p(LV) aus kubischer EOS", " p(LV) = 946.366 kPa"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 516.2078            23.39606\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1125946           2.484273\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                    Ableitungen nach T, p, V(molar)\r\n"
               "\r\n"
               "********************************************************************\r\n"
               " (dp/dV) bei T :   -6.9004E+05                  -2.9639E+02\r\n"
               " (dp/dT) bei v :    3.2442E+02                   3.8743E+00\r\n"
               " (dV/dp) bei T :   -1.4492E-06                  -3.3739E-03\r\n"
               " (dV/dT) bei p :    4.7015E-04                   1.3072E-02\r\n"
               " (dT/dV) bei p :    2.1270E+03                   7.6502E+01\r\n"
               " (dT/dp) bei v :    3.0824E-03                   2.5811E-01\r\n"
               "       d2p/dV² :    6.1172E+07                   1.7511E+02\r\n"
               "       d2V/dT² :    9.6928E-06                  -5.7875E-05\r\n"
               "       d2T/dV² :    4.3851E+01                  -3.3872E-01\r\n"
               "1.Wendepunkt p-v-Isoth.: v = 0.18442 m^3/kmol, p = -4621 kPa (vgl. 2.Abl.=)\r\n"
               "2.Wendepunkt p-v-Isoth.: v = 1.15802 m^3/kmol, p = 1551 kPa (vgl. 2.Abl.=)\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(ExtendedReport, EverythingOfBerthelotVapour) {
    Reported c(eosBerthelot);
    c.state.ExtendedLevel = 4;
    PointResult r = c.Run(kindTP, RowTP(400, 1000));
    r.report = WithoutSlopes(r.report);
    ExpectGood(r, {"T = 400.000 K", "p = 1000.000 kPa", "1 V-Lösung der EOS", ""}, " V ",
               "Dichte           rho/ (kg/m^3)  =                     19.61054\r\n"
               "Volumen          v/ (m^3/kmol)  =                     2.963825\r\n"
               "\r\n"
               "**************************************************************************\r\n"
               "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
               "**************************************************************************\r\n"
               " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
               "                                                 1.1564E-02\r\n"
               "     ln (phi*) :                                -1.0326E-01\r\n"
               "    dln phi/dT :                                 1.0207E-03\r\n"
               "  d2ln phi/dT² :                                -1.2025E-05\r\n"
               "Residualfunktionen:\r\n"
               "   (s-s_idG)/R :                                -3.0501E-01\r\n"
               "   (h-h_idG)/R :                                -1.6331E+02\r\n"
               "   (g-g_idG)/R :                                -4.1305E+01\r\n"
               " (cp-cp_idG)/R :                                 1.1075E+00\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                     mechanische Koeffizienten\r\n"
               "********************************************************************\r\n"
               " alpha/(1/K)   :                                3.7966E-03\r\n"
               "   chi/(1/kPa) :                                1.1367E-03\r\n"
               "  beta/(1/K)   :                                3.3400E-03\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                    Ableitungen nach T, p, V(molar)\r\n"
               "\r\n"
               "********************************************************************\r\n"
               " (dp/dV) bei T :                                -2.9683E+02\r\n"
               " (dp/dT) bei v :                                 3.3400E+00\r\n"
               " (dV/dp) bei T :                                -3.3690E-03\r\n"
               " (dV/dT) bei p :                                 1.1252E-02\r\n"
               " (dT/dV) bei p :                                 8.8870E+01\r\n"
               " (dT/dp) bei v :                                 2.9940E-01\r\n"
               "       d2p/dV² :                                 1.7336E+02\r\n"
               "       d2V/dT² :                                -3.2363E-05\r\n"
               "       d2T/dV² :                                -2.5560E-01\r\n"
               "1.Wendepunkt p-v-Isoth.: v = 0.29455 m^3/kmol, p = 1658 kPa (vgl. 2.Abl.=)\r\n"
               "2.Wendepunkt p-v-Isoth.: v = 0.86104 m^3/kmol, p = 2476 kPa (vgl. 2.Abl.=)\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS Berthelot):\r\n"
               "========================================================\r\n"
               "  A = 1475.77738160676\r\n"
               "  B = 0.116395747620851\r\n"
               "  C = 0\r\n"
               "  D = 0\r\n");
}

TEST(ExtendedReport, CoefficientsOfSoaveRedlichKwongLiquid) {
    Reported c(eosSoaveRedlichKwong);
    c.state.ExtendedLevel = 2;
    ExpectGood(c.Run(kindTP, RowTP(300, 1000)),
               {"T = 300.000 K", "p = 1000.000 kPa", "3 V-Lösungen der EOS", ""}, " L ",
               "Dichte           rho/ (kg/m^3)  = 531.1425            \r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1094286           \r\n"
               "\r\n"
               "**************************************************************************\r\n"
               "diff. Joule-Thomson-Koeffizient; Fugazitätskoeffizient; Residualfunkt.\r\n"
               "**************************************************************************\r\n"
               " (dT/dp) bei H (Joule-Thomson-Koeff. [K/kPa]):\r\n"
               "                   -2.2502E-04\r\n"
               "     ln (phi*) :   -1.3892E+00\r\n"
               "    dln phi/dT :    2.9099E-02\r\n"
               "  d2ln phi/dT² :   -2.5527E-04\r\n"
               "Residualfunktionen:\r\n"
               "   (s-s_idG)/R :   -7.3405E+00\r\n"
               "   (h-h_idG)/R :   -2.6189E+03\r\n"
               "   (g-g_idG)/R :   -4.1675E+02\r\n"
               " (cp-cp_idG)/R :    5.5148E+00\r\n"
               "\r\n"
               "********************************************************************\r\n"
               "                     mechanische Koeffizienten\r\n"
               "********************************************************************\r\n"
               " alpha/(1/K)   :   2.3437E-03\r\n"
               "   chi/(1/kPa) :   5.1265E-06\r\n"
               "  beta/(1/K)   :   4.5717E-01\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS Soave / Redlich / Kwong):\r\n"
               "======================================================================\r\n"
               "  A = 1783.93184968755\r\n"
               "  B = 8.06765464664274E-02\r\n"
               "  C = 0\r\n"
               "  D = 8.06765464664274E-02\r\n");
}

} // namespace
} // namespace orva::test
