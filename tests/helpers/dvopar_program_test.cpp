// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpers/dvopar_process.h"
#include "helpers/request_samples.h"
#include "state/model_selection.h"
#include "substance/vo_halme_exchange.h"
#include "support/test_machine.h"

namespace orva {
namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

class DvoparProgram : public ::testing::Test {
protected:
    const test::TestMachine machine; // its folder goes away with it
    const std::filesystem::path folder = machine.WritableFolder();
    const std::filesystem::path first = folder / "PARAM_VO.DAT";
    const std::filesystem::path second = folder / "PARA_VO2.DAT";

    void Ask(const std::string& text) const { ASSERT_TRUE(WriteFile(folder / "vopar.tmp", text)); }

    void ExpectRefusal(const std::string& words) const {
        const test::ProcessOutcome outcome = test::RunDvopar(folder);
        EXPECT_NE(outcome.status, 0);
        EXPECT_EQ(outcome.errorText, "dvopar: " + words + "\n");
        EXPECT_FALSE(std::filesystem::exists(first));
        EXPECT_FALSE(std::filesystem::exists(second));
    }
};

TEST_F(DvoparProgram, IsCalledDvoparExeOnEveryPlatform) {
    EXPECT_EQ(std::filesystem::path(ORVA_DVOPAR).filename(), "dvopar.exe");
}

TEST_F(DvoparProgram, WritesTheResultOfTheFirstRowForTheFolderOfItsArgument) {
    Ask(test::WaterRequest("10"));
    const test::ProcessOutcome outcome = test::RunDvopar(folder);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errorText, "");
    EXPECT_FALSE(std::filesystem::exists(second));
    const std::optional<std::string> text = ReadFile(first);
    ASSERT_TRUE(text);
    EXPECT_THAT(*text, StartsWith("10\r\n\"7732-18-5   \"\r\n"));
    EXPECT_THAT(*text, EndsWith("\r\n"));
    const std::optional<VoHalmeResult> result = ReadVoHalmeResult(*text, eosVoHalme1);
    ASSERT_TRUE(result);
    EXPECT_GT(result->zeta, 0.2);
    EXPECT_LT(result->zeta, 0.37);
    EXPECT_GT(result->m1, 0);
}

TEST_F(DvoparProgram, WritesTheResultOfTheSecondRowInItsWorkingFolder) {
    Ask(test::WaterRequest("11"));
    EXPECT_EQ(test::RunDvopar(folder, false).status, 0);
    EXPECT_FALSE(std::filesystem::exists(first));
    const std::optional<std::string> text = ReadFile(second);
    ASSERT_TRUE(text);
    EXPECT_TRUE(ReadVoHalmeResult(*text, eosVoHalme2));
}

TEST_F(DvoparProgram, LeavesNothingButItsResultBehind) {
    Ask(test::WaterRequest());
    EXPECT_EQ(test::RunDvopar(folder).status, 0);
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, ::testing::UnorderedElementsAre("vopar.tmp", "PARAM_VO.DAT", "stderr.txt"));
}

TEST_F(DvoparProgram, RefusesAMissingRequest) {
    ExpectRefusal("vopar.tmp cannot be read");
}

TEST_F(DvoparProgram, RefusesABrokenRequest) {
    Ask("10\r\n\"7732-18-5   \"\r\n1, 1, 3\r\n");
    ExpectRefusal("the request ends after 5 of 32 items");
}

TEST_F(DvoparProgram, RefusesANumberThatIsNone) {
    Ask(test::RequestOf("10", "1, 1, 3", "18, 373, inf, 22064, 322, .3\n", test::noDensity,
                        test::waterWagner));
    ExpectRefusal("item 8 of the request is no number");
}

TEST_F(DvoparProgram, RefusesDataThatCannotBeFitted) {
    Ask(test::RequestOf("10", "0, 1, 1", test::waterConstants, test::noDensity,
                        "0,1E-6,230,0,0,0,0,0,0,0,300,640\n"));
    const test::ProcessOutcome outcome = test::RunDvopar(folder);
    EXPECT_NE(outcome.status, 0);
    EXPECT_THAT(outcome.errorText, StartsWith("dvopar: "));
    EXPECT_FALSE(std::filesystem::exists(first));
}

TEST_F(DvoparProgram, SaysWhenTheResultCannotBeWritten) {
    Ask(test::WaterRequest());
    std::filesystem::create_directory(first);
    const test::ProcessOutcome outcome = test::RunDvopar(folder);
    EXPECT_NE(outcome.status, 0);
    EXPECT_EQ(outcome.errorText, "dvopar: PARAM_VO.DAT cannot be written\n");
}

} // namespace
} // namespace orva
