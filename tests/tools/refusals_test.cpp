// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <span>

#include "tools/mini_tables.h"

namespace orva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Fault {
    const char* name;
    const char* file;
    const char* from; // replaced in the file; nullptr to append the row `to`
    const char* to;
    const char* refusal;
};

SourceFiles Faulty(const Fault& fault) {
    return fault.from != nullptr ? MiniTablesWith(fault.file, fault.from, fault.to)
                                 : MiniTablesAnd(fault.file, fault.to);
}

// The one refusal is the expected one; RefusalTexts makes sure that nothing is built.
void ExpectRefused(std::span<const Fault> faults) {
    for (const Fault& fault : faults)
        EXPECT_THAT(RefusalTexts(Faulty(fault)), ElementsAre(fault.refusal)) << fault.name;
}

constexpr Fault rowFaults[] = {
    {"UnknownCas", "wagner.tsv", nullptr,
     "71-43-2\tBenzene\t-7\t1\t-3\t3\t-3\t6\t0\t0\t562\t4890\t300\t562\tPGL\t",
     "wagner.tsv:2: 71-43-2: no substance has this CAS number"},
    {"SecondRow", "antoine_low.tsv", nullptr, "7727-37-9\tNitrogen\t5.61947\t255.68\t266.55\t63\t84\tPGL\t",
     "antoine_low.tsv:4: 7727-37-9: second row of this substance, the first is line 3"},
    {"OtherName", "antoine_low.tsv", "\tNitrogen\t", "\tNitrogene\t",
     "antoine_low.tsv:3: 7727-37-9: name \"Nitrogene\" is not \"Nitrogen\""},
    {"NoSource", "antoine_low.tsv", "FIT:PGL", "",
     "antoine_low.tsv:3: 7727-37-9: source: source key is missing"},
    {"UnknownSource", "antoine_low.tsv", "FIT:PGL", "FIT:LB",
     "antoine_low.tsv:3: 7727-37-9: source: source key \"FIT:LB\" is not in the bibliography"},
    {"NoSourceOfAValue", "constants.tsv", "289.77\tCRC", "289.77\t",
     "constants.tsv:2: 64-19-7: Tmelt_source: source key is missing"},
    {"NoSourceOfAPoint", "constants.tsv", "23360\t298.15\tCRC", "23360\t298.15\tXX",
     "constants.tsv:2: 64-19-7: hVapRef_source: source key \"XX\" is not in the bibliography"},
    {"NoSourceOfAZero", "formation.tsv", "\t0\tCRC", "\t0\t",
     "formation.tsv:3: 7727-37-9: hFormation_source: source key is missing"},
    {"NoNumber", "antoine_low.tsv", "255.68", "255,68",
     "antoine_low.tsv:3: 7727-37-9: B: \"255,68\" is not a number"},
    {"NotFinite", "formation.tsv", "-432250", "inf",
     "formation.tsv:2: 64-19-7: hFormation: \"inf\" is not finite"},
    {"BeyondSingles", "formation.tsv", "-432250", "-1e39",
     "formation.tsv:2: 64-19-7: hFormation: \"-1e39\" is beyond the range of a single"},
    {"BrokenLimit", "antoine_low.tsv", "\t63\t", "\t63.15\t",
     "antoine_low.tsv:3: 7727-37-9: Tlo: 63.15 is not a whole number of kelvins in 16 bits"},
    {"HugeLimit", "antoine_low.tsv", "\t84\t", "\t40000\t",
     "antoine_low.tsv:3: 7727-37-9: Thi: 40000 is not a whole number of kelvins in 16 bits"},
    {"MissingCell", "antoine_low.tsv", "\t84\t", "\t",
     "antoine_low.tsv:3: 8 cells where the table has 9 columns"},
};
TEST(FaultyRows, AreRefusedWithFileLineAndReason) {
    ExpectRefused(rowFaults);
}

constexpr Fault identityFaults[] = {
    {"Number", "identity.tsv", "2\t7727", "3\t7727",
     "identity.tsv:4: 7727-37-9: number 3 stands where 2 belongs"},
    {"SecondIdentity", "identity.tsv", nullptr, "3\t64-19-7\tC2H4O2\tVinegar\tEssig\t60.052\tAW",
     "identity.tsv:5: 64-19-7: second row of this substance, the first is line 3"},
    {"WideFormula", "identity.tsv", "C2H4O2", "C100H200O1000",
     "identity.tsv:3: 64-19-7: formula: \"C100H200O1000\" has 13 bytes, the field 12"},
    {"WideName", "identity.tsv", "; Eisessig", "; Eisessig; Essigsäure, wasserfrei",
     "identity.tsv:3: 64-19-7: name_de: \"Essigsäure; Eisessig; Essigsäure, wasserfrei\" has 44 bytes, the "
     "field 40"},
    {"ForeignName", "identity.tsv", "Eisessig", "Ειςεςςιγ",
     "identity.tsv:3: 64-19-7: name_de: \"Essigsäure; Ειςεςςιγ\" cannot be written in Windows-1252"},
    {"NoMolarMass", "identity.tsv", "60.052\tAW", "\t",
     "identity.tsv:3: 64-19-7: molar_mass must be above 0"},
    {"ZeroMolarMass", "identity.tsv", "60.052", "0", "identity.tsv:3: 64-19-7: molar_mass must be above 0"},
    {"NegativeMolarMass", "identity.tsv", "60.052", "-60",
     "identity.tsv:3: 64-19-7: molar_mass must be above 0"},
};

// Faults of texts that the synonym file holds as well draw a second refusal there.
TEST(FaultyIdentities, AreRefusedWithFileLineAndReason) {
    for (const Fault& fault : identityFaults) {
        const std::vector<std::string> refusals = RefusalTexts(Faulty(fault));
        ASSERT_THAT(refusals, testing::Not(IsEmpty())) << fault.name;
        EXPECT_EQ(refusals.front(), fault.refusal) << fault.name;
    }
}

constexpr Fault valueFaults[] = {
    {"NoTc", "constants.tsv", "591.95\tCRC", "\t", "constants.tsv:2: 64-19-7: Tc must be above 0"},
    {"ZeroTc", "constants.tsv", "591.95", "0", "constants.tsv:2: 64-19-7: Tc must be above 0"},
    {"NegativePc", "constants.tsv", "5786", "-5786", "constants.tsv:2: 64-19-7: pc must be above 0"},
    {"TbAboveTc", "constants.tsv", "391.05", "691.05",
     "constants.tsv:2: 64-19-7: Tb = 691.05 K is not below Tc = 591.95 K"},
    {"LimitsInDisorder", "antoine_low.tsv", "\t63\t84", "\t84\t63",
     "antoine_low.tsv:3: 7727-37-9: Tlo = 84 K is not below Thi = 63 K"},
    {"NoLowerLimit", "antoine_low.tsv", "\t63\t84", "\t\t84",
     "antoine_low.tsv:3: 7727-37-9: Tlo must be above 0"},
    {"PressureAtTb", "antoine_low.tsv", "5.61947", "5.63",
     "antoine_low.tsv:3: 7727-37-9: Antoine equation gives 103.849 kPa at Tb = 77.355 K, not 101.325 kPa "
     "within 2 %"},
    {"PressureNearTb", "antoine_low.tsv", "5.61947\t255.68\t266.55\t63\t84", "5.63\t255.68\t266.55\t63\t73",
     "antoine_low.tsv:3: 7727-37-9: Antoine equation gives 103.849 kPa at Tb = 77.355 K, not 101.325 kPa "
     "within 2 %"},
    {"NoPressureAtTb", "wagner.tsv", nullptr,
     "7727-37-9\tNitrogen\t-6\t1\t-1\t3\t-1\t6\t0\t0\t77\t3395\t64\t84\tPGL\t",
     "wagner.tsv:2: 7727-37-9: Wagner equation has no value at Tb = 77.355 K"},
    {"NegativeDensity", "rho_liquid.tsv", "\t90\t", "\t-90\t",
     "rho_liquid.tsv:2: 7727-37-9: the liquid density is not positive at 64 K"},
    {"DensityBeyondItsReference", "rho_liquid.tsv", "\t126\t", "\t128\t",
     "rho_liquid.tsv:2: 7727-37-9: the liquid density is not positive at 127 K"},
    {"DensityThatFallsToZero", "rho_liquid.tsv", "\t0\t90\t0.286\t0.28\t", "\t1000\t-10\t0\t0\t",
     "rho_liquid.tsv:2: 7727-37-9: the liquid density is not positive at 100 K"},
};
TEST(FaultyValues, AreRefusedWithFileLineAndReason) {
    ExpectRefused(valueFaults);
}

// Tb is 77.355 K; a range that ends at 72 K does not reach it within 5 K.
TEST(VapourPressureRange, IsNotTestedBeyondFiveKelvins) {
    EXPECT_THAT(RefusalTexts(MiniTablesWith("antoine_low.tsv", "5.61947\t255.68\t266.55\t63\t84",
                                            "5.63\t255.68\t266.55\t63\t72")),
                IsEmpty());
}

constexpr Fault synonymFaults[] = {
    {"OtherOwner", "synonyms.tsv", "[HCN]", "Eis-Essig",
     "synonyms.tsv:4: 74-90-8: synonym \"Eis-Essig\" belongs to 64-19-7 already"},
    {"EmptyKey", "synonyms.tsv", "[HCN]", "(-)",
     "synonyms.tsv:4: 74-90-8: synonym \"(-)\" has an empty search key"},
    {"NoSynonym", "synonyms.tsv", "|[HCN]", "||HCN",
     "synonyms.tsv:4: 74-90-8: synonym \"\" has an empty search key"},
    {"ForeignSynonym", "synonyms.tsv", "[HCN]", "šcyan",
     "synonyms.tsv:4: 74-90-8: synonym \"šcyan\" cannot be written in code page 850"},
    {"NotInDatabase", "synonyms.tsv", "74-90-8\t0", "74-90-8\t1",
     "synonyms.tsv:4: 74-90-8: no substance has this CAS number"},
    {"InDatabase", "synonyms.tsv", "64-19-7\t1", "64-19-7\t0",
     "synonyms.tsv:2: 64-19-7: in_database is 0 for a substance"},
    {"Flag", "synonyms.tsv", "74-90-8\t0", "74-90-8\tx",
     "synonyms.tsv:4: 74-90-8: in_database: \"x\" is neither 0 nor 1"},
    {"OtherFormula", "synonyms.tsv", "1\tC2H4O2", "1\tC2H4O3",
     "synonyms.tsv:2: 64-19-7: formula: \"C2H4O3\" is not \"C2H4O2\""},
    {"OtherGermanName", "synonyms.tsv", "Acetic acid\tEssigsäure", "Acetic acid\tEisessig",
     "synonyms.tsv:2: 64-19-7: name_de: \"Eisessig\" is not \"Essigsäure\""},
    {"SeparatorInAName", "synonyms.tsv", "Hydrogen cyanide", "Hydrogen_cyanide",
     "synonyms.tsv:4: 74-90-8: \"Hydrogen_cyanide\" holds a \"_\", which separates fields"},
    {"SecondGroup", "synonyms.tsv", nullptr, "74-90-8\t0\tCHN\tHydrogen cyanide\tBlausäure\t",
     "synonyms.tsv:5: 74-90-8: second row of this substance, the first is line 4"},
    {"CheckDigit", "synonyms.tsv", "74-90-8", "74-90-9",
     "synonyms.tsv:4: 74-90-9: check digit of the CAS number is 8, not 9"},
};
TEST(FaultySynonyms, AreRefusedWithFileLineAndReason) {
    ExpectRefused(synonymFaults);
}

constexpr Fault fileFaults[] = {
    {"Version", "version.txt", "2026-11-21", "today",
     "version.txt:1: one line with a date like 2026-11-21 is expected"},
    {"SecondLineOfVersion", "version.txt", nullptr, "x",
     "version.txt:1: one line with a date like 2026-11-21 is expected"},
    {"NoBibliography", "sources.md", "## Bibliography", "## Books",
     "sources.md: no keys under \"## Bibliography\""},
    {"MissingColumn", "wagner.tsv", "\tpref", "", "wagner.tsv:1: column \"pref\" is missing"},
};
TEST(FaultyFiles, AreRefusedWithFileLineAndReason) {
    ExpectRefused(fileFaults);
}

TEST(FaultyIdentity, WithAWrongCheckDigitLosesItsOtherRows) {
    SourceFiles files = MiniTables();
    std::string& identities = files.find("identity.tsv")->second;
    identities.replace(identities.find("64-19-7"), 7, "64-19-8");
    EXPECT_THAT(RefusalTexts(files),
                ElementsAre("identity.tsv:3: 64-19-8: check digit of the CAS number is 7, not 8",
                            "constants.tsv:2: 64-19-7: no substance has this CAS number",
                            "formation.tsv:2: 64-19-7: no substance has this CAS number",
                            "synonyms.tsv:2: 64-19-7: no substance has this CAS number"));
}

TEST(FaultyIdentity, WithoutConstantsIsRefused) {
    SourceFiles files = MiniTables();
    std::string& constants = files.find("constants.tsv")->second;
    const auto row = constants.find("64-19-7");
    constants.erase(row, constants.find('\n', row) + 1 - row);
    EXPECT_THAT(RefusalTexts(files), ElementsAre("identity.tsv:3: 64-19-7: no row in constants.tsv"));
}

TEST(FaultyIdentity, MustNotShareItsName) {
    SourceFiles files = MiniTablesWith("identity.tsv", "\tStickstoff\t", "\tEssigsäure\t");
    EXPECT_THAT(
        RefusalTexts(files),
        ElementsAre("identity.tsv:4: 7727-37-9: name_de: \"Essigsäure\" is the name of 64-19-7 already",
                    "identity.tsv:4: 7727-37-9: synonym \"Essigsäure\" belongs to 64-19-7 already"));
}

TEST(SeveralFaults, AreAllNamedAtOnce) {
    SourceFiles files = MiniTablesWith("antoine_low.tsv", "FIT:PGL", "FIT:LB");
    std::string& formation = files.find("formation.tsv")->second;
    formation.replace(formation.find("-432250"), 7, "x");
    EXPECT_THAT(
        RefusalTexts(files),
        ElementsAre("antoine_low.tsv:3: 7727-37-9: source: source key \"FIT:LB\" is not in the bibliography",
                    "formation.tsv:2: 64-19-7: hFormation: \"x\" is not a number"));
}

TEST(MissingFiles, AreNamed) {
    SourceFiles files = MiniTables();
    files.erase("wagner.tsv");
    files.erase("synonyms.tsv");
    EXPECT_THAT(RefusalTexts(files), ElementsAre("wagner.tsv: the file is missing or cannot be read",
                                                 "synonyms.tsv: the file is missing or cannot be read"));
}

TEST(MiniTables, HaveNoFault) {
    EXPECT_THAT(RefusalTexts(MiniTables()), IsEmpty());
}

} // namespace
} // namespace orva
