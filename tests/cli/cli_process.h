// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "cli/json.h"
#include "support/sample_database.h"
#include "support/test_machine.h"
#include "text/text_file.h"

namespace orva::test {

struct ProcessResult {
    int exitStatus = -1;
    std::string output, error;

    Json Answer() const { return Json::parse(output, nullptr, false); }
    // Standard error is one line of the program's own.
    bool HasOneErrorLine() const {
        return error.starts_with("orva-cli: ") && error.find('\n') == error.size() - 1;
    }
};

// Runs the built program in a shell, in a folder of its own that goes away with the object.
class CliProcess {
public:
    std::filesystem::path Folder() const { return machine.InstallationFolder(); }

    // `command` is a line of the shell in which "orva-cli" is the built program.
    ProcessResult Shell(const std::string& command) const {
        const std::filesystem::path errors = Folder() / "errors.txt";
        const std::string bin = std::filesystem::path(ORVA_CLI).parent_path().string();
        const std::string line = "cd '" + Folder().string() + "' && export PATH='" + bin
                                 + "':$PATH LC_ALL=C.UTF-8 && { " + command + "\n} 2>'" + errors.string()
                                 + "'";
        ProcessResult result;
        FILE* pipe = popen(line.c_str(), "r");
        if (pipe == nullptr)
            return result;
        char buffer[4096];
        for (std::size_t count = 0; (count = fread(buffer, 1, sizeof buffer, pipe)) > 0;)
            result.output.append(buffer, count);
        const int status = pclose(pipe);
        result.exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.error = ReadFile(errors).value_or("");
        return result;
    }

    ProcessResult Run(const std::string& arguments) const { return Shell("orva-cli " + arguments); }

    void Write(const std::string& name, std::string_view bytes) const { WriteFile(Folder() / name, bytes); }

private:
    TestMachine machine;
};

} // namespace orva::test
