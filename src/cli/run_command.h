// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <istream>
#include <optional>
#include <ostream>

#include "cli/program.h"

namespace orva {

struct RunSummary {
    std::size_t lines = 0, failed = 0;
    bool written = true; // false: the answers could not be written, and the run ended there
};

// How a run is shown while it goes on.
struct RunProgress {
    std::ostream* shown = nullptr; // none: nothing is shown
    double inputBytes = 0;         // 0: not known
    bool flushEachLine = false;    // for a program that waits for each answer
};

// Answers each line of `requests` with one line of `answers`, in order. A line that cannot be answered gives
// {"error": ...} and the run goes on; a blank one is passed over. `database` holds for requests that name
// none.
RunSummary RunRequests(Program& program, const std::string& database, std::istream& requests,
                       std::ostream& answers, RunProgress progress);

// The command: opens the file, "-" for standard input, and runs it.
int RunCommand(Program& program, const Request& request);

} // namespace orva
