// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/request_json.h"

#include "cli/option_table.h"
#include "cli/request_checks.h"

namespace orva {

namespace {

// The first required option that the object lacks.
std::string MissingOption(Command command, const Json& json) {
    for (const OptionRow& row : OptionTable())
        if (row.required && (row.commands & CommandBit(command)) != 0 && !json.contains(row.name))
            return std::string(row.name);
    return {};
}

// "column 8: syntax error ..." without the number of the library's own error; each request is line 1 of a
// text of its own, which says nothing about the file of requests.
std::string SyntaxError(std::string_view what) {
    constexpr std::string_view position = "parse error at line ";
    if (const std::size_t bracket = what.find("] "); bracket != what.npos)
        what.remove_prefix(bracket + 2);
    if (const std::size_t comma = what.find(", "); what.starts_with(position) && comma != what.npos)
        what.remove_prefix(comma + 2);
    return "not JSON: " + std::string(what);
}

std::string ReadCommand(const Json& json, Request& request) {
    if (!json.is_object())
        return "a request is an object in braces";
    const auto command = json.find("command");
    if (command == json.end() || !command->is_string())
        return "the key command is missing or not a text";
    const CliCommandRow* row = FindCliCommand(command->get_ref<const std::string&>());
    if (row == nullptr || row->command == Command::Run)
        return "unknown command " + JsonText(*command);
    request.command = row->command;
    return {};
}

std::string ReadOptions(const Json& json, Request& request) {
    const CliCommandRow* command = nullptr;
    for (const CliCommandRow& row : CliCommands())
        if (row.command == request.command)
            command = &row;
    for (const auto& [key, value] : json.items()) {
        if (key == "command")
            continue;
        const OptionRow* row = FindOption(request.command, key);
        if (row == nullptr || row->lineOnly)
            return "unknown key " + JsonText(Json(key)) + " for command " + std::string(command->name);
        if (std::string error = TakeOptionJson(*row, value, request); !error.empty())
            return error;
    }
    if (const std::string missing = MissingOption(request.command, json); !missing.empty())
        return "the key " + missing + " is missing";
    return CheckRequest(request);
}

} // namespace

ReadRequest RequestFromJson(std::string_view line) {
    ReadRequest read;
    Json json;
    try {
        json = Json::parse(line);
    } catch (const Json::exception& error) {
        read.error = SyntaxError(error.what());
        return read;
    }
    read.error = ReadCommand(json, read.request);
    if (read.error.empty())
        read.error = ReadOptions(json, read.request);
    return read;
}

} // namespace orva
