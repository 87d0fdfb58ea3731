// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "shell/exit.h"
#include "shell/road.h"
#include "support/sample_database.h"
#include "support/scripted_dialogs.h"
#include "support/test_machine.h"

namespace orva::test {
namespace {

struct Exit : testing::Test {
    TestMachine machine;
    ScriptedDialogs dialogs;
    Session session{machine, dialogs};

    std::filesystem::path Path(const char* name) const { return machine.WritableFolder() / name; }
};

TEST_F(Exit, WritesTheProtocolClosesTheFilesThenTheHelpAndForgetsTheComment) {
    WriteSampleDatabase(machine.InstallationFolder());
    ASSERT_TRUE(OpenDatabase(session, "ORVA.Q05"));
    session.state.projectComment = "Versuch 1";
    std::array<double, resultCount> results{};
    results[slotT] = 300;
    session.protocol.Record(results, session.Calculation());
    int closed = 0;
    EndSession(session, [&] {
        ++closed;
        EXPECT_TRUE(FileExists(Path("26211101.CSV")));
        EXPECT_FALSE(session.database.IsOpen());
        EXPECT_EQ(session.state.projectComment, "Versuch 1");
    });
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(session.state.projectComment, "");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(Exit, RemovesAnEmptyProtocolAndLeavesAForeignOne) {
    ASSERT_TRUE(WriteFile(Path("26211101.CSV"), ""));
    EndSession(session, [] {});
    EXPECT_FALSE(std::filesystem::exists(Path("26211101.CSV")));
    ASSERT_TRUE(WriteFile(Path("26211101.CSV"), "x"));
    EndSession(session, [] {});
    EXPECT_TRUE(FileExists(Path("26211101.CSV")));
}

TEST_F(Exit, WithoutADatabaseLeavesNothingBehind) {
    EndSession(session, [] {});
    EXPECT_TRUE(std::filesystem::is_empty(machine.WritableFolder()));
}

TEST_F(Exit, TwiceIsOnce) {
    std::array<double, resultCount> results{};
    results[slotT] = 300;
    session.protocol.Record(results, session.Calculation());
    EndSession(session, [] {});
    ASSERT_TRUE(WriteFile(Path("26211101.CSV"), "kept"));
    EndSession(session, [] {});
    EXPECT_EQ(ReadFile(Path("26211101.CSV")), "kept");
}

} // namespace
} // namespace orva::test
