// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <sstream>

#include "cli_process.h"

namespace orva::test {
namespace {

struct Example {
    std::string command;
    std::vector<std::string> output;
};

// The console blocks of the document: a line with "$ " is a command, the lines behind it are what it prints.
std::vector<Example> Examples(const std::string& document) {
    std::vector<Example> examples;
    bool inside = false;
    std::istringstream stream(document);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("```"))
            inside = line == "```console";
        else if (inside && line.starts_with("$ "))
            examples.push_back({line.substr(2), {}});
        else if (inside && !examples.empty())
            examples.back().output.push_back(line);
    }
    return examples;
}

// A shown line that ends in "..." stands for all lines with that beginning.
bool Matches(const std::string& shown, const std::string& printed) {
    if (shown.ends_with("..."))
        return printed.starts_with(shown.substr(0, shown.size() - 3));
    return shown == printed;
}

TEST(CommandLineDocument, ShowsExamplesThatAreTrue) {
    const std::vector<Example> examples = Examples(ReadFile(ORVA_CLI_DOCUMENT).value_or(""));
    ASSERT_GE(examples.size(), 8U);
    const CliProcess
        process; // one folder for all, so that a later example can use the file of an earlier one
    for (const Example& example : examples) {
        const ProcessResult result = process.Shell(example.command);
        std::istringstream printed(result.output + result.error);
        std::vector<std::string> lines;
        for (std::string line; std::getline(printed, line);)
            lines.push_back(line);
        ASSERT_EQ(lines.size(), example.output.size()) << example.command << "\n"
                                                       << result.output << result.error;
        for (std::size_t i = 0; i < lines.size(); ++i)
            EXPECT_TRUE(Matches(example.output[i], lines[i])) << example.command << "\n" << lines[i];
    }
}

} // namespace
} // namespace orva::test
