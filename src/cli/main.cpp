// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>

#include "cli/command_line.h"
#include "cli/main_output.h"
#include "cli/program.h"
#include "cli/run_command.h"
#include "platform/program_machine.h"
#include "platform/qt_program_runner.h"

namespace {

int Print(const orva::Answer& answer, bool textFormat) {
    if (!answer.json.is_null())
        std::cout << orva::JsonText(answer.json) << '\n';
    std::cout << answer.text << std::flush;
    if (textFormat)
        for (const orva::Message& message : answer.messages)
            orva::PrintErrorLine(message.title + ": " + message.text);
    if (answer.exitStatus != orva::exitGood)
        orva::PrintErrorLine(answer.error);
    if (!std::cout && answer.exitStatus == orva::exitGood) {
        orva::PrintErrorLine("standard output cannot be written");
        return orva::exitDataError;
    }
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
        return orva::exitGood;
    }
    const orva::ProgramMachine machine(argc, argv);
    orva::QtProgramRunner runner;
    orva::Program program(machine, runner);
    if (line.request.command == orva::Command::Run)
        return orva::RunCommand(program, line.request);
    return Print(program.Execute(line.request), line.request.textFormat);
}
