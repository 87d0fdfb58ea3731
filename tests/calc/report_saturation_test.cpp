// SPDX-License-Identifier: GPL-3.0-or-later
// Reports of vapour-liquid equilibrium, character by character. The numbers were computed apart from the
// program: volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual
// functions from the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were
// laid out by the widths of the fields. Under the global method pressure, temperature and volumes are those
// at which the search for equal areas ends: the volumes lie within 2e-6 (from T) and 8e-6 (from p) of the
// exact ones, the functions at the temperature found from p within 0.005 kJ/kg.
#include <gtest/gtest.h>

#include "calc/report_blocks.h"
#include "report_fixture.h"
#include "text/columns.h"

namespace orva::test {
namespace {

TEST(SaturationReport, GlobalPressure) {
    Reported c;
    ExpectGood(c.Run(kindSaturationPressure, RowT(350)),
               {"T = 350.000 K", "", "p(LV) aus kubischer EOS", " p(LV) = 946.366 kPa"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 516.2078            23.39606\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1125946           2.484273\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(SaturationReport, GlobalTemperature) {
    Reported c;
    ExpectGood(c.Run(kindSaturationTemperature, RowP(500)),
               {"p = 500.000 kPa", "", "T(LV) aus CEOS", " T(LV) = 323.511 K"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 564.1063            12.27238\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1030341           4.736017\r\n"
                   + PengRobinsonTrailer("1774.35092861819"));
}

TEST(SaturationReport, GlobalPressureWithSpecificVolumes) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectGood(c.Run(kindSaturationPressure, RowT(280)),
               {"T = 280.000 K", "", "p(LV) aus kubischer EOS", " p(LV) = 132.768 kPa"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 625.1774            3.467976\r\n"
               "Volumen          v/ (m^3/kg  )  = 1.599546E-03        0.2883526\r\n"
                   + PengRobinsonTrailer("1910.41236912543"));
}

TEST(SaturationReport, GlobalTemperatureWithReducedVolumes) {
    Reported c;
    c.options.volumeBasis = 2;
    ExpectGood(c.Run(kindSaturationTemperature, RowP(2000)),
               {"p = 2000.000 kPa", "", "T(LV) aus CEOS", " T(LV) = 387.109 K"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 425.3352            54.73251\r\n"
               "Volumen          v/ (V(red))  = 0.4773971           3.70993\r\n"
                   + PengRobinsonTrailer("1598.96259577456"));
}

TEST(SaturationReport, FunctionListOfBothPhases) {
    Reported c;
    c.state.FunctionList = true;
    ExpectGood(c.Run(kindSaturationPressure, RowT(350)),
               {"T = 350.000 K", "", "p(LV) aus kubischer EOS", " p(LV) = 946.366 kPa"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 516.2078            23.39606\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1125946           2.484273\r\n"
               "********************************************************************\r\n"
               "                    thermodynamische Funktionen\r\n"
               "********************************************************************\r\n"
               "\r\n"
               "Enthalpie        h/ (kJ/kmol)   = -13645.84           3827.13\r\n"
               "Entropie         s/ (kJ/kmol/K) = -54.83994           -4.917161\r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =5548.136            5548.136\r\n"
               "Innere Energie   u/ (kJ/kmol)   =-13752.4            1476.098\r\n"
               "Freie Energie    a/ (kJ/kmol)   =5441.581            3197.104\r\n"
               "Exergie von H    e/ (kJ/kmol)   =2773.768            5362.264\r\n"
               "Exergie von U    e/ (kJ/kmol)   =2678.621            3262.951\r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =169.8257            121.6739\r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =116.4413            103.9487\r\n"
               "Schallgeschw.    as/ (m/s)      =468.5243            191.9338\r\n"
               "\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(SaturationReport, FunctionListInSpecificUnits) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    c.state.FunctionList = true;
    ExpectGood(c.Run(kindSaturationTemperature, RowP(500)),
               {"p = 500.000 kPa", "", "T(LV) aus CEOS", " T(LV) = 323.511 K"}, "V+L",
               "            aus kubischer EOS:\r\n"
               "Dichte           rho/ (kg/m^3)  = 564.1063            12.27238\r\n"
               "Volumen          v/ (m^3/kg  )  = 1.772715E-03        8.148379E-02\r\n"
               "********************************************************************\r\n"
               "                    thermodynamische Funktionen\r\n"
               "********************************************************************\r\n"
               "\r\n"
               "Enthalpie        h/ (kJ/kg)     = -307.8491           28.90983\r\n"
               "Entropie         s / (kJ/(kg K) = -1.15803            -0.1170862\r\n"
               "Freie Enthalpie  g/ (kJ/kg)     =66.7868             66.78854\r\n"
               "Innere Energie   u/ (kJ/kg)     =-308.7354           -11.83206\r\n"
               "Freie Energie    a/ (kJ/kg)     =65.90044            26.04664\r\n"
               "Exergie von H    e/ (kJ/kg)     =38.60618            65.00765\r\n"
               "Exergie von U    e/ (kJ/kg)     =37.89944            32.5221\r\n"
               "Wärmekapazität   cp /(kJ/(kg K) =2.626485            1.887259\r\n"
               "Wärmekapazität   cV /(kJ/(kg K) =1.913498            1.665652\r\n"
               "Schallgeschw.    as/ (m/s)      =584.4086            200.271\r\n"
               "\r\n"
                   + PengRobinsonTrailer("1774.35092861819"));
}

TEST(SaturationReport, PressureWithoutPriorityOfTheEquationOfState) {
    Reported c;
    c.model.selection.eosPriority = false;
    const PointResult r = c.Run(kindSaturationPressure, RowT(300));
    ExpectGood(r, {"T = 300.000 K", "", "", " p(LV) = 266.525 kPa"}, "V+L",
               Line(softHyphen, 75)
                   + "\r\n"
                     "          (Dichte-Berechnung nicht möglich mit Dampfdruckgleichung!)\r\n"
                   + Line(softHyphen, 75) + "\r\n" + PengRobinsonTrailer("1846.02295705228"));
    EXPECT_EQ(r.reportColour, TextColour::Red);
}

TEST(SaturationReport, TemperatureWithoutPriorityOfTheEquationOfState) {
    Reported c;
    c.model.selection.eosPriority = false;
    const PointResult r = c.Run(kindSaturationTemperature, RowP(500));
    ExpectGood(r, {"p = 500.000 kPa", "", "", "T(LV) = 322.48 K"}, "V+L",
               Line(softHyphen, 75)
                   + "\r\n"
                     "          (Dichte-Berechnung nicht möglich mit Dampfdruckgleichung)\r\n"
                   + Line(softHyphen, 75) + "\r\n" + PengRobinsonTrailer("1777.41323644644"));
    EXPECT_EQ(r.reportColour, TextColour::Red);
}

TEST(SaturationReport, PartialPressureByTheDiameter) {
    Reported c;
    c.TakePartial(true);
    ExpectGood(c.Run(kindSaturationPressure, RowT(300)),
               {"T = 300.000 K", "", "p(LV) aus aktueller Dampfdruckgleichung:", " p(LV) = 266.525 kPa"},
               "V+L",
               "            nach BENSON-Methode:\r\n"
               "Dichte           rho/ (kg/m^3)  = 570.7005            6.719113\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1018436           8.650279\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(SaturationReport, PartialPressureByTheDatabase) {
    Reported c;
    c.TakePartial(false);
    ExpectGood(c.Run(kindSaturationPressure, RowT(300)),
               {"T = 300.000 K", "", "p(LV) aus aktueller Dampfdruckgleichung:", " p(LV) = 266.525 kPa"},
               "V+L",
               "            nach Datenbankgleichung rho(T):\r\n"
               "Dichte           rho/ (kg/m^3)  = 572.4729            6.719113\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1015283           8.650279\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(SaturationReport, PartialTemperatureByTheDiameter) {
    Reported c;
    c.TakePartial(true);
    ExpectGood(c.Run(kindSaturationTemperature, RowP(500)),
               {"p = 500.000 kPa", "", "T(LV) aus akt. Dampfdruckgleichung:", " T(LV) = 322.479 K"}, "V+L",
               "            nach BENSON-Methode:\r\n"
               "Dichte           rho/ (kg/m^3)  = 543.278             12.32844\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1069843           4.714483\r\n"
                   + PengRobinsonTrailer("1777.41323644644"));
}

TEST(SaturationReport, PartialTemperatureByTheDatabase) {
    Reported c;
    c.TakePartial(false);
    ExpectGood(c.Run(kindSaturationTemperature, RowP(500)),
               {"p = 500.000 kPa", "", "T(LV) aus akt. Dampfdruckgleichung:", " T(LV) = 322.479 K"}, "V+L",
               "            nach Datenbankgleichung rho(T):\r\n"
               "Dichte           rho/ (kg/m^3)  = 544.2153            12.32844\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1068              4.714483\r\n"
                   + PengRobinsonTrailer("1777.41323644644"));
}

TEST(SaturationReport, PartialPressureOfAVirialRow) {
    Reported c(virialPitzerCurl);
    c.TakePartial(true);
    ExpectGood(c.Run(kindSaturationPressure, RowT(300)),
               {"T = 300.000 K", "", "p(LV) aus aktueller Dampfdruckgleichung:", " p(LV) = 266.525 kPa"},
               "V+L",
               "            nach BENSON-Methode:\r\n"
               "Dichte           rho/ (kg/m^3)  = 570.6936            6.726049\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1018448           8.641357\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.717449 m^3/kmol\r\n");
}

TEST(SaturationReport, PartialTemperatureOfAVirialRow) {
    Reported c(virialPitzerCurl);
    c.TakePartial(false);
    ExpectGood(c.Run(kindSaturationTemperature, RowP(200)),
               {"p = 200.000 kPa", "", "T(LV) aus akt. Dampfdruckgleichung:", " T(LV) = 290.840 K"}, "V+L",
               "            nach Datenbankgleichung rho(T):\r\n"
               "Dichte           rho/ (kg/m^3)  = 583.3188            5.134133\r\n"
               "Volumen          v/ (m^3/kmol)  = 9.964054E-02        11.32074\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.7702339 m^3/kmol\r\n");
}

TEST(SaturationReport, PartialPressureOfTheIdealGas) {
    Reported c(eosIdealGas);
    c.TakePartial(true);
    ExpectGood(c.Run(kindSaturationPressure, RowT(280)),
               {"T = 280.000 K", "", "p(LV) aus aktueller Dampfdruckgleichung:", " p(LV) = 138.552 kPa"},
               "V+L",
               "            nach BENSON-Methode:\r\n"
               "Dichte           rho/ (kg/m^3)  = 593.3683            3.459064\r\n"
               "Volumen          v/ (m^3/kmol)  = 9.795299E-02        16.80287\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B = 0 m^3/kmol\r\n");
}

TEST(SaturationReport, WithoutAReferencePointThereAreNoDensities) {
    Reported c;
    c.state.GlobalMethod = false;
    ExpectGood(c.Run(kindSaturationPressure, RowT(300)),
               {"T = 300.000 K", "", "p(LV) aus aktueller Dampfdruckgleichung:", " p(LV) = 266.525 kPa"},
               "V+L", PengRobinsonTrailer("1846.02295705228"));
}

TEST(SaturationReport, PressureOfTheDataRow) {
    Reported c(eosPengRobinson, vpNone);
    c.TakePartial(true);
    ExpectGood(
        c.Run(kindSaturationPressure, RowTP(300, 250.5)),
        {"T = 300.000 K", "", "keine Dampfdruckgleichung verfügbar", " p(LV)(aus Datensatz) = 250.5 kPa"},
        "V+L",
        "            nach BENSON-Methode:\r\n"
        "Dichte           rho/ (kg/m^3)  = 571.1373            6.282272\r\n"
        "Volumen          v/ (m^3/kmol)  = 0.1017657           9.25178\r\n"
            + PengRobinsonTrailer("1846.02295705228"));
}

TEST(SaturationReport, TemperatureOfTheDataRow) {
    Reported c(eosPengRobinson, vpNone);
    c.TakePartial(false);
    ExpectGood(
        c.Run(kindSaturationTemperature, RowTP(301.25, 250)),
        {"p = 250.000 kPa", "", "keine Dampfdruckgleichung verfügbar", " T(LV) (aus Datensatz) = 301.25 K"},
        "V+L",
        "            nach Datenbankgleichung rho(T):\r\n"
        "Dichte           rho/ (kg/m^3)  = 570.9655            6.237068\r\n"
        "Volumen          v/ (m^3/kmol)  = 0.1017963           9.318834\r\n"
            + PengRobinsonTrailer("1842.10691253459"));
}

TEST(SaturationReport, NoPressureAnywhere) {
    Reported c(eosPengRobinson, vpNone);
    c.TakePartial(true);
    ExpectFailed(
        c.Run(kindSaturationPressure, RowT(300)),
        {"T = 300.000 K", "", "keine Dampfdruckgleichung verfügbar", "  kein p(LV) aus Datensatz verfügbar"});
}

TEST(SaturationReport, NoTemperatureAnywhere) {
    Reported c(eosPengRobinson, vpNone);
    c.TakePartial(true);
    ExpectFailed(c.Run(kindSaturationTemperature, RowP(250)),
                 {"p = 250.000 kPa", "", "keine Dampfdruckgleichung verfügbar",
                  " kein T(LV) verfügbar o. berechenbar"});
}

TEST(SaturationReport, TemperatureAboveTheCriticalOne) {
    Reported c;
    ExpectFailed(c.Run(kindSaturationPressure, RowT(430)),
                 {"T = 430.000 K > T(cr) !!!", "", "=> überkritische Phase (T > T(cr))", ""});
}

TEST(SaturationReport, PressureAboveTheCriticalOne) {
    Reported c;
    ExpectFailed(c.Run(kindSaturationTemperature, RowP(4000)),
                 {"p = 4000.000 kPa > p(cr) !!!", "", "=> überkritische L-Phase (T < T(cr), p > p(cr))", ""});
}

TEST(SaturationReport, MissingTemperature) {
    Reported c;
    ExpectFailed(c.Run(kindSaturationPressure, RowP(100)), {"kein T in diesem Datensatz", "", "", ""});
}

TEST(SaturationReport, MissingPressure) {
    Reported c;
    ExpectFailed(c.Run(kindSaturationTemperature, RowT(300)), {"kein p in diesem Datensatz", "", "", ""});
}

TEST(SaturationReport, BelowItsRangeTheEquationFails) {
    Reported c;
    c.TakePartial(true);
    c.model.substance.wagner = {};
    ExpectFailed(c.Run(kindSaturationPressure, RowT(300)), {"T = 300.000 K", "", "", ""},
                 "                         Meldung von Sub CalcBatch: (E-1)\r\n");
}

} // namespace
} // namespace orva::test
