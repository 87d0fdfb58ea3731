// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "database/command.h"
#include "database/coverage.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "text/text_file.h"
#include "tools/mini_tables.h"

namespace orva {
namespace {

class BuildCommand : public testing::Test {
protected:
    void SetUp() override {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        folder = std::filesystem::path(testing::TempDir()) / ("orva-build-database-" + name);
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder / "tables");
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    void WriteTables(const SourceFiles& files) const {
        for (const auto& [name, bytes] : files)
            std::ofstream(folder / "tables" / name, std::ios::binary) << bytes;
    }
    int Run(const std::vector<std::filesystem::path>& arguments) {
        return RunBuildCommand(arguments, output, errors);
    }

    std::filesystem::path folder;
    std::ostringstream output, errors;
};

TEST_F(BuildCommand, WritesBothFilesIntoANewFolder) {
    WriteTables(MiniTables());
    EXPECT_EQ(Run({folder / "tables", folder / "new" / "bin"}), 0);
    EXPECT_EQ(output.str(), "2 substances, 4 groups of names\n");
    EXPECT_EQ(errors.str(), "");
    const DatabaseBuild build = BuildDatabase(MiniTables());
    EXPECT_EQ(ReadFile(folder / "new" / "bin" / "ORVA.Q05"), build.database);
    EXPECT_EQ(ReadFile(folder / "new" / "bin" / "SYNOM.TXT"), build.synonymFile);
}

TEST_F(BuildCommand, WritesNothingWhenRowsAreRefused) {
    WriteTables(MiniTablesWith("antoine_low.tsv", "FIT:PGL", ""));
    EXPECT_EQ(Run({folder / "tables", folder / "bin"}), 1);
    EXPECT_EQ(output.str(), "");
    EXPECT_EQ(errors.str(), "antoine_low.tsv:3: 7727-37-9: source: source key is missing\n"
                            "1 refused, nothing written\n");
    EXPECT_FALSE(std::filesystem::exists(folder / "bin"));
}

TEST_F(BuildCommand, TellsItsUsage) {
    EXPECT_EQ(Run({folder / "tables"}), 2);
    EXPECT_EQ(
        errors.str(),
        "usage: orva-build-database TABLES_DIR OUTPUT_DIR             compiles the database and the "
        "synonyms\n"
        "       orva-build-database --check TABLES_DIR                a table of all checks\n"
        "       orva-build-database --list TABLES_DIR [CHECK]         every deviation, of one check or of "
        "all\n"
        "       orva-build-database --incomplete TABLES_DIR           common fluids that lack something\n"
        "       orva-build-database --coverage TABLES_DIR DOCUMENT    brings the coverage in a document up "
        "to "
        "date\n");
    EXPECT_EQ(Run({"--list", folder / "tables", "no such check"}), 2);
    EXPECT_EQ(Run({"--nonsense", folder / "tables"}), 2);
}

TEST_F(BuildCommand, PrintsATableOfAllChecks) {
    WriteTables(MiniTables());
    EXPECT_EQ(Run({"--check", folder / "tables"}), 0);
    EXPECT_EQ(errors.str(), "");
    const std::string text = output.str();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), static_cast<long>(ValueChecks().size()) + 1);
    EXPECT_NE(
        text.find("\np(Tb)                  1      0         0        0    1.5 %      2 %     0.04 %  0.04 %"
                  " (Nitrogen)\n"),
        std::string::npos)
        << text;
}

TEST_F(BuildCommand, ListsWhatDeviates) {
    SourceFiles files = MiniTablesWith("antoine_low.tsv", "\t5.61947\t", "\t5.62670\t"); // 1.7 % more
    WriteTables(files);
    EXPECT_EQ(Run({"--list", folder / "tables", "p(Tb)"}), 0);
    EXPECT_EQ(output.str(),
              "p(Tb): note: antoine_low.tsv:3: 7727-37-9 Nitrogen: 1.72 %: Antoine equation gives "
              "103.063 kPa at Tb = 77.355 K, not 101.325 kPa\n");
    output.str("");
    EXPECT_EQ(Run({"--list", folder / "tables", "omega"}), 0);
    EXPECT_EQ(output.str(), "");
}

TEST_F(BuildCommand, ReportsRefusedRowsInEveryMode) {
    WriteTables(MiniTablesWith("antoine_low.tsv", "\t5.61947\t", "\t5.63\t"));
    for (const char* mode : {"--check", "--list", "--incomplete"}) {
        errors.str("");
        EXPECT_EQ(Run({mode, folder / "tables"}), 1) << mode;
        EXPECT_EQ(
            errors.str(),
            "antoine_low.tsv:3: 7727-37-9: Antoine equation gives 103.849 kPa at Tb = 77.355 K, not 101.325 "
            "kPa within 2 %\n1 refused, nothing written\n");
    }
}

TEST_F(BuildCommand, BringsTheCoverageOfADocumentUpToDate) {
    WriteTables(MiniTables());
    const std::filesystem::path document = folder / "doc.md";
    std::ofstream(document) << "before\n<!-- coverage: written by orva-build-database --coverage -->\nold\n"
                               "<!-- end of coverage -->\nafter\n";
    EXPECT_EQ(Run({"--coverage", folder / "tables", document}), 0);
    const std::string text = *ReadFile(document);
    EXPECT_TRUE(text.starts_with("before\n<!-- coverage: ")) << text;
    EXPECT_TRUE(text.ends_with("<!-- end of coverage -->\nafter\n")) << text;
    EXPECT_EQ(text.find("old"), std::string::npos);
    EXPECT_NE(text.find("2 substances; the search knows 2 more by name."), std::string::npos);
    EXPECT_NE(text.find("| `antoine_low.tsv` | 1 | 0.50 to 0.67 | FIT:PGL 1 |"), std::string::npos) << text;
    EXPECT_EQ(CoverageOf(text), BuildDatabase(MiniTables()).coverage);
}

TEST_F(BuildCommand, RefusesADocumentWithoutMarks) {
    WriteTables(MiniTables());
    std::ofstream(folder / "doc.md") << "nothing\n";
    EXPECT_EQ(Run({"--coverage", folder / "tables", folder / "doc.md"}), 3);
    EXPECT_EQ(errors.str(), "no coverage marks in " + (folder / "doc.md").string() + "\n");
    EXPECT_EQ(ReadFile(folder / "doc.md"), "nothing\n");
}

TEST_F(BuildCommand, SaysWhenItCannotWrite) {
    WriteTables(MiniTables());
    std::ofstream(folder / "file") << "no folder";
    EXPECT_EQ(Run({folder / "tables", folder / "file"}), 3);
    EXPECT_EQ(errors.str(), "cannot write into " + (folder / "file").string() + "\n");
}

} // namespace
} // namespace orva
