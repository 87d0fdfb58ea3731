// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "database/command.h"

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
    EXPECT_EQ(errors.str(), "usage: orva-build-database TABLES_DIR OUTPUT_DIR\n");
}

TEST_F(BuildCommand, SaysWhenItCannotWrite) {
    WriteTables(MiniTables());
    std::ofstream(folder / "file") << "no folder";
    EXPECT_EQ(Run({folder / "tables", folder / "file"}), 3);
    EXPECT_EQ(errors.str(), "cannot write into " + (folder / "file").string() + "\n");
}

} // namespace
} // namespace orva
