// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "state/name_tables.h"

namespace orva {
namespace {

std::size_t Characters(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string Trimmed(std::string text) {
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

template<class Table> std::vector<std::string> AllTrimmed(const Table& table) {
    std::vector<std::string> texts;
    for (const std::string& text : table)
        texts.push_back(Trimmed(text));
    return texts;
}

template<class Table> void ExpectWidth(const Table& table, std::size_t width) {
    for (const std::string& text : table)
        EXPECT_EQ(Characters(text), width) << "\"" << text << "\"";
}

TEST(TheNameTables, PadModelNamesTo35AndDerivativeLabelsTo14Characters) {
    const NameTables tables = FillNameTables();
    ExpectWidth(tables.EosNames, 35);
    ExpectWidth(tables.VaporPressureNames, 35);
    ExpectWidth(tables.VaporizationModelNames, 35);
    ExpectWidth(tables.CpModelNames, 35);
    ExpectWidth(tables.DerivativeLabels, 14);
}

TEST(TheNameTables, ListTheEquationsOfStateWithTwoEmptyRows) {
    EXPECT_THAT(AllTrimmed(FillNameTables().EosNames),
                testing::ElementsAre("Idealgas-EOS", "", "CEOS van der Waals", "CEOS Berthelot",
                                     "CEOS Redlich / Kwong", "CEOS Soave / Redlich / Kwong",
                                     "CEOS Peng / Robinson", "CEOS Vo / Halme I", "CEOS Vo / Halme II", "",
                                     "VIRIAL-Gl. Hand-Eingabe", "VIRIAL-Gl. Van der Waals",
                                     "VIRIAL-Gl. Berthelot", "VIRIAL-Gl. Redlich / Kwong",
                                     "VIRIAL-Gl. Soave / Redlich / Kwong", "VIRIAL-Gl. Peng / Robinson",
                                     "VIRIAL-Gl. Pitzer / Curl"));
}

TEST(TheNameTables, KeepTheLeadingBlanksOfTheVapourPressureNames) {
    EXPECT_THAT(AllTrimmed(FillNameTables().VaporPressureNames),
                testing::ElementsAre("keine", "Antoine (T < Normalsiede-T)", "Antoine (T > Normalsiede-T)",
                                     "            Frost/Kalkwarf", "                    Wagner",
                                     "       August (korreliert)", "Fro/Kalk (v.d.Waals korreliert)",
                                     "Fro/Kalk (Redl./Kwong korreliert)", "Antoine  (Thompson korreliert)"));
}

TEST(TheNameTables, ListTheVaporisationAndHeatCapacityModels) {
    const NameTables tables = FillNameTables();
    EXPECT_THAT(AllTrimmed(tables.VaporizationModelNames),
                testing::ElementsAre("Gleichung Fu(T) aus Datenbank", "Chen-Korrelation",
                                     "Carruth/Kobayashi-Korrelation", "Watson-Korrelation",
                                     "aus Dampfdruckgl.+ rhoL(T)", "aus Dampfdruckgl.+ Benson",
                                     "aus kub.-EOS (Globalberechnung)"));
    EXPECT_THAT(AllTrimmed(tables.CpModelNames),
                testing::ElementsAre("(keine Gleichung vorhanden)", "Polynomansatz", "sinh/cosh-Ansatz"));
}

TEST(TheNameTables, LabelTheDerivatives) {
    const auto labels = FillNameTables().DerivativeLabels;
    EXPECT_EQ(labels[0], " (dp/dV) bei T");
    EXPECT_EQ(labels[5], " (dT/dp) bei v");
    EXPECT_EQ(labels[6], " alpha/(1/K)  ");
    EXPECT_EQ(labels[7], "   chi/(1/kPa)");
    EXPECT_EQ(labels[8], "  beta/(1/K)  ");
    EXPECT_EQ(labels[9], "       d2p/dV²");
    EXPECT_EQ(labels[10], std::string(14, ' '));
    EXPECT_EQ(labels[11], std::string(14, ' '));
    EXPECT_EQ(labels[12], "       d2V/dT²");
    EXPECT_EQ(labels[13], "       d2T/dV²");
    EXPECT_EQ(labels[14], "     ln (phi*)");
    EXPECT_EQ(labels[16], "  d2ln phi/dT²");
    EXPECT_EQ(labels[20], " (cp-cp_idG)/R");
    EXPECT_EQ(labels[21], " (dT/dp) bei H");
    EXPECT_EQ(labels[22], " cv/kJ/kmol/K ");
    EXPECT_EQ(labels[23], " cp/kJ/kmol/K ");
}

TEST(TheCodesOfVapourPressureEquations, BelongToTheirIndex) {
    const std::vector<std::string> codes = {"000", "ALP", "AHP", "FRO", "WAG", "AUG", "KFW", "KFR", "THO"};
    for (int index = 0; index <= 8; ++index) {
        EXPECT_EQ(VaporPressureCodeOf(index), codes[static_cast<std::size_t>(index)]);
        EXPECT_EQ(VaporPressureIndexOf(codes[static_cast<std::size_t>(index)]), index);
    }
}

TEST(TheCodesOfVapourPressureEquations, AreThreeZerosOutsideOfTheTable) {
    EXPECT_EQ(VaporPressureCodeOf(-1), "000");
    EXPECT_EQ(VaporPressureCodeOf(9), "000");
    EXPECT_EQ(VaporPressureCodeOf(32767), "000");
}

TEST(TheCodesOfVapourPressureEquations, AreFoundOnlyWhenWholeAndExact) {
    for (const char* code : {"", "0", "wag", "WA", "WAGN", ".WA", "LP.", "XYZ"})
        EXPECT_EQ(VaporPressureIndexOf(code), 0) << code;
}

} // namespace
} // namespace orva
