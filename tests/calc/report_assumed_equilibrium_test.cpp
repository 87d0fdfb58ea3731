// SPDX-License-Identifier: GPL-3.0-or-later
// Reports for a temperature and pressure that the user declared to describe equilibrium, character by
// character. The numbers were computed apart from the program: volumes as polynomial roots of the cubic
// equation, saturation by equal fugacities, residual functions from the Helmholtz energy by numerical
// differentiation, all with 40 digits; the columns were laid out by the widths of the fields. The
// rectilinear diameter and the Rackett form were evaluated by hand.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(AssumedEquilibriumReport, AssumedEquilibriumByTheDiameter) {
    Reported c;
    c.TakePartial(true);
    c.state.AssumeEquilibrium = true;
    ExpectGood(c.Run(kindTP, RowTP(300, 257)),
               {"T = 300.000 K", "p = 257.000 kPa", "3 V-Lösungen der EOS", ""}, "V+L",
               "            nach BENSON-Methode:\r\n"
               "Dichte           rho/ (kg/m^3)  = 570.9608            6.458881\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1017972           8.998803\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(AssumedEquilibriumReport, AssumedEquilibriumByTheDatabase) {
    Reported c;
    c.TakePartial(false);
    c.state.AssumeEquilibrium = true;
    ExpectGood(c.Run(kindTP, RowTP(300, 257)),
               {"T = 300.000 K", "p = 257.000 kPa", "3 V-Lösungen der EOS", ""}, "V+L",
               "            nach Datenbankgleichung rho(T):\r\n"
               "Dichte           rho/ (kg/m^3)  = 572.4729            6.458881\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1015283           8.998803\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(AssumedEquilibriumReport, AssumedEquilibriumOfAVirialRow) {
    Reported c(virialPitzerCurl);
    c.TakePartial(true);
    c.state.AssumeEquilibrium = true;
    ExpectGood(c.Run(kindTP, RowTP(300, 257)),
               {"T = 300.000 K", "p = 257.000 kPa", "EOS nur für die V-Phase anwendbar!",
                " Virialkoeff. B = -0.717449  m^3/kmol"},
               "V+L",
               "            nach BENSON-Methode:\r\n"
               "Dichte           rho/ (kg/m^3)  = 570.9531            6.466497\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1017985           8.988205\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.717449 m^3/kmol\r\n");
}

} // namespace
} // namespace orva::test
