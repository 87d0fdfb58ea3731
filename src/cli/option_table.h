// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "cli/json.h"
#include "cli/request.h"

namespace orva {

// The kind of value that an option takes, and how it is written on the command line and in JSON.
enum class ValueKind : unsigned char {
    Integer,    // 3
    Number,     // 300.5
    NumberList, // 0,2,0,5000 and [0, 2, 0, 5000]
    OneOrMore,  // 300 or 300,320 and 300 or [300, 320]
    WordOrList, // proposal or 1,2,3,4 and "proposal" or [1, 2, 3, 4]
    Text,       // "n-Butan"
    Choice,     // one of the words of `choices`
    Switch,     // on or off and "on", "off", true, false
    Flag        // given or not and true, false
};

struct OptionValue {
    std::vector<double> numbers;
    std::string text;
    bool on = false;
};

// All that is to be said of one option.
struct OptionRow {
    std::string_view name; // "vapour-pressure": "--vapour-pressure" on the line, the same key in JSON
    unsigned commands;     // bits of the commands that take it
    ValueKind kind;
    double low, high;         // of integers and numbers
    std::size_t count;        // of numbers in a list; the largest one of OneOrMore
    std::string_view choices; // "global|partial"
    std::string_view help;
    bool required;
    std::string_view argument; // "FILE": may stand on the command line without its name
    bool lineOnly;             // not in requests
    void (*put)(Request&, const OptionValue&);
};

std::span<const OptionRow> OptionTable();

constexpr unsigned CommandBit(Command command) {
    return 1U << static_cast<unsigned>(command);
}

struct CliCommandRow {
    Command command;
    std::string_view name;
    std::string_view help;
};

std::span<const CliCommandRow> CliCommands();
const CliCommandRow* FindCliCommand(std::string_view name);

// The row of an option for a command; null if the command does not take it.
const OptionRow* FindOption(Command command, std::string_view name);

// Reads a value and puts it where it belongs. The error text names the option; empty when all is well.
std::string TakeOptionText(const OptionRow& row, std::string_view text, Request& request);
std::string TakeOptionJson(const OptionRow& row, const Json& value, Request& request);

} // namespace orva
