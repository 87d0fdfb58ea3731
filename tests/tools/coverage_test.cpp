// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/coverage.h"

#include <gtest/gtest.h>
#include <set>

#include "database/common_fluids.h"
#include "database/database_build.h"
#include "text/text_file.h"
#include "tools/mini_tables.h"

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

TEST(CommonFluids, AreComplete) {
    EXPECT_EQ(RealBuild().incomplete, "");
    EXPECT_NE(RealBuild().coverage.find("heat capacities and formation values.\n"), std::string::npos);
}

TEST(CommonFluids, AreNamedWithWhatTheyLack) {
    const DatabaseBuild build = BuildDatabase(MiniTables());
    EXPECT_TRUE(build.incomplete.starts_with("7732-18-5: not in the database\n"));
    EXPECT_NE(build.incomplete.find("\n7727-37-9 Nitrogen: "), std::string::npos);
    EXPECT_NE(build.coverage.find("formation values, but for these gaps, which no source at hand fills:\n\n"
                                  "- 7732-18-5: not in the database\n"),
              std::string::npos);
}

} // namespace
} // namespace orva
