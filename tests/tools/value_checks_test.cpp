// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/value_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "database/elements.h"
#include "tools/mini_tables.h"

namespace orva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Nitrogen with one more row; all other rows hold.
std::vector<std::string> WithRow(std::string_view file, std::string_view row) {
    return RefusalTexts(MiniTablesAnd(file, row));
}

std::vector<std::string> WithValue(std::string_view file, std::string_view from, std::string_view to) {
    return RefusalTexts(MiniTablesWith(file, from, to));
}

TEST(ValueChecks, HaveNamesOfTheirOwnAndLimitsInOrder) {
    std::set<std::string_view> names;
    for (const ValueCheck& check : ValueChecks()) {
        EXPECT_TRUE(names.insert(check.name).second) << check.name;
        EXPECT_FALSE(check.what.empty()) << check.name;
        EXPECT_LE(check.note, check.refusal) << check.name;
    }
}

TEST(ValueChecks, PassTheMiniTables) {
    EXPECT_THAT(RefusalTexts(MiniTables()), IsEmpty());
}

TEST(ValueChecks, CompareTheMolarMassWithTheFormula) {
    EXPECT_THAT(WithValue("identity.tsv", "\t28.014\t", "\t28.1\t"),
                ElementsAre("identity.tsv:4: 7727-37-9: molar_mass = 28.1, not 28.014 of N2 within 0.05 %"));
    EXPECT_THAT(WithValue("identity.tsv", "\tN2\t", "\tNq2\t"),
                testing::Contains("identity.tsv:4: 7727-37-9: no atomic weight for Nq of Nq2"));
    EXPECT_THAT(WithValue("identity.tsv", "\tN2\t", "\tn2\t"),
                testing::Contains("identity.tsv:4: 7727-37-9: \"n2\" is not a molecular formula"));
}

// Wagner row of nitrogen by Poling, Prausnitz, O'Connell (2001), rounded.
constexpr std::string_view wagnerOfNitrogen =
    "7727-37-9\tNitrogen\t-6.11102\t1.2189\t-0.69366\t2.5\t-1.89893\t5\t0\t0\t126.2\t3400\t64\t126\tPGL\t";

TEST(ValueChecks, TakeAGoodWagnerRow) {
    EXPECT_THAT(WithRow("wagner.tsv", wagnerOfNitrogen), IsEmpty());
}

TEST(ValueChecks, CompareTheVapourPressureAtTcWithPc) {
    SourceFiles files = MiniTablesAnd("wagner.tsv", wagnerOfNitrogen);
    std::string& constants = files.find("constants.tsv")->second;
    constants.replace(constants.find("3395.8"), 6, "3695.8");
    EXPECT_THAT(
        RefusalTexts(files),
        ElementsAre("wagner.tsv:2: 7727-37-9: Wagner equation leads to 3398 kPa at Tc, not 3696 kPa within "
                    "5 %"));
}

TEST(ValueChecks, CompareEquationsInTheirCommonRange) {
    // The Antoine row bent about Tb, so that only its low end leaves the Wagner equation.
    SourceFiles files = MiniTablesAnd("wagner.tsv", wagnerOfNitrogen);
    std::string& antoine = files.find("antoine_low.tsv")->second;
    const std::string good = "5.61947\t255.68\t266.55";
    antoine.replace(antoine.find(good), good.size(), "6.31947\t305.13\t266.55");
    EXPECT_THAT(RefusalTexts(files), ElementsAre(testing::AllOf(
                                         testing::StartsWith("antoine_low.tsv:3: 7727-37-9: Antoine equation "
                                                             "gives "),
                                         testing::EndsWith("which is not equal within 10 %"))));
}

TEST(ValueChecks, CompareOmegaWithTheVapourPressure) {
    SourceFiles files = MiniTablesAnd("wagner.tsv", wagnerOfNitrogen);
    std::string& constants = files.find("constants.tsv")->second;
    const std::string before = "3395.8\tPGL\t\t\t\t\t77.355";
    constants.replace(constants.find(before), before.size(), "3395.8\tPGL\t\t\t0.137\tPGL\t77.355");
    EXPECT_THAT(RefusalTexts(files),
                ElementsAre(testing::MatchesRegex(
                    "constants.tsv:3: 7727-37-9: wagner.tsv leads to omega = 0.03.., not 0.137 "
                    "within 0.03")));
}

TEST(ValueChecks, CompareBothFormsOfTheIdealGasHeatCapacity) {
    SourceFiles files =
        MiniTablesAnd("cp_ideal_polynomial.tsv", "7727-37-9\tNitrogen\t30.1\t0\t0\t0\t0\t100\t500\tPGL\t");
    files.find("cp_ideal_sinh_cosh.tsv")->second +=
        "7727-37-9\tNitrogen\t29.1\t0\t100\t0\t100\t100\t500\tPGL\t\n";
    EXPECT_THAT(
        RefusalTexts(files),
        ElementsAre("cp_ideal_polynomial.tsv:2: 7727-37-9: gives 30.10 kJ/(kmol K) at 100 K, sinh/cosh 29.10 "
                    "kJ/(kmol K), which is not equal within 3 %"));
}

TEST(ValueChecks, KeepTheIdealGasHeatCapacityAboveItsFloorAndRising) {
    EXPECT_THAT(
        WithRow("cp_ideal_polynomial.tsv", "7727-37-9\tNitrogen\t20\t0\t0\t0\t0\t100\t500\tPGL\t"),
        ElementsAre("cp_ideal_polynomial.tsv:2: 7727-37-9: falls to 20.00 kJ/(kmol K), not above 2.5 R "
                    "within 0.5 %"));
    EXPECT_THAT(
        WithRow("cp_ideal_polynomial.tsv", "7727-37-9\tNitrogen\t40\t-0.02\t0\t0\t0\t100\t500\tPGL\t"),
        ElementsAre("cp_ideal_polynomial.tsv:2: 7727-37-9: falls with T by 21.05 %, not less within 5 %"));
}

TEST(ValueChecks, CompareTheFormationValues) {
    EXPECT_THAT(WithValue("formation.tsv", "-432250\tCRC\t\t\t\t", "-432250\tCRC\t-374000\tCRC\t290\tCRC"),
                ElementsAre("formation.tsv:2: 64-19-7: hFormation and gFormation give -195.371 kJ/(kmol K), "
                            "sConventional -187.992 kJ/(kmol K), which is not equal within 0.5"));
}

// A density of the wrong sign fails at Tb as well; it is told once.
TEST(ValueChecks, TellTheFirstFaultOfARow) {
    EXPECT_THAT(WithValue("rho_liquid.tsv", "\t90\t", "\t-90\t"),
                ElementsAre("rho_liquid.tsv:2: 7727-37-9: the liquid density is not positive at 64 K"));
}

TEST(ValueChecks, CompareTheLiquidDensityWithTheOneAtTb) {
    EXPECT_THAT(
        WithValue("constants.tsv", "806.1", "906.1"),
        ElementsAre(testing::MatchesRegex("rho_liquid.tsv:2: 7727-37-9: gives [78][0-9.]* kg/m.3 at Tb, not "
                                          "906.1 kg/m.3 within 3 %")));
}

TEST(AcceptedDeviations, LetADeviationStand) {
    SourceFiles files = MiniTablesWith("identity.tsv", "\t28.014\t", "\t28.1\t");
    std::string& accepted = files.find("accepted_deviations.tsv")->second;
    const std::string before = accepted;
    accepted += "7727-37-9\tNitrogen\tM\t0.4\ta reason\n";
    EXPECT_THAT(RefusalTexts(files), IsEmpty());
    accepted = before + "7727-37-9\tNitrogen\tM\t0.3\ta reason\n";
    EXPECT_THAT(RefusalTexts(files),
                ElementsAre("identity.tsv:4: 7727-37-9: molar_mass = 28.1, not 28.014 of N2 within 0.05 %"));
}

TEST(AcceptedDeviations, AreRefusedWhenTheyAreNotNeededOrWrong) {
    const std::string file = "accepted_deviations.tsv";
    EXPECT_THAT(WithRow(file, "7727-37-9\tNitrogen\tM\t0.4\ta reason"),
                ElementsAre(file + ":2: 7727-37-9: \"M\" holds without this row"));
    EXPECT_THAT(WithRow(file, "71-43-2\tBenzene\tM\t0.4\ta reason"),
                ElementsAre(file + ":2: 71-43-2: no substance has this CAS number"));
    EXPECT_THAT(WithRow(file, "7727-37-9\tNitrogen\tmass\t0.4\ta reason"),
                testing::Contains(file + ":2: 7727-37-9: there is no check \"mass\""));
    EXPECT_THAT(WithRow(file, "7727-37-9\tNitrogen\tM\tx\ta reason"),
                testing::Contains(file + ":2: 7727-37-9: limit: \"x\" is not a number"));
    EXPECT_THAT(WithRow(file, "7727-37-9\tNitrogen\tM\t0\ta reason"),
                testing::Contains(file + ":2: 7727-37-9: limit: must be above 0"));
    EXPECT_THAT(WithRow(file, "7727-37-9\tNitrogen\tM\t0.4\t"),
                testing::Contains(file + ":2: 7727-37-9: reason is missing"));
    EXPECT_THAT(WithRow(file, "7727-37-9\tOxygen\tM\t0.4\ta reason"),
                testing::Contains(file + ":2: 7727-37-9: name \"Oxygen\" is not \"Nitrogen\""));
}

TEST(Elements, ReadFormulas) {
    using Atoms = std::map<std::string, int>;
    EXPECT_EQ(AtomsOfFormula("C2H6O"), (Atoms{{"C", 2}, {"H", 6}, {"O", 1}}));
    EXPECT_EQ(AtomsOfFormula("CHClF2"), (Atoms{{"C", 1}, {"H", 1}, {"Cl", 1}, {"F", 2}}));
    EXPECT_EQ(AtomsOfFormula("COS"), (Atoms{{"C", 1}, {"O", 1}, {"S", 1}}));
    EXPECT_EQ(AtomsOfFormula("c2"), std::nullopt);
    EXPECT_EQ(AtomsOfFormula("C0"), std::nullopt);
    EXPECT_EQ(AtomsOfFormula("C99999999999"), std::nullopt);
    EXPECT_EQ(AtomsOfFormula("(CH3)2"), std::nullopt);
}

// CODATA: 130.680 kJ/(kmol K) for hydrogen, two atoms a molecule.
TEST(Elements, KnowWeightsAndEntropies) {
    EXPECT_EQ(AtomicWeight("O"), 15.999);
    EXPECT_EQ(AtomicWeight("Xx"), std::nullopt);
    EXPECT_DOUBLE_EQ(*EntropyOfElement("H"), 65.340);
    EXPECT_EQ(EntropyOfElement("As"), std::nullopt);
}

} // namespace
} // namespace orva
