// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include <deque>

#include <CLI/CLI.hpp>

#include "cli/answer.h"
#include "cli/option_table.h"
#include "cli/request_checks.h"

namespace orva {

namespace {

struct GivenOption {
    const OptionRow* row;
    std::string text;
    bool given = false;
};

std::string HelpText(const OptionRow& row) {
    std::string text(row.help);
    if (!row.choices.empty())
        text += " (" + std::string(row.choices) + ")";
    return text;
}

std::string LineName(const OptionRow& row) {
    const std::string name(row.name);
    return row.argument.empty() ? "--" + name : "--" + name + "," + std::string(row.argument);
}

void AddOption(CLI::App& command, const OptionRow& row, std::deque<GivenOption>& given) {
    GivenOption& option = given.emplace_back(GivenOption{&row, {}});
    if (row.kind == ValueKind::Flag) {
        command.add_flag_callback(
            LineName(row),
            [&option] {
                option.given = true;
                option.text = "true";
            },
            HelpText(row));
        return;
    }
    command
        .add_option_function<std::string>(
            LineName(row),
            [&option](const std::string& text) {
                option.given = true;
                option.text = text;
            },
            HelpText(row))
        ->required(row.required)
        ->type_name("");
}

std::string TakeOptions(const std::deque<GivenOption>& given, Request& request) {
    for (const GivenOption& option : given) {
        if (!option.given)
            continue;
        if (std::string error = TakeOptionText(*option.row, option.text, request); !error.empty())
            return error;
    }
    return CheckRequest(request);
}

// The library would ask for an argument by the name of its option.
std::string MissingText(const CLI::App& app, const CLI::RequiredError& error) {
    for (const CLI::App* chosen : app.get_subcommands())
        for (const OptionRow& row : OptionTable())
            if ((row.commands & CommandBit(FindCliCommand(chosen->get_name())->command)) != 0
                && !row.argument.empty() && chosen->count("--" + std::string(row.name)) == 0)
                return "the argument " + std::string(row.argument) + " is missing";
    return OneLine(error.what());
}

// The library has no clear words for a first argument that is no command.
std::string UnknownCommand(int argc, char** argv) {
    const std::string_view first = argc > 1 ? std::string_view(argv[1]) : std::string_view();
    if (first.starts_with('-') || FindCliCommand(first) != nullptr)
        return {};
    std::string error = first.empty() ? "a command is missing" : "unknown command " + JsonText(Json(first));
    error += "; the commands are";
    for (const CliCommandRow& row : CliCommands()) {
        error += row.command == CliCommands().front().command ? " " : ", ";
        error += row.name;
    }
    return error;
}

} // namespace

CommandLine ReadCommandLine(int argc, char** argv) {
    CommandLine line;
    if (line.error = UnknownCommand(argc, argv); !line.error.empty())
        return line;
    CLI::App app(
        "State points and diagrams of pure substances. Answers are JSON on standard output; exit status 0 "
        "good, 1 the calculation failed, 2 wrong usage, 3 file or data error.",
        "orva-cli");
    app.require_subcommand(1);
    std::deque<GivenOption> given;
    for (const CliCommandRow& row : CliCommands()) {
        CLI::App* command = app.add_subcommand(std::string(row.name), std::string(row.help));
        command->callback([&line, &row] { line.request.command = row.command; });
        for (const OptionRow& option : OptionTable())
            if ((option.commands & CommandBit(row.command)) != 0)
                AddOption(*command, option, given);
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        const auto chosen = app.get_subcommands();
        line.help = chosen.empty() ? app.help() : chosen.front()->help("orva-cli");
        return line;
    } catch (const CLI::RequiredError& error) {
        line.error = MissingText(app, error);
        return line;
    } catch (const CLI::ParseError& error) {
        line.error = OneLine(error.what());
        return line;
    }
    line.error = TakeOptions(given, line.request);
    return line;
}

} // namespace orva
