// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/tips.h"
#include "support/test_machine.h"
#include "text/lines.h"
#include "text/text_file.h"
#include "text/utf8.h"

namespace orva::test {
namespace {

struct TipsTest : testing::Test {
    TestMachine machine;
    SessionSettings settings;
    double random = 0;

    void Lay(const char* file, std::string_view bytes) {
        ASSERT_TRUE(WriteFile(machine.InstallationFolder() / file, bytes));
    }
    Tips Open(bool englishText = false, bool explicitly = false) {
        return Tips(machine, settings, englishText, explicitly, [this] { return random; });
    }
};

TEST_F(TipsTest, ShowWhereTheKeyIsMissingOrOne) {
    EXPECT_FALSE(Open().hideTip());
    EXPECT_TRUE(Open().LoadTipsAtStartup());
    settings.SetNumber("Options", "Show Tips at Startup", 1);
    EXPECT_FALSE(Open().hideTip());
    settings.SetNumber("Options", "Show Tips at Startup", 0);
    EXPECT_TRUE(Open().hideTip());
    EXPECT_FALSE(Open(false, true).hideTip());
    EXPECT_FALSE(Open(false, true).LoadTipsAtStartup());
}

TEST_F(TipsTest, TheBoxIsStored) {
    Tips tips = Open();
    tips.SetLoadTipsAtStartup(false);
    EXPECT_EQ(settings.Number("Options", "Show Tips at Startup"), 0);
    tips.SetLoadTipsAtStartup(true);
    EXPECT_EQ(settings.Number("Options", "Show Tips at Startup"), 1);
}

TEST_F(TipsTest, NothingIsReadUntilItIsAskedFor) {
    Tips tips = Open();
    EXPECT_EQ(tips.Text(), "");
    EXPECT_FALSE(tips.HasTips());
    tips.ShowNext();
    EXPECT_EQ(tips.Text(), "");
    tips.ShowTips();
    EXPECT_EQ(tips.Text(), "Die Datei ORVATIPS.TXT im ORVA-Verzeichnis nicht gefunden \n\n");
    EXPECT_FALSE(tips.HasTips());
    Tips english = Open(true);
    english.ShowTips();
    EXPECT_EQ(english.Text(), "Die Datei ORVATIPS_E.TXT im ORVA-Verzeichnis nicht gefunden \n\n");
}

TEST_F(TipsTest, BeginAnywhereAndGoRound) {
    Lay("ORVATIPS.TXT", "eins\r\nzwei\r\ndrei");
    Tips tips = Open();
    const std::pair<double, const char*> picks[] = {{0, "eins\n"},         {0.333, "eins\n"},
                                                    {0.334, "zwei\n"},     {0.67, "drei\n"},
                                                    {0.9999999, "drei\n"}, {1, "drei\n"}};
    for (const auto& [number, text] : picks) {
        random = number;
        tips.ShowTips();
        EXPECT_EQ(tips.Text(), text) << number;
    }
    for (const char* text : {"eins\n", "zwei\n", "drei\n", "eins\n"}) {
        tips.ShowNext();
        EXPECT_EQ(tips.Text(), text);
    }
}

TEST_F(TipsTest, TheRandomNumbersReachEveryTip) {
    const RandomNumber numbers = RandomNumbers();
    std::array<int, 30> hits{};
    for (int i = 0; i < 3000; ++i)
        ++hits.at(static_cast<std::size_t>(numbers() * 30));
    for (const int count : hits)
        EXPECT_GT(count, 0);
}

TEST_F(TipsTest, EveryLineIsATipWhateverItHolds) {
    Lay("ORVATIPS.TXT", std::string_view("\n\0x\n\xE4\xF6", 6));
    Tips tips = Open();
    tips.ShowTips();
    EXPECT_EQ(tips.Text(), "\n");
    tips.ShowNext();
    EXPECT_EQ(tips.Text(), std::string("\0x\n", 3));
    tips.ShowNext();
    EXPECT_EQ(tips.Text(), "äö\n"); // the file is no UTF-8, so it is Windows-1252
    Lay("ORVATIPS.TXT", "\xEF\xBB\xBFgrößer\n" + std::string(100000, 'x'));
    tips.ShowTips();
    EXPECT_EQ(tips.Text(), "größer\n");
    tips.ShowNext();
    EXPECT_EQ(tips.Text().size(), 100001U);
}

TEST_F(TipsTest, AFileThatWentAwayIsNoticed) {
    Lay("ORVATIPS.TXT", "eins");
    Tips tips = Open();
    tips.ShowTips();
    EXPECT_TRUE(tips.HasTips());
    Lay("ORVATIPS.TXT", "");
    tips.ShowTips();
    EXPECT_FALSE(tips.HasTips());
    EXPECT_TRUE(tips.Text().starts_with("Die Datei ORVATIPS.TXT"));
}

TEST(OwnTips, AreThirtyOfEachLanguageInTheInstallationFolder) {
    for (const char* file : {"ORVATIPS.TXT", "ORVATIPS_E.TXT"}) {
        const auto bytes = ReadFile(std::filesystem::path(ORVA_INSTALLATION_FOLDER) / file);
        ASSERT_TRUE(bytes) << file;
        EXPECT_TRUE(IsUtf8(*bytes)) << file;
        int count = 0;
        LineReader lines(*bytes);
        while (const auto line = lines.Next()) {
            ++count;
            EXPECT_GT(line->size(), 30U) << file << count;
            EXPECT_TRUE(line->ends_with('.')) << file << count;
        }
        EXPECT_EQ(count, 30) << file;
    }
}

} // namespace
} // namespace orva::test
