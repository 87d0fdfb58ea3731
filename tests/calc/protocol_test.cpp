// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "calc/calc_fixture.h"
#include "calc/protocol.h"
#include "calc/result_window.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"
#include "text/text_file.h"

namespace orva::test {
namespace {

namespace fs = std::filesystem;

struct ProtocolTest : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    Calculation calculation;
    std::optional<Protocol> protocol{std::in_place, machine, dialogs};

    ProtocolTest() { calculation.state.CurrentModelText = "CEOS Peng / Robinson; Wagner"; }

    void Record(double T) {
        std::array<double, resultCount> results{};
        results[slotT] = T;
        protocol->Record(results, calculation.Context());
    }
    fs::path Path(const std::string& name) const { return machine.WritableFolder() / name; }
    std::string Bytes(const std::string& name) const { return ReadFile(Path(name)).value_or("(no file)"); }
    // What a session that broke off leaves, and the start of the next one.
    void Crash(bool takeOver) {
        dialogs.answers = {takeOver};
        protocol.emplace(machine, dialogs);
        protocol->OfferRecovery();
    }
};

TEST_F(ProtocolTest, StartsEmptyUnderTheNameOfTheDay) {
    EXPECT_EQ(protocol->protocolFile, "26211101.CSV");
    EXPECT_FALSE(protocol->protocolOpen());
    EXPECT_EQ(protocol->protocolRows(), 0);
    EXPECT_FALSE(fs::exists(protocol->RecoveryFile()));
}

TEST_F(ProtocolTest, CollectsRowsAndWritesThemWhenAskedTo) {
    Record(300);
    Record(1.0 / 3);
    EXPECT_TRUE(protocol->protocolOpen());
    ASSERT_EQ(protocol->protocolRows(), 2);
    EXPECT_EQ(protocol->ProtocolTable()[1][slotT], 1.0F / 3);
    EXPECT_FALSE(fs::exists(Path("26211101.CSV")));
    EXPECT_TRUE(dialogs.shown.empty());

    const auto clipboard = protocol->OpenNew(calculation.Context());
    EXPECT_EQ(Bytes("26211101.CSV"),
              "ORVA-6: p-V-T Calculations of States and Processes - Protocol from 21.11.2026\r\n"
              "n-Butan\r\n"
              "CEOS Peng / Robinson; Wagner\r\n"
              "units: [T] = K   [p] = kPa   [B] = m^3/kmol    [v] = m^3/kmol \r\n"
              "molar SI-units for function z: [z] = kJ/kmol or kJ/(kmol K)\r\n"
              "\r\n"
              "T;\r\n300;\r\n0.3333333;\r\n");
    ASSERT_TRUE(clipboard);
    // Every separator becomes a tab, in the head as well.
    EXPECT_NE(clipboard->find("CEOS Peng / Robinson\t Wagner\r\n"), std::string::npos);
    EXPECT_TRUE(clipboard->ends_with("\r\n\r\nT\t\r\n300\t\r\n0.3333333\t\r\n"));
    EXPECT_EQ(protocol->protocolFile, "26211102.CSV");
    EXPECT_FALSE(protocol->protocolOpen());
    EXPECT_EQ(protocol->protocolRows(), 0);
    EXPECT_FALSE(fs::exists(protocol->RecoveryFile()));
}

TEST_F(ProtocolTest, TheResultWindowSettlesTheModelText) {
    calculation.state.CurrentModelText.clear();
    calculation.model.selection.vaporPressure = vpWagner;
    (void)ResultWindow(calculation.Context()).StatusLine();
    EXPECT_EQ(calculation.state.CurrentModelText, "CEOS Peng / Robinson; Wagner");
}

TEST_F(ProtocolTest, WarnsOfTheCommaEveryTimeAndTakesTheRow) {
    calculation.options.listSeparator = ',';
    Record(300);
    Record(310);
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[1].title, "Warnung");
    EXPECT_EQ(dialogs.shown[1].text,
              "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen Komma)\r\n"
              "ist Komma als Dateitrennzeichen nicht sinnvoll; der Clipboard-Inhalt\r\n"
              "ist nicht mehr Excel-kompatibel.\r\n"
              "Empfehlung: Semikolon");
    EXPECT_EQ(protocol->protocolRows(), 2);
}

TEST_F(ProtocolTest, WritesInTheCodePageAndTheNumberStyleOfTheProgram) {
    calculation.model.substance.name = "Schwefelsäure";
    calculation.style = {','};
    Record(300.5);
    ASSERT_TRUE(protocol->WriteProtocol(calculation.Context()));
    const std::string bytes = Bytes("26211101.CSV");
    EXPECT_NE(bytes.find("\r\nSchwefels\xE4ure\r\n"), std::string::npos);
    EXPECT_TRUE(bytes.ends_with("T;\r\n300,5;\r\n"));
    EXPECT_NE(protocol->OpenNew(calculation.Context())->find("Schwefelsäure"), std::string::npos);
}

TEST_F(ProtocolTest, ReplacesAFileOfItsNameAndTakesAPathWithAFolder) {
    ASSERT_TRUE(WriteFile(Path("26211101.CSV"), "old"));
    Record(300);
    ASSERT_TRUE(protocol->WriteProtocol(calculation.Context()));
    EXPECT_TRUE(Bytes("26211101.CSV").starts_with("ORVA-6"));
    fs::create_directory(Path("own"));
    protocol->protocolFile = Path("own/mine.CSV").string();
    ASSERT_TRUE(protocol->WriteProtocol(calculation.Context()));
    EXPECT_TRUE(Bytes("own/mine.CSV").starts_with("ORVA-6"));
}

TEST_F(ProtocolTest, AnEmptyFileIsRemovedAndGivesAnEmptyClipboard) {
    ASSERT_TRUE(WriteFile(Path("26211101.CSV"), ""));
    EXPECT_EQ(protocol->OpenNew(calculation.Context()), "");
    EXPECT_FALSE(fs::exists(Path("26211101.CSV")));
    EXPECT_EQ(protocol->protocolFile, "26211101.CSV");
}

TEST_F(ProtocolTest, AFileThatCannotBeWrittenIsSaidAndKeepsTheRows) {
    Record(300);
    protocol->protocolFile = Path("missing/folder.CSV").string();
    EXPECT_FALSE(protocol->OpenNew(calculation.Context()));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "Ausgabe-Fehler");
    EXPECT_EQ(dialogs.shown[0].text,
              "Die Datei kann nicht geschrieben werden:\n" + Path("missing/folder.CSV").string());
    EXPECT_TRUE(protocol->protocolOpen());
    EXPECT_EQ(protocol->protocolRows(), 1);
    protocol->Close(calculation.Context());
    EXPECT_TRUE(fs::exists(protocol->RecoveryFile())); // the next start offers them
}

TEST_F(ProtocolTest, EndOfTheSessionWritesWhatIsOpenAndRemovesWhatIsEmpty) {
    ASSERT_TRUE(WriteFile(Path("26211101.CSV"), ""));
    protocol->Close(calculation.Context());
    EXPECT_FALSE(fs::exists(Path("26211101.CSV")));
    Record(300);
    protocol->Close(calculation.Context());
    EXPECT_TRUE(Bytes("26211101.CSV").ends_with("T;\r\n300;\r\n"));
    EXPECT_FALSE(fs::exists(protocol->RecoveryFile()));
    EXPECT_FALSE(protocol->protocolOpen());
}

TEST_F(ProtocolTest, EveryRowIsOnDiskAtOnce) {
    for (int i = 1; i <= 3; ++i) {
        Record(300 + i);
        const ProtocolRecovery kept = ParseRecovery(*ReadFile(protocol->RecoveryFile()));
        EXPECT_EQ(kept.rows, protocol->ProtocolTable());
        EXPECT_EQ(kept.head.substance, "n-Butan");
        EXPECT_EQ(kept.protocolFile, "26211101.CSV");
    }
}

TEST_F(ProtocolTest, RowsOfASessionThatBrokeOffAreTakenOver) {
    Record(300);
    Record(310);
    calculation.model.substance.name.clear(); // nothing is loaded at the start
    calculation.state.CurrentModelText.clear();
    Crash(true);
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, "Protokoll wiederherstellen");
    EXPECT_EQ(
        dialogs.asked[0].text,
        "Die letzte Sitzung wurde nicht ordentlich beendet.\nIhr Protokoll mit 2 Zeilen (Stoff: n-Butan) "
        "ist noch nicht gespeichert.\n"
        "\nMöchten Sie diese Zeilen in das Protokoll übernehmen?\n"
        "(Bei \"Nein\" bleiben sie in der Datei ORVAPROT.BAK.)");
    EXPECT_TRUE(protocol->protocolOpen());
    EXPECT_EQ(protocol->protocolRows(), 2);
    EXPECT_TRUE(fs::exists(protocol->RecoveryFile())); // it might break off again
    protocol->Close(calculation.Context());
    const std::string bytes = Bytes("26211101.CSV");
    EXPECT_NE(bytes.find("\r\nn-Butan\r\nCEOS Peng / Robinson; Wagner\r\n"), std::string::npos);
    EXPECT_TRUE(bytes.ends_with("T;\r\n300;\r\n310;\r\n"));
    EXPECT_FALSE(fs::exists(protocol->RecoveryFile()));
}

TEST_F(ProtocolTest, RowsTakenOverGoOnWithTheSubstanceOfTheNextRow) {
    Record(300);
    Crash(true);
    calculation.model.substance.name = "Ethan";
    Record(310);
    protocol->Close(calculation.Context());
    EXPECT_NE(Bytes("26211101.CSV").find("\r\nEthan\r\n"), std::string::npos);
    EXPECT_TRUE(Bytes("26211101.CSV").ends_with("T;\r\n300;\r\n310;\r\n"));
}

TEST_F(ProtocolTest, RefusedRowsStayAside) {
    Record(300);
    Crash(false);
    EXPECT_FALSE(protocol->protocolOpen());
    EXPECT_FALSE(fs::exists(protocol->RecoveryFile()));
    EXPECT_EQ(ParseRecovery(*ReadFile(protocol->RefusedRecoveryFile())).rows.size(), 1U);
    protocol->OfferRecovery();
    EXPECT_EQ(dialogs.asked.size(), 1U);
}

TEST_F(ProtocolTest, ANameThatLeadsElsewhereOrIsTakenIsNotUsed) {
    for (const char* name :
         {"../26211107.CSV", "a/b.CSV", "26211107.TXT", ".CSV", "ORVA.Q05", "26211109.CSV"}) {
        ASSERT_TRUE(WriteFile(Path("26211109.CSV"), "taken"));
        Record(300);
        ProtocolRecovery recovery = ParseRecovery(*ReadFile(protocol->RecoveryFile()));
        recovery.protocolFile = name;
        ASSERT_TRUE(WriteFile(protocol->RecoveryFile(), RecoveryText(recovery)));
        Crash(true);
        EXPECT_EQ(protocol->protocolFile, "26211101.CSV") << name;
    }
}

TEST_F(ProtocolTest, DamageIsCountedAndARestWithoutRowsIsNotAskedFor) {
    Record(300);
    const std::string whole = *ReadFile(protocol->RecoveryFile());
    ASSERT_TRUE(WriteFile(protocol->RecoveryFile(), whole + "row\t1\t2\n"));
    Crash(true);
    EXPECT_NE(dialogs.asked[0].text.find("\n1 Zeile nicht mehr lesbar.\n"), std::string::npos);
    EXPECT_EQ(protocol->protocolRows(), 1);
    ASSERT_TRUE(WriteFile(protocol->RecoveryFile(), std::string("\0\xFFrow\trow\n", 10)));
    Crash(true);
    EXPECT_EQ(dialogs.asked.size(), 1U);
    EXPECT_FALSE(protocol->protocolOpen());
}

TEST_F(ProtocolTest, TwoProgramsSideBySideKeepTheirRowsApart) {
    Protocol other(machine, dialogs);
    other.programNumber = 2;
    std::array<double, resultCount> results{};
    results[slotT] = 400;
    Record(300);
    other.OfferRecovery(); // the rows of the first are none of its own
    EXPECT_TRUE(dialogs.asked.empty());
    other.Record(results, calculation.Context());
    EXPECT_EQ(other.RecoveryFile(), Path("ORVAPROT2.REC"));
    EXPECT_EQ(other.RefusedRecoveryFile(), Path("ORVAPROT2.BAK"));
    EXPECT_EQ(other.protocolFile, protocol->protocolFile); // none is on disk yet
    other.Close(calculation.Context());
    protocol->Close(calculation.Context());
    EXPECT_TRUE(Bytes("26211101.CSV").ends_with("T;\r\n400;\r\n"));
    EXPECT_TRUE(Bytes("26211102.CSV").ends_with("T;\r\n300;\r\n"));
    EXPECT_FALSE(fs::exists(protocol->RecoveryFile()));
    EXPECT_FALSE(fs::exists(other.RecoveryFile()));
}

TEST_F(ProtocolTest, WhatItWroteItselfIsItsOwnFile) {
    Record(300);
    ASSERT_TRUE(protocol->WriteProtocol(calculation.Context()));
    Record(310);
    protocol->Close(calculation.Context());
    EXPECT_TRUE(Bytes("26211101.CSV").ends_with("T;\r\n300;\r\n310;\r\n"));
    EXPECT_FALSE(fs::exists(Path("26211102.CSV")));
}

TEST_F(ProtocolTest, AFolderThatTakesNoRecoveryFileIsSaidOnce) {
    fs::create_directory(protocol->RecoveryFile());
    Record(300);
    Record(310);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(dialogs.shown[0].text.starts_with("Das Protokoll kann nicht gegen einen Absturz gesichert"));
    EXPECT_EQ(protocol->protocolRows(), 2);
}

} // namespace
} // namespace orva::test
