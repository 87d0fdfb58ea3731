// SPDX-License-Identifier: GPL-3.0-or-later
// The comparison of second virial coefficients, character by character. The values were computed apart from
// the program, with 40 digits: B = b - a / (R T) of each cubic equation, and the form of Pitzer and Curl.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(VirialComparisonReport, ComparesAllRowsBesideAVirialOne) {
    Reported c(virialPitzerCurl);
    ExpectGood(c.Run(kindVirialComparison, RowT(300)), {"T = 300.000 K", "", "", ""}, "   ",
               "Virialkoeffizienten-Vergleich, [B] = m^3/kmol\r\n"
               "=============================================\r\n"
               "\r\n"
               "VIRIAL-Gl. Van der Waals            {B} = -0.4402851\r\n"
               "VIRIAL-Gl. Berthelot                {B} = -0.6724674\r\n"
               "VIRIAL-Gl. Redlich / Kwong          {B} = -0.5908083\r\n"
               "VIRIAL-Gl. Soave / Redlich / Kwong  {B} = -0.6345116\r\n"
               "VIRIAL-Gl. Peng / Robinson          {B} = -0.6676398\r\n"
               "VIRIAL-Gl. Pitzer / Curl            {B} = -0.717449\r\n");
}

TEST(VirialComparisonReport, ComparesAllRowsBesideTheCubicOne) {
    Reported c;
    ExpectGood(c.Run(kindVirialComparison, RowT(500)),
               {"T = 500.000 K", "", "=> überkritische Phase (T > T(cr))", ""}, "   ",
               "Virialkoeffizienten-Vergleich, [B] = m^3/kmol\r\n"
               "=============================================\r\n"
               "\r\n"
               "VIRIAL-Gl. Van der Waals            {B} = -0.2176128\r\n"
               "VIRIAL-Gl. Berthelot                {B} = -0.167595\r\n"
               "VIRIAL-Gl. Redlich / Kwong          {B} = -0.2314014\r\n"
               "VIRIAL-Gl. Soave / Redlich / Kwong  {B} = -0.2142151\r\n"
               "VIRIAL-Gl. Peng / Robinson          {B} = -0.2496046\r\n"
               "VIRIAL-Gl. Pitzer / Curl            {B} = -0.2192318\r\n"
                   + PengRobinsonTrailer("1338.82609967514"));
}

TEST(VirialComparisonReport, MissingTemperature) {
    Reported c;
    ExpectFailed(c.Run(kindVirialComparison, RowT(0)), {"kein T in diesem Datensatz", "", "", ""});
}

} // namespace
} // namespace orva::test
