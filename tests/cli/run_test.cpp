// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "cli_process.h"

namespace orva::test {
namespace {

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// Requests that change substance, models, units and back again, so that what one leaves behind would be seen
// in the next; with the arguments that ask for the same on the command line.
const std::pair<const char*, const char*> mixed[] = {
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":300,"p":100})",
     "point --substance n-Butan --kind 3 --T 300 --p 100"},
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":300,"p":100,"eos":4,"vapour-pressure":"KFR"})",
     "point --substance n-Butan --kind 3 --T 300 --p 100 --eos 4 --vapour-pressure KFR"},
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":300.1,"p":3000,"volume-basis":2})",
     "point --substance n-Butan --kind 3 --T 300.1 --p 3000 --volume-basis 2"},
    {R"({"command":"curve","substance":"n-Butan","type":1,"T":[350,400],"points":30,"window":[0,2,0,5000]})",
     "curve --substance n-Butan --type 1 --T 350,400 --points 30 --window 0,2,0,5000"},
    {R"({"command":"point","substance":"7732-18-5","kind":3,"T":500,"p":1000,"eos":16})",
     "point --substance 7732-18-5 --kind 3 --T 500 --p 1000 --eos 16"},
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":0,"p":100})",
     "point --substance n-Butan --kind 3 --T 0 --p 100"},
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":300,"p":100})",
     "point --substance n-Butan --kind 3 --T 300 --p 100"},
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":120,"p":5})",
     "point --substance n-Butan --kind 3 --T 120 --p 5"},
    {R"({"command":"find","text":"Butane"})", "find Butane"},
    {R"({"command":"models","substance":"n-Butan"})", "models n-Butan"},
    {R"({"command":"show","substance":"n-Butan"})", "show n-Butan"},
    {R"({"command":"curve","substance":"n-Butan","type":1,"mode":"tie-line","T":300})",
     "curve --substance n-Butan --type 1 --mode tie-line --T 300"},
    {R"({"command":"point","substance":"n-Butan","kind":3,"T":300.1,"p":3000,"volume-basis":2})",
     "point --substance n-Butan --kind 3 --T 300.1 --p 3000 --volume-basis 2"},
};

TEST(RunCommand, GivesEachAnswerOfTheSingleCommandsToTheByte) {
    const CliProcess process;
    std::string requests;
    for (const auto& [request, arguments] : mixed)
        requests += std::string(request) + "\n";
    process.Write("requests.jsonl", requests + requests);
    const ProcessResult run = process.Run("run requests.jsonl");
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.error, "orva-cli: 2 of 26 requests failed\n");
    const std::vector<std::string> answers = Lines(run.output);
    ASSERT_EQ(answers.size(), 2 * std::size(mixed));
    for (std::size_t i = 0; i < std::size(mixed); ++i) {
        const std::string single = process.Run(mixed[i].second).output;
        EXPECT_EQ(answers[i] + "\n", single) << mixed[i].second;
        EXPECT_EQ(answers[i + std::size(mixed)], answers[i]) << mixed[i].second;
    }
    EXPECT_EQ(process.Run("run requests.jsonl").output, run.output);
    EXPECT_EQ(process.Shell("orva-cli run - < requests.jsonl").output, run.output);
}

TEST(RunCommand, GoesOnBehindABrokenLineAndPassesOverBlankOnes) {
    const CliProcess process;
    process.Write("requests.jsonl", "{\"command\":\"find\",\"text\":\"Butane\"}\n"
                                    "nonsense\n"
                                    "\n"
                                    " \t\r\n"
                                    "{\"command\":\"find\",\"text\":\"Butane\",\"colour\":\"red\"}\r\n"
                                    "{\"command\":\"find\",\"text\":\"Butane\"}");
    const ProcessResult run = process.Run("run requests.jsonl");
    EXPECT_EQ(run.exitStatus, 1);
    EXPECT_EQ(run.error, "orva-cli: 2 of 4 requests failed\n");
    const std::vector<std::string> answers = Lines(run.output);
    ASSERT_EQ(answers.size(), 4U);
    EXPECT_THAT(Json::parse(answers[1])["error"].get<std::string>(),
                testing::StartsWith("not JSON: column 2: "));
    EXPECT_EQ(answers[2], R"({"error":"unknown key \"colour\" for command find"})");
    EXPECT_EQ(answers[3], answers[0]);
}

TEST(RunCommand, IsGoodWhenAllAnswersAre) {
    const CliProcess process;
    process.Write("requests.jsonl", "{\"command\":\"find\",\"text\":\"Butane\"}\n");
    const ProcessResult run = process.Run("run requests.jsonl");
    EXPECT_EQ(run.exitStatus, 0);
    EXPECT_EQ(run.error, "");
}

TEST(RunCommand, SaysThatItsFileOrItsDatabaseIsMissing) {
    const CliProcess process;
    const ProcessResult noFile = process.Run("run nothing.jsonl");
    EXPECT_EQ(noFile.exitStatus, 3);
    EXPECT_EQ(noFile.error, "orva-cli: the file nothing.jsonl cannot be read\n");
    process.Write("requests.jsonl", "{\"command\":\"list\"}\n");
    const ProcessResult noDatabase = process.Run("run requests.jsonl --database nichts.Q05");
    EXPECT_EQ(noDatabase.exitStatus, 3);
    EXPECT_EQ(noDatabase.error, "orva-cli: Datenbank nichts.Q05 nicht gefunden bzw. leer\n");
}

} // namespace
} // namespace orva::test
