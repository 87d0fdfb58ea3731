// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "calc/result_list_fixture.h"

// The expected lines were set by hand: columns count from 0, labels stand at 5, values of the liquid at 22
// and of the vapour at 48 with the blank for their sign, heads at 26 and 52, p of the point at 18, v at 36.

namespace orva::test {
namespace {

// Every entry of the tables has a number of its own: liquid 1.., vapour 51...
ResultRecord WithFunctions(const char* phase, float T, float p) {
    ResultRecord record = Calculated(phase);
    record.T = T;
    record.p = p;
    record.v = 24.5F;
    for (std::size_t side = 0; side < 2; ++side) {
        float number = side == 0 ? 1 : 51;
        const auto fill = [&number](auto& table) {
            for (float& entry : table)
                entry = number++;
        };
        fill(record.deriv[side]); // 1 to 6
        fill(record.resid[side]); // 7 to 11
        fill(record.coeff[side]); // 12 to 21
        fill(record.mech[side]);  // 22 to 24
    }
    return record;
}

std::string FunctionsOf(const ListOfResults& of) {
    const std::string text = of.Text();
    return text.substr(text.find("\r\n\n\n\n\n\n") + 2); // behind the end of the line of means
}

const std::string title = "\n\n\n\n\nT -, p -, v - derivatives and thermodynamic functions\r\n"
                          "ÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄÄ\r\n"
                          "\r\n"
                          "----------------------------------------------------------------------\r\n"
                          "                          L-phase                   V-phase\r\n"
                          "----------------------------------------------------------------------\r\n";

TEST(ResultListFunctions, BothPhasesStandSideBySide) {
    ListOfResults of;
    of.list.printFunctions = true;
    of.Add(Given(300, 250), WithFunctions("V+L", 300, 250));
    EXPECT_EQ(FunctionsOf(of),
              title
                  + FileLines({
                      "for data set 1",
                      "T/K = 300         p/kPa = 250       v/m^3/kmol = 24.5 ",
                      "      (dp/dV) bei T:   1                         51 ",
                      "      (dp/dT) bei v:   2                         52 ",
                      "      (dV/dp) bei T:   3                         53 ",
                      "      (dV/dT) bei p:   4                         54 ",
                      "      (dT/dV) bei p:   5                         55 ",
                      "      (dT/dp) bei v:   6                         56 ",
                      "            d2p/dV2:   7                         57 ",
                      "            d2V/dT2:   10                        60 ",
                      "            d2T/dV2:   11                        61 ",
                      "----------------------------------------------------------------------",
                      "      (dT/dp) bei H:   19                        69 ",
                      "      cp/kJ/kmol/K :   21                        71 ",
                      "      cv/kJ/kmol/K :   20                        70 ",
                      "          ln (phi*):   12                        62 ",
                      "         dln phi/dT:   13                        63 ",
                      "       d2ln phi/dT2:   14                        64 ",
                      "        (s-s_idG)/R:   15                        65 ",
                      "        (h-h_idG)/R:   16                        66 ",
                      "        (g-g_idG)/R:   17                        67 ",
                      "      (cp-cp_idG)/R:   18                        68 ",
                      "----------------------------------------------------------------------",
                      "      alpha/(1/K)  :   22                        72 ",
                      "        chi/(1/kPa):   23                        73 ",
                      "       beta/(1/K)  :   24                        74 ",
                      "======================================================================",
                  }));
}

TEST(ResultListFunctions, OnePhaseKeepsItsColumn) {
    ListOfResults of;
    of.list.printFunctions = true;
    of.Add(Given(300, 100), WithFunctions(" V ", 300, 100));
    of.Add(Given(300, 500), WithFunctions(" L ", 300, 500));
    const std::string text = FunctionsOf(of);
    EXPECT_EQ(text.find(title
                        + "for data set 1\r\nT/K = 300         p/kPa = 100       v/m^3/kmol = 24.5 \r\n"
                          "      (dp/dV) bei T:                             51 \r\n"),
              0U);
    EXPECT_NE(text.find("for data set 2\r\nT/K = 300         p/kPa = 500       v/m^3/kmol = 24.5 \r\n"
                        "      (dp/dV) bei T:   1 \r\n"),
              std::string::npos);
}

TEST(ResultListFunctions, RowsWithoutAResultOrWithoutAPointAreLeftOut) {
    ListOfResults of;
    of.list.printFunctions = true;
    of.Add(Given(300, 100), WithFunctions("   ", 300, 100));
    of.Add(Given(300, 100), WithFunctions(" V ", 0, 0)); // calculated without functions
    of.Add(Given(300, 0), WithFunctions(" V ", 300, 0));
    const std::string text = FunctionsOf(of);
    EXPECT_EQ(text.find("for data set 1"), std::string::npos);
    EXPECT_EQ(text.find("for data set 2"), std::string::npos);
    EXPECT_EQ(
        text.find(title + "for data set 3\r\nT/K = 300         p/kPa = 0         v/m^3/kmol = 24.5 \r\n"),
        0U);
}

TEST(ResultListFunctions, AreNotAskedForByDefault) {
    ListOfResults of;
    of.Add(Given(300, 250), WithFunctions("V+L", 300, 250));
    EXPECT_EQ(of.Text().find("derivatives"), std::string::npos);
}

TEST(ResultListFunctions, LabelsOfTheScreenKeepTheirSquares) {
    ListOfResults of;
    of.list.printFunctions = true;
    of.Add(Given(300, 250), WithFunctions("V+L", 300, 250));
    EXPECT_EQ(of.Text().find("²"), std::string::npos);
    EXPECT_EQ(of.names.DerivativeLabels[9], "       d2p/dV²");
}

} // namespace
} // namespace orva::test
