// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/text_file.h"

#include <random>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#endif

namespace orva {
namespace {

namespace fs = std::filesystem;

class TextFile : public ::testing::Test {
protected:
    void SetUp() override {
        folder = fs::temp_directory_path() / ("orva_text_file_" + std::to_string(std::random_device()()));
        fs::create_directories(folder);
    }
    void TearDown() override { fs::remove_all(folder); }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            names.push_back(entry.path().filename().string());
        return names;
    }

    fs::path folder;
};

TEST_F(TextFile, BringsBackAllBytes) {
    std::string bytes;
    for (int i = 0; i < 200000; ++i)
        bytes += static_cast<char>(i % 256);
    ASSERT_TRUE(WriteFile(folder / "a.lst", bytes));
    EXPECT_EQ(ReadFile(folder / "a.lst"), bytes);
}

TEST_F(TextFile, ReplacesTheOldFileWhole) {
    ASSERT_TRUE(WriteFile(folder / "a.lst", "a long old content"));
    ASSERT_TRUE(WriteFile(folder / "a.lst", "new\r\n"));
    EXPECT_EQ(ReadFile(folder / "a.lst"), "new\r\n");
    EXPECT_THAT(Names(), ::testing::ElementsAre("a.lst"));
}

TEST_F(TextFile, TakesANameOutsideOfAscii) {
    const fs::path path = folder / fs::path(u8"Stoffdaten Größe Δ.lst");
    ASSERT_TRUE(WriteFile(path, "x"));
    EXPECT_TRUE(FileExists(path));
    EXPECT_EQ(ReadFile(path), "x");
}

TEST_F(TextFile, TakesANameOfTheGreatestLength) {
    const fs::path path = folder / std::string(255, 'n');
    ASSERT_TRUE(WriteFile(path, "x"));
    EXPECT_EQ(ReadFile(path), "x");
}

TEST_F(TextFile, WritesAndReadsAnEmptyFile) {
    ASSERT_TRUE(WriteFile(folder / "empty", ""));
    EXPECT_EQ(ReadFile(folder / "empty"), "");
    EXPECT_FALSE(FileExists(folder / "empty"));
}

TEST_F(TextFile, ExistsWhenThereAndNotEmpty) {
    EXPECT_FALSE(FileExists(folder / "none"));
    EXPECT_FALSE(FileExists(folder));
    EXPECT_FALSE(FileExists({}));
    ASSERT_TRUE(WriteFile(folder / "one", "1"));
    EXPECT_TRUE(FileExists(folder / "one"));
    EXPECT_FALSE(FileExists(folder / "one" / "two"));
}

TEST_F(TextFile, ReadsNothingThatIsNoFile) {
    EXPECT_EQ(ReadFile(folder / "none"), std::nullopt);
    EXPECT_EQ(ReadFile(folder), std::nullopt);
    EXPECT_EQ(ReadFile({}), std::nullopt);
}

TEST_F(TextFile, FailsWithoutAFolderOrAName) {
    EXPECT_FALSE(WriteFile(folder / "none" / "a.lst", "x"));
    EXPECT_FALSE(WriteFile({}, "x"));
    EXPECT_FALSE(WriteFile(folder / "", "x"));
    EXPECT_THAT(Names(), ::testing::IsEmpty());
}

TEST_F(TextFile, DoesNotReplaceAFolder) {
    fs::create_directory(folder / "sub");
    EXPECT_FALSE(WriteFile(folder / "sub", "x"));
    EXPECT_TRUE(fs::is_directory(folder / "sub"));
    EXPECT_THAT(Names(), ::testing::ElementsAre("sub"));
}

TEST_F(TextFile, LeavesAWriteProtectedFile) {
    const fs::path path = folder / "a.lst";
    ASSERT_TRUE(WriteFile(path, "old"));
    fs::permissions(path, fs::perms::owner_read);
    EXPECT_FALSE(WriteFile(path, "new"));
    EXPECT_EQ(ReadFile(path), "old");
    EXPECT_THAT(Names(), ::testing::ElementsAre("a.lst"));
}

#ifndef _WIN32
TEST_F(TextFile, LeavesTheOldFileWhenTheNewOneCannotBeWritten) {
    const fs::path path = folder / "a.lst";
    ASSERT_TRUE(WriteFile(path, "old"));
    // No more bytes than the old file has: the new one is cut off in the middle.
    rlimit old{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit narrow = old;
    narrow.rlim_cur = 4096;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &narrow), 0);
    const bool written = WriteFile(path, std::string(100000, 'n'));
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(written);
    EXPECT_EQ(ReadFile(path), "old");
    EXPECT_THAT(Names(), ::testing::ElementsAre("a.lst"));
}

TEST_F(TextFile, KeepsPermissionsAndLinks) {
    const fs::path path = folder / "a.lst";
    ASSERT_TRUE(WriteFile(path, "old"));
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("a.lst", folder / "link");
    ASSERT_TRUE(WriteFile(folder / "link", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(ReadFile(path), "new");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(TextFile, FailsThroughALinkToNowhere) {
    fs::create_symlink("none", folder / "link");
    EXPECT_FALSE(WriteFile(folder / "link", "x"));
    EXPECT_THAT(Names(), ::testing::ElementsAre("link"));
}
#endif

} // namespace
} // namespace orva
