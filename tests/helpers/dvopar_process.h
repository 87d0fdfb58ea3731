// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "text/text_file.h"

namespace orva::test {

struct ProcessOutcome {
    int status = 0; // 0 for a good end
    std::string errorText;
};

inline std::string Quoted(const std::filesystem::path& path) {
    return std::string("\"").append(path.string()).append("\"");
}

// Runs the program for a folder given as its argument, or, without one, in the folder.
inline ProcessOutcome RunDvopar(const std::filesystem::path& folder, bool asArgument = true) {
    const std::filesystem::path errors = folder / "stderr.txt";
    std::string command;
    if (!asArgument)
        command.append("cd ").append(Quoted(folder)).append(" && ");
    command.append(Quoted(ORVA_DVOPAR));
    if (asArgument)
        command.append(" ").append(Quoted(folder));
    command.append(" 2> ").append(Quoted(errors));
#ifdef _WIN32
    command.insert(0, 1, '"').append("\"");
#endif
    ProcessOutcome outcome;
    outcome.status = std::system(command.c_str());
    outcome.errorText = ReadFile(errors).value_or("");
    return outcome;
}

} // namespace orva::test
