// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/coverage.h"

#include <gtest/gtest.h>
#include <set>

#include "database/common_fluids.h"
#include "database/database_build.h"
#include "text/text_file.h"

namespace orva {
namespace {

const DatabaseBuild& RealBuild() {
    static const DatabaseBuild build = BuildDatabase(ReadSourceFiles(ORVA_SUBSTANCE_TABLES));
    return build;
}

TEST(Coverage, OfTheManualIsThatOfTheTables) {
    const auto document = ReadFile(ORVA_SUBSTANCE_MANUAL);
    ASSERT_TRUE(document);
    EXPECT_EQ(CoverageOf(*document), RealBuild().coverage)
        << "orva-build-database --coverage data/substances docs/substance-data.md";
}

TEST(Coverage, NeedsItsMarks) {
    EXPECT_EQ(WithCoverage("no marks", "text"), std::nullopt);
    EXPECT_EQ(CoverageOf("no marks"), "");
}

TEST(CommonFluids, StandOnceEach) {
    const auto fluids = CommonFluids();
    EXPECT_EQ(std::set<std::string_view>(fluids.begin(), fluids.end()).size(), fluids.size());
    EXPECT_GE(fluids.size(), 120u);
}

// What the sources do not give. Whoever fills one of these gaps takes its line out.
TEST(CommonFluids, AreCompleteButForTheseGaps) {
    EXPECT_EQ(RealBuild().incomplete, "7440-59-7 Helium: cp liquid\n"
                                      "7439-97-6 Mercury: rhoc\n"
                                      "7722-84-1 Hydrogen peroxide: rho liquid\n"
                                      "75-43-4 Dichlorofluoromethane: cp liquid\n"
                                      "75-63-8 Bromotrifluoromethane: rho liquid, hVap, cp liquid\n"
                                      "431-89-0 Heptafluoropropane: hFormation, gFormation\n"
                                      "406-58-6 1,1,1,3,3-Pentafluorobutane: hFormation, gFormation\n"
                                      "754-12-1 2,3,3,3-Tetrafluoropropene: hFormation, gFormation\n"
                                      "29118-24-9 R1234ze(E): hFormation, gFormation\n"
                                      "29118-25-0 R1234ze(Z): hFormation, gFormation\n"
                                      "102687-65-0 R1233zd(E): hFormation, gFormation\n");
}

} // namespace
} // namespace orva
