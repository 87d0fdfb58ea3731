// SPDX-License-Identifier: GPL-3.0-or-later
// Reports of the enthalpy of vaporisation, character by character. The numbers were computed apart from the
// program: volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual
// functions from the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were
// laid out by the widths of the fields. Each of the seven ways was evaluated from its formula and rounded to
// whole kJ/kmol before it was displayed.
#include <gtest/gtest.h>

#include "calc/report_blocks.h"
#include "report_fixture.h"
#include "text/columns.h"

namespace orva::test {
namespace {

TEST(VaporisationReport, DatabaseFunctionFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 1;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "", ""}, "V+L",
               "Verdampfungsenthalpie aus delta(LV)h = Fu(T) (Datenbank-Parameter)\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19051.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  59.53437)\r\n"
                     "\r\n");
}

TEST(VaporisationReport, ChenFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 2;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)),
               {"T = 320.000 K", "", "p = p(LV) von Dampfdruckgleichung:", " p(LV) = 468.682 kPa"}, "V+L",
               "Verdampfungsenthalpie aus CHEN-Korrelation\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19369.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  60.52813)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051.0\r\n");
}

TEST(VaporisationReport, CarruthAndKobayashiFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 3;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "", ""}, "V+L",
               "Verdampfungsenthalpie aus CARRUTH/KOBAYASHI-Korrelation\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19354.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  60.48125)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051.0\r\n");
}

TEST(VaporisationReport, WatsonFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 4;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "", ""}, "V+L",
               "Verdampfungsenthalpie aus WATSON-Korrelation, n = 0.38\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19449.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  60.77813)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051.0\r\n");
}

TEST(VaporisationReport, EquationAndLiquidDensityFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 5;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)),
               {"T = 320.000 K", "", "p = p(LV) von Dampfdruckgleichung:", " p(LV) = 468.682 kPa"}, "V+L",
               "Verdampfungsenthalpie aus  aktueller Dampfdruckgleichung\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19402.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  60.63125)\r\n"
                     "\r\n"
                     "\r\n"
                     "es wurden folgende Kompressibilitätsfaktoren z benutzt:\r\n"
                     "             z(L) =  1.87016510923834E-02                z(V) =  0.884799626872737\r\n"
                     "\r\n"
                     "z(V) von CEOS Peng / Robinson               \r\n"
                     "rho(L) für z(L)-Berechnung aus Datenbankfunktion rho(L) = Fu(T)\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051.0\r\n");
}

TEST(VaporisationReport, EquationAndDiameterFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 6;
    c.state.referenceDensity = {272.66F, 101.3F, 601.25F, 2.7F};
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)),
               {"T = 320.000 K", "", "p = p(LV) von Dampfdruckgleichung:", " p(LV) = 468.682 kPa"}, "V+L",
               "Verdampfungsenthalpie aus  aktueller Dampfdruckgleichung\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19401.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  60.62812)\r\n"
                     "\r\n"
                     "\r\n"
                     "es wurden folgende Kompressibilitätsfaktoren z benutzt:\r\n"
                     "             z(L) =  1.87366175478013E-02                z(V) =  0.884799626872737\r\n"
                     "\r\n"
                     "z(V) von CEOS Peng / Robinson               \r\n"
                     "rho(L) für z(L)-Berechnung nach MATHIAS/CAILLETET/BENSON\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051.0\r\n");
}

TEST(VaporisationReport, CubicEquationFromTheTemperature) {
    Reported c;
    c.model.selection.vaporization = 7;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)),
               {"T = 320.000 K", "", "p = p(LV) von kubischer EOS", " p(LV) = 455.689 kPa"}, "V+L",
               "Verdampfungsenthalpie aus CEOS Peng / Robinson               \r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19812.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  61.9125)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051.0\r\n"
                   + PengRobinsonTrailer("1784.79645835643"));
}

TEST(VaporisationReport, DatabaseFunctionFromThePressure) {
    Reported c;
    c.model.selection.vaporization = 1;
    ExpectGood(c.Run(kindVaporisationAtP, RowP(300)),
               {"p = 300.000 kPa", "", "T = T(LV) von Dampfdruckgleichung:", " T(LV) = 303.963 K"}, "V+L",
               "Verdampfungsenthalpie aus delta(LV)h = Fu(T) (Datenbank-Parameter)\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 20146.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  66.27777)\r\n"
                     "\r\n");
}

TEST(VaporisationReport, ChenFromThePressure) {
    Reported c;
    c.model.selection.vaporization = 2;
    ExpectGood(c.Run(kindVaporisationAtP, RowP(300)),
               {"p = 300.000 kPa", "", "T = T(LV) von Dampfdruckgleichung:", " T(LV) = 303.963 K"}, "V+L",
               "Verdampfungsenthalpie aus CHEN-Korrelation\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 20314.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  66.83047)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 20146.0\r\n");
}

TEST(VaporisationReport, DiameterFromThePressure) {
    Reported c;
    c.model.selection.vaporization = 6;
    c.state.referenceDensity = {272.66F, 101.3F, 601.25F, 2.7F};
    ExpectGood(c.Run(kindVaporisationAtP, RowP(300)),
               {"p = 300.000 kPa", "", "T = T(LV) von Dampfdruckgleichung:", " T(LV) = 303.963 K"}, "V+L",
               "Verdampfungsenthalpie aus  aktueller Dampfdruckgleichung\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 20460.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  67.31079)\r\n"
                     "\r\n"
                     "\r\n"
                     "es wurden folgende Kompressibilitätsfaktoren z benutzt:\r\n"
                     "             z(L) =  1.21884646595212E-02                z(V) =  0.917294209244998\r\n"
                     "\r\n"
                     "z(V) von CEOS Peng / Robinson               \r\n"
                     "rho(L) für z(L)-Berechnung nach MATHIAS/CAILLETET/BENSON\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 20146.0\r\n");
}

TEST(VaporisationReport, CubicEquationFromThePressure) {
    Reported c;
    c.model.selection.vaporization = 7;
    ExpectGood(c.Run(kindVaporisationAtP, RowP(300)),
               {"p = 300.000 kPa", "", "T = T(LV) von kubischer EOS", " T(LV) = 305.124 K"}, "V+L",
               "Verdampfungsenthalpie aus CEOS Peng / Robinson               \r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 20744.0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  67.98553)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 20071.0\r\n"
                   + PengRobinsonTrailer("1830.04871289886"));
}

TEST(VaporisationReport, SpecificEnthalpyHasTwoDecimalsBelow1000) {
    Reported c;
    c.model.selection.vaporization = 4;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "", ""}, "V+L",
               "Verdampfungsenthalpie aus WATSON-Korrelation, n = 0.38\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kg) = 334.62\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kg K)) =  1.045696)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kg) = 327.77\r\n");
}

TEST(VaporisationReport, ByR) {
    Reported c;
    c.model.selection.vaporization = 3;
    c.options.unitBasis = 1;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "", ""}, "V+L",
               "Verdampfungsenthalpie aus CARRUTH/KOBAYASHI-Korrelation\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/K = 2327.7\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/R =  7.274181)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/K = 2291.3\r\n");
}

TEST(VaporisationReport, ByRT) {
    Reported c;
    c.model.selection.vaporization = 3;
    c.options.unitBasis = 2;
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "", ""}, "V+L",
               "Verdampfungsenthalpie aus CARRUTH/KOBAYASHI-Korrelation\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(R T) = 7.81\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(1/K)) =  2.439772E-02)\r\n"
                     "\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(R T) = 7.69\r\n");
}

TEST(VaporisationReport, TheCriticalTemperatureIsRefused) {
    Reported c;
    ExpectFailed(c.Run(kindVaporisationAtT, RowT(425.125)), {"T = 425.125 K >= T(cr) !!!", "", "", ""});
}

TEST(VaporisationReport, TheCriticalPressureIsRefused) {
    Reported c;
    ExpectFailed(c.Run(kindVaporisationAtP, RowP(3796)), {"p = 3796.000 kPa >= p(cr) !!!", "", "", ""});
}

TEST(VaporisationReport, WithoutAPressureThereIsNoResult) {
    Reported c(eosPengRobinson, vpNone);
    c.model.selection.vaporization = 2;
    ExpectFailed(c.Run(kindVaporisationAtT, RowT(320)), {"T = 320.000 K", "", "kein p verfügbar", ""},
                 "kein Ergebnis erhalten\r\n");
}

TEST(VaporisationReport, WithoutATemperatureThereIsNoResult) {
    Reported c(eosPengRobinson, vpNone);
    c.model.selection.vaporization = 3;
    ExpectFailed(c.Run(kindVaporisationAtP, RowP(300)), {"p = 300.000 kPa", "", "kein T verfügbar", ""},
                 "kein Ergebnis erhalten\r\n");
}

TEST(VaporisationReport, MissingTemperature) {
    Reported c;
    ExpectFailed(c.Run(kindVaporisationAtT, RowP(100)), {"kein T in diesem Datensatz", "", "", ""});
}

TEST(VaporisationReport, DecimalCommaInTheReport) {
    Reported c;
    c.model.selection.vaporization = 5;
    c.style.decimal = ',';
    ExpectGood(c.Run(kindVaporisationAtT, RowT(320)),
               {"T = 320,000 K", "", "p = p(LV) von Dampfdruckgleichung:", " p(LV) = 468,682 kPa"}, "V+L",
               "Verdampfungsenthalpie aus  aktueller Dampfdruckgleichung\r\n" + Line(softHyphen, 70)
                   + "\r\n"
                     "                    delta(LV)h/(kJ/kmol) = 19402,0\r\n"
                     "\r\n"
                     "(Verdampfungsentropie delta(LV)s = delta(LV)h / T:\r\n"
                     "delta(LV)s/(kJ/(kmol K)) =  60,63125)\r\n"
                     "\r\n"
                     "\r\n"
                     "es wurden folgende Kompressibilitätsfaktoren z benutzt:\r\n"
                     "             z(L) =  1,87016510923834E-02                z(V) =  0,884799626872737\r\n"
                     "\r\n"
                     "z(V) von CEOS Peng / Robinson               \r\n"
                     "rho(L) für z(L)-Berechnung aus Datenbankfunktion rho(L) = Fu(T)\r\n"
                     "\r\n"
                     "Vergleich mit Datenbankfunktion: delta(LV)h/(kJ/kmol) = 19051,0\r\n");
}

} // namespace
} // namespace orva::test
