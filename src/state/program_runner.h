// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace orva {

// Runs the helper programs beside the workbench.
class ProgramRunner {
public:
    virtual ~ProgramRunner() = default;
    // Runs `program` without a window in `folder` and comes back when it has ended, after `seconds` at the
    // latest. How it ended, and whether it started at all, is not told: what counts is the file it leaves.
    virtual void Run(const std::filesystem::path& program, const std::filesystem::path& folder,
                     int seconds) = 0;
};

} // namespace orva
