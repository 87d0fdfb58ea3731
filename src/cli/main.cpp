// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>

#include "cli/command_line.h"
#include "cli/main_output.h"
#include "cli/program.h"
#include "cli/run_command.h"
#include "platform/program_machine.h"
#include "platform/qt_program_runner.h"

namespace {

// Wrong usage has no answer, whether the options alone or the substance showed it; nor does JSON belong into
// the text format.
int Print(orva::Answer answer, bool textFormat) {
    if (textFormat)
        std::cout << answer.text;
    else if (answer.exitStatus != orva::exitWrongUsage)
        std::cout << orva::TakeJsonText(std::move(answer)) << '\n';
    std::cout << std::flush;
    if (textFormat && answer.exitStatus != orva::exitWrongUsage)
        for (const orva::Message& message : answer.messages)
            orva::PrintErrorLine(message.title + ": " + message.text);
    if (answer.exitStatus != orva::exitGood)
        orva::PrintErrorLine(answer.error);
    else if (!std::cout)
        return orva::OutputFailure();
    return answer.exitStatus;
}

} // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const orva::CommandLine line = orva::ReadCommandLine(argc, argv);
    if (!line.error.empty()) {
        orva::PrintErrorLine(line.error);
        return orva::exitWrongUsage;
    }
    if (!line.help.empty()) {
        std::cout << line.help << std::flush;
        return std::cout ? orva::exitGood : orva::OutputFailure();
    }
    const orva::ProgramMachine machine(argc, argv);
    orva::QtProgramRunner runner;
    orva::Program program(machine, runner);
    if (line.request.command == orva::Command::Run)
        return orva::RunCommand(program, line.request);
    return Print(program.Execute(line.request), line.request.textFormat);
}
