// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "calc/result_list_fixture.h"

// The expected lines were set by hand under this ruler, column 0 being the first character of a line:
//             0         1         2         3         4         5         6         7
//             0123456789012345678901234567890123456789012345678901234567890123456789012345
// heads         3     9          20          32            46           59
// values          4    9          20          32            46            60
// A number takes a blank or its minus sign at its tab stop, so that its digits begin one column further on.

namespace orva::test {
namespace {

const std::string doubleRule = std::string(70, '=');
const std::string blanks13 = std::string(13, ' ');
const std::string noMeans = doubleRule + "\r\narithmet. mean of ABS(%-deviations):\r\n" + blanks13 + blanks13
                            + blanks13 + blanks13 + blanks13 + "\r\n\n\n";

TEST(ResultListText, ThreePointsOfTAndP) {
    ListOfResults of;
    of.Add(Given(300, 100, 2.5F), Calculated(" V ", 0, 0, 2.625F));
    of.Add(Given(310, 101.325, 0, 600), Calculated(" L ", 0, 0, 0, 570));
    of.Add(Given(320.5, 5000, 4, 500), Calculated("V+L", 0, 0, 4.5F, 500));
    // rho(V): 2.625/2.5 = 105 %, 4.5/4 = 112.5 %, mean 8.75; rho(L): 570/600 = 95 %, 500/500, mean 2.5
    EXPECT_EQ(of.Text(), FileLines({
                             "                                                           21.11.2026",
                             "                    ORVA Results of Calculation",
                             "",
                             "   Substance            : n-Butan",
                             "   Calculation          :  T, p => rho",
                             "   model                : CEOS Peng / Robinson; Wagner",
                             "   Number of Data Sets  : 3",
                             "======================================================================",
                             "#        T(exp)     p(exp)      rhoV(exp)     rhoL(exp)    delta(LV)h(exp)",
                             "   phase T(calc)    p(calc)     rhoV(calc)    rhoL(calc)   delta(LV)h(calc)",
                             "         delta T    delta p     delta rhoV    delta rhoL   delta(LV)h",
                             "----------------------------------------------------------------------",
                             "           K         kPa           kg/m^3        kg/m^3      kJ/kmol",
                             "======================================================================",
                             " 1        300        100         2.5           0             0 ",
                             "     V                           2.625 ",
                             "                                 0.125 ",
                             "                                (5. %)",
                             "----------------------------------------------------------------------",
                             " 2        310        101.325     0             600           0 ",
                             "     L                                         570 ",
                             "                                              -30 ",
                             "                                              (-5. %)",
                             "----------------------------------------------------------------------",
                             " 3        320.5      5000        4             500           0 ",
                             "    V+L                          4.5           500 ",
                             "                                 0.5           0 ",
                             "                                (12.5 %)",
                             "======================================================================",
                             "arithmet. mean of ABS(%-deviations):",
                             "                                8.75%         2.5%             ",
                         }) + "\n\n");
}

TEST(ResultListText, SaturationByTheEquationOfState) {
    ListOfResults of;
    of.list.kind = kindSaturationPressure;
    of.list.title = " T => p(LV) (Globalberechnung)";
    of.Add(Given(300, 250, 6, 570, 21000), Calculated("V+L", 0, 257.5F, 6.75F, 571.425F, 21210.4F));
    const std::string text = of.Text();
    EXPECT_EQ(text.substr(0, text.find('=', text.find("Sets"))),
              FileLines({
                  "                                                           21.11.2026",
                  "                    ORVA Results of Calculation",
                  "",
                  "   Substance            : n-Butan",
                  "   Calculation          :  T => p(LV) (Globalberechnung)",
                  "                          Enthalpy of Vaporization (using EOS)",
                  "   model                : CEOS Peng / Robinson; Wagner",
                  "   Number of Data Sets  : 1",
              }));
    // 571.425 has no exact single; the enthalpies are whole numbers
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        300        250         6             570           21000 ",
                             "    V+L              257.5       6.75          571.425       21210 ",
                             "                     7.5         0.75          1.424988      210 ",
                             "                    (3. %)      (12.5 %)      (.25 %)       (1. %)",
                             "======================================================================",
                             "arithmet. mean of ABS(%-deviations):",
                             "                    3%          12.5%         0.25%         1%",
                         }) + "\n\n");
}

TEST(ResultListText, PartialSaturationNamesTheVapourPressureEquationAndTheFile) {
    ListOfResults of;
    of.list.kind = kindSaturationTemperature;
    of.list.title = " p => T(LV) (Partialberechnung)";
    of.list.useGlobal = false;
    of.list.batchFile = "C:\\Daten\\Butan.BAQ";
    of.Add(Given(0, 250), Calculated("V+L", 300.5F)); // nothing to compare with
    const std::string text = of.Text();
    EXPECT_EQ(text.substr(0, text.find('=', text.find("Name of"))),
              FileLines({
                  "                                                           21.11.2026",
                  "                    ORVA Results of Calculation",
                  "",
                  "   Substance            : n-Butan",
                  "   Calculation          :  p => T(LV) (Partialberechnung)",
                  "                          (BENSON-Methode)",
                  "   model                : CEOS Peng / Robinson; Wagner",
                  "   Vapour Pressure Equation: Wagner",
                  "   Number of Data Sets  : 1",
                  "   Name of Batchfile    : C:\\Daten\\Butan.BAQ",
              }));
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        0          250         0             0             0 ",
                             "    V+L   300.5 ",
                             "",
                             "",
                         }) + noMeans);
}

TEST(ResultListText, WithoutAnEquationOfStateOnlyTheVapourPressureEquationIsNamed) {
    ListOfResults of;
    of.list.eos = -1;
    const std::string text = of.Text();
    EXPECT_EQ(text.find("model"), std::string::npos);
    EXPECT_NE(text.find("\r\n   Vapour Pressure Equation: Wagner\r\n"), std::string::npos);
}

TEST(ResultListText, MethodOfTheVaporisationEnthalpyIsNamedAtSaturationOnly) {
    ListOfResults of;
    of.list.useGlobal = false;
    EXPECT_EQ(of.Text().find("BENSON"), std::string::npos);
    of.list.useGlobal = true;
    EXPECT_EQ(of.Text().find("Enthalpy of"), std::string::npos);
}

TEST(ResultListText, FunctionsOfTAndP) {
    ListOfResults of;
    of.list.kind = kindFunctions;
    ResultRecord record = Calculated(" L ", 0, 0, 0, 570);
    record.h = -21000.5F;
    record.s = -85.25F;
    record.g = 4574.5F;
    record.eH = 4500;
    record.eU = 0.03125F;
    of.Add(Given(300, 500), record);
    of.Add(Given(310, 500), {});
    of.Add(Given(320, 500), record);
    of.list.printFunctions = true; // nothing follows the data sets
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        300        500         0             0             0 ",
                             "     L ",
                             "",
                             "          Enthalpy        h/kJ/kmol     =-21000.5 ",
                             "          Entropy         s/kJ/(kmol*K) =-85.25 ",
                             "          Gibbs Enthalpy  g/kJ/kmol     = 4574.5 ",
                             "          Exergy of H     e/kJ/kmol     = 4500 ",
                             "          Exergy of U     e/kJ/kmol     = 0.03125 ",
                             " 3        320        500         0             0             0 ",
                             "     L ",
                             "",
                             "          Enthalpy        h/kJ/kmol     =-21000.5 ",
                             "          Entropy         s/kJ/(kmol*K) =-85.25 ",
                             "          Gibbs Enthalpy  g/kJ/kmol     = 4574.5 ",
                             "          Exergy of H     e/kJ/kmol     = 4500 ",
                             "          Exergy of U     e/kJ/kmol     = 0.03125 ",
                         }));
}

TEST(ResultListText, WhereEveryRowFailsOnlyHeadAndEmptyMeansAreLeft) {
    ListOfResults of;
    of.Add(Given(300, 100), {});
    of.Add(Given(310, 100), {});
    EXPECT_EQ(of.Body(), noMeans);
    EXPECT_NE(of.Text().find("Number of Data Sets  : 2\r\n"), std::string::npos);
}

TEST(ResultListText, RowsThatWereSkippedOrFailedAreLeftOutAndTheOthersKeepTheirNumbers) {
    ListOfResults of;
    BatchRow skipped = Given(290, 100);
    skipped.skip = true;
    of.Add(skipped, {});
    of.Add(Given(300, 100), Calculated(" V ", 0, 0, 2.5F));
    of.Add(skipped, Calculated(" V ", 0, 0, 2.75F)); // stepped on, behind another one that is skipped
    of.Add(Given(310, 100), {});
    EXPECT_EQ(of.Body(), FileLines({
                             " 2        300        100         0             0             0 ",
                             "     V                           2.5 ",
                             "",
                             "",
                             "----------------------------------------------------------------------",
                             " 3        290        100         0             0             0 ",
                             "     V                           2.75 ",
                             "",
                             "",
                             "----------------------------------------------------------------------",
                         }) + noMeans);
}

TEST(ResultListText, DeviationsOf500PerCentAndMoreAreNotShown) {
    ListOfResults of;
    of.list.kind = kindTRho;
    of.Add(Given(300, 100, 2), Calculated(" V ", 0, 600, 2));      // exactly 500 %
    of.Add(Given(300, 100, 2), Calculated(" V ", 0, 599.5F, 2));   // 499.5 %
    of.Add(Given(300, 1024, 2), Calculated(" V ", 0, 1, 2));       // as far below as it goes
    of.Add(Given(300, 0.5, 0.5F), Calculated(" V ", 0, 600, 600)); // two of them: see the tab stops
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        300        100         2             0             0 ",
                             "     V               600         2 ",
                             "                     500         0 ",
                             "                    (Abw.>500 %!)",
                             "----------------------------------------------------------------------",
                             " 2        300        100         2             0             0 ",
                             "     V               599.5       2 ",
                             "                     499.5       0 ",
                             "                    (499.5 %)",
                             "----------------------------------------------------------------------",
                             " 3        300        1024        2             0             0 ",
                             "     V               1           2 ",
                             "                    -1023        0 ",
                             "                    (-99.9 %)",
                             "----------------------------------------------------------------------",
                             " 4        300        0.5         0.5           0             0 ",
                             "     V               600         600 ",
                             "                     599.5       599.5 ",
                             "                    (Abw.>500 %!)",
                             "                                (Abw.>500 %!)",
                             "======================================================================",
                             "arithmet. mean of ABS(%-deviations):",
                             "                    (Abw.>500 %!)",
                             "                                (Abw.>500 %!)                          ",
                         }) + "\n\n");
}

TEST(ResultListText, ATemperatureAloneIsListedWithWhatCameOut) {
    ListOfResults of;
    of.list.kind = kindVaporisationAtT;
    of.Add(Given(300, 0), Calculated("V+L", 0, 0, 0, 0, 21234.5F)); // half to even
    of.Add(Given(305, 0, 0, 0, 21000), Calculated("V+L", 0, 0, 0, 0, 20999.6F));
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        300        0           0             0             0 ",
                             "    V+L                                                      21234 ",
                             "",
                             "",
                             "----------------------------------------------------------------------",
                             " 2        305        0           0             0             21000 ",
                             "    V+L                                                      21000 ",
                             "                                                             0 ",
                             "                                                            (. %)",
                             "======================================================================",
                             "arithmet. mean of ABS(%-deviations):",
                             blanks13 + blanks13 + blanks13 + blanks13 + "        0%",
                         }) + "\n\n");
}

TEST(ResultListText, NumbersFollowTheSystem) {
    ListOfResults of;
    of.list.style.decimal = ',';
    of.Add(Given(300.5, 100, 2.5F), Calculated(" V ", 0, 0, 2.75F));
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        300,5      100         2,5           0             0 ",
                             "     V                           2,75 ",
                             "                                 0,25 ",
                             "                                (10, %)",
                             "======================================================================",
                             "arithmet. mean of ABS(%-deviations):",
                             "                                10%                          ",
                         }) + "\n\n");
}

// 298.1234567 and its blanks are 13 characters, so that the stop of p at 20 is passed.
TEST(ResultListText, ANumberBeyondItsColumnMovesTheNextOneToANewLine) {
    ListOfResults of;
    of.Add(Given(298.1234567, 100), Calculated(" V ", 0, 0, 1.234568e-2F));
    EXPECT_EQ(of.Body(), FileLines({
                             " 1        298.1234567 ",
                             "                     100         0             0             0 ",
                             "     V                           1.234568E-02 ",
                             "",
                             "",
                         }) + noMeans);
}

} // namespace
} // namespace orva::test
