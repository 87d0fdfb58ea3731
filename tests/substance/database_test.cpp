// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/database.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_database.h"
#include "support/test_machine.h"
#include "text/columns.h"

namespace orva {
namespace {

class DatabaseFile : public testing::Test {
protected:
    test::TestMachine machine;
    Database database;

    std::filesystem::path Write(const std::string& name, std::string_view bytes) {
        const std::filesystem::path path = machine.InstallationFolder() / name;
        EXPECT_TRUE(WriteFile(path, bytes));
        return path;
    }

    DatabaseLoadResult Load(const std::filesystem::path& path, bool englishText = false) {
        return database.LoadDatabase(path, machine.InstallationFolder(), englishText);
    }

    // The sample database stands as it was loaded, and its records can still be read.
    void ExpectSampleStands() {
        EXPECT_TRUE(database.IsOpen());
        ASSERT_EQ(database.List().entries.size(), 3U);
        EXPECT_EQ(database.List().At(2).name, FixedField("Argon ohne Omega", 40));
        const auto record = database.ReadRecord(2);
        ASSERT_TRUE(record);
        EXPECT_EQ(record->cas, FixedField("7440-37-1", 12));
    }
};

TEST_F(DatabaseFile, ListsFourFieldsOfEverySubstanceWithTheirPadding) {
    ASSERT_TRUE(Load(test::WriteSampleDatabase(machine.InstallationFolder())).Good());
    ASSERT_EQ(database.List().entries.size(), 3U);
    const SubstanceListEntry& butane = database.List().At(1);
    EXPECT_EQ(butane.number, 1);
    EXPECT_EQ(butane.formula, "C4H10       ");
    EXPECT_EQ(butane.name, FixedField("n-Butan; Butan", 40)) << "the list keeps the synonyms";
    EXPECT_EQ(butane.cas, "106-97-8    ");
    EXPECT_EQ(database.List().At(3).number, 3);
}

TEST_F(DatabaseFile, TakesTheEnglishNamesWhenAsked) {
    DatabaseRecord record = test::SampleRecord("H2O", "", "7732-18-5", 9, {});
    record.nameEnglish = "Water";
    record.nameGerman = "Wasser";
    const auto path = Write("X.Q05", test::DatabaseBytes({record}));
    ASSERT_TRUE(Load(path, true).Good());
    EXPECT_EQ(database.List().At(1).name, FixedField("Water", 40));
    ASSERT_TRUE(Load(path, false).Good());
    EXPECT_EQ(database.List().At(1).name, FixedField("Wasser", 40));
}

TEST_F(DatabaseFile, CarriesUmlauts) {
    Write("X.Q05",
          test::DatabaseBytes({test::SampleRecord("C2H4O2", "Essigsäure; Äthansäure", "64-19-7", 1, {})}));
    ASSERT_TRUE(Load("X.Q05").Good());
    EXPECT_EQ(database.List().At(1).name, FixedField("Essigsäure; Äthansäure", 40));
}

TEST_F(DatabaseFile, ANameWithoutFolderIsMeantInTheInstallationFolder) {
    test::WriteSampleDatabase(machine.InstallationFolder());
    EXPECT_TRUE(Load("ORVA.Q05").Good());
}

TEST_F(DatabaseFile, AMissingFileIsNotFound) {
    const DatabaseLoadResult result = Load("NIX.Q05");
    EXPECT_TRUE(result.notFound);
    EXPECT_FALSE(result.readError);
    EXPECT_FALSE(database.IsOpen());
}

TEST_F(DatabaseFile, AnEmptyFileIsNotFound) {
    EXPECT_TRUE(Load(Write("X.Q05", "")).notFound);
}

TEST_F(DatabaseFile, ACountBelowOneIsNotFoundAndNoEmptyList) {
    test::WriteSampleDatabase(machine.InstallationFolder());
    ASSERT_TRUE(Load("ORVA.Q05").Good());
    DatabaseRecord header;
    for (const int count : {0, -1, -32768}) {
        header.number = static_cast<std::int16_t>(count);
        const DatabaseLoadResult result = Load(Write("X.Q05", EncodeRecord(header) + EncodeRecord({})));
        EXPECT_TRUE(result.notFound);
        EXPECT_FALSE(result.readError);
        ExpectSampleStands();
    }
}

TEST_F(DatabaseFile, ACountAboveTheRecordsInTheFileIsAReadError) {
    test::WriteSampleDatabase(machine.InstallationFolder());
    ASSERT_TRUE(Load("ORVA.Q05").Good());
    DatabaseRecord header;
    header.number = 32767;
    const DatabaseLoadResult result = Load(Write("X.Q05", EncodeRecord(header) + EncodeRecord({})));
    EXPECT_TRUE(result.readError);
    EXPECT_FALSE(result.notFound);
    ExpectSampleStands();
}

TEST_F(DatabaseFile, AFileCutAtAnyPlaceIsAReadErrorAndTheOldListStays) {
    const std::string bytes = test::DatabaseBytes(test::SampleRecords());
    test::WriteSampleDatabase(machine.InstallationFolder());
    ASSERT_TRUE(Load("ORVA.Q05").Good());
    for (const std::size_t size :
         {std::size_t{1}, std::size_t{683}, std::size_t{684}, std::size_t{1000}, 4 * recordSize - 1}) {
        const DatabaseLoadResult result = Load(Write("CUT.Q05", std::string_view(bytes).substr(0, size)));
        EXPECT_TRUE(result.readError) << size;
        EXPECT_FALSE(result.notFound) << size;
        ExpectSampleStands();
    }
}

TEST_F(DatabaseFile, RecordsBehindTheCountedOnesAreIgnored) {
    const std::string bytes = test::DatabaseBytes(test::SampleRecords());
    ASSERT_TRUE(Load(Write("X.Q05", bytes + std::string(1000, 'x'))).Good());
    ExpectSampleStands();
    EXPECT_FALSE(database.ReadRecord(4));
}

TEST_F(DatabaseFile, ReadsRecordsInAnyOrder) {
    ASSERT_TRUE(Load(test::WriteSampleDatabase(machine.InstallationFolder())).Good());
    EXPECT_EQ(database.ReadRecord(3)->number, 3);
    EXPECT_EQ(database.ReadRecord(1)->number, 1);
    EXPECT_EQ(database.ReadRecord(2)->values[6], 150.687F);
}

TEST_F(DatabaseFile, HasNoRecordOutsideOfTheList) {
    EXPECT_FALSE(database.ReadRecord(1)) << "nothing is open";
    ASSERT_TRUE(Load(test::WriteSampleDatabase(machine.InstallationFolder())).Good());
    EXPECT_FALSE(database.ReadRecord(0));
    EXPECT_FALSE(database.ReadRecord(-1));
    EXPECT_FALSE(database.ReadRecord(4));
    ExpectSampleStands();
}

TEST_F(DatabaseFile, StaysUsableWhenTheFileShrinksUnderneath) {
    const auto path = test::WriteSampleDatabase(machine.InstallationFolder());
    ASSERT_TRUE(Load(path).Good());
    std::filesystem::resize_file(path, 3 * recordSize + 10);
    EXPECT_FALSE(database.ReadRecord(3));
    ExpectSampleStands();
}

TEST_F(DatabaseFile, AnotherFileTakesThePlaceOfTheFirst) {
    ASSERT_TRUE(Load(test::WriteSampleDatabase(machine.InstallationFolder())).Good());
    const auto path =
        Write("X.Q05", test::DatabaseBytes({test::SampleRecord("He", "Helium", "7440-59-7", 77, {})}));
    ASSERT_TRUE(Load(path).Good());
    ASSERT_EQ(database.List().entries.size(), 1U);
    EXPECT_EQ(database.ReadRecord(1)->number, 77);
}

} // namespace
} // namespace orva
