// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "calc/result_list_fixture.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "text/text_file.h"

namespace orva::test {
namespace {

namespace fs = std::filesystem;

struct ResultListFile : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    ListOfResults of;

    fs::path Folder() const { return machine.WritableFolder(); }

    bool Write(const std::string& name) { return WriteResultList(name, of.list, machine, dialogs); }

    std::size_t FileCount() const {
        std::size_t count = 0;
        for (const fs::directory_entry& entry : fs::directory_iterator(Folder()))
            count += entry.exists() ? 1 : 0;
        return count;
    }
};

TEST_F(ResultListFile, NameGetsItsEndingAndItsFolder) {
    const auto name = [this](const char* file) { return ResultListPath(file, machine); };
    EXPECT_EQ(name("butan"), Folder() / "butan.LST");
    EXPECT_EQ(name("12345678"), Folder() / "12345678.LST");
    EXPECT_EQ(name("123456789"), Folder() / "123456789"); // too long for an ending
    EXPECT_EQ(name("Häuserüö"), Folder() / fs::path(u8"Häuserüö.LST"));
    EXPECT_EQ(name("butan.txt"), Folder() / "butan.txt");
    EXPECT_EQ(name("LPT1"), Folder() / "LPT1");
    EXPECT_EQ(name("/a/b"), fs::path("/a/b.LST"));
    EXPECT_EQ(name("/daten/orva/butan.LST"), fs::path("/daten/orva/butan.LST"));
}

TEST_F(ResultListFile, GoesToTheFolderForWrittenFiles) {
    struct SystemWide : TestMachine {
        fs::path InstallationFolder() const override { return "/nirgends"; }
    } systemWide;
    EXPECT_EQ(ResultListPath("butan", systemWide), systemWide.WritableFolder() / "butan.LST");
}

TEST_F(ResultListFile, IsWrittenInWindows1252OverTheOldOne) {
    of.list.substance = "Öl";
    of.list.printFunctions = true;
    ASSERT_TRUE(WriteFile(Folder() / "butan.LST", std::string(100000, 'x')));
    EXPECT_TRUE(Write("butan"));
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(FileCount(), 1U);
    const std::string bytes = ReadFile(Folder() / "butan.LST").value_or("");
    EXPECT_NE(bytes.find("   Substance            : \xD6l\r\n"), std::string::npos);
    EXPECT_NE(bytes.find("thermodynamic functions\r\n" + std::string(53, '\xC4') + "\r\n"),
              std::string::npos);
    EXPECT_EQ(bytes.size(), of.Text().size() - 1 - 53); // umlauts have two bytes inside of the program
}

TEST_F(ResultListFile, FailureShowsTheTextOfTheSystem) {
    EXPECT_FALSE(Write((Folder() / "nirgends" / "butan.LST").string()));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausgabe-Fehler");
    EXPECT_EQ(dialogs.shown[0].text, std::generic_category().message(ENOENT));
    EXPECT_EQ(FileCount(), 0U);
}

TEST_F(ResultListFile, AWriteProtectedFileStays) {
    const fs::path file = Folder() / "butan.LST";
    ASSERT_TRUE(WriteFile(file, "alt"));
    fs::permissions(file, fs::perms::owner_read);
    EXPECT_FALSE(Write("butan"));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, std::generic_category().message(EACCES));
    EXPECT_EQ(ReadFile(file), "alt");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(ResultListFile, AFolderOfThisNameStays) {
    fs::create_directory(Folder() / "butan.LST");
    EXPECT_FALSE(Write("butan"));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, std::generic_category().message(EISDIR));
    EXPECT_TRUE(fs::is_directory(Folder() / "butan.LST"));
}

// On paper: other words, the two last columns at 48 and 60, wider rules.
TEST(ResultListOnPaper, HasWordsAndColumnsOfItsOwn) {
    ListOfResults of;
    of.list.kind = kindSaturationPressure;
    of.list.title = " T => p(LV) (Globalberechnung)";
    of.list.batchFile = "B.BAQ";
    of.Add(Given(300, 250, 6, 500, 20000), Calculated("V+L", 0, 257.5F, 6.75F, 510, 20200));
    using Kind = ListLineKind;
    const ListLine doubleRule{Kind::DoubleRule, {}, 90};
    const std::vector<ListLine> expected{
        {Kind::Text, {{59, "21.11.2026"}}, 0},
        {Kind::Text, {{22, "ORVA: Results of Calculation"}}, 0},
        {Kind::Text, {}, 0},
        {Kind::Text, {{3, "Substance"}, {29, ": "}, {31, "n-Butan"}}, 0},
        {Kind::Text, {{3, "Calculation"}, {29, ": "}, {31, " T => p(LV) (Globalberechnung)"}}, 0},
        {Kind::Text, {{32, "Enthalpy of Vaporization del(LV)h calc. using EOS"}}, 0},
        {Kind::Text, {{3, "Model"}, {29, ": "}, {31, "CEOS Peng / Robinson; Wagner"}}, 0},
        {Kind::Text, {{3, "Number of Data Sets"}, {29, ": "}, {31, "1"}}, 0},
        {Kind::Text, {{3, "Name Batchfile"}, {29, ": "}, {31, "B.BAQ"}}, 0},
        doubleRule,
        {Kind::Text,
         {{0, "No."},
          {9, "T(exp)"},
          {20, "p(exp)"},
          {32, "rhoV(exp)"},
          {48, "rhoL(exp)"},
          {60, "delta(LV)h(exp)"}},
         0},
        {Kind::Text,
         {{2, "Phase"},
          {9, "T(calc)"},
          {20, "p(calc)"},
          {32, "rhoV(calc)"},
          {48, "rhoL(calc)"},
          {60, "delta(LV)h(calc)"}},
         0},
        {Kind::Text,
         {{9, "delta T"}, {20, "delta p"}, {32, "delta rhoV"}, {48, "delta rhoL"}, {60, "delta(LV)h"}},
         0},
        {Kind::SingleRule, {}, 90},
        {Kind::Text, {{11, "K"}, {21, "kPa"}, {35, "kg/m^3"}, {51, "kg/m^3"}, {62, "kJ/kmol"}}, 0},
        doubleRule,
        {Kind::Text,
         {{0, " 1 "}, {9, " 300 "}, {20, " 250 "}, {32, " 6 "}, {48, " 500 "}, {60, " 20000 "}},
         0},
        {Kind::Text, {{4, "V+L"}, {20, " 257.5 "}, {32, " 6.75 "}, {48, " 510 "}, {60, " 20200 "}}, 0},
        {Kind::Text, {{20, " 7.5 "}, {32, " 0.75 "}, {48, " 10 "}, {60, " 200 "}}, 0},
        {Kind::Text, {{20, "(3. %)"}, {32, "(12.5 %)"}, {48, "(2. %)"}, {60, "(1. %)"}}, 0},
        doubleRule,
        {Kind::Text, {{0, "arithmetic mean of ABS(%-deviations):"}}, 0},
        {Kind::Text, {{0, "             "}, {20, "3%"}, {32, "12.5%"}, {48, "2%"}, {60, "1%"}}, 0},
        {Kind::LineFeed, {}, 0},
        {Kind::LineFeed, {}, 0}};
    const std::vector<ListLine> lines = ResultListForPaper(of.list);
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i], expected[i]) << i;
    of.list.useGlobal = false;
    EXPECT_EQ(ResultListForPaper(of.list)[5].pieces, (std::vector<ListPiece>{{26, "(BENSON-Methode)"}}));
    EXPECT_EQ(ResultListForPaper(of.list)[7].pieces,
              (std::vector<ListPiece>{{3, "Vapour Press. Equation"}, {29, ": "}, {31, "Wagner"}}));
}

} // namespace
} // namespace orva::test
