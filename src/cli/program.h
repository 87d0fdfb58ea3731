// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <memory>

#include "cli/answer.h"
#include "cli/drawing.h"
#include "cli/request.h"
#include "cli/workspace.h"
#include "state/machine.h"
#include "state/program_runner.h"

namespace orva {

// Answers requests, each as if it were the first. Databases that were opened stay open.
class Program {
public:
    Program(const Machine& theMachine, ProgramRunner& theRunner) : machine(theMachine), runner(theRunner) {}

    Answer Execute(const Request& request);
    // Opens the database of the request if it is not open yet.
    std::optional<Failure> OpenDatabase(const std::string& database);

private:
    const Machine& machine;
    ProgramRunner& runner;
    Drawing drawing;
    std::map<std::string, std::unique_ptr<Workspace>> workspaces; // by the name of their database
};

} // namespace orva
