// SPDX-License-Identifier: GPL-3.0-or-later
// Reports of the database functions, character by character. The values were computed apart from the
// program, with 40 digits, from the formulas of the equations and coefficients rounded to single precision;
// values of heat capacities are single precision.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(DatabaseReport, LiquidDensity) {
    Reported c;
    ExpectGood(c.Run(kindLiquidDensity, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  rho(L) =  Fu(T)",
                " rho(L) =  572.472873018813 kg/m^3"},
               "   ",
               "            v  /m^3/kmol = 0.101528\r\n"
               "            v  /m^3/kg   = 0.001747\r\n"
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 424\r\n");
}

TEST(DatabaseReport, LiquidDensityOfASinglePoint) {
    Reported c;
    c.model.substance.rhoLiquid = {950, -1.25F, 298.75F, 0, 0, 0, 0, 0, 0, 0};
    ExpectGood(c.Run(kindLiquidDensity, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  rho(L) =  Fu(T)",
                " rho(L) =  575 kg/m^3"},
               "   ",
               "            v  /m^3/kmol = 0.101082\r\n"
               "            v  /m^3/kg   = 0.001739\r\n"
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 289\r\n"
               " T(Hi)/K = 309\r\n");
}

TEST(DatabaseReport, VaporisationEnthalpy) {
    Reported c;
    ExpectGood(c.Run(kindVaporisationDb, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  delta(LV)h =  Fu(T)",
                " delta(LV)h =  20401.6243748313 kJ/kmol"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 424\r\n");
}

TEST(DatabaseReport, SpecificVaporisationEnthalpy) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectGood(c.Run(kindVaporisationDb, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  delta(LV)h =  Fu(T)",
                " delta(LV)h =  351.012597089348 kJ/kg"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 424\r\n");
}

TEST(DatabaseReport, IdealGasPolynomial) {
    Reported c;
    ExpectGood(c.Run(kindIdealGasCp, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  cp_IdGas =  Fu(T)",
                " cp_IdGas =  98.5244038563235 kJ/(kmol/)"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 200\r\n"
               " T(Hi)/K = 1500\r\n");
}

TEST(DatabaseReport, IdealGasSinhCoshByR) {
    Reported c;
    c.model.selection.cpModel = 2;
    c.options.unitBasis = 1;
    ExpectGood(c.Run(kindIdealGasCp, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  cp_IdGas =  Fu(T)",
                " cp_IdGas =  11.8875456399629 "},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 200\r\n"
               " T(Hi)/K = 1500\r\n");
}

TEST(DatabaseReport, LiquidHeatCapacity) {
    Reported c;
    ExpectGood(c.Run(kindLiquidCp, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  cp(L) =  Fu(T)",
                " cp(L) =  185 kJ/(kmol/)"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 390\r\n");
}

TEST(DatabaseReport, LiquidHeatCapacityByRT) {
    Reported c;
    c.options.unitBasis = 2;
    ExpectGood(c.Run(kindLiquidCp, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  cp(L) =  Fu(T)",
                " cp(L) =  7.46277339754114E-02 1/K"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 390\r\n");
}

TEST(DatabaseReport, SolidHeatCapacity) {
    Reported c;
    ExpectGood(c.Run(kindSolidCp, RowT(100)),
               {"T = 100.000 K", "", " Berechnung aus der Datenbankfunktion  cp(S) =  Fu(T)",
                " cp(S) =  120 kJ/(kmol/)"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 20\r\n"
               " T(Hi)/K = 134\r\n");
}

TEST(DatabaseReport, SpecificSolidHeatCapacity) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectGood(c.Run(kindSolidCp, RowT(100)),
               {"T = 100.000 K", "", " Berechnung aus der Datenbankfunktion  cp(S) =  Fu(T)",
                " cp(S) =  2.06461558534944 kJ/(kg K)"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 20\r\n"
               " T(Hi)/K = 134\r\n");
}

TEST(DatabaseReport, FrostKalkwarf) {
    Reported c;
    ExpectGood(c.Run(kindFrostKalkwarf, RowT(300)),
               {"T = 300.000 K", "",
                " Berechnung aus der Datenbankfunktion  p(LV), erw. Frost-Kalkwarf =  Fu(T)",
                " p(LV), erw. Frost-Kalkwarf =  255.700887641638 kPa"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 425\r\n");
}

TEST(DatabaseReport, Wagner) {
    Reported c;
    ExpectGood(c.Run(kindWagner, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  p(LV), Wagner =  Fu(T)",
                " p(LV), Wagner =  266.524686633796 kPa"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 158\r\n"
               " T(Hi)/K = 425\r\n");
}

TEST(DatabaseReport, ReducedWagnerPressure) {
    Reported c;
    c.options.volumeBasis = 2;
    ExpectGood(c.Run(kindWagner, RowT(300)),
               {"T = 300.000 K", "", " Berechnung aus der Datenbankfunktion  p(LV), Wagner =  Fu(T)",
                " p(LV), Wagner =  7.02119798703861E-02 kPa"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 158\r\n"
               " T(Hi)/K = 425\r\n");
}

TEST(DatabaseReport, AntoineAtLowPressure) {
    Reported c;
    ExpectGood(c.Run(kindAntoineLow, RowT(280)),
               {"T = 280.000 K", "", " Berechnung aus der Datenbankfunktion  p(LV), Antoine (Lo-p) =  Fu(T)",
                " p(LV), Antoine (Lo-p) =  129.221667178853 kPa"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 201\r\n"
               " T(Hi)/K = 292\r\n");
}

TEST(DatabaseReport, AntoineAtHighPressure) {
    Reported c;
    ExpectGood(c.Run(kindAntoineHigh, RowT(350)),
               {"T = 350.000 K", "", " Berechnung aus der Datenbankfunktion  p(LV), Antoine (Hi-p) =  Fu(T)",
                " p(LV), Antoine (Hi-p) =  937.793319722992 kPa"},
               "   ",
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 273\r\n"
               " T(Hi)/K = 425\r\n");
}

TEST(DatabaseReport, SolidDensity) {
    Reported c;
    ExpectGood(c.Run(kindSolidDensity, RowT(100)),
               {"T = 100.000 K", "", " Berechnung aus der Datenbankfunktion  rho(S) =  Fu(T)",
                " rho(S) =  690 kg/m^3"},
               "   ",
               "            v  /m^3/kmol = 0.084235\r\n"
               "            v  /m^3/kg   = 0.001449\r\n"
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 90\r\n"
               " T(Hi)/K = 134\r\n");
}

TEST(DatabaseReport, KindWithoutAFunction) {
    Reported c;
    ExpectGood(c.Run(kindWithoutFunction, RowT(300)), {"", "", "", ""}, "   ", "");
}

TEST(DatabaseReport, MissingTemperature) {
    Reported c;
    ExpectFailed(c.Run(kindWagner, RowT(0)), {"kein T in diesem Datensatz", "", "", ""});
}

TEST(DatabaseReport, DecimalCommaInValueAndVolumes) {
    Reported c;
    c.style.decimal = ',';
    ExpectGood(c.Run(kindLiquidDensity, RowT(300)),
               {"T = 300,000 K", "", " Berechnung aus der Datenbankfunktion  rho(L) =  Fu(T)",
                " rho(L) =  572,472873018813 kg/m^3"},
               "   ",
               "            v  /m^3/kmol = 0,101528\r\n"
               "            v  /m^3/kg   = 0,001747\r\n"
               "\r\n"
               " Die Funktion ist gültig innerhalb folgender Temperaturgrenzen:\r\n"
               " T(Lo)/K = 135\r\n"
               " T(Hi)/K = 424\r\n");
}

} // namespace
} // namespace orva::test
