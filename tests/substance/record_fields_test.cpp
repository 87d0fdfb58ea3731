// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/record_fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

namespace orva {
namespace {

// The value table, written down a second time: first position of each run and the names in it.
const std::map<int, std::vector<std::string>> expectedRuns = {
    {0, {"molarMass"}},
    {6, {"Tc", "pc", "rhoc", "omega", "Tb", "extra1", "rhoLb"}},
    {13,
     {"rhoLiquid.r1", "rhoLiquid.r2", "rhoLiquid.r3", "rhoLiquid.r4", "rhoLiquid.r5", "rhoLiquid.r6",
      "rhoLiquid.r7", "rhoLiquid.Tcr", "rhoLiquid.Tlo", "rhoLiquid.Thi"}},
    {23,
     {"frostKalkwarf.cExtra", "frostKalkwarf.c1", "frostKalkwarf.c2", "frostKalkwarf.c3", "frostKalkwarf.c4",
      "frostKalkwarf.c5", "frostKalkwarf.c6", "frostKalkwarf.c7", "frostKalkwarf.c8", "frostKalkwarf.c9",
      "frostKalkwarf.Tlo", "frostKalkwarf.Thi"}},
    {36, {"antoineLow.A", "antoineLow.B", "antoineLow.C", "antoineLow.Tlo", "antoineLow.Thi"}},
    {42, {"antoineHigh.A", "antoineHigh.B", "antoineHigh.C", "antoineHigh.Tlo", "antoineHigh.Thi"}},
    {47,
     {"wagner.wExtra", "wagner.w1", "wagner.w2", "wagner.w3", "wagner.w4", "wagner.w5", "wagner.w6",
      "wagner.w7", "wagner.w8", "wagner.w9", "wagner.w10", "wagner.Tlo", "wagner.Thi"}},
    {61,
     {"cpPolynomial.C0", "cpPolynomial.C1", "cpPolynomial.C2", "cpPolynomial.C3", "cpPolynomial.C4",
      "cpPolynomial.Tlo", "cpPolynomial.Thi"}},
    {69,
     {"cpSinhCosh.q0", "cpSinhCosh.q1", "cpSinhCosh.q2", "cpSinhCosh.q3", "cpSinhCosh.q4", "cpSinhCosh.Tlo",
      "cpSinhCosh.Thi"}},
    {77,
     {"cpLiquid.C0", "cpLiquid.C1", "cpLiquid.C2", "cpLiquid.C3", "cpLiquid.C4", "cpLiquid.Tlo",
      "cpLiquid.Thi"}},
    {85, {"hFormation"}},
    {87, {"gFormation", "gFormationAlt", "sConventional"}},
    {91, {"Ttrip", "ptrip"}},
    {94, {"extra2"}},
    {96,
     {"hVapFunction.A", "hVapFunction.B", "hVapFunction.C", "hVapFunction.D", "hVapFunction.E",
      "hVapFunction.F", "hVapFunction.Tcr", "hVapFunction.Tlo", "hVapFunction.Thi", "hVapRef", "TVapRef"}},
    {110,
     {"cpSolid.C0", "cpSolid.C1", "cpSolid.C2", "cpSolid.C3", "cpSolid.C4", "cpSolid.Tlo", "cpSolid.Thi"}},
    {118, {"rhoSolid.s1", "rhoSolid.s2", "rhoSolid.s3", "rhoSolid.s4", "rhoSolid.Tlo", "rhoSolid.Thi"}},
};

TEST(RecordFields, NameEveryPositionOfTheValueTable) {
    std::map<int, std::string> expected;
    for (const auto& [first, names] : expectedRuns) {
        for (std::size_t i = 0; i < names.size(); ++i)
            expected[first + static_cast<int>(i)] = names[i];
    }
    std::map<int, std::string> table;
    for (const RecordField& field : RecordFields())
        table[field.position] = field.name;
    EXPECT_EQ(table, expected);
    EXPECT_EQ(RecordFields().size(), expected.size());
}

TEST(RecordFields, StandInTheOrderOfPositions) {
    int last = -1;
    for (const RecordField& field : RecordFields()) {
        EXPECT_GT(field.position, last) << field.name;
        last = field.position;
    }
}

TEST(RecordFields, EachSetsTheValueThatItGetsAndNoOther) {
    SubstanceData substance;
    for (const RecordField& field : RecordFields())
        field.set(substance, static_cast<float>(field.position + 1000));
    for (const RecordField& field : RecordFields())
        EXPECT_EQ(field.get(substance), field.position + 1000) << field.name;
}

TEST(RecordFields, LeadToTheFieldsOfTheSubstance) {
    SubstanceData s;
    for (const RecordField& field : RecordFields())
        field.set(s, static_cast<float>(field.position));
    EXPECT_EQ(s.Tc, 6);
    EXPECT_EQ(s.rhoLb, 12);
    EXPECT_EQ(s.rhoLiquid.Tcr, 20);
    EXPECT_EQ(s.frostKalkwarf.cExtra, 23);
    EXPECT_EQ(s.frostKalkwarf.c9, 32);
    EXPECT_EQ(s.antoineLow.C, 38);
    EXPECT_EQ(s.antoineHigh.Thi, 46);
    EXPECT_EQ(s.wagner.wExtra, 47);
    EXPECT_EQ(s.wagner.w10, 57);
    EXPECT_EQ(s.cpPolynomial.C4, 65);
    EXPECT_EQ(s.cpSinhCosh.q2, 71);
    EXPECT_EQ(s.cpLiquid.Tlo, 82);
    EXPECT_EQ(s.hFormation, 85);
    EXPECT_EQ(s.gFormationAlt, 88);
    EXPECT_EQ(s.ptrip, 92);
    EXPECT_EQ(s.extra2, 94);
    EXPECT_EQ(s.hVapFunction.F, 101);
    EXPECT_EQ(s.TVapRef, 106);
    EXPECT_EQ(s.cpSolid.C0, 110);
    EXPECT_EQ(s.rhoSolid.Thi, 123);
}

TEST(RecordFields, AreLimitsWhereTheNameEndsInTloOrThi) {
    for (const RecordField& field : RecordFields())
        EXPECT_EQ(field.isLimit, field.name.ends_with(".Tlo") || field.name.ends_with(".Thi")) << field.name;
}

TEST(RecordFields, TruncateLimitsTowardsZero) {
    SubstanceData substance;
    const auto set = [&substance](float value) {
        for (const RecordField& field : RecordFields()) {
            if (field.name == "wagner.Tlo")
                field.set(substance, value);
        }
        return substance.wagner.Tlo;
    };
    EXPECT_EQ(set(273.99F), 273);
    EXPECT_EQ(set(-1.9F), -1);
    EXPECT_EQ(set(32767.5F), 32767);
    EXPECT_EQ(set(32768.0F), 0);
}

TEST(RecordFields, KnowWhichLimitsFit) {
    EXPECT_TRUE(FitsLimit(32767.9F));
    EXPECT_TRUE(FitsLimit(-32768.9F));
    EXPECT_FALSE(FitsLimit(32768.0F));
    EXPECT_FALSE(FitsLimit(-32769.0F));
    EXPECT_FALSE(FitsLimit(NAN));
    EXPECT_FALSE(FitsLimit(INFINITY));
}

TEST(RecordFields, FindAPositionByName) {
    EXPECT_EQ(RecordPosition("wagner.w1"), 48);
    EXPECT_EQ(RecordPosition("TVapRef"), 106);
    EXPECT_EQ(RecordPosition("wagner"), -1);
    EXPECT_EQ(RecordPosition(""), -1);
}

} // namespace
} // namespace orva
