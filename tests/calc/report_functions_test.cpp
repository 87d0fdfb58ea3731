// SPDX-License-Identifier: GPL-3.0-or-later
// Reports of the caloric functions, character by character. The numbers were computed apart from the
// program: volumes as polynomial roots of the cubic equation, saturation by equal fugacities, residual
// functions from the Helmholtz energy by numerical differentiation, all with 40 digits; the columns were
// laid out by the widths of the fields. The ideal-gas integrals are those of the polynomial, the ambient
// state is 298.15 K and 101.325 kPa.
#include <gtest/gtest.h>

#include "report_fixture.h"

namespace orva::test {
namespace {

TEST(FunctionsReport, Vapour) {
    Reported c;
    ExpectGood(c.Run(kindFunctions, RowTP(350, 500)), {"T = 350.000 K", "p = 500.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  =                     5.274339\r\n"
               "Enthalpie        h/ (kJ/kmol)   =                     4659.417\r\n"
               "Entropie         s/ (kJ/kmol/K) =                     2.042879\r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =                    3944.41\r\n"
               "Innere Energie   u/ (kJ/kmol)   =                    2022.248\r\n"
               "Freie Energie    a/ (kJ/kmol)   =                    1307.24\r\n"
               "Exergie von H    e/ (kJ/kmol)   =                    4119.416\r\n"
               "Exergie von U    e/ (kJ/kmol)   =                    2016.669\r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =                    115.3004\r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =                    103.5007\r\n"
               "Schallgeschwind. as/ (m/s)      =                    213.2701\r\n"
               "\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(FunctionsReport, Liquid) {
    Reported c;
    ExpectGood(c.Run(kindFunctions, RowTP(300, 1000)), {"T = 300.000 K", "p = 1000.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  = 9.666009E-02        \r\n"
               "Enthalpie        h/ (kJ/kmol)   = -21324.18           \r\n"
               "Entropie         s/ (kJ/kmol/K) = -78.47278           \r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =2217.656            \r\n"
               "Innere Energie   u/ (kJ/kmol)   =-21420.84           \r\n"
               "Freie Energie    a/ (kJ/kmol)   =2120.996            \r\n"
               "Exergie von H    e/ (kJ/kmol)   =2141.564            \r\n"
               "Exergie von U    e/ (kJ/kmol)   =2054.698            \r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =140.5744            \r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =106.4495            \r\n"
               "Schallgeschwind. as/ (m/s)      =705.8143            \r\n"
               "\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(FunctionsReport, UndividedFluid) {
    Reported c;
    ExpectGood(
        c.Run(kindFunctions, RowTP(500, 6000)),
        {"T = 500.000 K", "p = 6000.000 kPa", "=> überkritische Phase L = V (T > T(cr), p > p(cr))", ""},
        " L ",
        "\r\n"
        "Volumen          v/ (m^3/kmol)  = 0.4399737           0.4399737\r\n"
        "Enthalpie        h/ (kJ/kmol)   = 18637.27            18637.27\r\n"
        "Entropie         s/ (kJ/kmol/K) = 19.27002            19.27002\r\n"
        "Freie Enthalpie  g/ (kJ/kmol)   =9002.257            9002.257\r\n"
        "Innere Energie   u/ (kJ/kmol)   =15997.43            15997.43\r\n"
        "Freie Energie    a/ (kJ/kmol)   =6362.415            6362.415\r\n"
        "Exergie von H    e/ (kJ/kmol)   =12960.99            12960.99\r\n"
        "Exergie von U    e/ (kJ/kmol)   =10365.73            10365.73\r\n"
        "Wärmekapazität   cp/(kJ/kmol/K) =193.7321            193.7321\r\n"
        "Wärmekapazität   cV/(kJ/kmol/K) =141.9653            141.9653\r\n"
        "Schallgeschwind. as/ (m/s)      =204.2923            204.2923\r\n"
        "\r\n"
            + PengRobinsonTrailer("1338.82609967514"));
}

TEST(FunctionsReport, VapourInSpecificUnits) {
    Reported c;
    c.options.unitBasis = 3;
    c.options.volumeBasis = 1;
    ExpectGood(c.Run(kindFunctions, RowTP(350, 500)), {"T = 350.000 K", "p = 500.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kg  )  =                     9.074568E-02\r\n"
               "Enthalpie        h/ (kJ/kg)     =                     80.16588\r\n"
               "Entropie         s / (kJ/(kg K) =                     3.514799E-02\r\n"
               "Freie Enthalpie  g/ (kJ/kg)     =                    67.86408\r\n"
               "Innere Energie   u/ (kJ/kg)     =                    34.79304\r\n"
               "Freie Energie    a/ (kJ/kg)     =                    22.49124\r\n"
               "Exergie von H    e/ (kJ/kg)     =                    70.87508\r\n"
               "Exergie von U    e/ (kJ/kg)     =                    34.69705\r\n"
               "Wärmekapazität   cp /(kJ/(kg K) =                    1.983758\r\n"
               "Wärmekapazität   cV /(kJ/(kg K) =                    1.780743\r\n"
               "Schallgeschwind. as/ (m/s)      =                    213.2701\r\n"
               "\r\n"
                   + PengRobinsonTrailer("1698.25955266149"));
}

TEST(FunctionsReport, LiquidByR) {
    Reported c;
    c.options.unitBasis = 1;
    ExpectGood(c.Run(kindFunctions, RowTP(300, 1000)), {"T = 300.000 K", "p = 1000.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  = 9.666009E-02        \r\n"
               "Enthalpie        h/ K           = -2564.694           \r\n"
               "Entropie         s/ R           = -9.438052           \r\n"
               "Freie Enthalpie  g/ K           =266.7212            \r\n"
               "Innere Energie   u/ K           =-2576.32            \r\n"
               "Freie Energie    a/ K           =255.0957            \r\n"
               "Exergie von H    e/ K           =257.5695            \r\n"
               "Exergie von U    e/ K           =247.122             \r\n"
               "Wärmekapazität   cp/ R          =16.90711            \r\n"
               "Wärmekapazität   cV/R           =12.80286            \r\n"
               "Schallgeschwind. as/ (m/s)      =705.8143            \r\n"
               "\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(FunctionsReport, LiquidByRT) {
    Reported c;
    c.options.unitBasis = 2;
    c.options.volumeBasis = 2;
    ExpectGood(c.Run(kindFunctions, RowTP(300, 1000)), {"T = 300.000 K", "p = 1000.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (V(red))  = 0.3376885           \r\n"
               "Enthalpie        h/ (R T)       = -8.602027           \r\n"
               "Entropie         s / (1/K)      = -3.165538E-02       \r\n"
               "Freie Enthalpie  g/ (R T)       =0.8945874           \r\n"
               "Innere Energie   u/ (R T)       =-8.641019           \r\n"
               "Freie Energie    a/ (R T)       =0.8555954           \r\n"
               "Exergie von H    e/ (R T)       =0.8638924           \r\n"
               "Exergie von U    e/ (R T)       =0.8288513           \r\n"
               "Wärmekapazität   cp /(1/K)      =5.670674E-02        \r\n"
               "Wärmekapazität   cV /(1/K)      =4.294099E-02        \r\n"
               "Schallgeschwind. as/ (m/s)      =705.8143            \r\n"
               "\r\n"
                   + PengRobinsonTrailer("1846.02295705228"));
}

TEST(FunctionsReport, VirialRow) {
    Reported c(virialPitzerCurl);
    ExpectGood(c.Run(kindFunctions, RowTP(350, 500)), {"T = 350.000 K", "p = 500.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  =                     5.312463\r\n"
               "Enthalpie        h/ (kJ/kmol)   =                     4611.701\r\n"
               "Entropie         s/ (kJ/kmol/K) =                     1.878227\r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =                    3954.321\r\n"
               "Innere Energie   u/ (kJ/kmol)   =                    1955.469\r\n"
               "Freie Energie    a/ (kJ/kmol)   =                    1298.089\r\n"
               "Exergie von H    e/ (kJ/kmol)   =                    4125.435\r\n"
               "Exergie von U    e/ (kJ/kmol)   =                    2007.488\r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =                    116.5461\r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =                    104.677\r\n"
               "Schallgeschwind. as/ (m/s)      =                    215.5092\r\n"
               "\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B =-0.5076941 m^3/kmol\r\n");
}

TEST(FunctionsReport, IdealGas) {
    Reported c(eosIdealGas);
    ExpectGood(c.Run(kindFunctions, RowTP(350, 500)), {"T = 350.000 K", "p = 500.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  =                     5.820157\r\n"
               "Enthalpie        h/ (kJ/kmol)   =                     5432.402\r\n"
               "Entropie         s/ (kJ/kmol/K) =                     3.497813\r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =                    4208.168\r\n"
               "Innere Energie   u/ (kJ/kmol)   =                    2522.324\r\n"
               "Freie Energie    a/ (kJ/kmol)   =                    1298.089\r\n"
               "Exergie von H    e/ (kJ/kmol)   =                    4389.529\r\n"
               "Exergie von U    e/ (kJ/kmol)   =                    2069.178\r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =                    111.405\r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =                    103.0904\r\n"
               "Schallgeschwind. as/ (m/s)      =                    232.6078\r\n"
               "\r\n"
               "\r\n"
               "Virialkoeffizient:\r\n"
               "  B = 0 m^3/kmol\r\n");
}

TEST(FunctionsReport, DecimalCommaInTheTable) {
    Reported c;
    c.style.decimal = ',';
    ExpectGood(c.Run(kindFunctions, RowTP(350, 500)), {"T = 350,000 K", "p = 500,000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  =                     5,274339\r\n"
               "Enthalpie        h/ (kJ/kmol)   =                     4659,417\r\n"
               "Entropie         s/ (kJ/kmol/K) =                     2,042879\r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =                    3944,41\r\n"
               "Innere Energie   u/ (kJ/kmol)   =                    2022,248\r\n"
               "Freie Energie    a/ (kJ/kmol)   =                    1307,24\r\n"
               "Exergie von H    e/ (kJ/kmol)   =                    4119,416\r\n"
               "Exergie von U    e/ (kJ/kmol)   =                    2016,669\r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =                    115,3004\r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =                    103,5007\r\n"
               "Schallgeschwind. as/ (m/s)      =                    213,2701\r\n"
               "\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS Peng / Robinson):\r\n"
               "==============================================================\r\n"
               "  A = 1698,25955266149\r\n"
               "  B = 7,24410574720806E-02\r\n"
               "  C =-3,00060684775846E-02\r\n"
               "  D = 0,174888183421746\r\n");
}

TEST(FunctionsReport, VanDerWaalsVapour) {
    Reported c(eosVanDerWaals);
    ExpectGood(c.Run(kindFunctions, RowTP(400, 1000)), {"T = 400.000 K", "p = 1000.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  =                     2.996857\r\n"
               "Enthalpie        h/ (kJ/kmol)   =                     10520.62\r\n"
               "Entropie         s/ (kJ/kmol/K) =                     12.22566\r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =                    5630.353\r\n"
               "Innere Energie   u/ (kJ/kmol)   =                    7523.762\r\n"
               "Freie Energie    a/ (kJ/kmol)   =                    2633.496\r\n"
               "Exergie von H    e/ (kJ/kmol)   =                    6920.888\r\n"
               "Exergie von U    e/ (kJ/kmol)   =                    4227.687\r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =                    126.6029\r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =                    115.4063\r\n"
               "Schallgeschwind. as/ (m/s)      =                    224.6277\r\n"
               "\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS van der Waals):\r\n"
               "============================================================\r\n"
               "  A = 1388.55854782171\r\n"
               "  B = 0.116395747620851\r\n"
               "  C = 0\r\n"
               "  D = 0\r\n");
}

TEST(FunctionsReport, SoaveRedlichKwongLiquid) {
    Reported c(eosSoaveRedlichKwong);
    ExpectGood(c.Run(kindFunctions, RowTP(300, 1000)), {"T = 300.000 K", "p = 1000.000 kPa", "", ""}, " L ",
               "\r\n"
               "Volumen          v/ (m^3/kmol)  = 0.1094286           \r\n"
               "Enthalpie        h/ (kJ/kmol)   = -21593.12           \r\n"
               "Entropie         s/ (kJ/kmol/K) = -79.46031           \r\n"
               "Freie Enthalpie  g/ (kJ/kmol)   =2244.974            \r\n"
               "Innere Energie   u/ (kJ/kmol)   =-21702.55           \r\n"
               "Freie Energie    a/ (kJ/kmol)   =2135.546            \r\n"
               "Exergie von H    e/ (kJ/kmol)   =2163.721            \r\n"
               "Exergie von U    e/ (kJ/kmol)   =2065.381            \r\n"
               "Wärmekapazität   cp/(kJ/kmol/K) =144.3773            \r\n"
               "Wärmekapazität   cV/(kJ/kmol/K) =109.2024            \r\n"
               "Schallgeschwind. as/ (m/s)      =696.8129            \r\n"
               "\r\n"
               "\r\n"
               "Parameter der generalisierten kub. EOS (CEOS Soave / Redlich / Kwong):\r\n"
               "======================================================================\r\n"
               "  A = 1783.93184968755\r\n"
               "  B = 8.06765464664274E-02\r\n"
               "  C = 0\r\n"
               "  D = 8.06765464664274E-02\r\n");
}

TEST(FunctionsReport, RedlichKwongUndividedFluid) {
    Reported c(eosRedlichKwong);
    ExpectGood(
        c.Run(kindFunctions, RowTP(500, 6000)),
        {"T = 500.000 K", "p = 6000.000 kPa", "=> überkritische Phase L = V (T > T(cr), p > p(cr))", ""},
        " L ",
        "\r\n"
        "Volumen          v/ (m^3/kmol)  = 0.4291647           0.4291647\r\n"
        "Enthalpie        h/ (kJ/kmol)   = 19112.91            19112.91\r\n"
        "Entropie         s/ (kJ/kmol/K) = 20.15203            20.15203\r\n"
        "Freie Enthalpie  g/ (kJ/kmol)   =9036.901            9036.901\r\n"
        "Innere Energie   u/ (kJ/kmol)   =16537.93            16537.93\r\n"
        "Freie Energie    a/ (kJ/kmol)   =6461.913            6461.913\r\n"
        "Exergie von H    e/ (kJ/kmol)   =13165.72            13165.72\r\n"
        "Exergie von U    e/ (kJ/kmol)   =10634.21            10634.21\r\n"
        "Wärmekapazität   cp/(kJ/kmol/K) =192.9889            192.9889\r\n"
        "Wärmekapazität   cV/(kJ/kmol/K) =142.4907            142.4907\r\n"
        "Schallgeschwind. as/ (m/s)      =194.1857            194.1857\r\n"
        "\r\n"
        "\r\n"
        "Parameter der generalisierten kub. EOS (CEOS Redlich / Kwong):\r\n"
        "==============================================================\r\n"
        "  A = 1297.38766453279\r\n"
        "  B = 8.06765464664274E-02\r\n"
        "  C = 0\r\n"
        "  D = 8.06765464664274E-02\r\n");
}

} // namespace
} // namespace orva::test
