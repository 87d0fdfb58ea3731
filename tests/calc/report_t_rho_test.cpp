// SPDX-License-Identifier: GPL-3.0-or-later
// Reports for a given temperature and density, character by character. The numbers were computed apart from
// the program: volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual
// functions from the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were
// laid out by the widths of the fields. Where both phases exist, pressure and volumes are those at which the
// search for equal areas ends: the printed numbers lie within 9e-6 of the exact ones.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(TRhoReport, VapourBelowTheSaturatedDensity) {
    Reported c;
    ExpectGood(c.Run(kindTRho, RowTRho(350, 5)),
               {"T = 350.000 K", "rho = 5.0 kg/m^3", "vgl. mit Dampfdruck aus EOS: p(LV) = 946.366 kPa",
                " Systemdruck p/kPa = 239.498"},
               " V ",
               "Dichte           rho/ (kg/m^3)  =                     5\r\n"
               "Volumen          v/ (m^3/kmol)  =                     11.62444\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(TRhoReport, BothPhasesShowTheirMixture) {
    Reported c;
    ExpectGood(c.Run(kindTRho, RowTRho(350, 100)),
               {"T = 350.000 K", "rho = 100.0 kg/m^3", "", " Dampfdruck p/kPa = 946.366"}, "V+L",
               "                      Verdampfungsgrad y(V) = 0.19759312\r\n"
               "\r\n"
               "Dichte           rho/ (kg/m^3)  = 516.2078            23.39606\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1125946           2.484273\r\n"
               "\r\n"
               "molare globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "=========================================================\r\n"
               "\r\n"
               "Dichte rho        =  100  kg/m^3\r\n"
               "Volumen v         =  0.581222  m^3/kmol\r\n"
               "Enthalpie h       = -10193.3  kJ/kmol\r\n"
               "Entropie s        = -44.97554  kJ/(kmol K)\r\n"
               "Freie Enthalpie g =  5548.136  kJ/kmol\r\n"
               "Innere Energie u  = -10743.35  kJ/kmol\r\n"
               "Freie Energie a   =  4998.087  kJ/kmol\r\n"
               "Exergie eH        =  3285.237  kJ/kmol\r\n"
               "Exergie eU        =  2794.081  kJ/kmol\r\n"
               "Wärmekapazität cp =  160.3112  kJ/(kmol K)\r\n"
               "Wärmekapazität cV =  113.9729  kJ/(kmol K)\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(TRhoReport, SpecificUnitsReachEveryRow) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectGood(c.Run(kindTRho, RowTRho(350, 100)),
               {"T = 350.000 K", "rho = 100.0 kg/m^3", "", " Dampfdruck p/kPa = 946.366"}, "V+L",
               "                      Verdampfungsgrad y(V) = 0.19759312\r\n"
               "\r\n"
               "Dichte           rho/ (kg/m^3)  = 516.2078            23.39606\r\n"
               "Volumen          v/ (m^3/kg  )  = 1.937205E-03        4.274224E-02\r\n"
               "\r\n"
               "spezifische globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "==============================================================\r\n"
               "\r\n"
               "Dichte rho        =  100  kg/m^3\r\n"
               "Volumen v         =  0.01  m^3/kg\r\n"
               "Enthalpie h       = -175.3771  kJ/kg\r\n"
               "Entropie s        = -0.7738101  kJ/(kg K)\r\n"
               "Freie Enthalpie g =  95.45641  kJ/kg\r\n"
               "Innere Energie u  = -184.8408  kJ/kg\r\n"
               "Freie Energie a   =  85.99274  kJ/kg\r\n"
               "Exergie eH        =  56.52293  kJ/kg\r\n"
               "Exergie eU        =  48.07252  kJ/kg\r\n"
               "Wärmekapazität cp =  2.758175  kJ/(kg K)\r\n"
               "Wärmekapazität cV =  1.960918  kJ/(kg K)\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(TRhoReport, EnergiesByRStandUnderTheSpecificTitle) {
    Reported c;
    c.options.unitBasis = 1;
    ExpectGood(c.Run(kindTRho, RowTRho(300, 20)),
               {"T = 300.000 K", "rho = 20.0 kg/m^3", "", " Dampfdruck p/kPa = 257.121"}, "V+L",
               "                      Verdampfungsgrad y(V) = 0.31573032\r\n"
               "\r\n"
               "Dichte           rho/ (kg/m^3)  = 599.3028            6.462173\r\n"
               "Volumen          v/ (m^3/kmol)  = 9.698302E-02        8.994219\r\n"
               "\r\n"
               "spezifische globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "==============================================================\r\n"
               "\r\n"
               "Dichte rho        =  20  kg/m^3\r\n"
               "Volumen v         =  2.90611  m^3/kg\r\n"
               "Enthalpie h       = -1768.437  kJ/kg\r\n"
               "Entropie s        = -6.755025  kJ/(kg K)\r\n"
               "Freie Enthalpie g =  258.0706  kJ/kg\r\n"
               "Innere Energie u  = -1858.307  kJ/kg\r\n"
               "Freie Energie a   =  168.201  kJ/kg\r\n"
               "Exergie eH        =  253.8825  kJ/kg\r\n"
               "Exergie eU        =  199.4283  kJ/kg\r\n"
               "Wärmekapazität cp =  15.45943  kJ/(kg K)\r\n"
               "Wärmekapazität cV =  12.19264  kJ/(kg K)\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(TRhoReport, EnergiesByRTUseTheTemperatureOfTheDiagrams) {
    Reported c;
    c.options.unitBasis = 2;
    c.options.volumeBasis = 2;
    ExpectGood(c.Run(kindTRho, RowTRho(300, 20)),
               {"T = 300.000 K", "rho = 20.0 kg/m^3", "", " Dampfdruck p/kPa = 257.121"}, "V+L",
               "                      Verdampfungsgrad y(V) = 0.31573032\r\n"
               "\r\n"
               "Dichte           rho/ (kg/m^3)  = 599.3028            6.462173\r\n"
               "Volumen          v/ (V(red))  = 0.3388167           31.4219\r\n"
               "\r\n"
               "spezifische globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "==============================================================\r\n"
               "\r\n"
               "Dichte rho        =  20  kg/m^3\r\n"
               "Volumen v         =  10.15269  m^3/kg\r\n"
               "Enthalpie h       = -5.931366  kJ/kg\r\n"
               "Entropie s        = -2.265646E-02  kJ/(kg K)\r\n"
               "Freie Enthalpie g =  0.865573  kJ/kg\r\n"
               "Innere Energie u  = -6.23279  kJ/kg\r\n"
               "Freie Energie a   =  0.564149  kJ/kg\r\n"
               "Exergie eH        =  0.8515261  kJ/kg\r\n"
               "Exergie eU        =  0.6688858  kJ/kg\r\n"
               "Wärmekapazität cp =  5.185117E-02  kJ/(kg K)\r\n"
               "Wärmekapazität cV =  4.089431E-02  kJ/(kg K)\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(TRhoReport, LiquidFromItsOwnColumn) {
    Reported c;
    ExpectGood(c.Run(kindTRhoLiquid, RowTRhoLiquid(300, 602)),
               {"T = 300.000 K", "rho = 602.0 kg/m^3", "vgl. mit Dampfdruck aus EOS: p(LV) = 257.121 kPa",
                " Systemdruck p/kPa = 1263.690"},
               " L ",
               "Dichte           rho/ (kg/m^3)  = 602                 \r\n"
               "Volumen          v/ (m^3/kmol)  = 9.654851E-02        \r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(TRhoReport, LiquidAboveTheCriticalPressureIsUndivided) {
    Reported c;
    ExpectGood(c.Run(kindTRho, RowTRho(300, 615)),
               {"T = 300.000 K", "rho = 615.0 kg/m^3", "=> überkritische L-Phase (T < T(cr), p > p(cr))",
                " Dampfdruck p/kPa = 6800.533"},
               "V+L",
               "Dichte           rho/ (kg/m^3)  = 615                 615\r\n"
               "Volumen          v/ (m^3/kmol)  = 9.450764E-02        9.450764E-02\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(TRhoReport, VapourAboveTheCriticalTemperature) {
    Reported c;
    ExpectGood(c.Run(kindTRho, RowTRho(450, 50)),
               {"T = 450.000 K", "rho = 50.0 kg/m^3", "=> überkritische V-Phase (T > T(cr), p < p(cr))",
                " Dampfdruck p/kPa = 2477.022"},
               "V+L",
               "Dichte           rho/ (kg/m^3)  = 50                  50\r\n"
               "Volumen          v/ (m^3/kmol)  = 1.162444            1.162444\r\n"
                   + PengRobinsonTrailer("1447.15073738467"));
}

TEST(TRhoReport, DenseFluidAboveTheCriticalPoint) {
    Reported c;
    ExpectGood(c.Run(kindTRho, RowTRho(450, 400)),
               {"T = 450.000 K", "rho = 400.0 kg/m^3", "=> überkritische Phase L = V (T > T(cr), p > p(cr))",
                " Dampfdruck p/kPa = 12150.285"},
               "V+L",
               "Dichte           rho/ (kg/m^3)  = 400                 400\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1453055           0.1453055\r\n"
                   + PengRobinsonTrailer("1447.15073738467"));
}

TEST(TRhoReport, VirialRowHasNoTable) {
    Reported c(virialPitzerCurl);
    ExpectGood(c.Run(kindTRho, RowTRho(300, 2)), {"T = 300.000 K", "rho = 2.0 kg/m^3", "", " p = 83.763 kPa"},
               " V ",
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.717449 m^3/kmol\r\n");
}

TEST(TRhoReport, IdealGasHasNoTable) {
    Reported c(eosIdealGas);
    ExpectGood(c.Run(kindTRho, RowTRho(300, 2)), {"T = 300.000 K", "rho = 2.0 kg/m^3", "", " p = 85.831 kPa"},
               " V ",
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B = 0 m^3/kmol\r\n");
}

TEST(TRhoReport, DenserThanTheCoVolumeFails) {
    Reported c;
    ExpectFailed(c.Run(kindTRho, RowTRho(300, 900)), {"T = 300.000 K", "rho = 900.0 kg/m^3", "", ""},
                 "                         Meldung von Sub CalcBatch: (v <= b)\r\n", "ERROR1");
}

TEST(TRhoReport, UnderThePartialMethodTheNoteStaysEmpty) {
    Reported c;
    c.TakePartial(true);
    ExpectFailed(c.Run(kindTRho, RowTRho(300, 900)), {"T = 300.000 K", "rho = 900.0 kg/m^3", "", ""},
                 "                         Meldung von Sub CalcBatch: (v <= b)\r\n");
}

TEST(TRhoReport, VirialVolumeBelowItsCoefficientFails) {
    Reported c(virialByHand);
    c.model.eos.b0 = 0.1;
    c.model.eos.nF = 1;
    ExpectFailed(c.Run(kindTRho, RowTRho(300, 900)), {"T = 300.000 K", "rho = 900.0 kg/m^3", "", ""},
                 "                         Meldung von Sub CalcBatch:, keine p-Lösung (v < b)\r\n");
}

TEST(TRhoReport, MissingTemperature) {
    Reported c;
    ExpectFailed(c.Run(kindTRho, RowTRho(0, 5)), {"kein T in diesem Datensatz", "", "", ""});
}

TEST(TRhoReport, MissingDensity) {
    Reported c;
    ExpectFailed(c.Run(kindTRho, RowTRho(300, 0)), {"T = 300.000 K", "kein rho in diesem Datensatz", "", ""});
}

TEST(TRhoReport, MissingDensityOfTheLiquid) {
    Reported c;
    ExpectFailed(c.Run(kindTRhoLiquid, RowTRho(300, 5)),
                 {"T = 300.000 K", "kein rho in diesem Datensatz", "", ""});
}

TEST(TRhoReport, AVapourPressureTooSmallForANumberFails) {
    Reported c;
    ExpectFailed(c.Run(kindTRho, RowTRho(90, 5), {.warn = false}),
                 {"T = 90.000 K", "rho = 5.0 kg/m^3", "", ""},
                 "                         Meldung von Sub CalcBatch: (E0)\r\n");
}

TEST(TRhoReport, DecimalCommaReachesTheMixture) {
    Reported c;
    c.style.decimal = ',';
    ExpectGood(c.Run(kindTRho, RowTRho(350, 100)),
               {"T = 350,000 K", "rho = 100,0 kg/m^3", "", " Dampfdruck p/kPa = 946,366"}, "V+L",
               "                      Verdampfungsgrad y(V) = 0,19759312\r\n"
               "\r\n"
               "Dichte           rho/ (kg/m^3)  = 516,2078            23,39606\r\n"
               "Volumen          v/ (m^3/kmol)  = 0,1125946           2,484273\r\n"
               "\r\n"
               "molare globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "=========================================================\r\n"
               "\r\n"
               "Dichte rho        =  100  kg/m^3\r\n"
               "Volumen v         =  0,581222  m^3/kmol\r\n"
               "Enthalpie h       = -10193,3  kJ/kmol\r\n"
               "Entropie s        = -44,97554  kJ/(kmol K)\r\n"
               "Freie Enthalpie g =  5548,136  kJ/kmol\r\n"
               "Innere Energie u  = -10743,35  kJ/kmol\r\n"
               "Freie Energie a   =  4998,087  kJ/kmol\r\n"
               "Exergie eH        =  3285,237  kJ/kmol\r\n"
               "Exergie eU        =  2794,081  kJ/kmol\r\n"
               "Wärmekapazität cp =  160,3112  kJ/(kmol K)\r\n"
               "Wärmekapazität cV =  113,9729  kJ/(kmol K)\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
               "==============================================================\r\n"
               "  A = 1698,25955266149\r\n"
               "  B = 7,24410574720806E-02\r\n"
               "  C =-3,00060684775846E-02\r\n"
               "  D = 0,174888183421746\r\n");
}

TEST(TRhoReport, BothPhasesOfSoaveRedlichKwong) {
    Reported c(eosSoaveRedlichKwong);
    ExpectGood(c.Run(kindTRho, RowTRho(350, 100)),
               {"T = 350.000 K", "rho = 100.0 kg/m^3", "", " Dampfdruck p/kPa = 958.314"}, "V+L",
               "                      Verdampfungsgrad y(V) = 0.19290754\r\n"
               "\r\n"
               "Dichte           rho/ (kg/m^3)  = 454.8087            23.45259\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1277948           2.478284\r\n"
               "\r\n"
               "molare globale Funktionen  z = y(V) z(V) + (1 - y(V) z(L)\r\n"
               "=========================================================\r\n"
               "\r\n"
               "Dichte rho        =  100  kg/m^3\r\n"
               "Volumen v         =  0.581222  m^3/kmol\r\n"
               "Enthalpie h       = -10340.91  kJ/kmol\r\n"
               "Entropie s        = -45.57597  kJ/(kmol K)\r\n"
               "Freie Enthalpie g =  5610.68  kJ/kmol\r\n"
               "Innere Energie u  = -10897.9  kJ/kmol\r\n"
               "Freie Energie a   =  5053.687  kJ/kmol\r\n"
               "Exergie eH        =  3313.315  kJ/kmol\r\n"
               "Exergie eU        =  2815.214  kJ/kmol\r\n"
               "Wärmekapazität cp =  163.7284  kJ/(kmol K)\r\n"
               "Wärmekapazität cV =  115.8618  kJ/(kmol K)\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS Soave / Redlich / Kwong):\r\n"
               "======================================================================\r\n"
               "  A = 1619.88202090509\r\n"
               "  B = 8.06765464664274E-02\r\n"
               "  C = 0\r\n"
               "  D = 8.06765464664274E-02\r\n");
}

} // namespace
} // namespace orva::test
