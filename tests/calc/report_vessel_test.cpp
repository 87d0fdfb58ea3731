// SPDX-License-Identifier: GPL-3.0-or-later
// Reports of a closed vessel, character by character. The numbers were computed apart from the program:
// volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual functions from
// the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were laid out by the
// widths of the fields. The split follows from the mean density by hand; where both phases exist, the
// saturated volumes are those at which the search for equal areas ends, 9e-6 off in a printed digit at most.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(VesselReport, GlobalBothPhases) {
    Reported c;
    ExpectGood(c.Vessel(kindVesselGlobal, 2, 300, 320),
               {"T = 320.000 K", "rho = 150.0 kg/m^3", "", " Dampfdruck p/kPa = 455.689"}, "V+L",
               "                         Verdampfungsgrad y(V) = 0.0561429\r\n"
               "                Volumenanteil V-Phase phi(V),% = 75.1505 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  5.61429 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.496991            1.503009\r\n"
               "Masse                     m/kg  =  283.15713           16.84287\r\n"
               "Stoffmenge               n/kmol =  4.8718              0.2898\r\n"
               "Dichte           rho/ (kg/m^3)  = 569.7435            11.2061\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1020147           5.186659\r\n"
               "\r\n"
               "molare globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "=========================================================\r\n"
               "\r\n"
               "Dichte rho        =  150  kg/m^3\r\n"
               "Volumen v         =  0.3874813  m^3/kmol\r\n"
               "Enthalpie h       = -17313.54  kJ/kmol\r\n"
               "Entropie s        = -65.47367  kJ/(kmol K)\r\n"
               "Freie Enthalpie g =  3638.031  kJ/kmol\r\n"
               "Innere Energie u  = -17490.12  kJ/kmol\r\n"
               "Freie Energie a   =  3461.46  kJ/kmol\r\n"
               "Exergie eH        =  2276.514  kJ/kmol\r\n"
               "Exergie eU        =  2139.205  kJ/kmol\r\n"
               "Wärmekapazität cp =  148.3963  kJ/(kmol K)\r\n"
               "Wärmekapazität cV =  109.6852  kJ/(kmol K)\r\n"
                   + PengRobinsonTrailer("1784.79645835643"));
}

TEST(VesselReport, GlobalVapour) {
    Reported c;
    ExpectGood(c.Vessel(kindVesselGlobal, 2, 10, 350),
               {"T = 350.000 K", "rho = 5.0 kg/m^3", "vgl. mit Dampfdruck aus EOS: p(LV) = 946.366 kPa",
                " Systemdruck p/kPa = 239.498"},
               " V ",
               "                         Verdampfungsgrad y(V) = 1.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 100.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  100 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.0000              2.0000\r\n"
               "Masse                     m/kg  =  0.0000              10.0000\r\n"
               "Stoffmenge               n/kmol =  0.0000              0.1721\r\n"
               "Dichte           rho/ (kg/m^3)  =                     5\r\n"
               "Volumen          v/ (m^3/kmol)  =                     11.62444\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(VesselReport, GlobalLiquid) {
    Reported c;
    ExpectGood(c.Vessel(kindVesselGlobal, 0.5F, 301, 300),
               {"T = 300.000 K", "rho = 602.0 kg/m^3", "vgl. mit Dampfdruck aus EOS: p(LV) = 257.121 kPa",
                " Systemdruck p/kPa = 1263.690"},
               " L ",
               "                         Verdampfungsgrad y(V) = 0.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 0.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  0 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.5000              0.0000\r\n"
               "Masse                     m/kg  =  301.0000            0.0000\r\n"
               "Stoffmenge               n/kmol =  5.1787              0.0000\r\n"
               "Dichte           rho/ (kg/m^3)  = 602                 \r\n"
               "Volumen          v/ (m^3/kmol)  = 9.654851E-02        \r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(VesselReport, GlobalSupercritical) {
    Reported c;
    ExpectGood(c.Vessel(kindVesselGlobal, 2, 300, 450),
               {"T = 450.000 K", "rho = 150.0 kg/m^3", "=> überkritische Phase L = V (T > T(cr), p > p(cr))",
                " Dampfdruck p/kPa = 4677.787"},
               "V+L",
               "                         Verdampfungsgrad y(V) = 1.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 100.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  100 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.0000              2.0000\r\n"
               "Masse                     m/kg  =  0.0000              300.0000\r\n"
               "Stoffmenge               n/kmol =  0.0000              5.1615\r\n"
               "Dichte           rho/ (kg/m^3)  = 150                 150\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.3874813           0.3874813\r\n"
                   + PengRobinsonTrailer("1447.15073738467"));
}

TEST(VesselReport, GlobalVirial) {
    Reported c(virialPitzerCurl);
    ExpectGood(c.Vessel(kindVesselGlobal, 2, 10, 350),
               {"T = 350.000 K", "rho = 5.0 kg/m^3", "", " Systemdruck p/kPa = 239.865"}, " V ",
               "                         Verdampfungsgrad y(V) = 1.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 100.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  100 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.0000              2.0000\r\n"
               "Masse                     m/kg  =  0.0000              10.0000\r\n"
               "Stoffmenge               n/kmol =  0.0000              0.1721\r\n"
               "Dichte           rho/ (kg/m^3)  =                     5\r\n"
               "Volumen          v/ (m^3/kmol)  =                     11.62444\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.5076941 m^3/kmol\r\n");
}

TEST(VesselReport, GlobalOverfull) {
    Reported c;
    ExpectFailed(c.Vessel(kindVesselGlobal, 1, 900, 300), {"T = 300.000 K", "rho = 900.0 kg/m^3", "", ""},
                 "                         Meldung von Sub CalcBatch: (v <= b)\r\n", "ERROR1");
}

TEST(VesselReport, PartialBothPhasesByTheDiameter) {
    Reported c;
    c.state.BensonLiquid = true;
    ExpectGood(c.Vessel(kindVesselPartial, 2, 300, 320),
               {"T = 320.000 K", "rho = 150.0 kg/m^3", "", " Dampfdruck p/kPa = 468.682"}, "V+L",
               "                         Verdampfungsgrad y(V) = 0.05717776\r\n"
               "                Volumenanteil V-Phase phi(V),% = 74.119 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  5.717776 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.517621            1.482379\r\n"
               "Masse                     m/kg  =  282.846671          17.153329\r\n"
               "Stoffmenge               n/kmol =  4.8664              0.2951\r\n"
               "Dichte           rho/ (kg/m^3)  = 546.4362            11.57148\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1063659           5.022882\r\n"
               "\r\n"
               "molare globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "=========================================================\r\n"
               "\r\n"
               "Dichte rho        =  150  kg/m^3\r\n"
               "Volumen v         =  0.3874813  m^3/kmol\r\n"
               "Enthalpie h       = -17293.04  kJ/kmol\r\n"
               "Entropie s        = -65.4096  kJ/(kmol K)\r\n"
               "Freie Enthalpie g =  3638.031  kJ/kmol\r\n"
               "Innere Energie u  = -17472.01  kJ/kmol\r\n"
               "Freie Energie a   =  3459.063  kJ/kmol\r\n"
               "Exergie eH        =  2277.914  kJ/kmol\r\n"
               "Exergie eU        =  2138.74  kJ/kmol\r\n"
               "Wärmekapazität cp =  148.3524  kJ/(kmol K)\r\n"
               "Wärmekapazität cV =  109.6701  kJ/(kmol K)\r\n"
                   + PengRobinsonTrailer("1784.79645835643"));
}

TEST(VesselReport, PartialBothPhasesByTheDatabase) {
    Reported c;
    ExpectGood(c.Vessel(kindVesselPartial, 2, 300, 320),
               {"T = 320.000 K", "rho = 150.0 kg/m^3", "", " Dampfdruck p/kPa = 468.682"}, "V+L",
               "                         Verdampfungsgrad y(V) = 0.05721598\r\n"
               "                Volumenanteil V-Phase phi(V),% = 74.1685 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  5.721599 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.51663             1.48337\r\n"
               "Masse                     m/kg  =  282.835204          17.164796\r\n"
               "Stoffmenge               n/kmol =  4.8662              0.2953\r\n"
               "Dichte           rho/ (kg/m^3)  = 547.4621            11.57148\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1061666           5.022882\r\n"
               "\r\n"
               "molare globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "=========================================================\r\n"
               "\r\n"
               "Dichte rho        =  150  kg/m^3\r\n"
               "Volumen v         =  0.3874813  m^3/kmol\r\n"
               "Enthalpie h       = -17292.28  kJ/kmol\r\n"
               "Entropie s        = -65.40723  kJ/(kmol K)\r\n"
               "Freie Enthalpie g =  3638.031  kJ/kmol\r\n"
               "Innere Energie u  = -17471.34  kJ/kmol\r\n"
               "Freie Energie a   =  3458.974  kJ/kmol\r\n"
               "Exergie eH        =  2277.966  kJ/kmol\r\n"
               "Exergie eU        =  2138.723  kJ/kmol\r\n"
               "Wärmekapazität cp =  148.3508  kJ/(kmol K)\r\n"
               "Wärmekapazität cV =  109.6695  kJ/(kmol K)\r\n"
                   + PengRobinsonTrailer("1784.79645835643"));
}

TEST(VesselReport, PartialFull) {
    Reported c;
    const PointResult r = c.Vessel(kindVesselPartial, 1, 700, 300);
    ExpectGood(r, {"T = 300.000 K", "rho = 700.0 kg/m^3", "", " Systemdruck p/kPa =  (Fehler)"}, " L ",
               "                         Verdampfungsgrad y(V) = 0.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 0.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  0 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  1.0000              0.0000\r\n"
               "Masse                     m/kg  =  700.0000            0.0000\r\n"
               "Stoffmenge               n/kmol =  12.0436             0.0000\r\n"
               "Dichte           rho/ (kg/m^3)  = 700                 \r\n"
               "Volumen          v/ (m^3/kmol)  = 8.303171E-02        \r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
    EXPECT_EQ(r.note, "ERROR2");
}

TEST(VesselReport, PartialVapour) {
    Reported c;
    ExpectGood(c.Vessel(kindVesselPartial, 2, 10, 350),
               {"T = 350.000 K", "rho = 5.0 kg/m^3", "", " Systemdruck p/kPa = 239.498"}, " V ",
               "                         Verdampfungsgrad y(V) = 1.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 100.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  100 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.0000              2.0000\r\n"
               "Masse                     m/kg  =  0.0000              10.0000\r\n"
               "Stoffmenge               n/kmol =  0.0000              0.1721\r\n"
               "Dichte           rho/ (kg/m^3)  =                     5\r\n"
               "Volumen          v/ (m^3/kmol)  =                     11.62444\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(VesselReport, PartialVirialVapour) {
    Reported c(virialPitzerCurl);
    ExpectGood(c.Vessel(kindVesselPartial, 2, 10, 350),
               {"T = 350.000 K", "rho = 5.0 kg/m^3", "", " Systemdruck p/kPa = 239.865"}, " V ",
               "                         Verdampfungsgrad y(V) = 1.0\r\n"
               "                Volumenanteil V-Phase phi(V),% = 100.0 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  100 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.0000              2.0000\r\n"
               "Masse                     m/kg  =  0.0000              10.0000\r\n"
               "Stoffmenge               n/kmol =  0.0000              0.1721\r\n"
               "Dichte           rho/ (kg/m^3)  =                     5\r\n"
               "Volumen          v/ (m^3/kmol)  =                     11.62444\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.5076941 m^3/kmol\r\n");
}

TEST(VesselReport, PartialVirialBothPhases) {
    Reported c(virialPitzerCurl);
    c.state.BensonLiquid = true;
    ExpectGood(c.Vessel(kindVesselPartial, 2, 300, 300),
               {"T = 300.000 K", "rho = 150.0 kg/m^3", "", " Dampfdruck p/kPa = 266.525"}, "V+L",
               "                         Verdampfungsgrad y(V) = 0.03344889\r\n"
               "                Volumenanteil V-Phase phi(V),% = 74.5956 %\r\n"
               "     Massen-/Stoffmengenanteil V-Phase  y(V),% =  3.344889 %\r\n"
               "\r\n"
               "Volumen                  V/m^3  =  0.508089            1.491911\r\n"
               "Masse                     m/kg  =  289.965332          10.034668\r\n"
               "Stoffmenge               n/kmol =  4.9889              0.1726\r\n"
               "Dichte           rho/ (kg/m^3)  = 570.6981            6.726049\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.101844            8.641357\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.717449 m^3/kmol\r\n");
}

} // namespace
} // namespace orva::test
