// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/synonym_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "text/code_page.h"
#include "text/text_file.h"

namespace orva {
namespace {

class SynonymFile : public testing::Test {
protected:
    test::TestMachine machine;
    test::ScriptedDialogs dialogs;

    void Write(std::string_view utf8) {
        ASSERT_TRUE(WriteFile(machine.InstallationFolder() / "SYNOM.TXT", OemFromUtf8(utf8)));
    }

    SynonymResult LookUp(std::string_view text) {
        return LookUpSynonym(text, machine.InstallationFolder(), dialogs);
    }
};

constexpr std::string_view twoGroups = "64-17-5  \r\n"
                                       "*Ethanol_C2H6O_Alkohol\r\n"
                                       "ETHANOL\r\n"
                                       "ETHYLALCOHOL\r\n"
                                       "\r\n"
                                       "64-19-7\r\n"
                                       "*Essigsäure\r\n"
                                       "ESSIGSÄURE\r\n"
                                       "N,N-(DI).X\r\n"
                                       "A[B]C\r\n"
                                       "\r\n";

TEST_F(SynonymFile, FindsANameInItsNormalisedSpelling) {
    Write(twoGroups);
    EXPECT_EQ(LookUp("Äthanol").cas, "64-17-5");
    EXPECT_EQ(LookUp("ethyl-alcohol").cas, "64-17-5");
    EXPECT_EQ(LookUp("Essigsaeure").cas, "64-19-7");
    EXPECT_EQ(LookUp("essigsäure").cas, "64-19-7");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(SynonymFile, FindsACasNumber) {
    Write(twoGroups);
    EXPECT_EQ(LookUp("64-19-7").cas, "64-19-7");
    EXPECT_EQ(LookUp(" 64-19-7").cas, "64-19-7");
    EXPECT_EQ(LookUp("64197").cas, "END") << "the signs of a number are part of it";
}

TEST_F(SynonymFile, GivesTheSecondLineOfTheGroup) {
    Write(twoGroups);
    EXPECT_EQ(LookUp("Ethanol").secondLine, "*Ethanol_C2H6O_Alkohol");
    EXPECT_EQ(LookUp("ESSIGSÄURE").secondLine, "*Essigsäure");
}

TEST_F(SynonymFile, IgnoresHyphensRoundBracketsAndDotsOfASynonym) {
    Write(twoGroups);
    EXPECT_EQ(LookUp("N,N-DIX").cas, "64-19-7");
}

TEST_F(SynonymFile, NeverFindsASynonymWithSquareBrackets) {
    Write(twoGroups);
    EXPECT_EQ(LookUp("A[B]C").cas, "END");
    EXPECT_EQ(LookUp("ABC").cas, "END");
}

TEST_F(SynonymFile, KnowsNothingBehindItsEnd) {
    Write(twoGroups);
    EXPECT_EQ(LookUp("Wasser").cas, "END");
    EXPECT_FALSE(LookUp("Wasser").failed);
    EXPECT_EQ(LookUp("-").cas, "END") << "the empty line of a group is no synonym";
}

TEST_F(SynonymFile, EndsWithoutAnEmptyLine) {
    Write("64-17-5\n*Ethanol\nETHANOL\nSPIRITUS");
    EXPECT_EQ(LookUp("Spiritus").cas, "64-17-5");
    EXPECT_EQ(LookUp("Wasser").cas, "END");
}

TEST_F(SynonymFile, EndsInTheMiddleOfAGroup) {
    Write("64-17-5\r\n");
    EXPECT_EQ(LookUp("64-17-5").cas, "END");
    Write("");
    EXPECT_EQ(LookUp("64-17-5").cas, "END");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(SynonymFile, TellsWhenTheFileIsMissing) {
    EXPECT_TRUE(LookUp("Ethanol").failed);
    EXPECT_THAT(dialogs.shown,
                testing::ElementsAre(Message{"FEHLER",
                                             "Datei 'SYNOM.TXT' im ORVA-Verzeichnis nicht gefunden.\n"
                                             "Wählen Sie den Stoff über die Liste.",
                                             MessageIcon::Exclamation}));
}

TEST_F(SynonymFile, TellsWhenTheFileCannotBeRead) {
    std::filesystem::create_directory(machine.InstallationFolder() / "SYNOM.TXT");
    EXPECT_TRUE(LookUp("Ethanol").failed);
    EXPECT_THAT(dialogs.shown,
                testing::ElementsAre(Message{"FEHLER", "Datei 'SYNOM.TXT' kann nicht gelesen werden.",
                                             MessageIcon::Exclamation}));
}

TEST_F(SynonymFile, SurvivesAnyBytes) {
    std::string bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>((i * 37 + i / 7) & 0xFF);
    ASSERT_TRUE(WriteFile(machine.InstallationFolder() / "SYNOM.TXT", bytes));
    EXPECT_EQ(LookUp("Wasser").cas, "END");
}

TEST(SynonymDescription, SplitsTheSecondLine) {
    const SynonymDescription parts = DescribeSynonym("*Ethanol_C2H6O_rein_z.B._aus_Wein_Lösungsmittel");
    EXPECT_EQ(parts.name, "Ethanol");
    EXPECT_EQ(parts.middle, "C2H6O rein z.B. aus_Wein") << "only the first three signs become blanks";
    EXPECT_EQ(parts.lastField, "Lösungsmittel");
}

TEST(SynonymDescription, HasAllInTheFirstFieldWithoutASign) {
    EXPECT_EQ(DescribeSynonym("*Ethanol").name, "Ethanol");
    EXPECT_EQ(DescribeSynonym("*Ethanol").lastField, "");
    EXPECT_EQ(DescribeSynonym("ÄEthanol").name, "Ethanol")
        << "the leading character may be longer than a byte";
    EXPECT_EQ(DescribeSynonym("").name, "");
}

TEST(SynonymDescription, HasNoMiddleWithOneSign) {
    const SynonymDescription parts = DescribeSynonym("*Ethanol_Alkohol");
    EXPECT_EQ(parts.name, "Ethanol");
    EXPECT_EQ(parts.middle, "");
    EXPECT_EQ(parts.lastField, "Alkohol");
}

} // namespace
} // namespace orva
